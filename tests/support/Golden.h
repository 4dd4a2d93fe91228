#ifndef TSXPORT_TESTS_SUPPORT_GOLDEN_H_
#define TSXPORT_TESTS_SUPPORT_GOLDEN_H_

#include <string>

namespace test {

// The bytes of a file below tests/, e.g. "tsxml/golden/holt.xml". Throws when it cannot be read.
std::string ReadTestFile(const std::string& path);

// Fails the current test unless `text` equals the golden file byte for byte; shows the first line
// that differs.
void ExpectGolden(const std::string& path, const std::string& text);

// Fails the current test unless a real XML parser accepts the text as one well-formed document.
void ExpectWellFormed(const std::string& text);

}  // namespace test

#endif  // TSXPORT_TESTS_SUPPORT_GOLDEN_H_
