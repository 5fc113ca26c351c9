#include "datetext/Tags.h"

namespace calvoro {
namespace {

constexpr std::array<TagRow, 10> kTags{{
    {"CE", "G"},
    {"JC", "J"},
    {"JDN", "JD"},
    {"AN", "A"},
    {"ORD", ""},
    {"VLW", "V"},
    {"ISO", "I"},
    {"LPW", ""},
    {"LPM", ""},
    {"ARC", ""},
}};
static_assert(kTags[static_cast<std::size_t>(CalendarNumber::JDN)].tag == "JDN");
static_assert(kTags[static_cast<std::size_t>(CalendarNumber::ISO)].tag == "ISO");
static_assert(kTags[static_cast<std::size_t>(CalendarNumber::ARC)].tag == "ARC");

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

constexpr char UpperCase(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

bool SameTag(std::string_view typed, std::string_view tag, bool ignoreCase) {
    if (!ignoreCase) return typed == tag;
    if (typed.size() != tag.size()) return false;
    for (std::size_t i = 0; i < tag.size(); ++i) {
        if (UpperCase(typed[i]) != tag[i]) return false;
    }
    return true;
}

}  // namespace

const std::array<TagRow, 10>& TagTable() {
    return kTags;
}

std::string_view TagText(CalendarNumber number) {
    return kTags[static_cast<std::size_t>(number)].tag;
}

std::optional<CalendarNumber> NotationOfTag(std::string_view tag, bool ignoreCase) {
    for (std::size_t row = 0; row < kTags.size(); ++row) {
        if (SameTag(tag, kTags[row].tag, ignoreCase)) return static_cast<CalendarNumber>(row);
    }
    return std::nullopt;
}

const std::array<MonthNameRow, 12>& MonthNameTable() {
    return kMonthNames;
}

const std::array<std::string_view, 6>& FiveDayWeekNames() {
    return kFiveDayWeekNames;
}

}  // namespace calvoro
