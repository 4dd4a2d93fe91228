#include "export/Collection.h"

#include <utility>

#include "export/TreeWriter.h"

namespace tsx {

Collection::Collection() {
  for (std::size_t i = 0; i < kDialectCount; ++i) kept_[i].dialect = MakeDialect(i);
}

// The models go before all else.
Collection::~Collection() {
  for (Kept& kept : kept_) kept.models.Clear();
}

void Collection::SetApplication(std::string name, std::string version) {
  application_.Set(std::move(name), std::move(version));
}

int Collection::AddDateSpec(const TSXDateSpec& spec, std::string descriptor) {
  const int id = dictionary_.Register(spec, std::move(descriptor));
  for (const Kept& kept : kept_) kept.dialect->SeeCalendar(spec);
  return id;
}

bool Collection::Add(const OfferedModel& offer) {
  const std::size_t taker = dialect(chosen_).Admits(offer) ? chosen_ : kFirstDialect;
  if (offer.model != nullptr) chosen_ = taker;
  return AddTo(taker, offer);
}

bool Collection::AddTo(std::size_t place, const OfferedModel& offer) {
  Kept& kept = kept_[place];
  return kept.dialect->Model(offer, dictionary_, kept.models);
}

bool Collection::Write(std::size_t place, std::ostream& out, bool frame) {
  Kept& kept = kept_[place];
  const WritingHabits& habits = kept.dialect->habits();
  if (habits.needs_models && kept.models.size() == 0) return false;
  if (!frame && habits.lists_bare_models) {
    kept.models.WriteBare(out);
  } else {
    WriteDocument(kept, out, frame);
  }
  if (habits.empties_tree) {
    kept.models.Clear();
    if (frame) dictionary_.Clear();
  }
  return true;
}

void Collection::WriteDocument(const Kept& kept, std::ostream& out, bool withDeclaration) const {
  TreeWriter writer(out, withDeclaration);
  kept.dialect->Begin({application_, dictionary_.entries()}, writer);
  // Lent, so that nothing is lost when memory runs out or the stream throws.
  kept.models.LendTo(writer);
  kept.dialect->End(writer);
}

}  // namespace tsx
