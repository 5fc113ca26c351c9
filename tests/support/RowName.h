#pragma once

#include <gtest/gtest.h>

#include <string>

namespace calvoro {

/// The name of a row is the name of its test.
template <class Row>
std::string RowName(const ::testing::TestParamInfo<Row>& info) {
    return std::string(info.param.name);
}

}  // namespace calvoro
