#include "tests/monkey/Seen.h"

#include "calendar/Today.h"
#include "datetext/TodayText.h"
#include "mainwindow/ControlTables.h"
#include "text/DateNames.h"
#include "windows/CrLfText.h"
#include "windows/QtText.h"
#include "windows/frmDisplayMonth.h"

namespace calvoro::monkey {

LanguageNumber LanguageSeen(const World& world) {
    const int seen = OptionSeen(world, kLanguageOptions, &LanguageOption::name);
    return seen < 0 ? world.startedWith.interfaceLanguage : ValueAt(kLanguageOptions, seen);
}

namespace {

// A group without the one choice that it must have counts as its first; that it has none is told elsewhere.
template <typename Table, typename Name>
auto ValueSeen(const World& world, const Table& table, Name name) {
    return ValueAt(table, std::max(0, OptionSeen(world, table, name)));
}

}  // namespace

TextOptions TextOptionsSeen(const World& world) {
    return {.dateFormat = ValueSeen(world, kDateFormatOptions, &DateFormatOption::name),
            .dateSeparator = ValueSeen(world, kDateSeparatorOptions, &DateSeparatorOption::name),
            .thousandsSeparator = ValueSeen(world, kThousandsOptions, &ThousandsOption::name),
            .hyphen = world.IsChecked("chkHyphen"),
            .digitGrouping = world.main.fake.platform.digitGrouping};
}

ComputeOptions ComputeOptionsSeen(const World& world) {
    ComputeOptions options{.text = TextOptionsSeen(world),
                           .firstCalendar = ValueSeen(world, kCalendarOptions, &CalendarOption::firstName),
                           .secondCalendar = ValueSeen(world, kCalendarOptions, &CalendarOption::secondName),
                           .includeFirstDate = world.IsChecked("chkIncludeFirstDate"),
                           .countWeekendDays = world.IsChecked("chkIncludeWeekends"),
                           .verbose = world.IsChecked("chkVerbose"),
                           .unit = ValueSeen(world, kUnitOptions, &UnitOption::name),
                           .texts = Texts()};
    options.texts.InterfaceLanguage = LanguageSeen(world);
    return options;
}

QString TodayLine(const World& world, bool aWeekLater, CalendarNumber calendar) {
    const ComputeOptions options = ComputeOptionsSeen(world);
    const LanguageNumber language = options.texts.InterfaceLanguage;
    const TextId phrase = aWeekLater ? TextId::AWeekFromTodayIs : TextId::TodayIs;
    const LabelWords words{.phrase = options.texts.Shown(phrase),
                           .weekdays = ShownWeekdayNames(language),
                           .german = language == LanguageGerman};
    const std::int32_t day = TodayJdn(world.main.fake.clock.today) + (aWeekLater ? 7 : 0);
    return ToQt(TodayLabel(day, calendar, options.text, words));
}

CalendarNumber TodayCalendarSeen(const World& world) {
    const QString label = world.Get<QLabel>("lblTodaysDate").text();
    for (const CalendarNumber calendar : kOfferedNotations) {
        if (label == TodayLine(world, false, calendar)) return calendar;
    }
    return CalendarNumber::CE;
}

Settings SettingsSeen(const World& world) {
    const ComputeOptions options = ComputeOptionsSeen(world);
    const auto* month = OpenedWindow<frmDisplayMonth>();
    const auto text = [&world](const char* box) { return FromQt(world.Get<QLineEdit>(box).text()); };
    return {.interfaceLanguage = LanguageSeen(world),
            .dateFormat = options.text.dateFormat,
            .dateSeparator = options.text.dateSeparator,
            .thousandsSeparator = options.text.thousandsSeparator,
            .todayCalendar = TodayCalendarSeen(world),
            .firstCalendar = options.firstCalendar,
            .secondCalendar = options.secondCalendar,
            .includeFirstDate = options.includeFirstDate,
            .includeWeekends = options.countWeekendDays,
            .verbose = options.verbose,
            .hyphen = options.text.hyphen,
            .saveOutput = world.IsChecked("chkSaveOutput"),
            .monthWeekStart = month != nullptr ? month->GetWeekStart() : world.weekStart,
            .monthCalendar = month != nullptr ? month->GetCalendar() : world.monthCalendar,
            .firstDate = text("txbFirstDate"),
            .dateDiff = text("txbDateDiff"),
            .secondDate = text("txbSecondDate"),
            .output = CrLfText(world.Get<QPlainTextEdit>("txbOutput")),
            .differenceUnit = options.unit};
}

Settings WithLinesOfTheFile(Settings settings) {
    for (std::string* text : {&settings.firstDate, &settings.dateDiff, &settings.secondDate}) {
        for (std::size_t end = text->find("\r\n"); end != std::string::npos; end = text->find("\r\n")) {
            text->erase(end, 1);
        }
    }
    return settings;
}

}  // namespace calvoro::monkey
