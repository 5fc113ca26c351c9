#include "windows/list/lines/ListOrder.h"

#include <algorithm>
#include <utility>

namespace calvoro {
namespace {

constexpr std::uint32_t kRowsMovedAtOnce = 32768;

}  // namespace

OrderRows::OrderRows(std::shared_ptr<ListSurvey> survey, Arrangement arrangement)
    : survey_(std::move(survey)), arrangement_(arrangement) {}

bool OrderRows::Step() {
    if (!survey_->IsComplete()) {
        survey_->Step();
        return false;
    }
    if (collected_ < survey_->Count()) {
        Collect();
        return collected_ == survey_->Count() && !arrangement_.byDay;
    }
    if (!arrangement_.byDay || digit_ == kDigits) return true;
    if (placed_ == 0) BeginDigit();
    Place();
    return digit_ == kDigits;
}

// Looking at the rows takes nearly all the time.
double OrderRows::Done() const {
    if (!arrangement_.byDay) return survey_->Done();
    constexpr double kShareOfSurvey = 0.9;
    const double sorted =
        (digit_ + (rows_->empty() ? 0 : static_cast<double>(placed_) / static_cast<double>(rows_->size()))) /
        kDigits;
    return kShareOfSurvey * survey_->Done() + (1 - kShareOfSurvey) * sorted;
}

void OrderRows::Collect() {
    const std::uint32_t end = collected_ + std::min(kRowsMovedAtOnce, survey_->Count() - collected_);
    for (; collected_ < end; ++collected_) {
        if (arrangement_.refusalsOnly && !survey_->IsRefused(collected_)) continue;
        rows_->push_back(collected_);
        if (!arrangement_.byDay) continue;
        for (int digit = 0; digit < kDigits; ++digit) {
            ++places_[static_cast<std::size_t>(digit)][Digit(collected_, digit)];
        }
    }
}

// The rows are put in order digit by digit, the last one first; each time those that are equal keep the order
// they have.
void OrderRows::BeginDigit() {
    sorted_.resize(rows_->size());
    std::uint32_t place = 0;
    for (std::uint32_t& entry : places_[static_cast<std::size_t>(digit_)]) {
        place += std::exchange(entry, place);
    }
}

void OrderRows::Place() {
    auto& places = places_[static_cast<std::size_t>(digit_)];
    const std::size_t end = placed_ + std::min<std::size_t>(kRowsMovedAtOnce, rows_->size() - placed_);
    for (; placed_ < end; ++placed_) {
        const std::uint32_t row = (*rows_)[placed_];
        sorted_[places[Digit(row, digit_)]++] = row;
    }
    if (placed_ < rows_->size()) return;
    rows_->swap(sorted_);
    placed_ = 0;
    ++digit_;
}

std::size_t OrderRows::Digit(std::uint32_t row, int digit) const {
    constexpr std::uint32_t kSign = 0x80000000;  // so that days below 0 come first
    const std::uint32_t key = static_cast<std::uint32_t>(survey_->Day(row)) ^ kSign;
    return (key >> (kBits * digit)) & (kValues - 1);
}

}  // namespace calvoro
