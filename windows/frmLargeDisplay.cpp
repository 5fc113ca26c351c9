#include "windows/frmLargeDisplay.h"

#include <QCloseEvent>
#include <QEventLoop>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "windows/AccessibleRole.h"
#include "windows/CaptionButton.h"
#include "windows/Controls.h"
#include "windows/CrLfText.h"
#include "windows/CrLfTextBox.h"
#include "windows/EnterKey.h"
#include "windows/FixedPitchBox.h"
#include "windows/Mnemonics.h"
#include "windows/Placement.h"
#include "windows/QtText.h"
#include "windows/Twips.h"
#include "windows/WindowActivation.h"

namespace calvoro {
namespace {

// Deliberate: the captions are the buttons' state and stay English. In the order of CopyButton.
const std::array<QString, 4> kCopyCaptions = {QStringLiteral("Copy to clipboard"),
                                              QStringLiteral("Copy selected text to clipboard"),
                                              QStringLiteral("Pause"), QStringLiteral("Continue")};
const QString kClose = QStringLiteral("Close");
const QString kStop = QStringLiteral("Stop");

const QString& CaptionFor(CopyButton state) {
    return kCopyCaptions[static_cast<std::size_t>(state)];
}

// Twips.
constexpr int kLeastWidth = 6000;
constexpr int kLeastHeight = 3000;
constexpr int kFirstHeight = 6000;
constexpr int kTextMargin = 150;    // left, right, above and below the text
constexpr int kButtonMargin = 330;  // left and right of the buttons
constexpr int kBelowButtons = 700;  // title bar included

}  // namespace

frmLargeDisplay::frmLargeDisplay(const Platform& platform, const Texts& texts)
    : clipboard_(platform.clipboard),
      texts_(texts),
      txbOutput(Named(new CrLfTextBox(this), "txbOutput")),
      cmdCopyToClipboard(Named(new CaptionButton(this), "cmdCopyToClipboard")),
      cmdClose(Named(new CaptionButton(this), "cmdClose")) {
    setObjectName(QStringLiteral("frmLargeDisplay"));
    setAttribute(Qt::WA_QuitOnClose, false);
    SetAccessibleRole(*this, QAccessible::Window);

    MakeReadOnly(*txbOutput);
    txbOutput->installEventFilter(this);
    UseFixedPitchFont(*txbOutput);

    connect(txbOutput, &QPlainTextEdit::selectionChanged, this, &frmLargeDisplay::UpdateCopyButton);
    connect(cmdCopyToClipboard, &QPushButton::clicked, this, &frmLargeDisplay::OnCopyToClipboard);
    connect(cmdClose, &QPushButton::clicked, this, [this] {
        if (CloseOrStop()) hide();
    });
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, cmdClose, &QPushButton::click);
    new WindowActivation(*this, [this] { Form_Activate(); });

    ArrangeControls();
    SetCaptions({});
    resize(TwipsToPixels(kLeastWidth), TwipsToPixels(kFirstHeight));
}

void frmLargeDisplay::Output(std::string_view text, std::int16_t lineBreaks, bool scroll) {
    const OutputStep step = buffer_.Output(CrLfLength(*txbOutput), text, lineBreaks);
    switch (step.kind) {
        case OutputStep::Kind::Append:
            AppendCrLfText(*txbOutput, step.text);
            if (scroll) ShowEnd();
            break;
        case OutputStep::Kind::Replace:
            CutCrLfText(*txbOutput, step.keep);
            AppendCrLfText(*txbOutput, step.text);
            SetCaret(*txbOutput, step.caret);
            txbOutput->setFocus();
            cmdCopyToClipboard->setEnabled(true);
            break;
        case OutputStep::Kind::Drop: break;
    }
}

void frmLargeDisplay::Clear() {
    SetCrLfText(*txbOutput, "");
    Output("", 0, false);
    repaint();
}

void frmLargeDisplay::ShowBeginning() {
    txbOutput->moveCursor(QTextCursor::Start);
    txbOutput->setFocus();
}

void frmLargeDisplay::ShowEnd() {
    txbOutput->moveCursor(QTextCursor::End);
    txbOutput->setFocus();
}

void frmLargeDisplay::Place(QRect outer, QSize frame) {
    frame_ = frame;
    resize(outer.size() - frame);
    MoveKeptOnScreen(*this, outer.topLeft(), frame);
}

std::int16_t frmLargeDisplay::CharacterWidth(std::string_view line) const {
    constexpr qsizetype kMore = 5000;  // characters than any screen shows in a line
    const auto length = static_cast<int>(LengthInTextBox(line));
    if (length == 0) return 0;
    const QString shown = ToQt(line).left(kMore);
    const int text = txbOutput->fontMetrics().horizontalAdvance(shown);
    const int around = frame_.width() + 2 * TwipsToPixels(kTextMargin) + 2 * txbOutput->frameWidth() +
                       static_cast<int>(std::ceil(2 * txbOutput->document()->documentMargin())) +
                       txbOutput->verticalScrollBar()->sizeHint().width() + txbOutput->cursorWidth();
    const int twips = (PixelsToTwips(text + around) + length - 1) / length;
    return static_cast<std::int16_t>(std::min<int>(twips, std::numeric_limits<std::int16_t>::max()));
}

void frmLargeDisplay::WidenDisplayIfNeeded(std::string_view text, std::int16_t characterWidth,
                                           double screenShare) {
    const QRect place = screen()->geometry();
    const int widest = static_cast<int>(screenShare * place.width());
    const int outerWidth = width() + frame_.width();
    if (buffer_.Overflowed() || outerWidth >= widest) return;

    const auto length = static_cast<std::int64_t>(LengthInTextBox(text));
    const std::int64_t needed = length * characterWidth / kTwipsPerPixel;
    if (outerWidth >= needed) return;
    const int newWidth = static_cast<int>(std::min<std::int64_t>(widest, needed));
    resize(newWidth - frame_.width(), height());
    move(place.left() + (place.width() - newWidth) / 2, y());
}

void frmLargeDisplay::SetCopyToClipboardButton() {
    UpdateCopyButton();
    if (State().copy == CopyButton::Copy && isVisible()) cmdClose->setFocus();
}

void frmLargeDisplay::DisplayArray(const std::vector<std::string>& texts, std::size_t first, std::size_t last,
                                   std::string_view /*path*/, bool group) {
    SetCrLfText(*txbOutput, ArrayText(buffer_, texts, first, last, group));
}

void frmLargeDisplay::Form_Activate() {
    setWindowState(windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized));
    SetLanguageDependentText();
    SetCopyToClipboardButton();
    SetCopyButtonWidth(4000, 2000);
    activated_ = true;
}

void frmLargeDisplay::SetLanguageDependentText() {
    const QString name = ToQt(texts_.Shown(TextId::OutputWindow));
    setWindowTitle(name);
    txbOutput->setAccessibleName(name);
}

void frmLargeDisplay::OfferPauseAndStop() {
    SetCaptions({CopyButton::Pause, true});
    SetCopyToClipboardButton();
}

bool frmLargeDisplay::Stopped() const {
    return !State().stop;
}

bool frmLargeDisplay::eventFilter(QObject* watched, QEvent* event) {
    if (watched == txbOutput && event->type() == QEvent::KeyPress && txbOutput->textCursor().hasSelection() &&
        IsEnterKey(static_cast<QKeyEvent*>(event)->key())) {
        OnCopyToClipboard();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

bool frmLargeDisplay::event(QEvent* event) {
    const bool taken = QWidget::event(event);
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Polish) KeepLeastSize();
    return taken;
}

void frmLargeDisplay::moveEvent(QMoveEvent* event) {
    QWidget::moveEvent(event);
    if (isVisible()) frame_ = FrameSize(*this);
}

void frmLargeDisplay::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    Q_EMIT PauseOver();
}

void frmLargeDisplay::closeEvent(QCloseEvent* event) {
    // A close that is not the user's is the end of the program, which nothing holds up.
    const bool closes = CloseOrStop();
    event->setAccepted(closes || !event->spontaneous());
}

void frmLargeDisplay::OnCopyToClipboard() {
    const ButtonState state = State();
    switch (state.copy) {
        case CopyButton::Pause:
            SetCaptions({CopyButton::Continue, state.stop});
            Pause();
            if (!isVisible()) return;
            break;
        case CopyButton::Continue:
            SetCaptions({CopyButton::Pause, state.stop});
            paused_ = false;
            Q_EMIT PauseOver();
            break;
        case CopyButton::Copy:
        case CopyButton::CopySelected: Copy(); break;
    }
    SetCopyToClipboardButton();
}

// The selected part, or everything; nothing is selected afterwards.
void frmLargeDisplay::Copy() {
    const std::string selected = SelectedCrLfText(*txbOutput);
    clipboard_.Clear();
    clipboard_.SetText(selected.empty() ? CrLfText(*txbOutput) : selected);
    QTextCursor caret = txbOutput->textCursor();
    caret.setPosition(caret.selectionStart());
    txbOutput->setTextCursor(caret);
}

// Waits, with the window alive, until the user continues, the window is hidden or the program ends.
void frmLargeDisplay::Pause() {
    paused_ = true;
    SetCopyToClipboardButton();
    QEventLoop loop;
    connect(this, &frmLargeDisplay::PauseOver, &loop, &QEventLoop::quit);
    while (paused_ && isVisible() && loop.exec() == 0) continue;
}

// What a click on cmdClose begins.
// returns true when the window is to be hidden
bool frmLargeDisplay::CloseOrStop() {
    const ButtonState state = State();
    if (state.stop) {
        SetCaptions({state.copy, false});
        cmdCopyToClipboard->setEnabled(true);
        return false;
    }
    setWindowState(windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized));
    return true;
}

void frmLargeDisplay::UpdateCopyButton() {
    const ButtonState state = State();
    if (state.copy == CopyButton::Pause) {
        SetCopyButtonWidth(4000, 2000);
    } else if (state.copy == CopyButton::Continue) {
        SetCopyButtonWidth(3000, 2000);
    } else if (txbOutput->textCursor().hasSelection()) {
        SetCaptions({CopyButton::CopySelected, state.stop});
        SetCopyButtonWidth(3500, 3500);
    } else {
        SetCaptions({CopyButton::Copy, state.stop});
        SetCopyButtonWidth(3500, 2500);
    }
}

frmLargeDisplay::ButtonState frmLargeDisplay::State() const {
    const QString caption = Caption(*cmdCopyToClipboard);
    ButtonState state;
    for (const CopyButton copy : {CopyButton::CopySelected, CopyButton::Pause, CopyButton::Continue}) {
        if (caption == CaptionFor(copy)) state.copy = copy;
    }
    state.stop = Caption(*cmdClose) == kStop;
    return state;
}

void frmLargeDisplay::SetCaptions(ButtonState state) {
    const QStringList captions = WithMnemonics({CaptionFor(state.copy), state.stop ? kStop : kClose});
    cmdCopyToClipboard->setText(captions[0]);
    cmdClose->setText(captions[1]);
}

// Widths in twips by the language of numbered texts; never narrower than the caption.
void frmLargeDisplay::SetCopyButtonWidth(int german, int other) {
    const int width = TwipsToPixels(texts_.TextLanguage == LanguageGerman ? german : other);
    cmdCopyToClipboard->setFixedWidth(std::max(width, cmdCopyToClipboard->sizeHint().width()));
    layout()->activate();
}

void frmLargeDisplay::ArrangeControls() {
    const int text = TwipsToPixels(kTextMargin);
    const int beside = TwipsToPixels(kButtonMargin) - text;
    auto* buttons = new QHBoxLayout;
    buttons->setContentsMargins(beside, 0, beside, 0);
    buttons->addWidget(cmdCopyToClipboard);
    buttons->addStretch();
    buttons->addWidget(cmdClose);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(text, text, text,
                               TwipsToPixels(kBelowButtons) - TwipsToPixels(kTitleBarHeight));
    column->setSpacing(text);
    column->addWidget(txbOutput, 1);
    column->addLayout(buttons);
    KeepLeastSize();
}

void frmLargeDisplay::KeepLeastSize() {
    const QSize described(TwipsToPixels(kLeastWidth), TwipsToPixels(kLeastHeight));
    setMinimumSize(described.expandedTo(layout()->minimumSize()).boundedTo(screen()->availableSize()));
}

}  // namespace calvoro
