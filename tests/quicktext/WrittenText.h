#pragma once

// What quick writers write, for tests.

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "quicktext/QuickWriter.h"

namespace calvoro {

/// The text of a day; nothing may be written beyond the room.
inline std::string Written(const QuickWriter& writer, std::int32_t jdn) {
    constexpr char kUntouched = '\x7F';
    std::string buffer(writer.Room() + 8, kUntouched);
    const char* end = writer.Write(jdn, buffer.data());
    EXPECT_EQ(buffer.substr(writer.Room()), std::string(8, kUntouched));
    buffer.resize(static_cast<std::size_t>(end - buffer.data()));
    return buffer;
}

/// The same with years before the Common Era as such.
inline std::string WithEra(CalendarNumber notation, std::int32_t jdn, const TextOptions& options = {}) {
    return Written(QuickWriter(notation, options, EraStyle::BeforeCommonEra), jdn);
}

}  // namespace calvoro
