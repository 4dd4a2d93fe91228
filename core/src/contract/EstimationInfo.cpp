#include <tsfcore/EstimationInfo.h>

double EstimationInfo::GetGOFStat(BFSharedConst::GOFStatType code) const {
  const int number = code;
  if (number < 0 || number >= BFSharedConst::kGOFStatCount) return MV::gMissingValue;
  return fields_.statistics[code];
}

void EstimationInfo::GetLBStat(double& statistic, unsigned long& k, unsigned long& degreesOfFreedom,
                               double& pValue) const {
  statistic = fields_.ljung_box.statistic;
  k = fields_.ljung_box.k;
  degreesOfFreedom = fields_.ljung_box.degrees_of_freedom;
  pValue = fields_.ljung_box.p_value;
}
