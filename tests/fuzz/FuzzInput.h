#pragma once

// How a fuzz target turns bytes into options and a text, and how it says that something is wrong.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "datetext/TextOptions.h"

namespace calvoro::fuzz {

/// Ends the run, so that the input is kept, when what must hold does not.
inline void Require(bool condition) {
    if (!condition) std::abort();
}

/// Takes choices from the first bytes of an input; what is left is the text.
class FuzzInput {
public:
    FuzzInput(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}

    /// A number below `choices`; 0 when no byte is left.
    std::size_t Choose(std::size_t choices) {
        if (size_ == 0) return 0;
        const std::size_t choice = *data_ % choices;
        ++data_;
        --size_;
        return choice;
    }

    char ChooseDateSeparator() { return "-/."[Choose(3)]; }

    char ChooseThousandsSeparator() { return ",.\0"[Choose(3)]; }

    DateFormat ChooseDateFormat() { return static_cast<DateFormat>(Choose(3)); }

    TextOptions ChooseOptions() {
        TextOptions options;
        options.dateFormat = ChooseDateFormat();
        options.dateSeparator = ChooseDateSeparator();
        options.thousandsSeparator = ChooseThousandsSeparator();
        options.hyphen = Choose(2) == 0;
        static const std::string kGroupings[] = {",", ".", "'", " ", "\u202f", ""};
        options.digitGrouping = kGroupings[Choose(6)];
        return options;
    }

    std::string Text() const {
        std::string text(size_, '\0');
        for (std::size_t i = 0; i < size_; ++i) text[i] = static_cast<char>(data_[i]);
        return text;
    }

private:
    const std::uint8_t* data_;
    std::size_t size_;
};

}  // namespace calvoro::fuzz
