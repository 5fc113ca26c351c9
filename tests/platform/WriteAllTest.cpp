#include "platform/WriteAll.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <string>
#include <thread>

namespace calvoro {
namespace {

TEST(WriteAll, GoesOnWhereTheSystemTakesAPart) {
    std::array<int, 2> ends{};
    ASSERT_EQ(::pipe(ends.data()), 0);
    const std::string bytes(1'000'000, 'x');  // many times what a pipe holds
    int error = -1;
    std::thread writer([&] {
        error = WriteAll(ends[1], bytes);
        ::close(ends[1]);
    });
    std::string received;
    std::array<char, 4096> block{};
    for (ssize_t got = 0; (got = ::read(ends[0], block.data(), block.size())) > 0;) {
        received.append(block.data(), static_cast<std::size_t>(got));
    }
    writer.join();
    ::close(ends[0]);
    EXPECT_EQ(error, 0);
    EXPECT_TRUE(received == bytes);
}

TEST(WriteAll, WritesNothingToNothing) {
    EXPECT_EQ(WriteAll(-1, ""), 0);
}

TEST(WriteAll, NamesTheError) {
    EXPECT_EQ(WriteAll(-1, "x"), EBADF);
    const int full = ::open("/dev/full", O_WRONLY | O_CLOEXEC);
    ASSERT_GE(full, 0);
    EXPECT_EQ(WriteAll(full, "x"), ENOSPC);
    ::close(full);
}

}  // namespace
}  // namespace calvoro
