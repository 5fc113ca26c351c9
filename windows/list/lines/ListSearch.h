#pragma once

// The next refusal in a list.

#include <cstdint>
#include <memory>
#include <optional>

#include "windows/list/lines/ListOrder.h"
#include "windows/list/lines/ListSheet.h"
#include "windows/list/lines/ListSurvey.h"
#include "windows/list/lines/SlicedJob.h"

namespace calvoro {

class ListSearch : public SlicedJob {
public:
    /// Looks from a place on, beyond the end from the beginning again, until it is back at the place before.
    /// survey  knows some rows already; of the same sheet
    /// count   places in the order, at least 1
    /// from    below count
    ListSearch(ListSheet sheet, std::shared_ptr<const ListSurvey> survey, RowOrder order, std::uint32_t count,
               std::uint32_t from);

    bool Step() override;
    double Done() const override { return static_cast<double>(looked_) / count_; }

    /// The place that was found.
    std::optional<std::uint32_t> Found() const { return found_; }

private:
    bool IsRefused(std::uint32_t row);

    ListSheet sheet_;
    std::shared_ptr<const ListSurvey> survey_;
    RowOrder order_;
    std::uint32_t count_;
    std::uint32_t from_;
    std::uint32_t looked_ = 0;
    std::optional<std::uint32_t> found_;
};

}  // namespace calvoro
