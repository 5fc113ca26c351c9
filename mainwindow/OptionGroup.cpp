#include "mainwindow/OptionGroup.h"

#include <QKeyEvent>
#include <QScopedValueRollback>

#include "mainwindow/ControlTables.h"

namespace calvoro {
namespace {

// -1 to the option before, 1 to the one behind, 0 for any other key: whether the options stand side by side
// or one above the other, a person who does not see them need not know.
int StepOf(int key) {
    switch (key) {
        case Qt::Key_Up:
        case Qt::Key_Left: return -1;
        case Qt::Key_Down:
        case Qt::Key_Right: return 1;
        default: return 0;
    }
}

}  // namespace

static_assert(kNoOption == -1, "what QButtonGroup::checkedId says when nothing is chosen");

void OptionButton::keyPressEvent(QKeyEvent* event) {
    const int step = StepOf(event->key());
    if (step == 0 || group() == nullptr) {
        HandButton::keyPressEvent(event);
        return;
    }
    if (QAbstractButton* other = group()->button(group()->id(this) + step)) other->click();
    // The choice may have been sent back.
    if (QAbstractButton* chosen = group()->checkedButton()) chosen->setFocus(Qt::TabFocusReason);
}

OptionGroup::OptionGroup(QWidget* frame, const QStringList& names) : QButtonGroup(frame) {
    for (const QString& name : names) {
        auto* option = new OptionButton(frame);
        option->setObjectName(name);
        addButton(option, static_cast<int>(buttons().size()));
    }
    frame->setFocusPolicy(Qt::ClickFocus);
    frame->setFocusProxy(&Option(0));
    connect(this, &QButtonGroup::idToggled, this, &OptionGroup::OnToggled);
}

void OptionGroup::Choose(int index) {
    const QScopedValueRollback<bool> choosing(choosing_, true);
    if (index != kNoOption) {
        button(index)->setChecked(true);
    } else if (QAbstractButton* checked = checkedButton()) {
        // An exclusive group refuses to be left without a choice.
        setExclusive(false);
        checked->setChecked(false);
        setExclusive(true);
    }
}

void OptionGroup::OnToggled(int index, bool chosen) {
    if (!chosen) return;
    static_cast<QWidget*>(parent())->setFocusProxy(&Option(index));
    if (choosing_) return;
    const bool byHand = static_cast<const OptionButton&>(Option(index)).UnderHand();
    Q_EMIT ChosenByUser(index, byHand);
    if (!byHand) checkedButton()->setFocus();
}

}  // namespace calvoro
