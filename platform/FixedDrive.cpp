#include "platform/FixedDrive.h"

#include <string_view>

namespace calvoro {

std::string FirstFixedDrive(const std::function<bool(char letter)>& isFixed) {
    for (const char letter : std::string_view("CDEFGHIJKLMNOPQRSTUVWXYZ")) {
        if (isFixed(letter)) return {letter, ':'};
    }
    return {};
}

}  // namespace calvoro
