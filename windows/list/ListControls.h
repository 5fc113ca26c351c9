#pragma once

// The controls of the list window, their arrangement and their captions. What they do is the window's.

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>

#include "text/Texts.h"
#include "windows/ScrollingPage.h"
#include "windows/list/ListModel.h"
#include "windows/list/ListTable.h"
#include "windows/list/ListWords.h"

namespace calvoro {

struct ListControls {
    /// Builds the controls into a window.
    explicit ListControls(QWidget& window);

    /// Sets captions and accessible names in the language of the interface.
    void SetCaptions(const Texts& texts);

    /// Sets what stands above the columns, and hides the one of weekdays where there are none.
    void SetHeads(ListModel& model, ListSide side, const Texts& texts);

    /// Switches controls on and off as the rows that there are want it.
    void FollowRows(const ListModel& model);

    /// Gives the columns of a table the widths that such texts take.
    void SetColumnWidths(const ListModel& model);

    /// Shows how far a slow job is, or that none is going on.
    /// done  [0, 1]
    void ShowProgress(double done);
    void HideProgress();

    QLabel* lblState;
    QGroupBox* fraLinesAre;
    QRadioButton* optLinesAreFirst;
    QRadioButton* optLinesAreSecond;
    QPushButton* cmdPaste;
    QPushButton* cmdOpen;
    ListTable* tblList;
    QPushButton* cmdEarlier;
    QPushButton* cmdLater;
    QProgressBar* prgJob;
    QPushButton* cmdStop;
    QCheckBox* chkRefusalsOnly;
    QCheckBox* chkByDay;
    QPushButton* cmdNextRefusal;
    QCheckBox* chkWithGiven;
    QPushButton* cmdCopySelected;
    QPushButton* cmdCopyAll;
    QPushButton* cmdSaveAs;
    QPushButton* cmdClose;

private:
    void Arrange();

    ScrollingPage* page_;
};

}  // namespace calvoro
