#pragma once

// A folder of its own for one test, removed with what is in it.

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

namespace calvoro {

class TemporaryFolder {
public:
    TemporaryFolder() {
        const testing::TestInfo& test = *testing::UnitTest::GetInstance()->current_test_info();
        std::string name = std::string("calvoro-") + test.test_suite_name() + "-" + test.name() + "-" +
                           std::to_string(::getpid());
        for (char& character : name) {
            if (character == '/') character = '-';
        }
        path_ = std::filesystem::temp_directory_path() / name;
        std::filesystem::create_directories(path_);
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    std::string Path() const { return path_.string(); }

    /// Writes a file into the folder.
    /// returns its full path
    std::string Write(std::string_view name, std::string_view bytes) const {
        const std::filesystem::path file = path_ / name;
        std::ofstream(file, std::ios::binary) << bytes;
        EXPECT_EQ(std::filesystem::file_size(file), bytes.size());
        return file.string();
    }

private:
    std::filesystem::path path_;
};

}  // namespace calvoro
