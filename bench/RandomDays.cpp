#include "bench/RandomDays.h"

#include <array>
#include <random>
#include <unordered_set>

#include "calendar/DayNumber.h"

namespace calvoro::bench {

namespace {

struct Bounds {
    std::int32_t first, last;
};

constexpr std::int32_t kMarchYearZero = 1'721'120;
constexpr std::int32_t kDaysIn400Years = 146'097;

constexpr Bounds BoundsOf(Span span) {
    switch (span) {
        case Span::NearYearZero: return {kMarchYearZero - kDaysIn400Years, kMarchYearZero + kDaysIn400Years};
        case Span::ChronoYears: return {-10'246'000, 13'688'000};
        case Span::Everything: break;
    }
    return {kMinDayNumber, kMaxDayNumber};
}

std::vector<std::int32_t> Draw(Bounds bounds) {
    std::mt19937 generator(20260101);  // NOLINT: the same days in every run
    std::uniform_int_distribution<std::int32_t> anyDay(bounds.first, bounds.last);
    std::unordered_set<std::int32_t> seen;
    std::vector<std::int32_t> days;
    while (days.size() < kDaysInPass) {
        const std::int32_t day = anyDay(generator);
        if (seen.insert(day).second) days.push_back(day);
    }
    return days;
}

}  // namespace

const std::vector<std::int32_t>& RandomDays(Span span) {
    static const std::array<std::vector<std::int32_t>, 3> kDays{Draw(BoundsOf(Span::NearYearZero)),
                                                                Draw(BoundsOf(Span::ChronoYears)),
                                                                Draw(BoundsOf(Span::Everything))};
    return kDays[static_cast<std::size_t>(span)];
}

}  // namespace calvoro::bench
