// Minima that are known, with and without bounds, gradients and a region.

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <span>
#include <stdexcept>
#include <vector>

#include "math/Descent.h"
#include "math/Lbfgs.h"

namespace tsffit {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

// (x - 1)^2 + 10 (y + 2)^2
double Bowl(std::span<const double> x, std::span<double> gradient) {
  gradient[0] = 2 * (x[0] - 1);
  gradient[1] = 20 * (x[1] + 2);
  return (x[0] - 1) * (x[0] - 1) + 10 * (x[1] + 2) * (x[1] + 2);
}
constexpr double kBowlAtZero = 41;

TEST(Lbfgs, FindsTheFloorOfABowl) {
  std::vector<double> x = {0, 0};
  const LbfgsSummary summary =
      LowerByLbfgs(Bowl, {.relative_tolerance = 1e-14, .forbidden = 100}, kBowlAtZero, x);
  EXPECT_NEAR(x[0], 1, 1e-6);
  EXPECT_NEAR(x[1], -2, 1e-6);
  EXPECT_NEAR(summary.value, 0, 1e-11);
  EXPECT_GT(summary.evaluations, 1);
}

TEST(Lbfgs, StaysWithinItsBounds) {
  std::vector<double> x = {3, 0};
  LowerByLbfgs(Bowl,
               {.relative_tolerance = 1e-14,
                .forbidden = 100,
                .lower = {2, -1},
                .upper = {kInfinity, kInfinity}},
               44, x);
  EXPECT_DOUBLE_EQ(x[0], 2);
  EXPECT_DOUBLE_EQ(x[1], -1);
}

// 100 (y - x^2)^2 + (1 - x)^2
double Valley(std::span<const double> x, std::span<double> gradient) {
  const double beside = x[1] - x[0] * x[0];
  gradient[0] = -400 * x[0] * beside - 2 * (1 - x[0]);
  gradient[1] = 200 * beside;
  return 100 * beside * beside + (1 - x[0]) * (1 - x[0]);
}
constexpr double kValleyStart = 24.2;  // at (-1.2, 1)

// A step takes a few evaluations.
TEST(Lbfgs, EndsWithTheStepInWhichItsEvaluationsRunOut) {
  std::vector<double> toTheEnd = {-1.2, 1};
  std::vector<double> cutShort = {-1.2, 1};
  const LbfgsSummary all =
      LowerByLbfgs(Valley, {.relative_tolerance = 1e-12, .forbidden = 100}, kValleyStart, toTheEnd);
  const LbfgsSummary some =
      LowerByLbfgs(Valley, {.max_evaluations = 5, .forbidden = 100}, kValleyStart, cutShort);
  EXPECT_GT(all.evaluations, 20);
  EXPECT_LT(some.evaluations, 10);
  EXPECT_LT(some.value, kValleyStart);
  EXPECT_LT(all.value, 1e-8);
}

TEST(Lbfgs, TurnsBackFromWhereTheFunctionHasNoValue) {
  const auto barrier = [](std::span<const double> x, std::span<double> gradient) {
    if (x[0] <= 0) return kInfinity;
    gradient[0] = 1 - 1 / x[0];
    return x[0] - std::log(x[0]);
  };
  std::vector<double> x = {8};
  const double start = 8 - std::log(8.0);
  const LbfgsSummary summary =
      LowerByLbfgs(barrier, {.absolute_tolerance = 1e-13, .forbidden = start + 20}, start, x);
  EXPECT_NEAR(x[0], 1, 1e-5);
  EXPECT_NEAR(summary.value, 1, 1e-10);
}

TEST(Lbfgs, WhatTheFunctionThrowsComesOut) {
  const auto broken = [](std::span<const double>, std::span<double>) -> double {
    throw std::runtime_error("no value");
  };
  std::vector<double> x = {0};
  EXPECT_THROW(LowerByLbfgs(broken, {.forbidden = 1}, 0, x), std::runtime_error);
}

TEST(Descent, FindsTheFloorOfRosenbrocksValleyWithoutAGradient) {
  const auto valley = [](const Eigen::VectorXd& x) {
    return 100 * std::pow(x[1] - x[0] * x[0], 2) + std::pow(1 - x[0], 2);
  };
  Eigen::VectorXd point = Eigen::Vector2d(-1.2, 1);
  const double value = Descend(valley, {.max_steps = 1000, .tolerance = 1e-14}, point);
  EXPECT_NEAR(point[0], 1, 1e-3);
  EXPECT_NEAR(point[1], 1, 1e-3);
  EXPECT_EQ(value, valley(point));
}

TEST(Descent, StartWithoutAValueStaysWhereItIs) {
  Eigen::VectorXd point = Eigen::Vector2d(3, 4);
  EXPECT_EQ(Descend([](const Eigen::VectorXd&) { return kInfinity; }, {}, point), kInfinity);
  EXPECT_EQ(point, Eigen::Vector2d(3, 4));
}

}  // namespace
}  // namespace tsffit
