#pragma once

// How the windows' controls are made.

#include <QLatin1String>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QSignalBlocker>

namespace calvoro {

/// Gives a control the name by which it is found.
template <typename Control>
Control* Named(Control* control, const char* name) {
    control->setObjectName(QLatin1String(name));
    return control;
}

/// Makes a text box one to read, select and copy from, with a caret to be seen.
inline void MakeReadOnly(QPlainTextEdit& box) {
    box.setReadOnly(true);
    box.setUndoRedoEnabled(false);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box.setTabChangesFocus(true);
}

/// Chooses an option without running its handler. As after a click, Tab then comes to the chosen one of the
/// group.
inline void Choose(QRadioButton& option) {
    const QSignalBlocker blocker(option);
    option.setChecked(true);
    for (auto* other : option.parent()->findChildren<QRadioButton*>(Qt::FindDirectChildrenOnly)) {
        other->setFocusPolicy(other->isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
    }
}

}  // namespace calvoro
