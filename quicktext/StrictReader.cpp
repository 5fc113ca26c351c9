#include "quicktext/StrictReader.h"

#include <cstring>

#include "datetext/Tags.h"
#include "quicktext/StrictText.h"

namespace calvoro {

static_assert(StrictReader::kLineRoom >= UsualForm::kRoom + std::string_view(" LPM\r\n").size());

StrictReader::StrictReader(CalendarNumber notation, const TextOptions& options)
    : notation_(notation), options_(options), usual_(notation, options), tag_(TagText(notation)) {}

bool StrictReader::ReadUsual(std::string_view text, std::int32_t& jdn) const {
    const std::size_t length = usual_.Length();
    if (text.size() != length) {
        const bool hasTag =
            text.size() == length + 1 + tag_.size() && text[length] == ' ' && text.ends_with(tag_);
        if (!hasTag) return false;
    }
    char date[UsualForm::kRoom] = {};
    std::memcpy(date, text.data(), length);
    return usual_.Read(date, jdn);
}

StrictResult StrictReader::ReadAny(std::string_view text) const {
    return ReadStrictText(notation_, options_, text);
}

// The length of the line whose date ends here; 0 unless the tag or nothing and the line's end follow.
std::size_t StrictReader::LengthBehindTag(const char* behind) const {
    std::size_t length = 0;
    if (behind[0] == ' ') {
        if (std::memcmp(behind + 1, tag_.data(), tag_.size()) != 0) return 0;
        length = 1 + tag_.size();
    }
    if (behind[length] == '\r') ++length;
    return behind[length] == '\n' ? usual_.Length() + length + 1 : 0;
}

}  // namespace calvoro
