#include <tsxport/ExportFormat.h>
#include <tsxport/WriteTree.h>
#include <tsxport/XMLDocType.h>
#include <tsxport/XMLElement.h>
#include <tsxport/XMLUtil.h>

#include "xml/NodeWriter.h"

namespace TIMESERIESXML {
namespace {

void WriteDocument(std::ostream& os, const XMLDocType* docType, const XMLElement* root,
                   bool formatted, bool utf8) {
  ExportFormat format;
  format.SetFormat(formatted);
  if (docType != nullptr) {
    docType->ToStream(os, format, utf8);
  } else {
    tsx::WithOutput(os, utf8, [](tsx::Output& out) {
      out.Append(XMLUtil::FIRST_LINE);
      out.EndPiece();
      out.Append("\n");
    });
  }
  root->ToStream(os, format, utf8);
}

}  // namespace

void WriteTree(std::ostream& os, const XMLDocType* docType, const XMLElement* root, bool format) {
  WriteDocument(os, docType, root, format, false);
}

void WriteTreeUTF8(std::ostream& os, const XMLDocType* docType, const XMLElement* root,
                   bool format) {
  WriteDocument(os, docType, root, format, true);
}

void Write(std::ostream& os, const std::string& s) { tsx::WriteBytes(os, s); }

void WriteUTF(std::ostream& os, const std::string& s) {
  tsx::WithOutput(os, true, [&](tsx::Output& out) { out.Append(s); });
}

}  // namespace TIMESERIESXML
