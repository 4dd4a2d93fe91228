// Bytes are calls and the stream that they read. The reader must answer, set and leave behind what
// its literal version does.

#include "fuzz/ObjStreamFuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Run<test::TimeSeriesPair>(data, size, test::TimeSeriesReader::kCalls);
  return 0;
}
