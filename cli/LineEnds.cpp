#include "cli/LineEnds.h"

namespace calvoro {
namespace {

std::string WithLineEnds(std::string_view text, char lineEnd) {
    std::string result;
    for (;;) {
        const std::size_t position = text.find("\r\n");
        result += text.substr(0, position);
        if (position == std::string_view::npos) return result;
        result += lineEnd;
        text.remove_prefix(position + 2);
    }
}

}  // namespace

std::string WithLineFeeds(std::string_view text) {
    return WithLineEnds(text, '\n');
}

std::string OnOneLine(std::string_view text) {
    return WithLineEnds(text, ' ');
}

}  // namespace calvoro
