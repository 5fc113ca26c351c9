#pragma once

// How the windows' controls are made: found by name, reached by keyboard.

#include <QLatin1String>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>

namespace calvoro {

template <typename Control>
Control* Named(Control* control, const char* name) {
    control->setObjectName(QLatin1String(name));
    return control;
}

/// A push button that Enter presses when it has the focus, as the blank does.
inline QPushButton* NewButton(const char* name, QWidget* parent) {
    auto* button = Named(new QPushButton(parent), name);
    button->setAutoDefault(true);
    return button;
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
