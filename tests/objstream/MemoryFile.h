#ifndef TSXPORT_TESTS_OBJSTREAM_MEMORYFILE_H_
#define TSXPORT_TESTS_OBJSTREAM_MEMORYFILE_H_

#include <fstream>
#include <streambuf>
#include <string_view>

namespace test {

// An input file stream over bytes in memory, which must outlive it. For many lines in little time.
class MemoryFile : public std::ifstream {
 public:
  explicit MemoryFile(std::string_view bytes) { Load(bytes); }

  // Begins anew with other bytes.
  void Load(std::string_view bytes) {
    buffer_.Load(bytes);
    std::ios::rdbuf(&buffer_);  // which clears the state too
  }

  // How many bytes have been read.
  std::size_t place() const { return buffer_.place(); }

 private:
  class Buffer : public std::streambuf {
   public:
    void Load(std::string_view bytes) {
      char* first = const_cast<char*>(bytes.data());  // a get area is not const, but only read
      setg(first, first, first + bytes.size());
    }
    std::size_t place() const { return static_cast<std::size_t>(gptr() - eback()); }
  };

  Buffer buffer_;
};

}  // namespace test

#endif  // TSXPORT_TESTS_OBJSTREAM_MEMORYFILE_H_
