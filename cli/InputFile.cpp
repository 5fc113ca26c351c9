#include "cli/InputFile.h"

#include "datetext/PrintableText.h"
#include "platform/Streams.h"

namespace calvoro {

InputFile::InputFile(const std::string& name) {
    if (name == "-") {
        descriptor_ = kStandardInput;
        shownName_ = "stdin";
        return;
    }
    shownName_ = PrintableText(name);
    descriptor_ = OpenForReading(name, error_);
}

InputFile::~InputFile() {
    if (descriptor_ > kStandardInput) CloseDescriptor(descriptor_);
}

}  // namespace calvoro
