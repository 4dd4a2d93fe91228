#include "cli/options/Options.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>
#include <memory>
#include <thread>

#include <tsffit/Version.h>
#include <tsxport/Version.h>

#include "cli/Errors.h"
#include "cli/commands/PmmlCheck.h"
#include "cli/options/ArimaArguments.h"
#include "cli/options/HelpPages.h"
#include "cli/options/TransformName.h"
#include "text/Text.h"

namespace tsx::cli {
namespace {

// Option texts as they come, before they are checked.
struct RawOptions {
  std::string model = "auto";
  std::string season;
  std::string transform = "none";
  std::string format = "tscxml";
  std::string jobs;
  std::string forecast;
  ArimaArguments arima;
};

std::string VersionText() {
  return "tsxport " TSXPORT_VERSION " (library libtsxport " TSXPORT_VERSION
         ", forecasting core libtsfcore " +
         std::string(tsffit::CoreVersion()) + ")";
}

void AddInputOptions(CLI::App& app, FitOptions& options) {
  app.add_option("SERIES.csv", options.input, "The table to read; - reads standard input")
      ->required();
  const auto add = [&app](const char* name, auto& value, const char* type, const char* text) {
    return app.add_option(name, value, text)->type_name(type)->group(kReadingGroup);
  };
  add("--variable", options.columns.variables, "COLUMN",
      "Fit this column; may be given several times. Default: every column of numbers but the time "
      "and predictors")
      ->expected(1)
      ->take_all();
  add("--id", options.columns.id, "COLUMN",
      "The table is long: this column tells which series a row belongs to, and each series gets a "
      "model");
  add("--time", options.columns.time, "COLUMN",
      "The column of times. Default: the one named date, time, datetime, timestamp, period, month, "
      "quarter or year; else the first that looks like times; else rising whole numbers in the "
      "first column; else cases are numbered from 1");
  app.add_flag("--gaps", options.gaps,
               "Skipped periods become gaps of the calendar rather than missing values. Models "
               "with seasons take no gaps")
      ->group(kReadingGroup);
}

void AddModelOptions(CLI::App& app, RawOptions& raw) {
  const auto add = [&app](const char* name, auto& value, const char* type, const char* text) {
    app.add_option(name, value, text)->type_name(type)->group(kModelGroup);
  };
  add("--model", raw.model, "KIND",
      "simple, brown, holt, damped-trend, simple-seasonal, winters-additive, "
      "winters-multiplicative; croston, for intermittent demand; arima(p,d,q), "
      "arima(p,d,q)(P,D,Q) or auto-arima, see below; or auto (the default), which takes croston "
      "where at least 30 % of the cases are zero and none is negative, and else fits all kinds of "
      "smoothing that go with the series and keeps the one with the lowest normalised BIC");
  add("--season", raw.season, "N",
      "Periods in one season, of ARIMA too; 1 for none. Default: what the calendar says, 12 for "
      "months, 4 for quarters, 7 for days, 24 for hours. Another length is marked in the document "
      "as forced");
  add("--transform", raw.transform, "FUNCTION",
      "Model the series as it is (none, the default), its natural logarithm (log) or its square "
      "root (sqrt); with croston, the sizes of the demands. Under log and sqrt, auto leaves out "
      "multiplicative seasons");
}

void AddOutputOptions(CLI::App& app, FitOptions& options, RawOptions& raw) {
  const auto add = [&app](const char* name, auto& value, const char* type, const char* text) {
    app.add_option(name, value, text)->type_name(type)->group(kWritingGroup);
  };
  add("-o,--output", options.output, "MODEL.xml",
      "Write the models there as an XML document; - is standard output. Without it a summary is "
      "printed instead");
  add("--format", raw.format, "FORMAT",
      "tscxml (the default), which holds all that forecasting needs; or pmml, PMML 4.2, for "
      "smoothing alone: it has no place for croston, for ARIMA, for --transform or for missing "
      "values, and the run is refused where they come up. One series to a document is best there, "
      "since "
      "its data dictionary names the last one only");
  add("--name", options.name, "NAME",
      "Name of the model. Default: the file's name without its ending. Several models are named "
      "NAME/ID, NAME/COLUMN or NAME/ID/COLUMN");
  add("--descriptor", options.descriptor, "TEXT", "Free text that goes with every model (tscxml)");
  add("--forecast", raw.forecast, "H",
      "Print forecasts for H periods with 95 % limits as CSV on standard output; the summary then "
      "goes to standard error");
  add("--plot", options.plot, "PLOT.svg",
      "Draw series, forecasts and limits, one panel per series (24 at most). Without --forecast it "
      "looks two seasons ahead, or ten periods where there is no season; in any case no further "
      "than predictors are known");
  app.add_flag("--first-case-day", options.first_case_day,
               "Also write the day of the first case, of dates. Careful: the format's FirstCaseDay "
               "element has two attributes named month, the second being the year. That is not "
               "well-formed XML, so XML readers reject the whole document")
      ->group(kWritingGroup);
}

void AddRunningOptions(CLI::App& app, RawOptions& raw) {
  app.add_option("--jobs", raw.jobs,
                 "Fit on so many threads. Default: one per processor. The output is the same "
                 "whatever their number")
      ->type_name("N")
      ->group(kRunningGroup);
  app.set_help_flag("-h,--help", "Show this page")->group(kRunningGroup);
}

unsigned ParseCount(const char* option, const std::string& text, unsigned most) {
  unsigned value = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, value);
  const bool good = error == std::errc() && stop == end && 1 <= value && value <= most;
  if (good) return value;
  throw UsageError(std::string(option) + ": " + text::Quoted(text) +
                   " is not a whole number from 1 to " + std::to_string(most));
}

const KindInfo* CheckedKind(const std::string& text) {
  const KindInfo* const kind = FindKind(text);
  if (kind != nullptr || text == "auto") return kind;
  if (NamesArima(text)) return &ArimaKind();
  std::string known = "auto";
  for (const KindInfo& one : SmoothingKinds()) known += std::string(", ") + one.option;
  throw UsageError("--model: " + text::Quoted(text) + " is none of " + known + ", " +
                   CrostonKind().option + ", " + kArimaModels);
}

ModelRequest CheckedModel(const RawOptions& raw) {
  ModelRequest model;
  model.kind = CheckedKind(raw.model);
  if (model.kind == &ArimaKind()) {
    model.arima = CheckedArima(raw.model, raw.arima);
  } else {
    CheckWithoutArima(raw.model, raw.arima);
  }
  if (!raw.season.empty()) {
    model.season_length = ParseCount("--season", raw.season, kLongestSeason);
  }
  const std::optional<int> function = TransformByName(raw.transform);
  if (!function) {
    throw UsageError("--transform: " + text::Quoted(raw.transform) + " is none of " +
                     kTransformNames);
  }
  model.function_type = *function;
  return model;
}

DocumentFormat CheckedFormat(const RawOptions& raw) {
  if (raw.format == "pmml") return DocumentFormat::kPmml;
  if (raw.format == "tscxml") return DocumentFormat::kTscxml;
  throw UsageError("--format: " + text::Quoted(raw.format) + " is none of tscxml, pmml");
}

void CheckText(const char* option, const std::string& text) {
  if (text::IsCleanName(text)) return;
  throw UsageError(std::string(option) + ": " + text::Quoted(text) +
                   " holds control characters or is not UTF-8");
}

void CheckTogether(const FitOptions& options) {
  if (options.output == "-" && options.forecast > 0) {
    throw UsageError("-o - and --forecast would both print on standard output");
  }
  if (options.plot == "-") throw UsageError("--plot needs the name of a file");
  if (options.format == DocumentFormat::kPmml) CheckModelForPmml(options.model);
  const KindInfo* const kind = options.model.kind;
  const bool seasonal = kind != nullptr && kind->seasonal;
  const std::string inNeed = seasonal ? kind->option : SeasonalPart(options.model.arima);
  if (options.model.season_length == 1 && !inNeed.empty()) {
    throw UsageError("--season 1 means no season, which " + inNeed + " needs");
  }
}

void CheckCommand(const std::vector<std::string>& arguments) {
  if (arguments.empty()) throw UsageError("give a command; see tsxport --help");
  const std::string& first = arguments.front();
  if (first.starts_with('-') || first == "fit") return;
  throw UsageError("there is no command " + text::Quoted(first) + "; see tsxport --help");
}

// An empty value is most often a variable of a script that was never set. Text may be empty.
void CheckValues(const CLI::App& app) {
  for (const CLI::Option* option : app.get_options()) {
    const std::string name = option->get_name(option->get_positional());
    for (const std::string& value : option->results()) {
      if (value.empty() && name != "--descriptor") throw UsageError(name + ": the value is empty");
    }
  }
}

FitOptions Checked(FitOptions options, const RawOptions& raw) {
  options.model = CheckedModel(raw);
  options.format = CheckedFormat(raw);
  options.jobs = raw.jobs.empty() ? std::clamp(std::thread::hardware_concurrency(), 1U, kMostJobs)
                                  : ParseCount("--jobs", raw.jobs, kMostJobs);
  if (!raw.forecast.empty()) {
    options.forecast = ParseCount("--forecast", raw.forecast, kLongestForecast);
  }
  options.model.horizon = options.forecast;
  for (const PredictorRequest& predictor : options.model.arima.predictors) {
    options.columns.predictors.push_back(predictor.column);
  }
  CheckText("--name", options.name);
  CheckText("--descriptor", options.descriptor);
  CheckTogether(options);
  return options;
}

}  // namespace

Invocation ParseCommandLine(const std::vector<std::string>& arguments) {
  CheckCommand(arguments);
  CLI::App app{kMainIntroduction, "tsxport"};
  app.formatter(std::make_shared<HelpFormatter>());
  app.footer(kMainFooter);
  app.require_subcommand(1);
  app.set_help_flag("-h,--help", "Show this page");
  app.set_version_flag("--version", VersionText(), "Show the versions of library and core");

  FitOptions options;
  RawOptions raw;
  CLI::App& fit = *app.add_subcommand("fit", kFitIntroduction);
  fit.footer(kFitFooter);
  AddInputOptions(fit, options);
  AddModelOptions(fit, raw);
  AddArimaOptions(fit, raw.arima);
  AddOutputOptions(fit, options, raw);
  AddRunningOptions(fit, raw);

  try {
    app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));  // back to front
  } catch (const CLI::CallForHelp&) {
    return {fit.parsed() ? fit.help() : app.help(), {}};
  } catch (const CLI::CallForVersion& version) {
    return {std::string(version.what()) + "\n", {}};
  } catch (const CLI::ParseError& error) {
    throw UsageError(text::Printable(error.what()) + "; see tsxport " +
                     (fit.parsed() ? "fit " : "") + "--help");
  }
  CheckValues(fit);
  return {"", Checked(std::move(options), raw)};
}

}  // namespace tsx::cli
