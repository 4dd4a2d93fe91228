#include "cli/options/WritingArguments.h"

#include "cli/options/OptionCheck.h"

namespace tsx::cli {
namespace {

std::vector<OptionChoice> DialectChoices() {
  std::vector<OptionChoice> choices;
  for (const DialectFacts& dialect : kDialects) choices.push_back({dialect.name});
  return choices;
}

constexpr OptionEntry<WritingArguments> kOptions[] = {
    {{.shape = OptionShape::kValue,
      .name = "--output",
      .letter = 'o',
      .value_name = "MODEL.xml",
      .group = kWritingGroup,
      .help = "Write the models there as an XML document; - is standard output. Without it a "
              "summary is printed instead"},
     &WritingArguments::output},
    {{.shape = OptionShape::kValue,
      .name = "--format",
      .value_name = "FORMAT",
      .group = kWritingGroup,
      .help = "tscxml (the default), which holds all that forecasting needs; or pmml, PMML 4.2, "
              "for smoothing alone: it has no place for croston, for ARIMA, for --transform or for "
              "missing values, and the run is refused where they come up. One series to a document "
              "is best there, since its data dictionary names the last one only",
      .choices = DialectChoices},
     &WritingArguments::format},
    {{.shape = OptionShape::kValue,
      .name = "--name",
      .value_name = "NAME",
      .group = kWritingGroup,
      .help = "Name of the model. Default: the file's name without its ending. Several models are "
              "named NAME/ID, NAME/COLUMN or NAME/ID/COLUMN",
      .clean = true},
     &WritingArguments::name},
    {{.shape = OptionShape::kValue,
      .name = "--descriptor",
      .value_name = "TEXT",
      .group = kWritingGroup,
      .help = "Free text that goes with every model (tscxml)",
      .clean = true,
      .may_be_empty = true},
     &WritingArguments::descriptor},
    {{.shape = OptionShape::kValue,
      .name = "--forecast",
      .value_name = "H",
      .group = kWritingGroup,
      .help = "Print forecasts for H periods with 95 % limits as CSV on standard output; the "
              "summary then goes to standard error",
      .most = kLongestForecast},
     &WritingArguments::forecast},
    {{.shape = OptionShape::kValue,
      .name = "--plot",
      .value_name = "PLOT.svg",
      .group = kWritingGroup,
      .help = "Draw series, forecasts and limits, one panel per series (24 at most). Without "
              "--forecast it looks two seasons ahead, or ten periods where there is no season; in "
              "any case no further than predictors are known"},
     &WritingArguments::plot},
    {{.shape = OptionShape::kFlag,
      .name = "--first-case-day",
      .group = kWritingGroup,
      .help = "Also write the day of the first case, of dates. Careful: the format's FirstCaseDay "
              "element has two attributes named month, the second being the year. That is not "
              "well-formed XML, so XML readers reject the whole document"},
     &WritingArguments::first_case_day}};
static_assert(AreSound<WritingArguments>(kOptions));

}  // namespace

OptionTable<WritingArguments> WritingOptions() { return kOptions; }

const DialectFacts& DialectOf(const WritingArguments& arguments) {
  const DialectFacts* const dialect = FindDialect(arguments.format);
  if (dialect != nullptr) return *dialect;
  RefuseChoice(RowOf(WritingOptions(), &WritingArguments::format), arguments.format);
}

}  // namespace tsx::cli
