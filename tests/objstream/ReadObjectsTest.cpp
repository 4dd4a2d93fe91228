#include <gtest/gtest.h>

#include <tsxport/ObjStreamReader.h>
#include <tsxport/XmluReader.h>

#include "objstream/Files.h"

namespace {

namespace ts = TIMESERIESXML;
using test::FileOf;
using test::RestOf;

bool StartsXml(const std::string& text) {
  std::ifstream in = FileOf(text);
  return ts::ParseStartXML(in);
}
bool XmluStartsXml(const std::string& text) {
  std::ifstream in = FileOf(text);
  return xmlu::ParseStartXML(in);
}
bool StartsObj(const std::string& text, const std::string& name) {
  std::ifstream in = FileOf(text);
  return ts::ParseStartObj(in, name);
}
bool XmluStartsObj(const std::string& text, const std::string& name) {
  std::ifstream in = FileOf(text);
  return xmlu::ParseStartObj(in, name);
}
bool EndsObj(const std::string& text) {
  std::ifstream in = FileOf(text);
  return ts::ParseEndObj(in);
}
bool XmluEndsObj(const std::string& text) {
  std::ifstream in = FileOf(text);
  return xmlu::ParseEndObj(in);
}

const std::string kTwoLines =
    "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n"
    "<!DOCTYPE MCXMLRoot SYSTEM \"savexml.dtd\">\n";

TEST(ReadStart, DeclarationDocTypeAndRoot) {
  EXPECT_TRUE(StartsXml(kTwoLines + "<MCXMLRoot copyright=\"c\">\n"));
  EXPECT_TRUE(StartsXml(kTwoLines + "<MCXMLRoot copyright=\"c\">"));
}

TEST(ReadStart, OnlyTheFirstTokensCount) {
  EXPECT_TRUE(StartsXml("?xml\n!DOCTYPE\nMCXMLRoot"));
  EXPECT_TRUE(StartsXml("<?xml x\n<!DOCTYPE y\n<MCXMLRoot z"));
}

TEST(ReadStart, AnotherFirstTokenIsRefused) {
  EXPECT_FALSE(StartsXml("<xml?>\n<!DOCTYPE>\n<MCXMLRoot>\n"));
  EXPECT_FALSE(StartsXml("<?xml?>\n<!DOCTYPE>\n<MCXMLRoot>\n"));
  EXPECT_FALSE(StartsXml("<?xml >\n<DOCTYPE>\n<MCXMLRoot>\n"));
  EXPECT_FALSE(StartsXml("<?xml >\n<!DOCTYPE>\n<MCXMLRoots>\n"));
  EXPECT_FALSE(StartsXml("<?xml >\n<!DOCTYPE>\n</MCXMLRoot>\n"));
}

TEST(ReadStart, MissingLinesAreRefused) {
  EXPECT_FALSE(StartsXml(""));
  EXPECT_FALSE(StartsXml("<?xml >\n"));
  EXPECT_FALSE(StartsXml(kTwoLines));
  EXPECT_FALSE(StartsXml(kTwoLines + "\n<MCXMLRoot>\n"));
  EXPECT_FALSE(StartsXml("\n" + kTwoLines + "<MCXMLRoot>\n"));
}

TEST(ReadStart, LinesBehindAMismatchAreNotRead) {
  std::ifstream in = FileOf("no\n<!DOCTYPE>\n<MCXMLRoot>\n");
  EXPECT_FALSE(ts::ParseStartXML(in));
  EXPECT_EQ(RestOf(in), "<!DOCTYPE>\n<MCXMLRoot>\n");
  std::ifstream second = FileOf("<?xml >\nno\n<MCXMLRoot>\n");
  EXPECT_FALSE(ts::ParseStartXML(second));
  EXPECT_EQ(RestOf(second), "<MCXMLRoot>\n");
  std::ifstream third = FileOf("<?xml >\nno\n\n");
  EXPECT_FALSE(xmlu::ParseStartXML(third));
  EXPECT_EQ(RestOf(third), "\n");
}

TEST(ReadStart, XmluWantsASeparatingLineInsteadOfTheRoot) {
  EXPECT_TRUE(XmluStartsXml(kTwoLines + "\n"));
  EXPECT_TRUE(XmluStartsXml(kTwoLines + " \t<>=\"\n"));
  EXPECT_FALSE(XmluStartsXml(kTwoLines + "<MCXMLRoot copyright=\"c\">\n"));
  EXPECT_FALSE(XmluStartsXml(kTwoLines + "x\n"));
}

TEST(ReadStart, XmluWantsThatLineToBeThere) {
  EXPECT_FALSE(XmluStartsXml(kTwoLines));
  EXPECT_FALSE(XmluStartsXml("<?xml >\n<!DOCTYPE>"));
  EXPECT_FALSE(XmluStartsXml(""));
  EXPECT_FALSE(XmluStartsXml("<?xml >\n\n\n"));
}

TEST(ReadStart, CarriageReturnsAreNoTokens) {
  EXPECT_TRUE(StartsXml("<?xml\r\n<!DOCTYPE\r\n<MCXMLRoot\r\n"));
}

TEST(ReadStart, LoneCarriageReturnIsATokenToXmlu) {
  EXPECT_FALSE(XmluStartsXml("<?xml >\r\n<!DOCTYPE >\r\n\r\n"));
  EXPECT_TRUE(XmluStartsXml("<?xml >\r\n<!DOCTYPE >\r\n\n"));
  EXPECT_FALSE(XmluStartsXml("<?xml\r\n<!DOCTYPE >\n\n"));
}

TEST(ReadObjectStart, NameMustBeTheOneExpected) {
  for (const auto starts : {&StartsObj, &XmluStartsObj}) {
    EXPECT_TRUE(starts("<Obj name=\"weights\">\n", "weights"));
    EXPECT_TRUE(starts("\t\t<Obj name=\"weights\">", "weights"));
    EXPECT_FALSE(starts("<Obj name=\"weights\">\n", "weight"));
    EXPECT_FALSE(starts("<Obj name=\"weights\">\n", "weightss"));
    EXPECT_FALSE(starts("<Obj name=\"weights\">\n", "Weights"));
    EXPECT_FALSE(starts("<Obj name=\"weights\">\n", ""));
    EXPECT_FALSE(starts("<Obj name=\"weights\">\n", std::string("weights\0", 8)));
  }
}

TEST(ReadObjectStart, OtherLinesAreRefused) {
  for (const auto starts : {&StartsObj, &XmluStartsObj}) {
    EXPECT_FALSE(starts("", "x"));
    EXPECT_FALSE(starts("\t", "x"));
    EXPECT_FALSE(starts("<Object name=\"x\">\n", "x"));
    EXPECT_FALSE(starts("<Obj Name=\"x\">\n", "x"));
    EXPECT_FALSE(starts("</Obj>\n", "x"));
    EXPECT_FALSE(starts("<Obj>\n", "x"));
  }
}

TEST(ReadObjectStart, MissingNameIsRefused) {
  for (const auto starts : {&StartsObj, &XmluStartsObj}) {
    for (const char* name : {"", "name", "x"}) {
      EXPECT_FALSE(starts("<Obj name=\"\n", name));
      EXPECT_FALSE(starts("<Obj name\n", name));
      EXPECT_FALSE(starts("<Obj \n", name));
    }
  }
}

// The quotes of an empty name are skipped, so what follows them is the name.
TEST(ReadObjectStart, EmptyNameIsNotFound) {
  EXPECT_FALSE(StartsObj("<Obj name=\"\">\n", ""));
  EXPECT_TRUE(StartsObj("<Obj name=\"\">\n", ">"));
  EXPECT_FALSE(XmluStartsObj("<Obj name=\"\">\n", ""));
  EXPECT_FALSE(XmluStartsObj("<Obj name=\"\">\n", ">"));
}

TEST(ReadObjectStart, NameMayHoldBlanksAndTags) {
  EXPECT_TRUE(StartsObj("<Obj name=\"my weights\">\n", "my weights"));
  EXPECT_TRUE(StartsObj("<Obj name=\" a<b>=c\t\r \">\n", " a<b>=c\t\r "));
}

TEST(ReadObjectStart, XmluNamesEndAtABlank) {
  EXPECT_FALSE(XmluStartsObj("<Obj name=\"my weights\">\n", "my weights"));
  EXPECT_TRUE(XmluStartsObj("<Obj name=\"my weights\">\n", "my"));
  EXPECT_TRUE(XmluStartsObj("<Obj name=\"a=b\">\n", "a"));
  EXPECT_TRUE(XmluStartsObj("<Obj name=\"a<b\">\n", "a"));
}

TEST(ReadObjectStart, OneEmptyLineIsSkipped) {
  for (const auto starts : {&StartsObj, &XmluStartsObj}) {
    EXPECT_TRUE(starts("\n<Obj name=\"x\">\n", "x"));
    EXPECT_FALSE(starts("\n\n<Obj name=\"x\">\n", "x"));
    EXPECT_FALSE(starts("\n", "x"));
  }
}

TEST(ReadObjectStart, LineOfBlanksIsNotEmpty) {
  for (const auto starts : {&StartsObj, &XmluStartsObj}) {
    EXPECT_FALSE(starts(" \n<Obj name=\"x\">\n", "x"));
    EXPECT_FALSE(starts("\r\n<Obj name=\"x\">\n", "x"));
  }
}

TEST(ReadObjectStart, SecondEmptyLineIsReadAndNoMore) {
  std::ifstream in = FileOf("\n\n<Obj name=\"x\">\n");
  EXPECT_FALSE(ts::ParseStartObj(in, "x"));
  EXPECT_TRUE(ts::ParseStartObj(in, "x"));
}

TEST(ReadObjectStart, CarriageReturnsMayEndTheLine) {
  EXPECT_TRUE(StartsObj("<Obj name=\"x\">\r\n", "x"));
  EXPECT_TRUE(XmluStartsObj("<Obj name=\"x\">\r\n", "x"));
}

TEST(ReadObjectEnd, EndTag) {
  for (const auto ends : {&EndsObj, &XmluEndsObj}) {
    EXPECT_TRUE(ends("</Obj>\n"));
    EXPECT_TRUE(ends("\t\t</Obj>"));
    EXPECT_TRUE(ends("</Obj>\r\n"));
    EXPECT_TRUE(ends("</Obj"));
    EXPECT_TRUE(ends("</Obj> and more"));
  }
}

TEST(ReadObjectEnd, OtherLinesAreRefused) {
  for (const auto ends : {&EndsObj, &XmluEndsObj}) {
    for (const char* line :
         {"", "\n", " <>\n", "<Obj>\n", "</ Obj>", "/obj", "</Objs>", "\n</Obj>\n"}) {
      EXPECT_FALSE(ends(line)) << line;
    }
  }
}

TEST(ReadObjectEnd, CarriageReturnBelongsToTheXmluToken) {
  EXPECT_TRUE(EndsObj("/Obj\r\n"));
  EXPECT_FALSE(XmluEndsObj("/Obj\r\n"));
}

// What a caller sees who goes through a whole stream.

TEST(ReadStream, NestedObjectsInOrder) {
  std::ifstream in = FileOf(kTwoLines +
                            "<MCXMLRoot copyright=\"c\">\n"
                            "<Obj name=\"outer one\">\n"
                            "\t<Int value=\"3\"/>\n"
                            "\t<Obj name=\"inner\">\n"
                            "\t\t<String value=\"a b\"/>\n"
                            "\t</Obj>\n"
                            "</Obj>\n"
                            "</MCXMLRoot>");
  int number = 0;
  std::string text;
  EXPECT_TRUE(ts::ParseStartXML(in));
  EXPECT_TRUE(ts::ParseStartObj(in, "outer one"));
  EXPECT_TRUE(ts::ParseValue(in, number));
  EXPECT_TRUE(ts::ParseStartObj(in, "inner"));
  EXPECT_TRUE(ts::ParseValue(in, text));
  EXPECT_TRUE(ts::ParseEndObj(in));
  EXPECT_TRUE(ts::ParseEndObj(in));
  EXPECT_EQ(number, 3);
  EXPECT_EQ(text, "a b");
  EXPECT_EQ(RestOf(in), "</MCXMLRoot>");
}

TEST(ReadStream, WithCarriageReturnsThroughout) {
  std::ifstream in = FileOf(
      "<?xml version=\"1.0\"?>\r\n<!DOCTYPE MCXMLRoot>\r\n<MCXMLRoot copyright=\"c\">\r\n"
      "<Obj name=\"x\">\r\n\t<Double value=\"0.5\"/>\r\n\t<String value=\"\"/>\r\n"
      "\t<String value=\"a b\"/>\r\n</Obj>\r\n</MCXMLRoot>");
  double number = 0;
  std::string empty = "before";
  std::string text;
  EXPECT_TRUE(ts::ParseStartXML(in) && ts::ParseStartObj(in, "x") && ts::ParseValue(in, number) &&
              ts::ParseValue(in, empty) && ts::ParseValue(in, text) && ts::ParseEndObj(in));
  EXPECT_EQ(number, 0.5);
  EXPECT_EQ(empty, "");
  EXPECT_EQ(text, "a b");
}

TEST(ReadStream, XmluReadsAStreamWithTheRootOnTheDocTypesLine) {
  std::ifstream in = FileOf(
      "<?xml version=\"1.0\"?>\n<!DOCTYPE MCXMLRoot><MCXMLRoot copyright=\"c\">\n\n"
      "<Obj name=\"x\">\n\t<Int value=\"3\"/>\n\t<Long value=\"-4\"/>\n\t<Double value=\"0.5\"/>\n"
      "</Obj>\n</MCXMLRoot>");
  unsigned count = 0;
  long number = 0;
  double real = 0;
  EXPECT_TRUE(xmlu::ParseStartXML(in) && xmlu::ParseStartObj(in, "x") &&
              xmlu::ParseValue(in, count) && xmlu::ParseValue(in, number) &&
              xmlu::ParseValue(in, real) && xmlu::ParseEndObj(in));
  EXPECT_EQ(count, 3U);
  EXPECT_EQ(number, -4);
  EXPECT_EQ(real, 0.5);
}

TEST(ReadStream, RefusedLineHasBeenRead) {
  std::ifstream in = FileOf("<Int value=\"7\"/>\n<Long value=\"8\"/>\n");
  long value = 3;
  EXPECT_FALSE(ts::ParseValue(in, value));
  EXPECT_EQ(value, 3);
  EXPECT_TRUE(ts::ParseValue(in, value));
  EXPECT_EQ(value, 8);
}

}  // namespace
