#include "xml/Utf8Converter.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <langinfo.h>
#include <utility>

namespace tsx {
namespace {

iconv_t OpenFrom(const char* source, OpenConversion open) {
  iconv_t descriptor = open("UTF-8", source);
  return IsOpen(descriptor) ? descriptor : open("utf8", source);
}

bool IsAscii(std::string_view bytes) {
  constexpr std::uint64_t kHighBits = 0x8080808080808080U;
  const char* at = bytes.data();
  std::size_t left = bytes.size();
  for (; left >= sizeof(std::uint64_t);
       at += sizeof(std::uint64_t), left -= sizeof(std::uint64_t)) {
    std::uint64_t word = 0;
    std::memcpy(&word, at, sizeof word);
    if ((word & kHighBits) != 0) return false;
  }
  return std::all_of(at, at + left, [](char c) { return static_cast<signed char>(c) >= 0; });
}

}  // namespace

iconv_t OpenUtf8Conversion(const char* source, OpenConversion open) {
  iconv_t descriptor = OpenFrom(source, open);
  if (IsOpen(descriptor)) return descriptor;
  if (std::strncmp(source, "ISO", 3) == 0) {
    const char* rest = source + 3;
    while (*rest == ' ') ++rest;
    descriptor = OpenFrom(rest, open);
    if (IsOpen(descriptor)) return descriptor;
  }
  return OpenFrom("8859-1", open);
}

bool ContainsAscii(std::string_view codeSet) {
  // As the C library's locales name them. Left out on purpose: code sets with shift states or
  // combining characters, and those with national characters in place of some of ASCII's.
  constexpr std::string_view kCodeSets[] = {
      "ANSI_X3.4-1968", "UTF-8",       "ISO-8859-1",  "ISO-8859-2",  "ISO-8859-3", "ISO-8859-4",
      "ISO-8859-5",     "ISO-8859-6",  "ISO-8859-7",  "ISO-8859-8",  "ISO-8859-9", "ISO-8859-10",
      "ISO-8859-13",    "ISO-8859-14", "ISO-8859-15", "ISO-8859-16", "EUC-JP",     "EUC-KR",
      "EUC-TW",         "GB2312",      "GBK",         "GB18030",     "KOI8-R",     "KOI8-U",
      "CP1251",         "TIS-620"};
  return std::find(std::begin(kCodeSets), std::end(kCodeSets), codeSet) != std::end(kCodeSets);
}

Utf8Converter::Utf8Converter() : Utf8Converter(nl_langinfo(CODESET)) {}

Utf8Converter::Utf8Converter(std::string source)
    : source_(std::move(source)), contains_ascii_(ContainsAscii(source_)), descriptor_(NotOpen()) {}

Utf8Converter::~Utf8Converter() {
  if (IsOpen(descriptor_)) iconv_close(descriptor_);
}

bool Utf8Converter::LeavesAlone(std::string_view piece) const {
  return contains_ascii_ && IsAscii(piece);
}

std::size_t Utf8Converter::Convert(std::string_view piece, char* out) {
  if (!opened_) {
    descriptor_ = OpenUtf8Conversion(source_.c_str(), &iconv_open);
    opened_ = true;
  }
  if (!IsOpen(descriptor_)) return 0;
  iconv(descriptor_, nullptr, nullptr, nullptr, nullptr);  // back to the initial shift state
  char* from = const_cast<char*>(piece.data());            // iconv does not write to it
  std::size_t fromLeft = piece.size();
  char* to = out;
  std::size_t toLeft = MaxSize(piece.size());
  iconv(descriptor_, &from, &fromLeft, &to, &toLeft);
  return static_cast<std::size_t>(to - out);
}

}  // namespace tsx
