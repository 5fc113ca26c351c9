#pragma once

#include <algorithm>
#include <cstdlib>
#include <string>
#include <string_view>

#include "cli/scan/DateScanner.h"

namespace calvoro {

/// A text with "<day number>" in place of each date, read in pieces of which no more is kept than has to be.
/// piece  bytes that come at a time
inline std::string ScanInPieces(const DateScanner& scanner, std::string_view text, std::size_t piece) {
    std::string replaced;
    std::size_t dropped = 0;  // how much of the text is out of reach
    std::size_t begin = 0;
    std::size_t end = 0;
    do {
        end = std::min(text.size(), end + piece);
        const std::string window(text.substr(dropped, end - dropped));
        std::size_t at = begin - dropped;
        while (true) {
            const std::size_t from = at;
            const auto date = scanner.Next(window, end == text.size(), at);
            replaced.append(window, from, at - from);
            if (!date) break;
            replaced += "<" + std::to_string(date->jdn) + ">";
            at += date->length;
        }
        if (window.size() - at >= DateScanner::kMostOpen) std::abort();
        begin = dropped + at;
        dropped = begin - std::min(begin, kBytesBefore);
    } while (end < text.size());
    return replaced;
}

}  // namespace calvoro
