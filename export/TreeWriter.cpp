#include "export/TreeWriter.h"

#include <utility>

#include <tsxport/ExportFormat.h>
#include <tsxport/WriteTree.h>
#include <tsxport/XMLUtil.h>

namespace tsx {

void TreeWriter::Open(ElementPtr root) { root_ = std::move(root); }

void TreeWriter::Take(ElementPtr element) { Append(*root_, std::move(element)); }

void TreeWriter::Close() {
  if (with_declaration_) TIMESERIESXML::Write(out_, TIMESERIESXML::XMLUtil::FIRST_LINE);
  TIMESERIESXML::ExportFormat format;
  root_->ToStream(out_, format, false);
}

}  // namespace tsx
