#include <cstdlib>
#include <cstring>
#include <limits>
#include <sstream>

#include "tests/literal/LiteralObjStream.h"

namespace literal {
namespace {

const std::string kRoot = "MCXMLRoot";
const std::string kObj = "Obj";
const std::string kName = "name";
const std::string kInt = "Int";
const std::string kLong = "Long";
const std::string kDouble = "Double";
const std::string kString = "String";
const std::string kValue = "value";
const std::string kMissing = "Missing";

constexpr int kSize = 256;

bool ReadLine(std::ifstream& in, char* buffer) {
  in.getline(buffer, kSize);
  return !in.fail();
}

bool Is(const char* token, const std::string& expected) {
  return token != nullptr && expected == token;
}

bool FirstTokenIs(std::ifstream& in, const char* delimiters, const std::string& expected) {
  char buffer[kSize];
  return ReadLine(in, buffer) && Is(std::strtok(buffer, delimiters), expected);
}

bool StartObj(std::ifstream& in, const std::string& name, const char* delimiters,
              const char* nameDelimiters) {
  char buffer[kSize];
  if (!ReadLine(in, buffer)) return false;
  if (buffer[0] == '\0' && !ReadLine(in, buffer)) return false;
  if (!Is(std::strtok(buffer, delimiters), kObj)) return false;
  if (!Is(std::strtok(nullptr, delimiters), kName)) return false;
  return Is(std::strtok(nullptr, nameDelimiters), name);
}

// The value's token, in `buffer`; null when the line is another.
char* NumberToken(std::ifstream& in, char* buffer, const std::string& tag, const char* delimiters,
                  const char* attributeDelimiters) {
  if (!ReadLine(in, buffer)) return nullptr;
  if (!Is(std::strtok(buffer, delimiters), tag)) return nullptr;
  if (!Is(std::strtok(nullptr, attributeDelimiters), kValue)) return nullptr;
  return std::strtok(nullptr, delimiters);
}

}  // namespace

namespace timeseries {
namespace {

const char* const kXml = " \t\r\n<>=\"";
const char* const kTag = " \t\r\n<=\"";
const char* const kAttribute = "=\"";

template <typename Integer>
bool Number(std::ifstream& in, const std::string& tag, Integer& value) {
  char buffer[kSize];
  const char* token = NumberToken(in, buffer, tag, kTag, kAttribute);
  if (token == nullptr) return false;
  value = static_cast<Integer>(std::strtol(token, nullptr, 10));
  return true;
}

}  // namespace

bool ParseStartXML(std::ifstream& in) {
  return FirstTokenIs(in, kXml, "?xml") && FirstTokenIs(in, kXml, "!DOCTYPE") &&
         FirstTokenIs(in, kXml, kRoot);
}

bool ParseStartObj(std::ifstream& in, const std::string& name) {
  return StartObj(in, name, kTag, "\"");
}

bool ParseEndObj(std::ifstream& in) { return FirstTokenIs(in, " \t\r\n<>", "/" + kObj); }

bool ParseValue(std::ifstream& in, bool& value) {
  long number = 0;
  if (!Number(in, kInt, number)) return false;
  if (number == 0) {
    value = false;
  } else if (number == 1) {
    value = true;
  } else {
    return false;
  }
  return true;
}

bool ParseValue(std::ifstream& in, int& value) { return Number(in, kInt, value); }
bool ParseValue(std::ifstream& in, unsigned int& value) { return Number(in, kInt, value); }
bool ParseValue(std::ifstream& in, long& value) { return Number(in, kLong, value); }

bool ParseValue(std::ifstream& in, double& value) {
  char buffer[kSize];
  const char* token = NumberToken(in, buffer, kDouble, kTag, kAttribute);
  if (token == nullptr) return false;
  if (kMissing == token) {
    value = -std::numeric_limits<double>::max();
  } else {
    std::stringstream stream(token);
    stream >> value;
  }
  return true;
}

bool ParseValue(std::ifstream& in, std::string& value) {
  char buffer[kSize];
  if (!ReadLine(in, buffer)) return false;
  if (!Is(std::strtok(buffer, kTag), kString)) return false;
  if (!Is(std::strtok(nullptr, kAttribute), kValue)) return false;
  const char* token = std::strtok(nullptr, "\r\n\"");
  if (token == nullptr || std::strcmp(token - 2, "\"\"/>") == 0) {
    value = "";
  } else {
    value = token;
  }
  return true;
}

}  // namespace timeseries

namespace xmlu {
namespace {

const char* const kAll = " \t\n<>=\"";

template <typename Integer>
bool Number(std::ifstream& in, const std::string& tag, Integer& value) {
  char buffer[kSize];
  const char* token = NumberToken(in, buffer, tag, kAll, kAll);
  if (token == nullptr) return false;
  value = static_cast<Integer>(std::strtol(token, nullptr, 10));
  return true;
}

}  // namespace

bool ParseStartXML(std::ifstream& in) {
  char buffer[kSize];
  return FirstTokenIs(in, kAll, "?xml") && FirstTokenIs(in, kAll, "!DOCTYPE") &&
         ReadLine(in, buffer) && std::strtok(buffer, kAll) == nullptr;
}

bool ParseStartObj(std::ifstream& in, const std::string& name) {
  return StartObj(in, name, kAll, kAll);
}

bool ParseEndObj(std::ifstream& in) { return FirstTokenIs(in, " \t\n<>", "/" + kObj); }

bool ParseValue(std::ifstream& in, int& value) { return Number(in, kInt, value); }
bool ParseValue(std::ifstream& in, unsigned int& value) { return Number(in, kInt, value); }
bool ParseValue(std::ifstream& in, long& value) { return Number(in, kLong, value); }

bool ParseValue(std::ifstream& in, double& value) {
  char buffer[kSize];
  const char* token = NumberToken(in, buffer, kDouble, kAll, kAll);
  if (token == nullptr) return false;
  std::stringstream stream(token);
  stream >> value;
  return true;
}

}  // namespace xmlu

}  // namespace literal
