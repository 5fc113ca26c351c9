#include "quicktext/NumberShapes.h"

#include <algorithm>

namespace calvoro {
namespace {

/// A character that belongs to dates, though it may stand in a wrong place.
bool BelongsToDates(char c) {
    return IsDigit(c) || std::string_view("-/., ()W").find(c) != std::string_view::npos;
}

std::int32_t Saturated(std::int64_t value) {
    return static_cast<std::int32_t>(std::min<std::int64_t>(value, kDigitsSaturated));
}

/// Takes the groups of three behind the first group.
/// digits  how many digits the first group has; then of all groups
/// value   of the first group; then of all
bool TakeGroups(TextCursor& cursor, std::string_view separator, std::size_t& digits, std::int32_t& value) {
    while (cursor.Rest().starts_with(separator)) {
        const std::size_t place = cursor.Place();
        cursor.Take(separator);
        std::int32_t group = 0;
        const std::size_t size = cursor.TakeDigits(group);
        if (size != 3) {
            // What does not belong to any date is the fault; else the separator stands in a wrong place.
            const bool isForeign = !cursor.AtEnd() && !BelongsToDates(cursor.Rest().front());
            if (size > 3 || !isForeign) cursor.MoveTo(place);
            return false;
        }
        digits += size;
        value = Saturated(std::int64_t{value} * 1000 + group);
    }
    return true;
}

}  // namespace

StrictResult TakeNumber(TextCursor& cursor, const Groupings& groupings, std::size_t leastGrouped,
                        std::int32_t& value) {
    const bool beginsWithZero = cursor.IsAt('0');
    std::size_t digits = cursor.TakeDigits(value);
    if (digits == 0) return cursor.Fail();
    for (const std::string_view separator : groupings) {
        if (separator.empty() || !cursor.Rest().starts_with(separator)) continue;
        const std::size_t place = cursor.Place();
        if (digits > 3 || beginsWithZero) return cursor.Fail();
        if (!TakeGroups(cursor, separator, digits, value)) return cursor.Fail();
        if (digits < leastGrouped) return Refused(ReadFault::Unexpected, place);
        break;
    }
    return {};
}

StrictResult TakeField(TextCursor& cursor, std::size_t least, std::size_t most, std::int32_t& value) {
    const std::size_t begin = cursor.Place();
    const std::size_t digits = cursor.TakeDigits(value);
    if (digits > most) cursor.MoveTo(begin + most);
    return digits < least || digits > most ? cursor.Fail() : StrictResult{};
}

}  // namespace calvoro
