#ifndef TSXPORT_TSXMLTREE_H_
#define TSXPORT_TSXMLTREE_H_

#include <ostream>
#include <string>

#include <tsfcore/TSFCrModel.h>
#include <tsfcore/TSFModel.h>
#include <tsxport/Export.h>
#include <tsxport/TSXDateSpec.h>
#include <tsxport/TSXDictionaryRefs.h>

class TSXMLTreeImp;

// Collects fitted models and writes them as one document.
//
// A tree is a handle: copies share one collection, which dies with the last of them. One thread at
// a time may use a tree and the handles that share it; distinct trees are independent. Nothing
// throws on bad input: calls answer with false, 0 or nothing. Only memory exhaustion comes out as
// std::bad_alloc, and what the output stream itself throws when its exceptions() are on.
//
//   TSXMLTree tree;
//   tree.SetApplication("planner", "2.1");
//   TSXDateSpec monthly(TSXDateSpec::Year);
//   monthly.AddPeriod(TSXDateSpec::Month, 12, 0, 0);
//   TSXDictionaryRefs refs("airline", "", "passengers");
//   refs.SetDateSpecID(tree.AddDateSpec(monthly, "calendar months"));
//   if (!tree.AddModelTree(model, refs)) return Refused();
//   std::ofstream out("airline.xml", std::ios::binary);
//   tree.WriteToStream(out);  // check the stream too
class TSX_EXPORT TSXMLTree {
 public:
  // An empty tree that writes time-series XML.
  TSXMLTree();
  // A handle on `imp`, of which it takes one reference; null makes an empty handle, which answers
  // every call with false or 0.
  explicit TSXMLTree(TSXMLTreeImp* imp);
  TSXMLTree(const TSXMLTree& other);
  TSXMLTree& operator=(const TSXMLTree& other);
  ~TSXMLTree();

  // The host's own name and version, written to the document's header. An empty name clears both;
  // the version may be empty.
  void SetApplication(std::string name, std::string version);

  // Chooses PMML 4.2 (true) or time-series XML (false). PMML has exponential smoothing models
  // only: offering any other model to AddModelTree switches the tree back to time-series XML, also
  // when that model is refused. Models already taken as PMML are then absent from the document; a
  // host that switches PMML on again finds them back.
  void SetPMMLOutput(bool pmml);

  // Registers a date specification (copied) and returns its ID, at least 1. An equivalent
  // specification that is already there is reused: its ID is returned and its descriptor kept. IDs
  // hold until a write of time-series XML, which empties the tree. Returns 0 for an empty handle.
  int AddDateSpec(const TSXDateSpec& spec, std::string descriptor);

  // Adds a model under the names of `refs`; true when the tree has taken it. False, with nothing
  // added, when the model name or the dependent variable's ID is empty, when the date
  // specification ID is neither 0 nor known here, when the predictor IDs do not match the model's
  // predictors or one is empty, or when the model cannot be encoded: it has no forecast state, its
  // kind is unknown, a weight's estimate is missing, or its final state lacks the level, the trend
  // or a seasonal value. (A vector of estimates too short for the model is no obstacle: the weights
  // are then left out of the document.)
  //
  // While PMML is on, a smoothing model is taken whatever its references are worth, and what its
  // state lacks is left out.
  bool AddModelTree(TSFModel model, const TSXDictionaryRefs& refs);

  // The same for a Croston model, which has no predictors. It always becomes time-series XML: while
  // PMML is on, too, and is then absent from the PMML document. What a submodel lacks is left out.
  bool AddModelTree(TSFCrModel model, const TSXDictionaryRefs& refs);

  // Models that the next write of time-series XML will hold. Those taken as PMML are not counted.
  unsigned GetModelCount() const;

  // Writes the document to `out`, in the process's own code set. Errors of the stream are not told
  // here: look at its state afterwards.
  //
  // Time-series XML: false, with nothing written, when there is no model. A write empties the tree;
  // its application and its choice of dialect stay. PMML: always true; the tree keeps its models,
  // so that a second write gives the same document.
  bool WriteToStream(std::ostream& out);

 private:
  TSXMLTreeImp* imp_;
};

#endif  // TSXPORT_TSXMLTREE_H_
