#include "datetext/EuroDateText.h"

#include <string>

#include "tests/datetext/TextRows.h"

namespace calvoro {
namespace {

constexpr DateFormat kMDY = DateFormat::MDY;
constexpr DateFormat kDMY = DateFormat::DMY;
constexpr DateFormat kYMD = DateFormat::YMD;
constexpr CalendarNumber kCE = CalendarNumber::CE;
constexpr CalendarNumber kJC = CalendarNumber::JC;

// --- reading ---

struct ReadRow {
    std::string name;
    std::string text;
    DateFormat format;
    char separator;
    CalendarNumber tag;
    std::int32_t year;
    std::int32_t month;
    std::int32_t day;
    std::int32_t jdn;
};

void PrintTo(const ReadRow& row, std::ostream* out) {
    *out << '"' << row.text << '"';
}

class ParseDateTextReads : public ::testing::TestWithParam<ReadRow> {};

TEST_P(ParseDateTextReads, DateAndDayNumber) {
    const ReadRow& row = GetParam();
    DateRecord record;
    EXPECT_EQ(ParseDateText(row.text, row.separator, row.tag, row.format, record), ParseStatus::Valid);
    const CalendarCode code = row.tag == kJC ? CalendarCode::J : CalendarCode::G;
    const DateRecord expected{row.year, row.month, row.day, code, row.jdn, 0};
    EXPECT_EQ(record, expected) << record.year << ' ' << record.month << ' ' << record.day << ' '
                                << record.jdn;
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ParseDateTextReads,
    ::testing::Values(
        ReadRow{"LeapDay", "2024-02-29", kYMD, '-', kCE, 2024, 2, 29, 2460370},
        ReadRow{"JulianLeapDay", "1900-02-29", kYMD, '-', kJC, 1900, 2, 29, 2415092},
        ReadRow{"DayFirst", "15.03.2024", kDMY, '.', kCE, 2024, 3, 15, 2460385},
        ReadRow{"MonthFirst", "03/15/2024", kMDY, '/', kCE, 2024, 3, 15, 2460385},
        ReadRow{"MonthFirstJulian", "03-15-2024", kMDY, '-', kJC, 2024, 3, 15, 2460398},
        ReadRow{"NegativeYearFirst", "-44-03-15", kYMD, '-', kCE, -44, 3, 15, 1705063},
        ReadRow{"NegativeYearFirstJulian", "-44-03-15", kYMD, '-', kJC, -44, 3, 15, 1705061},
        ReadRow{"NegativeYearLast", "15-03--44", kDMY, '-', kCE, -44, 3, 15, 1705063},
        ReadRow{"NegativeYearInParentheses", "15-03-(-44)", kDMY, '-', kCE, -44, 3, 15, 1705063},
        ReadRow{"NegativeYearLastWithSlashes", "15/03/-44", kDMY, '/', kCE, -44, 3, 15, 1705063},
        ReadRow{"NegativeYearLastWithDots", "03.15.(-44)", kMDY, '.', kCE, -44, 3, 15, 1705063},
        ReadRow{"NegativeYearFirstWithSlashes", "-44/03/15", kYMD, '/', kCE, -44, 3, 15, 1705063},
        ReadRow{"BlanksAnywhere", " 2024 - 0 3 - 15 ", kYMD, '-', kCE, 2024, 3, 15, 2460385},
        ReadRow{"GroupedYear", "-12,345-03-15", kYMD, '-', kCE, -12345, 3, 15, -2787785},
        ReadRow{"GroupedYearWithDots", "15-03-(-12.345)", kDMY, '-', kCE, -12345, 3, 15, -2787785},
        ReadRow{"YearZero", "0-02-29", kYMD, '-', kCE, 0, 2, 29, 1721119},
        ReadRow{"LargestYear", "5800000-12-31", kYMD, '-', kCE, 5'800'000, 12, 31, 2'120'127'925},
        ReadRow{"LargestJulianYear", "5800000-12-31", kYMD, '-', kJC, 5'800'000, 12, 31, 2'120'171'423},
        ReadRow{"SmallestYear", "-5800000-01-01", kYMD, '-', kCE, -5'800'000, 1, 1, -2'116'685'440},
        ReadRow{"SmallestJulianYear", "-5800000/01/01", kYMD, '/', kJC, -5'800'000, 1, 1, -2'116'728'942}),
    RowName<ReadRow>);

struct RefusalRow {
    std::string name;
    std::string text;
    DateFormat format = kYMD;
    char separator = '-';
    CalendarNumber tag = kCE;
    ParseStatus status = ParseStatus::NotValid;
};

void PrintTo(const RefusalRow& row, std::ostream* out) {
    *out << '"' << row.text.substr(0, 80) << '"';
}

class ParseDateTextRefuses : public ::testing::TestWithParam<RefusalRow> {};

TEST_P(ParseDateTextRefuses, AndLeavesTheRecordZeroed) {
    const RefusalRow& row = GetParam();
    DateRecord record;
    EXPECT_EQ(ParseDateText(row.text, row.separator, row.tag, row.format, record), row.status);
    EXPECT_EQ(record, DateRecord{});
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ParseDateTextRefuses,
    ::testing::Values(
        RefusalRow{"NoLeapDay", "2023-02-29"}, RefusalRow{"CenturyInTheCommonEra", "1900-02-29"},
        RefusalRow{"FourHyphens", "-15-03--44", kDMY}, RefusalRow{"OneHyphen", "2024-0315"},
        RefusalRow{"NoHyphen", "20240315"}, RefusalRow{"SlashesUnderHyphen", "2024/03/15"},
        RefusalRow{"DotsUnderSlash", "15.03.2024", kDMY, '/'},
        RefusalRow{"HyphensUnderSlash", "2024-03-15", kYMD, '/'},
        RefusalRow{"TwoMinusesUnderSlash", "-2024/03/-15", kYMD, '/'},
        RefusalRow{"OneSlash", "2024/0315", kYMD, '/'}, RefusalRow{"ThreeSlashes", "2024/03/15/", kYMD, '/'},
        RefusalRow{"SignOnTheDay", "2024/03/-15", kYMD, '/'},
        RefusalRow{"GroupedYearUnderDots", "12.345.03.15", kYMD, '.'}, RefusalRow{"WrongOrder", "15-03-2024"},
        RefusalRow{"Month13", "2024-13-01"},
        RefusalRow{"YearBeyond", "5800001-01-01", kYMD, '-', kCE, ParseStatus::OutOfRange},
        RefusalRow{"YearBeyondBelowZero", "-5800001-01-01", kYMD, '-', kJC, ParseStatus::OutOfRange},
        RefusalRow{"YearBeyondInParentheses", "01-01-(-5,800,001)", kMDY, '-', kCE, ParseStatus::OutOfRange},
        RefusalRow{"YearOfAMillionDigits", std::string(1'000'000, '9') + "-01-01", kYMD, '-', kCE,
                   ParseStatus::OutOfRange},
        RefusalRow{"EndlessDay", "2024-01-" + std::string(1'000'000, '9')}),
    RowName<RefusalRow>);

TEST(ParseDateText, DeliberatelyDropsForeignCharactersSilently) {
    using namespace std::string_literals;
    for (const std::string& text :
         {"2024-03-15 CE"s, "2024-03-15."s, "2024-03-15 JC"s, "A2024-03-15 CE"s, "year 2024-month 03-day 15"s,
          "\t2024-03-15\r\n"s, "2024-\0"s + "03-15"s, "2024-03-15\u00a0n. Chr."s, "2,0,2,4-03-15"s}) {
        DateRecord record;
        EXPECT_EQ(ParseDateText(text, '-', kCE, kYMD, record), ParseStatus::Valid) << text;
        EXPECT_EQ(record.jdn, 2460385) << text;
    }
}

TEST(ParseDateText, DeliberatelyLetsThirdHyphenPassTheShapeAndBeRefusedLater) {
    for (const std::string_view text : {"2024-03--15", "2024--03-15", "2024-03-15-"}) {
        DateRecord record;
        EXPECT_EQ(ParseDateText(text, '-', kCE, kYMD, record), ParseStatus::NotValid) << text;
    }
    DateRecord record;
    EXPECT_EQ(ParseDateText("-44-03-15", '-', kCE, kYMD, record), ParseStatus::Valid);
}

TEST(ParseDateText, DeliberatelyTestsTheYearThatTheRecordBringsAlongBeforeTheText) {
    for (const std::int32_t year : {5'800'001, -5'800'001}) {
        DateRecord record;
        record.year = year;
        EXPECT_EQ(ParseDateText("2024-03-15", '-', kCE, kYMD, record), ParseStatus::OutOfRange);
        EXPECT_EQ(ParseDateText("2024-13-15", '-', kCE, kYMD, record), ParseStatus::OutOfRange);
        EXPECT_EQ(ParseDateText("2024", '-', kCE, kYMD, record), ParseStatus::NotValid)
            << "shape comes first";
    }
    for (const std::int32_t year : {5'800'000, -5'800'000}) {
        DateRecord record;
        record.year = year;
        EXPECT_EQ(ParseDateText("2024-03-15", '-', kCE, kYMD, record), ParseStatus::Valid);
        EXPECT_EQ(record.year, 2024);
    }
}

struct CodeRow {
    std::string name;
    CalendarNumber tag;
    CalendarCode code;
    bool yearFirstInsteadOfMonthFirst;
    bool hasDayNumber;
};

void PrintTo(const CodeRow& row, std::ostream* out) {
    *out << row.name;
}

class ParseDateTextOfATag : public ::testing::TestWithParam<CodeRow> {};

TEST_P(ParseDateTextOfATag, SetsItsCodeAndReadsItsOrder) {
    const CodeRow& row = GetParam();
    const std::string_view text = row.yearFirstInsteadOfMonthFirst ? "2024-03-15" : "03-15-2024";
    DateRecord record;
    EXPECT_EQ(ParseDateText(text, '-', row.tag, kMDY, record), ParseStatus::Valid);
    EXPECT_EQ(record.calendar, row.code);
    EXPECT_EQ(record.year, 2024);
    EXPECT_EQ(record.month, 3);
    EXPECT_EQ(record.day, 15);
    EXPECT_EQ(record.jdn != 0, row.hasDayNumber);

    // Day first stays day first for every tag.
    DateRecord dayFirst;
    EXPECT_EQ(ParseDateText("15-03-2024", '-', row.tag, kDMY, dayFirst), ParseStatus::Valid);
    EXPECT_EQ(dayFirst, record);
}

INSTANTIATE_TEST_SUITE_P(Rows, ParseDateTextOfATag,
                         ::testing::Values(CodeRow{"CE", CalendarNumber::CE, CalendarCode::G, false, true},
                                           CodeRow{"JC", CalendarNumber::JC, CalendarCode::J, false, true},
                                           CodeRow{"ORD", CalendarNumber::ORD, CalendarCode::G, false, true},
                                           CodeRow{"LPW", CalendarNumber::LPW, CalendarCode::G, false, true},
                                           CodeRow{"LPM", CalendarNumber::LPM, CalendarCode::G, false, true},
                                           CodeRow{"ISO", CalendarNumber::ISO, CalendarCode::I, true, true},
                                           CodeRow{"VLW", CalendarNumber::VLW, CalendarCode::V, true, true},
                                           CodeRow{"AN", CalendarNumber::AN, CalendarCode::A, true, false},
                                           CodeRow{"ARC", CalendarNumber::ARC, CalendarCode::R, true, false}),
                         RowName<CodeRow>);

TEST(ParseDateText, HandsDayNumbersOnWithoutTheirBlanks) {
    DateRecord record;
    EXPECT_EQ(ParseDateText(" - 2 460 370 ", '-', CalendarNumber::JDN, kYMD, record), ParseStatus::Valid);
    EXPECT_EQ(record.jdn, -2460370);
    EXPECT_EQ(record.calendar, CalendarCode::Unset);
    EXPECT_EQ(ParseDateText("2100000001", '-', CalendarNumber::JDN, kYMD, record), ParseStatus::OutOfRange);
}

TEST(ParseDateText, RefusesHostileTextsOfAnyLength) {
    for (const std::string& text : HostileTexts()) {
        for (const char separator : {'-', '/', '.'}) {
            for (const DateFormat format : {kMDY, kDMY, kYMD}) {
                DateRecord record;
                EXPECT_EQ(ParseDateText(text, separator, kCE, format, record), ParseStatus::NotValid);
                EXPECT_EQ(record, DateRecord{});
            }
        }
    }
}

// --- writing ---

struct WriteRow {
    std::string name;
    std::int32_t year;
    std::int32_t month;
    std::int32_t day;
    CalendarCode code;
    DateFormat format;
    char separator;
    char thousands;
    bool suffix;
    std::string text;
};

void PrintTo(const WriteRow& row, std::ostream* out) {
    *out << '"' << row.text << '"';
}

class FormatDateTextWrites : public ::testing::TestWithParam<WriteRow> {};

TEST_P(FormatDateTextWrites, TheText) {
    const WriteRow& row = GetParam();
    const DateRecord record{row.year, row.month, row.day, row.code, 0, 0};
    EXPECT_EQ(FormatDateText(record, row.format, row.separator, row.thousands, row.suffix), row.text);
}

constexpr CalendarCode kG = CalendarCode::G;
constexpr CalendarCode kJ = CalendarCode::J;
constexpr CalendarCode kA = CalendarCode::A;

INSTANTIATE_TEST_SUITE_P(
    Rows, FormatDateTextWrites,
    ::testing::Values(
        WriteRow{"YearFirst", 2024, 3, 15, kG, kYMD, '-', ',', false, "2024-03-15"},
        WriteRow{"DayFirst", 2024, 3, 5, kG, kDMY, '/', ',', false, "05/03/2024"},
        WriteRow{"MonthFirst", 2024, 3, 5, kG, kMDY, '.', ',', false, "03.05.2024"},
        WriteRow{"ShortYearIsNotPadded", 7, 3, 9, kG, kDMY, '.', ',', false, "09.03.7"},
        WriteRow{"ShortYearWithSuffix", 7, 3, 9, kG, kDMY, '.', ',', true, "09.03.7 CE"},
        WriteRow{"JulianSuffix", 7, 3, 9, kJ, kYMD, '-', ',', true, "7-03-09 JC"},
        WriteRow{"AnnusNovusSuffix", 7, 3, 9, kA, kYMD, '-', ',', true, "7-03-09 AN"},
        WriteRow{"NoSuffixForAnUnsetCode", 7, 3, 9, CalendarCode::Unset, kYMD, '-', ',', true, "7-03-09"},
        WriteRow{"NoSuffixForIso", 7, 3, 9, CalendarCode::I, kYMD, '-', ',', true, "7-03-09"},
        WriteRow{"NegativeYearFirst", -44, 3, 15, kG, kYMD, '-', ',', false, "-44-03-15"},
        WriteRow{"NegativeYearAfterDay", -44, 3, 15, kG, kDMY, '-', ',', false, "15-03-(-44)"},
        WriteRow{"NegativeYearAfterMonth", -44, 3, 15, kG, kMDY, '/', ',', false, "03/15/(-44)"},
        WriteRow{"NegativeYearWithSuffix", -44, 3, 15, kJ, kMDY, '/', ',', true, "03/15/(-44) JC"},
        WriteRow{"YearZero", 0, 1, 1, kG, kDMY, '-', ',', false, "01-01-0"},
        WriteRow{"FourDigitsAreNotGrouped", 9999, 12, 31, kG, kYMD, '-', ',', false, "9999-12-31"},
        WriteRow{"FourNegativeDigitsAreNotGrouped", -9999, 12, 31, kG, kYMD, '-', ',', false, "-9999-12-31"},
        WriteRow{"FiveDigits", 10000, 1, 1, kG, kYMD, '-', ',', false, "10,000-01-01"},
        WriteRow{"FiveNegativeDigits", -10000, 1, 1, kG, kYMD, '-', ',', false, "-10,000-01-01"},
        WriteRow{"GroupedInParentheses", -12345, 3, 15, kG, kMDY, '/', ',', false, "03/15/(-12,345)"},
        WriteRow{"GroupedWithDotsBetweenDots", -12345, 3, 15, kG, kDMY, '.', '.', false, "15.03.(-12.345)"},
        WriteRow{"NoThousandsSeparator", 12345, 3, 15, kJ, kYMD, '-', kNoSeparator, true, "12345-03-15 JC"},
        WriteRow{"SevenDigits", 5'754'317, 3, 8, kG, kYMD, '-', '.', false, "5.754.317-03-08"},
        WriteRow{"AnnusNovusIsAlwaysYearFirstWithHyphensUngrouped", -12345, 3, 15, kA, kMDY, '/', ',', false,
                 "-12345-03-15"}),
    RowName<WriteRow>);

}  // namespace
}  // namespace calvoro
