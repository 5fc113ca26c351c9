// The rivals are compared with the library on every day before anything is measured: a fast wrong answer
// would be a meaningless bar.

#include <benchmark/benchmark.h>

#include <cstdio>

#include "bench/RandomDays.h"
#include "bench/Rivals.h"
#include "calendar/EuroDate.h"
#include "calendar/LeapWeekDate.h"

namespace {

using namespace calvoro;
using namespace calvoro::bench;

bool TextbookAgrees(std::int32_t jdn) {
    DateRecord record{.calendar = CalendarCode::G, .jdn = jdn};
    jdn_to_euro_date(record);
    const TextbookDate date = TextbookFromDay(jdn);
    return date.year == record.year && date.month == record.month && date.day == record.day &&
           TextbookToDay(date) == jdn && euro_date_to_jdn(record) == jdn;
}

bool WalkAgrees(std::int32_t jdn) {
    LeapWeekDate date{.jdn = jdn};
    JdnToWeekForm(date);
    LeapWeekDate walked{.jdn = jdn};
    WalkToWeekForm(walked);
    return date == walked;
}

bool RivalsAgree() {
    for (const Span span : {Span::NearYearZero, Span::ChronoYears, Span::Everything}) {
        for (const std::int32_t jdn : RandomDays(span)) {
            if (!TextbookAgrees(jdn) || !WalkAgrees(jdn)) {
                std::fprintf(stderr, "calvoro_bench: day %d is not converted alike\n", jdn);
                return false;
            }
        }
    }
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    if (!RivalsAgree()) return 1;
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
