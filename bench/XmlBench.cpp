// Builds, writes and destroys a document of 1,000 multiplicative Winters models: with this library,
// with the literal version of its algorithm, with pugixml and with libxml2's writer. All write into
// the same memory, touched before. First the documents are compared; after the table come the
// ratios of this run, each between medians.

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <malloc.h>
#include <map>
#include <streambuf>

#include "bench/Medians.h"
#include "bench/Trees.h"
#include "bench/WintersDocument.h"

namespace bench {
namespace {

constexpr int kModels = 1000;

// Memory that was touched before, as a stream and as pugixml's and libxml2's writers take it.
class Sink : public std::streambuf, public pugi::xml_writer {
 public:
  Sink() : bytes_(8U << 20U, ' ') { Rewind(); }
  void Rewind() { setp(bytes_.data(), bytes_.data() + bytes_.size()); }
  std::string text() const { return {pbase(), pptr()}; }
  std::size_t size() const { return static_cast<std::size_t>(pptr() - pbase()); }
  void write(const void* data, std::size_t size) override {
    sputn(static_cast<const char*>(data), static_cast<std::streamsize>(size));
  }

 private:
  std::vector<char> bytes_;
};

// pugixml asks for its memory in pages. Freed ones wait here for the next document.
class PageKeeper {
 public:
  static void* Allocate(std::size_t size) {
    std::vector<void*>& kept = Pages()[size];
    if (kept.empty()) return Fresh(size);
    void* page = kept.back();
    kept.pop_back();
    return page;
  }
  static void Free(void* page) {
    if (page != nullptr) Pages()[SizeOf(page)].push_back(page);
  }

 private:
  static constexpr std::size_t kHead = alignof(std::max_align_t);

  static void* Fresh(std::size_t size) {
    auto* block = static_cast<char*>(std::malloc(size + kHead));
    if (block == nullptr) return nullptr;
    std::memcpy(block, &size, sizeof size);
    return block + kHead;
  }
  static std::size_t SizeOf(void* page) {
    std::size_t size = 0;
    std::memcpy(&size, static_cast<char*>(page) - kHead, sizeof size);
    return size;
  }
  static std::map<std::size_t, std::vector<void*>>& Pages() {
    static std::map<std::size_t, std::vector<void*>> pages;
    return pages;
  }
};

// One function for each competitor: builds, writes and destroys.

template <typename Tree>
void OursTo(Sink& sink, const std::vector<WintersModel>& models, bool utf8) {
  std::ostream os(&sink);
  Tree tree;
  BuildDocument(tree, models);
  TIMESERIESXML::ExportFormat format;
  tree.root().ToStream(os, format, utf8);
}

void ByHost(Sink& sink, const std::vector<WintersModel>& models) {
  OursTo<HostTree>(sink, models, false);
}
void ByEncoder(Sink& sink, const std::vector<WintersModel>& models) {
  OursTo<EncoderTree>(sink, models, false);
}
void ByEncoderUtf8(Sink& sink, const std::vector<WintersModel>& models) {
  OursTo<EncoderTree>(sink, models, true);
}

void ByLiteral(Sink& sink, const std::vector<WintersModel>& models) {
  std::ostream os(&sink);
  LiteralTree tree;
  BuildDocument(tree, models);
  literal::ExportFormat format;
  tree.root().ToStream(os, format, false);
}

void ByPugixml(Sink& sink, const std::vector<WintersModel>& models) {
  PugiTree tree;
  BuildDocument(tree, models);
  tree.document().save(
      sink, "\t",
      pugi::format_indent | pugi::format_indent_attributes | pugi::format_no_declaration,
      pugi::encoding_utf8);
}

int WriteToSink(void* sink, const char* bytes, int count) {
  static_cast<Sink*>(sink)->write(bytes, static_cast<std::size_t>(count));
  return count;
}

void ByLibxml(Sink& sink, const std::vector<WintersModel>& models) {
  xmlTextWriterPtr writer =
      xmlNewTextWriter(xmlOutputBufferCreateIO(&WriteToSink, nullptr, &sink, /*encoder=*/nullptr));
  xmlTextWriterSetIndent(writer, 1);
  xmlTextWriterSetIndentString(writer, reinterpret_cast<const xmlChar*>("\t"));
  LibxmlWriter tree(writer);
  BuildDocument(tree, models);
  tree.EndTo(0);
  xmlFreeTextWriter(writer);
}

struct Competitor {
  const char* name;
  void (*run)(Sink&, const std::vector<WintersModel>&);
};

constexpr Competitor kCompetitors[] = {
    {"ours/encoder", &ByEncoder}, {"ours/host", &ByHost},  {"ours/encoder/utf8", &ByEncoderUtf8},
    {"literal", &ByLiteral},      {"pugixml", &ByPugixml}, {"libxml2", &ByLibxml}};

bool SameContent(pugi::xml_node a, pugi::xml_node b) {
  if (std::strcmp(a.name(), b.name()) != 0 || std::strcmp(a.value(), b.value()) != 0) return false;
  pugi::xml_attribute ofA = a.first_attribute();
  pugi::xml_attribute ofB = b.first_attribute();
  for (; ofA && ofB; ofA = ofA.next_attribute(), ofB = ofB.next_attribute()) {
    if (std::strcmp(ofA.name(), ofB.name()) != 0) return false;
    if (std::strcmp(ofA.value(), ofB.value()) != 0) return false;
  }
  pugi::xml_node inA = a.first_child();
  pugi::xml_node inB = b.first_child();
  for (; inA && inB; inA = inA.next_sibling(), inB = inB.next_sibling()) {
    if (!SameContent(inA, inB)) return false;
  }
  return !ofA && !ofB && !inA && !inB;
}

// All documents have the same elements, attributes and texts as the literal one, and ours have the
// same bytes.
bool Agree(const std::vector<WintersModel>& models) {
  Sink sink;
  ByLiteral(sink, models);
  const std::string expected = sink.text();
  pugi::xml_document literal;
  if (!literal.load_string(expected.c_str())) return false;
  for (const Competitor& competitor : kCompetitors) {
    sink.Rewind();
    competitor.run(sink, models);
    const std::string text = sink.text();
    pugi::xml_document document;
    const bool ours = std::strncmp(competitor.name, "ours", 4) == 0;
    if (!document.load_string(text.c_str()) || !SameContent(literal, document) ||
        (ours && text != expected)) {
      std::fprintf(stderr, "%s writes another document\n", competitor.name);
      return false;
    }
  }
  return true;
}

void Run(benchmark::State& state, const Competitor& competitor,
         const std::vector<WintersModel>& models, Sink& sink) {
  for (auto _ : state) {
    sink.Rewind();
    competitor.run(sink, models);
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(sink.size()) * state.iterations());
  state.SetItemsProcessed(static_cast<std::int64_t>(models.size()) * state.iterations());
}

void PrintRatio(const Medians& medians, const char* ours, const char* other) {
  if (medians.count(ours) == 0 || medians.count(other) == 0) return;
  std::printf("%-18s takes %6.3f of the time of %s\n", ours, medians.at(ours) / medians.at(other),
              other);
}

int Main(int argc, char** argv) {
  if (!InitializeForMedians(argc, argv)) return EXIT_FAILURE;
  pugi::set_memory_management_functions(&PageKeeper::Allocate, &PageKeeper::Free);
  // The others' memory stays with the process too.
  mallopt(M_TRIM_THRESHOLD, 1 << 30);
  mallopt(M_MMAP_THRESHOLD, 1 << 30);
  const std::vector<WintersModel> models = MakeModels(kModels);
  Sink sink;
  if (!Agree(models)) return EXIT_FAILURE;
  for (const Competitor& competitor : kCompetitors) {
    const auto run = [&](benchmark::State& state) { Run(state, competitor, models, sink); };
    benchmark::RegisterBenchmark(competitor.name, run)->Unit(benchmark::kMillisecond);
  }
  MedianReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  for (const char* ours : {"ours/encoder", "ours/host", "ours/encoder/utf8"}) {
    for (const char* other : {"literal", "pugixml", "libxml2"}) {
      PrintRatio(reporter.medians(), ours, other);
    }
  }
  return EXIT_SUCCESS;
}

}  // namespace
}  // namespace bench

int main(int argc, char** argv) { return bench::Main(argc, argv); }
