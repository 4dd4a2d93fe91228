#include "arima/forecast/Outlook.h"

#include <utility>

#include "arima/forecast/Known.h"
#include "arima/model/Effects.h"
#include "series/Transform.h"

namespace tsffit {

namespace {

std::size_t DenominatorDegree(const AMModelSpec& spec, unsigned i) {
  AMPowers regular;
  AMPowers seasonal;
  spec.GetXDenominator(i, regular, seasonal);
  return Degree(regular) + Degree(seasonal);
}

// The last `count` values; nothing where there are not so many.
std::optional<std::vector<double>> LastOf(const std::valarray<double>* values, std::size_t count) {
  if ((values == nullptr ? 0 : values->size()) < count) return std::nullopt;
  std::vector<double> last;
  for (std::size_t k = count; k > 0; --k) last.push_back((*values)[values->size() - k]);
  return last;
}

// The sum of what the parts of the model add.
class Outlook {
 public:
  Outlook(const ARMAForecastState& state, std::size_t horizon)
      : state_(state),
        spec_(state.GetAMModelSpec()),
        parameters_(ToVector(state.GetParameterEstimates())),
        mean_(horizon, 0.0) {}

  bool Add(std::span<const std::vector<double>> predictors) {
    bool constant = false;
    const unsigned position = spec_.GetMeanYPresent(constant);
    if (constant) {
      for (double& value : mean_) value += ValueOrZero(parameters_[position]);
    }
    for (unsigned i = 0; i < spec_.GetXCount(); ++i) {
      if (!AddPredictor(i, predictors[i])) return false;
    }
    for (unsigned j = 0; j < spec_.GetOutliers().GetOutlierSpecCount(false); ++j) {
      if (!AddOutlier(j)) return false;
    }
    return true;
  }

  std::vector<double>& Mean() { return mean_; }

 private:
  // The transformed predictor over the last periods that its effect reaches back to and those to
  // come; nothing where a value is not known.
  std::optional<std::vector<double>> PredictorPath(unsigned i, const std::vector<double>& future,
                                                   const std::valarray<double>* past) const {
    std::optional<std::vector<double>> x = LastOf(past, PredictorReach(spec_, i));
    if (!x || future.size() < mean_.size()) return std::nullopt;
    const int function = spec_.GetXTransformSpec(i).GetFunctionType();
    for (std::size_t h = 0; h < mean_.size(); ++h) {
      if (IsMissing(future[h])) return std::nullopt;
      x->push_back(Transformed(function, future[h]));
    }
    return AllKnown(*x) ? std::move(x) : std::nullopt;
  }

  bool AddPredictor(unsigned i, const std::vector<double>& future) {
    const std::valarray<double>* past = nullptr;
    const std::valarray<double>* output = nullptr;
    state_.GetXHistory(i, past, output);
    const std::size_t depth = DenominatorDegree(spec_, i);
    const std::optional<std::vector<double>> x = PredictorPath(i, future, past);
    std::optional<std::vector<double>> response = LastOf(output, depth);
    if (!x || !response || !AllKnown(*response)) return false;

    const TransferFunction transfer = TransferFunctionOf(spec_, i, parameters_);
    const Polynomial filter = Product(Product(transfer.numerator, transfer.seasonal_numerator),
                                      PredictorDifference(spec_, i));
    const std::size_t reach = PredictorReach(spec_, i);
    for (std::size_t h = 0; h < mean_.size(); ++h) {  // den(B) response = num(B) x*(t - b)
      double value = 0;
      for (std::size_t k = 0; k < filter.size(); ++k) {
        value += filter[k] * (*x)[h + reach - transfer.delay - k];
      }
      for (std::size_t k = 1; k <= depth; ++k) {
        value -= transfer.denominator[k] * (*response)[response->size() - k];
      }
      response->push_back(value);
      mean_[h] += value;
    }
    return true;
  }

  bool AddOutlier(unsigned j) {
    const TSOutlierSpecList& outliers = spec_.GetOutliers();
    const TSOutlierSpec& outlier = outliers.GetOutlierSpec(j);
    if (outlier.GetType() == TSOutlierSpec::kNone) return true;
    if (outlier.GetType() == TSOutlierSpec::kSeasonalAdditive && spec_.GetSeasonLength(true) == 0) {
      return false;
    }
    const long start = outlier.GetStartIndex();
    if (start < -static_cast<long>(kMostPeriods)) return false;
    const std::size_t at = spec_.GetOutlierParmIndex() + outliers.ParameterVectorIndex(j, 0);
    const double size = ValueOrZero(parameters_[at]);
    if (size == 0) return true;
    const double decay =
        outlier.GetType() == TSOutlierSpec::kTransient ? ValueOrZero(parameters_[at + 1]) : 0;
    const auto& period = state_.GetPeriodRecord();
    const long first = static_cast<long>(period.length - period.period_deficit) - start;
    AddShape(outlier.GetType(), size, decay, first);
    return true;
  }

  // The first period to come is `first` steps after the outlier's start.
  void AddShape(int type, double size, double decay, long first) {
    const long behind = first + static_cast<long>(mean_.size());
    if (behind <= 0) return;
    const Polynomial difference = SeriesDifference(spec_);
    std::vector<double> psi;
    if (type == TSOutlierSpec::kInnovational) {
      psi = PsiWeights(NoiseModel(spec_, parameters_), static_cast<std::size_t>(behind));
    }
    for (std::size_t h = 0; h < mean_.size(); ++h) {
      const long steps = first + static_cast<long>(h);
      if (steps < 0) continue;
      const double shape = psi.empty() ? DifferencedShape(difference, type, decay,
                                                          spec_.GetSeasonLength(true), steps)
                                       : psi[static_cast<std::size_t>(steps)];
      mean_[h] += size * shape;
    }
  }

  const ARMAForecastState& state_;
  const AMModelSpec& spec_;
  std::vector<double> parameters_;
  std::vector<double> mean_;
};

}  // namespace

std::optional<std::vector<double>> DifferencedMean(
    const ARMAForecastState& state, std::size_t horizon,
    std::span<const std::vector<double>> predictors) {
  Outlook outlook(state, horizon);
  if (!outlook.Add(predictors)) return std::nullopt;
  return std::move(outlook.Mean());
}

}  // namespace tsffit
