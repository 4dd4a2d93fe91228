#ifndef TSXPORT_XMLINTERFACE_H_
#define TSXPORT_XMLINTERFACE_H_

#include <cstddef>
#include <iosfwd>
#include <new>
#include <string>

#include <tsxport/Export.h>
#include <tsxport/ExportFormat.h>

namespace TIMESERIESXML {

// A node of an XML tree: an element, an attribute, character data or a document type declaration.
//
// A tree is built, written once or several times, and deleted with its root. Nothing in it is
// looked up, changed or taken out again. Texts are byte strings in the process's own code set, and
// are escaped as they go out; conversion to UTF-8 happens on output only and on request.
//
// Ownership: a node belongs to who created it until it is added to an element, and from then on to
// that element. Add a node to one element at most, and never to itself or to one below it: nothing
// checks this.
//
// Failures: none is reported. Memory exhaustion comes out as std::bad_alloc, and what an output
// stream throws (when its exceptions() are on) passes through; the tree is whole afterwards.
//
// Threads: one at a time for a tree; distinct trees are independent, and a tree may be deleted on
// another thread than the one that built it.
class TSX_EXPORT XMLInterface {
 public:
  virtual ~XMLInterface();

  // Appends this node's text to `out`, never converted.
  virtual void ToString(std::string& out, ExportFormat& format) const = 0;

  // Writes the same text to `os`; with `utf8` converted from the code set of the process's locale
  // to UTF-8, piece by piece as WriteUTF() does (see WriteTree.h). A tag's start, each attribute, a
  // text and an end tag are pieces of their own: what cannot be converted costs the rest of its
  // piece only. Errors of the stream are not told here: look at its state afterwards.
  virtual void ToStream(std::ostream& os, ExportFormat& format, bool utf8) const = 0;

  XMLInterface(const XMLInterface&) = delete;
  XMLInterface& operator=(const XMLInterface&) = delete;

  // `new` and `delete` work as ever; the library has them here so that it may keep a node and its
  // texts in one block.
  static void* operator new(std::size_t size);
  static void* operator new(std::size_t size, std::align_val_t alignment);
  static void* operator new(std::size_t size, const std::nothrow_t& tag) noexcept;
  static void* operator new(std::size_t size, void* place) noexcept;
  static void operator delete(void* node) noexcept;
  static void operator delete(void* node, std::align_val_t alignment) noexcept;
  static void operator delete(void* node, const std::nothrow_t& tag) noexcept;
  static void operator delete(void* node, void* place) noexcept;

 protected:
  XMLInterface() = default;
};

}  // namespace TIMESERIESXML

#endif  // TSXPORT_XMLINTERFACE_H_
