#pragma once

// An enlarged output window with another window beside it and fakes around it, fresh for every test.

#include <QWidget>

#include "tests/support/FakePlatform.h"
#include "tests/windows/WindowTesting.h"
#include "windows/Twips.h"
#include "windows/frmLargeDisplay.h"

namespace calvoro {

struct LargeWindow {
    FakePlatform fake;
    Texts texts;
    QWidget mainWindow;
    frmLargeDisplay window{fake.platform, texts};

    LargeWindow() { mainWindow.show(); }

    void Show() {
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
    }

    QPlainTextEdit& Box() { return Control<QPlainTextEdit>(window, "txbOutput"); }
    QPushButton& Copy() { return Control<QPushButton>(window, "cmdCopyToClipboard"); }
    QPushButton& Close() { return Control<QPushButton>(window, "cmdClose"); }
    std::string Text() { return TextOf(window, "txbOutput"); }

    QString CopyCaption() { return Caption(Copy()); }
    QString CloseCaption() { return Caption(Close()); }

    void Select(int first, int last) {
        QTextCursor caret = Box().textCursor();
        caret.setPosition(first);
        caret.setPosition(last, QTextCursor::KeepAnchor);
        Box().setTextCursor(caret);
    }
};

}  // namespace calvoro
