#pragma once

#include <Qt>

namespace calvoro {

/// Whether a key is one of the two Enter keys, that among the letters or that of the keypad.
constexpr bool IsEnterKey(int key) {
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

}  // namespace calvoro
