#include "csvtext/QuotedField.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace calvoro {
namespace {

TEST(FindCharacter, GivesTheEndWhenNothingIsThere) {
    EXPECT_EQ(FindCharacter("a,b,c", ',', 0), 1U);
    EXPECT_EQ(FindCharacter("a,b,c", ',', 1), 1U);
    EXPECT_EQ(FindCharacter("a,b,c", ',', 2), 3U);
    EXPECT_EQ(FindCharacter("a,b,c", ',', 4), 5U);
    EXPECT_EQ(FindCharacter("a,b,c", ',', 5), 5U);
    EXPECT_EQ(FindCharacter("a,b,c", ',', 100), 5U);
    EXPECT_EQ(FindCharacter({}, ',', 0), 0U);
}

struct QuotedRow {
    std::string name;
    std::string field;  // and what follows it
    std::size_t closing;
    std::string text;
};
void PrintTo(const QuotedRow& row, std::ostream* out) {
    *out << row.name;
}

class QuotedFields : public testing::TestWithParam<QuotedRow> {};

TEST_P(QuotedFields, EndWithAQuoteThatIsNotOneOfTwo) {
    const QuotedRow& row = GetParam();
    EXPECT_EQ(FindClosingQuote(row.field, 1), row.closing);
    std::string text = "what was there";
    Unquote(row.field, row.closing, text);
    EXPECT_EQ(text, row.text);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, QuotedFields,
    testing::Values(QuotedRow{"Plain", R"("a")", 2, "a"}, QuotedRow{"Empty", R"("")", 1, ""},
                    QuotedRow{"OneQuote", R"("""")", 3, "\""}, QuotedRow{"TwoQuotes", R"("""""")", 5, "\"\""},
                    QuotedRow{"QuoteInside", R"("a""b")", 5, "a\"b"},
                    QuotedRow{"QuotesAtTheEnd", R"("a""")", 4, "a\""},
                    QuotedRow{"TextBehind", R"("a"b"c)", 2, "ab\"c"},
                    QuotedRow{"NeverClosed", R"("a)", 2, "a"}, QuotedRow{"OnlyOpened", R"(")", 1, ""},
                    QuotedRow{"NeverClosedBehindTwo", R"("a"")", 4, "a\""},
                    QuotedRow{"LineEnd", "\"a\r\n\"\"b\"", 7, "a\r\n\"b"}),
    [](const auto& row) { return row.param.name; });

TEST(QuotedFields, SayWhatWasQuoted) {
    std::mt19937 random(4180);
    for (int i = 0; i < 20000; ++i) {
        std::string text;
        for (std::size_t length = random() % 9; length > 0; --length) text += "\"\"a,\r\n"[random() % 6];
        std::string field = "\"";
        for (const char character : text) field.append(character == '"' ? 2 : 1, character);
        const std::size_t closing = field.size();
        field += "\"";
        std::string said;
        ASSERT_EQ(FindClosingQuote(field, 1), closing) << field;
        Unquote(field, closing, said);
        ASSERT_EQ(said, text);
    }
}

}  // namespace
}  // namespace calvoro
