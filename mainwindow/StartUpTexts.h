#pragma once

#include <string_view>

#include "platform/MessageBoxes.h"

namespace calvoro {

/// Loads the numbered texts, without which no window can be shown, from the program text file.
/// programFolder  the folder that the program lies in
/// returns        false when that failed and a critical message box without a title has told why: the program
///                then ends
bool LoadTextsOrTell(std::string_view programFolder, MessageBoxes& boxes);

}  // namespace calvoro
