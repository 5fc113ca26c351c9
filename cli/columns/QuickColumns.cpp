#include "cli/columns/QuickColumns.h"

#include <algorithm>
#include <cstring>

namespace calvoro {
namespace {

const char* Find(const char* from, const char* end, char character) {
    return static_cast<const char*>(std::memchr(from, character, static_cast<std::size_t>(end - from)));
}

// The next quote; many lines are searched at once, as most have none.
// end      of the line, which is searched in any case
// returns  where the search ended when there is none
const char* FindQuote(const char* from, const char* end, const char* blockEnd) {
    constexpr std::ptrdiff_t kAtOnce = 2048;
    const char* const last = blockEnd - from > kAtOnce ? std::max(end, from + kAtOnce) : blockEnd;
    const char* const quote = Find(from, last, '"');
    return quote == nullptr ? last : quote;
}

// Copies what stands between dates. Most of it is short, and where there is room one fixed step copies it.
// blockEnd  what may be read ends here
// to        with room for kStep bytes at least, as the room of a record is larger than any record
char* Copy(const char* from, const char* end, const char* blockEnd, char* to) {
    constexpr std::ptrdiff_t kStep = 32;
    if (end - from <= kStep && blockEnd - from >= kStep) {
        std::memcpy(to, from, kStep);
    } else {
        std::memcpy(to, from, static_cast<std::size_t>(end - from));
    }
    return to + (end - from);
}

}  // namespace

QuickColumns::QuickColumns(const ColumnOptions& columns, const TextOptions& options,
                           const std::vector<std::size_t>& fields)
    : delimiter_(columns.delimiter),
      csv_(columns.csv),
      append_(columns.append),
      isUsable_(!MayStandInADate(columns.delimiter, options)),
      fields_(fields) {}

std::size_t QuickColumns::ConvertLines(std::string_view block, const DayReader& reader,
                                       const RecordWriter& writer, OutputStream& output,
                                       std::uint64_t& lines) const {
    if (!isUsable_) return 0;
    const std::size_t answersRoom = fields_.size() * (writer.Room() + 1);
    const char* at = block.data();
    const char* const blockEnd = at + block.size();
    char* begin = output.Room(0);  // of what is free in the output
    std::size_t room = output.Free();
    Progress done{at, begin};
    const auto handOver = [&] {
        if (done.copied != at) done.to = Copy(done.copied, at, blockEnd, done.to);
        done.copied = at;
        output.Commit(static_cast<std::size_t>(done.to - begin));
    };
    const char* unquoted = csv_ ? at : blockEnd;  // where it ends that no quote stands in what comes next
    while (const char* const lineFeed = Find(at, blockEnd, '\n')) {
        const char* const end = lineFeed > at && lineFeed[-1] == '\r' ? lineFeed - 1 : lineFeed;
        const Line line{at, end, blockEnd};
        // Quoted fields are for others to find.
        if (unquoted < end) unquoted = FindQuote(unquoted, end, blockEnd);
        if (unquoted < end) break;
        const std::size_t needed = static_cast<std::size_t>(lineFeed + 1 - done.copied) + answersRoom;
        if (needed > room - static_cast<std::size_t>(done.to - begin)) {
            if (needed > OutputStream::kBlockSize) break;
            handOver();
            begin = done.to = output.Room(needed);
            room = output.Free();
        }
        Progress further = done;
        const bool isConverted = append_ ? ConvertAppending(line, reader, writer, further)
                                         : ConvertInPlace(line, reader, writer, further);
        if (!isConverted) break;
        done = further;
        at = lineFeed + 1;
        ++lines;
    }
    handOver();
    return static_cast<std::size_t>(at - block.data());
}

// What follows is called for every line, from one place each.

// Each returns false when one of the fields is not there or is no plain date.
inline bool QuickColumns::ConvertInPlace(const Line& line, const DayReader& reader,
                                         const RecordWriter& writer, Progress& done) const {
    const char* at = line.begin;
    std::size_t column = 0;
    for (const std::size_t field : fields_) {
        at = FindField(line, at, field - column);
        column = field;
        std::int32_t jdn = 0;
        const std::size_t length = at == nullptr ? 0 : ReadField(line, at, reader, jdn);
        if (length == 0 || !writer.CanWrite(jdn)) return false;
        done.to = writer.Write(jdn, Copy(done.copied, at, line.blockEnd, done.to));
        done.copied = at + length;
    }
    return true;
}

inline bool QuickColumns::ConvertAppending(const Line& line, const DayReader& reader,
                                           const RecordWriter& writer, Progress& done) const {
    done.to = Copy(done.copied, line.end, line.blockEnd, done.to);
    done.copied = line.end;
    for (const std::size_t field : fields_) {
        const char* const at = FindField(line, line.begin, field);
        std::int32_t jdn = 0;
        const std::size_t length = at == nullptr ? 0 : ReadField(line, at, reader, jdn);
        if (length == 0 || !writer.CanWrite(jdn)) return false;
        *done.to = delimiter_;
        done.to = writer.Write(jdn, done.to + 1);
    }
    return true;
}

// Passes over some delimiters.
inline const char* QuickColumns::FindField(const Line& line, const char* from, std::size_t delimiters) const {
    for (; delimiters > 0; --delimiters) {
        const char* const found = Find(from, line.end, delimiter_);
        if (found == nullptr) return nullptr;
        from = found + 1;
    }
    return from;
}

// The length of the field, when it is nothing but a plain date.
inline std::size_t QuickColumns::ReadField(const Line& line, const char* field, const DayReader& reader,
                                           std::int32_t& jdn) const {
    if (static_cast<std::size_t>(line.blockEnd - field) < DayReader::kLineRoom) return 0;
    const std::size_t length = reader.ReadPlain(field, jdn);
    const char* const end = field + length;
    return length > 0 && (end == line.end || *end == delimiter_) ? length : 0;
}

}  // namespace calvoro
