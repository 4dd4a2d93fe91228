#ifndef TSXPORT_TESTS_CLI_COMMANDS_COMMANDTEXTS_H_
#define TSXPORT_TESTS_CLI_COMMANDS_COMMANDTEXTS_H_

#include <gtest/gtest.h>
#include <pugixml.hpp>
#include <sstream>
#include <string>
#include <vector>

#include "CommandLine.h"

// Looking into what the command prints and writes.
namespace test {

inline std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

inline pugi::xml_document Parsed(const std::string& text) {
  pugi::xml_document document;
  const pugi::xml_parse_result result = document.load_buffer(text.data(), text.size());
  EXPECT_TRUE(result) << result.description() << "\n" << text;
  return document;
}

// Every value of an attribute, in document order.
inline std::vector<std::string> Attributes(const pugi::xml_document& document, const char* path) {
  std::vector<std::string> values;
  for (const pugi::xpath_node& node : document.select_nodes(path)) {
    values.emplace_back(node.attribute().value());
  }
  return values;
}

// A run that must fail with status 2, one line on standard error and nothing else; that line.
inline std::string Complaint(const Sandbox& box, const std::string& arguments) {
  const Outcome outcome = box.Run(arguments);
  EXPECT_EQ(outcome.status, 2) << outcome.err;
  EXPECT_EQ(outcome.out, "");
  const std::vector<std::string> lines = Lines(outcome.err);
  EXPECT_EQ(lines.size(), 1U) << outcome.err;
  return lines.empty() ? "" : lines.front();
}

}  // namespace test

#endif  // TSXPORT_TESTS_CLI_COMMANDS_COMMANDTEXTS_H_
