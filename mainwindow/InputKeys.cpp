#include "mainwindow/InputKeys.h"

#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <algorithm>
#include <array>
#include <utility>

#include "datetext/KeyFilter.h"
#include "windows/EnterKey.h"

namespace calvoro {
namespace {

// The toolkit's commands that the filters know by the code of their control character.
constexpr std::array<std::pair<QKeySequence::StandardKey, int>, 3> kFilteredCommands = {{
    {QKeySequence::Copy, 3},
    {QKeySequence::Paste, 22},
    {QKeySequence::Cut, 24},
}};
constexpr int kBackspaceCode = 8;

// Whether a line edit would insert the text of a key: also format characters, characters for private use and
// those beyond the basic plane, which come as two units.
bool TypesText(const QKeyEvent& event) {
    const QString text = event.text();
    if (text.isEmpty()) return false;
    const QChar first = text.at(0);
    if (first.category() == QChar::Other_Format) return true;
    if ((event.modifiers() & ~Qt::ShiftModifier) == Qt::ControlModifier) return false;
    return first.isPrint() || first.category() == QChar::Other_PrivateUse || first.isHighSurrogate();
}

}  // namespace

InputKeys::InputKeys(QWidget* window, const MainControls& controls, const WindowOptions& options)
    : QObject(window), controls_(controls), options_(options) {
    for (QLineEdit* box : {controls.txbFirstDate, controls.txbDateDiff, controls.txbSecondDate}) {
        box->installEventFilter(this);
    }
}

bool InputKeys::eventFilter(QObject* watched, QEvent* event) {
    const InputBox box = watched == controls_.txbFirstDate  ? InputBox::FirstDate
                         : watched == controls_.txbDateDiff ? InputBox::Difference
                                                            : InputBox::SecondDate;
    if (event->type() == QEvent::KeyPress) return HandleKey(box, *static_cast<QKeyEvent*>(event));
    if (event->type() == QEvent::InputMethod) {
        return HandleInputMethod(box, *static_cast<QInputMethodEvent*>(event));
    }
    return false;
}

// returns whether the key is swallowed
bool InputKeys::HandleKey(InputBox box, const QKeyEvent& event) {
    const int key = event.key();
    if (IsEnterKey(key)) {
        // Held down it computes once.
        if (!event.isAutoRepeat()) Q_EMIT EnterPressed();
        return true;
    }
    const bool plain = (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (plain && box != InputBox::Difference && (key == Qt::Key_Up || key == Qt::Key_Down)) {
        Q_EMIT StepPressed(box, key == Qt::Key_Up ? 1 : -1);
        return true;
    }
    for (const auto& [command, code] : kFilteredCommands) {
        if (event.matches(command)) return !MayBeTyped(box, code);
    }
    if (key == Qt::Key_Backspace) return !MayBeTyped(box, kBackspaceCode);
    return TypesText(event) && !MayBeTyped(box, event.text());
}

// An input method hands over what was typed as a finished text, which goes in as a whole or not at all.
// returns whether the event is swallowed
bool InputKeys::HandleInputMethod(InputBox box, const QInputMethodEvent& event) {
    if (MayBeTyped(box, event.commitString())) return false;
    // What is still being composed is shown all the same.
    QInputMethodEvent composing(event.preeditString(), event.attributes());
    QCoreApplication::sendEvent(controls_.Box(box), &composing);
    return true;
}

// typedBefore  characters of the same text that go in before this one
bool InputKeys::MayBeTyped(InputBox box, int key, int typedBefore) const {
    // Deliberate: a selection that the key would replace counts in the length.
    const int length = static_cast<int>(controls_.Box(box)->text().size()) + typedBefore;
    const TextOptions options = options_.ReadTextOptions();
    if (box == InputBox::Difference) {
        return NumberKeyFilter(key, length, kMaxInputLength, options.thousandsSeparator);
    }
    const bool isWeekDate = options_.GetCal(box) == CalendarNumber::ISO;
    return DateKeyFilter(key, length, kMaxInputLength, options.dateSeparator, isWeekDate);
}

bool InputKeys::MayBeTyped(InputBox box, const QString& text) const {
    int typed = 0;
    return std::all_of(text.begin(), text.end(),
                       [&](QChar character) { return MayBeTyped(box, int{character.unicode()}, typed++); });
}

}  // namespace calvoro
