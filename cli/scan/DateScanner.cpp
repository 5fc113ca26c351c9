#include "cli/scan/DateScanner.h"

#include <algorithm>
#include <array>

#include "datetext/Digits.h"
#include "quicktext/TextCursor.h"

namespace calvoro {
namespace {

constexpr std::size_t kLongestYear = 100;  // in bytes; zeros in front count
constexpr std::size_t kMostBlanks = 32;

/// What follows the year: "d" is a digit, "o" one that may be missing, all else stands for itself.
struct FormRow {
    CalendarNumber notation;
    std::string_view form;
};
constexpr std::array<FormRow, 4> kForms = {{
    {CalendarNumber::CE, "-do-do"},
    {CalendarNumber::JC, "-do-do"},
    {CalendarNumber::ISO, "-Wdd-d"},
    {CalendarNumber::ORD, "-ddd"},
}};

// Words behind a date that say which day it is. Those that the reader does not know keep the date from being
// taken for another one.
constexpr std::array<std::string_view, 18> kTailWords = {
    "BCE", "BC", "CE",  "JC",  "ISO",  "ORD",   "LPM",    "LPW", "JDN",
    "bce", "bc", "B.C", "b.c", "B. C", "v.Chr", "v. Chr", "a.C", "a. C",
};
constexpr std::array<std::string_view, 3> kBlanks = {" ", "\u00A0", "\u202F"};
constexpr std::size_t kMostTailWords = 2;  // an era and a tag

// A blank has three bytes at most, a word with what follows it ten, the sign and the fields together ten.
static_assert(kLongestYear + kMostTailWords * (3 * kMostBlanks + 10) + 20 < DateScanner::kMostOpen);

bool StandsAt(TextWindow& window, std::size_t place, std::string_view word) {
    for (std::size_t i = 0; i < word.size(); ++i) {
        if (window.At(place + i) != word[i]) return false;
    }
    return true;
}

std::size_t SkipDigits(TextWindow& window, std::size_t place, std::size_t limit) {
    while (place < limit && IsDigit(window.At(place))) ++place;
    return place;
}

// Digits, which "," or "." may group; where they end, or `place` when there are none or too many.
std::size_t EndOfYear(TextWindow& window, std::size_t place) {
    const std::size_t limit = place + kLongestYear;
    std::size_t end = SkipDigits(window, place, limit);
    while (end > place && end < limit && (window.At(end) == ',' || window.At(end) == '.') &&
           IsDigit(window.At(end + 1))) {
        end = SkipDigits(window, end + 1, limit);
    }
    return end >= limit ? place : end;
}

// Where the fields behind the year end; `place` when there is something else.
std::size_t EndOfFields(TextWindow& window, std::size_t place, std::string_view form) {
    std::size_t end = place;
    for (const char part : form) {
        const char next = window.At(end);
        const bool isDigit = part == 'd' || part == 'o';
        const bool fits = isDigit ? IsDigit(next) : next == part;
        if (!fits && part != 'o') return place;
        if (fits) ++end;
    }
    return end;
}

std::size_t SkipBlanks(TextWindow& window, std::size_t place) {
    for (std::size_t count = 0; count < kMostBlanks; ++count) {
        const auto* const blank = std::find_if(kBlanks.begin(), kBlanks.end(), [&](std::string_view one) {
            return StandsAt(window, place, one);
        });
        if (blank == kBlanks.end()) break;
        place += blank->size();
    }
    return place;
}

// Where the era and the tag behind a date end.
std::size_t EndOfTail(TextWindow& window, std::size_t place) {
    for (std::size_t count = 0; count < kMostTailWords; ++count) {
        const std::size_t begin = SkipBlanks(window, place);
        if (begin == place) return place;
        const auto* const word =
            std::find_if(kTailWords.begin(), kTailWords.end(), [&](std::string_view one) {
                return StandsAt(window, begin, one) && !WordGoesOn(window, begin + one.size());
            });
        if (word == kTailWords.end()) return place;
        place = begin + word->size();
    }
    return place;
}

std::string_view FormOf(CalendarNumber notation) {
    for (const FormRow& row : kForms) {
        if (row.notation == notation) return row.form;
    }
    return {};
}

// Whatever is written, what is found has its year first and hyphens.
TextOptions OptionsOfScan() {
    TextOptions options;
    options.dateFormat = DateFormat::YMD;
    options.dateSeparator = '-';
    options.hyphen = true;
    return options;
}

}  // namespace

bool CanBeScannedFor(CalendarNumber notation) {
    return !FormOf(notation).empty();
}

DateScanner::DateScanner(CalendarNumber notation)
    : form_(FormOf(notation)), reader_(notation, OptionsOfScan()) {}

std::optional<ScannedDate> DateScanner::Next(std::string_view text, bool isWhole, std::size_t& at) const {
    for (; at < text.size(); ++at) {
        const char first = text[at];
        if (!IsDigit(first) && first != '-' && first != kMinusSign.front()) continue;
        if (JoinsBefore(text, at)) continue;
        TextWindow window(text, isWhole);
        const std::optional<ScannedDate> date = ReadAt(window, at);
        if (window.LookedBeyond()) return std::nullopt;
        if (date) return date;
    }
    return std::nullopt;
}

std::optional<ScannedDate> DateScanner::ReadAt(TextWindow& window, std::size_t begin) const {
    std::size_t year = begin;
    if (StandsAt(window, begin, "-")) year += 1;
    if (StandsAt(window, begin, kMinusSign)) year += kMinusSign.size();
    const std::size_t endOfYear = EndOfYear(window, year);
    if (endOfYear == year) return std::nullopt;
    std::size_t end = EndOfFields(window, endOfYear, form_);
    if (end == endOfYear || JoinsBehind(window, end)) return std::nullopt;
    end = EndOfTail(window, end);
    if (window.LookedBeyond()) return std::nullopt;
    const StrictResult result = reader_.Read(window.Text().substr(begin, end - begin));
    if (result.status != ParseStatus::Valid) return std::nullopt;
    return ScannedDate{end - begin, result.jdn};
}

}  // namespace calvoro
