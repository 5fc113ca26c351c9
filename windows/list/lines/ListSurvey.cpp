#include "windows/list/lines/ListSurvey.h"

#include <algorithm>
#include <utility>

namespace calvoro {

ListSurvey::ListSurvey(ListSheet sheet, bool withDays)
    : sheet_(std::move(sheet)), withDays_(withDays), refused_(Count()), days_(withDays ? Count() : 0) {}

bool ListSurvey::Step() {
    const std::uint32_t end = surveyed_ + std::min(kRowsAtOnce, Count() - surveyed_);
    ListRow row;
    for (std::size_t bytes = 0; surveyed_ < end && bytes < kBytesAtOnce; ++surveyed_) {
        const std::string_view line = sheet_.Line(surveyed_);
        bytes += line.size();
        sheet_.Compute(line, row);
        if (row.IsRefused()) {
            refused_[surveyed_] = true;
            ++refusals_;
        }
        if (withDays_) days_[surveyed_] = row.day.value_or(kNoDay);
    }
    return IsComplete();
}

double ListSurvey::Done() const {
    return Count() == 0 ? 1 : static_cast<double>(surveyed_) / Count();
}

}  // namespace calvoro
