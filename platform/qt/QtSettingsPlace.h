#pragma once

#include "platform/SettingsPlace.h"

namespace calvoro {

/// The user's configuration folder: $XDG_CONFIG_HOME when it is an absolute path, else .config in the home
/// folder; on Windows the roaming application data, on macOS Application Support.
class QtSettingsPlace : public SettingsPlace {
public:
    std::string BaseFolder() override;
};

}  // namespace calvoro
