#ifndef TSXPORT_TSXML_WRITE_LAGPOLYNOMIAL_H_
#define TSXPORT_TSXML_WRITE_LAGPOLYNOMIAL_H_

#include <cstdint>

#include <tsfcore/AMPowers.h>
#include <tsxport/XMLElement.h>

#include "tsxml/write/Coefficients.h"

namespace tsx {

// A polynomial in the backshift operator: its lags, and where its coefficients stand in the
// parameter vector. The zero-lag one comes first, then the non-seasonal ones, then the seasonal.
struct LagPolynomial {
  std::uint32_t first = 0;
  bool has_zero_lag = false;
  AMPowers non_seasonal{};
  AMPowers seasonal{};
};

// Appends:
//   <name>
//     <NonSeasonalFactor>?
//       <ZeroLagTerm>? <LagTerm lag>*
//     </NonSeasonalFactor>
//     <SeasonalFactor>?
//       <LagTerm lag>*
//     </SeasonalFactor>
//   </name>
// Nothing when the polynomial has no terms. Terms are empty when the estimates do not reach to the
// end of the polynomial.
void AppendLagPolynomial(TIMESERIESXML::XMLElement& parent, const char* name,
                         const LagPolynomial& polynomial, const Estimates& estimates);

}  // namespace tsx

#endif  // TSXPORT_TSXML_WRITE_LAGPOLYNOMIAL_H_
