// Polynomials by hand-worked cases.

#include <gtest/gtest.h>

#include "core/support/Close.h"
#include "math/Polynomial.h"

namespace tsffit {
namespace {

using test::ExpectClose;

TEST(Polynomial, FactorHasMinusItsCoefficientsAtItsLags) {
  ExpectClose(Minus(1, {1, 3}, std::vector{0.5, -0.2}), {1, -0.5, 0, 0.2});
  ExpectClose(Minus(2.5, {}, {}), {2.5});
}

TEST(Polynomial, ProductOfFactorsHasTheCrossTerm) {
  ExpectClose(Product({1, -0.4}, {1, 0, 0, 0, -0.6}), {1, -0.4, 0, 0, -0.6, 0.24});
  ExpectClose(Product({1, 2, 3}, {2}), {2, 4, 6});
}

TEST(Polynomial, DifferencesMultiplyOut) {
  ExpectClose(DifferencePolynomial(0, 0, 12), {1});
  ExpectClose(DifferencePolynomial(3, 0, 1), {1, -3, 3, -1});
  ExpectClose(DifferencePolynomial(1, 1, 4), {1, -1, 0, 0, -1, 1});
  ExpectClose(DifferencePolynomial(0, 2, 2), {1, 0, -2, 0, 1});
}

TEST(Polynomial, QuotientIsTheSeries) {
  ExpectClose(Quotient({1, -0.5}, {1, -0.8}, 4), {1, 0.3, 0.24, 0.192});
  ExpectClose(Quotient({3}, {1, 0, -0.5}, 5), {3, 0, 1.5, 0, 0.75});
  ExpectClose(Quotient({1, -1}, {1, -1}, 3), {1, 0, 0});
  EXPECT_TRUE(Quotient({1}, {1}, 0).empty());
}

TEST(Polynomial, QuotientTimesDenominatorIsTheNumerator) {
  const Polynomial numerator = {1, 0.3, -0.7};
  const Polynomial denominator = {1, -0.9, 0.4, 0, 0.2};
  Polynomial back = Product(Quotient(numerator, denominator, 30), denominator);
  back.resize(30);
  Polynomial expected = numerator;
  expected.resize(30);
  ExpectClose(back, expected);
}

TEST(Polynomial, PsiWeightsOfAnIntegratedMovingAverage) {
  // (1 - 0.4 B) / (1 - B)
  ExpectClose(PsiWeights(ArmaOf({1, -1}, {1, -0.4}), 4), {1, 0.6, 0.6, 0.6});
}

TEST(Stability, IsThatOfTheRoots) {
  EXPECT_TRUE(IsStable({1}));
  EXPECT_TRUE(IsStable({1, -0.99999}));
  EXPECT_FALSE(IsStable({1, -1}));
  EXPECT_FALSE(IsStable({1, 1}));
  EXPECT_TRUE(IsStable(Product({1, -0.7}, {1, -0.8})));
  EXPECT_FALSE(IsStable(Product({1, -0.7}, {1, -1.25})));
  EXPECT_TRUE(IsStable({1, -1.891566, 0.9801}));  // a pair of modulus 1 / 0.99
  EXPECT_FALSE(IsStable({1, -1.9, 1.0001}));
  EXPECT_FALSE(IsStable({1, -0.5, -0.5}));  // 1 is a root
  EXPECT_TRUE(IsStable({1, -0.5, 0, -0.2, 0, 0, 0, 0, 0, -0.25}));
  EXPECT_FALSE(IsStable({1, 0, 0, 0, -1.0000001}));
}

}  // namespace
}  // namespace tsffit
