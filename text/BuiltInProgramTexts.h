#pragma once

// The contents of calvoro.dat as they were when the program was built, for a program that must work without
// a file beside it.

#include <string_view>

namespace calvoro {

/// The bytes of calvoro.dat; they live as long as the program.
std::string_view BuiltInProgramTexts();

}  // namespace calvoro
