#include "windows/list/lines/ListLines.h"

#include <algorithm>
#include <cassert>

namespace calvoro {

std::string_view ListLines::Line(std::uint32_t row, Cursor& cursor) const {
    assert(row < count_);
    if (cursor.row != row) {
        const auto behind =
            std::upper_bound(marks_.begin(), marks_.end(), row,
                             [](std::uint32_t wanted, const Mark& mark) { return wanted < mark.row; });
        const Mark& mark = *std::prev(behind);
        cursor.place = mark.place;
        for (std::uint32_t at = mark.row; at < row; ++at) {
            cursor.place = RecordAt(text_, cursor.place, shape_).next;
        }
    }
    const std::size_t begin = cursor.place;
    const Record record = RecordAt(text_, begin, shape_);
    cursor = {row + 1, record.next};
    return std::string_view(text_).substr(begin, record.end - begin);
}

}  // namespace calvoro
