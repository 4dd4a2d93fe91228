#include <gtest/gtest.h>
#include <sstream>

#include <tsxport/WriteTree.h>

#include "support/ScopedLocale.h"
#include "xml/NodeWriter.h"
#include "xml/Text.h"
#include "xml/Utf8Converter.h"

namespace {

using test::NewElement;
using tsx::Utf8Converter;

const std::string kUmlautsLatin1 =
    "Gr\xfc\xdf"
    "e";
const std::string kUmlautsUtf8 =
    "Gr\xc3\xbc\xc3\x9f"
    "e";
// The two characters of "Japan".
const std::string kJapanEucJp = "\xc6\xfc\xcb\xdc";
const std::string kJapanIso2022Jp = "\x1b$BF|K\\\x1b(B";
const std::string kJapanUtf8 = "\xe6\x97\xa5\xe6\x9c\xac";

std::string WriteUtf(const std::string& s) {
  std::ostringstream out;
  TIMESERIESXML::WriteUTF(out, s);
  return out.str();
}

// An element <name attribute="...">text</name> written as UTF-8 from the locale's code set.
std::string Utf8Tree(const std::string& attribute, const std::string& text,
                     const std::string& name = "e") {
  const auto element = NewElement(name);
  element->AddAttribute("a", attribute);
  test::AddText(*element, text);
  return test::StreamedTextOf(*element, false, true);
}

// The same, from a code set that no locale need have.
std::string Utf8TreeFrom(const char* codeSet, const std::string& attribute,
                         const std::string& text) {
  const auto element = NewElement("e");
  element->AddAttribute("a", attribute);
  test::AddText(*element, text);
  std::ostringstream os;
  Utf8Converter converter{codeSet};
  tsx::Output out(os, converter);
  TIMESERIESXML::ExportFormat format;
  format.SetFormat(false);
  tsx::WriteElement(out, *element, format);
  out.Flush();
  return os.str();
}

TEST(Utf8, AsciiLocaleKeepsAscii) {
  const test::ScopedLocale c("C");
  EXPECT_EQ(WriteUtf("plain text"), "plain text");
}

TEST(Utf8, AsciiLocaleCutsAtAHighByte) {
  const test::ScopedLocale c("C");
  EXPECT_EQ(WriteUtf("ab\xe9 cd"), "ab");
  EXPECT_EQ(WriteUtf(kUmlautsUtf8), "Gr");
}

TEST(Utf8, Latin1LocaleConvertsEveryByte) {
  const test::ScopedLocale german("de_DE.ISO-8859-1");
  EXPECT_EQ(WriteUtf(kUmlautsLatin1), kUmlautsUtf8);
  EXPECT_EQ(WriteUtf("\xff"), "\xc3\xbf");
}

TEST(Utf8, Utf8LocaleKeepsValidText) {
  const test::ScopedLocale german("de_DE.UTF-8");
  EXPECT_EQ(WriteUtf(kUmlautsUtf8 + kJapanUtf8), kUmlautsUtf8 + kJapanUtf8);
}

TEST(Utf8, Utf8LocaleCutsBeforeAnInvalidByte) {
  const test::ScopedLocale german("de_DE.UTF-8");
  EXPECT_EQ(WriteUtf(kUmlautsUtf8 + "\xff" + "rest"), kUmlautsUtf8);
  EXPECT_EQ(WriteUtf("a\xc0\x80z"), "a");
}

TEST(Utf8, Utf8LocaleCutsAnIncompleteCharacter) {
  const test::ScopedLocale german("de_DE.UTF-8");
  EXPECT_EQ(WriteUtf("a\xe6\x97"), "a");
}

TEST(Utf8, EucJpLocaleConvertsPairs) {
  const test::ScopedLocale japanese("ja_JP.EUC-JP");
  EXPECT_EQ(WriteUtf("<" + kJapanEucJp + ">"), "<" + kJapanUtf8 + ">");
}

TEST(Utf8, EucJpLocaleCutsHalfAPair) {
  const test::ScopedLocale japanese("ja_JP.EUC-JP");
  EXPECT_EQ(WriteUtf(kJapanEucJp.substr(0, 3)), kJapanUtf8.substr(0, 3));
}

TEST(Utf8, CodeSetIsThatOfTheTimeOfWriting) {
  const auto element = NewElement("e");
  element->AddAttribute("a", "\xfc");
  {
    const test::ScopedLocale german("de_DE.ISO-8859-1");
    EXPECT_EQ(test::StreamedTextOf(*element, false, true), "<e a=\"\xc3\xbc\"/>");
  }
  const test::ScopedLocale c("C");
  EXPECT_EQ(test::StreamedTextOf(*element, false, true), "<e a=\"/>");
}

TEST(Utf8, WithoutTheFlagNothingIsConverted) {
  const test::ScopedLocale german("de_DE.ISO-8859-1");
  const auto element = NewElement("e");
  element->AddAttribute("a", kUmlautsLatin1 + "\xff");
  EXPECT_EQ(test::StreamedTextOf(*element, false, false), "<e a=\"" + kUmlautsLatin1 + "\xff\"/>");
}

TEST(Utf8, ToStringConvertsNothing) {
  const test::ScopedLocale german("de_DE.ISO-8859-1");
  const auto element = NewElement("e");
  test::AddText(*element, kUmlautsLatin1);
  EXPECT_EQ(test::StringOf(*element), "\n<e>" + kUmlautsLatin1 + "</e>");
}

TEST(Utf8, InvalidByteCostsTheRestOfItsPieceOnly) {
  const test::ScopedLocale c("C");
  // The attribute's closing quote belongs to its piece; ">" and the end tag do not.
  EXPECT_EQ(Utf8Tree("x\xffy", "u\xffv"), "<e a=\"x>u</e>");
}

TEST(Utf8, InvalidByteInANameCutsBothTags) {
  const test::ScopedLocale c("C");
  EXPECT_EQ(Utf8Tree("x", "t", "n\xffm"), "<n a=\"x\">t</n");
}

TEST(Utf8, WriteTreeUtf8CutsWhereWriteTreeDoesNot) {
  const test::ScopedLocale german("de_DE.UTF-8");
  const auto element = NewElement("e");
  test::AddText(*element,
                "ab\xff"
                "cd");
  std::ostringstream converted;
  TIMESERIESXML::WriteTreeUTF8(converted, nullptr, element.get(), false);
  EXPECT_EQ(converted.str(), "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n<e>ab</e>");
  std::ostringstream asItIs;
  TIMESERIESXML::WriteTree(asItIs, nullptr, element.get(), false);
  EXPECT_EQ(asItIs.str(),
            "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n<e>ab\xff"
            "cd</e>");
}

TEST(Utf8, StatefulTextIsConverted) {
  EXPECT_EQ(Utf8TreeFrom("ISO-2022-JP", kJapanIso2022Jp, kJapanIso2022Jp),
            "<e a=\"" + kJapanUtf8 + "\">" + kJapanUtf8 + "</e>");
}

TEST(Utf8, EachPieceBeginsInTheInitialShiftState) {
  // The attribute ends within Japanese text. Its quote is taken for half a character and lost, and
  // the pieces behind it are ASCII again.
  EXPECT_EQ(Utf8TreeFrom("ISO-2022-JP", "\x1b$BF|K\\", "F|"), "<e a=\"" + kJapanUtf8 + ">F|</e>");
}

TEST(Utf8, PieceBehindABrokenOneBeginsAnew) {
  // ")!" is in a row of the code set that is not assigned.
  EXPECT_EQ(Utf8TreeFrom("ISO-2022-JP", "\x1b$B)!", "text"), "<e a=\">text</e>");
}

TEST(Utf8, UnknownCodeSetWritesNothing) {
  EXPECT_EQ(Utf8TreeFrom("no-such-code-set", "x", "y"), "");
}

TEST(Utf8, LongPiecesAreConvertedWhole) {
  std::string source;
  std::string expected;
  for (int i = 0; i < 5000; ++i) {
    source += kJapanEucJp + ",";
    expected += kJapanUtf8 + ",";
  }
  EXPECT_TRUE(Utf8TreeFrom("EUC-JP", source, source) ==
              "<e a=\"" + expected + "\">" + expected + "</e>");
}

}  // namespace
