#pragma once

// Looks at every row of a list once: which are refused and, where they are to be sorted, which day each is.

#include <cstdint>
#include <limits>
#include <vector>

#include "windows/list/lines/ListSheet.h"
#include "windows/list/lines/SlicedJob.h"

namespace calvoro {

class ListSurvey : public SlicedJob {
public:
    /// withDays  whether the days are kept, too
    ListSurvey(ListSheet sheet, bool withDays);

    bool Step() override;
    double Done() const override;

    std::uint32_t Count() const { return sheet_.lines->Count(); }

    /// So many rows from the first have been looked at.
    std::uint32_t Surveyed() const { return surveyed_; }
    bool IsComplete() const { return surveyed_ == Count(); }

    /// Of the rows that have been looked at.
    std::uint32_t Refusals() const { return refusals_; }

    /// row  below Surveyed()
    bool IsRefused(std::uint32_t row) const { return refused_[row]; }

    bool HasDays() const { return withDays_; }

    /// Day number of a row's date; kNoDay, which comes after all days, for a row without one.
    std::int32_t Day(std::uint32_t row) const { return days_[row]; }
    static constexpr std::int32_t kNoDay = std::numeric_limits<std::int32_t>::max();

private:
    ListSheet sheet_;
    bool withDays_;
    std::uint32_t surveyed_ = 0;
    std::uint32_t refusals_ = 0;
    std::vector<bool> refused_;
    std::vector<std::int32_t> days_;
};

}  // namespace calvoro
