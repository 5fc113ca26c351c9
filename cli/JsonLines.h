#pragma once

// The engine as a service: one request a line, one response a line.

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/Clock.h"

namespace calvoro {

struct ComputeRequest;

/// Answers one request.
/// line      a JSON object; see `calvoro-cli compute --help` for its keys
/// number    of the line in its input, from 1
/// clock     asked when the request needs today's date without telling it
/// response  receives a JSON object, at its end, without a line end
/// returns   whether the line was a valid request; a request whose input is refused is one
bool AnswerJsonLine(std::string_view line, std::uint64_t number, const Clock& clock, std::string& response);

/// Appends the response to a request.
void AnswerRequest(ComputeRequest request, const Clock& clock, std::string& response);

/// Appends the response to a line that is not a valid request.
void AppendJsonFault(std::string_view fault, std::uint64_t number, std::string& response);

}  // namespace calvoro
