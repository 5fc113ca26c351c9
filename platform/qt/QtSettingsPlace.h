#pragma once

#include "platform/SettingsPlace.h"

namespace calvoro {

/// The user's configuration folder: $XDG_CONFIG_HOME when it is an absolute path, else .config in $HOME when
/// that is one, else in the home folder of the user database; on Windows the roaming application data, on
/// macOS Application Support. Made for the user alone when it is missing.
class QtSettingsPlace : public SettingsPlace {
public:
    std::string BaseFolder() override;
};

}  // namespace calvoro
