#pragma once

#include <string_view>

namespace calvoro {

enum class MessageIcon { NoIcon, Exclamation, Critical };

/// Modal message boxes. Texts are plain UTF-8; CR LF or LF breaks a line.
class MessageBoxes {
public:
    virtual ~MessageBoxes() = default;

    /// A box with an OK button; returns when it is closed.
    virtual void Show(std::string_view prompt, std::string_view title, MessageIcon icon) = 0;

    /// A box with Yes and No; No is the default and what Esc answers.
    /// returns  true for Yes
    virtual bool AskYesNo(std::string_view prompt, std::string_view title) = 0;
};

}  // namespace calvoro
