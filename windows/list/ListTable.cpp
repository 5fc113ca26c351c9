#include "windows/list/ListTable.h"

#include <QHeaderView>
#include <QItemSelectionModel>
#include <algorithm>

#include "windows/EnterKey.h"

namespace calvoro {

ListTable::ListTable(QWidget* parent) : QTableView(parent) {
    setSelectionBehavior(SelectRows);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setVerticalScrollMode(ScrollPerItem);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    FollowFont();
    verticalHeader()->setDefaultAlignment(Qt::AlignRight | Qt::AlignVCenter);
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->setSectionsClickable(true);
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this, &ListTable::ColumnChosen);
}

// Rows as low as their text allows: there are many.
void ListTable::FollowFont() {
    constexpr int kAir = 6;  // pixels
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + kAir);
}

void ListTable::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange) FollowFont();
}

QSize ListTable::sizeHint() const {
    constexpr int kCharacters = 172;
    constexpr int kRows = 20;
    return {kCharacters * fontMetrics().averageCharWidth(), kRows * verticalHeader()->defaultSectionSize()};
}

void ListTable::keyPressEvent(QKeyEvent* event) {
    if (IsEnterKey(event->key()) && !event->isAutoRepeat() && currentIndex().isValid()) {
        Q_EMIT ColumnChosen(currentIndex().column());
        event->accept();
        return;
    }
    QTableView::keyPressEvent(event);
}

std::vector<PlaceRange> AllPlaces(const ListModel& model) {
    if (model.Places() == 0) return {};
    return {{0, model.Places() - 1}};
}

std::vector<PlaceRange> SelectedPlaces(const ListTable& table, const ListModel& model) {
    std::vector<PlaceRange> ranges;
    for (const QItemSelectionRange& range : table.selectionModel()->selection()) {
        ranges.push_back({model.PartBegin() + static_cast<std::uint32_t>(range.top()),
                          model.PartBegin() + static_cast<std::uint32_t>(range.bottom())});
    }
    std::sort(ranges.begin(), ranges.end(),
              [](const PlaceRange& one, const PlaceRange& other) { return one.first < other.first; });
    return ranges;
}

}  // namespace calvoro
