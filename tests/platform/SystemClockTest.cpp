#include "platform/SystemClock.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <ctime>
#include <string>

namespace calvoro {
namespace {

LocalDate DateAtOffset(std::chrono::hours offset) {
    const std::chrono::year_month_day date{
        std::chrono::floor<std::chrono::days>(std::chrono::system_clock::now() + offset)};
    return {static_cast<int>(date.year()), static_cast<std::int32_t>(static_cast<unsigned>(date.month())),
            static_cast<std::int32_t>(static_cast<unsigned>(date.day()))};
}

class TimeZone {
public:
    explicit TimeZone(const char* zone) {
        ::setenv("TZ", zone, 1);
        ::tzset();
    }
    ~TimeZone() {
        ::unsetenv("TZ");
        ::tzset();
    }
    TimeZone(const TimeZone&) = delete;
    TimeZone& operator=(const TimeZone&) = delete;
};

TEST(SystemClock, GivesTheDateOfTheLocalZone) {
    // At every moment at least one of these zones has another date than the others.
    for (const int hours : {-12, -1, 0, 1, 12}) {
        // The sign of a zone's offset is turned round in TZ.
        const std::string name = (hours > 0 ? "ZONE-" : "ZONE+") + std::to_string(std::abs(hours));
        const TimeZone zone(name.c_str());
        const LocalDate before = DateAtOffset(std::chrono::hours(hours));
        const LocalDate today = SystemClock().Today();
        const LocalDate after = DateAtOffset(std::chrono::hours(hours));
        EXPECT_TRUE(today == before || today == after) << name;
    }
}

}  // namespace
}  // namespace calvoro
