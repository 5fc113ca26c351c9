#include "platform/PrivateFolder.h"

#include <filesystem>
#include <system_error>

#include "platform/windows/WideText.h"

namespace calvoro {

// The folders of a user's profile hand their own access rights down.

bool MakePrivateFolder(const std::string& path) {
    const std::filesystem::path folder(WideText(path));
    std::error_code ignored;  // what counts is whether the folder is there afterwards
    std::filesystem::create_directory(folder, ignored);
    return std::filesystem::is_directory(folder, ignored);
}

bool MakePrivateFolders(const std::string& path) {
    const std::filesystem::path folder(WideText(path));
    std::error_code ignored;
    std::filesystem::create_directories(folder, ignored);
    return std::filesystem::is_directory(folder, ignored);
}

}  // namespace calvoro
