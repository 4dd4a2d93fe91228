#ifndef TSXPORT_EXPORT_TREEWRITER_H_
#define TSXPORT_EXPORT_TREEWRITER_H_

#include <ostream>

#include "dialect/DocumentSink.h"

namespace tsx {

// Puts a document together in memory and writes it when it is closed: until then no byte goes out,
// so that nothing is half written when memory runs out.
class TreeWriter final : public DocumentSink {
 public:
  TreeWriter(std::ostream& out, bool withDeclaration)
      : out_(out), with_declaration_(withDeclaration) {}

  void Open(ElementPtr root) override;
  void Take(ElementPtr element) override;
  void Close() override;

 private:
  std::ostream& out_;
  bool with_declaration_;
  ElementPtr root_;
};

}  // namespace tsx

#endif  // TSXPORT_EXPORT_TREEWRITER_H_
