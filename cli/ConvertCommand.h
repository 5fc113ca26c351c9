#pragma once

#include <string>
#include <vector>

namespace calvoro {

/// `calvoro-cli convert`: dates of the arguments or lines of the input, one output line each.
/// words    the arguments behind the command's name
/// returns  the exit status
int RunConvert(const std::vector<std::string>& words);

}  // namespace calvoro
