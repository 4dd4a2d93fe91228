#include <tsxport/ExportFormat.h>

namespace TIMESERIESXML {

ExportFormat::ExportFormat() = default;

void ExportFormat::SetFormat(bool format) { format_ = format; }
void ExportFormat::SetIndentation(bool indentation) { indentation_ = indentation; }
void ExportFormat::SetIsNewParagraph(bool newParagraph) { new_paragraph_ = newParagraph; }
bool ExportFormat::HasIndentation() const { return format_ && indentation_; }
bool ExportFormat::IsNewParagraph() const { return format_ && new_paragraph_; }

}  // namespace TIMESERIESXML
