#ifndef TSXPORT_TESTS_CORE_SUPPORT_CLOSE_H_
#define TSXPORT_TESTS_CORE_SUPPORT_CLOSE_H_

#include <cstddef>
#include <gtest/gtest.h>
#include <vector>

namespace test {

// Fails the current test where the lists differ in length, or a number by more than `tolerance`.
inline void ExpectClose(const std::vector<double>& actual, const std::vector<double>& expected,
                        double tolerance = 1e-14) {
  ASSERT_EQ(actual.size(), expected.size());
  for (std::size_t i = 0; i < actual.size(); ++i) EXPECT_NEAR(actual[i], expected[i], tolerance);
}

}  // namespace test

#endif  // TSXPORT_TESTS_CORE_SUPPORT_CLOSE_H_
