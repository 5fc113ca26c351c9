// The ways out of the list window: the clipboard and files.

#include <sys/resource.h>

#include <QFileDialog>

#include "tests/windows/list/ListWindow.h"
#include "windows/frmList.h"

using namespace calvoro;
using namespace Qt::StringLiterals;

class frmListOutputTest : public QObject {
    Q_OBJECT

private:
    static QString ManyLines(int count) {
        QString text;
        for (int i = 0; i < count; ++i) text += u"1234567\n"_s;
        return text;
    }

private Q_SLOTS:
    void initTestCase() { UseOwnConfigurationFolder(); }
    void CopiesAllRows() {
        ListWindow list;
        list.Open();
        list.Give(u"1\nx\n"_s);
        list.Do("cmdCopyAll");
        QCOMPARE(list.fake.clipboard.calls.size(), std::size_t{2});
        QCOMPARE(list.fake.clipboard.text, std::string("1\t<1>\t2\todd\t\nx\t\t\t\tno number\n"));
        QVERIFY(list.State().endsWith(u"Copied: 2 lines"_s));
        ClickOnMark(list.Button("chkWithGiven"));
        list.Do("cmdCopyAll");
        QCOMPARE(list.fake.clipboard.text, std::string("<1>\t2\todd\t\n\t\t\tno number\n"));
    }

    void CopiesTheSelectedRows() {
        ListWindow list;
        list.Open();
        list.Give(u"1\n2\n3\n4\n5\n"_s);
        QItemSelectionModel& selected = *list.Table().selectionModel();
        const auto select = [&](int row, QItemSelectionModel::SelectionFlags flags) {
            selected.select(list.Model().index(row, 0), flags | QItemSelectionModel::Rows);
        };
        select(4, QItemSelectionModel::ClearAndSelect);
        select(1, QItemSelectionModel::Select);
        select(2, QItemSelectionModel::Select);
        list.Press(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(list.fake.clipboard.text,
                 std::string("2\t<2>\t3\teven\t\n3\t<3>\t4\todd\t\n5\t<5>\t6\todd\t\n"));
        QVERIFY(list.State().endsWith(u"Copied: 3 lines"_s));
        selected.clearSelection();
        QVERIFY(!list.Button("cmdCopySelected").isEnabled());
        list.Table().setFocus();
        list.Press(Qt::Key_A, Qt::ControlModifier);
        list.Do("cmdCopySelected");
        QVERIFY(list.State().endsWith(u"Copied: 5 lines"_s));
    }

    void CopiesWhatIsShown() {
        ListWindow list;
        list.Open();
        list.Give(u"3\nx\n1\n"_s);
        ClickOnMark(list.Button("chkByDay"));
        QTRY_COMPARE(list.Cell(0, 0), u"1"_s);
        ClickOnMark(list.Button("chkWithGiven"));
        list.Do("cmdCopyAll");
        QCOMPARE(list.fake.clipboard.text, std::string("<1>\t2\todd\t\n<3>\t4\todd\t\n\t\t\tno number\n"));
    }

    void SavesByTheName_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("tabs") << u"März.txt"_s << u"März.txt"_s << QByteArray("a,b\t1\t<1>\t2\todd\t\n");
        QTest::newRow("commas") << u"list.csv"_s << u"list.csv"_s << QByteArray("\"a,b\",1,<1>,2,odd,\n");
        QTest::newRow("no ending") << u"list"_s << u"list.tsv"_s << QByteArray("a,b\t1\t<1>\t2\todd\t\n");
    }
    void SavesByTheName() {
        QFETCH(const QString, name);
        QFETCH(const QString, file);
        QFETCH(const QByteArray, content);
        ListWindow list;
        list.Open();
        list.Give(u"a,b\t1\n"_s);
        list.Table().setCurrentIndex(list.Model().index(0, 1));
        list.Press(Qt::Key_Return);
        AnswerFileDialog(list.folder.filePath(name));
        list.Press(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(list.Content(file), content);
        QVERIFY(list.State().endsWith(u"Saved: 1 line"_s));
    }

    void GivesTheEndingOfTheKindThatIsChosen() {
        ListWindow list;
        list.Open();
        list.Give(u"1\n"_s);
        AnswerFileDialog(list.folder.filePath(u"list"_s), [](QWidget& dialog) {
            auto* types = dialog.findChild<QComboBox*>(u"fileTypeCombo"_s);
            types->setFocus();
            QTest::keyClick(types, Qt::Key_Down);
        });
        list.Do("cmdSaveAs");
        QCOMPARE(list.Content(u"list.csv"_s), QByteArray("1,<1>,2,odd,\n"));
    }

    void LeavesTheOldFileBesideAMessage() {
        ListWindow list;
        list.Open();
        list.Give(ManyLines(200'000));
        QTRY_COMPARE(list.Model().rowCount(), 200'000);
        const QString path = list.Write(u"list.tsv"_s, "old");
        struct rlimit before {};
        QCOMPARE(::getrlimit(RLIMIT_FSIZE, &before), 0);
        struct rlimit low = before;
        low.rlim_cur = 100'000;
        AnswerFileDialog(path, [&low](QWidget& dialog) {
            qobject_cast<QFileDialog*>(&dialog)->setOption(QFileDialog::DontConfirmOverwrite);
            ::setrlimit(RLIMIT_FSIZE, &low);
        });
        list.Do("cmdSaveAs");
        QTRY_COMPARE(list.Shown().size(), std::size_t{1});
        QCOMPARE(::setrlimit(RLIMIT_FSIZE, &before), 0);
        QCOMPARE(ToQt(list.Shown().front().prompt),
                 path + u"\r\nThe list cannot be saved; the file is as it was: File too large."_s);
        QCOMPARE(list.Content(u"list.tsv"_s), QByteArray("old"));
        QCOMPARE(QDir(list.folder.path()).entryList(QDir::Files), QStringList(u"list.tsv"_s));
        QCOMPARE(list.Model().rowCount(), 200'000);
    }

    void TellsOfAFolderThatIsNotThere() {
        ListWindow list;
        list.Open();
        list.Give(u"1\n"_s);
        AnswerFileDialog(list.folder.filePath(u"gone.tsv"_s), [&list](QWidget&) { list.folder.remove(); });
        list.Do("cmdSaveAs");
        QCOMPARE(list.Shown().size(), std::size_t{1});
        QVERIFY(list.Shown().front().prompt.ends_with("No such file or directory."));
    }

    void ShowsProgressOfWhatTakesLongAndStopsIt() {
        ListWindow list;
        list.Open();
        list.Give(ManyLines(3'000'000));
        QTRY_COMPARE(list.Model().rowCount(), 3'000'000);
        const QString path = list.Write(u"list.tsv"_s, "old");
        AnswerFileDialog(path, [](QWidget& dialog) {
            qobject_cast<QFileDialog*>(&dialog)->setOption(QFileDialog::DontConfirmOverwrite);
        });
        QVERIFY(!list.Button("cmdStop").isVisible());
        ClickOn(list.Button("cmdSaveAs"));
        QTRY_VERIFY(list.Button("cmdStop").isVisible());
        QVERIFY(Control<QProgressBar>(list.window, "prgJob").value() > 0);
        // What else is wanted meanwhile is refused, the table can be used.
        list.window.Show({u"1\n"_s, QString()}, ListSide::FirstDates);
        QCOMPARE(list.Shown().size(), std::size_t{1});
        QVERIFY(list.Shown().front().prompt.starts_with("Something else is still being done."));
        QCOMPARE(list.Cell(2'999'999, 1), u"<1234567>"_s);
        list.window.Refresh();
        ClickOn(list.Button("cmdStop"));
        QVERIFY(!list.Button("cmdStop").isVisible());
        QVERIFY(list.State().endsWith(u"Stopped"_s));
        QCOMPARE(list.Content(u"list.tsv"_s), QByteArray("old"));
        QCOMPARE(QDir(list.folder.path()).entryList(QDir::Files), QStringList(u"list.tsv"_s));
        list.Give(u"1\n"_s);
        QCOMPARE(list.Model().rowCount(), 1);
    }
};

QTEST_MAIN(frmListOutputTest)
#include "frmListOutputTest.moc"
