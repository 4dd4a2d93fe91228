#include <gtest/gtest.h>

#include <tsxport/XMLDocType.h>

#include "xml/Text.h"

namespace {

using TIMESERIESXML::XMLDocType;

TEST(DocType, BringsItsOwnDeclarationLine) {
  const std::unique_ptr<XMLDocType> docType(XMLDocType::Create("root", "root.dtd", 7));
  const char expected[] =
      "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n"
      "<!DOCTYPE root SYSTEM \"root.dtd\">\n";
  EXPECT_EQ(test::StringOf(*docType), expected);
  EXPECT_EQ(test::StreamedTextOf(*docType), expected);
}

TEST(DocType, TwoExtensionsEachBeginWithALineFeed) {
  XMLDocType docType("r", "s", 0);
  docType.AddExtension("<!ENTITY a \"1\">");
  docType.AddExtension("<!ENTITY b \"2\">");
  EXPECT_EQ(test::StringOf(docType),
            "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n"
            "<!DOCTYPE r SYSTEM \"s\"\n"
            "[\n"
            "<!ENTITY a \"1\">\n"
            "<!ENTITY b \"2\">\n"
            "]>\n");
}

TEST(DocType, AddExtensionReturnsTheLengthOfTheSubset) {
  XMLDocType docType("r", "s", 0);
  EXPECT_EQ(docType.AddExtension("abc"), 4);
  EXPECT_EQ(docType.AddExtension(""), 5);
  EXPECT_EQ(docType.AddExtension("de"), 8);
}

TEST(DocType, EmptyExtensionMakesASubset) {
  XMLDocType docType("r", "s", 0);
  docType.AddExtension("");
  EXPECT_EQ(test::StringOf(docType),
            "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n<!DOCTYPE r SYSTEM \"s\"\n[\n\n]>\n");
}

TEST(DocType, NothingIsEscaped) {
  XMLDocType docType("a&b", "<\"&\">", 0);
  docType.AddExtension("&<");
  EXPECT_EQ(test::StringOf(docType),
            "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n"
            "<!DOCTYPE a&b SYSTEM \"<\"&\">\"\n[\n&<\n]>\n");
}

TEST(DocType, NeitherReadsNorChangesTheFormat) {
  XMLDocType docType("r", "s", 0);
  TIMESERIESXML::ExportFormat format;
  format.SetFormat(false);
  std::string text;
  docType.ToString(text, format);
  EXPECT_EQ(text, test::StringOf(docType));
  format.SetFormat(true);
  EXPECT_TRUE(format.IsNewParagraph());
  EXPECT_TRUE(format.HasIndentation());
}

TEST(DocType, TheNumberHasNoEffect) {
  EXPECT_EQ(test::StringOf(XMLDocType("r", "s", 0)), test::StringOf(XMLDocType("r", "s", -5)));
}

}  // namespace
