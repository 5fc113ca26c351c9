#include "tests/monkey/Invariants.h"

namespace calvoro::monkey {

std::string Told(const World& world) {
    return world.told.empty() ? std::string() : "a warning: " + world.told.front();
}

}  // namespace calvoro::monkey
