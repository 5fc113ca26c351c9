#include "cli/columns/ColumnConversion.h"

#include <algorithm>

#include "cli/CsvField.h"
#include "datetext/Tags.h"
#include "datetext/Utf8.h"

namespace calvoro {
namespace {

std::string Quoted(const std::string& name, const ColumnOptions& columns) {
    if (!columns.csv) return name;
    std::string quoted(2 * name.size() + 2, '\0');
    quoted.resize(
        static_cast<std::size_t>(WriteCsvField(name, columns.delimiter, quoted.data()) - quoted.data()));
    return quoted;
}

// Fields that are converted in their places are taken as they stand in the line.
std::vector<std::size_t> InOrder(const ColumnOptions& columns) {
    std::vector<std::size_t> fields = columns.fields;
    if (!columns.append) std::sort(fields.begin(), fields.end());
    return fields;
}

}  // namespace

ColumnConversion::ColumnConversion(const ConvertOptions& options, const ColumnOptions& columns,
                                   Filter& filter)
    : options_(options),
      columnOptions_(columns),
      filter_(filter),
      reader_(options.from, options.reading, options.text),
      writer_(options),
      columns_(columns.delimiter, columns.csv,
               *std::max_element(columns.fields.begin(), columns.fields.end()) + 1),
      fields_(InOrder(columns)),
      quickColumns_(columns, options.text, fields_),
      emptyAnswer_(options.targets.size() - (options.weekday ? 0 : 1), columns.delimiter),
      isHeader_(columns.header) {}

bool ColumnConversion::ConvertLine(LineReader& reader, Place& place) {
    if (!isHeader_) {
        reader.Skip(
            quickColumns_.ConvertLines(reader.Ahead(), reader_, writer_, filter_.Output(), place.number));
    }
    std::string_view line;
    const bool isThere = reader.Next(line);
    // A mark that the file begins with is no part of its first column, and passes through.
    if (place.number == 0 && reader.HadByteOrderMark()) filter_.Output().Append(kByteOrderMark);
    if (!isThere) return false;
    ++place.number;
    const Place begin = place;
    if (columnOptions_.csv) place.number += JoinQuotedLines(reader, columnOptions_.delimiter, line);
    if (reader.IsCut()) {
        filter_.Refuse("longer than a line may be", line, begin);
        filter_.EndLine("\n");
        return true;
    }
    if (!columns_.Split(line)) {
        filter_.Refuse("a column is missing", line, begin);
    } else if (isHeader_) {
        WriteHeader(line);
    } else {
        ConvertColumns(line, begin);
    }
    isHeader_ = false;
    filter_.EndLine(reader.EndOf(line));
    return true;
}

// Writes the line with an answer in place of each field, or behind the line.
template <typename Write>
void ColumnConversion::Rewrite(std::string_view line, const Write& write) {
    OutputStream& output = filter_.Output();
    if (columnOptions_.append) {
        output.Append(line);
        for (const std::size_t field : fields_) {
            output.Append(columnOptions_.delimiter);
            write(field);
        }
        return;
    }
    const char* from = line.data();
    for (const std::size_t field : fields_) {
        const std::string_view raw = columns_.Raw(field);
        output.Append(std::string_view(from, static_cast<std::size_t>(raw.data() - from)));
        write(field);
        from = raw.data() + raw.size();
    }
    output.Append(std::string_view(from, static_cast<std::size_t>(line.data() + line.size() - from)));
}

void ColumnConversion::ConvertColumns(std::string_view line, const Place& place) {
    Rewrite(line, [&](std::size_t field) { ConvertColumn(field, place); });
}

void ColumnConversion::ConvertColumn(std::size_t field, const Place& place) {
    const std::string_view text = columns_.Text(field);
    const AutoResult day = reader_.Read(text);
    if (day.result.status != ParseStatus::Valid) return Refuse(RefusalText(day, text), text, place);
    if (!writer_.CanWrite(day.result.jdn)) return Refuse(writer_.RefusalText(day.result.jdn), text, place);
    filter_.Output().AppendWith(writer_.Room(), [&](char* to) { return writer_.Write(day.result.jdn, to); });
}

void ColumnConversion::Refuse(std::string_view reason, std::string_view text, const Place& place) {
    filter_.Output().Append(emptyAnswer_);
    filter_.Refuse(reason, text, place);
}

// A column that stays one column keeps its name.
void ColumnConversion::WriteHeader(std::string_view line) {
    Rewrite(line, [&](std::size_t field) {
        const bool keepsName = !columnOptions_.append && emptyAnswer_.empty();
        filter_.Output().Append(keepsName ? columns_.Raw(field) : NamesOf(columns_.Text(field)));
    });
}

// "born CE", "born JDN", "born weekday".
std::string ColumnConversion::NamesOf(std::string_view name) const {
    std::string names;
    for (const CalendarNumber target : options_.targets) {
        if (!names.empty()) names += columnOptions_.delimiter;
        names += Quoted(std::string(name).append(" ").append(TagText(target)), columnOptions_);
    }
    if (options_.weekday) {
        names += columnOptions_.delimiter;
        names += Quoted(std::string(name) + " weekday", columnOptions_);
    }
    return names;
}

}  // namespace calvoro
