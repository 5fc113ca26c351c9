#pragma once

// The two language variables of a running program. The main window owns one of these and hands it down.

#include <cstdint>
#include <string>
#include <string_view>

#include "text/DateNames.h"
#include "text/Language.h"
#include "text/NamedTexts.h"
#include "text/ProgramText.h"

namespace calvoro {

struct Texts {
    LanguageNumber InterfaceLanguage = LanguageEnglish;  // what the user chose: captions and messages
    LanguageNumber TextLanguage =
        LanguageEnglish;  // numbered texts; follows when the month window is activated

    /// A named text in the language of the interface.
    std::string_view Shown(TextId id) const { return ShownText(id, InterfaceLanguage); }

    /// A numbered text in its own language; "" when there is none.
    std::string Numbered(std::int16_t number) const { return GetProgramText(number, TextLanguage); }
};

}  // namespace calvoro
