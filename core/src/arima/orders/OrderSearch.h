#ifndef TSFFIT_ARIMA_ORDERS_ORDERSEARCH_H_
#define TSFFIT_ARIMA_ORDERS_ORDERSEARCH_H_

#include <compare>
#include <map>
#include <set>
#include <span>
#include <vector>

#include <tsfcore/TSOutlierSpecList.h>
#include <tsffit/AutoArima.h>

#include "arima/orders/DifferenceOrders.h"

namespace tsffit {

// ARIMA(p,d,q)(P,D,Q) with given differences.
struct ArmaOrders {
  unsigned p = 0;
  unsigned q = 0;
  unsigned P = 0;
  unsigned Q = 0;
  bool constant = false;
  // NOLINTNEXTLINE(modernize-use-nullptr): the check sees the 0 that <=> is compared with
  friend auto operator<=>(const ArmaOrders&, const ArmaOrders&) = default;
};

// The search of AutoArima.h at given differences. Borrows what it is made of.
class OrderSearch {
 public:
  OrderSearch(std::span<const double> series, std::span<const std::vector<double>> predictors,
              const AutoArimaOptions& options, const TSOutlierSpecList& outliers,
              const DifferenceOrders& differences);

  void Run();

  // False when every model tried was refused.
  bool HasFound() const;

  const ArmaOrders& Orders() const { return best_; }
  double Aicc() const { return best_aicc_; }
  const ArimaFit& Fit() const { return best_fit_; }
  unsigned ModelsTried() const { return static_cast<unsigned>(tried_.size()); }

  // What FitArima gets for a model, by exact maximum likelihood.
  ArimaOptions OptionsOf(const ArmaOrders& orders) const;

 private:
  std::vector<ArmaOrders> Starts() const;
  std::vector<ArmaOrders> Neighbours(const ArmaOrders& orders) const;
  std::vector<ArmaOrders> All() const;
  bool IsAllowed(const ArmaOrders& orders) const;

  // The best of the models to follow that has not been left yet; null when all have.
  const ArmaOrders* NextToLeave(const std::set<ArmaOrders>& left) const;

  void Try(const ArmaOrders& orders);

  std::span<const double> series_;
  std::span<const std::vector<double>> predictors_;
  const AutoArimaOptions& options_;
  const TSOutlierSpecList& outliers_;
  DifferenceOrders differences_;
  bool may_have_constant_ = false;
  bool may_lack_constant_ = false;
  ArmaOrders limits_;
  std::size_t observed_ = 0;
  std::map<ArmaOrders, double> tried_;  // criteria; infinite where refused
  ArmaOrders best_;
  double best_aicc_;
  ArimaFit best_fit_;
};

// The corrected criterion of Akaike with the error variance counted; infinite when there are too
// few residuals for it.
double CorrectedAkaike(const ArimaSummary& summary);

}  // namespace tsffit

#endif  // TSFFIT_ARIMA_ORDERS_ORDERSEARCH_H_
