#pragma once

// Lists without windows: a computation of rows that is easy to foretell, and jobs that are done at once.

#include <charconv>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "windows/list/lines/LinesBuilder.h"
#include "windows/list/lines/ListSheet.h"
#include "windows/list/lines/SlicedJob.h"

namespace calvoro {

/// Takes whole numbers for dates: 12 is read as "<12>" on day 12, its result is 13. Everything else that is
/// not blank is refused.
class NumberRows : public ListRowMaker {
public:
    bool weekdays = true;
    int made = 0;

    void Make(std::string_view date, ListRow& row) override {
        ++made;
        row = ListRow();
        if (date.find_first_not_of(' ') == std::string_view::npos) return;
        int number = 0;
        const auto [end, error] = std::from_chars(date.data(), date.data() + date.size(), number);
        if (error != std::errc() || end != date.data() + date.size()) {
            row.reason = "no number";
            return;
        }
        row.day = number;
        row.reading = "<" + std::string(date) + ">";
        row.result = std::to_string(number + 1);
        if (weekdays) row.weekday = number % 2 == 0 ? "even" : "odd";
    }
    bool HasWeekdays() const override { return weekdays; }
    std::string ResultCaption() const override { return "plus one"; }
};

/// returns  how many steps it took
inline int RunToEnd(SlicedJob& job) {
    int steps = 1;
    while (!job.Step()) ++steps;
    return steps;
}

inline std::shared_ptr<const ListLines> LinesOf(std::string text, bool isCsv = false) {
    LinesBuilder builder(std::move(text), isCsv);
    RunToEnd(builder);
    return builder.Refusal().fault == ListFault::None ? builder.Take() : nullptr;
}

inline ListSheet SheetOf(std::string text, bool isCsv = false, std::size_t dateColumn = 0) {
    return {LinesOf(std::move(text), isCsv), dateColumn, std::make_shared<NumberRows>()};
}

inline std::vector<std::string> AllLines(const ListLines& lines) {
    std::vector<std::string> all;
    ListLines::Cursor cursor;
    for (std::uint32_t row = 0; row < lines.Count(); ++row) all.emplace_back(lines.Line(row, cursor));
    return all;
}

}  // namespace calvoro
