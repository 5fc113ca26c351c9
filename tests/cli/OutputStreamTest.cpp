#include "cli/OutputStream.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <string>
#include <thread>

#include "tests/cli/Interruptions.h"
#include "tests/cli/TemporaryFiles.h"

namespace calvoro {
namespace {

TEST(OutputStream, HandsNothingToTheSystemBeforeItMust) {
    const TemporaryFile file;
    OutputStream output(file.Number());
    output.Append("held");
    EXPECT_EQ(file.Contents(), "");
    output.Flush();
    EXPECT_EQ(file.Contents(), "held");
    output.Flush();
    EXPECT_EQ(file.Contents(), "held");
}

TEST(OutputStream, KeepsOrderAcrossBlocksAndSizes) {
    const TemporaryFile file;
    OutputStream output(file.Number());
    std::string expected;
    const std::size_t block = OutputStream::kBlockSize;
    char letter = 'a';
    for (const std::size_t size : {std::size_t{1}, block - 1, std::size_t{1}, block, block + 1,
                                   std::size_t{0}, 3 * block, std::size_t{7}, block - 7}) {
        const std::string piece(size, letter++);
        output.Append(piece);
        expected += piece;
        output.Append('\n');
        expected += '\n';
        std::fill_n(output.Room(10), 10, '.');
        output.Commit(10);
        expected += "..........";
    }
    output.Flush();
    EXPECT_TRUE(file.Contents() == expected);
    EXPECT_FALSE(output.HasFailed());
    EXPECT_EQ(output.Error(), 0);
}

TEST(OutputStream, WritesOnWhenASignalInterruptsIt) {
    Pipe pipe;
    const std::string text(8 * OutputStream::kBlockSize, 'x');  // more than a pipe holds
    const Interruptions interruptions;
    std::string received;
    std::thread reader([&] {
        Interruptions::Await(20);
        received = pipe.ReadToTheEnd();
    });
    OutputStream output(pipe.writing.Number());
    output.Append(text);
    output.Flush();
    pipe.writing.Close();
    reader.join();
    EXPECT_EQ(output.Error(), 0);
    EXPECT_TRUE(received == text);
}

TEST(OutputStream, RemembersThatTheDiskIsFull) {
    const Descriptor full(open("/dev/full", O_WRONLY | O_CLOEXEC));
    OutputStream output(full.Number());
    output.Append("lost");
    EXPECT_FALSE(output.HasFailed());
    output.Flush();
    EXPECT_TRUE(output.HasFailed());
    EXPECT_EQ(output.Error(), ENOSPC);
    output.Append(std::string(3 * OutputStream::kBlockSize, 'x'));
    output.Flush();
    EXPECT_EQ(output.Error(), ENOSPC);
}

TEST(OutputStream, RemembersThatItsReaderWentAway) {
    const auto before = std::signal(SIGPIPE, SIG_IGN);
    Pipe pipe;
    pipe.reading.Close();
    OutputStream output(pipe.writing.Number());
    output.Append("lost");
    output.Flush();
    EXPECT_EQ(output.Error(), EPIPE);
    std::signal(SIGPIPE, before);
}

}  // namespace
}  // namespace calvoro
