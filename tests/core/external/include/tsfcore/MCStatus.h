#ifndef TSFCORE_MCSTATUS_H_
#define TSFCORE_MCSTATUS_H_

#include <tsfcore/Export.h>

namespace MCTime {

// The answer of an operation that may refuse: a code and a flag.
//
// Code 0 with a clear flag is success; any other code names the refusal, and the flag is set. A
// plain value: copy it, compare its code. It is also what a constructor throws that must refuse.
//
//   MCTime::MCStatus status = spec.AddPeriod(TSXDateSpec::Month, 12, 0, 0);
//   if (status.IsError()) Report(status.GetCode());
class TSF_EXPORT MCStatus {
 public:
  MCStatus() = default;  // success
  explicit MCStatus(unsigned code) : code_(code), is_error_(code != 0) {}

  unsigned GetCode() const { return code_; }
  bool IsError() const { return is_error_; }

 private:
  unsigned code_ = 0;
  bool is_error_ = false;
};

}  // namespace MCTime

#endif  // TSFCORE_MCSTATUS_H_
