// The month window in German, and from one language to the other.

#include "tests/windows/September.h"

namespace calvoro {

class frmDisplayMonthLanguageTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void InAGermanInterfaceTheButtonForIsoDatesIsGermanFromTheStart() {
        MonthWindow english;
        QCOMPARE(english.IsoCaption(), QStringLiteral("Display ISO Week dates"));
        FakePlatform fake;
        Texts texts;
        texts.InterfaceLanguage = LanguageGerman;
        QWidget mainWindow;
        const frmDisplayMonth german(fake.platform, texts, mainWindow, [] { return true; });
        QCOMPARE(CaptionOf(german, "cmdShowHideISO"), QStringLiteral("ISO-Woche-Daten zeigen"));
        QCOMPARE(texts.TextLanguage, LanguageEnglish);
    }

    void ALanguageSwitchRedrawsWhatIsShownWithoutMovingTheFocus() {
        September month;
        month.ShowIso();
        month.Year().setFocus();
        month.texts.InterfaceLanguage = LanguageGerman;
        month.window.SetLanguageDependentText();
        QCOMPARE(month.Grid(), std::string(" Mon  Die  Mit  Don  Fre  Sam  Son ") +
                                   kSeptember2024.substr(kSeptember2024.find("\r\n")));
        QVERIFY(month.IsoDates().starts_with("       M        D        M "));
        QCOMPARE(month.Months().currentText(), QStringLiteral("September"));
        QCOMPARE(month.Months().itemText(2), QStringLiteral("Maerz"));
        QCOMPARE(month.window.windowTitle(), QStringLiteral("Monat zeigen"));
        QCOMPARE(month.window.focusWidget(), &month.Year());
        // Deliberate: the caption of a column that is shown is a numbered text, which lags.
        QCOMPARE(month.IsoCaption(), QStringLiteral("Hide ISO Week dates"));
        QCOMPARE(month.texts.TextLanguage, LanguageEnglish);
    }

    void ALanguageSwitchWithABadYearHasNoMessage() {
        September month;
        month.Year().setText(QStringLiteral("x"));
        month.texts.InterfaceLanguage = LanguageGerman;
        month.window.SetLanguageDependentText();
        QVERIFY(month.fake.boxes.shown.empty());
        QCOMPARE(month.Grid(), kSeptember2024);
    }

    void CopiesInGerman() {
        September month;
        month.texts.InterfaceLanguage = LanguageGerman;
        month.window.SetLanguageDependentText();
        month.ActivateAgain();
        ClickOn(month.Button("cmdDisplay"));
        month.ShowIso();
        ClickOn(month.Button("cmdCopyToClipboard"));
        QVERIFY(month.Clipboard().starts_with(
            "September 2024 (Common Era Kalender)\r\n\r\n Mon  Die  Mit  Don "));
        QVERIFY(month.Clipboard().find("\r\n\r\nISO-8601-Woche-Daten:\r\n\r\n       M        D        M ") !=
                std::string::npos);
    }

    void ActivationFollowsTheLanguageAndKeepsTheMonth() {
        MonthWindow month;
        month.texts.InterfaceLanguage = LanguageGerman;
        month.window.SetLanguageDependentText();
        QCOMPARE(month.texts.TextLanguage, LanguageEnglish);
        month.ShowMonth("2024", 3);
        QCOMPARE(month.texts.TextLanguage, LanguageGerman);
        QCOMPARE(month.window.windowTitle(), QStringLiteral("Monat zeigen"));
        QCOMPARE(month.Months().currentText(), QStringLiteral("Maerz"));

        month.texts.InterfaceLanguage = LanguageEnglish;
        month.ActivateAgain();
        QCOMPARE(month.texts.TextLanguage, LanguageEnglish);
        QCOMPARE(month.window.windowTitle(), QStringLiteral("Display month"));
        QCOMPARE(month.Months().currentText(), QStringLiteral("March"));
    }

    void CaptionsAreGermanWithKeysOfTheirOwn() {
        MonthWindow month;
        CheckKeysAreUnique(month.window, 13);
        month.texts.InterfaceLanguage = LanguageGerman;
        month.window.SetLanguageDependentText();
        CheckKeysAreUnique(month.window, 13);
        const auto caption = [&month](const char* name) { return CaptionOf(month.window, name); };
        QCOMPARE(caption("cmdDisplayNextMonth0"), QStringLiteral("Folgender Monat zeigen"));
        QCOMPARE(caption("cmdDisplayNextMonth1"), QStringLiteral("Vorhergehender Monat zeigen"));
        QCOMPARE(caption("cmdShowHideISO"), QStringLiteral("ISO-Woche-Daten zeigen"));
        QCOMPARE(caption("chkWithYear"), QStringLiteral("mit letzter Ziffer des Jahres"));
        QCOMPARE(caption("lblYear"), QStringLiteral("Jahr"));
        QCOMPARE(month.Of<QGroupBox>("fraFirstDayOfWeek").title(), QStringLiteral("Erster Tag der Woche"));
        QCOMPARE(caption("cmdDisplay"), QStringLiteral("Monat zeigen"));
        QCOMPARE(caption("cmdClose"), QStringLiteral("Schliessen"));
        QCOMPARE(caption("optJulian"), QStringLiteral("Julianisch"));
        QCOMPARE(caption("optMonday"), QStringLiteral("Montag"));
    }
};

}  // namespace calvoro

QTEST_MAIN(calvoro::frmDisplayMonthLanguageTest)
#include "frmDisplayMonthLanguageTest.moc"
