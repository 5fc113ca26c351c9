#include "platform/WholeFile.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

#include "platform/windows/HandleOutput.h"
#include "platform/windows/LinkTarget.h"
#include "platform/windows/WideText.h"

namespace calvoro {
namespace {

class File {
public:
    explicit File(HANDLE handle) : handle_(handle) {}
    ~File() { Close(); }
    File(const File&) = delete;
    File& operator=(const File&) = delete;

    HANDLE Handle() const { return handle_; }
    bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE; }

    bool Close() {
        const HANDLE handle = handle_;
        handle_ = INVALID_HANDLE_VALUE;
        return handle == INVALID_HANDLE_VALUE || ::CloseHandle(handle) != 0;
    }

private:
    HANDLE handle_;
};

bool WriteNewFile(const std::wstring& path, std::string_view content) {
    File file(::CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL,
                            nullptr));
    return file.IsOpen() && WriteToHandle(file.Handle(), content) == ERROR_SUCCESS &&
           ::FlushFileBuffers(file.Handle()) != 0 && file.Close();
}

/// A turn with other programs that replace the same file; the end of a killed one ends its turn too. Who has
/// waited for long, because another program hangs, goes ahead.
class Turn {
public:
    explicit Turn(std::wstring path) {
        std::replace_if(
            path.begin(), path.end(),
            [](wchar_t character) { return character == L'\\' || character == L'/'; }, L'_');
        mutex_ = ::CreateMutexW(nullptr, FALSE, path.c_str());
        if (mutex_ == nullptr) return;
        constexpr DWORD kLongest = 5000;  // milliseconds
        const DWORD outcome = ::WaitForSingleObject(mutex_, kLongest);
        mine_ = outcome == WAIT_OBJECT_0 || outcome == WAIT_ABANDONED;
    }
    ~Turn() {
        if (mine_) ::ReleaseMutex(mutex_);
        if (mutex_ != nullptr) ::CloseHandle(mutex_);
    }
    Turn(const Turn&) = delete;
    Turn& operator=(const Turn&) = delete;

private:
    HANDLE mutex_ = nullptr;
    bool mine_ = false;
};

/// Whether a name is free, or that of an ordinary file that may be written.
bool MayBeReplaced(const std::wstring& path) {
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) return ::GetLastError() == ERROR_FILE_NOT_FOUND;
    return (attributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_DEVICE | FILE_ATTRIBUTE_READONLY)) == 0;
}

}  // namespace

std::optional<std::string> ReadWholeFile(const std::string& path) {
    const File file(::CreateFileW(WideText(path).c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_DELETE,
                                  nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file.IsOpen() || ::GetFileType(file.Handle()) != FILE_TYPE_DISK) return {};

    std::string content;
    std::array<char, 65536> block{};
    for (;;) {
        DWORD got = 0;
        if (::ReadFile(file.Handle(), block.data(), static_cast<DWORD>(block.size()), &got, nullptr) == 0)
            return {};
        if (got == 0) return content;
        content.append(block.data(), got);
    }
}

bool ReplaceWholeFile(const std::string& path, const NewContent& content) {
    const std::wstring target = WithLinksResolved(WideText(path));
    const std::wstring written = target + L".new";
    const Turn turn(target);
    if (!MayBeReplaced(target) || !MayBeReplaced(written)) return false;
    constexpr DWORD kHow = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    if (WriteNewFile(written, content(ReadWholeFile(path))) &&
        ::MoveFileExW(written.c_str(), target.c_str(), kHow) != 0) {
        return true;
    }
    ::DeleteFileW(written.c_str());
    return false;
}

void DeleteWholeFile(const std::string& path) {
    const std::wstring target = WideText(path);
    if (MayBeReplaced(target)) ::DeleteFileW(target.c_str());
}

}  // namespace calvoro
