#include "cli/arithmetic/PairFilter.h"

#include <algorithm>

#include "cli/Filter.h"
#include "cli/columns/Columns.h"
#include "datetext/Utf8.h"

namespace calvoro {
namespace {

class PairFilter {
public:
    PairFilter(const ColumnOptions& options, PairWork& work)
        : options_(options),
          work_(work),
          columns_(options.delimiter, options.csv, std::max(options.fields[0], options.fields[1]) + 1),
          isFirst_(options.header) {}

    void AnswerArguments(std::string_view first, std::string_view second) {
        isOfArguments_ = true;
        Answer(first, second, {"argument", 1});
        filter_.EndLine("\n");
    }

    void AnswerInput(const std::string& name) {
        filter_.ReadInput(name,
                          [this](LineReader& reader, Place& place) { return AnswerNext(reader, place); });
    }

    int Finish() { return filter_.Finish(); }

private:
    bool AnswerNext(LineReader& reader, Place& place) {
        std::string_view line;
        const bool isPlain =
            !isFirst_ && !options_.append && options_.fields[0] == 0 && options_.fields[1] == 1;
        if (isPlain) reader.Skip(work_.AnswerLines(reader.Ahead(), filter_.Output(), place.number));
        const bool isThere = reader.Next(line);
        // Lines that are appended to keep the mark that they begin with.
        const bool keepsMark = options_.append && place.number == 0 && reader.HadByteOrderMark();
        if (keepsMark) filter_.Output().Append(kByteOrderMark);
        if (!isThere) return false;
        ++place.number;
        const Place begin = place;
        if (options_.csv) place.number += JoinQuotedLines(reader, options_.delimiter, line);
        if (reader.IsCut()) {
            filter_.Refuse("longer than a line may be", line, begin);
        } else if (!columns_.Split(line)) {
            filter_.Refuse("a column is missing", line, begin);
        } else {
            AnswerLine(line, begin);
        }
        isFirst_ = false;
        // What is appended to keeps its line ends; an answer alone is a line of ours.
        filter_.EndLine(options_.append && !reader.IsCut() ? reader.EndOf(line) : "\n");
        return true;
    }

    void AnswerLine(std::string_view line, const Place& place) {
        OutputStream& output = filter_.Output();
        if (options_.append) {
            output.Append(line);
            output.Append(options_.delimiter);
        }
        if (isFirst_) return output.Append(work_.Header());
        AnswerColumns(place);
    }

    void AnswerColumns(const Place& place) {
        const std::string_view first = columns_.Text(options_.fields[0]);
        if (!options_.csv) return Answer(first, columns_.Text(options_.fields[1]), place);
        first_ = first;
        Answer(first_, columns_.Text(options_.fields[1]), place);
    }

    void Answer(std::string_view first, std::string_view second, const Place& place) {
        PairRefusal refusal;
        filter_.Output().AppendWith(work_.Room(),
                                    [&](char* to) { return work_.Answer(first, second, to, refusal); });
        if (!refusal.reason.empty()) Refuse(refusal, place);
    }

    void Refuse(const PairRefusal& refusal, Place place) {
        filter_.Output().Append(work_.EmptyAnswer());
        if (isOfArguments_ && refusal.isOfSecond) ++place.number;
        filter_.Refuse(refusal.reason, refusal.text, place);
    }

    const ColumnOptions& options_;
    PairWork& work_;
    Filter filter_;
    Columns columns_;
    std::string first_;
    bool isFirst_;
    bool isOfArguments_ = false;
};

}  // namespace

int AnswerPairs(const PairSource& source, PairWork& work) {
    PairFilter filter(source.columns, work);
    if (source.first) {
        filter.AnswerArguments(*source.first, *source.second);
    } else {
        filter.AnswerInput(source.input);
    }
    return filter.Finish();
}

}  // namespace calvoro
