#ifndef TSXPORT_XMLOBJ_H_
#define TSXPORT_XMLOBJ_H_

#include <iosfwd>
#include <string>

#include <tsxport/Export.h>

// The writer of object streams: named objects as lists of typed values, one tag on each line. What
// it writes is read back by ObjStreamReader.h or XmluReader.h; docs/object-streams.md has the
// format and tells what is lost on the way.
//
//   XMLDocType("MCXMLRoot", "savexml.dtd", 0).ToStream(os, format, false);  // the host's part
//   StartRoot(os, "Copyright 2024");
//   XMLObj object("weights", 0);
//   object.StartObj(os);
//   object.WriteSubElement(os, 3);
//   object.WriteSubElement(os, 0.5);
//   object.WriteSubElement(os, std::string("a<b"));
//   object.EndObj(os);
//   EndRoot(os);
//
// gives, behind the document type declaration,
//
//   <MCXMLRoot copyright="Copyright 2024">
//   <Obj name="weights">
//   	<Int value="3"/>
//   	<Double value="0.5"/>
//   	<String value="a&lt;b"/>
//   </Obj>
//   </MCXMLRoot>
//
// Every line but the root's start tag begins with its own line feed, so none follows the last one.
//
// Bytes go out as they are, never converted. Nothing is checked: not the order of calls, not the
// arguments, not the stream, whose errors show in its state. Any thread, with a stream of its own.
namespace TIMESERIESXML {

// The root's start tag, with `notice` as its attribute "copyright". Writes neither the XML
// declaration nor the document type declaration, which the readers ask for: a host writes them
// first, each on a line of its own.
TSX_EXPORT void StartRoot(std::ostream& os, std::string notice);

// The root's end tag.
TSX_EXPORT void EndRoot(std::ostream& os);

// StartRoot() and EndRoot() by other names.
TSX_EXPORT void WriteHeader(std::ostream& os, std::string notice);
TSX_EXPORT void EndHeader(std::ostream& os);

// An object to be written: its name and how deep it stands. Nothing else is kept; it does not know
// whether it was started. Objects nest when one is started before the outer one is ended.
class TSX_EXPORT XMLObj {
 public:
  // `nTabs` is the number of tabs in front of the object's tags; none when negative. The name is
  // not escaped: with a double quote or "<" in it the stream cannot be read.
  XMLObj(std::string name, int nTabs);
  XMLObj(const XMLObj& other);
  XMLObj& operator=(const XMLObj& other);
  virtual ~XMLObj();

  const std::string& GetName() const;  // lives as long as this object
  int GetNTabs() const;

  void StartObj(std::ostream& os) const;
  void EndObj(std::ostream& os) const;

  // One line, a tab deeper than the object (none when its depth is negative), with `value` as
  //   int, unsigned int  <Int value="..."/>
  //   bool               <Int value="..."/>, 1 for true and 0 for false
  //   long               <Long value="..."/>
  //   double             <Double value="..."/>; "Missing" for the most negative finite double
  //   string             <String value="..."/>, escaped as every attribute value
  // All numbers go through a double and up to 15 significant digits with "." as decimal character
  // (see NumberFormat.h), so a long beyond 15 digits comes out rounded, with an exponent.
  void WriteSubElement(std::ostream& os, int value) const;
  void WriteSubElement(std::ostream& os, unsigned int value) const;
  void WriteSubElement(std::ostream& os, long value) const;
  void WriteSubElement(std::ostream& os, bool value) const;
  void WriteSubElement(std::ostream& os, double value) const;
  void WriteSubElement(std::ostream& os, const std::string& value) const;

  // To the compiler a pointer is a bool sooner than a string: say std::string("text").
  void WriteSubElement(std::ostream& os, const void* value) const = delete;

 private:
  std::string name_;
  int n_tabs_;
};

}  // namespace TIMESERIESXML

#endif  // TSXPORT_XMLOBJ_H_
