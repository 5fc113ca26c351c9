#pragma once

// Records and fields of a text, found byte by byte in the plainest way, to compare quicker ones with.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace calvoro::fuzz {

/// A line, or, of comma-separated values, the lines that its quotes hold together.
struct PlainRecord {
    std::string text;              // without its end
    std::string end;               // LF, CR LF, or nothing at the end of the text
    std::vector<std::string> raw;  // its fields as they stand there

    /// What a field says.
    std::string Text(std::size_t field, bool csv) const {
        const std::string& given = raw[field];
        if (!csv || !given.starts_with('"')) return given;
        std::string said;
        bool isInside = true;
        for (std::size_t at = 1; at < given.size(); ++at) {
            if (!isInside || given[at] != '"') {
                said += given[at];
            } else if (at + 1 < given.size() && given[at + 1] == '"') {
                said += given[++at];
            } else {
                isInside = false;
            }
        }
        return said;
    }
};

/// delimiter  between fields; LF when a line is one field
/// csv        a field that begins with quotes lasts to the quote that closes it, and from there to the
/// delimiter
inline std::vector<PlainRecord> PlainRecords(std::string_view text, char delimiter, bool csv) {
    std::vector<PlainRecord> records;
    std::size_t at = 0;
    while (at < text.size()) {
        PlainRecord record;
        std::string field;
        bool isInside = false;
        bool isOver = false;
        for (bool isFirst = true; at < text.size() && !isOver; ++at) {
            const char character = text[at];
            if (csv && character == '"' && (isFirst || isInside)) {
                // Two quotes inside stand for one.
                if (isInside && at + 1 < text.size() && text[at + 1] == '"') {
                    field += text[at++];
                } else {
                    isInside = !isInside;
                }
                field += '"';
                isFirst = false;
            } else if (isInside || (character != '\n' && character != delimiter)) {
                field += character;
                isFirst = false;
            } else if (character == '\n') {
                isOver = true;
            } else {
                record.raw.push_back(field);
                record.text += field + delimiter;
                field.clear();
                isFirst = true;
            }
        }
        // Quotes that are never closed do not hold the text's last line end.
        if (!isOver && field.ends_with('\n')) {
            field.pop_back();
            isOver = true;
        }
        if (isOver) record.end = "\n";
        if (field.ends_with('\r')) {
            field.pop_back();
            record.end.insert(0, "\r");
        }
        record.text += field;
        record.raw.push_back(field);
        records.push_back(record);
    }
    return records;
}

}  // namespace calvoro::fuzz
