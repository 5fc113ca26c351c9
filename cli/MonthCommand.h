#pragma once

#include "cli/arguments/MonthArguments.h"

namespace calvoro {

/// `calvoro-cli month`: the text that the month window copies.
/// returns  the exit status
int RunMonth(const MonthArguments& arguments);

}  // namespace calvoro
