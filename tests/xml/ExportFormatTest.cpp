#include <gtest/gtest.h>

#include <tsxport/ExportFormat.h>

namespace {

using TIMESERIESXML::ExportFormat;

TEST(ExportFormat, BeginsWithNewParagraphAndIndentation) {
  const ExportFormat format;
  EXPECT_TRUE(format.IsNewParagraph());
  EXPECT_TRUE(format.HasIndentation());
}

TEST(ExportFormat, FlagsAreIndependent) {
  ExportFormat format;
  format.SetIndentation(false);
  EXPECT_TRUE(format.IsNewParagraph());
  EXPECT_FALSE(format.HasIndentation());
  format.SetIndentation(true);
  format.SetIsNewParagraph(false);
  EXPECT_FALSE(format.IsNewParagraph());
  EXPECT_TRUE(format.HasIndentation());
}

TEST(ExportFormat, MasterSwitchHidesBothAndKeepsThem) {
  ExportFormat format;
  format.SetIndentation(false);
  format.SetFormat(false);
  EXPECT_FALSE(format.IsNewParagraph());
  EXPECT_FALSE(format.HasIndentation());
  format.SetFormat(true);
  EXPECT_TRUE(format.IsNewParagraph());
  EXPECT_FALSE(format.HasIndentation());
}

}  // namespace
