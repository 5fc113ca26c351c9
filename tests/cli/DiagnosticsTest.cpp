#include "cli/Diagnostics.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <thread>

#include "tests/cli/Interruptions.h"
#include "tests/cli/TemporaryFiles.h"

namespace calvoro {
namespace {

using std::chrono::milliseconds;

TEST(Diagnostics, PrintsMessagesOneALine) {
    const TemporaryFile messages;
    Diagnostics diagnostics(messages.Number());
    diagnostics.Print("something");
    diagnostics.Print("something else");
    EXPECT_EQ(messages.Contents(), "calvoro-cli: something\ncalvoro-cli: something else\n");
}

TEST(Diagnostics, PrintOnWhenASignalInterruptsThem) {
    Pipe pipe;
    const std::string message(1'000'000, 'x');  // more than a pipe holds
    const Interruptions interruptions;
    std::string received;
    std::thread reader([&] {
        Interruptions::Await(20);
        received = pipe.ReadToTheEnd();
    });
    Diagnostics(pipe.writing.Number()).Print(message);
    pipe.writing.Close();
    reader.join();
    EXPECT_TRUE(received == "calvoro-cli: " + message + "\n");
}

TEST(Diagnostics, DrawsTheShareReadOverTheLastDrawing) {
    const TemporaryFile messages;
    Diagnostics diagnostics(messages.Number());
    diagnostics.BeginProgress(1000, milliseconds(0));
    diagnostics.ShowProgress(0);
    diagnostics.ShowProgress(339);
    diagnostics.ShowProgress(1000);
    EXPECT_EQ(messages.Contents(), "\r\x1B[K0 % read\r\x1B[K33 % read\r\x1B[K100 % read");
}

TEST(Diagnostics, DrawsNoMoreThanTheWholeOfAFileThatGrew) {
    const TemporaryFile messages;
    Diagnostics diagnostics(messages.Number());
    diagnostics.BeginProgress(10, milliseconds(0));
    diagnostics.ShowProgress(25);
    EXPECT_EQ(messages.Contents(), "\r\x1B[K100 % read");
}

TEST(Diagnostics, WipesTheDrawingBeforeAMessageAndAtTheEnd) {
    const TemporaryFile messages;
    {
        Diagnostics diagnostics(messages.Number());
        diagnostics.BeginProgress(2, milliseconds(0));
        diagnostics.ShowProgress(1);
        diagnostics.Print("x");
        diagnostics.Print("y");
        diagnostics.ShowProgress(2);
    }
    EXPECT_EQ(messages.Contents(),
              "\r\x1B[K50 % read\r\x1B[Kcalvoro-cli: x\ncalvoro-cli: y\n\r\x1B[K100 % read\r\x1B[K");
}

TEST(Diagnostics, DrawsNothingBeforeItsTimeOrUnasked) {
    const TemporaryFile messages;
    Diagnostics diagnostics(messages.Number());
    diagnostics.ShowProgress(1);
    diagnostics.BeginProgress(2, milliseconds(3600 * 1000));
    diagnostics.ShowProgress(1);
    diagnostics.EndProgress();
    diagnostics.ShowProgress(2);
    EXPECT_EQ(messages.Contents(), "");
}

int OpenTerminal() {
    const int terminal = posix_openpt(O_RDWR | O_NOCTTY);
    if (terminal < 0 || grantpt(terminal) != 0 || unlockpt(terminal) != 0) std::abort();
    return terminal;
}

TEST(SizeForProgress, IsThatOfARegularFileWhenOnlyMessagesGoToATerminal) {
    const Descriptor terminal(OpenTerminal());
    const TemporaryFile input("12345");
    const TemporaryFile empty;
    const TemporaryFile other;
    const Pipe pipe;
    EXPECT_EQ(SizeForProgress(input.Number(), other.Number(), terminal.Number()), 5u);
    EXPECT_EQ(SizeForProgress(input.Number(), pipe.writing.Number(), terminal.Number()), 5u);
    EXPECT_EQ(SizeForProgress(input.Number(), other.Number(), other.Number()), 0u);
    EXPECT_EQ(SizeForProgress(input.Number(), terminal.Number(), terminal.Number()), 0u);
    EXPECT_EQ(SizeForProgress(empty.Number(), other.Number(), terminal.Number()), 0u);
    EXPECT_EQ(SizeForProgress(pipe.reading.Number(), other.Number(), terminal.Number()), 0u);
}

}  // namespace
}  // namespace calvoro
