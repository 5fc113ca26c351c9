#pragma once

// The engine as a service: one request a line, one response a line.

#include <string>
#include <string_view>

#include "platform/Clock.h"

namespace calvoro {

/// Answers one request.
/// line      a JSON object; see `calvoro-cli compute --help` for its keys
/// clock     asked when the request needs today's date without telling it
/// response  receives a JSON object, at its end, without a line end
/// returns   whether the line was a valid request; a request whose input is refused is one
bool AnswerJsonLine(std::string_view line, const Clock& clock, std::string& response);

/// Appends the response to a line that is not a valid request.
void AppendJsonFault(std::string_view fault, std::string& response);

}  // namespace calvoro
