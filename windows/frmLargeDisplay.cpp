#include "windows/frmLargeDisplay.h"

#include <QCloseEvent>
#include <QEventLoop>
#include <QKeyEvent>
#include <QScreen>
#include <QShortcut>
#include <algorithm>

#include "platform/Twips.h"
#include "windows/CaptionButton.h"
#include "windows/Controls.h"
#include "windows/CrLfText.h"
#include "windows/FixedPitchBox.h"
#include "windows/Mnemonics.h"
#include "windows/Placement.h"
#include "windows/QtText.h"
#include "windows/WindowActivation.h"

namespace calvoro {
namespace {

// Captions as state.
const QString kCopy = QStringLiteral("Copy to clipboard");
const QString kCopySelected = QStringLiteral("Copy selected text to clipboard");
const QString kPause = QStringLiteral("Pause");
const QString kContinue = QStringLiteral("Continue");
const QString kClose = QStringLiteral("Close");
const QString kStop = QStringLiteral("Stop");

// Twips.
constexpr int kLeastWidth = 6000;
constexpr int kLeastHeight = 3000;
constexpr int kFirstHeight = 6000;
constexpr int kTextLeft = 150;
constexpr int kTextTop = 150;
constexpr int kCopyLeft = 330;

bool IsEnter(const QKeyEvent& key) {
    return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

}  // namespace

frmLargeDisplay::frmLargeDisplay(const Platform& platform, const Texts& texts)
    : clipboard_(platform.clipboard),
      texts_(texts),
      txbOutput(Named(new QPlainTextEdit(this), "txbOutput")),
      cmdCopyToClipboard(Named(new CaptionButton(this), "cmdCopyToClipboard")),
      cmdClose(Named(new CaptionButton(this), "cmdClose")) {
    setObjectName(QStringLiteral("frmLargeDisplay"));
    setAttribute(Qt::WA_QuitOnClose, false);

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

    SetCaptions(kCopy, kClose);
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

void frmLargeDisplay::WidenDisplayIfNeeded(std::string_view text, std::int16_t characterWidth,
                                           double screenShare) {
    const QRect place = screen()->geometry();
    const int widest = static_cast<int>(screenShare * place.width());
    if (buffer_.Overflowed() || width() >= widest) return;

    const qsizetype length = ToQt(text).size();
    const qsizetype needed = length * characterWidth / kTwipsPerPixel;
    if (width() >= needed) return;
    resize(static_cast<int>(std::min<qsizetype>(widest, needed)), height());
    move(place.left() + (place.width() - width()) / 2, y());
}

void frmLargeDisplay::SetCopyToClipboardButton() {
    UpdateCopyButton();
    if (WithoutMnemonic(cmdCopyToClipboard->text()) == kCopy && isVisible()) cmdClose->setFocus();
}

void frmLargeDisplay::DisplayArray(const std::vector<std::string>& texts, std::size_t first, std::size_t last,
                                   std::string_view /*path*/, bool group) {
    SetCrLfText(*txbOutput, ArrayText(buffer_, texts, first, last, group));
}

void frmLargeDisplay::Form_Activate() {
    setWindowState(windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized));
    txbOutput->setAccessibleName(ToQt(texts_.Shown(TextId::OutputWindow)));
    SetCopyToClipboardButton();
    SetCopyButtonWidth(4000, 2000);
    activated_ = true;
}

void frmLargeDisplay::OfferPauseAndStop() {
    SetCaptions(kPause, kStop);
    SetCopyToClipboardButton();
}

bool frmLargeDisplay::Stopped() const {
    return WithoutMnemonic(cmdClose->text()) != kStop;
}

bool frmLargeDisplay::eventFilter(QObject* watched, QEvent* event) {
    if (watched == txbOutput && event->type() == QEvent::KeyPress && txbOutput->textCursor().hasSelection() &&
        IsEnter(*static_cast<QKeyEvent*>(event))) {
        OnCopyToClipboard();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void frmLargeDisplay::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (!isMinimized()) ArrangeControls();
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
    const QString caption = WithoutMnemonic(cmdCopyToClipboard->text());
    if (caption == kPause) {
        SetCaptions(kContinue, WithoutMnemonic(cmdClose->text()));
        Pause();
        if (!isVisible()) return;
    } else if (caption == kContinue) {
        SetCaptions(kPause, WithoutMnemonic(cmdClose->text()));
        paused_ = false;
        Q_EMIT PauseOver();
    } else {
        const std::string selected = SelectedCrLfText(*txbOutput);
        clipboard_.Clear();
        clipboard_.SetText(selected.empty() ? CrLfText(*txbOutput) : selected);
        QTextCursor caret = txbOutput->textCursor();
        caret.setPosition(caret.selectionStart());
        txbOutput->setTextCursor(caret);
    }
    SetCopyToClipboardButton();
}

// Waits, with the window alive, until the user continues or the window is hidden.
void frmLargeDisplay::Pause() {
    paused_ = true;
    SetCopyToClipboardButton();
    QEventLoop loop;
    connect(this, &frmLargeDisplay::PauseOver, &loop, &QEventLoop::quit);
    loop.exec();
}

// What a click on cmdClose begins.
// returns true when the window is to be hidden
bool frmLargeDisplay::CloseOrStop() {
    if (!Stopped()) {
        SetCaptions(WithoutMnemonic(cmdCopyToClipboard->text()), kClose);
        cmdCopyToClipboard->setEnabled(true);
        return false;
    }
    setWindowState(windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized));
    return true;
}

void frmLargeDisplay::UpdateCopyButton() {
    const QString caption = WithoutMnemonic(cmdCopyToClipboard->text());
    const QString closeCaption = WithoutMnemonic(cmdClose->text());
    if (caption == kPause) {
        SetCopyButtonWidth(4000, 2000);
    } else if (caption == kContinue) {
        SetCopyButtonWidth(3000, 2000);
    } else if (txbOutput->textCursor().hasSelection()) {
        SetCaptions(kCopySelected, closeCaption);
        SetCopyButtonWidth(3500, 3500);
    } else {
        SetCaptions(kCopy, closeCaption);
        SetCopyButtonWidth(3500, 2500);
    }
}

void frmLargeDisplay::SetCaptions(const QString& copyCaption, const QString& closeCaption) {
    const QStringList captions = WithMnemonics({copyCaption, closeCaption});
    cmdCopyToClipboard->setText(captions[0]);
    cmdClose->setText(captions[1]);
    ArrangeControls();
}

// Widths in twips by the language of numbered texts; never narrower than the caption.
void frmLargeDisplay::SetCopyButtonWidth(int german, int other) {
    const int width = TwipsToPixels(texts_.TextLanguage == LanguageGerman ? german : other);
    cmdCopyToClipboard->resize(std::max(width, cmdCopyToClipboard->sizeHint().width()),
                               cmdCopyToClipboard->height());
    ArrangeControls();
}

void frmLargeDisplay::ArrangeControls() {
    const QSize closeSize = cmdClose->sizeHint();
    cmdClose->resize(closeSize);
    cmdCopyToClipboard->resize(std::max(cmdCopyToClipboard->width(), cmdCopyToClipboard->sizeHint().width()),
                               closeSize.height());
    const int buttonsWidth = cmdCopyToClipboard->width() + closeSize.width() + TwipsToPixels(3 * kCopyLeft);
    setMinimumSize(std::max(TwipsToPixels(kLeastWidth), buttonsWidth), TwipsToPixels(kLeastHeight));

    const int windowHeight = height() + TwipsToPixels(kTitleBarHeight);
    txbOutput->setGeometry(TwipsToPixels(kTextLeft), TwipsToPixels(kTextTop), width() - TwipsToPixels(300),
                           windowHeight - closeSize.height() - TwipsToPixels(1000));
    const int top = windowHeight - closeSize.height() - TwipsToPixels(700);
    cmdCopyToClipboard->move(TwipsToPixels(kCopyLeft), top);
    cmdClose->move(width() - closeSize.width() - TwipsToPixels(330), top);
}

}  // namespace calvoro
