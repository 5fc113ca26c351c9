#include "cli/QuickDate.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "calendar/EuroDate.h"
#include "datetext/AnyNotation.h"

namespace calvoro {
namespace {

constexpr CalendarNumber kEuroNotations[] = {CalendarNumber::CE, CalendarNumber::JC};

std::string Digits(std::int32_t number, std::size_t width) {
    std::string digits = std::to_string(number);
    return digits.size() < width ? std::string(width - digits.size(), '0') + digits : digits;
}

std::string DateText(std::int32_t year, std::int32_t month, std::int32_t day) {
    return Digits(year, 4) + "-" + Digits(month, 2) + "-" + Digits(day, 2);
}

/// Whether the quick reader took the text; what it took must be what the reader reads.
bool TakesAsTheReaderDoes(const std::string& text, CalendarNumber notation) {
    std::int32_t jdn = -1;
    if (!ReadQuickDate(text, notation, jdn)) return false;
    DateRecord record;
    const ParseStatus status = ReadDate(notation, text, TextOptions{}, record);
    EXPECT_EQ(status, ParseStatus::Valid) << text;
    EXPECT_EQ(jdn, record.jdn) << text;
    return true;
}

TEST(ReadQuickDate, TakesEveryDayOfFourDigitYearsButLeapDays) {
    for (const CalendarNumber notation : kEuroNotations) {
        std::int64_t taken = 0;
        for (std::int32_t year = 0; year <= 9999; ++year) {
            for (std::int32_t month = 1; month <= 12; ++month) {
                for (const std::int32_t day : {1, 2, 9, 10, 19, 20, 27, 28, 29, 30, 31, 32}) {
                    taken += TakesAsTheReaderDoes(DateText(year, month, day), notation) ? 1 : 0;
                }
            }
        }
        // Of these days every month has eight, and eleven of them the 29th and 30th, seven the 31st.
        EXPECT_EQ(taken, 10000 * (12 * 8 + 11 + 11 + 7));
    }
}

TEST(ReadQuickDate, TakesNoMonthOrDayThatTheReaderRefuses) {
    for (const CalendarNumber notation : kEuroNotations) {
        int taken = 0;
        for (const std::int32_t year : {0, 1, 4, 100, 400, 1582, 1900, 2000, 2023, 2024, 9999}) {
            for (std::int32_t month = 0; month <= 99; ++month) {
                for (std::int32_t day = 0; day <= 99; ++day) {
                    taken += TakesAsTheReaderDoes(DateText(year, month, day), notation) ? 1 : 0;
                }
            }
        }
        EXPECT_EQ(taken, 11 * 365);
    }
}

TEST(ReadQuickDate, AgreesWithTheReaderOnTextsWithOneOrTwoOtherCharacters) {
    int texts = 0;
    int taken = 0;
    for (const std::string_view base : {"2024-03-15", "0000-01-01", "9999-12-31", "1582-10-09"}) {
        for (std::size_t first = 0; first < base.size(); ++first) {
            for (int character = 0; character < 256; ++character) {
                std::string text(base);
                text[first] = static_cast<char>(character);
                taken += TakesAsTheReaderDoes(text, CalendarNumber::CE) ? 1 : 0;
                ++texts;
                for (std::size_t second = first + 1; second < base.size(); ++second) {
                    for (const char other : {'-', '0', '9', '/', ':', ' ', '\x80', '\xD0', '\xFF'}) {
                        std::string changed = text;
                        changed[second] = other;
                        taken += TakesAsTheReaderDoes(changed, CalendarNumber::CE) ? 1 : 0;
                        ++texts;
                    }
                }
            }
        }
    }
    EXPECT_EQ(texts, 4 * (10 * 256 + 45 * 256 * 9));
    EXPECT_GT(taken, 100);
}

TEST(ReadQuickDate, LeavesEveryOtherLengthToTheReader) {
    std::int32_t jdn = 0;
    for (const std::string_view text :
         {"", "2", "2024-03-1", "2024-3-15", "2024-03-150", "12024-03-15", "-024-03-15", "-2024-03-15",
          " 2024-03-15", "2024-03-15 ", "2024-03-15 CE"}) {
        EXPECT_FALSE(ReadQuickDate(text, CalendarNumber::CE, jdn)) << text;
    }
}

TEST(ReadQuickDate, TakesNoOtherNotation) {
    std::int32_t jdn = 0;
    for (const Notation& notation : Notations()) {
        const bool isEuro = notation.number == CalendarNumber::CE || notation.number == CalendarNumber::JC;
        EXPECT_EQ(ReadQuickDate("2024-03-15", notation.number, jdn), isEuro) << notation.tag;
    }
}

std::int32_t FirstDayOf(std::int32_t year, CalendarCode calendar) {
    DateRecord record;
    record.year = year;
    record.month = 1;
    record.day = 1;
    record.calendar = calendar;
    return euro_date_to_jdn(record);
}

TEST(WriteQuickDate, WritesWhatTheWriterWrites) {
    const TextOptions options;
    // All calendars' years 999 to 10000 lie within these days.
    const std::int32_t begin = FirstDayOf(999, CalendarCode::G) - 30;
    const std::int32_t end = FirstDayOf(10001, CalendarCode::J) + 30;
    for (const CalendarNumber notation : {CalendarNumber::CE, CalendarNumber::JC, CalendarNumber::ISO}) {
        int written = 0;
        for (std::int32_t jdn = begin; jdn < end; ++jdn) {
            char text[kQuickDateLength] = {};
            const std::string expected = WriteDate(notation, jdn, options);
            const bool hasFourDigitYear = expected.find('-') == 4;
            ASSERT_EQ(WriteQuickDate(notation, jdn, text), hasFourDigitYear) << expected;
            if (!hasFourDigitYear) continue;
            ASSERT_EQ(std::string_view(text, kQuickDateLength), expected);
            ++written;
        }
        EXPECT_GE(written, 9000 * 365);
    }
}

TEST(WriteQuickDate, LeavesNegativeAndLongYearsToTheWriter) {
    char text[kQuickDateLength] = {};
    for (const std::int32_t jdn : {-2147483647 - 1, -2100000000, -1, 0, 1721425, 2100000000, 2147483647}) {
        for (const Notation& notation : Notations()) {
            EXPECT_FALSE(WriteQuickDate(notation.number, jdn, text)) << jdn;
        }
    }
}

TEST(HasQuickShape, HoldsOnlyWhereReaderAndWriterUseTheShape) {
    int shapes = 0;
    int combinations = 0;
    for (const Notation& notation : Notations()) {
        for (const DateFormat format : {DateFormat::YMD, DateFormat::DMY, DateFormat::MDY}) {
            for (const char separator : {'-', '/', '.'}) {
                for (const char thousands : {',', '.', kNoSeparator}) {
                    for (const bool hyphen : {true, false}) {
                        ++combinations;
                        TextOptions options;
                        options.dateFormat = format;
                        options.dateSeparator = separator;
                        options.thousandsSeparator = thousands;
                        options.hyphen = hyphen;
                        if (!HasQuickShape(notation.number, options)) continue;
                        ++shapes;
                        char text[kQuickDateLength] = {};
                        ASSERT_TRUE(WriteQuickDate(notation.number, 2460385, text));
                        EXPECT_EQ(std::string_view(text, kQuickDateLength), notation.write(2460385, options));
                        DateRecord record;
                        std::int32_t jdn = 2460385;
                        ReadQuickDate({text, kQuickDateLength}, notation.number, jdn);
                        EXPECT_EQ(ReadDate(notation.number, {text, kQuickDateLength}, options, record),
                                  ParseStatus::Valid);
                        EXPECT_EQ(record.jdn, 2460385);
                        EXPECT_EQ(jdn, 2460385);
                    }
                }
            }
        }
    }
    EXPECT_EQ(combinations, 7 * 3 * 3 * 3 * 2);
    // CE and JC under one format and separator of nine; ISO under one hyphen state of two.
    EXPECT_EQ(shapes, 2 * 3 * 2 + 3 * 3 * 3);
}

}  // namespace
}  // namespace calvoro
