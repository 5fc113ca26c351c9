#pragma once

#include <optional>
#include <string_view>

#include "platform/MessageBoxes.h"
#include "text/Texts.h"

namespace calvoro {

/// Loads the numbered texts, without which no window can be shown, from the program text file.
/// programFolder  the folder that the program lies in
/// returns        nothing when that failed and a critical message box without a title has told why: the
///                program then ends
std::optional<Texts> LoadTextsOrTell(std::string_view programFolder, MessageBoxes& boxes);

}  // namespace calvoro
