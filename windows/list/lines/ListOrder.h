#pragma once

// The rows of a list in another order, or some of them only.

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

#include "windows/list/lines/ListSurvey.h"
#include "windows/list/lines/SlicedJob.h"

namespace calvoro {

/// Numbers of rows in the order in which they are shown. None at all stands for every row in its own place.
using RowOrder = std::shared_ptr<const std::vector<std::uint32_t>>;

/// The row that is shown at a place.
inline std::uint32_t RowAt(const RowOrder& order, std::uint32_t place) {
    return order ? (*order)[place] : place;
}

/// What is shown of a list, and in which order.
struct Arrangement {
    bool refusalsOnly = false;
    bool byDay = false;  // rows without a day come last; equal days keep the order of their lines

    bool IsPlain() const { return !refusalsOnly && !byDay; }

    friend bool operator==(const Arrangement&, const Arrangement&) = default;
};

class OrderRows : public SlicedJob {
public:
    /// survey  finished by this job when it is not complete; with days when they are wanted
    OrderRows(std::shared_ptr<ListSurvey> survey, Arrangement arrangement);

    bool Step() override;
    double Done() const override;

    /// Only after all steps.
    RowOrder Take() { return std::move(rows_); }

private:
    static constexpr int kDigits = 3;  // of a day number, so that each takes its turn
    static constexpr int kBits = 11;   // of a digit
    static constexpr std::size_t kValues = std::size_t{1} << kBits;

    void Collect();
    void BeginDigit();
    void Place();
    std::size_t Digit(std::uint32_t row, int digit) const;

    std::shared_ptr<ListSurvey> survey_;
    Arrangement arrangement_;
    std::shared_ptr<std::vector<std::uint32_t>> rows_ = std::make_shared<std::vector<std::uint32_t>>();
    std::vector<std::uint32_t> sorted_;
    std::array<std::array<std::uint32_t, kValues>, kDigits> places_{};
    std::uint32_t collected_ = 0;
    int digit_ = 0;
    std::size_t placed_ = 0;
};

}  // namespace calvoro
