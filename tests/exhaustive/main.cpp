// Checks day numbers without a gap: through all calendars, or, with --texts, through all texts.

#include <charconv>
#include <cinttypes>
#include <cstdio>
#include <span>
#include <string_view>

#include "calendar/DayNumber.h"
#include "tests/exhaustive/CalendarCheck.h"
#include "tests/exhaustive/TextCheck.h"

namespace {

using namespace calvoro::exhaustive;

constexpr const char* kUsage =
    "usage: calvoro_exhaustive [FIRST [LAST]]\n"
    "       calvoro_exhaustive --texts STRIDE [FIRST [LAST]]\n"
    "\n"
    "Checks every day number from FIRST to LAST (by default all from -2100000000 to 2100000000) in every\n"
    "calendar, there and back; with --texts every STRIDE-th of them in the texts of every notation.\n";

struct Request {
    bool texts = false;
    std::int64_t stride = 1;
    Days days{calvoro::kMinDayNumber, calvoro::kMaxDayNumber};
};

bool ReadNumber(std::string_view text, std::int64_t& number) {
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), number);
    return fault == std::errc() && end == text.data() + text.size();
}

bool ReadRequest(std::span<char*> arguments, Request& request) {
    if (!arguments.empty() && std::string_view(arguments.front()) == "--texts") {
        request.texts = true;
        if (arguments.size() < 2 || !ReadNumber(arguments[1], request.stride) || request.stride < 1) {
            return false;
        }
        arguments = arguments.subspan(2);
    }
    if (arguments.size() > 2) return false;
    if (!arguments.empty() && !ReadNumber(arguments[0], request.days.first)) return false;
    if (arguments.size() == 2 && !ReadNumber(arguments[1], request.days.last)) return false;
    return request.days.first >= calvoro::kMinDayNumber && request.days.last <= calvoro::kMaxDayNumber &&
           request.days.Count() > 0;
}

void RunTexts(const Request& request) {
    for (const TextCount& count : CheckTexts(request.days, request.stride)) {
        std::printf("%-3.*s %" PRId64 " days came back, %" PRId64 " known exceptions refused, %" PRId64
                    " not writable\n",
                    static_cast<int>(count.tag.size()), count.tag.data(), count.cameBack, count.refused,
                    count.notWritable);
    }
}

}  // namespace

int main(int argc, char** argv) {
    Request request;
    if (!ReadRequest(std::span(argv, static_cast<std::size_t>(argc)).subspan(1), request)) {
        std::fputs(kUsage, stderr);
        return 2;
    }
    if (request.texts) {
        RunTexts(request);
    } else {
        std::printf("%" PRId64 " days checked in every calendar\n", CheckCalendars(request.days));
    }
    std::printf("%" PRId64 " faults\n", FaultCount());
    return FaultCount() == 0 ? 0 : 1;
}
