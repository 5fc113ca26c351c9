#include <gtest/gtest.h>

#include <string>

#include "calendar/EuroDate.h"
#include "datetext/AnyNotation.h"
#include "quicktext/QuickWriter.h"
#include "quicktext/StrictReader.h"
#include "tests/properties/DateGenerators.h"
#include "tests/properties/Property.h"
#include "tests/quicktext/WrittenText.h"

namespace calvoro {
namespace {

TEST(QuickWriterProperties, WritesWhatTheWritersWrite) {
    const auto days = rc::gen::oneOf(generate::Day(), rc::gen::arbitrary<std::int32_t>());
    const auto optionSets = generate::Options();
    EXPECT_TRUE(Holds(20000, [&] {
        const std::int32_t jdn = *days.as("day");
        const TextOptions options = *optionSets.as("options");
        for (const Notation& notation : Notations()) {
            const QuickWriter writer(notation.number, options);
            if (!writer.CanWrite(jdn)) continue;
            RC_ASSERT(Written(writer, jdn) == WriteDate(notation.number, jdn, options));
        }
    }));
}

TEST(QuickWriterProperties, YearsOfTheEraAreReadBackAndAllOthersStay) {
    int before = 0;
    const auto days = generate::Day();
    const auto optionSets = generate::Options();
    EXPECT_TRUE(Holds(10000, [&] {
        const std::int32_t jdn = *days.as("day");
        const TextOptions options = *optionSets.as("options");
        for (const CalendarNumber notation : {CalendarNumber::CE, CalendarNumber::JC}) {
            const std::string text = WithEra(notation, jdn, options);
            RC_ASSERT(StrictReader(notation, options).Read(text) == ValidDay(jdn));
            DateRecord record{.calendar = notation == CalendarNumber::JC ? CalendarCode::J : CalendarCode::G,
                              .jdn = jdn};
            jdn_to_euro_date(record);
            RC_ASSERT(text.ends_with(" BCE") == (record.year < 1));
            if (record.year >= 1) RC_ASSERT(text == WriteDate(notation, jdn, options));
            before += record.year < 1 ? 1 : 0;
        }
    }));
    EXPECT_GT(before, 3000);
}

}  // namespace
}  // namespace calvoro
