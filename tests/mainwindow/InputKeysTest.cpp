// The keyboard in the input boxes: what may be typed, Enter, and what is left to the toolkit.

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>

#include "tests/mainwindow/MainWindowFixture.h"

using namespace calvoro;

class InputKeysTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void OnlyCharactersOfADateAreTyped_data() {
        QTest::addColumn<QStringList>("clicks");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("text");
        QTest::newRow("all") << QStringList{} << "a1-b2,3.(4) /5"
                             << "1-2,3.(4) 5";
        QTest::newRow("slash as separator") << QStringList{"optSeparatorIsSlash"} << "1/2:3"
                                            << "1/23";
        QTest::newRow("no week date") << QStringList{} << "2024W1"
                                      << "20241";
        QTest::newRow("week date") << QStringList{"optFirstDateIsISO", "optSecondDateIsISO"} << "2024-W01-w1x"
                                   << "2024-W01-w1";
    }
    void OnlyCharactersOfADateAreTyped() {
        QFETCH(QStringList, clicks);
        QFETCH(QString, typed);
        QFETCH(QString, text);
        MainWindowFixture main;
        main.Start();
        for (const QString& name : clicks) main.Click(name);
        for (const QString& box : {u"txbFirstDate"_s, u"txbSecondDate"_s}) {
            main.Focus(box);
            main.Type(typed);
            QCOMPARE(main.Text(box), text);
        }
        QVERIFY(main.Shown().empty());
    }

    void CharactersBeyondAsciiAreNotTyped() {
        MainWindowFixture main;
        main.Start();
        for (const QString& box : {u"txbFirstDate"_s, u"txbDateDiff"_s, u"txbSecondDate"_s}) {
            for (const QString& character :
                 {u"ä"_s, u"٣"_s, u"１"_s, u"−"_s, u"\u00a0"_s, u"\u00ad"_s, u"\u200c"_s, u"\u200e"_s,
                  u"\u2066"_s, u"\ufeff"_s, u"\ue000"_s, u"\U0001d7d9"_s, u"\U000e0031"_s, u"1"_s}) {
                QKeyEvent event(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, character);
                QCoreApplication::sendEvent(&main.Get<QLineEdit>(box), &event);
            }
            QCOMPARE(main.Text(box), u"1"_s);
        }
    }

    void TheWeekLetterIsForTheBoxOfAWeekDateOnly() {
        MainWindowFixture main;
        main.Start();
        main.Click(u"optFirstDateIsISO"_s);
        for (const QString& box : {u"txbFirstDate"_s, u"txbSecondDate"_s, u"txbDateDiff"_s}) {
            main.Focus(box);
            main.Type(u"1W2w"_s);
        }
        QCOMPARE(main.Boxes(), QStringList({"1W2w", "12", "12"}));
        main.Fill(QString(), QString(), QString());
        main.Click(u"optFirstDateIsCE"_s);
        main.Click(u"optSecondDateIsISO"_s);
        for (const QString& box : {u"txbFirstDate"_s, u"txbSecondDate"_s}) {
            main.Focus(box);
            main.Type(u"1W"_s);
        }
        QCOMPARE(main.Boxes(), QStringList({"1", "", "1W"}));
    }

    void OnlyUpAndDownAloneStepADate_data() {
        QTest::addColumn<QString>("box");
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        const auto row = [](const char* name, const char* box, Qt::Key key, Qt::KeyboardModifiers modifiers) {
            QTest::newRow(name) << box << key << modifiers;
        };
        row("Up in the difference", "txbDateDiff", Qt::Key_Up, Qt::NoModifier);
        row("Down in the difference", "txbDateDiff", Qt::Key_Down, Qt::NoModifier);
        row("Ctrl+Up", "txbFirstDate", Qt::Key_Up, Qt::ControlModifier);
        row("Ctrl+Down", "txbSecondDate", Qt::Key_Down, Qt::ControlModifier);
        row("Shift+Up", "txbFirstDate", Qt::Key_Up, Qt::ShiftModifier);
        row("Shift+Down", "txbSecondDate", Qt::Key_Down, Qt::ShiftModifier);
    }
    void OnlyUpAndDownAloneStepADate() {
        QFETCH(QString, box);
        QFETCH(Qt::Key, key);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        MainWindowFixture main;
        main.Start();
        main.Fill(u"2024-03-15"_s, u"7"_s, u"2024-03-15"_s);
        main.Focus(box);
        main.Press(key, modifiers);
        QCOMPARE(main.Boxes(), QStringList({"2024-03-15", "7", "2024-03-15"}));
        QCOMPARE(main.Focused(), box);
        main.Focus(u"txbFirstDate"_s);
        main.Press(Qt::Key_Up, Qt::KeypadModifier);
        QCOMPARE(main.Boxes(), QStringList({"2024-03-16", "", "2024-03-15"}));
    }

    void OnlyCharactersOfANumberAreTypedAsDifference_data() {
        QTest::addColumn<QString>("click");
        QTest::addColumn<QString>("text");
        QTest::newRow("comma") << "optThousSepIsComma"
                               << "1,2-+3";
        QTest::newRow("dot") << "optThousSepIsDot"
                             << "1,2.-+3";
        QTest::newRow("none") << "optThousSepNone"
                              << "1,2-+3";
    }
    void OnlyCharactersOfANumberAreTypedAsDifference() {
        QFETCH(QString, click);
        QFETCH(QString, text);
        MainWindowFixture main;
        main.Start();
        main.Click(click);
        main.Focus(u"txbDateDiff"_s);
        main.Type(u"a1,2.- +W/()3"_s);
        QCOMPARE(main.Text(u"txbDateDiff"_s), text);
    }

    void TypingIsRefusedFromEighteenCharactersOn() {
        MainWindowFixture main;
        main.Start();
        for (const QString& box : {u"txbFirstDate"_s, u"txbDateDiff"_s, u"txbSecondDate"_s}) {
            main.Focus(box);
            main.Type(u"12345678901234567890"_s);
            QCOMPARE(main.Text(box), u"123456789012345678"_s);
            main.Press(Qt::Key_Backspace);
            QCOMPARE(main.Text(box), u"12345678901234567"_s);
            main.Type(u"99"_s);
            QCOMPARE(main.Text(box), u"123456789012345679"_s);
        }
    }

    void ADeliberatelyUnlimitedWeekLetterIsTypedAtAnyLength() {
        MainWindowFixture main;
        main.Start();
        main.Click(u"optFirstDateIsISO"_s);
        main.Focus(u"txbFirstDate"_s);
        main.Type(QString(18, u'1') + u"Ww2"_s);
        QCOMPARE(main.Text(u"txbFirstDate"_s), QString(18, u'1') + u"Ww"_s);
    }

    void ADeliberatelyCountedSelectionMakesAFullBoxRefuseItsReplacement() {
        MainWindowFixture main;
        main.Start();
        main.Focus(u"txbFirstDate"_s);
        main.Type(QString(18, u'1'));
        main.Press(Qt::Key_A, Qt::ControlModifier);
        main.Type(u"2"_s);
        QCOMPARE(main.Text(u"txbFirstDate"_s), QString(18, u'1'));
        main.Press(Qt::Key_Delete);
        main.Type(u"2"_s);
        QCOMPARE(main.Text(u"txbFirstDate"_s), u"2"_s);
    }

    void KeysThatTypeNothingAreTheToolkits() {
        MainWindowFixture main;
        main.Start();
        main.Focus(u"txbFirstDate"_s);
        main.Type(u"2024"_s);
        main.Press(Qt::Key_Home);
        main.Press(Qt::Key_Delete);
        QCOMPARE(main.Text(u"txbFirstDate"_s), u"024"_s);
        main.Press(Qt::Key_End);
        main.Press(Qt::Key_Left);
        main.Press(Qt::Key_Backspace);
        QCOMPARE(main.Text(u"txbFirstDate"_s), u"04"_s);
        main.Press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(main.Text(u"txbFirstDate"_s), u"024"_s);
        main.Press(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(main.Selected(u"txbFirstDate"_s), u"024"_s);
        main.Press(Qt::Key_Escape);
        QCOMPARE(main.Text(u"txbFirstDate"_s), u"024"_s);
        main.Press(Qt::Key_Tab);
        QCOMPARE(main.Focused(), u"txbDateDiff"_s);
        main.Press(Qt::Key_Tab, Qt::ShiftModifier);
        QCOMPARE(main.Focused(), u"txbFirstDate"_s);
    }

    void CopyCutAndPasteWorkAtAnyLengthAndWithAnyText() {
        MainWindowFixture main;
        main.Start();
        main.Focus(u"txbFirstDate"_s);
        const QString pasted = u"2024-03-15 CE, a Friday"_s;
        QGuiApplication::clipboard()->setText(pasted);
        main.Press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(main.Text(u"txbFirstDate"_s), pasted);
        main.Press(Qt::Key_A, Qt::ControlModifier);
        main.Press(Qt::Key_X, Qt::ControlModifier);
        QCOMPARE(main.Text(u"txbFirstDate"_s), QString());
        QGuiApplication::clipboard()->clear();
        main.Get<QLineEdit>(u"txbFirstDate"_s).setText(pasted);
        main.Press(Qt::Key_A, Qt::ControlModifier);
        main.Press(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), pasted);
    }

    void ADateCopiedFromAResultLineCanBePastedAndComputed() {
        MainWindowFixture main;
        main.Start();
        main.Click(u"chkVerbose"_s);
        main.Click(u"optFirstDateIsISO"_s);
        main.Focus(u"txbFirstDate"_s);
        QGuiApplication::clipboard()->setText(u" 2024-W11-5 ISO"_s);
        main.Press(Qt::Key_V, Qt::ControlModifier);
        main.Press(Qt::Key_Return);
        QCOMPARE(main.Text(u"txbFirstDate"_s), u"2024-W11-5"_s);
        QCOMPARE(main.Output(), u"2024-W11-5 ISO = 2024-03-15 CE\n"_s);
    }

    void EnterComputesInEveryBox_data() {
        QTest::addColumn<QString>("box");
        QTest::addColumn<Qt::Key>("key");
        for (const char* box : {"txbFirstDate", "txbDateDiff", "txbSecondDate"}) {
            QTest::addRow("Return in %s", box) << box << Qt::Key_Return;
            QTest::addRow("Enter in %s", box) << box << Qt::Key_Enter;
        }
    }
    void EnterComputesInEveryBox() {
        QFETCH(QString, box);
        QFETCH(Qt::Key, key);
        MainWindowFixture main;
        main.Start();
        main.Click(u"chkVerbose"_s);
        main.Fill(u"2024-03-15"_s, u"10"_s, QString());
        main.Focus(box);
        main.Press(key, key == Qt::Key_Enter ? Qt::KeypadModifier : Qt::NoModifier);
        QCOMPARE(main.Output(), u"2024-03-15 CE plus 10 days = 2024-03-25 CE\n"_s);
        QCOMPARE(main.Focused(), u"cmdCompute"_s);
    }

    void EnterPressesTheButtonThatHasTheFocus_data() {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QStringList>("boxes");
        QTest::newRow("compute") << "cmdCompute" << QStringList{"a", "b", ""};
        QTest::newRow("clear") << "cmdClearFirstDate" << QStringList{"", "b", ""};
        QTest::newRow("today") << "cmdToday1" << QStringList{"a", "b", "2026-11-20"};
    }
    void EnterPressesTheButtonThatHasTheFocus() {
        QFETCH(QString, button);
        QFETCH(QStringList, boxes);
        MainWindowFixture main;
        main.Start();
        main.Fill(u"a"_s, u"b"_s, QString());
        main.Focus(button);
        main.Press(Qt::Key_Return);
        QCOMPARE(main.Boxes(), boxes);
        QCOMPARE(main.Shown().size(), button == "cmdCompute" ? 1U : 0U);
    }

    void EnterOnAnOptionOrACheckBoxComputes_data() {
        QTest::addColumn<QString>("name");
        QTest::newRow("option") << "optFirstDateIsCE";
        QTest::newRow("check box") << "chkVerbose";
    }
    void EnterOnAnOptionOrACheckBoxComputes() {
        QFETCH(QString, name);
        MainWindowFixture main;
        main.Start();
        main.Fill(u"2024-03-15"_s, u"10"_s, QString());
        main.Focus(name);
        main.Press(Qt::Key_Return);
        QCOMPARE(main.Output(),
                 u"2024-03-15 CE plus 10 days = 2024-03-25 CE, Monday, excluding 1st date\n"_s);
    }

    void AnInputMethodsTextPassesTheFilterToo_data() {
        QTest::addColumn<QString>("committed");
        QTest::addColumn<QString>("text");
        QTest::newRow("digits") << "12-3"
                                << "12-3";
        QTest::newRow("a letter among them") << "12x3"
                                             << "";
        QTest::newRow("other digits") << QString::fromUtf8("１２") << "";
        QTest::newRow("as long as may be") << QString(18, u'1') << QString(18, u'1');
        QTest::newRow("longer than may be") << QString(19, u'1') << "";
        QTest::newRow("a format character among them") << u"1\u200e2"_s << "";
    }
    void AnInputMethodsTextPassesTheFilterToo() {
        QFETCH(QString, committed);
        QFETCH(QString, text);
        MainWindowFixture main;
        main.Start();
        main.Focus(u"txbFirstDate"_s);
        QInputMethodEvent event;
        event.setCommitString(committed);
        QCoreApplication::sendEvent(&main.Get<QLineEdit>(u"txbFirstDate"_s), &event);
        QCOMPARE(main.Text(u"txbFirstDate"_s), text);
    }

    void ARefusedTextOfAnInputMethodLeavesNothingBehind() {
        MainWindowFixture main;
        main.Start();
        auto& box = main.Get<QLineEdit>(u"txbFirstDate"_s);
        QApplication::setCursorFlashTime(0);
        main.Focus(u"txbFirstDate"_s);
        const QImage empty = box.grab().toImage();
        QInputMethodEvent composing(u"12"_s, {});
        QCoreApplication::sendEvent(&box, &composing);
        QVERIFY(box.grab().toImage() != empty);
        QInputMethodEvent finished;
        finished.setCommitString(u"x"_s);
        QCoreApplication::sendEvent(&box, &finished);
        QVERIFY(box.grab().toImage() == empty);
        QCOMPARE(box.text(), QString());
    }

    void EnterThatIsHeldDownComputesOnce_data() {
        QTest::addColumn<QString>("focus");
        for (const char* name : {"txbFirstDate", "txbDateDiff", "cmdCompute", "optFirstDateIsCE"}) {
            QTest::newRow(name) << name;
        }
    }
    void EnterThatIsHeldDownComputesOnce() {
        QFETCH(QString, focus);
        MainWindowFixture main;
        main.Start();
        main.Click(u"chkVerbose"_s);
        main.Fill(u"2024-03-15"_s, u"10"_s, QString());
        main.Focus(focus);
        for (const bool repeated : {false, true, true}) {
            QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s, repeated);
            QCoreApplication::sendEvent(QApplication::focusWidget(), &press);
        }
        QCOMPARE(main.Output(), u"2024-03-15 CE plus 10 days = 2024-03-25 CE\n"_s);
    }

    void WhatIsPastedOrDroppedLosesLineEndsTabsAndBlanksAtItsEnds_data() {
        QTest::addColumn<QString>("way");
        for (const char* way : {"Ctrl+V", "Shift+Insert", "menu", "drop"}) QTest::newRow(way) << way;
    }
    void WhatIsPastedOrDroppedLosesLineEndsTabsAndBlanksAtItsEnds() {
        QFETCH(QString, way);
        MainWindowFixture main;
        main.Start();
        auto& box = main.Get<QLineEdit>(u"txbSecondDate"_s);
        const auto bring = [&](const QString& text) {
            box.clear();
            box.setFocus();
            QGuiApplication::clipboard()->setText(text);
            if (way == "Ctrl+V") {
                main.Press(Qt::Key_V, Qt::ControlModifier);
            } else if (way == "Shift+Insert") {
                main.Press(Qt::Key_Insert, Qt::ShiftModifier);
            } else if (way == "menu") {
                QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, box.mapToGlobal(QPoint(2, 2)));
                QCoreApplication::sendEvent(&box, &event);
                auto* menu = box.findChild<QMenu*>();
                for (QAction* action : menu->actions()) {
                    if (action->text().startsWith(u"&Paste"_s)) action->trigger();
                }
                menu->close();
            } else {
                QMimeData dropped;
                dropped.setText(text);
                // The toolkit drops where a drag has come in.
                QDragEnterEvent enter(QPoint(2, 2), Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
                QCoreApplication::sendEvent(&box, &enter);
                QDropEvent drop(QPointF(2, 2), Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
                QCoreApplication::sendEvent(&box, &drop);
            }
            return box.text();
        };
        QCOMPARE(bring(u"2460370\n"_s), u"2460370"_s);
        QCOMPARE(bring(u"\r\n\t 2024-03-15 CE \u2028\t\r\n"_s), u"2024-03-15 CE"_s);
        QCOMPARE(bring(u" 1 \t 2 "_s), u"1 \t 2"_s);
        QCOMPARE(bring(u"2024"_s), u"2024"_s);
        QCOMPARE(bring(u" \n"_s), QString());
    }

    void AControlKeyIsNoCharacter() {
        MainWindowFixture main;
        main.Start();
        main.Focus(u"txbFirstDate"_s);
        main.Type(u"2024"_s);
        main.Press(Qt::Key_Insert, Qt::ControlModifier);
        main.Press(Qt::Key_B, Qt::ControlModifier);
        QCOMPARE(main.Text(u"txbFirstDate"_s), u"2024"_s);
    }
};

QTEST_MAIN(InputKeysTest)
#include "InputKeysTest.moc"
