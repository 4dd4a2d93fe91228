#include "cli/options/ModelMeaning.h"

#include "cli/Errors.h"
#include "cli/options/ArimaTexts.h"
#include "cli/options/CommandWords.h"
#include "cli/options/OptionCheck.h"
#include "cli/options/TransformName.h"
#include "models/Classes.h"
#include "models/arima/Arima.h"
#include "text/Quoting.h"

namespace tsx::cli {
namespace {

constexpr char kAuto[] = "auto";
constexpr char kAutoArima[] = "auto-arima";

// Whether the text asks for ARIMA, be it with orders that cannot be read.
bool NamesArima(const std::string& model) { return model == kAutoArima || LooksLikeArima(model); }

const models::KindInfo* KindOf(const std::string& text) {
  const models::KindInfo* const kind = models::FindKind(text);
  if (kind != nullptr || text == kAuto) return kind;
  if (NamesArima(text)) return &models::ArimaKind();
  RefuseChoice(RowOf(ModelOptions(), &ModelArguments::model), text);
}

models::ArimaRequest ArimaOf(const std::string& model, const ArimaArguments& given) {
  models::ArimaRequest arima;
  arima.automatic = model == kAutoArima;
  if (!arima.automatic) arima.orders = ParseArimaOrders(model);
  if (given.constant && given.no_constant) {
    throw UsageError("--constant and --no-constant exclude each other");
  }
  if (given.constant || given.no_constant) arima.constant = given.constant;
  if (!given.method.empty()) arima.method = ParseArimaMethod(given.method);
  for (const std::string& text : given.predictors) arima.predictors.push_back(ParsePredictor(text));
  for (const std::string& text : given.outliers) arima.outliers.push_back(ParseOutlier(text));
  arima.detect_outliers = given.detect_outliers;
  return arima;
}

// Options of ARIMA would be in vain beside another model.
void CheckWithoutArima(const std::string& model, const ArimaArguments& given) {
  const OptionRow* const row = FirstGiven(ArimaOptions(), given);
  if (row == nullptr) return;
  throw UsageError(std::string(row->name) + " goes with --model arima(p,d,q) or " + kAutoArima +
                   ", not with --model " + text::Quoted(model));
}

}  // namespace

std::vector<OptionChoice> ModelChoices() {
  std::vector<OptionChoice> choices = {{kAuto}};
  for (const models::ModelClass* one : models::Classes()) {
    for (const models::KindInfo& kind : one->Kinds()) {
      if (*kind.name != '\0') choices.push_back({kind.name});
    }
  }
  choices.push_back({.text = "arima(p,d,q)", .is_pattern = true});
  choices.push_back({.text = "arima(p,d,q)(P,D,Q)", .is_pattern = true});
  choices.push_back({kAutoArima});
  return choices;
}

models::ModelRequest MeaningOf(const ModelArguments& model, const ArimaArguments& arima) {
  const OptionTable<ModelArguments> table = ModelOptions();
  models::ModelRequest request;
  request.words = &kCommandWords;
  request.kind = KindOf(model.model);
  if (request.kind == &models::ArimaKind()) {
    request.arima = ArimaOf(model.model, arima);
  } else {
    CheckWithoutArima(model.model, arima);
  }
  if (!model.season.empty()) {
    request.season_length = CheckedCount(RowOf(table, &ModelArguments::season), model.season);
  }
  request.function_type =
      CheckedChoice(RowOf(table, &ModelArguments::transform), kTransforms, model.transform);
  return request;
}

void CheckSeason(const models::ModelRequest& request) {
  const std::string inNeed = models::SeasonalPart(request);
  if (request.season_length != 1 || inNeed.empty()) return;
  throw UsageError("--season 1 means no season, which " + inNeed + " needs");
}

}  // namespace tsx::cli
