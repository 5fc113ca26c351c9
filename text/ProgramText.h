#pragma once

// Loading the numbered texts from the program's folder, and what to say when that fails.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "text/Texts.h"

namespace calvoro {

/// The message for a result of lt; empty for a result above 0.
/// path  the full path of the file, named in the message when it cannot be opened
std::string ProgramTextMessage(std::int32_t result, std::string_view path);

/// What loading gives: texts, or the message that tells why there are none.
struct LoadedTexts {
    std::optional<Texts> texts;
    std::string message;
};

/// Loads a program text file. Ends nothing: the program's entry shows the message and ends.
/// folder  the program's folder; one separator is put between it and the file name
LoadedTexts LoadProgramText(std::string_view folder, std::string_view fileName);

}  // namespace calvoro
