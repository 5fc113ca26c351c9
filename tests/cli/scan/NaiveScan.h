#pragma once

// The dates of a text found in the plainest way: at every place every length is tried.

#include <algorithm>
#include <array>
#include <cctype>
#include <regex>
#include <string>
#include <string_view>

#include "datetext/Utf8.h"
#include "quicktext/StrictText.h"

namespace calvoro {

class NaiveScan {
public:
    explicit NaiveScan(CalendarNumber notation) : notation_(notation), form_(FormOf(notation)) {}

    /// The text with "<day number>" in place of each date that stands alone.
    std::string Replace(const std::string& text) const {
        std::string replaced;
        std::size_t at = 0;
        while (at < text.size()) {
            std::int32_t jdn = 0;
            const std::size_t length = LengthOfDate(text, at, jdn);
            if (length == 0) {
                replaced += text[at++];
            } else {
                replaced += "<" + std::to_string(jdn) + ">";
                at += length;
            }
        }
        return replaced;
    }

private:
    static std::regex FormOf(CalendarNumber notation) {
        const std::string year = "(-|\u2212)?[0-9]+([.,][0-9]+)*-";
        const std::string fields = notation == CalendarNumber::ISO   ? "W[0-9][0-9]-[0-9]"
                                   : notation == CalendarNumber::ORD ? "[0-9][0-9][0-9]"
                                                                     : "[0-9][0-9]?-[0-9][0-9]?";
        return std::regex(year + fields);
    }

    // The first character, which does not matter where it is ASCII, punctuation of these tests, or nothing.
    static bool IsPartOfWord(std::string_view character) {
        if (character.empty()) return false;
        const unsigned char first = static_cast<unsigned char>(character.front());
        if (first < 0x80) return std::isalnum(first) != 0 || first == '_';
        constexpr std::array<std::string_view, 6> kApart = {"\u00A0", "\u2013", "\u00AB",
                                                            "\u00BB", "\u3002", "\uFEFF"};
        return std::none_of(kApart.begin(), kApart.end(),
                            [&](std::string_view apart) { return character == apart; });
    }

    static bool IsDigitAt(const std::string& text, std::size_t at) {
        return at < text.size() && text[at] >= '0' && text[at] <= '9';
    }

    static std::string_view CharacterBefore(const std::string& text, std::size_t at) {
        for (std::size_t length = 1; length <= std::min<std::size_t>(at, 4); ++length) {
            const std::string_view one = std::string_view(text).substr(at - length, length);
            if (Utf8CharacterLength(one) == length) return one;
        }
        return at == 0 ? std::string_view() : "\xFF";
    }

    static std::string_view CharacterAt(const std::string& text, std::size_t at) {
        const std::string_view rest = std::string_view(text).substr(at);
        if (rest.empty()) return rest;
        const std::size_t length = Utf8CharacterLength(rest);
        return length == 0 ? std::string_view("\xFF") : rest.substr(0, length);
    }

    static bool Joins(std::string_view character, bool digitBeyond) {
        if (character == "." || character == ",") return digitBeyond;
        return IsPartOfWord(character) || character == "-" || character == "/" || character == "+";
    }

    // " BC" and the like.
    static std::size_t LengthOfTail(const std::string& text, std::size_t at) {
        static const std::regex kWord(
            "(?: |\u00A0|\u202F)+(BCE|BC|CE|JC|ISO|ORD|LPM|LPW|JDN|bce|bc|B\\.C|b\\.c|B\\. C|v\\.Chr|"
            "v\\. Chr|a\\.C|a\\. C)");
        std::size_t length = 0;
        for (int words = 0; words < 2; ++words) {
            std::smatch match;
            const auto begin = text.begin() + static_cast<std::ptrdiff_t>(at + length);
            if (!std::regex_search(begin, text.end(), match, kWord, std::regex_constants::match_continuous))
                break;
            const std::size_t size = static_cast<std::size_t>(match.length());
            if (IsPartOfWord(CharacterAt(text, at + length + size))) break;
            length += size;
        }
        return length;
    }

    std::size_t LengthOfDate(const std::string& text, std::size_t at, std::int32_t& jdn) const {
        if (Joins(CharacterBefore(text, at), at >= 2 && IsDigitAt(text, at - 2))) return 0;
        for (std::size_t end = text.size(); end > at; --end) {
            const auto first = text.begin() + static_cast<std::ptrdiff_t>(at);
            const auto last = text.begin() + static_cast<std::ptrdiff_t>(end);
            if (!std::regex_match(first, last, form_)) continue;
            if (Joins(CharacterAt(text, end), IsDigitAt(text, end + 1))) return 0;
            const std::size_t length = end - at + LengthOfTail(text, end);
            const StrictResult day = ReadStrictText(notation_, TextOptions(), text.substr(at, length));
            jdn = day.jdn;
            return day.status == ParseStatus::Valid ? length : 0;
        }
        return 0;
    }

    CalendarNumber notation_;
    std::regex form_;
};

}  // namespace calvoro
