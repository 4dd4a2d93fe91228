#ifndef TSFCORE_DSYMMAT_H_
#define TSFCORE_DSYMMAT_H_

#include <cstddef>
#include <utility>
#include <valarray>

#include <tsfcore/Export.h>

// A symmetric matrix of doubles, packed: the lower triangle row by row, so that element (i, j)
// with i >= j stands at i (i + 1) / 2 + j. A plain value.
class TSF_EXPORT DSymMat {
 public:
  DSymMat() = default;
  // Takes the packed triangle of an order x order matrix: order (order + 1) / 2 values.
  DSymMat(std::size_t order, std::valarray<double> packed)
      : order_(order), packed_(std::move(packed)) {}

  std::size_t GetOrder() const { return order_; }
  const std::valarray<double>& AsArray() const { return packed_; }

 private:
  std::size_t order_ = 0;
  std::valarray<double> packed_;
};

#endif  // TSFCORE_DSYMMAT_H_
