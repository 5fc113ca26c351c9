#include "mainwindow/SecondaryWindows.h"

#include <QWidget>
#include <algorithm>
#include <string>

#include "mainwindow/frmClearOneTextBox.h"
#include "windows/Placement.h"
#include "windows/QtText.h"
#include "windows/Twips.h"
#include "windows/frmDisplayMonth.h"
#include "windows/frmHelp.h"
#include "windows/frmLargeDisplay.h"
#include "windows/frmList.h"
#include "windows/frmPopUp.h"

namespace calvoro {
namespace {

// The note after copying: size and place in twips from the main window's top left corner, milliseconds.
constexpr std::int16_t kCopiedWidth = 1500;
constexpr std::int16_t kCopiedHeight = 300;
constexpr std::int16_t kCopiedInterval = 2000;
constexpr int kCopiedTop = 6500;
constexpr int kCopiedLeft = 5000;

// The enlarged window: how far its corners lie inside the main window's, twips.
constexpr int kEnlargedLeft = 100;
constexpr int kEnlargedTop = 380;
constexpr int kEnlargedInset = 100;
constexpr double kEnlargedScreenShare = 0.9;

// By its characters.
std::string_view LongestLine(std::string_view text) {
    std::string_view longest;
    std::size_t mostCharacters = 0;
    while (!text.empty()) {
        const std::string_view line = text.substr(0, text.find("\r\n"));
        const std::size_t characters = LengthInTextBox(line);
        if (characters > mostCharacters) {
            mostCharacters = characters;
            longest = line;
        }
        text.remove_prefix(std::min(text.size(), line.size() + 2));
    }
    return longest;
}

}  // namespace

SecondaryWindows::SecondaryWindows(QWidget& mainWindow, const Platform& platform,
                                   const WebAddresses& addresses, MainState& state,
                                   const ListRowSource& listRows)
    : mainWindow_(mainWindow),
      platform_(platform),
      addresses_(addresses),
      state_(state),
      listRows_(listRows) {}

SecondaryWindows::~SecondaryWindows() = default;

void SecondaryWindows::TellCopied() {
    if (!popUp_) popUp_ = std::make_unique<frmPopUp>(&mainWindow_);
    const QPoint corner = mainWindow_.frameGeometry().topLeft();
    popUp_->PopUp("Copied", kCopiedWidth, kCopiedHeight, kCopiedInterval,
                  PixelsToTwips(corner.y()) + kCopiedTop, PixelsToTwips(corner.x()) + kCopiedLeft);
}

void SecondaryWindows::ShowEnlarged(std::string_view output) {
    if (!large_) large_ = std::make_unique<frmLargeDisplay>(platform_, state_.texts);
    large_->setWindowState(large_->windowState() & ~Qt::WindowMinimized);

    const QRect main = mainWindow_.frameGeometry();
    const QPoint corner = main.topLeft() + QPoint(TwipsToPixels(kEnlargedLeft), TwipsToPixels(kEnlargedTop));
    const QPoint inset(TwipsToPixels(kEnlargedInset), TwipsToPixels(kEnlargedInset));
    // The frame that the main window has is the frame that this window will have.
    large_->Place(QRect(corner, main.bottomRight() - inset), FrameSize(mainWindow_));

    large_->SetLanguageDependentText();
    large_->Clear();
    large_->Output(output, 0, false);
    const std::string_view line = LongestLine(output);
    large_->WidenDisplayIfNeeded(line, large_->CharacterWidth(line), kEnlargedScreenShare);
    BringToFront(*large_);
    large_->ShowEnd();
}

void SecondaryWindows::ShowHelp() {
    if (!help_) help_ = std::make_unique<frmHelp>(state_.texts, addresses_, mainWindow_);
    help_->ShowHelp();
}

void SecondaryWindows::ShowMonth(std::int32_t year, std::int32_t month, CalendarNumber calendar) {
    if (!month_) {
        month_ = std::make_unique<frmDisplayMonth>(platform_, state_.texts, mainWindow_,
                                                   [this] { return state_.FormReady; });
        month_->SetWeekStart(monthWeekStart_);
        month_->SetCalendar(monthCalendar_);
    }
    month_->ShowMonth(std::to_string(year), month, calendar);
}

frmList& SecondaryWindows::List() {
    if (!list_) list_ = std::make_unique<frmList>(platform_, state_.texts, listRows_, mainWindow_);
    return *list_;
}

void SecondaryWindows::RefreshList() {
    if (list_) list_->Refresh();
}

std::optional<InputBox> SecondaryWindows::AskWhichBoxToClear() {
    if (!clearOne_) clearOne_ = std::make_unique<frmClearOneTextBox>(mainWindow_, state_.texts);
    return clearOne_->Ask();
}

void SecondaryWindows::ApplyMonthOptions(const Settings& settings) {
    monthWeekStart_ = settings.monthWeekStart;
    monthCalendar_ = settings.monthCalendar;
    if (month_) {
        month_->SetWeekStart(monthWeekStart_);
        month_->SetCalendar(monthCalendar_);
    }
}

void SecondaryWindows::CollectMonthOptions(Settings& settings) const {
    settings.monthWeekStart = month_ ? month_->GetWeekStart() : monthWeekStart_;
    settings.monthCalendar = month_ ? month_->GetCalendar() : monthCalendar_;
}

void SecondaryWindows::SetLanguageDependentText() {
    if (month_) month_->SetLanguageDependentText();
    if (help_) help_->SetLanguageDependentText();
    if (large_) large_->SetLanguageDependentText();
    if (list_) list_->SetLanguageDependentText();
    RefreshList();
}

}  // namespace calvoro
