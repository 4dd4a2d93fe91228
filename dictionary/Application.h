#ifndef TSXPORT_DICTIONARY_APPLICATION_H_
#define TSXPORT_DICTIONARY_APPLICATION_H_

#include <string>
#include <utility>

namespace tsx {

// The host application as the header of a time-series XML document names it.
class Application {
 public:
  // An empty name discards the version too, on purpose: a version alone says nothing.
  void Set(std::string name, std::string version) {
    if (name.empty()) version.clear();
    name_ = std::move(name);
    version_ = std::move(version);
  }

  const std::string& name() const { return name_; }
  const std::string& version() const { return version_; }

 private:
  std::string name_;
  std::string version_;
};

}  // namespace tsx

#endif  // TSXPORT_DICTIONARY_APPLICATION_H_
