#pragma once

#include "platform/MessageBoxes.h"

namespace calvoro {

/// Qt's message boxes, modal to the window in use. The words on their buttons are the desktop's own.
class QtMessageBoxes : public MessageBoxes {
public:
    void Show(std::string_view prompt, std::string_view title, MessageIcon icon) override;
    bool AskYesNo(std::string_view prompt, std::string_view title) override;
};

}  // namespace calvoro
