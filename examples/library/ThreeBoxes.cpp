#include "ThreeBoxes.h"

#include <utility>

using namespace calvoro;

ThreeBoxes::ThreeBoxes(std::string first, std::string difference, std::string second, ComputeOptions options)
    : boxes_{std::move(first), std::move(difference), std::move(second)}, options_(std::move(options)) {}

std::string ThreeBoxes::InputText(InputBox box) const {
    return boxes_[static_cast<std::size_t>(box)];
}

void ThreeBoxes::SetInputText(InputBox box, std::string_view text) {
    boxes_[static_cast<std::size_t>(box)] = text;
}

void ThreeBoxes::ShowMessage(std::string_view prompt, std::string_view /*title*/) {
    answer_ += prompt;
}
