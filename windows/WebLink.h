#pragma once

// Opening a web page in the user's browser.

#include <string>
#include <string_view>

#include "platform/MessageBoxes.h"
#include "platform/WebOpener.h"

namespace calvoro {

/// Opens an address, with every "http:" in it replaced by "https:". A failed start is told in a message
/// box, also when it shows only later; the program goes on.
/// boxes  must outlive the program's event loop
void OpenWebPage(WebOpener& web, MessageBoxes& boxes, std::string_view address);

/// What follows the last "." in the part of a text behind its last "\"; empty when there is no ".".
/// lower  ASCII letters in lower case
std::string FileExtension(std::string_view text, bool lower);

}  // namespace calvoro
