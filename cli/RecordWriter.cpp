#include "cli/RecordWriter.h"

#include <algorithm>
#include <cstring>

#include "calendar/Weekday.h"
#include "cli/CsvField.h"
#include "datetext/Tags.h"
#include "text/DateNames.h"

namespace calvoro {
namespace {

/// A name padded, so that it is copied in one step, and its length.
struct PaddedName {
    std::array<char, 16> text{};
    std::size_t length = 0;
};

constexpr std::size_t kNamesRoom = sizeof(PaddedName::text);

std::array<PaddedName, 7> MakeWeekdayNames() {
    std::array<PaddedName, 7> names;
    for (std::size_t day = 0; day < names.size(); ++day) {
        const std::string_view name = WeekdayName(LanguageEnglish, static_cast<std::int32_t>(day));
        names[day].length = name.copy(names[day].text.data(), kNamesRoom);
    }
    return names;
}

// Whether a date or a tag of this notation may hold a character that makes CSV quote it.
bool MayNeedQuotes(CalendarNumber notation, const TextOptions& text, char delimiter) {
    switch (notation) {
        case CalendarNumber::LPM:
        case CalendarNumber::LPW: return NeedsCsvQuotes(text.digitGrouping, delimiter);
        case CalendarNumber::ISO:
        case CalendarNumber::ORD: return false;
        case CalendarNumber::CE:
        case CalendarNumber::JC:
        case CalendarNumber::JDN:
        case CalendarNumber::AN:
        case CalendarNumber::VLW:
        case CalendarNumber::ARC: break;
    }
    return NeedsCsvQuotes(std::string_view(&text.thousandsSeparator, 1), delimiter);
}

}  // namespace

RecordWriter::RecordWriter(const ConvertOptions& options)
    : weekday_(options.weekday), separator_(options.delimiter) {
    for (const CalendarNumber target : options.targets) {
        Field field{.writer = QuickWriter(target, options.text, options.eraStyle)};
        field.isQuotable = options.csv && MayNeedQuotes(target, options.text, separator_);
        field.isPlain = !field.isQuotable && target != CalendarNumber::ORD;
        if (options.tag) field.tag = TagText(target);
        field.isLast = !options.weekday && fields_.size() + 1 == options.targets.size();
        std::string suffix;
        if (options.tag) suffix.append(" ").append(field.tag);
        if (!field.isLast) suffix += separator_;
        field.suffixLength = suffix.copy(field.suffix.data(), field.suffix.size());
        fields_.push_back(field);
        if (!options.emptyWhereUnwritable && target == CalendarNumber::ORD) hasLimits_ = true;
        // Quotes, and each character doubled at worst.
        room_ += 2 * (field.writer.Room() + field.suffix.size()) + 2;
    }
    room_ += kNamesRoom;
    isOneDate_ = fields_.size() == 1 && !options.weekday && !options.tag && !fields_.front().isQuotable;
}

std::string RecordWriter::RefusalText(std::int32_t jdn) const {
    const auto unable =
        std::ranges::find_if(fields_, [jdn](const Field& field) { return !field.writer.CanWrite(jdn); });
    return "out of range in " + std::string(TagText(unable->writer.Notation()));
}

char* RecordWriter::WriteFields(std::int32_t jdn, char* to) const {
    for (const Field& field : fields_) {
        if (field.isPlain || (!field.isQuotable && field.writer.CanWrite(jdn))) {
            to = field.writer.Write(jdn, to);
            std::memcpy(to, field.suffix.data(), field.suffix.size());
            to += field.suffixLength;
        } else {
            to = WriteField(field, jdn, to);
        }
    }
    return weekday_ ? WriteWeekday(jdn, to) : to;
}

// A field that is left empty, or may have to be quoted.
char* RecordWriter::WriteField(const Field& field, std::int32_t jdn, char* to) const {
    if (field.writer.CanWrite(jdn)) {
        std::string date(field.writer.Room(), '\0');
        date.resize(static_cast<std::size_t>(field.writer.Write(jdn, date.data()) - date.data()));
        if (!field.tag.empty()) date.append(" ").append(field.tag);
        to = WriteCsvField(date, separator_, to);
    }
    if (!field.isLast) *to++ = separator_;
    return to;
}

char* RecordWriter::WriteWeekday(std::int32_t jdn, char* to) const {
    static const std::array<PaddedName, 7> kNames = MakeWeekdayNames();
    const PaddedName& name = kNames[static_cast<std::size_t>(euro_day_of_week(jdn))];
    std::memcpy(to, name.text.data(), kNamesRoom);
    return to + name.length;
}

}  // namespace calvoro
