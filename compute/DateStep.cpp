#include "compute/DateStep.h"

#include "calendar/CheckedInt.h"
#include "calendar/DayNumber.h"
#include "calendar/StaysIn32Bits.h"
#include "compute/ComputeMessages.h"
#include "compute/DateBox.h"
#include "datetext/AnyNotation.h"

namespace calvoro {
namespace {

ComputeMessage RefusalMessage(const DateBox& box, ParseStatus status, CalendarNumber calendar) {
    if (status == ParseStatus::OutOfRange) return box.outOfRange;
    return calendar == CalendarNumber::ISO ? box.notValidIso : box.notValid;
}

}  // namespace

std::string DateStep(InputBox box, std::string_view text, CalendarNumber calendar, std::int32_t days,
                     const ComputeOptions& options, ComputeWindow& window) {
    const DateBox& dateBox = box == InputBox::FirstDate ? kFirstDateBox : kSecondDateBox;
    DateRecord record;
    const ParseStatus status = ReadDate(calendar, text, options.text, record);
    if (status != ParseStatus::Valid) {
        ShowComputeMessage(RefusalMessage(dateBox, status, calendar), options.texts, window);
        return "";
    }

    std::int32_t stepped = 0;
    const bool isInRange = StaysIn32Bits([&] { stepped = (CheckedInt(record.jdn) + days).Value(); }) &&
                           IsWithinDayLimits(stepped) && CanWriteDate(calendar, stepped);
    if (!isInRange) {
        ShowComputeMessage(ComputeMessage::ResultOutOfRange, options.texts, window);
        return "";
    }
    return WriteDate(calendar, stepped, options.text);
}

}  // namespace calvoro
