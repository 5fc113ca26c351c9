#include "quicktext/AutoReader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

#include "datetext/AnyNotation.h"
#include "quicktext/StrictText.h"
#include "tests/properties/DateGenerators.h"
#include "tests/properties/Property.h"

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

/// The notations that have the form of a text without tag, found by asking each. Leap-week dates look like
/// dates of other calendars, whatever format those are asked for in.
std::vector<CalendarNumber> NotationsOfForm(const std::string& text, const TextOptions& options) {
    std::vector<CalendarNumber> found;
    for (const Notation& notation : Notations()) {
        if (!HasTheForm(ReadStrictText(notation.number, options, text))) continue;
        found.push_back(notation.number);
        if (notation.number == LPM || notation.number == LPW) found.push_back(CE);
    }
    return found;
}

TEST(AutoReaderProperties, RecognisesWhatOneNotationAloneCouldHave) {
    const auto days = generate::Day();
    const auto optionSets = generate::Options();
    const auto edits = generate::OneEdit();
    const auto isEdited = rc::gen::arbitrary<bool>();
    int recognised = 0;
    int ambiguous = 0;
    EXPECT_TRUE(Holds(5000, [&] {
        const std::int32_t jdn = *days.as("day");
        const TextOptions options = *optionSets.as("options");
        const AutoReader reader(options);
        for (const Notation& notation : Notations()) {
            if (!CanWriteDate(notation.number, jdn)) continue;
            const std::string written = WriteDate(notation.number, jdn, options);
            const std::string text = *isEdited ? (*edits).AppliedTo(written) : written;
            const AutoResult answer = reader.Read(text);
            const std::vector<CalendarNumber> possible = NotationsOfForm(text, options);
            if (answer.notation) {
                ++recognised;
                RC_ASSERT(std::count(possible.begin(), possible.end(), *answer.notation) == 1);
                RC_ASSERT(answer.result == ReadStrictText(*answer.notation, options, text));
                // A year too large for any notation is all that two of them can have in common.
                RC_ASSERT(possible.size() == 1 || answer.result.fault == ReadFault::TooLarge);
            } else if (answer.result.fault == ReadFault::SeveralNotations) {
                ++ambiguous;
                RC_ASSERT(possible.size() > 1U);
            } else {
                RC_ASSERT(possible.empty());
            }
            // A tag tells it in any case.
            const AutoResult tagged = reader.Read(written + " " + std::string(notation.tag));
            RC_ASSERT(tagged.notation == notation.number);
            RC_ASSERT(tagged.result == ReadStrictText(notation.number, options, written));
        }
    }));
    EXPECT_GT(recognised, 5000);
    EXPECT_GT(ambiguous, 5000);
}

}  // namespace
}  // namespace calvoro
