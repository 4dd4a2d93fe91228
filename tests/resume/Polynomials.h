#ifndef TSXPORT_TESTS_RESUME_POLYNOMIALS_H_
#define TSXPORT_TESTS_RESUME_POLYNOMIALS_H_

#include <cstddef>
#include <string>
#include <vector>

namespace test {

using List = std::vector<double>;
using Polynomial = std::vector<double>;  // in B: the coefficients of 1, B, B^2 ..

inline std::size_t Degree(const Polynomial& polynomial) { return polynomial.size() - 1; }
Polynomial Product(const Polynomial& a, const Polynomial& b);
Polynomial Differences(unsigned nonSeasonal, unsigned seasonal, std::size_t seasonLength);

// Coefficients of B^0 .. B^last of numerator(B) / denominator(B); the denominator begins with 1.
List Expansion(const Polynomial& numerator, const Polynomial& denominator, std::size_t last);

// The function of a transformation and its inverse; "" is none.
double Apply(const std::string& function, double value);
double Undo(const std::string& function, double value);

}  // namespace test

#endif  // TSXPORT_TESTS_RESUME_POLYNOMIALS_H_
