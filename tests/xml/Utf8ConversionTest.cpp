#include <gtest/gtest.h>
#include <langinfo.h>
#include <sstream>
#include <vector>

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

// A kept descriptor must do for each piece what a fresh one does: all kinds of state, and pieces
// that end in the middle of things.
TEST(Utf8, KeptDescriptorConvertsLikeAFreshOne) {
  const std::vector<std::string> pieces = {"plain",
                                           "",
                                           "\x1b$BF|K\\\x1b(B",
                                           "\x1b$BF|",
                                           "F|K\\",
                                           "\x1b$B",
                                           "\x1b",
                                           "\xe3",
                                           "\xe6\x97",
                                           "\x82\xa0",
                                           "a\xcc\x81",
                                           "+AGE-",
                                           "+AGE",
                                           "~{VP",
                                           "VP~}",
                                           "\xff\xfe"
                                           "a",
                                           "A\x81\x30",
                                           "\x88\x62",
                                           "\x1b$)C\x0e\x30\x21",
                                           "\x30\x21",
                                           "\x0e\x42\xc1",
                                           "\x0f",
                                           "\xaa\xb1",
                                           "e\xec"};
  for (const char* codeSet :
       {"ISO-2022-JP", "ISO-2022-KR", "ISO-2022-CN", "UTF-7", "UTF-16", "UTF-32", "HZ", "CP1258",
        "TCVN", "BIG5-HKSCS", "EUC-JISX0213", "IBM930", "GB18030", "UTF-8", "SJIS", "TSCII"}) {
    Utf8Converter kept{codeSet};
    for (const std::string& piece : pieces) {
      std::string byKept(Utf8Converter::MaxSize(piece.size()), '\0');
      byKept.resize(kept.Convert(piece, byKept.data()));
      Utf8Converter fresh{codeSet};
      std::string byFresh(Utf8Converter::MaxSize(piece.size()), '\0');
      byFresh.resize(fresh.Convert(piece, byFresh.data()));
      EXPECT_EQ(byKept, byFresh) << codeSet << ": " << testing::PrintToString(piece);
    }
  }
}

TEST(Utf8, PlainPiecesAreLeftAloneInCodeSetsWithAscii) {
  EXPECT_TRUE(Utf8Converter("UTF-8").LeavesAlone("plain, and longer than a word"));
  EXPECT_FALSE(Utf8Converter("UTF-8").LeavesAlone("plain, and longer than \xc3\xbc"));
  EXPECT_FALSE(Utf8Converter("UTF-8").LeavesAlone("\x80"));
  EXPECT_FALSE(Utf8Converter("ISO-2022-JP").LeavesAlone("plain"));
  EXPECT_FALSE(Utf8Converter("UTF-7").LeavesAlone("plain"));
}

TEST(Utf8, CodeSetsSaidToContainAsciiDo) {
  std::string ascii;
  for (int a = 0; a < 128; ++a) {
    for (int b = 0; b < 128; ++b) ascii += {static_cast<char>(a), static_cast<char>(b)};
  }
  int known = 0;
  for (const char* codeSet :
       {"ANSI_X3.4-1968", "UTF-8",       "ISO-8859-1",  "ISO-8859-2",  "ISO-8859-3", "ISO-8859-4",
        "ISO-8859-5",     "ISO-8859-6",  "ISO-8859-7",  "ISO-8859-8",  "ISO-8859-9", "ISO-8859-10",
        "ISO-8859-13",    "ISO-8859-14", "ISO-8859-15", "ISO-8859-16", "EUC-JP",     "EUC-KR",
        "EUC-TW",         "GB2312",      "GBK",         "GB18030",     "KOI8-R",     "KOI8-U",
        "CP1251",         "TIS-620"}) {
    if (!tsx::ContainsAscii(codeSet)) continue;
    ++known;
    Utf8Converter converter{codeSet};
    std::string converted(Utf8Converter::MaxSize(ascii.size()), '\0');
    converted.resize(converter.Convert(ascii, converted.data()));
    EXPECT_EQ(converted, ascii) << codeSet;
  }
  EXPECT_EQ(known, 26);
}

// Records what was asked for and grants one of the requests.
std::vector<std::string> attempts;
std::size_t granted = 0;

iconv_t Attempt(const char* target, const char* source) {
  attempts.push_back(std::string(target) + " from " + source);
  const std::intptr_t answer = attempts.size() == granted ? 1 : -1;
  return reinterpret_cast<iconv_t>(answer);
}

std::vector<std::string> AttemptsFrom(const char* source, std::size_t grant) {
  attempts.clear();
  granted = grant;
  const iconv_t descriptor = tsx::OpenUtf8Conversion(source, &Attempt);
  EXPECT_EQ(tsx::IsOpen(descriptor), grant != 0);
  return attempts;
}

using Attempts = std::vector<std::string>;

TEST(OpenUtf8Conversion, TakesTheFirstThatOpens) {
  EXPECT_EQ(AttemptsFrom("X", 1), Attempts({"UTF-8 from X"}));
}

TEST(OpenUtf8Conversion, TriesTheOtherNameOfUtf8) {
  EXPECT_EQ(AttemptsFrom("X", 2), Attempts({"UTF-8 from X", "utf8 from X"}));
}

TEST(OpenUtf8Conversion, FallsBackToLatin1) {
  EXPECT_EQ(AttemptsFrom("X", 0),
            Attempts({"UTF-8 from X", "utf8 from X", "UTF-8 from 8859-1", "utf8 from 8859-1"}));
}

TEST(OpenUtf8Conversion, TriesTheNameBehindISO) {
  EXPECT_EQ(AttemptsFrom("ISO  8859-7", 4),
            Attempts({"UTF-8 from ISO  8859-7", "utf8 from ISO  8859-7", "UTF-8 from 8859-7",
                      "utf8 from 8859-7"}));
}

TEST(OpenUtf8Conversion, FallsBackToLatin1BehindISOToo) {
  EXPECT_EQ(AttemptsFrom("ISO-X", 0),
            Attempts({"UTF-8 from ISO-X", "utf8 from ISO-X", "UTF-8 from -X", "utf8 from -X",
                      "UTF-8 from 8859-1", "utf8 from 8859-1"}));
}

TEST(OpenUtf8Conversion, LowerCaseIsNotISO) {
  EXPECT_EQ(AttemptsFrom("iso 1", 3),
            Attempts({"UTF-8 from iso 1", "utf8 from iso 1", "UTF-8 from 8859-1"}));
}

}  // namespace
