#include "text/ProgramTextFile.h"

#include <array>
#include <charconv>
#include <cstdio>
#include <cstring>
#include <memory>
#include <new>
#include <system_error>
#include <utility>

#if defined(_WIN32)
#include <filesystem>
#endif

namespace calvoro {
namespace {

constexpr std::int32_t kNoText = 0;
constexpr std::int32_t kNoMemoryForFile = -2;
constexpr std::int32_t kTooMuchText = -3;
constexpr std::int32_t kNoNumber = -4;
constexpr std::int32_t kFileIsEmpty = -6;
constexpr std::int32_t kCannotRead = -7;
constexpr std::int32_t kNoMemoryForTexts = -8;
constexpr std::int32_t kMissingTextAtLine = -500;
constexpr std::int32_t kTextTooLongAtLine = -1000;
constexpr std::int32_t kDuplicateAtLine = -1500;

constexpr std::int32_t kMaxLines = 500;
constexpr std::size_t kMaxTextBytes = 1023;
constexpr std::size_t kMaxFileBytes = std::size_t{4} << 20;  // far above 500 full lines

std::optional<ProgramTexts>& LoadedForGt() {
    static std::optional<ProgramTexts> loaded;
    return loaded;
}

// The text up to the separator; what follows the separator is left.
std::string_view TakeUpTo(char separator, std::string_view& rest) {
    const std::size_t end = rest.find(separator);
    const std::string_view taken = rest.substr(0, end);
    rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + 1);
    return taken;
}

bool ReadNumber(std::string_view field, std::int32_t& number) {
    if (field.empty() || field.front() < '0' || field.front() > '9') return false;
    const char* end = field.data() + field.size();
    const std::from_chars_result result = std::from_chars(field.data(), end, number);
    return result.ec == std::errc() && result.ptr == end;
}

// Sets the result of reading when a file cannot be opened.
// path  UTF-8
std::FILE* OpenFile(const char* path, std::int32_t& failure) {
    failure = kCannotOpen;
#if defined(_WIN32)
    // The C library takes names in the code page of the system, and opens no folders.
    try {
        const std::string_view name(path);
        const std::filesystem::path wide(std::u8string(name.begin(), name.end()));
        if (std::filesystem::is_directory(wide)) failure = kCannotRead;
        return ::_wfopen(wide.c_str(), L"rb");
    } catch (const std::system_error&) {  // not UTF-8, so that no file has this name
        return nullptr;
    }
#else
    return std::fopen(path, "rb");
#endif
}

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

// 0, or the code of the failure.
std::int32_t ReadFile(const char* path, std::string& bytes) {
    std::int32_t failure = 0;
    const std::unique_ptr<std::FILE, CloseFile> file(OpenFile(path, failure));
    if (!file) return failure;
    std::array<char, 4096> block{};
    std::size_t count = 0;
    while (bytes.size() <= kMaxFileBytes &&
           (count = std::fread(block.data(), 1, block.size(), file.get())) > 0) {
        bytes.append(block.data(), count);
    }
    return std::ferror(file.get()) != 0 ? kCannotRead : 0;
}

}  // namespace

// 0, or the code of the line's fault.
std::int32_t ProgramTexts::AddLine(std::string_view line, std::int32_t lineNumber, Table& table) {
    std::int32_t number = 0;
    if (!ReadNumber(TakeUpTo('\t', line), number)) return kNoNumber;
    if (table.contains(number)) return kDuplicateAtLine - lineNumber;

    std::array<std::string_view, 3> texts;
    for (std::string_view& text : texts) text = TakeUpTo('\t', line);
    if (texts[0].empty()) return kMissingTextAtLine - lineNumber;
    for (const std::string_view text : texts) {
        if (text.size() > kMaxTextBytes) return kTextTooLongAtLine - lineNumber;
    }
    table.emplace(number,
                  Table::mapped_type{std::string(texts[0]), std::string(texts[1]), std::string(texts[2])});
    return 0;
}

std::int32_t ProgramTexts::ReadTable(std::string_view bytes, Table& table) {
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    if (bytes.empty()) return kFileIsEmpty;
    if (bytes.size() > kMaxFileBytes) return kTooMuchText;
    if (bytes.starts_with(kByteOrderMark)) bytes.remove_prefix(kByteOrderMark.size());

    std::int32_t lineNumber = 0;
    while (!bytes.empty()) {
        std::string_view line = TakeUpTo('\n', bytes);
        if (++lineNumber > kMaxLines) return kTooMuchText;
        if (line.starts_with('#')) continue;
        if (line.ends_with('\r')) line.remove_suffix(1);
        if (const std::int32_t fault = AddLine(line, lineNumber, table); fault != 0) return fault;
    }
    return table.empty() ? kNoText : static_cast<std::int32_t>(table.size());
}

ProgramTexts::ProgramTexts(Table table) : table_(std::make_shared<const Table>(std::move(table))) {}

std::string_view ProgramTexts::Find(std::int32_t number, std::int32_t language) const {
    const auto row = table_->find(number);
    if (row == table_->end() || language < 0 || language >= static_cast<std::int32_t>(row->second.size()))
        return {};
    return row->second[static_cast<std::size_t>(language)];
}

ProgramTextReading ReadProgramTexts(std::string_view bytes) {
    try {
        ProgramTexts::Table table;
        const std::int32_t result = ProgramTexts::ReadTable(bytes, table);
        if (result <= 0) return {.result = result, .texts = {}};
        return {.result = result, .texts = ProgramTexts(std::move(table))};
    } catch (const std::bad_alloc&) {
        return {.result = kNoMemoryForTexts, .texts = {}};
    }
}

ProgramTextReading ReadProgramTextFile(const char* path) {
    std::string bytes;
    try {
        if (const std::int32_t failure = ReadFile(path, bytes); failure != 0) {
            return {.result = failure, .texts = {}};
        }
    } catch (const std::bad_alloc&) {
        return {.result = kNoMemoryForFile, .texts = {}};
    }
    return ReadProgramTexts(bytes);
}

std::int32_t CopyText(std::string_view text, char* buffer, std::int32_t capacity) {
    if (capacity <= 0) return 0;
    std::size_t length = text.size();
    if (const auto room = static_cast<std::size_t>(capacity) - 1; length > room) {
        length = room;
        // A byte 10xxxxxx continues a character.
        while (length > 0 && (static_cast<unsigned char>(text[length]) & 0xC0U) == 0x80U) --length;
    }
    text.copy(buffer, length);
    buffer[length] = '\0';
    return static_cast<std::int32_t>(length);
}

std::int32_t lt(const char* path, std::int32_t /*mode*/) {
    const ProgramTextReading read = ReadProgramTextFile(path);
    if (read.texts) LoadedForGt() = read.texts;
    return read.result;
}

std::int32_t gt(std::int32_t number, std::int32_t language, char* buffer, std::int32_t capacity,
                std::int32_t /*flag*/) {
    const std::optional<ProgramTexts>& texts = LoadedForGt();
    return CopyText(texts ? texts->Find(number, language) : std::string_view(), buffer, capacity);
}

}  // namespace calvoro
