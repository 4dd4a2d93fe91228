// The same as ObjStreamReaderFuzz.cpp for the smaller reader.

#include "fuzz/ObjStreamFuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Run<test::XmluPair>(data, size, test::XmluReader::kCalls);
  return 0;
}
