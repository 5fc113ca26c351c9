#pragma once

// What each system does for FileReplacement.

#include <memory>
#include <string>
#include <string_view>

namespace calvoro {

/// A file of another name that will take the place of an old one, with the manners of FileReplacement.
class ReplacementFile {
public:
    /// Gives up what was not committed.
    virtual ~ReplacementFile() = default;

    ReplacementFile(const ReplacementFile&) = delete;
    ReplacementFile& operator=(const ReplacementFile&) = delete;

    virtual void Write(std::string_view bytes) = 0;
    virtual void Commit() = 0;
    virtual int Error() const = 0;

protected:
    ReplacementFile() = default;
};

/// path  of the old file, or where a new one will be
std::unique_ptr<ReplacementFile> BeginReplacement(const std::string& path);

}  // namespace calvoro
