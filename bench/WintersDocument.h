#ifndef TSXPORT_BENCH_WINTERSDOCUMENT_H_
#define TSXPORT_BENCH_WINTERSDOCUMENT_H_

#include <array>
#include <string>
#include <vector>

// A document of multiplicative Winters models, shaped as the library's own export, built by the
// calls of any tree that has them.
namespace bench {

struct Estimate {
  double value;
  double standard_error;
};

struct WintersModel {
  std::string name;
  Estimate level, trend, season;
  double state_level, state_trend;
  std::array<double, 12> state_season;
  std::array<double, 13> statistics;
  double ljung_box, p_value;
};

inline constexpr std::array<const char*, 13> kStatisticTypes = {
    "errVariance",  "meanSqrErr", "rootMeanSqrErr", "meanAbsPctErr", "meanAbsErr",
    "maxAbsPctErr", "maxAbsErr",  "rSqr",           "normBayesIC",   "logLikelihood",
    "akaikeIC",     "bayesIC",    "stationaryRSqr"};

// Models with numbers as fits have them: all finite, most with more than 15 digits to round. The
// same ones at every call.
std::vector<WintersModel> MakeModels(int count);

// `Tree` offers, with `Tree::Element` for what it calls an element:
//   Element Root(name)
//   Element Child(parent, name)
//   void Attribute(element, name, const char* or double)
//   void List(element, doubles, count)    // values separated by blanks, as the element's text
//   void Pair(element, double, double)    // the same for two
template <typename Tree>
void BuildEstimate(Tree& tree, typename Tree::Element parent, const char* name,
                   const Estimate& estimate) {
  auto parameter = tree.Child(parent, name);
  auto estimated = tree.Child(parameter, "EstimatedParameter");
  tree.Pair(estimated, estimate.value, estimate.standard_error);
}

template <typename Tree>
void BuildState(Tree& tree, typename Tree::Element parent, const WintersModel& model) {
  tree.List(tree.Child(parent, "StateLevel"), &model.state_level, 1);
  tree.List(tree.Child(parent, "StateTrend"), &model.state_trend, 1);
  auto season = tree.Child(parent, "StateSeason");
  tree.Attribute(season, "phase", 0.0);
  tree.List(season, model.state_season.data(), model.state_season.size());
}

template <typename Tree>
void BuildEstimationInfo(Tree& tree, typename Tree::Element parent, const WintersModel& model) {
  auto info = tree.Child(parent, "EstimationInfo");
  tree.Attribute(info, "periodStartIndex", 0.0);
  tree.Attribute(info, "periodLength", 144.0);
  tree.Attribute(info, "degreesOfFreedom", 141.0);
  for (std::size_t i = 0; i < kStatisticTypes.size(); ++i) {
    auto statistic = tree.Child(info, "Statistic");
    tree.Attribute(statistic, "type", kStatisticTypes[i]);
    tree.List(statistic, &model.statistics[i], 1);
  }
  auto ljungBox = tree.Child(info, "LjungBoxStatistic");
  tree.Attribute(ljungBox, "k", 18.0);
  tree.Attribute(ljungBox, "degreesOfFreedom", 15.0);
  tree.Attribute(ljungBox, "pValue", model.p_value);
  tree.List(ljungBox, &model.ljung_box, 1);
}

template <typename Tree>
void BuildModel(Tree& tree, typename Tree::Element root, const WintersModel& model) {
  auto element = tree.Child(root, "ExpSmoothingModel");
  tree.Attribute(element, "modelName", model.name.c_str());
  tree.Attribute(element, "modelDescriptor", "Winters' multiplicative, monthly");
  tree.Attribute(element, "variableID", "passengers");
  tree.Attribute(element, "dateSpecID", 1.0);
  tree.Attribute(tree.Child(element, "Transformation"), "function", "logarithm");
  auto kind = tree.Child(element, "ESMultiplicativeWinters");
  tree.Attribute(kind, "seasonLength", 12.0);
  BuildEstimate(tree, kind, "ParmLevel", model.level);
  BuildEstimate(tree, kind, "ParmTrend", model.trend);
  BuildEstimate(tree, kind, "ParmSeason", model.season);
  BuildState(tree, kind, model);
  BuildEstimationInfo(tree, element, model);
}

template <typename Tree>
void BuildDocument(Tree& tree, const std::vector<WintersModel>& models) {
  auto root = tree.Root("TSCXML");
  tree.Attribute(root, "version", "1.0");
  for (const WintersModel& model : models) BuildModel(tree, root, model);
}

}  // namespace bench

#endif  // TSXPORT_BENCH_WINTERSDOCUMENT_H_
