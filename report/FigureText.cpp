#include "report/FigureText.h"

#include <cmath>
#include <string_view>

#include "text/Numbers.h"
#include "text/Words.h"

namespace tsx::report {
namespace {

constexpr std::string_view kBlank = "{}";

std::string UnitText(double value, const std::string& unit) {
  constexpr int kDigits = 4;
  if (value == MV::gMissingValue) return "undefined";
  return text::NumberText(value, kDigits) + " " + unit;
}

std::string TextOf(const models::Figure& figure) {
  const std::string unit = figure.unit;
  return unit.empty() ? ValueText(figure.value) : UnitText(figure.value, unit);
}

// The sentence with the figures in the places of its blanks, of which it has as many.
std::string Filled(std::string_view sentence, const std::vector<models::Figure>& rows) {
  std::string text;
  for (const models::Figure& row : rows) {
    const std::size_t blank = sentence.find(kBlank);
    text += std::string(sentence.substr(0, blank)) + TextOf(row);
    sentence.remove_prefix(blank + kBlank.size());
  }
  return text + std::string(sentence);
}

}  // namespace

std::string ValueText(double value) {
  constexpr int kDigits = 5;
  return value == MV::gMissingValue || !std::isfinite(value) ? "undefined"
                                                             : text::NumberText(value, kDigits);
}

std::string FiguresText(const models::Figures& figures) {
  if (figures.rows.empty()) return figures.without;
  if (figures.sentence != nullptr) return Filled(figures.sentence, figures.rows);
  std::vector<std::string> texts;
  for (const models::Figure& row : figures.rows) texts.push_back(row.name + " " + TextOf(row));
  return text::Joined(texts, ", ");
}

}  // namespace tsx::report
