#ifndef TSXPORT_TESTS_XML_RANDOMTREE_H_
#define TSXPORT_TESTS_XML_RANDOMTREE_H_

#include <memory>
#include <random>
#include <string>

#include <tsxport/XMLElement.h>

#include "tests/literal/LiteralXml.h"

namespace test {

// One tree, made of the library's nodes and of the literal version's by the same calls.
struct TreePair {
  std::unique_ptr<TIMESERIESXML::XMLElement> ours;
  std::unique_ptr<literal::Element> literal;
};

// Whether there are elements of a class that derives from the library's.
enum class Nodes { kOfAllClasses, kOursOnly };

// About `size` nodes of every kind in every mixture, the same for the same seed.
TreePair RandomTrees(unsigned seed, int size, Nodes nodes = Nodes::kOfAllClasses);

// Up to some dozen bytes, seldom some thousands: plain and special characters, blanks, texts in
// several code sets, bytes that are valid in none.
std::string RandomText(std::mt19937& random);

}  // namespace test

#endif  // TSXPORT_TESTS_XML_RANDOMTREE_H_
