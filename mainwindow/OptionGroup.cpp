#include "mainwindow/OptionGroup.h"

#include <QRadioButton>

#include "mainwindow/ControlTables.h"

namespace calvoro {

OptionGroup::OptionGroup(QWidget* frame, const QStringList& names) : QButtonGroup(frame), chosen_(kNoOption) {
    for (const QString& name : names) {
        auto* option = new QRadioButton(frame);
        option->setObjectName(name);
        addButton(option, static_cast<int>(buttons().size()));
    }
    connect(this, &QButtonGroup::idClicked, this, [this](int index) {
        if (index == chosen_) return;
        chosen_ = index;
        Q_EMIT ChosenByUser(index);
    });
}

void OptionGroup::Choose(int index) {
    chosen_ = index;
    if (index != kNoOption) {
        button(index)->setChecked(true);
    } else if (QAbstractButton* checked = checkedButton()) {
        // An exclusive group refuses to be left without a choice.
        setExclusive(false);
        checked->setChecked(false);
        setExclusive(true);
    }
}

}  // namespace calvoro
