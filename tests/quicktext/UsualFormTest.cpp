#include "quicktext/UsualForm.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "datetext/AnyNotation.h"
#include "quicktext/StrictText.h"

namespace calvoro {
namespace {

/// A form under some options, with a year that has only the days that all years have.
struct FormRow {
    std::string name;
    CalendarNumber notation;
    TextOptions options;
    std::string form;  // "m" and "d" for the digits that are tried
};
void PrintTo(const FormRow& row, std::ostream* out) {
    *out << row.name;
}

std::vector<FormRow> Rows() {
    const TextOptions usual;
    const TextOptions plain{.hyphen = false};
    const TextOptions german{.dateFormat = DateFormat::DMY, .dateSeparator = '.'};
    const TextOptions american{.dateFormat = DateFormat::MDY, .dateSeparator = '/'};
    return {{"Ce", CalendarNumber::CE, usual, "2023-mm-dd"},
            {"CeDayFirst", CalendarNumber::CE, german, "dd.mm.2023"},
            {"CeMonthFirst", CalendarNumber::CE, american, "mm/dd/2023"},
            {"Jc", CalendarNumber::JC, usual, "2023-mm-dd"},
            {"Iso", CalendarNumber::ISO, usual, "2023-Wmm-d"},
            {"IsoPlain", CalendarNumber::ISO, plain, "2023Wmmd"},
            {"Ord", CalendarNumber::ORD, usual, "2023-mdd"},
            {"OrdPlain", CalendarNumber::ORD, plain, "2023mdd"},
            {"Lpw", CalendarNumber::LPW, usual, "2023-mm-d"},
            {"Lpm", CalendarNumber::LPM, usual, "2023-mm-dd"}};
}

/// The form with digits of a number in place of its letters.
std::string Filled(std::string form, std::string digits) {
    std::size_t next = 0;
    for (const char letter : {'m', 'd'}) {
        for (char& character : form) {
            if (character == letter) character = digits[next++];
        }
    }
    return form;
}

std::string Padded(const std::string& text, char with = '7') {
    return text + std::string(UsualForm::kRoom - text.size(), with);
}

class UsualFormOf : public testing::TestWithParam<FormRow> {};

TEST_P(UsualFormOf, TakesAllDatesOfAnOrdinaryYearAndNoOther) {
    const FormRow& row = GetParam();
    const UsualForm form(row.notation, row.options);
    const bool isLeapWeekDate = row.notation == CalendarNumber::LPW || row.notation == CalendarNumber::LPM;
    std::size_t letters = 0;
    for (const char character : row.form) letters += character == 'm' || character == 'd' ? 1 : 0;
    std::uint32_t end = 1;
    for (std::size_t i = 0; i < letters; ++i) end *= 10;
    int taken = 0;
    for (std::uint32_t number = 0; number < end; ++number) {
        const std::string digits = std::to_string(end + number).substr(1);
        const std::string text = Filled(row.form, digits);
        ASSERT_EQ(form.Length(), text.size());
        std::int32_t jdn = 0;
        const bool isTaken = form.Read(Padded(text).data(), jdn);
        const StrictResult expected = ReadStrictText(row.notation, row.options, text);
        // The strict reader takes any week of the leap-week calendar, and 0; usual they are not.
        const int first = std::stoi(digits.substr(0, 2));
        const bool isUsual = !isLeapWeekDate || (first > 0 && first <= 52 && std::stoi(digits.substr(2)) > 0);
        EXPECT_EQ(isTaken, isUsual && expected.status == ParseStatus::Valid) << text;
        if (!isTaken) continue;
        EXPECT_EQ(ValidDay(jdn), expected) << text;
        ++taken;
    }
    EXPECT_EQ(taken, row.notation == CalendarNumber::ISO || isLeapWeekDate ? 364 : 365);
}

TEST_P(UsualFormOf, HoldsNoOtherCharacters) {
    const FormRow& row = GetParam();
    const UsualForm form(row.notation, row.options);
    const std::string text = Filled(row.form, "0111");
    std::int32_t jdn = 0;
    ASSERT_TRUE(form.Read(Padded(text).data(), jdn));
    for (std::size_t place = 0; place < text.size(); ++place) {
        for (int byte = 0; byte < 256; ++byte) {
            std::string other = text;
            other[place] = static_cast<char>(byte);
            if (!form.Read(Padded(other).data(), jdn)) continue;
            EXPECT_EQ(ReadStrictText(row.notation, row.options, other), ValidDay(jdn)) << other;
        }
    }
}

TEST_P(UsualFormOf, DoesNotLookBehindItsEnd) {
    const FormRow& row = GetParam();
    const UsualForm form(row.notation, row.options);
    const std::string text = Filled(row.form, "0111");
    for (int byte = 0; byte < 256; ++byte) {
        std::int32_t jdn = 0;
        EXPECT_TRUE(form.Read(Padded(text, static_cast<char>(byte)).data(), jdn)) << byte;
    }
}

INSTANTIATE_TEST_SUITE_P(Rows, UsualFormOf, testing::ValuesIn(Rows()),
                         [](const auto& row) { return row.param.name; });

TEST(UsualForm, OfDayNumbersHasSevenDigits) {
    for (const char separator : {',', '.', kNoSeparator}) {
        const TextOptions options{.thousandsSeparator = separator};
        const UsualForm form(CalendarNumber::JDN, options);
        for (const std::int32_t day : {1'000'000, 1'000'001, 2'460'385, 9'999'999}) {
            std::int32_t jdn = 0;
            EXPECT_TRUE(form.Read(Padded(WriteDate(CalendarNumber::JDN, day, options)).data(), jdn));
            EXPECT_EQ(jdn, day);
        }
    }
    // A zero in front is left to the slower reader where groups would then be another number's.
    std::int32_t jdn = 0;
    EXPECT_FALSE(UsualForm(CalendarNumber::JDN, {}).Read(Padded("0,999,999").data(), jdn));
    EXPECT_TRUE(UsualForm(CalendarNumber::JDN, {.thousandsSeparator = kNoSeparator})
                    .Read(Padded("0999999").data(), jdn));
    EXPECT_EQ(jdn, 999'999);
}

}  // namespace
}  // namespace calvoro
