#ifndef TSFFIT_MATH_POLYNOMIAL_H_
#define TSFFIT_MATH_POLYNOMIAL_H_

#include <cstddef>
#include <span>
#include <vector>

#include <tsfcore/AMPowers.h>

namespace tsffit {

// A polynomial in the backshift operator: element k is the coefficient of B^k. Never empty.
using Polynomial = std::vector<double>;

// first - c_1 B^(lag 1) - c_2 B^(lag 2) - ..
Polynomial Minus(double first, const AMPowers& lags, std::span<const double> coefficients);

Polynomial Product(const Polynomial& a, const Polynomial& b);

// (1 - B)^regular (1 - B^seasonLength)^seasonal
Polynomial DifferencePolynomial(unsigned regular, unsigned seasonal, unsigned seasonLength);

// The value at B = 1.
double SumOf(const Polynomial& p);

// Whether every root lies outside the unit circle, for a polynomial that begins with 1: the
// step-down recursion (Monahan 1984, Biometrika 71, 403-404) meets no partial autocorrelation of
// modulus 1 or more.
bool IsStable(const Polynomial& p);

// The first `count` coefficients of numerator / denominator, whose first coefficient is 1.
std::vector<double> Quotient(const Polynomial& numerator, const Polynomial& denominator,
                             std::size_t count);

std::size_t Degree(const AMPowers& lags);
inline std::size_t Degree(const Polynomial& p) { return p.size() - 1; }

// An ARMA model N_t = sum ar_k N_(t-k) + a_t + sum ma_k a_(t-k), both lists from k = 1. (The signs
// of the state-space literature: ma is minus the theta of Box and Jenkins.)
struct Arma {
  std::vector<double> ar{};
  std::vector<double> ma{};

  // Length of the state in Harvey's form.
  std::size_t StateLength() const { return ar.size() > ma.size() ? ar.size() : ma.size() + 1; }
};

// The model phi(B) N = theta(B) a, as long as the polynomials whatever their last coefficients are.
Arma ArmaOf(const Polynomial& phi, const Polynomial& theta);

// The psi weights of the model from psi_0 = 1 on.
std::vector<double> PsiWeights(const Arma& arma, std::size_t count);

}  // namespace tsffit

#endif  // TSFFIT_MATH_POLYNOMIAL_H_
