#pragma once

// Descriptors for tests of reading and writing.

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace calvoro {

/// A descriptor that is closed with its object.
class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) {
        if (number < 0) std::abort();
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { Close(); }

    int Number() const { return number_; }

    void Close() {
        if (number_ >= 0) close(number_);
        number_ = -1;
    }

private:
    int number_;
};

/// A nameless file.
class TemporaryFile {
public:
    explicit TemporaryFile(std::string_view contents = {}) : file_(std::tmpfile()) {
        if (file_ == nullptr) std::abort();
        for (const char character : contents) std::fputc(character, file_);
        std::rewind(file_);
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() { std::fclose(file_); }

    int Number() const { return fileno(file_); }

    /// Everything in the file, whatever its position.
    std::string Contents() const {
        std::string contents;
        char block[4096];
        for (ssize_t got = 0; (got = pread(Number(), block, sizeof block, std::ssize(contents))) > 0;) {
            contents.append(block, static_cast<std::size_t>(got));
        }
        return contents;
    }

private:
    std::FILE* file_;
};

/// A pipe.
class Pipe {
public:
    Pipe() : Pipe(Made{}) {}

    Descriptor reading;
    Descriptor writing;

    void Write(std::string_view text) const {
        if (write(writing.Number(), text.data(), text.size()) != static_cast<ssize_t>(text.size())) {
            std::abort();
        }
    }

    /// Everything that is written until the writing end is closed.
    std::string ReadToTheEnd() const {
        std::string text;
        char block[4096];
        for (ssize_t got = 0; (got = read(reading.Number(), block, sizeof block)) > 0;) {
            text.append(block, static_cast<std::size_t>(got));
        }
        return text;
    }

private:
    struct Made {
        int ends[2] = {-1, -1};
        Made() {
            if (pipe(ends) != 0) std::abort();
        }
    };
    explicit Pipe(const Made& made) : reading(made.ends[0]), writing(made.ends[1]) {}
};

}  // namespace calvoro
