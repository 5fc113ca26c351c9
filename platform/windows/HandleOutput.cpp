#include "platform/windows/HandleOutput.h"

#include <algorithm>

namespace calvoro {

DWORD WriteToHandle(HANDLE file, std::string_view bytes) {
    while (!bytes.empty()) {
        DWORD written = 0;
        const auto most = static_cast<DWORD>(std::min(bytes.size(), kMostAtOnce));
        if (::WriteFile(file, bytes.data(), most, &written, nullptr) == 0) return ::GetLastError();
        if (written == 0) return ERROR_WRITE_FAULT;
        bytes.remove_prefix(written);
    }
    return ERROR_SUCCESS;
}

}  // namespace calvoro
