// Arbitrary bytes as a date in any notation under any options, read strictly: the quick ways agree with the
// plain one, what is taken is what the notation's own reader takes, it is written and read again, and every
// refusal has a place in the text and words.

#include <algorithm>
#include <string>

#include "datetext/AnyNotation.h"
#include "quicktext/AutoReader.h"
#include "quicktext/FaultText.h"
#include "quicktext/QuickWriter.h"
#include "quicktext/StrictReader.h"
#include "quicktext/StrictText.h"
#include "quicktext/TextCursor.h"
#include "tests/fuzz/FuzzInput.h"

namespace {

using namespace calvoro;
using fuzz::Require;

bool IsKnownException(CalendarNumber notation, std::int32_t jdn, const std::string& text) {
    if (notation == CalendarNumber::LPW || notation == CalendarNumber::LPM) return jdn == 0;
    if (notation != CalendarNumber::ISO || text.find("W53") == std::string::npos) return false;
    return text.front() == '-' || text.starts_with("0W") || text.starts_with("0-W");
}

std::string Written(const QuickWriter& writer, std::int32_t jdn) {
    std::string text(writer.Room(), '\0');
    text.resize(static_cast<std::size_t>(writer.Write(jdn, text.data()) - text.data()));
    return text;
}

void CheckLine(const StrictReader& reader, const std::string& text, const StrictResult& result) {
    std::string block = text + "\n";
    block.resize(std::max(block.size(), StrictReader::kLineRoom), '0');
    std::int32_t jdn = 0;
    const std::size_t length = reader.ReadLine(block.data(), jdn);
    if (length == 0 || text.find('\n') != std::string::npos) return;
    Require(length == text.size() + 1);
    const bool hasCr = text.ends_with('\r');
    Require(hasCr ? reader.Read(text.substr(0, text.size() - 1)) == ValidDay(jdn) : result == ValidDay(jdn));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::FuzzInput input(data, size);
    const TextOptions options = input.ChooseOptions();
    const Notation& notation = Notations()[input.Choose(7)];
    const std::string text = input.Text();

    const StrictReader reader(notation.number, options);
    const StrictResult result = reader.Read(text);
    Require(result == ReadStrictText(notation.number, options, text));
    CheckLine(reader, text, result);
    FaultText(AutoReader(options).Read(text).result, text);

    if (result.status != ParseStatus::Valid) {
        Require(result.place <= text.size() && result.fault != ReadFault::None);
        Require(result.fault == ReadFault::TooLarge || !FaultText(result, text).empty());
        return 0;
    }
    if (text.find("BC") == std::string::npos && text.find(kMinusSign) == std::string::npos) {
        DateRecord record;
        Require(ReadDate(notation.number, text, options, record) == ParseStatus::Valid);
        Require(record.jdn == result.jdn);
    }
    for (const EraStyle era : {EraStyle::Astronomical, EraStyle::BeforeCommonEra}) {
        const QuickWriter writer(notation.number, options, era);
        const std::string written = Written(writer, result.jdn);
        if (era == EraStyle::Astronomical)
            Require(written == WriteDate(notation.number, result.jdn, options));
        // Typed years near the limit lie beyond the days that are read.
        if (notation.number == CalendarNumber::JDN || IsKnownException(notation.number, result.jdn, written))
            continue;
        const StrictResult again = reader.Read(written);
        Require(again == ValidDay(result.jdn) || again.fault == ReadFault::TooLarge);
    }
    return 0;
}
