// Writes and reads object streams of 1,000,000 values of each type: with the library and with the
// literal version of its algorithms. Both read the same file, which the system has in memory, and
// write into memory that was touched before. First the results are compared; after the table come
// the ratios of this run for each type, each between medians.

#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <streambuf>
#include <string>
#include <unistd.h>
#include <vector>

#include <tsxport/ObjStreamReader.h>
#include <tsxport/XMLObj.h>
#include <tsxport/XmluReader.h>

#include "bench/Medians.h"
#include "tests/literal/LiteralObjStream.h"

namespace bench {
namespace {

constexpr int kValues = 1000000;

// What the values of a type are like: any ints, longs of up to 15 digits, doubles of 15 digits,
// and names of 5 to 24 bytes of which one in eight has something to escape.

void Fill(std::mt19937_64& random, int& value) { value = static_cast<int>(random()); }
void Fill(std::mt19937_64& random, unsigned& value) { value = static_cast<unsigned>(random()); }
void Fill(std::mt19937_64& random, long& value) {
  value = std::uniform_int_distribution<long>(-999999999999999, 999999999999999)(random);
}
void Fill(std::mt19937_64& random, double& value) {
  value = std::normal_distribution<double>(100, 300)(random);
}
void Fill(std::mt19937_64& random, std::string& value) {
  value.assign(5 + random() % 20, 'a');
  for (char& c : value) c = static_cast<char>('a' + random() % 26);
  value[value.size() / 2] = random() % 8 == 0 ? '&' : ' ';
}

// vector<bool> has no elements to refer to.
struct Flag {
  bool value;
  bool operator==(const Flag& other) const { return value == other.value; }
};
void Fill(std::mt19937_64& random, Flag& flag) { flag.value = random() % 2 == 0; }

template <typename T>
T& Bare(T& value) {
  return value;
}
bool& Bare(Flag& flag) { return flag.value; }
const bool& Bare(const Flag& flag) { return flag.value; }

template <typename T>
std::vector<T> MakeValues() {
  std::mt19937_64 random(1);
  std::vector<T> values(kValues);
  for (T& value : values) Fill(random, value);
  return values;
}

class Sink : public std::streambuf {
 public:
  Sink() : bytes_(80U << 20U, ' ') { Rewind(); }
  void Rewind() { setp(bytes_.data(), bytes_.data() + bytes_.size()); }
  std::string text() const { return {pbase(), pptr()}; }

 private:
  std::vector<char> bytes_;
};

template <typename Object, typename T>
void Write(Sink& sink, const std::vector<T>& values) {
  sink.Rewind();
  std::ostream os(&sink);
  const Object object("values", 0);
  for (const T& value : values) object.WriteSubElement(os, Bare(value));
}

struct OurReader {
  static bool Parse(std::ifstream& in, auto& value) { return TIMESERIESXML::ParseValue(in, value); }
};
struct LiteralReader {
  static bool Parse(std::ifstream& in, auto& value) {
    return literal::timeseries::ParseValue(in, value);
  }
};
struct OurXmluReader {
  static bool Parse(std::ifstream& in, auto& value) { return xmlu::ParseValue(in, value); }
};
struct LiteralXmluReader {
  static bool Parse(std::ifstream& in, auto& value) { return literal::xmlu::ParseValue(in, value); }
};

// Calls `take` for each value; returns whether all were read.
template <typename Reader, typename T, typename Take>
bool Read(const std::string& file, Take take) {
  std::ifstream in(file);
  in.get();  // the line feed in front of the first value
  T value{};
  for (int i = 0; i < kValues; ++i) {
    if (!Reader::Parse(in, Bare(value))) return false;
    take(value);
  }
  return true;
}

// The values of one type in a file.
template <typename T>
class Data {
 public:
  explicit Data(const char* type)
      : type_(type),
        file_(std::filesystem::temp_directory_path() /
              ("objstream_bench_" + std::to_string(getpid()) + type)),
        values_(MakeValues<T>()) {}
  ~Data() { std::filesystem::remove(file_); }
  Data(const Data&) = delete;
  Data& operator=(const Data&) = delete;

  const std::string& type() const { return type_; }
  const std::string& file() const { return file_; }
  const std::vector<T>& values() const { return values_; }

  // Writes the file. Both writers must give the same bytes.
  bool Prepare(Sink& sink) const {
    Write<literal::XMLObj>(sink, values_);
    const std::string expected = sink.text();
    Write<TIMESERIESXML::XMLObj>(sink, values_);
    std::ofstream(file_) << expected;
    return sink.text() == expected;
  }

  template <typename Ours, typename Literal>
  bool ReadersAgree() const {
    std::vector<T> ours;
    std::vector<T> expected;
    return Read<Ours, T>(file_, [&ours](const T& value) { ours.push_back(value); }) &&
           Read<Literal, T>(file_, [&expected](const T& value) { expected.push_back(value); }) &&
           ours == expected;
  }

 private:
  std::string type_;
  std::string file_;
  std::vector<T> values_;
};

template <typename Reader, typename T>
void RunRead(benchmark::State& state, const Data<T>& data) {
  for (auto _ : state) {
    if (!Read<Reader, T>(data.file(), [](const T& value) { benchmark::DoNotOptimize(&value); })) {
      state.SkipWithError("a value was refused");
    }
  }
  state.SetItemsProcessed(kValues * state.iterations());
}

template <typename Object, typename T>
void RunWrite(benchmark::State& state, const Data<T>& data, Sink& sink) {
  for (auto _ : state) Write<Object>(sink, data.values());
  state.SetItemsProcessed(kValues * state.iterations());
}

void Register(const std::string& name, auto run) {
  benchmark::RegisterBenchmark(name.c_str(), run)->Unit(benchmark::kMillisecond);
}

template <typename T>
bool RegisterWrite(const Data<T>& data, Sink& sink) {
  if (!data.Prepare(sink)) return false;
  const std::string name = "write/" + data.type();
  Register(name + "/ours",
           [&](auto& state) { RunWrite<TIMESERIESXML::XMLObj>(state, data, sink); });
  Register(name + "/literal", [&](auto& state) { RunWrite<literal::XMLObj>(state, data, sink); });
  return true;
}

template <typename Ours, typename Literal, typename T>
bool RegisterRead(const std::string& prefix, const Data<T>& data) {
  if (!data.template ReadersAgree<Ours, Literal>()) return false;
  const std::string name = prefix + data.type();
  Register(name + "/ours", [&](auto& state) { RunRead<Ours>(state, data); });
  Register(name + "/literal", [&](auto& state) { RunRead<Literal>(state, data); });
  return true;
}

template <typename T>
bool RegisterType(const Data<T>& data, Sink& sink) {
  return RegisterWrite(data, sink) && RegisterRead<OurReader, LiteralReader>("read/", data);
}

template <typename T>
bool RegisterXmluType(const Data<T>& data) {
  return RegisterRead<OurXmluReader, LiteralXmluReader>("xmlu/", data);
}

void PrintRatios(const Medians& medians) {
  const std::string ending = "/ours";
  for (const auto& [name, median] : medians) {
    if (!name.ends_with(ending)) continue;
    const std::string what = name.substr(0, name.size() - ending.size());
    const auto literal = medians.find(what + "/literal");
    if (literal == medians.end()) continue;
    std::printf("%-15s %5.2f times as fast as the literal version\n", what.c_str(),
                literal->second / median);
  }
}

int Main(int argc, char** argv) {
  if (!InitializeForMedians(argc, argv)) return EXIT_FAILURE;
  Sink sink;
  const Data<Flag> bools("bool");
  const Data<int> ints("int");
  const Data<unsigned> unsigneds("unsigned");
  const Data<long> longs("long");
  const Data<double> doubles("double");
  const Data<std::string> strings("string");
  const bool agree = RegisterType(bools, sink) && RegisterType(ints, sink) &&
                     RegisterType(unsigneds, sink) && RegisterType(longs, sink) &&
                     RegisterType(doubles, sink) && RegisterType(strings, sink) &&
                     RegisterXmluType(ints) && RegisterXmluType(unsigneds) &&
                     RegisterXmluType(longs) && RegisterXmluType(doubles);
  if (!agree) {
    std::fprintf(stderr, "the two versions differ\n");
    return EXIT_FAILURE;
  }
  MedianReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  PrintRatios(reporter.medians());
  return EXIT_SUCCESS;
}

}  // namespace
}  // namespace bench

int main(int argc, char** argv) { return bench::Main(argc, argv); }
