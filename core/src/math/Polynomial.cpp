#include "math/Polynomial.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace tsffit {

Polynomial Minus(double first, const AMPowers& lags, std::span<const double> coefficients) {
  Polynomial p(Degree(lags) + 1, 0.0);
  p[0] = first;
  for (std::uint32_t i = 0; i < lags.GetCount(); ++i) p[lags.GetPower(i)] -= coefficients[i];
  return p;
}

Polynomial Product(const Polynomial& a, const Polynomial& b) {
  Polynomial product(a.size() + b.size() - 1, 0.0);
  for (std::size_t i = 0; i < a.size(); ++i) {
    if (a[i] == 0) continue;
    for (std::size_t j = 0; j < b.size(); ++j) product[i + j] += a[i] * b[j];
  }
  return product;
}

Polynomial DifferencePolynomial(unsigned regular, unsigned seasonal, unsigned seasonLength) {
  Polynomial p = {1};
  for (unsigned i = 0; i < regular; ++i) p = Product(p, {1, -1});
  if (seasonal == 0) return p;  // the season may be of any length
  Polynomial season(std::size_t{seasonLength} + 1, 0.0);
  season.front() = 1;
  season.back() = -1;
  for (unsigned i = 0; i < seasonal; ++i) p = Product(p, season);
  return p;
}

double SumOf(const Polynomial& p) { return std::accumulate(p.begin(), p.end(), 0.0); }

bool IsStable(const Polynomial& p) {
  std::vector<double> c(p.begin() + 1, p.end());
  for (double& value : c) value = -value;
  while (!c.empty()) {
    const double last = c.back();
    if (!(std::abs(last) < 1)) return false;
    const std::size_t k = c.size() - 1;
    std::vector<double> lower(k);
    for (std::size_t j = 0; j < k; ++j) {
      lower[j] = (c[j] + last * c[k - 1 - j]) / ((1 - last) * (1 + last));
    }
    c = std::move(lower);
  }
  return true;
}

std::vector<double> Quotient(const Polynomial& numerator, const Polynomial& denominator,
                             std::size_t count) {
  std::vector<double> quotient(count, 0.0);
  for (std::size_t t = 0; t < count; ++t) {
    double sum = t < numerator.size() ? numerator[t] : 0;
    for (std::size_t k = 1; k < denominator.size() && k <= t; ++k) {
      sum -= denominator[k] * quotient[t - k];
    }
    quotient[t] = sum;
  }
  return quotient;
}

std::size_t Degree(const AMPowers& lags) {
  std::size_t degree = 0;
  for (std::uint32_t i = 0; i < lags.GetCount(); ++i) {
    degree = std::max<std::size_t>(degree, lags.GetPower(i));
  }
  return degree;
}

namespace {

std::vector<double> FromFirstLag(const Polynomial& p, double sign) {
  std::vector<double> lags;
  for (std::size_t k = 1; k < p.size(); ++k) lags.push_back(sign * p[k]);
  return lags;
}

}  // namespace

Arma ArmaOf(const Polynomial& phi, const Polynomial& theta) {
  return {.ar = FromFirstLag(phi, -1), .ma = FromFirstLag(theta, 1)};
}

std::vector<double> PsiWeights(const Arma& arma, std::size_t count) {
  Polynomial ma = {1};
  ma.insert(ma.end(), arma.ma.begin(), arma.ma.end());
  Polynomial ar = {1};
  for (const double phi : arma.ar) ar.push_back(-phi);
  return Quotient(ma, ar, count);
}

}  // namespace tsffit
