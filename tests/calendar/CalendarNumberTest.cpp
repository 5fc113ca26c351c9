#include "calendar/CalendarNumber.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "tests/calendar/Records.h"

namespace calvoro {

namespace {

struct TagRow {
    const char* tag;
    CalendarNumber number;
    int value;
    bool hasCode;
    CalendarCode code;
};

void PrintTo(const TagRow& row, std::ostream* out) {
    *out << row.tag;
}

constexpr TagRow kTags[] = {
    {"CE", CalendarNumber::CE, 0, true, CalendarCode::G},
    {"JC", CalendarNumber::JC, 1, true, CalendarCode::J},
    {"JDN", CalendarNumber::JDN, 2, false, CalendarCode::Unset},
    {"AN", CalendarNumber::AN, 3, true, CalendarCode::A},
    {"ORD", CalendarNumber::ORD, 4, true, CalendarCode::G},
    {"VLW", CalendarNumber::VLW, 5, true, CalendarCode::V},
    {"ISO", CalendarNumber::ISO, 6, true, CalendarCode::I},
    {"LPW", CalendarNumber::LPW, 7, false, CalendarCode::Unset},
    {"LPM", CalendarNumber::LPM, 8, false, CalendarCode::Unset},
    {"ARC", CalendarNumber::ARC, 9, false, CalendarCode::Unset},
};

}  // namespace

class CalendarTag : public ::testing::TestWithParam<TagRow> {};

TEST_P(CalendarTag, HasTheNumberOfTheSettingsFile) {
    EXPECT_EQ(static_cast<int>(GetParam().number), GetParam().value);
}

TEST_P(CalendarTag, SetsItsCodeAndNothingElse) {
    const DateRecord before{
        .year = 1, .month = 2, .day = 3, .calendar = CalendarCode::R, .jdn = 4, .reserved = 0};
    DateRecord after = before;
    EXPECT_EQ(CalendarCodeOfTag(GetParam().number, after), GetParam().hasCode);
    DateRecord expected = before;
    if (GetParam().hasCode) expected.calendar = GetParam().code;
    EXPECT_EQ(after, expected);
}

INSTANTIATE_TEST_SUITE_P(Every, CalendarTag, ::testing::ValuesIn(kTags),
                         [](const auto& test) { return std::string(test.param.tag); });

TEST(CalendarCodeOfTag, RefusesANumberThatIsNoTag) {
    DateRecord record{.year = 7};
    EXPECT_FALSE(CalendarCodeOfTag(static_cast<CalendarNumber>(10), record));
    EXPECT_FALSE(CalendarCodeOfTag(static_cast<CalendarNumber>(-1), record));
    EXPECT_EQ(record, DateRecord{.year = 7});
}

TEST(CalendarCode, IsTheCharacterCodeOfItsLetter) {
    EXPECT_EQ(static_cast<int>(CalendarCode::G), 71);
    EXPECT_EQ(static_cast<int>(CalendarCode::J), 74);
    EXPECT_EQ(static_cast<int>(CalendarCode::A), 65);
    EXPECT_EQ(static_cast<int>(CalendarCode::V), 86);
    EXPECT_EQ(static_cast<int>(CalendarCode::I), 73);
    EXPECT_EQ(static_cast<int>(CalendarCode::R), 82);
    EXPECT_EQ(static_cast<int>(CalendarCode::Unset), 0);
}

}  // namespace calvoro
