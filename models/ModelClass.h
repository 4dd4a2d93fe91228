#ifndef TSXPORT_MODELS_MODELCLASS_H_
#define TSXPORT_MODELS_MODELCLASS_H_

#include <memory>
#include <optional>
#include <span>
#include <string>

#include <tsfcore/EstimationInfo.h>
#include <tsffit/Forecast.h>
#include <tsxport/DialectFacts.h>
#include <tsxport/TSXMLTree.h>

#include "models/Description.h"
#include "models/Fault.h"
#include "models/ModelRequest.h"
#include "models/Series.h"

// What a class of models does. A class stands in files of its own beside this one and in a row of
// Classes.cpp; nothing else knows it by name. Objects of both interfaces never change, so threads
// may share them; nothing throws on data.
namespace tsx::models {

// A model that was fitted to a series, which must outlive it.
class FittedModel {
 public:
  FittedModel() = default;
  FittedModel(const FittedModel&) = delete;
  FittedModel& operator=(const FittedModel&) = delete;
  virtual ~FittedModel() = default;

  // At most `horizon` periods: as many as predictors are known for.
  virtual tsffit::Forecasts Forecast(unsigned horizon) const = 0;
  // As TSXMLTree::AddModelTree.
  virtual bool AddTo(TSXMLTree& tree, const TSXDictionaryRefs& refs) const = 0;
  virtual const EstimationInfo& Estimation() const = 0;
  virtual Description Describe() const = 0;
};

// A series and what is asked for it. Both must outlive the task.
struct Task {
  const Series& series;
  const ModelRequest& request;
  unsigned season_length = 1;  // the one asked for or that of the calendar; 1: none
};

// How a model was found among others of its class.
struct Search {
  const char* criterion = "";  // "AICc", of which the model has the lowest
  double value = 0;
  std::size_t models = 0;
};

// A model, or the fault of the series.
struct Fitting {
  std::unique_ptr<const FittedModel> model{};  // null: there is a fault
  Fault fault{};
  std::optional<Search> search{};  // where there was one
};

// That a series is one for a class, before any fit.
struct Claim {
  const KindInfo* kind = nullptr;
  std::string name;          // "intermittent demand"
  std::string evidence;      // "67 of 120 cases are zero and none is negative"
  const char* instead = "";  // what was not done for it: "not compared with smoothing"
};

class ModelClass {
 public:
  ModelClass() = default;
  ModelClass(const ModelClass&) = delete;
  ModelClass& operator=(const ModelClass&) = delete;
  virtual ~ModelClass() = default;

  // What can be asked for, the simplest first; at least one kind. They live as long as the program.
  virtual std::span<const KindInfo> Kinds() const = 0;

  // What a document must have a place for to hold models of the class.
  virtual DialectContent Content() const = 0;

  // The first part of a request for `kind` that means seasons, in the host's words; empty where
  // there is none. With one, a series gets this far only when it has a season and no gaps.
  virtual std::string SeasonalPart(const KindInfo& kind, const ModelRequest& request) const;

  // Why the series cannot get what is asked for, where that can be told before a fit.
  virtual Fault FindFault(const Task& task) const;

  // The task has no fault of the above.
  virtual Fitting Fit(const KindInfo& kind, const Task& task) const = 0;

  // Where nothing is asked for: whether the class takes the series without a comparison, ...
  virtual std::optional<Claim> FindClaim(const Series& series) const;
  // ... and whether the kind is compared with others by its normalised BIC.
  virtual bool IsCompared(const KindInfo& kind, const ModelRequest& request) const;
};

}  // namespace tsx::models

#endif  // TSXPORT_MODELS_MODELCLASS_H_
