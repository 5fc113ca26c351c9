#include "datetext/KeyFilter.h"

#include <string_view>

#include "datetext/TextOptions.h"

namespace calvoro {
namespace {

constexpr std::int32_t kCopyKey = 3;
constexpr std::int32_t kBackspaceKey = 8;
constexpr std::int32_t kPasteKey = 22;
constexpr std::int32_t kCutKey = 24;

bool IsEditingKey(std::int32_t key) {
    return key == kBackspaceKey || key == kCopyKey || key == kPasteKey || key == kCutKey;
}

/// Whether the key's character is the separator or one of the others. The whole code is compared: a letter
/// beyond ASCII is never taken for the one that shares its low byte.
bool IsOneOf(std::int32_t key, char separator, std::string_view others) {
    if (separator != kNoSeparator && key == separator) return true;
    for (const char c : others) {
        if (key == c) return true;
    }
    return false;
}

}  // namespace

bool DateKeyFilter(std::int32_t key, std::int32_t length, std::int32_t maxLength, char separator,
                   bool letterWAllowed) {
    if (IsEditingKey(key)) return true;
    // Deliberate: no test of the length, so that the "W" of an ISO week date always goes in.
    if (letterWAllowed && (key == 'W' || key == 'w')) return true;
    return length < maxLength && IsOneOf(key, separator, "1234567890- ,.()");
}

bool NumberKeyFilter(std::int32_t key, std::int32_t length, std::int32_t maxLength, char thousandsSeparator) {
    if (IsEditingKey(key)) return true;
    return length < maxLength && IsOneOf(key, thousandsSeparator, "1234567890+-,");
}

}  // namespace calvoro
