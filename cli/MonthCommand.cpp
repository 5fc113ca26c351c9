#include "cli/MonthCommand.h"

#include <charconv>
#include <optional>
#include <string_view>
#include <system_error>

#include "calendar/StaysIn32Bits.h"
#include "cli/Diagnostics.h"
#include "cli/ExitStatus.h"
#include "cli/FinishOutput.h"
#include "cli/LineEnds.h"
#include "cli/OutputStream.h"
#include "datetext/MonthText.h"
#include "datetext/PrintableText.h"
#include "platform/Streams.h"
#include "platform/SystemClock.h"
#include "text/DateNames.h"
#include "text/NamedTexts.h"
#include "text/NumberedTexts.h"
#include "text/Texts.h"

namespace calvoro {
namespace {

enum class MonthStatus { Valid, NotValid, OutOfRange };

/// A month of a calendar's year.
struct YearMonth {
    std::int32_t year = 0;
    std::int32_t month = 1;  // 1 to 12
};

bool ReadWhole(std::string_view text, std::int32_t& number, std::errc& error) {
    const auto [end, status] = std::from_chars(text.data(), text.data() + text.size(), number);
    error = status;
    return status != std::errc::invalid_argument && end == text.data() + text.size();
}

// "2024-09", "-44-3": the last "-" separates.
MonthStatus ReadYearMonth(std::string_view text, YearMonth& result) {
    const std::size_t separator = text.rfind('-');
    if (separator == std::string_view::npos) return MonthStatus::NotValid;
    const std::string_view month = text.substr(separator + 1);
    std::errc yearError{};
    std::errc monthError{};
    if (month.size() > 2 || !ReadWhole(month, result.month, monthError)) return MonthStatus::NotValid;
    if (!ReadWhole(text.substr(0, separator), result.year, yearError)) return MonthStatus::NotValid;
    if (result.month < 1 || result.month > 12) return MonthStatus::NotValid;
    return yearError == std::errc() ? MonthStatus::Valid : MonthStatus::OutOfRange;
}

/// throws  ArithmeticOverflow for a year that cannot be shown
std::string MonthPage(const YearMonth& shown, const MonthArguments& arguments) {
    const WeekdayWords weekdays = ShownWeekdayNames(arguments.language);
    const MonthGrid grid =
        DrawMonth(shown.year, shown.month, arguments.calendar, arguments.weekStart, weekdays);
    std::string isoHeading;
    std::string isoDates;
    if (arguments.iso) {
        isoHeading = Texts(arguments.language, arguments.language).GetProgramText(kIsoHeadingText);
        isoDates = DrawIsoWeekDates(grid.firstShownJdn, grid.weekRows, arguments.withYear, weekdays);
    }
    const TextId calendarName =
        arguments.calendar == CalendarCode::J ? TextId::JulianCalendar : TextId::CommonEraCalendar;
    return CopiedMonthText(ShownMonthName(arguments.language, shown.month - 1), std::to_string(shown.year),
                           ShownText(calendarName, arguments.language), grid.text, isoHeading, isoDates);
}

}  // namespace

int RunMonth(const MonthArguments& arguments) {
    Diagnostics diagnostics(kStandardError);
    YearMonth shown;
    MonthStatus status = MonthStatus::Valid;
    if (arguments.yearMonth) {
        status = ReadYearMonth(*arguments.yearMonth, shown);
    } else {
        const LocalDate today = SystemClock().Today();
        shown = {today.year, today.month};
    }
    std::string page;
    if (status == MonthStatus::Valid) {
        if (StaysIn32Bits([&] { page = MonthPage(shown, arguments); })) {
            OutputStream output(kStandardOutput);
            output.Append(WithLineFeeds(page));
            output.Append('\n');
            return FinishOutput(output, kExitAllGood, diagnostics);
        }
        status = MonthStatus::OutOfRange;
    }
    const std::string_view reason = status == MonthStatus::NotValid ? "not a month: " : "out of range: ";
    diagnostics.Print("argument:1: " + std::string(reason) + QuotedText(arguments.yearMonth.value_or("")));
    return kExitRefused;
}

}  // namespace calvoro
