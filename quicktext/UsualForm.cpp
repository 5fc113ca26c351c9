#include "quicktext/UsualForm.h"

#include <cassert>
#include <string>

#include "calendar/EuroFormula.h"
#include "calendar/IsoWeekDate.h"
#include "calendar/LeapWeekDate.h"
#include "calendar/LeapWeekFormula.h"
#include "datetext/Digits.h"
#include "quicktext/QuickWriter.h"

namespace calvoro {
namespace {

// A day whose text has the usual form in every notation.
constexpr std::int32_t kSampleDay = 2'460'385;

/// For each number of two digits the days that a month of this number has at least; 0 for what is no month.
using LeastDays = std::array<std::uint8_t, 100>;

constexpr LeastDays kLeastDays{0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
constexpr LeastDays kLeastLeapWeekDays{0, 35, 28, 28, 35, 28, 28, 35, 28, 28, 35, 28, 28};
constexpr std::uint32_t kLeastWeeks = 52;
constexpr std::uint32_t kLeastDaysInYear = 365;

std::uint32_t OneDigit(const char* text) {
    return static_cast<std::uint32_t>(text[0] - '0');
}

std::uint32_t TwoDigits(const char* text) {
    return static_cast<std::uint32_t>(10 * text[0] + text[1] - 11 * '0');
}

std::uint32_t ThreeDigits(const char* text) {
    return 10 * TwoDigits(text) + OneDigit(text + 2);
}

std::uint32_t FourDigits(const char* text) {
    return 100 * TwoDigits(text) + TwoDigits(text + 2);
}

// Whether a number is in [1, last].
bool IsUpTo(std::uint32_t last, std::uint32_t number) {
    return number - 1 < last;
}

std::int32_t Signed(std::uint32_t number) {
    return static_cast<std::int32_t>(number);
}

}  // namespace

UsualForm::UsualForm(CalendarNumber notation, const TextOptions& options)
    : notation_(notation), read_(FunctionOf(notation)) {
    const QuickWriter writer(notation, options);
    std::string sample(writer.Room(), '\0');
    length_ = static_cast<std::size_t>(writer.Write(kSampleDay, sample.data()) - sample.data());
    assert(length_ <= kRoom);
    SetWords(sample.data());
    SetOffsets(options);
}

UsualForm::Function UsualForm::FunctionOf(CalendarNumber notation) {
    switch (notation) {
        case CalendarNumber::ISO: return ReadIsoDate;
        case CalendarNumber::ORD: return ReadOrdinalDate;
        case CalendarNumber::LPM: return ReadLpmDate;
        case CalendarNumber::LPW: return ReadLpwDate;
        case CalendarNumber::JDN: return ReadDayNumber;
        case CalendarNumber::CE:
        case CalendarNumber::JC:
        case CalendarNumber::AN:
        case CalendarNumber::VLW:
        case CalendarNumber::ARC: break;
    }
    return ReadEuroDate;
}

void UsualForm::SetWords(const char* sample) {
    char form[kRoom] = {};
    char care[kRoom] = {};
    char carry[kRoom] = {};
    for (std::size_t i = 0; i < kRoom; ++i) {
        const bool isForm = i < length_;
        const bool isDigit = isForm && IsDigit(sample[i]);
        form[i] = isDigit ? '0' : isForm ? sample[i] : '\0';
        care[i] = isForm ? '\xFF' : '\0';
        carry[i] = isDigit ? '\x06' : '\x0F';
    }
    std::memcpy(form_.data(), form, kRoom);
    std::memcpy(care_.data(), care, kRoom);
    std::memcpy(carry_.data(), carry, kRoom);
}

void UsualForm::SetOffsets(const TextOptions& options) {
    const std::size_t hyphen = options.hyphen ? 1 : 0;
    switch (notation_) {
        case CalendarNumber::ISO:
            second_ = 5 + hyphen;
            third_ = second_ + 2 + hyphen;
            return;
        case CalendarNumber::ORD: third_ = 4 + hyphen; return;
        case CalendarNumber::JDN:
            second_ = length_ == 7 ? 1 : 2;
            third_ = length_ - 3;
            return;
        case CalendarNumber::LPM:
        case CalendarNumber::LPW:
            second_ = 5;
            third_ = 8;
            return;
        case CalendarNumber::CE:
        case CalendarNumber::JC:
        case CalendarNumber::AN:
        case CalendarNumber::VLW:
        case CalendarNumber::ARC: break;
    }
    const bool yearFirst = options.dateFormat == DateFormat::YMD;
    const bool dayFirst = options.dateFormat == DateFormat::DMY;
    first_ = yearFirst ? 0 : 6;
    second_ = yearFirst ? 5 : dayFirst ? 3 : 0;
    third_ = yearFirst ? 8 : dayFirst ? 0 : 3;
}

bool UsualForm::ReadEuroDate(const UsualForm& form, const char* text, std::int32_t& jdn) {
    const std::int32_t year = Signed(FourDigits(text + form.first_));
    const std::uint32_t month = TwoDigits(text + form.second_);
    const std::uint32_t day = TwoDigits(text + form.third_);
    if (!IsUpTo(kLeastDays[month], day)) return false;
    const std::int64_t number = form.notation_ == CalendarNumber::JC
                                    ? formula::JulianDayNumber(year, Signed(month), Signed(day))
                                    : formula::CommonEraDayNumber(year, Signed(month), Signed(day));
    jdn = static_cast<std::int32_t>(number);
    return true;
}

bool UsualForm::ReadIsoDate(const UsualForm& form, const char* text, std::int32_t& jdn) {
    const std::uint32_t week = TwoDigits(text + form.second_);
    const std::uint32_t day = OneDigit(text + form.third_);
    if (!IsUpTo(kLeastWeeks, week) || !IsUpTo(7, day)) return false;
    jdn = static_cast<std::int32_t>(formula::IsoWeekOneMonday(Signed(FourDigits(text))) +
                                    7 * (std::int64_t{week} - 1) + day - 1);
    return true;
}

bool UsualForm::ReadOrdinalDate(const UsualForm& form, const char* text, std::int32_t& jdn) {
    const std::uint32_t year = FourDigits(text);
    const std::uint32_t day = ThreeDigits(text + form.third_);
    if (!IsUpTo(kLeastDaysInYear, day) || year == 0) return false;
    jdn = static_cast<std::int32_t>(formula::DaysBeforeCommonEraYear(std::int64_t{year} - 1) + day - 1 +
                                    formula::kCommonEraJanuary);
    return true;
}

bool UsualForm::ReadLpmDate(const UsualForm& form, const char* text, std::int32_t& jdn) {
    const std::uint32_t month = TwoDigits(text + form.second_);
    const std::uint32_t day = TwoDigits(text + form.third_);
    if (!IsUpTo(kLeastLeapWeekDays[month], day)) return false;
    const std::int64_t weeks =
        formula::WeeksBeforeLeapWeekYear(FourDigits(text)) + formula::kWeeksBeforeMonth[month];
    jdn = static_cast<std::int32_t>(kLeapWeekEpoch + 7 * weeks + day - 1);
    return true;
}

bool UsualForm::ReadLpwDate(const UsualForm& form, const char* text, std::int32_t& jdn) {
    const std::uint32_t week = TwoDigits(text + form.second_);
    const std::uint32_t day = OneDigit(text + form.third_);
    if (!IsUpTo(kLeastWeeks, week) || !IsUpTo(7, day)) return false;
    const std::int64_t weeks = formula::WeeksBeforeLeapWeekYear(FourDigits(text)) + week - 1;
    jdn = static_cast<std::int32_t>(kLeapWeekEpoch + 7 * weeks + day - 1);
    return true;
}

bool UsualForm::ReadDayNumber(const UsualForm& form, const char* text, std::int32_t& jdn) {
    jdn = Signed(1'000'000 * OneDigit(text) + 1000 * ThreeDigits(text + form.second_) +
                 ThreeDigits(text + form.third_));
    return form.length_ == 7 || jdn >= 1'000'000;
}

}  // namespace calvoro
