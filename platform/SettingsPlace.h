#pragma once

#include <string>

namespace calvoro {

/// Where the settings file lives.
class SettingsPlace {
public:
    virtual ~SettingsPlace() = default;

    /// The folder of the user's application data, created when it is missing.
    /// returns  an absolute UTF-8 path without a closing separator; empty when there is none
    virtual std::string BaseFolder() = 0;
};

}  // namespace calvoro
