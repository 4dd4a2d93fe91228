#ifndef TSFCORE_ESTIMATIONINFO_H_
#define TSFCORE_ESTIMATIONINFO_H_

#include <array>
#include <cstddef>
#include <cstdint>

#include <tsfcore/BFSharedConst.h>
#include <tsfcore/Export.h>
#include <tsfcore/MV.h>

// The goodness-of-fit record of one estimation. A plain value; what is undefined is missing.
class TSF_EXPORT EstimationInfo {
 public:
  // The periods that were fitted.
  struct Span {
    std::uint64_t start = 0;   // index of the first case of the fit, counted from 0
    std::uint64_t length = 0;  // number of periods
  };

  // Ljung-Box test of the residuals.
  struct LjungBox {
    double statistic = MV::gMissingValue;
    unsigned long k = 0;  // lags
    unsigned long degrees_of_freedom = 0;
    double p_value = MV::gMissingValue;
  };

  // Statistics by their code, each missing until set.
  class Statistics {
   public:
    Statistics() { values_.fill(MV::gMissingValue); }
    double& operator[](BFSharedConst::GOFStatType code) {
      return values_[static_cast<std::size_t>(code)];
    }
    double operator[](BFSharedConst::GOFStatType code) const {
      return values_[static_cast<std::size_t>(code)];
    }

   private:
    std::array<double, BFSharedConst::kGOFStatCount> values_;
  };

  struct Fields {
    Span span{};
    std::uint64_t degrees_of_freedom = 0;       // non-missing cases minus estimated parameters
    double error_variance = MV::gMissingValue;  // on the modelled scale
    Statistics statistics{};
    LjungBox ljung_box{};
  };

  EstimationInfo() = default;
  explicit EstimationInfo(const Fields& fields) : fields_(fields) {}

  const Span& GetSpan() const { return fields_.span; }
  std::uint64_t GetDegreesOfFreedom() const { return fields_.degrees_of_freedom; }
  double GetErrorVariance() const { return fields_.error_variance; }

  // The statistic; missing when undefined or when `code` is none of the codes.
  double GetGOFStat(BFSharedConst::GOFStatType code) const;

  // Statistic, lags, degrees of freedom, p-value. The statistic is missing when there is no test.
  void GetLBStat(double& statistic, unsigned long& k, unsigned long& degreesOfFreedom,
                 double& pValue) const;

 private:
  Fields fields_;
};

#endif  // TSFCORE_ESTIMATIONINFO_H_
