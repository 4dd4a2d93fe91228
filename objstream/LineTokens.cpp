#include "objstream/LineTokens.h"

namespace tsx::objstream {

bool LineTokens::Read(std::istream& in) {
  next_ = line_;
  in.getline(line_, sizeof line_);
  return !in.fail();
}

}  // namespace tsx::objstream
