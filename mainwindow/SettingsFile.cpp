#include "mainwindow/SettingsFile.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <system_error>

#include "platform/WholeFile.h"

namespace calvoro {

namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kMonday = "Mon";
constexpr std::string_view kJulian = "JC";

// The calendars that the window offers; other numbers stand for the Common Era.
constexpr std::array kOfferedCalendars = {CalendarNumber::CE,  CalendarNumber::JC,  CalendarNumber::JDN,
                                          CalendarNumber::ORD, CalendarNumber::ISO, CalendarNumber::LPW,
                                          CalendarNumber::LPM};

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

bool IsBlank(char character) {
    return character == ' ' || character == '\t';
}

std::string_view Trimmed(std::string_view text) {
    while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
    while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
    return text;
}

/// A sign, digits, and blanks around them. Beyond nine digits the number is only known to be large, which
/// is enough: no field has a meaning there.
std::optional<std::int32_t> WholeNumber(std::string_view field) {
    constexpr std::int32_t kLarge = 100'000'000;
    field = Trimmed(field);
    const bool negative = field.starts_with('-');
    if (negative || field.starts_with('+')) field.remove_prefix(1);
    if (field.empty()) return {};
    std::int32_t value = 0;
    for (const char digit : field) {
        if (digit < '0' || digit > '9') return {};
        value = std::min(value, kLarge) * 10 + (digit - '0');
    }
    return negative ? -value : value;
}

/// Takes one line after the other off the front of the text.
class LineReader {
public:
    explicit LineReader(std::string_view text) : rest_(text) {}

    /// One line; nothing when no line end follows.
    std::optional<std::string_view> TakeLine() {
        const std::size_t end = rest_.find('\n');
        if (end == std::string_view::npos) return {};
        std::string_view line = rest_.substr(0, end);
        rest_.remove_prefix(end + 1);
        lineEnd_ = line.ends_with('\r') ? kLineEnd : kLineEnd.substr(1);
        if (line.ends_with('\r')) line.remove_suffix(1);
        return line;
    }

    /// A line of exactly Count numbers.
    template <std::size_t Count>
    std::optional<std::array<std::int32_t, Count>> TakeNumbers() {
        const std::optional<std::string_view> line = TakeLine();
        if (!line) return {};
        std::array<std::int32_t, Count> numbers{};
        std::string_view fields = *line;
        for (std::size_t i = 0; i < Count; ++i) {
            const bool last = i + 1 == Count;
            const std::size_t end = last ? fields.size() : fields.find(',');
            if (end == std::string_view::npos) return {};
            const std::optional<std::int32_t> number = WholeNumber(fields.substr(0, end));
            if (!number) return {};
            numbers[i] = *number;
            if (!last) fields.remove_prefix(end + 1);
        }
        return numbers;
    }

    /// Whether a check box is set; nothing when its line is missing.
    std::optional<bool> TakeCheckBox() {
        const std::optional<std::string_view> line = TakeLine();
        if (!line) return {};
        return WholeNumber(*line) == 1;
    }

    /// A text up to the last quote of its line, or of the first of its lines that has one. Line ends are
    /// those of the line before, so that in a file with CR LF a lone LF belongs to the text.
    std::optional<std::string_view> TakeQuoted() {
        if (!rest_.starts_with('"')) return {};
        for (std::size_t start = 1;;) {
            const std::size_t end = rest_.find(lineEnd_, start);
            if (end == std::string_view::npos) return {};
            const std::size_t quote = rest_.substr(start, end - start).rfind('"');
            if (quote == std::string_view::npos) {
                start = end + lineEnd_.size();
                continue;
            }
            const std::size_t close = start + quote;
            if (!Trimmed(rest_.substr(close + 1, end - close - 1)).empty()) return {};
            const std::string_view field = rest_.substr(1, close - 1);
            rest_.remove_prefix(end + lineEnd_.size());
            return field;
        }
    }

    struct OutputAndUnit {
        std::string_view output;
        std::int32_t unit;
    };

    /// The last two fields, found from the end of the text: the output may hold anything.
    std::optional<OutputAndUnit> TakeOutputAndUnit() {
        std::string_view body = rest_.substr(0, rest_.find_last_not_of("\r\n \t") + 1);
        const std::size_t lastLineEnd = body.rfind('\n');
        if (lastLineEnd == std::string_view::npos) return {};
        const std::optional<std::int32_t> unit = WholeNumber(body.substr(lastLineEnd + 1));
        body = body.substr(0, lastLineEnd);
        if (body.ends_with('\r')) body.remove_suffix(1);
        while (!body.empty() && IsBlank(body.back())) body.remove_suffix(1);
        if (!unit || body.size() < 2 || body.front() != '"' || body.back() != '"') return {};
        return OutputAndUnit{body.substr(1, body.size() - 2), *unit};
    }

private:
    std::string_view rest_;
    std::string_view lineEnd_ = kLineEnd;
};

CalendarNumber OfferedCalendar(std::int32_t number) {
    const auto* const found = std::find_if(
        kOfferedCalendars.begin(), kOfferedCalendars.end(),
        [number](CalendarNumber offered) { return static_cast<std::int32_t>(offered) == number; });
    return found == kOfferedCalendars.end() ? CalendarNumber::CE : *found;
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

bool TakeOptions(LineReader& lines, Settings& settings) {
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

bool TakeTexts(LineReader& lines, Settings& settings) {
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

}  // namespace

std::string SettingsFilePath(std::string_view baseFolder, std::string_view folderName) {
    if (baseFolder.empty()) return {};
    std::string path(baseFolder);
    path += '/';
    path += folderName;
    std::error_code ignored;  // the later opening fails, which is what counts
    std::filesystem::create_directory(path, ignored);
    path += '/';
    path += kSettingsFileName;
    return path;
}

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
        AppendQuoted(text, settings.saveOutput ? WithoutFileLineEnds(*box) : "");
    }
    AppendQuoted(text, settings.saveOutput ? settings.output : "");
    AppendNumbers(text, static_cast<int>(settings.differenceUnit));
    return text;
}

std::optional<Settings> ParseSettingsText(std::string_view text) {
    LineReader lines(text);
    Settings settings;
    if (!TakeOptions(lines, settings) || !TakeTexts(lines, settings)) return {};
    const auto last = lines.TakeOutputAndUnit();
    if (!last) return {};
    settings.output = last->output;
    settings.differenceUnit = last->unit == static_cast<std::int32_t>(DifferenceUnit::Months)
                                  ? DifferenceUnit::Months
                                  : DifferenceUnit::Days;
    return settings;
}

std::optional<Settings> ReadSettingsFile(const std::string& path) {
    const std::optional<std::string> text = ReadWholeFile(path);
    return text ? ParseSettingsText(*text) : std::nullopt;
}

bool WriteSettingsFile(const std::string& path, const Settings& settings) {
    return ReplaceWholeFile(path, SettingsText(settings));
}

void DeleteSettingsFile(const std::string& path) {
    std::error_code ignored;
    std::filesystem::remove(path, ignored);
}

}  // namespace calvoro
