#include "mainwindow/settings/OutputMerge.h"

namespace calvoro {

std::string MergedOutput(std::string_view start, std::optional<std::string_view> file,
                         std::optional<std::string_view> window) {
    std::string_view own = window.value_or(std::string_view());
    if (!file || *file == start) return std::string(own);

    std::string_view others = *file;
    if (others.starts_with(start)) others.remove_prefix(start.size());
    std::string merged;
    merged.reserve(own.size() + others.size());
    if (own.starts_with(start)) {
        merged += start;
        own.remove_prefix(start.size());
    }
    merged += others;
    merged += own;
    return merged;
}

}  // namespace calvoro
