#include <algorithm>
#include <gtest/gtest.h>
#include <limits>
#include <string>

#include <tsxport/ObjStreamReader.h>
#include <tsxport/XmluReader.h>

#include "objstream/MemoryFile.h"

// Which bytes delimit a token, for each token of each reader: every byte but NUL and the line feed
// is tried in front of it and behind it.
namespace {

namespace ts = TIMESERIESXML;
using test::MemoryFile;

// The bytes for which `holds`, in order.
template <typename Holds>
std::string BytesThat(Holds holds) {
  std::string bytes;
  for (int code = 1; code < 256; ++code) {
    const char c = static_cast<char>(code);
    if (c != '\n' && holds(std::string(1, c))) bytes += c;
  }
  return bytes;
}

// The line feed ends the line before it can delimit.
constexpr char kBlanksTagsAndQuote[] = "\t\r \"<=>";
constexpr char kBlanksLessEqualsAndQuote[] = "\t\r \"<=";
constexpr char kBlanksAndTags[] = "\t\r <>";
constexpr char kEqualsAndQuote[] = "\"=";
constexpr char kXmlu[] = "\t \"<=>";

bool TsStartXML(const std::string& text) {
  MemoryFile in(text);
  return ts::ParseStartXML(in);
}
bool XmluStartXML(const std::string& text) {
  MemoryFile in(text);
  return xmlu::ParseStartXML(in);
}
bool TsStartObj(const std::string& line, const std::string& name = "x") {
  MemoryFile in(line);
  return ts::ParseStartObj(in, name);
}
bool XmluStartObj(const std::string& line) {
  MemoryFile in(line);
  return xmlu::ParseStartObj(in, "x");
}
bool TsEndObj(const std::string& line) {
  MemoryFile in(line);
  return ts::ParseEndObj(in);
}
bool XmluEndObj(const std::string& line) {
  MemoryFile in(line);
  return xmlu::ParseEndObj(in);
}
bool TsGives7(const std::string& line) {
  MemoryFile in(line);
  int value = 0;
  return ts::ParseValue(in, value) && value == 7;
}
bool XmluGives7(const std::string& line) {
  MemoryFile in(line);
  int value = 0;
  return xmlu::ParseValue(in, value) && value == 7;
}
bool TsTakesInt(const std::string& line) {
  MemoryFile in(line);
  int value = 0;
  return ts::ParseValue(in, value);
}
bool XmluTakesInt(const std::string& line) {
  MemoryFile in(line);
  int value = 0;
  return xmlu::ParseValue(in, value);
}
bool TsGivesMissing(const std::string& line) {
  MemoryFile in(line);
  double value = 0;
  return ts::ParseValue(in, value) && value == std::numeric_limits<double>::lowest();
}
bool TsGivesStringX(const std::string& line) {
  MemoryFile in(line);
  std::string value;
  return ts::ParseValue(in, value) && value == "x";
}

TEST(TimeSeriesDelimiters, OfTheFirstLine) {
  const std::string rest = "\n!DOCTYPE\nMCXMLRoot";
  EXPECT_EQ(BytesThat([&](auto c) { return TsStartXML(c + "?xml" + rest); }), kBlanksTagsAndQuote);
  EXPECT_EQ(BytesThat([&](auto c) { return TsStartXML("?xml" + c + "y" + rest); }),
            kBlanksTagsAndQuote);
}

TEST(TimeSeriesDelimiters, OfTheSecondLine) {
  const std::string rest = "\nMCXMLRoot";
  EXPECT_EQ(BytesThat([&](auto c) { return TsStartXML("?xml\n" + c + "!DOCTYPE" + rest); }),
            kBlanksTagsAndQuote);
  EXPECT_EQ(BytesThat([&](auto c) { return TsStartXML("?xml\n!DOCTYPE" + c + "y" + rest); }),
            kBlanksTagsAndQuote);
}

TEST(TimeSeriesDelimiters, OfTheThirdLine) {
  const std::string before = "?xml\n!DOCTYPE\n";
  EXPECT_EQ(BytesThat([&](auto c) { return TsStartXML(before + c + "MCXMLRoot"); }),
            kBlanksTagsAndQuote);
  EXPECT_EQ(BytesThat([&](auto c) { return TsStartXML(before + "MCXMLRoot" + c + "y"); }),
            kBlanksTagsAndQuote);
}

TEST(TimeSeriesDelimiters, OfTheObjectTag) {
  EXPECT_EQ(BytesThat([](auto c) { return TsStartObj(c + "Obj name=\"x\""); }),
            kBlanksLessEqualsAndQuote);
  EXPECT_EQ(BytesThat([](auto c) { return TsStartObj("Obj" + c + "name=\"x\""); }),
            kBlanksLessEqualsAndQuote);
}

TEST(TimeSeriesDelimiters, OfTheNameAttribute) {
  EXPECT_EQ(BytesThat([](auto c) { return TsStartObj("Obj " + c + "name=\"x\""); }),
            kBlanksLessEqualsAndQuote);
  EXPECT_EQ(BytesThat([](auto c) { return TsStartObj("Obj name" + c + "\"x\""); }),
            kBlanksLessEqualsAndQuote);
}

TEST(TimeSeriesDelimiters, OnlyTheQuoteDelimitsTheName) {
  EXPECT_EQ(BytesThat([](auto c) { return TsStartObj("Obj name=" + c + "x"); }), "\"");
  EXPECT_EQ(BytesThat([](auto c) { return TsStartObj("Obj name=\"x" + c + "y"); }), "\"");
}

TEST(TimeSeriesDelimiters, OfTheObjectEnd) {
  EXPECT_EQ(BytesThat([](auto c) { return TsEndObj(c + "/Obj"); }), kBlanksAndTags);
  EXPECT_EQ(BytesThat([](auto c) { return TsEndObj("/Obj" + c + "y"); }), kBlanksAndTags);
}

TEST(TimeSeriesDelimiters, OfTheValueTag) {
  EXPECT_EQ(BytesThat([](auto c) { return TsGives7(c + "Int value=\"7\""); }),
            kBlanksLessEqualsAndQuote);
  EXPECT_EQ(BytesThat([](auto c) { return TsGives7("Int" + c + "value=\"7\""); }),
            kBlanksLessEqualsAndQuote);
}

TEST(TimeSeriesDelimiters, NoBlankMayStandAroundTheValueAttribute) {
  EXPECT_EQ(BytesThat([](auto c) { return TsGives7("Int " + c + "value=\"7\""); }),
            kEqualsAndQuote);
  EXPECT_EQ(BytesThat([](auto c) { return TsGives7("Int value" + c + "7"); }), kEqualsAndQuote);
}

TEST(TimeSeriesDelimiters, OfANumber) {
  EXPECT_EQ(BytesThat([](auto c) { return TsGivesMissing("Double value=" + c + "Missing"); }),
            kBlanksLessEqualsAndQuote);
  EXPECT_EQ(BytesThat([](auto c) { return TsGivesMissing("Double value=Missing" + c + "y"); }),
            kBlanksLessEqualsAndQuote);
  // A value of delimiters alone is none.
  EXPECT_EQ(BytesThat([](auto c) { return !TsTakesInt("Int value=" + c); }),
            kBlanksLessEqualsAndQuote);
}

TEST(TimeSeriesDelimiters, OfAString) {
  EXPECT_EQ(BytesThat([](auto c) { return TsGivesStringX("String value=" + c + "x"); }), "\r\"");
  EXPECT_EQ(BytesThat([](auto c) { return TsGivesStringX("String value=\"x" + c + "y"); }), "\r\"");
}

TEST(XmluDelimiters, OfTheFirstLine) {
  EXPECT_EQ(BytesThat([](auto c) { return XmluStartXML(c + "?xml\n!DOCTYPE\n\n"); }), kXmlu);
  EXPECT_EQ(BytesThat([](auto c) { return XmluStartXML("?xml" + c + "y\n!DOCTYPE\n\n"); }), kXmlu);
}

TEST(XmluDelimiters, OfTheSecondLine) {
  EXPECT_EQ(BytesThat([](auto c) { return XmluStartXML("?xml\n" + c + "!DOCTYPE\n\n"); }), kXmlu);
  EXPECT_EQ(BytesThat([](auto c) { return XmluStartXML("?xml\n!DOCTYPE" + c + "y\n\n"); }), kXmlu);
}

TEST(XmluDelimiters, MayStandInTheThirdLine) {
  EXPECT_EQ(BytesThat([](auto c) { return XmluStartXML("?xml\n!DOCTYPE\n" + c + c + "\n"); }),
            kXmlu);
}

TEST(XmluDelimiters, OfTheObjectTag) {
  EXPECT_EQ(BytesThat([](auto c) { return XmluStartObj(c + "Obj name=\"x\""); }), kXmlu);
  EXPECT_EQ(BytesThat([](auto c) { return XmluStartObj("Obj" + c + "name=\"x\""); }), kXmlu);
}

TEST(XmluDelimiters, OfTheNameAttribute) {
  EXPECT_EQ(BytesThat([](auto c) { return XmluStartObj("Obj " + c + "name=\"x\""); }), kXmlu);
  EXPECT_EQ(BytesThat([](auto c) { return XmluStartObj("Obj name" + c + "\"x\""); }), kXmlu);
}

TEST(XmluDelimiters, AllOfThemDelimitTheName) {
  EXPECT_EQ(BytesThat([](auto c) { return XmluStartObj("Obj name=" + c + "x"); }), kXmlu);
  EXPECT_EQ(BytesThat([](auto c) { return XmluStartObj("Obj name=\"x" + c + "y"); }), kXmlu);
}

TEST(XmluDelimiters, OfTheObjectEnd) {
  EXPECT_EQ(BytesThat([](auto c) { return XmluEndObj(c + "/Obj"); }), "\t <>");
  EXPECT_EQ(BytesThat([](auto c) { return XmluEndObj("/Obj" + c + "y"); }), "\t <>");
}

TEST(XmluDelimiters, OfTheValueTag) {
  EXPECT_EQ(BytesThat([](auto c) { return XmluGives7(c + "Int value=\"7\""); }), kXmlu);
  EXPECT_EQ(BytesThat([](auto c) { return XmluGives7("Int" + c + "value=\"7\""); }), kXmlu);
}

TEST(XmluDelimiters, BlanksMayStandAroundTheValueAttribute) {
  EXPECT_EQ(BytesThat([](auto c) { return XmluGives7("Int " + c + "value=\"7\""); }), kXmlu);
  EXPECT_EQ(BytesThat([](auto c) { return XmluGives7("Int value" + c + "7"); }), kXmlu);
}

TEST(XmluDelimiters, OfANumber) {
  EXPECT_EQ(BytesThat([](auto c) { return !XmluTakesInt("Int value=" + c); }), kXmlu);
}

}  // namespace
