#include <QComboBox>

#include "calendar/StaysIn32Bits.h"
#include "datetext/MonthText.h"
#include "tests/monkey/Invariants.h"
#include "tests/windows/WindowTesting.h"
#include "text/DateNames.h"
#include "windows/MonthYear.h"
#include "windows/QtText.h"
#include "windows/frmDisplayMonth.h"

namespace calvoro::monkey {
namespace {

// The year in a heading: "September 2024 (Common Era Calendar)".
std::optional<std::int32_t> YearOfHeading(const QString& heading) {
    const QString behindMonth = heading.section(QLatin1Char(' '), 1);
    return ReadYear(FromQt(behindMonth.left(behindMonth.lastIndexOf(QLatin1String(" (")))));
}

}  // namespace

std::string Month(const World& world, Memory& memory) {
    auto* const month = world.Open<frmDisplayMonth>();
    if (month == nullptr) {
        memory.monthMayBeOld = false;
        return {};
    }
    const LanguageNumber language = LanguageSeen(world);
    const Texts texts(language, language);
    if (month->windowTitle() != ToQt(texts.Shown(TextId::DisplayMonth)))
        return "its title is in another language";
    const auto& list = Control<QComboBox>(*month, "cboMonths");
    for (int i = 0; i < 12; ++i) {
        if (list.itemText(i) != ToQt(ShownMonthName(language, i)))
            return "its months are in another language";
    }
    const bool isMonday = month->GetWeekStart() == WeekStart::Monday;
    const bool isCommon = month->GetCalendar() == CalendarNumber::CE;
    const bool isoShown = Control<QWidget>(*month, "txbISODates").isVisible();
    if (isoShown && !(isMonday && isCommon)) return "ISO week dates stand beside weeks that are none";

    const std::optional<std::int32_t> typed = ReadYear(FromQt(Control<QLineEdit>(*month, "txbYear").text()));
    const auto draw = [&](std::int32_t year, MonthGrid& grid) {
        return StaysIn32Bits([&] {
            grid = DrawMonth(year, list.currentIndex() + 1, isCommon ? CalendarCode::G : CalendarCode::J,
                             month->GetWeekStart(), ShownWeekdayNames(language));
        });
    };
    MonthGrid grid;
    if (!typed || !draw(*typed, grid)) memory.monthMayBeOld = true;
    const auto& box = Control<QPlainTextEdit>(*month, "txbMonth");
    const std::optional<std::int32_t> year = YearOfHeading(box.accessibleName());
    if (!year) return {};  // none was drawn so far
    if (!draw(*year, grid)) return {};
    const bool fits = TextOf(*month, "txbMonth") == grid.text;
    if (!fits) return memory.monthMayBeOld ? std::string() : "the month drawn is not the month chosen";
    if (typed == year) memory.monthMayBeOld = false;
    if (!isoShown) return {};
    std::string dates;
    const bool withYear = Control<QAbstractButton>(*month, "chkWithYear").isChecked();
    StaysIn32Bits([&] {
        dates = DrawIsoWeekDates(grid.firstShownJdn, grid.weekRows, withYear, ShownWeekdayNames(language));
    });
    return TextOf(*month, "txbISODates") == dates ? std::string() : "the ISO week dates are of another month";
}

}  // namespace calvoro::monkey
