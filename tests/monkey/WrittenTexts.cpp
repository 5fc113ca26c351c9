// A text that the program writes into a box reads back, and an option that rewrites it keeps the day.

#include <cstdlib>

#include "calendar/IsoWeekDate.h"
#include "datetext/AnyNotation.h"
#include "datetext/Blanks.h"
#include "tests/monkey/Invariants.h"

namespace calvoro::monkey {
namespace {

struct Reading {
    ParseStatus status = ParseStatus::NotValid;
    std::int32_t jdn = 0;
};

Reading Read(const std::string& text, CalendarNumber calendar, const TextOptions& options) {
    DateRecord record;
    Reading reading;
    reading.status = ReadDate(calendar, text, options, record);
    if (reading.status == ParseStatus::Valid) reading.jdn = record.jdn;
    return reading;
}

// What is written and not read: week 53 of an ISO year below 1, day number 0 in the leap-week notations, and
// days beyond those that are computed.
bool IsKnownException(CalendarNumber calendar, std::int32_t day) {
    constexpr std::int32_t kFarthest = 2'100'000'000;
    if (day > kFarthest || day < -kFarthest) return true;
    if (calendar == CalendarNumber::ISO) {
        IsoWeekDate date{.jdn = day};
        JdnToIsoWeekDate(date);
        return date.week == 53 && date.year < 1;
    }
    return day == 0 && (calendar == CalendarNumber::LPW || calendar == CalendarNumber::LPM);
}

std::string DateBox(const std::string& before, const std::string& now, CalendarNumber calendarBefore,
                    CalendarNumber calendar, const ComputeOptions& then, const ComputeOptions& options,
                    bool computed, const std::string& otherBefore, CalendarNumber otherCalendar) {
    if (now == before || now.empty()) return {};
    const Reading was = Read(before, calendarBefore, then.text);
    const Reading is = Read(now, calendar, options.text);
    const bool rewritten = calendar != calendarBefore || options.text.hyphen != then.text.hyphen || computed;
    if (is.status == ParseStatus::Valid) {
        const bool kept = !rewritten || was.status != ParseStatus::Valid || was.jdn == is.jdn;
        return kept ? std::string() : "\"" + before + "\" became \"" + now + "\", which is another day";
    }
    // Nothing is made of what was none: it is trimmed, or its hyphens go and come.
    if (was.status != ParseStatus::Valid) {
        const bool ofOther = Read(otherBefore, otherCalendar, then.text).status == ParseStatus::Valid;
        const bool same = TrimBlanks(before) == now || options.text.hyphen != then.text.hyphen;
        if (same || ofOther) return {};
        return "\"" + now + "\" was written for \"" + before + "\" and cannot be read";
    }
    for (std::int32_t step = -1; step <= 1; ++step) {
        const std::int64_t day = std::int64_t{was.jdn} + step;
        if (day != static_cast<std::int32_t>(day) ||
            IsKnownException(calendar, static_cast<std::int32_t>(day))) {
            return {};
        }
    }
    return "\"" + now + "\" was written for \"" + before + "\" and cannot be read";
}

std::string DifferenceBox(const std::string& before, const std::string& now) {
    if (now == before || now.empty()) return {};
    std::int32_t was = 0;
    std::int32_t is = 0;
    const bool couldBeRead = ReadDifference(before, was) == ParseStatus::Valid;
    if (ReadDifference(now, is) != ParseStatus::Valid) {
        return !couldBeRead && TrimBlanks(before) == now ? std::string() : "\"" + now + "\" is no difference";
    }
    return couldBeRead && was != is ? "\"" + before + "\" became \"" + now + "\"" : std::string();
}

}  // namespace

std::string WrittenTexts(const World& world, const Before& before) {
    // What a file brings may be anything.
    if (world.startedAnew || world.wasReset) return {};
    const Settings seen = SettingsSeen(world);
    const ComputeOptions options = ComputeOptionsSeen(world);
    const ComputeOptions& then = before.options;
    const bool computed = seen.output.size() > before.output.size();
    const auto byUser = [&world](const char* box) {
        return world.typedInto.contains(&world.Get<QWidget>(box));
    };
    std::string fault;
    if (!byUser("txbFirstDate")) {
        fault = DateBox(before.boxes[0], seen.firstDate, then.firstCalendar, options.firstCalendar, then,
                        options, computed, before.boxes[2], then.secondCalendar);
    }
    if (fault.empty() && !byUser("txbSecondDate")) {
        fault = DateBox(before.boxes[2], seen.secondDate, then.secondCalendar, options.secondCalendar, then,
                        options, computed, {}, then.secondCalendar);
    }
    if (fault.empty() && !byUser("txbDateDiff")) fault = DifferenceBox(before.boxes[1], seen.dateDiff);
    return fault;
}

}  // namespace calvoro::monkey
