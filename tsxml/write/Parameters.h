#ifndef TSXPORT_TSXML_WRITE_PARAMETERS_H_
#define TSXPORT_TSXML_WRITE_PARAMETERS_H_

#include <cstdint>
#include <valarray>

#include <tsfcore/ESModelSpec.h>
#include <tsxport/XMLElement.h>

namespace tsx {

// Appends:
//   <EstimatedParameter>value stdError?</EstimatedParameter>
// The standard error is left out when missing. False, and nothing appended, when the value is
// missing. Infinities stay as the number format writes them: number lists alone map them.
bool AppendEstimatedParameter(TIMESERIESXML::XMLElement& parent, double value, double stdError);

// Appends the weight of an exponential smoothing model:
//   <name>
//     <EstimatedParameter>
//   </name>
// True without anything appended when the model has no such weight; false when it has one whose
// estimate is missing or out of the vector's reach.
bool AppendNamedParameter(TIMESERIESXML::XMLElement& parent, const ESModelSpec& spec, int weight,
                          const char* name, const std::valarray<double>& values,
                          const std::valarray<double>& stdErrors);

// Appends the coefficient of one lag:
//   <LagTerm lag>  or, for lag 0,  <ZeroLagTerm>
//     <EstimatedParameter>?
// The element itself is appended in every case.
void AppendLagTerm(TIMESERIESXML::XMLElement& parent, std::uint32_t lag, double value,
                   double stdError);

}  // namespace tsx

#endif  // TSXPORT_TSXML_WRITE_PARAMETERS_H_
