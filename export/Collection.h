#ifndef TSXPORT_EXPORT_COLLECTION_H_
#define TSXPORT_EXPORT_COLLECTION_H_

#include <array>
#include <cstddef>
#include <memory>
#include <ostream>
#include <string>

#include "dialect/Dialect.h"
#include "dictionary/Application.h"
#include "dictionary/DateSpecDictionary.h"
#include "export/CollectedModels.h"
#include "export/Dialects.h"

namespace tsx {

// What a tree has collected: calendars, and models by dialect. Which dialects there are, and what
// sets them apart, is their own affair. A call that throws leaves models, calendars and application
// as they were.
class Collection {
 public:
  Collection();
  ~Collection();
  Collection(const Collection&) = delete;
  Collection& operator=(const Collection&) = delete;

  void SetApplication(std::string name, std::string version);
  int AddDateSpec(const TSXDateSpec& spec, std::string descriptor);

  // The dialect that models go to and that is written.
  void Choose(std::size_t place) { chosen_ = place; }
  std::size_t chosen() const { return chosen_; }

  // Adds a model to the chosen dialect or, where that has no place for it, to the first one. A
  // smoothing or ARIMA model takes the tree along to the first dialect, for good and also when it
  // is then refused or this throws; one of Croston's method leaves the choice alone.
  bool Add(const OfferedModel& offer);
  // The same for a given dialect, without a question of whether it admits the model; the choice
  // stays.
  bool AddTo(std::size_t place, const OfferedModel& offer);

  // Writes what a dialect has collected; what is left out when `frame` is false, its habits say.
  // False, with nothing written, when it has no document without models and there are none.
  bool Write(std::size_t place, std::ostream& out, bool frame);

  const DateSpecDictionary& dictionary() const { return dictionary_; }
  const Dialect& dialect(std::size_t place) const { return *kept_[place].dialect; }
  std::size_t ModelCount(std::size_t place) const { return kept_[place].models.size(); }

 private:
  struct Kept {
    std::unique_ptr<Dialect> dialect;
    CollectedModels models;
  };

  void WriteDocument(const Kept& kept, std::ostream& out, bool withDeclaration) const;

  DateSpecDictionary dictionary_;
  Application application_;
  std::size_t chosen_ = kFirstDialect;
  std::array<Kept, kDialectCount> kept_;
};

}  // namespace tsx

#endif  // TSXPORT_EXPORT_COLLECTION_H_
