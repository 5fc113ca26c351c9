#pragma once

// The controls of the month window, their arrangement and their captions. What they do is the window's.

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <array>

#include "text/Texts.h"
#include "windows/FixedPitchBox.h"
#include "windows/LineBox.h"
#include "windows/MonthList.h"
#include "windows/ScrollingPage.h"

namespace calvoro {

struct MonthControls {
    /// Builds the controls into a window, with the factory's options: Common Era, Sunday first.
    explicit MonthControls(QWidget& window);

    /// Sets captions and accessible names in the language of the interface, but for the button that shows and
    /// hides the ISO week dates.
    void SetCaptions(const Texts& texts);

    /// Fills the list of months in the language of the interface, keeping the month chosen. No handler
    /// runs.
    void FillMonths(const Texts& texts);

    /// Describes the list by the month that is chosen in it: a screen reader takes the label beside the list
    /// for its name. Nobody is told, as the heading of the month is.
    void DescribeMonth(LanguageNumber language);

    void SetIsoCaption(const QString& caption);

    /// The size to show the window with: wide enough for the ISO box, which may come later.
    QSize FirstSize() const;

    /// Shows or hides the ISO box. The window grows and shrinks by it, so that the rest keeps its size.
    void SetIsoBoxShown(bool shown);

    QLabel* lblMonth;
    MonthList* cboMonths;
    QLabel* lblYear;
    LineBox* txbYear;
    QPushButton* cmdDisplay;
    FixedPitchBox* txbMonth;
    QGroupBox* fraCalendar;
    QRadioButton* optCommonEra;
    QRadioButton* optJulian;
    QGroupBox* fraFirstDayOfWeek;
    QRadioButton* optSunday;
    QRadioButton* optMonday;
    std::array<QPushButton*, 2> cmdDisplayNextMonth;  // [0] next, [1] previous
    QPushButton* cmdCopyToClipboard;
    QPushButton* cmdShowHideISO;
    QCheckBox* chkWithYear;
    QPushButton* cmdClose;
    FixedPitchBox* txbISODates;

private:
    void Arrange();
    void UpdateMnemonics();

    QWidget& window_;
    ScrollingPage& page_;
};

}  // namespace calvoro
