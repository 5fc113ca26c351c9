#include "mainwindow/settings/SettingsFile.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "mainwindow/settings/SettingsText.h"

namespace calvoro {
namespace {

namespace fs = std::filesystem;

class SettingsFolder : public testing::Test {
protected:
    void SetUp() override {
        std::string name = (fs::temp_directory_path() / "calvoro-settings-XXXXXX").string();
        ASSERT_NE(::mkdtemp(name.data()), nullptr);
        folder_ = name;
        path_ = (folder_ / "calvoro.usr").string();
    }
    void TearDown() override { fs::remove_all(folder_); }

    std::string Content() const {
        std::ifstream file(path_, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    void Put(std::string_view content) const {
        std::ofstream(path_, std::ios::binary) << content;
        ASSERT_EQ(Content(), content);
    }
    std::set<std::string> Names() const {
        std::set<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder_)) names.insert(entry.path().filename());
        return names;
    }

    fs::path folder_;
    std::string path_;
};

TEST_F(SettingsFolder, MakesOneLevel) {
    const std::string path = SettingsFilePath(folder_.string(), "Calvoro");
    EXPECT_EQ(path, folder_.string() + "/Calvoro/calvoro.usr");
    EXPECT_TRUE(fs::is_directory(folder_ / "Calvoro"));
    EXPECT_TRUE(fs::is_empty(folder_ / "Calvoro"));
    EXPECT_EQ(fs::status(folder_ / "Calvoro").permissions(), fs::perms::owner_all);
    EXPECT_EQ(SettingsFilePath(folder_.string(), "Calvoro"), path) << "an existing folder is kept";

    const std::string deep = SettingsFilePath((folder_ / "missing").string(), "Calvoro");
    EXPECT_EQ(deep, folder_.string() + "/missing/Calvoro/calvoro.usr");
    EXPECT_FALSE(fs::exists(folder_ / "missing"));
    EXPECT_FALSE(WriteSettingsFile(deep, Settings{}, ""));
    EXPECT_EQ(ReadSettingsFile(deep), std::nullopt);
}

TEST_F(SettingsFolder, IsNowhereWithoutABase) {
    const std::string path = SettingsFilePath("", "Calvoro");
    EXPECT_EQ(path, "");
    EXPECT_FALSE(WriteSettingsFile(path, Settings{}, ""));
    EXPECT_EQ(ReadSettingsFile(path), std::nullopt);
}

TEST_F(SettingsFolder, HoldsWhatWasWritten) {
    Settings settings;
    settings.firstDate = "2024-02-29";
    settings.output = "one\r\n";
    ASSERT_TRUE(WriteSettingsFile(path_, settings, ""));
    EXPECT_EQ(Content(), SettingsText(settings));
    EXPECT_EQ(ReadSettingsFile(path_), settings);
    ASSERT_TRUE(WriteSettingsFile(path_, Settings{}, settings.output));
    EXPECT_EQ(Content(), SettingsText(Settings{}));
    EXPECT_EQ(Names(), std::set<std::string>{"calvoro.usr"});
}

TEST_F(SettingsFolder, GivesNothingForAFileThatCannotBeRead) {
    EXPECT_EQ(ReadSettingsFile(path_), std::nullopt) << "missing";
    Put("");
    EXPECT_EQ(ReadSettingsFile(path_), std::nullopt) << "empty";
    fs::remove(path_);
    fs::create_directory(path_);
    EXPECT_EQ(ReadSettingsFile(path_), std::nullopt) << "a folder";
    fs::remove(path_);
    ASSERT_EQ(::mkfifo(path_.c_str(), 0600), 0);
    EXPECT_EQ(ReadSettingsFile(path_), std::nullopt) << "a pipe, which must not be waited for";
}

TEST_F(SettingsFolder, HoldsNoTextsThatAreNotToBeSaved) {
    Settings settings;
    settings.firstDate = settings.dateDiff = settings.secondDate = settings.output = "x";
    settings.saveOutput = false;
    settings.differenceUnit = DifferenceUnit::Months;
    ASSERT_TRUE(WriteSettingsFile(path_, settings, ""));
    settings.firstDate = settings.dateDiff = settings.secondDate = settings.output = "";
    EXPECT_EQ(Content(), SettingsText(settings));
    EXPECT_EQ(ReadSettingsFile(path_), settings);
}

TEST_F(SettingsFolder, HoldsWhatEveryProgramHasAdded) {
    Settings first;
    first.output = "start\r\n";
    ASSERT_TRUE(WriteSettingsFile(path_, first, ""));

    Settings second;
    second.verbose = false;
    second.secondDate = "2";
    second.output = "start\r\nsecond\r\n";
    Settings third;
    third.dateDiff = "3";
    third.output = "start\r\nthird\r\n";
    ASSERT_TRUE(WriteSettingsFile(path_, second, "start\r\n"));
    ASSERT_TRUE(WriteSettingsFile(path_, third, "start\r\n"));
    // Of options and boxes those of the last one stay.
    Settings expected = third;
    expected.output = "start\r\nsecond\r\nthird\r\n";
    EXPECT_EQ(ReadSettingsFile(path_), expected);

    // One that saves no texts keeps what is not its own.
    Settings fourth;
    fourth.saveOutput = false;
    fourth.output = "start\r\nfourth\r\n";
    ASSERT_TRUE(WriteSettingsFile(path_, fourth, "start\r\n"));
    fourth.output = "second\r\nthird\r\n";
    EXPECT_EQ(ReadSettingsFile(path_), fourth);
}

TEST_F(SettingsFolder, IsWrittenOverAFaultyFile) {
    Put("faulty");
    Settings settings;
    settings.output = "x";
    ASSERT_TRUE(WriteSettingsFile(path_, settings, ""));
    EXPECT_EQ(ReadSettingsFile(path_), settings);
}

TEST_F(SettingsFolder, IsMadeAgainWhenItHasVanished) {
    const std::string path = SettingsFilePath(folder_.string(), "Calvoro");
    fs::remove(folder_ / "Calvoro");
    ASSERT_TRUE(WriteSettingsFile(path, Settings{}, ""));
    EXPECT_EQ(ReadSettingsFile(path), Settings{});
    EXPECT_EQ(fs::status(folder_ / "Calvoro").permissions(), fs::perms::owner_all);
}

TEST_F(SettingsFolder, DeletesTheFileWhetherItIsThereOrNot) {
    Put(SettingsText(Settings{}));
    DeleteSettingsFile(path_);
    EXPECT_TRUE(Names().empty());
    DeleteSettingsFile(path_);
    DeleteSettingsFile("");
    EXPECT_TRUE(Names().empty());
}

}  // namespace
}  // namespace calvoro
