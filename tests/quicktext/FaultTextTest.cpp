#include "quicktext/FaultText.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "quicktext/StrictText.h"

namespace calvoro {
namespace {

struct FaultTextRow {
    CalendarNumber notation;
    std::string text;
    std::string reason;
};
void PrintTo(const FaultTextRow& row, std::ostream* out) {
    *out << row.text;
}

class FaultTextOf : public testing::TestWithParam<FaultTextRow> {};

TEST_P(FaultTextOf, NamesTheCharacterAndItsPlace) {
    const FaultTextRow& row = GetParam();
    const StrictResult result = ReadStrictText(row.notation, TextOptions{}, row.text);
    EXPECT_EQ(FaultText(result, row.text), row.reason);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, FaultTextOf,
    testing::Values(
        FaultTextRow{CalendarNumber::CE, "2024-03-15", ""},
        FaultTextRow{CalendarNumber::CE, "2O24-03-15", "unexpected 'O' at column 2"},
        FaultTextRow{CalendarNumber::CE, "44 BC-03-15", "unexpected blank at column 3"},
        FaultTextRow{CalendarNumber::CE, "2024-\u041e3-15", "unexpected '\u041e' (U+041E) at column 6"},
        FaultTextRow{CalendarNumber::CE, "\u22122024\u201103-15", "unexpected '\u2011' (U+2011) at column 6"},
        FaultTextRow{CalendarNumber::CE, "2024\u00a003-15", "unexpected U+00A0 at column 5"},
        FaultTextRow{CalendarNumber::CE, "2024\u202e03-15", "unexpected U+202E at column 5"},
        FaultTextRow{CalendarNumber::CE, "2024\t03-15", "unexpected U+0009 at column 5"},
        FaultTextRow{CalendarNumber::CE, "2024\xff", "unexpected byte \\xFF at column 5"},
        FaultTextRow{CalendarNumber::JDN, "\U0001f600", "unexpected '\U0001f600' (U+1F600) at column 1"},
        FaultTextRow{CalendarNumber::CE, "2024-03", "it ends too early, at column 8"},
        FaultTextRow{CalendarNumber::CE, "", "empty"}, FaultTextRow{CalendarNumber::CE, "  ", "empty"},
        FaultTextRow{CalendarNumber::CE, "2024-13-01", "no such month at column 6"},
        FaultTextRow{CalendarNumber::CE, "\u221244-02-30", "no such day at column 8"},
        FaultTextRow{CalendarNumber::ISO, "2021-W53-1", "no such week at column 7"},
        FaultTextRow{CalendarNumber::ISO, "2021-W52-8", "no such weekday at column 10"},
        FaultTextRow{CalendarNumber::CE, "0-03-13 BC",
                     "years before the Common Era count from 1, at column 1"},
        FaultTextRow{CalendarNumber::LPW, "-4713-49-1", "day number 0 is not read in this notation"},
        FaultTextRow{CalendarNumber::JDN, "2460370.5",
                     "a fraction of a day at column 8, which lies in civil day 2460371"},
        FaultTextRow{CalendarNumber::CE, "5800001-01-01", ""}));

}  // namespace
}  // namespace calvoro
