#include "windows/frmPopUp.h"

#include <QEvent>
#include <QEventLoop>
#include <QFrame>
#include <QScreen>
#include <algorithm>

#include "windows/Controls.h"
#include "windows/Placement.h"
#include "windows/QtText.h"
#include "windows/Twips.h"

namespace calvoro {
namespace {

constexpr int kDesignWidth = 3000;
constexpr int kDesignHeight = 600;

}  // namespace

frmPopUp::frmPopUp(QWidget* opener)
    : QDialog(opener, Qt::Dialog | Qt::FramelessWindowHint),
      lblMessage(Named(new QLabel(this), "lblMessage")),
      Timer1(Named(new QTimer(this), "Timer1")) {
    setObjectName(QStringLiteral("frmPopUp"));
    setAttribute(Qt::WA_QuitOnClose, false);

    lblMessage->setTextFormat(Qt::PlainText);
    lblMessage->setAlignment(Qt::AlignCenter);
    lblMessage->setFrameStyle(QFrame::Box | QFrame::Plain);
    lblMessage->installEventFilter(this);

    Timer1->setSingleShot(true);
    Timer1->setTimerType(Qt::PreciseTimer);
    connect(Timer1, &QTimer::timeout, this, &QDialog::reject);

    resize(TwipsToPixels(kDesignWidth), TwipsToPixels(kDesignHeight));
    lblMessage->resize(size());
}

void frmPopUp::PopUp(std::string_view message, std::int16_t width, std::int16_t height, std::int16_t interval,
                     int top, int left) {
    SetMessage(message);
    Place(width, height, top, left);
    lblMessage->resize(size());
    ShowFor(interval);
}

void frmPopUp::PopUpCenterScreen(std::string_view message, std::int16_t width, std::int16_t height,
                                 std::int16_t interval) {
    // Deliberate: the note before gives the size that is centred, so a note of another size is a little
    // off the middle.
    const QRect place = screen()->geometry();
    const int top = PixelsToTwips(place.top()) +
                    HalfToEven(PixelsToTwips(place.height()) - PixelsToTwips(this->height()));
    const int left =
        PixelsToTwips(place.left()) + HalfToEven(PixelsToTwips(place.width()) - PixelsToTwips(this->width()));
    PopUp(message, width, height, interval, top, left);
}

void frmPopUp::PopUpYesNo(std::string_view message, std::int16_t width, std::int16_t height,
                          std::int16_t interval, int top, int left, bool& result) {
    answer_ = false;
    PopUp(message, width, height, interval, top, left);
    result = answer_;
}

std::optional<bool> frmPopUp::PopUpYesNoCenterScreen(std::string_view message, std::int16_t width,
                                                     std::int16_t height, std::int16_t interval) {
    PopUpCenterScreen(message, width, height, interval);
    return std::nullopt;
}

void frmPopUp::PopUpInForm(const QWidget& window, std::string_view message, std::int16_t width,
                           std::int16_t height, std::int16_t interval, int topOffset, int leftOffset) {
    const QPoint corner = window.frameGeometry().topLeft();
    SetMessage(message);
    Place(width, height, PixelsToTwips(corner.y()) + topOffset, PixelsToTwips(corner.x()) + leftOffset);
    // Deliberate: the message is made as wide as the note and keeps the height it had.
    lblMessage->resize(this->width(), lblMessage->height());
    ShowFor(interval);
}

void frmPopUp::done(int result) {
    Timer1->stop();
    QDialog::done(result);
}

bool frmPopUp::eventFilter(QObject* watched, QEvent* event) {
    if (watched == lblMessage && event->type() == QEvent::MouseButtonPress) {
        reject();
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

void frmPopUp::SetMessage(std::string_view message) {
    lblMessage->setText(ToQt(message));
    setAccessibleName(lblMessage->text());
}

void frmPopUp::Place(std::int16_t width, std::int16_t height, int top, int left) {
    const QSize wanted(TwipsToPixels(width), TwipsToPixels(height));
    resize(wanted.expandedTo(lblMessage->sizeHint()));
    MoveKeptOnScreen(*this, {TwipsToPixels(left), TwipsToPixels(top)});
}

void frmPopUp::ShowFor(std::int16_t interval) {
    Timer1->stop();
    if (interval > 0) Timer1->start(interval);
    if (!isVisible()) {
        exec();
        return;
    }
    // It stood already, and whoever showed it waits for its end.
    QEventLoop untilItIsGone;
    connect(this, &QDialog::finished, &untilItIsGone, &QEventLoop::quit);
    untilItIsGone.exec();
}

}  // namespace calvoro
