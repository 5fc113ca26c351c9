#include "cli/columns/ColumnEnd.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <string_view>

namespace calvoro {
namespace {

constexpr std::string_view kDelimiters("\t,;|!\x01\x7F\\ 0", 10);

// Where the column ends, looked for byte by byte; kRoom when it does not.
std::size_t NaiveEnd(std::string_view text, char delimiter) {
    for (std::size_t at = 0; at < ColumnEnd::kRoom; ++at) {
        if (text[at] == delimiter || text[at] == '\n') return at;
    }
    return ColumnEnd::kRoom;
}

// A copy of its own, so that a sanitizer sees whatever else is looked at.
std::size_t EndIn(std::string_view text, char delimiter) {
    const std::string copy(text);
    const char* const found = ColumnEnd(delimiter).Find(copy.data());
    return found == nullptr ? ColumnEnd::kRoom : static_cast<std::size_t>(found - copy.data());
}

TEST(ColumnEnd, IsFoundAtEveryPlaceBesideEveryByte) {
    for (const char delimiter : kDelimiters) {
        for (int other = 0; other < 256; ++other) {
            const std::string plain(ColumnEnd::kRoom, static_cast<char>(other));
            ASSERT_EQ(EndIn(plain, delimiter), NaiveEnd(plain, delimiter)) << int{delimiter} << " " << other;
            for (const char end : {delimiter, '\n'}) {
                for (std::size_t at = 0; at < ColumnEnd::kRoom; ++at) {
                    std::string text = plain;
                    text[at] = end;
                    ASSERT_EQ(EndIn(text, delimiter), NaiveEnd(text, delimiter))
                        << int{delimiter} << " " << other << " " << at;
                }
            }
        }
    }
}

TEST(ColumnEnd, IsTheFirstOfMany) {
    std::mt19937 random(11);
    for (int i = 0; i < 100000; ++i) {
        const char delimiter = kDelimiters[random() % kDelimiters.size()];
        // Bytes that differ in one bit from what is looked for, as well as those themselves.
        std::string text(ColumnEnd::kRoom, '\0');
        for (char& byte : text) {
            const char near = random() % 2 == 0 ? delimiter : '\n';
            byte = static_cast<char>(near ^ (random() % 8 == 0 ? 0 : 1 << (random() % 8)));
        }
        ASSERT_EQ(EndIn(text, delimiter), NaiveEnd(text, delimiter)) << testing::PrintToString(text);
    }
}

}  // namespace
}  // namespace calvoro
