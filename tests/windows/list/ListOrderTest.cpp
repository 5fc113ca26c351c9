#include "windows/list/lines/ListOrder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>
#include <string>
#include <vector>

#include "tests/support/Limits32.h"
#include "tests/windows/list/ListTesting.h"
#include "windows/list/lines/ListSearch.h"

namespace calvoro {
namespace {

using Rows = std::vector<std::uint32_t>;

Rows Arranged(const std::string& text, Arrangement arrangement) {
    OrderRows job(std::make_shared<ListSurvey>(SheetOf(text), arrangement.byDay), arrangement);
    RunToEnd(job);
    EXPECT_NEAR(job.Done(), 1, 1e-9);
    return *job.Take();
}

constexpr Arrangement kRefusals{.refusalsOnly = true};
constexpr Arrangement kByDay{.byDay = true};
constexpr Arrangement kBoth{.refusalsOnly = true, .byDay = true};

TEST(OrderRows, KeepsRefusalsOnly) {
    EXPECT_EQ(Arranged("1\nx\n\ny\n2\n", kRefusals), (Rows{1, 3}));
    EXPECT_EQ(Arranged("1\n2\n", kRefusals), Rows{});
    EXPECT_EQ(Arranged("x\n", kRefusals), Rows{0});
}

TEST(OrderRows, SortsByDayAndPutsWhatHasNoneLast) {
    EXPECT_EQ(Arranged("3\nx\n-5\n\n0\n-1\n", kByDay), (Rows{2, 5, 4, 0, 1, 3}));
    EXPECT_EQ(Arranged("y\n1\nx\n", kBoth), (Rows{0, 2}));
}

TEST(OrderRows, KeepsTheOrderOfEqualDays) {
    EXPECT_EQ(Arranged("7\n3\n7\n3\n7\n", kByDay), (Rows{1, 3, 0, 2, 4}));
}

TEST(OrderRows, AgreesWithAStableSort) {
    std::mt19937 random(7);
    std::vector<std::int32_t> days;
    std::string text;
    for (int i = 0; i < 100'000; ++i) {
        const auto wide = static_cast<std::int32_t>(random());
        days.push_back(i % 3 == 0 ? wide % 100 : wide == kLargest ? 0 : wide);
        text += std::to_string(days.back()) + "\n";
    }
    Rows expected(days.size());
    std::iota(expected.begin(), expected.end(), 0U);
    std::stable_sort(expected.begin(), expected.end(),
                     [&](std::uint32_t one, std::uint32_t other) { return days[one] < days[other]; });
    EXPECT_EQ(Arranged(text, kByDay), expected);
}

TEST(OrderRows, AreDoneForGoodOnceTheyAreDone) {
    for (const Arrangement arrangement : {kRefusals, kByDay, kBoth}) {
        OrderRows job(std::make_shared<ListSurvey>(SheetOf("3\nx\n1\ny\n"), arrangement.byDay), arrangement);
        RunToEnd(job);
        EXPECT_TRUE(job.Step());
        EXPECT_TRUE(job.Step());
        EXPECT_EQ(*job.Take(), Arranged("3\nx\n1\ny\n", arrangement));
    }
}

TEST(ListSurvey, CountsRefusalsPieceByPiece) {
    std::string text;
    for (int i = 0; i < 10'000; ++i) text += i % 10 == 0 ? "x\n" : "1\n";
    ListSurvey survey(SheetOf(text), true);
    EXPECT_EQ(survey.Refusals(), 0U);
    ASSERT_FALSE(survey.Step());
    EXPECT_GT(survey.Surveyed(), 0U);
    EXPECT_LT(survey.Surveyed(), 10'000U);
    EXPECT_EQ(survey.Refusals(), (survey.Surveyed() + 9) / 10);
    RunToEnd(survey);
    EXPECT_EQ(survey.Refusals(), 1'000U);
    EXPECT_TRUE(survey.IsRefused(9'990));
    EXPECT_FALSE(survey.IsRefused(9'991));
    EXPECT_EQ(survey.Day(9'991), 1);
    EXPECT_EQ(survey.Day(9'990), ListSurvey::kNoDay);
}

// A row may be a megabyte long.
TEST(ListSurvey, TakesLongRowsOneByOne) {
    const std::string line(kLongestLine, '1');
    ListSurvey survey(SheetOf(line + "\n" + line + "\n" + line + "\n"), false);
    ASSERT_FALSE(survey.Step());
    EXPECT_EQ(survey.Surveyed(), 1U);
}

std::optional<std::uint32_t> Search(const ListSheet& sheet, std::uint32_t surveyed, RowOrder order,
                                    std::uint32_t from) {
    auto survey = std::make_shared<ListSurvey>(sheet, false);
    while (survey->Surveyed() < surveyed) survey->Step();
    const auto count = order ? static_cast<std::uint32_t>(order->size()) : sheet.lines->Count();
    ListSearch search(sheet, survey, std::move(order), count, from);
    RunToEnd(search);
    return search.Found();
}

TEST(ListSearch, FindsTheNextRefusalAndBeginsAgain) {
    const ListSheet sheet = SheetOf("x\n1\ny\n2\n");
    for (const std::uint32_t surveyed : {0U, 4U}) {
        EXPECT_EQ(Search(sheet, surveyed, {}, 0), 0U);
        EXPECT_EQ(Search(sheet, surveyed, {}, 1), 2U);
        EXPECT_EQ(Search(sheet, surveyed, {}, 3), 0U);
    }
    const auto order = std::make_shared<Rows>(Rows{3, 2, 1, 0});
    EXPECT_EQ(Search(sheet, 0, order, 0), 1U);
    EXPECT_EQ(Search(sheet, 0, order, 2), 3U);
}

TEST(ListSearch, EndsWithoutRefusals) {
    EXPECT_EQ(Search(SheetOf("1\n\n2\n"), 0, {}, 2), std::nullopt);
    EXPECT_EQ(Search(SheetOf("x\n2\n"), 0, {}, 1), 0U);
}

TEST(ListSearch, AsksForNoRowTwiceThatIsKnown) {
    ListSheet sheet = SheetOf("1\n2\n3\n");
    auto survey = std::make_shared<ListSurvey>(sheet, false);
    RunToEnd(*survey);
    auto& rows = static_cast<NumberRows&>(*sheet.maker);
    rows.made = 0;
    ListSearch search(sheet, survey, {}, 3, 0);
    RunToEnd(search);
    EXPECT_EQ(rows.made, 0);
}

}  // namespace
}  // namespace calvoro
