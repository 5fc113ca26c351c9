#pragma once

// Option buttons of which one is chosen. Tells every choice that the program did not make itself, however
// it came about: mouse, keyboard, assistive tool. A click on the option that is chosen already is none.

#include <QButtonGroup>
#include <QRadioButton>
#include <QStringList>

#include "mainwindow/HandButton.h"

namespace calvoro {

class OptionButton : public HandButton<QRadioButton> {
    Q_OBJECT

public:
    using HandButton<QRadioButton>::HandButton;

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

class OptionGroup : public QButtonGroup {
    Q_OBJECT

public:
    /// Makes a button for each name, unlabelled, in the frame that will own them and this group. The focus
    /// that is given to the frame goes to the chosen option.
    OptionGroup(QWidget* frame, const QStringList& names);

    /// Index of the chosen option, kNoOption at first.
    int Chosen() const { return checkedId(); }

    /// Chooses an option, or none with kNoOption, without telling anybody.
    void Choose(int index);

    QAbstractButton& Option(int index) const { return *button(index); }

Q_SIGNALS:
    /// byHand  false for the arrow keys and for assistive tools: the focus is then on the chosen option when
    ///         everybody has been told, and should not be moved by them
    void ChosenByUser(int index, bool byHand);

private:
    void OnToggled(int index, bool chosen);

    bool choosing_ = false;  // by the program
};

}  // namespace calvoro
