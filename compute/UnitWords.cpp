#include "compute/UnitWords.h"

#include "text/AsciiCase.h"

namespace calvoro {
namespace {

bool IsOneEitherWay(std::int32_t number) {
    return number == 1 || number == -1;
}

}  // namespace

std::string WordInSentence(TextId id, const Texts& texts) {
    std::string word(texts.Shown(id));
    if (texts.InterfaceLanguage == LanguageGerman) return word;
    for (char& letter : word) letter = LowerCase(letter);
    return word;
}

std::string DayOrDays(std::int32_t number, const Texts& texts) {
    return WordInSentence(IsOneEitherWay(number) ? TextId::Day : TextId::Days, texts);
}

std::string MonthOrMonths(std::int32_t number, const Texts& texts) {
    return WordInSentence(IsOneEitherWay(number) ? TextId::Month : TextId::Months, texts);
}

}  // namespace calvoro
