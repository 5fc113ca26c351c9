#pragma once

// A month window with a main window beside it and fakes around it, fresh for every test.

#include <QWidget>

#include "tests/support/FakePlatform.h"
#include "tests/windows/WindowTesting.h"
#include "windows/frmDisplayMonth.h"

namespace calvoro {

struct MonthWindow {
    FakePlatform fake;
    Texts texts;
    bool ready = true;
    QWidget mainWindow;
    frmDisplayMonth window{fake.platform, texts, mainWindow, [this] { return ready; }};

    MonthWindow() {
        mainWindow.setGeometry(20, 30, 500, 400);
        mainWindow.show();
    }

    void ShowMonth(std::string_view year, int month, CalendarNumber calendar = CalendarNumber::CE) {
        window.ShowMonth(year, month, calendar);
        QVERIFY(QTest::qWaitForWindowActive(&window));
    }

    /// Leaves for the main window and comes back.
    void ActivateAgain() {
        mainWindow.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&mainWindow));
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
    }

    template <typename Kind>
    Kind& Of(const char* name) {
        return Control<Kind>(window, name);
    }
    QPushButton& Button(const char* name) { return Of<QPushButton>(name); }
    QRadioButton& Option(const char* name) { return Of<QRadioButton>(name); }
    QComboBox& Months() { return Of<QComboBox>("cboMonths"); }
    QLineEdit& Year() { return Of<QLineEdit>("txbYear"); }

    std::string Grid() { return TextOf(window, "txbMonth"); }
    std::string IsoDates() { return TextOf(window, "txbISODates"); }
    bool IsoBoxShown() { return !Of<QPlainTextEdit>("txbISODates").isHidden(); }
    QString IsoCaption() { return CaptionOf(window, "cmdShowHideISO"); }
    std::string Clipboard() const { return fake.clipboard.text; }

    /// "September 2024", as the controls tell it.
    QString ControlsTell() { return Months().currentText() + QLatin1Char(' ') + Year().text(); }
};

}  // namespace calvoro
