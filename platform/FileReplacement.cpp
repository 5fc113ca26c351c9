#include "platform/FileReplacement.h"

#include "platform/ReplacementFile.h"

namespace calvoro {

FileReplacement::FileReplacement(const std::string& path) : file_(BeginReplacement(path)) {}

FileReplacement::~FileReplacement() = default;

void FileReplacement::Write(std::string_view bytes) {
    file_->Write(bytes);
}

void FileReplacement::Commit() {
    file_->Commit();
}

int FileReplacement::Error() const {
    return file_->Error();
}

}  // namespace calvoro
