#include <atomic>
#include <gtest/gtest.h>
#include <sstream>
#include <thread>

#include <tsxport/ObjStreamReader.h>
#include <tsxport/XMLObj.h>
#include <tsxport/XmluReader.h>

#include "objstream/Files.h"

namespace {

namespace ts = TIMESERIESXML;

constexpr int kValues = 2000;

// Values that tell whose stream they are from.
std::string StreamOf(int seed) {
  std::ostringstream os;
  const ts::XMLObj object("object", 0);
  object.StartObj(os);
  for (int i = 0; i < kValues; ++i) {
    object.WriteSubElement(os, i * seed);
    object.WriteSubElement(os, i * seed + 0.5);
  }
  object.EndObj(os);
  return os.str();
}

using ParseObject = bool (*)(std::ifstream&, const std::string&);
using ParseInt = bool (*)(std::ifstream&, int&);
using ParseDouble = bool (*)(std::ifstream&, double&);
struct Reader {
  ParseObject start_object;
  ParseInt int_value;
  ParseDouble double_value;
};
constexpr Reader kTimeSeries = {&ts::ParseStartObj, &ts::ParseValue, &ts::ParseValue};
constexpr Reader kXmlu = {&xmlu::ParseStartObj, &xmlu::ParseValue, &xmlu::ParseValue};

bool ReadsItsOwnValues(const Reader& reader, const std::string& stream, int seed) {
  std::ifstream in = test::FileOf(stream);
  if (!reader.start_object(in, "object")) return false;
  for (int i = 0; i < kValues; ++i) {
    int number = -1;
    double real = -1;
    if (!reader.int_value(in, number) || number != i * seed) return false;
    if (!reader.double_value(in, real) || real != i * seed + 0.5) return false;
  }
  return true;
}

void ExpectThatBothRead(const Reader& firstReader, const Reader& secondReader) {
  std::atomic<int> failures = 0;
  const auto run = [&failures](const Reader& reader, int seed) {
    const std::string stream = StreamOf(seed);
    for (int i = 0; i < 5; ++i) failures += ReadsItsOwnValues(reader, stream, seed) ? 0 : 1;
  };
  std::thread first(run, firstReader, 7);
  std::thread second(run, secondReader, 1000);
  first.join();
  second.join();
  EXPECT_EQ(failures, 0);
}

TEST(ObjStreamThreads, TwoStreamsAreWrittenAndReadAtOnce) {
  ExpectThatBothRead(kTimeSeries, kTimeSeries);
}

TEST(ObjStreamThreads, TwoStreamsAreReadAtOnceByXmlu) { ExpectThatBothRead(kXmlu, kXmlu); }

TEST(ObjStreamThreads, TheTwoReadersReadAtOnce) { ExpectThatBothRead(kTimeSeries, kXmlu); }

}  // namespace
