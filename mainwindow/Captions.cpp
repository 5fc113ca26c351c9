#include "mainwindow/Captions.h"

#include <algorithm>
#include <array>

#include "mainwindow/AccessibleNames.h"
#include "mainwindow/ControlTables.h"
#include "windows/Mnemonics.h"
#include "windows/QtText.h"

namespace calvoro {
namespace {

template <typename Control>
struct CaptionRow {
    Control* MainControls::*control;
    TextId text;
};

constexpr std::array<CaptionRow<QLabel>, 4> kLabels = {{
    {&MainControls::lblOr, TextId::Or},
    {&MainControls::lblDateFormat, TextId::DateFormatCaption},
    {&MainControls::lblDateSeparator, TextId::DateSeparatorCaption},
    {&MainControls::lblThousandsSeparator, TextId::ThousandsSeparator},
}};

// The captions that carry a key: first those that get their natural letter, the labels with the boxes beside
// them before the buttons; then the labels that lead to the calendars, and what is left.
constexpr std::array<CaptionRow<QLabel>, 3> kBoxLabels = {{
    {&MainControls::lblFirstDate, TextId::FirstDate},
    {&MainControls::lblDateDifference, TextId::DateDifference},
    {&MainControls::lblSecondDate, TextId::SecondDate},
}};
constexpr std::array<CaptionRow<CaptionButton>, 5> kFirstButtons = {{
    {&MainControls::cmdCompute, TextId::Compute},
    {&MainControls::cmdHelp, TextId::Help},
    {&MainControls::cmdQuit, TextId::Quit},
    {&MainControls::cmdDisplayMonth, TextId::DisplayMonth},
    {&MainControls::cmdReset, TextId::Reset},
}};
constexpr std::array<CaptionRow<QLabel>, 2> kCalendarLabels = {{
    {&MainControls::lblThisIsA0, TextId::ThisIsA},
    {&MainControls::lblThisIsA1, TextId::ThisIsA},
}};
constexpr std::array<CaptionRow<CaptionButton>, 9> kButtons = {{
    {&MainControls::cmdToday0, TextId::Today},
    {&MainControls::cmdToday1, TextId::Today},
    {&MainControls::cmdMoveSecondDateToFirst, TextId::SecondToFirst},
    {&MainControls::cmdCopyToClipboard, TextId::CopyToClipboard},
    {&MainControls::cmdEnlarge, TextId::Enlarge},
    {&MainControls::cmdClearFirstDate, TextId::Clear},
    {&MainControls::cmdClearDateDiff, TextId::Clear},
    {&MainControls::cmdClearSecondDate, TextId::Clear},
    {&MainControls::cmdClearOutputWindow, TextId::Clear},
}};
constexpr std::array<CaptionRow<HandCheckBox>, 5> kCheckBoxes = {{
    {&MainControls::chkIncludeFirstDate, TextId::IncludeFirstDate},
    {&MainControls::chkIncludeWeekends, TextId::CountWeekendDays},
    {&MainControls::chkVerbose, TextId::Verbose},
    {&MainControls::chkHyphen, TextId::HyphenInOrdinalAnd},
    {&MainControls::chkSaveOutput, TextId::SaveResultsOnQuit},
}};

void SetCaptionsWithKeys(const MainControls& controls, const Texts& texts) {
    QList<QWidget*> withKeys;
    const auto show = [&](const auto& row) {
        QWidget* control = controls.*row.control;
        SetCaption(*control, ToQt(texts.Shown(row.text)));
        withKeys.push_back(control);
    };
    std::for_each(kBoxLabels.begin(), kBoxLabels.end(), show);
    std::for_each(kFirstButtons.begin(), kFirstButtons.end(), show);
    const qsizetype firstServed = withKeys.size();
    std::for_each(kCalendarLabels.begin(), kCalendarLabels.end(), show);
    std::for_each(kCheckBoxes.begin(), kCheckBoxes.end(), show);
    std::for_each(kButtons.begin(), kButtons.end(), show);
    SetMnemonics(withKeys, firstServed);
}

QString DateFormatCaption(const DateFormatOption& row, LanguageNumber language) {
    return language == LanguageGerman ? ToQt(row.german) : ToQt(row.english).toLower();
}

void SetOptionCaptions(const MainControls& controls, const Texts& texts) {
    for (int i = 0; const CalendarOption& row : kCalendarOptions) {
        controls.firstCalendars->Option(i).setText(ToQt(texts.Shown(row.caption)));
        controls.secondCalendars->Option(i).setText(ToQt(texts.Shown(row.caption)));
        ++i;
    }
    for (int i = 0; const DateFormatOption& row : kDateFormatOptions) {
        controls.dateFormats->Option(i++).setText(DateFormatCaption(row, texts.InterfaceLanguage));
    }
    for (int i = 0; const ThousandsOption& row : kThousandsOptions) {
        const std::string_view caption = row.caption.empty() ? texts.Shown(TextId::None) : row.caption;
        controls.thousandsSeparators->Option(i++).setText(ToQt(caption));
    }
    for (int i = 0; const UnitOption& row : kUnitOptions) {
        controls.units->Option(i++).setText(ToQt(texts.Shown(row.caption)));
    }
    for (int i = 0; const LanguageOption& row : kLanguageOptions) {
        controls.languages->Option(i++).setText(ToQt(row.caption));
    }
}

void SetClickableCaptions(const MainControls& controls, const Texts& texts) {
    controls.lblOnlineDocumentation->setText(texts.InterfaceLanguage == LanguageGerman
                                                 ? QStringLiteral("Online-Dokumentation")
                                                 : QStringLiteral("Online documentation"));
    controls.lblVantorelSystems->setText(QStringLiteral("Vantorel Systems"));
    controls.lblHyphen->setText(ToQt(texts.Shown(TextId::InISOWeekDates)));
    const QString howToChange = ToQt(texts.Shown(TextId::ClickToChangeCalendar));
    controls.lblTodaysDate->setToolTip(howToChange);
    controls.lblWeekFromToday->setToolTip(howToChange);
}

}  // namespace

void SetCaptions(const MainControls& controls, const Texts& texts) {
    for (const auto& row : kLabels) (controls.*row.control)->setText(ToQt(texts.Shown(row.text)));
    SetCaptionsWithKeys(controls, texts);
    SetOptionCaptions(controls, texts);
    SetClickableCaptions(controls, texts);
    SetAccessibleNames(controls, texts);
}

void SetSeparatorCaptions(const MainControls& controls, DateFormat dateFormat) {
    const auto& example =
        kDateFormatOptions[static_cast<std::size_t>(RowOf(kDateFormatOptions, dateFormat))].example;
    for (int i = 0; const DateSeparatorOption& row : kDateSeparatorOptions) {
        std::string caption(example[0]);
        caption.append(1, row.value).append(example[1]).append(1, row.value).append(example[2]);
        controls.dateSeparators->Option(i++).setText(ToQt(caption));
    }
}

void SetOrdinalCaptions(const MainControls& controls, const Texts& texts, bool hyphen) {
    const TextId example = hyphen ? TextId::OrdinalExampleHyphenated : TextId::OrdinalExampleCompact;
    std::string caption(texts.Shown(TextId::OrdinalDate));
    caption.append(" (").append(texts.Shown(example)).append(")");
    const int ordinal = RowOf(kCalendarOptions, CalendarNumber::ORD);
    controls.firstCalendars->Option(ordinal).setText(ToQt(caption));
    controls.secondCalendars->Option(ordinal).setText(ToQt(caption));
}

void SetExampleCaptions(const MainControls& controls, const Texts& texts, const TextOptions& options) {
    SetSeparatorCaptions(controls, options.dateFormat);
    SetOrdinalCaptions(controls, texts, options.hyphen);
}

}  // namespace calvoro
