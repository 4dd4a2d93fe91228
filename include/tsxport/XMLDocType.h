#ifndef TSXPORT_XMLDOCTYPE_H_
#define TSXPORT_XMLDOCTYPE_H_

#include <cstddef>
#include <string>

#include <tsxport/XMLInterface.h>

namespace TIMESERIESXML {

// The document type declaration in front of a root element, with the XML declaration before it:
//
//   <?xml version="1.0" encoding="UTF-8" ?>
//   <!DOCTYPE rootName SYSTEM "systemId"
//   [
//   first extension
//   second extension
//   ]>
//
// Without extensions ">" follows the system identifier's quote. Nothing is escaped. It belongs to
// its creator, always: give it to WriteTree() beside the root.
class TSX_EXPORT XMLDocType : public XMLInterface {
 public:
  // A new declaration with an empty internal subset, owned by the caller. `n` is kept and has no
  // effect on any output.
  static XMLDocType* Create(const std::string& rootName, const std::string& systemId, long n);

  XMLDocType(const std::string& rootName, const std::string& systemId, long n);
  ~XMLDocType() override;

  // Appends a line feed and `text` to the internal subset. Returns the subset's new length in
  // bytes.
  int AddExtension(const std::string& text);

  void ToString(std::string& out, ExportFormat& format) const override;
  void ToStream(std::ostream& os, ExportFormat& format, bool utf8) const override;

 private:
  std::string root_name_;
  std::string system_id_;
  std::string internal_subset_;
  [[maybe_unused]] long n_;
};

}  // namespace TIMESERIESXML

#endif  // TSXPORT_XMLDOCTYPE_H_
