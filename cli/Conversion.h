#pragma once

// One typed date into the fields of one output line.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "calendar/CalendarNumber.h"
#include "cli/OutputStream.h"
#include "datetext/ParseStatus.h"
#include "datetext/TextOptions.h"

namespace calvoro {

struct ConvertOptions {
    CalendarNumber from = CalendarNumber::CE;
    std::vector<CalendarNumber> targets;
    bool emptyWhereUnwritable = false;  // a day that a target cannot write gets an empty field, no refusal
    TextOptions text;
    bool tag = false;      // behind every date its tag
    bool weekday = false;  // a last field with the English weekday
    bool csv = false;      // commas and quotes instead of tabs
};

enum class Refusal { None, NotValid, OutOfRange };

/// What became of one text; a refusal names the notation that could not read or write it.
struct ConversionOutcome {
    Refusal refusal = Refusal::None;
    CalendarNumber notation = CalendarNumber::CE;
};

/// A conversion made ready for many dates.
class Conversion {
public:
    /// options  must outlive the conversion
    explicit Conversion(const ConvertOptions& options);

    /// Appends the fields of a date to the output, without a line end; nothing when it is refused.
    ConversionOutcome Convert(std::string_view text, OutputStream& output) const;

private:
    struct Target {
        CalendarNumber notation;
        bool hasQuickShape;
        std::string suffix;  // a blank and the tag, or nothing
    };

    ParseStatus ReadDay(std::string_view text, std::int32_t& jdn) const;
    void AppendDate(const Target& target, std::int32_t jdn, OutputStream& output) const;

    const ConvertOptions& options_;
    bool readsQuickShape_;
    std::vector<Target> targets_;
};

}  // namespace calvoro
