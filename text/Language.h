#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace calvoro {

/// Number of a language, as the settings file holds it.
using LanguageNumber = std::int16_t;

// The languages that texts are stored in.
inline constexpr LanguageNumber LanguageEnglish = 0;
inline constexpr LanguageNumber LanguageGerman = 1;
inline constexpr LanguageNumber LanguageSpanish = 2;

/// Names of the languages, and of all of them together.
inline constexpr std::array<std::string_view, 7> LanguageNames = {
    "English", "German", "Spanish", "Portuguese", "Italian", "French", "all six languages"};

}  // namespace calvoro
