#ifndef TSXPORT_TESTS_LITERAL_LITERALXML_H_
#define TSXPORT_TESTS_LITERAL_LITERALXML_H_

#include <ostream>
#include <string>
#include <vector>

// The node tree and its writer once more, in the plainest way: a node and a string for everything,
// numbers by string stream, one ReplaceAll after the other, each byte by os.put(), an iconv
// descriptor opened and closed for each piece. It is the yardstick of the benchmarks, and what the
// tests compare the library's own output with. It shares no code with the library.
namespace literal {

std::string FormatNumber(double value);
std::string NumberListText(const double* values, std::size_t count, double missing);

struct ExportFormat {
  bool new_paragraph = true;
  bool indentation = true;
  bool format = true;
  int tab_level = 0;

  bool HasIndentation() const { return format && indentation; }
  bool IsNewParagraph() const { return format && new_paragraph; }
};

class Node {
 public:
  virtual ~Node() = default;
  virtual void ToString(std::string& out, ExportFormat& format) const = 0;
  virtual void ToStream(std::ostream& os, ExportFormat& format, bool utf8) const = 0;
};

class Attribute : public Node {
 public:
  Attribute(const std::string& name, const std::string& value) : name_(name), value_(value) {}
  void ToString(std::string& out, ExportFormat& format) const override;
  void ToStream(std::ostream& os, ExportFormat& format, bool utf8) const override;

 private:
  std::string name_;
  std::string value_;
};

class String : public Node {
 public:
  static String* Create(const std::string& text) { return new String(text); }
  explicit String(const std::string& text) : text_(text) {}
  void ToString(std::string& out, ExportFormat& format) const override;
  void ToStream(std::ostream& os, ExportFormat& format, bool utf8) const override;

 private:
  std::string text_;
};

class DocType : public Node {
 public:
  DocType(const std::string& rootName, const std::string& systemId)
      : root_name_(rootName), system_id_(systemId) {}
  void AddExtension(const std::string& text) { internal_subset_ += "\n" + text; }
  void ToString(std::string& out, ExportFormat& format) const override;
  void ToStream(std::ostream& os, ExportFormat& format, bool utf8) const override;

 private:
  std::string root_name_;
  std::string system_id_;
  std::string internal_subset_;
};

class Element : public Node {
 public:
  static Element* Create(const std::string& name) { return new Element(name); }
  explicit Element(const std::string& name) : name_(name) {}
  Element(const Element&) = delete;
  Element& operator=(const Element&) = delete;
  ~Element() override;

  void AddAttribute(const std::string& name, const std::string& value);
  void AddAttribute(const std::string& name, double value);
  int AddElement(Node* child);

  void ToString(std::string& out, ExportFormat& format) const override;
  void ToStream(std::ostream& os, ExportFormat& format, bool utf8) const override;

 private:
  std::vector<Attribute*> attributes_;
  std::string name_;
  std::vector<Node*> children_;
};

void Write(std::ostream& os, const std::string& s);
void WriteUTF(std::ostream& os, const std::string& s);
void WriteTree(std::ostream& os, const DocType* docType, const Element* root, bool format);
void WriteTreeUTF8(std::ostream& os, const DocType* docType, const Element* root, bool format);

// Makes WriteUTF() convert from the code set of this name; null: from the locale's.
void SetSourceCodeSet(const char* name);

}  // namespace literal

#endif  // TSXPORT_TESTS_LITERAL_LITERALXML_H_
