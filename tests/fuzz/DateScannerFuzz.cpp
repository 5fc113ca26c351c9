// Arbitrary bytes as running text: what is found does not depend on how the text comes in pieces, little of
// it is kept, and every date that is found is one that the strict reader takes.

#include <algorithm>
#include <string>

#include "quicktext/StrictText.h"
#include "tests/cli/scan/ScanInPieces.h"
#include "tests/fuzz/FuzzInput.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace calvoro;
    using fuzz::Require;
    fuzz::FuzzInput input(data, size);
    constexpr CalendarNumber kNotations[] = {CalendarNumber::CE, CalendarNumber::JC, CalendarNumber::ISO,
                                             CalendarNumber::ORD};
    const CalendarNumber notation = kNotations[input.Choose(4)];
    const std::size_t piece = 1 + input.Choose(64);
    const std::string text = input.Text();
    const DateScanner scanner(notation);
    Require(ScanInPieces(scanner, text, piece) == ScanInPieces(scanner, text, text.size() + 1));

    std::size_t at = 0;
    std::size_t behind = 0;
    while (const auto date = scanner.Next(text, true, at)) {
        Require(at >= behind && date->length > 0 && date->length <= text.size() - at);
        Require(ReadStrictText(notation, TextOptions(), text.substr(at, date->length)) ==
                ValidDay(date->jdn));
        at += date->length;
        behind = at;
    }
    Require(at == text.size());
    return 0;
}
