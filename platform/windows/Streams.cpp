#include "platform/Streams.h"

// windows.h first: the others need it.
#include <windows.h>
// shellapi.h declares CommandLineToArgvW.
#include <fcntl.h>
#include <io.h>
#include <shellapi.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cerrno>

#include "platform/windows/HandleOutput.h"
#include "platform/windows/WideText.h"

namespace calvoro {
namespace {

HANDLE HandleOf(int descriptor) {
    const std::intptr_t handle = ::_get_osfhandle(descriptor);
    return handle < 0 ? INVALID_HANDLE_VALUE : reinterpret_cast<HANDLE>(handle);
}

// Opening one is refused as if it were a matter of rights.
bool IsFolder(const std::wstring& name) {
    const DWORD attributes = ::GetFileAttributesW(name.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

}  // namespace

std::vector<std::string> PrepareStreams(int /*argc*/, const char* const* /*argv*/) {
    for (const int descriptor : {kStandardInput, kStandardOutput, kStandardError}) {
        ::_setmode(descriptor, _O_BINARY);
    }
    ::SetConsoleOutputCP(CP_UTF8);
    ::SetConsoleCP(CP_UTF8);

    // What main() was given has passed through the code page of the system and may have lost characters.
    std::vector<std::string> words;
    int count = 0;
    if (wchar_t** const given = ::CommandLineToArgvW(::GetCommandLineW(), &count)) {
        for (int word = 1; word < count; ++word) words.push_back(NarrowText(given[word]));
        ::LocalFree(given);
    }
    return words;
}

int OpenForReading(const std::string& path, int& error) {
    const std::wstring name = WideText(path);
    const int descriptor = ::_wopen(name.c_str(), _O_RDONLY | _O_BINARY | _O_NOINHERIT);
    if (descriptor < 0) {
        const int reason = errno;
        error = IsFolder(name) ? EISDIR : reason;
    }
    return descriptor;
}

void CloseDescriptor(int descriptor) {
    ::_close(descriptor);
}

std::size_t ReadSome(int descriptor, char* to, std::size_t size, int& error) {
    const int got = ::_read(descriptor, to, static_cast<unsigned>(std::min(size, kMostAtOnce)));
    if (got >= 0) return static_cast<std::size_t>(got);
    error = errno;
    return 0;
}

bool WouldWait(int descriptor) {
    const HANDLE handle = HandleOf(descriptor);
    DWORD waiting = 0;
    switch (::GetFileType(handle)) {
        case FILE_TYPE_PIPE:
            if (::PeekNamedPipe(handle, nullptr, 0, nullptr, &waiting, nullptr) != 0) return waiting == 0;
            // The end of the input is there to be read. Of a pipe that cannot be looked into nobody knows.
            return ::GetLastError() != ERROR_BROKEN_PIPE;
        case FILE_TYPE_CHAR: return IsTerminal(descriptor);
        default: return false;
    }
}

bool IsTerminal(int descriptor) {
    // _isatty takes every character device for a terminal, NUL among them.
    DWORD mode = 0;
    return ::GetConsoleMode(HandleOf(descriptor), &mode) != 0;
}

std::uint64_t SizeOfFile(int descriptor) {
    struct _stat64 status {};
    if (::_fstat64(descriptor, &status) != 0 || (status.st_mode & _S_IFMT) != _S_IFREG) return 0;
    return static_cast<std::uint64_t>(status.st_size);
}

}  // namespace calvoro
