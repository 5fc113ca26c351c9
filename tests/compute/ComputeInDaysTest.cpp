#include "compute/ComputeInDays.h"

#include <gtest/gtest.h>

#include "tests/compute/ClickCase.h"

namespace calvoro {
namespace {

class RefusalTest : public ClickTest {};

TEST_P(RefusalTest, StopsTheClick) {
    ExpectClick(GetParam());
}

constexpr const char* kFirstNotValid =
    "Error!: First date is not valid in specified calendar using specified date format.";
constexpr const char* kSecondNotValid =
    "Error!: Second date is not valid in specified calendar using specified date format.";

INSTANTIATE_TEST_SUITE_P(
    Refusals, RefusalTest,
    testing::Values(ClickCase{"FirstDateAlone",
                              "2021-02-29",
                              "",
                              "",
                              nullptr,
                              {kFirstNotValid, "focus"},
                              ClickOutcome::NoResult},
                    ClickCase{"FirstDateAloneOutOfRange",
                              "5800001-01-01",
                              "",
                              "",
                              nullptr,
                              {"Error!: First date is out of range.", "focus"},
                              ClickOutcome::NoResult},
                    ClickCase{"SecondDateAlone",
                              "",
                              "",
                              "2021-02-29",
                              nullptr,
                              {kSecondNotValid, "focus"},
                              ClickOutcome::NoResult},
                    ClickCase{"SecondDateAloneOutOfRange",
                              "",
                              "",
                              "5800001-01-01",
                              nullptr,
                              {"Error!: Second date is out of range.", "focus"},
                              ClickOutcome::NoResult},
                    ClickCase{"DifferenceAfterAFirstDate",
                              "2021-03-04",
                              "ten",
                              "",
                              nullptr,
                              {"Error!: Date difference is not valid.", "focus"},
                              ClickOutcome::NoResult},
                    ClickCase{"DifferenceOutOfRange",
                              "2021-03-04",
                              "2100000000",
                              "",
                              nullptr,
                              {"Error!: Date difference is out of range.", "focus"},
                              ClickOutcome::NoResult},
                    // Deliberate: a computation that fails ends its empty line all the same.
                    ClickCase{"DeliberateFailedAdditionEndsItsLine",
                              "5000000-01-01",
                              "2000000000",
                              "",
                              nullptr,
                              {"difference := 2,000,000,000", "first := 5,000,000-01-01",
                               "Error!: Result is out of range.", "focus", "output: \r\n", "scroll", "focus"},
                              ClickOutcome::NoResult},
                    ClickCase{"DeliberateFailedSubtractionEndsItsLine",
                              "",
                              "2000000000",
                              "-5000000-01-01",
                              nullptr,
                              {"second := -5,000,000-01-01", "difference := 2,000,000,000",
                               "Error!: Result is out of range.", "focus", "output: \r\n", "scroll", "focus"},
                              ClickOutcome::NoResult},
                    ClickCase{"DeliberateFailedCountEndsItsLine",
                              "-5000000-01-01",
                              "",
                              "5000000-01-01",
                              nullptr,
                              {"second := 5,000,000-01-01", "first := -5,000,000-01-01",
                               "Error!: Result is out of range.", "output: \r\n", "scroll", "focus"},
                              ClickOutcome::NoResult},
                    // Deliberate: the second date is read first, then the difference, then the first date.
                    ClickCase{"DeliberateSecondDateIsReadBeforeTheFirst",
                              "wrong",
                              "",
                              "wrong",
                              nullptr,
                              {kSecondNotValid, "focus"},
                              ClickOutcome::NoResult},
                    ClickCase{"DeliberateSecondDateIsReadBeforeTheDifference",
                              "",
                              "wrong",
                              "wrong",
                              nullptr,
                              {kSecondNotValid, "focus"},
                              ClickOutcome::NoResult},
                    ClickCase{"DeliberateDifferenceIsReadBeforeTheFirstDate",
                              "wrong",
                              "wrong",
                              "",
                              nullptr,
                              {"Error!: Date difference is not valid.", "focus"},
                              ClickOutcome::NoResult},
                    // Deliberate: what was accepted is rewritten although a later input is refused.
                    ClickCase{"DeliberateAcceptedSecondDateIsRewrittenBeforeTheFirstIsRefused",
                              "wrong",
                              "",
                              "2021-3-8",
                              nullptr,
                              {"second := 2021-03-08", kFirstNotValid, "focus"},
                              ClickOutcome::NoResult},
                    ClickCase{"DeliberateAcceptedSecondDateIsRewrittenBeforeTheDifferenceIsRefused",
                              "",
                              "wrong",
                              "2021-3-8",
                              nullptr,
                              {"second := 2021-03-08", "Error!: Date difference is not valid.", "focus"},
                              ClickOutcome::NoResult},
                    ClickCase{"DeliberateAcceptedDifferenceIsRewrittenBeforeTheFirstDateIsRefused",
                              "wrong",
                              "1234",
                              "",
                              nullptr,
                              {"difference := 1,234", kFirstNotValid, "focus"},
                              ClickOutcome::NoResult},
                    // Deliberate: an ordinal result out of its limits leaves the line and counts as a result.
                    ClickCase{"DeliberateOrdinalResultOutOfLimitsCountsAsAResult",
                              "10000-01-01",
                              "",
                              "",
                              [](FakeComputeWindow& window) {
                                  window.options.secondCalendar = CalendarNumber::ORD;
                              },
                              {"first := 10,000-01-01", "focus", "output: 10,000-01-01 CE = ",
                               "Error!: Result is out of range.", "output: \r\n", "scroll", "focus"},
                              ClickOutcome::Result}),
    RowName<ClickCase>);

// Fillings that the click settles before it comes to this routine.

struct UnreachedCase {
    std::string name;
    InputTexts texts;
    std::vector<std::string> effects;
    bool result;
};

void PrintTo(const UnreachedCase& row, std::ostream* out) {
    *out << row.name;
}

class UnreachedFillingTest : public testing::TestWithParam<UnreachedCase> {};

TEST_P(UnreachedFillingTest, EndsWithAnEmptyLineOrARefusal) {
    const UnreachedCase& row = GetParam();
    FakeComputeWindow window;
    ComputeState state;
    EXPECT_EQ(ComputeInDays(row.texts, window, state), row.result);
    EXPECT_EQ(window.log, row.effects);
}

INSTANTIATE_TEST_SUITE_P(
    Fillings, UnreachedFillingTest,
    testing::Values(
        UnreachedCase{"Nothing", {"", "", ""}, {"output: \r\n", "scroll"}, true},
        UnreachedCase{
            "ADifference", {"", "1234", ""}, {"difference := 1,234", "output: \r\n", "scroll"}, true},
        UnreachedCase{"AWrongDifference", {"", "x", ""}, {"Error!: Date difference is not valid."}, false},
        UnreachedCase{"AllThreeWithoutAGlanceAtTheFirst",
                      {"wrong", "1234", "2021-3-4"},
                      {"second := 2021-03-04", "difference := 1,234", "output: \r\n", "scroll"},
                      true},
        UnreachedCase{"AllThreeWithAWrongSecondDate", {"", "1", "x"}, {kSecondNotValid}, false},
        UnreachedCase{"AllThreeWithAWrongDifference",
                      {"2021-03-04", "x", "2021-03-04"},
                      {"second := 2021-03-04", "Error!: Date difference is not valid."},
                      false}),
    [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace calvoro
