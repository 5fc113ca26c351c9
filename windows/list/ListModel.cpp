#include "windows/list/ListModel.h"

#include <algorithm>
#include <utility>

#include "windows/QtText.h"

namespace calvoro {
namespace {

// What a cell shows of a text: nobody reads more, and the toolkit would measure all of it.
constexpr std::size_t kShownBytes = 500;

QString Shown(std::string_view text) {
    std::string_view begin = text.substr(0, kShownBytes);
    // No part of a character.
    while (begin.size() < text.size() && !begin.empty() &&
           (static_cast<unsigned char>(text[begin.size()]) & 0xC0) == 0x80) {
        begin.remove_suffix(1);
    }
    QString shown = ToQt(begin);
    for (QChar& character : shown) {
        if (character < QLatin1Char(' ')) character = QLatin1Char(' ');
    }
    if (begin.size() < text.size()) shown += QStringLiteral(" ...");
    return shown;
}

}  // namespace

void ListModel::SetSheet(ListSheet sheet) {
    beginResetModel();
    sheet_ = std::move(sheet);
    order_.reset();
    begin_ = 0;
    computed_.clear();
    endResetModel();
}

void ListModel::SetMaker(std::shared_ptr<ListRowMaker> maker) {
    sheet_.maker = std::move(maker);
    ChangeContents();
}

void ListModel::SetDateColumn(std::size_t column) {
    sheet_.dateColumn = column;
    ChangeContents();
}

void ListModel::SetOrder(RowOrder order) {
    beginResetModel();
    order_ = std::move(order);
    begin_ = 0;
    endResetModel();
}

void ListModel::SetCaptions(ListCaptions captions) {
    captions_ = std::move(captions);
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

void ListModel::ShowPartWith(std::uint32_t place) {
    const std::uint32_t begin = place - place % kRowsInPart;
    if (begin == begin_) return;
    beginResetModel();
    begin_ = begin;
    endResetModel();
}

void ListModel::ChangeContents() {
    computed_.clear();
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
    if (rowCount() > 0) Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

std::uint32_t ListModel::Places() const {
    return order_ ? static_cast<std::uint32_t>(order_->size()) : sheet_.lines->Count();
}

int ListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(std::min(kRowsInPart, Places() - begin_));
}

int ListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : GivenColumns() + kComputedColumns;
}

QVariant ListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole)) return {};
    const std::uint32_t row = RowAt(order_, begin_ + static_cast<std::uint32_t>(index.row()));
    return TextsOf(row).at(index.column());
}

QVariant ListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role != Qt::DisplayRole) return {};
    if (orientation == Qt::Vertical) return RowAt(order_, begin_ + static_cast<std::uint32_t>(section)) + 1;
    if (section < GivenColumns()) return GivenCaption(section);
    switch (static_cast<ComputedColumn>(section - GivenColumns())) {
        case ComputedColumn::Reading: return captions_.reading;
        case ComputedColumn::Result: {
            const QString of = sheet_.maker ? ToQt(sheet_.maker->ResultCaption()) : QString();
            return of.isEmpty() ? captions_.result : captions_.result + QStringLiteral(": ") + of;
        }
        case ComputedColumn::Weekday: return captions_.weekday;
        case ComputedColumn::Reason: break;
    }
    return captions_.reason;
}

QString ListModel::GivenCaption(int column) const {
    if (GivenColumns() == 1) return captions_.date;
    const QString numbered = captions_.column + QLatin1Char(' ') + QString::number(column + 1);
    const bool isDate = static_cast<std::size_t>(column) == sheet_.dateColumn;
    return isDate ? numbered + QStringLiteral(": ") + captions_.date : numbered;
}

const QStringList& ListModel::TextsOf(std::uint32_t row) const {
    const auto found = computed_.find(row);
    if (found != computed_.end()) return found->second;
    constexpr std::size_t kMostKept = 512;
    if (computed_.size() >= kMostKept) computed_.clear();
    return computed_.emplace(row, MakeTexts(row)).first->second;
}

QStringList ListModel::MakeTexts(std::uint32_t row) const {
    const std::string_view line = sheet_.Line(row);
    const FieldShape& shape = sheet_.lines->Shape();
    std::vector<std::string_view> fields;
    SplitFields(line, shape, sheet_.lines->Columns(), fields);
    fields.resize(sheet_.lines->Columns());
    QStringList texts;
    std::string scratch;
    for (const std::string_view field : fields) texts.push_back(Shown(FieldText(field, shape, scratch)));

    ListRow computed;
    sheet_.Compute(line, computed);
    for (const std::string& text : {computed.reading, computed.result, computed.weekday, computed.reason}) {
        texts.push_back(Shown(text));
    }
    return texts;
}

}  // namespace calvoro
