#include <bit>
#include <cstdint>
#include <cstdio>
#include <gtest/gtest.h>
#include <iterator>
#include <optional>
#include <random>
#include <sstream>

#include <tsxport/XMLObj.h>

#include "objstream/Comparison.h"
#include "support/ScopedLocale.h"

// The library's readers and writer beside the literal ones.
namespace {

using test::Call;

constexpr int kCallsForEachTest = 500000;

// Lines that are nearly right: pieces of a line, some of them replaced, and values that numbers are
// made of.
class LineMaker {
 public:
  explicit LineMaker(unsigned seed) : random_(seed) {}

  std::size_t Below(std::size_t n) { return random_() % n; }
  bool OneIn(std::size_t n) { return Below(n) == 0; }

  // The text for one call: as many lines as it reads at most.
  std::string TextFor(Call call) {
    std::string text;
    if (call == Call::kStartXML) {
      for (const char* first : {"?xml", "!DOCTYPE", "MCXMLRoot"}) {
        text += Blanks() + Mutated(first) + Blanks() + Mutated("version=\"1.0\"") + LineEnd();
        if (*first == '!' && OneIn(2)) text += Blanks() + "\n";
      }
    } else {
      if (OneIn(8)) text += LineEnd();
      text += LineFor(call);
    }
    if (OneIn(20)) text.insert(Below(text.size() + 1), 1, AnyByte());
    return text + (OneIn(2) ? "next" : "");
  }

  // The name is often the right one.
  std::string Name() { return OneIn(4) ? Text() : names_[Below(std::size(names_))]; }

 private:
  std::string LineFor(Call call) {
    if (call == Call::kEndObj) return Blanks() + Mutated("</") + Mutated("Obj>") + LineEnd();
    const bool object = call == Call::kStartObj;
    std::string line = Blanks() + Mutated("<") + Mutated(Tag(call)) + Mutated(" ") +
                       Mutated(object ? "name" : "value") + Mutated("=") + Mutated("\"") +
                       (object ? Name() : Value(call)) + Mutated("\"") +
                       Mutated(object ? ">" : "/>");
    if (OneIn(50) && line.size() < 248) line.append(248 + Below(12) - line.size(), ' ');
    return line + LineEnd();
  }

  static const char* Tag(Call call) {
    switch (call) {
      case Call::kStartObj:
        return "Obj";
      case Call::kLong:
        return "Long";
      case Call::kDouble:
        return "Double";
      case Call::kString:
        return "String";
      default:
        return "Int";
    }
  }

  std::string Mutated(const char* piece) {
    static constexpr const char* kPieces[] = {
        "",  " ",  "\t", "\r", "=",   "\"",   "<",      ">",      "/",     "\"\"", "\v",   "name",
        "a", "/>", "==", "  ", "Int", "Long", "Double", "String", "value", "Obj",  "/Obj", "7"};
    if (!OneIn(25)) return piece;
    if (OneIn(4)) return piece + std::string(1, AnyByte());
    return kPieces[Below(std::size(kPieces))];
  }

  std::string Blanks() {
    static constexpr const char* kBlanks[] = {"\t", "\t\t", "", " ", "\t \t", "\v"};
    return kBlanks[Below(std::size(kBlanks))];
  }

  std::string LineEnd() { return OneIn(3) ? "\r\n" : OneIn(20) ? "" : "\n"; }

  char AnyByte() { return static_cast<char>(Below(256)); }

  std::string Text() {
    static constexpr char kBytes[] = "abcxyzObj01 \t\r\"<>=/&;.,\v";
    std::string text(Below(12), ' ');
    for (char& c : text) c = OneIn(30) ? AnyByte() : kBytes[Below(sizeof kBytes - 1)];
    return text;
  }

  std::string Value(Call call) {
    if (OneIn(20)) return Text();
    if (call == Call::kString) return OneIn(4) ? "" : Text();
    if (call == Call::kBool) return OneIn(4) ? Integer() : std::to_string(Below(3));
    return call == Call::kDouble ? Real() : Integer();
  }

  std::string Integer() {
    if (OneIn(4)) return NumberBytes("0123456789+- .e\v");
    const auto bits = static_cast<std::int64_t>(random_()) >> Below(64);
    std::string text = std::to_string(bits);
    if (OneIn(8)) text += std::to_string(random_());
    return text;
  }

  std::string Real() {
    static constexpr const char* kWords[] = {"Missing", "inf", "-inf",   "nan",
                                             "0x1p3",   "1e",  "-1e999", "1e-999"};
    if (OneIn(10)) return kWords[Below(std::size(kWords))];
    if (OneIn(2)) return NumberBytes("0123456789012345678900.,+-eE\v x");
    static constexpr const char* kFormats[] = {"%.15g", "%.17g", "%.3f", "%.25e", "%a"};
    char text[400];
    std::snprintf(text, sizeof text, kFormats[Below(std::size(kFormats))],
                  std::bit_cast<double>(random_()));
    return text;
  }

  std::string NumberBytes(std::string_view bytes) {
    std::string text(1 + Below(24), ' ');
    for (char& c : text) c = bytes[Below(bytes.size())];
    return text;
  }

  std::mt19937_64 random_;
  const std::string names_[3] = {"obj1", "my weights", "a=b"};
};

std::string Printable(const std::string& text) {
  std::string printable;
  for (const char c : text) {
    char code[8];
    std::snprintf(code, sizeof code, c >= ' ' && c <= '~' ? "%c" : "\\x%02x",
                  static_cast<unsigned>(static_cast<unsigned char>(c)));
    printable += code;
  }
  return printable;
}

// Every kind of call must have been answered with true and with false: else little is compared.
template <typename Pair>
void ExpectAgreement(unsigned seed, int callKinds) {
  LineMaker maker(seed);
  Pair pair("");
  int answers[9][2] = {};
  for (int i = 0; i < kCallsForEachTest; ++i) {
    const auto call = static_cast<Call>(maker.Below(static_cast<std::size_t>(callKinds)));
    const std::string text = maker.TextFor(call);
    const std::string name = maker.Name();
    pair.Load(text);
    ASSERT_TRUE(pair.Agree(call, name)) << "call " << static_cast<int>(call) << " of "
                                        << Printable(text) << ", name " << Printable(name);
    ++answers[static_cast<int>(call)][pair.result() ? 1 : 0];
  }
  for (int kind = 0; kind < callKinds; ++kind) {
    EXPECT_GT(answers[kind][0], 1000) << "false of call " << kind;
    EXPECT_GT(answers[kind][1], 1000) << "true of call " << kind;
  }
}

void ExpectTimeSeriesAgreement(unsigned seed) {
  ExpectAgreement<test::TimeSeriesPair>(seed, test::TimeSeriesReader::kCalls);
}
void ExpectXmluAgreement(unsigned seed) {
  ExpectAgreement<test::XmluPair>(seed, test::XmluReader::kCalls);
}

TEST(LiteralObjStream, TimeSeriesReaderAgrees) { ExpectTimeSeriesAgreement(1); }
TEST(LiteralObjStream, XmluReaderAgrees) { ExpectXmluAgreement(2); }

TEST(LiteralObjStream, TimeSeriesReaderAgreesInAGroupingLocale) {
  const test::ScopedGroupingCxxLocale grouping;
  ExpectTimeSeriesAgreement(3);
}

TEST(LiteralObjStream, XmluReaderAgreesInAGroupingLocale) {
  const test::ScopedGroupingCxxLocale grouping;
  ExpectXmluAgreement(4);
}

TEST(LiteralObjStream, ReadersAgreeInACLocaleWithAComma) {
  const test::ScopedLocale comma("de_DE.ISO-8859-1");
  ExpectTimeSeriesAgreement(5);
  ExpectXmluAgreement(6);
}

// Noise rich in what the readers look for, and all calls going on through it whatever they answer.
TEST(LiteralObjStream, ReadersAgreeOnNoise) {
  static constexpr std::string_view kBytes("\0\n\n\r\t <>=\"/Int7", 15);
  std::mt19937 random(7);
  std::string noise(1000000, '\0');
  for (char& c : noise)
    c = random() % 20 == 0 ? static_cast<char>(random()) : kBytes[random() % 15];
  test::TimeSeriesPair timeSeries(noise);
  test::XmluPair xmlu(noise);
  for (int call = 0; !timeSeries.IsAtEnd(); call = (call + 1) % 9) {
    timeSeries.ClearStates();
    ASSERT_TRUE(timeSeries.Agree(static_cast<Call>(call), "/"));
  }
  for (int call = 0; !xmlu.IsAtEnd(); call = (call + 1) % 7) {
    xmlu.ClearStates();
    ASSERT_TRUE(xmlu.Agree(static_cast<Call>(call), "/"));
  }
}

template <typename Object>
std::string Written(const Object& object, std::uint64_t bits, const std::string& text) {
  std::ostringstream os;
  object.StartObj(os);
  object.WriteSubElement(os, static_cast<int>(bits));
  object.WriteSubElement(os, static_cast<unsigned>(bits));
  object.WriteSubElement(os, static_cast<long>(bits) >> (bits % 64));
  object.WriteSubElement(os, bits % 2 == 0);
  object.WriteSubElement(os, std::bit_cast<double>(bits));
  object.WriteSubElement(os, static_cast<double>(static_cast<std::int64_t>(bits)) / 1e9);
  object.WriteSubElement(os, text);
  object.EndObj(os);
  return os.str();
}

TEST(LiteralObjStream, WriterAgrees) {
  const test::ScopedGroupingCxxLocale grouping;
  static constexpr std::string_view kBytes("  \"<>&\t\r\n'ab\0\xFC", 14);
  std::mt19937_64 random(8);
  for (int i = 0; i < 100000; ++i) {
    std::string text(random() % 30, ' ');
    for (char& c : text) c = kBytes[random() % kBytes.size()];
    const int depth = static_cast<int>(random() % 40) - 3;
    const std::uint64_t bits = random();
    ASSERT_EQ(Written(TIMESERIESXML::XMLObj(text, depth), bits, text),
              Written(literal::XMLObj(text, depth), bits, text));
  }
}

TEST(LiteralObjStream, RootTagsAgree) {
  for (const char* notice : {"", " ", "Copyright \"A\" & <B>"}) {
    std::ostringstream ours;
    std::ostringstream expected;
    TIMESERIESXML::StartRoot(ours, notice);
    TIMESERIESXML::EndRoot(ours);
    literal::StartRoot(expected, notice);
    literal::EndRoot(expected);
    EXPECT_EQ(ours.str(), expected.str());
  }
}

}  // namespace
