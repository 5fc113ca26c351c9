// Whole files and files that are replaced piece by piece, where Windows programs run.

#include <gtest/gtest.h>
#include <windows.h>

#include <cerrno>
#include <filesystem>
#include <set>
#include <string>

#include "platform/FileReplacement.h"
#include "platform/PrivateFolder.h"
#include "platform/WholeFile.h"
#include "platform/windows/LinkTarget.h"
#include "platform/windows/WideText.h"

namespace calvoro {
namespace {

namespace fs = std::filesystem;

class WindowsFilesTest : public testing::Test {
protected:
    void SetUp() override {
        const auto now = std::to_string(::GetCurrentProcessId()) + "-" + std::to_string(::GetTickCount64());
        folder_ = fs::temp_directory_path() / ("calvoro-M\xC3\xA4rz-" + now);
        ASSERT_TRUE(MakePrivateFolders((folder_ / "deeper").string()));
        fs::remove(folder_ / "deeper");
        path_ = (folder_ / "file \xE2\x82\xAC.txt").string();
    }
    void TearDown() override { fs::remove_all(folder_); }

    static void Put(const std::string& path, const std::string& content) {
        ASSERT_TRUE(ReplaceWholeFile(path, [&](const auto& /*current*/) { return content; }));
    }
    std::set<std::string> Names() const {
        std::set<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder_)) names.insert(entry.path().string());
        return names;
    }
    // Of writing a file anew.
    static int ErrorOf(const std::string& path) {
        FileReplacement file(path);
        file.Write("new");
        file.Commit();
        return file.Error();
    }
    std::set<std::string> OnlyTheFile() const { return {fs::path(WideText(path_)).string()}; }

    fs::path folder_;
    std::string path_;
};

TEST_F(WindowsFilesTest, AWholeFileIsReplacedAndReadByteForByte) {
    const std::string first("one\r\ntwo\n\x1A\0three", 15);
    Put(path_, first);
    EXPECT_EQ(ReadWholeFile(path_), first);
    EXPECT_TRUE(ReplaceWholeFile(path_, [&](const std::optional<std::string>& current) {
        EXPECT_EQ(current, first);
        return std::string("short");
    }));
    EXPECT_EQ(ReadWholeFile(path_), "short");
    EXPECT_EQ(Names(), OnlyTheFile());
    DeleteWholeFile(path_);
    EXPECT_EQ(ReadWholeFile(path_), std::nullopt);
}

TEST_F(WindowsFilesTest, AWholeFileIsNotMadeInAFolderThatIsMissing) {
    const std::string path = (folder_ / "missing" / "file").string();
    EXPECT_FALSE(ReplaceWholeFile(path, [](const auto& /*current*/) { return std::string("text"); }));
    EXPECT_EQ(ReadWholeFile(path), std::nullopt);
}

TEST_F(WindowsFilesTest, PiecesAreTheFileOnlyWhenItIsWhole) {
    Put(path_, "old");
    FileReplacement file(path_);
    file.Write("one\r\n");
    file.Write("");
    file.Write("two\n");
    EXPECT_EQ(ReadWholeFile(path_), "old");
    file.Commit();
    EXPECT_EQ(file.Error(), 0);
    EXPECT_EQ(ReadWholeFile(path_), "one\r\ntwo\n");
    EXPECT_EQ(Names(), OnlyTheFile());
}

TEST_F(WindowsFilesTest, PiecesLeaveNothingWhenTheyAreGivenUp) {
    { FileReplacement(path_).Write("new"); }
    EXPECT_TRUE(Names().empty());
    Put(path_, "old");
    { FileReplacement(path_).Write("new"); }
    EXPECT_EQ(ReadWholeFile(path_), "old");
    EXPECT_EQ(Names(), OnlyTheFile());
}

TEST_F(WindowsFilesTest, NothingButAnOrdinaryFileIsReplaced) {
    EXPECT_EQ(ErrorOf(folder_.string()), EISDIR);
    EXPECT_EQ(ErrorOf((folder_ / "no" / "file").string()), ENOENT);
    Put(path_, "old");
    ASSERT_TRUE(::SetFileAttributesW(WideText(path_).c_str(), FILE_ATTRIBUTE_READONLY));
    EXPECT_EQ(ErrorOf(path_), EACCES);
    EXPECT_FALSE(ReplaceWholeFile(path_, [](const auto& /*current*/) { return std::string("text"); }));
    DeleteWholeFile(path_);
    EXPECT_EQ(ReadWholeFile(path_), "old");
    ASSERT_TRUE(::SetFileAttributesW(WideText(path_).c_str(), FILE_ATTRIBUTE_NORMAL));
    EXPECT_EQ(ErrorOf(path_), 0);
    EXPECT_EQ(ReadWholeFile(path_), "new");
}

TEST_F(WindowsFilesTest, AFileThatAnotherProgramHoldsStaysAsItIs) {
    Put(path_, "old");
    const HANDLE held = ::CreateFileW(WideText(path_).c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);
    EXPECT_EQ(ErrorOf(path_), EACCES);
    EXPECT_FALSE(ReplaceWholeFile(path_, [](const auto& /*current*/) { return std::string("text"); }));
    EXPECT_EQ(Names(), OnlyTheFile());
    ::CloseHandle(held);
    EXPECT_EQ(ReadWholeFile(path_), "old");
}

TEST_F(WindowsFilesTest, LinksAreFollowed) {
    Put(path_, "old");
    EXPECT_EQ(WithLinksResolved(WideText(path_)), WideText(path_));
    EXPECT_EQ(WithLinksResolved(L"no such file"), L"no such file");
    const fs::path link = folder_ / "link";
    if (::CreateSymbolicLinkW(link.c_str(), WideText(path_).c_str(), 0) == 0 || !fs::exists(link)) {
        GTEST_SKIP() << "no symbolic links here";
    }
    EXPECT_EQ(ErrorOf(link.string()), 0);
    EXPECT_EQ(ReadWholeFile(path_), "new");
    Put(link.string(), "newer");
    EXPECT_EQ(ReadWholeFile(path_), "newer");
    EXPECT_NE(::GetFileAttributesW(link.c_str()) & FILE_ATTRIBUTE_REPARSE_POINT, 0U);
}

TEST_F(WindowsFilesTest, FoldersAreMadeOnce) {
    const std::string folder = (folder_ / "a" / "b").string();
    EXPECT_FALSE(MakePrivateFolder(folder));
    EXPECT_TRUE(MakePrivateFolders(folder));
    EXPECT_TRUE(MakePrivateFolder(folder));
    Put(path_, "a file");
    EXPECT_FALSE(MakePrivateFolders(path_));
}

}  // namespace
}  // namespace calvoro
