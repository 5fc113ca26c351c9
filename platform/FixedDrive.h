#pragma once

#include <functional>
#include <string>

namespace calvoro {

/// The base of the settings folder where drives have letters and the system names no folder for the user's
/// application data: the first fixed drive.
/// isFixed  whether there is a drive of this letter, 'C' to 'Z', that is built in
/// returns  "C:" to "Z:"; empty when none is
std::string FirstFixedDrive(const std::function<bool(char letter)>& isFixed);

}  // namespace calvoro
