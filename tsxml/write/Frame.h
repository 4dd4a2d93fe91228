#ifndef TSXPORT_TSXML_WRITE_FRAME_H_
#define TSXPORT_TSXML_WRITE_FRAME_H_

#include "dictionary/Application.h"
#include "dictionary/DateSpecView.h"
#include "xml/ElementPtr.h"

namespace tsx {

// The root of a time-series XML document with its finished header, without dictionary and models.
ElementPtr MakeFrame(const Application& application);

// The specifications that models refer to.
ElementPtr MakeDataDictionary(const DateSpecView& calendars);

}  // namespace tsx

#endif  // TSXPORT_TSXML_WRITE_FRAME_H_
