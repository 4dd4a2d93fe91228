// Autocovariances by hand-worked cases and closed forms.

#include <cmath>
#include <gtest/gtest.h>

#include "core/support/Close.h"
#include "math/Autocovariance.h"

namespace tsffit {
namespace {

using test::ExpectClose;

TEST(Autocovariance, OfTheFirstOrder) {
  for (const double phi : {0.5, -0.9, 0.999, 0.99999}) {
    const double variance = 1 / ((1 - phi) * (1 + phi));
    const auto gamma = Autocovariances(ArmaOf({1, -phi}, {1}), 4);
    for (std::size_t k = 0; k < 4; ++k) {
      const double expected = variance * std::pow(phi, static_cast<double>(k));
      EXPECT_NEAR(gamma[k], expected, 1e-10 * std::abs(expected)) << phi << ' ' << k;
    }
  }
}

TEST(Autocovariance, OfMovingAverages) {
  ExpectClose(Autocovariances(ArmaOf({1}, {1, -0.4}), 3), {1.16, -0.4, 0});
  ExpectClose(Autocovariances(ArmaOf({1}, {1, -1}), 3), {2, -1, 0});
  // (1 - 0.4 B)(1 - 0.6 B^4): products of the factors' own
  ExpectClose(Autocovariances(ArmaOf({1}, Product({1, -0.4}, {1, 0, 0, 0, -0.6})), 7),
              {1.16 * 1.36, -0.4 * 1.36, 0, 0.4 * 0.6, -1.16 * 0.6, 0.4 * 0.6, 0});
}

TEST(Autocovariance, OfOneAutoregressiveAndOneMovingAverageTerm) {
  const double phi = 0.8;
  const double theta = -0.5;
  const double share = 1 / (1 - phi * phi);
  const double first = (1 - phi * theta) * (phi - theta) * share;
  ExpectClose(Autocovariances(ArmaOf({1, -phi}, {1, -theta}), 3),
              {(1 - 2 * phi * theta + theta * theta) * share, first, phi * first});
}

TEST(Autocovariance, OfTheSecondOrder) {
  const double phi1 = 1.891566;
  const double phi2 = -0.9801;
  const double variance = (1 - phi2) / ((1 + phi2) * ((1 - phi2) * (1 - phi2) - phi1 * phi1));
  const double first = phi1 / (1 - phi2) * variance;
  ExpectClose(Autocovariances(ArmaOf({1, -phi1, -phi2}, {1}), 3),
              {variance, first, phi1 * first + phi2 * variance}, 1e-8);
}

TEST(Autocovariance, OfEqualFactorsIsThatOfWhiteNoise) {
  ExpectClose(Autocovariances(ArmaOf({1, -0.8}, {1, -0.8}), 3), {1, 0, 0});
}

TEST(Autocovariance, OfTheStateSolvesTheStateEquation) {
  const Arma arma = ArmaOf(Product({1, -0.5, 0.2}, {1, 0, 0, 0, -0.7}),
                           Product({1, 0.4, 0.1}, {1, 0, 0, 0, -0.3, 0, 0, 0, 0.2}));
  const auto r = static_cast<Eigen::Index>(arma.StateLength());
  Eigen::MatrixXd transition = Eigen::MatrixXd::Zero(r, r);
  Eigen::VectorXd shock = Eigen::VectorXd::Zero(r);
  shock[0] = 1;
  for (std::size_t k = 0; k < arma.ar.size(); ++k) {
    transition(static_cast<Eigen::Index>(k), 0) = arma.ar[k];
  }
  for (std::size_t k = 0; k < arma.ma.size(); ++k) {
    shock[static_cast<Eigen::Index>(k + 1)] = arma.ma[k];
  }
  for (Eigen::Index i = 0; i + 1 < r; ++i) transition(i, i + 1) = 1;
  const Eigen::MatrixXd p = StationaryCovariance(arma);
  const Eigen::MatrixXd next = transition * p * transition.transpose() + shock * shock.transpose();
  EXPECT_LT((p - next).cwiseAbs().maxCoeff(), 1e-13 * p.cwiseAbs().maxCoeff());
  EXPECT_EQ(p.col(0), StationaryColumn(arma));
}

}  // namespace
}  // namespace tsffit
