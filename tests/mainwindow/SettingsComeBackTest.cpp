// The settings from one run of the main window to the next.

#include <QCheckBox>
#include <QRandomGenerator>
#include <fstream>

#include "mainwindow/settings/SettingsText.h"
#include "tests/mainwindow/MainWindowFixture.h"
#include "tests/mainwindow/settings/AllButFactory.h"

using namespace calvoro;

class SettingsComeBackTest : public QObject {
    Q_OBJECT

private:
    static void WriteRaw(const MainWindowFixture& main, const std::string& text) {
        SettingsFilePath(main.fake.place.folder, "Calvoro");
        std::ofstream(main.SettingsPath(), std::ios::binary) << text;
    }

private Q_SLOTS:
    void TheSavedFirstDateIsSelected() {
        MainWindowFixture main;
        Settings settings;
        settings.firstDate = "2024-03-15";
        main.StartWith(settings);
        QCOMPARE(main.Focused(), u"txbFirstDate"_s);
        QCOMPARE(main.Selected(u"txbFirstDate"_s), u"2024-03-15"_s);
    }

    void TheEndOfTheSavedOutputIsSeen() {
        MainWindowFixture main;
        Settings settings;
        for (int line = 0; line < 200; ++line) settings.output += "a result\r\n";
        main.StartWith(settings);
        const auto& output = main.Get<QPlainTextEdit>(u"txbOutput"_s);
        QTRY_VERIFY(output.viewport()->rect().contains(output.cursorRect()));
        QVERIFY(output.textCursor().position() > 1000);
    }

    void EverythingComesBack() {
        MainWindowFixture main;
        main.StartWith(AllButFactory());
        QCOMPARE(main.CaptionOf(u"cmdCompute"_s), u"Berechnen"_s);
        QCOMPARE(main.Boxes(), QStringList({"2024075", "1234", "2024W125"}));
        QCOMPARE(main.Output(), u"one \"quoted\" line\n, another\n\n"_s);
        QCOMPARE(main.Button(u"optSeparatorIsDot"_s).text(), u"31.12.2012"_s);
        QCOMPARE(main.Button(u"optFirstDateIsORD"_s).text(), u"Ordinaldatum (JJJJTTT)"_s);
        QVERIFY(!main.Button(u"chkIncludeFirstDate"_s).isEnabled());
        QCOMPARE(main.Get<QLabel>(u"lblTodaysDate"_s).text(), u"Heute ist Freitag, 2026-11-26"_s);
        main.Quit();
        QVERIFY(main.Saved() == AllButFactory());
    }

    void EveryCombinationOfFormatSeparatorsAndHyphenKeepsTheTexts_data() {
        QTest::addColumn<int>("format");
        QTest::addColumn<char>("separator");
        QTest::addColumn<char>("thousands");
        QTest::addColumn<bool>("hyphen");
        for (const int format : {0, 1, 2}) {
            for (const char separator : {'-', '/', '.'}) {
                for (const char thousands : {',', '.', kNoSeparator}) {
                    for (const bool hyphen : {false, true}) {
                        QTest::addRow("%d %c %d %d", format, separator, thousands, hyphen)
                            << format << separator << thousands << hyphen;
                    }
                }
            }
        }
    }
    void EveryCombinationOfFormatSeparatorsAndHyphenKeepsTheTexts() {
        QFETCH(int, format);
        QFETCH(char, separator);
        QFETCH(char, thousands);
        QFETCH(bool, hyphen);
        MainWindowFixture main;
        Settings settings;
        settings.dateFormat = static_cast<DateFormat>(format);
        settings.dateSeparator = separator;
        settings.thousandsSeparator = thousands;
        settings.hyphen = hyphen;
        settings.firstCalendar = CalendarNumber::JC;
        settings.secondCalendar = CalendarNumber::ISO;
        main.StartWith(settings);
        main.Click(u"cmdToday0"_s);
        main.Click(u"cmdToday1"_s);
        main.Click(u"cmdCompute"_s);
        const QStringList boxes = main.Boxes();
        const QString output = main.Output();
        QVERIFY(!output.isEmpty());
        main.Quit();

        main.Start();
        QCOMPARE(main.Boxes(), boxes);
        QCOMPARE(main.Output(), output);
        main.Click(u"cmdCompute"_s);
        QCOMPARE(main.Output(), output + output);
        main.Quit();
        settings = main.Saved();
        QCOMPARE(static_cast<int>(settings.dateFormat), format);
        QCOMPARE(settings.dateSeparator, separator);
        QCOMPARE(settings.thousandsSeparator, thousands);
        QCOMPARE(settings.hyphen, hyphen);
    }

    void TheCalendarsOfRestoredTextsAreRemembered() {
        MainWindowFixture main;
        Settings settings;
        settings.firstCalendar = CalendarNumber::JDN;
        settings.firstDate = "2460385";
        settings.secondCalendar = CalendarNumber::ISO;
        settings.secondDate = "2024-W11-5";
        main.StartWith(settings);
        main.Click(u"optFirstDateIsCE"_s);
        main.Click(u"optSecondDateIsORD"_s);
        QCOMPARE(main.Boxes(), QStringList({"2024-03-15", "", "2024-075"}));
    }

    void WithoutSavingTheTextsOnlyTheOptionsComeBack() {
        MainWindowFixture main;
        Settings settings = AllButFactory();
        settings.interfaceLanguage = LanguageEnglish;
        main.StartWith(settings);
        main.Click(u"chkSaveOutput"_s);
        main.Quit();
        main.Start();
        QCOMPARE(main.Boxes(), QStringList({"", "", ""}));
        QCOMPARE(main.Output(), QString());
        QVERIFY(main.Button(u"optFirstDateIsORD"_s).isChecked());
        QVERIFY(main.Button(u"optMonths"_s).isChecked());
        QVERIFY(!main.Button(u"chkSaveOutput"_s).isChecked());
    }

    void EverySettingComesBackByteForByte() {
        const QByteArrayList pieces = {"\r",          "\n",
                                       "\r\n",        "\u2028",
                                       "\u2029",      "\uFEFF",
                                       "\uFDD0",      "\uFFFF",
                                       "\U0010FFFF",  QByteArray(1, '\0'),
                                       "\x1B",        "\"",
                                       "\"\r\n0\r\n", "\xFF",
                                       "\xC3",        " ",
                                       "\t",          "\u00A0",
                                       "\u0301",      "\U0001F600",
                                       "2024-02-29",  QByteArray(1500, 'x')};
        QRandomGenerator random(20261121);
        const auto text = [&](bool lines) {
            QByteArray made;
            for (int count = random.bounded(12); count > 0; --count)
                made += pieces[random.bounded(pieces.size())];
            // A box holds no line break of the file.
            while (!lines && made.contains("\r\n")) made.replace("\r\n", "\n");
            return made.toStdString();
        };
        for (int round = 0; round < 40; ++round) {
            MainWindowFixture main;
            Settings settings = round % 2 == 0 ? AllButFactory() : Settings();
            settings.firstDate = text(false);
            settings.dateDiff = text(false);
            settings.secondDate = round == 0 ? std::string(40'000, '1') : text(false);
            settings.output = text(true);
            main.StartWith(settings);
            main.Quit();
            QVERIFY(main.Saved() == settings);
        }
    }

    void AFaultyFileGivesFactorySettingsSilently_data() {
        QTest::addColumn<QString>("text");
        const QString good = QString::fromStdString(SettingsText(AllButFactory()));
        QTest::newRow("empty") << "";
        QTest::newRow("cut after 9 lines") << good.section("\r\n", 0, 8) + "\r\n";
        QTest::newRow("cut inside a text") << good.left(good.indexOf("quoted"));
        QTest::newRow("rubbish") << QString(5000, u'\x07');
        QTest::newRow("a word for the language") << "German" + good.mid(1);
        QTest::newRow("language 3") << "3" + good.mid(1);
        QTest::newRow("two fields in line 2") << QString(good).replace("1,46,0", "1,46");
        QTest::newRow("a word in line 3") << QString(good).replace("8,4,6", "8,x,6");
    }
    void AFaultyFileGivesFactorySettingsSilently() {
        QFETCH(QString, text);
        MainWindowFixture main;
        WriteRaw(main, text.toStdString());
        main.Start();
        QVERIFY(main.Shown().empty());
        QCOMPARE(main.CaptionOf(u"cmdCompute"_s), u"Compute"_s);
        QVERIFY(main.LeavesFactorySettings());
    }

    void AFolderInTheFilesPlaceDisturbsNothing() {
        MainWindowFixture main;
        QVERIFY(QDir(main.folder.path()).mkpath(u"Calvoro/calvoro.usr"_s));
        main.Start();
        QVERIFY(main.Shown().empty());
        main.Quit();
        QVERIFY(main.Shown().empty());
    }

    void WithoutAnyPlaceForSettingsTheProgramStartsAndEnds() {
        MainWindowFixture main;
        main.fake.place.folder = "/proc/nowhere";
        main.Start();
        main.Quit();
        QVERIFY(main.Shown().empty());
    }

    void UnknownValuesFallBackToTheFirstOption() {
        MainWindowFixture main;
        std::string text = SettingsText(AllButFactory());
        text.replace(text.find("1,46,0"), 6, "7,99,99");
        text.replace(text.find("8,4,6"), 5, "3,3,5");
        WriteRaw(main, text);
        main.Start();
        for (const char* name : {"optDateFormatIsYMD", "optSeparatorIsDash", "optThousSepIsComma",
                                 "optFirstDateIsCE", "optSecondDateIsCE"}) {
            QVERIFY2(main.Button(name).isChecked(), name);
        }
        QVERIFY(main.Get<QLabel>(u"lblTodaysDate"_s).text().endsWith(u" CE"_s));
        QCOMPARE(main.Text(u"txbFirstDate"_s), u"2024075"_s);
    }

    void AThirdLanguageShowsEnglishAndStaysInTheFile() {
        MainWindowFixture main;
        Settings settings;
        settings.interfaceLanguage = LanguageSpanish;
        main.StartWith(settings);
        QCOMPARE(main.CaptionOf(u"cmdCompute"_s), u"Compute"_s);
        QCOMPARE(main.Button(u"optDateFormatIsMDY"_s).text(), u"mm-dd-yyyy"_s);
        QCOMPARE(main.Get<QLabel>(u"lblTodaysDate"_s).text(), u"Today is Friday, 2026-11-20 CE"_s);
        QVERIFY(!main.Button(u"optLanguageIsEnglish"_s).isChecked());
        QVERIFY(!main.Button(u"optLanguageIsGerman"_s).isChecked());
        // The computation's messages exist in Spanish.
        main.Fill(u"x"_s, QString(), QString());
        main.Click(u"cmdCompute"_s);
        QCOMPARE(main.Shown().back().prompt,
                 std::string("La primera fecha no es válida en un calendario especificado."));
        main.Quit();
        QCOMPARE(main.Saved().interfaceLanguage, LanguageSpanish);
        main.Start();
        main.Click(u"optLanguageIsEnglish"_s);
        QVERIFY(main.Button(u"optLanguageIsEnglish"_s).isChecked());
        main.Quit();
        QCOMPARE(main.Saved().interfaceLanguage, LanguageEnglish);
    }

    void AMissingFolderIsMadeAgain() {
        MainWindowFixture main;
        main.StartWith(AllButFactory());
        main.Quit();
        QVERIFY(QDir(main.folder.path() + "/Calvoro").removeRecursively());
        main.Start();
        QVERIFY(QDir(main.folder.path() + "/Calvoro").exists());
        QVERIFY(main.LeavesFactorySettings());
    }

    void TheFileIsWrittenAtTheEndOnly() {
        MainWindowFixture main;
        main.Start();
        main.Click(u"chkVerbose"_s);
        main.Click(u"optLanguageIsGerman"_s);
        QVERIFY(!QFile::exists(QString::fromStdString(main.SettingsPath())));
        main.Quit();
        QVERIFY(QFile::exists(QString::fromStdString(main.SettingsPath())));
    }
};

QTEST_MAIN(SettingsComeBackTest)
#include "SettingsComeBackTest.moc"
