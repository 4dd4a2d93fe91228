// A host whose models come from elsewhere: it writes down the state of a simple smoothing model
// with the core's contract alone, names it, and exports it to standard output.

#include <iostream>
#include <memory>

#include <tsfcore/tsfcore.h>
#include <tsxport/tsxport.h>

namespace {

TSFModel HandmadeModel() {
  EstimationInfo::Fields info;
  info.span = {.start = 0, .length = 100};
  info.degrees_of_freedom = 99;
  info.error_variance = 20600;

  ESForecastState::Fields state;
  state.spec = ESModelSpec(ESModelSpec::ForKind(ESModelSpec::kSimple, 1));
  state.estimates = {0.25};
  state.std_errors = {0.11};
  state.smoothed.level = 805.5;

  TSFModelImp::Fields model;
  model.state = std::make_unique<ESForecastState>(state);
  model.info = EstimationInfo(info);
  return TSFModel(new TSFModelImp(std::move(model)));
}

// Years, the first case being 1871.
TSXDateSpec YearsFrom1871() {
  TSXDateSpec spec(TSXDateSpec::Year);
  TSXDateSpec::TSXIndexTuple first(spec);
  first.SetIndexes({1871});
  spec.SetFirstCaseIndex(first);
  return spec;
}

}  // namespace

int main() {
  TSXMLTree tree;
  tree.SetApplication("handmade_model", "1.0");

  TSXDictionaryRefs refs("nile", "Annual flow of the Nile at Aswan", "flow");
  refs.SetDateSpecID(tree.AddDateSpec(YearsFrom1871(), "calendar years"));
  if (!tree.AddModelTree(HandmadeModel(), refs)) {
    std::cerr << "the model was refused\n";
    return 1;
  }
  tree.WriteToStream(std::cout);
  std::cout << '\n';
  return std::cout.good() ? 0 : 1;
}
