#include "xml/Escape.h"

#include <array>

#include "xml/PutBytes.h"

namespace tsx {
namespace {

enum Special : unsigned char {
  kPlain,
  kAmpersand,
  kLessThan,
  kGreaterThan,
  kQuote,
  kTab,
  kLineFeed,
  kCarriageReturn,
  kBlank
};

// What stands for each special byte but the blank, which stands for itself in most places.
constexpr std::array<std::string_view, 8> kReplacements = {"",       "&amp;", "&lt;",  "&gt;",
                                                           "&quot;", "&#9;",  "&#10;", "&#13;"};
constexpr std::string_view kBlankReference = "&#32;";

using ByteClasses = std::array<Special, 256>;

constexpr ByteClasses TextClasses() {
  ByteClasses classes{};
  classes['&'] = kAmpersand;
  classes['<'] = kLessThan;
  return classes;
}

constexpr ByteClasses ValueClasses() {
  ByteClasses classes = TextClasses();
  classes['>'] = kGreaterThan;
  classes['"'] = kQuote;
  classes['\t'] = kTab;
  classes['\n'] = kLineFeed;
  classes['\r'] = kCarriageReturn;
  classes[' '] = kBlank;
  return classes;
}

constexpr ByteClasses kTextClasses = TextClasses();
constexpr ByteClasses kValueClasses = ValueClasses();

Special ClassOf(const ByteClasses& classes, char c) {
  return classes[static_cast<unsigned char>(c)];
}

// Hands each stretch of plain bytes and each replacement to `emit`, in order.
template <typename Emit>
void EscapeWith(const ByteClasses& classes, std::string_view s, Emit emit) {
  std::size_t plainFrom = 0;
  bool afterLoneBlank = false;  // the byte before is the first blank of a pair to come
  for (std::size_t i = 0; i < s.size(); ++i) {
    const Special special = ClassOf(classes, s[i]);
    if (special == kPlain) {
      afterLoneBlank = false;
      continue;
    }
    const bool blank = special == kBlank;
    const bool referenced = blank && (afterLoneBlank || i == 0 || i + 1 == s.size());
    afterLoneBlank = blank && !afterLoneBlank;
    if (blank && !referenced) continue;
    emit(s.substr(plainFrom, i - plainFrom));
    emit(blank ? kBlankReference : kReplacements[special]);
    plainFrom = i + 1;
  }
  emit(s.substr(plainFrom));
}

std::size_t EscapedSize(const ByteClasses& classes, std::string_view s) {
  std::size_t size = 0;
  EscapeWith(classes, s, [&](std::string_view piece) { size += piece.size(); });
  return size;
}

char* Escape(const ByteClasses& classes, std::string_view s, char* out) {
  EscapeWith(classes, s, [&](std::string_view piece) { out = PutBytes(piece, out); });
  return out;
}

}  // namespace

std::size_t EscapedTextSize(std::string_view text) { return EscapedSize(kTextClasses, text); }
char* EscapeText(std::string_view text, char* out) { return Escape(kTextClasses, text, out); }
std::size_t EscapedValueSize(std::string_view value) { return EscapedSize(kValueClasses, value); }
char* EscapeValue(std::string_view value, char* out) { return Escape(kValueClasses, value, out); }

}  // namespace tsx
