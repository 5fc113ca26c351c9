#pragma once

// What belongs to each of the two date boxes, so that every routine that exists once for the first date and
// once for the second is written once.

#include <string>

#include "compute/ComputeMessages.h"
#include "compute/ComputeState.h"
#include "compute/ComputeWindow.h"

namespace calvoro {

/// One date box: its calendar among the options, its record and echo in the state, its messages.
struct DateBox {
    InputBox box;
    CalendarNumber ComputeOptions::*calendar;
    DateRecord ComputeState::*record;
    std::string ComputeState::*echo;
    ComputeMessage notValid;
    ComputeMessage notValidIso;
    ComputeMessage outOfRange;
};

/// The upper box.
inline constexpr DateBox kFirstDateBox = {
    .box = InputBox::FirstDate,
    .calendar = &ComputeOptions::firstCalendar,
    .record = &ComputeState::FirstDateRecord,
    .echo = &ComputeState::FirstDateEcho,
    .notValid = ComputeMessage::FirstDateNotValid,
    .notValidIso = ComputeMessage::FirstDateNotValidIso,
    .outOfRange = ComputeMessage::FirstDateOutOfRange,
};

/// The lower box.
inline constexpr DateBox kSecondDateBox = {
    .box = InputBox::SecondDate,
    .calendar = &ComputeOptions::secondCalendar,
    .record = &ComputeState::SecondDateRecord,
    .echo = &ComputeState::SecondDateEcho,
    .notValid = ComputeMessage::SecondDateNotValid,
    .notValidIso = ComputeMessage::SecondDateNotValidIso,
    .outOfRange = ComputeMessage::SecondDateOutOfRange,
};

}  // namespace calvoro
