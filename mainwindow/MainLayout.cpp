#include "mainwindow/MainLayout.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <initializer_list>

namespace calvoro {
namespace {

constexpr int kOptionSpacing = 12;  // pixels between options that stand side by side
constexpr int kColumnGap = 24;      // between the columns of the three inputs

QHBoxLayout* Row(std::initializer_list<QWidget*> widgets) {
    auto* row = new QHBoxLayout;
    for (QWidget* widget : widgets) row->addWidget(widget);
    return row;
}

void FillColumn(QFrame* frame, const OptionGroup& options) {
    auto* column = new QVBoxLayout(frame);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);
    for (QAbstractButton* option : options.buttons()) column->addWidget(option);
}

void FillRow(QFrame* frame, const OptionGroup& options) {
    auto* row = new QHBoxLayout(frame);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kOptionSpacing);
    for (QAbstractButton* option : options.buttons()) row->addWidget(option);
    row->addStretch();
}

QFrame* Line(QWidget* window) {
    auto* line = new QFrame(window);
    line->setFrameStyle(QFrame::HLine | QFrame::Sunken);
    return line;
}

QLayout* TodayRow(const MainControls& c) {
    FillRow(c.frmLanguage, *c.languages);
    QHBoxLayout* row = Row({c.lblTodaysDate, c.lblWeekFromToday});
    row->insertSpacing(1, kColumnGap);
    row->addStretch();
    row->addWidget(c.frmLanguage);
    return row;
}

QLayout* DateBoxRow(QLineEdit* box, SpinArrows* arrows) {
    QHBoxLayout* row = Row({box, arrows});
    row->setSpacing(0);
    return row;
}

QLayout* ButtonRow(std::initializer_list<QWidget*> buttons) {
    QHBoxLayout* row = Row(buttons);
    row->addStretch();
    return row;
}

QLayout* DifferenceColumn(const MainControls& c) {
    auto* column = new QVBoxLayout;
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(c.chkIncludeFirstDate);
    column->addWidget(c.chkIncludeWeekends);
    column->addStretch();
    column->addWidget(c.cmdCompute);
    return column;
}

// The three inputs side by side, the difference between the dates.
QLayout* InputGrid(const MainControls& c) {
    enum Column { First, Gap, Difference, Or, Second };
    FillColumn(c.Frame3, *c.firstCalendars);
    FillColumn(c.Frame4, *c.secondCalendars);
    FillRow(c.Frame6, *c.units);

    auto* grid = new QGridLayout;
    grid->setColumnMinimumWidth(Gap, kColumnGap);
    grid->setColumnMinimumWidth(Or, kColumnGap);
    for (const Column column : {First, Difference, Second}) grid->setColumnStretch(column, 1);

    grid->addWidget(c.lblFirstDate, 0, First);
    grid->addWidget(c.lblDateDifference, 0, Difference);
    grid->addWidget(c.lblSecondDate, 0, Second);

    grid->addLayout(DateBoxRow(c.txbFirstDate, c.VScroll0), 1, First);
    grid->addWidget(c.txbDateDiff, 1, Difference);
    grid->addWidget(c.lblOr, 1, Or, Qt::AlignCenter);
    grid->addLayout(DateBoxRow(c.txbSecondDate, c.VScroll1), 1, Second);

    grid->addLayout(ButtonRow({c.cmdToday0, c.cmdClearFirstDate}), 2, First);
    grid->addLayout(ButtonRow({c.cmdClearDateDiff}), 2, Difference);
    grid->addLayout(ButtonRow({c.cmdToday1, c.cmdClearSecondDate, c.cmdMoveSecondDateToFirst}), 2, Second);

    grid->addWidget(c.lblThisIsA0, 3, First);
    grid->addWidget(c.Frame6, 3, Difference);
    grid->addWidget(c.lblThisIsA1, 3, Second);

    grid->addWidget(c.Frame3, 4, First);
    grid->addLayout(DifferenceColumn(c), 4, Difference);
    grid->addWidget(c.Frame4, 4, Second);
    return grid;
}

QLayout* FormatGrid(const MainControls& c) {
    FillRow(c.frmDateFormat, *c.dateFormats);
    FillRow(c.frmDateSeparator, *c.dateSeparators);
    FillRow(c.Frame5, *c.thousandsSeparators);

    enum Column { Label, Options, Gap, OtherLabel, OtherOptions };
    auto* grid = new QGridLayout;
    grid->setColumnMinimumWidth(Gap, kColumnGap);
    grid->setColumnStretch(Gap, 1);
    grid->addWidget(c.lblDateFormat, 0, Label);
    grid->addWidget(c.frmDateFormat, 0, Options);
    grid->addWidget(c.lblThousandsSeparator, 0, OtherLabel);
    grid->addWidget(c.Frame5, 0, OtherOptions);
    grid->addWidget(c.lblDateSeparator, 1, Label);
    grid->addWidget(c.frmDateSeparator, 1, Options);
    QHBoxLayout* hyphen = Row({c.chkHyphen, c.lblHyphen});
    hyphen->setSpacing(4);
    hyphen->addStretch();
    grid->addLayout(hyphen, 1, OtherLabel, 1, 2);
    return grid;
}

QLayout* OutputButtons(const MainControls& c) {
    QHBoxLayout* row = Row({c.cmdClearOutputWindow, c.cmdCopyToClipboard, c.cmdEnlarge});
    row->addStretch();
    row->addWidget(c.chkVerbose);
    row->addSpacing(kOptionSpacing);
    row->addWidget(c.chkSaveOutput);
    return row;
}

QLayout* WindowButtons(const MainControls& c) {
    QHBoxLayout* row = Row({c.cmdDisplayMonth, c.cmdHelp, c.cmdReset, c.cmdQuit});
    row->addStretch();
    row->addWidget(c.lblOnlineDocumentation);
    row->addSpacing(kOptionSpacing);
    row->addWidget(c.lblVantorelSystems);
    return row;
}

// The chain of the tab key, in the order of reading: row by row, and in the columns of the inputs down.
class TabChain {
public:
    void Add(QWidget* widget) {
        if (last_ != nullptr) QWidget::setTabOrder(last_, widget);
        last_ = widget;
    }

    void Add(std::initializer_list<QWidget*> widgets) {
        for (QWidget* widget : widgets) Add(widget);
    }

    void Add(const OptionGroup* options) {
        for (QAbstractButton* option : options->buttons()) Add(option);
    }

private:
    QWidget* last_ = nullptr;
};

void SetTabOrder(const MainControls& c) {
    TabChain chain;
    chain.Add({c.lblTodaysDate, c.lblWeekFromToday});
    chain.Add(c.languages);
    chain.Add({c.txbFirstDate, c.txbDateDiff, c.txbSecondDate});
    chain.Add({c.cmdToday0, c.cmdClearFirstDate, c.cmdClearDateDiff});
    chain.Add({c.cmdToday1, c.cmdClearSecondDate, c.cmdMoveSecondDateToFirst});
    chain.Add(c.firstCalendars);
    chain.Add(c.units);
    chain.Add({c.chkIncludeFirstDate, c.chkIncludeWeekends, c.cmdCompute});
    chain.Add(c.secondCalendars);
    chain.Add(c.dateFormats);
    chain.Add(c.thousandsSeparators);
    chain.Add(c.dateSeparators);
    chain.Add({c.chkHyphen, c.txbOutput});
    chain.Add({c.cmdClearOutputWindow, c.cmdCopyToClipboard, c.cmdEnlarge, c.chkVerbose, c.chkSaveOutput});
    chain.Add({c.cmdDisplayMonth, c.cmdHelp, c.cmdReset, c.cmdQuit});
    chain.Add({c.lblOnlineDocumentation, c.lblVantorelSystems});
}

}  // namespace

void ArrangeControls(QWidget* window, const MainControls& controls) {
    auto* page = new QVBoxLayout(window);
    page->addLayout(TodayRow(controls));
    page->addWidget(Line(window));
    page->addLayout(InputGrid(controls));
    page->addWidget(Line(window));
    page->addLayout(FormatGrid(controls));
    page->addWidget(controls.txbOutput, 1);
    page->addLayout(OutputButtons(controls));
    page->addLayout(WindowButtons(controls));
    SetTabOrder(controls);
}

}  // namespace calvoro
