// The line at the bottom that tells how the box with the focus is read, which is also each box's
// description for assistive tools.

#include <QAccessible>
#include <QLayout>

#include "tests/mainwindow/MainWindowFixture.h"

using namespace calvoro;

class ReadingLineTest : public QObject {
    Q_OBJECT

private:
    static QString Line(const MainWindowFixture& main) { return main.Get<QLabel>(u"lblReading"_s).text(); }
    static QString Description(const MainWindowFixture& main, const QString& box) {
        return QAccessible::queryAccessibleInterface(&main.Get<QLineEdit>(box))
            ->text(QAccessible::Description);
    }

    static Settings FirstDateOnly(const std::string& text) {
        Settings settings;
        settings.firstDate = text;
        return settings;
    }

private Q_SLOTS:
    void AnEmptyBoxHasAnEmptyLine() {
        MainWindowFixture main;
        main.Start();
        QCOMPARE(main.Focused(), u"txbFirstDate"_s);
        QCOMPARE(Line(main), u""_s);
    }

    void FollowsEveryKey() {
        MainWindowFixture main;
        main.Start();
        main.Type(u"-43-03-1"_s);
        QCOMPARE(Line(main), u"First date: Friday, 1 March -43 CE (44 BCE), day number 1705414"_s);
        main.Type(u"3"_s);
        QCOMPARE(Line(main), u"First date: Wednesday, 13 March -43 CE (44 BCE), day number 1705426"_s);
        main.Type(u"3"_s);
        QCOMPARE(Line(main), u"First date: not valid"_s);
        main.Press(Qt::Key_Backspace);
        main.Press(Qt::Key_Up);
        QCOMPARE(Line(main), u"First date: Thursday, 14 March -43 CE (44 BCE), day number 1705427"_s);
    }

    void FollowsTheFocus() {
        MainWindowFixture main;
        main.Start();
        main.Fill(u"2024-02-29"_s, u"10"_s, u"5800001-01-01"_s);
        QCOMPARE(Line(main), u"First date: Thursday, 29 February 2024 CE, day number 2460370"_s);
        main.Press(Qt::Key_Tab);
        QCOMPARE(Line(main), u"Date difference: 10 days"_s);
        main.Press(Qt::Key_Tab);
        QCOMPARE(Line(main), u"Second date: beyond the years that can be computed"_s);
        main.Press(Qt::Key_Tab);
        QCOMPARE(main.Focused(), u"cmdToday0"_s);
        QCOMPARE(Line(main), u""_s);
    }

    void StaysWhileAnotherWindowIsActive() {
        MainWindowFixture main;
        main.Start();
        main.Type(u"2024-02-29"_s);
        const QString line = Line(main);
        QVERIFY(!line.isEmpty());
        QWidget other;
        other.show();
        other.activateWindow();
        QTRY_COMPARE(QApplication::activeWindow(), &other);
        QCOMPARE(Line(main), line);
    }

    void FollowsTheCalendar() {
        MainWindowFixture main;
        main.Start();
        main.Fill(u"2024-02-29"_s, u""_s, u"2024-02-29"_s);
        main.Click(u"optFirstDateIsJC"_s);
        main.Focus(u"txbFirstDate"_s);
        QCOMPARE(Line(main), u"First date: Thursday, 16 February 2024 JC, day number 2460370"_s);
        main.Click(u"optSecondDateIsISO"_s);
        main.Focus(u"txbSecondDate"_s);
        QCOMPARE(main.Text(u"txbSecondDate"_s), u"2024-W09-4"_s);
        QCOMPARE(Line(main), u"Second date: Thursday, 29 February 2024 CE, day number 2460370"_s);
    }

    void FollowsTheUnitOfTheDifference() {
        MainWindowFixture main;
        main.Start();
        main.Fill(u""_s, u"1"_s, u""_s);
        main.Focus(u"txbDateDiff"_s);
        QCOMPARE(Line(main), u"Date difference: 1 day"_s);
        main.Click(u"optMonths"_s);
        main.Focus(u"txbDateDiff"_s);
        QCOMPARE(Line(main), u"Date difference: 1 month"_s);
    }

    void FollowsTheWayDatesAreWritten() {
        MainWindowFixture main;
        main.StartWith(FirstDateOnly("01-02-2024"));
        QCOMPARE(Line(main), u"First date: not valid"_s);
        main.Click(u"optDateFormatIsDMY"_s);
        QCOMPARE(Line(main), u""_s);
        main.Fill(u"01-02-2024"_s, u""_s, u""_s);
        QCOMPARE(Line(main), u"First date: Thursday, 1 February 2024 CE, day number 2460342"_s);
    }

    void FollowsTheHyphen() {
        MainWindowFixture main;
        Settings settings = FirstDateOnly("2024075");
        settings.firstCalendar = CalendarNumber::ORD;
        main.StartWith(settings);
        QCOMPARE(Line(main), u"First date: not valid"_s);
        main.Click(u"chkHyphen"_s);
        main.Focus(u"txbFirstDate"_s);
        QCOMPARE(Line(main), u"First date: Friday, 15 March 2024 CE, day number 2460385"_s);
    }

    void FollowsTheLanguage() {
        MainWindowFixture main;
        main.Start();
        main.Fill(u"-43-03-13"_s, u"10"_s, u""_s);
        main.Click(u"optLanguageIsGerman"_s);
        main.Focus(u"txbFirstDate"_s);
        QCOMPARE(Line(main), u"Erstes Datum: Mittwoch, 13. Maerz -43 CE (44 v. Chr.), Tageszahl 1705426"_s);
        QCOMPARE(Description(main, u"txbDateDiff"_s), u"Datumsdifferenz: 10 Tage"_s);
        main.Click(u"optLanguageIsEnglish"_s);
        QCOMPARE(Description(main, u"txbDateDiff"_s), u"Date difference: 10 days"_s);
    }

    void ReadsWhatTheSettingsBringBack() {
        MainWindowFixture main;
        Settings settings = FirstDateOnly("0-12-31");
        settings.interfaceLanguage = LanguageGerman;
        main.StartWith(settings);
        QCOMPARE(Line(main), u"Erstes Datum: Sonntag, 31. Dezember 0 CE (1 v. Chr.), Tageszahl 1721425"_s);
    }

    void EveryBoxHasItsReadingAsDescription() {
        MainWindowFixture main;
        main.Start();
        main.Fill(u"2024-02-29"_s, u"x"_s, u"2024-03-01"_s);
        QCOMPARE(Description(main, u"txbFirstDate"_s),
                 u"First date: Thursday, 29 February 2024 CE, day number 2460370"_s);
        QCOMPARE(Description(main, u"txbDateDiff"_s), u"Date difference: not valid"_s);
        QCOMPARE(Description(main, u"txbSecondDate"_s),
                 u"Second date: Friday, 1 March 2024 CE, day number 2460371"_s);
        main.Fill(u""_s, u""_s, u""_s);
        QCOMPARE(Description(main, u"txbFirstDate"_s), u""_s);
    }

    void ComesAndGoesWithoutMovingAnything() {
        MainWindowFixture main;
        main.Start();
        const QRect output = main.Get<QWidget>(u"txbOutput"_s).geometry();
        const QSize least = main.window->minimumSizeHint();
        main.Type(u"-5799999-09-29"_s);
        QCoreApplication::processEvents();
        QCOMPARE(main.Get<QWidget>(u"txbOutput"_s).geometry(), output);
        QCOMPARE(main.window->minimumSizeHint(), least);
        const QWidget& line = main.Get<QWidget>(u"lblReading"_s);
        QVERIFY(line.sizeHint().width() > 0);
        QVERIFY(line.height() >= line.sizeHint().height());
        // Below everything else.
        QCOMPARE(line.geometry().bottom() + line.parentWidget()->layout()->contentsMargins().bottom() + 1,
                 line.parentWidget()->height());
    }
};

QTEST_MAIN(ReadingLineTest)
#include "ReadingLineTest.moc"
