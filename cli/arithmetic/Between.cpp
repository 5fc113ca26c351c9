#include "cli/arithmetic/Between.h"

#include <charconv>

#include "calendar/CalendarNumber.h"
#include "calendar/EuroDate.h"
#include "cli/CsvField.h"
#include "compute/CountDays.h"
#include "compute/DifferenceBreakdown.h"
#include "datetext/Thousands.h"

namespace calvoro {
namespace {

constexpr std::size_t kRoom = 256;  // more than a number and a breakdown in quotes can fill

/// A day as the record that reading a date of the notation fills.
DateRecord RecordOf(std::int32_t jdn, CalendarNumber notation) {
    DateRecord record;
    record.jdn = jdn;
    if (notation != CalendarNumber::CE && notation != CalendarNumber::JC && notation != CalendarNumber::ORD) {
        return record;
    }
    record.calendar = notation == CalendarNumber::JC ? CalendarCode::J : CalendarCode::G;
    jdn_to_euro_date(record);
    return record;
}

}  // namespace

Between::Between(const BetweenOptions& options)
    : options_(options),
      first_(options.first.from, options.first.reading, options.first.text),
      second_(options.second.from, options.second.reading, options.second.text) {
    state_.options.includeFirstDate = options.includeFirstDate;
    state_.options.countWeekendDays = !options.weekdaysOnly;
}

std::size_t Between::Room() const {
    return kRoom;
}

char* Between::Answer(std::string_view first, std::string_view second, char* to, PairRefusal& refusal) {
    const AutoResult firstDay = first_.Read(first);
    if (firstDay.result.status != ParseStatus::Valid) {
        refusal = {RefusalText(firstDay, first), first};
        return to;
    }
    const AutoResult secondDay = second_.Read(second);
    if (secondDay.result.status != ParseStatus::Valid) {
        refusal = {RefusalText(secondDay, second), second, true};
        return to;
    }
    state_.FirstDateRecord.jdn = firstDay.result.jdn;
    state_.SecondDateRecord.jdn = secondDay.result.jdn;
    if (!CountDays(state_)) {
        refusal = {"the number of days is out of range", second, true};
        return to;
    }
    const char separator = options_.first.text.thousandsSeparator;
    if (separator == kNoSeparator) {
        to = std::to_chars(to, to + kRoom, state_.DateDifference).ptr;
    } else {
        const std::string number = ThousandsText(state_.DateDifference, separator);
        to = options_.first.csv ? WriteCsvField(number, options_.delimiter, to) : to + number.copy(to, kRoom);
    }
    if (!options_.breakdown) return to;
    *to++ = options_.delimiter;
    state_.options.firstCalendar = *firstDay.notation;
    state_.options.secondCalendar = *secondDay.notation;
    return WriteBreakdown(to);
}

std::size_t Between::AnswerLines(std::string_view block, OutputStream& output, std::uint64_t& lines) {
    if (options_.breakdown || options_.first.text.thousandsSeparator != kNoSeparator) return 0;
    std::size_t at = 0;
    while (block.size() - at >= 2 * DayReader::kLineRoom) {
        const char* const line = block.data() + at;
        std::int32_t& first = state_.FirstDateRecord.jdn;
        std::int32_t& second = state_.SecondDateRecord.jdn;
        const std::size_t firstLength = first_.ReadUpTo(line, options_.delimiter, first);
        if (firstLength == 0) break;
        const std::size_t secondLength = second_.ReadUpTo(line + firstLength + 1, '\n', second);
        if (secondLength == 0 || !CountDays(state_)) break;
        char* const to = output.Room(kRoom);
        char* const end = std::to_chars(to, to + kRoom, state_.DateDifference).ptr;
        *end = '\n';
        output.Commit(static_cast<std::size_t>(end + 1 - to));
        at += firstLength + secondLength + 2;
        ++lines;
    }
    return at;
}

char* Between::WriteBreakdown(char* to) {
    state_.FirstDateRecord = RecordOf(state_.FirstDateRecord.jdn, state_.options.firstCalendar);
    state_.SecondDateRecord = RecordOf(state_.SecondDateRecord.jdn, state_.options.secondCalendar);
    const std::string parts = PartsText(PartsOfDifference(state_), state_.options.texts);
    return options_.first.csv ? WriteCsvField(parts, options_.delimiter, to) : to + parts.copy(to, kRoom);
}

std::string Between::Header() const {
    return options_.breakdown ? std::string("days") + options_.delimiter + "breakdown" : "days";
}

std::string_view Between::EmptyAnswer() const {
    return options_.breakdown ? std::string_view(&options_.delimiter, 1) : std::string_view();
}

}  // namespace calvoro
