#include "mainwindow/frmClearOneTextBox.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "compute/ComputeMessages.h"
#include "mainwindow/FramedFocusButton.h"
#include "windows/Mnemonics.h"
#include "windows/Placement.h"
#include "windows/QtText.h"
#include "windows/ScrollingPage.h"
#include "windows/Twips.h"

namespace calvoro {
namespace {

// Twips from the main window's top left corner.
constexpr int kTopOffset = 2850;
constexpr int kLeftOffset = 50;

QRadioButton* MakeOption(QWidget* dialog, const char* name) {
    auto* option = new QRadioButton(dialog);
    option->setObjectName(QLatin1String(name));
    return option;
}

}  // namespace

frmClearOneTextBox::frmClearOneTextBox(QWidget& mainWindow, const Texts& texts)
    : QDialog(&mainWindow),
      mainWindow_(mainWindow),
      texts_(texts),
      lblMessage(new QLabel(this)),
      optClearFirstDate(MakeOption(this, "optClearFirstDate")),
      optClearDateDiff(MakeOption(this, "optClearDateDiff")),
      optClearSecondDate(MakeOption(this, "optClearSecondDate")),
      optCancel(MakeOption(this, "optCancel")),
      cmdContinue(new FramedFocusButton(this)) {
    setObjectName(QStringLiteral("frmClearOneTextBox"));
    setModal(true);
    cmdContinue->setObjectName(QStringLiteral("cmdContinue"));
    cmdContinue->setDefault(true);
    optClearDateDiff->setChecked(true);

    lblMessage->setObjectName(QStringLiteral("lblMessage"));
    lblMessage->setTextFormat(Qt::PlainText);

    auto* column = new QVBoxLayout(&(new ScrollingPage(*this))->Page());
    column->addWidget(lblMessage);
    for (QRadioButton* option : {optClearFirstDate, optClearDateDiff, optClearSecondDate, optCancel}) {
        column->addWidget(option);
    }
    column->addStretch();
    column->addWidget(cmdContinue, 0, Qt::AlignRight);

    connect(cmdContinue, &QPushButton::clicked, this, &QDialog::accept);
}

std::optional<InputBox> frmClearOneTextBox::Ask() {
    if (optCancel->isChecked()) optClearDateDiff->setChecked(true);
    SetCaptions();
    Place();
    for (QRadioButton* option : {optClearFirstDate, optClearDateDiff, optClearSecondDate}) {
        if (option->isChecked()) option->setFocus();
    }
    exec();
    if (optClearFirstDate->isChecked()) return InputBox::FirstDate;
    if (optClearDateDiff->isChecked()) return InputBox::Difference;
    if (optClearSecondDate->isChecked()) return InputBox::SecondDate;
    return std::nullopt;
}

void frmClearOneTextBox::reject() {
    optCancel->setChecked(true);
    QDialog::reject();
}

void frmClearOneTextBox::keyPressEvent(QKeyEvent* event) {
    // The Enter that asked for the computation, when it is still held down, is no answer.
    if (!event->isAutoRepeat()) QDialog::keyPressEvent(event);
}

// The toolkit frames what has the focus from the first key on only; here one must see what Enter would take.
void frmClearOneTextBox::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    setAttribute(Qt::WA_KeyboardFocusChange);
}

void frmClearOneTextBox::SetCaptions() {
    const auto shown = [this](TextId id) { return ToQt(texts_.Shown(id)); };
    setWindowTitle(shown(TextId::Clear));
    QString message =
        ToQt(ComputeMessageText(ComputeMessage::DifferenceMustBeEmpty, texts_.InterfaceLanguage)).trimmed();
    lblMessage->setText(message.remove(QLatin1Char('\r')));
    WrapMessageWhereItMust();
    SetCaption(*optClearFirstDate, shown(TextId::FirstDate));
    SetCaption(*optClearDateDiff, shown(TextId::DateDifference));
    SetCaption(*optClearSecondDate, shown(TextId::SecondDate));
    SetCaption(*optCancel, shown(TextId::CancelThisOperation));
    SetCaption(*cmdContinue, shown(TextId::Continue));
    SetMnemonics({optClearFirstDate, optClearDateDiff, optClearSecondDate, optCancel, cmdContinue});
}

// The sentence has lines of its own; they are broken only where the screen is too narrow for them.
void frmClearOneTextBox::WrapMessageWhereItMust() {
    lblMessage->setWordWrap(false);
    const QMargins around = lblMessage->parentWidget()->layout()->contentsMargins();
    const int needed = around.left() + lblMessage->sizeHint().width() + around.right();
    lblMessage->setWordWrap(needed > RoomOnScreen(*this).width());
}

void frmClearOneTextBox::Place() {
    resize(sizeHint());
    MoveKeptOnScreen(
        *this,
        mainWindow_.frameGeometry().topLeft() + QPoint(TwipsToPixels(kLeftOffset), TwipsToPixels(kTopOffset)),
        FrameSize(mainWindow_));
}

}  // namespace calvoro
