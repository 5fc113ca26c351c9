#pragma once

// Generated days, options and texts. Every range is uniform at any size, because a property of dates is as
// likely to break far from zero as near it. A generator is best made once, outside the property: making it
// takes longer than drawing from it.

#include <rapidcheck.h>

#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include "calendar/CalendarNumber.h"
#include "calendar/DayNumber.h"
#include "datetext/AnyNotation.h"
#include "datetext/TextOptions.h"

namespace calvoro {

inline void showValue(const TextOptions& options, std::ostream& out) {
    out << "{format " << static_cast<int>(options.dateFormat) << ", date separator " << options.dateSeparator
        << ", thousands separator "
        << (options.thousandsSeparator == kNoSeparator ? std::string("none")
                                                       : std::string(1, options.thousandsSeparator))
        << ", hyphen " << options.hyphen << ", grouping \"" << options.digitGrouping << "\"}";
}

inline void showValue(CalendarNumber number, std::ostream& out) {
    out << NotationOf(number).tag;
}

namespace generate {

/// first and last are included.
inline rc::Gen<std::int32_t> Number(std::int64_t first, std::int64_t last) {
    const auto wide = rc::gen::resize(rc::kNominalSize, rc::gen::inRange(first, last + 1));
    return rc::gen::map(wide, [](std::int64_t value) { return static_cast<std::int32_t>(value); });
}

/// A day number within the limits: anywhere, near a limit or the start of a calendar, or within a few days
/// of the turn of a year.
inline rc::Gen<std::int32_t> Day() {
    const auto anywhere = Number(kMinDayNumber, kMaxDayNumber);
    const auto thisEpoch = Number(1'000'000, 4'000'000);
    const auto landmark =
        rc::gen::element<std::int64_t>(kMinDayNumber, kMaxDayNumber, 0, 1721060, 1721058, 1721419,
                                       kFirstFourDigitDay, kLastFourDigitDay, -1930999, 5373850, -1721120);
    const auto yearTurn = rc::gen::map(Number(-5'749'000, 5'749'000), [](std::int64_t year) {
        return 1721426 + (year * 146'097) / 400;  // a few days from 1 January, Common Era
    });
    const auto nearTo = [](const rc::Gen<std::int64_t>& day) {
        return rc::gen::map(rc::gen::pair(day, Number(-9, 9)),
                            [](const std::pair<std::int64_t, std::int32_t>& p) {
                                const std::int64_t jdn = p.first + p.second;
                                return static_cast<std::int32_t>(jdn < kMinDayNumber   ? kMinDayNumber
                                                                 : jdn > kMaxDayNumber ? kMaxDayNumber
                                                                                       : jdn);
                            });
    };
    return rc::gen::weightedOneOf<std::int32_t>(
        {{3, anywhere}, {3, thisEpoch}, {2, nearTo(landmark)}, {3, nearTo(yearTurn)}});
}

/// Every way of writing dates and numbers.
inline rc::Gen<TextOptions> Options() {
    return rc::gen::build<TextOptions>(
        rc::gen::set(&TextOptions::dateFormat,
                     rc::gen::element(DateFormat::YMD, DateFormat::DMY, DateFormat::MDY)),
        rc::gen::set(&TextOptions::dateSeparator, rc::gen::element('-', '/', '.')),
        rc::gen::set(&TextOptions::thousandsSeparator, rc::gen::element(',', '.', kNoSeparator)),
        rc::gen::set(&TextOptions::hyphen, rc::gen::arbitrary<bool>()),
        rc::gen::set(&TextOptions::digitGrouping,
                     rc::gen::element<std::string>(",", ".", "'", " ", "\u202f", "\u00a0", "")));
}

inline rc::Gen<CalendarNumber> OfferedNotation() {
    return rc::gen::map(Number(0, 6),
                        [](std::int32_t row) { return Notations()[static_cast<std::size_t>(row)].number; });
}

/// A text that a reader may take for a date, or not: pieces of dates, tags and foreign bytes.
inline rc::Gen<std::string> AlmostADate() {
    const auto piece = rc::gen::weightedOneOf<std::string>(
        {{8, rc::gen::map(Number(0, 9), [](std::int32_t digit) { return std::to_string(digit); })},
         {3, rc::gen::element<std::string>("-", "/", ".", ",", "W", " ", "(", ")", "+")},
         {2, rc::gen::element<std::string>("2024", "5800000", "5799999", "12,345", "12.345", "2100000000",
                                           "053", "366", "-0", "00000000000")},
         {1, rc::gen::element<std::string>(" CE", " JC", " ISO", " ORD", " LPM", " LPW", " JDN")},
         {1, rc::gen::map(Number(0, 255),
                          [](std::int32_t byte) { return std::string(1, static_cast<char>(byte)); })}});
    return rc::gen::map(rc::gen::resize(20, rc::gen::container<std::vector<std::string>>(piece)),
                        [](const std::vector<std::string>& pieces) {
                            std::string text;
                            for (const std::string& one : pieces) text += one;
                            return text;
                        });
}

/// A text in the shape of a date: three numbers between which stands the same separator.
inline rc::Gen<std::string> ThreeNumbers() {
    const auto year = rc::gen::oneOf(Number(-3000, 3000), Number(-6'000'000, 6'000'000));
    return rc::gen::map(rc::gen::tuple(year, Number(0, 54), Number(0, 36),
                                       rc::gen::element<std::string>("-", "/", "."), Number(0, 2)),
                        [](const auto& parts) {
                            const auto& [theYear, second, third, separator, order] = parts;
                            const std::string a = std::to_string(theYear);
                            const std::string b = std::to_string(second);
                            const std::string c = std::to_string(third);
                            if (order == 0) return a + separator + b + separator + c;
                            if (order == 1) return c + separator + b + separator + a;
                            return b + separator + c + separator + "(" + a + ")";
                        });
}

/// A change of one character of a text.
struct Edit {
    std::int32_t kind = 0;  // 0 takes it out, 1 puts one in, 2 changes it
    std::int32_t place = 0;
    char character = '0';

    std::string AppliedTo(std::string text) const {
        const std::size_t at = static_cast<std::size_t>(place) % text.size();
        if (kind == 0) text.erase(at, 1);
        if (kind == 1) text.insert(at, 1, character);
        if (kind == 2) text[at] = character;
        return text;
    }
};

inline void showValue(const Edit& edit, std::ostream& out) {
    out << "{kind " << edit.kind << ", place " << edit.place << ", character '" << edit.character << "'}";
}

inline rc::Gen<Edit> OneEdit() {
    return rc::gen::build<Edit>(
        rc::gen::set(&Edit::kind, Number(0, 2)), rc::gen::set(&Edit::place, Number(0, 1000)),
        rc::gen::set(&Edit::character, rc::gen::element('0', '1', '3', '9', '-', '.', ',', ' ', 'W')));
}

}  // namespace generate
}  // namespace calvoro
