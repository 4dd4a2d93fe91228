#ifndef TSXPORT_TESTS_OBJSTREAM_FILES_H_
#define TSXPORT_TESTS_OBJSTREAM_FILES_H_

#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <stdexcept>
#include <string>
#include <unistd.h>

namespace test {

// A file with these bytes, open for reading at its front. It has no name any more.
inline std::ifstream FileOf(const std::string& bytes) {
  std::string name = testing::TempDir() + "objstreamXXXXXX";
  const int descriptor = mkstemp(name.data());
  if (descriptor < 0) throw std::runtime_error("no temporary file " + name);
  close(descriptor);
  std::ofstream(name, std::ios::binary)
      .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  std::ifstream in(name, std::ios::binary);
  unlink(name.c_str());
  return in;
}

// What is left to be read.
inline std::string RestOf(std::ifstream& in) {
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

}  // namespace test

#endif  // TSXPORT_TESTS_OBJSTREAM_FILES_H_
