#pragma once

// Makes the rows of a list from a text, in pieces: looks whether it is one, tells how its rows are divided,
// and marks where they begin.

#include <cstdint>
#include <memory>
#include <string>

#include "windows/list/lines/ListLines.h"
#include "windows/list/lines/SlicedJob.h"

namespace calvoro {

/// Why a list cannot be made.
enum class ListFault : std::uint8_t {
    None,
    Empty,        // there is nothing in it
    NotText,      // it is not UTF-8, or holds a NUL
    LineTooLong,  // a row is longer than kLongestLine
    TooLarge,     // more than kLargestList
    Unreadable,   // the system refuses; see the error number
    NoFile,       // a folder, a device or a pipe
};

struct ListRefusal {
    ListFault fault = ListFault::None;
    std::uint32_t line = 0;  // the row that is too long, from 1
    int error = 0;           // the system's number, when the file is unreadable
};

/// The largest text that a list is made of.
inline constexpr std::uint64_t kLargestList = 2'000'000'000;  // bytes

class LinesBuilder : public SlicedJob {
public:
    /// isCsv  whether the text is comma-separated values; any other text is divided by its tabs, if it has
    /// some
    LinesBuilder(std::string text, bool isCsv);

    bool Step() override;
    double Done() const override;

    /// Why there is no list; only after all steps.
    ListRefusal Refusal() const { return {fault_, lines_->count_ + 1, 0}; }

    /// The list; only after all steps, and without a fault.
    std::shared_ptr<const ListLines> Take() { return std::move(lines_); }

private:
    bool Refuse(ListFault fault);
    bool CheckPiece();
    void FindShape();
    bool MarkRows();

    std::shared_ptr<ListLines> lines_;
    bool isCsv_;
    ListFault fault_ = ListFault::None;
    std::size_t checked_ = 0;
    std::size_t marked_ = 0;
};

}  // namespace calvoro
