#include "mainwindow/BoxDate.h"

#include "calendar/CheckedInt.h"

namespace calvoro {

BoxDate ReadBoxDate(CalendarNumber calendar, std::string_view text, const TextOptions& options) {
    BoxDate date;
    try {
        date.status = ReadDate(calendar, text, options, date.record);
    } catch (const ArithmeticOverflow&) {
        date.status = ParseStatus::OutOfRange;
    }
    return date;
}

}  // namespace calvoro
