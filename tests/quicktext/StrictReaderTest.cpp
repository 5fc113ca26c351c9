// Strict readers beside the readers of the notations: they take what is written, nothing that those refuse,
// and never find another day.

#include "quicktext/StrictReader.h"

#include <gtest/gtest.h>

#include <string>

#include "datetext/AnyNotation.h"
#include "datetext/Tags.h"
#include "quicktext/StrictText.h"
#include "tests/properties/DateGenerators.h"
#include "tests/properties/Property.h"

namespace calvoro {
namespace {

bool IsKnownException(CalendarNumber notation, std::int32_t jdn, const std::string& text) {
    if (notation == CalendarNumber::LPW || notation == CalendarNumber::LPM) return jdn == 0;
    if (notation != CalendarNumber::ISO || text.find("W53") == std::string::npos) return false;
    return text.front() == '-' || text.starts_with("0W") || text.starts_with("0-W");
}

TEST(StrictReaderProperties, WhatIsWrittenIsReadWithItsTagAndBlanksAround) {
    int exceptions = 0;
    const auto days = generate::Day();
    const auto optionSets = generate::Options();
    const auto blanks = rc::gen::element<std::string>("", " ", "   ");
    EXPECT_TRUE(Holds(20000, [&] {
        const std::int32_t jdn = *days.as("day");
        const TextOptions options = *optionSets.as("options");
        for (const Notation& notation : Notations()) {
            if (!CanWriteDate(notation.number, jdn)) continue;
            const std::string written = WriteDate(notation.number, jdn, options);
            const StrictReader reader(notation.number, options);
            for (const std::string& text :
                 {written, *blanks + written + " " + std::string(notation.tag) + *blanks}) {
                const StrictResult result = reader.Read(text);
                if (IsKnownException(notation.number, jdn, written)) {
                    ++exceptions;
                    RC_ASSERT(result.status == ParseStatus::NotValid);
                } else {
                    RC_ASSERT(result == ValidDay(jdn));
                }
            }
        }
    }));
    EXPECT_GT(exceptions, 60) << "the known exceptions must be among the cases";
}

/// What the notation's own reader says. U+2212 is foreign to it.
StrictResult OwnAnswer(CalendarNumber notation, std::string text, const TextOptions& options) {
    for (std::size_t at = text.find("\u2212"); at != std::string::npos; at = text.find("\u2212")) {
        text.replace(at, 3, "-");
    }
    DateRecord record;
    const ParseStatus status = ReadDate(notation, text, options, record);
    return {status, ReadFault::None, record.jdn, 0};
}

/// Checks a text that may be anything; returns whether it was taken.
bool AgreesWithTheOwnReader(const StrictReader& reader, const std::string& text, const TextOptions& options) {
    RC_LOG() << TagText(reader.Notation()) << " [" << text << "]";
    const StrictResult result = reader.Read(text);
    RC_ASSERT(result == ReadStrictText(reader.Notation(), options, text));
    RC_ASSERT(result.place <= text.size());
    if (text.find("BC") != std::string::npos) return false;  // years of an era are foreign to the own readers
    const StrictResult own = OwnAnswer(reader.Notation(), text, options);
    if (result.status == ParseStatus::Valid) {
        RC_ASSERT(own.status == ParseStatus::Valid && own.jdn == result.jdn);
        return true;
    }
    // Whatever has the form of a date is refused by both, and in CE, ISO, JC and ORD with the same status.
    if (HasTheForm(result)) {
        RC_ASSERT(own.status != ParseStatus::Valid || result.fault == ReadFault::Fraction);
        const CalendarNumber notation = reader.Notation();
        const bool sameStatus = notation != CalendarNumber::LPM && notation != CalendarNumber::LPW &&
                                notation != CalendarNumber::JDN;
        if (sameStatus) RC_ASSERT(own.status == result.status);
    }
    return false;
}

TEST(StrictReaderProperties, NothingIsReadAsAnotherDayThanTheNotationsReaderFinds) {
    int taken = 0;
    int refused = 0;
    const auto optionSets = generate::Options();
    const auto days = generate::Day();
    const auto edits = generate::OneEdit();
    const auto almost = generate::AlmostADate();
    const auto three = generate::ThreeNumbers();
    EXPECT_TRUE(Holds(20000, [&] {
        const TextOptions options = *optionSets.as("options");
        const std::int32_t jdn = *days.as("day");
        for (const Notation& notation : Notations()) {
            const StrictReader reader(notation.number, options);
            std::string edited =
                CanWriteDate(notation.number, jdn) ? WriteDate(notation.number, jdn, options) : "1";
            edited = (*edits).AppliedTo(edited);
            if (!edited.empty() && *rc::gen::arbitrary<bool>()) edited = (*edits).AppliedTo(edited);
            for (const std::string& text : {edited, *almost, *three}) {
                ++(AgreesWithTheOwnReader(reader, text, options) ? taken : refused);
            }
        }
    }));
    EXPECT_GT(taken, 20000);
    EXPECT_GT(refused, 20000);
}

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
