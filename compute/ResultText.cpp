#include "compute/ResultText.h"

#include "calendar/Weekday.h"
#include "compute/ComputeMessages.h"
#include "compute/DateBox.h"
#include "compute/DifferenceBreakdown.h"
#include "compute/UnitWords.h"
#include "datetext/AnyNotation.h"
#include "datetext/Thousands.h"
#include "text/DateNames.h"

namespace calvoro {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

// The day in every notation but the one that is shown already, each on a line of its own. Here ORD has its
// tag, too.
void AppendOtherNotations(std::int32_t jdn, CalendarNumber shown, ComputeWindow& window,
                          const TextOptions& options) {
    for (const Notation& notation : Notations()) {
        if (notation.number == shown || !CanWriteDate(notation.number, jdn)) continue;
        std::string line(kLineEnd);
        line.append(notation.write(jdn, options)).append(" ").append(notation.tag);
        window.AppendOutput(line);
    }
}

std::string DifferencePhrase(InputBox given, std::string_view difference, const ComputeState& state) {
    const Texts& texts = state.options.texts;
    const bool isNegative = difference.starts_with('-');
    if (isNegative) difference.remove_prefix(1);
    // Deliberate: after a second date the difference lies before it, so the words are swapped.
    const bool isPlus = isNegative == (given == InputBox::SecondDate);
    const auto unitWord = state.options.unit == DifferenceUnit::Months ? MonthOrMonths : DayOrDays;

    std::string phrase = " ";
    phrase.append(texts.Shown(isPlus ? TextId::Plus : TextId::Minus)).append(" ").append(difference);
    return phrase.append(" ").append(unitWord(state.DateDifference, texts));
}

void DisplayDate(const DateBox& box, ComputeWindow& window, const ComputeState& state) {
    const ComputeOptions& options = state.options;
    const CalendarNumber calendar = options.*box.calendar;
    const DateRecord& record = state.*box.record;

    window.AppendOutput(" = ");
    if (!CanWriteDate(calendar, record.jdn)) {
        // Deliberate: the line keeps its " = ".
        ShowComputeMessage(ComputeMessage::ResultOutOfRange, options.texts, window);
        return;
    }
    std::string date = WriteDate(calendar, record.jdn, options.text);
    if (calendar != CalendarNumber::ORD) date.append(" ").append(NotationOf(calendar).tag);
    window.AppendOutput(date);

    if (!options.verbose) return;
    AppendWeekdayName(record, window, options.texts);
    if (options.unit == DifferenceUnit::Days && state.DateDifference != 0) {
        AppendCountingNotes(window, options);
    }
    if (state.SingleDateSameCalendar) AppendOtherNotations(record.jdn, calendar, window, options.text);
}

}  // namespace

void AppendGivenDate(InputBox given, std::string_view difference, ComputeWindow& window,
                     const ComputeState& state) {
    window.AppendOutput(given == InputBox::FirstDate ? state.FirstDateEcho : state.SecondDateEcho);
    if (!difference.empty()) window.AppendOutput(DifferencePhrase(given, difference, state));
}

void DisplayFirstDate(ComputeWindow& window, const ComputeState& state) {
    DisplayDate(kFirstDateBox, window, state);
}

void DisplaySecondDate(ComputeWindow& window, const ComputeState& state) {
    DisplayDate(kSecondDateBox, window, state);
}

bool FindAndDisplay(InputBox given, std::string_view difference,
                    bool (*find)(ComputeWindow& window, ComputeState& state), ComputeWindow& window,
                    ComputeState& state) {
    if (!find(window, state)) return false;
    AppendGivenDate(given, difference, window, state);
    (given == InputBox::FirstDate ? DisplaySecondDate : DisplayFirstDate)(window, state);
    return true;
}

void DisplayDateDiff(ComputeWindow& window, const ComputeState& state) {
    const ComputeOptions& options = state.options;
    const std::string_view to = options.texts.InterfaceLanguage == LanguageGerman ? " bis " : " to ";
    std::string line = state.FirstDateEcho;
    line.append(to).append(state.SecondDateEcho).append(" = ");
    line.append(ThousandsText(state.DateDifference, options.text.thousandsSeparator)).append(" ");
    line.append(DayOrDays(state.DateDifference, options.texts));
    window.AppendOutput(line);

    if (options.verbose) AppendCountingNotes(window, options);
    const std::string breakdown = DifferenceBreakdown(state);
    if (!breakdown.empty()) window.AppendOutput(breakdown);
}

void AppendWeekdayName(const DateRecord& record, ComputeWindow& window, const Texts& texts) {
    const auto weekday = static_cast<std::size_t>(euro_day_of_week(record.jdn));
    window.AppendOutput(std::string(", ").append(ShownWeekdayNames(texts.InterfaceLanguage)[weekday]));
}

void AppendCountingNotes(ComputeWindow& window, const ComputeOptions& options) {
    std::string notes = ", ";
    notes += options.texts.Shown(options.includeFirstDate ? TextId::IncludingFirstDate
                                                          : TextId::ExcludingFirstDate);
    if (!options.countWeekendDays) {
        notes.append(", ").append(options.texts.Shown(TextId::NotCountingWeekendDays));
    }
    window.AppendOutput(notes);
}

void FinishLine(ComputeWindow& window) {
    window.AppendOutput(kLineEnd);
    window.ScrollOutputToEnd();
}

}  // namespace calvoro
