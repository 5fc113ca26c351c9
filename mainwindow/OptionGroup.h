#pragma once

// Option buttons of which one is chosen. Tells what the user chose, and nothing else: neither a choice
// made by the program nor a click on the option that is chosen already.

#include <QButtonGroup>
#include <QStringList>

class QRadioButton;

namespace calvoro {

class OptionGroup : public QButtonGroup {
    Q_OBJECT

public:
    /// Makes a button for each name, unlabelled, in the frame that will own them and this group.
    OptionGroup(QWidget* frame, const QStringList& names);

    /// Index of the chosen option, kNoOption at first.
    int Chosen() const { return chosen_; }

    /// Chooses an option, or none with kNoOption, without telling anybody.
    void Choose(int index);

    QAbstractButton& Option(int index) const { return *button(index); }

Q_SIGNALS:
    void ChosenByUser(int index);

private:
    int chosen_;
};

}  // namespace calvoro
