#include "mainwindow/settings/SettingsText.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#include "calendar/CalendarNumber.h"
#include "compute/ComputeOptions.h"
#include "datetext/MonthText.h"
#include "datetext/TextOptions.h"
#include "mainwindow/settings/SettingsLines.h"
#include "text/Language.h"

namespace calvoro {

namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kMonday = "Mon";
constexpr std::string_view kJulian = "JC";

// ---- writing

int CharacterCode(char character) {
    return static_cast<unsigned char>(character);
}

template <typename... Numbers>
void AppendNumbers(std::string& text, int first, Numbers... others) {
    text += std::to_string(first);
    ((text += ',', text += std::to_string(others)), ...);
    text += kLineEnd;
}

void AppendQuoted(std::string& text, std::string_view field) {
    text += '"';
    text += field;
    text += '"';
    text += kLineEnd;
}

/// A line break that is the file's own would end the line of the box's text.
std::string WithoutFileLineEnds(std::string_view boxText) {
    std::string kept;
    kept.reserve(boxText.size());
    for (const char character : boxText) {
        if (character == '\n') {
            while (!kept.empty() && kept.back() == '\r') kept.pop_back();
        }
        kept += character;
    }
    return kept;
}

// ---- reading

/// Where LF ends the lines of the file it ends those of the output too.
std::string WithCrLfOnly(std::string_view text) {
    std::string lines;
    lines.reserve(text.size());
    for (const char character : text) {
        if (character == '\n' && !lines.ends_with('\r')) lines += '\r';
        lines += character;
    }
    return lines;
}

CalendarNumber OfferedCalendar(std::int32_t number) {
    const auto* const found = std::find_if(
        kOfferedNotations.begin(), kOfferedNotations.end(),
        [number](CalendarNumber offered) { return static_cast<std::int32_t>(offered) == number; });
    return found == kOfferedNotations.end() ? CalendarNumber::CE : *found;
}

DateFormat FormatOfNumber(std::int32_t number) {
    if (number == static_cast<std::int32_t>(DateFormat::MDY)) return DateFormat::MDY;
    return number == static_cast<std::int32_t>(DateFormat::DMY) ? DateFormat::DMY : DateFormat::YMD;
}

char DateSeparatorOfCode(std::int32_t code) {
    if (code == CharacterCode('.')) return '.';
    return code == CharacterCode('/') ? '/' : '-';
}

char ThousandsSeparatorOfCode(std::int32_t code) {
    if (code == 0) return kNoSeparator;
    return code == CharacterCode('.') ? '.' : ',';
}

bool TakeOptions(SettingsLines& lines, Settings& settings) {
    const auto language = lines.TakeNumbers<1>();
    if (!language || (*language)[0] < LanguageEnglish || (*language)[0] > LanguageSpanish) return false;
    const auto formats = lines.TakeNumbers<3>();
    if (!formats) return false;
    const auto calendars = lines.TakeNumbers<3>();
    if (!calendars) return false;
    settings.interfaceLanguage = static_cast<LanguageNumber>((*language)[0]);
    settings.dateFormat = FormatOfNumber((*formats)[0]);
    settings.dateSeparator = DateSeparatorOfCode((*formats)[1]);
    settings.thousandsSeparator = ThousandsSeparatorOfCode((*formats)[2]);
    settings.todayCalendar = OfferedCalendar((*calendars)[0]);
    settings.firstCalendar = OfferedCalendar((*calendars)[1]);
    settings.secondCalendar = OfferedCalendar((*calendars)[2]);

    for (bool* const box : {&settings.includeFirstDate, &settings.includeWeekends, &settings.verbose,
                            &settings.hyphen, &settings.saveOutput}) {
        const std::optional<bool> checked = lines.TakeCheckBox();
        if (!checked) return false;
        *box = *checked;
    }
    return true;
}

bool TakeTexts(SettingsLines& lines, Settings& settings) {
    const auto weekStart = lines.TakeQuoted();
    if (!weekStart) return false;
    const auto monthCalendar = lines.TakeQuoted();
    if (!monthCalendar) return false;
    settings.monthWeekStart = *weekStart == kMonday ? WeekStart::Monday : WeekStart::Sunday;
    settings.monthCalendar = *monthCalendar == kJulian ? CalendarNumber::JC : CalendarNumber::CE;

    for (std::string* const box : {&settings.firstDate, &settings.dateDiff, &settings.secondDate}) {
        const auto text = lines.TakeQuoted();
        if (!text) return false;
        *box = *text;
    }
    return true;
}

std::optional<Settings> ParseWithLineEnds(std::string_view text, SettingsLines::LineEnds lineEnds) {
    SettingsLines lines(text, lineEnds);
    Settings settings;
    if (!TakeOptions(lines, settings) || !TakeTexts(lines, settings)) return {};
    const auto last = lines.TakeOutputAndUnit();
    if (!last) return {};
    settings.output =
        lineEnds == SettingsLines::LineEnds::CrLf ? std::string(last->output) : WithCrLfOnly(last->output);
    settings.differenceUnit = last->unit == static_cast<std::int32_t>(DifferenceUnit::Months)
                                  ? DifferenceUnit::Months
                                  : DifferenceUnit::Days;
    return settings;
}

}  // namespace

std::string SettingsText(const Settings& settings) {
    std::string text;
    AppendNumbers(text, settings.interfaceLanguage);
    AppendNumbers(text, static_cast<int>(settings.dateFormat), CharacterCode(settings.dateSeparator),
                  CharacterCode(settings.thousandsSeparator));
    AppendNumbers(text, static_cast<int>(settings.todayCalendar), static_cast<int>(settings.firstCalendar),
                  static_cast<int>(settings.secondCalendar));
    for (const bool checked : {settings.includeFirstDate, settings.includeWeekends, settings.verbose,
                               settings.hyphen, settings.saveOutput}) {
        AppendNumbers(text, checked ? 1 : 0);
    }
    AppendQuoted(text, settings.monthWeekStart == WeekStart::Monday ? kMonday : "Sun");
    AppendQuoted(text, settings.monthCalendar == CalendarNumber::JC ? kJulian : "CE");
    for (const std::string* const box : {&settings.firstDate, &settings.dateDiff, &settings.secondDate}) {
        AppendQuoted(text, WithoutFileLineEnds(*box));
    }
    AppendQuoted(text, settings.output);
    AppendNumbers(text, static_cast<int>(settings.differenceUnit));
    return text;
}

std::optional<Settings> ParseSettingsText(std::string_view text) {
    std::optional<Settings> settings = ParseWithLineEnds(text, SettingsLines::LineEnds::CrLf);
    return settings ? settings : ParseWithLineEnds(text, SettingsLines::LineEnds::Lf);
}

}  // namespace calvoro
