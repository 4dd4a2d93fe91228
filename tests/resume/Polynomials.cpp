#include "Polynomials.h"

#include <cmath>

namespace test {

Polynomial Product(const Polynomial& a, const Polynomial& b) {
  Polynomial product(a.size() + b.size() - 1);
  for (std::size_t i = 0; i < a.size(); ++i) {
    for (std::size_t j = 0; j < b.size(); ++j) product[i + j] += a[i] * b[j];
  }
  return product;
}

Polynomial Differences(unsigned nonSeasonal, unsigned seasonal, std::size_t seasonLength) {
  Polynomial product = {1};
  for (unsigned i = 0; i < nonSeasonal; ++i) product = Product(product, {1, -1});
  Polynomial yearly(seasonLength + 1);
  yearly.front() = 1;
  yearly.back() = -1;
  for (unsigned i = 0; i < seasonal; ++i) product = Product(product, yearly);
  return product;
}

List Expansion(const Polynomial& numerator, const Polynomial& denominator, std::size_t last) {
  List psi;
  for (std::size_t k = 0; k <= last; ++k) {
    double value = k < numerator.size() ? numerator[k] : 0;
    for (std::size_t j = 1; j <= k && j < denominator.size(); ++j) {
      value -= denominator[j] * psi[k - j];
    }
    psi.push_back(value);
  }
  return psi;
}

double Apply(const std::string& function, double value) {
  if (function == "logarithm") return std::log(value);
  return function == "squareRoot" ? std::sqrt(value) : value;
}

double Undo(const std::string& function, double value) {
  if (function == "logarithm") return std::exp(value);
  return function == "squareRoot" ? value * value : value;
}

}  // namespace test
