#include "report/ChoiceText.h"

#include <cmath>

#include "text/Numbers.h"

namespace tsx::report {
namespace {

constexpr int kDecimals = 3;

std::string BicText(double bic) {
  return std::isfinite(bic) ? text::FixedText(bic, kDecimals) : "an undefined one";
}

std::string SearchText(const models::Search& search) {
  return std::string("lowest ") + search.criterion + " of " + std::to_string(search.models) +
         " models, " + text::FixedText(search.value, kDecimals);
}

std::string PerfectText(std::size_t kinds) {
  if (kinds == 1) return "the only kind to fit without error";
  return "fits without error, the simplest of " + std::to_string(kinds) + " kinds to do so";
}

std::string CriterionText(const models::Choice& choice) {
  return "lowest normalised BIC of " + std::to_string(choice.kinds) + " kinds, " +
         BicText(choice.bic) + "; next " + choice.next->name + " with " + BicText(choice.next_bic);
}

}  // namespace

std::string ChoiceText(const models::Choice& choice) {
  using Reason = models::Choice::Reason;
  switch (choice.reason) {
    case Reason::kAskedFor:
      return "";
    case Reason::kClaimed:
      return choice.claim.name + ": " + choice.claim.evidence + "; " + choice.claim.instead;
    case Reason::kSearched:
      return SearchText(choice.search);
    case Reason::kAlone:
      return "the only kind that goes with the series";
    case Reason::kPerfect:
      return PerfectText(choice.kinds);
    case Reason::kLowestCriterion:
      return CriterionText(choice);
  }
  return "";
}

}  // namespace tsx::report
