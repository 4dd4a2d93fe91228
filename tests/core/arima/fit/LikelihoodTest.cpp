// The likelihood at given coefficients: three filters against densities by their definition, from a
// table (tests/reference/arima_points.py made it) and from DenseLikelihood.h.

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <numbers>
#include <sstream>

#include "arima/filter/NoiseFilter.h"
#include "arima/filter/StateSpace.h"
#include "arima/fit/Likelihood.h"
#include "arima/model/Design.h"
#include "arima/model/Effects.h"
#include "core/support/ArimaSeries.h"
#include "core/support/DenseLikelihood.h"
#include "core/support/TestSeries.h"

namespace tsffit {
namespace {

struct Point {
  std::string name;
  std::vector<double> noise;  // the series less its constant
  Polynomial phi;
  Polynomial theta;
  std::size_t observed = 0;
  double sse = 0;
  double log_determinant = 0;
  double log_likelihood = 0;

  Arma Model() const { return ArmaOf(phi, theta); }
  bool IsComplete() const { return observed == noise.size(); }
};

// "1:0.5 3:0.2"
Polynomial FactorOf(const std::string& text) {
  std::vector<std::uint32_t> lags;
  std::vector<double> coefficients;
  std::istringstream in(text);
  for (std::string term; in >> term;) {
    lags.push_back(static_cast<std::uint32_t>(std::stoul(term)));
    coefficients.push_back(std::stod(term.substr(term.find(':') + 1)));
  }
  return Minus(1, AMPowers(lags), coefficients);
}

std::vector<Point> Points() {
  std::map<std::string, std::vector<double>> series;
  for (const auto& row : test::ReadRows("reference/arima_points_series.csv")) {
    series[row[0]] = test::Numbers(row[1]);
  }
  std::vector<Point> points;
  for (const auto& row : test::ReadRows("reference/arima_points.csv")) {
    Point point{.name = row[0],
                .noise = series.at(row[1]),
                .phi = Product(FactorOf(row[2]), FactorOf(row[3])),
                .theta = Product(FactorOf(row[4]), FactorOf(row[5])),
                .observed = std::stoul(row[7]),
                .sse = std::stod(row[8]),
                .log_determinant = std::stod(row[9]),
                .log_likelihood = std::stod(row[10])};
    for (double& value : point.noise) {
      if (value != MV::gMissingValue) value -= std::stod(row[6]);
    }
    points.push_back(std::move(point));
  }
  return points;
}

void ExpectLikelihood(const Point& point, const Eigen::VectorXd& errors,
                      const Eigen::VectorXd& nu) {
  double sse = 0;
  double logDeterminant = 0;
  double n = 0;
  for (Eigen::Index t = 0; t < nu.size(); ++t) {
    if (nu[t] == 0) continue;
    sse += errors[t] * errors[t] / nu[t];
    logDeterminant += std::log(nu[t]);
    n += 1;
  }
  EXPECT_EQ(n, static_cast<double>(point.observed)) << point.name;
  const double likelihood =
      -n / 2 * (std::log(2 * std::numbers::pi * sse / n) + 1) - logDeterminant / 2;
  EXPECT_NEAR(sse, point.sse, 1e-9 * point.sse) << point.name;
  EXPECT_NEAR(logDeterminant, point.log_determinant, 1e-9 * (1 + point.log_determinant))
      << point.name;
  EXPECT_NEAR(likelihood, point.log_likelihood, 1e-10 * std::abs(point.log_likelihood))
      << point.name;
}

using Filter = bool (*)(const Arma&, Eigen::MatrixXd&, Eigen::VectorXd&);

void ExpectLikelihoodsBy(Filter filter) {
  std::size_t compared = 0;
  for (const Point& point : Points()) {
    if (!point.IsComplete()) continue;
    Eigen::MatrixXd columns = Eigen::Map<const Eigen::VectorXd>(
        point.noise.data(), static_cast<Eigen::Index>(point.noise.size()));
    Eigen::VectorXd nu;
    ASSERT_TRUE(filter(point.Model(), columns, nu)) << point.name;
    ExpectLikelihood(point, columns.col(0), nu);
    ++compared;
  }
  EXPECT_GT(compared, 20U);
}

TEST(ExactLikelihood, OfTheRecursionWithoutCovariancesIsTheDensity) {
  ExpectLikelihoodsBy(FilterExactly);
}

TEST(ExactLikelihood, OfTheThetaRecursionIsTheDensity) { ExpectLikelihoodsBy(FilterByThetas); }

TEST(ExactLikelihood, OfTheKalmanFilterIsTheDensityAlsoWithMissingCases) {
  for (const Point& point : Points()) {
    Eigen::MatrixXd columns(static_cast<Eigen::Index>(point.noise.size()), 1);
    std::vector<bool> missing;
    for (std::size_t t = 0; t < point.noise.size(); ++t) {
      missing.push_back(point.noise[t] == MV::gMissingValue);
      columns(static_cast<Eigen::Index>(t), 0) = ValueOrZero(point.noise[t]);
    }
    StateSpace filter(point.Model(), {1}, Eigen::MatrixXd(0, 1));
    const StateSpaceRun run = RunStateSpace(filter, columns, missing);
    ASSERT_TRUE(run.usable) << point.name;
    ExpectLikelihood(point, run.errors.col(0), run.nu);
  }
}

// The two filters for complete series give the same errors, one by one, whatever the column.
TEST(ExactLikelihood, FiltersAgreeErrorByError) {
  for (const Point& point : Points()) {
    if (!point.IsComplete()) continue;
    const auto n = static_cast<Eigen::Index>(point.noise.size());
    Eigen::MatrixXd columns(n, 3);
    columns.col(0) = Eigen::Map<const Eigen::VectorXd>(point.noise.data(), n);
    columns.col(1).setOnes();
    columns.col(2) = columns.col(0) + 2 * columns.col(1);
    Eigen::MatrixXd others = columns;
    Eigen::VectorXd nu;
    Eigen::VectorXd otherNu;
    ASSERT_TRUE(FilterExactly(point.Model(), columns, nu));
    ASSERT_TRUE(FilterByThetas(point.Model(), others, otherNu));
    const double scale = columns.cwiseAbs().maxCoeff();
    EXPECT_LT((columns - others).cwiseAbs().maxCoeff(), 1e-8 * scale) << point.name;
    EXPECT_LT((nu - otherNu).cwiseAbs().maxCoeff(), 1e-8 * nu.maxCoeff()) << point.name;
    EXPECT_LT((columns.col(2) - columns.col(0) - 2 * columns.col(1)).cwiseAbs().maxCoeff(),
              1e-8 * scale)
        << point.name;
  }
}

TEST(ConditionalErrors, AreZeroBeforeTheFirstScoredCase) {
  // phi = 0.5, theta = 0.4 by hand: e_1 = 2 - 0.5, e_2 = -1 - 0.5 * 2 + 0.4 * 1.5
  Eigen::MatrixXd columns(4, 1);
  columns << 1, 2, -1, 3;
  Eigen::VectorXd nu;
  ASSERT_TRUE(FilterConditionally(ArmaOf({1, -0.5}, {1, -0.4}), columns, nu));
  EXPECT_EQ(nu, Eigen::Vector4d(0, 1, 1, 1));
  EXPECT_NEAR(columns(0, 0), 0, 1e-15);
  EXPECT_NEAR(columns(1, 0), 1.5, 1e-15);
  EXPECT_NEAR(columns(2, 0), -1.4, 1e-15);
  EXPECT_NEAR(columns(3, 0), 3 + 0.5 - 0.4 * 1.4, 1e-15);
}

// An integrated series with missing cases against the density with them integrated out.
struct Gaps {
  const char* name;
  test::Orders orders;
  std::vector<double> parameters;
  std::vector<std::size_t> missing;
  bool predictor = false;
};

std::vector<Gaps> AllGaps() {
  const test::Orders airline = {
      .d = 1, .ma = {1}, .seasonal_d = 1, .seasonal_ma = {1}, .season_length = 12};
  const test::Orders walk = {.d = 1, .ma = {1}, .has_constant = true};
  const test::Orders twice = {.ar = {1}, .d = 2, .ma = {1}};
  const test::Orders quarters = {
      .ar = {1, 3}, .seasonal_ar = {1}, .seasonal_d = 1, .season_length = 4, .has_constant = true};
  return {{"airline, inside", airline, {0.4, 0.6}, {30, 31, 45, 60, 70}},
          {"airline, near the circle", airline, {0.95, 0.98}, {30, 45, 50, 51, 52}},
          {"airline, before the first row", airline, {0.4, 0.6}, {3, 7, 12, 40}},
          {"airline, at the end", airline, {0.4, 0.6}, {20, 66, 69, 71}},
          {"airline, many", airline, {0.4, 0.6}, {1,  6,  14, 16, 18, 22, 25, 27, 33, 34, 35, 37,
                                                  41, 44, 50, 53, 57, 58, 61, 62, 63, 67, 68}},
          {"airline with a predictor", airline, {0.4, 0.6, 0}, {5, 33, 34, 60}, true},
          {"walk with drift", walk, {0, 0.3}, {10, 11, 12, 13, 14, 15, 50}},
          {"two differences", twice, {0.5, -0.4}, {1, 20, 40, 41}},
          {"gapped lags, seasonal", quarters, {0, 0.5, -0.3, 0.6}, {2, 9, 13, 17, 44, 60}},
          {"none missing", quarters, {0, 0.5, -0.3, 0.6}, {}}};
}

std::vector<double> SeriesWithout(const std::vector<std::size_t>& missing) {
  std::vector<double> z = test::Generate(72, [](std::size_t t) {
    return 20 + 0.1 * static_cast<double>(t) + test::Noise(t) + static_cast<double>(t % 12);
  });
  for (const std::size_t t : missing) z[t] = MV::gMissingValue;
  return z;
}

class MissingCases : public testing::TestWithParam<Gaps> {
 protected:
  static AMModelSpec Spec() {
    AMModelSpec::Fields spec = test::SpecOf(GetParam().orders);
    if (GetParam().predictor) {
      spec.predictors = {
          {.non_seasonal_diff = spec.non_seasonal_diff, .seasonal_diff = spec.seasonal_diff}};
    }
    return AMModelSpec(spec);
  }
  static ArimaData Data() {
    ArimaData data;
    data.series = SeriesWithout(GetParam().missing);
    if (GetParam().predictor) {
      data.predictors = {test::Generate(72, [](std::size_t t) { return test::Noise(t + 500); })};
    }
    return data;
  }
  // The same model for the density.
  static test::DenseModel Dense(const Design& design) {
    const std::vector<double>& parameters = GetParam().parameters;
    const auto factor = [&](std::size_t first, const AMPowers& regular, const AMPowers& seasonal) {
      const auto rest = std::span(parameters).subspan(first);
      return Product(Minus(1, regular, rest.first(regular.GetCount())),
                     Minus(1, seasonal, rest.subspan(regular.GetCount(), seasonal.GetCount())));
    };
    AMPowers regular;
    AMPowers seasonal;
    const std::size_t ar = design.Spec().GetARStruct(regular, seasonal);
    test::DenseModel dense;
    dense.phi = factor(ar, regular, seasonal);
    const std::size_t ma = design.Spec().GetMAStruct(regular, seasonal);
    dense.theta = factor(ma, regular, seasonal);
    dense.difference = design.Difference();
    dense.z = design.Data().series;
    dense.effects = design.Effects(parameters);
    return dense;
  }
};

TEST_P(MissingCases, HaveTheDensityWithThemIntegratedOut) {
  const Design design(Spec(), Data());
  const Likelihood likelihood(design, ArimaMethod::kMl);
  const Evaluation at = likelihood.At(GetParam().parameters);
  const test::DenseLikelihood dense = test::Evaluate(Dense(design));
  ASSERT_TRUE(at.usable);
  EXPECT_EQ(at.residuals, dense.residuals);
  EXPECT_NEAR(at.fit.sse, dense.sse, 1e-10 * dense.sse);
  EXPECT_NEAR(at.log_determinant, dense.log_determinant, 1e-10 * (1 + dense.log_determinant));
  EXPECT_NEAR(at.LogLikelihood(), dense.log_likelihood, 1e-10 * std::abs(dense.log_likelihood));
  for (std::size_t j = 0; j < dense.effects.size(); ++j) {
    EXPECT_NEAR(at.parameters[design.LinearPositions()[j]], dense.effects[j],
                1e-7 * (1e-3 + std::abs(dense.effects[j])));
  }
}

// A search may take another filter than its solution: few missing cases in a long state are
// regressors to it.
TEST_P(MissingCases, HaveTheSameDensityInASearch) {
  const Design design(Spec(), Data());
  const Likelihood likelihood(design, ArimaMethod::kMl);
  const test::DenseLikelihood dense = test::Evaluate(Dense(design));
  const double expected =
      (static_cast<double>(dense.residuals) * std::log(dense.sse) + dense.log_determinant) / 2;
  EXPECT_NEAR(likelihood.CriterionAt(GetParam().parameters), expected, 1e-9 * std::abs(expected));
  const Eigen::VectorXd effects = likelihood.LinearAt(GetParam().parameters);
  ASSERT_EQ(static_cast<std::size_t>(effects.size()), dense.effects.size());
  for (std::size_t j = 0; j < dense.effects.size(); ++j) {
    EXPECT_NEAR(effects[static_cast<Eigen::Index>(j)], dense.effects[j],
                1e-7 * (1e-3 + std::abs(dense.effects[j])));
  }
}

INSTANTIATE_TEST_SUITE_P(Likelihood, MissingCases, testing::ValuesIn(AllGaps()),
                         [](const testing::TestParamInfo<Gaps>& each) {
                           std::string name = each.param.name;
                           std::erase_if(name, [](char c) { return !std::isalnum(c); });
                           return name;
                         });

}  // namespace
}  // namespace tsffit
