#pragma once

// A list as a table: the fields of each line as they were given, then what is computed from it. A row is
// computed when it is asked for; the few that were asked for last are kept.

#include <QAbstractTableModel>
#include <QStringList>
#include <cstdint>
#include <unordered_map>

#include "windows/list/lines/ListOrder.h"
#include "windows/list/lines/ListSheet.h"

namespace calvoro {

/// Columns behind those that were given.
enum class ComputedColumn { Reading, Result, Weekday, Reason };
inline constexpr int kComputedColumns = 4;

/// What stands above the columns. The result's caption comes from the options.
struct ListCaptions {
    QString date;    // of the column with the dates
    QString column;  // of any other that was given; its number follows
    QString reading;
    QString result;
    QString weekday;
    QString reason;
};

class ListModel : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    /// The toolkit reckons the height of a table in pixels of 31 bits; longer lists are shown in parts.
    static constexpr std::uint32_t kRowsInPart = 10'000'000;

    /// Shows another list, from its beginning.
    void SetSheet(ListSheet sheet);

    /// The same lines under other options.
    void SetMaker(std::shared_ptr<ListRowMaker> maker);

    void SetDateColumn(std::size_t column);
    void SetOrder(RowOrder order);
    void SetCaptions(ListCaptions captions);

    /// Shows the part with this place.
    /// place  below Places()
    void ShowPartWith(std::uint32_t place);

    const ListSheet& Sheet() const { return sheet_; }
    const RowOrder& Order() const { return order_; }

    /// How many rows there are to be shown, in all parts.
    std::uint32_t Places() const;

    /// The first place of the part that is shown.
    std::uint32_t PartBegin() const { return begin_; }

    /// Columns of the lines as they were given.
    int GivenColumns() const { return static_cast<int>(sheet_.lines->Columns()); }
    int Column(ComputedColumn column) const { return GivenColumns() + static_cast<int>(column); }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QStringList MakeTexts(std::uint32_t row) const;
    const QStringList& TextsOf(std::uint32_t row) const;
    void ChangeContents();
    QString GivenCaption(int column) const;

    ListSheet sheet_;
    RowOrder order_;
    ListCaptions captions_;
    std::uint32_t begin_ = 0;
    mutable std::unordered_map<std::uint32_t, QStringList> computed_;
};

}  // namespace calvoro
