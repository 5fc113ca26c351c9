#pragma once

// What the tests of windows share: controls found by name, and checks that every window must pass.

#include <QAbstractButton>
#include <QComboBox>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSet>
#include <QTest>
#include <string>
#include <string_view>
#include <vector>

#include "windows/CrLfText.h"
#include "windows/Mnemonics.h"
#include "windows/QtText.h"

namespace QTest {

/// Lets a comparison of texts show them when they differ.
template <>
inline char* toString(const std::string& text) {
    return toString(calvoro::ToQt(text));
}

}  // namespace QTest

namespace calvoro {

/// The control of this name; a window without it ends the test program.
template <typename Kind>
Kind& Control(const QWidget& window, const char* name) {
    auto* control = window.findChild<Kind*>(QLatin1String(name));
    if (control == nullptr) qFatal("no control %s", name);
    return *control;
}

inline void ClickOn(QWidget& control) {
    QTest::mouseClick(&control, Qt::LeftButton);
}

/// A click on the small mark of an option button or check box, as a user does it.
inline void ClickOnMark(QAbstractButton& option) {
    QTest::mouseClick(&option, Qt::LeftButton, {}, {8, option.height() / 2});
}

inline QString CaptionOf(const QWidget& window, const char* name) {
    return Caption(Control<QWidget>(window, name));
}

inline std::string TextOf(const QWidget& window, const char* name) {
    return CrLfText(Control<QPlainTextEdit>(window, name));
}

inline std::string Lines(const std::vector<std::string_view>& lines) {
    std::string text;
    for (const std::string_view line : lines) {
        if (!text.empty()) text += "\r\n";
        text += line;
    }
    return text;
}

/// Every button and every labelled box of a window is reached by a key that nothing else in it has.
inline void CheckKeysAreUnique(const QWidget& window, int expectedCount) {
    QSet<QString> keys;
    int count = 0;
    const auto check = [&](const QString& caption) {
        const QString key = QKeySequence::mnemonic(caption).toString();
        QVERIFY2(!key.isEmpty(), qPrintable(caption));
        QVERIFY2(!keys.contains(key), qPrintable(caption));
        keys.insert(key);
        ++count;
    };
    for (const QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
        if (!button->text().isEmpty()) check(button->text());
    }
    for (const QLabel* label : window.findChildren<QLabel*>()) {
        if (label->buddy() != nullptr) check(label->text());
    }
    QCOMPARE(count, expectedCount);
}

/// Every control that takes the focus has a name for a screen reader.
inline void CheckAccessibleNames(const QWidget& window) {
    int count = 0;
    for (const QWidget* control : window.findChildren<QWidget*>()) {
        const bool named = qobject_cast<const QPlainTextEdit*>(control) != nullptr ||
                           qobject_cast<const QComboBox*>(control) != nullptr ||
                           (qobject_cast<const QLineEdit*>(control) != nullptr);
        if (!named) continue;
        QVERIFY2(!control->accessibleName().isEmpty(), qPrintable(control->objectName()));
        ++count;
    }
    QVERIFY(count > 0);
}

/// The names of the controls that Tab visits from the first one on, until it comes round.
inline QStringList TabOrderFrom(QWidget& first) {
    QStringList names;
    first.setFocus();
    QWidget* const window = first.window();
    while (!names.contains(window->focusWidget()->objectName())) {
        names.push_back(window->focusWidget()->objectName());
        QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
    }
    return names;
}

}  // namespace calvoro
