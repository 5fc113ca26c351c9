#pragma once

// The small dialog that asks which of three filled boxes to give up.

#include <QDialog>
#include <optional>

#include "compute/ComputeWindow.h"
#include "text/Texts.h"

class QLabel;
class QPushButton;
class QRadioButton;

namespace calvoro {

class frmClearOneTextBox : public QDialog {
    Q_OBJECT

public:
    /// texts  must outlive the dialog
    frmClearOneTextBox(QWidget& mainWindow, const Texts& texts);

    /// Shows the dialog until the user has answered. It comes up with the answer of the last time, or with
    /// the difference box after a cancel.
    /// returns  the box to empty; nothing for a cancel
    std::optional<InputBox> Ask();

    /// Closing the dialog from its frame, or with Esc, cancels.
    void reject() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void SetCaptions();
    void WrapMessageWhereItMust();
    void Place();

    QWidget& mainWindow_;
    const Texts& texts_;
    QLabel* lblMessage;
    QRadioButton* optClearFirstDate;
    QRadioButton* optClearDateDiff;
    QRadioButton* optClearSecondDate;
    QRadioButton* optCancel;
    QPushButton* cmdContinue;
};

}  // namespace calvoro
