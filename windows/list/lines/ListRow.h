#pragma once

// What a list shows beside a line, and what computes it: whoever opens the list hands that in.

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace calvoro {

/// Which date the lines are.
enum class ListSide : std::uint8_t { FirstDates, SecondDates };

struct ListRow {
    std::string reading;              // how the date was read; empty when it was refused
    std::string result;               // the computed date or number; empty when there is none
    std::string weekday;              // of the computed date
    std::string reason;               // why there is no result, on one line
    std::optional<std::int32_t> day;  // day number of the date that the line is

    bool IsRefused() const { return !reason.empty(); }
};

/// Computes rows under the options of one moment.
class ListRowMaker {
public:
    virtual ~ListRowMaker() = default;

    /// date  a text as it stands in the list; blanks make an empty row
    /// row   replaced
    virtual void Make(std::string_view date, ListRow& row) = 0;

    /// Whether rows have weekdays.
    virtual bool HasWeekdays() const = 0;

    /// What the column of results holds: "Julian Calendar date", "Days".
    virtual std::string ResultCaption() const = 0;
};

/// The options as they change.
class ListRowSource {
public:
    virtual ~ListRowSource() = default;

    /// Computes rows under the options as they stand now.
    virtual std::shared_ptr<ListRowMaker> Snapshot(ListSide side) const = 0;
};

}  // namespace calvoro
