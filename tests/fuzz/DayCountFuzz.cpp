// Arbitrary bytes as a number of days: within its limits, and the same number again when it is rewritten.

#include "datetext/AnyNotation.h"
#include "datetext/DayCountText.h"
#include "datetext/Thousands.h"
#include "tests/fuzz/FuzzInput.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace calvoro;
    using fuzz::Require;
    fuzz::FuzzInput input(data, size);
    const char separator = input.ChooseThousandsSeparator();
    const std::string text = input.Text();

    constexpr std::int32_t kUntouched = 2'100'000'000;
    std::int32_t count = kUntouched;
    const ParseStatus status = ParseDayCount(text, count);
    Require((status != ParseStatus::NotValid) == IsDigits(text, true, true));
    Require(status == ParseStatus::Valid ? count < kUntouched && count > -kUntouched : count == kUntouched);

    std::int32_t difference = kUntouched;
    const ParseStatus prepared = ReadDifference(text, difference);
    if (status != ParseStatus::NotValid) Require(prepared == status && difference == count);
    if (prepared == ParseStatus::Valid) {
        std::int32_t again = kUntouched;
        Require(ReadDifference(ThousandsText(difference, separator), again) == ParseStatus::Valid);
        Require(again == difference);
    }
    return 0;
}
