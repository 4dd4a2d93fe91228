#include "tsxml/write/Frame.h"

#include <string>

#include <tsxport/Version.h>

#include "datespec/write/DateSpecificationElement.h"
#include "tsxml/Tags.h"

// Writes:
//   <TSCXML xmlns xmlns:xsi xsi:schemaLocation>
//     <Header>
//       <Application name version?>?
//     </Header>
//     <DataDictionary>
//       <DateSpecification>*                  those that a model refers to
//     </DataDictionary>
//     the models, which are added behind
//   </TSCXML>

namespace tsx {

namespace {

ElementPtr MakeHeader(const Application& application) {
  ElementPtr header = MakeElement(tag::kHeader);
  if (application.name().empty()) return header;
  ElementPtr e = MakeElement(tag::kApplication);
  e->AddAttribute(attr::kName, application.name());
  if (!application.version().empty()) e->AddAttribute(attr::kVersion, application.version());
  Append(*header, std::move(e));
  return header;
}

}  // namespace

ElementPtr MakeFrame(const Application& application) {
  const std::string host = kMakersHost;
  const std::string uri = val::kScheme + host + val::kNamespacePath;
  ElementPtr root = MakeElement(tag::kTSCXML);
  root->AddAttribute(attr::kXmlns, uri);
  root->AddAttribute(attr::kXmlnsXsi, val::kXsiNamespace);
  // The location lacks the scheme that the URI has: the format is so, and readers expect it.
  root->AddAttribute(attr::kXsiSchemaLocation, uri + " " + host + val::kSchemaPath);
  Append(*root, MakeHeader(application));
  return root;
}

ElementPtr MakeDataDictionary(const DateSpecView& calendars) {
  ElementPtr e = MakeElement(tag::kDataDictionary);
  calendars.ForEach([&e](const DicDateSpec& entry) {
    if (!entry.referenced) return;
    Append(*e, MakeDateSpecification(entry.date_spec, entry.descriptor, entry.id));
  });
  return e;
}

}  // namespace tsx
