#pragma once

// Where the manual's web pages lie on this machine.

#include <QString>
#include <string>

namespace calvoro {

/// The first page of the manual in a language: in the folder "manual" beside the program, as in a build tree,
/// or where the program was configured to find it.
/// programFolder  of the program itself, links resolved
/// configured     a folder; relative to the program's, when it is not absolute
/// language       the name of the language's folder: "en", "de"
/// returns        an address, "file:///..."; empty when there is no such page
std::string InstalledManual(const QString& programFolder, const QString& configured, const QString& language);

}  // namespace calvoro
