#pragma once

#include <string>

namespace calvoro {

/// The texts of the three boxes, without blanks around them. Empty means not given.
struct InputTexts {
    std::string first;
    std::string difference;
    std::string second;
};

}  // namespace calvoro
