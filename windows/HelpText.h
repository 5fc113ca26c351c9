#pragma once

// The help texts in English and German, slips included.

#include <array>
#include <string>

#include "windows/WebAddresses.h"

namespace calvoro {

/// By language number; Spanish is empty. UTF-8, lines end with CR LF.
using HelpTexts = std::array<std::string, 3>;

/// Builds the texts: paragraphs, each followed by two line breaks.
HelpTexts FillHelpText(const WebAddresses& addresses);

}  // namespace calvoro
