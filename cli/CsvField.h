#pragma once

// Fields of comma-separated values.
//
// source  RFC 4180

#include <string_view>

namespace calvoro {

/// Whether a field must stand in quotes.
/// delimiter  what separates the fields; a comma is quoted beside any other, as readers may expect one
inline bool NeedsCsvQuotes(std::string_view field, char delimiter) {
    const char special[] = {',', '"', '\r', '\n', delimiter};
    return field.find_first_of(std::string_view(special, sizeof special)) != std::string_view::npos;
}

/// Writes a field, in quotes where it needs them.
/// delimiter  what separates the fields
/// to         room for twice the field and two characters more
/// returns    behind the last character written
char* WriteCsvField(std::string_view field, char delimiter, char* to);

}  // namespace calvoro
