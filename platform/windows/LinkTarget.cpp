#include "platform/windows/LinkTarget.h"

#include <windows.h>

namespace calvoro {

std::wstring WithLinksResolved(const std::wstring& path) {
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0)
        return path;

    constexpr DWORD kNoAccess = 0;  // the name alone is asked for
    constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const HANDLE file = ::CreateFileW(path.c_str(), kNoAccess, kShareAll, nullptr, OPEN_EXISTING,
                                      FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (file == INVALID_HANDLE_VALUE) return path;
    std::wstring target(32'768, L'\0');  // the longest path there is
    const DWORD length = ::GetFinalPathNameByHandleW(file, target.data(), static_cast<DWORD>(target.size()),
                                                     FILE_NAME_NORMALIZED);
    ::CloseHandle(file);
    if (length == 0 || length >= target.size()) return path;
    target.resize(length);
    return target;
}

}  // namespace calvoro
