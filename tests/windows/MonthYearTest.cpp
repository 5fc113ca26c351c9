#include "windows/MonthYear.h"

#include <gtest/gtest.h>

#include <ostream>

namespace calvoro {
namespace {

struct YearRow {
    const char* name;
    std::string_view text;
    std::optional<std::int32_t> year;
};
void PrintTo(const YearRow& row, std::ostream* out) {
    *out << '"' << row.text << '"';
}

class ReadYearOf : public testing::TestWithParam<YearRow> {};

TEST_P(ReadYearOf, TakesSignedWholeNumbersOnly) {
    EXPECT_EQ(ReadYear(GetParam().text), GetParam().year);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ReadYearOf,
    testing::Values(YearRow{"Plain", "2024", 2024}, YearRow{"Zero", "0", 0}, YearRow{"Negative", "-1", -1},
                    YearRow{"Plus", "+7", 7}, YearRow{"BlanksAround", "  2024 ", 2024},
                    YearRow{"LeadingZeros", "0001", 1}, YearRow{"Greatest", "2147483647", 2147483647},
                    YearRow{"Least", "-2147483648", -2147483647 - 1},
                    YearRow{"BeyondGreatest", "2147483648", std::nullopt},
                    YearRow{"BeyondLeast", "-2147483649", std::nullopt},
                    YearRow{"VeryLong", "99999999999999999999999999", std::nullopt},
                    YearRow{"Empty", "", std::nullopt}, YearRow{"Blanks", "   ", std::nullopt},
                    YearRow{"Letters", "year", std::nullopt}, YearRow{"LettersBehind", "2024a", std::nullopt},
                    YearRow{"Fraction", "12.5", std::nullopt}, YearRow{"Thousands", "2,024", std::nullopt},
                    YearRow{"BlankInside", "20 24", std::nullopt}, YearRow{"SignAlone", "-", std::nullopt},
                    YearRow{"PlusAlone", "+", std::nullopt}, YearRow{"TwoSigns", "+-5", std::nullopt},
                    YearRow{"TwoMinus", "--5", std::nullopt}, YearRow{"TwoPlus", "++5", std::nullopt},
                    YearRow{"BlankBehindSign", "- 5", std::nullopt}, YearRow{"Tab", "\t5", std::nullopt},
                    YearRow{"ForeignDigits", "\u0662\u0660", std::nullopt}),
    [](const testing::TestParamInfo<YearRow>& row) { return std::string(row.param.name); });

TEST(SteppedYear, GoesOnAndBackAcrossYearZero) {
    EXPECT_EQ(SteppedYear("2024", 1), "2025");
    EXPECT_EQ(SteppedYear("1", -1), "0");
    EXPECT_EQ(SteppedYear("0", -1), "-1");
    EXPECT_EQ(SteppedYear("-1", 1), "0");
    EXPECT_EQ(SteppedYear(" +9 ", 1), "10");
}

TEST(SteppedYear, RefusesWhatIsNoYear) {
    EXPECT_EQ(SteppedYear("", 1), std::nullopt);
    EXPECT_EQ(SteppedYear("x", 1), std::nullopt);
    EXPECT_EQ(SteppedYear("1e3", -1), std::nullopt);
}

TEST(SteppedYear, StopsAtTheEndsOf32Bits) {
    EXPECT_EQ(SteppedYear("2147483646", 1), "2147483647");
    EXPECT_EQ(SteppedYear("2147483647", 1), std::nullopt);
    EXPECT_EQ(SteppedYear("-2147483648", -1), std::nullopt);
    EXPECT_EQ(SteppedYear("-2147483647", -1), "-2147483648");
}

}  // namespace
}  // namespace calvoro
