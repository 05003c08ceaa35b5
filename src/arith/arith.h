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
};

// Runs the job on the best instruction set of this machine.
template <typename T>
void RunArith(const ArithJob& job);

}  // namespace vok
