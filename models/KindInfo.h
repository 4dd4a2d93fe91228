#ifndef TSXPORT_MODELS_KINDINFO_H_
#define TSXPORT_MODELS_KINDINFO_H_

namespace tsx::models {

// A kind of model as hosts name it. What tells the kinds of smoothing apart beyond that is in
// kinds/SmoothingKind.h.
struct KindInfo {
  int kind;           // tells the kinds of its class apart: ESModelSpec::Kind of smoothing
  const char* name;   // "winters-additive"; empty where it takes more to ask for the kind
  const char* title;  // for people
};

}  // namespace tsx::models

#endif  // TSXPORT_MODELS_KINDINFO_H_
