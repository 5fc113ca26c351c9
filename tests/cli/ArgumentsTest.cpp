#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <random>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "cli/Choices.h"
#include "cli/arguments/AddArguments.h"
#include "cli/arguments/BetweenArguments.h"
#include "cli/arguments/ComputeArguments.h"
#include "cli/arguments/ConvertArguments.h"
#include "cli/arguments/MonthArguments.h"
#include "cli/arguments/TodayArguments.h"
#include "datetext/AnyNotation.h"
#include "tests/cli/ReadArguments.h"

namespace calvoro {
namespace {

struct CommandRow {
    std::string name;
    std::function<ReadOutcome(const Words& words)> read;
};
void PrintTo(const CommandRow& row, std::ostream* out) {
    *out << row.name;
}

template <typename Arguments>
ReadOutcome Read(const Words& words) {
    Arguments arguments;
    return ReadArguments(words, arguments);
}

// With what the command cannot do without.
ReadOutcome ReadConvert(Words words) {
    words.insert(words.begin(), {"--from=CE", "--to=CE"});
    return Read<ConvertArguments>(words);
}

class HelpOf : public testing::TestWithParam<CommandRow> {};

/// Every "--name" of a text.
std::set<std::string> OptionsIn(std::string_view text) {
    std::set<std::string> options;
    for (std::size_t at = text.find("--"); at != std::string_view::npos; at = text.find("--", at + 2)) {
        const std::size_t end = text.find_first_not_of("abcdefghijklmnopqrstuvwxyz-", at);
        if (end > at + 2) options.insert(std::string(text.substr(at, end - at)));
    }
    return options;
}

TEST_P(HelpOf, NamesOptionsThatExist) {
    const std::set<std::string> options = OptionsIn(GetParam().read({"--help"}).answer);
    EXPECT_GE(options.size(), 6u);
    for (const std::string& option : options) {
        EXPECT_EQ(GetParam().read({option + "=value"}).fault.find(option + "=value"), std::string::npos)
            << option;
    }
    EXPECT_EQ(GetParam().read({"--nosuch=value"}).fault,
              "The following argument was not expected: --nosuch=value");
}

TEST_P(HelpOf, FitsATerminal) {
    const std::string help = GetParam().read({"--help"}).answer;
    std::string_view rest = help;
    int lines = 0;
    while (!rest.empty()) {
        const std::size_t end = rest.find('\n');
        ASSERT_NE(end, std::string_view::npos) << "the last line has no end";
        EXPECT_LE(end, 95u) << rest.substr(0, end);
        rest.remove_prefix(end + 1);
        ++lines;
    }
    EXPECT_GT(lines, 10);
}

TEST_P(HelpOf, TellsExitStatusesAndAnExample) {
    const std::string help = GetParam().read({"--help"}).answer;
    const std::size_t status = help.find("\nExit status: 0 ");
    ASSERT_NE(status, std::string::npos);
    EXPECT_NE(help.find("; 1 ", status), std::string::npos);
    EXPECT_NE(help.find("2 the", status), std::string::npos);
    EXPECT_NE(help.find("\nExamples:\n  ", status), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(
    Commands, HelpOf,
    testing::Values(CommandRow{"Convert", ReadConvert}, CommandRow{"Between", Read<BetweenArguments>},
                    CommandRow{"Add", Read<AddArguments>}, CommandRow{"Compute", Read<ComputeArguments>},
                    CommandRow{"Month", Read<MonthArguments>}, CommandRow{"Today", Read<TodayArguments>}),
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
        for (const ReadOutcome& outcome : {Read<ConvertArguments>(words), Read<ComputeArguments>(words),
                                           Read<MonthArguments>(words), Read<TodayArguments>(words)}) {
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
