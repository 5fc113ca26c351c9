// Copies the lines of a file to the standard output and does nothing else with them: the measure of what a
// program that looks at every line can reach. It reads blocks, finds the end of each line, and copies line by
// line into a block of output.
//
//   CopyLines FILE

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cstddef>
#include <cstring>

namespace {

constexpr std::size_t kBlockSize = std::size_t{64} * 1024;

std::array<char, kBlockSize> input;
std::array<char, kBlockSize> output;
std::size_t used = 0;

bool WriteOut() {
    const char* from = output.data();
    while (used > 0) {
        const ssize_t written = write(STDOUT_FILENO, from, used);
        if (written < 0) return false;
        from += written;
        used -= static_cast<std::size_t>(written);
    }
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    const int file = argc == 2 ? open(argv[1], O_RDONLY) : -1;
    if (file < 0) return 2;
    std::size_t left = 0;  // of a line whose end has not been read yet; it fits a block
    for (;;) {
        const ssize_t got = read(file, input.data() + left, kBlockSize - left);
        if (got <= 0) break;
        const char* at = input.data();
        const char* const end = at + left + static_cast<std::size_t>(got);
        while (const void* found = std::memchr(at, '\n', static_cast<std::size_t>(end - at))) {
            const std::size_t length = static_cast<std::size_t>(static_cast<const char*>(found) - at) + 1;
            if (length > kBlockSize - used && !WriteOut()) return 1;
            std::memcpy(output.data() + used, at, length);
            used += length;
            at += length;
        }
        left = static_cast<std::size_t>(end - at);
        std::memmove(input.data(), at, left);
    }
    return WriteOut() ? 0 : 1;
}
