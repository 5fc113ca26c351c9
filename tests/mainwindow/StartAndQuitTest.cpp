// Start-up, Reset and Quit.

#include <fstream>

#include "mainwindow/StartUpTexts.h"
#include "tests/mainwindow/MainWindowFixture.h"
#include "tests/mainwindow/settings/AllButFactory.h"

using namespace calvoro;

class StartAndQuitTest : public QObject {
    Q_OBJECT

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
        QVERIFY(main.LeavesFactorySettings());
    }

    void NothingButTheMainWindowIsMadeAtStart() {
        MainWindowFixture main;
        main.Start();
        QCOMPARE(QApplication::topLevelWidgets(), QWidgetList({main.window.get()}));
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
        QVERIFY(main.LeavesFactorySettings());
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
