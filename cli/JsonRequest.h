#pragma once

// One line of JSON read as a Compute click.

#include <string>
#include <string_view>

#include "cli/ComputeRequest.h"

namespace calvoro {

/// Reads an object whose keys are those of a request, each at most once, each of its own type.
/// request  freshly made; what the line does not tell stays as it is
/// returns  empty, or why the line is not a valid request, naming the key
std::string ReadJsonRequest(std::string_view line, ComputeRequest& request);

}  // namespace calvoro
