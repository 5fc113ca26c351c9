#include "quicktext/StrictText.h"

#include <algorithm>
#include <limits>

#include "calendar/DayNumber.h"
#include "datetext/Tags.h"
#include "quicktext/DateFields.h"
#include "quicktext/NumberShapes.h"
#include "quicktext/TextTail.h"

namespace calvoro {
namespace {

constexpr std::size_t kLeastGroupedYear = 5;  // digits; shorter years are never written with separators
constexpr std::size_t kLeastGroupedNumber = 4;
constexpr std::size_t kMostNumberDigits = 10;
constexpr Groupings kAnyGrouping{",", "."};

constexpr bool IsValid(const StrictResult& result) {
    return result.status == ParseStatus::Valid;
}

StrictResult TakeSeparator(TextCursor& cursor, char separator) {
    return cursor.Take(separator) ? StrictResult{} : cursor.Fail();
}

/// Where the year ends that stands first in a text whose fields are separated by dots: at the last dot but
/// one, as the dots before it group the year.
std::size_t EndOfDottedYear(std::string_view text, std::size_t begin) {
    std::size_t end = begin;
    while (end < text.size() && (IsDigit(text[end]) || text[end] == '.')) ++end;
    const std::string_view fields = text.substr(begin, end - begin);
    if (std::count(fields.begin(), fields.end(), '.') < 3) return text.size();
    return begin + fields.rfind('.', fields.rfind('.') - 1);
}

// --- One reader for the form of each notation ---

class FieldReader {
public:
    FieldReader(std::string_view text, const TextOptions& options)
        : text_(text), options_(options), cursor_(text) {}

    TextCursor& Cursor() { return cursor_; }
    const DateFields& Fields() const { return fields_; }
    DateFields& Fields() { return fields_; }

    StrictResult TakeEuroDate() {
        const bool yearFirst = options_.dateFormat == DateFormat::YMD;
        const bool dayFirst = options_.dateFormat == DateFormat::DMY;
        const char separator = options_.dateSeparator;
        StrictResult taken = yearFirst ? TakeFirstYear() : dayFirst ? TakeDay(1, 2) : TakeSecond(1, 2);
        if (IsValid(taken)) taken = TakeSeparator(cursor_, separator);
        if (IsValid(taken)) taken = dayFirst || yearFirst ? TakeSecond(1, 2) : TakeDay(1, 2);
        if (IsValid(taken)) taken = TakeSeparator(cursor_, separator);
        if (IsValid(taken)) taken = yearFirst ? TakeDay(1, 2) : TakeLastYear();
        return taken;
    }

    StrictResult TakeIsoDate() {
        StrictResult taken = TakeYear({});
        if (!IsValid(taken)) return taken;
        const bool hyphens = cursor_.Take('-');
        if (!cursor_.Take('W')) return cursor_.Fail();
        if (!hyphens) return TakeTogether(3, 10);
        taken = TakeSecond(2, 2);
        if (IsValid(taken)) taken = TakeSeparator(cursor_, '-');
        return IsValid(taken) ? TakeDay(1, 1) : taken;
    }

    StrictResult TakeOrdinalDate() {
        fields_.yearPlace = cursor_.Place();
        if (!options_.hyphen) {
            const StrictResult taken = TakeTogether(7, 1000);
            fields_.year = fields_.second;
            return taken;
        }
        StrictResult taken = TakeField(cursor_, 4, 4, fields_.year);
        if (IsValid(taken)) taken = TakeSeparator(cursor_, '-');
        return IsValid(taken) ? TakeDay(3, 3) : taken;
    }

    StrictResult TakeLeapWeekDate(std::size_t lastDigits) {
        StrictResult taken = TakeYear({",", ".", options_.digitGrouping});
        if (!IsValid(taken)) return taken;
        if (!cursor_.Take('-')) return cursor_.Fail();
        // A year beyond all others is the fault, whatever the fields that follow it look like.
        const bool isRead = fields_.year <= kMaxYearMagnitude && fields_.year >= -kMaxYearMagnitude;
        if (!isRead && HyphensAhead() == 1) return Refused(ReadFault::TooLarge, fields_.yearPlace);
        taken = TakeLeapWeekField(2, 1, fields_.second, fields_.secondPlace);
        if (IsValid(taken)) taken = TakeSeparator(cursor_, '-');
        return IsValid(taken) ? TakeLeapWeekField(lastDigits, 0, fields_.third, fields_.thirdPlace) : taken;
    }

    StrictResult TakeDayNumber() {
        fields_.thirdPlace = cursor_.Place();
        const bool negative = cursor_.TakeMinus();
        const std::size_t begin = cursor_.Place();
        if (const StrictResult fraction = TakeFraction(negative); !IsValid(fraction)) return fraction;
        cursor_.MoveTo(begin);
        const StrictResult taken = TakeNumber(cursor_, kAnyGrouping, kLeastGroupedNumber, fields_.third);
        if (!IsValid(taken)) return taken;
        const std::string_view number = text_.substr(begin, cursor_.Place() - begin);
        if (std::count_if(number.begin(), number.end(), IsDigit) > std::ptrdiff_t{kMostNumberDigits}) {
            return Refused(ReadFault::TooLarge, fields_.thirdPlace);
        }
        if (negative) fields_.third = -fields_.third;
        return taken;
    }

private:
    StrictResult TakeYear(const Groupings& groupings) {
        fields_.yearPlace = cursor_.Place();
        const bool negative = cursor_.TakeMinus();
        const StrictResult taken = TakeNumber(cursor_, groupings, kLeastGroupedYear, fields_.year);
        if (negative) fields_.year = -fields_.year;
        return taken;
    }

    StrictResult TakeFirstYear() {
        if (options_.dateSeparator != '.') return TakeYear(kAnyGrouping);
        // A cursor that ends with the year: the dots in it group, the dot behind it separates.
        const std::size_t begin = cursor_.Place();
        TextCursor signs = cursor_;
        signs.TakeMinus();
        const std::size_t end = EndOfDottedYear(text_, signs.Place());
        if (end == text_.size()) return TakeYear({","});
        FieldReader year(text_.substr(0, end), options_);
        year.cursor_.MoveTo(begin);
        const StrictResult taken = year.TakeYear({"."});
        fields_ = year.fields_;
        cursor_.MoveTo(year.cursor_.Place());
        return taken;
    }

    // A negative year that stands last may be in parentheses.
    StrictResult TakeLastYear() {
        const bool parentheses = cursor_.Take('(');
        if (parentheses && !TextCursor(cursor_).TakeMinus()) return cursor_.Fail();
        const StrictResult taken = TakeYear(kAnyGrouping);
        return IsValid(taken) && parentheses && !cursor_.Take(')') ? cursor_.Fail() : taken;
    }

    StrictResult TakeSecond(std::size_t least, std::size_t most) {
        fields_.secondPlace = cursor_.Place();
        return TakeField(cursor_, least, most, fields_.second);
    }

    StrictResult TakeDay(std::size_t least, std::size_t most) {
        fields_.thirdPlace = cursor_.Place();
        return TakeField(cursor_, least, most, fields_.third);
    }

    // Two numbers without anything between them.
    // digits   of both together
    // divisor  1 and a zero for every digit of the last one
    StrictResult TakeTogether(std::size_t digits, std::int32_t divisor) {
        const StrictResult taken = TakeSecond(digits, digits);
        fields_.thirdPlace = fields_.secondPlace + digits - (divisor == 10 ? 1 : 3);
        fields_.third = fields_.second % divisor;
        fields_.second /= divisor;
        return taken;
    }

    // A number that no record could hold is out of range; others have the digits that are written.
    // hyphensBehind  how many "-" follow in a whole date
    StrictResult TakeLeapWeekField(std::size_t digits, std::ptrdiff_t hyphensBehind, std::int32_t& value,
                                   std::size_t& place) {
        place = cursor_.Place();
        const StrictResult taken = TakeField(cursor_, digits, digits, value);
        const bool fits = value <= std::numeric_limits<std::int16_t>::max();
        return fits || HyphensAhead() != hyphensBehind ? taken : Refused(ReadFault::TooLarge, place);
    }

    std::ptrdiff_t HyphensAhead() const {
        const std::string_view rest = cursor_.Rest();
        return std::count(rest.begin(), rest.end(), '-');
    }

    // A day begins at midnight, half a day before the count of the astronomers reaches its number.
    // returns  a valid result when there is no fraction
    StrictResult TakeFraction(bool negative) {
        std::int32_t whole = 0;
        const StrictResult taken = TakeNumber(cursor_, {","}, kLeastGroupedNumber, whole);
        const std::size_t point = cursor_.Place();
        if (!IsValid(taken) || !cursor_.Take('.') || !cursor_.IsAtDigit()) return {};
        const std::string_view rest = cursor_.Rest();
        const std::size_t length = std::min(rest.size(), rest.find_first_not_of("0123456789"));
        if (length < rest.size() && rest[length] != ' ') return {};
        const std::string_view fraction = rest.substr(0, length);

        TextCursor grouped(text_);
        grouped.MoveTo(fields_.thirdPlace);
        grouped.TakeMinus();
        std::int32_t number = 0;
        const bool isNumber = IsValid(TakeNumber(grouped, {"."}, kLeastGroupedNumber, number));
        if (isNumber && grouped.Place() > point) return {};

        cursor_.MoveTo(cursor_.Place() + length);
        if (whole > kMaxDayNumber) return Refused(ReadFault::TooLarge, fields_.thirdPlace);
        const bool isHalf =
            fraction.front() == '5' && fraction.find_first_not_of('0', 1) == std::string_view::npos;
        const bool pastHalf = fraction.front() >= '5' && !isHalf;
        StrictResult result = Refused(ReadFault::Fraction, point);
        result.jdn = negative ? -whole - (pastHalf ? 1 : 0) : whole + (pastHalf || isHalf ? 1 : 0);
        return result;
    }

    std::string_view text_;
    const TextOptions& options_;
    TextCursor cursor_;
    DateFields fields_;
};

StrictResult TakeDate(CalendarNumber notation, FieldReader& reader) {
    switch (notation) {
        case CalendarNumber::ISO: return reader.TakeIsoDate();
        case CalendarNumber::ORD: return reader.TakeOrdinalDate();
        case CalendarNumber::LPM: return reader.TakeLeapWeekDate(2);
        case CalendarNumber::LPW: return reader.TakeLeapWeekDate(1);
        case CalendarNumber::JDN: return reader.TakeDayNumber();
        case CalendarNumber::CE:
        case CalendarNumber::JC:
        case CalendarNumber::AN:
        case CalendarNumber::VLW:
        case CalendarNumber::ARC: return reader.TakeEuroDate();
    }
    return reader.TakeEuroDate();
}

}  // namespace

StrictResult ReadStrictText(CalendarNumber notation, const TextOptions& options, std::string_view text) {
    FieldReader reader(text, options);
    reader.Cursor().TakeBlanks();
    const StrictResult taken = TakeDate(notation, reader);
    // A fraction is told only when nothing else is wrong with the text.
    if (!IsValid(taken) && taken.fault != ReadFault::Fraction) return taken;

    const bool withEra = notation == CalendarNumber::CE || notation == CalendarNumber::JC;
    const TextTail tail = TakeTail(reader.Cursor(), TagText(notation), withEra);
    if (!IsValid(tail.outcome)) return tail.outcome;
    if (!IsValid(taken)) return taken;
    if (tail.beforeCommonEra) {
        DateFields& fields = reader.Fields();
        if (fields.year < 1) return Refused(ReadFault::YearOfEra, fields.yearPlace);
        fields.year = 1 - fields.year;
    }
    return DayOfFields(notation, reader.Fields());
}

}  // namespace calvoro
