#include "cli/commands/Fit.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <system_error>

#include "cli/commands/DialectCheck.h"
#include "cli/commands/Document.h"
#include "cli/commands/FitOptions.h"
#include "cli/system/Jobs.h"
#include "cli/system/Progress.h"
#include "cli/system/SafeFile.h"
#include "cli/table/CsvReader.h"
#include "cli/table/SeriesReader.h"
#include "report/ForecastTable.h"
#include "report/Plot.h"
#include "report/Summary.h"
#include "text/Quoting.h"
#include "text/Words.h"

namespace tsx::cli {
namespace {

using models::SeriesFit;

bool IsSameFile(const std::string& a, const std::string& b) {
  std::error_code error;
  return TargetOf(a) == TargetOf(b) || std::filesystem::equivalent(a, b, error);
}

// No output may fall on the input, or on another output.
void CheckPaths(const FitOptions& options) {
  const bool toFile = !options.output.empty() && options.output != "-";
  const auto refuse = [](const char* option, const std::string& path, const char* what) {
    throw UsageError(std::string(option) + ": " + text::Quoted(path) + " is " + what);
  };
  if (toFile && IsSameFile(options.output, options.input)) {
    refuse("-o", options.output, "the input file");
  }
  if (options.plot.empty()) return;
  if (IsSameFile(options.plot, options.input)) refuse("--plot", options.plot, "the input file");
  if (toFile && IsSameFile(options.plot, options.output)) {
    refuse("--plot", options.plot, "the file of -o");
  }
}

// What is asked of the calendar must be possible on every axis.
void CheckAxes(const std::vector<TableSeries>& all, const FitOptions& options) {
  for (const auto& [series, places] : all) {
    const tsxtimes::DateAxis& axis = *series.axis;
    if (options.first_case_day && !axis.HasPeriod(TSXDateSpec::Day)) {
      throw UsageError("--first-case-day: the calendar of " + text::Quoted(series.model_name) +
                       " (" + axis.name + ") has no days");
    }
    const bool numbered = axis.HasPeriod(TSXDateSpec::SimpleSequence);
    if (options.gaps && numbered && axis.CaseCount() > axis.row_cases.size()) {
      throw UsageError(
          "--gaps: running numbers have no gaps; without it, skipped numbers become "
          "missing values");
    }
  }
}

std::vector<SeriesFit> FitAll(const std::vector<TableSeries>& all, const FitOptions& options,
                              const Streams& io) {
  std::vector<SeriesFit> fits(all.size());
  ProgressBar bar(io.err, io.err_is_terminal, all.size());
  RunJobs(
      all.size(), options.jobs,
      [&](std::size_t i) { fits[i] = FitSeries(all[i].series, options.model); },
      [&bar] { bar.Advance(); });
  return fits;
}

std::string HopelessText(const SeriesFit& fit) {
  return fit.fault.cause + " (series \"" + text::Printable(fit.series->model_name) + "\")";
}

// Names the hopeless series. When there are no others, that ends the run.
int ReportHopeless(const std::string& file, const std::vector<TableSeries>& all,
                   const std::vector<SeriesFit>& fits, std::ostream& err) {
  const auto hopeless = std::count_if(fits.begin(), fits.end(), models::IsHopeless);
  const auto placeOf = [&](std::size_t i) { return PlaceOf(fits[i].fault.where, all[i].places); };
  if (static_cast<std::size_t>(hopeless) == fits.size()) {
    const std::string more =
        hopeless > 1 ? "; none of the " + std::to_string(hopeless) + " series can be fitted" : "";
    throw InputError(file, placeOf(0), HopelessText(fits.front()) + more);
  }
  for (std::size_t i = 0; i < fits.size(); ++i) {
    if (!IsHopeless(fits[i])) continue;
    err << "tsxport: " << text::LocatedMessage(file, placeOf(i), HopelessText(fits[i])) << '\n';
  }
  return hopeless > 0 ? kExitPartial : kExitOk;
}

unsigned PlotHorizon(const std::vector<SeriesFit>& fits, const FitOptions& options) {
  constexpr unsigned kWithoutSeason = 10;
  constexpr unsigned kMost = 200;
  if (options.forecast > 0) return options.forecast;
  unsigned season = 1;
  for (const SeriesFit& fit : fits) season = std::max(season, fit.season_length);
  return season > 1 ? std::min(2 * season, kMost) : kWithoutSeason;
}

std::size_t ModelCount(const std::vector<SeriesFit>& fits) {
  return fits.size() -
         static_cast<std::size_t>(std::count_if(fits.begin(), fits.end(), models::IsHopeless));
}

// What people are told: whole summaries, or a line each where a document tells the rest.
std::string ReportText(const std::vector<SeriesFit>& fits, const FitOptions& options) {
  std::string told;
  for (const SeriesFit& fit : fits) {
    if (IsHopeless(fit)) continue;
    if (options.output.empty() && !told.empty()) told += '\n';
    told += options.output.empty() ? report::SummaryText(fit) : report::SummaryLine(fit);
  }
  const std::size_t count = ModelCount(fits);
  if (!options.output.empty() && options.output != "-") {
    told +=
        "wrote " + text::Printable(options.output) + " (" + text::Counted(count, "model") + ")\n";
  }
  if (!options.plot.empty()) {
    told += "wrote " + text::Printable(options.plot);
    if (count > report::kMostPanels) {
      told += " (the first " + std::to_string(report::kMostPanels) + " series)";
    }
    told += '\n';
  }
  return told;
}

// Everything is made in memory first, then every file beside its target, then all are put in place.
void WriteAll(const std::vector<SeriesFit>& fits, const FitOptions& options, const Streams& io) {
  std::string document;
  if (!options.output.empty()) {
    document = DocumentText(fits, {.dialect = options.dialect,
                                   .descriptor = options.descriptor,
                                   .season_length = options.model.season_length,
                                   .first_case_day = options.first_case_day});
  }
  std::string drawing;
  if (!options.plot.empty()) drawing = report::PlotText(fits, PlotHorizon(fits, options));

  const bool toFile = !options.output.empty() && options.output != "-";
  std::optional<SafeFile> modelFile;
  std::optional<SafeFile> plotFile;
  if (toFile) modelFile.emplace(options.output, document);
  if (!options.plot.empty()) plotFile.emplace(options.plot, drawing);
  if (modelFile) modelFile->Commit();
  if (plotFile) plotFile->Commit();

  if (options.output == "-") io.out << document;
  if (options.forecast > 0) io.out << report::ForecastTable(fits, options.forecast);
  const bool dataOnOutput = options.output == "-" || options.forecast > 0;
  (dataOnOutput ? io.err : io.out) << ReportText(fits, options);
  if (!io.out.flush()) throw OutputError("standard output: cannot be written");
}

// Reads, fits, and only then writes. Returns kExitOk or kExitPartial; the latter after naming the
// hopeless series on io.err. Throws UsageError, InputError (also when every series is hopeless) and
// OutputError; the first two before anything is written.
int RunFit(const FitOptions& options, const Streams& io) {
  CheckPaths(options);
  const CsvTable table = ReadCsvFile(options.input);
  const std::vector<TableSeries> all =
      ReadSeries(table, {options.columns, options.name, options.gaps});
  CheckAxes(all, options);
  CheckSeriesFor(*options.dialect, table.file, all, options.model);
  const std::vector<SeriesFit> fits = FitAll(all, options, io);
  const int status = ReportHopeless(table.file, all, fits, io.err);
  WriteAll(fits, options, io);
  return status;
}

class FitInvocation final : public Invocation {
 public:
  std::vector<BoundOption> Options() override { return BoundOptions(arguments_); }
  int Run(const Streams& io) const override { return RunFit(MeaningOf(arguments_), io); }

 private:
  FitArguments arguments_;
};

}  // namespace

std::unique_ptr<Invocation> BeginFit() { return std::make_unique<FitInvocation>(); }

}  // namespace tsx::cli
