#include "text/Texts.h"

#include <new>

#include "text/BuiltInProgramTexts.h"

namespace calvoro {
namespace {

// Bytes that a test has read leave one thing to fail; the next call reads them again then.
const ProgramTexts& BuiltIn() {
    static const ProgramTexts texts = [] {
        const ProgramTextReading read = ReadProgramTexts(BuiltInProgramTexts());
        if (!read.texts) throw std::bad_alloc();
        return *read.texts;
    }();
    return texts;
}

}  // namespace

Texts::Texts(LanguageNumber interfaceLanguage, LanguageNumber textLanguage)
    : InterfaceLanguage(interfaceLanguage), TextLanguage(textLanguage), numbered_(BuiltIn()) {}

std::string Texts::GetProgramText(std::int16_t number) const {
    const std::string_view text = numbered_.Find(number, TextLanguage);
    return text == "~" ? std::string() : std::string(text);  // how the file writes an empty text
}

}  // namespace calvoro
