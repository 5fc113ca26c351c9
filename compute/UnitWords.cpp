#include "compute/UnitWords.h"

namespace calvoro {
namespace {

bool IsOneEitherWay(std::int32_t number) {
    return number == 1 || number == -1;
}

}  // namespace

std::string WordInSentence(TextId id, const Texts& texts) {
    std::string word(texts.Shown(id));
    if (texts.InterfaceLanguage == LanguageGerman) return word;
    for (char& letter : word) {
        if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
    }
    return word;
}

std::string DayOrDays(std::int32_t number, const Texts& texts) {
    return WordInSentence(IsOneEitherWay(number) ? TextId::Day : TextId::Days, texts);
}

std::string MonthOrMonths(std::int32_t number, const Texts& texts) {
    return WordInSentence(IsOneEitherWay(number) ? TextId::Month : TextId::Months, texts);
}

}  // namespace calvoro
