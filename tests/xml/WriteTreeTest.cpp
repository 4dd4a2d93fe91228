#include <algorithm>
#include <gtest/gtest.h>
#include <sstream>

#include <tsxport/WriteTree.h>
#include <tsxport/XMLDocType.h>

#include "support/Golden.h"
#include "support/ScopedLocale.h"
#include "xml/Text.h"

namespace {

using test::AddChild;
using test::AddText;
using test::NewElement;
using TIMESERIESXML::WriteTree;
using TIMESERIESXML::WriteTreeUTF8;
using TIMESERIESXML::XMLDocType;
using TIMESERIESXML::XMLElement;

test::ElementOwner Report() {
  auto report = NewElement("Report");
  report->AddAttribute("title", "Sales & <returns>");
  report->AddAttribute("unit", "\"EUR\"");
  report->AddAttribute("note", "it's ");
  AddChild(*report, "Empty");
  XMLElement& onlyAttributes = AddChild(*report, "OnlyAttributes");
  onlyAttributes.AddAttribute("a", 1);
  onlyAttributes.AddAttribute("b", 0.1);
  AddText(AddChild(*report, "Text"), "a>b & c");
  AddChild(AddChild(AddChild(*report, "Nested"), "Deeper"), "Deepest").AddAttribute("x", " ");
  XMLElement& mixed = AddChild(*report, "Mixed");
  AddText(mixed, "before");
  AddChild(mixed, "Inside");
  AddChild(mixed, "Next");
  AddText(mixed, "after");
  XMLElement& nested = AddChild(*report, "Mixed");
  AddText(nested, "text");
  XMLElement& outer = AddChild(nested, "Outer");
  outer.AddAttribute("a", "1");
  outer.AddAttribute("b", "2");
  AddChild(outer, "Inner");
  return report;
}

test::ElementOwner Total() {
  auto report = NewElement("Report");
  AddText(AddChild(*report, "Total"), "42");
  return report;
}

using Writer = void (*)(std::ostream&, const XMLDocType*, const XMLElement*, bool);

std::string Document(Writer write, const XMLDocType* docType, const XMLElement& root, bool format) {
  std::ostringstream out;
  write(out, docType, &root, format);
  return out.str();
}

struct NamedWriter {
  const char* name;
  Writer write;
};
void PrintTo(const NamedWriter& writer, std::ostream* os) { *os << writer.name; }

std::string NameOfWriter(const testing::TestParamInfo<NamedWriter>& info) {
  return info.param.name;
}

class WriteTreeOf : public testing::TestWithParam<NamedWriter> {
 protected:
  static std::string Written(const XMLDocType* docType, const XMLElement& root, bool format) {
    return Document(GetParam().write, docType, root, format);
  }
};

TEST_P(WriteTreeOf, FormattedReport) {
  const std::string text = Written(nullptr, *Report(), true);
  test::ExpectGolden("xml/golden/formatted.xml", text);
  test::ExpectWellFormed(text);
}

TEST_P(WriteTreeOf, ReportOnOneLine) {
  const std::string text = Written(nullptr, *Report(), false);
  test::ExpectGolden("xml/golden/oneline.xml", text);
  test::ExpectWellFormed(text);
}

TEST_P(WriteTreeOf, DocTypeWithoutSubset) {
  const XMLDocType docType("Report", "report.dtd", 0);
  test::ExpectGolden("xml/golden/doctype.xml", Written(&docType, *Total(), true));
}

TEST_P(WriteTreeOf, DocTypeWithSubset) {
  XMLDocType docType("Report", "report.dtd", 0);
  docType.AddExtension("<!ELEMENT Report (Total)>");
  docType.AddExtension("<!ELEMENT Total (#PCDATA)>");
  test::ExpectGolden("xml/golden/subset.xml", Written(&docType, *Total(), true));
}

TEST_P(WriteTreeOf, LocalesChangeNothing) {
  const test::ScopedLocale german("de_DE.UTF-8");
  const test::ScopedGroupingCxxLocale grouping;
  auto report = NewElement("r");
  report->AddAttribute("x", 1234567.5);
  EXPECT_EQ(Written(nullptr, *report, false),
            "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n<r x=\"1234567.5\"/>");
  test::ExpectGolden("xml/golden/formatted.xml", Written(nullptr, *Report(), true));
}

TEST_P(WriteTreeOf, WithoutFormatHasOneLineFeed) {
  const std::string text = Written(nullptr, *Report(), false);
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 1);
}

TEST_P(WriteTreeOf, NothingFollowsTheRoot) {
  EXPECT_EQ(Written(nullptr, *NewElement("r"), true),
            "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n\n<r/>");
}

TEST_P(WriteTreeOf, DocTypeIsTheSameWithoutFormat) {
  const XMLDocType docType("r", "s", 0);
  EXPECT_EQ(Written(&docType, *NewElement("r"), false),
            "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n<!DOCTYPE r SYSTEM \"s\">\n<r/>");
}

INSTANTIATE_TEST_SUITE_P(Writer, WriteTreeOf,
                         testing::Values(NamedWriter{"AsItIs", &WriteTree},
                                         NamedWriter{"Utf8", &WriteTreeUTF8}),
                         NameOfWriter);

}  // namespace
