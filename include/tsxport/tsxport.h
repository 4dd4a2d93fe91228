#ifndef TSXPORT_TSXPORT_H_
#define TSXPORT_TSXPORT_H_

// All that libtsxport.so offers: the model tree, its records and date specifications, the facts of
// its dialects, the visitor behind it, the XML layer it stands on, and the writer and readers of
// object streams.

#include <tsxport/DialectFacts.h>
#include <tsxport/Export.h>
#include <tsxport/ExportFormat.h>
#include <tsxport/ModelXMLTreeMaker.h>
#include <tsxport/NumberFormat.h>
#include <tsxport/ObjStreamReader.h>
#include <tsxport/TSXDateSpec.h>
#include <tsxport/TSXDictionaryRefs.h>
#include <tsxport/TSXMLTree.h>
#include <tsxport/Version.h>
#include <tsxport/WriteTree.h>
#include <tsxport/XMLAttribute.h>
#include <tsxport/XMLDocType.h>
#include <tsxport/XMLElement.h>
#include <tsxport/XMLInterface.h>
#include <tsxport/XMLObj.h>
#include <tsxport/XMLString.h>
#include <tsxport/XMLUtil.h>
#include <tsxport/XmluReader.h>

#endif  // TSXPORT_TSXPORT_H_
