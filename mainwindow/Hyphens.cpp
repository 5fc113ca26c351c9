#include "mainwindow/Hyphens.h"

#include <algorithm>

#include "datetext/AnyNotation.h"
#include "datetext/IsoWeekText.h"
#include "datetext/OrdinalText.h"

namespace calvoro {
namespace {

constexpr std::size_t kOrdinalDigitsOfYear = 4;

std::string Hyphenated(std::string_view text, CalendarNumber calendar) {
    std::string result(text);
    if (calendar == CalendarNumber::ISO) {
        result.insert(result.size() - 1, "-");  // before the weekday
        result.insert(result.find('W'), "-");
    } else {
        result.insert(kOrdinalDigitsOfYear, "-");
    }
    return result;
}

std::string Compact(std::string_view text) {
    std::string result(text);
    const auto behindSign = result.begin() + (result.starts_with('-') ? 1 : 0);
    result.erase(std::remove(behindSign, result.end(), '-'), result.end());
    return result;
}

TextShape Shape(std::string_view text, CalendarNumber calendar) {
    if (calendar == CalendarNumber::ISO) return IsoShape(text);
    if (calendar == CalendarNumber::ORD) return OrdinalShape(text);
    return TextShape::None;
}

}  // namespace

std::string WithHyphens(std::string_view text, CalendarNumber calendar, bool hyphen) {
    const std::string_view date = DateAlone(NotationOf(calendar), text);
    const TextShape shape = Shape(date, calendar);
    if (hyphen && shape == TextShape::Compact) return Hyphenated(date, calendar);
    if (!hyphen && shape == TextShape::Hyphenated) return Compact(date);
    return std::string(text);
}

}  // namespace calvoro
