// A host that fits an ARIMA model: weekly sales that follow the spending on advertising by a week
// or two, and a week of strike. It forecasts two weeks whose spending is planned and writes the
// document to standard output.

#include <iostream>
#include <vector>

#include <tsffit/tsffit.h>
#include <tsxport/tsxport.h>

namespace {

constexpr long kStrike = 29;  // counted from 0

// Autoregressive noise about a mean, a regression on two past weeks, one outlier.
tsffit::ArimaOptions Options() {
  tsffit::ArimaOptions options;
  options.spec.has_constant = true;
  options.spec.ar.non_seasonal = {1};
  options.spec.predictors = {{.delay = 1, .numerator = {.non_seasonal = {1}}}};
  options.spec.outliers = TSOutlierSpecList({{TSOutlierSpec::kAdditive, kStrike}});
  return options;
}

}  // namespace

int main() {
  const std::vector<std::vector<double>> spending = {
      {6.4, 7.2, 7.6, 8.6, 7.2, 8.5, 2.2, 5.3, 8.6, 6.5, 8.3, 2.8, 5.3, 3.7, 5.8, 6,
       2.1, 3.5, 4,   8.4, 7.4, 3.1, 7.6, 3,   6.3, 2.9, 2,   8.1, 3.5, 3.5, 8.9, 8.1,
       4,   8.7, 5.8, 6.7, 3.4, 8.6, 6.8, 8.8, 8.3, 4.1, 4.5, 3.2, 3,   2.5, 4.1, 6.2}};
  const std::vector<double> sales = {43.7, 44.4, 45.9, 46,   47.6, 47.3, 48,   39.1, 39.6, 46.6,
                                     45.8, 45.5, 40.5, 40.4, 38.8, 41.8, 43.6, 37.7, 37.8, 40.9,
                                     47.3, 49.4, 43,   44.7, 40.1, 42.3, 37.9, 34.3, 44.1, 28.1,
                                     38.9, 45,   49.8, 42.9, 47.2, 46,   43.5, 38.3, 43.4, 46.6,
                                     47.5, 48.2, 41.5, 39.8, 38.5, 37.3, 35.2, 35};
  const std::vector<std::vector<double>> planned = {{2, 6.7}};

  const tsffit::ArimaFit fit = tsffit::FitArima(sales, spending, Options());
  if (fit.status != tsffit::FitStatus::kOk) {
    std::cerr << fit.message << '\n';
    return 1;
  }

  const tsffit::Forecasts forecasts = tsffit::Forecast(fit.model, 2, planned);
  for (std::size_t i = 0; i < forecasts.value.size(); ++i) {
    std::cerr << i + 1 << " ahead: " << forecasts.value[i] << ", 95 % limits " << forecasts.lower[i]
              << " and " << forecasts.upper[i] << '\n';
  }

  TSXMLTree tree;
  tree.SetApplication("arima_and_export", "1.0");
  const TSXDictionaryRefs names("sales", "Weekly sales", "sales", {"spending"});
  if (!tree.AddModelTree(fit.model, names)) {
    std::cerr << "the model was refused\n";
    return 1;
  }
  tree.WriteToStream(std::cout);
  std::cout << '\n';
  return std::cout.good() ? 0 : 1;
}
