#ifndef TSXPORT_TESTS_LITERAL_LITERALOBJSTREAM_H_
#define TSXPORT_TESTS_LITERAL_LITERALOBJSTREAM_H_

#include <fstream>
#include <ostream>
#include <string>

// The writer and both readers of object streams once more, in the plainest way: strtok() and
// strtol(), a string stream for every double, an attribute node and one replacement after the other
// for every value, each byte by os.put(). The library's own are compared with it, and it is the
// yardstick of the benchmarks. It shares no code with the library. One thread at a time: strtok().
namespace literal {

void StartRoot(std::ostream& os, const std::string& notice);
void EndRoot(std::ostream& os);

class XMLObj {
 public:
  XMLObj(std::string name, int nTabs) : name_(std::move(name)), n_tabs_(nTabs) {}

  void StartObj(std::ostream& os) const;
  void EndObj(std::ostream& os) const;
  void WriteSubElement(std::ostream& os, int value) const;
  void WriteSubElement(std::ostream& os, unsigned int value) const;
  void WriteSubElement(std::ostream& os, long value) const;
  void WriteSubElement(std::ostream& os, bool value) const;
  void WriteSubElement(std::ostream& os, double value) const;
  void WriteSubElement(std::ostream& os, const std::string& value) const;

 private:
  std::string name_;
  int n_tabs_;
};

namespace timeseries {

bool ParseStartXML(std::ifstream& in);
bool ParseStartObj(std::ifstream& in, const std::string& name);
bool ParseEndObj(std::ifstream& in);
bool ParseValue(std::ifstream& in, bool& value);
bool ParseValue(std::ifstream& in, int& value);
bool ParseValue(std::ifstream& in, unsigned int& value);
bool ParseValue(std::ifstream& in, long& value);
bool ParseValue(std::ifstream& in, double& value);
bool ParseValue(std::ifstream& in, std::string& value);

}  // namespace timeseries

namespace xmlu {

bool ParseStartXML(std::ifstream& in);
bool ParseStartObj(std::ifstream& in, const std::string& name);
bool ParseEndObj(std::ifstream& in);
bool ParseValue(std::ifstream& in, int& value);
bool ParseValue(std::ifstream& in, unsigned int& value);
bool ParseValue(std::ifstream& in, long& value);
bool ParseValue(std::ifstream& in, double& value);

}  // namespace xmlu

}  // namespace literal

#endif  // TSXPORT_TESTS_LITERAL_LITERALOBJSTREAM_H_
