#include "cli/commands/FitOptions.h"

#include "cli/Errors.h"
#include "cli/commands/DialectCheck.h"
#include "cli/options/ModelMeaning.h"
#include "cli/options/OptionCheck.h"

namespace tsx::cli {
namespace {

// The columns that are named, those of predictors too.
ColumnRequest ColumnsOf(const ReadingArguments& given, const models::ModelRequest& model) {
  ColumnRequest columns{.time = given.time, .id = given.id, .variables = given.variables};
  for (const models::PredictorRequest& predictor : model.arima.predictors) {
    columns.predictors.push_back(predictor.column);
  }
  return columns;
}

unsigned ForecastOf(const WritingArguments& given) {
  if (given.forecast.empty()) return 0;
  return CheckedCount(RowOf(WritingOptions(), &WritingArguments::forecast), given.forecast);
}

void CheckTogether(const FitOptions& options) {
  if (options.output == "-" && options.forecast > 0) {
    throw UsageError("-o - and --forecast would both print on standard output");
  }
  if (options.plot == "-") throw UsageError("--plot needs the name of a file");
  CheckModelFor(*options.dialect, options.model);
  CheckSeason(options.model);
}

}  // namespace

std::vector<BoundOption> BoundOptions(FitArguments& arguments) {
  std::vector<BoundOption> all;
  Bind(ReadingOptions(), arguments.reading, all);
  Bind(ModelOptions(), arguments.model, all);
  Bind(ArimaOptions(), arguments.arima, all);
  Bind(WritingOptions(), arguments.writing, all);
  Bind(RunningOptions(), arguments.running, all);
  return all;
}

FitOptions MeaningOf(const FitArguments& arguments) {
  const auto& [reading, model, arima, writing, running] = arguments;
  const OptionTable<WritingArguments> table = WritingOptions();
  FitOptions options;
  options.input = reading.input;
  options.gaps = reading.gaps;
  options.model = MeaningOf(model, arima);
  options.columns = ColumnsOf(reading, options.model);
  options.dialect = &DialectOf(writing);
  options.jobs = JobsOf(running);
  options.forecast = ForecastOf(writing);
  options.model.horizon = options.forecast;
  CheckClean(RowOf(table, &WritingArguments::name), writing.name);
  CheckClean(RowOf(table, &WritingArguments::descriptor), writing.descriptor);
  options.name = writing.name;
  options.descriptor = writing.descriptor;
  options.first_case_day = writing.first_case_day;
  options.plot = writing.plot;
  options.output = writing.output;
  CheckTogether(options);
  return options;
}

}  // namespace tsx::cli
