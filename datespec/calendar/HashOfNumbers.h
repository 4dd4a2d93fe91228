#ifndef TSXPORT_DATESPEC_CALENDAR_HASHOFNUMBERS_H_
#define TSXPORT_DATESPEC_CALENDAR_HASHOFNUMBERS_H_

#include <cstdint>

namespace tsx {

// One number made from many, in their order. A multiplication carries every bit upwards and the
// shift brings the upper half down again; neither loses anything, so that two lists that differ in
// one number never meet before the next difference. The factor is 2^64 divided by the golden ratio
// (Knuth, The Art of Computer Programming, volume 3, section 6.4).
class HashOfNumbers {
 public:
  constexpr void Add(std::uint64_t number) {
    hash_ = (hash_ ^ number) * 0x9E37'79B9'7F4A'7C15U;
    hash_ ^= hash_ >> 32U;
  }
  constexpr std::uint64_t hash() const { return hash_; }

 private:
  std::uint64_t hash_ = 0x9E37'79B9'7F4A'7C15U;
};

}  // namespace tsx

#endif  // TSXPORT_DATESPEC_CALENDAR_HASHOFNUMBERS_H_
