#include "mainwindow/AlikeColumns.h"

#include <algorithm>
#include <numeric>

namespace calvoro {

AlikeColumns::AlikeColumns(std::array<int, 3> columns) : columns_(columns) {
    for (const int column : columns_) setColumnStretch(column, 1);
}

QSize AlikeColumns::sizeHint() const {
    return QGridLayout::sizeHint().expandedTo(minimumSize() + QSize(Missing(), 0));
}

// Pixels from the least widths that the columns have to the widest one for each.
int AlikeColumns::Missing() const {
    std::array<int, 3> least = {};
    for (int i = 0; i < count(); ++i) {
        int row = 0;
        int column = 0;
        int rows = 0;
        int columns = 0;
        getItemPosition(i, &row, &column, &rows, &columns);
        const auto* const alike = std::find(columns_.begin(), columns_.end(), column);
        if (columns != 1 || alike == columns_.end()) continue;
        int& width = least[static_cast<std::size_t>(alike - columns_.begin())];
        width = std::max(width, itemAt(i)->minimumSize().width());
    }
    const int widest = *std::max_element(least.begin(), least.end());
    return widest * static_cast<int>(least.size()) - std::accumulate(least.begin(), least.end(), 0);
}

}  // namespace calvoro
