#include "platform/ConfigurationFolder.h"

namespace calvoro {

namespace {

bool IsAbsolute(std::string_view path) {
    return path.starts_with('/');
}

std::string WithoutClosingSeparators(std::string_view path) {
    while (path.ends_with('/')) path.remove_suffix(1);
    return std::string(path);
}

}  // namespace

std::string ConfigurationFolder(std::string_view configured, std::string_view home,
                                std::string_view accountHome) {
    if (IsAbsolute(configured)) return WithoutClosingSeparators(configured);
    for (const std::string_view folder : {home, accountHome}) {
        if (IsAbsolute(folder)) return WithoutClosingSeparators(folder) + "/.config";
    }
    return {};
}

}  // namespace calvoro
