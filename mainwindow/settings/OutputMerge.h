#pragma once

// What two programs that run at once make of one output. Each starts with what the file held then, and
// each saves when it ends.

#include <optional>
#include <string>
#include <string_view>

namespace calvoro {

/// The output to be saved. Unless somebody else has saved in the meantime it is this window's. Else the
/// lines of the others, which are the file's output without the start that they shared with this window,
/// stand between that start and what this window has added to it; nothing is saved twice.
/// start   the output with which this window started
/// file    the output that the file holds now; nothing when there is no file
/// window  this window's output; nothing when it is not to be saved, which drops the start too
std::string MergedOutput(std::string_view start, std::optional<std::string_view> file,
                         std::optional<std::string_view> window);

}  // namespace calvoro
