#include "tsxml/write/LagPolynomial.h"

#include "tsxml/Tags.h"
#include "tsxml/write/Parameters.h"
#include "xml/ElementPtr.h"

namespace tsx {

namespace {

using TIMESERIESXML::XMLElement;

// The position behind its last coefficient, modulo 2^32.
std::uint32_t EndOf(const LagPolynomial& p) {
  const std::uint32_t zeroLag = p.has_zero_lag ? 1 : 0;
  return p.seasonal.GetCount() + p.non_seasonal.GetCount() + zeroLag + p.first;
}

void AppendTerm(XMLElement& parent, std::uint32_t lag, CoefficientBlock& block) {
  const Coefficient coefficient = block.Next();
  AppendLagTerm(parent, lag, coefficient.value, coefficient.std_error);
}

void AppendTerms(XMLElement& parent, const AMPowers& lags, CoefficientBlock& block) {
  for (std::uint32_t i = 0; i < lags.GetCount(); ++i) AppendTerm(parent, lags.GetPower(i), block);
}

}  // namespace

void AppendLagPolynomial(XMLElement& parent, const char* name, const LagPolynomial& polynomial,
                         const Estimates& estimates) {
  const bool nonSeasonal = polynomial.has_zero_lag || polynomial.non_seasonal.GetCount() > 0;
  const bool seasonal = polynomial.seasonal.GetCount() > 0;
  if (!nonSeasonal && !seasonal) return;

  CoefficientBlock block(estimates, polynomial.first, EndOf(polynomial));
  ElementPtr e = MakeElement(name);
  if (nonSeasonal) {
    ElementPtr factor = MakeElement(tag::kNonSeasonalFactor);
    if (polynomial.has_zero_lag) AppendTerm(*factor, 0, block);
    AppendTerms(*factor, polynomial.non_seasonal, block);
    Append(*e, std::move(factor));
  }
  if (seasonal) {
    ElementPtr factor = MakeElement(tag::kSeasonalFactor);
    AppendTerms(*factor, polynomial.seasonal, block);
    Append(*e, std::move(factor));
  }
  Append(parent, std::move(e));
}

}  // namespace tsx
