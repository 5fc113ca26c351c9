#include "cli/CsvField.h"

namespace calvoro {

char* WriteCsvField(std::string_view field, char delimiter, char* to) {
    if (!NeedsCsvQuotes(field, delimiter)) return to + field.copy(to, field.size());
    *to++ = '"';
    for (const char character : field) {
        if (character == '"') *to++ = '"';
        *to++ = character;
    }
    *to++ = '"';
    return to;
}

}  // namespace calvoro
