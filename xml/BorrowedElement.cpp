#include "xml/BorrowedElement.h"

namespace tsx {

namespace {

using TIMESERIESXML::ExportFormat;
using TIMESERIESXML::XMLElement;

class BorrowedElement final : public XMLElement {
 public:
  explicit BorrowedElement(const XMLElement& element) : XMLElement(""), element_(element) {}

  void ToString(std::string& out, ExportFormat& format) const override {
    element_.ToString(out, format);
  }
  void ToStream(std::ostream& os, ExportFormat& format, bool utf8) const override {
    element_.ToStream(os, format, utf8);
  }

 private:
  const XMLElement& element_;
};

}  // namespace

ElementPtr Borrow(const XMLElement& element) { return std::make_unique<BorrowedElement>(element); }

}  // namespace tsx
