#include "windows/list/lines/Records.h"

#include <algorithm>

#include "csvtext/QuotedField.h"

namespace calvoro {
namespace {

// Where the field that begins at `from` ends. What stands between closing quotes and the delimiter belongs to
// it; quotes that are not closed are characters like any other.
std::size_t EndOfField(std::string_view line, std::size_t from, const FieldShape& shape) {
    if (shape.delimiter == '\0') return line.size();
    if (shape.quotes && from < line.size() && line[from] == '"') {
        const std::size_t quote = FindClosingQuote(line, from + 1);
        if (quote != line.size()) return FindCharacter(line, shape.delimiter, quote + 1);
    }
    return FindCharacter(line, shape.delimiter, from);
}

// The line end at which the row that begins the text ends, when a quoted field reaches over its first one;
// the first one when no quotes are open there, or when they are never closed.
std::size_t EndOfQuotedLines(std::string_view text, std::size_t firstEnd, const FieldShape& shape) {
    std::size_t end = firstEnd;
    for (std::size_t at = 0; at < end;) {
        if (text[at] != '"') {
            at = FindCharacter(text.substr(0, end), shape.delimiter, at) + 1;
            continue;
        }
        const std::size_t quote = FindClosingQuote(text, at + 1);
        if (quote == text.size()) return firstEnd;
        if (quote > end) end = FindCharacter(text, '\n', quote + 1);
        at = FindCharacter(text.substr(0, end), shape.delimiter, quote + 1) + 1;
    }
    return end;
}

}  // namespace

Record RecordAt(std::string_view text, std::size_t from, const FieldShape& shape) {
    // Two bytes more for the line end.
    const std::string_view ahead = text.substr(from, kLongestLine + 2);
    const bool isWhole = from + ahead.size() == text.size();
    std::size_t end = FindCharacter(ahead, '\n', 0);
    if (shape.quotes && FindCharacter(ahead.substr(0, end), '"', 0) != end)
        end = EndOfQuotedLines(ahead, end, shape);

    Record record;
    record.next = from + std::min(end + 1, ahead.size());
    const bool hasCr = end > 0 && end < ahead.size() && ahead[end - 1] == '\r';
    record.end = from + end - (hasCr ? 1 : 0);
    record.tooLong = (end == ahead.size() && !isWhole) || record.end - from > kLongestLine;
    return record;
}

void SplitFields(std::string_view line, const FieldShape& shape, std::size_t most,
                 std::vector<std::string_view>& fields) {
    fields.clear();
    std::size_t at = 0;
    while (fields.size() + 1 < most) {
        const std::size_t end = EndOfField(line, at, shape);
        if (end == line.size()) break;
        fields.push_back(line.substr(at, end - at));
        at = end + 1;
    }
    fields.push_back(line.substr(at));
}

std::string_view FieldAt(std::string_view line, const FieldShape& shape, std::size_t index) {
    std::size_t at = 0;
    for (;; --index) {
        const std::size_t end = EndOfField(line, at, shape);
        if (index == 0) return line.substr(at, end - at);
        if (end == line.size()) return {};
        at = end + 1;
    }
}

std::size_t CountFields(std::string_view line, const FieldShape& shape) {
    if (shape.delimiter == '\0') return 1;
    std::size_t count = 1;
    for (std::size_t at = EndOfField(line, 0, shape); at < line.size(); ++count) {
        at = EndOfField(line, at + 1, shape);
    }
    return count;
}

std::string_view FieldText(std::string_view field, const FieldShape& shape, std::string& scratch) {
    if (!shape.quotes || field.empty() || field.front() != '"') return field;
    const std::size_t closing = FindClosingQuote(field, 1);
    if (closing == field.size()) return field;
    Unquote(field, closing, scratch);
    return scratch;
}

}  // namespace calvoro
