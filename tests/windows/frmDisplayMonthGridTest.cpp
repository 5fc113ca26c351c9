#include "tests/windows/MonthWindow.h"

namespace calvoro {
namespace {

struct GridRow {
    const char* name;
    const char* year;
    int month;
    CalendarNumber calendar;
    WeekStart weekStart;
    std::vector<std::string_view> lines;
};

// clang-format off
const std::vector<GridRow> kGrids = {
    {"September2024MondayFirst", "2024", 9, CalendarNumber::CE, WeekStart::Monday,
     {" Mon  Tue  Wed  Thu  Fri  Sat  Sun ",
      "  26   27   28   29   30   31    1  ",
      "   2    3    4    5    6    7    8  ",
      "   9   10   11   12   13   14   15  ",
      "  16   17   18   19   20   21   22  ",
      "  23   24   25   26   27   28   29  ",
      "  30    1    2    3    4    5    6  "}},
    {"September2024SundayFirst", "2024", 9, CalendarNumber::CE, WeekStart::Sunday,
     {" Sun  Mon  Tue  Wed  Thu  Fri  Sat ",
      "   1    2    3    4    5    6    7  ",
      "   8    9   10   11   12   13   14  ",
      "  15   16   17   18   19   20   21  ",
      "  22   23   24   25   26   27   28  ",
      "  29   30    1    2    3    4    5  "}},
    {"DeliberatelyOneMoreLineAfterFebruaryFromMonday", "2027", 2, CalendarNumber::CE, WeekStart::Monday,
     {" Mon  Tue  Wed  Thu  Fri  Sat  Sun ",
      "   1    2    3    4    5    6    7  ",
      "   8    9   10   11   12   13   14  ",
      "  15   16   17   18   19   20   21  ",
      "  22   23   24   25   26   27   28  ",
      "   1    2    3    4    5    6    7  "}},
    {"DeliberatelyOneMoreLineAfterFebruaryFromSunday", "2026", 2, CalendarNumber::CE, WeekStart::Sunday,
     {" Sun  Mon  Tue  Wed  Thu  Fri  Sat ",
      "   1    2    3    4    5    6    7  ",
      "   8    9   10   11   12   13   14  ",
      "  15   16   17   18   19   20   21  ",
      "  22   23   24   25   26   27   28  ",
      "   1    2    3    4    5    6    7  "}},
    {"DeliberatelyOneMoreLineAfterThirtyDays", "2024", 6, CalendarNumber::CE, WeekStart::Monday,
     {" Mon  Tue  Wed  Thu  Fri  Sat  Sun ",
      "  27   28   29   30   31    1    2  ",
      "   3    4    5    6    7    8    9  ",
      "  10   11   12   13   14   15   16  ",
      "  17   18   19   20   21   22   23  ",
      "  24   25   26   27   28   29   30  ",
      "   1    2    3    4    5    6    7  "}},
    {"DeliberatelyNoMoreLineAfterThirtyOneDays", "2024", 3, CalendarNumber::CE, WeekStart::Monday,
     {" Mon  Tue  Wed  Thu  Fri  Sat  Sun ",
      "  26   27   28   29    1    2    3  ",
      "   4    5    6    7    8    9   10  ",
      "  11   12   13   14   15   16   17  ",
      "  18   19   20   21   22   23   24  ",
      "  25   26   27   28   29   30   31  "}},
    {"December", "2024", 12, CalendarNumber::CE, WeekStart::Sunday,
     {" Sun  Mon  Tue  Wed  Thu  Fri  Sat ",
      "   1    2    3    4    5    6    7  ",
      "   8    9   10   11   12   13   14  ",
      "  15   16   17   18   19   20   21  ",
      "  22   23   24   25   26   27   28  ",
      "  29   30   31    1    2    3    4  "}},
    {"YearZero", "0", 2, CalendarNumber::CE, WeekStart::Sunday,
     {" Sun  Mon  Tue  Wed  Thu  Fri  Sat ",
      "  30   31    1    2    3    4    5  ",
      "   6    7    8    9   10   11   12  ",
      "  13   14   15   16   17   18   19  ",
      "  20   21   22   23   24   25   26  ",
      "  27   28   29    1    2    3    4  "}},
    {"NegativeYear", "-1", 12, CalendarNumber::CE, WeekStart::Monday,
     {" Mon  Tue  Wed  Thu  Fri  Sat  Sun ",
      "  29   30    1    2    3    4    5  ",
      "   6    7    8    9   10   11   12  ",
      "  13   14   15   16   17   18   19  ",
      "  20   21   22   23   24   25   26  ",
      "  27   28   29   30   31    1    2  "}},
    {"JulianLeapDay", "1900", 2, CalendarNumber::JC, WeekStart::Monday,
     {" Mon  Tue  Wed  Thu  Fri  Sat  Sun ",
      "  31    1    2    3    4    5    6  ",
      "   7    8    9   10   11   12   13  ",
      "  14   15   16   17   18   19   20  ",
      "  21   22   23   24   25   26   27  ",
      "  28   29    1    2    3    4    5  "}},
    {"JulianNegative", "-4712", 1, CalendarNumber::JC, WeekStart::Sunday,
     {" Sun  Mon  Tue  Wed  Thu  Fri  Sat ",
      "  31    1    2    3    4    5    6  ",
      "   7    8    9   10   11   12   13  ",
      "  14   15   16   17   18   19   20  ",
      "  21   22   23   24   25   26   27  ",
      "  28   29   30   31    1    2    3  "}},
};
// clang-format on

}  // namespace

class frmDisplayMonthGridTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void DrawsTheMonthWhole_data() {
        QTest::addColumn<int>("row");
        for (int row = 0; const GridRow& grid : kGrids) QTest::newRow(grid.name) << row++;
    }

    void DrawsTheMonthWhole() {
        QFETCH(const int, row);
        const GridRow& grid = kGrids[static_cast<std::size_t>(row)];
        MonthWindow month;
        month.window.SetWeekStart(grid.weekStart);
        month.ShowMonth(grid.year, grid.month, grid.calendar);
        QCOMPARE(month.Grid(), Lines(grid.lines));
        QVERIFY(month.fake.boxes.shown.empty());
    }
};

}  // namespace calvoro

QTEST_MAIN(calvoro::frmDisplayMonthGridTest)
#include "frmDisplayMonthGridTest.moc"
