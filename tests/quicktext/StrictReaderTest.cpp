// Whole lines that are read at once, beside texts that are read carefully.

#include "quicktext/StrictReader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "datetext/AnyNotation.h"
#include "datetext/Tags.h"
#include "quicktext/StrictText.h"

namespace calvoro {
namespace {

/// The line as ReadLine sees it: in a block whose other bytes are digits.
std::size_t LengthOfLine(const StrictReader& reader, const std::string& line, std::int32_t& jdn) {
    std::string block = line;
    block.resize(std::max(line.size(), StrictReader::kLineRoom), '7');
    return reader.ReadLine(block.data(), jdn);
}

/// Checks a text as a line with each end; returns whether ReadLine took it.
bool LineAgrees(const StrictReader& reader, const std::string& text) {
    const StrictResult expected = reader.Read(text);
    bool taken = false;
    for (const std::string end : {"\n", "\r\n"}) {
        std::int32_t jdn = -1;
        const std::size_t length = LengthOfLine(reader, text + end, jdn);
        taken = length > 0;
        if (taken) {
            EXPECT_EQ(length, text.size() + end.size()) << text;
            EXPECT_EQ(expected, ValidDay(jdn)) << text;
        }
    }
    return taken;
}

std::vector<TextOptions> OptionsOfForms() {
    std::vector<TextOptions> all;
    for (const DateFormat format : {DateFormat::YMD, DateFormat::DMY, DateFormat::MDY}) {
        for (const char separator : {'-', '/', '.'}) {
            for (const char thousands : {',', '.', kNoSeparator}) {
                all.push_back({format, separator, thousands, separator == '-', ","});
            }
        }
    }
    return all;
}

TEST(StrictReaderLine, TakesTheUsualFormOfEveryNotationUnderEveryOption) {
    int taken = 0;
    int tried = 0;
    for (const TextOptions& options : OptionsOfForms()) {
        for (const Notation& notation : Notations()) {
            const StrictReader reader(notation.number, options);
            for (std::int32_t jdn = 2'086'674; jdn < 3'181'000; jdn += 997) {
                const std::string text = WriteDate(notation.number, jdn, options);
                tried += 2;
                taken += LineAgrees(reader, text) ? 1 : 0;
                taken += LineAgrees(reader, text + " " + std::string(notation.tag)) ? 1 : 0;
            }
        }
    }
    EXPECT_GT(tried, 400'000);
    EXPECT_GT(taken, tried - tried / 500) << "only leap days, leap weeks and the like are left out";
}

/// Every pair of numbers in the places of month and day, week and weekday, or the day of the year.
TEST(StrictReaderLine, TakesNoNumberThatIsNoDate) {
    for (const TextOptions& options : OptionsOfForms()) {
        for (const Notation& notation : Notations()) {
            const StrictReader reader(notation.number, options);
            for (const std::int32_t jdn : {2'460'385, 2'451'600, 2'415'081, 1'721'426 + 366}) {
                const std::string sample = WriteDate(notation.number, jdn, options);
                const std::size_t from = sample.size() < 6 ? 0 : sample.size() - 6;
                for (int number = 0; number < 10'000; ++number) {
                    std::string text = sample;
                    int rest = number;
                    for (std::size_t at = text.size(); at-- > from;) {
                        if (text[at] < '0' || text[at] > '9') continue;
                        text[at] = static_cast<char>('0' + rest % 10);
                        rest /= 10;
                    }
                    LineAgrees(reader, text);
                }
                if (HasFailure()) return;
            }
        }
    }
}

TEST(StrictReaderLine, AgreesOnTextsWithTwoOtherCharacters) {
    int taken = 0;
    for (const Notation& notation : Notations()) {
        const StrictReader reader(notation.number, TextOptions{});
        const std::string base =
            WriteDate(notation.number, 2'460'385, TextOptions{}) + " " + std::string(notation.tag);
        for (std::size_t first = 0; first < base.size(); ++first) {
            for (int character = 0; character < 256; ++character) {
                std::string text = base;
                text[first] = static_cast<char>(character);
                if (character != '\n') taken += LineAgrees(reader, text) ? 1 : 0;
                for (std::size_t second = first + 1; second < base.size(); ++second) {
                    for (const char other : {'-', '0', '9', '/', ':', ' ', '\r', '\x80', '\xF0', '\xFF'}) {
                        text[second] = other;
                        if (character != '\n') taken += LineAgrees(reader, text) ? 1 : 0;
                        text[second] = base[second];
                    }
                }
            }
        }
    }
    EXPECT_GT(taken, 500);
}

TEST(StrictReaderLine, LeavesOtherEndsToOthers) {
    const StrictReader reader(CalendarNumber::CE, TextOptions{});
    std::int32_t jdn = 0;
    for (const char* line :
         {"2024-03-15 \n", " 2024-03-15\n", "2024-03-15\r", "2024-03-15\r\r\n", "2024-03-15CE\n",
          "2024-03-15 CE \n", "2024-03-15 JC\n", "2024-03-15  CE\n", "2024-3-15\n", "\n"}) {
        EXPECT_EQ(LengthOfLine(reader, line, jdn), 0U) << line;
    }
}

}  // namespace
}  // namespace calvoro
