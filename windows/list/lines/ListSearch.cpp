#include "windows/list/lines/ListSearch.h"

#include <algorithm>
#include <utility>

namespace calvoro {

ListSearch::ListSearch(ListSheet sheet, std::shared_ptr<const ListSurvey> survey, RowOrder order,
                       std::uint32_t count, std::uint32_t from)
    : sheet_(std::move(sheet)),
      survey_(std::move(survey)),
      order_(std::move(order)),
      count_(count),
      from_(from) {}

bool ListSearch::Step() {
    const std::uint32_t end = looked_ + std::min(kRowsAtOnce, count_ - looked_);
    for (; looked_ < end; ++looked_) {
        const std::uint32_t ahead = count_ - from_;
        const std::uint32_t place = looked_ < ahead ? from_ + looked_ : looked_ - ahead;
        if (!IsRefused(RowAt(order_, place))) continue;
        found_ = place;
        return true;
    }
    return looked_ == count_;
}

bool ListSearch::IsRefused(std::uint32_t row) {
    if (row < survey_->Surveyed()) return survey_->IsRefused(row);
    ListRow computed;
    sheet_.Compute(sheet_.Line(row), computed);
    return computed.IsRefused();
}

}  // namespace calvoro
