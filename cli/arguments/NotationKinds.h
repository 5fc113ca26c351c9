#pragma once

// Options that name notations, and what answers in them hold.

#include <CLI/CLI.hpp>
#include <string>

#include "cli/ConvertOptions.h"

namespace calvoro {

/// Reads what dates are converted from: a notation, or "auto". Sets `from` and `reading`.
/// returns  empty, or the reason to refuse it
std::string TakeSource(const std::string& name, ConvertOptions& options);

/// Reads what dates are converted to: notations separated by commas, or "all". Sets `targets` and
/// `emptyWhereUnwritable`.
/// returns  empty, or the reason to refuse it
std::string TakeTargets(const std::string& names, ConvertOptions& options);

/// "--tag", "--era", "--weekday" and "--csv".
void AddAnswerOptions(CLI::App& command, ConvertOptions& options);

}  // namespace calvoro
