// What the list shows beside a line is what the Compute click makes of it. One row is looked at after each
// event.

#include <QTableView>

#include "compute/ComputeClick.h"
#include "datetext/Blanks.h"
#include "tests/monkey/Invariants.h"
#include "tests/support/FakeComputeWindow.h"
#include "tests/windows/WindowTesting.h"
#include "windows/QtText.h"
#include "windows/frmList.h"

namespace calvoro::monkey {
namespace {

std::string OnOneLine(std::string text) {
    std::erase(text, '\r');
    std::replace(text.begin(), text.end(), '\n', ' ');
    return text;
}

struct Row {
    std::string reading;
    std::string result;
    std::string reason;
};

std::string Compared(const Row& row, const FakeComputeWindow& click, InputBox box, bool inMonths) {
    if (!click.messages.empty()) {
        const std::string message = OnOneLine(click.messages.front().prompt);
        // That the unit was switched is said of the click alone.
        const bool switched = inMonths && click.options.unit == DifferenceUnit::Days;
        const bool same =
            switched ? !row.reason.empty() && message.starts_with(row.reason) : row.reason == message;
        return same && row.result.empty() ? std::string()
                                          : "\"" + row.reason + "\" stands for \"" + message + "\"";
    }
    if (!row.reason.empty()) return "\"" + row.reason + "\" stands at a line that can be computed";
    if (row.reading != click.Box(box)) return "\"" + row.reading + "\" stands for \"" + click.Box(box) + "\"";
    const std::size_t equals = click.output.find(" = ");
    const bool same = equals != std::string::npos && !row.result.empty() &&
                      std::string_view(click.output).substr(equals + 3).starts_with(row.result);
    return same ? std::string() : "\"" + row.result + "\" stands for \"" + click.output + "\"";
}

}  // namespace

std::string ListRowsShown(const World& world, Dice& dice) {
    auto* const list = world.Open<frmList>();
    if (list == nullptr) return {};
    const auto& model = *static_cast<const ListModel*>(Control<QTableView>(*list, "tblList").model());
    if (model.rowCount() == 0) return {};
    const int place = dice.Below(model.rowCount());
    const std::uint32_t number = RowAt(model.Order(), model.PartBegin() + static_cast<std::uint32_t>(place));
    const ListSheet sheet = model.Sheet();
    const FieldShape& shape = sheet.lines->Shape();
    std::string scratch;
    const std::string date(FieldText(FieldAt(sheet.Line(number), shape, sheet.dateColumn), shape, scratch));
    if (TrimBlanks(date).empty()) return {};
    const auto cell = [&](ComputedColumn column) {
        return FromQt(model.index(place, model.Column(column)).data().toString());
    };
    const Row row{cell(ComputedColumn::Reading), cell(ComputedColumn::Result), cell(ComputedColumn::Reason)};

    const bool isFirst = Control<QAbstractButton>(*list, "optLinesAreFirst").isChecked();
    const Settings seen = SettingsSeen(world);
    const std::string& difference = seen.dateDiff;
    const std::string other =
        TrimBlanks(difference).empty() ? (isFirst ? seen.secondDate : seen.firstDate) : std::string();
    // A cell shows the beginning of a long text, without control characters.
    constexpr std::size_t kShort = 200;
    if (date.size() > kShort || other.size() > kShort || difference.size() > kShort) return {};
    // The language of numbered texts follows when the month window is activated.
    std::string fault;
    for (const LanguageNumber numbered : {LanguageEnglish, LanguageGerman}) {
        FakeComputeWindow click(isFirst ? date : other, difference, isFirst ? other : date);
        click.options = ComputeOptionsSeen(world);
        click.options.texts.TextLanguage = numbered;
        const bool inMonths = click.options.unit == DifferenceUnit::Months;
        ComputeState state;
        cmdCompute_Click(click, state);
        fault = Compared(row, click, isFirst ? InputBox::FirstDate : InputBox::SecondDate, inMonths);
        if (fault.empty()) return {};
    }
    return "line " + std::to_string(number + 1) + ", \"" + date + "\": " + fault;
}

}  // namespace calvoro::monkey
