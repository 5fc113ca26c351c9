#include "platform/FixedDrive.h"

#include <gtest/gtest.h>

#include <string>

namespace calvoro {
namespace {

// The letters that are asked for, in order.
std::string Asked(const std::string& fixed, std::string& found) {
    std::string asked;
    found = FirstFixedDrive([&](char letter) {
        asked += letter;
        return fixed.find(letter) != std::string::npos;
    });
    return asked;
}

TEST(FirstFixedDrive, IsLookedForFromCOnward) {
    std::string found;
    EXPECT_EQ(Asked("C", found), "C");
    EXPECT_EQ(found, "C:");
    EXPECT_EQ(Asked("FD", found), "CD");
    EXPECT_EQ(found, "D:");
}

TEST(FirstFixedDrive, IsLookedForUpToZ) {
    std::string found;
    EXPECT_EQ(Asked("Z", found), "CDEFGHIJKLMNOPQRSTUVWXYZ");
    EXPECT_EQ(found, "Z:");
    EXPECT_EQ(Asked("AB", found), "CDEFGHIJKLMNOPQRSTUVWXYZ");
    EXPECT_EQ(found, "") << "floppy drives do not count";
}

}  // namespace
}  // namespace calvoro
