#ifndef TSXPORT_MODELS_FAULT_H_
#define TSXPORT_MODELS_FAULT_H_

#include <cstddef>
#include <string>

namespace tsx::models {

// The spot of a series that a fault is about. Where it stands in a file, the host knows.
struct Where {
  enum class Part {
    kNowhere,          // nothing in particular
    kValue,            // values[index]
    kPredictorValue,   // predictors[predictor].values[index]
    kPredictorFuture,  // predictors[predictor].future[index]
    kFutureEnd,        // where the future of predictors[predictor] ends
  };
  Part part = Part::kNowhere;
  std::size_t index = 0;
  std::size_t predictor = 0;

  bool operator==(const Where&) const = default;
};

constexpr Where AtValue(std::size_t index) { return {Where::Part::kValue, index, 0}; }

// Why a series cannot get a model.
struct Fault {
  std::string cause;  // for people; empty: there is no fault
  Where where;

  explicit operator bool() const { return !cause.empty(); }
};

}  // namespace tsx::models

#endif  // TSXPORT_MODELS_FAULT_H_
