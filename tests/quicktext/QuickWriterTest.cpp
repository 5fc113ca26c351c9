#include "quicktext/QuickWriter.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "calendar/DayNumber.h"
#include "calendar/EuroDate.h"
#include "datetext/AnyNotation.h"
#include "quicktext/StrictReader.h"
#include "tests/properties/DateGenerators.h"
#include "tests/properties/Property.h"

namespace calvoro {
namespace {

/// The text of a day; nothing may be written beyond the room.
std::string Written(const QuickWriter& writer, std::int32_t jdn) {
    constexpr char kUntouched = '\x7F';
    std::string buffer(writer.Room() + 8, kUntouched);
    const char* end = writer.Write(jdn, buffer.data());
    EXPECT_EQ(buffer.substr(writer.Room()), std::string(8, kUntouched));
    buffer.resize(static_cast<std::size_t>(end - buffer.data()));
    return buffer;
}

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

TEST(QuickWriterProperties, WritesWhatTheWritersWrite) {
    const auto days = rc::gen::oneOf(generate::Day(), rc::gen::arbitrary<std::int32_t>());
    const auto optionSets = generate::Options();
    EXPECT_TRUE(Holds(20000, [&] {
        const std::int32_t jdn = *days.as("day");
        const TextOptions options = *optionSets.as("options");
        for (const Notation& notation : Notations()) {
            const QuickWriter writer(notation.number, options);
            if (!writer.CanWrite(jdn)) continue;
            RC_ASSERT(Written(writer, jdn) == WriteDate(notation.number, jdn, options));
        }
    }));
}

std::string WithEra(CalendarNumber notation, std::int32_t jdn, const TextOptions& options = {}) {
    return Written(QuickWriter(notation, options, EraStyle::BeforeCommonEra), jdn);
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

TEST(QuickWriterProperties, YearsOfTheEraAreReadBackAndAllOthersStay) {
    int before = 0;
    const auto days = generate::Day();
    const auto optionSets = generate::Options();
    EXPECT_TRUE(Holds(10000, [&] {
        const std::int32_t jdn = *days.as("day");
        const TextOptions options = *optionSets.as("options");
        for (const CalendarNumber notation : {CalendarNumber::CE, CalendarNumber::JC}) {
            const std::string text = WithEra(notation, jdn, options);
            RC_ASSERT(StrictReader(notation, options).Read(text) == ValidDay(jdn));
            DateRecord record{.calendar = notation == CalendarNumber::JC ? CalendarCode::J : CalendarCode::G,
                              .jdn = jdn};
            jdn_to_euro_date(record);
            RC_ASSERT(text.ends_with(" BCE") == (record.year < 1));
            if (record.year >= 1) RC_ASSERT(text == WriteDate(notation, jdn, options));
            before += record.year < 1 ? 1 : 0;
        }
    }));
    EXPECT_GT(before, 3000);
}

}  // namespace
}  // namespace calvoro
