#pragma once

// What every window must pass on every screen: it is no larger than the screen, everything in it can be
// reached, by scrolling where it must, and no word is wider or higher than its control.

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOption>
#include <QTest>
#include <QToolButton>
#include <string>

#include "windows/Mnemonics.h"

namespace calvoro {

inline std::string Described(const QWidget& control, const char* fault) {
    const QRect place = control.geometry();
    return QStringLiteral("%1 %2, %3 %4 x %5: %6 \"%7\"")
        .arg(control.objectName().isEmpty() ? QString::fromLatin1(control.metaObject()->className())
                                            : control.objectName())
        .arg(place.x())
        .arg(place.y())
        .arg(place.width())
        .arg(place.height())
        .arg(QLatin1String(fault), Caption(control))
        .toStdString();
}

/// The room that the words of a label need. The underlined letter is drawn apart from the others, without the
/// kerning that draws them together where they are measured as a whole.
inline QSize RoomForLabel(const QLabel& label) {
    if (label.wordWrap()) return {0, label.heightForWidth(label.width())};
    const qsizetype key = label.text().indexOf(QLatin1Char('&'));
    if (key < 0) return label.minimumSizeHint();
    const QString words = Caption(label);
    const QFontMetrics metrics = label.fontMetrics();
    return {metrics.horizontalAdvance(words.left(key)) + metrics.horizontalAdvance(words.at(key)) +
                metrics.horizontalAdvance(words.mid(key + 1)),
            label.minimumSizeHint().height()};
}

/// The room that the words of a control need.
inline QSize RoomForWords(const QWidget& control) {
    if (const auto* label = qobject_cast<const QLabel*>(&control)) return RoomForLabel(*label);
    if (qobject_cast<const QToolButton*>(&control) != nullptr) return {};
    if (qobject_cast<const QAbstractButton*>(&control) != nullptr) return control.minimumSizeHint();
    if (qobject_cast<const QComboBox*>(&control) != nullptr) return control.sizeHint();
    if (const auto* group = qobject_cast<const QGroupBox*>(&control)) {
        return {group->fontMetrics().horizontalAdvance(group->title()), 0};
    }
    if (qobject_cast<const QLineEdit*>(&control) != nullptr) return {0, control.minimumSizeHint().height()};
    return {};
}

/// Checks a window that is shown.
/// checked  grows by the number of controls that were looked at
inline void CheckReachable(const QWidget& window, int& checked) {
    const QRect screen = window.screen()->availableGeometry();
    QVERIFY2(screen.contains(window.frameGeometry()),
             Described(window, "is not wholly on the screen").c_str());
    for (const QWidget* control : window.findChildren<QWidget*>()) {
        if (!control->isVisibleTo(&window) || control->isWindow() || control->size().isEmpty()) continue;
        const QWidget& parent = *control->parentWidget();
        // A page is reached by its scroll bars, the text of a box as well.
        const auto* scrolled = qobject_cast<const QAbstractScrollArea*>(parent.parentWidget());
        if (const auto* area = qobject_cast<const QScrollArea*>(scrolled);
            area != nullptr && area->widget() == control) {
            const QSize hidden = control->size() - area->viewport()->size();
            QVERIFY2(area->horizontalScrollBar()->maximum() >= hidden.width() &&
                         area->verticalScrollBar()->maximum() >= hidden.height(),
                     Described(*control, "cannot be scrolled to its end").c_str());
            continue;
        }
        ++checked;
        QVERIFY2(parent.rect().contains(control->geometry()),
                 Described(*control, "is outside its parent").c_str());
        const QSize needed = RoomForWords(*control);
        QVERIFY2(control->width() >= needed.width() && control->height() >= needed.height(),
                 Described(*control, "is smaller than its words").c_str());
    }
}

}  // namespace calvoro
