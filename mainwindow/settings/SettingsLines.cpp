#include "mainwindow/settings/SettingsLines.h"

#include <algorithm>

#include "datetext/Blanks.h"

namespace calvoro {

namespace {

constexpr std::string_view kCrLf = "\r\n";

}  // namespace

SettingsLines::SettingsLines(std::string_view text, LineEnds lineEnds)
    : rest_(text), lineEnd_(lineEnds == LineEnds::CrLf ? kCrLf : kCrLf.substr(1)) {}

std::optional<bool> SettingsLines::TakeCheckBox() {
    const std::optional<std::string_view> line = TakeLine();
    if (!line || line->find('\n') != std::string_view::npos) return {};
    return WholeNumber(*line) == 1;
}

std::optional<std::string_view> SettingsLines::TakeQuoted() {
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
        const std::string_view behind = rest_.substr(close + 1, end - close - 1);
        if (!TrimBlanks(WithoutCarriageReturn(behind)).empty()) return {};
        const std::string_view field = rest_.substr(1, close - 1);
        rest_.remove_prefix(end + lineEnd_.size());
        return field;
    }
}

std::optional<SettingsLines::OutputAndUnit> SettingsLines::TakeOutputAndUnit() const {
    if (!rest_.starts_with('"')) return {};
    for (std::size_t quote = rest_.rfind('"'); quote > 0; quote = rest_.rfind('"', quote - 1)) {
        const std::optional<std::int32_t> unit = UnitBehind(rest_.substr(quote + 1));
        if (unit) return OutputAndUnit{rest_.substr(1, quote - 1), *unit};
    }
    return {};
}

// A sign, digits, and blanks around them. Beyond nine digits the number is only known to be large, which is
// enough: no field has a meaning there.
std::optional<std::int32_t> SettingsLines::WholeNumber(std::string_view field) {
    constexpr std::int32_t kLarge = 100'000'000;
    field = TrimBlanks(field);
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

// One line; nothing when no line end follows.
std::optional<std::string_view> SettingsLines::TakeLine() {
    const std::size_t end = rest_.find(lineEnd_);
    if (end == std::string_view::npos) return {};
    const std::string_view line = rest_.substr(0, end);
    rest_.remove_prefix(end + lineEnd_.size());
    return WithoutCarriageReturn(line);
}

std::string_view SettingsLines::WithoutCarriageReturn(std::string_view line) const {
    if (lineEnd_ != kCrLf && line.ends_with('\r')) line.remove_suffix(1);
    return line;
}

// The number in the line after this one, in which nothing but blanks may stand.
std::optional<std::int32_t> SettingsLines::UnitBehind(std::string_view text) const {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    if (lineEnd_ != kCrLf && text.starts_with('\r')) text.remove_prefix(1);
    if (!text.starts_with(lineEnd_)) return {};
    text.remove_prefix(lineEnd_.size());
    const std::size_t end = text.find(lineEnd_);
    std::string_view line = WithoutCarriageReturn(text.substr(0, end));
    // The last line needs no line end, nor a whole one.
    if (end == std::string_view::npos && line.ends_with('\r')) line.remove_suffix(1);
    return WholeNumber(line);
}

}  // namespace calvoro
