// Convert and Scale between the exported entries and the row kernels.
#pragma once

#include "foundation/image.h"
#include "foundation/rounding.h"

namespace vok {

enum class Conversion {
  kValue,          // keep the value, saturating; float sources round in the
                   // mode of the calling thread
  kScale,          // full range onto full range; the fast form of narrowing
  kScaleAccurate,  // the rounded form of the narrowing scales
};

struct ConvertJob {
  ElementRows rows;
  Conversion conversion;
  float vMin, vMax;  // the float range of Scale_8u32f and Scale_32f8u
};

// Runs the job on the best instruction set of this machine.
template <typename TS, typename TD>
void RunConvert(const ConvertJob& job);

}  // namespace vok
