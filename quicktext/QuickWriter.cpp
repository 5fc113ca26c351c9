#include "quicktext/QuickWriter.h"

#include "calendar/DayNumber.h"
#include "calendar/IsoWeekDate.h"
#include "calendar/LeapWeekDate.h"
#include "calendar/LeapWeekFormula.h"
#include "calendar/OrdinalDate.h"
#include "quicktext/DigitWriting.h"

namespace calvoro {
namespace {

constexpr std::uint32_t kLargestPlainYear = 9999;

// Sign, parentheses, ten digits, separators, month, day and era, with some bytes to spare.
constexpr std::size_t kRoomWithoutGrouping = 32;
constexpr std::size_t kMostGroupings = 3;

std::uint32_t Magnitude(std::int32_t number) {
    const auto bits = static_cast<std::uint32_t>(number);
    return number < 0 ? 0U - bits : bits;
}

std::uint32_t Unsigned(std::int32_t number) {
    return static_cast<std::uint32_t>(number);
}

bool HasFourDigits(std::int32_t year) {
    return Unsigned(year) - 1000 < 9000;
}

// A character at most for day numbers.
std::string GroupingOf(CalendarNumber notation, const TextOptions& options) {
    if (notation == CalendarNumber::ISO) return {};
    if (notation == CalendarNumber::LPM || notation == CalendarNumber::LPW) return options.digitGrouping;
    if (options.thousandsSeparator == kNoSeparator) return {};
    return std::string(1, options.thousandsSeparator);
}

}  // namespace

QuickWriter::QuickWriter(CalendarNumber notation, const TextOptions& options, EraStyle eraStyle)
    : notation_(notation),
      write_(FunctionOf(notation)),
      dateFormat_(options.dateFormat),
      dateSeparator_(options.dateSeparator),
      hyphen_(options.hyphen),
      withEra_(eraStyle == EraStyle::BeforeCommonEra),
      grouping_(GroupingOf(notation, options)),
      room_(kRoomWithoutGrouping + kMostGroupings * grouping_.size()) {
    const bool yearFirst = dateFormat_ == DateFormat::YMD;
    const bool dayFirst = dateFormat_ == DateFormat::DMY;
    yearAt_ = yearFirst ? 0 : 6;
    monthAt_ = yearFirst ? 5 : dayFirst ? 3 : 0;
    dayAt_ = yearFirst ? 8 : dayFirst ? 0 : 3;
    separators_.fill(dateSeparator_);
}

QuickWriter::Function QuickWriter::FunctionOf(CalendarNumber notation) {
    switch (notation) {
        case CalendarNumber::JC: return WriteJulian;
        case CalendarNumber::ISO: return WriteIso;
        case CalendarNumber::ORD: return WriteOrdinal;
        case CalendarNumber::LPM:
        case CalendarNumber::LPW: return WriteLeapWeek;
        case CalendarNumber::JDN: return WriteDayNumber;
        case CalendarNumber::CE:
        case CalendarNumber::AN:
        case CalendarNumber::VLW:
        case CalendarNumber::ARC: break;
    }
    return WriteCommonEra;
}

// --- Years ---

char* QuickWriter::WriteAnyYear(std::int32_t year, char* to) const {
    if (year < 0) *to++ = '-';
    const std::uint32_t magnitude = Magnitude(year);
    return magnitude > kLargestPlainYear ? WriteGroupedNumber(magnitude, grouping_, to)
                                         : WriteNumber(magnitude, to);
}

// A year that stands last: after a separator a minus sign would be unreadable, so it gets parentheses.
char* QuickWriter::WriteLastYear(std::int32_t year, char* to) const {
    if (year >= 0) return WriteAnyYear(year, to);
    *to++ = '(';
    to = WriteAnyYear(year, to);
    *to++ = ')';
    return to;
}

// A year of 0 or below, counted back from the Common Era.
char* QuickWriter::WriteEraYear(std::int32_t year, char* to) const {
    const std::uint32_t yearOfEra = Magnitude(year) + 1;
    return yearOfEra > kLargestPlainYear ? WriteGroupedNumber(yearOfEra, grouping_, to)
                                         : WriteFourDigits(yearOfEra, to);
}

// --- CE and JC ---

char* QuickWriter::WriteAnyEuroDate(const formula::YearMonthDay& date, char* to) const {
    const bool beforeCommonEra = withEra_ && date.year < 1;
    const std::uint32_t month = Unsigned(date.month);
    const std::uint32_t day = Unsigned(date.day);
    if (dateFormat_ == DateFormat::YMD) {
        to = beforeCommonEra ? WriteEraYear(date.year, to) : WriteAnyYear(date.year, to);
        *to = dateSeparator_;
        to = WriteTwoDigits(month, to + 1);
        *to = dateSeparator_;
        to = WriteTwoDigits(day, to + 1);
    } else {
        const bool dayFirst = dateFormat_ == DateFormat::DMY;
        to = WriteTwoDigits(dayFirst ? day : month, to);
        *to = dateSeparator_;
        to = WriteTwoDigits(dayFirst ? month : day, to + 1);
        *to++ = dateSeparator_;
        to = beforeCommonEra ? WriteEraYear(date.year, to) : WriteLastYear(date.year, to);
    }
    if (!beforeCommonEra) return to;
    constexpr std::string_view kEra = " BCE";
    return to + kEra.copy(to, kEra.size());
}

inline char* QuickWriter::WriteEuroDate(const formula::YearMonthDay& date, char* to) const {
    if (!HasFourDigits(date.year)) return WriteAnyEuroDate(date, to);
    std::memcpy(to, separators_.data(), separators_.size());
    WriteFourDigits(Unsigned(date.year), to + yearAt_);
    WriteTwoDigits(Unsigned(date.month), to + monthAt_);
    WriteTwoDigits(Unsigned(date.day), to + dayAt_);
    return to + separators_.size();
}

char* QuickWriter::WriteCommonEra(const QuickWriter& writer, std::int32_t jdn, char* to) {
    return writer.WriteEuroDate(formula::CommonEraDate(jdn), to);
}

char* QuickWriter::WriteJulian(const QuickWriter& writer, std::int32_t jdn, char* to) {
    return writer.WriteEuroDate(formula::JulianDate(jdn), to);
}

// --- Weeks ---

// Of week dates first the year, then what follows it. A rare year is left to a function of its own, so that
// the others cost no call.

inline char* QuickWriter::WriteBehindIsoYear(const IsoWeekDate& date, char* to) const {
    if (hyphen_) *to++ = '-';
    *to = 'W';
    to = WriteTwoDigits(Unsigned(date.week), to + 1);
    if (hyphen_) *to++ = '-';
    return WriteOneDigit(Unsigned(date.day), to);
}

char* QuickWriter::WriteAnyIso(const IsoWeekDate& date, char* to) const {
    return WriteBehindIsoYear(date, WriteAnyYear(date.year, to));
}

char* QuickWriter::WriteIso(const QuickWriter& writer, std::int32_t jdn, char* to) {
    IsoWeekDate date{.jdn = jdn};
    JdnToIsoWeekDate(date);
    if (!HasFourDigits(date.year)) return writer.WriteAnyIso(date, to);
    return writer.WriteBehindIsoYear(date, WriteFourDigits(Unsigned(date.year), to));
}

inline char* QuickWriter::WriteBehindLeapWeekYear(const LeapWeekDate& date, char* to) const {
    to[0] = '-';
    to[3] = '-';
    if (notation_ == CalendarNumber::LPW) {
        WriteTwoDigits(Unsigned(date.week), to + 1);
        return WriteOneDigit(Unsigned(date.weekday), to + 4);
    }
    const std::uint32_t month = formula::kMonthOfWeek[Unsigned(date.week)];
    const std::int32_t weeksBefore = formula::kWeeksBeforeMonth[month];
    WriteTwoDigits(month, to + 1);
    return WriteTwoDigits(Unsigned(7 * (date.week - 1 - weeksBefore) + date.weekday), to + 4);
}

char* QuickWriter::WriteAnyLeapWeek(const LeapWeekDate& date, char* to) const {
    return WriteBehindLeapWeekYear(date, WriteAnyYear(date.year, to));
}

char* QuickWriter::WriteLeapWeek(const QuickWriter& writer, std::int32_t jdn, char* to) {
    LeapWeekDate date{.jdn = jdn};
    JdnToWeekForm(date);
    if (!HasFourDigits(date.year)) return writer.WriteAnyLeapWeek(date, to);
    return writer.WriteBehindLeapWeekYear(date, WriteFourDigits(Unsigned(date.year), to));
}

// --- Days of the year, day numbers ---

char* QuickWriter::WriteOrdinal(const QuickWriter& writer, std::int32_t jdn, char* to) {
    std::int32_t year = 0;
    std::int16_t day = 0;
    JdnToOrdinal(jdn, year, day);
    to = WriteFourDigits(Unsigned(year), to);
    *to = '-';
    return WriteThreeDigits(Unsigned(day), to + (writer.hyphen_ ? 1 : 0));
}

char* QuickWriter::WriteAnyDayNumber(std::int32_t jdn, char* to) const {
    if (jdn < 0) *to++ = '-';
    return WriteGroupedNumber(Magnitude(jdn), grouping_, to);
}

char* QuickWriter::WriteDayNumber(const QuickWriter& writer, std::int32_t jdn, char* to) {
    const std::uint32_t number = Unsigned(jdn);
    if (number < 1'000'000 || number >= 10'000'000) return writer.WriteAnyDayNumber(jdn, to);
    const std::uint32_t thousands = number / 1000;
    const std::uint32_t millions = thousands / 1000;
    WriteOneDigit(millions, to);
    if (writer.grouping_.empty()) {
        WriteThreeDigits(thousands - 1000 * millions, to + 1);
        return WriteThreeDigits(number - 1000 * thousands, to + 4);
    }
    to[1] = writer.grouping_.front();
    WriteThreeDigits(thousands - 1000 * millions, to + 2);
    to[5] = writer.grouping_.front();
    return WriteThreeDigits(number - 1000 * thousands, to + 6);
}

}  // namespace calvoro
