#ifndef TSXPORT_XML_PUTBYTES_H_
#define TSXPORT_XML_PUTBYTES_H_

#include <cstring>
#include <string_view>

namespace tsx {

// Copies `bytes` to `out`, where there is room, and returns their end.
inline char* PutBytes(std::string_view bytes, char* out) {
  if (!bytes.empty()) std::memcpy(out, bytes.data(), bytes.size());  // an empty view may be null
  return out + bytes.size();
}

}  // namespace tsx

#endif  // TSXPORT_XML_PUTBYTES_H_
