// Arbitrary bytes as a program text file: reading never fails in any other way than by its codes, and what
// it accepts can be fetched again, line by line.

#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "text/ProgramText.h"
#include "text/ProgramTextFile.h"

namespace {

void Require(bool condition) {
    if (!condition) std::abort();
}

bool IsDocumentedResult(std::int32_t result) {
    if (result >= 0) return result <= 500;
    if (result >= -8) return result != -1 && result != -5 && result != -7;
    return result <= -501 && result >= -2000;
}

std::string Copied(std::string_view text, std::int32_t capacity) {
    std::array<char, 1024> buffer{};
    const std::int32_t length = calvoro::CopyText(text, buffer.data(), capacity);
    Require(length >= 0 && length < capacity);
    Require(buffer[static_cast<std::size_t>(length)] == '\0');
    return std::string(buffer.data(), static_cast<std::size_t>(length));
}

void CheckLine(const calvoro::ProgramTexts& texts, std::string_view line) {
    std::int32_t number = -1;
    std::from_chars(line.data(), line.data() + line.size(), number);
    Require(number >= 0);
    std::string_view rest = line.substr(line.find('\t') + 1);
    for (std::int32_t language = 0; language < 3; ++language) {
        const std::string_view text = rest.substr(0, rest.find('\t'));
        rest = rest.size() > text.size() ? rest.substr(text.size() + 1) : std::string_view();
        Require(texts.Find(number, language) == text);
        Require(Copied(text, 1024) == text);
        Require(text.starts_with(Copied(text, 5)));
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string bytes(size, '\0');
    for (std::size_t i = 0; i < size; ++i) bytes[i] = static_cast<char>(data[i]);

    const calvoro::ProgramTextReading read = calvoro::ReadProgramTexts(bytes);
    Require(IsDocumentedResult(read.result));
    Require(calvoro::ProgramTextMessage(read.result, "calvoro.dat").empty() == (read.result > 0));
    Require(read.texts.has_value() == (read.result > 0));
    if (!read.texts) return 0;

    std::string_view rest(bytes);
    if (rest.starts_with("\xEF\xBB\xBF")) rest.remove_prefix(3);
    std::int32_t texts = 0;
    while (!rest.empty()) {
        std::string_view line = rest.substr(0, rest.find('\n'));
        rest = rest.size() > line.size() ? rest.substr(line.size() + 1) : std::string_view();
        if (line.starts_with('#')) continue;
        if (line.ends_with('\r')) line.remove_suffix(1);
        CheckLine(*read.texts, line);
        ++texts;
    }
    Require(texts == read.result);
    return 0;
}
