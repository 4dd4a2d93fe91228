#include "report/EstimateText.h"

#include <algorithm>

#include "models/Transformation.h"
#include "text/Numbers.h"
#include "text/Quoting.h"
#include "text/Utf8.h"
#include "text/Words.h"

namespace tsx::report {
namespace {

using models::Estimate;
using models::NoError;

constexpr int kDigits = 5;
constexpr int kErrorDigits = 2;
constexpr char kLeftOut[] = "left out: the data cannot tell it from the others";

std::string Padded(const std::string& text, std::size_t width) {
  const std::size_t length = text::CharacterCount(text);
  return text + std::string(std::max(width, length + 1) - length, ' ');
}

// "s.e. 0.083", or why there is none.
std::string ErrorText(const Estimate& estimate) {
  if (estimate.std_error != MV::gMissingValue) {
    return "s.e. " + text::NumberText(estimate.std_error, kErrorDigits);
  }
  if (estimate.no_error == NoError::kOnBound) return "on its bound";
  return estimate.no_error == NoError::kNotEstimated ? "not estimated" : "s.e. undefined";
}

// What stands behind the name in a table.
std::string ColumnsText(const Estimate& estimate) {
  constexpr std::size_t kWidth = 14;
  const double error = estimate.std_error;
  if (estimate.value == MV::gMissingValue) return kLeftOut;
  return Padded(text::NumberText(estimate.value, kDigits), kWidth) +
         (error == MV::gMissingValue ? "undefined" : text::NumberText(error, kDigits));
}

std::string WithError(const Estimate& estimate) {
  if (estimate.value == MV::gMissingValue) return kLeftOut;
  return text::NumberText(estimate.value, kDigits) + " (" + ErrorText(estimate) + ")";
}

std::string Times(unsigned count) {
  return count == 1 ? "once" : count == 2 ? "twice" : std::to_string(count) + " times";
}

}  // namespace

std::string WeightsText(const std::vector<Estimate>& weights) {
  std::vector<std::string> texts;
  texts.reserve(weights.size());
  for (const Estimate& weight : weights) {
    texts.push_back(weight.name + " " + text::FixedText(weight.value, 4) + " (" +
                    ErrorText(weight) + ")");
  }
  return text::Joined(texts, ", ");
}

std::vector<std::string> CoefficientTexts(const std::vector<Estimate>& coefficients,
                                          const std::string& convention) {
  if (coefficients.empty()) return {};
  std::vector<std::string> names;
  names.reserve(coefficients.size());
  std::size_t width = 0;
  for (const Estimate& one : coefficients) {
    names.push_back(text::Printable(one.name));
    width = std::max(width, text::CharacterCount(names.back()) + 2);
  }
  std::vector<std::string> texts = {Padded("", width) + "estimate      s.e."};
  for (std::size_t i = 0; i < names.size(); ++i) {
    texts.push_back(Padded(names[i], width) + ColumnsText(coefficients[i]));
  }
  if (!convention.empty()) texts.push_back(convention);
  return texts;
}

std::string InputText(const models::Input& input) {
  std::string text = text::Printable(input.name);
  if (input.function_type != TSTransformation::kNone) {
    text = std::string(models::WordsOf(input.function_type).name) + " of " + text;
  }
  if (input.delay > 0) text += ", delayed by " + std::to_string(input.delay);
  if (input.diff > 0) text += ", differenced " + Times(input.diff);
  if (input.seasonal_diff > 0) text += ", seasonally differenced " + Times(input.seasonal_diff);
  return text;
}

std::string EventText(const models::Event& event) {
  std::string text = event.type + (event.lasts ? " from " : " at ") + event.time + ": ";
  for (const Estimate& one : event.estimates) {
    const bool first = &one == &event.estimates.front();
    text += (first ? "" : ", " + one.name + " ") + WithError(one);
  }
  return text;
}

}  // namespace tsx::report
