#include <tsfcore/ARMACLSForecastState.h>
#include <tsfcore/ARMAMLForecastState.h>
#include <tsfcore/ARMAMLSpForecastState.h>
#include <tsfcore/ESForecastState.h>
#include <tsfcore/ForecastStateVisitor.h>

TSModelSpec::~TSModelSpec() = default;
ForecastState::~ForecastState() = default;
ForecastStateVisitor::~ForecastStateVisitor() = default;

void ESForecastState::Accept(ForecastStateVisitor& visitor) const { visitor.Visit(*this); }
void ARMACLSForecastState::Accept(ForecastStateVisitor& visitor) const { visitor.Visit(*this); }
void ARMAMLForecastState::Accept(ForecastStateVisitor& visitor) const { visitor.Visit(*this); }
void ARMAMLSpForecastState::Accept(ForecastStateVisitor& visitor) const { visitor.Visit(*this); }

void ARMAForecastState::GetXHistory(unsigned int i, const std::valarray<double>*& predictor,
                                    const std::valarray<double>*& transferFunction) const {
  const bool known = i < common_.x_history.size();
  predictor = known ? &common_.x_history[i].predictor : nullptr;
  transferFunction = known ? &common_.x_history[i].transfer_function : nullptr;
}
