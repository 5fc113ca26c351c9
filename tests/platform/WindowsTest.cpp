// Texts, streams, clock and shell of Windows, run where Windows programs run.

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <string>

#include "platform/Streams.h"
#include "platform/SystemClock.h"
#include "platform/WholeFile.h"
#include "platform/WriteAll.h"
#include "platform/windows/Shell.h"
#include "platform/windows/WideText.h"

namespace calvoro {
namespace {

std::string InTemporaryFolder(const std::string& name) {
    return (std::filesystem::temp_directory_path() / name).string();
}

bool Write(const std::string& path, const std::string& content) {
    return ReplaceWholeFile(path, [&](const auto& /*current*/) { return content; });
}

TEST(WideText, IsTheSameTextInUtf16) {
    EXPECT_EQ(WideText("M\xC3\xA4rz \xF0\x9F\x93\x85"), L"M\u00E4rz \xD83D\xDCC5");
    EXPECT_EQ(NarrowText(L"M\u00E4rz \xD83D\xDCC5"), "M\xC3\xA4rz \xF0\x9F\x93\x85");
    EXPECT_EQ(WideText(""), L"");
    EXPECT_EQ(NarrowText(L""), "");
}

TEST(WideText, ReplacesWhatIsNotValid) {
    EXPECT_EQ(WideText("a\xFF"), L"a\uFFFD");
    EXPECT_EQ(NarrowText(L"a\xD83D"), "a\xEF\xBF\xBD");
}

TEST(Streams, ReadAnOrdinaryFileInBytes) {
    const std::string path = InTemporaryFolder("calvoro-bytes.txt");
    ASSERT_TRUE(Write(path, "a\r\nb\x1A"));
    int error = 0;
    const int descriptor = OpenForReading(path, error);
    ASSERT_GE(descriptor, 0);
    EXPECT_EQ(SizeOfFile(descriptor), 5U);
    EXPECT_FALSE(WouldWait(descriptor));
    EXPECT_FALSE(IsTerminal(descriptor));
    char block[16];
    EXPECT_EQ(ReadSome(descriptor, block, sizeof block, error), 5U);
    EXPECT_EQ(std::string(block, 5), "a\r\nb\x1A");
    EXPECT_EQ(ReadSome(descriptor, block, sizeof block, error), 0U);
    EXPECT_EQ(error, 0);
    CloseDescriptor(descriptor);
}

TEST(Streams, TellWhatCannotBeReadInBytes) {
    int error = 0;
    EXPECT_LT(OpenForReading(std::filesystem::temp_directory_path().string(), error), 0);
    EXPECT_EQ(error, EISDIR);
}

TEST(Streams, TellWhyAFileCannotBeOpened) {
    int error = 0;
    EXPECT_LT(OpenForReading(InTemporaryFolder("calvoro-nosuch.txt"), error), 0);
    EXPECT_EQ(error, ENOENT);
}

TEST(WriteAll, TellsWhyNothingIsWritten) {
    int error = 0;
    const std::string path = InTemporaryFolder("calvoro-read-only.txt");
    ASSERT_TRUE(Write(path, "text"));
    const int descriptor = OpenForReading(path, error);
    ASSERT_GE(descriptor, 0);
    EXPECT_EQ(WriteAll(descriptor, "x"), EBADF);
    CloseDescriptor(descriptor);
}

TEST(SystemClock, GivesADayOfThisAge) {
    const LocalDate today = SystemClock().Today();
    EXPECT_GE(today.year, 2024);
    EXPECT_GE(today.month, 1);
    EXPECT_LE(today.month, 12);
    EXPECT_GE(today.day, 1);
    EXPECT_LE(today.day, 31);
}

TEST(Shell, NamesTheFolderOfRoamingApplicationData) {
    const std::string folder = RoamingApplicationData();
    EXPECT_TRUE(std::filesystem::is_directory(folder)) << folder;
    EXPECT_TRUE(folder.ends_with("/Roaming")) << folder;
    EXPECT_EQ(folder.find('\\'), std::string::npos) << folder;
}

TEST(Shell, KnowsWhichDrivesAreFixed) {
    EXPECT_TRUE(IsFixedDrive('C'));
    EXPECT_FALSE(IsFixedDrive('?'));
    EXPECT_EQ(SettingsBase(), RoamingApplicationData());
}

TEST(Shell, AnswersWithItsOwnNumberWhenNothingOpensAnAddress) {
    const int answer = ShellOpen("calvoro-nosuch-scheme:page", "0", "0", 1);
    EXPECT_TRUE(answer == 2 || answer == 31) << answer;
}

}  // namespace
}  // namespace calvoro
