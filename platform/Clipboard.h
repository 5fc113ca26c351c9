#pragma once

#include <string_view>

namespace calvoro {

class Clipboard {
public:
    virtual ~Clipboard() = default;

    virtual void Clear() = 0;

    /// Puts plain text on the clipboard, with the platform's own line breaks.
    /// text  UTF-8; lines end with CR LF or LF
    virtual void SetText(std::string_view text) = 0;
};

}  // namespace calvoro
