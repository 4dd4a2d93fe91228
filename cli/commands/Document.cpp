#include "cli/commands/Document.h"

#include <sstream>
#include <stdexcept>

#include <tsxport/TSXMLTree.h>
#include <tsxport/Version.h>
#include <tsxtimes/DateAxis.h>

namespace tsx::cli {
namespace {

int AddCalendar(TSXMLTree& tree, const models::Series& series, const DocumentOptions& options) {
  const tsxtimes::DateAxis& axis = *series.axis;
  tsxtimes::DateSpecOptions how;
  how.season_length = options.season_length;
  how.skipped_as_gaps = HasGaps(series);
  how.first_case_day = options.first_case_day;
  return tree.AddDateSpec(MakeDateSpec(axis, how), axis.name + " from " + axis.CaseText(0));
}

TSXDictionaryRefs RefsOf(const models::Series& series, const std::string& descriptor) {
  std::vector<std::string> predictors;
  for (const models::Predictor& predictor : series.predictors) predictors.push_back(predictor.name);
  return {series.model_name, descriptor, series.variable, predictors};
}

// A tree writes time-series XML, or PMML where it is told to; there is no call for any other.
void ChooseDialect(TSXMLTree& tree, const DialectFacts& dialect) {
  const bool pmml = &dialect == FindDialect("pmml");
  if (!pmml && &dialect != FindDialect("tscxml")) {
    throw std::logic_error(std::string("internal error: no way to write ") + dialect.name);
  }
  tree.SetPMMLOutput(pmml);
}

}  // namespace

std::string DocumentText(const std::vector<models::SeriesFit>& fits,
                         const DocumentOptions& options) {
  TSXMLTree tree;
  ChooseDialect(tree, *options.dialect);
  tree.SetApplication("tsxport", TSXPORT_VERSION);
  for (const models::SeriesFit& fit : fits) {
    if (IsHopeless(fit)) continue;
    TSXDictionaryRefs refs = RefsOf(*fit.series, options.descriptor);
    refs.SetDateSpecID(AddCalendar(tree, *fit.series, options));
    if (!fit.model->AddTo(tree, refs)) {
      throw std::logic_error("internal error: model refused: " + fit.series->model_name);
    }
  }
  std::ostringstream document;
  if (!tree.WriteToStream(document) || !document) {
    throw std::logic_error("internal error: no document");
  }
  return document.str();
}

}  // namespace tsx::cli
