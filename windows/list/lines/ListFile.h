#pragma once

// Reads a file in pieces and makes the rows of a list from it. The whole file is read into memory before
// anything of it is shown: what another program does to it afterwards does not matter.

#include <memory>
#include <string>

#include "windows/list/lines/LinesBuilder.h"

namespace calvoro {

class ListFile : public SlicedJob {
public:
    /// path  UTF-8; a name that ends with .csv is that of comma-separated values
    explicit ListFile(const std::string& path);
    ~ListFile() override;

    bool Step() override;
    double Done() const override;

    /// Why there is no list; only after all steps.
    ListRefusal Refusal() const { return builder_ ? builder_->Refusal() : ListRefusal{fault_, 0, error_}; }

    /// The list; only after all steps, and when it was not refused.
    std::shared_ptr<const ListLines> Take() { return builder_->Take(); }

private:
    void Open(const std::string& path);
    bool ReadPiece();
    void Close();

    bool isCsv_;
    int descriptor_ = -1;
    std::uint64_t size_ = 0;
    ListFault fault_ = ListFault::None;
    int error_ = 0;
    std::string text_;
    std::unique_ptr<LinesBuilder> builder_;  // when all is read
};

/// Whether a name ends with ".csv", in letters of any size.
bool IsCsvName(std::string_view path);

}  // namespace calvoro
