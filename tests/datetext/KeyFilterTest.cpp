#include "datetext/KeyFilter.h"

#include <string_view>

#include "datetext/TextOptions.h"
#include "tests/datetext/TextRows.h"

namespace calvoro {
namespace {

constexpr std::int32_t kLength = 18;  // of a date box
constexpr std::int32_t kEditingKeys[] = {8, 3, 22, 24};

TEST(DateKeyFilter, AcceptsDigitsBlanksAndSeparatorsAndNothingElse) {
    for (const char separator : {'-', '/', '.'}) {
        const std::string accepted = std::string("1234567890- ,.()") + separator;
        int acceptedKeys = 0;
        for (std::int32_t key = 32; key < 256; ++key) {
            const bool expected = key < 128 && accepted.find(static_cast<char>(key)) != std::string::npos;
            EXPECT_EQ(DateKeyFilter(key, 0, kLength, separator, false), expected) << key;
            acceptedKeys += expected ? 1 : 0;
        }
        EXPECT_EQ(acceptedKeys, separator == '/' ? 17 : 16);
    }
}

TEST(DateKeyFilter, AcceptsAmongControlKeysOnlyThoseThatEdit) {
    for (std::int32_t key = 0; key < 32; ++key) {
        const bool edits = key == 8 || key == 3 || key == 22 || key == 24;
        EXPECT_EQ(DateKeyFilter(key, 0, kLength, '-', false), edits) << key;
        EXPECT_EQ(NumberKeyFilter(key, 0, kLength, ','), edits) << key;
        EXPECT_EQ(NumberKeyFilter(key, 0, kLength, kNoSeparator), edits) << key;
    }
}

TEST(DateKeyFilter, DeliberatelyRefusesTypingAt18CharactersButNeverEditing) {
    EXPECT_TRUE(DateKeyFilter('7', 17, kLength, '-', false));
    EXPECT_FALSE(DateKeyFilter('7', 18, kLength, '-', false));
    EXPECT_FALSE(DateKeyFilter('-', 19, kLength, '-', false));
    for (const std::int32_t key : kEditingKeys) {
        EXPECT_TRUE(DateKeyFilter(key, 18, kLength, '-', false)) << key;
        EXPECT_TRUE(DateKeyFilter(key, 1'000'000, kLength, '-', false)) << key;
    }
}

TEST(DateKeyFilter, DeliberatelyAcceptsWAtAnyLengthInAnIsoBox) {
    for (const std::int32_t key : {'W', 'w'}) {
        for (const std::int32_t length : {0, 17, 18, 1000}) {
            EXPECT_TRUE(DateKeyFilter(key, length, kLength, '-', true));
            EXPECT_FALSE(DateKeyFilter(key, length, kLength, '-', false));
        }
    }
    EXPECT_FALSE(DateKeyFilter('V', 0, kLength, '-', true));
}

TEST(DateKeyFilter, TakesNoForeignLetterForTheOneThatSharesItsLowByte) {
    for (const std::int32_t key : {0x132, 0x32D, 0x2057, 0x1F608, -206, 0x108, 0x660}) {
        EXPECT_FALSE(DateKeyFilter(key, 0, kLength, '-', true)) << key;
        EXPECT_FALSE(NumberKeyFilter(key, 0, kLength, ',')) << key;
    }
}

TEST(NumberKeyFilter, AcceptsDigitsSignsCommasAndTheThousandsSeparator) {
    for (const char separator : {',', '.', kNoSeparator}) {
        for (std::int32_t key = 32; key < 256; ++key) {
            const bool expected = (key >= '0' && key <= '9') || key == '+' || key == '-' || key == ',' ||
                                  (separator == '.' && key == '.');
            EXPECT_EQ(NumberKeyFilter(key, 0, kLength, separator), expected) << key;
        }
    }
}

TEST(NumberKeyFilter, DeliberatelyRefusesTypingAt18CharactersButNeverEditing) {
    EXPECT_TRUE(NumberKeyFilter('7', 17, kLength, ','));
    EXPECT_FALSE(NumberKeyFilter('7', 18, kLength, ','));
    EXPECT_FALSE(NumberKeyFilter(',', 18, kLength, ','));
    for (const std::int32_t key : kEditingKeys) EXPECT_TRUE(NumberKeyFilter(key, 18, kLength, ',')) << key;
}

}  // namespace
}  // namespace calvoro
