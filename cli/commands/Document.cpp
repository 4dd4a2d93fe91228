#include "cli/commands/Document.h"

#include <sstream>
#include <stdexcept>

#include <tsxport/TSXMLTree.h>
#include <tsxport/Version.h>

#include "times/DateSpecMaker.h"

namespace tsx::cli {
namespace {

int AddCalendar(TSXMLTree& tree, const Series& series, const DocumentOptions& options) {
  const DateAxis& axis = *series.axis;
  DateSpecOptions how;
  how.season_length = options.season_length;
  how.skipped_as_gaps = HasGaps(series);
  how.first_case_day = options.first_case_day;
  return tree.AddDateSpec(MakeDateSpec(axis, how), axis.name + " from " + axis.CaseText(0));
}

TSXDictionaryRefs RefsOf(const Series& series, const std::string& descriptor) {
  std::vector<std::string> predictors;
  for (const PredictorColumn& predictor : series.predictors) predictors.push_back(predictor.name);
  return {series.model_name, descriptor, series.variable, predictors};
}

bool AddModel(TSXMLTree& tree, const FittedSeries& fitted, const TSXDictionaryRefs& refs) {
  return fitted.kind == &CrostonKind() ? tree.AddModelTree(fitted.croston, refs)
                                       : tree.AddModelTree(fitted.model, refs);
}

}  // namespace

std::string DocumentText(const std::vector<FittedSeries>& fitted, const DocumentOptions& options) {
  TSXMLTree tree;
  tree.SetPMMLOutput(options.format == DocumentFormat::kPmml);
  tree.SetApplication("tsxport", TSXPORT_VERSION);
  for (const FittedSeries& one : fitted) {
    if (one.kind == nullptr) continue;
    TSXDictionaryRefs refs = RefsOf(*one.series, options.descriptor);
    refs.SetDateSpecID(AddCalendar(tree, *one.series, options));
    if (!AddModel(tree, one, refs)) {
      throw std::logic_error("internal error: model refused: " + one.series->model_name);
    }
  }
  std::ostringstream document;
  if (!tree.WriteToStream(document) || !document) {
    throw std::logic_error("internal error: no document");
  }
  return document.str();
}

}  // namespace tsx::cli
