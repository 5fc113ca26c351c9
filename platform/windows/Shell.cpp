#include "platform/windows/Shell.h"

#include <windows.h>
// The others need windows.h.
#include <objbase.h>
#include <shellapi.h>
#include <shlobj.h>

#include <algorithm>
#include <cstdint>

#include "platform/FixedDrive.h"
#include "platform/windows/WideText.h"

namespace calvoro {

std::string RoamingApplicationData() {
    PWSTR folder = nullptr;
    std::string path;
    if (::SHGetKnownFolderPath(FOLDERID_RoamingAppData, KF_FLAG_DEFAULT, nullptr, &folder) == S_OK) {
        path = NarrowText(folder);
    }
    ::CoTaskMemFree(folder);
    std::replace(path.begin(), path.end(), '\\', '/');
    return path;
}

bool IsFixedDrive(char letter) {
    const wchar_t root[] = {static_cast<wchar_t>(letter), L':', L'\\', L'\0'};
    return ::GetDriveTypeW(root) == DRIVE_FIXED;
}

std::string SettingsBase() {
    const std::string folder = RoamingApplicationData();
    return folder.empty() ? FirstFixedDrive(IsFixedDrive) : folder;
}

int ShellOpen(std::string_view address, std::string_view parameters, std::string_view directory,
              int windowState) {
    const HINSTANCE answer =
        ::ShellExecuteW(nullptr, L"open", WideText(address).c_str(), WideText(parameters).c_str(),
                        WideText(directory).c_str(), windowState);
    // A number in the guise of a handle.
    return static_cast<int>(reinterpret_cast<std::intptr_t>(answer));
}

}  // namespace calvoro
