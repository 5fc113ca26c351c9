#include "datetext/TodayText.h"

#include "calendar/Weekday.h"
#include "datetext/AnyNotation.h"

namespace calvoro {
namespace {

/// The calendar `step` rows further in the order of the notations, round and round.
CalendarNumber Neighbour(CalendarNumber calendar, std::size_t step) {
    const auto notations = Notations();
    for (std::size_t row = 0; row < notations.size(); ++row) {
        if (notations[row].number == calendar) return notations[(row + step) % notations.size()].number;
    }
    return CalendarNumber::CE;
}

bool IsEuroDate(CalendarNumber calendar) {
    return calendar == CalendarNumber::CE || calendar == CalendarNumber::JC;
}

/// Deliberate: ordinal and leap-week dates stand in a label without their tag.
bool HasTagInLabel(CalendarNumber calendar) {
    return IsEuroDate(calendar) || calendar == CalendarNumber::ISO || calendar == CalendarNumber::JDN;
}

}  // namespace

std::string TodayLabel(std::int32_t jdn, CalendarNumber calendar, const TextOptions& options,
                       const LabelWords& words) {
    std::string text(words.phrase);
    text += ' ';
    text += words.weekdays[static_cast<std::size_t>(euro_day_of_week(jdn))];
    text += ", ";
    if (words.german && IsEuroDate(calendar)) text += "der ";
    const Notation& notation = NotationOf(calendar);
    text += notation.write(jdn, options);
    if (HasTagInLabel(calendar)) {
        text += ' ';
        text += notation.tag;
    }
    return text;
}

CalendarNumber NextTodayCalendar(CalendarNumber calendar) {
    return Neighbour(calendar, 1);
}

CalendarNumber PreviousTodayCalendar(CalendarNumber calendar) {
    return Neighbour(calendar, Notations().size() - 1);
}

std::string TodayBoxText(std::int32_t todayJdn, CalendarNumber calendar, const TextOptions& options) {
    return WriteDate(calendar, todayJdn, options);
}

}  // namespace calvoro
