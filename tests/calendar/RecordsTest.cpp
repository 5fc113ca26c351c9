#include "tests/calendar/Records.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>

namespace calvoro {
namespace {

// Records are equal when all of their fields are: each of these changes one field of a record.

template <class Record>
struct Change {
    const char* field;
    void (*apply)(Record&);
};

template <class Record, std::size_t kCount>
void ExpectEveryFieldToCount(const std::array<Change<Record>, kCount>& changes) {
    const Record record{};
    EXPECT_TRUE(record == Record{});
    for (const Change<Record>& change : changes) {
        Record changed = record;
        change.apply(changed);
        EXPECT_FALSE(changed == record) << change.field;
        EXPECT_TRUE(changed != record) << change.field;
    }
}

TEST(DateRecord, IsEqualWhenAllOfItsFieldsAre) {
    ExpectEveryFieldToCount(std::array<Change<DateRecord>, 6>{{
        {"year", [](DateRecord& record) { record.year = 1; }},
        {"month", [](DateRecord& record) { record.month = 1; }},
        {"day", [](DateRecord& record) { record.day = 1; }},
        {"calendar", [](DateRecord& record) { record.calendar = CalendarCode::J; }},
        {"jdn", [](DateRecord& record) { record.jdn = 1; }},
        {"reserved", [](DateRecord& record) { record.reserved = 1; }},
    }});
}

TEST(IsoWeekDate, IsEqualWhenAllOfItsFieldsAre) {
    ExpectEveryFieldToCount(std::array<Change<IsoWeekDate>, 5>{{
        {"year", [](IsoWeekDate& date) { date.year = 1; }},
        {"week", [](IsoWeekDate& date) { date.week = 1; }},
        {"day", [](IsoWeekDate& date) { date.day = 1; }},
        {"jdn", [](IsoWeekDate& date) { date.jdn = 1; }},
        {"set", [](IsoWeekDate& date) { date.set = 1; }},
    }});
}

TEST(LeapWeekDate, IsEqualWhenAllOfItsFieldsAre) {
    ExpectEveryFieldToCount(std::array<Change<LeapWeekDate>, 7>{{
        {"year", [](LeapWeekDate& date) { date.year = 1; }},
        {"month", [](LeapWeekDate& date) { date.month = 1; }},
        {"day", [](LeapWeekDate& date) { date.day = 1; }},
        {"week", [](LeapWeekDate& date) { date.week = 1; }},
        {"weekday", [](LeapWeekDate& date) { date.weekday = 1; }},
        {"jdn", [](LeapWeekDate& date) { date.jdn = 1; }},
        {"status", [](LeapWeekDate& date) { date.status = 1; }},
    }});
}

}  // namespace
}  // namespace calvoro
