#pragma once

// The result line, appended piece by piece: what was given, then the computed date or the computed
// difference, with the notes that Verbose adds.

#include <string_view>

#include "compute/ComputeState.h"
#include "compute/ComputeWindow.h"

namespace calvoro {

/// Appends the echo of the given date and, unless the difference is empty, " plus 10 days": what is added to
/// the date or taken from it. The words are swapped after a second date, which lies at the other end of the
/// difference.
/// given       the box of the given date
/// difference  the difference as it stands in its box, with thousands separators
void AppendGivenDate(InputBox given, std::string_view difference, ComputeWindow& window,
                     const ComputeState& state);

/// Appends " = ", the computed first date in the calendar of its box, and its tag. An ordinal date carries
/// no tag; outside the limits of ordinal dates the result is reported as out of range instead, and the line
/// stays as it is. Verbose adds the weekday and, after a number of days was added, the counting notes; for a
/// single date without change of calendar it adds the day in every other notation, a line each.
void DisplayFirstDate(ComputeWindow& window, const ComputeState& state);

/// The same for the computed second date.
void DisplaySecondDate(ComputeWindow& window, const ComputeState& state);

/// Finds a date from the other one and a difference and, when it was found, appends the given date, the
/// difference and the found date.
/// given    the box of the given date
/// find     the search; it returns false after showing a message
/// returns  what the search returns
bool FindAndDisplay(InputBox given, std::string_view difference,
                    bool (*find)(ComputeWindow& window, ComputeState& state), ComputeWindow& window,
                    ComputeState& state);

/// Appends both dates, " = ", the number of days between them with its unit and, for long spans, their
/// breakdown into larger units. Verbose adds the counting notes before the breakdown.
void DisplayDateDiff(ComputeWindow& window, const ComputeState& state);

/// Appends ", Sunday": the weekday of the record's day number.
void AppendWeekdayName(const DateRecord& record, ComputeWindow& window, const Texts& texts);

/// Appends ", including 1st date" or ", excluding 1st date" and, when weekend days are not counted, a note
/// of that.
void AppendCountingNotes(ComputeWindow& window, const ComputeOptions& options);

/// Ends the result line and scrolls the output box to it.
void FinishLine(ComputeWindow& window);

}  // namespace calvoro
