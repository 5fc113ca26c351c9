#include "cli/JsonRequest.h"

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <nlohmann/json.hpp>

#include "cli/Choices.h"
#include "datetext/PrintableText.h"
#include "datetext/Utf8.h"

namespace calvoro {
namespace {

// Names are case-sensitive here, and no separator is an empty text.
constexpr std::array<Choice<char>, 3> kJsonThousandsChoices = {{{",", ','}, {".", '.'}, {"", kNoSeparator}}};

template <typename Value, std::size_t count>
std::string TakeName(const std::array<Choice<Value>, count>& choices, std::string_view name, Value& value) {
    return TakeChoice(choices, name, NameCase::Exact, value);
}

/// A key takes either a text or a truth value; the other member is null.
struct KeyRow {
    std::string_view key;
    std::string (*takeText)(ComputeRequest& request, std::string& text);
    void (*takeTruth)(ComputeRequest& request, bool truth);
};

std::string TakeBox(std::string& box, std::string& text) {
    box = std::move(text);
    return {};
}

using Request = ComputeRequest;
constexpr std::array<KeyRow, 17> kKeys = {{
    {"first", [](Request& request, std::string& text) { return TakeBox(request.first, text); }, nullptr},
    {"difference", [](Request& request, std::string& text) { return TakeBox(request.difference, text); },
     nullptr},
    {"second", [](Request& request, std::string& text) { return TakeBox(request.second, text); }, nullptr},
    {"first_calendar",
     [](Request& request, std::string& text) {
         return TakeName(kNotationChoices, text, request.options.firstCalendar);
     },
     nullptr},
    {"second_calendar",
     [](Request& request, std::string& text) {
         return TakeName(kNotationChoices, text, request.options.secondCalendar);
     },
     nullptr},
    {"date_format",
     [](Request& request, std::string& text) {
         return TakeName(kDateFormatChoices, text, request.options.text.dateFormat);
     },
     nullptr},
    {"date_separator",
     [](Request& request, std::string& text) {
         return TakeName(kDateSeparatorChoices, text, request.options.text.dateSeparator);
     },
     nullptr},
    {"thousands_separator",
     [](Request& request, std::string& text) {
         return TakeName(kJsonThousandsChoices, text, request.options.text.thousandsSeparator);
     },
     nullptr},
    {"digit_grouping",
     [](Request& request, std::string& text) {
         char separator = kNoSeparator;
         std::string reason = TakeName(kJsonThousandsChoices, text, separator);
         if (reason.empty()) request.options.text.digitGrouping = std::move(text);
         return reason;
     },
     nullptr},
    {"hyphen", nullptr, [](Request& request, bool truth) { request.options.text.hyphen = truth; }},
    {"verbose", nullptr, [](Request& request, bool truth) { request.options.verbose = truth; }},
    {"include_first_date", nullptr,
     [](Request& request, bool truth) { request.options.includeFirstDate = truth; }},
    {"count_weekend_days", nullptr,
     [](Request& request, bool truth) { request.options.countWeekendDays = truth; }},
    {"unit",
     [](Request& request, std::string& text) { return TakeName(kUnitChoices, text, request.options.unit); },
     nullptr},
    {"language",
     [](Request& request, std::string& text) {
         return TakeName(kLanguageChoices, text, request.options.texts.InterfaceLanguage);
     },
     nullptr},
    {"clear",
     [](Request& request, std::string& text) { return TakeName(kClearChoices, text, request.clear); },
     nullptr},
    {"today", [](Request& request, std::string& text) { return TakeToday(text, request.today); }, nullptr},
}};

// position  in bytes, from 1
std::string NotJsonAt(std::size_t position) {
    return "request: not valid JSON at byte " + std::to_string(position);
}

/// Takes the events of the JSON reader. Every event returns whether reading goes on; it ends with the first
/// fault.
class RequestBuilder {
public:
    explicit RequestBuilder(ComputeRequest& request) : request_(request) {}

    const std::string& Fault() const { return fault_; }

    bool start_object(std::size_t /*elements*/) {
        if (isOpen_) return RefuseType();
        isOpen_ = true;
        return true;
    }
    bool end_object() { return true; }
    bool start_array(std::size_t /*elements*/) { return RefuseType(); }
    bool end_array() { return true; }

    bool key(std::string& name) {
        row_ = nullptr;
        for (const KeyRow& row : kKeys) {
            if (row.key == name) row_ = &row;
        }
        if (row_ == nullptr) return Refuse("unknown key " + QuotedText(name));
        const std::size_t index = static_cast<std::size_t>(row_ - kKeys.data());
        if (given_[index]) return RefuseKey("given twice");
        given_[index] = true;
        return true;
    }
    bool string(std::string& text) {
        if (!isOpen_ || row_->takeText == nullptr) return RefuseType();
        const std::string reason = row_->takeText(request_, text);
        return reason.empty() || RefuseKey(reason);
    }
    bool boolean(bool truth) {
        if (!isOpen_ || row_->takeTruth == nullptr) return RefuseType();
        row_->takeTruth(request_, truth);
        return true;
    }
    bool null() { return RefuseType(); }
    bool number_integer(std::int64_t /*number*/) { return RefuseType(); }
    bool number_unsigned(std::uint64_t /*number*/) { return RefuseType(); }
    bool number_float(double /*number*/, const std::string& /*text*/) { return RefuseType(); }
    bool binary(const nlohmann::json::binary_t& /*bytes*/) { return RefuseType(); }

    bool parse_error(std::size_t position, const std::string& /*lastToken*/,
                     const nlohmann::json::exception& error) {
        constexpr int kNumberOutOfRange = 406;  // which makes it no less a number
        if (error.id == kNumberOutOfRange) return RefuseType();
        return Refuse(NotJsonAt(position));
    }

private:
    bool Refuse(std::string fault) {
        fault_ = std::move(fault);
        return false;
    }
    bool RefuseKey(std::string_view reason) {
        return Refuse(std::string(row_->key).append(": ").append(reason));
    }
    bool RefuseType() {
        if (!isOpen_) return Refuse("request: must be an object");
        return RefuseKey(row_->takeText != nullptr ? "must be a string" : "must be true or false");
    }

    ComputeRequest& request_;
    bool isOpen_ = false;          // inside the object that the line must be
    const KeyRow* row_ = nullptr;  // of the last key; set before any value inside the object comes
    std::bitset<kKeys.size()> given_;
    std::string fault_;
};

}  // namespace

std::string ReadJsonRequest(std::string_view line, ComputeRequest& request) {
    if (line.empty()) return "request: empty line";
    if (!IsUtf8(line)) return "request: not valid UTF-8";
    // The library skips a byte order mark at the start of every text, and takes a NUL for its end.
    if (line.starts_with(kByteOrderMark)) return NotJsonAt(1);
    RequestBuilder builder(request);
    nlohmann::json::sax_parse(line.begin(), line.end(), &builder);
    const std::size_t nul = line.find('\0');
    if (builder.Fault().empty() && nul != std::string_view::npos) return NotJsonAt(nul + 1);
    return builder.Fault();
}

}  // namespace calvoro
