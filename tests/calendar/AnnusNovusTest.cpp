#include "calendar/AnnusNovus.h"

#include <gtest/gtest.h>

#include "tests/calendar/Records.h"

namespace calvoro {

TEST(AnnusNovus, HasNoConversionAndSaysSo) {
    const DateRecord before{.year = 5, .month = 10, .day = 3, .calendar = CalendarCode::A, .jdn = 99};
    DateRecord record = before;
    EXPECT_FALSE(jdn_to_annus_novus_date(record));
    EXPECT_EQ(record, before);
    EXPECT_FALSE(annus_novus_date_to_jdn(record));
    EXPECT_EQ(record, before);
}

}  // namespace calvoro
