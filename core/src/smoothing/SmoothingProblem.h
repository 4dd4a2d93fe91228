#ifndef TSFFIT_SMOOTHING_SMOOTHINGPROBLEM_H_
#define TSFFIT_SMOOTHING_SMOOTHINGPROBLEM_H_

#include <cstddef>
#include <span>
#include <vector>

#include "smoothing/Recursion.h"

namespace tsffit {

// Where each parameter of a kind stands in the vector that is searched: the weights (in the order
// of ESModelSpec), then level, trend and seasonal values before the first case.
struct ParameterLayout {
  std::size_t level = 0;
  std::size_t trend = 0;   // meaningful for kinds with a trend
  std::size_t season = 0;  // first of them; meaningful for kinds with a season
  std::size_t size = 0;
};

ParameterLayout LayoutOf(const KindTraits& traits, std::size_t seasonLength);

// The sum of squared one-step errors of one kind on one series, as a function of that vector.
// Borrows the series, which should be of unit size. Not shared between threads: it keeps the
// path of the last evaluation.
class SmoothingProblem {
 public:
  // `seasonLength` is 1 for kinds without a season.
  SmoothingProblem(const KindTraits& traits, std::span<const double> series,
                   std::size_t seasonLength);

  const KindTraits& Traits() const { return traits_; }
  std::span<const double> Series() const { return series_; }
  std::size_t SeasonLength() const { return season_length_; }
  const ParameterLayout& Layout() const { return layout_; }
  std::size_t WeightCount() const { return layout_.level; }

  std::vector<double> Pack(std::span<const double> weights, const Components& start) const;
  Gains GainsAt(std::span<const double> parameters) const;
  Components StartAt(std::span<const double> parameters) const;

  // The sum of squares; infinite outside the region of a multiplicative model. Allocates nothing.
  double Sse(std::span<const double> parameters);

  // The same with its exact gradient, by the adjoint of the recursion: one walk forward that keeps
  // the path, one backward that carries the derivatives by level, trend and seasonal values, so
  // that the cost does not grow with the number of parameters (Griewank and Walther 2008,
  // "Evaluating derivatives", chapter 3). An infinite sum has no gradient: `gradient` is zeroed.
  double Sse(std::span<const double> parameters, std::span<double> gradient);

 private:
  // The recursion at one case, before its correction.
  struct Moment {
    double line = 0;  // q = level + damping * trend
    double trend = 0;
    double season = 0;
    double per_line = 0;  // 1 / q and 1 / S of a multiplicative model
    double per_season = 0;
    double error = 0;  // 0 for a missing case
  };

  // Derivatives of half the sum of squares by level, trend and gains; those by the seasonal values
  // are in season_bar_.
  struct Bars {
    double level = 0;
    double trend = 0;
    Gains gains{.level = 0, .trend = 0, .season = 0, .damping = 0};
  };

  template <bool kTrend, Season kSeason>
  double Forward(const Gains& gains);
  template <bool kTrend, Season kSeason>
  Bars Backward(const Gains& gains);
  template <bool kTrend, Season kSeason>
  static void Unstep(const Gains& gains, const Moment& now, bool seen, double& seasonBar,
                     Bars& bars);
  void LoadStart(std::span<const double> parameters);

  KindTraits traits_;
  std::span<const double> series_;
  std::size_t season_length_;
  ParameterLayout layout_;
  Components components_;
  std::vector<Moment> path_;
  std::vector<double> season_bar_;
};

}  // namespace tsffit

#endif  // TSFFIT_SMOOTHING_SMOOTHINGPROBLEM_H_
