#ifndef TSXPORT_FUZZ_OBJSTREAMFUZZ_H_
#define TSXPORT_FUZZ_OBJSTREAMFUZZ_H_

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "tests/objstream/Comparison.h"
#include "tests/support/ScopedLocale.h"

// Takes the bytes apart: the first sets the locale, then the calls up to a NUL, then the name of
// objects up to a NUL, then the stream. The calls are made over and over until the stream is at its
// end, each beside the literal reader's.
namespace fuzz {

inline std::string_view UpToNul(std::string_view& bytes) {
  const std::string_view part = bytes.substr(0, bytes.find('\0'));
  bytes.remove_prefix(part.size() < bytes.size() ? part.size() + 1 : part.size());
  return part;
}

template <typename Pair>
void ReadBesideLiteral(std::string_view calls, const std::string& name, std::string_view stream,
                       int callKinds) {
  Pair pair(stream);
  // A call reads a byte at least, or comes to the end.
  for (std::size_t i = 0; !pair.IsAtEnd(); ++i) {
    pair.ClearStates();
    const int byte = static_cast<unsigned char>(calls[i % calls.size()]);
    if (!pair.Agree(static_cast<test::Call>(byte % callKinds), name)) std::abort();
  }
}

template <typename Pair>
void Run(const std::uint8_t* data, std::size_t size, int callKinds) {
  std::string_view bytes(reinterpret_cast<const char*>(data), size);
  if (bytes.empty()) return;
  const bool grouping = bytes.front() == 'g';
  bytes.remove_prefix(1);
  const std::string_view calls = UpToNul(bytes);
  const std::string name(UpToNul(bytes));
  if (calls.empty()) return;
  if (grouping) {
    const test::ScopedGroupingCxxLocale locale;
    ReadBesideLiteral<Pair>(calls, name, bytes, callKinds);
  } else {
    ReadBesideLiteral<Pair>(calls, name, bytes, callKinds);
  }
}

}  // namespace fuzz

#endif  // TSXPORT_FUZZ_OBJSTREAMFUZZ_H_
