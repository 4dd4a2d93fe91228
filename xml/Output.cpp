#include "xml/Output.h"

#include <algorithm>

namespace tsx {

void WriteBytes(std::ostream& os, std::string_view bytes) {
  if (bytes.empty()) return;
  // Such a stream flushes itself or another one at every operation, and may fail at it.
  if (os.tie() != nullptr || (os.flags() & std::ios_base::unitbuf) != 0) {
    for (const char c : bytes) os.put(c);
    return;
  }
  // A refused byte makes the stream bad, and a byte after that makes it fail too. Putting the last
  // byte by itself gets both right, since write() does not tell how far it came.
  os.write(bytes.data(), static_cast<std::streamsize>(bytes.size() - 1));
  os.put(bytes.back());
}

void Output::HandOn(std::string_view bytes) {
  if (string_ != nullptr) {
    string_->append(bytes);
  } else {
    WriteBytes(*stream_, bytes);
  }
}

void Output::Flush() {
  EndPiece();
  const std::string_view gathered(begin_, static_cast<std::size_t>(next_ - begin_));
  piece_ = next_ = begin_;
  HandOn(gathered);
}

void Output::MakeRoom(std::size_t size) {
  if (converter_ != nullptr) {
    FlushPieces();
  } else {
    Flush();
  }
  if (size > Room()) Grow(static_cast<std::size_t>(next_ - begin_) + size);
}

void Output::AppendLong(std::string_view bytes) {
  if (converter_ == nullptr && bytes.size() >= kBlock) {
    Flush();
    return HandOn(bytes);
  }
  MakeRoom(bytes.size());
  Append(bytes);
}

// Hands on the finished pieces and moves the unfinished one to the front.
void Output::FlushPieces() {
  const auto unfinished = static_cast<std::size_t>(next_ - piece_);
  HandOn({begin_, static_cast<std::size_t>(piece_ - begin_)});
  std::memmove(begin_, piece_, unfinished);
  piece_ = begin_;
  next_ = begin_ + unfinished;
}

// To at least `size` bytes; all that is gathered is one unfinished piece.
void Output::Grow(std::size_t size) {
  const auto gathered = static_cast<std::size_t>(next_ - begin_);
  const std::size_t capacity = std::max(size, 2 * static_cast<std::size_t>(end_ - begin_));
  std::vector<char> grown(capacity);
  std::memcpy(grown.data(), begin_, gathered);
  large_.swap(grown);
  piece_ = begin_ = large_.data();
  next_ = begin_ + gathered;
  end_ = begin_ + capacity;
}

// Puts the conversion behind the piece first, and then in its place.
void Output::ConvertPiece() {
  const auto size = static_cast<std::size_t>(next_ - piece_);
  if (!converter_->LeavesAlone({piece_, size})) {
    const std::size_t maxSize = Utf8Converter::MaxSize(size);
    if (maxSize > Room()) MakeRoom(maxSize);
    const std::size_t converted = converter_->Convert({piece_, size}, next_);
    std::memmove(piece_, next_, converted);
    next_ = piece_ + converted;
  }
  piece_ = next_;
}

void Output::AppendNode(const TIMESERIESXML::XMLInterface& node,
                        TIMESERIESXML::ExportFormat& format) {
  Flush();
  if (string_ != nullptr) {
    node.ToString(*string_, format);
  } else {
    node.ToStream(*stream_, format, converter_ != nullptr);
  }
}

}  // namespace tsx
