#include "compute/ReadingText.h"

#include <array>
#include <cstdint>

#include "calendar/EuroDate.h"
#include "calendar/Weekday.h"
#include "compute/UnitWords.h"
#include "datetext/AnyNotation.h"
#include "datetext/Blanks.h"
#include "datetext/Tags.h"
#include "text/DateNames.h"

namespace calvoro {
namespace {

struct ReadingWords {
    std::string_view afterDay;  // between the day of the month and the month's name
    std::string_view beforeChrist;
    std::string_view dayNumber;
    std::string_view notValid;
    std::string_view dateOutOfRange;
    std::string_view differenceOutOfRange;
};
constexpr ReadingWords kEnglishWords = {
    .afterDay = " ",
    .beforeChrist = "BCE",
    .dayNumber = "day number",
    .notValid = "not valid",
    .dateOutOfRange = "beyond the years that can be computed",
    .differenceOutOfRange = "beyond the numbers that can be computed",
};
constexpr ReadingWords kGermanWords = {
    .afterDay = ". ",
    .beforeChrist = "v. Chr.",
    .dayNumber = "Tageszahl",
    .notValid = "nicht zulaessig",
    .dateOutOfRange = "jenseits der Jahre, die berechnet werden koennen",
    .differenceOutOfRange = "jenseits der Zahlen, die berechnet werden koennen",
};

const ReadingWords& WordsOf(const Texts& texts) {
    return texts.InterfaceLanguage == LanguageGerman ? kGermanWords : kEnglishWords;
}

TextId NameOf(InputBox box) {
    constexpr std::array<TextId, 3> kNames = {TextId::FirstDate, TextId::DateDifference, TextId::SecondDate};
    static_assert(static_cast<std::size_t>(InputBox::FirstDate) == 0 &&
                  static_cast<std::size_t>(InputBox::Difference) == 1 &&
                  static_cast<std::size_t>(InputBox::SecondDate) == 2);
    return kNames[static_cast<std::size_t>(box)];
}

std::string DayInWords(std::int32_t jdn, CalendarNumber tag, const Texts& texts) {
    const ReadingWords& words = WordsOf(texts);
    DateRecord date;
    date.calendar = tag == CalendarNumber::JC ? CalendarCode::J : CalendarCode::G;
    date.jdn = jdn;
    jdn_to_euro_date(date);

    const auto weekdays = ShownWeekdayNames(texts.InterfaceLanguage);
    std::string line(weekdays[static_cast<std::size_t>(euro_day_of_week(jdn))]);
    line.append(", ").append(std::to_string(date.day)).append(words.afterDay);
    line.append(ShownMonthName(texts.InterfaceLanguage, date.month - 1)).append(" ");
    line.append(std::to_string(date.year)).append(" ").append(TagText(tag));
    if (date.year <= 0) {
        line.append(" (").append(std::to_string(1 - date.year)).append(" ");
        line.append(words.beforeChrist).append(")");
    }
    line.append(", ").append(words.dayNumber).append(" ").append(std::to_string(jdn));
    return line;
}

std::string DateReading(CalendarNumber calendar, std::string_view text, const ComputeOptions& options) {
    DateRecord date;
    switch (ReadDate(calendar, text, options.text, date)) {
        case ParseStatus::NotValid: return std::string(WordsOf(options.texts).notValid);
        case ParseStatus::OutOfRange: return std::string(WordsOf(options.texts).dateOutOfRange);
        case ParseStatus::Valid: break;
    }
    const CalendarNumber told = calendar == CalendarNumber::JC ? CalendarNumber::JC : CalendarNumber::CE;
    return DayInWords(date.jdn, told, options.texts);
}

std::string DifferenceReading(std::string_view text, const ComputeOptions& options) {
    std::int32_t number = 0;
    switch (ReadDifference(text, number)) {
        case ParseStatus::NotValid: return std::string(WordsOf(options.texts).notValid);
        case ParseStatus::OutOfRange: return std::string(WordsOf(options.texts).differenceOutOfRange);
        case ParseStatus::Valid: break;
    }
    const auto unit = options.unit == DifferenceUnit::Days ? DayOrDays : MonthOrMonths;
    return std::to_string(number) + " " + unit(number, options.texts);
}

}  // namespace

std::string ReadingText(InputBox box, std::string_view text, const ComputeOptions& options) {
    const std::string_view typed = TrimBlanks(text);
    if (typed.empty()) return {};
    const CalendarNumber calendar =
        box == InputBox::FirstDate ? options.firstCalendar : options.secondCalendar;
    const std::string reading = box == InputBox::Difference ? DifferenceReading(typed, options)
                                                            : DateReading(calendar, typed, options);
    return std::string(options.texts.Shown(NameOf(box))) + ": " + reading;
}

}  // namespace calvoro
