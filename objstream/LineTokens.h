#ifndef TSXPORT_OBJSTREAM_LINETOKENS_H_
#define TSXPORT_OBJSTREAM_LINETOKENS_H_

#include <cstdint>
#include <istream>
#include <string_view>

namespace tsx::objstream {

// A set of delimiters. All that the format knows lie below 64 ("=" and ">" are the last), so a set
// is one word.
class DelimiterSet {
 public:
  constexpr explicit DelimiterSet(std::string_view delimiters) {
    for (const char c : delimiters) bits_ |= BitOf(c);
  }

  // NUL is in no set.
  constexpr bool Has(char c) const { return (bits_ & BitOf(c)) != 0; }

  // Whether a token ends before `c`: at a delimiter, or where the line does.
  constexpr bool EndsToken(char c) const { return ((bits_ | BitOf('\0')) & BitOf(c)) != 0; }

 private:
  static constexpr std::uint64_t BitOf(char c) {
    const auto code = static_cast<unsigned char>(c);
    return code < 64 ? std::uint64_t{1} << code : 0;
  }

  std::uint64_t bits_ = 0;
};

// One line of a stream, taken apart from left to right, each token by delimiters of its own. The
// tokens are those that strtok() gives on a buffer of 256 bytes: delimiters in front of a token are
// skipped however many there are, the one behind it is used up, and a NUL byte ends the line. But
// the line is not changed and nothing is kept outside this object.
class LineTokens {
 public:
  LineTokens() = default;
  LineTokens(const LineTokens&) = delete;
  LineTokens& operator=(const LineTokens&) = delete;

  // Reads up to the next line feed or the end of the stream and starts at the first token. False
  // when the stream has no more bytes, was not good before, or when the line has more than 255:
  // then there is nothing to take apart.
  bool Read(std::istream& in);

  // Whether the line has no bytes at all, not even delimiters.
  bool IsEmpty() const { return line_[0] == '\0'; }

  // The next token, a view into this object. It is empty when there is none: a token never is.
  std::string_view Next(DelimiterSet delimiters) {
    const char* first = next_;
    while (delimiters.Has(*first)) ++first;
    const char* last = first;
    while (!delimiters.EndsToken(*last)) ++last;
    next_ = *last == '\0' ? last : last + 1;
    return {first, static_cast<std::size_t>(last - first)};
  }

  // Skips the delimiters in front of the next token and returns what is left of the line from
  // there. A NUL follows it; there may be others in it.
  std::string_view Rest(DelimiterSet delimiters) {
    while (delimiters.Has(*next_)) ++next_;
    return {next_, static_cast<std::size_t>(end_ - next_)};
  }

  // Goes on behind tabs and `start` when the line goes on so; else stays and returns false.
  bool SkipTabsAnd(std::string_view start) {
    const char* first = next_;
    while (*first == '\t') ++first;
    if (!std::string_view(first, static_cast<std::size_t>(end_ - first)).starts_with(start)) {
      return false;
    }
    next_ = first + start.size();
    return true;
  }

  // Where Next() will begin to look.
  const char* place() const { return next_; }

 private:
  char line_[256];  // with the NUL behind the line
  const char* next_ = line_;
  const char* end_ = line_;
};

}  // namespace tsx::objstream

#endif  // TSXPORT_OBJSTREAM_LINETOKENS_H_
