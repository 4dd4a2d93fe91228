#include "ReadArima.h"

#include <pugixml.hpp>
#include <stdexcept>

#include "NumberList.h"

namespace test {

namespace {

// A coefficient without an estimate counts as 0.
double Estimate(const pugi::xml_node& parameter) {
  const List numbers = NumbersIn(parameter);
  return numbers.empty() ? 0 : numbers.front();
}

double Coefficient(const pugi::xml_node& term) {
  return Estimate(term.child("EstimatedParameter"));
}

// `first` minus the terms of the lags; just `first` when there is no such factor.
Polynomial Factor(double first, const pugi::xml_node& factor) {
  Polynomial polynomial = {first};
  for (const pugi::xml_node term : factor.children("LagTerm")) {
    const std::size_t lag = term.attribute("lag").as_uint();
    if (lag >= polynomial.size()) polynomial.resize(lag + 1);
    polynomial[lag] = -Coefficient(term);
  }
  return polynomial;
}

Polynomial Factors(double first, const pugi::xml_node& element) {
  return Product(Factor(first, element.child("NonSeasonalFactor")),
                 Factor(1, element.child("SeasonalFactor")));
}

ReadTransformation Transformation(const pugi::xml_node& element, std::size_t season) {
  return {.function = element.attribute("function").as_string(""),
          .differences = Differences(element.attribute("nonSeasonalDiff").as_uint(),
                                     element.attribute("seasonalDiff").as_uint(), season),
          .delay = element.attribute("delay").as_uint()};
}

ReadPredictor Predictor(const pugi::xml_node& effect, const pugi::xml_node& state,
                        std::size_t season) {
  const pugi::xml_node numerator = effect.child("Numerator");
  const double zeroLag = Coefficient(numerator.child("NonSeasonalFactor").child("ZeroLagTerm"));
  return {.transformation = Transformation(effect.child("Transformation"), season),
          .numerator = Factors(zeroLag, numerator),
          .denominator = Factors(1, effect.child("Denominator")),
          .values = NumbersIn(state.child("FinalPredictor")),
          .outputs = NumbersIn(state.child("FinalTransferFunc"))};
}

std::vector<ReadPredictor> Predictors(const pugi::xml_node& model, const pugi::xml_node& state,
                                      std::size_t season) {
  std::vector<ReadPredictor> predictors;
  pugi::xml_node history = state.child("PredictorState");
  for (const pugi::xml_node effect : model.children("PredictorEffect")) {
    predictors.push_back(Predictor(effect, history, season));
    history = history.next_sibling("PredictorState");
  }
  return predictors;
}

ReadOutlier Outlier(const pugi::xml_node& effect) {
  const pugi::xml_node size = effect.child("EstimatedParameter");
  return {.type = effect.attribute("type").value(),
          .start = effect.attribute("startIndex").as_int(),
          .size = Estimate(size),
          .decay = Estimate(size.next_sibling("EstimatedParameter"))};
}

pugi::xml_node StateElement(const pugi::xml_node& model) {
  for (const char* name : {"ARIMAMLSpState", "ARIMAMLState", "ARIMACLSState"}) {
    if (const pugi::xml_node state = model.child(name)) return state;
  }
  throw std::runtime_error("no state");
}

ReadState State(const pugi::xml_node& element) {
  ReadState state;
  state.element = element.name();
  state.z = NumbersIn(element.child("ZState").child("FinalZ"));
  state.predicted_z = NumbersIn(element.child("ZState").child("FinalPredictedZ"));
  state.noise = NumbersIn(element.child("NoiseState").child("FinalNoise"));
  state.predicted_noise = NumbersIn(element.child("NoiseState").child("FinalPredictedNoise"));
  const pugi::xml_node recursion = element.child("ThetaRecursionState");
  state.iterations = recursion.attribute("finalIterationNumber").as_uint();
  for (const pugi::xml_node row : recursion.child("FinalThetas").children("ThetaVec")) {
    state.thetas.push_back(NumbersIn(row));
  }
  state.nu = NumbersIn(recursion.child("FinalNu"));
  state.vector = NumbersIn(element.child("KalmanState").child("FinalStateVector"));
  state.omega = NumbersIn(element.child("KalmanState").child("FinalOmega"));
  return state;
}

}  // namespace

ReadArima ReadDocument(const std::string& text) {
  pugi::xml_document document;
  if (!document.load_string(text.c_str())) throw std::runtime_error("not well-formed");
  const pugi::xml_node model = document.child("TSCXML").child("ARIMAModel");
  const pugi::xml_node state = StateElement(model);
  const pugi::xml_node info = model.child("EstimationInfo");

  ReadArima read;
  read.season = model.attribute("seasonLength").as_uint(1);
  read.transformation = Transformation(model.child("Transformation"), read.season);
  read.constant = Coefficient(model.child("ConstantTerm"));
  read.ar = Factors(1, model.child("Autoregression"));
  read.ma = Factors(1, model.child("MovingAverage"));
  read.predictors = Predictors(model, state, read.season);
  for (const pugi::xml_node effect : model.children("OutlierEffect")) {
    read.outliers.push_back(Outlier(effect));
  }
  read.state = State(state);
  read.error_variance =
      NumbersIn(info.find_child_by_attribute("Statistic", "type", "errVariance")).at(0);
  read.first_period = info.attribute("periodStartIndex").as_uint();
  read.length = info.attribute("periodLength").as_int();
  return read;
}

}  // namespace test
