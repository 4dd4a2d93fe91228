#ifndef TSXPORT_XML_OUTPUT_H_
#define TSXPORT_XML_OUTPUT_H_

#include <cstddef>
#include <cstring>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include <tsxport/ExportFormat.h>
#include <tsxport/XMLInterface.h>

#include "xml/Utf8Converter.h"

namespace tsx {

// Puts bytes into a stream as if each went by os.put(): the same bytes reach the stream's buffer
// and the same state is left, whatever that buffer refuses.
void WriteBytes(std::ostream& os, std::string_view bytes);

// Where a tree's text goes: a string, or a stream with or without conversion to UTF-8. Gathers
// bytes and hands them on in blocks. Text is made of pieces, and only conversion minds where they
// end.
class Output {
 public:
  explicit Output(std::string& target) : string_(&target) {}
  explicit Output(std::ostream& target) : stream_(&target) {}
  Output(std::ostream& target, Utf8Converter& converter)
      : stream_(&target), converter_(&converter) {}
  Output(const Output&) = delete;
  Output& operator=(const Output&) = delete;

  // Appends what put(char*) writes, which returns its end and needs at most `maxSize` bytes.
  template <typename Put>
  void AppendWith(std::size_t maxSize, Put put) {
    if (maxSize > Room()) MakeRoom(maxSize);
    next_ = put(next_);
  }

  void Append(std::string_view bytes) {
    if (bytes.size() > Room()) return AppendLong(bytes);
    std::memcpy(next_, bytes.data(), bytes.size());
    next_ += bytes.size();
  }

  // What was appended since the last call is a piece of its own.
  void EndPiece() {
    if (converter_ != nullptr) ConvertPiece();
  }

  // Lets a node write itself through its virtual functions.
  void AppendNode(const TIMESERIESXML::XMLInterface& node, TIMESERIESXML::ExportFormat& format);

  // Hands on what is gathered. To be called last; the destructor does not, since it must not throw.
  void Flush();

 private:
  std::size_t Room() const { return static_cast<std::size_t>(end_ - next_); }
  void MakeRoom(std::size_t size);
  void AppendLong(std::string_view bytes);
  void FlushPieces();
  void Grow(std::size_t size);
  void ConvertPiece();
  void HandOn(std::string_view bytes);

  static constexpr std::size_t kBlock = 4096;

  std::string* string_ = nullptr;
  std::ostream* stream_ = nullptr;
  Utf8Converter* converter_ = nullptr;
  std::vector<char> large_;  // in place of block_, for pieces longer than that
  char block_[kBlock];
  char* begin_ = block_;
  char* piece_ = block_;  // where the unfinished piece begins; stays behind without a converter
  char* next_ = block_;
  char* end_ = block_ + kBlock;
};

}  // namespace tsx

#endif  // TSXPORT_XML_OUTPUT_H_
