#pragma once

// What the window asks of the Windows shell. Free of Qt, so that it is built and tried without it.

#include <string>
#include <string_view>

namespace calvoro {

/// The folder of the user's roaming application data, with "/" between its parts.
/// returns  an absolute UTF-8 path; empty when the shell names none
std::string RoamingApplicationData();

/// Whether there is a drive of this letter that is built in.
bool IsFixedDrive(char letter);

/// Where the settings folder goes: the folder of roaming application data, else the first fixed drive.
/// returns  without a closing separator; empty when there is neither
std::string SettingsBase();

/// The shell's "open" action.
/// address      what is opened; UTF-8, as the other texts
/// parameters   for the program that opens it
/// directory    where that program starts
/// windowState  how its window appears; 1 is the normal state
/// returns      the shell's own answer: 33 or more on success, else 2 not found, 8 out of memory, 31 nothing
///              opens it, and the shell's other numbers below 33
int ShellOpen(std::string_view address, std::string_view parameters, std::string_view directory,
              int windowState);

}  // namespace calvoro
