#ifndef TSXPORT_TSXML_NAMES_H_
#define TSXPORT_TSXML_NAMES_H_

#include <algorithm>
#include <cstddef>
#include <iterator>

#include <tsfcore/BFSharedConst.h>
#include <tsfcore/ESModelSpec.h>
#include <tsfcore/TSOutlierSpec.h>

#include "tsxml/Tags.h"

// The core's codes beside what documents call them: what writing and reading must agree on.
namespace tsx {

template <typename Code>
struct NamedCode {
  Code code;
  const char* name;
};

// The name of `code` in a table; null when it has none.
template <typename Code, std::size_t kCount>
constexpr const char* NameOf(const NamedCode<Code> (&table)[kCount], Code code) {
  const auto* const row =
      std::find_if(std::begin(table), std::end(table),
                   [code](const NamedCode<Code>& named) { return named.code == code; });
  return row != std::end(table) ? row->name : nullptr;
}

inline constexpr NamedCode<int> kOutlierTypes[] = {
    {TSOutlierSpec::kAdditive, "additive"},
    {TSOutlierSpec::kLevel, "level"},
    {TSOutlierSpec::kTransient, "transient"},
    {TSOutlierSpec::kSeasonalAdditive, "seasonalAdditive"},
    {TSOutlierSpec::kTrend, "trend"},
    {TSOutlierSpec::kInnovational, "innovational"},
    {TSOutlierSpec::kVarianceChange, "varianceChange"},
};

inline constexpr NamedCode<int> kSmoothingKinds[] = {
    {ESModelSpec::kAdditiveWinters, tag::kESAdditiveWinters},
    {ESModelSpec::kBrown, tag::kESBrown},
    {ESModelSpec::kDampedTrend, tag::kESDampedTrend},
    {ESModelSpec::kHolt, tag::kESHolt},
    {ESModelSpec::kMultiplicativeWinters, tag::kESMultiplicativeWinters},
    {ESModelSpec::kSimpleSeasonal, tag::kESSimpleSeasonal},
    {ESModelSpec::kSimple, tag::kESSimple},
};

// In document order.
inline constexpr NamedCode<int> kSmoothingWeights[] = {
    {ESModelSpec::kLevel, tag::kParmLevel},
    {ESModelSpec::kTrend, tag::kParmTrend},
    {ESModelSpec::kSeason, tag::kParmSeason},
    {ESModelSpec::kDamping, tag::kParmDampingTrend},
};

// In document order. Codes 9 to 12 are not written, on purpose.
inline constexpr NamedCode<BFSharedConst::GOFStatType> kStatistics[] = {
    {BFSharedConst::kMeanSqrErr, "meanSqrErr"},
    {BFSharedConst::kRootMeanSqrErr, "rootMeanSqrErr"},
    {BFSharedConst::kMeanAbsPctErr, "meanAbsPctErr"},
    {BFSharedConst::kMeanAbsErr, "meanAbsErr"},
    {BFSharedConst::kMaxAbsPctErr, "maxAbsPctErr"},
    {BFSharedConst::kMaxAbsErr, "maxAbsErr"},
    {BFSharedConst::kRSqr, "rSqr"},
    {BFSharedConst::kNormBayesIC, "normBayesIC"},
    {BFSharedConst::kLogLikelihood, "logLikelihood"},
    {BFSharedConst::kAkaikeIC, "akaikeIC"},
    {BFSharedConst::kBayesIC, "bayesIC"},
    {BFSharedConst::kStationaryRSqr, "stationaryRSqr"},
};

}  // namespace tsx

#endif  // TSXPORT_TSXML_NAMES_H_
