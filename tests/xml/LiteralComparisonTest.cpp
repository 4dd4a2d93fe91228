#include <cctype>
#include <cmath>
#include <gtest/gtest.h>
#include <sstream>
#include <vector>

#include <tsxport/WriteTree.h>
#include <tsxport/XMLDocType.h>

#include "support/ScopedLocale.h"
#include "tests/literal/LiteralXml.h"
#include "xml/NodeWriter.h"
#include "xml/NumberList.h"
#include "xml/RandomTree.h"

// The library's output beside that of the literal version of its algorithm.
namespace {

constexpr unsigned kTrees = 60;

// Whole documents, by all four writers.
void ExpectSameDocuments(const test::TreePair& trees, const TIMESERIESXML::XMLDocType* docType,
                         const literal::DocType* literalDocType) {
  for (const bool format : {true, false}) {
    std::ostringstream ours;
    std::ostringstream expected;
    TIMESERIESXML::WriteTree(ours, docType, trees.ours.get(), format);
    literal::WriteTree(expected, literalDocType, trees.literal.get(), format);
    ASSERT_TRUE(ours.str() == expected.str()) << "format " << format;
    std::ostringstream oursUtf8;
    std::ostringstream expectedUtf8;
    TIMESERIESXML::WriteTreeUTF8(oursUtf8, docType, trees.ours.get(), format);
    literal::WriteTreeUTF8(expectedUtf8, literalDocType, trees.literal.get(), format);
    ASSERT_TRUE(oursUtf8.str() == expectedUtf8.str()) << "format " << format << ", as UTF-8";
  }
}

class InLocale : public testing::TestWithParam<const char*> {};

TEST_P(InLocale, DocumentsAreTheSame) {
  const test::ScopedLocale locale(GetParam());
  for (unsigned seed = 0; seed < kTrees; ++seed) {
    SCOPED_TRACE(seed);
    ExpectSameDocuments(test::RandomTrees(seed, static_cast<int>(seed) * 4), nullptr, nullptr);
    if (HasFatalFailure()) return;
  }
}

TEST_P(InLocale, DocumentsWithDocTypeAreTheSame) {
  const test::ScopedLocale locale(GetParam());
  std::mt19937 random(5);
  for (unsigned seed = 0; seed < kTrees; ++seed) {
    SCOPED_TRACE(seed);
    const std::string root = test::RandomText(random);
    const std::string system = test::RandomText(random);
    TIMESERIESXML::XMLDocType docType(root, system, 1);
    literal::DocType literalDocType(root, system);
    for (unsigned i = 0; i < seed % 4; ++i) {
      const std::string extension = test::RandomText(random);
      docType.AddExtension(extension);
      literalDocType.AddExtension(extension);
    }
    ExpectSameDocuments(test::RandomTrees(seed, 20), &docType, &literalDocType);
    if (HasFatalFailure()) return;
  }
}

std::string NameOfLocale(const testing::TestParamInfo<const char*>& info) {
  std::string name;
  for (const char* c = info.param; *c != '\0'; ++c) {
    if (std::isalnum(static_cast<unsigned char>(*c)) != 0) name += *c;
  }
  return name;
}

INSTANTIATE_TEST_SUITE_P(LiteralComparison, InLocale,
                         testing::Values("C", "de_DE.UTF-8", "de_DE.ISO-8859-1", "ja_JP.EUC-JP"),
                         NameOfLocale);

TEST(LiteralComparison, ToStringIsTheSame) {
  for (unsigned seed = 0; seed < kTrees; ++seed) {
    const test::TreePair trees = test::RandomTrees(seed, 100);
    TIMESERIESXML::ExportFormat format;
    literal::ExportFormat literalFormat;
    std::string ours = "before";
    std::string expected = "before";
    for (int twice = 0; twice < 2; ++twice) {
      trees.ours->ToString(ours, format);
      trees.literal->ToString(expected, literalFormat);
    }
    ASSERT_TRUE(ours == expected) << seed;
  }
}

TEST(LiteralComparison, EveryStartOfTheFormatIsTheSame) {
  const test::TreePair trees = test::RandomTrees(11, 200);
  for (int flags = 0; flags < 8; ++flags) {
    TIMESERIESXML::ExportFormat format;
    format.SetFormat((flags & 1) != 0);
    format.SetIndentation((flags & 2) != 0);
    format.SetIsNewParagraph((flags & 4) != 0);
    literal::ExportFormat literalFormat;
    literalFormat.format = (flags & 1) != 0;
    literalFormat.indentation = (flags & 2) != 0;
    literalFormat.new_paragraph = (flags & 4) != 0;
    std::string ours;
    std::string expected;
    trees.ours->ToString(ours, format);
    trees.literal->ToString(expected, literalFormat);
    ASSERT_TRUE(ours == expected) << flags;
    EXPECT_EQ(format.IsNewParagraph(), literalFormat.IsNewParagraph());
    EXPECT_EQ(format.HasIndentation(), literalFormat.HasIndentation());
  }
}

// Code sets that no locale has, by name.
TEST(LiteralComparison, StatefulCodeSetsAreTheSame) {
  for (const char* codeSet : {"ISO-2022-JP", "UTF-7", "ISO-2022-KR", "HZ", "CP1258", "EUC-JISX0213",
                              "BIG5-HKSCS", "UTF-16", "no-such-code-set"}) {
    literal::SetSourceCodeSet(codeSet);
    for (unsigned seed = 0; seed < kTrees; ++seed) {
      // Derived nodes write themselves from the locale's code set, so there must be none.
      const test::TreePair trees = test::RandomTrees(seed, 40, test::Nodes::kOursOnly);
      std::ostringstream ours;
      std::ostringstream expected;
      tsx::Utf8Converter converter{codeSet};
      tsx::Output out(ours, converter);
      TIMESERIESXML::ExportFormat format;
      tsx::WriteElement(out, *trees.ours, format);
      out.Flush();
      literal::ExportFormat literalFormat;
      trees.literal->ToStream(expected, literalFormat, true);
      ASSERT_TRUE(ours.str() == expected.str()) << codeSet << ", seed " << seed;
    }
  }
  literal::SetSourceCodeSet(nullptr);
}

TEST(LiteralComparison, NumberListsAreTheSame) {
  std::mt19937 random(1);
  std::vector<double> values;
  for (int i = 0; i < 500; ++i) {
    const double value =
        std::ldexp(static_cast<double>(random()), static_cast<int>(random() % 99) - 80);
    values.push_back(random() % 5 == 0 ? -1 : value);
    EXPECT_EQ(tsx::NumberListText(values, -1),
              literal::NumberListText(values.data(), values.size(), -1));
  }
}

}  // namespace
