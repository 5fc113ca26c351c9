#include "platform/qt/QtMessageBoxes.h"

#include <QApplication>
#include <QMessageBox>
#include <QString>

namespace calvoro {

namespace {

QString Shown(std::string_view text) {
    QString shown = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    shown.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    return shown;
}

QMessageBox::Icon IconFor(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::NoIcon: return QMessageBox::NoIcon;
        case MessageIcon::Exclamation: return QMessageBox::Warning;
        case MessageIcon::Critical: return QMessageBox::Critical;
    }
    return QMessageBox::NoIcon;
}

/// Texts may quote what a user typed, so they are never taken for markup.
void SetTexts(QMessageBox& box, std::string_view prompt, std::string_view title) {
    box.setTextFormat(Qt::PlainText);
    box.setText(Shown(prompt));
    box.setWindowTitle(Shown(title));
}

}  // namespace

void QtMessageBoxes::Show(std::string_view prompt, std::string_view title, MessageIcon icon) {
    QMessageBox box(QApplication::activeWindow());
    SetTexts(box, prompt, title);
    box.setIcon(IconFor(icon));
    box.setStandardButtons(QMessageBox::Ok);
    box.exec();
}

bool QtMessageBoxes::AskYesNo(std::string_view prompt, std::string_view title) {
    QMessageBox box(QApplication::activeWindow());
    SetTexts(box, prompt, title);
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box.setDefaultButton(QMessageBox::No);
    box.setEscapeButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

}  // namespace calvoro
