// A host that fits with the embedded core: a damped trend on a short series, two forecasts, and
// the document on standard output.

#include <iostream>
#include <vector>

#include <tsffit/tsffit.h>
#include <tsxport/tsxport.h>

int main() {
  const std::vector<double> users = {88,  84,  85,  85,  84,  85,  83,  85,  88,  89,
                                     91,  99,  104, 112, 126, 138, 146, 151, 150, 148,
                                     147, 149, 143, 132, 131, 139, 147, 150, 148, 145};
  tsffit::SmoothingOptions options;
  options.kind = ESModelSpec::kDampedTrend;
  const tsffit::SmoothingFit fit = tsffit::FitSmoothing(users, options);
  if (fit.status != tsffit::FitStatus::kOk) {
    std::cerr << fit.message << '\n';
    return 1;
  }

  const tsffit::Forecasts forecasts = tsffit::Forecast(fit.model, 2);
  for (std::size_t i = 0; i < forecasts.value.size(); ++i) {
    std::cerr << i + 1 << " ahead: " << forecasts.value[i] << ", 95 % limits " << forecasts.lower[i]
              << " and " << forecasts.upper[i] << '\n';
  }

  TSXMLTree tree;
  tree.SetApplication("fit_and_export", "1.0");
  if (!tree.AddModelTree(fit.model, TSXDictionaryRefs("users", "Users of a server", "users"))) {
    std::cerr << "the model was refused\n";
    return 1;
  }
  tree.WriteToStream(std::cout);
  std::cout << '\n';
  return std::cout.good() ? 0 : 1;
}
