#include "datetext/Tags.h"

namespace calvoro {
namespace {

// Deliberate: the short forms are irregular. Short months keep their whole name, September has four
// letters, and the German March keeps its umlaut, which the program's captions do not use.
constexpr std::array<MonthNameRow, 12> kMonthNames{{
    {"January", "Jan.", "Januar", "Jan."},
    {"February", "Feb.", "Februar", "Feb."},
    {"March", "Mar.", "M\u00e4rz", "M\u00e4rz"},
    {"April", "Apr.", "April", "Apr."},
    {"May", "May", "Mai", "Mai"},
    {"June", "June", "Juni", "Juni"},
    {"July", "July", "Juli", "Juli"},
    {"August", "Aug.", "August", "Aug."},
    {"September", "Sept.", "September", "Sept."},
    {"October", "Oct.", "Oktober", "Okt."},
    {"November", "Nov.", "November", "Nov."},
    {"December", "Dec.", "Dezember", "Dez."},
}};

constexpr std::array<std::string_view, 6> kFiveDayWeekNames{"Intercalarius", "Primidi",  "Secundi",
                                                            "Tertidi",       "Quartidi", "Quintidi"};

}  // namespace

const std::array<MonthNameRow, 12>& MonthNameTable() {
    return kMonthNames;
}

const std::array<std::string_view, 6>& FiveDayWeekNames() {
    return kFiveDayWeekNames;
}

}  // namespace calvoro
