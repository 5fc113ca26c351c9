#pragma once

// Rows of a list as text for other programs, a line each.
//
// source  RFC 4180 for quoted fields

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "windows/list/lines/ListOrder.h"
#include "windows/list/lines/ListSheet.h"
#include "windows/list/lines/SlicedJob.h"

namespace calvoro {

struct OutputForm {
    bool csv = false;       // comma-separated values; else tab-separated
    bool withGiven = true;  // the line as it was given stands before what was computed
};

/// Rows that are shown one below the other.
struct PlaceRange {
    std::uint32_t first = 0;
    std::uint32_t last = 0;  // included
};

/// Which rows are written.
struct ChosenRows {
    RowOrder order;
    std::vector<PlaceRange> ranges;  // of places in this order

    std::uint64_t Count() const;
};

/// Writes rows piece by piece; where they go is up to the classes made from this one.
class ListOutput : public SlicedJob {
public:
    ListOutput(ListSheet sheet, ChosenRows rows, OutputForm form);

    bool Step() override;
    double Done() const override;

    /// How many rows have been written.
    std::uint64_t Written() const { return written_; }

protected:
    /// Takes the next lines; LF ends each.
    /// returns  false when it cannot go on
    virtual bool Take(std::string_view lines) = 0;

    /// Takes the end.
    virtual void Finish() = 0;

private:
    void AppendRow(std::uint32_t row);
    void AppendGiven(std::string_view line);
    void AppendField(std::string_view text);

    ListSheet sheet_;
    ChosenRows rows_;
    OutputForm form_;
    std::uint64_t count_;
    std::uint64_t written_ = 0;
    std::size_t range_ = 0;
    std::uint32_t inRange_ = 0;
    std::string piece_;
    std::string scratch_;
    ListRow computed_;
    std::vector<std::string_view> fields_;
};

/// Writes rows into a text.
class ListToText : public ListOutput {
public:
    ListToText(ListSheet sheet, ChosenRows rows, OutputForm form, std::size_t most)
        : ListOutput(std::move(sheet), std::move(rows), form), most_(most) {}

    /// The rows; after all steps.
    const std::string& Text() const { return text_; }

    /// Whether the text would have become longer than it may.
    bool IsTooLong() const { return tooLong_; }

protected:
    bool Take(std::string_view lines) override;
    void Finish() override {}

private:
    std::size_t most_;
    std::string text_;
    bool tooLong_ = false;
};

}  // namespace calvoro
