// The door to a fitted model tells what its state is, whatever wrote the model.

#include <gtest/gtest.h>
#include <memory>
#include <string>

#include <tsfcore/tsfcore.h>
#include <tsffit/Arima.h>

#include "dispatch/WithState.h"

namespace tsffit {
namespace {

template <class State>
TSFModel ModelWith(typename State::Fields fields) {
  return TSFModel(new TSFModelImp({.state = std::make_unique<State>(std::move(fields))}));
}

struct NameOfState {
  std::string& name;
  void operator()(const ESForecastState&) const { name = "smoothing"; }
  void operator()(const ARMAMLForecastState&) const { name = "Kalman"; }
  void operator()(const ARMAMLSpForecastState&) const { name = "thetas"; }
  void operator()(const ARMACLSForecastState&) const { name = "conditional"; }
};

std::string StateIn(const TSFModel& model) {
  std::string name = "none";
  WithState(model, NameOfState{name});
  return name;
}

TEST(WithState, EveryClassComesAsItself) {
  EXPECT_EQ(StateIn(ModelWith<ESForecastState>({})), "smoothing");
  EXPECT_EQ(StateIn(ModelWith<ARMAMLForecastState>({})), "Kalman");
  EXPECT_EQ(StateIn(ModelWith<ARMAMLSpForecastState>({})), "thetas");
  EXPECT_EQ(StateIn(ModelWith<ARMACLSForecastState>({})), "conditional");
}

TEST(WithState, WithoutAStateNothingIsCalled) {
  EXPECT_EQ(StateIn(TSFModel()), "none");
  EXPECT_EQ(StateIn(TSFModel(new TSFModelImp({}))), "none");
}

TEST(Dispatch, SmoothingModelsTakeNoPredictors) {
  ESForecastState::Fields fields;
  fields.spec = ESModelSpec(ESModelSpec::ForKind(ESModelSpec::kSimple, 1));
  fields.estimates = {0.5};
  fields.smoothed = {.level = 7};
  const TSFModel model = ModelWith<ESForecastState>(std::move(fields));
  EXPECT_EQ(Forecast(model, 2, {}).value, (std::vector<double>{7, 7}));
  EXPECT_TRUE(Forecast(model, 2, {{1, 2}}).value.empty());
}

}  // namespace
}  // namespace tsffit
