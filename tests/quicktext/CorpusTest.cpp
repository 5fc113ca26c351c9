// Two hundred thousand lines such as people have: dates with one or two characters changed, with neighbours
// glued on, in other notations, with the digits and hyphens of other scripts. None of them may be read as a
// day that a strict reader of another make does not find, in whatever notation it is read.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "datetext/AnyNotation.h"
#include "quicktext/QuickWriter.h"
#include "quicktext/StrictReader.h"
#include "tests/quicktext/PlainReader.h"

namespace calvoro {
namespace {

class Corpus {
public:
    std::string Line(const TextOptions& options) {
        std::string line = Date(options);
        const std::uint32_t kind = Below(20);
        if (kind < 12) {
            Change(line);
            if (kind < 6) Change(line);
        } else if (kind < 15) {
            line = Pick(kBefore) + line;
        } else if (kind < 18) {
            line += Pick(kBehind);
        } else if (kind == 18) {
            line += Pick(kBetween) + Date(options);
        }
        return line;
    }

private:
    using Pieces = std::vector<std::string>;

    std::uint32_t Below(std::uint32_t limit) { return static_cast<std::uint32_t>(random_() % limit); }

    std::string Pick(const Pieces& pieces) {
        return pieces[Below(static_cast<std::uint32_t>(pieces.size()))];
    }

    std::int32_t AnyDay() {
        switch (Below(4)) {
            case 0: return static_cast<std::int32_t>(Below(4'000'000)) - 1'000'000;
            case 1: return static_cast<std::int32_t>(Below(4'200'000'000U) - 2'100'000'000U);
            default: return 2'305'448 + static_cast<std::int32_t>(Below(876'582));
        }
    }

    std::string Date(const TextOptions& options) {
        const std::int32_t jdn = AnyDay();
        const Notation& notation = Notations()[Below(7)];
        const EraStyle era = Below(4) == 0 ? EraStyle::BeforeCommonEra : EraStyle::Astronomical;
        const QuickWriter writer(notation.number, options, era);
        if (!writer.CanWrite(jdn)) return std::to_string(jdn);
        std::string date(writer.Room(), '\0');
        date.resize(static_cast<std::size_t>(writer.Write(jdn, date.data()) - date.data()));
        return Below(3) == 0 ? date + " " + std::string(notation.tag) : date;
    }

    void Change(std::string& line) {
        const std::size_t at = Below(static_cast<std::uint32_t>(line.size()) + 1);
        const std::size_t taken = at < line.size() && Below(3) > 0 ? 1 : 0;  // none is an insertion
        const std::string put = taken > 0 && Below(4) == 0 ? "" : Pick(kCharacters);
        line.replace(at, taken, put);
    }

    const Pieces kCharacters{"0",
                             "1",
                             "2",
                             "3",
                             "4",
                             "5",
                             "6",
                             "7",
                             "8",
                             "9",
                             "-",
                             "-",
                             "/",
                             ".",
                             ",",
                             " ",
                             "O",
                             "l",
                             "W",
                             "w",
                             "(",
                             ")",
                             "+",
                             "\t",
                             "\"",
                             ":",
                             "T",
                             "B",
                             "'",
                             "\u2212",
                             "\u2010",
                             "\u2011",
                             "\u2013",
                             "\u0660",
                             "\u0967",
                             "\uff11",
                             "\u00a0",
                             "\u202f",
                             "\u200f",
                             "\xff",
                             std::string(1, '\0')};
    const Pieces kBefore{"7,", "7;",  "7\t", "1 ", "12",     "-",  "\u2212", "Room 12 on ", "Mon ", "\"",
                         "(",  "c. ", "AD ", "0",  "\ufeff", "20", "1,",     "12,",         "123."};
    const Pieces kBehind{",7",   ";",       "\t7", " 7",  "0",    "-",    "/05",  "T00:00", "Z",    ".",
                         ".5",   ",5",      " CE", " JC", " ISO", " ORD", " LPM", " LPW",   " JDN", " BC",
                         " BCE", " BCE CE", "BC",  " AD", " ",    "  ",   "\"",   ")"};
    const Pieces kBetween{" ", ",", "/", "--", " - ", "\t", ""};
    std::mt19937 random_{20'241'113};
};

std::vector<TextOptions> SomeOptions() {
    return {
        {DateFormat::YMD, '-', kNoSeparator, true, ""}, {DateFormat::YMD, '-', ',', false, ","},
        {DateFormat::DMY, '.', '.', true, "."},         {DateFormat::MDY, '/', ',', true, "\u202f"},
        {DateFormat::YMD, '.', '.', true, " "},
    };
}

TEST(Corpus, NoLineIsReadAsADayThatAnotherStrictReaderDoesNotFind) {
    constexpr int kLines = 200'000;
    Corpus corpus;
    int days = 0;
    int refusals = 0;
    for (const TextOptions& options : SomeOptions()) {
        std::vector<std::pair<StrictReader, PlainReader>> readers;
        for (const Notation& notation : Notations()) {
            readers.emplace_back(StrictReader(notation.number, options),
                                 PlainReader(notation.number, options));
        }
        for (int i = 0; i < kLines / 5; ++i) {
            const std::string line = corpus.Line(options);
            for (const auto& [strict, plain] : readers) {
                const StrictResult result = strict.Read(line);
                const std::optional<std::int64_t> expected = plain.Read(line);
                ASSERT_EQ(result.status == ParseStatus::Valid, expected.has_value())
                    << strict.Tag() << " '" << line << "'";
                ++(expected ? days : refusals);
                if (expected) {
                    ASSERT_EQ(result.jdn, *expected) << strict.Tag() << " '" << line << "'";
                }

                std::string block = line + "\n";
                block.resize(std::max(block.size(), StrictReader::kLineRoom), '3');
                std::int32_t jdn = 0;
                const std::size_t length = strict.ReadLine(block.data(), jdn);
                if (length == 0) continue;
                ASSERT_EQ(length, line.size() + 1) << strict.Tag() << " '" << line << "'";
                ASSERT_TRUE(expected && jdn == *expected) << strict.Tag() << " '" << line << "'";
            }
        }
    }
    EXPECT_GT(days, kLines / 6);
    EXPECT_GT(refusals, 5 * kLines);
}

}  // namespace
}  // namespace calvoro
