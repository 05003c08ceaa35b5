// Convert and Scale between the exported entries and the row kernels, and the
// rounding-mode scope that the float forms run under.
#pragma once

#include <xmmintrin.h>

#include "foundation/image.h"

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

// Sets the SSE rounding mode of this thread for a scope and puts the caller's
// mode back on every way out. Only the two mode bits change: exception flags
// raised meanwhile stay raised, as after any float operation.
class RoundingScope {
 public:
  static constexpr unsigned kNearest = _MM_ROUND_NEAREST;
  static constexpr unsigned kTowardZero = _MM_ROUND_TOWARD_ZERO;

  explicit RoundingScope(unsigned mode) : saved_(_mm_getcsr() & kModeBits) {
    _mm_setcsr((_mm_getcsr() & ~kModeBits) | mode);
  }
  ~RoundingScope() { _mm_setcsr((_mm_getcsr() & ~kModeBits) | saved_); }
  RoundingScope(const RoundingScope&) = delete;
  RoundingScope& operator=(const RoundingScope&) = delete;

 private:
  static constexpr unsigned kModeBits = _MM_ROUND_MASK;
  unsigned saved_;
};

}  // namespace vok
