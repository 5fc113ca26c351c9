#include "datetext/Thousands.h"

#include <cassert>
#include <charconv>
#include <cstring>

#include "datetext/Digits.h"
#include "datetext/TextOptions.h"

namespace calvoro {

void separate_thousands(const char* number, std::int32_t separator, char (&buffer)[kThousandsBufferSize]) {
    assert(number != nullptr);
    std::size_t remaining = std::strlen(number);
    std::size_t written = 0;
    const auto put = [&](char c) {
        if (written < kThousandsBufferSize - 1) buffer[written++] = c;
    };
    if (*number == '-') {
        put(*number++);
        --remaining;
    }
    for (; remaining > 0 && written < kThousandsBufferSize - 1; --remaining) {
        put(*number++);
        if (remaining > 1 && (remaining - 1) % 3 == 0) put(static_cast<char>(separator));
    }
    buffer[written] = '\0';
}

std::string ThousandsText(std::string_view number, char separator) {
    if (separator == kNoSeparator) return std::string(number);
    char buffer[kThousandsBufferSize];
    separate_thousands(std::string(number).c_str(), static_cast<unsigned char>(separator), buffer);
    return buffer;
}

std::string ThousandsText(std::int32_t number, char separator) {
    char digits[kNumberRoom] = {};
    std::to_chars(digits, digits + kNumberRoom - 1, number);
    if (separator == kNoSeparator) return digits;
    char buffer[kThousandsBufferSize];
    separate_thousands(digits, static_cast<unsigned char>(separator), buffer);
    return buffer;
}

bool DropWellGroupedSeparators(std::string& text, char separator) {
    if (separator == kNoSeparator) return false;
    const std::string_view whole = text;
    std::size_t at = !whole.empty() && (whole[0] == '-' || whole[0] == '+') ? 1 : 0;

    const std::size_t firstGroupEnd = whole.find(separator, at);
    if (firstGroupEnd == std::string_view::npos) return false;
    if (firstGroupEnd - at > 3 || !AllDigits(whole.substr(at, firstGroupEnd - at))) return false;
    for (at = firstGroupEnd; at < whole.size(); at += 4) {
        if (whole[at] != separator || whole.size() - at < 4) return false;
        if (!AllDigits(whole.substr(at + 1, 3))) return false;
    }
    std::erase(text, separator);
    return true;
}

}  // namespace calvoro
