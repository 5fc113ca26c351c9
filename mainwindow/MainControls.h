#pragma once

// The controls of the main window, made once, each under its name. They come without captions, and in no
// place: Captions and MainLayout see to that.

#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QTimer>

#include "compute/ComputeWindow.h"
#include "mainwindow/CaptionButton.h"
#include "mainwindow/ClickableLabel.h"
#include "mainwindow/OptionGroup.h"
#include "mainwindow/OutputTextBox.h"
#include "mainwindow/SpinArrows.h"

namespace calvoro {

struct MainControls {
    /// Makes every control as a child of the window.
    explicit MainControls(QWidget* window);

    MainControls(const MainControls&) = delete;
    MainControls& operator=(const MainControls&) = delete;

    QLineEdit* Box(InputBox box) const;

    /// The calendar options of a date box.
    /// box  FirstDate or SecondDate
    OptionGroup* Calendars(InputBox box) const;

    SpinArrows* Spinner(InputBox box) const;

    // Frames first: they own the options inside them.
    QFrame* Frame3;  // calendars of the first date
    QFrame* Frame4;  // calendars of the second date
    QFrame* Frame5;  // thousands separator
    QFrame* Frame6;  // unit of the difference
    QFrame* frmDateFormat;
    QFrame* frmDateSeparator;
    QFrame* frmLanguage;

    ClickableLabel* lblTodaysDate;
    ClickableLabel* lblWeekFromToday;
    OptionGroup* languages;

    QLabel* lblFirstDate;
    QLabel* lblDateDifference;
    QLabel* lblOr;
    QLabel* lblSecondDate;
    QLineEdit* txbFirstDate;
    QLineEdit* txbDateDiff;
    QLineEdit* txbSecondDate;
    SpinArrows* VScroll0;
    SpinArrows* VScroll1;

    CaptionButton* cmdToday0;
    CaptionButton* cmdToday1;
    CaptionButton* cmdClearFirstDate;
    CaptionButton* cmdClearDateDiff;
    CaptionButton* cmdClearSecondDate;
    CaptionButton* cmdMoveSecondDateToFirst;

    QLabel* lblThisIsA0;
    QLabel* lblThisIsA1;
    OptionGroup* firstCalendars;
    OptionGroup* secondCalendars;
    OptionGroup* units;
    QCheckBox* chkIncludeFirstDate;
    QCheckBox* chkIncludeWeekends;
    CaptionButton* cmdCompute;

    QLabel* lblDateFormat;
    QLabel* lblDateSeparator;
    QLabel* lblThousandsSeparator;
    OptionGroup* dateFormats;
    OptionGroup* dateSeparators;
    OptionGroup* thousandsSeparators;
    QCheckBox* chkHyphen;
    ClickableLabel* lblHyphen;

    OutputTextBox* txbOutput;
    CaptionButton* cmdClearOutputWindow;
    CaptionButton* cmdCopyToClipboard;
    CaptionButton* cmdEnlarge;
    QCheckBox* chkVerbose;
    QCheckBox* chkSaveOutput;

    CaptionButton* cmdDisplayMonth;
    CaptionButton* cmdHelp;
    CaptionButton* cmdReset;
    CaptionButton* cmdQuit;
    ClickableLabel* lblOnlineDocumentation;
    ClickableLabel* lblVantorelSystems;

    QTimer* Clock;
};

}  // namespace calvoro
