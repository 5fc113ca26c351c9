#pragma once

#include "cli/arguments/TodayArguments.h"

namespace calvoro {

/// `calvoro-cli today`: the texts of the two labels that tell today and a week from today.
/// returns  the exit status
int RunToday(const TodayArguments& arguments);

}  // namespace calvoro
