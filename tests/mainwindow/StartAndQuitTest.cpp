// Start-up, the settings from one run to the next, Reset and Quit.

#include <QCheckBox>
#include <QRandomGenerator>
#include <fstream>

#include "mainwindow/StartUpTexts.h"
#include "mainwindow/settings/SettingsText.h"
#include "tests/mainwindow/MainWindowFixture.h"

using namespace calvoro;

class StartAndQuitTest : public QObject {
    Q_OBJECT

private:
    static Settings AllButFactory() {
        Settings settings;
        settings.interfaceLanguage = LanguageGerman;
        settings.dateFormat = DateFormat::DMY;
        settings.dateSeparator = '.';
        settings.thousandsSeparator = kNoSeparator;
        settings.todayCalendar = CalendarNumber::LPM;
        settings.firstCalendar = CalendarNumber::ORD;
        settings.secondCalendar = CalendarNumber::ISO;
        settings.includeFirstDate = true;
        settings.includeWeekends = false;
        settings.verbose = false;
        settings.hyphen = false;
        settings.monthWeekStart = WeekStart::Monday;
        settings.monthCalendar = CalendarNumber::JC;
        settings.firstDate = "2024075";
        settings.dateDiff = "1234";
        settings.secondDate = "2024W125";
        settings.output = "one \"quoted\" line\r\n, another\r\n\r\n";
        settings.differenceUnit = DifferenceUnit::Months;
        return settings;
    }

    static void WriteRaw(const MainWindowFixture& main, const std::string& text) {
        SettingsFilePath(main.fake.place.folder, "Calvoro");
        std::ofstream(main.SettingsPath(), std::ios::binary) << text;
    }

    // What a run without anything saved before leaves behind.
    static void CompareWithFactory(MainWindowFixture& main) {
        main.Quit();
        QVERIFY(main.Saved() == Settings());
    }

private Q_SLOTS:
    void ProgramTextsThatCannotBeLoadedAreToldInACriticalBoxWithoutATitle_data() {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("message");
        const QString missing = u"Cannot open file containing program text."_s;
        QTest::newRow("missing") << QByteArray() << missing;
        QTest::newRow("faulty") << QByteArray("1\tone\n1\tone\n")
                                << u"Duplicate in program text at line 2."_s;
    }
    void ProgramTextsThatCannotBeLoadedAreToldInACriticalBoxWithoutATitle() {
        QFETCH(QByteArray, content);
        QFETCH(QString, message);
        const QTemporaryDir folder;
        const std::string path = folder.path().toStdString() + "/calvoro.dat";
        if (!content.isEmpty()) std::ofstream(path, std::ios::binary) << content.toStdString();
        FakeMessageBoxes boxes;
        QVERIFY(!LoadTextsOrTell(folder.path().toStdString(), boxes));
        QCOMPARE(boxes.shown.size(), 1U);
        const ShownMessage& shown = boxes.shown.front();
        QVERIFY2(QString::fromStdString(shown.prompt).startsWith(message), shown.prompt.c_str());
        QCOMPARE(shown.title, std::string());
        QVERIFY(shown.icon == MessageIcon::Critical);
    }

    void ProgramTextsThatLoadAreNotToldOf() {
        FakeMessageBoxes boxes;
        QVERIFY(LoadTextsOrTell(CALVORO_SOURCE_DIR "/text", boxes));
        QVERIFY(boxes.shown.empty());
    }

    void TheWindowShowsTheTextsThatItIsGiven() {
        const QTemporaryDir programFolder;
        std::ofstream(programFolder.path().toStdString() + "/calvoro.dat", std::ios::binary)
            << "18\tThis\n19\tis\n20\tanother.\n310\tElsewhere\n";
        MainWindowFixture main;
        const std::optional<Texts> loaded =
            LoadTextsOrTell(programFolder.path().toStdString(), main.fake.boxes);
        QVERIFY(loaded);
        main.texts = *loaded;
        main.Start();
        main.fake.boxes.answers = {true};
        main.Click(u"cmdReset"_s);
        QCOMPARE(main.fake.boxes.asked.back().prompt, std::string("This\r\nis\r\nanother."));
        main.window->QuitAndSave();
        QVERIFY(QFile::exists(main.folder.filePath(u"Elsewhere/calvoro.usr"_s)));
    }

    void TheFirstRunStartsWithFactorySettings() {
        MainWindowFixture main;
        main.Start();
        QCOMPARE(main.window->windowTitle(), u"Calvoro 13.0"_s);
        QVERIFY(main.window->isVisible());
        QCOMPARE(main.Boxes(), QStringList({"", "", ""}));
        QCOMPARE(main.Output(), QString());
        for (const char* name : {"optDateFormatIsYMD", "optSeparatorIsDash", "optThousSepIsComma", "optDays",
                                 "optFirstDateIsCE", "optSecondDateIsCE", "optLanguageIsEnglish",
                                 "chkIncludeWeekends", "chkVerbose", "chkHyphen", "chkSaveOutput"}) {
            QVERIFY2(main.Button(name).isChecked(), name);
        }
        QVERIFY(!main.Button(u"chkIncludeFirstDate"_s).isChecked());
        QVERIFY(main.Button(u"chkSaveOutput"_s).isEnabled());
        for (const char* name : {"cmdClearOutputWindow", "cmdEnlarge", "cmdCopyToClipboard"}) {
            QVERIFY2(!main.Button(name).isEnabled(), name);
        }
        QCOMPARE(main.Focused(), u"txbFirstDate"_s);
        QVERIFY(main.Shown().empty());
        CompareWithFactory(main);
    }

    void NothingButTheMainWindowIsMadeAtStart() {
        MainWindowFixture main;
        main.Start();
        QCOMPARE(QApplication::topLevelWidgets(), QWidgetList({main.window.get()}));
    }

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
        CompareWithFactory(main);
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
        CompareWithFactory(main);
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

    void ResetAsksFirst_data() {
        QTest::addColumn<bool>("yes");
        QTest::newRow("No") << false;
        QTest::newRow("Yes") << true;
    }
    void ResetAsksFirst() {
        QFETCH(bool, yes);
        MainWindowFixture main;
        main.StartWith(AllButFactory());
        main.fake.boxes.answers = {yes};
        main.Click(u"cmdReset"_s);
        QCOMPARE(main.fake.boxes.asked.size(), 1U);
        QCOMPARE(main.fake.boxes.asked.front().prompt,
                 std::string("This deletes the settings file, restores all options\r\n"
                             "to their original values and empties all boxes.\r\nDo you want to continue?"));
        QCOMPARE(main.fake.boxes.asked.front().title, std::string("Rueckstellen"));
        QVERIFY(main.fake.Settled());
        QCOMPARE(QFile::exists(QString::fromStdString(main.SettingsPath())), !yes);
        QCOMPARE(main.Focused(), yes ? u"txbFirstDate"_s : u"cmdCompute"_s);
        if (yes) {
            QCOMPARE(main.CaptionOf(u"cmdCompute"_s), u"Compute"_s);
            QCOMPARE(main.Get<QLabel>(u"lblTodaysDate"_s).text(), u"Today is Friday, 2026-11-20 CE"_s);
            QVERIFY(main.Button(u"chkIncludeFirstDate"_s).isEnabled());
            QCOMPARE(main.Button(u"optFirstDateIsORD"_s).text(), u"Ordinal date (yyyy-ddd)"_s);
        }
        main.Quit();
        QVERIFY(main.Saved() == (yes ? Settings() : AllButFactory()));
    }

    void ResetWithoutAFileIsNoError() {
        MainWindowFixture main;
        main.Start();
        main.fake.boxes.answers = {true};
        main.Click(u"cmdReset"_s);
        QVERIFY(main.Shown().empty());
        CompareWithFactory(main);
    }

    void EveryWayOfEndingSavesOnceAndEndsTheLoop_data() {
        QTest::addColumn<QString>("way");
        for (const char* way : {"button", "Ctrl+Q", "frame", "call"}) QTest::newRow(way) << way;
    }
    void EveryWayOfEndingSavesOnceAndEndsTheLoop() {
        QFETCH(QString, way);
        MainWindowFixture main;
        main.Start();
        main.Fill(u"2024-03-15"_s, QString(), QString());
        main.Click(u"cmdDisplayMonth"_s);
        main.Click(u"cmdHelp"_s);
        QTimer::singleShot(0, main.window.get(), [&main, way] {
            if (way == "button") main.Click(u"cmdQuit"_s);
            if (way == "Ctrl+Q") QTest::keyClick(main.window.get(), Qt::Key_Q, Qt::ControlModifier);
            if (way == "frame") main.window->close();
            if (way == "call") main.window->QuitAndSave();
        });
        QCOMPARE(QCoreApplication::exec(), 0);
        QCOMPARE(main.Saved().firstDate, std::string("2024-03-15"));

        // Whatever asks for the end a second time finds it saved.
        QVERIFY(QFile::remove(QString::fromStdString(main.SettingsPath())));
        main.window->QuitAndSave();
        main.window->close();
        QVERIFY(!QFile::exists(QString::fromStdString(main.SettingsPath())));
        MainWindowFixture::RunLoopThatEndsAtOnce();
    }

    void EndingWhileADialogWaitsSavesToo() {
        MainWindowFixture main;
        main.Start();
        main.Fill(u"2024-03-15"_s, u"10"_s, u"2024-03-25"_s);
        WhileModal([&main](QWidget&) { main.window->QuitAndSave(); });
        QTimer::singleShot(0, main.window.get(), [&main] { main.Click(u"cmdCompute"_s); });
        QCOMPARE(QCoreApplication::exec(), 0);
        QCOMPARE(main.Saved().dateDiff, std::string("10"));
    }
};

QTEST_MAIN(StartAndQuitTest)
#include "StartAndQuitTest.moc"
