#include "datetext/Tags.h"

#include "datetext/TextOptions.h"
#include "tests/datetext/TextRows.h"

namespace calvoro {
namespace {

struct Row {
    std::string name;
    CalendarNumber number;
    int value;
    std::string tag;
    std::string letter;
};

void PrintTo(const Row& row, std::ostream* out) {
    *out << row.name;
}

class TagOf : public ::testing::TestWithParam<Row> {};

TEST_P(TagOf, ANotation) {
    const Row& row = GetParam();
    EXPECT_EQ(static_cast<int>(row.number), row.value);
    EXPECT_EQ(TagText(row.number), row.tag);
    EXPECT_EQ(kTagTable[static_cast<std::size_t>(row.value)].tag, row.tag);
    EXPECT_EQ(kTagTable[static_cast<std::size_t>(row.value)].letter, row.letter);
}

INSTANTIATE_TEST_SUITE_P(Rows, TagOf,
                         ::testing::Values(Row{"CE", CalendarNumber::CE, 0, "CE", "G"},
                                           Row{"JC", CalendarNumber::JC, 1, "JC", "J"},
                                           Row{"JDN", CalendarNumber::JDN, 2, "JDN", "JD"},
                                           Row{"AN", CalendarNumber::AN, 3, "AN", "A"},
                                           Row{"ORD", CalendarNumber::ORD, 4, "ORD", ""},
                                           Row{"VLW", CalendarNumber::VLW, 5, "VLW", "V"},
                                           Row{"ISO", CalendarNumber::ISO, 6, "ISO", "I"},
                                           Row{"LPW", CalendarNumber::LPW, 7, "LPW", ""},
                                           Row{"LPM", CalendarNumber::LPM, 8, "LPM", ""},
                                           Row{"ARC", CalendarNumber::ARC, 9, "ARC", ""}),
                         RowName<Row>);

TEST(MonthNameTable, DeliberatelyShortensIrregularly) {
    // May, June and July stay whole, September has four letters, and the German March keeps its umlaut.
    constexpr std::string_view kExpected[12][4] = {
        {"January", "Jan.", "Januar", "Jan."},
        {"February", "Feb.", "Februar", "Feb."},
        {"March", "Mar.", "M\xc3\xa4rz", "M\xc3\xa4rz"},
        {"April", "Apr.", "April", "Apr."},
        {"May", "May", "Mai", "Mai"},
        {"June", "June", "Juni", "Juni"},
        {"July", "July", "Juli", "Juli"},
        {"August", "Aug.", "August", "Aug."},
        {"September", "Sept.", "September", "Sept."},
        {"October", "Oct.", "Oktober", "Okt."},
        {"November", "Nov.", "November", "Nov."},
        {"December", "Dec.", "Dezember", "Dez."},
    };
    std::size_t month = 0;
    for (const MonthNameRow& row : MonthNameTable()) {
        EXPECT_EQ(row.english, kExpected[month][0]);
        EXPECT_EQ(row.englishShort, kExpected[month][1]);
        EXPECT_EQ(row.german, kExpected[month][2]);
        EXPECT_EQ(row.germanShort, kExpected[month][3]);
        ++month;
    }
    EXPECT_EQ(month, 12U);
}

TEST(FiveDayWeekNames, AreSix) {
    const std::array<std::string_view, 6> expected{"Intercalarius", "Primidi",  "Secundi",
                                                   "Tertidi",       "Quartidi", "Quintidi"};
    EXPECT_EQ(FiveDayWeekNames(), expected);
}

TEST(TextOptions, BeginWithYearFirstHyphensAndCommas) {
    const TextOptions options;
    EXPECT_EQ(options.dateFormat, DateFormat::YMD);
    EXPECT_EQ(options.dateSeparator, '-');
    EXPECT_EQ(options.thousandsSeparator, ',');
    EXPECT_TRUE(options.hyphen);
    EXPECT_EQ(options.digitGrouping, ",");
    EXPECT_EQ(static_cast<int>(DateFormat::MDY), 0);
    EXPECT_EQ(static_cast<int>(DateFormat::DMY), 1);
    EXPECT_EQ(static_cast<int>(DateFormat::YMD), 2);
}

}  // namespace
}  // namespace calvoro
