#pragma once

#include <string>
#include <vector>

namespace calvoro {

/// `calvoro-cli month`: the text that the month window copies.
/// words    the arguments behind the command's name
/// returns  the exit status
int RunMonth(const std::vector<std::string>& words);

}  // namespace calvoro
