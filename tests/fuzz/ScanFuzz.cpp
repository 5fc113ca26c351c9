// Arbitrary bytes as running text whose dates are converted: the answer does not depend on the pieces that
// the input comes in, every date that stands alone is converted or told, and every other byte is as it was.

#include <algorithm>
#include <string>

#include "cli/ConvertCommand.h"
#include "cli/ExitStatus.h"
#include "cli/scan/DateScanner.h"
#include "datetext/AnyNotation.h"
#include "tests/fuzz/CommandRun.h"
#include "tests/fuzz/FuzzInput.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace calvoro;
    using fuzz::Require;
    fuzz::FuzzInput input(data, size);
    constexpr CalendarNumber kNotations[] = {CalendarNumber::CE, CalendarNumber::JC, CalendarNumber::ISO,
                                             CalendarNumber::ORD};
    ConvertArguments arguments;
    arguments.scan = true;
    arguments.options.from = kNotations[input.Choose(4)];
    arguments.options.targets = {Notations()[input.Choose(7)].number};
    const std::size_t piece = 1 + input.Choose(256);
    const std::string text = input.Text();
    const auto scan = [&arguments] { return RunConvert(arguments); };
    const fuzz::CommandResult found = fuzz::RunCommand(text, 0, scan);
    Require(fuzz::RunCommand(text, piece, scan) == found);

    const CalendarNumber target = arguments.options.targets.front();
    const DateScanner scanner(arguments.options.from);
    std::string expected;
    std::ptrdiff_t refusals = 0;
    std::size_t at = 0;
    for (;;) {
        const std::size_t begin = at;
        const auto date = scanner.Next(text, true, at);
        expected.append(text, begin, at - begin);
        if (!date) break;
        const bool isWritten = CanWriteDate(target, date->jdn);
        refusals += isWritten ? 0 : 1;
        expected +=
            isWritten ? WriteDate(target, date->jdn, arguments.options.text) : text.substr(at, date->length);
        at += date->length;
    }
    Require(found.output == expected);
    Require(std::count(found.messages.begin(), found.messages.end(), '\n') == refusals);
    Require(found.status == (refusals == 0 ? kExitAllGood : kExitRefused));
    return 0;
}
