#include "windows/frmHelp.h"

#include <QCloseEvent>
#include <QShortcut>
#include <algorithm>

#include "windows/AccessibleRole.h"
#include "windows/CaptionButton.h"
#include "windows/Controls.h"
#include "windows/CrLfText.h"
#include "windows/Mnemonics.h"
#include "windows/Placement.h"
#include "windows/QtText.h"
#include "windows/Twips.h"
#include "windows/WindowActivation.h"

namespace calvoro {
namespace {

// Twips.
constexpr int kFirstWidth = 9000;
constexpr int kFirstHeight = 7500;
constexpr int kLeastWidth = 4005;  // 4000 in whole pixels
constexpr int kLeastHeight = 4005;
constexpr int kInsideRight = 425;
constexpr int kInsideBottom = 125;
constexpr int kTextLeft = 200;
constexpr int kTextTop = 100;
constexpr int kWidthAround = 450;
constexpr int kHeightAroundActivated = 1000;
constexpr int kHeightAroundResized = 1100;
constexpr int kButtonGap = 100;

}  // namespace

frmHelp::frmHelp(const Texts& texts, const WebAddresses& addresses, QWidget& mainWindow)
    : texts_(texts),
      mainWindow_(mainWindow),
      helpText_(FillHelpText(addresses)),
      txbMsg(Named(new QPlainTextEdit(this), "txbMsg")),
      cmdClose(Named(new CaptionButton(this), "cmdClose")) {
    setObjectName(QStringLiteral("frmHelp"));
    setAttribute(Qt::WA_QuitOnClose, false);
    SetAccessibleRole(*this, QAccessible::Window);

    MakeReadOnly(*txbMsg);
    connect(cmdClose, &QPushButton::clicked, this, &QWidget::close);
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
    new WindowActivation(*this, [this] { OnActivated(); });

    setMinimumSize(TwipsToPixels(kLeastWidth), TwipsToPixels(kLeastHeight));
    resize(QSize(TwipsToPixels(kFirstWidth), TwipsToPixels(kFirstHeight)).boundedTo(RoomOnScreen(*this)));
}

void frmHelp::ShowHelp() {
    if (!placed_) {
        const QSize frame = FrameSize(mainWindow_);
        const QRect around = mainWindow_.frameGeometry();
        const int right = around.left() + around.width() - TwipsToPixels(kInsideRight);
        const int bottom = around.top() + around.height() - TwipsToPixels(kInsideBottom);
        const QSize outer = size() + frame;
        MoveKeptOnScreen(*this, {right - outer.width(), bottom - outer.height()}, frame);
        placed_ = true;
    }
    BringToFront(*this);
}

void frmHelp::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (isMinimized()) return;
    ArrangeControls(kHeightAroundResized);
}

void frmHelp::closeEvent(QCloseEvent* event) {
    if (mainWindow_.isVisible()) mainWindow_.activateWindow();
    event->accept();
}

void frmHelp::SetLanguageDependentText() {
    setWindowTitle(QStringLiteral("Calvoro ") + ToQt(texts_.Shown(TextId::Help)));
    const std::string& text = helpText_[static_cast<std::size_t>(texts_.InterfaceLanguage)];
    ShowText(text.empty() ? helpText_[LanguageEnglish] : text);
    txbMsg->setAccessibleName(ToQt(texts_.Shown(TextId::Help)));
    SetCaption(*cmdClose, WithMnemonics({ToQt(texts_.Shown(TextId::Close))}).first());
    PlaceCloseButton();
}

void frmHelp::OnActivated() {
    SetLanguageDependentText();
    if (!isMinimized() && !isMaximized()) ArrangeControls(kHeightAroundActivated);
}

// Leaves a text that is shown already where the user has scrolled it.
void frmHelp::ShowText(const std::string& text) {
    if (CrLfText(*txbMsg) != text) SetCrLfText(*txbMsg, text);
}

void frmHelp::ArrangeControls(int heightAround) {
    cmdClose->resize(cmdClose->sizeHint());
    const int gap = TwipsToPixels(kButtonGap);
    const int top = TwipsToPixels(kTextTop);
    const int wanted = height() + TwipsToPixels(kTitleBarHeight) - TwipsToPixels(heightAround);
    // A button in a large font takes its room from the text.
    const int room = height() - top - cmdClose->height() - 2 * gap;
    txbMsg->setGeometry(TwipsToPixels(kTextLeft), top, width() - TwipsToPixels(kWidthAround),
                        std::min(wanted, room));
    PlaceCloseButton();
}

void frmHelp::PlaceCloseButton() {
    cmdClose->resize(cmdClose->sizeHint());
    const int top = txbMsg->y() + txbMsg->height() + TwipsToPixels(kButtonGap);
    cmdClose->move((width() - cmdClose->width()) / 2, top);
}

}  // namespace calvoro
