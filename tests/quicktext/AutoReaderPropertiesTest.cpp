#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "datetext/AnyNotation.h"
#include "quicktext/AutoReader.h"
#include "quicktext/StrictText.h"
#include "tests/properties/DateGenerators.h"
#include "tests/properties/Property.h"

namespace calvoro {
namespace {

using enum CalendarNumber;

/// The notations that have the form of a text without tag, found by asking each. Leap-week dates look like
/// dates of other calendars, whatever format those are asked for in.
std::vector<CalendarNumber> NotationsOfForm(const std::string& text, const TextOptions& options) {
    std::vector<CalendarNumber> found;
    for (const Notation& notation : Notations()) {
        if (!HasTheForm(ReadStrictText(notation.number, options, text))) continue;
        found.push_back(notation.number);
        if (notation.number == LPM || notation.number == LPW) found.push_back(CE);
    }
    return found;
}

TEST(AutoReaderProperties, RecognisesWhatOneNotationAloneCouldHave) {
    const auto days = generate::Day();
    const auto optionSets = generate::Options();
    const auto edits = generate::OneEdit();
    const auto isEdited = rc::gen::arbitrary<bool>();
    int recognised = 0;
    int ambiguous = 0;
    EXPECT_TRUE(Holds(5000, [&] {
        const std::int32_t jdn = *days.as("day");
        const TextOptions options = *optionSets.as("options");
        const AutoReader reader(options);
        for (const Notation& notation : Notations()) {
            if (!CanWriteDate(notation.number, jdn)) continue;
            const std::string written = WriteDate(notation.number, jdn, options);
            const std::string text = *isEdited ? (*edits).AppliedTo(written) : written;
            const AutoResult answer = reader.Read(text);
            const std::vector<CalendarNumber> possible = NotationsOfForm(text, options);
            if (answer.notation) {
                ++recognised;
                RC_ASSERT(std::count(possible.begin(), possible.end(), *answer.notation) == 1);
                RC_ASSERT(answer.result == ReadStrictText(*answer.notation, options, text));
                // A year too large for any notation is all that two of them can have in common.
                RC_ASSERT(possible.size() == 1 || answer.result.fault == ReadFault::TooLarge);
            } else if (answer.result.fault == ReadFault::SeveralNotations) {
                ++ambiguous;
                RC_ASSERT(possible.size() > 1U);
            } else {
                RC_ASSERT(possible.empty());
            }
            // A tag tells it in any case.
            const AutoResult tagged = reader.Read(written + " " + std::string(notation.tag));
            RC_ASSERT(tagged.notation == notation.number);
            RC_ASSERT(tagged.result == ReadStrictText(notation.number, options, written));
        }
    }));
    EXPECT_GT(recognised, 5000);
    EXPECT_GT(ambiguous, 5000);
}

}  // namespace
}  // namespace calvoro
