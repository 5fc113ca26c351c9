// A program of its own: it replaces the allocation functions, so that they can be made to fail.

#include <gtest/gtest.h>

#include <cstdlib>
#include <limits>
#include <new>
#include <string>

#include "tests/text/TemporaryFolder.h"
#include "text/ProgramTextFile.h"
#include "text/Texts.h"

namespace {

constexpr std::size_t kNoLimit = std::numeric_limits<std::size_t>::max();
std::size_t largestAllocation = kNoLimit;

struct AllocationLimit {
    explicit AllocationLimit(std::size_t bytes) { largestAllocation = bytes; }
    ~AllocationLimit() { largestAllocation = kNoLimit; }
    AllocationLimit(const AllocationLimit&) = delete;
    AllocationLimit& operator=(const AllocationLimit&) = delete;
};

}  // namespace

void* operator new(std::size_t size) {
    void* memory = size > largestAllocation ? nullptr : std::malloc(size);
    if (memory == nullptr) throw std::bad_alloc();
    return memory;
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace calvoro {
namespace {

TEST(OutOfMemory, IsReportedWhenTheFileDoesNotFit) {
    const TemporaryFolder folder;
    const std::string path = folder.Write("calvoro.dat", "#" + std::string(20'000, 'c') + "\n1\tone\n");
    std::int32_t result = 1;
    {
        const AllocationLimit limit(8'000);
        result = lt(path.c_str(), 0);
    }
    EXPECT_EQ(result, -2);
    EXPECT_EQ(lt(path.c_str(), 0), 1);
}

TEST(OutOfMemory, IsReportedWhenTheTextsDoNotFit) {
    const std::string bytes = "1\tone\n2\t" + std::string(1'000, 'x') + "\n";
    std::int32_t result = 1;
    {
        const AllocationLimit limit(900);
        result = ReadProgramTexts(bytes).result;
    }
    EXPECT_EQ(result, -8);
    EXPECT_EQ(ReadProgramTexts(bytes).result, 2);
}

TEST(OutOfMemory, DoesNotLeaveTheProgramWithoutItsOwnTexts) {
    bool refused = false;
    {
        const AllocationLimit limit(100);  // the node of a table takes more
        try {
            const Texts texts;
        } catch (const std::bad_alloc&) {
            refused = true;
        }
    }
    EXPECT_TRUE(refused);
    EXPECT_FALSE(Texts().GetProgramText(21).empty());
}

}  // namespace
}  // namespace calvoro
