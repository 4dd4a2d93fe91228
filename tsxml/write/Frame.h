#ifndef TSXPORT_TSXML_WRITE_FRAME_H_
#define TSXPORT_TSXML_WRITE_FRAME_H_

#include "dictionary/Application.h"
#include "dictionary/DateSpecDictionary.h"
#include "xml/ElementPtr.h"

namespace tsx {

// The root of a time-series XML document with its finished header, without dictionary and models.
ElementPtr MakeFrame(const Application& application);

// The dictionary's specifications that models refer to.
ElementPtr MakeDataDictionary(const DateSpecDictionary& dictionary);

}  // namespace tsx

#endif  // TSXPORT_TSXML_WRITE_FRAME_H_
