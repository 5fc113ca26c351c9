#include "tests/quicktext/PlainReader.h"

#include <array>
#include <vector>

namespace calvoro {
namespace {

using Day = std::optional<std::int64_t>;

constexpr char kMinus = '\x01';  // stands for U+2212 while a text is read

// --- Schoolbook arithmetic ---

std::int64_t Floor(std::int64_t number, std::int64_t divisor) {
    return (number - ((number % divisor) + divisor) % divisor) / divisor;
}

bool IsLeap(std::int64_t year, bool julian) {
    const bool fourth = year % 4 == 0;
    return julian ? fourth : fourth && (year % 100 != 0 || year % 400 == 0);
}

int DaysOfMonth(std::int64_t year, int month, bool julian) {
    if (month == 2) return IsLeap(year, julian) ? 29 : 28;
    return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
}

Day YearMonthDay(std::int64_t year, int month, int day, bool julian) {
    if (month < 1 || month > 12 || day < 1 || day > DaysOfMonth(year, month, julian)) return {};
    if (year > 5'800'000 || year < -5'800'000) return {};
    const std::int64_t before = year - 1;
    std::int64_t days = 365 * before + Floor(before, 4);
    if (!julian) days += Floor(before, 400) - Floor(before, 100);
    for (int earlier = 1; earlier < month; ++earlier) days += DaysOfMonth(year, earlier, julian);
    return (julian ? 1'721'423 : 1'721'425) + days + day;
}

std::int64_t IsoMonday(std::int64_t year) {
    const std::int64_t january4 = *YearMonthDay(year, 1, 4, false);
    return 7 * Floor(january4, 7);
}

Day IsoWeek(std::int64_t year, int week, int day) {
    if (year >= 5'800'000 || year <= -5'800'000) return {};
    const bool isLong = year > 0 && IsoMonday(year + 1) - IsoMonday(year) == 371;
    if (week < 1 || week > (isLong ? 53 : 52) || day < 1 || day > 7) return {};
    return IsoMonday(year) + 7 * (week - 1) + day - 1;
}

Day Ordinal(std::int64_t year, int day) {
    if (year < 1 || day < 1 || day > (IsLeap(year, false) ? 366 : 365)) return {};
    return *YearMonthDay(year, 1, 1, false) + day - 1;
}

bool IsLongLeapWeekYear(std::int64_t year) {
    const std::int64_t rest = 71 * year + 203;
    return rest - 400 * Floor(rest, 400) < 71;
}

Day LeapWeek(std::int64_t year, std::int64_t week, std::int64_t day) {
    if (year > 5'800'000 || year < -5'800'000 || day < 0 || day > 7) return {};
    const std::int64_t cycles = Floor(year - 1, 400);
    std::int64_t start = 1'721'419 + 146'097 * cycles;
    for (std::int64_t earlier = 1; earlier < year - 400 * cycles; ++earlier) {
        start += IsLongLeapWeekYear(earlier) ? 371 : 364;
    }
    const std::int64_t jdn = start + 7 * (week - 1) + day - 1;
    return jdn == 0 ? Day{} : jdn;
}

Day LeapWeekMonth(std::int64_t year, int month, int day) {
    constexpr std::array<int, 13> kWeeks{4, 5, 4, 4, 5, 4, 4, 5, 4, 4, 5, 4, 4};
    if (month > 12) return {};
    const int weeks =
        kWeeks[static_cast<std::size_t>(month)] + (month == 12 && IsLongLeapWeekYear(year) ? 1 : 0);
    if (day > 7 * weeks) return {};
    int week = 1;
    for (int earlier = 1; earlier < month; ++earlier) week += kWeeks[static_cast<std::size_t>(earlier)];
    // Day 0 is weekday 0 of the first week.
    return day == 0 ? LeapWeek(year, week, 0) : LeapWeek(year, week + (day - 1) / 7, (day - 1) % 7 + 1);
}

// --- Forms ---

std::string Escaped(const std::string& text) {
    return text == "." ? "\\." : text;
}

/// Digits, or digits in groups of three, from this number of digits on.
std::string Number(const std::vector<std::string>& groupings, bool isYear) {
    std::string form = "(?:\\d+";
    for (const std::string& grouping : groupings) {
        if (grouping.empty()) continue;
        const std::string group = "(?:" + Escaped(grouping) + "\\d{3})";
        form +=
            isYear ? "|[1-9]\\d{1,2}" + group + "+|[1-9]" + group + "{2,}" : "|[1-9]\\d{0,2}" + group + "+";
    }
    return form + ")";
}

std::string FormOf(CalendarNumber notation, const TextOptions& options) {
    const std::string minus = "[-\x01]";
    const std::string plain = "(" + minus + "?\\d+)";
    const std::string leapYear = "(" + minus + "?" + Number({",", "\\.", options.digitGrouping}, true) + ")";
    switch (notation) {
        case CalendarNumber::ISO: return plain + "(?:-W(\\d\\d)-(\\d)|W(\\d\\d)(\\d))";
        case CalendarNumber::ORD: return options.hyphen ? "(\\d{4})-(\\d{3})" : "(\\d{4})(\\d{3})";
        case CalendarNumber::LPM: return leapYear + "-(\\d\\d)-(\\d\\d)";
        case CalendarNumber::LPW: return leapYear + "-(\\d\\d)-(\\d)";
        case CalendarNumber::JDN: return "(" + minus + "?" + Number({",", "\\."}, false) + ")";
        default: break;
    }
    const std::string year = Number({",", "\\."}, true);
    const std::string separator = Escaped(std::string(1, options.dateSeparator));
    const std::string two = "(\\d{1,2})";
    if (options.dateFormat == DateFormat::YMD)
        return "(" + minus + "?" + year + ")" + separator + two + separator + two;
    return two + separator + two + separator + "(" + minus + "?" + year + "|\\(" + minus + year + "\\))";
}

/// The value of a number with sign and separators; beyond all limits for very many digits.
std::int64_t Value(const std::string& text) {
    std::int64_t value = 0;
    bool negative = false;
    for (const char c : text) {
        if (c == '-' || c == kMinus) negative = true;
        if (c >= '0' && c <= '9' && value < 100'000'000'000) value = 10 * value + (c - '0');
    }
    return negative ? -value : value;
}

void StripBlanksBehind(std::string& text) {
    while (text.ends_with(' ')) text.pop_back();
}

bool StripWord(std::string& text, const std::string& word) {
    if (!text.ends_with(" " + word)) return false;
    text.resize(text.size() - word.size());
    StripBlanksBehind(text);
    return true;
}

std::string TagOf(CalendarNumber notation) {
    switch (notation) {
        case CalendarNumber::JC: return "JC";
        case CalendarNumber::ISO: return "ISO";
        case CalendarNumber::ORD: return "ORD";
        case CalendarNumber::LPM: return "LPM";
        case CalendarNumber::LPW: return "LPW";
        case CalendarNumber::JDN: return "JDN";
        default: return "CE";
    }
}

}  // namespace

PlainReader::PlainReader(CalendarNumber notation, const TextOptions& options)
    : notation_(notation), options_(options), form_(FormOf(notation, options)) {}

std::optional<std::int64_t> PlainReader::Read(std::string text) const {
    if (text.find(kMinus) != std::string::npos) return {};
    for (std::size_t at = text.find("\u2212"); at != std::string::npos; at = text.find("\u2212")) {
        text.replace(at, 3, 1, kMinus);
    }
    text.erase(0, text.find_first_not_of(' '));
    StripBlanksBehind(text);
    StripWord(text, TagOf(notation_));
    const bool hasEras = notation_ == CalendarNumber::CE || notation_ == CalendarNumber::JC;
    const bool beforeCommonEra = hasEras && (StripWord(text, "BC") || StripWord(text, "BCE"));
    std::smatch match;
    return std::regex_match(text, match, form_) ? DayOf(match, beforeCommonEra) : Day{};
}

std::optional<std::int64_t> PlainReader::DayOf(const std::smatch& match, bool beforeCommonEra) const {
    const auto field = [&](std::size_t group) { return static_cast<int>(Value(match[group].str())); };
    switch (notation_) {
        case CalendarNumber::ISO:
            return match[2].matched ? IsoWeek(Value(match[1].str()), field(2), field(3))
                                    : IsoWeek(Value(match[1].str()), field(4), field(5));
        case CalendarNumber::ORD: return Ordinal(Value(match[1].str()), field(2));
        case CalendarNumber::LPM: return LeapWeekMonth(Value(match[1].str()), field(2), field(3));
        case CalendarNumber::LPW: return LeapWeek(Value(match[1].str()), field(2), field(3));
        case CalendarNumber::JDN: {
            std::size_t digits = 0;
            for (const char c : match[1].str()) digits += c >= '0' && c <= '9' ? 1 : 0;
            const std::int64_t jdn = Value(match[1].str());
            return digits > 10 || jdn > 2'100'000'000 || jdn < -2'100'000'000 ? Day{} : jdn;
        }
        default: break;
    }
    const bool yearFirst = options_.dateFormat == DateFormat::YMD;
    const bool dayFirst = options_.dateFormat == DateFormat::DMY;
    std::int64_t year = Value(match[yearFirst ? 1 : 3].str());
    if (beforeCommonEra) {
        if (year < 1) return {};
        year = 1 - year;
    }
    const int month = field(yearFirst || dayFirst ? 2 : 1);
    const int day = field(yearFirst ? 3 : dayFirst ? 1 : 2);
    return YearMonthDay(year, month, day, notation_ == CalendarNumber::JC);
}

}  // namespace calvoro
