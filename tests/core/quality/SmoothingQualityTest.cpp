// Every fit against the best that other programs reach: tests/reference/smoothing_sse.csv.

#include <gtest/gtest.h>
#include <map>
#include <utility>

#include "core/support/TestSeries.h"

namespace {

struct Series {
  unsigned season_length = 1;
  std::vector<double> values;
};

Series FromData(const std::string& name) {
  static const std::map<std::string, unsigned> kSeasons = {
      {"airpassengers", 12}, {"co2", 12},        {"intermittent_a", 12}, {"intermittent_b", 12},
      {"johnsonjohnson", 4}, {"ldeaths", 12},    {"nottem", 12},         {"seatbelts", 12},
      {"ukgas", 4},          {"usaccdeaths", 12}};
  const std::size_t colon = name.find(':');
  const std::string file = name.substr(0, colon);
  const auto season = kSeasons.find(file);
  return {.season_length = season == kSeasons.end() ? 1 : season->second,
          .values = test::DataColumn(file + ".csv", name.substr(colon + 1))};
}

std::map<std::string, Series> Synthetic() {
  std::map<std::string, Series> all;
  for (const auto& row : test::ReadRows("reference/synthetic.csv")) {
    all[row[0]] = {.season_length = static_cast<unsigned>(std::stoul(row[1])),
                   .values = test::Numbers(row[2])};
  }
  return all;
}

TEST(Quality, NoFitIsMoreThanOnePercentAboveTheBestOfOtherPrograms) {
  const auto synthetic = Synthetic();
  std::map<std::pair<std::string, std::string>, tsffit::SmoothingFit> fits;
  std::size_t compared = 0;
  for (const auto& row : test::ReadRows("reference/smoothing_sse.csv")) {
    const auto found = synthetic.find(row[0]);
    const Series series = found == synthetic.end() ? FromData(row[0]) : found->second;
    auto& fit = fits[{row[0], row[1]}];
    if (fit.fitted.empty()) {
      fit = test::Fit(series.values, test::KindByName(row[1]), series.season_length);
    }
    ASSERT_EQ(fit.status, tsffit::FitStatus::kOk) << row[0] << ' ' << row[1] << ' ' << fit.message;
    double sse = 0;
    for (std::size_t t = std::stoul(row[2]) - 1; t < series.values.size(); ++t) {
      sse += (series.values[t] - fit.fitted[t]) * (series.values[t] - fit.fitted[t]);
    }
    EXPECT_LE(sse, 1.01 * std::stod(row[4])) << row[0] << ' ' << row[1] << ' ' << row[3];
    ++compared;
  }
  EXPECT_GT(compared, 700U);
}

}  // namespace
