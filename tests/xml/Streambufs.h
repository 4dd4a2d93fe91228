#ifndef TSXPORT_TESTS_XML_STREAMBUFS_H_
#define TSXPORT_TESTS_XML_STREAMBUFS_H_

#include <stdexcept>
#include <streambuf>
#include <string>

// Stream buffers that fail in ways of their own.
namespace test {

// Takes bytes one by one through overflow() alone.
class Unbuffered : public std::streambuf {
 public:
  explicit Unbuffered(std::size_t capacity) : capacity_(capacity) {}
  const std::string& taken() const { return taken_; }
  int refusals() const { return refusals_; }

 protected:
  int_type overflow(int_type c) override {
    if (taken_.size() == capacity_) return Refuse();
    taken_ += traits_type::to_char_type(c);
    return c;
  }
  virtual int_type Refuse() {
    ++refusals_;
    return traits_type::eof();
  }

 private:
  std::size_t capacity_;
  std::string taken_;
  int refusals_ = 0;
};

struct DiskFull : std::runtime_error {
  DiskFull() : std::runtime_error("disk full") {}
};

class Throwing : public Unbuffered {
 public:
  using Unbuffered::Unbuffered;

 protected:
  int_type Refuse() override { throw DiskFull(); }
};

// Refuses one byte and would take the next again.
class RefusingOnce : public Unbuffered {
 public:
  explicit RefusingOnce(std::size_t at) : Unbuffered(1U << 30U), at_(at) {}

 protected:
  int_type overflow(int_type c) override {
    if (taken().size() == at_ && !refused_) {
      refused_ = true;
      return Refuse();
    }
    return Unbuffered::overflow(c);
  }

 private:
  std::size_t at_;
  bool refused_ = false;
};

// Collects five bytes at a time.
class Buffered : public std::streambuf {
 public:
  explicit Buffered(std::size_t capacity) : capacity_(capacity) { setp(buffer_, buffer_ + 5); }
  std::string taken() const { return taken_ + std::string(pbase(), pptr()); }

 protected:
  int_type overflow(int_type c) override {
    if (taken_.size() + 5 > capacity_) return traits_type::eof();
    taken_.append(pbase(), pptr());
    setp(buffer_, buffer_ + 5);
    return sputc(traits_type::to_char_type(c));
  }

 private:
  std::size_t capacity_;
  std::string taken_;
  char buffer_[5];
};

// Fails to synchronise when it has that many bytes.
class FailingSync : public Unbuffered {
 public:
  explicit FailingSync(std::size_t at) : Unbuffered(1U << 30U), at_(at) {}

 protected:
  int sync() override { return taken().size() >= at_ ? -1 : 0; }

 private:
  std::size_t at_;
};

struct CountingFlushes : std::streambuf {
  int sync() override { return ++flushes, 0; }
  int flushes = 0;
};

}  // namespace test

#endif  // TSXPORT_TESTS_XML_STREAMBUFS_H_
