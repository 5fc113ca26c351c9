#pragma once

// Why a strictly read text was refused, in words.

#include <string>
#include <string_view>

#include "quicktext/StrictResult.h"

namespace calvoro {

/// Names the fault and its place: "unexpected 'O' at column 2". Columns are characters of the text, from 1.
/// text     the text that was read
/// returns  empty when there is nothing to add to the status
std::string FaultText(const StrictResult& result, std::string_view text);

}  // namespace calvoro
