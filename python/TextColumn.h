#pragma once

// Columns of texts as NumPy holds them: fixed width, four bytes a character, padded with NUL.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace calvoro {

/// One text of such a column as UTF-8.
/// width   characters of the field; NULs at its end do not count
/// buffer  where the text is put; what was there before is lost
/// returns a view of the buffer
std::string_view NarrowText(const char32_t* characters, std::size_t width, std::string& buffer);

/// Texts of any length one after the other, to be laid out in a column when the longest is known.
class GrowingColumn {
public:
    explicit GrowingColumn(std::size_t texts);

    /// Room for one more text.
    char* Reserve(std::size_t bytes);

    /// Takes the text that was written into the room, up to `end`.
    void Commit(const char* end) {
        const auto begin = used_;
        used_ = static_cast<std::size_t>(end - bytes_.data());
        longest_ = std::max(longest_, used_ - begin);
        ends_.push_back(used_);
    }

    std::size_t Count() const { return ends_.size(); }
    std::string_view Text(std::size_t index) const {
        const std::size_t begin = index == 0 ? 0 : ends_[index - 1];
        return {bytes_.data() + begin, ends_[index] - begin};
    }

    /// Characters of the longest text; 1 at least, because no field is narrower.
    std::size_t Width() const;

    bool IsAscii() const;

    /// Fills a column of Count() fields.
    void CopyTo(char32_t* characters, std::size_t width) const;

private:
    std::vector<char> bytes_;
    std::size_t used_ = 0;
    std::size_t longest_ = 1;  // bytes
    std::vector<std::size_t> ends_;
};

}  // namespace calvoro
