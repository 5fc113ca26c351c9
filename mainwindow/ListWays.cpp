#include "mainwindow/ListWays.h"

#include <QDropEvent>
#include <QShortcut>
#include <array>
#include <utility>

#include "windows/QtText.h"
#include "windows/frmList.h"
#include "windows/list/ListWords.h"

namespace calvoro {
namespace {

constexpr std::array<std::pair<InputBox, ListSide>, 2> kDateBoxes = {{
    {InputBox::FirstDate, ListSide::FirstDates},
    {InputBox::SecondDate, ListSide::SecondDates},
}};

}  // namespace

ListWays::ListWays(QWidget* window, const MainControls& controls, SecondaryWindows& windows)
    : QObject(window), controls_(controls), windows_(windows) {
    window->setAcceptDrops(true);
    window->installEventFilter(this);
    connect(new QShortcut(Qt::CTRL | Qt::Key_L, window), &QShortcut::activated, this,
            [this] { windows_.List().ShowList(SideWithTheFocus()); });
    ConnectBoxes();
    FollowOptions();
}

void ListWays::ConnectBoxes() {
    for (const auto& [box, side] : kDateBoxes) {
        const InputTextBox* edit = controls_.Box(box);
        connect(edit, &InputTextBox::ListGiven, this,
                [this, side = side](const GivenList& given) { windows_.List().Show(given, side); });
        connect(edit, &InputTextBox::ListFromClipboardWanted, this,
                [this, side = side] { windows_.List().ShowClipboard(side); });
        connect(edit, &InputTextBox::ListFromFileWanted, this,
                [this, side = side] { windows_.List().ShowChosenFile(side); });
    }
    connect(controls_.txbDateDiff, &InputTextBox::ListGiven, this,
            [this](const GivenList& given) { windows_.List().Show(given, ListSide::FirstDates); });
}

void ListWays::FollowOptions() {
    const auto refresh = [this] { windows_.RefreshList(); };
    for (const QLineEdit* box : {controls_.txbFirstDate, controls_.txbDateDiff, controls_.txbSecondDate}) {
        connect(box, &QLineEdit::textChanged, this, refresh);
    }
    for (const OptionGroup* options :
         {controls_.firstCalendars, controls_.secondCalendars, controls_.units, controls_.dateFormats,
          controls_.dateSeparators, controls_.thousandsSeparators}) {
        connect(options, &QButtonGroup::idToggled, this, refresh);
    }
    for (const QCheckBox* box : {controls_.chkIncludeFirstDate, controls_.chkIncludeWeekends,
                                 controls_.chkVerbose, controls_.chkHyphen}) {
        connect(box, &QCheckBox::toggled, this, refresh);
    }
}

void ListWays::SetLanguageDependentText(LanguageNumber language) {
    const ListWords& words = WordsOfList(language);
    for (const auto& [box, side] : kDateBoxes) {
        controls_.Box(box)->OfferLists(ToQt(words.fromClipboard), ToQt(words.fromFile));
    }
}

ListSide ListWays::SideWithTheFocus() const {
    return controls_.txbSecondDate->hasFocus() ? ListSide::SecondDates : ListSide::FirstDates;
}

// returns whether the event is taken
bool ListWays::eventFilter(QObject* /*watched*/, QEvent* event) {
    if (event->type() != QEvent::DragEnter && event->type() != QEvent::Drop) return false;
    auto& drop = static_cast<QDropEvent&>(*event);
    const std::optional<GivenList> given = GivenListOf(drop.mimeData());
    if (!given) return false;
    // What is dragged stays where it is.
    drop.setDropAction(Qt::CopyAction);
    drop.accept();
    if (event->type() == QEvent::Drop) windows_.List().Show(*given, ListSide::FirstDates);
    return true;
}

}  // namespace calvoro
