#include "cli/columns/Columns.h"

#include <cstring>

namespace calvoro {
namespace {

std::size_t Find(std::string_view text, char character, std::size_t from) {
    if (from >= text.size()) return text.size();
    const void* const found = std::memchr(text.data() + from, character, text.size() - from);
    return found == nullptr ? text.size()
                            : static_cast<std::size_t>(static_cast<const char*>(found) - text.data());
}

// The first quote from `from` on that is not one of two; the end of the text when there is none.
std::size_t FindClosingQuote(std::string_view text, std::size_t from) {
    std::size_t quote = Find(text, '"', from);
    while (quote + 1 < text.size() && text[quote + 1] == '"') quote = Find(text, '"', quote + 2);
    return quote;
}

// Where the field that begins at `from` ends. Only a field that begins with quotes is quoted; what stands
// between closing quotes and the delimiter belongs to it.
std::size_t FindEndOfField(std::string_view text, std::size_t from, char delimiter, bool csv) {
    if (csv && from < text.size() && text[from] == '"') {
        const std::size_t quote = FindClosingQuote(text, from + 1);
        return quote == text.size() ? quote : Find(text, delimiter, quote + 1);
    }
    return Find(text, delimiter, from);
}

}  // namespace

std::size_t JoinQuotedLines(LineReader& reader, char delimiter, std::string_view& line) {
    std::size_t joined = 0;
    if (Find(line, '"', 0) == line.size()) return joined;
    for (std::size_t at = 0; at < line.size();) {
        if (line[at] != '"') {
            at = Find(line, delimiter, at) + 1;
            continue;
        }
        std::size_t quote = FindClosingQuote(line, at + 1);
        while (quote == line.size()) {
            if (!reader.Join(line)) return joined;
            ++joined;
            quote = FindClosingQuote(line, quote);
        }
        at = Find(line, delimiter, quote + 1) + 1;
    }
    return joined;
}

bool Columns::Split(std::string_view line) {
    columns_.clear();
    std::size_t at = 0;
    while (columns_.size() < count_) {
        const std::size_t end = FindEndOfField(line, at, delimiter_, csv_);
        columns_.push_back(line.substr(at, end - at));
        if (end == line.size()) break;
        at = end + 1;
    }
    return columns_.size() == count_;
}

std::string_view Columns::Text(std::size_t index) {
    const std::string_view raw = columns_[index];
    if (!csv_ || raw.empty() || raw.front() != '"') return raw;
    unquoted_.clear();
    const std::size_t closing = FindClosingQuote(raw, 1);
    for (std::size_t at = 1; at < closing; ++at) {
        unquoted_ += raw[at];
        if (raw[at] == '"') ++at;
    }
    if (closing < raw.size()) unquoted_ += raw.substr(closing + 1);
    return unquoted_;
}

}  // namespace calvoro
