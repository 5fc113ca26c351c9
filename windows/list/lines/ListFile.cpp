#include "windows/list/lines/ListFile.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "platform/Streams.h"

namespace calvoro {
namespace {

constexpr std::size_t kReadAtOnce = std::size_t{1024} * 1024;  // bytes

std::filesystem::path PathOf(const std::string& path) {
    return {std::u8string(path.begin(), path.end())};
}

}  // namespace

bool IsCsvName(std::string_view path) {
    constexpr std::string_view kEnd = ".csv";
    if (path.size() < kEnd.size()) return false;
    return std::equal(kEnd.begin(), kEnd.end(), path.end() - static_cast<std::ptrdiff_t>(kEnd.size()),
                      [](char end, char given) {
                          const bool isCapital = given >= 'A' && given <= 'Z';
                          return end == (isCapital ? static_cast<char>(given - 'A' + 'a') : given);
                      });
}

ListFile::ListFile(const std::string& path) : isCsv_(IsCsvName(path)) {
    Open(path);
}

ListFile::~ListFile() {
    Close();
}

void ListFile::Open(const std::string& path) {
    // Looked at before it is opened: opening a pipe would wait for somebody to write into it.
    std::error_code error;
    const std::filesystem::file_status status = std::filesystem::status(PathOf(path), error);
    if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status)) {
        fault_ = ListFault::NoFile;
        return;
    }
    descriptor_ = OpenForReading(path, error_);
    if (descriptor_ < 0) {
        fault_ = ListFault::Unreadable;
        return;
    }
    size_ = SizeOfFile(descriptor_);
    if (size_ > kLargestList) {
        fault_ = ListFault::TooLarge;
    }
}

void ListFile::Close() {
    if (descriptor_ >= 0) CloseDescriptor(descriptor_);
    descriptor_ = -1;
}

bool ListFile::Step() {
    if (builder_) return builder_->Step();
    return fault_ != ListFault::None || ReadPiece();
}

// returns  true when it cannot go on
bool ListFile::ReadPiece() {
    const std::size_t before = text_.size();
    if (before == 0) text_.reserve(static_cast<std::size_t>(size_) + kReadAtOnce);
    // A file may grow while it is read.
    if (before > kLargestList) {
        fault_ = ListFault::TooLarge;
        return true;
    }
    text_.resize(before + kReadAtOnce);
    const std::size_t got = ReadSome(descriptor_, text_.data() + before, kReadAtOnce, error_);
    text_.resize(before + got);
    if (error_ != 0) {
        fault_ = ListFault::Unreadable;
        return true;
    }
    if (got == 0) {
        Close();
        builder_ = std::make_unique<LinesBuilder>(std::move(text_), isCsv_);
    }
    return false;
}

double ListFile::Done() const {
    constexpr double kShareOfReading = 0.4;
    if (builder_) return kShareOfReading + (1 - kShareOfReading) * builder_->Done();
    const auto size = static_cast<double>(std::max<std::uint64_t>(1, size_));
    return kShareOfReading * std::min(1.0, static_cast<double>(text_.size()) / size);
}

}  // namespace calvoro
