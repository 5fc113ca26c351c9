#include "cli/arithmetic/Add.h"

#include "cli/arithmetic/SignedNumber.h"
#include "compute/FindDate.h"
#include "datetext/Tags.h"

namespace calvoro {

Add::Add(const AddOptions& options)
    : options_(options),
      reader_(options.dates.from, options.dates.reading, options.dates.text),
      writer_(options.dates),
      emptyAnswer_(options.dates.targets.size() - (options.dates.weekday ? 0 : 1), options.delimiter) {
    state_.options.includeFirstDate = options.includeFirstDate;
    state_.options.countWeekendDays = !options.weekdaysOnly;
}

char* Add::Answer(std::string_view date, std::string_view number, char* to, PairRefusal& refusal) {
    const AutoResult day = reader_.Read(date);
    if (day.result.status != ParseStatus::Valid) {
        refusal = {RefusalText(day, date), date};
        return to;
    }
    const bool inMonths = options_.unit == DifferenceUnit::Months;
    const ParseStatus status = ReadSignedNumber(number, state_.DateDifference);
    if (status != ParseStatus::Valid) {
        const std::string reason =
            status == ParseStatus::NotValid ? "not a number of " : "too large a number of ";
        refusal = {reason + (inMonths ? "months" : "days"), number, true};
        return to;
    }
    if (inMonths && !HasMonths(*day.notation)) {
        refusal = {"no months in " + std::string(TagText(*day.notation)), date};
        return to;
    }
    if (!FindDate(day.result.jdn, *day.notation)) {
        refusal = {"the date found is out of range", date};
        return to;
    }
    if (!writer_.CanWrite(state_.SecondDateRecord.jdn)) {
        refusal = {"the date found is " + writer_.RefusalText(state_.SecondDateRecord.jdn), date};
        return to;
    }
    return writer_.Write(state_.SecondDateRecord.jdn, to);
}

std::size_t Add::AnswerLines(std::string_view block, OutputStream& output, std::uint64_t& lines) {
    const CalendarNumber notation = options_.dates.from;
    const bool isRefused = options_.unit == DifferenceUnit::Months && !HasMonths(notation);
    if (isRefused || Room() >= OutputStream::kBlockSize) return 0;
    if (MayStandInADate(options_.delimiter, options_.dates.text)) return 0;
    std::size_t at = 0;
    while (block.size() - at >= DayReader::kLineRoom + kPlainNumberRoom) {
        const char* const line = block.data() + at;
        std::int32_t day = 0;
        const std::size_t dateLength = reader_.ReadUpTo(line, options_.delimiter, day);
        if (dateLength == 0) break;
        const std::size_t numberLength = ReadPlainNumber(line + dateLength + 1, '\n', state_.DateDifference);
        if (numberLength == 0 || !FindDate(day, notation)) break;
        if (!writer_.CanWrite(state_.SecondDateRecord.jdn)) break;
        char* const to = output.Room(Room() + 1);
        char* const end = writer_.Write(state_.SecondDateRecord.jdn, to);
        *end = '\n';
        output.Commit(static_cast<std::size_t>(end + 1 - to));
        at += dateLength + numberLength + 2;
        ++lines;
    }
    return at;
}

bool Add::FindDate(std::int32_t jdn, CalendarNumber notation) {
    if (options_.unit == DifferenceUnit::Days) {
        state_.FirstDateRecord.jdn = jdn;
        return AddDays(state_);
    }
    state_.options.firstCalendar = notation;
    state_.FirstDateRecord = RecordWithMonth(jdn, notation);
    return AddMonths(state_);
}

std::string Add::Header() const {
    std::string names;
    for (const CalendarNumber target : options_.dates.targets) {
        if (!names.empty()) names += options_.delimiter;
        names += TagText(target);
    }
    if (options_.dates.weekday) (names += options_.delimiter) += "weekday";
    return names;
}

}  // namespace calvoro
