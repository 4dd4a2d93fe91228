// Writes a PMML document whose model has a history of a million values: with this library, from a
// tree that holds the model, and with pugixml, from its own tree of the same document in the same
// layout. Both write into the same memory, touched before, over and over.

#include <benchmark/benchmark.h>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <ostream>
#include <pugixml.hpp>
#include <sstream>
#include <streambuf>
#include <valarray>
#include <vector>

#include <tsfcore/tsfcore.h>
#include <tsxport/TSXMLTree.h>

namespace bench {
namespace {

constexpr std::size_t kValues = 1'000'000;

// A megabyte that is overwritten again and again, as a stream and as pugixml's writer take it.
class Sink : public std::streambuf, public pugi::xml_writer {
 public:
  Sink() : bytes_(1U << 20U, ' ') { Rewind(); }
  std::int64_t count() const { return count_ + (pptr() - pbase()); }
  void Reset() {
    count_ = 0;
    Rewind();
  }
  void write(const void* data, std::size_t size) override {
    sputn(static_cast<const char*>(data), static_cast<std::streamsize>(size));
  }

 protected:
  int_type overflow(int_type c) override {
    count_ += pptr() - pbase();
    Rewind();
    return traits_type::eq_int_type(c, traits_type::eof()) ? traits_type::not_eof(c)
                                                           : sputc(traits_type::to_char_type(c));
  }

 private:
  void Rewind() { setp(bytes_.data(), bytes_.data() + bytes_.size()); }

  std::vector<char> bytes_;
  std::int64_t count_ = 0;
};

// Values as sensors give them: most with more than 15 digits to round.
TSFModel LongModel() {
  std::valarray<double> history(kValues);
  for (std::size_t i = 0; i < kValues; ++i) {
    history[i] = 20 + static_cast<double>((i * 7919) % 10007) / 997;
  }
  ESForecastState state({.spec = ESModelSpec(ESModelSpec::ForKind(ESModelSpec::kSimple, 1)),
                         .estimates = {0.25},
                         .smoothed = {.level = 25}});
  return TSFModel(new TSFModelImp({.state = std::make_unique<ESForecastState>(std::move(state)),
                                   .info = EstimationInfo(EstimationInfo::Fields{}),
                                   .history = std::move(history)}));
}

void SaveTo(Sink& sink, const pugi::xml_document& document) {
  document.save(sink, "\t", pugi::format_indent | pugi::format_indent_attributes,
                pugi::encoding_utf8);
}

template <typename Write>
void Run(benchmark::State& state, Sink& sink, Write write) {
  for (auto _ : state) {
    sink.Reset();
    write();
  }
  state.SetBytesProcessed(sink.count() * state.iterations());
  state.SetItemsProcessed(static_cast<std::int64_t>(kValues) * state.iterations());
  state.counters["document"] = static_cast<double>(sink.count());
}

int Main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return EXIT_FAILURE;
  TSXMLTree tree;
  tree.SetPMMLOutput(true);
  if (!tree.AddModelTree(LongModel(), TSXDictionaryRefs("sensor", "", "celsius"))) {
    return EXIT_FAILURE;
  }
  pugi::xml_document document;
  {
    std::ostringstream text;
    tree.WriteToStream(text);
    if (!document.load_string(text.str().c_str())) return EXIT_FAILURE;
  }
  Sink sink;
  benchmark::RegisterBenchmark("ours", [&](benchmark::State& state) {
    bench::Run(state, sink, [&] {
      std::ostream out(&sink);
      tree.WriteToStream(out);
    });
  })->Unit(benchmark::kMillisecond);
  benchmark::RegisterBenchmark("pugixml", [&](benchmark::State& state) {
    bench::Run(state, sink, [&] { SaveTo(sink, document); });
  })->Unit(benchmark::kMillisecond);
  benchmark::RunSpecifiedBenchmarks();
  return EXIT_SUCCESS;
}

}  // namespace
}  // namespace bench

int main(int argc, char** argv) { return bench::Main(argc, argv); }
