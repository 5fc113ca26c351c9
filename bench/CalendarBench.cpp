// Conversions of random days, one pass over all of them an iteration. The names tell who converts what over
// which span, as scripts/bench reads them: Library/CommonEra/Near, Chrono/CommonEra/Near ...

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdint>
#include <vector>

#include "bench/RandomDays.h"
#include "bench/Rivals.h"
#include "calendar/EuroDate.h"
#include "calendar/IsoWeekDate.h"
#include "calendar/LeapWeekDate.h"
#include "calendar/OrdinalDate.h"

namespace calvoro::bench {

namespace {

/// Runs one conversion over all inputs again and again. Every result is made to exist as a whole.
template <typename Input, typename Conversion>
void Pass(benchmark::State& state, const std::vector<Input>& inputs, Conversion convert) {
    for (auto iteration : state) {
        (void)iteration;
        for (const Input& input : inputs) {
            auto result = convert(input);
            benchmark::DoNotOptimize(result);
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(inputs.size()));
}

template <typename Conversion>
auto Converted(Span span, Conversion convert) {
    std::vector<decltype(convert(0))> results;
    for (const std::int32_t day : RandomDays(span)) results.push_back(convert(day));
    return results;
}

DateRecord LibraryDate(std::int32_t jdn, CalendarCode calendar) {
    DateRecord record{.calendar = calendar, .jdn = jdn};
    jdn_to_euro_date(record);
    return record;
}

constexpr std::int32_t kChronoDayZero = 2'440'588;  // 1 January 1970

std::chrono::sys_days ChronoDay(std::int32_t jdn) {
    return std::chrono::sys_days(std::chrono::days(jdn - kChronoDayZero));
}

std::chrono::year_month_day ChronoDate(std::int32_t jdn) {
    return std::chrono::year_month_day(ChronoDay(jdn));
}

std::int32_t ChronoDayNumber(std::chrono::year_month_day date) {
    return static_cast<std::int32_t>(std::chrono::sys_days(date).time_since_epoch().count()) + kChronoDayZero;
}

// Day number to Common Era date.

void LibraryCommonEra(benchmark::State& state, Span span) {
    Pass(state, RandomDays(span), [](std::int32_t jdn) { return LibraryDate(jdn, CalendarCode::G); });
}
void ChronoCommonEra(benchmark::State& state, Span span) {
    Pass(state, RandomDays(span), ChronoDate);
}
void TextbookCommonEra(benchmark::State& state, Span span) {
    Pass(state, RandomDays(span), TextbookFromDay);
}

// Common Era date to day number. The inputs are year, month and day alone, of which a record is made on the
// spot, as a reader makes it: a pass over as many whole records would measure the cache.

void LibraryCommonEraBack(benchmark::State& state, Span span) {
    Pass(state, Converted(span, TextbookFromDay), [](const TextbookDate& date) {
        DateRecord record{
            .year = date.year, .month = date.month, .day = date.day, .calendar = CalendarCode::G};
        return euro_date_to_jdn(record);
    });
}
void ChronoCommonEraBack(benchmark::State& state, Span span) {
    Pass(state, Converted(span, ChronoDate), ChronoDayNumber);
}
void TextbookCommonEraBack(benchmark::State& state, Span span) {
    Pass(state, Converted(span, TextbookFromDay), TextbookToDay);
}

// Day number to Common Era date and back to the day number, by way of a date that exists.

void LibraryRoundTrip(benchmark::State& state, Span span) {
    Pass(state, RandomDays(span), [](std::int32_t jdn) {
        DateRecord record = LibraryDate(jdn, CalendarCode::G);
        benchmark::DoNotOptimize(record);
        return euro_date_to_jdn(record);
    });
}
void ChronoRoundTrip(benchmark::State& state, Span span) {
    Pass(state, RandomDays(span), [](std::int32_t jdn) {
        auto date = ChronoDate(jdn);
        benchmark::DoNotOptimize(date);
        return ChronoDayNumber(date);
    });
}
void TextbookRoundTrip(benchmark::State& state, Span span) {
    Pass(state, RandomDays(span), [](std::int32_t jdn) {
        TextbookDate date = TextbookFromDay(jdn);
        benchmark::DoNotOptimize(date);
        return TextbookToDay(date);
    });
}

// The other calendars.

void LibraryJulian(benchmark::State& state, Span span) {
    Pass(state, RandomDays(span), [](std::int32_t jdn) { return LibraryDate(jdn, CalendarCode::J); });
}

void LibraryIsoWeek(benchmark::State& state, Span span) {
    Pass(state, RandomDays(span), [](std::int32_t jdn) {
        IsoWeekDate date{.jdn = jdn};
        JdnToIsoWeekDate(date);
        return date;
    });
}

/// The usual recipe: the year of the week's Thursday, and the weeks since that year's first Thursday.
void ChronoIsoWeek(benchmark::State& state, Span span) {
    Pass(state, RandomDays(span), [](std::int32_t jdn) {
        using namespace std::chrono;
        const sys_days day = ChronoDay(jdn);
        const weekday dayOfWeek(day);
        const sys_days thursday = day - (dayOfWeek - Monday) + days(3);
        const year isoYear = year_month_day(thursday).year();
        const sys_days firstThursday(isoYear / January / Thursday[1]);
        return IsoWeekDate{.year = int{isoYear},
                           .week = static_cast<std::int32_t>((thursday - firstThursday).count() / 7 + 1),
                           .day = static_cast<std::int32_t>(dayOfWeek.iso_encoding()),
                           .jdn = jdn};
    });
}

struct OrdinalDate {
    std::int32_t year = 0;
    std::int16_t dayOfYear = 0;
};

void LibraryOrdinal(benchmark::State& state, Span span) {
    Pass(state, RandomDays(span), [](std::int32_t jdn) {
        OrdinalDate date;
        JdnToOrdinal(jdn, date.year, date.dayOfYear);
        return date;
    });
}

void LibraryLeapWeek(benchmark::State& state, Span span) {
    Pass(state, RandomDays(span), [](std::int32_t jdn) {
        LeapWeekDate date{.jdn = jdn};
        JdnToWeekForm(date);
        return date;
    });
}

void WalkedLeapWeek(benchmark::State& state, Span span) {
    Pass(state, RandomDays(span), [](std::int32_t jdn) {
        LeapWeekDate date{.jdn = jdn};
        WalkToWeekForm(date);
        return date;
    });
}

#define CALVORO_BENCHMARK(who, what, span, where) \
    BENCHMARK_CAPTURE(who##what, where, Span::span)->Name(#who "/" #what "/" #where)

CALVORO_BENCHMARK(Library, CommonEra, NearYearZero, Near);
CALVORO_BENCHMARK(Library, CommonEra, ChronoYears, Chrono);
CALVORO_BENCHMARK(Library, CommonEra, Everything, Whole);
CALVORO_BENCHMARK(Chrono, CommonEra, NearYearZero, Near);
CALVORO_BENCHMARK(Chrono, CommonEra, ChronoYears, Chrono);
CALVORO_BENCHMARK(Textbook, CommonEra, Everything, Whole);

CALVORO_BENCHMARK(Library, CommonEraBack, NearYearZero, Near);
CALVORO_BENCHMARK(Library, CommonEraBack, ChronoYears, Chrono);
CALVORO_BENCHMARK(Library, CommonEraBack, Everything, Whole);
CALVORO_BENCHMARK(Chrono, CommonEraBack, NearYearZero, Near);
CALVORO_BENCHMARK(Chrono, CommonEraBack, ChronoYears, Chrono);
CALVORO_BENCHMARK(Textbook, CommonEraBack, Everything, Whole);

CALVORO_BENCHMARK(Library, RoundTrip, NearYearZero, Near);
CALVORO_BENCHMARK(Library, RoundTrip, ChronoYears, Chrono);
CALVORO_BENCHMARK(Library, RoundTrip, Everything, Whole);
CALVORO_BENCHMARK(Chrono, RoundTrip, NearYearZero, Near);
CALVORO_BENCHMARK(Chrono, RoundTrip, ChronoYears, Chrono);
CALVORO_BENCHMARK(Textbook, RoundTrip, Everything, Whole);

CALVORO_BENCHMARK(Library, Julian, Everything, Whole);
CALVORO_BENCHMARK(Library, IsoWeek, Everything, Whole);
CALVORO_BENCHMARK(Library, IsoWeek, ChronoYears, Chrono);
CALVORO_BENCHMARK(Chrono, IsoWeek, ChronoYears, Chrono);
CALVORO_BENCHMARK(Library, Ordinal, Everything, Whole);
CALVORO_BENCHMARK(Library, LeapWeek, Everything, Whole);
CALVORO_BENCHMARK(Walked, LeapWeek, Everything, Whole);

}  // namespace

}  // namespace calvoro::bench
