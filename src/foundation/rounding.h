// The SSE rounding mode as a scoped setting.
#pragma once

#include <xmmintrin.h>

namespace vok {

// Sets the SSE rounding mode of this thread for a scope and puts the caller's
// mode back on every way out. Only the two mode bits change: exception flags
// raised meanwhile stay raised, as after any float operation.
class RoundingScope {
 public:
  static constexpr unsigned kNearest = _MM_ROUND_NEAREST;
  static constexpr unsigned kTowardZero = _MM_ROUND_TOWARD_ZERO;

  // The mode of the calling thread, for workers that must round as it does.
  static unsigned Current() { return _mm_getcsr() & kModeBits; }

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
