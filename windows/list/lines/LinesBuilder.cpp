#include "windows/list/lines/LinesBuilder.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <string_view>
#include <utility>

#include "datetext/Utf8.h"

namespace calvoro {
namespace {

constexpr std::size_t kCheckedAtOnce = std::size_t{256} * 1024;  // bytes; about a millisecond
constexpr std::uint32_t kRowsFromMarkToMark = 64;
constexpr std::size_t kBytesFromMarkToMark = std::size_t{64} * 1024;

// Whether eight bytes are ASCII, none of them NUL.
bool ArePlain(const char* bytes) {
    std::uint64_t word = 0;
    std::memcpy(&word, bytes, sizeof word);
    constexpr std::uint64_t kLowBits = 0x0101010101010101;
    constexpr std::uint64_t kHighBits = 0x8080808080808080;
    // A byte of 0 borrows from the bit above.
    return ((word | (word - kLowBits)) & kHighBits) == 0;
}

// The delimiter of comma-separated values is the one of which the first row holds most outside quotes: where
// the decimal sign is a comma, spreadsheets write semicolons.
char CsvDelimiter(std::string_view text) {
    std::size_t commas = 0;
    std::size_t semicolons = 0;
    std::size_t tabs = 0;
    bool quoted = false;
    for (const char character : text) {
        if (character == '"') quoted = !quoted;
        if (quoted) continue;
        if (character == '\n') break;
        if (character == ',') ++commas;
        if (character == ';') ++semicolons;
        if (character == '\t') ++tabs;
    }
    if (commas >= semicolons && commas >= tabs) return ',';
    return semicolons >= tabs ? ';' : '\t';
}

}  // namespace

LinesBuilder::LinesBuilder(std::string text, bool isCsv)
    : lines_(std::make_shared<ListLines>()), isCsv_(isCsv) {
    lines_->text_ = std::move(text);
    if (lines_->text_.starts_with(kByteOrderMark)) lines_->begin_ = kByteOrderMark.size();
    checked_ = marked_ = lines_->begin_;
    if (lines_->text_.size() > kLargestList) {
        fault_ = ListFault::TooLarge;
    } else if (checked_ == lines_->text_.size()) {
        fault_ = ListFault::Empty;
    }
}

bool LinesBuilder::Refuse(ListFault fault) {
    fault_ = fault;
    return true;
}

bool LinesBuilder::Step() {
    if (fault_ != ListFault::None) return true;
    if (checked_ < lines_->text_.size()) {
        if (!CheckPiece()) return Refuse(ListFault::NotText);
        if (checked_ == lines_->text_.size()) FindShape();
        return false;
    }
    if (!MarkRows()) return Refuse(ListFault::LineTooLong);
    if (marked_ < lines_->text_.size()) return false;
    lines_->marks_.shrink_to_fit();
    return true;
}

double LinesBuilder::Done() const {
    const auto size = static_cast<double>(std::max<std::size_t>(1, lines_->text_.size()));
    return (static_cast<double>(checked_) + static_cast<double>(marked_)) / (2 * size);
}

bool LinesBuilder::CheckPiece() {
    const std::string_view text = lines_->text_;
    const std::size_t end = std::min(text.size(), checked_ + kCheckedAtOnce);
    while (checked_ < end) {
        if (checked_ + 8 <= end && ArePlain(text.data() + checked_)) {
            checked_ += 8;
            continue;
        }
        const std::size_t length = Utf8CharacterLength(text.substr(checked_));
        if (length == 0 || text[checked_] == '\0') return false;
        checked_ += length;
    }
    return true;
}

void LinesBuilder::FindShape() {
    const std::string_view text = std::string_view(lines_->text_).substr(lines_->begin_);
    constexpr std::size_t kSample = std::size_t{64} * 1024;  // bytes
    const std::string_view sample = text.substr(0, kSample);
    if (isCsv_) {
        lines_->shape_ = {CsvDelimiter(sample), true};
    } else if (sample.find('\t') != std::string_view::npos) {
        lines_->shape_ = {'\t', false};
    }
}

bool LinesBuilder::MarkRows() {
    ListLines& lines = *lines_;
    const std::string_view text = lines.text_;
    const std::size_t until = marked_ + kCheckedAtOnce;
    while (marked_ < text.size() && marked_ < until) {
        const Record record = RecordAt(text, marked_, lines.shape_);
        if (record.tooLong) return false;
        if (lines.marks_.empty() || lines.count_ - lines.marks_.back().row >= kRowsFromMarkToMark ||
            marked_ - lines.marks_.back().place >= kBytesFromMarkToMark) {
            lines.marks_.push_back({marked_, lines.count_});
        }
        if (lines.columns_ < ListLines::kMostColumns && lines.shape_.delimiter != '\0') {
            const std::size_t fields = CountFields(text.substr(marked_, record.end - marked_), lines.shape_);
            lines.columns_ = std::min(std::max(lines.columns_, fields), ListLines::kMostColumns);
        }
        ++lines.count_;
        marked_ = record.next;
    }
    return true;
}

}  // namespace calvoro
