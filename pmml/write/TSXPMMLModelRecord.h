#ifndef TSXPORT_PMML_WRITE_TSXPMMLMODELRECORD_H_
#define TSXPORT_PMML_WRITE_TSXPMMLMODELRECORD_H_

#include <array>
#include <string>
#include <valarray>
#include <vector>

#include <tsfcore/TSFESModelProp.h>
#include <tsfcore/TSFModel.h>
#include <tsxport/TSXDictionaryRefs.h>

namespace tsx::pmml {

// What is known of the model added last. Of the statistics only the RMSE and of a parameter only
// its estimate reach the document; the rest is kept for hosts that look at a tree in a debugger.
struct TSXPMMLModelRecord {
  static constexpr std::size_t kRMSE = 1;  // position in `statistics`

  struct LjungBox {
    double statistic = 0;
    double degrees_of_freedom = 0;
    double significance = 0;
  };

  // MSE, RMSE, MAPE, MAE, MAXAPE, MAXAE, RSQ, NRMBIC, LOGLK, SRSQ, AIC, BIC.
  std::array<double, 12> statistics{};
  LjungBox ljung_box{};
  std::vector<TSFESModelProp::TSFESParmType> parameter_types{};
  // Per parameter: estimate, standard error, t value, p value (two-sided, Student's t).
  std::vector<std::vector<double>> parameter_values{};
  TSFModel model{};
  // Receives as many values of the history as it already holds: it is not resized, on purpose. The
  // document takes the history that is passed with the model.
  std::valarray<double> history{};
  std::string model_name{};
  std::string model_descriptor{};
  std::string dependent_var_id{};

  // Takes the names and, unless the model is empty, its numbers; those of an earlier model stay
  // otherwise.
  void Fill(const TSFModel& newModel, const TSXDictionaryRefs& refs,
            const std::valarray<double>& newHistory);
};

}  // namespace tsx::pmml

#endif  // TSXPORT_PMML_WRITE_TSXPMMLMODELRECORD_H_
