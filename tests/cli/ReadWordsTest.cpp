#include "cli/arguments/ReadWords.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "cli/arguments/ConvertArguments.h"
#include "cli/arguments/OptionKinds.h"
#include "tests/cli/ReadArguments.h"

namespace calvoro {
namespace {

struct Seen {
    std::string value = "unset";
    std::string odd;
    bool flag = false;
    bool on = true;
    ReadOutcome outcome;
};

Seen See(const Words& words) {
    Seen seen;
    CLI::App command("", "command");
    BeginCommand(command, "[OPTIONS]", "The end.");
    command.add_option("--value", seen.value);
    command.add_flag("--flag", seen.flag);
    command.add_flag("!--off", seen.on);
    const auto takeOdd = [](const std::string& text, std::string& odd) {
        odd = text;
        return text.size() % 2 == 1 ? std::string() : std::string("must be odd");
    };
    AddValue(command, "--odd", seen.odd, takeOdd, "");
    seen.outcome = ReadWords(command, words);
    return seen;
}

TEST(ReadWords, ReadsNothingAsNothing) {
    const Seen seen = See({});
    EXPECT_TRUE(seen.outcome.Runs());
    EXPECT_EQ(seen.value, "unset");
    EXPECT_FALSE(seen.flag);
    EXPECT_TRUE(seen.on);
}

struct ValueRow {
    std::string name;
    Words words;
    std::string value;
};
void PrintTo(const ValueRow& row, std::ostream* out) {
    *out << row.name;
}

class OptionValue : public testing::TestWithParam<ValueRow> {};

TEST_P(OptionValue, IsTakenAsItStands) {
    const Seen seen = See(GetParam().words);
    EXPECT_EQ(seen.outcome.fault, "");
    EXPECT_EQ(seen.value, GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, OptionValue,
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

struct DateRow {
    std::string name;
    Words words;
    Words dates;
};
void PrintTo(const DateRow& row, std::ostream* out) {
    *out << row.name;
}

class Date : public testing::TestWithParam<DateRow> {};

TEST_P(Date, KeepsItsTextAndOrder) {
    Words words = {"--from", "CE", "--to=ISO"};
    words.insert(words.end(), GetParam().words.begin(), GetParam().words.end());
    ConvertArguments arguments;
    EXPECT_EQ(ReadArguments(words, arguments).fault, "");
    EXPECT_EQ(arguments.dates, GetParam().dates);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Date,
    testing::Values(DateRow{"One", {"a"}, {"a"}}, DateRow{"Several", {"b", "a", "b"}, {"b", "a", "b"}},
                    DateRow{
                        "AroundOptions", {"a", "--tag", "b", "--date-separator", "/", "c"}, {"a", "b", "c"}},
                    DateRow{"NegativeYear", {"-44-03-15", "--tag"}, {"-44-03-15"}},
                    DateRow{"LoneHyphen", {"a", "-", "b"}, {"a", "-", "b"}},
                    DateRow{"BehindTheMark", {"--", "--tag", "--to", "-x"}, {"--tag", "--to", "-x"}},
                    DateRow{"SecondMark", {"a", "--", "--", "b"}, {"a", "--", "b"}},
                    DateRow{"EqualsSignBehindTheMark", {"--", "--to="}, {"--to="}},
                    DateRow{"Brackets", {"[2024-01-01]", "[a,b]"}, {"[2024-01-01]", "[a,b]"}},
                    DateRow{"Empty", {""}, {""}}, DateRow{"PlusSigns", {"++", "+1"}, {"++", "+1"}},
                    DateRow{"Slash", {"/help"}, {"/help"}}),
    [](const auto& row) { return row.param.name; });

struct FaultRow {
    std::string name;
    Words words;
    std::string fault;
};
void PrintTo(const FaultRow& row, std::ostream* out) {
    *out << row.name;
}

class Fault : public testing::TestWithParam<FaultRow> {};

TEST_P(Fault, IsNamed) {
    EXPECT_EQ(See(GetParam().words).outcome.fault, GetParam().fault);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Fault,
    testing::Values(
        FaultRow{"UnknownLong", {"--flg"}, "The following argument was not expected: --flg"},
        FaultRow{"UnknownLongWithValue", {"--flg=1"}, "The following argument was not expected: --flg=1"},
        FaultRow{"UnknownShort", {"-x"}, "The following argument was not expected: -x"},
        FaultRow{"Abbreviation", {"--val", "x"}, "The following arguments were not expected: x --val"},
        FaultRow{"WrongCase", {"--FLAG"}, "The following argument was not expected: --FLAG"},
        FaultRow{"MissingValue", {"--value"}, "--value: 1 required TEXT missing"},
        FaultRow{"ValueForAFlag", {"--flag=maybe"}, "Could not convert: --flag = maybe"},
        FaultRow{"RefusedValue", {"--odd", "ab"}, "--odd: must be odd"},
        FaultRow{"ControlCharacters", {"--\x1B[2J"}, "The following argument was not expected: --\\x1B[2J"}),
    [](const auto& row) { return row.param.name; });

TEST(Flag, CountsOnceHoweverOftenItStands) {
    EXPECT_TRUE(See({"--flag"}).flag);
    EXPECT_TRUE(See({"--flag", "--flag"}).flag);
    EXPECT_FALSE(See({"--off"}).on);
    EXPECT_FALSE(See({"--off", "--off"}).on);
}

TEST(Flag, CanBeTakenBack) {
    EXPECT_FALSE(See({"--flag", "--flag=false"}).flag);
    EXPECT_TRUE(See({"--off", "--off=false"}).on);
}

TEST(ReadWords, AnswersWithHelpAndVersion) {
    EXPECT_TRUE(See({"--help"}).outcome.answer.ends_with("\nThe end.\n"));
    EXPECT_EQ(See({"-h"}).outcome.answer, See({"--help"}).outcome.answer);
    EXPECT_TRUE(See({"--version"}).outcome.answer.starts_with("calvoro-cli "));
    EXPECT_TRUE(See({"--value", "--help"}).outcome.Runs());
}

}  // namespace
}  // namespace calvoro
