#include "objstream/LineTokens.h"

namespace tsx::objstream {

bool LineTokens::Read(std::istream& in) {
  next_ = line_;
  in.getline(line_, sizeof line_);
  if (in.fail()) return false;
  // A line feed is counted but not kept.
  end_ = line_ + in.gcount() - (in.eof() ? 0 : 1);
  return true;
}

}  // namespace tsx::objstream
