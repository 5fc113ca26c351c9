#pragma once

// A file that is written piece by piece and takes the place of an old one only when it is whole.

#include <memory>
#include <string>
#include <string_view>

namespace calvoro {

class ReplacementFile;

/// Whoever opens the file at any moment finds the old content or the new one and never a part: the pieces go
/// to a file of another name in the same folder, which is flushed to the disk and renamed at the end, and
/// deleted when it comes to no end. A symbolic link is followed. An old file keeps its permissions; a new one
/// gets those that the user's files have. On Windows both get those that their folder hands down.
///
/// Only an ordinary file that may be written is replaced. Anything else of its name, such as a folder, a
/// device or a pipe, is left alone and is an error.
class FileReplacement {
public:
    /// path  UTF-8
    explicit FileReplacement(const std::string& path);
    ~FileReplacement();

    FileReplacement(const FileReplacement&) = delete;
    FileReplacement& operator=(const FileReplacement&) = delete;

    /// Adds a piece at the end. Nothing happens after an error.
    void Write(std::string_view bytes);

    /// Puts the file into its place, unless there was an error.
    void Commit();

    /// The number of the first error (of std::generic_category); 0 when there is none.
    int Error() const;

private:
    std::unique_ptr<ReplacementFile> file_;
};

}  // namespace calvoro
