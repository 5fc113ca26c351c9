#include "platform/PrivateFolder.h"

#include <sys/stat.h>

#include <filesystem>
#include <system_error>

namespace calvoro {

bool MakePrivateFolder(const std::string& path) {
    constexpr mode_t kForTheUserAlone = 0700;
    ::mkdir(path.c_str(), kForTheUserAlone);
    std::error_code ignored;  // what counts is whether the folder is there afterwards
    return std::filesystem::is_directory(path, ignored);
}

bool MakePrivateFolders(const std::string& path) {
    const std::filesystem::path folder(path);
    std::error_code ignored;
    const bool hasRoom = !folder.has_relative_path() ||
                         std::filesystem::is_directory(folder.parent_path(), ignored) ||
                         MakePrivateFolders(folder.parent_path().string());
    return hasRoom && MakePrivateFolder(path);
}

}  // namespace calvoro
