// What the list shows beside a line is what the Compute click makes of it.

#include <QTableView>
#include <random>
#include <string>
#include <vector>

#include "datetext/AnyNotation.h"
#include "tests/mainwindow/MainWindowFixture.h"
#include "tests/windows/list/ListJobs.h"
#include "windows/QtText.h"
#include "windows/frmList.h"

using namespace calvoro;

namespace {

using Random = std::mt19937;

struct Row {
    QString reading;
    QString result;
    QString weekday;
    QString reason;
};

class ListAndClick {
public:
    MainWindowFixture main;

    ListAndClick() {
        main.fake.clock.today = {2024, 3, 15};
        main.Start();
        main.Get<QTimer>(u"Clock"_s).stop();
        MainWindowFixture::Press(Qt::Key_L, Qt::ControlModifier);
        list_ = OpenedWindow<frmList>();
        if (list_ == nullptr) qFatal("no list window");
    }

    void Show(const QStringList& lines, ListSide side) {
        list_->Show({lines.join(u'\n') + u'\n', QString()}, side);
        WaitForJobs(*list_);
        QCOMPARE(Model().rowCount(), int(lines.size()));
    }

    QAbstractItemModel& Model() const { return *list_->findChild<QTableView*>()->model(); }
    QTableView& Table() const { return *list_->findChild<QTableView*>(); }

    Row RowAt(int row) const {
        const auto text = [&](int column) { return Model().index(row, column).data().toString(); };
        Row shown{text(1), text(2), text(3), text(4)};
        if (Table().isColumnHidden(3)) shown.weekday.clear();
        return shown;
    }

private:
    frmList* list_;
};

template <typename Container>
const auto& OneOf(const Container& choices, Random& random) {
    return choices[random() % choices.size()];
}

std::int32_t AnyDay(Random& random) {
    switch (random() % 8) {
        case 0: return static_cast<std::int32_t>(random());  // beyond every limit, too
        case 1: return static_cast<std::int32_t>(random() % 7'000'000) - 3'000'000;
        default: return 2'400'000 + static_cast<std::int32_t>(random() % 100'000);
    }
}

// A date as one of the notations writes it, sometimes damaged, sometimes in a notation of its own.
QString AnyLine(CalendarNumber calendar, const TextOptions& options, Random& random) {
    const CalendarNumber written = random() % 12 == 0 ? OneOf(kOffered, random).number : calendar;
    const std::int32_t day = AnyDay(random);
    std::string text = CanWriteDate(written, day) ? WriteDate(written, day, options) : "2024-13-40";
    if (random() % 15 == 0) text.insert(random() % (text.size() + 1), 1, "x9-. W"[random() % 6]);
    if (random() % 15 == 0) text.erase(random() % text.size(), 1);
    if (random() % 15 == 0) text = "  " + text + " ";
    if (random() % 40 == 0) text = " ";
    return ToQt(text);
}

QString OnOneLine(std::string message) {
    QString line = ToQt(message);
    return line.replace("\r\n", " ");
}

}  // namespace

class ListRowsTest : public QObject {
    Q_OBJECT

private:
    int results_ = 0;
    int refusals_ = 0;
    int counts_ = 0;

    // returns the options as the fixture has chosen them
    static void ChooseAnyOptions(MainWindowFixture& main, Random& random) {
        const auto choose = [&](std::initializer_list<const char*> names) {
            main.Button(QString::fromLatin1(OneOf(std::vector<const char*>(names), random))).click();
        };
        choose({"optLanguageIsEnglish", "optLanguageIsGerman"});
        choose({"optDateFormatIsYMD", "optDateFormatIsDMY", "optDateFormatIsMDY"});
        choose({"optSeparatorIsDash", "optSeparatorIsSlash", "optSeparatorIsDot"});
        choose({"optThousSepIsComma", "optThousSepIsDot", "optThousSepNone"});
        choose({"optDays", "optDays", "optMonths"});
        main.Fill(QString(), QString(), QString());
        const OfferedCalendar& first = OneOf(kOffered, random);
        main.Button(FirstOption(first)).click();
        main.Button(SecondOption(random() % 3 == 0 ? first : OneOf(kOffered, random))).click();
        for (const char* box : {"chkIncludeFirstDate", "chkIncludeWeekends", "chkVerbose", "chkHyphen"}) {
            main.Button(QString::fromLatin1(box)).setChecked(random() % 2 == 0);
        }
    }

    static TextOptions TextOptionsOf(const MainWindowFixture& main) {
        const auto chosen = [&main](const char* name) {
            return main.Button(QString::fromLatin1(name)).isChecked();
        };
        return {.dateFormat = main.window->UsersDateFormat(),
                .dateSeparator = chosen("optSeparatorIsDash")    ? '-'
                                 : chosen("optSeparatorIsSlash") ? '/'
                                                                 : '.',
                .thousandsSeparator = chosen("optThousSepIsComma") ? ','
                                      : chosen("optThousSepIsDot") ? '.'
                                                                   : kNoSeparator,
                .hyphen = chosen("chkHyphen"),
                .digitGrouping = ","};
    }

    // Does what a person would do for one line, and holds the row of the list against it.
    void CompareWithClick(MainWindowFixture& main, const Row& row, const QString& line, ListSide side,
                          const QString& difference, const QString& other) {
        const bool isFirst = side == ListSide::FirstDates;
        const QString counted = difference.trimmed().isEmpty() ? other : QString();
        main.Fill(isFirst ? line : counted, difference, isFirst ? counted : line);
        auto& output = main.Get<QPlainTextEdit>(u"txbOutput"_s);
        output.clear();
        main.Shown().clear();
        const bool inMonths = main.Button(u"optMonths"_s).isChecked();
        main.Button(u"cmdCompute"_s).click();

        if (!main.Shown().empty()) {
            const QString message = OnOneLine(main.Shown().front().prompt);
            // Deliberate: of the message that the unit was switched the row has the half that is true there.
            if (inMonths && !counted.isEmpty() && main.Button(u"optDays"_s).isChecked()) {
                QVERIFY(!row.reason.isEmpty() && message.startsWith(row.reason));
                main.Button(u"optMonths"_s).click();
            } else {
                QCOMPARE(row.reason, message);
            }
            QCOMPARE(row.result, QString());
            ++refusals_;
            return;
        }
        QCOMPARE(row.reason, QString());
        QCOMPARE(row.reading, main.Text(isFirst ? u"txbFirstDate"_s : u"txbSecondDate"_s));
        const QString text = output.toPlainText().section('\n', 0, 0);
        const QString result = text.section(" = ", 1);
        QVERIFY2(!row.result.isEmpty() && result.startsWith(row.result), qPrintable(text + "|" + row.result));
        const QString behind = result.mid(row.result.size());
        QVERIFY2(behind.isEmpty() || behind.startsWith(' ') || behind.startsWith(','), qPrintable(text));
        if (row.weekday.isEmpty()) {
            QVERIFY(!counted.isEmpty() || !main.Button(u"chkVerbose"_s).isChecked());
        } else {
            QVERIFY2(behind.section(", ", 1, 1) == row.weekday, qPrintable(text + "|" + row.weekday));
        }
        ++results_;
        if (!counted.isEmpty()) ++counts_;
    }

private Q_SLOTS:
    void AreWhatTheComputeClickMakesOfTheLine() {
        constexpr int kSettings = 400;
        constexpr int kLines = 25;
        ListAndClick both;
        MainWindowFixture& main = both.main;
        Random random(12);
        int compared = 0;
        for (int setting = 0; setting < kSettings; ++setting) {
            ChooseAnyOptions(main, random);
            const ListSide side = random() % 2 == 0 ? ListSide::FirstDates : ListSide::SecondDates;
            const bool isFirst = side == ListSide::FirstDates;
            const CalendarNumber own = main.window->GetCal(isFirst ? 1 : 2);
            const TextOptions options = TextOptionsOf(main);
            const std::vector<QString> differences = {"",     "",      "",         "1",   "10",
                                                      "-400", "1,000", "99999999", "abc", " "};
            const QString difference = OneOf(differences, random);
            const QString other = random() % 2 == 0
                                      ? QString()
                                      : AnyLine(main.window->GetCal(isFirst ? 2 : 1), options, random);
            main.Fill(isFirst ? u"0"_s : other, difference, isFirst ? other : u"0"_s);
            QStringList lines;
            for (int i = 0; i < kLines; ++i) lines.push_back(AnyLine(own, options, random));
            main.Shown().clear();
            both.Show(lines, side);
            QCOMPARE(both.Model().rowCount(), kLines);

            std::vector<Row> rows;
            for (int i = 0; i < kLines; ++i) rows.push_back(both.RowAt(i));
            const QStringList before = main.Boxes();
            QCOMPARE(before,
                     (isFirst ? QStringList{"0", difference, other} : QStringList{other, difference, "0"}));
            QVERIFY(main.Shown().empty());
            for (int i = 0; i < kLines; ++i, ++compared) {
                const QString description = lines[i] + " / " + difference + " / " + other;
                if (lines[i].trimmed().isEmpty()) {
                    const Row& row = rows[static_cast<std::size_t>(i)];
                    QCOMPARE(row.reading + row.result + row.weekday + row.reason, QString());
                    continue;
                }
                CompareWithClick(main, rows[static_cast<std::size_t>(i)], lines[i], side, difference, other);
                if (QTest::currentTestFailed()) qFatal("%s", qPrintable(description));
            }
        }
        QCOMPARE(compared, 10'000);
        QVERIFY2(results_ > 4'000 && refusals_ > 1'500 && counts_ > 500,
                 qPrintable(u"%1 %2 %3"_s.arg(results_).arg(refusals_).arg(counts_)));
    }

    void ShowTheirParts_data() {
        QTest::addColumn<QString>("difference");
        QTest::addColumn<QString>("second");
        QTest::addColumn<QStringList>("row");
        QTest::newRow("conversion") << ""
                                    << "" << QStringList{"2021-03-04", "2021-02-19", "Thursday", ""};
        QTest::newRow("sum") << "10"
                             << "" << QStringList{"2021-03-04", "2021-03-01", "Sunday", ""};
        QTest::newRow("count") << ""
                               << "2021-03-01" << QStringList{"2021-03-04", "10", "", ""};
        QTest::newRow("the difference counts before the date")
            << "10"
            << "1999-01-01" << QStringList{"2021-03-04", "2021-03-01", "Sunday", ""};
        QTest::newRow("beyond the end") << "2099999999"
                                        << "" << QStringList{"2021-03-04", "", "", "Result is out of range."};
        QTest::newRow("difference that is none")
            << "x"
            << "" << QStringList{"", "", "", "Date difference is not valid."};
        QTest::newRow("other date that is none")
            << ""
            << "x"
            << QStringList{"", "", "",
                           "Second date is not valid in specified calendar using specified date format."};
    }
    void ShowTheirParts() {
        QFETCH(const QString, difference);
        QFETCH(const QString, second);
        QFETCH(const QStringList, row);
        ListAndClick both;
        both.main.Click(u"optSecondDateIsJC"_s);
        both.main.Fill(QString(), difference, second);
        both.Show({" 2021-3-4 "}, ListSide::FirstDates);
        const Row shown = both.RowAt(0);
        QCOMPARE(QStringList({shown.reading, shown.result, shown.weekday, shown.reason}), row);
    }

    // Deliberate: nothing is switched, so the row does not say that it was.
    void DeliberatelySayHalfOfWhatTheClickSaysOfMonthsBetweenDates() {
        ListAndClick both;
        both.main.Click(u"optMonths"_s);
        both.main.Fill(QString(), QString(), u"2021-03-04"_s);
        both.Show({"2020-01-01"}, ListSide::FirstDates);
        QCOMPARE(both.RowAt(0).reason, u"The number of months between two dates is not available."_s);
        QVERIFY(both.main.Button(u"optMonths"_s).isChecked());
        QVERIFY(both.main.Shown().empty());
    }

    void FollowEveryOptionAtOnce() {
        ListAndClick both;
        MainWindowFixture& main = both.main;
        both.Show({"2024-02-29", "", "x"}, ListSide::FirstDates);
        const auto result = [&both] { return both.RowAt(0).result; };
        QCOMPARE(result(), "2024-02-29");
        main.Button(u"optSecondDateIsISO"_s).click();
        QCOMPARE(result(), "2024-W09-4");
        main.Button(u"chkHyphen"_s).setChecked(false);
        QCOMPARE(result(), "2024W094");
        main.Button(u"optSecondDateIsJDN"_s).click();
        QCOMPARE(result(), "2,460,370");
        main.Button(u"optThousSepIsDot"_s).click();
        QCOMPARE(result(), "2.460.370");
        main.Button(u"optThousSepNone"_s).click();
        QCOMPARE(result(), "2460370");
        main.Get<QLineEdit>(u"txbDateDiff"_s).setText(u"2"_s);
        QCOMPARE(result(), "2460372");
        main.Button(u"chkIncludeFirstDate"_s).setChecked(true);
        QCOMPARE(result(), "2460371");
        main.Button(u"chkIncludeWeekends"_s).setChecked(false);
        QCOMPARE(result(), "2460371");
        main.Get<QLineEdit>(u"txbDateDiff"_s).setText(u"3"_s);
        QCOMPARE(result(), "2460374");
        main.Button(u"optSecondDateIsCE"_s).click();
        main.Button(u"optMonths"_s).click();
        QCOMPARE(result(), "2024-05-29");
        QCOMPARE(both.RowAt(0).weekday, "Wednesday");
        main.Button(u"optLanguageIsGerman"_s).click();
        QCOMPARE(both.RowAt(0).weekday, "Mittwoch");
        QVERIFY(both.RowAt(2).reason.startsWith("Erstes Datum"));
        main.Button(u"chkVerbose"_s).setChecked(false);
        QVERIFY(both.Table().isColumnHidden(3));
        main.Button(u"optDateFormatIsDMY"_s).click();
        QCOMPARE(both.RowAt(0).reason.isEmpty(), false);
        main.Button(u"optFirstDateIsJDN"_s).click();
        QCOMPARE(both.RowAt(0).reading, QString());
    }

    void FollowAReset() {
        ListAndClick both;
        both.main.Button(u"optSecondDateIsISO"_s).click();
        both.main.Button(u"chkVerbose"_s).setChecked(false);
        both.Show({"2024-02-29"}, ListSide::FirstDates);
        QCOMPARE(both.RowAt(0).result, "2024-W09-4");
        both.main.fake.boxes.answers = {true};
        both.main.Button(u"cmdReset"_s).click();
        QCOMPARE(both.RowAt(0).result, "2024-02-29");
        QVERIFY(!both.Table().isColumnHidden(3));
    }
};

QTEST_MAIN(ListRowsTest)
#include "ListRowsTest.moc"
