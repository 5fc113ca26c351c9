#pragma once

// The controls of the main window, made once, each under its name. They come without captions, and in no
// place: Captions and MainLayout see to that.

#include <QFrame>
#include <QLabel>
#include <QTimer>

#include "compute/ComputeWindow.h"
#include "mainwindow/ClickableLabel.h"
#include "mainwindow/HandButton.h"
#include "mainwindow/InputTextBox.h"
#include "mainwindow/OptionGroup.h"
#include "mainwindow/SpinArrows.h"
#include "windows/CaptionButton.h"
#include "windows/CrLfTextBox.h"

namespace calvoro {

struct MainControls {
    /// Makes every control as a child of the window.
    explicit MainControls(QWidget* window);

    MainControls(const MainControls&) = delete;
    MainControls& operator=(const MainControls&) = delete;

    InputTextBox* Box(InputBox box) const;

    /// The calendar options of a date box.
    /// box  FirstDate or SecondDate
    OptionGroup* Calendars(InputBox box) const;

    SpinArrows* Spinner(InputBox box) const;

    /// The button that writes today into a date box.
    CaptionButton* Today(InputBox box) const;

    /// The button that empties a box.
    CaptionButton* Clear(InputBox box) const;

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
    InputTextBox* txbFirstDate;
    InputTextBox* txbDateDiff;
    InputTextBox* txbSecondDate;
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
    HandCheckBox* chkIncludeFirstDate;
    HandCheckBox* chkIncludeWeekends;
    CaptionButton* cmdCompute;

    QLabel* lblDateFormat;
    QLabel* lblDateSeparator;
    QLabel* lblThousandsSeparator;
    OptionGroup* dateFormats;
    OptionGroup* dateSeparators;
    OptionGroup* thousandsSeparators;
    HandCheckBox* chkHyphen;
    ClickableLabel* lblHyphen;

    CrLfTextBox* txbOutput;
    CaptionButton* cmdClearOutputWindow;
    CaptionButton* cmdCopyToClipboard;
    CaptionButton* cmdEnlarge;
    HandCheckBox* chkVerbose;
    HandCheckBox* chkSaveOutput;

    CaptionButton* cmdDisplayMonth;
    CaptionButton* cmdHelp;
    CaptionButton* cmdReset;
    CaptionButton* cmdQuit;
    ClickableLabel* lblOnlineDocumentation;
    ClickableLabel* lblVantorelSystems;
    QLabel* lblReading;

    QTimer* Clock;
};

}  // namespace calvoro
