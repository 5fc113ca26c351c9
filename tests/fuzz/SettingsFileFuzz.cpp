// Any bytes as a settings file: what is read from them is written and read back unchanged.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>

#include "mainwindow/settings/SettingsText.h"

namespace {

using calvoro::ParseSettingsText;
using calvoro::Settings;
using calvoro::SettingsText;

void Require(bool condition) {
    if (!condition) std::abort();
}

bool HasLineEnd(const std::string& text) {
    return text.find("\r\n") != std::string::npos;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(data, data + size);
    const std::optional<Settings> read = ParseSettingsText(text);
    if (!read) return 0;

    const std::optional<Settings> once = ParseSettingsText(SettingsText(*read));
    Require(once.has_value());
    Require(once->output == read->output);
    // The file's own line ends inside a box are written as line feeds.
    if (!HasLineEnd(read->firstDate) && !HasLineEnd(read->dateDiff) && !HasLineEnd(read->secondDate)) {
        Require(*once == *read);
    }
    Require(ParseSettingsText(SettingsText(*once)) == once);
    return 0;
}
