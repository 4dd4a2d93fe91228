#include "support/Golden.h"

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <libxml/parser.h>
#include <memory>
#include <stdexcept>

#include <tsxport/Version.h>

namespace test {

namespace {

std::string LineAt(const std::string& text, std::size_t position) {
  const std::size_t feed = position == 0 ? std::string::npos : text.rfind('\n', position - 1);
  const std::size_t begin = feed == std::string::npos ? 0 : feed + 1;
  return text.substr(begin, text.find('\n', begin) - begin);
}

// The goldens name the default host of the makers; a build may have another.
std::string WithMakersHost(std::string text) {
  const std::string host = "www.tsxport.example";
  const std::string built = tsx::kMakersHost;
  for (std::size_t at = text.find(host); at != std::string::npos;
       at = text.find(host, at + built.size())) {
    text.replace(at, host.size(), built);
  }
  return text;
}

}  // namespace

std::string ReadTestFile(const std::string& path) {
  std::ifstream in(std::string(TSXPORT_TESTS_DIR) + "/" + path, std::ios::binary);
  if (!in) throw std::runtime_error("cannot read tests/" + path);
  return WithMakersHost({std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()});
}

void ExpectGolden(const std::string& path, const std::string& text) {
  const std::string golden = ReadTestFile(path);
  if (text == golden) return;
  const auto difference = std::mismatch(text.begin(), text.end(), golden.begin(), golden.end());
  const auto position = static_cast<std::size_t>(difference.first - text.begin());
  const auto line = std::count(text.begin(), difference.first, '\n') + 1;
  ADD_FAILURE() << path << ": first difference in line " << line
                << "\n  golden: " << LineAt(golden, position)
                << "\n  text:   " << LineAt(text, position) << "\nwhole text:\n"
                << text;
}

void ExpectWellFormed(const std::string& text) {
  const std::unique_ptr<xmlDoc, decltype(&xmlFreeDoc)> document(
      xmlReadMemory(text.data(), static_cast<int>(text.size()), "document.xml", nullptr,
                    XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING),
      &xmlFreeDoc);
  const xmlError* error = xmlGetLastError();
  EXPECT_NE(document, nullptr) << (error != nullptr ? error->message : "") << text;
}

}  // namespace test
