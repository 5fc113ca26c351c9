#include "cli/OptionParser.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace calvoro {
namespace {

struct Seen {
    std::string value = "unset";
    int flags = 0;
    bool valueWasGiven = false;
    ParsedArguments parsed;
};

Seen Parse(const std::vector<std::string>& arguments) {
    Seen seen;
    OptionParser parser;
    parser.AddText("--value", seen.value);
    parser.AddAction("--flag", [&seen] { ++seen.flags; });
    parser.AddValue("--odd", [](const std::string& text) {
        return text.size() % 2 == 1 ? std::string() : std::string("must be odd");
    });
    seen.parsed = parser.Parse(arguments);
    seen.valueWasGiven = parser.WasGiven("--value");
    return seen;
}

using Words = std::vector<std::string>;

TEST(OptionParser, ReadsNothingAsNothing) {
    const Seen seen = Parse({});
    EXPECT_EQ(seen.value, "unset");
    EXPECT_EQ(seen.flags, 0);
    EXPECT_FALSE(seen.valueWasGiven);
    EXPECT_EQ(seen.parsed.fault, "");
    EXPECT_TRUE(seen.parsed.operands.empty());
}

struct ValueRow {
    std::string name;
    Words arguments;
    std::string value;
};
void PrintTo(const ValueRow& row, std::ostream* out) {
    *out << row.name;
}

class OptionParserValue : public testing::TestWithParam<ValueRow> {};

TEST_P(OptionParserValue, IsTakenAsItStands) {
    const Seen seen = Parse(GetParam().arguments);
    EXPECT_EQ(seen.parsed.fault, "");
    EXPECT_EQ(seen.value, GetParam().value);
    EXPECT_TRUE(seen.valueWasGiven);
    EXPECT_EQ(seen.parsed.operands, Words{});
}

INSTANTIATE_TEST_SUITE_P(
    Rows, OptionParserValue,
    testing::Values(
        ValueRow{"Apart", {"--value", "x"}, "x"}, ValueRow{"Joined", {"--value=x"}, "x"},
        ValueRow{"Empty", {"--value", ""}, ""}, ValueRow{"EmptyJoined", {"--value="}, ""},
        ValueRow{"EmptyJoinedBeforeAnOption", {"--value=", "--flag"}, ""},
        ValueRow{"NegativeDate", {"--value", "-44-03-15"}, "-44-03-15"},
        ValueRow{"NegativeDateJoined", {"--value=-44-03-15"}, "-44-03-15"},
        ValueRow{"LikeAnOption", {"--value", "--flag"}, "--flag"},
        ValueRow{"LoneHyphen", {"--value", "-"}, "-"}, ValueRow{"TwoHyphens", {"--value", "--"}, "--"},
        ValueRow{"Brackets", {"--value", "[a,b]"}, "[a,b]"}, ValueRow{"Braces", {"--value", "{}"}, "{}"},
        ValueRow{"Percents", {"--value", "%%"}, "%%"}, ValueRow{"Quotes", {"--value", "\"a\""}, "\"a\""},
        ValueRow{"Blanks", {"--value", " a b "}, " a b "}, ValueRow{"EqualsSign", {"--value=a=b"}, "a=b"},
        ValueRow{"LastOfTwo", {"--value", "a", "--value", "b"}, "b"},
        ValueRow{"EmptyLastOfTwo", {"--value", "a", "--value", ""}, ""}),
    [](const auto& row) { return row.param.name; });

struct OperandRow {
    std::string name;
    Words arguments;
    Words operands;
};
void PrintTo(const OperandRow& row, std::ostream* out) {
    *out << row.name;
}

class OptionParserOperand : public testing::TestWithParam<OperandRow> {};

TEST_P(OptionParserOperand, KeepsItsTextAndOrder) {
    const Seen seen = Parse(GetParam().arguments);
    EXPECT_EQ(seen.parsed.fault, "");
    EXPECT_EQ(seen.parsed.operands, GetParam().operands);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, OptionParserOperand,
    testing::Values(OperandRow{"One", {"a"}, {"a"}}, OperandRow{"Several", {"b", "a", "b"}, {"b", "a", "b"}},
                    OperandRow{"AroundOptions", {"a", "--flag", "b", "--value", "x", "c"}, {"a", "b", "c"}},
                    OperandRow{"NegativeYear", {"-44-03-15", "--flag"}, {"-44-03-15"}},
                    OperandRow{"LoneHyphen", {"a", "-", "b"}, {"a", "-", "b"}},
                    OperandRow{
                        "BehindTheMark", {"--", "--flag", "--value", "-x"}, {"--flag", "--value", "-x"}},
                    OperandRow{"SecondMark", {"a", "--", "--", "b"}, {"a", "--", "b"}},
                    OperandRow{"EqualsSignBehindTheMark", {"--", "--value="}, {"--value="}},
                    OperandRow{"Brackets", {"[2024-01-01]", "[a,b]"}, {"[2024-01-01]", "[a,b]"}},
                    OperandRow{"Empty", {""}, {""}}, OperandRow{"PlusSigns", {"++", "+1"}, {"++", "+1"}},
                    OperandRow{"Slash", {"/help"}, {"/help"}}),
    [](const auto& row) { return row.param.name; });

struct FaultRow {
    std::string name;
    Words arguments;
    std::string fault;
};
void PrintTo(const FaultRow& row, std::ostream* out) {
    *out << row.name;
}

class OptionParserFault : public testing::TestWithParam<FaultRow> {};

TEST_P(OptionParserFault, IsNamed) {
    EXPECT_EQ(Parse(GetParam().arguments).parsed.fault, GetParam().fault);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, OptionParserFault,
    testing::Values(FaultRow{"UnknownLong", {"--flg"}, "unknown option '--flg'"},
                    FaultRow{"UnknownLongWithValue", {"--flg=1"}, "unknown option '--flg=1'"},
                    FaultRow{"UnknownShort", {"-x"}, "unknown option '-x'"},
                    FaultRow{"Abbreviation", {"--val", "x"}, "unknown option '--val'"},
                    FaultRow{"SingleHyphen", {"-value", "x"}, "unknown option '-value'"},
                    FaultRow{"WrongCase", {"--FLAG"}, "unknown option '--FLAG'"},
                    FaultRow{"MissingValue", {"--value"}, "--value needs a value"},
                    FaultRow{"ValueForAFlag", {"--flag=maybe"}, "--flag takes no value"},
                    FaultRow{"FalseForAFlag", {"--flag=false"}, "--flag takes no value"},
                    FaultRow{"ValueForHelp", {"--help=convert"}, "--help takes no value"},
                    FaultRow{"ValueForVersion", {"--version=2"}, "--version takes no value"},
                    FaultRow{"RefusedValue", {"--odd", "ab"}, "--odd must be odd"},
                    FaultRow{"ControlCharacters", {"--\x1B[2J"}, "unknown option '--\\x1B[2J'"}),
    [](const auto& row) { return row.param.name; });

TEST(OptionParser, CallsAnActionOnceHoweverOftenItsFlagStands) {
    EXPECT_EQ(Parse({"--flag"}).flags, 1);
    EXPECT_EQ(Parse({"--flag", "--flag"}).flags, 1);
}

TEST(OptionParser, TellsThatHelpOrTheVersionIsWanted) {
    EXPECT_TRUE(Parse({"--help"}).parsed.helpIsWanted);
    EXPECT_TRUE(Parse({"a", "-h"}).parsed.helpIsWanted);
    EXPECT_TRUE(Parse({"--version"}).parsed.versionIsWanted);
    EXPECT_FALSE(Parse({"--", "--help"}).parsed.helpIsWanted);
    EXPECT_FALSE(Parse({"--value", "--help"}).parsed.helpIsWanted);
}

}  // namespace
}  // namespace calvoro
