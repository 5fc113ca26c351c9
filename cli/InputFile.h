#pragma once

#include <string>
#include <string_view>

namespace calvoro {

/// A file opened for reading by the name the user gave it; "-" is the standard input, which is not closed.
class InputFile {
public:
    /// name  a path, or "-"
    explicit InputFile(const std::string& name);
    ~InputFile();
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;

    int Descriptor() const { return descriptor_; }

    /// The system's error number when the file could not be opened, else 0.
    int Error() const { return error_; }

    /// The name for messages: "stdin", or the file's name made fit to be shown.
    std::string_view ShownName() const { return shownName_; }

private:
    int descriptor_ = -1;
    int error_ = 0;
    std::string shownName_;
};

}  // namespace calvoro
