#pragma once

namespace calvoro {

/// What the command line tells its caller.
inline constexpr int kExitAllGood = 0;
inline constexpr int kExitRefused = 1;  // some input was refused, or reading or writing failed
inline constexpr int kExitUsage = 2;    // the arguments make no sense

}  // namespace calvoro
