#pragma once

// What `between` and `add` have in common: an answer from two texts.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "cli/OutputStream.h"

namespace calvoro {

/// Why two texts have no answer.
struct PairRefusal {
    std::string reason;  // empty when there is one
    std::string_view text;
    bool isOfSecond = false;  // which of the two texts it is
};

class PairWork {
public:
    virtual ~PairWork() = default;

    /// How many bytes an answer may have.
    virtual std::size_t Room() const = 0;

    /// Writes the columns of the answer.
    /// to       Room() bytes
    /// returns  behind the last character written; `to` when there is no answer
    virtual char* Answer(std::string_view first, std::string_view second, char* to, PairRefusal& refusal) = 0;

    /// Answers the first lines of a block as long as they are two plain dates in their usual form.
    /// lines    is moved on by the number of lines
    /// returns  how many bytes of the block they are; whatever comes next is left to Answer
    virtual std::size_t AnswerLines(std::string_view /*block*/, OutputStream& /*output*/,
                                    std::uint64_t& /*lines*/) {
        return 0;
    }

    /// The names of the columns, with the delimiter between them.
    virtual std::string Header() const = 0;

    /// What stands in place of an answer: delimiters between empty columns.
    virtual std::string_view EmptyAnswer() const = 0;

protected:
    PairWork() = default;
    PairWork(const PairWork&) = default;
    PairWork& operator=(const PairWork&) = default;
};

}  // namespace calvoro
