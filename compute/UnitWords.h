#pragma once

// The words for days, months and larger units after a number.

#include <cstdint>
#include <string>

#include "text/Texts.h"

namespace calvoro {

/// A named text in the language of the interface as it stands inside a sentence: in lower case, except in
/// German, which keeps its capitals.
std::string WordInSentence(TextId id, const Texts& texts);

/// "day" or "days" ("Tag", "Tage") after a number. Deliberate: goes by the absolute value, so that -1 is
/// singular.
std::string DayOrDays(std::int32_t number, const Texts& texts);

/// "month" or "months" ("Monat", "Monate"); as DayOrDays.
std::string MonthOrMonths(std::int32_t number, const Texts& texts);

}  // namespace calvoro
