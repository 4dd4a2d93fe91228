#ifndef TSFFIT_SERIES_REFUSAL_H_
#define TSFFIT_SERIES_REFUSAL_H_

#include <cstddef>
#include <optional>
#include <string>
#include <utility>

#include <tsffit/FitStatus.h>

namespace tsffit {

// Why something is not fitted, and the sentence for people.
struct Fault {
  FitStatus status = FitStatus::kOk;
  std::string message{};
};

// Writes a refusal into a fit of any method; always false, for `return Refuse(...)`.
template <class Fit>
bool Refuse(Fit& fit, const Fault& fault) {
  fit.status = fault.status;
  fit.message = fault.message;
  return false;
}

template <class Fit>
bool Refuse(Fit& fit, FitStatus status, std::string message) {
  return Refuse(fit, Fault{.status = status, .message = std::move(message)});
}

// What every method says about transformations and values. Values are given as they stand in the
// series, and not missing.

// A code that is no transformation.
std::optional<Fault> NoSuchTransformation(int functionType);

// A value that is infinite or a NaN.
std::optional<Fault> NotFinite(double value);

// A value larger in size than `largest`, with which the method can no longer calculate.
std::optional<Fault> TooLarge(double value, double largest);

// A finite value outside the domain of its transformation.
std::optional<Fault> OutsideDomain(int functionType, double value);

// A series with `observed` cases for a model that needs `needed`.
Fault TooShort(std::size_t needed, std::size_t observed);

// A series without any.
Fault NothingObserved();

// Differences of larger values are no longer numbers.
inline constexpr double kLargestValue = 1e300;

}  // namespace tsffit

#endif  // TSFFIT_SERIES_REFUSAL_H_
