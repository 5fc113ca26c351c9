#include "quicktext/AutoReader.h"

#include <gtest/gtest.h>

#include <optional>
#include <ostream>
#include <string>

namespace calvoro {
namespace {

struct AutoRow {
    TextOptions options;
    std::string text;
    std::optional<CalendarNumber> notation;
    ReadFault fault;
};
void PrintTo(const AutoRow& row, std::ostream* out) {
    *out << row.text;
}

class AutoReading : public testing::TestWithParam<AutoRow> {};

TEST_P(AutoReading, GoesByTheTagOrTheForm) {
    const AutoRow& row = GetParam();
    const AutoResult answer = AutoReader(row.options).Read(row.text);
    EXPECT_EQ(answer.notation, row.notation) << row.text;
    EXPECT_EQ(static_cast<int>(answer.result.fault), static_cast<int>(row.fault)) << row.text;
    if (row.fault == ReadFault::None) {
        EXPECT_EQ(answer.result, ValidDay(2460385)) << row.text;
    }
}

TextOptions Options(DateFormat format, char separator, bool hyphen) {
    TextOptions options;
    options.dateFormat = format;
    options.dateSeparator = separator;
    options.hyphen = hyphen;
    return options;
}

using enum ReadFault;
using enum CalendarNumber;
const TextOptions kPlain = Options(DateFormat::YMD, '-', true);
const TextOptions kCompact = Options(DateFormat::YMD, '-', false);
const TextOptions kSlashes = Options(DateFormat::DMY, '/', true);
constexpr std::nullopt_t kNone = std::nullopt;

INSTANTIATE_TEST_SUITE_P(
    Rows, AutoReading,
    testing::Values(
        // A tag decides, even when the text is no date of its notation.
        AutoRow{kPlain, "2024-03-15 CE", CE, None}, AutoRow{kPlain, "2024-03-02 JC ", JC, None},
        AutoRow{kPlain, "2024-03-19 LPM", LPM, None}, AutoRow{kPlain, "2024-12-5 LPW", LPW, None},
        AutoRow{kPlain, "2024-W11-5 ISO", ISO, None}, AutoRow{kPlain, "2024-075 ORD", ORD, None},
        AutoRow{kPlain, "2,460,385 JDN", JDN, None}, AutoRow{kCompact, "2460385 JDN", JDN, None},
        AutoRow{kCompact, "2024075 ORD", ORD, None}, AutoRow{kPlain, "2024-03-15 JDN", JDN, Unexpected},
        AutoRow{kPlain, "2024-02-30 CE", CE, NoSuchDay},
        // Forms of one notation only.
        AutoRow{kPlain, "2024-W11-5", ISO, None}, AutoRow{kPlain, "2024W115", ISO, None},
        AutoRow{kPlain, "2024-075", ORD, None}, AutoRow{kPlain, "2460385", JDN, None},
        AutoRow{kPlain, "2.460.385", JDN, None}, AutoRow{kSlashes, "2024-12-5 LPW", LPW, None},
        AutoRow{kSlashes, "2024-03-19 LPM", LPM, None}, AutoRow{kPlain, "2024-W54-1", ISO, NoSuchWeek},
        AutoRow{kPlain, "2023-366", ORD, NoSuchDay}, AutoRow{kPlain, "2460370.5", JDN, Fraction},
        AutoRow{kCompact, "2,460,385", JDN, None}, AutoRow{kPlain, "99999999999", JDN, TooLarge},
        // Forms of several.
        AutoRow{kPlain, "2024-03-15", kNone, SeveralNotations},
        AutoRow{kPlain, "2024-12-5", kNone, SeveralNotations},
        AutoRow{kSlashes, "15/03/2024", kNone, SeveralNotations},
        AutoRow{kSlashes, "2024-12-5", kNone, SeveralNotations},
        AutoRow{kSlashes, "2024-03-19", kNone, SeveralNotations},
        AutoRow{kSlashes, "9999999-03-19", kNone, SeveralNotations},
        AutoRow{kPlain, "0044-03-13 BCE", kNone, SeveralNotations},
        AutoRow{kPlain, "2024-02-30", kNone, SeveralNotations},
        AutoRow{kCompact, "2024075", kNone, SeveralNotations},
        AutoRow{kCompact, "2460385", kNone, SeveralNotations},
        // Forms of none; internal tags are none either.
        AutoRow{kPlain, "", kNone, EndsEarly}, AutoRow{kPlain, "nonsense", kNone, Unexpected},
        AutoRow{kPlain, "2024/03/15", kNone, Unexpected}, AutoRow{kCompact, "2024-075", kNone, Unexpected},
        AutoRow{kPlain, "2024-W11-5 VLW", kNone, Unexpected}, AutoRow{kPlain, "JDN", JDN, Unexpected}));

TEST(AutoReader, NamesTheFarthestPlaceThatAnyNotationReaches) {
    EXPECT_EQ(AutoReader(kPlain).Read("2024-W11-x").result, Refused(Unexpected, 9));
    EXPECT_EQ(AutoReader(kPlain).Read("2024-03-1S").result, Refused(Unexpected, 9));
}

}  // namespace
}  // namespace calvoro
