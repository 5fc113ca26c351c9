#include "quicktext/QuickWriter.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "calendar/DayNumber.h"
#include "datetext/AnyNotation.h"
#include "tests/quicktext/WrittenText.h"

namespace calvoro {
namespace {

std::vector<TextOptions> AllOptions() {
    std::vector<TextOptions> all;
    for (const DateFormat format : {DateFormat::YMD, DateFormat::DMY, DateFormat::MDY}) {
        for (const char separator : {'-', '/', '.'}) {
            for (const char thousands : {',', '.', kNoSeparator}) {
                for (const bool hyphen : {true, false}) {
                    for (const char* grouping : {",", "", "\u202f"}) {
                        all.push_back({format, separator, thousands, hyphen, grouping});
                    }
                }
            }
        }
    }
    return all;
}

TEST(QuickWriter, WritesWhatTheWritersWriteUnderEveryOption) {
    int texts = 0;
    for (const TextOptions& options : AllOptions()) {
        for (const Notation& notation : Notations()) {
            const QuickWriter writer(notation.number, options);
            for (std::int64_t jdn = kMinDayNumber; jdn <= kMaxDayNumber; jdn += 20'000'003) {
                const auto day = static_cast<std::int32_t>(jdn);
                ASSERT_EQ(writer.CanWrite(day), CanWriteDate(notation.number, day));
                if (!writer.CanWrite(day)) continue;
                ASSERT_EQ(Written(writer, day), WriteDate(notation.number, day, options));
                ++texts;
            }
            for (std::int32_t jdn = 1'000'000; jdn < 6'000'000; jdn += 40'009) {
                if (!writer.CanWrite(jdn)) continue;
                ASSERT_EQ(Written(writer, jdn), WriteDate(notation.number, jdn, options));
                ++texts;
            }
        }
    }
    EXPECT_GT(texts, 100'000);
}

TEST(QuickWriter, WritesEveryDayOfFourDigitYearsAndTheirEnds) {
    const TextOptions options;
    for (const Notation& notation : Notations()) {
        const QuickWriter writer(notation.number, options);
        std::string buffer(writer.Room(), '\0');
        int written = 0;
        for (std::int32_t jdn = 1'721'000; jdn < 5'375'000; ++jdn) {
            if (!writer.CanWrite(jdn)) continue;
            const char* end = writer.Write(jdn, buffer.data());
            ASSERT_EQ(std::string_view(buffer.data(), end), WriteDate(notation.number, jdn, options));
            ++written;
        }
        EXPECT_GE(written, 3'652'059);
    }
}

TEST(QuickWriter, WritesYearsBeforeTheCommonEraInFourDigits) {
    EXPECT_EQ(WithEra(CalendarNumber::CE, 1705426), "0044-03-13 BCE");
    EXPECT_EQ(WithEra(CalendarNumber::JC, 1705426), "0044-03-15 BCE");
    EXPECT_EQ(WithEra(CalendarNumber::CE, 1721425), "0001-12-31 BCE");
    EXPECT_EQ(WithEra(CalendarNumber::CE, 1721426), "1-01-01");
    EXPECT_EQ(WithEra(CalendarNumber::CE, -2787858), "12,346-01-01 BCE");
    EXPECT_EQ(WithEra(CalendarNumber::ISO, 1705426), "-43-W11-3");
    TextOptions options{DateFormat::DMY, '.', kNoSeparator, true, ""};
    EXPECT_EQ(WithEra(CalendarNumber::CE, 1705426, options), "13.03.0044 BCE");
    EXPECT_EQ(WithEra(CalendarNumber::CE, -2787858, options), "01.01.12346 BCE");
    options.dateFormat = DateFormat::MDY;
    EXPECT_EQ(WithEra(CalendarNumber::CE, 1705426, options), "03.13.0044 BCE");
}

}  // namespace
}  // namespace calvoro
