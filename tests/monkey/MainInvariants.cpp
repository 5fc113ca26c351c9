// What the main window shows is what is chosen in it.

#include "compute/ReadingText.h"
#include "mainwindow/ControlTables.h"
#include "mainwindow/settings/SettingsText.h"
#include "tests/monkey/Invariants.h"
#include "windows/QtText.h"

namespace calvoro::monkey {
namespace {

struct CaptionRow {
    const char* control;
    TextId text;
};
constexpr std::array<CaptionRow, 28> kCaptions = {{
    {"lblOr", TextId::Or},
    {"lblDateFormat", TextId::DateFormatCaption},
    {"lblDateSeparator", TextId::DateSeparatorCaption},
    {"lblThousandsSeparator", TextId::ThousandsSeparator},
    {"lblFirstDate", TextId::FirstDate},
    {"lblDateDifference", TextId::DateDifference},
    {"lblSecondDate", TextId::SecondDate},
    {"cmdCompute", TextId::Compute},
    {"cmdHelp", TextId::Help},
    {"cmdQuit", TextId::Quit},
    {"cmdDisplayMonth", TextId::DisplayMonth},
    {"cmdReset", TextId::Reset},
    {"lblThisIsA0", TextId::ThisIsA},
    {"lblThisIsA1", TextId::ThisIsA},
    {"cmdToday0", TextId::Today},
    {"cmdToday1", TextId::Today},
    {"cmdMoveSecondDateToFirst", TextId::SecondToFirst},
    {"cmdCopyToClipboard", TextId::CopyToClipboard},
    {"cmdEnlarge", TextId::Enlarge},
    {"cmdClearFirstDate", TextId::Clear},
    {"cmdClearDateDiff", TextId::Clear},
    {"cmdClearSecondDate", TextId::Clear},
    {"cmdClearOutputWindow", TextId::Clear},
    {"chkIncludeFirstDate", TextId::IncludeFirstDate},
    {"chkIncludeWeekends", TextId::CountWeekendDays},
    {"chkVerbose", TextId::Verbose},
    {"chkHyphen", TextId::HyphenInOrdinalAnd},
    {"chkSaveOutput", TextId::SaveResultsOnQuit},
}};

std::string ComparedCaption(const World& world, std::string_view control, const QString& expected) {
    const QString seen = Caption(world.main.Get<QWidget>(QString::fromLatin1(control.data())));
    if (seen == expected) return {};
    return std::string(control) + " says \"" + FromQt(seen) + "\", not \"" + FromQt(expected) + "\"";
}

std::string CalendarCaptions(const World& world, const Texts& texts, bool hyphen) {
    const TextId example = hyphen ? TextId::OrdinalExampleHyphenated : TextId::OrdinalExampleCompact;
    for (const CalendarOption& row : kCalendarOptions) {
        std::string expected(texts.Shown(row.caption));
        if (row.value == CalendarNumber::ORD) expected.append(" (").append(texts.Shown(example)).append(")");
        for (const std::string_view name : {row.firstName, row.secondName}) {
            std::string fault = ComparedCaption(world, name, ToQt(expected));
            if (!fault.empty()) return fault;
        }
    }
    return {};
}

template <typename Table, typename Name>
std::string OneChosen(const World& world, const Table& table, Name name, bool mayBeNone = false) {
    const int seen = OptionSeen(world, table, name);
    if (seen >= 0 || (seen == -1 && mayBeNone)) return {};
    const std::string group((table[0].*name).data());
    return (seen == -1 ? "nothing is chosen in the group of " : "several are chosen in the group of ") +
           group;
}

std::string First(std::initializer_list<std::string> faults) {
    for (const std::string& fault : faults) {
        if (!fault.empty()) return fault;
    }
    return {};
}

}  // namespace

std::string Choices(const World& world) {
    const bool isThird = LanguageSeen(world) == LanguageSpanish;
    const ComputeOptions options = ComputeOptionsSeen(world);
    const bool inDays = options.unit == DifferenceUnit::Days;
    const auto fits = [&](const char* name) {
        return world.main.Button(QLatin1String(name)).isEnabled() == inDays
                   ? std::string()
                   : name + std::string(" does not fit the unit");
    };
    const auto calendars = [&] {
        const bool same = world.main.window->GetCal(1) == options.firstCalendar &&
                          world.main.window->GetCal(2) == options.secondCalendar &&
                          world.main.window->UsersDateFormat() == options.text.dateFormat;
        return same ? std::string() : std::string("the window has other calendars or another format");
    };
    return First({OneChosen(world, kCalendarOptions, &CalendarOption::firstName),
                  OneChosen(world, kCalendarOptions, &CalendarOption::secondName),
                  OneChosen(world, kDateFormatOptions, &DateFormatOption::name),
                  OneChosen(world, kDateSeparatorOptions, &DateSeparatorOption::name),
                  OneChosen(world, kThousandsOptions, &ThousandsOption::name),
                  OneChosen(world, kUnitOptions, &UnitOption::name),
                  OneChosen(world, kLanguageOptions, &LanguageOption::name, isThird),
                  fits("chkIncludeFirstDate"), fits("chkIncludeWeekends"), calendars()});
}

std::string Captions(const World& world) {
    const ComputeOptions options = ComputeOptionsSeen(world);
    const Texts& texts = options.texts;
    const bool german = texts.InterfaceLanguage == LanguageGerman;
    std::string fault;
    const auto compare = [&](std::string_view control, const QString& expected) {
        if (fault.empty()) fault = ComparedCaption(world, control, expected);
    };
    for (const CaptionRow& row : kCaptions) compare(row.control, ToQt(texts.Shown(row.text)));
    for (const UnitOption& row : kUnitOptions) compare(row.name, ToQt(texts.Shown(row.caption)));
    for (const DateFormatOption& row : kDateFormatOptions) {
        compare(row.name, german ? ToQt(row.german) : ToQt(row.english).toLower());
    }
    const int format = RowOf(kDateFormatOptions, options.text.dateFormat);
    const auto& example = kDateFormatOptions[static_cast<std::size_t>(format)].example;
    for (const DateSeparatorOption& row : kDateSeparatorOptions) {
        std::string expected(example[0]);
        expected.append(1, row.value).append(example[1]).append(1, row.value).append(example[2]);
        compare(row.name, ToQt(expected));
    }
    return fault.empty() ? CalendarCaptions(world, texts, options.text.hyphen) : fault;
}

std::string TodayLines(const World& world) {
    for (const bool aWeekLater : {false, true}) {
        const char* const name = aWeekLater ? "lblWeekFromToday" : "lblTodaysDate";
        const QString shown = world.Get<QLabel>(name).text();
        const auto tells = [&](CalendarNumber calendar) {
            return shown == TodayLine(world, aWeekLater, calendar);
        };
        if (!std::any_of(kOfferedNotations.begin(), kOfferedNotations.end(), tells)) {
            return std::string(name) + " tells another day, or in another form: " + FromQt(shown);
        }
    }
    return {};
}

std::string Readings(const World& world) {
    const ComputeOptions options = ComputeOptionsSeen(world);
    constexpr std::array<std::pair<InputBox, const char*>, 3> kBoxes = {
        {{InputBox::FirstDate, "txbFirstDate"},
         {InputBox::Difference, "txbDateDiff"},
         {InputBox::SecondDate, "txbSecondDate"}}};
    QString line;
    for (const auto& [box, name] : kBoxes) {
        const auto& edit = world.Get<QLineEdit>(name);
        const QString expected = ToQt(ReadingText(box, FromQt(edit.text()), options));
        if (edit.accessibleDescription() != expected) {
            return std::string(name) + " is described by \"" + FromQt(edit.accessibleDescription()) +
                   "\", not \"" + FromQt(expected) + "\"";
        }
        if (world.main.window->focusWidget() == &edit) line = expected;
    }
    // An assistive tool may move the focus of a window that is not active, of which the toolkit tells nobody.
    if (QApplication::activeWindow() != world.main.window.get()) return {};
    const QString seen = world.Get<QLabel>("lblReading").text();
    return seen == line ? std::string()
                        : "lblReading says \"" + FromQt(seen) + "\", not \"" + FromQt(line) + "\"";
}

std::string SettingsInMemory(const World& world) {
    const Settings seen = SettingsSeen(world);
    std::optional<Settings> read = ParseSettingsText(SettingsText(seen));
    if (!read) return "what is written cannot be read";
    if (world.readsBackWrong) read->verbose = !read->verbose;
    return *read == WithLinesOfTheFile(seen) ? std::string() : "what is read is not what was written";
}

}  // namespace calvoro::monkey
