#include <cstdint>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "xml/Utf8Converter.h"

// The converter by itself, with code sets that no locale need have.
namespace {

using tsx::Utf8Converter;

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

// In this code set one byte may stand for three characters, nine bytes of UTF-8; there is room for
// four bytes, and so for the first character.
TEST(Utf8, ConversionGrowsToFourTimesThePieceAtMost) {
  Utf8Converter tamil{"TSCII"};
  char out[16] = {};
  EXPECT_EQ(Utf8Converter::MaxSize(1), 4U);
  EXPECT_EQ(std::string(out, tamil.Convert("\x87", out)), "\xe0\xae\x95");
  EXPECT_EQ(Utf8Converter::MaxSize(3), 12U);
  EXPECT_EQ(std::string(out, tamil.Convert("\x87  ", out)),
            "\xe0\xae\x95\xe0\xaf\x8d\xe0\xae\xb7  ");
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
