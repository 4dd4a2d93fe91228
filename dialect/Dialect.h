#ifndef TSXPORT_DIALECT_DIALECT_H_
#define TSXPORT_DIALECT_DIALECT_H_

#include <tsxport/DialectFacts.h>
#include <tsxport/TSXDateSpec.h>

#include "dialect/DocumentSink.h"
#include "dialect/OfferedModel.h"
#include "dictionary/Application.h"
#include "dictionary/DateSpecDictionary.h"

namespace tsx {

// Whether a dialect has a place for a model, and what there is to say when it has none.
struct Admission {
  const char* reason = nullptr;  // behind "... has no place for it, "; null: it has

  explicit operator bool() const { return reason == nullptr; }
};

// What stands in a document before its models.
struct DocumentFront {
  const Application& application;
  DateSpecView calendars;
};

// What becomes of a tree when its document is written.
struct WritingHabits {
  // Without a model there is no document.
  bool needs_models = false;
  // Asked for a document without its frame, the tree lists the bare models. Elsewhere only the XML
  // declaration stays away.
  bool lists_bare_models = false;
  // What was written leaves the tree: the models, and with a frame the calendars, too.
  bool empties_tree = false;
};

// A way of writing models as documents: the state of one document and its three verbs. Who collects
// models calls Model() as they come, and Begin() and End() around what was kept when all is
// written; who streams calls the three in a row. So both write the same.
//
// A model that throws leaves the dialect as it was, and a Begin() that throws may be repeated.
class Dialect {
 public:
  Dialect(const DialectFacts& facts, const WritingHabits& habits)
      : facts_(facts), habits_(habits) {}
  virtual ~Dialect() = default;
  Dialect(const Dialect&) = delete;
  Dialect& operator=(const Dialect&) = delete;

  const DialectFacts& facts() const { return facts_; }
  const WritingHabits& habits() const { return habits_; }

  // Goes by the method, as the facts have it. What else a model brings along keeps it out of no
  // document: what has no place is left out of its element.
  virtual Admission Admits(const OfferedModel& offer) const;

  // A host has registered a calendar, be it a new one or not.
  virtual void SeeCalendar(const TSXDateSpec& /*spec*/) noexcept {}

  // Opens the document with all that stands before the models.
  virtual void Begin(const DocumentFront& front, DocumentSink& out) = 0;

  // Encodes a model, and marks the calendar that it refers to where the dialect minds. False, with
  // nothing done, when the names are refused or the model cannot be encoded.
  virtual bool Model(const OfferedModel& offer, DateSpecDictionary& dictionary,
                     ElementSink& out) = 0;

  // Adds what stands behind the models, nothing unless a dialect has more to say, and closes.
  virtual void End(DocumentSink& out) { out.Close(); }

 private:
  const DialectFacts& facts_;
  WritingHabits habits_;
};

}  // namespace tsx

#endif  // TSXPORT_DIALECT_DIALECT_H_
