#include "arima/outliers/Detection.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "arima/fit/Likelihood.h"
#include "arima/outliers/OutlierScan.h"

namespace tsffit {

namespace {

using Found = std::vector<FoundOutlier>;

OutlierPlace PlaceOf(const FoundOutlier& outlier) { return {outlier.at, outlier.type}; }

// What neighbours of these values gave is told by docs/decisions.md, "The constants of the search
// for outliers".

// Log-likelihoods that differ by less are equal: a search leaves about 1e-6.
constexpr double kEqual = 1e-4;

// The scan, with parameters that do not know the outlier yet, may understate it: a tau of this
// share of the critical value is worth a look. With 1, six of 183 outliers are lost, with 0.9 one;
// with 0.6 none is won, for a sixth more time.
constexpr double kWorthALook = 0.8;

constexpr double kInfinity = std::numeric_limits<double>::infinity();

// A guard: searches end by themselves, when a round changes nothing.
constexpr int kRounds = 4;

// How far the case of the largest tau may be from that of a rival, in cases. On the series tried
// the outcome is the same from 0 to 4, since each outlier settles among its neighbours afterwards.
constexpr std::size_t kReach = 2;

Found With(Found outliers, const FoundOutlier& added) {
  outliers.insert(std::upper_bound(outliers.begin(), outliers.end(), added), added);
  return outliers;
}

Found Without(Found outliers, std::size_t removed) {
  outliers.erase(outliers.begin() + static_cast<std::ptrdiff_t>(removed));
  return outliers;
}

// The stages of Outliers.h for one model.
class Detection {
 public:
  Detection(JointFits& fits, const DetectionRules& rules, std::set<OutlierPlace> excluded)
      : fits_(fits), rules_(rules), excluded_(std::move(excluded)) {}

  Found Run() {
    for (int round = 0; round < kRounds; ++round) {
      const Found before = found_;
      Grow();
      if (found_.size() > 1) Improve();
      Prune();
      if (found_ == before) break;
    }
    return found_;
  }

 private:
  // Minus infinity for what cannot be fitted.
  double LogLikelihood(const Found& outliers) {
    if (Coefficients(outliers) > rules_.max_coefficients) return -kInfinity;
    const JointFit& fit = fits_.With(outliers);
    return fit.usable ? fit.log_likelihood : -kInfinity;
  }

  static std::size_t Coefficients(const Found& outliers) {
    std::size_t count = 0;
    for (const FoundOutlier& outlier : outliers) {
      count += TSOutlierSpec(outlier.type, 0).GetParameterCount();
    }
    return count;
  }

  // The root of twice what `more` gains over `fewer`.
  double Gain(const Found& more, const Found& fewer) {
    const double gain = LogLikelihood(more) - LogLikelihood(fewer);
    return gain > 0 ? std::sqrt(2 * gain) : 0;
  }

  FoundOutlier Candidate(std::size_t at, int type) const {
    return {.at = at, .type = type, .decay = type == TSOutlierSpec::kTransient ? rules_.decay : 0};
  }

  bool IsExcluded(const OutlierPlace& place) const {
    return excluded_.count(place) > 0 || !fits_.Sees(place.first) ||
           std::any_of(found_.begin(), found_.end(),
                       [&](const FoundOutlier& outlier) { return PlaceOf(outlier) == place; });
  }

  // Stage I: adds the most likely outlier, and again.
  void Grow() {
    while (found_.size() < rules_.max_outliers) {
      const std::vector<OutlierCandidate> rivals = Rivals();
      if (rivals.empty()) return;
      const FoundOutlier best = Settled(found_, Likeliest(found_, rivals));
      const Found more = With(found_, best);
      if (LogLikelihood(more) == -kInfinity) return;
      // An outlier may hide behind others that swell the variance, but not from a robust scale.
      if (std::max(Gain(more, found_), rivals.front().tau) < rules_.critical_value) return;
      Take(found_, best);
    }
  }

  // What is found is `others` and another one. A transient one whose decay leaves it without a size
  // is no outlier, and does not come back.
  void Take(const Found& others, const FoundOutlier& added) {
    found_ = With(others, added);
    if (added.type != TSOutlierSpec::kTransient) return;
    found_ = fits_.WithDecays(std::move(found_));
    if (!IsExcluded(PlaceOf(added))) excluded_.insert(PlaceOf(added));
  }

  // For every type the case of the largest tau, near that of the largest of all, which comes first.
  // Empty when not even that is worth a look.
  std::vector<OutlierCandidate> Rivals() {
    const JointFit& fit = fits_.With(found_);
    if (!fit.usable) return {};
    const OutlierModel model = fits_.ModelWith(found_);
    const Design design(model.spec, model.data);
    const Likelihood likelihood(design, ArimaMethod::kMl);
    const OutlierScan scan(likelihood, fit.parameters);
    if (!scan.IsUsable()) return {};
    std::vector<std::vector<double>> taus;
    OutlierCandidate best;
    for (const TSOutlierSpec::Type type : rules_.types) {
      taus.push_back(scan.TausOf(type, rules_.decay));
      Raise(best, type, taus.back(), 0, taus.back().size());
    }
    if (best.tau < kWorthALook * rules_.critical_value) return {};
    std::vector<OutlierCandidate> rivals = {best};
    for (std::size_t i = 0; i < taus.size(); ++i) {
      if (rules_.types[i] == best.type) continue;
      OutlierCandidate rival;
      Raise(rival, rules_.types[i], taus[i], best.at - std::min(best.at, kReach),
            std::min(best.at + kReach + 1, taus[i].size()));
      if (rival.tau > 0) rivals.push_back(rival);
    }
    return rivals;
  }

  // Makes `best` the largest of `taus` from `begin` to `end` if that is larger.
  void Raise(OutlierCandidate& best, int type, const std::vector<double>& taus, std::size_t begin,
             std::size_t end) const {
    for (std::size_t at = begin; at < end && at < taus.size(); ++at) {
      if (taus[at] > best.tau && !IsExcluded({at, type})) {
        best = {.type = type, .at = at, .tau = taus[at]};
      }
    }
  }

  FoundOutlier Likeliest(const Found& beside, std::vector<OutlierCandidate> rivals) {
    std::sort(rivals.begin(), rivals.end(),
              [](const auto& a, const auto& b) { return Rank(a.type) < Rank(b.type); });
    FoundOutlier best = Candidate(rivals[0].at, rivals[0].type);
    for (const OutlierCandidate& rival : rivals) {
      const FoundOutlier other = Candidate(rival.at, rival.type);
      if (IsLikelier(beside, other, best)) best = other;
    }
    return best;
  }

  static std::size_t Rank(int type) {
    return static_cast<std::size_t>(
        std::find(std::begin(kOutlierTypes), std::end(kOutlierTypes), type) -
        std::begin(kOutlierTypes));
  }

  bool IsLikelier(const Found& beside, const FoundOutlier& other, const FoundOutlier& best) {
    return LogLikelihood(With(beside, other)) > LogLikelihood(With(beside, best)) + kEqual;
  }

  // The outlier, or the likelier of those of its type one case before and after.
  FoundOutlier Settled(const Found& beside, FoundOutlier outlier) {
    const FoundOutlier start = outlier;
    for (const std::size_t at : {start.at - 1, start.at + 1}) {
      if (at >= fits_.Cases() || IsExcluded({at, start.type})) continue;  // -1 is beyond all
      const FoundOutlier other = Candidate(at, start.type);
      if (IsLikelier(beside, other, outlier)) outlier = other;
    }
    return outlier;
  }

  // Stage II: another type or a neighbouring case for each outlier, where it is likelier beside the
  // others. Decays begin anew, so that no type has been fitted to the data before the comparison.
  void Improve() {
    for (std::size_t i = 0; i < found_.size(); ++i) {
      const Found others = Without(found_, i);
      FoundOutlier best = Candidate(found_[i].at, found_[i].type);
      for (const TSOutlierSpec::Type type : rules_.types) {
        if (IsExcluded({best.at, type})) continue;
        const FoundOutlier other = Candidate(best.at, type);
        if (IsLikelier(others, other, best)) best = other;
      }
      best = Settled(others, best);
      if (PlaceOf(best) == PlaceOf(found_[i])) continue;
      Take(others, best);
    }
  }

  // Stage II: the weakest goes while it is below the critical value, and does not come back.
  void Prune() {
    while (!found_.empty()) {
      std::size_t weakest = 0;
      double least = Gain(found_, Without(found_, 0));
      for (std::size_t i = 1; i < found_.size(); ++i) {
        const double gain = Gain(found_, Without(found_, i));
        if (gain < least) {
          least = gain;
          weakest = i;
        }
      }
      if (least >= rules_.critical_value) return;
      excluded_.insert(PlaceOf(found_[weakest]));
      found_ = Without(found_, weakest);
    }
  }

  JointFits& fits_;
  const DetectionRules& rules_;
  std::set<OutlierPlace> excluded_;  // given ones, and those refused
  Found found_;
};

}  // namespace

std::vector<FoundOutlier> DetectOutliers(JointFits& fits, const DetectionRules& rules,
                                         std::set<OutlierPlace> given) {
  return Detection(fits, rules, std::move(given)).Run();
}

}  // namespace tsffit
