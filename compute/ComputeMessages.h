#pragma once

// The messages of the computation in English, German and Spanish.

#include <cstdint>
#include <string>
#include <string_view>

#include "compute/ComputeWindow.h"
#include "text/Texts.h"

namespace calvoro {

/// Index of a message in its language row.
enum class ComputeMessage : std::uint8_t {
    DifferenceMustBeEmpty = 0,
    FirstDateNotValid = 1,
    FirstDateNotValidIso = 2,
    FirstDateOutOfRange = 3,
    DifferenceNotValid = 4,
    DifferenceOutOfRange = 5,
    SecondDateNotValid = 6,
    SecondDateNotValidIso = 7,
    SecondDateOutOfRange = 8,
    ResultOutOfRange = 9,
};
inline constexpr std::size_t kComputeMessageCount = 10;

/// The message in a language.
/// language  0 to 5; the rows of languages above Spanish are empty
/// throws    std::out_of_range
std::string_view ComputeMessageText(ComputeMessage message, LanguageNumber language);

/// Title of the boxes that show these messages: "Error!".
std::string ErrorTitle(const Texts& texts);

/// Shows a message in the language of the interface, under ErrorTitle.
void ShowComputeMessage(ComputeMessage message, const Texts& texts, ComputeWindow& window);

}  // namespace calvoro
