#pragma once

// How the text in an input box is read, in words: what a person can check before computing.

#include <string>
#include <string_view>

#include "compute/ComputeOptions.h"
#include "compute/ComputeWindow.h"

namespace calvoro {

/// "First date: Wednesday, 13 March -43 CE (44 BCE), day number 1705426", "Date difference: 10 days", or
/// why the text is not read, in the language of the interface. A day is told in JC for a JC box and in CE
/// for any other; a year of 0 or below always with its BCE year. Numbers are written plain.
/// text     the text of the box; blanks around it do not matter
/// options  whose calendars, unit, formats and language hold
/// returns  "" for an empty box
std::string ReadingText(InputBox box, std::string_view text, const ComputeOptions& options);

}  // namespace calvoro
