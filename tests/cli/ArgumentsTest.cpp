#include "cli/Arguments.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <random>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "cli/Choices.h"
#include "cli/HelpTexts.h"
#include "datetext/AnyNotation.h"

namespace calvoro {
namespace {

template <typename Arguments>
std::string FaultOf(ArgumentsOutcome (*read)(const std::vector<std::string>&, Arguments&),
                    const std::string& word) {
    Arguments arguments;
    return read({word, "value"}, arguments).fault;
}

struct CommandRow {
    std::string name;
    std::string_view help;
    std::size_t options;
    std::function<std::string(const std::string& word)> faultOf;
};
void PrintTo(const CommandRow& row, std::ostream* out) {
    *out << row.name;
}

class HelpText : public testing::TestWithParam<CommandRow> {};

/// Every "--name" of a text.
std::set<std::string> OptionsIn(std::string_view text) {
    std::set<std::string> options;
    for (std::size_t at = text.find("--"); at != std::string_view::npos; at = text.find("--", at + 2)) {
        const std::size_t end = text.find_first_not_of("abcdefghijklmnopqrstuvwxyz-", at);
        if (end > at + 2) options.insert(std::string(text.substr(at, end - at)));
    }
    return options;
}

TEST_P(HelpText, NamesOptionsThatExist) {
    const std::set<std::string> options = OptionsIn(GetParam().help);
    EXPECT_EQ(options.size(), GetParam().options);
    for (const std::string& option : options) {
        EXPECT_FALSE(GetParam().faultOf(option).starts_with("unknown option")) << option;
        EXPECT_TRUE(GetParam().faultOf(option + "x").starts_with("unknown option")) << option;
    }
}

TEST_P(HelpText, FitsATerminal) {
    std::string_view rest = GetParam().help;
    int lines = 0;
    while (!rest.empty()) {
        const std::size_t end = rest.find('\n');
        ASSERT_NE(end, std::string_view::npos) << "the last line has no end";
        EXPECT_LE(end, 90u) << rest.substr(0, end);
        rest.remove_prefix(end + 1);
        ++lines;
    }
    EXPECT_GT(lines, 5);
}

INSTANTIATE_TEST_SUITE_P(
    Commands, HelpText,
    testing::Values(CommandRow{"Convert", kConvertHelp, 12,
                               [](const std::string& word) { return FaultOf(ReadConvertArguments, word); }},
                    CommandRow{"Compute", kComputeHelp, 19,
                               [](const std::string& word) { return FaultOf(ReadComputeArguments, word); }},
                    CommandRow{"Month", kMonthHelp, 7,
                               [](const std::string& word) { return FaultOf(ReadMonthArguments, word); }},
                    CommandRow{"Today", kTodayHelp, 6,
                               [](const std::string& word) { return FaultOf(ReadTodayArguments, word); }}),
    [](const auto& row) { return row.param.name; });

// Reading makes no sense of most of these, but ends well.
TEST(Arguments, OfAnyKindAreReadOrRefused) {
    const std::vector<std::string> pieces = {
        "--from", "--to",     "--input=",      "CE",      "all",       "--",
        "-",      "",         "--date-format", "=",       "--=",       "---",
        "-=",     "--help=x", "--first",       "++",      "{}",        "[]",
        "%%",     "--json",   "-h5",           "--tag=1", "--tag=yes", "-44-03",
        "-5",     "-x=",      "--1",           "\xFF",    "a=b",       "--no-hyphen=false"};
    std::mt19937 random(13);
    int read = 0;
    int refused = 0;
    for (int round = 0; round < 5000; ++round) {
        std::vector<std::string> words;
        for (std::size_t count = random() % 6; count > 0; --count)
            words.push_back(pieces[random() % pieces.size()]);
        ConvertArguments convert;
        ComputeArguments compute;
        MonthArguments month;
        TodayArguments today;
        for (const ArgumentsOutcome& outcome :
             {ReadConvertArguments(words, convert), ReadComputeArguments(words, compute),
              ReadMonthArguments(words, month), ReadTodayArguments(words, today)}) {
            read += outcome.Runs() ? 1 : 0;
            refused += outcome.fault.empty() ? 0 : 1;
        }
    }
    EXPECT_GT(read, 100);
    EXPECT_GT(refused, 5000);
}

TEST(NotationChoices, AreTheNotationsInTheirFixedOrder) {
    ASSERT_EQ(kNotationChoices.size(), Notations().size());
    for (std::size_t i = 0; i < kNotationChoices.size(); ++i) {
        EXPECT_EQ(kNotationChoices[i].name, Notations()[i].tag);
        EXPECT_EQ(kNotationChoices[i].value, Notations()[i].number);
    }
}

}  // namespace
}  // namespace calvoro
