#include "windows/list/lines/ListOutput.h"

#include <algorithm>
#include <utility>

namespace calvoro {
namespace {

// In a tab-separated text quotes are characters like any other, unless they were not so where the text comes
// from.
bool NeedsQuotes(std::string_view text, const OutputForm& form, const FieldShape& shape) {
    if (form.csv) return text.find_first_of(",\"\r\n") != std::string_view::npos;
    return text.find_first_of("\t\r\n") != std::string_view::npos || (shape.quotes && text.starts_with('"'));
}

}  // namespace

std::uint64_t ChosenRows::Count() const {
    std::uint64_t count = 0;
    for (const PlaceRange& range : ranges) count += std::uint64_t{range.last} - range.first + 1;
    return count;
}

ListOutput::ListOutput(ListSheet sheet, ChosenRows rows, OutputForm form)
    : sheet_(std::move(sheet)), rows_(std::move(rows)), form_(form), count_(rows_.Count()) {}

bool ListOutput::Step() {
    piece_.clear();
    const std::uint64_t end = std::min(count_, written_ + kRowsAtOnce);
    for (; written_ < end && piece_.size() < kBytesAtOnce; ++written_) {
        const PlaceRange& range = rows_.ranges[range_];
        AppendRow(RowAt(rows_.order, range.first + inRange_));
        if (range.first + inRange_ == range.last) {
            ++range_;
            inRange_ = 0;
        } else {
            ++inRange_;
        }
    }
    if (!Take(piece_)) return true;
    if (written_ < count_) return false;
    Finish();
    return true;
}

double ListOutput::Done() const {
    return count_ == 0 ? 1 : static_cast<double>(written_) / static_cast<double>(count_);
}

void ListOutput::AppendRow(std::uint32_t row) {
    const char delimiter = form_.csv ? ',' : '\t';
    const std::string_view line = sheet_.Line(row);
    if (form_.withGiven) AppendGiven(line);
    sheet_.Compute(line, computed_);
    AppendField(computed_.reading);
    piece_ += delimiter;
    AppendField(computed_.result);
    if (sheet_.maker->HasWeekdays()) {
        piece_ += delimiter;
        AppendField(computed_.weekday);
    }
    piece_ += delimiter;
    AppendField(computed_.reason);
    piece_ += '\n';
}

// Every row gets all columns that the list has, so that what follows stands below each other.
void ListOutput::AppendGiven(std::string_view line) {
    const FieldShape& shape = sheet_.lines->Shape();
    SplitFields(line, shape, sheet_.lines->Columns(), fields_);
    fields_.resize(sheet_.lines->Columns());
    for (const std::string_view field : fields_) {
        AppendField(FieldText(field, shape, scratch_));
        piece_ += form_.csv ? ',' : '\t';
    }
}

void ListOutput::AppendField(std::string_view text) {
    if (!NeedsQuotes(text, form_, sheet_.lines->Shape())) {
        piece_ += text;
        return;
    }
    piece_ += '"';
    for (const char character : text) {
        if (character == '"') piece_ += '"';
        piece_ += character;
    }
    piece_ += '"';
}

bool ListToText::Take(std::string_view lines) {
    tooLong_ = text_.size() + lines.size() > most_;
    if (tooLong_) return false;
    text_ += lines;
    return true;
}

}  // namespace calvoro
