#include "platform/posix/LinkTarget.h"

#include <filesystem>
#include <system_error>

namespace calvoro {

std::string WithLinksResolved(const std::string& path) {
    constexpr int kMostLinks = 40;
    std::error_code failed;
    std::filesystem::path target(path);
    for (int links = 0; links < kMostLinks; ++links) {
        const std::filesystem::path next = std::filesystem::read_symlink(target, failed);
        if (failed) return target.string();
        target = target.parent_path() / next;
    }
    return path;
}

}  // namespace calvoro
