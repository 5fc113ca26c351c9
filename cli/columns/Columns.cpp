#include "cli/columns/Columns.h"

#include "csvtext/QuotedField.h"

namespace calvoro {
namespace {

// Where the field that begins at `from` ends. Only a field that begins with quotes is quoted; what stands
// between closing quotes and the delimiter belongs to it.
std::size_t FindEndOfField(std::string_view text, std::size_t from, char delimiter, bool csv) {
    if (csv && from < text.size() && text[from] == '"') {
        const std::size_t quote = FindClosingQuote(text, from + 1);
        return quote == text.size() ? quote : FindCharacter(text, delimiter, quote + 1);
    }
    return FindCharacter(text, delimiter, from);
}

}  // namespace

std::size_t JoinQuotedLines(LineReader& reader, char delimiter, std::string_view& line) {
    std::size_t joined = 0;
    if (FindCharacter(line, '"', 0) == line.size()) return joined;
    for (std::size_t at = 0; at < line.size();) {
        if (line[at] != '"') {
            at = FindCharacter(line, delimiter, at) + 1;
            continue;
        }
        std::size_t quote = FindClosingQuote(line, at + 1);
        while (quote == line.size()) {
            if (!reader.Join(line)) return joined;
            ++joined;
            quote = FindClosingQuote(line, quote);
        }
        at = FindCharacter(line, delimiter, quote + 1) + 1;
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
    Unquote(raw, FindClosingQuote(raw, 1), unquoted_);
    return unquoted_;
}

}  // namespace calvoro
