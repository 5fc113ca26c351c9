#include "quicktext/AutoReader.h"

#include <algorithm>

#include "datetext/AnyNotation.h"
#include "quicktext/TextTail.h"

namespace calvoro {
namespace {

// Year, month and day, or week and weekday, as leap-week dates have them, are what many calendars have; that
// the options ask for no other form of them tells nothing about a text.
bool LooksLikeOthers(CalendarNumber notation) {
    return notation == CalendarNumber::LPM || notation == CalendarNumber::LPW;
}

}  // namespace

AutoReader::AutoReader(const TextOptions& options) {
    readers_.emplace_back(CalendarNumber::ISO, options);
    // Seven digits without a hyphen are an ordinal date or a day number.
    if (options.hyphen) {
        readers_.emplace_back(CalendarNumber::ORD, options);
        readers_.emplace_back(CalendarNumber::JDN, options);
    }
    exclusive_ = readers_.size();
    for (const calvoro::Notation& notation : Notations()) {
        const bool isThere = std::any_of(readers_.begin(), readers_.end(), [&](const StrictReader& reader) {
            return reader.Notation() == notation.number;
        });
        if (!isThere) readers_.emplace_back(notation.number, options);
    }
}

AutoResult AutoReader::Read(std::string_view text) const {
    const StrictReader* const tagged = ReaderOfTag(text);
    return tagged == nullptr ? ReadForm(text) : AutoResult{tagged->Read(text), tagged->Notation()};
}

const StrictReader* AutoReader::ReaderOfTag(std::string_view text) const {
    const std::string_view word = LastWord(text);
    for (const StrictReader& reader : readers_) {
        if (reader.Tag() == word) return &reader;
    }
    return nullptr;
}

AutoResult AutoReader::ReadForm(std::string_view text) const {
    AutoResult recognised;
    StrictResult farthest = Refused(ReadFault::Unexpected, 0);
    for (std::size_t i = 0; i < readers_.size(); ++i) {
        const StrictResult result = readers_[i].Read(text);
        if (!HasTheForm(result)) {
            if (result.place >= farthest.place) farthest = result;
        } else if (i < exclusive_) {
            return {result, readers_[i].Notation()};
        } else if (recognised.notation || LooksLikeOthers(readers_[i].Notation())) {
            return {Refused(ReadFault::SeveralNotations, 0), std::nullopt};
        } else {
            recognised = {result, readers_[i].Notation()};
        }
    }
    return recognised.notation ? recognised : AutoResult{farthest, std::nullopt};
}

}  // namespace calvoro
