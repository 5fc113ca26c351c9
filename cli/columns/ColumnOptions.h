#pragma once

#include <cstddef>
#include <vector>

namespace calvoro {

/// Which columns of a line are worked on, and how columns are told apart.
struct ColumnOptions {
    std::vector<std::size_t> fields;  // from 0, each once; none: the whole line is the one column
    char delimiter = '\t';
    bool csv = false;     // fields may be quoted as in RFC 4180, line breaks included
    bool append = false;  // the answer follows the line in new columns, and the line stays as it is
    bool header = false;  // the first line names the columns
};

}  // namespace calvoro
