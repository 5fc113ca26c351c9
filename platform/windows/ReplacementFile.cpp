#include "platform/ReplacementFile.h"

#include <windows.h>

#include <cerrno>

#include "platform/windows/HandleOutput.h"
#include "platform/windows/LinkTarget.h"
#include "platform/windows/WideText.h"

namespace calvoro {
namespace {

int FileErrorNumber(DWORD error) {
    switch (error) {
        case ERROR_FILE_NOT_FOUND:
        case ERROR_PATH_NOT_FOUND: return ENOENT;
        case ERROR_ACCESS_DENIED:
        case ERROR_SHARING_VIOLATION:
        case ERROR_WRITE_PROTECT: return EACCES;
        case ERROR_DISK_FULL:
        case ERROR_HANDLE_DISK_FULL: return ENOSPC;
        default: return EIO;
    }
}

// returns  0 for a name that is free, or that of an ordinary file that may be written
int WhyNotReplaceable(const std::wstring& path) {
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) {
        const DWORD error = ::GetLastError();
        return error == ERROR_FILE_NOT_FOUND ? 0 : FileErrorNumber(error);
    }
    if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return EISDIR;
    return (attributes & (FILE_ATTRIBUTE_DEVICE | FILE_ATTRIBUTE_READONLY)) != 0 ? EACCES : 0;
}

class WindowsReplacementFile final : public ReplacementFile {
public:
    explicit WindowsReplacementFile(const std::string& path)
        : target_(WithLinksResolved(WideText(path))), error_(WhyNotReplaceable(target_)) {
        // A name that nothing has: what stands beside the file may be the user's.
        for (int attempt = 0; error_ == 0 && handle_ == INVALID_HANDLE_VALUE; ++attempt) {
            written_ = target_ + L"." + std::to_wstring(::GetTickCount64() + static_cast<ULONGLONG>(attempt));
            handle_ = ::CreateFileW(written_.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
            const DWORD error = ::GetLastError();
            constexpr int kAttempts = 100;
            if (handle_ == INVALID_HANDLE_VALUE && (error != ERROR_FILE_EXISTS || attempt == kAttempts)) {
                error_ = FileErrorNumber(error);
            }
        }
    }

    ~WindowsReplacementFile() override { GiveUp(error_); }

    void Write(std::string_view bytes) override {
        if (error_ != 0) return;
        const DWORD error = WriteToHandle(handle_, bytes);
        if (error != ERROR_SUCCESS) GiveUp(FileErrorNumber(error));
    }

    void Commit() override {
        if (error_ != 0) return;
        constexpr DWORD kHow = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
        if (::FlushFileBuffers(handle_) == 0) {
            GiveUp(FileErrorNumber(::GetLastError()));
            return;
        }
        ::CloseHandle(handle_);
        handle_ = INVALID_HANDLE_VALUE;
        // One step, unlike ReplaceFile, in which the name is free for a moment.
        if (::MoveFileExW(written_.c_str(), target_.c_str(), kHow) == 0) {
            error_ = FileErrorNumber(::GetLastError());
            ::DeleteFileW(written_.c_str());
        }
    }

    int Error() const override { return error_; }

private:
    // Leaves nothing of what was written, which is in the way of a full disk.
    void GiveUp(int error) {
        error_ = error;
        if (handle_ == INVALID_HANDLE_VALUE) return;
        ::CloseHandle(handle_);
        handle_ = INVALID_HANDLE_VALUE;
        ::DeleteFileW(written_.c_str());
    }

    std::wstring target_;
    int error_;
    std::wstring written_;
    HANDLE handle_ = INVALID_HANDLE_VALUE;  // while it is being written
};

}  // namespace

std::unique_ptr<ReplacementFile> BeginReplacement(const std::string& path) {
    return std::make_unique<WindowsReplacementFile>(path);
}

}  // namespace calvoro
