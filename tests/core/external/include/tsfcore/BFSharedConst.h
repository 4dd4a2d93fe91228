#ifndef TSFCORE_BFSHAREDCONST_H_
#define TSFCORE_BFSHAREDCONST_H_

// Codes that core and exporter share.
namespace BFSharedConst {

// Fit statistics. EstimationInfo.h gives each one's formula. Codes 9 to 12 are reserved.
enum GOFStatType : int {
  kMeanSqrErr = 0,
  kRootMeanSqrErr = 1,
  kMeanAbsPctErr = 2,
  kMeanAbsErr = 3,
  kMaxAbsPctErr = 4,
  kMaxAbsErr = 5,
  kRSqr = 6,
  kNormBayesIC = 7,
  kLogLikelihood = 8,
  kAkaikeIC = 13,
  kBayesIC = 14,
  kStationaryRSqr = 15,
};

inline constexpr int kGOFStatCount = 16;

}  // namespace BFSharedConst

#endif  // TSFCORE_BFSHAREDCONST_H_
