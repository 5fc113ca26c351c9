#pragma once

// Files, pipes and terminals as the numbered descriptors of the system, and what the entry of a program has
// to settle about its own three. Error numbers are those of std::generic_category; bytes pass unchanged.

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace calvoro {

inline constexpr int kStandardInput = 0;
inline constexpr int kStandardOutput = 1;
inline constexpr int kStandardError = 2;

/// Prepares the standard streams and the words of the command line. To be called once, before anything is
/// read or written: from then on the streams carry bytes, a terminal shows UTF-8, and writing to a reader
/// that went away fails with EPIPE instead of ending the process.
/// returns  the words behind the program's name, in UTF-8
std::vector<std::string> PrepareStreams(int argc, const char* const* argv);

/// Opens a file for reading.
/// path     UTF-8
/// error    set to the error number when the file cannot be opened
/// returns  a descriptor to be closed with CloseDescriptor, or -1
int OpenForReading(const std::string& path, int& error);

void CloseDescriptor(int descriptor);

/// Reads what is there, waiting when there is nothing yet. A signal that interrupts it does not count.
/// error    set to the error number when reading fails
/// returns  number of bytes; 0 at the end, or when reading failed
std::size_t ReadSome(int descriptor, char* to, std::size_t size, int& error);

/// Whether ReadSome would wait for somebody to send something.
bool WouldWait(int descriptor);

/// Whether the descriptor is a terminal.
bool IsTerminal(int descriptor);

/// Size in bytes of the ordinary file behind the descriptor; 0 for anything else.
std::uint64_t SizeOfFile(int descriptor);

}  // namespace calvoro
