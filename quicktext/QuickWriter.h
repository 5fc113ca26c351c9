#pragma once

// Dates of one notation written into a buffer, as the writers of the notations write them, without a string
// for each.

#include <array>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "calendar/CalendarNumber.h"
#include "calendar/DayNumber.h"
#include "calendar/EuroFormula.h"
#include "calendar/IsoWeekDate.h"
#include "calendar/LeapWeekDate.h"
#include "datetext/TextOptions.h"

namespace calvoro {

/// How years of 0 and below are written in CE and JC dates.
enum class EraStyle : std::uint8_t {
    Astronomical,     // -43-03-13
    BeforeCommonEra,  // 0044-03-13 BCE
};

class QuickWriter {
public:
    /// notation  one of the seven that are offered
    QuickWriter(CalendarNumber notation, const TextOptions& options,
                EraStyle eraStyle = EraStyle::Astronomical);

    CalendarNumber Notation() const { return notation_; }

    /// Whether a day can be written: ORD has limits, the others have none.
    bool CanWrite(std::int32_t jdn) const {
        return notation_ != CalendarNumber::ORD || IsWithinOrdinalLimits(jdn);
    }

    /// How many bytes Write may touch; no date is longer.
    std::size_t Room() const { return room_; }

    /// Writes a date, without tag.
    /// jdn      CanWrite must hold
    /// to       Room() bytes; what stands behind the date is undefined
    /// returns  behind the last character written
    char* Write(std::int32_t jdn, char* to) const {
        assert(CanWrite(jdn));
        return write_(*this, jdn, to);
    }

private:
    // One function for each notation, chosen once.
    using Function = char* (*)(const QuickWriter& writer, std::int32_t jdn, char* to);
    static Function FunctionOf(CalendarNumber notation);
    static char* WriteCommonEra(const QuickWriter& writer, std::int32_t jdn, char* to);
    static char* WriteJulian(const QuickWriter& writer, std::int32_t jdn, char* to);
    static char* WriteIso(const QuickWriter& writer, std::int32_t jdn, char* to);
    static char* WriteOrdinal(const QuickWriter& writer, std::int32_t jdn, char* to);
    static char* WriteLeapWeek(const QuickWriter& writer, std::int32_t jdn, char* to);
    static char* WriteDayNumber(const QuickWriter& writer, std::int32_t jdn, char* to);

    char* WriteEuroDate(const formula::YearMonthDay& date, char* to) const;
    char* WriteBehindIsoYear(const IsoWeekDate& date, char* to) const;
    char* WriteBehindLeapWeekYear(const LeapWeekDate& date, char* to) const;

    // The same for years that have not four digits, and other rare numbers.
    char* WriteAnyEuroDate(const formula::YearMonthDay& date, char* to) const;
    char* WriteAnyIso(const IsoWeekDate& date, char* to) const;
    char* WriteAnyLeapWeek(const LeapWeekDate& date, char* to) const;
    char* WriteAnyDayNumber(std::int32_t jdn, char* to) const;
    char* WriteAnyYear(std::int32_t year, char* to) const;
    char* WriteLastYear(std::int32_t year, char* to) const;
    char* WriteEraYear(std::int32_t year, char* to) const;

    CalendarNumber notation_;
    Function write_;
    DateFormat dateFormat_;
    char dateSeparator_;
    bool hyphen_;
    bool withEra_;
    // Where the numbers of a CE or JC date stand when its year has four digits.
    std::size_t yearAt_ = 0;
    std::size_t monthAt_ = 0;
    std::size_t dayAt_ = 0;
    std::array<char, 10> separators_{};  // such a date before its digits are written
    std::string grouping_;               // of day numbers and of years from 10000
    std::size_t room_;
};

}  // namespace calvoro
