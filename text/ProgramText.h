#pragma once

// Loading the numbered texts and reading one of them.

#include <cstdint>
#include <string>
#include <string_view>

#include "text/Language.h"

namespace calvoro {

/// The message for a result of lt; empty for a result above 0.
/// path  the full path of the file, named in the message when it cannot be opened
std::string ProgramTextMessage(std::int32_t result, std::string_view path);

/// Loads a program text file. Ends nothing: the program's entry shows the message and ends.
/// folder   the program's folder; one separator is put between it and the file name
/// returns  the message to show, empty when the texts are loaded
std::string LoadProgramText(std::string_view folder, std::string_view fileName);

/// A numbered text; "" when there is none in this language or when it is "~".
std::string GetProgramText(std::int16_t number, LanguageNumber textLanguage);

}  // namespace calvoro
