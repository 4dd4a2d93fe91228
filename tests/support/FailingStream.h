#ifndef TSXPORT_TESTS_SUPPORT_FAILINGSTREAM_H_
#define TSXPORT_TESTS_SUPPORT_FAILINGSTREAM_H_

#include <algorithm>
#include <streambuf>
#include <string>

namespace test {

// Takes `capacity` bytes and refuses every later one, as a full disk does.
class FailingStreambuf : public std::streambuf {
 public:
  explicit FailingStreambuf(std::size_t capacity) : capacity_(capacity) {}

  const std::string& taken() const { return taken_; }

 protected:
  int_type overflow(int_type c) override {
    if (traits_type::eq_int_type(c, traits_type::eof())) return traits_type::not_eof(c);
    if (taken_.size() >= capacity_) return traits_type::eof();
    taken_.push_back(traits_type::to_char_type(c));
    return c;
  }

  std::streamsize xsputn(const char* bytes, std::streamsize count) override {
    const std::size_t room = capacity_ - taken_.size();
    const std::size_t n = std::min(room, static_cast<std::size_t>(count));
    taken_.append(bytes, n);
    return static_cast<std::streamsize>(n);
  }

 private:
  std::size_t capacity_;
  std::string taken_;
};

}  // namespace test

#endif  // TSXPORT_TESTS_SUPPORT_FAILINGSTREAM_H_
