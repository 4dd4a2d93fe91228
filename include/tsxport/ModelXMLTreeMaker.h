#ifndef TSXPORT_MODELXMLTREEMAKER_H_
#define TSXPORT_MODELXMLTREEMAKER_H_

#include <tsfcore/EstimationInfo.h>
#include <tsfcore/ForecastStateVisitor.h>
#include <tsxport/Export.h>
#include <tsxport/TSXDictionaryRefs.h>
#include <tsxport/XMLElement.h>

// Turns the forecast state of one fitted model into its time-series XML element. TSXMLTree does
// this for every model it admits; a host that wants the bare element calls it directly:
//
//   ModelXMLTreeMaker maker(refs, info);  // both must outlive the maker
//   state.Accept(maker);                  // the state calls the matching Visit()
//   std::unique_ptr<TIMESERIESXML::XMLElement> element(maker.ReleaseTree());
//   if (!element) return Refused();
//
// One maker serves one visit: a second one forgets the tree of the first without freeing it.
class TSX_EXPORT ModelXMLTreeMaker : public ForecastStateVisitor {
 public:
  // Keeps references to both.
  ModelXMLTreeMaker(const TSXDictionaryRefs& refs, const EstimationInfo& info);
  // Deletes the tree if nobody took it.
  ~ModelXMLTreeMaker() override;
  ModelXMLTreeMaker(const ModelXMLTreeMaker&) = delete;
  ModelXMLTreeMaker& operator=(const ModelXMLTreeMaker&) = delete;

  // Builds "ExpSmoothingModel". Nothing, when the kind is unknown, when a weight's estimate is
  // missing, or when the state lacks its level, a trend its kind has, or a seasonal value.
  void Visit(const ESForecastState& state) override;
  // Build "ARIMAModel" with the state of its kind. Nothing, when the record of names has not one
  // predictor ID for every predictor of the specification. Missing estimates are left out.
  void Visit(const ARMACLSForecastState& state) override;
  void Visit(const ARMAMLForecastState& state) override;
  void Visit(const ARMAMLSpForecastState& state) override;

  // The element, which now belongs to the caller; null when there is none, the second time too.
  TIMESERIESXML::XMLElement* ReleaseTree();

 private:
  const TSXDictionaryRefs& refs_;
  const EstimationInfo& info_;
  TIMESERIESXML::XMLElement* tree_ = nullptr;
};

#endif  // TSXPORT_MODELXMLTREEMAKER_H_
