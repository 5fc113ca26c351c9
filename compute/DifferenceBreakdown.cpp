#include "compute/DifferenceBreakdown.h"

#include <array>
#include <cstdint>

#include "calendar/IsoWeekDate.h"
#include "calendar/MonthArithmetic.h"
#include "calendar/YearsAndMonths.h"
#include "compute/UnitWords.h"

namespace calvoro {
namespace {

// Each takes copies, because some routines refresh the day numbers of the records. The status that they
// report is of no use here: whatever parts they find are printed.
DifferenceParts YearsMonthsAndDays(DateRecord first, DateRecord second) {
    DifferenceParts parts;
    std::int32_t status = 0;
    YearsMonthsDays(first, second, parts.years, parts.months, parts.days, status);
    return parts;
}

DifferenceParts YearsWeeksAndDays(DateRecord first, DateRecord second) {
    IsoWeekDate firstWeekDate{.jdn = first.jdn};
    IsoWeekDate secondWeekDate{.jdn = second.jdn};
    JdnToIsoWeekDate(firstWeekDate);
    JdnToIsoWeekDate(secondWeekDate);
    DifferenceParts parts;
    std::int32_t status = 0;
    IsoDifference(firstWeekDate, secondWeekDate, parts.years, parts.weeks, parts.days, status);
    return parts;
}

DifferenceParts OnlyYearsAndDays(DateRecord first, DateRecord second) {
    DifferenceParts parts;
    std::int32_t status = 0;
    YearsAndDays(first, second, parts.years, parts.days, status);
    return parts;
}

struct BreakdownRow {
    CalendarNumber calendar;
    std::int32_t threshold;  // the first number of days that can hold a larger unit
    DifferenceParts (*breakDown)(DateRecord first, DateRecord second);
};

constexpr std::array<BreakdownRow, 4> kBreakdowns = {{
    {CalendarNumber::CE, 31, YearsMonthsAndDays},
    {CalendarNumber::JC, 31, YearsMonthsAndDays},
    {CalendarNumber::ISO, 7, YearsWeeksAndDays},
    {CalendarNumber::ORD, 365, OnlyYearsAndDays},
}};

struct Unit {
    TextId singular;
    TextId plural;
};

void AppendPart(std::int32_t number, Unit unit, const Texts& texts, std::string& list) {
    if (number == 0) return;
    if (!list.empty()) list += ", ";
    // Deliberate: the singular goes with 1 alone, unlike the word after the count of days.
    list += std::to_string(number) + " " + WordInSentence(number == 1 ? unit.singular : unit.plural, texts);
}

}  // namespace

DifferenceParts PartsOfDifference(const ComputeState& state) {
    const ComputeOptions& options = state.options;
    if (!options.countWeekendDays || options.firstCalendar != options.secondCalendar) return {};
    for (const BreakdownRow& row : kBreakdowns) {
        if (row.calendar != options.firstCalendar || state.DateDifference < row.threshold) continue;
        return row.breakDown(state.FirstDateRecord, state.SecondDateRecord);
    }
    return {};
}

std::string PartsText(const DifferenceParts& parts, const Texts& texts) {
    std::string list;
    AppendPart(parts.years, {TextId::Year, TextId::Years}, texts, list);
    AppendPart(parts.months, {TextId::Month, TextId::Months}, texts, list);
    AppendPart(parts.weeks, {TextId::Week, TextId::Weeks}, texts, list);
    AppendPart(parts.days, {TextId::Day, TextId::Days}, texts, list);
    return list;
}

std::string DifferenceBreakdown(const ComputeState& state) {
    const std::string list = PartsText(PartsOfDifference(state), state.options.texts);
    return list.empty() ? "" : " (" + list + ")";
}

}  // namespace calvoro
