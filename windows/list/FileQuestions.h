#pragma once

#include <QWidget>
#include <optional>
#include <string>

#include "windows/list/ListWords.h"

namespace calvoro {

/// Asks which file to read, in the toolkit's dialog.
/// returns  its path in UTF-8; nothing when the user cancels
std::optional<std::string> AskWhatToOpen(QWidget& window, const ListWords& words);

/// Asks under which name to save; a name without an ending gets that of the kind that is chosen. Asks, too,
/// whether a file of that name may be replaced.
std::optional<std::string> AskWhereToSave(QWidget& window, const ListWords& words);

}  // namespace calvoro
