// Element-wise arithmetic between the exported entries and the row kernels.
#pragma once

#include "foundation/image.h"

namespace vok {

enum class ArithOp { kAdd, kSub, kMul, kMulScale };

// a op b into dst; for integer samples the exact result is scaled by
// 2^-scale with ties to even and saturated.
struct ArithJob {
  ElementRows rows;
  ArithOp op;
  int scale;
  // Height plus row samples from which the rows are shared among threads;
  // 0 keeps them on the calling thread.
  int parallelFrom;
};

// The scale factors from which the rule gives one value for every sample:
// above zeroAbove every result rounds to zero, at or below boundAtOrBelow
// every non-zero result saturates.
struct ScaleLimits {
  int zeroAbove;
  int boundAtOrBelow;
};

template <typename T>
constexpr ScaleLimits LimitsOf(ArithOp op) {
  if constexpr (sizeof(T) == 1) {
    return op == ArithOp::kAdd   ? ScaleLimits{9, -8}
           : op == ArithOp::kSub ? ScaleLimits{8, -8}
                                 : ScaleLimits{16, -8};
  } else {
    return op == ArithOp::kMul ? ScaleLimits{30, -15} : ScaleLimits{16, -16};
  }
}

// Runs the job on the best instruction set of this machine.
template <typename T>
void RunArith(const ArithJob& job);

}  // namespace vok
