#include "tests/fuzz/CommandRun.h"

#include <sys/mman.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>

#include "platform/Streams.h"
#include "platform/WriteAll.h"
#include "tests/cli/TemporaryFiles.h"
#include "tests/fuzz/FuzzInput.h"

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#include <sanitizer/common_interface_defs.h>
#define CALVORO_REPORTS_TO(descriptor) \
    __sanitizer_set_report_fd(reinterpret_cast<void*>(static_cast<std::intptr_t>(descriptor)))
#endif
#endif
#ifndef CALVORO_REPORTS_TO
#define CALVORO_REPORTS_TO(descriptor) static_cast<void>(descriptor)
#endif

namespace calvoro::fuzz {
namespace {

constexpr std::size_t kMostPieces = 200;  // what fits the buffer of a socket

int MemoryFile(const char* name, std::string_view contents = {}) {
    const int descriptor = memfd_create(name, MFD_CLOEXEC);
    Require(descriptor >= 0 && WriteAll(descriptor, contents) == 0 && lseek(descriptor, 0, SEEK_SET) == 0);
    return descriptor;
}

// Every read of such a socket gives one of the packets that were sent.
int PacketsOf(std::string_view input, std::size_t piece) {
    std::array<int, 2> ends{};
    Require(socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data()) == 0);
    piece = std::max(piece, input.size() / kMostPieces + 1);
    for (; !input.empty(); input.remove_prefix(std::min(piece, input.size()))) {
        const std::string_view packet = input.substr(0, piece);
        Require(send(ends[1], packet.data(), packet.size(), MSG_DONTWAIT) == std::ssize(packet));
    }
    close(ends[1]);
    return ends[0];
}

std::string ContentsOf(int descriptor) {
    std::string contents;
    std::array<char, 4096> block{};
    for (ssize_t got = 0; (got = pread(descriptor, block.data(), block.size(), std::ssize(contents))) > 0;) {
        contents.append(block.data(), static_cast<std::size_t>(got));
    }
    return contents;
}

/// Puts another descriptor in the place of one of the standard streams, as long as it lives.
class Replaced {
public:
    Replaced(int stream, int with) : stream_(stream), kept_(dup(stream)) {
        Require(dup2(with, stream) == stream);
    }
    Replaced(const Replaced&) = delete;
    Replaced& operator=(const Replaced&) = delete;
    ~Replaced() {
        if (kept_.Number() >= 0) dup2(kept_.Number(), stream_);
    }

    int Kept() const { return kept_.Number(); }

private:
    int stream_;
    Descriptor kept_;
};

}  // namespace

CommandResult RunCommand(std::string_view input, std::size_t piece, const std::function<int()>& command) {
    const Descriptor given(piece == 0 ? MemoryFile("input", input) : PacketsOf(input, piece));
    const Descriptor output(MemoryFile("output"));
    const Descriptor messages(MemoryFile("messages"));
    CommandResult result;
    {
        const Replaced in(kStandardInput, given.Number());
        const Replaced out(kStandardOutput, output.Number());
        const Replaced error(kStandardError, messages.Number());
        CALVORO_REPORTS_TO(error.Kept());
        result.status = command();
        CALVORO_REPORTS_TO(kStandardError);
    }
    result.output = ContentsOf(output.Number());
    result.messages = ContentsOf(messages.Number());
    return result;
}

}  // namespace calvoro::fuzz
