// Tests for orders of differencing, and the orders, against R's.

#include <cmath>
#include <gtest/gtest.h>

#include <tsfcore/MV.h>

#include "arima/orders/Stl.h"
#include "arima/orders/UnitRoots.h"
#include "core/support/TestSeries.h"

namespace {

using test::Generate;

struct Row {
  std::string name;
  std::vector<double> series;
  unsigned season_length = 1;
  double kpss = 0;
  double strength = 0;  // missing where R has none
  unsigned d = 0;
  unsigned seasonal_d = 0;
};

std::vector<Row> Reference() {
  std::vector<Row> rows;
  for (const auto& row : test::ReadRows("reference/unit_roots.csv")) {
    const std::size_t colon = row[0].find(':');
    std::vector<double> series =
        test::DataColumn(row[0].substr(0, colon) + ".csv", row[0].substr(colon + 1));
    if (row[2] == "1") {
      for (double& y : series) y = y == MV::gMissingValue ? y : std::log(y);
    }
    rows.push_back({.name = row[0] + (row[2] == "1" ? " logarithm" : ""),
                    .series = series,
                    .season_length = static_cast<unsigned>(std::stoul(row[1])),
                    .kpss = std::stod(row[3]),
                    .strength = test::Numbers(row[4])[0],
                    .d = static_cast<unsigned>(std::stoul(row[5])),
                    .seasonal_d = static_cast<unsigned>(std::stoul(row[6]))});
  }
  return rows;
}

TEST(UnitRoot, StatisticOfStationarityIsThatOfR) {
  for (const Row& row : Reference()) {
    const double kpss = tsffit::KpssStatistic(tsffit::Observed(row.series));
    EXPECT_NEAR(kpss, row.kpss, 1e-8 * row.kpss) << row.name;
  }
}

TEST(UnitRoot, StrengthOfTheSeasonIsThatOfR) {
  std::size_t compared = 0;
  for (const Row& row : Reference()) {
    if (row.strength == MV::gMissingValue) continue;
    EXPECT_NEAR(tsffit::SeasonalStrength(row.series, row.season_length), row.strength, 1e-8)
        << row.name;
    ++compared;
  }
  EXPECT_GT(compared, 20U);
}

TEST(UnitRoot, OrdersOfDifferencingAreThoseOfR) {
  for (const Row& row : Reference()) {
    const unsigned seasonal = tsffit::SeasonalDifferences(row.series, row.season_length, 1);
    EXPECT_EQ(seasonal, row.seasonal_d) << row.name;
    std::vector<double> x = row.series;
    if (seasonal > 0) x = tsffit::DifferencedBy(x, row.season_length);
    EXPECT_EQ(tsffit::NonSeasonalDifferences(x, 2), row.d) << row.name;
  }
}

TEST(UnitRoot, LimitsHold) {
  const auto squares =
      Generate(60, [](std::size_t t) { return static_cast<double>(t * t) + 0.1 * test::Noise(t); });
  EXPECT_EQ(tsffit::NonSeasonalDifferences(squares, 2), 2U);
  EXPECT_EQ(tsffit::NonSeasonalDifferences(squares, 1), 1U);
  EXPECT_EQ(tsffit::NonSeasonalDifferences(squares, 0), 0U);
  const auto season = Generate(60, [](std::size_t t) { return static_cast<double>(t % 4); });
  EXPECT_EQ(tsffit::SeasonalDifferences(season, 4, 1), 1U);
  EXPECT_EQ(tsffit::SeasonalDifferences(season, 4, 0), 0U);
  EXPECT_EQ(tsffit::SeasonalDifferences(season, 1, 1), 0U);
}

TEST(UnitRoot, TwoSeasonsTellNothingAboutTheSeason) {
  const auto season = Generate(9, [](std::size_t t) { return static_cast<double>(t % 4); });
  EXPECT_EQ(tsffit::SeasonalDifferences(std::span(season).first(8), 4, 1), 0U);
  EXPECT_EQ(tsffit::SeasonalDifferences(season, 4, 1), 1U);
}

TEST(UnitRoot, DifferencesStopAtAConstant) {
  const auto line = Generate(40, [](std::size_t t) { return 3 + 0.5 * static_cast<double>(t); });
  EXPECT_EQ(tsffit::NonSeasonalDifferences(line, 2), 1U);
  EXPECT_EQ(tsffit::NonSeasonalDifferences(std::vector<double>(40, 7.0), 2), 0U);
  EXPECT_EQ(tsffit::NonSeasonalDifferences({}, 2), 0U);
  EXPECT_EQ(tsffit::SeasonalDifferences(std::vector<double>(40, MV::gMissingValue), 4, 1), 0U);
}

TEST(UnitRoot, MissingCasesOfASeasonComeFromTheSamePeriod) {
  auto season = Generate(48, [](std::size_t t) { return static_cast<double>(t % 4); });
  const double whole = tsffit::SeasonalStrength(season, 4);
  season[0] = season[17] = season[21] = season[47] = MV::gMissingValue;
  EXPECT_NEAR(tsffit::SeasonalStrength(season, 4), whole, 1e-12);
}

TEST(UnitRoot, LineAndSeasonAreToldApart) {
  const auto series = Generate(60, [](std::size_t t) {
    return 5 + 0.25 * static_cast<double>(t) + (t % 4 == 0 ? 3.0 : -1.0);
  });
  const auto parts = tsffit::DecomposeSeason(series, 4);
  for (std::size_t t = 0; t < series.size(); ++t) {
    EXPECT_NEAR(parts.season[t], t % 4 == 0 ? 3 : -1, 0.05) << t;
    EXPECT_NEAR(parts.trend[t], 5 + 0.25 * static_cast<double>(t), 0.05) << t;
  }
}

}  // namespace
