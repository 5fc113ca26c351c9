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
    EXPECT_EQ(TagTable()[static_cast<std::size_t>(row.value)].tag, row.tag);
    EXPECT_EQ(TagTable()[static_cast<std::size_t>(row.value)].letter, row.letter);

    std::string lowerCase;
    for (const char c : row.tag) lowerCase += static_cast<char>(c - 'A' + 'a');
    EXPECT_EQ(NotationOfTag(row.tag, false), row.number);
    EXPECT_EQ(NotationOfTag(row.tag, true), row.number);
    EXPECT_EQ(NotationOfTag(lowerCase, true), row.number);
    EXPECT_EQ(NotationOfTag(lowerCase, false), std::nullopt);
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

TEST(NotationOfTag, KnowsNoOtherTexts) {
    for (const bool ignoreCase : {false, true}) {
        for (const std::string& text : HostileTexts())
            EXPECT_EQ(NotationOfTag(text, ignoreCase), std::nullopt);
        for (const std::string_view text : {"C", "CE ", " CE", "CEX", "JD", "Jdn1", "G"}) {
            EXPECT_EQ(NotationOfTag(text, ignoreCase), std::nullopt) << text;
        }
    }
    EXPECT_EQ(NotationOfTag("iSo", true), CalendarNumber::ISO);
}

TEST(MonthNameTable, HoldsTheNamesOfTwelveMonths) {
    const auto& names = MonthNameTable();
    EXPECT_EQ(names[0].english, "January");
    EXPECT_EQ(names[0].german, "Januar");
    EXPECT_EQ(names[9].englishShort, "Oct.");
    EXPECT_EQ(names[9].germanShort, "Okt.");
    EXPECT_EQ(names[11].german, "Dezember");
    for (const MonthNameRow& row : names) {
        EXPECT_FALSE(row.english.empty() || row.englishShort.empty() || row.german.empty() ||
                     row.germanShort.empty());
    }
}

TEST(MonthNameTable, DeliberatelyShortensIrregularly) {
    const auto& names = MonthNameTable();
    EXPECT_EQ(names[2].german, "M\xc3\xa4rz");
    EXPECT_EQ(names[2].germanShort, "M\xc3\xa4rz") << "with its umlaut, without a full stop";
    EXPECT_EQ(names[2].englishShort, "Mar.");
    EXPECT_EQ(names[4].englishShort, "May");
    EXPECT_EQ(names[4].germanShort, "Mai");
    EXPECT_EQ(names[5].englishShort, "June");
    EXPECT_EQ(names[5].germanShort, "Juni");
    EXPECT_EQ(names[6].englishShort, "July");
    EXPECT_EQ(names[6].germanShort, "Juli");
    EXPECT_EQ(names[8].englishShort, "Sept.");
    EXPECT_EQ(names[8].germanShort, "Sept.");
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
