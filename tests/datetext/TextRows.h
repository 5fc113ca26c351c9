#pragma once

// What the tests of readers and writers share: named rows, readable failures, and texts that nobody would
// type but any file may hold.

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "datetext/ParseStatus.h"
#include "tests/support/RowName.h"

namespace calvoro {

inline void PrintTo(ParseStatus status, std::ostream* out) {
    *out << (status == ParseStatus::Valid      ? "Valid"
             : status == ParseStatus::NotValid ? "NotValid"
                                               : "OutOfRange");
}

/// Texts that no reader of dates or numbers accepts.
inline std::vector<std::string> HostileTexts() {
    using namespace std::string_literals;
    return {
        "",
        " ",
        "-",
        "--",
        "---",
        "W",
        "\0"s,
        "\0\0\0-\0\0-\0"s,
        "\t",
        "\r\n",
        "\xff\xfe\x80",
        "\u0662\u0660\u0662\u0664-\u0660\u0663-\u0661\u0665",  // digits of another script
        "zwei-null-zwei",
        std::string(1'000'000, '-'),
        std::string(1'000'000, ' '),
        std::string(1'000'000, '\0'),
        std::string(1'000'000, 'W'),
        std::string(1'000'000, '.'),
        std::string(1'000'000, ','),
        std::string(1'000'000, '\xc3'),
    };
}

}  // namespace calvoro
