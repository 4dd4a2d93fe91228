#ifndef TSXPORT_TESTS_OBJSTREAM_COMPARISON_H_
#define TSXPORT_TESTS_OBJSTREAM_COMPARISON_H_

#include <cstring>
#include <fstream>
#include <string>
#include <string_view>

#include <tsxport/ObjStreamReader.h>
#include <tsxport/XmluReader.h>

#include "tests/literal/LiteralObjStream.h"
#include "tests/objstream/MemoryFile.h"

// Calls of a reader beside the same calls of its literal version, on the same bytes.
namespace test {

enum class Call { kStartXML, kStartObj, kEndObj, kInt, kUnsigned, kLong, kDouble, kBool, kString };

// Everything a call may set.
struct Outputs {
  bool flag = true;
  int number = 3;
  unsigned count = 3;
  long large = 3;
  double real = 3;
  std::string text = "before";

  bool operator==(const Outputs& other) const {
    return flag == other.flag && number == other.number && count == other.count &&
           large == other.large && std::memcmp(&real, &other.real, sizeof real) == 0 &&
           text == other.text;
  }
};

struct TimeSeriesReader {
  static constexpr int kCalls = 9;
  static bool StartXML(std::ifstream& in) { return TIMESERIESXML::ParseStartXML(in); }
  static bool StartObj(std::ifstream& in, const std::string& name) {
    return TIMESERIESXML::ParseStartObj(in, name);
  }
  static bool EndObj(std::ifstream& in) { return TIMESERIESXML::ParseEndObj(in); }
  static bool Value(std::ifstream& in, auto& value) { return TIMESERIESXML::ParseValue(in, value); }
};

struct LiteralTimeSeriesReader {
  static constexpr int kCalls = TimeSeriesReader::kCalls;
  static bool StartXML(std::ifstream& in) { return literal::timeseries::ParseStartXML(in); }
  static bool StartObj(std::ifstream& in, const std::string& name) {
    return literal::timeseries::ParseStartObj(in, name);
  }
  static bool EndObj(std::ifstream& in) { return literal::timeseries::ParseEndObj(in); }
  static bool Value(std::ifstream& in, auto& value) {
    return literal::timeseries::ParseValue(in, value);
  }
};

struct XmluReader {
  static constexpr int kCalls = 7;  // neither bools nor strings
  static bool StartXML(std::ifstream& in) { return xmlu::ParseStartXML(in); }
  static bool StartObj(std::ifstream& in, const std::string& name) {
    return xmlu::ParseStartObj(in, name);
  }
  static bool EndObj(std::ifstream& in) { return xmlu::ParseEndObj(in); }
  static bool Value(std::ifstream& in, auto& value) { return xmlu::ParseValue(in, value); }
};

struct LiteralXmluReader {
  static constexpr int kCalls = XmluReader::kCalls;
  static bool StartXML(std::ifstream& in) { return literal::xmlu::ParseStartXML(in); }
  static bool StartObj(std::ifstream& in, const std::string& name) {
    return literal::xmlu::ParseStartObj(in, name);
  }
  static bool EndObj(std::ifstream& in) { return literal::xmlu::ParseEndObj(in); }
  static bool Value(std::ifstream& in, auto& value) { return literal::xmlu::ParseValue(in, value); }
};

template <typename Reader>
bool Make(Call call, std::ifstream& in, const std::string& name, Outputs& outputs) {
  switch (call) {
    case Call::kStartXML:
      return Reader::StartXML(in);
    case Call::kStartObj:
      return Reader::StartObj(in, name);
    case Call::kEndObj:
      return Reader::EndObj(in);
    case Call::kInt:
      return Reader::Value(in, outputs.number);
    case Call::kUnsigned:
      return Reader::Value(in, outputs.count);
    case Call::kLong:
      return Reader::Value(in, outputs.large);
    case Call::kDouble:
      return Reader::Value(in, outputs.real);
    default:
      break;
  }
  if constexpr (Reader::kCalls == TimeSeriesReader::kCalls) {
    if (call == Call::kBool) return Reader::Value(in, outputs.flag);
    return Reader::Value(in, outputs.text);
  }
  return false;
}

// A reader and its literal version going through the same bytes.
template <typename Reader, typename LiteralReader>
class Pair {
 public:
  explicit Pair(std::string_view bytes) : ours_(bytes), literal_(bytes) {}

  void Load(std::string_view bytes) {
    ours_.Load(bytes);
    literal_.Load(bytes);
  }

  // Lets reading go on after a failure.
  void ClearStates() {
    ours_.clear();
    literal_.clear();
  }

  bool IsAtEnd() const { return literal_.eof(); }

  // Whether both answer the same, set the same, and leave the same stream behind.
  bool Agree(Call call, const std::string& name) {
    Outputs ours;
    Outputs expected;
    result_ = Make<LiteralReader>(call, literal_, name, expected);
    return Make<Reader>(call, ours_, name, ours) == result_ && ours == expected &&
           ours_.rdstate() == literal_.rdstate() && ours_.place() == literal_.place();
  }

  // What the last call answered.
  bool result() const { return result_; }

 private:
  MemoryFile ours_;
  MemoryFile literal_;
  bool result_ = false;
};

using TimeSeriesPair = Pair<TimeSeriesReader, LiteralTimeSeriesReader>;
using XmluPair = Pair<XmluReader, LiteralXmluReader>;

}  // namespace test

#endif  // TSXPORT_TESTS_OBJSTREAM_COMPARISON_H_
