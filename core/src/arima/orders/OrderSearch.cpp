#include "arima/orders/OrderSearch.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include <tsfcore/ARMAForecastState.h>
#include <tsfcore/TSFModelImp.h>

#include "arima/model/Effects.h"
#include "math/Polynomial.h"
#include "series/Observed.h"

namespace tsffit {

namespace {

// A root nearer to 0 than this is too near to the unit circle.
constexpr double kLeastRoot = 1.01;

// The stepwise search leaves from this many of the best models, not from the best alone: refused
// models stand between others, and a criterion of orders has many valleys.
constexpr std::ptrdiff_t kFollowed = 4;

constexpr double kInfinity = std::numeric_limits<double>::infinity();

// Whether every root of 1 + sign (c_1 B + c_2 B^2 + ..) is at least kLeastRoot away from 0: the
// roots of the polynomial in kLeastRoot B are nearer by that factor.
bool RootsAreFar(const std::vector<double>& coefficients, double sign) {
  Polynomial scaled = {1};
  double power = 1;
  for (const double c : coefficients) {
    power *= kLeastRoot;
    scaled.push_back(sign * c * power);
  }
  return IsStable(scaled);
}

bool IsWellInside(const TSFModel& model) {
  const auto* state = dynamic_cast<const ARMAForecastState*>(model.GetImp()->GetForecastState());
  if (state == nullptr) return false;
  const std::valarray<double>& estimates = state->GetParameterEstimates();
  const Arma arma = NoiseModel(state->GetAMModelSpec(), {std::begin(estimates), estimates.size()});
  return RootsAreFar(arma.ar, -1) && RootsAreFar(arma.ma, 1);
}

AMPowers Lags(unsigned count, unsigned step) {
  std::vector<std::uint32_t> lags;
  for (unsigned k = 1; k <= count; ++k) lags.push_back(k * step);
  return AMPowers(std::move(lags));
}

}  // namespace

// Equation (1) of AutoArima.h.
double CorrectedAkaike(const ArimaSummary& summary) {
  const double k = summary.estimated + 1.0;
  const double akaike = -2 * summary.log_likelihood + 2 * k;
  // Of so few cases no model with a coefficient has the corrected one.
  if (summary.residuals <= 3) return akaike;
  const double spare = static_cast<double>(summary.residuals) - k - 1;
  return spare > 0 ? akaike + 2 * k * (k + 1) / spare : kInfinity;
}

OrderSearch::OrderSearch(std::span<const double> series,
                         std::span<const std::vector<double>> predictors,
                         const AutoArimaOptions& options, const TSOutlierSpecList& outliers,
                         const DifferenceOrders& differences)
    : series_(series),
      predictors_(predictors),
      options_(options),
      outliers_(outliers),
      differences_(differences),
      best_aicc_(kInfinity) {
  const bool free = differences.regular + differences.seasonal <= 1;
  may_have_constant_ = options.constant.value_or(free);
  may_lack_constant_ = !options.constant.value_or(false);

  observed_ = CountObserved(series);
  const unsigned season = options.season_length;
  const auto third = static_cast<unsigned>(observed_ / 3);
  limits_.p = std::min(options.max_p, third);
  limits_.q = std::min(options.max_q, third);
  if (season > 1) {
    limits_.P = std::min(options.max_P, third / season);
    limits_.Q = std::min(options.max_Q, third / season);
    // Lags of the two factors stay apart.
    if (limits_.P > 0) limits_.p = std::min(limits_.p, season - 1);
    if (limits_.Q > 0) limits_.q = std::min(limits_.q, season - 1);
  }
}

bool OrderSearch::HasFound() const { return best_aicc_ < kInfinity; }

void OrderSearch::Run() {
  if (options_.exhaustive) {
    for (const ArmaOrders& orders : All()) Try(orders);
    return;
  }
  for (const ArmaOrders& start : Starts()) Try(start);
  std::set<ArmaOrders> left;
  for (const ArmaOrders* next = NextToLeave(left); next != nullptr; next = NextToLeave(left)) {
    left.insert(*next);
    for (const ArmaOrders& neighbour : Neighbours(*next)) Try(neighbour);
  }
}

const ArmaOrders* OrderSearch::NextToLeave(const std::set<ArmaOrders>& left) const {
  std::vector<const std::pair<const ArmaOrders, double>*> ranked;
  for (const auto& tried : tried_) {
    if (tried.second < kInfinity) ranked.push_back(&tried);
  }
  const auto best = ranked.begin() + std::min<std::ptrdiff_t>(kFollowed, std::ssize(ranked));
  std::partial_sort(ranked.begin(), best, ranked.end(),
                    [](const auto* a, const auto* b) { return a->second < b->second; });
  const auto next = std::find_if(ranked.begin(), best,
                                 [&](const auto* tried) { return left.count(tried->first) == 0; });
  return next == best ? nullptr : &(*next)->first;
}

std::vector<ArmaOrders> OrderSearch::All() const {
  std::vector<ArmaOrders> all;
  for (unsigned p = 0; p <= limits_.p; ++p) {
    for (unsigned q = 0; q <= limits_.q; ++q) {
      for (unsigned P = 0; P <= limits_.P; ++P) {
        for (unsigned Q = 0; Q <= limits_.Q; ++Q) {
          if (p + q + P + Q > options_.max_order) continue;
          for (const bool constant : {false, true}) {
            const ArmaOrders orders{.p = p, .q = q, .P = P, .Q = Q, .constant = constant};
            if (IsAllowed(orders)) all.push_back(orders);
          }
        }
      }
    }
  }
  return all;
}

std::vector<ArmaOrders> OrderSearch::Starts() const {
  // As R's package has it.
  const bool isShort = observed_ < 10;
  const unsigned two = isShort ? 1 : 2;
  const unsigned one = isShort ? 0 : 1;
  const bool constant = may_have_constant_;
  std::vector<ArmaOrders> starts = {{.p = two, .q = two, .P = one, .Q = one, .constant = constant},
                                    {.constant = constant},
                                    {.p = 1, .P = 1, .constant = constant},
                                    {.q = 1, .Q = 1, .constant = constant},
                                    {.constant = !may_lack_constant_}};
  for (ArmaOrders& start : starts) {
    start.p = std::min(start.p, limits_.p);
    start.q = std::min(start.q, limits_.q);
    start.P = std::min(start.P, limits_.P);
    start.Q = std::min(start.Q, limits_.Q);
  }
  return starts;
}

std::vector<ArmaOrders> OrderSearch::Neighbours(const ArmaOrders& orders) const {
  std::vector<ArmaOrders> neighbours;
  const auto add = [&](ArmaOrders neighbour) {
    if (IsAllowed(neighbour)) neighbours.push_back(neighbour);
  };
  constexpr std::pair<int, int> kSteps[] = {{-1, 0},  {0, -1}, {1, 0},  {0, 1},
                                            {-1, -1}, {-1, 1}, {1, -1}, {1, 1}};
  // An order stepped below 0 is beyond any limit.
  const auto step = [](unsigned& order, int by) { order += static_cast<unsigned>(by); };
  for (const auto& [first, second] : kSteps) {
    ArmaOrders seasonal = orders;
    step(seasonal.P, first);
    step(seasonal.Q, second);
    add(seasonal);
  }
  for (const auto& [first, second] : kSteps) {
    ArmaOrders regular = orders;
    step(regular.p, first);
    step(regular.q, second);
    add(regular);
  }
  ArmaOrders other = orders;
  other.constant = !orders.constant;
  add(other);
  return neighbours;
}

bool OrderSearch::IsAllowed(const ArmaOrders& o) const {
  if (o.constant ? !may_have_constant_ : !may_lack_constant_) return false;
  return o.p <= limits_.p && o.q <= limits_.q && o.P <= limits_.P && o.Q <= limits_.Q;
}

void OrderSearch::Try(const ArmaOrders& orders) {
  const auto [place, isNew] = tried_.emplace(orders, kInfinity);
  if (!isNew) return;
  ArimaFit fit = FitArima(series_, predictors_, OptionsOf(orders));
  if (fit.status != FitStatus::kOk || !IsWellInside(fit.model)) return;
  place->second = CorrectedAkaike(fit.summary);
  if (!(place->second < best_aicc_)) return;
  best_ = orders;
  best_aicc_ = place->second;
  best_fit_ = std::move(fit);
}

ArimaOptions OrderSearch::OptionsOf(const ArmaOrders& orders) const {
  ArimaOptions result;
  result.ljung_box_lags = options_.ljung_box_lags;
  AMModelSpec::Fields& spec = result.spec;
  spec.season_length = options_.season_length;
  spec.y_transform = TSTransformation(options_.function_type);
  spec.non_seasonal_diff = differences_.regular;
  spec.seasonal_diff = differences_.seasonal;
  spec.has_constant = orders.constant;
  spec.ar = {.non_seasonal = Lags(orders.p, 1), .seasonal = Lags(orders.P, spec.season_length)};
  spec.ma = {.non_seasonal = Lags(orders.q, 1), .seasonal = Lags(orders.Q, spec.season_length)};
  spec.outliers = outliers_;
  spec.predictors = options_.predictors;
  if (!options_.keep_predictor_differences) {
    for (AMModelSpec::Predictor& predictor : spec.predictors) {
      predictor.non_seasonal_diff = differences_.regular;
      predictor.seasonal_diff = differences_.seasonal;
    }
  }
  return result;
}

}  // namespace tsffit
