#include "mainwindow/MainControls.h"

#include <cassert>

#include "mainwindow/ControlTables.h"
#include "windows/AccessibleRole.h"
#include "windows/QtText.h"

namespace calvoro {
namespace {

template <typename Control>
Control* Make(QWidget* window, const char* name) {
    auto* control = new Control(window);
    control->setObjectName(QLatin1String(name));
    return control;
}

template <typename Table, typename Row>
OptionGroup* MakeOptions(QFrame* frame, const Table& table, std::string_view Row::*name) {
    QStringList names;
    for (const Row& row : table) names.push_back(ToQt(row.*name));
    return new OptionGroup(frame, names);
}

// The one of a kind of controls that stands at a box.
template <typename Control>
Control* OfBox(InputBox box, Control* first, Control* difference, Control* second) {
    Control* control = box == InputBox::FirstDate ? first : box == InputBox::Difference ? difference : second;
    assert(control != nullptr);
    return control;
}

}  // namespace

MainControls::MainControls(QWidget* window)
    : Frame3(Make<QFrame>(window, "Frame3")),
      Frame4(Make<QFrame>(window, "Frame4")),
      Frame5(Make<QFrame>(window, "Frame5")),
      Frame6(Make<QFrame>(window, "Frame6")),
      frmDateFormat(Make<QFrame>(window, "frmDateFormat")),
      frmDateSeparator(Make<QFrame>(window, "frmDateSeparator")),
      frmLanguage(Make<QFrame>(window, "frmLanguage")),
      lblTodaysDate(Make<ClickableLabel>(window, "lblTodaysDate")),
      lblWeekFromToday(Make<ClickableLabel>(window, "lblWeekFromToday")),
      languages(MakeOptions(frmLanguage, kLanguageOptions, &LanguageOption::name)),
      lblFirstDate(Make<QLabel>(window, "lblFirstDate")),
      lblDateDifference(Make<QLabel>(window, "lblDateDifference")),
      lblOr(Make<QLabel>(window, "lblOr")),
      lblSecondDate(Make<QLabel>(window, "lblSecondDate")),
      txbFirstDate(Make<InputTextBox>(window, "txbFirstDate")),
      txbDateDiff(Make<InputTextBox>(window, "txbDateDiff")),
      txbSecondDate(Make<InputTextBox>(window, "txbSecondDate")),
      VScroll0(Make<SpinArrows>(window, "VScroll0")),
      VScroll1(Make<SpinArrows>(window, "VScroll1")),
      cmdToday0(Make<CaptionButton>(window, "cmdToday0")),
      cmdToday1(Make<CaptionButton>(window, "cmdToday1")),
      cmdClearFirstDate(Make<CaptionButton>(window, "cmdClearFirstDate")),
      cmdClearDateDiff(Make<CaptionButton>(window, "cmdClearDateDiff")),
      cmdClearSecondDate(Make<CaptionButton>(window, "cmdClearSecondDate")),
      cmdMoveSecondDateToFirst(Make<CaptionButton>(window, "cmdMoveSecondDateToFirst")),
      lblThisIsA0(Make<QLabel>(window, "lblThisIsA0")),
      lblThisIsA1(Make<QLabel>(window, "lblThisIsA1")),
      firstCalendars(MakeOptions(Frame3, kCalendarOptions, &CalendarOption::firstName)),
      secondCalendars(MakeOptions(Frame4, kCalendarOptions, &CalendarOption::secondName)),
      units(MakeOptions(Frame6, kUnitOptions, &UnitOption::name)),
      chkIncludeFirstDate(Make<HandCheckBox>(window, "chkIncludeFirstDate")),
      chkIncludeWeekends(Make<HandCheckBox>(window, "chkIncludeWeekends")),
      cmdCompute(Make<CaptionButton>(window, "cmdCompute")),
      lblDateFormat(Make<QLabel>(window, "lblDateFormat")),
      lblDateSeparator(Make<QLabel>(window, "lblDateSeparator")),
      lblThousandsSeparator(Make<QLabel>(window, "lblThousandsSeparator")),
      dateFormats(MakeOptions(frmDateFormat, kDateFormatOptions, &DateFormatOption::name)),
      dateSeparators(MakeOptions(frmDateSeparator, kDateSeparatorOptions, &DateSeparatorOption::name)),
      thousandsSeparators(MakeOptions(Frame5, kThousandsOptions, &ThousandsOption::name)),
      chkHyphen(Make<HandCheckBox>(window, "chkHyphen")),
      lblHyphen(Make<ClickableLabel>(window, "lblHyphen")),
      txbOutput(Make<CrLfTextBox>(window, "txbOutput")),
      cmdClearOutputWindow(Make<CaptionButton>(window, "cmdClearOutputWindow")),
      cmdCopyToClipboard(Make<CaptionButton>(window, "cmdCopyToClipboard")),
      cmdEnlarge(Make<CaptionButton>(window, "cmdEnlarge")),
      chkVerbose(Make<HandCheckBox>(window, "chkVerbose")),
      chkSaveOutput(Make<HandCheckBox>(window, "chkSaveOutput")),
      cmdDisplayMonth(Make<CaptionButton>(window, "cmdDisplayMonth")),
      cmdHelp(Make<CaptionButton>(window, "cmdHelp")),
      cmdReset(Make<CaptionButton>(window, "cmdReset")),
      cmdQuit(Make<CaptionButton>(window, "cmdQuit")),
      lblOnlineDocumentation(Make<ClickableLabel>(window, "lblOnlineDocumentation")),
      lblVantorelSystems(Make<ClickableLabel>(window, "lblVantorelSystems")),
      lblReading(Make<QLabel>(window, "lblReading")),
      Clock(new QTimer(window)) {
    Clock->setObjectName(QStringLiteral("Clock"));
    Clock->setInterval(1000);

    for (QFrame* group : {Frame3, Frame4, Frame5, Frame6, frmDateFormat, frmDateSeparator, frmLanguage}) {
        SetAccessibleRole(*group, QAccessible::Grouping);
    }
    lblThisIsA0->setBuddy(Frame3);
    lblThisIsA1->setBuddy(Frame4);
    lblFirstDate->setBuddy(txbFirstDate);
    lblDateDifference->setBuddy(txbDateDiff);
    lblSecondDate->setBuddy(txbSecondDate);

    lblReading->setTextFormat(Qt::PlainText);

    lblHyphen->ContinueCaption();
    lblOnlineDocumentation->ShowAsLink();
    lblVantorelSystems->ShowAsLink();

    chkSaveOutput->setEnabled(false);  // until start-up switches it on
}

InputTextBox* MainControls::Box(InputBox box) const {
    return OfBox(box, txbFirstDate, txbDateDiff, txbSecondDate);
}

OptionGroup* MainControls::Calendars(InputBox box) const {
    return OfBox<OptionGroup>(box, firstCalendars, nullptr, secondCalendars);
}

SpinArrows* MainControls::Spinner(InputBox box) const {
    return OfBox<SpinArrows>(box, VScroll0, nullptr, VScroll1);
}

CaptionButton* MainControls::Today(InputBox box) const {
    return OfBox<CaptionButton>(box, cmdToday0, nullptr, cmdToday1);
}

CaptionButton* MainControls::Clear(InputBox box) const {
    return OfBox(box, cmdClearFirstDate, cmdClearDateDiff, cmdClearSecondDate);
}

}  // namespace calvoro
