#include "windows/WebLink.h"

#include <array>

#include "text/AsciiCase.h"

namespace calvoro {
namespace {

constexpr int kSmallestSuccess = 33;

struct LaunchError {
    int code;
    std::string_view advice;  // "%" stands for the address's file extension
};
constexpr std::array<LaunchError, 3> kLaunchErrors = {{
    {31, "File extension '%' is not associated with any application program."},
    {8, "Out of memory."},
    {2, "Please try once more."},
}};

void ReplaceAll(std::string& text, std::string_view old, std::string_view replacement) {
    std::size_t found = text.find(old);
    while (found != std::string::npos) {
        text.replace(found, old.size(), replacement);
        found = text.find(old, found + replacement.size());
    }
}

std::string FailureMessage(int code, std::string_view extension) {
    std::string message = "Error launching web browser, error code =";
    if (code >= 0) message += ' ';
    message += std::to_string(code);
    message += '.';
    for (const LaunchError& error : kLaunchErrors) {
        if (error.code != code) continue;
        std::string advice(error.advice);
        ReplaceAll(advice, "%", extension);
        message += "\r\n\r\n" + advice;
    }
    return message;
}

}  // namespace

void OpenWebPage(WebOpener& web, MessageBoxes& boxes, std::string_view address) {
    std::string secure(address);
    ReplaceAll(secure, "http:", "https:");
    // Deliberate: parameters and working directory are the text "0".
    const auto tell = [&boxes, extension = FileExtension(secure, true)](int code) {
        boxes.Show(FailureMessage(code, extension), "Cannot launch web browser", MessageIcon::Exclamation);
    };
    const int result = web.Open(secure, "0", "0", 1, tell);
    if (result < kSmallestSuccess) tell(result);
}

std::string FileExtension(std::string_view text, bool lower) {
    const std::size_t separator = text.rfind('\\');
    if (separator != std::string_view::npos) text.remove_prefix(separator + 1);
    const std::size_t dot = text.rfind('.');
    if (dot == std::string_view::npos) return {};
    std::string extension(text.substr(dot + 1));
    if (lower) {
        for (char& character : extension) character = LowerCase(character);
    }
    return extension;
}

}  // namespace calvoro
