// What assistive tools do to options and check boxes has the effect of a click with the mouse, and leaves
// the focus on the control.

#include <QAccessible>
#include <QCheckBox>
#include <QRadioButton>

#include "tests/mainwindow/MainWindowFixture.h"

using namespace calvoro;

class AssistiveActionsTest : public QObject {
    Q_OBJECT

private:
    struct Outcome {
        QStringList window;  // every caption, text, mark and availability
        Settings saved;
        std::size_t messages = 0;
        QString focus;
    };

    static QStringList Shown(const MainWindowFixture& main) {
        QStringList lines;
        for (const QWidget* control : main.window->findChildren<QWidget*>()) {
            const QVariant text = control->property("text");
            const QVariant checked = control->property("checked");
            if (!text.isValid() || control->objectName() == u"lblReading"_s) continue;  // follows the focus
            lines.push_back(control->objectName() + u": "_s + text.toString() + u" "_s + checked.toString() +
                            (control->isEnabled() ? u" on"_s : u" off"_s));
        }
        lines.push_back(main.Output());
        return lines;
    }

    static QString TextFor(CalendarNumber calendar) {
        for (const OfferedCalendar& offered : kOffered) {
            if (offered.number == calendar) return QLatin1String(offered.today);
        }
        return {};
    }

    // Starts with another choice than this option's, and with texts in the boxes.
    static void Prepare(MainWindowFixture& main, const QString& name) {
        main.Start();
        QAbstractButton& button = main.Button(name);
        if (qobject_cast<QRadioButton*>(&button) != nullptr && button.isChecked()) {
            for (const auto* other : button.parent()->findChildren<QRadioButton*>()) {
                if (other != &button) main.Click(other->objectName());
            }
        }
        main.Fill(TextFor(main.window->GetCal(1)), u"1,000"_s, TextFor(main.window->GetCal(2)));
        main.Focus(u"txbDateDiff"_s);
    }

    template <typename Action>
    static Outcome After(const QString& name, Action action) {
        MainWindowFixture main;
        Prepare(main, name);
        const bool before = main.Button(name).isChecked();
        action(main);
        if (!QTest::qWaitFor([&] { return main.Button(name).isChecked() != before; })) {
            qWarning("%s has not changed", qPrintable(name));
        }
        Outcome outcome{.window = Shown(main),
                        .saved = {},
                        .messages = main.Shown().size(),
                        .focus = MainWindowFixture::Focused()};
        main.Quit();
        outcome.saved = main.Saved();
        return outcome;
    }

    static QAccessibleActionInterface& ActionsOf(const MainWindowFixture& main, const QString& name) {
        return *QAccessible::queryAccessibleInterface(&main.Button(name))->actionInterface();
    }

private Q_SLOTS:
    void EveryActionActsLikeTheMouse_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("action");
        MainWindowFixture main;
        main.Start();
        QStringList names;
        for (const auto* option : main.window->findChildren<QRadioButton*>()) {
            names.push_back(option->objectName());
        }
        for (const auto* box : main.window->findChildren<QCheckBox*>()) names.push_back(box->objectName());
        QCOMPARE(names.size(), 32);
        for (const QString& name : names) {
            QTest::addRow("Toggle %s", qPrintable(name))
                << name << QAccessibleActionInterface::toggleAction();
            QTest::addRow("Press %s", qPrintable(name)) << name << QAccessibleActionInterface::pressAction();
        }
    }
    void EveryActionActsLikeTheMouse() {
        QFETCH(QString, name);
        QFETCH(QString, action);
        const Outcome byTool =
            After(name, [&](MainWindowFixture& main) { ActionsOf(main, name).doAction(action); });
        const Outcome byMouse = After(name, [&](MainWindowFixture& main) { main.Click(name); });
        QCOMPARE(byTool.window, byMouse.window);
        QVERIFY(byTool.saved == byMouse.saved);
        QCOMPARE(byTool.messages, byMouse.messages);
        QCOMPARE(byTool.focus, name);
    }

    void WhatTheButtonsShowIsWhatIsComputed() {
        MainWindowFixture main;
        main.Start();
        main.Click(u"chkVerbose"_s);
        main.Fill(u"2021-03-04"_s, QString(), QString());
        ActionsOf(main, u"optSecondDateIsJC"_s).doAction(QAccessibleActionInterface::toggleAction());
        QCOMPARE(main.window->GetCal(2), CalendarNumber::JC);
        main.Click(u"cmdCompute"_s);
        QCOMPARE(main.Output(), u"2021-03-04 CE = 2021-02-19 JC\n"_s);
    }

    void AToggleThatIsSentBackLeavesTheFocusOnTheOptionThatIsChosen() {
        MainWindowFixture main;
        main.Start();
        main.Fill(u"not a date"_s, QString(), QString());
        ActionsOf(main, u"optFirstDateIsJC"_s).doAction(QAccessibleActionInterface::toggleAction());
        QCOMPARE(main.Shown().size(), 1U);
        QVERIFY(main.Button(u"optFirstDateIsCE"_s).isChecked());
        QCOMPARE(main.window->GetCal(1), CalendarNumber::CE);
        QCOMPARE(main.Focused(), u"optFirstDateIsCE"_s);
    }

    void AToggleOfTheOptionThatIsChosenDoesNothing() {
        MainWindowFixture main;
        main.Start();
        main.Fill(u" x"_s, u" y"_s, u" z"_s);
        const QStringList before = Shown(main);
        ActionsOf(main, u"optFirstDateIsCE"_s).doAction(QAccessibleActionInterface::toggleAction());
        QCOMPARE(Shown(main), before);
        QVERIFY(main.Shown().empty());
    }

    void RestoringAndResettingRunNoHandler() {
        MainWindowFixture main;
        Settings settings;
        settings.dateFormat = DateFormat::DMY;
        settings.thousandsSeparator = '.';
        settings.hyphen = false;
        settings.firstCalendar = CalendarNumber::ISO;
        settings.firstDate = "2024-W11-5";
        settings.dateDiff = "10";
        main.StartWith(settings);
        // A handler would have emptied the boxes or rewritten the date.
        QCOMPARE(main.Boxes(), QStringList({"2024-W11-5", "10", ""}));
        main.Quit();
        QVERIFY(main.Saved() == settings);
    }
};

QTEST_MAIN(AssistiveActionsTest)
#include "AssistiveActionsTest.moc"
