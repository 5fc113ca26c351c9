#pragma once

#include <string>
#include <string_view>

namespace calvoro {

/// The folder of the user's settings by the rules of free desktops. A path that is not absolute would be
/// another folder in every working directory, so it does not count.
/// configured   $XDG_CONFIG_HOME
/// home         $HOME
/// accountHome  the home folder that the user database names
/// returns      without a closing separator; empty when there is no absolute path among the three
std::string ConfigurationFolder(std::string_view configured, std::string_view home,
                                std::string_view accountHome);

}  // namespace calvoro
