#include "cli/InputFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

#include "cli/QuotedText.h"

namespace calvoro {

InputFile::InputFile(const std::string& name) {
    if (name == "-") {
        descriptor_ = STDIN_FILENO;
        shownName_ = "stdin";
        return;
    }
    shownName_ = PrintableText(name);
    descriptor_ = open(name.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor_ < 0) error_ = errno;
}

InputFile::~InputFile() {
    if (descriptor_ > STDIN_FILENO) close(descriptor_);
}

}  // namespace calvoro
