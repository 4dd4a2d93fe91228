#ifndef TSXPORT_NUMBERFORMAT_H_
#define TSXPORT_NUMBERFORMAT_H_

#include <string>

#include <tsxport/Export.h>

// The text of numbers. Documents must not depend on the host's locale, so the usual way is
// Format(value, false, nullptr); the locale is followed only on request.
namespace TIMESERIESXML {

// "%.15g".
TSX_EXPORT std::string GetDefaultNumericFormat();

// ";". For hosts; documents separate list values by blanks.
TSX_EXPORT std::string GetListSeparator();

// The decimal point of the current C locale. For hosts; documents have ".".
TSX_EXPORT std::string GetDecimalCharacter();

// The text of `value` in the classic locale with up to 15 significant digits: as "%.15g" gives it
// there. 0.1 gives 0.1, 100 gives 100, 1e15 gives 1e+15, 0.00001 gives 1e-05, minus zero gives -0,
// infinities inf and -inf, not-a-numbers nan and -nan. `format` is not used. Any thread.
TSX_EXPORT std::string ReplaceSep(double value, char* format);

// With `usePrintf` false: ReplaceSep(value, format). With `usePrintf` true: what printf makes of
// `value` with `format` ("%.15g" when null), in the current C locale, which must not be changed
// meanwhile; `format` must take exactly one double.
//
//   Format(0.5, false, nullptr)  "0.5" everywhere
//   Format(0.5, true, nullptr)   "0,5" after setlocale(LC_ALL, "de_DE.UTF-8")
TSX_EXPORT std::string Format(double value, bool usePrintf, char* format);

// Format(double(value), true, nullptr). Exact up to 15 digits; 1234567890123456 gives
// 1.23456789012346e+15.
TSX_EXPORT std::string Format(long value);

}  // namespace TIMESERIESXML

#endif  // TSXPORT_NUMBERFORMAT_H_
