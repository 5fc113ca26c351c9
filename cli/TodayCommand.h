#pragma once

#include <string>
#include <vector>

namespace calvoro {

/// `calvoro-cli today`: the texts of the two labels that tell today and a week from today.
/// words    the arguments behind the command's name
/// returns  the exit status
int RunToday(const std::vector<std::string>& words);

}  // namespace calvoro
