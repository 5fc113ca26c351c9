#pragma once

#include <string>
#include <vector>

namespace calvoro {

/// `calvoro-cli compute`: one Compute click told by options, or one for every line of JSON.
/// words    the arguments behind the command's name
/// returns  the exit status
int RunCompute(const std::vector<std::string>& words);

}  // namespace calvoro
