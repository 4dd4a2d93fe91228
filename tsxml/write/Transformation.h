#ifndef TSXPORT_TSXML_WRITE_TRANSFORMATION_H_
#define TSXPORT_TSXML_WRITE_TRANSFORMATION_H_

#include <tsxport/XMLElement.h>

namespace tsx {

// What is done to a series before it is modelled; 0 stands for "not done" everywhere.
struct SeriesTransformation {
  int function_type = 0;  // TSTransformation::FunctionType
  unsigned non_seasonal_diff = 0;
  unsigned seasonal_diff = 0;
  unsigned delay = 0;
};

// Appends:
//   <Transformation function? nonSeasonalDiff? seasonalDiff? delay?/>
// False, and nothing appended, when there is nothing to tell.
bool AppendTransformation(TIMESERIESXML::XMLElement& parent,
                          const SeriesTransformation& transformation);

}  // namespace tsx

#endif  // TSXPORT_TSXML_WRITE_TRANSFORMATION_H_
