#include "windows/frmHelp.h"

#include <QCloseEvent>
#include <QShortcut>
#include <algorithm>

#include "platform/Twips.h"
#include "windows/CrLfText.h"
#include "windows/Mnemonics.h"
#include "windows/Placement.h"
#include "windows/WindowActivation.h"

namespace calvoro {
namespace {

// Twips.
constexpr int kFirstWidth = 9000;
constexpr int kFirstHeight = 7500;
constexpr int kLeastWidth = 4000;
constexpr int kLeastHeight = 4000;
constexpr int kInsideRight = 425;
constexpr int kInsideBottom = 125;
constexpr int kTextLeft = 200;
constexpr int kTextTop = 100;
constexpr int kWidthAround = 450;
constexpr int kHeightAroundActivated = 1000;
constexpr int kHeightAroundResized = 1100;
constexpr int kButtonGap = 100;

QString Shown(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

frmHelp::frmHelp(const Texts& texts, const HelpAddresses& addresses, QWidget& mainWindow)
    : texts_(texts),
      mainWindow_(mainWindow),
      helpText_(FillHelpText(addresses)),
      txbMsg(new QPlainTextEdit(this)),
      cmdClose(new QPushButton(this)) {
    setObjectName(QStringLiteral("frmHelp"));
    setAttribute(Qt::WA_QuitOnClose, false);

    txbMsg->setObjectName(QStringLiteral("txbMsg"));
    txbMsg->setReadOnly(true);
    txbMsg->setUndoRedoEnabled(false);
    txbMsg->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    txbMsg->setTabChangesFocus(true);

    cmdClose->setObjectName(QStringLiteral("cmdClose"));
    cmdClose->setAutoDefault(true);  // Enter presses it
    connect(cmdClose, &QPushButton::clicked, this, &QWidget::close);
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
    new WindowActivation(*this, [this] { OnActivated(); });

    resize(TwipsToPixels(kFirstWidth), TwipsToPixels(kFirstHeight));
}

void frmHelp::ShowHelp() {
    if (!placed_) {
        const QRect around = mainWindow_.frameGeometry();
        MoveKeptOnScreen(*this,
                         QPoint(around.left() + around.width() - width() - TwipsToPixels(kInsideRight),
                                around.top() + around.height() - height() - TwipsToPixels(kInsideBottom)));
        placed_ = true;
    }
    if (isMinimized()) {
        showNormal();
    } else {
        show();
    }
    raise();
    activateWindow();
}

void frmHelp::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (isMinimized()) return;
    ArrangeControls(kHeightAroundResized);
    cmdClose->move((width() - cmdClose->width()) / 2,
                   txbMsg->geometry().top() + txbMsg->height() + TwipsToPixels(kButtonGap));
}

void frmHelp::closeEvent(QCloseEvent* event) {
    if (mainWindow_.isVisible()) mainWindow_.activateWindow();
    event->accept();
}

void frmHelp::OnActivated() {
    setWindowTitle(QStringLiteral("Calvoro ") + Shown(texts_.Shown(TextId::Help)));
    SetCrLfText(*txbMsg, helpText_[static_cast<std::size_t>(texts_.InterfaceLanguage)]);
    txbMsg->setAccessibleName(Shown(texts_.Shown(TextId::Help)));
    SetCaption(*cmdClose, WithMnemonics({Shown(texts_.Shown(TextId::Close))}).first());
    if (!isMinimized() && !isMaximized()) ArrangeControls(kHeightAroundActivated);
}

void frmHelp::ArrangeControls(int heightAround) {
    cmdClose->resize(cmdClose->sizeHint());
    setMinimumSize(TwipsToPixels(kLeastWidth) + 1, TwipsToPixels(kLeastHeight) + 1);
    const int windowHeight = height() + TwipsToPixels(kTitleBarHeight);
    txbMsg->setGeometry(TwipsToPixels(kTextLeft), TwipsToPixels(kTextTop),
                        width() - TwipsToPixels(kWidthAround), windowHeight - TwipsToPixels(heightAround));
}

}  // namespace calvoro
