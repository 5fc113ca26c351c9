#include "tests/exhaustive/TextCheck.h"

#include <mutex>
#include <string>

#include "calendar/IsoWeekDate.h"
#include "datetext/AnyNotation.h"

namespace calvoro::exhaustive {

namespace {

constexpr std::array<DateFormat, 3> kFormats{DateFormat::YMD, DateFormat::DMY, DateFormat::MDY};
constexpr std::array<char, 3> kDateSeparators{'-', '/', '.'};
constexpr std::array<char, 3> kThousandsSeparators{',', '.', kNoSeparator};
constexpr std::int64_t kWaysOfWriting = 54;  // 3 * 3 * 3 * 2

/// Each way of writing in turn.
TextOptions OptionsFor(std::int64_t index) {
    const auto way = static_cast<std::size_t>(index % kWaysOfWriting);
    TextOptions options;
    options.dateFormat = kFormats[way % 3];
    options.dateSeparator = kDateSeparators[way / 3 % 3];
    options.thousandsSeparator = kThousandsSeparators[way / 9 % 3];
    options.hyphen = way / 27 == 0;
    return options;
}

/// What is written though its own reader refuses it: week 53 of an ISO year below 1, and day number 0 in the
/// leap-week notations, whose readers cannot tell it from a failure.
bool IsKnownException(CalendarNumber number, std::int32_t jdn) {
    if (number == CalendarNumber::ISO) {
        IsoWeekDate date{.jdn = jdn};
        JdnToIsoWeekDate(date);
        return date.week == 53 && date.year < 1;
    }
    return jdn == 0 && (number == CalendarNumber::LPW || number == CalendarNumber::LPM);
}

void CheckText(const Notation& notation, std::int32_t jdn, const TextOptions& options, TextCount& count) {
    if (!CanWriteDate(notation.number, jdn)) {
        ++count.notWritable;
        return;
    }
    const std::string text = WriteDate(notation.number, jdn, options);
    DateRecord record;
    std::string canonical;
    const ParseStatus status = ReadDate(notation.number, text, options, record, &canonical);
    if (IsKnownException(notation.number, jdn)) {
        ++count.refused;
        if (status != ParseStatus::NotValid) ReportFault("accepted, though it is refused", jdn);
        return;
    }
    if (status == ParseStatus::Valid && record.jdn == jdn && canonical == text) {
        ++count.cameBack;
    } else {
        const std::string fault = std::string(notation.tag) + " text '" + text + "' does not come back";
        ReportFault(fault.c_str(), jdn);
    }
}

}  // namespace

std::array<TextCount, 7> CheckTexts(Days days, std::int64_t stride) {
    std::array<TextCount, 7> totals;
    for (std::size_t row = 0; row < totals.size(); ++row) totals[row].tag = Notations()[row].tag;
    std::mutex guard;

    // Shared out are the numbers of the days checked, counted from the first.
    ShareOut({0, (days.Count() - 1) / stride}, [&](Days piece) {
        std::array<TextCount, 7> counts;
        for (std::int64_t index = piece.first; index <= piece.last; ++index) {
            const auto jdn = static_cast<std::int32_t>(days.first + index * stride);
            const TextOptions options = OptionsFor(index);
            for (std::size_t row = 0; row < counts.size(); ++row) {
                CheckText(Notations()[row], jdn, options, counts[row]);
            }
        }
        const std::scoped_lock lock(guard);
        for (std::size_t row = 0; row < counts.size(); ++row) {
            totals[row].cameBack += counts[row].cameBack;
            totals[row].refused += counts[row].refused;
            totals[row].notWritable += counts[row].notWritable;
        }
    });
    return totals;
}

}  // namespace calvoro::exhaustive
