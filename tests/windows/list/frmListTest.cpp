// The list window: what it shows, and what can be found in it.

#include "windows/frmList.h"

#include <QDropEvent>
#include <QHeaderView>
#include <QMimeData>
#include <QScrollArea>
#include <QScrollBar>

#include "tests/windows/GroupTesting.h"
#include "tests/windows/list/ListWindow.h"

using namespace calvoro;
using namespace Qt::StringLiterals;

class frmListTest : public QObject {
    Q_OBJECT

private:
    // So many lines that nothing is done with all of them at once.
    static QString ManyLines(int count) {
        QString text;
        for (int i = 0; i < count; ++i)
            text += QString::number(count - i) + (i % 1000 == 999 ? u"x\n"_s : u"\n"_s);
        return text;
    }

private Q_SLOTS:
    void initTestCase() { UseOwnConfigurationFolder(); }
    void cleanup() { QGuiApplication::clipboard()->clear(); }

    void BeginsEmptyWithASentence() {
        ListWindow list;
        list.Open();
        QVERIFY(list.State().startsWith(u"Copy a column of dates"_s));
        QCOMPARE(list.Model().rowCount(), 0);
        for (const char* name : {"cmdCopySelected", "cmdCopyAll", "cmdSaveAs", "cmdNextRefusal", "chkByDay",
                                 "chkRefusalsOnly"}) {
            QVERIFY2(!list.Button(name).isEnabled(), name);
        }
        QVERIFY(!list.Button("cmdStop").isVisible());
        QVERIFY(list.Table().hasFocus());
    }

    void ShowsARowForEachLine() {
        ListWindow list;
        list.Open();
        list.Give(u"1\nx\n\n4\n"_s);
        QCOMPARE(list.Model().rowCount(), 4);
        QCOMPARE(list.Row(0), QStringList({u"1"_s, u"<1>"_s, u"2"_s, u"odd"_s, QString()}));
        QCOMPARE(list.Row(1), QStringList({u"x"_s, QString(), QString(), QString(), u"no number"_s}));
        QCOMPARE(list.Row(2), QStringList({QString(), QString(), QString(), QString(), QString()}));
        QCOMPARE(list.Heads(), QStringList({u"First date"_s, u"Read as"_s, u"Result: plus one"_s,
                                            u"Weekday"_s, u"Refused because"_s}));
        QCOMPARE(list.Model().headerData(3, Qt::Vertical).toInt(), 4);
        QTRY_COMPARE(list.State(), u"4 lines, 1 refusal"_s);
        list.Give(u"1"_s);
        QTRY_COMPARE(list.State(), u"1 line, 0 refusals"_s);
    }

    void TheGroupOfTheOptionsIsToldOnce() {
        ListWindow list;
        list.Open();
        CheckGroupIsToldOnce(list.Button("optLinesAreFirst"), u"The lines are"_s);
        CheckGroupIsToldOnce(list.Button("optLinesAreSecond"), u"The lines are"_s);
    }

    void TheTableGivesWayBeforeTheWindowScrolls() {
        ListWindow list;
        list.Open();
        list.Give(u"1\nx\n\n4\n"_s);
        auto& page = Control<QScrollArea>(list.window, "scrollingPage");
        const int table = list.Table().sizeHint().height();
        list.window.resize(list.window.width(), list.window.sizeHint().height() - table / 2);
        QCoreApplication::processEvents();
        QCOMPARE(page.verticalScrollBar()->maximum(), 0);
        QVERIFY(list.Table().height() < table);
    }

    void SpeaksGerman() {
        ListWindow list;
        list.Open();
        list.Give(u"1\nx\n"_s);
        list.texts.InterfaceLanguage = LanguageGerman;
        list.window.SetLanguageDependentText();
        QCOMPARE(list.window.windowTitle(), u"Calvoro Liste"_s);
        QTRY_COMPARE(list.State(), u"2 Zeilen, 1 abgewiesen"_s);
        QCOMPARE(list.Heads(), QStringList({u"Erstes Datum"_s, u"Gelesen als"_s, u"Resultat: plus one"_s,
                                            u"Wochentag"_s, u"Abgewiesen, weil"_s}));
        QCOMPARE(CaptionOf(list.window, "cmdCopyAll"), u"Alles kopieren"_s);
    }

    void HasAKeyForEachControlAndNamesForReaders() {
        for (const LanguageNumber language : {LanguageEnglish, LanguageGerman}) {
            ListWindow list;
            list.texts.InterfaceLanguage = language;
            list.window.SetLanguageDependentText();
            list.Open();
            CheckKeysAreUnique(list.window, 15);
            QVERIFY(!list.Table().accessibleName().isEmpty());
            QVERIFY(!list.Table().accessibleDescription().isEmpty());
            QVERIFY(!Control<QWidget>(list.window, "prgJob").accessibleName().isEmpty());
        }
    }

    void LeavesTheWeekdayOutWithoutVerbose() {
        ListWindow list;
        list.rows.weekdays = false;
        list.Open();
        list.Give(u"1\n"_s);
        QCOMPARE(list.Row(0), QStringList({u"1"_s, u"<1>"_s, u"2"_s, QString()}));
        list.rows.weekdays = true;
        list.window.Refresh();
        QCOMPARE(list.Row(0), QStringList({u"1"_s, u"<1>"_s, u"2"_s, u"odd"_s, QString()}));
    }

    void TellsWhichDatesTheLinesAre() {
        ListWindow list;
        list.Open();
        list.window.Show({u"1\n"_s, QString()}, ListSide::SecondDates);
        WaitForJobs(list.window);
        QCOMPARE(list.rows.side, ListSide::SecondDates);
        QCOMPARE(list.Heads().first(), u"Second date"_s);
        QVERIFY(list.Button("optLinesAreSecond").isChecked());
        ClickOnMark(list.Button("optLinesAreFirst"));
        QCOMPARE(list.rows.side, ListSide::FirstDates);
        QCOMPARE(list.Heads().first(), u"First date"_s);
    }

    void TakesThePastedColumnThatIsClicked() {
        ListWindow list;
        list.Open();
        list.Give(u"a\t1\nb\tx\n"_s);
        QCOMPARE(list.Row(0), QStringList({u"a"_s, u"1"_s, QString(), QString(), QString(), u"no number"_s}));
        QCOMPARE(list.Heads().first(2), QStringList({u"Column 1: First date"_s, u"Column 2"_s}));
        QHeaderView& head = *list.Table().horizontalHeader();
        QTest::mouseClick(head.viewport(), Qt::LeftButton, {}, {head.sectionPosition(1) + 5, 5});
        QCOMPARE(list.Row(0), QStringList({u"a"_s, u"1"_s, u"<1>"_s, u"2"_s, u"odd"_s, QString()}));
        QCOMPARE(list.Heads().first(2), QStringList({u"Column 1"_s, u"Column 2: First date"_s}));
        QTRY_COMPARE(list.State(), u"2 lines, 1 refusal"_s);
        // By keyboard, too; the columns that are computed cannot be chosen.
        list.Table().setFocus();
        list.Table().setCurrentIndex(list.Model().index(0, 3));
        list.Press(Qt::Key_Return);
        QCOMPARE(list.Cell(0, 2), u"<1>"_s);
        list.Table().setCurrentIndex(list.Model().index(0, 0));
        list.Press(Qt::Key_Return);
        QCOMPARE(list.Cell(0, 2), QString());
    }

    void ReadsFilesOfEveryForm() {
        ListWindow list;
        list.Open();
        list.GiveFile(list.Write(u"a.txt"_s,
                                 "\xEF\xBB\xBF"
                                 "1\r\n2\r\n"));
        QCOMPARE(list.Column(0), QStringList({u"1"_s, u"2"_s}));
        list.GiveFile(list.Write(u"a.csv"_s, "\"a, b\",1\nc,2\n"));
        QCOMPARE(list.Column(0), QStringList({u"a, b"_s, u"c"_s}));
        QCOMPARE(list.Column(1), QStringList({u"1"_s, u"2"_s}));
        list.GiveFile(list.Write(u"ä.tsv"_s, "März\t1\n"));
        QCOMPARE(list.Column(0), QStringList({u"März"_s}));
    }

    void ChoosesAFile() {
        ListWindow list;
        list.Open();
        AnswerFileDialog(list.Write(u"a.txt"_s, "1\n2\n"));
        list.Press(Qt::Key_O, Qt::ControlModifier);
        QCOMPARE(list.Model().rowCount(), 2);
    }

    void Pastes() {
        ListWindow list;
        list.Open();
        QGuiApplication::clipboard()->setText(u"1\n2"_s);
        list.Press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(list.Column(0), QStringList({u"1"_s, u"2"_s}));
        auto* data = new QMimeData;
        data->setUrls({QUrl::fromLocalFile(list.Write(u"copied.txt"_s, "7\n"))});
        QGuiApplication::clipboard()->setMimeData(data);
        list.Do("cmdPaste");
        QCOMPARE(list.Column(0), QStringList(u"7"_s));
    }

    void TakesWhatIsDroppedOnTheTable() {
        ListWindow list;
        list.Open();
        QMimeData data;
        data.setText(u"5\n"_s);
        QVERIFY(!list.Table().acceptDrops() && !list.Table().viewport()->acceptDrops());
        QDragEnterEvent enter(QPoint(2, 2), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&list.window, &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop(QPointF(2, 2), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&list.window, &drop);
        WaitForJobs(list.window);
        QCOMPARE(list.Column(0), QStringList(u"5"_s));
    }

    void KeepsTheOldListBesideAMessage_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("message");
        QTest::newRow("binary") << u"a"_s << QByteArray("\x89PNG\r\n\x1A\n\0\0", 10)
                                << u"This is no text in UTF-8."_s;
        QTest::newRow("other encoding")
            << u"a"_s << QByteArray("M\xE4rz\n") << u"This is no text in UTF-8."_s;
        QTest::newRow("empty") << u"a"_s << QByteArray() << u"There is no line in it."_s;
        QTest::newRow("long line") << u"a"_s
                                   << QByteArray("1\n") + QByteArray(2 << 20, '1') + QByteArray("\n")
                                   << u"Line 2 is longer than a line may be (1 MiB)."_s;
        QTest::newRow("folder") << QString() << QByteArray() << u"This is no ordinary file."_s;
        QTest::newRow("missing") << u"missing"_s << QByteArray()
                                 << u"The file cannot be read: No such file or directory."_s;
    }
    void KeepsTheOldListBesideAMessage() {
        QFETCH(const QString, name);
        QFETCH(const QByteArray, content);
        QFETCH(const QString, message);
        ListWindow list;
        list.Open();
        list.Give(u"1\n2\n"_s);
        const QString path = name == u"a" ? list.Write(name, content) : list.folder.filePath(name);
        list.GiveFile(path);
        QTRY_COMPARE(list.Shown().size(), std::size_t{1});
        QCOMPARE(ToQt(list.Shown().front().prompt), path + u"\r\n"_s + message);
        QCOMPARE(list.Shown().front().title, std::string("Calvoro List"));
        QCOMPARE(list.Column(0), QStringList({u"1"_s, u"2"_s}));
    }

    void KeepsTheOldListBesideAClipboardWithoutText() {
        ListWindow list;
        list.Open();
        list.Give(u"1\n"_s);
        auto* picture = new QMimeData;
        picture->setImageData(QImage(4, 4, QImage::Format_RGB32));
        QGuiApplication::clipboard()->setMimeData(picture);
        list.Do("cmdPaste");
        QCOMPARE(list.Shown().size(), std::size_t{1});
        QCOMPARE(list.Shown().front().prompt, std::string("The clipboard holds no text."));
        QGuiApplication::clipboard()->setText(u"1\x0"_s + QChar(0) + u"2"_s);
        list.Do("cmdPaste");
        QCOMPARE(list.Shown().back().prompt, std::string("This is no text in UTF-8."));
        QCOMPARE(list.Column(0), QStringList(u"1"_s));
    }

    void ShowsLongLinesByTheirBeginning() {
        ListWindow list;
        list.Open();
        list.Give(QString(1 << 20, u'€').left(300'000) + u"\n1\n"_s);
        QVERIFY(list.Cell(0, 0).size() < 600);
        QVERIFY(list.Cell(0, 0).endsWith(u"€ ..."_s));
        QCOMPARE(list.Cell(1, 1), u"<1>"_s);
    }

    void FindsTheNextRefusal() {
        ListWindow list;
        list.Open();
        list.Give(u"1\nx\n2\ny\n3\n"_s);
        const auto next = [&list] {
            list.Press(Qt::Key_F3);
            return list.Table().currentIndex().row();
        };
        QCOMPARE(next(), 1);
        QCOMPARE(next(), 3);
        QCOMPARE(next(), 1);
        QVERIFY(list.Table().selectionModel()->isRowSelected(1, {}));
        list.Give(u"1\n2\n"_s);
        list.Do("cmdNextRefusal");
        QVERIFY(list.State().contains(u"No line is refused."_s));
    }

    void ShowsRefusalsOnly() {
        ListWindow list;
        list.Open();
        list.Give(u"1\nx\n2\ny\n"_s);
        list.Table().selectRow(3);
        ClickOnMark(list.Button("chkRefusalsOnly"));
        QTRY_COMPARE(list.Column(0), QStringList({u"x"_s, u"y"_s}));
        QCOMPARE(list.Model().headerData(1, Qt::Vertical).toInt(), 4);
        QCOMPARE(list.Table().currentIndex().row(), 1);
        ClickOnMark(list.Button("chkRefusalsOnly"));
        WaitForJobs(list.window);
        QCOMPARE(list.Model().rowCount(), 4);
        QCOMPARE(list.Table().currentIndex().row(), 3);
    }

    void SortsByDayNumber() {
        ListWindow list;
        list.Open();
        list.Give(u"30\nx\n-2\n7\n\n7\n"_s);
        ClickOnMark(list.Button("chkByDay"));
        QTRY_COMPARE(list.Column(0), QStringList({u"-2"_s, u"7"_s, u"7"_s, u"30"_s, u"x"_s, QString()}));
        QCOMPARE(list.Model().headerData(0, Qt::Vertical).toInt(), 3);
        ClickOnMark(list.Button("chkRefusalsOnly"));
        QTRY_COMPARE(list.Column(0), QStringList(u"x"_s));
        // Another list comes as it is.
        list.Give(u"2\n1\n"_s);
        QCOMPARE(list.Column(0), QStringList({u"2"_s, u"1"_s}));
        QVERIFY(!list.Button("chkByDay").isChecked() && !list.Button("chkRefusalsOnly").isChecked());
    }

    void ArrangesAnewWhenAnOptionChanges() {
        ListWindow list;
        list.Open();
        list.Give(u"a\t2\nb\t1\n"_s);
        ClickOnMark(list.Button("chkByDay"));
        QTRY_COMPARE(list.Column(1), QStringList({u"2"_s, u"1"_s}));
        list.Table().setCurrentIndex(list.Model().index(0, 1));
        list.Table().setFocus();
        list.Press(Qt::Key_Return);
        QTRY_COMPARE(list.Column(1), QStringList({u"1"_s, u"2"_s}));
    }

    void StaysResponsiveWithALongList() {
        ListWindow list;
        list.Open();
        list.Give(ManyLines(1'000'000));
        QTRY_COMPARE(list.Model().rowCount(), 1'000'000);
        // The rows are there at once, their refusals are counted meanwhile.
        QVERIFY(list.State().endsWith(u"so far"_s));
        QTest::keyClick(&list.Table(), Qt::Key_End, Qt::ControlModifier);
        QCOMPARE(list.Table().currentIndex().row(), 999'999);
        QCOMPARE(list.Cell(999'998, 1), u"<2>"_s);
        QTRY_COMPARE_WITH_TIMEOUT(list.State(), u"1,000,000 lines, 1,000 refusals"_s, 60'000);
        ClickOnMark(list.Button("chkByDay"));
        QTRY_COMPARE_WITH_TIMEOUT(list.Cell(0, 0), u"2"_s, 60'000);
        ClickOnMark(list.Button("chkRefusalsOnly"));
        QTRY_COMPARE_WITH_TIMEOUT(list.Model().rowCount(), 1'000, 60'000);
    }

    void StopsAnArrangementThatTakesLong() {
        ListWindow list;
        list.Open();
        list.Give(ManyLines(1'000'000));
        QTRY_COMPARE(list.Model().rowCount(), 1'000'000);
        ClickOnMark(list.Button("chkByDay"));
        QCOMPARE(list.Cell(0, 0), u"1000000"_s);
        QVERIFY(!list.Button("cmdStop").isVisible());
        QTest::keyClick(&list.window, Qt::Key_Escape);  // a window that is closed goes on with nothing
        QVERIFY(!list.window.isVisible());
        QVERIFY(!list.Button("chkByDay").isChecked());
        QVERIFY(list.State().endsWith(u"Stopped"_s));
        list.window.ShowList(ListSide::FirstDates);
        QCOMPARE(list.Cell(0, 0), u"1000000"_s);
    }

    void IsHiddenAndNotDestroyed() {
        ListWindow list;
        list.mainWindow.show();
        list.Open();
        list.Give(u"1\n"_s);
        list.window.move(40, 30);
        list.window.resize(950, 640);
        ClickOn(list.Button("cmdClose"));
        QVERIFY(!list.window.isVisible());
        list.window.ShowList(ListSide::SecondDates);
        QCOMPARE(list.window.pos(), QPoint(40, 30));
        QCOMPARE(list.window.size(), QSize(950, 640));
        QCOMPARE(list.Column(0), QStringList(u"1"_s));
        QVERIFY(list.Button("optLinesAreFirst").isChecked());
    }
};

QTEST_MAIN(frmListTest)
#include "frmListTest.moc"
