#include "mainwindow/MainLayout.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QStyleOptionButton>
#include <QVBoxLayout>
#include <algorithm>
#include <initializer_list>

#include "mainwindow/AlikeColumns.h"
#include "windows/AccessibleRole.h"
#include "windows/ScrollingPage.h"

namespace calvoro {
namespace {

constexpr int kOptionSpacing = 12;  // pixels between options that stand side by side
constexpr int kColumnGap = 24;      // between the columns of the three inputs

QHBoxLayout* Row(std::initializer_list<QWidget*> widgets) {
    auto* row = new QHBoxLayout;
    for (QWidget* widget : widgets) row->addWidget(widget);
    return row;
}

// The first half of a caption that goes on in the label behind it: lets the label come as near as a blank
// between two words, into the room that the check box leaves behind its own words.
class FirstHalf : public QWidgetItem {
public:
    explicit FirstHalf(QCheckBox* box) : QWidgetItem(box), box_(*box) {}

    QSize sizeHint() const override { return QWidgetItem::sizeHint() - QSize(Overlap(), 0); }
    QSize minimumSize() const override { return QWidgetItem::minimumSize() - QSize(Overlap(), 0); }
    void setGeometry(const QRect& place) override {
        QWidgetItem::setGeometry(place.adjusted(0, 0, Overlap(), 0));
    }

private:
    int Overlap() const {
        QStyleOptionButton look;
        look.initFrom(&box_);
        const int words = box_.fontMetrics().size(Qt::TextShowMnemonic, box_.text()).width();
        const int left = box_.style()->subElementRect(QStyle::SE_CheckBoxContents, &look, &box_).left();
        const int room = box_.sizeHint().width() - left - words;
        return std::max(0, room - box_.fontMetrics().horizontalAdvance(QLatin1Char(' ')));
    }

    const QCheckBox& box_;
};

void FillColumn(QFrame* frame, const OptionGroup& options) {
    auto* column = new QVBoxLayout(frame);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);
    for (QAbstractButton* option : options.buttons()) column->addWidget(option);
}

QHBoxLayout* FillRow(QFrame* frame, const OptionGroup& options) {
    auto* row = new QHBoxLayout(frame);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kOptionSpacing);
    for (QAbstractButton* option : options.buttons()) row->addWidget(option);
    return row;
}

// Options in columns of one width, so that two such rows, one above the other, line up.
void FillEqualColumns(QFrame* frame, const OptionGroup& options) {
    QHBoxLayout* row = FillRow(frame, options);
    for (int i = 0; i < row->count(); ++i) row->setStretch(i, 1);
}

QFrame* Line(QWidget* page) {
    auto* line = new QFrame(page);
    line->setFrameStyle(QFrame::HLine | QFrame::Plain);
    line->setForegroundRole(QPalette::Mid);
    SetAccessibleRole(*line, QAccessible::Separator);
    return line;
}

// A line whose text comes and goes without moving anything else.
QLabel* Quiet(QLabel* line) {
    line->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    line->setMinimumHeight(line->fontMetrics().lineSpacing());
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
    column->addWidget(c.cmdCompute);
    column->addStretch();
    return column;
}

QLayout* DateFormatGrid(const MainControls& c) {
    FillEqualColumns(c.frmDateFormat, *c.dateFormats);
    FillEqualColumns(c.frmDateSeparator, *c.dateSeparators);
    enum Column { Label, Options };
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(kOptionSpacing);
    grid->setColumnStretch(Options, 1);
    grid->addWidget(c.lblDateFormat, 0, Label);
    grid->addWidget(c.frmDateFormat, 0, Options);
    grid->addWidget(c.lblDateSeparator, 1, Label);
    grid->addWidget(c.frmDateSeparator, 1, Options);
    return grid;
}

QLayout* NumberFormatColumn(const MainControls& c) {
    FillRow(c.Frame5, *c.thousandsSeparators);
    QHBoxLayout* thousands = Row({c.lblThousandsSeparator, c.Frame5});
    thousands->setSpacing(kOptionSpacing);
    thousands->addStretch();
    QHBoxLayout* hyphen = Row({c.lblHyphen});
    hyphen->insertItem(0, new FirstHalf(c.chkHyphen));
    hyphen->setSpacing(0);  // one sentence in two controls
    hyphen->addStretch();

    auto* column = new QVBoxLayout;
    column->addLayout(thousands);
    column->addLayout(hyphen);
    return column;
}

// The three inputs side by side, the difference between the dates, and below them how dates are written.
QLayout* InputGrid(QWidget* page, const MainControls& c) {
    enum Column { First, Gap, Difference, Or, Second, ColumnCount };
    enum GridRow { Labels, Boxes, Buttons, Kinds, Options, Rule, Formats };
    FillColumn(c.Frame3, *c.firstCalendars);
    FillColumn(c.Frame4, *c.secondCalendars);
    FillRow(c.Frame6, *c.units)->addStretch();

    auto* grid = new AlikeColumns({First, Difference, Second});
    grid->setColumnMinimumWidth(Gap, kColumnGap);
    grid->setColumnMinimumWidth(Or, kColumnGap);

    grid->addWidget(c.lblFirstDate, Labels, First);
    grid->addWidget(c.lblDateDifference, Labels, Difference);
    grid->addWidget(c.lblSecondDate, Labels, Second);

    grid->addLayout(DateBoxRow(c.txbFirstDate, c.VScroll0), Boxes, First);
    grid->addWidget(c.txbDateDiff, Boxes, Difference);
    grid->addWidget(c.lblOr, Boxes, Or, Qt::AlignCenter);
    grid->addLayout(DateBoxRow(c.txbSecondDate, c.VScroll1), Boxes, Second);

    grid->addLayout(ButtonRow({c.cmdToday0, c.cmdClearFirstDate}), Buttons, First);
    grid->addLayout(ButtonRow({c.cmdClearDateDiff}), Buttons, Difference);
    grid->addLayout(ButtonRow({c.cmdToday1, c.cmdClearSecondDate, c.cmdMoveSecondDateToFirst}), Buttons,
                    Second);

    grid->addWidget(c.lblThisIsA0, Kinds, First);
    grid->addWidget(c.Frame6, Kinds, Difference);
    grid->addWidget(c.lblThisIsA1, Kinds, Second);

    grid->addWidget(c.Frame3, Options, First);
    grid->addLayout(DifferenceColumn(c), Options, Difference);
    grid->addWidget(c.Frame4, Options, Second);

    grid->addWidget(Line(page), Rule, First, 1, ColumnCount);
    grid->addLayout(DateFormatGrid(c), Formats, First, 1, Second);
    grid->addLayout(NumberFormatColumn(c), Formats, Second);
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
    QWidget* page = &(new ScrollingPage(*window))->Page();
    auto* rows = new QVBoxLayout(page);
    rows->addLayout(TodayRow(controls));
    rows->addWidget(Line(page));
    rows->addLayout(InputGrid(page, controls));
    rows->addWidget(controls.txbOutput, 1);
    rows->addLayout(OutputButtons(controls));
    rows->addLayout(WindowButtons(controls));
    rows->addWidget(Quiet(controls.lblReading));
    SetTabOrder(controls);
}

}  // namespace calvoro
