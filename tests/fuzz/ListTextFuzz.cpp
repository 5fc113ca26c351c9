// Any bytes as the text of a list: every byte belongs to one row or to a line end, rows are the same in
// whatever order they are asked for, and what is written as comma-separated values reads back as the same
// fields.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "datetext/Utf8.h"
#include "tests/fuzz/FuzzInput.h"
#include "windows/list/lines/LinesBuilder.h"
#include "windows/list/lines/ListOutput.h"

namespace {

using namespace calvoro;
using fuzz::FuzzInput;
using fuzz::Require;

/// Takes the date as it is for its reading.
class EchoRows final : public ListRowMaker {
public:
    void Make(std::string_view date, ListRow& row) override {
        row = ListRow();
        row.reading = date;
    }
    bool HasWeekdays() const override { return false; }
    std::string ResultCaption() const override { return {}; }
};

std::shared_ptr<const ListLines> LinesOf(const std::string& text, bool isCsv) {
    LinesBuilder builder(text, isCsv);
    while (!builder.Step()) {
    }
    if (builder.Refusal().fault != ListFault::None) return nullptr;
    return builder.Take();
}

std::vector<std::string> Fields(std::string_view line, const ListLines& lines) {
    std::vector<std::string_view> fields;
    SplitFields(line, lines.Shape(), lines.Columns(), fields);
    fields.resize(lines.Columns());
    std::vector<std::string> texts;
    std::string scratch;
    for (const std::string_view field : fields) texts.emplace_back(FieldText(field, lines.Shape(), scratch));
    return texts;
}

// The rows lie one behind the other in the text, with nothing but line ends between them.
void CheckThatRowsAreTheText(const ListLines& lines, std::string_view text) {
    std::size_t at = text.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0;
    ListLines::Cursor cursor;
    for (std::uint32_t row = 0; row < lines.Count(); ++row) {
        const std::string_view line = lines.Line(row, cursor);
        Require(text.substr(at, line.size()) == line);
        at += line.size();
        if (text.substr(at, 2) == "\r\n") ++at;
        Require(at == text.size() || text[at] == '\n');
        ++at;
        ListLines::Cursor fresh;
        Require(lines.Line(row, fresh) == line);
    }
    Require(at >= text.size());
}

void CheckThatCsvComesBack(const std::shared_ptr<const ListLines>& lines) {
    const ListSheet sheet{lines, 0, std::make_shared<EchoRows>()};
    ListToText output(sheet, {{}, {{0, lines->Count() - 1}}}, {.csv = true, .withGiven = true},
                      1'000'000'000);
    while (!output.Step()) {
    }
    // A second mark of the byte order would be taken for the first.
    if (output.Text().starts_with(kByteOrderMark)) return;
    // Longer rows than are taken may come of quotes that are doubled.
    const auto again = LinesOf(output.Text(), true);
    if (!again) return;
    // A delimiter other than the comma may be guessed when the fields of the first row hold more of it.
    if (again->Shape().delimiter != ',') return;
    Require(again->Count() == lines->Count());
    ListLines::Cursor one;
    ListLines::Cursor other;
    for (std::uint32_t row = 0; row < lines->Count(); ++row) {
        std::vector<std::string> expected = Fields(lines->Line(row, one), *lines);
        const std::vector<std::string> found = Fields(again->Line(row, other), *again);
        if (again->Columns() < expected.size() + 3) return;  // more columns than are counted
        std::string scratch;
        expected.emplace_back(
            FieldText(FieldAt(sheet.Line(row), lines->Shape(), 0), lines->Shape(), scratch));
        expected.resize(found.size());
        Require(found == expected);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzInput input(data, size);
    const bool isCsv = input.Choose(2) == 1;
    const std::string text = input.Text();
    const auto lines = LinesOf(text, isCsv);
    if (!lines) return 0;
    Require(IsUtf8(text));
    CheckThatRowsAreTheText(*lines, text);
    CheckThatCsvComesBack(lines);
    return 0;
}
