#include "mainwindow/AccessibleNames.h"

#include <array>
#include <string_view>

#include "windows/QtText.h"

namespace calvoro {
namespace {

struct BoxName {
    InputTextBox* MainControls::*box;
    TextId text;
};
constexpr std::array<BoxName, 3> kBoxes = {{
    {&MainControls::txbFirstDate, TextId::FirstDate},
    {&MainControls::txbDateDiff, TextId::DateDifference},
    {&MainControls::txbSecondDate, TextId::SecondDate},
}};

// Buttons that share their caption with others, with the box that they belong to.
struct ButtonName {
    CaptionButton* MainControls::*button;
    TextId box;
    TextId caption;
};
constexpr std::array<ButtonName, 6> kButtons = {{
    {&MainControls::cmdToday0, TextId::FirstDate, TextId::Today},
    {&MainControls::cmdToday1, TextId::SecondDate, TextId::Today},
    {&MainControls::cmdClearFirstDate, TextId::FirstDate, TextId::Clear},
    {&MainControls::cmdClearDateDiff, TextId::DateDifference, TextId::Clear},
    {&MainControls::cmdClearSecondDate, TextId::SecondDate, TextId::Clear},
    {&MainControls::cmdClearOutputWindow, TextId::OutputWindow, TextId::Clear},
}};

struct FrameName {
    QFrame* MainControls::*frame;
    TextId text;
};
constexpr std::array<FrameName, 4> kFrames = {{
    {&MainControls::frmDateFormat, TextId::DateFormatCaption},
    {&MainControls::frmDateSeparator, TextId::DateSeparatorCaption},
    {&MainControls::Frame5, TextId::ThousandsSeparator},
    {&MainControls::Frame6, TextId::DateDifference},
}};

// What a button does, where its caption says too little.
struct ButtonDescription {
    CaptionButton* MainControls::*button;
    std::string_view english;
    std::string_view german;
};
constexpr std::array<ButtonDescription, 7> kDescriptions = {{
    {&MainControls::cmdToday0, "Writes today's date into the box", "Schreibt das heutige Datum in das Feld"},
    {&MainControls::cmdToday1, "Writes today's date into the box", "Schreibt das heutige Datum in das Feld"},
    {&MainControls::cmdMoveSecondDateToFirst,
     "Moves the second date into the box of the first date, in the calendar chosen there",
     "Bringt das zweite Datum in das Feld des ersten, im dort gewaehlten Kalender"},
    {&MainControls::cmdCompute, "Computes from the boxes that are filled what the others would hold",
     "Berechnet aus den ausgefuellten Feldern, was die anderen enthielten"},
    {&MainControls::cmdEnlarge, "Shows the output in a window of its own",
     "Zeigt die Ausgabe in einem eigenen Fenster"},
    {&MainControls::cmdDisplayMonth, "Shows the month of the first date as a calendar",
     "Zeigt den Monat des ersten Datums als Kalender"},
    {&MainControls::cmdReset, "After a question, deletes the settings and empties all boxes",
     "Loescht nach einer Frage die Einstellungen und leert alle Felder"},
}};

}  // namespace

void SetAccessibleNames(const MainControls& controls, const Texts& texts) {
    const auto shown = [&texts](TextId id) { return ToQt(texts.Shown(id)); };
    const auto joined = [](const QString& first, const QString& second) {
        return first + QStringLiteral(": ") + second;
    };

    for (const BoxName& row : kBoxes) (controls.*row.box)->setAccessibleName(shown(row.text));
    controls.txbOutput->setAccessibleName(shown(TextId::OutputWindow));
    for (const ButtonName& row : kButtons) {
        (controls.*row.button)->setAccessibleName(joined(shown(row.box), shown(row.caption)));
    }

    for (const FrameName& row : kFrames) (controls.*row.frame)->setAccessibleName(shown(row.text));
    const bool german = texts.InterfaceLanguage == LanguageGerman;
    controls.frmLanguage->setAccessibleName(german ? QStringLiteral("Sprache") : QStringLiteral("Language"));
    for (const ButtonDescription& row : kDescriptions) {
        (controls.*row.button)->setAccessibleDescription(ToQt(german ? row.german : row.english));
    }
    const QString calendar = shown(TextId::Calendar);
    controls.Frame3->setAccessibleName(joined(shown(TextId::FirstDate), calendar));
    controls.Frame4->setAccessibleName(joined(shown(TextId::SecondDate), calendar));

    // A comma alone says little.
    for (QAbstractButton* option : controls.thousandsSeparators->buttons()) {
        option->setAccessibleName(joined(shown(TextId::ThousandsSeparator), option->text()));
    }
    // The caption goes on in the label behind it.
    controls.chkHyphen->setAccessibleName(shown(TextId::HyphenInOrdinalAnd) + QLatin1Char(' ') +
                                          shown(TextId::InISOWeekDates));

    const QString day = QLatin1Char(' ') + shown(TextId::Day);
    for (const InputBox box : {InputBox::FirstDate, InputBox::SecondDate}) {
        const QString date = controls.Box(box)->accessibleName();
        controls.Spinner(box)->SetAccessibleNames(joined(date, QStringLiteral("+/- 1") + day),
                                                  joined(date, QStringLiteral("+1") + day),
                                                  joined(date, QStringLiteral("-1") + day));
    }
}

}  // namespace calvoro
