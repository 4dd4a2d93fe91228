#include <gtest/gtest.h>
#include <ios>
#include <random>

#include <tsxport/ObjStreamReader.h>
#include <tsxport/XmluReader.h>

#include "objstream/MemoryFile.h"
#include "objstream/Values.h"
#include "support/FailingAllocation.h"

// Lines and streams that no writer made.
namespace {

namespace ts = TIMESERIESXML;
using test::FileOf;
using test::RestOf;
using test::ValueOf;
using test::XmluValueOf;
using namespace std::string_literals;

// An int line of exactly `size` bytes.
std::string LineOfSize(std::size_t size) {
  const std::string line = "<Int value=\"7\"/>";
  return line + std::string(size - line.size(), ' ');
}

// Whether any call of either reader takes something from a stream made anew by `open`.
template <typename Open>
bool AnyCallSucceeds(Open open) {
  bool any = false;
  const auto tryCall = [&](auto call) {
    std::ifstream in = open();
    any = call(in) || any;
  };
  bool flag = true;
  int number = 3;
  unsigned count = 3;
  long large = 3;
  double real = 3;
  std::string text = "before";
  tryCall([&](auto& in) { return ts::ParseStartXML(in); });
  tryCall([&](auto& in) { return ts::ParseStartObj(in, "x"); });
  tryCall([&](auto& in) { return ts::ParseEndObj(in); });
  tryCall([&](auto& in) { return ts::ParseValue(in, flag); });
  tryCall([&](auto& in) { return ts::ParseValue(in, number); });
  tryCall([&](auto& in) { return ts::ParseValue(in, count); });
  tryCall([&](auto& in) { return ts::ParseValue(in, large); });
  tryCall([&](auto& in) { return ts::ParseValue(in, real); });
  tryCall([&](auto& in) { return ts::ParseValue(in, text); });
  tryCall([&](auto& in) { return xmlu::ParseStartXML(in); });
  tryCall([&](auto& in) { return xmlu::ParseStartObj(in, "x"); });
  tryCall([&](auto& in) { return xmlu::ParseEndObj(in); });
  tryCall([&](auto& in) { return xmlu::ParseValue(in, number); });
  tryCall([&](auto& in) { return xmlu::ParseValue(in, count); });
  tryCall([&](auto& in) { return xmlu::ParseValue(in, large); });
  tryCall([&](auto& in) { return xmlu::ParseValue(in, real); });
  EXPECT_TRUE(flag && number == 3 && count == 3 && large == 3 && real == 3 && text == "before")
      << "an output was touched";
  return any;
}

TEST(AnyBytes, LineOf300CharactersIsRefusedByEveryCall) {
  for (const char* start :
       {"<?xml ", "<Obj name=\"x\"> ", "</Obj> ", "<Int value=\"1\"/> ", "<Long value=\"1\"/> ",
        "<Double value=\"1\"/> ", "<String value=\"1\"/> "}) {
    const std::string line = start + std::string(300 - std::string(start).size(), 'x') + "\n";
    EXPECT_FALSE(AnyCallSucceeds([&] { return FileOf(line); })) << start;
  }
}

TEST(AnyBytes, LineOf255CharactersIsRead) {
  EXPECT_EQ(ValueOf<int>(LineOfSize(255) + "\n"), 7);
  EXPECT_EQ(ValueOf<int>(LineOfSize(255)), 7);
  EXPECT_EQ(XmluValueOf<int>(LineOfSize(255) + "\n"), 7);
  EXPECT_EQ(XmluValueOf<int>(LineOfSize(255)), 7);
}

TEST(AnyBytes, LineOf256CharactersIsNot) {
  for (const std::size_t size : {256U, 257U, 512U, 100000U}) {
    EXPECT_EQ(ValueOf<int>(LineOfSize(size) + "\n", 3), std::nullopt) << size;
    EXPECT_EQ(ValueOf<int>(LineOfSize(size), 3), std::nullopt) << size;
    EXPECT_EQ(XmluValueOf<int>(LineOfSize(size) + "\n", 3), std::nullopt) << size;
    EXPECT_EQ(XmluValueOf<int>(LineOfSize(size), 3), std::nullopt) << size;
  }
}

TEST(AnyBytes, TheWholeOfALongLineIsTokens) {
  const std::string text(255 - 18, 'x');
  EXPECT_EQ(ValueOf<std::string>("<String value=\"" + text + "\"/>\n"), text);
  const std::string unended(255 - 15, 'x');
  EXPECT_EQ(ValueOf<std::string>("<String value=\"" + unended), unended);
}

TEST(AnyBytes, AfterALineTooLongNothingIsRead) {
  std::ifstream in = FileOf(LineOfSize(256) + "\n<Int value=\"7\"/>\n");
  int value = 3;
  EXPECT_FALSE(ts::ParseValue(in, value));
  EXPECT_FALSE(ts::ParseValue(in, value));
  EXPECT_TRUE(in.fail());
  EXPECT_EQ(value, 3);
}

TEST(AnyBytes, CarriageReturnCountsAsACharacter) {
  EXPECT_EQ(ValueOf<int>(LineOfSize(254) + "\r\n"), 7);
  EXPECT_EQ(ValueOf<int>(LineOfSize(255) + "\r\n", 3), std::nullopt);
}

TEST(AnyBytes, LastLineNeedsNoLineFeed) {
  std::ifstream in = FileOf("</Obj>");
  EXPECT_TRUE(ts::ParseEndObj(in));
  EXPECT_TRUE(in.eof());
  EXPECT_FALSE(ts::ParseEndObj(in));
}

TEST(AnyBytes, NulEndsTheLine) {
  EXPECT_EQ(ValueOf<int>("<Int value=\"12\0003\"/>\n"s), 12);
  EXPECT_EQ(ValueOf<std::string>("<String value=\"a\0b\"/>\n"s), "a");
  EXPECT_EQ(ValueOf<int>("<Int\0value=\"1\"/>\n"s, 3), std::nullopt);
  EXPECT_EQ(XmluValueOf<int>("\0<Int value=\"1\"/>\n"s, 3), std::nullopt);
}

TEST(AnyBytes, LineAfterANulIsTheNext) {
  std::ifstream in = FileOf("\0 junk\n</Obj>\n"s);
  EXPECT_FALSE(ts::ParseEndObj(in));
  EXPECT_TRUE(ts::ParseEndObj(in));
}

TEST(AnyBytes, LineThatBeginsWithNulIsEmpty) {
  std::ifstream in = FileOf("\0junk\n<Obj name=\"x\">\n"s);
  EXPECT_TRUE(ts::ParseStartObj(in, "x"));
}

TEST(AnyBytes, EmptyFileIsRefusedByEveryCall) {
  EXPECT_FALSE(AnyCallSucceeds([] { return FileOf(""); }));
}

TEST(AnyBytes, FileThatIsNotThereIsRefusedByEveryCall) {
  EXPECT_FALSE(AnyCallSucceeds([] { return std::ifstream("/no/such/file"); }));
  EXPECT_FALSE(AnyCallSucceeds([] { return std::ifstream(); }));
}

TEST(AnyBytes, DirectoryIsRefusedByEveryCall) {
  EXPECT_FALSE(AnyCallSucceeds([] { return std::ifstream("/"); }));
}

TEST(AnyBytes, StreamThatIsNotGoodIsRefusedByEveryCall) {
  for (const auto state : {std::ios::badbit, std::ios::failbit, std::ios::eofbit}) {
    EXPECT_FALSE(AnyCallSucceeds([state] {
      std::ifstream in = FileOf("<Int value=\"7\"/>\n");
      in.setstate(state);
      return in;
    }));
  }
}

TEST(AnyBytes, NothingIsReadFromAStreamThatIsNotGood) {
  std::ifstream in = FileOf("<Int value=\"7\"/>\n");
  in.setstate(std::ios::badbit);
  int value = 3;
  EXPECT_FALSE(ts::ParseValue(in, value));
  in.clear();
  EXPECT_TRUE(ts::ParseValue(in, value));
  EXPECT_EQ(value, 7);
}

TEST(AnyBytes, StreamThrowsWhereItsHostWantsThat) {
  std::ifstream in = FileOf("");
  in.exceptions(std::ios::failbit);
  int value = 3;
  EXPECT_THROW(ts::ParseValue(in, value), std::ios::failure);
  EXPECT_EQ(value, 3);
}

TEST(AnyBytes, NoiseIsRefusedOrRead) {
  std::mt19937 random(1);
  std::string noise(200000, '\0');
  for (char& c : noise) c = static_cast<char>(random());
  std::ifstream in = FileOf(noise);
  std::string text;
  double real = 0;
  while (!in.eof()) {
    in.clear();
    ts::ParseValue(in, text);
    xmlu::ParseValue(in, real);
    xmlu::ParseStartObj(in, "x");
  }
  EXPECT_EQ(RestOf(in), "");
}

TEST(AnyBytes, MemoryExhaustionComesOutOfAString) {
  const std::string line = "<String value=\"" + std::string(100, 'x') + "\"/>\n";
  const auto parse = [&] {
    test::MemoryFile memory(line);
    std::string value = "before";
    ts::ParseValue(memory, value);
  };
  test::WithEveryAllocationFailing(parse);
}

}  // namespace
