#pragma once

// A property as a GoogleTest assertion: EXPECT_TRUE(Holds(2000, [] { ... })). A failure shows the smallest
// counterexample found and the setting of RC_PARAMS that repeats it.

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <algorithm>
#include <sstream>

namespace calvoro {

/// Checks a property.
/// cases  how many generated cases must hold; more when RC_PARAMS asks for more
template <class Testable>
::testing::AssertionResult Holds(int cases, Testable&& property) {
    const auto* test = ::testing::UnitTest::GetInstance()->current_test_info();
    const rc::detail::TestMetadata metadata{std::string(test->test_suite_name()) + "." + test->name(),
                                            test->name()};
    rc::detail::TestParams parameters = rc::detail::configuration().testParams;
    parameters.maxSuccess = std::max(parameters.maxSuccess, cases);

    const rc::detail::TestResult result =
        rc::detail::checkTestable(std::forward<Testable>(property), metadata, parameters);
    if (result.is<rc::detail::SuccessResult>()) return ::testing::AssertionSuccess();
    std::ostringstream message;
    rc::detail::printResultMessage(result, message);
    return ::testing::AssertionFailure() << message.str() << "\nseed " << parameters.seed;
}

}  // namespace calvoro
