#include "text/ProgramText.h"

#include <array>

namespace calvoro {
namespace {

struct ResultMessage {
    std::int32_t result;
    std::string_view message;
};

constexpr std::array<ResultMessage, 8> kResultMessages = {{
    {0, "No program text was read."},
    {kCannotOpen, "Cannot open file containing program text."},
    {-2, "Particular memory allocation error."},
    {-3, "Too much program text."},
    {-4, "Text not recovered."},
    {-6, "File is empty."},
    {-7, "Error reading file."},
    {-8, "General memory allocation error."},
}};

struct LineMessage {
    std::int32_t below;  // results below this one, which names line 0
    std::string_view message;
};

constexpr std::array<LineMessage, 3> kLineMessages = {{
    {-1500, "Duplicate in program text at line"},
    {-1000, "String too long at line"},
    {-500, "Missing string at line"},
}};

}  // namespace

std::string ProgramTextMessage(std::int32_t result, std::string_view path) {
    if (result > 0) return "";
    for (const ResultMessage& row : kResultMessages) {
        if (row.result != result) continue;
        std::string message(row.message);
        if (result == kCannotOpen) message.append("\r\n").append(path);
        return message;
    }
    for (const LineMessage& row : kLineMessages) {
        if (result >= row.below) continue;
        return std::string(row.message).append(" ").append(std::to_string(row.below - result)).append(".");
    }
    return "Error " + std::to_string(result);
}

LoadedTexts LoadProgramText(std::string_view folder, std::string_view fileName) {
    std::string path(folder);
    if (!folder.ends_with('/') && !folder.ends_with('\\')) path += '/';
    path += fileName;
    const ProgramTextReading read = ReadProgramTextFile(path.c_str());
    if (!read.texts) return {.texts = {}, .message = ProgramTextMessage(read.result, path)};
    return {.texts = Texts(*read.texts), .message = {}};
}

}  // namespace calvoro
