// Strict readers beside the readers of the notations: they take what is written, nothing that those refuse,
// and never find another day.

#include <gtest/gtest.h>

#include <string>

#include "datetext/AnyNotation.h"
#include "datetext/Tags.h"
#include "quicktext/StrictReader.h"
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

}  // namespace
}  // namespace calvoro
