#include "cli/columns/QuickColumns.h"

#include <algorithm>
#include <cstring>

#include "cli/columns/ColumnEnd.h"

namespace calvoro {
namespace {

// A copy of what stands between dates is one step of as many bytes, unless there are more.
constexpr std::size_t kStep = DayReader::kLineRoom;
static_assert(ColumnEnd::kRoom <= DayReader::kLineRoom);

using ColumnKind = QuickColumns::ColumnKind;

// What stays the same for all lines of a block.
struct Work {
    const DayReader& reader;
    const RecordWriter& writer;
    char delimiter;
    const char* last;        // where a date may begin, with the room to read one
    const char* end;         // of the block
    const char* outputLast;  // where the output still has the room for a line's answers
};

// How far the output has come. What stands between two dates is copied with the second of them, often over
// the end of a line.
struct Progress {
    const char* copied;  // in the block
    char* to;
};

const char* Find(const char* from, const char* end, char character) {
    return static_cast<const char*>(std::memchr(from, character, static_cast<std::size_t>(end - from)));
}

// The next quote; many lines are searched at once, as most have none.
// lineEnd  which is reached in any case
// returns  where the search ended when there is none
const char* FindQuote(const char* from, const char* lineEnd, const char* blockEnd) {
    constexpr std::ptrdiff_t kAtOnce = 2048;
    const char* const last = blockEnd - from > kAtOnce ? std::max(lineEnd, from + kAtOnce) : blockEnd;
    const char* const quote = Find(from, last, '"');
    return quote == nullptr ? last : quote;
}

bool HasRoomUpTo(const char* end, const Work& work, const Progress& done) {
    return end - done.copied <= work.outputLast - done.to;
}

// Copies what has not been copied before a place in the block.
// end  HasRoomUpTo must hold, and kStep bytes must follow what has been copied
void CopyUpTo(const char* end, Progress& done) {
    const auto length = static_cast<std::size_t>(end - done.copied);
    if (length <= kStep) {
        std::memcpy(done.to, done.copied, kStep);
    } else {
        std::memcpy(done.to, done.copied, length);
    }
    done.to += length;
    done.copied = end;
}

// Dates are converted on one of three roads: in place, among short columns or among columns of any length, or
// appended to their line. Each takes a line, of which `done` says that nothing has been copied yet, and
// returns the LF that ends it. It returns null, and `done` means nothing, when the block does not hold the
// whole line, when a field is not there or is no plain date, and when the output lacks the room.

// Short columns are passed over in a line whose end is not known yet, as it often follows a date.
class ShortColumns {
public:
    explicit ShortColumns(const Work& work) : work_(work), columnEnd_(work.delimiter) {}

    bool BeginLine(const char* /*line*/) const { return true; }

    // returns  where the next column begins; null when there is none, or when the column is long
    const char* Pass(const char* column) {
        const char* const end = columnEnd_.Find(column);
        metLong_ = end == nullptr;
        return metLong_ || *end == '\n' ? nullptr : end + 1;
    }

    const char* EndLine(const char* from) const { return Find(from, work_.end, '\n'); }

    // Whether the column that could not be passed over was a long one.
    bool MetLong() const { return metLong_; }

private:
    const Work& work_;
    ColumnEnd columnEnd_;
    bool metLong_ = false;
};

// For columns of any length the line's end is looked for first.
class LongColumns {
public:
    explicit LongColumns(const Work& work) : work_(work) {}

    bool BeginLine(const char* line) {
        lineFeed_ = Find(line, work_.end, '\n');
        return lineFeed_ != nullptr;
    }

    const char* Pass(const char* column) const {
        const char* const end = Find(column, lineFeed_, work_.delimiter);
        return end == nullptr ? nullptr : end + 1;
    }

    const char* EndLine(const char* /*from*/) const { return lineFeed_; }

private:
    const Work& work_;
    const char* lineFeed_ = nullptr;
};

template <typename Columns>
class InPlace {
public:
    InPlace(const Work& work, const ColumnKind* kinds, Columns& columns)
        : work_(work), kinds_(kinds), columns_(columns) {}

    const char* operator()(const char* line, Progress& done) const {
        if (!columns_.BeginLine(line)) return nullptr;
        const char* at = line;
        for (const ColumnKind* kind = kinds_; at <= work_.last; ++kind) {
            if (*kind == ColumnKind::Other) {
                at = columns_.Pass(at);
                if (at == nullptr) break;
                continue;
            }
            std::int32_t jdn = 0;
            const std::size_t length = work_.reader.ReadPlain(at, jdn);
            if (length == 0 || !work_.writer.CanWrite(jdn) || !HasRoomUpTo(at, work_, done)) break;
            CopyUpTo(at, done);
            done.to = work_.writer.Write(jdn, done.to);
            done.copied = at + length;
            if (*kind == ColumnKind::LastDate) return EndLine(done);
            if (*done.copied != work_.delimiter) break;
            at = done.copied + 1;
        }
        return nullptr;
    }

private:
    // The end of a line that all dates of have been converted.
    const char* EndLine(const Progress& done) const {
        const char* const behind = done.copied;
        if (*behind == '\n') return behind;
        if (behind[0] == '\r' && behind[1] == '\n') return behind + 1;
        if (*behind != work_.delimiter) return nullptr;
        const char* const lineFeed = columns_.EndLine(behind);
        return lineFeed != nullptr && HasRoomUpTo(lineFeed + 1, work_, done) ? lineFeed : nullptr;
    }

    const Work& work_;
    const ColumnKind* kinds_;
    Columns& columns_;
};

class Appending {
public:
    Appending(const Work& work, const std::vector<std::size_t>& fields) : work_(work), fields_(fields) {}

    const char* operator()(const char* line, Progress& done) const {
        const char* const lineFeed = Find(line, work_.end, '\n');
        if (lineFeed == nullptr || !HasRoomUpTo(lineFeed + 1, work_, done)) return nullptr;
        const char* const end = lineFeed > line && lineFeed[-1] == '\r' ? lineFeed - 1 : lineFeed;
        CopyUpTo(end, done);
        for (const std::size_t field : fields_) {
            const char* const at = FindField(line, end, field);
            if (at == nullptr || at > work_.last) return nullptr;
            std::int32_t jdn = 0;
            const std::size_t length = work_.reader.ReadPlain(at, jdn);
            if (length == 0 || !work_.writer.CanWrite(jdn)) return nullptr;
            if (at + length != end && at[length] != work_.delimiter) return nullptr;
            *done.to = work_.delimiter;
            done.to = work_.writer.Write(jdn, done.to + 1);
        }
        return lineFeed;
    }

private:
    // Passes over some columns of the line.
    const char* FindField(const char* from, const char* end, std::size_t columns) const {
        for (; columns > 0; --columns) {
            const char* const found = Find(from, end, work_.delimiter);
            if (found == nullptr) return nullptr;
            from = found + 1;
        }
        return from;
    }

    const Work& work_;
    const std::vector<std::size_t>& fields_;
};

// Converts lines as long as one road can.
// unquoted  where it ends that no quote stands in what comes first; the block's end when quotes do not matter
// lines     is moved on by the number of lines
// returns   behind the last line
template <typename Road>
const char* Convert(const char* at, const Work& work, const char* unquoted, const Road& road, Progress& done,
                    std::uint64_t& lines) {
    if (unquoted == at) {
        // Where the first line is quoted already, as in a table that quotes every line, nothing is converted
        // in vain.
        unquoted = FindQuote(at, at, work.end);
        if (unquoted < work.end && *unquoted == '"' && Find(at, unquoted, '\n') == nullptr) return at;
    }
    std::uint64_t converted = 0;
    while (at <= work.last) {
        Progress further = done;
        const char* const lineFeed = road(at, further);
        if (lineFeed == nullptr) break;
        // Quoted fields are for others to find.
        if (unquoted < lineFeed) unquoted = FindQuote(unquoted, lineFeed, work.end);
        if (unquoted < lineFeed) break;
        done = further;
        at = lineFeed + 1;
        ++converted;
    }
    lines += converted;
    return at;
}

// The columns of a line up to the last one with a date.
// fields  in ascending order
std::vector<ColumnKind> KindsOf(const std::vector<std::size_t>& fields) {
    std::vector<ColumnKind> kinds(fields.back() + 1, ColumnKind::Other);
    for (const std::size_t field : fields) kinds[field] = ColumnKind::Date;
    kinds.back() = ColumnKind::LastDate;
    return kinds;
}

}  // namespace

QuickColumns::QuickColumns(const ColumnOptions& columns, const TextOptions& options,
                           const std::vector<std::size_t>& fields)
    : delimiter_(columns.delimiter),
      csv_(columns.csv),
      append_(columns.append),
      isUsable_(!MayStandInADate(columns.delimiter, options)),
      fields_(fields) {
    if (!append_) kinds_ = KindsOf(fields);
}

std::size_t QuickColumns::ConvertLines(std::string_view block, const DayReader& reader,
                                       const RecordWriter& writer, OutputStream& output,
                                       std::uint64_t& lines) const {
    const std::size_t answersRoom = (append_ ? fields_.size() : 1) * (writer.Room() + 1) + kStep;
    if (!isUsable_ || block.size() < DayReader::kLineRoom || answersRoom > OutputStream::kBlockSize) return 0;
    const char* const begin = block.data();
    const char* const end = begin + block.size();
    char* const to = output.Room(answersRoom);
    const Work work{
        reader, writer, delimiter_, end - DayReader::kLineRoom, end, to + (output.Free() - answersRoom)};
    Progress done{begin, to};
    const char* at = begin;
    const auto convert = [&](const auto& road) {
        at = Convert(at, work, csv_ ? at : end, road, done, lines);
    };
    if (append_) {
        convert(Appending(work, fields_));
    } else {
        ShortColumns columns(work);
        convert(InPlace(work, kinds_.data(), columns));
        if (columns.MetLong()) {
            LongColumns longColumns(work);
            convert(InPlace(work, kinds_.data(), longColumns));
        }
    }
    const auto rest = static_cast<std::size_t>(at - done.copied);
    std::memcpy(done.to, done.copied, rest);
    output.Commit(static_cast<std::size_t>(done.to - to) + rest);
    return static_cast<std::size_t>(at - begin);
}

}  // namespace calvoro
