#pragma once

// The fields of one output line of `convert`: a day in every target notation, and its weekday.

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "cli/ConvertOptions.h"
#include "quicktext/QuickWriter.h"

namespace calvoro {

class RecordWriter {
public:
    explicit RecordWriter(const ConvertOptions& options);

    /// Whether every target can write a day, where that matters.
    bool CanWrite(std::int32_t jdn) const { return !hasLimits_ || IsWithinOrdinalLimits(jdn); }

    /// Why a day cannot be written: "out of range in ORD", with the tag of the first target that cannot.
    /// jdn  CanWrite must not hold
    std::string RefusalText(std::int32_t jdn) const;

    /// How many bytes Write may touch, however many targets there are.
    std::size_t Room() const { return room_; }

    /// Writes all fields, without a line end.
    /// jdn      CanWrite must hold
    /// to       Room() bytes
    /// returns  behind the last character written
    char* Write(std::int32_t jdn, char* to) const {
        return isOneDate_ ? fields_.front().writer.Write(jdn, to) : WriteFields(jdn, to);
    }

private:
    // What follows a date at once: its tag and the separator of the next field.
    using Suffix = std::array<char, 8>;

    struct Field {
        QuickWriter writer;
        bool isPlain = false;     // every day is written, and never quoted
        bool isQuotable = false;  // a date may hold what CSV quotes
        bool isLast = false;
        std::string_view tag{};
        Suffix suffix{};
        std::size_t suffixLength = 0;
    };

    char* WriteFields(std::int32_t jdn, char* to) const;
    char* WriteField(const Field& field, std::int32_t jdn, char* to) const;
    char* WriteWeekday(std::int32_t jdn, char* to) const;

    std::vector<Field> fields_;
    bool weekday_;
    bool isOneDate_ = false;  // that is all there is to write, as most often
    bool hasLimits_ = false;  // those of ordinal dates, the only ones there are
    char separator_;
    std::size_t room_ = 0;
};

}  // namespace calvoro
