// Arbitrary bytes as lines with two columns, of which `between` and `add` answer each: the answer does not
// depend on the pieces that the input comes in, and is what the two texts of a line alone are answered with.

#include <algorithm>
#include <memory>
#include <string>

#include "cli/ExitStatus.h"
#include "cli/arithmetic/Add.h"
#include "cli/arithmetic/Between.h"
#include "cli/arithmetic/PairFilter.h"
#include "datetext/AnyNotation.h"
#include "datetext/Utf8.h"
#include "tests/fuzz/CommandRun.h"
#include "tests/fuzz/FuzzInput.h"
#include "tests/fuzz/PlainRecords.h"

namespace {

using namespace calvoro;
using fuzz::Require;

/// What one of the two commands is asked to do.
struct Task {
    AddOptions add;
    BetweenOptions between;
    PairSource source;
    bool adds = false;

    std::unique_ptr<PairWork> Work() const {
        if (adds) return std::make_unique<Add>(add);
        return std::make_unique<Between>(between);
    }
};

ConvertOptions ChooseDate(fuzz::FuzzInput& input, char delimiter, bool csv) {
    ConvertOptions options;
    options.text.dateFormat = input.ChooseDateFormat();
    options.text.dateSeparator = input.ChooseDateSeparator();
    options.text.thousandsSeparator = input.ChooseThousandsSeparator();
    options.text.digitGrouping.clear();
    options.from = Notations()[input.Choose(7)].number;
    options.reading = static_cast<Reading>(input.Choose(3));
    options.targets = {Notations()[input.Choose(7)].number};
    options.delimiter = delimiter;
    options.csv = csv;
    return options;
}

Task ChooseTask(fuzz::FuzzInput& input) {
    Task task;
    ColumnOptions& columns = task.source.columns;
    columns.delimiter = "\t,;|-0 "[input.Choose(7)];
    columns.csv = input.Choose(2) == 1;
    columns.append = input.Choose(2) == 1;
    columns.fields = input.Choose(2) == 0 ? std::vector<std::size_t>{0, 1}
                                          : std::vector<std::size_t>{input.Choose(3), input.Choose(3)};
    task.adds = input.Choose(2) == 1;
    task.between.first = ChooseDate(input, columns.delimiter, columns.csv);
    task.between.second = task.between.first;
    task.between.second.from = Notations()[input.Choose(7)].number;
    task.between.includeFirstDate = input.Choose(2) == 1;
    task.between.weekdaysOnly = input.Choose(2) == 1;
    task.between.breakdown = input.Choose(2) == 1;
    task.between.delimiter = columns.delimiter;
    task.add.dates = task.between.first;
    task.add.unit = input.Choose(2) == 0 ? DifferenceUnit::Days : DifferenceUnit::Months;
    // Months are counted whole.
    if (task.add.unit == DifferenceUnit::Days) {
        task.add.includeFirstDate = task.between.includeFirstDate;
        task.add.weekdaysOnly = task.between.weekdaysOnly;
    }
    task.add.delimiter = columns.delimiter;
    return task;
}

void CheckLines(const Task& task, std::string_view text, const fuzz::CommandResult& found) {
    const ColumnOptions& columns = task.source.columns;
    const std::unique_ptr<PairWork> work = task.Work();
    const bool hasMark = text.starts_with(kByteOrderMark);
    if (hasMark) text.remove_prefix(kByteOrderMark.size());
    std::string expected(hasMark && columns.append ? kByteOrderMark : std::string_view());
    std::ptrdiff_t refusals = 0;
    for (const fuzz::PlainRecord& record : fuzz::PlainRecords(text, columns.delimiter, columns.csv)) {
        if (std::max(columns.fields[0], columns.fields[1]) >= record.raw.size()) {
            ++refusals;
        } else {
            std::string answer(work->Room(), '\0');
            PairRefusal refusal;
            const std::string first = record.Text(columns.fields[0], columns.csv);
            const std::string second = record.Text(columns.fields[1], columns.csv);
            const char* const end = work->Answer(first, second, answer.data(), refusal);
            answer.resize(static_cast<std::size_t>(end - answer.data()));
            Require(refusal.reason.empty() != answer.empty());
            if (!refusal.reason.empty()) {
                ++refusals;
                answer = work->EmptyAnswer();
            }
            if (columns.append) expected += record.text + columns.delimiter;
            expected += answer;
        }
        expected += columns.append ? record.end : "\n";
    }
    Require(found.output == expected);
    Require(std::count(found.messages.begin(), found.messages.end(), '\n') == refusals);
    Require(found.status == (refusals == 0 ? kExitAllGood : kExitRefused));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::FuzzInput input(data, size);
    const Task task = ChooseTask(input);
    const std::size_t piece = 1 + input.Choose(256);
    const std::string text = input.Text();
    const auto answer = [&task] { return AnswerPairs(task.source, *task.Work()); };
    const fuzz::CommandResult found = fuzz::RunCommand(text, 0, answer);
    Require(fuzz::RunCommand(text, piece, answer) == found);
    CheckLines(task, text, found);
    return 0;
}
