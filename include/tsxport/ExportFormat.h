#ifndef TSXPORT_EXPORTFORMAT_H_
#define TSXPORT_EXPORTFORMAT_H_

#include <tsxport/Export.h>

namespace tsx {
struct NodeAccess;
}

namespace TIMESERIESXML {

// Where line feeds and tabs go while a tree is written. One object goes through one whole write;
// every node that is written changes it for the nodes after it, so a new write wants a new object.
//
//   ExportFormat format;              // line feeds and tabs
//   root->ToStream(out, format, false);
//
//   ExportFormat oneLine;
//   oneLine.SetFormat(false);         // the whole tree on one line, single blanks between
//   attributes
//
// A plain value. Used by one thread at a time.
class TSX_EXPORT ExportFormat {
 public:
  // Formatting, new paragraph and indentation on, nesting depth 0.
  ExportFormat();

  // The master switch: while it is off, neither of the other two takes effect. Writing never
  // changes it.
  void SetFormat(bool format);

  // Tabs before the next start tag, each of its attributes and an end tag. The writer turns this
  // off behind character data and on behind every element.
  void SetIndentation(bool indentation);

  // A line feed before the next start tag, each of its attributes and an end tag. The writer turns
  // this off behind character data and on behind every element.
  void SetIsNewParagraph(bool newParagraph);

  bool HasIndentation() const;  // format and indentation
  bool IsNewParagraph() const;  // format and new paragraph

 private:
  friend struct tsx::NodeAccess;

  bool new_paragraph_ = true;
  bool indentation_ = true;
  bool format_ = true;
  int tab_level_ = 0;  // nesting depth, of concern to the element writer alone
};

}  // namespace TIMESERIESXML

#endif  // TSXPORT_EXPORTFORMAT_H_
