// The ways from the main window into the list.

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QTableView>

#include "tests/mainwindow/MainWindowFixture.h"
#include "windows/frmList.h"

using namespace calvoro;

namespace {

const QString kThreeLines = u"2024-02-29\n2024-03-01\nx\n"_s;

struct DateBoxRow {
    const char* box;
    const char* side;  // the option that is then chosen
};
constexpr std::array<DateBoxRow, 2> kDateBoxes = {{
    {"txbFirstDate", "optLinesAreFirst"},
    {"txbSecondDate", "optLinesAreSecond"},
}};

QAbstractItemModel& Model() {
    return *OpenedWindow<frmList>()->findChild<QTableView*>()->model();
}

bool IsChosen(const QString& option) {
    return OpenedWindow<frmList>()->findChild<QAbstractButton*>(option)->isChecked();
}

QString StateText() {
    return OpenedWindow<frmList>()->findChild<QLabel*>(u"lblState"_s)->text();
}

bool Drop(QWidget& target, const QMimeData& data) {
    // As the toolkit does it: a drop comes where the drag was taken.
    for (QWidget* widget = &target; widget != nullptr; widget = widget->parentWidget()) {
        if (!widget->acceptDrops()) continue;
        QDragEnterEvent enter(QPoint(2, 2), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                              Qt::NoModifier);
        QApplication::sendEvent(widget, &enter);
        if (!enter.isAccepted()) continue;
        QDropEvent drop(QPointF(2, 2), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                        Qt::NoModifier);
        QApplication::sendEvent(widget, &drop);
        return drop.isAccepted();
    }
    return false;
}

QMimeData* FileData(const QString& path) {
    auto* data = new QMimeData;
    data->setUrls({QUrl::fromLocalFile(path)});
    return data;
}

}  // namespace

class ListWaysTest : public QObject {
    Q_OBJECT

private:
    const QTemporaryDir configuration_;  // of the toolkit's dialog for files

    static void BoxRows() {
        QTest::addColumn<QString>("box");
        QTest::addColumn<QString>("side");
        for (const DateBoxRow& row : kDateBoxes) QTest::newRow(row.box) << row.box << row.side;
    }
    static QString PathOf(const MainWindowFixture& main, const QByteArray& content) {
        const QString path = main.folder.filePath(u"list.txt"_s);
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) qFatal("no file");
        return path;
    }

    // The menu of a box; it is open on return.
    static QMenu* MenuOf(QWidget& box) {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(2, 2), box.mapToGlobal(QPoint(2, 2)));
        QApplication::sendEvent(&box, &event);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (menu == nullptr) qFatal("no menu");
        return menu;
    }
    static QAction* Entry(const QMenu& menu, const QString& text) {
        for (QAction* action : menu.actions()) {
            if (action->text() == text) return action;
        }
        return nullptr;
    }

private Q_SLOTS:
    void initTestCase() { qputenv("XDG_CONFIG_HOME", configuration_.path().toUtf8()); }
    void cleanup() { QApplication::clipboard()->clear(); }

    void SeveralPastedLinesBecomeAList_data() { BoxRows(); }
    void SeveralPastedLinesBecomeAList() {
        QFETCH(const QString, box);
        QFETCH(const QString, side);
        MainWindowFixture main;
        main.Start();
        main.Fill(u"2000-01-01"_s, QString(), u"2000-01-02"_s);
        QApplication::clipboard()->setText(kThreeLines);
        main.Focus(box);
        main.Press(Qt::Key_V, Qt::ControlModifier);
        QVERIFY(OpenedWindow<frmList>()->isVisible());
        QTRY_COMPARE(Model().rowCount(), 3);
        QVERIFY(IsChosen(side));
        QCOMPARE(main.Boxes(), QStringList({"2000-01-01", "", "2000-01-02"}));
        QTRY_VERIFY(StateText().startsWith("3 lines, 1 refusal"));
    }

    void OneLineIsPastedIntoTheBox() {
        for (const QString& text : {u"2024-02-29"_s, u"\n 2024-02-29\r\n\n"_s}) {
            MainWindowFixture main;
            main.Start();
            QApplication::clipboard()->setText(text);
            main.Focus(u"txbFirstDate"_s);
            main.Press(Qt::Key_V, Qt::ControlModifier);
            QCOMPARE(main.Text(u"txbFirstDate"_s), "2024-02-29");
            QCOMPARE(OpenedWindow<frmList>(), nullptr);
        }
    }

    void TheBoxOfTheDifferenceTakesLinesAsBefore() {
        MainWindowFixture main;
        main.Start();
        QApplication::clipboard()->setText(u"1\n2"_s);
        main.Focus(u"txbDateDiff"_s);
        main.Press(Qt::Key_V, Qt::ControlModifier);
        QVERIFY(!main.Text(u"txbDateDiff"_s).isEmpty());
        QCOMPARE(OpenedWindow<frmList>(), nullptr);
    }

    void SeveralDroppedLinesBecomeAList_data() { BoxRows(); }
    void SeveralDroppedLinesBecomeAList() {
        QFETCH(const QString, box);
        QFETCH(const QString, side);
        MainWindowFixture main;
        main.Start();
        QMimeData data;
        data.setText(kThreeLines);
        QVERIFY(Drop(main.Get<QWidget>(box), data));
        QTRY_COMPARE(Model().rowCount(), 3);
        QVERIFY(IsChosen(side));
        QCOMPARE(main.Boxes(), QStringList({"", "", ""}));
    }

    void OneDroppedLineGoesIntoTheBox() {
        MainWindowFixture main;
        main.Start();
        QMimeData data;
        data.setText(u"2024-02-29\n"_s);
        QVERIFY(Drop(main.Get<QWidget>(u"txbSecondDate"_s), data));
        QCOMPARE(main.Text(u"txbSecondDate"_s), "2024-02-29");
        QCOMPARE(OpenedWindow<frmList>(), nullptr);
    }

    void WhatIsDroppedOnTheWindowBecomesAList_data() {
        QTest::addColumn<QString>("target");
        QTest::addColumn<QString>("side");
        QTest::newRow("the window") << "scrollingPage"
                                    << "optLinesAreFirst";
        QTest::newRow("a button") << "cmdCompute"
                                  << "optLinesAreFirst";
        QTest::newRow("the output") << "txbOutput"
                                    << "optLinesAreFirst";
        QTest::newRow("the difference") << "txbDateDiff"
                                        << "optLinesAreFirst";
        QTest::newRow("the first date") << "txbFirstDate"
                                        << "optLinesAreFirst";
        QTest::newRow("the second date") << "txbSecondDate"
                                         << "optLinesAreSecond";
    }
    void WhatIsDroppedOnTheWindowBecomesAList() {
        QFETCH(const QString, target);
        QFETCH(const QString, side);
        MainWindowFixture main;
        main.Start();
        // As file managers give it, which offer the address as a text as well; the rest of the window takes
        // either.
        const std::unique_ptr<QMimeData> file(FileData(PathOf(main, "2024-02-29\nx\n")));
        if (target.startsWith("txb") && target != "txbOutput") file->setText(u"file:///list.txt"_s);
        QVERIFY(Drop(main.Get<QWidget>(target), *file));
        QTRY_COMPARE(Model().rowCount(), 2);
        QVERIFY(IsChosen(side));
        QCOMPARE(main.Boxes(), QStringList({"", "", ""}));
        if (target.startsWith("txb")) return;
        QMimeData text;
        text.setText(u"2024-02-29"_s);
        QVERIFY(Drop(main.Get<QWidget>(target), text));
        QTRY_COMPARE(Model().rowCount(), 1);
    }

    void APictureIsNotTaken() {
        MainWindowFixture main;
        main.Start();
        QMimeData picture;
        picture.setImageData(QImage(4, 4, QImage::Format_RGB32));
        QVERIFY(!Drop(*main.window, picture));
        QCOMPARE(OpenedWindow<frmList>(), nullptr);
    }

    void TheMenuOfADateBoxOffersLists_data() { BoxRows(); }
    void TheMenuOfADateBoxOffersLists() {
        QFETCH(const QString, box);
        QFETCH(const QString, side);
        MainWindowFixture main;
        main.Start();
        QApplication::clipboard()->setText(kThreeLines);
        QMenu* menu = MenuOf(main.Get<QWidget>(box));
        QAction* const fromClipboard = Entry(*menu, u"List from clipboard"_s);
        QVERIFY(fromClipboard != nullptr);
        fromClipboard->trigger();
        menu->close();
        QTRY_COMPARE(Model().rowCount(), 3);
        QVERIFY(IsChosen(side));

        main.Activate();
        main.Click(u"optLanguageIsGerman"_s);
        menu = MenuOf(main.Get<QWidget>(box));
        QVERIFY(Entry(*menu, u"Liste aus Zwischenablage"_s) != nullptr);
        QAction* const fromFile = Entry(*menu, u"Liste aus Datei..."_s);
        QVERIFY(fromFile != nullptr);
        const QString path = PathOf(main, "2024-02-29\n");
        bool asked = false;
        WhileModal([&](QWidget& dialog) {
            asked = true;
            auto* name = dialog.findChild<QLineEdit*>(u"fileNameEdit"_s);
            name->setText(path);
            QTest::keyClick(name, Qt::Key_Return);
        });
        menu->close();
        fromFile->trigger();
        QVERIFY(asked);
        QTRY_COMPARE(Model().rowCount(), 1);
        QVERIFY(IsChosen(side));
    }

    void TheMenuOfTheDifferenceDoesNot() {
        MainWindowFixture main;
        main.Start();
        QMenu* const menu = MenuOf(main.Get<QWidget>(u"txbDateDiff"_s));
        QCOMPARE(Entry(*menu, u"List from clipboard"_s), nullptr);
        menu->close();
    }

    void AKeyOpensItEmptyWithASentence() {
        for (const DateBoxRow& row : kDateBoxes) {
            MainWindowFixture main;
            main.Start();
            main.Focus(QString::fromLatin1(row.box));
            main.Press(Qt::Key_L, Qt::ControlModifier);
            QVERIFY(OpenedWindow<frmList>()->isVisible());
            QVERIFY(StateText().contains("Ctrl+V"));
            QTRY_COMPARE(Model().rowCount(), 0);
            QVERIFY(IsChosen(row.side));
        }
    }

    void AKeyBringsBackTheListThatIsThere() {
        MainWindowFixture main;
        main.Start();
        main.Focus(u"txbSecondDate"_s);
        QApplication::clipboard()->setText(kThreeLines);
        main.Press(Qt::Key_V, Qt::ControlModifier);
        auto* list = OpenedWindow<frmList>();
        QTRY_COMPARE(Model().rowCount(), 3);
        list->move(70, 50);
        list->resize(900, 611);
        QVERIFY(QTest::qWaitForWindowActive(list));
        QTest::keyClick(list, Qt::Key_Escape);
        QVERIFY(!list->isVisible());
        main.Activate();
        main.Focus(u"txbFirstDate"_s);
        main.Press(Qt::Key_L, Qt::ControlModifier);
        QVERIFY(list->isVisible());
        QCOMPARE(list, OpenedWindow<frmList>());
        QCOMPARE(list->pos(), QPoint(70, 50));
        QCOMPARE(list->size(), QSize(900, 611));
        QTRY_COMPARE(Model().rowCount(), 3);
        QVERIFY(IsChosen("optLinesAreSecond"));
    }

    void WhatCannotBeAListIsToldOnce() {
        MainWindowFixture main;
        main.Start();
        QApplication::clipboard()->setText(kThreeLines);
        main.Focus(u"txbFirstDate"_s);
        main.Press(Qt::Key_V, Qt::ControlModifier);
        main.Activate();
        const std::unique_ptr<QMimeData> file(FileData(PathOf(main, QByteArray("\0\1\2", 3))));
        QVERIFY(Drop(*main.window, *file));
        QTRY_COMPARE(main.Shown().size(), std::size_t{1});
        QVERIFY(main.Shown().front().prompt.ends_with("This is no text in UTF-8."));
        QTRY_COMPARE(Model().rowCount(), 3);
    }
};

QTEST_MAIN(ListWaysTest)
#include "ListWaysTest.moc"
