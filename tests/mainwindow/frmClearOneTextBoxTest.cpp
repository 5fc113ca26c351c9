// The dialog that asks which of three filled boxes to empty.

#include <QRadioButton>
#include <QRegularExpression>

#include "tests/mainwindow/MainWindowFixture.h"

using namespace calvoro;

class frmClearOneTextBoxTest : public QObject {
    Q_OBJECT

private:
    // Computes with three filled boxes; `answer` works the dialog. The first date is 2024-03-15, the
    // difference 10, the second date 2024-03-25.
    template <typename Answer>
    static void ComputeWithThreeBoxes(MainWindowFixture& main, Answer answer) {
        main.Fill(u"2024-03-15"_s, u"10"_s, u"2024-03-25"_s);
        WhileModal(answer);
        main.Click(u"cmdCompute"_s);
        main.Activate();
    }
    static QString ChosenIn(const QWidget& dialog) {
        for (const QRadioButton* option : dialog.findChildren<QRadioButton*>()) {
            if (option->isChecked()) return option->objectName();
        }
        return {};
    }
    static auto Answering(const QString& option) {
        return [option](QWidget& dialog) {
            dialog.findChild<QRadioButton*>(option)->click();
            dialog.findChild<QPushButton*>(u"cmdContinue"_s)->click();
        };
    }

private Q_SLOTS:
    void TheDialogEmptiesTheBoxThatIsGivenUp_data() {
        QTest::addColumn<QString>("option");
        QTest::addColumn<QStringList>("boxes");
        QTest::addColumn<QString>("output");
        QTest::newRow("first date") << "optClearFirstDate" << QStringList{"", "10", "2024-03-25"}
                                    << "2024-03-25 CE minus 10 days = 2024-03-15 CE";
        QTest::newRow("difference") << "optClearDateDiff" << QStringList{"2024-03-15", "", "2024-03-25"}
                                    << "2024-03-15 CE to 2024-03-25 CE = 10 days";
        QTest::newRow("second date") << "optClearSecondDate" << QStringList{"2024-03-15", "10", ""}
                                     << "2024-03-15 CE plus 10 days = 2024-03-25 CE";
        QTest::newRow("cancel") << "optCancel" << QStringList{"2024-03-15", "10", "2024-03-25"} << "";
    }
    void TheDialogEmptiesTheBoxThatIsGivenUp() {
        QFETCH(QString, option);
        QFETCH(QStringList, boxes);
        QFETCH(QString, output);
        MainWindowFixture main;
        main.Start();
        ComputeWithThreeBoxes(main, Answering(option));
        QCOMPARE(main.Boxes(), boxes);
        QVERIFY2(main.Output().startsWith(output), qPrintable(main.Output()));
        QCOMPARE(main.Output().isEmpty(), output.isEmpty());
        QCOMPARE(main.Focused(), u"cmdCompute"_s);
    }

    void TheDialogRemembersItsAnswerButForACancel() {
        MainWindowFixture main;
        main.Start();
        QStringList chosen;
        const auto note = [&chosen](const QString& answer) {
            return [&chosen, answer](QWidget& dialog) {
                chosen.push_back(ChosenIn(dialog));
                Answering(answer)(dialog);
            };
        };
        ComputeWithThreeBoxes(main, note(u"optClearSecondDate"_s));
        ComputeWithThreeBoxes(main, note(u"optCancel"_s));
        ComputeWithThreeBoxes(main, note(u"optClearFirstDate"_s));
        ComputeWithThreeBoxes(main, note(u"optClearFirstDate"_s));
        QCOMPARE(chosen, QStringList({"optClearDateDiff", "optClearSecondDate", "optClearDateDiff",
                                      "optClearFirstDate"}));
    }

    void LeavingTheDialogIsACancel_data() {
        QTest::addColumn<bool>("byKey");
        QTest::newRow("Esc") << true;
        QTest::newRow("closing it from its frame") << false;
    }
    void LeavingTheDialogIsACancel() {
        QFETCH(bool, byKey);
        MainWindowFixture main;
        main.Start();
        ComputeWithThreeBoxes(main, [byKey](QWidget& dialog) {
            if (byKey) {
                QTest::keyClick(&dialog, Qt::Key_Escape);
            } else {
                dialog.close();
            }
        });
        QCOMPARE(main.Boxes(), QStringList({"2024-03-15", "10", "2024-03-25"}));
        QCOMPARE(main.Output(), QString());
    }

    // A screen reader can press a button behind the dialog.
    void WhatIsAskedAlreadyIsNotAskedAgain() {
        QTest::failOnWarning(QRegularExpression(u"Recursive"_s));
        MainWindowFixture main;
        main.Start();
        bool stayed = false;
        ComputeWithThreeBoxes(main, [&main, &stayed](QWidget& dialog) {
            main.Button("cmdCompute").click();
            stayed = dialog.isVisible() && main.Output().isEmpty();
            Answering(u"optClearDateDiff"_s)(dialog);
        });
        QVERIFY(stayed);
        QCOMPARE(main.Boxes(), QStringList({"2024-03-15", "", "2024-03-25"}));
        QCOMPARE(main.Output().count(u"days"_s), 1);
    }

    void AnEnterThatIsStillHeldDownIsNoAnswer() {
        MainWindowFixture main;
        main.Start();
        bool open = false;
        ComputeWithThreeBoxes(main, [&open](QWidget& dialog) {
            QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s, true);
            QCoreApplication::sendEvent(dialog.focusWidget(), &repeated);
            open = dialog.isVisible();
            dialog.close();
        });
        QVERIFY(open);
    }

    void TheDialogWorksByKeyboard() {
        MainWindowFixture main;
        main.Start();
        QString before;
        QString after;
        ComputeWithThreeBoxes(main, [&](QWidget& dialog) {
            before = dialog.focusWidget()->objectName();
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Down);
            after = dialog.focusWidget()->objectName();
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
        });
        QCOMPARE(before, u"optClearDateDiff"_s);
        QCOMPARE(after, u"optClearSecondDate"_s);
        QCOMPARE(main.Boxes(), QStringList({"2024-03-15", "10", ""}));
    }

    void TheDialogSpeaksTheLanguageOfTheInterface() {
        MainWindowFixture main;
        main.Start();
        QStringList captions;
        const auto read = [&captions](QWidget& dialog) {
            captions = {dialog.windowTitle(), dialog.findChild<QLabel*>(u"lblMessage"_s)->text()};
            for (const char* name : {"optClearFirstDate", "optClearDateDiff", "optClearSecondDate",
                                     "optCancel", "cmdContinue"}) {
                captions.push_back(Caption(*dialog.findChild<QWidget*>(QLatin1String(name))));
            }
            dialog.close();
        };
        ComputeWithThreeBoxes(main, read);
        QCOMPARE(captions, QStringList({"Clear",
                                        "If both the first date and the second date are specified\n"
                                        "then the date difference window must be empty.",
                                        "First date", "Date difference", "Second date",
                                        "Cancel this operation", "Continue"}));
        main.Click(u"optLanguageIsGerman"_s);
        ComputeWithThreeBoxes(main, read);
        QCOMPARE(captions, QStringList({"Loeschen",
                                        "Wenn sowohl Erstes als auch Zweites Datum angegeben sind,\n"
                                        "muss das Feld fuer die Datumsdifferenz leer sein.",
                                        "Erstes Datum", "Datumsdifferenz", "Zweites Datum",
                                        "Annullieren Sie diese Operation", "Fortfahren"}));
    }

    void TheDialogStandsAtItsPlaceOnTheMainWindow() {
        MainWindowFixture main;
        main.Start();
        main.window->move(40, 30);
        QPoint place;
        ComputeWithThreeBoxes(main, [&place](QWidget& dialog) {
            place = dialog.pos();
            dialog.close();
        });
        // 50 and 2850 twips.
        QCOMPARE(place, main.window->pos() + QPoint(3, 190));
    }
};

QTEST_MAIN(frmClearOneTextBoxTest)
#include "frmClearOneTextBoxTest.moc"
