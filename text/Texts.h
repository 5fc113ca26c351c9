#pragma once

// The words of a running program: its two language variables and its numbered texts. The main window owns
// one of these and hands it down.

#include <cstdint>
#include <string>
#include <string_view>

#include "text/Language.h"
#include "text/NamedTexts.h"
#include "text/ProgramTextFile.h"

namespace calvoro {

/// Texts in the two languages of a program. A copy has languages of its own and shares the numbered texts.
class Texts {
public:
    LanguageNumber InterfaceLanguage = LanguageEnglish;  // what the user chose: captions and messages
    LanguageNumber TextLanguage =
        LanguageEnglish;  // numbered texts; follows when the month window is activated

    /// With the numbered texts that are built into the program.
    Texts() : Texts(LanguageEnglish, LanguageEnglish) {}
    /// With those texts and these languages.
    Texts(LanguageNumber interfaceLanguage, LanguageNumber textLanguage);

    /// With the numbered texts of a file.
    explicit Texts(const ProgramTexts& numbered) : numbered_(numbered) {}

    /// A named text in the language of the interface.
    std::string_view Shown(TextId id) const { return ShownText(id, InterfaceLanguage); }

    /// A numbered text in its own language; "" when there is none or when it is "~".
    std::string GetProgramText(std::int16_t number) const;

private:
    ProgramTexts numbered_;
};

}  // namespace calvoro
