#pragma once

// Fields of comma-separated values.
//
// source  RFC 4180

#include <string_view>

namespace calvoro {

/// Whether a field must stand in quotes.
inline bool NeedsCsvQuotes(std::string_view field) {
    return field.find_first_of(",\"\r\n") != std::string_view::npos;
}

/// Writes a field, in quotes where it needs them.
/// to       room for twice the field and two characters more
/// returns  behind the last character written
char* WriteCsvField(std::string_view field, char* to);

}  // namespace calvoro
