#include "xml/RandomTree.h"

#include <cmath>
#include <iterator>
#include <vector>

#include "xml/ElementPtr.h"

namespace test {

using TIMESERIESXML::XMLAttribute;
using TIMESERIESXML::XMLElement;
using TIMESERIESXML::XMLString;

namespace {

// A class of its own, written through its virtual functions.
class DerivedElement : public XMLElement {
 public:
  using XMLElement::XMLElement;
};

struct Place {
  XMLElement* ours;
  literal::Element* literal;
};

std::string RandomName(std::mt19937& random) {
  static const char* const names[] = {"a",          "Level",  "xsi:type", "aLongNameOfAnElement",
                                      "n\xc3\xbcm", "n\xfcm", "F|",       ""};
  return names[random() % std::size(names)];
}

double RandomNumber(std::mt19937& random) {
  const double mantissa = std::uniform_real_distribution<double>(-10, 10)(random);
  const auto exponent = static_cast<int>(random() % 60) - 30;
  return random() % 3 == 0 ? std::round(100 * mantissa) : mantissa * std::pow(10.0, exponent);
}

void AddAttribute(Place place, std::mt19937& random) {
  const std::string name = RandomName(random);
  if (random() % 3 == 0) {
    const double value = RandomNumber(random);
    place.literal->AddAttribute(name, value);
    if (random() % 2 == 0) return place.ours->AddAttribute(name, value);
    return place.ours->AddAttribute(XMLAttribute::Create(name, value));
  }
  const std::string value = RandomText(random);
  place.literal->AddAttribute(name, value);
  switch (random() % 3) {
    case 0:
      return place.ours->AddAttribute(name, value);
    case 1:
      return place.ours->AddAttribute(XMLAttribute::Create(name, value));
    default:
      return place.ours->AddAttribute(new XMLAttribute(name, value));
  }
}

void AddText(Place place, std::mt19937& random) {
  const std::string text = RandomText(random);
  place.literal->AddElement(literal::String::Create(text));
  switch (random() % 3) {
    case 0:
      tsx::AppendText(*place.ours, text);
      break;
    case 1:
      place.ours->AddElement(XMLString::Create(text));
      break;
    default:
      place.ours->AddElement(new XMLString(text));
  }
}

XMLElement* NewElement(const std::string& name, std::mt19937& random, Nodes nodes) {
  const auto choice = random() % 8;
  if (choice == 0) return new XMLElement(name);
  if (choice == 1 && nodes == Nodes::kOfAllClasses) return new DerivedElement(name);
  return XMLElement::Create(name);
}

Place AddElement(Place place, std::mt19937& random, Nodes nodes) {
  const std::string name = RandomName(random);
  const Place child = {NewElement(name, random, nodes), literal::Element::Create(name)};
  place.ours->AddElement(child.ours);
  place.literal->AddElement(child.literal);
  return child;
}

}  // namespace

std::string RandomText(std::mt19937& random) {
  static const char* const parts[] = {
      "a",        "plain",        " ",    "  ",       "   ",   "&",        "<",      ">",    "\"",
      "'",        "\t",           "\n",   "\r",       "&amp;", "1",        "0.25",   "\x01", "\x7f",
      "\xc3\xbc", "\xe6\x97\xa5", "\xfc", "\xc6\xfc", "\xff",  "\x1b$BF|", "\x1b(B", "F|"};
  const auto count = random() % 64 == 0 ? random() % 3000 : random() % 8;
  std::string text;
  for (std::size_t i = 0; i < count; ++i) text += parts[random() % std::size(parts)];
  return text;
}

TreePair RandomTrees(unsigned seed, int size, Nodes nodes) {
  std::mt19937 random(seed);
  const std::string name = RandomName(random);
  TreePair trees{std::unique_ptr<XMLElement>(XMLElement::Create(name)),
                 std::unique_ptr<literal::Element>(literal::Element::Create(name))};
  std::vector<Place> places = {{trees.ours.get(), trees.literal.get()}};
  for (int i = 0; i < size; ++i) {
    const Place place = places[random() % places.size()];
    switch (random() % 4) {
      case 0:
        AddText(place, random);
        break;
      case 1:
        places.push_back(AddElement(place, random, nodes));
        break;
      case 2:
        places.push_back(AddElement(places.back(), random, nodes));
        break;
      default:
        AddAttribute(place, random);
        break;
    }
  }
  return trees;
}

}  // namespace test
