#pragma once

#include "platform/Clipboard.h"

namespace calvoro {

/// The desktop's clipboard.
class QtClipboard : public Clipboard {
public:
    void Clear() override;
    void SetText(std::string_view text) override;
};

}  // namespace calvoro
