// The scale-factor stages of the integer rules, per instruction set: each maps
// an exact wide result to the value that the saturating narrowing stores.

// Include guard that is toggled once per compiled instruction set.
#if defined(VOK_ARITH_SCALE_STAGES_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef VOK_ARITH_SCALE_STAGES_INL_H_
#undef VOK_ARITH_SCALE_STAGES_INL_H_
#else
#define VOK_ARITH_SCALE_STAGES_INL_H_
#endif

#include <cstdint>

#include "hwy/highway.h"

HWY_BEFORE_NAMESPACE();
namespace vok {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

// Divides by 2^s (1 <= s <= 31) rounding to nearest with ties to even,
// without overflow: floor quotient q plus one when the remainder passes the
// half, or meets it while q is odd (compared below the half, so that even
// a remainder of 2^31 - 1 cannot overflow).
template <class DW>
struct RoundingShift {
  DW dw;
  int shift;
  template <class V>
  V operator()(V x) const {
    using W = hn::TFromD<DW>;
    const V q = hn::ShiftRightSame(x, shift);
    const V r = hn::And(x, hn::Set(dw, static_cast<W>((uint64_t{1} << shift) - 1)));
    const V half = hn::Set(dw, static_cast<W>(uint64_t{1} << (shift - 1)));
    const auto up = hn::Gt(r, hn::Sub(half, hn::And(q, hn::Set(dw, W{1}))));
    return hn::Sub(q, hn::VecFromMask(dw, up));
  }
};

// Multiplies by 2^k after saturating, which cannot change a saturated result
// and keeps the shift inside the wide lanes.
template <class DW, typename T>
struct SaturatingLeftShift {
  DW dw;
  int shift;
  template <class V>
  V operator()(V x) const {
    using W = hn::TFromD<DW>;
    const V lo = hn::Set(dw, static_cast<W>(hwy::LowestValue<T>()));
    const V hi = hn::Set(dw, static_cast<W>(hwy::HighestValue<T>()));
    return hn::ShiftLeftSame(hn::Min(hn::Max(x, lo), hi), shift);
  }
};

}  // namespace HWY_NAMESPACE
}  // namespace vok
HWY_AFTER_NAMESPACE();

#endif  // VOK_ARITH_SCALE_STAGES_INL_H_
