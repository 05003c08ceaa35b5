// Row kernels of Add, Sub, Mul and the full-scale multiply, compiled once per
// instruction set.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "arith/arith_kernels.cpp"
#include "hwy/foreach_target.h"  // IWYU pragma: keep

#include <type_traits>

#include "arith/arith.h"
#include "arith/scale_stages-inl.h"
#include "foundation/parallel.h"
#include "foundation/rows-inl.h"
#include "hwy/highway.h"

HWY_BEFORE_NAMESPACE();
namespace vok {
namespace HWY_NAMESPACE {
namespace {

struct Add {
  template <class V>
  static V Exact(V a, V b) { return hn::Add(a, b); }
  template <class V>
  static V Saturated(V a, V b) { return hn::SaturatedAdd(a, b); }
};
struct Sub {
  template <class V>
  static V Exact(V a, V b) { return hn::Sub(a, b); }
  template <class V>
  static V Saturated(V a, V b) { return hn::SaturatedSub(a, b); }
};
struct Mul {
  template <class V>
  static V Exact(V a, V b) { return hn::Mul(a, b); }
};

// Lanes wide enough to hold the exact result of Op on two samples T.
template <typename T, class Op>
using WideOf = std::conditional_t<sizeof(T) == 1 && !std::is_same<Op, Mul>::value,
                       int16_t, int32_t>;

// The scale-factor stages, each mapping an exact wide result to the value
// that the saturating narrowing then stores.
struct Exactly {
  template <class V>
  V operator()(V x) const { return x; }
};

// Where every non-zero result saturates: only the sign of x matters.
template <class DW, typename T>
struct SignBound {
  DW dw;
  template <class V>
  V operator()(V x) const {
    using W = hn::TFromD<DW>;
    const V zero = hn::Zero(dw);
    const V hi = hn::Set(dw, static_cast<W>(hwy::HighestValue<T>()));
    const V lo = hn::Set(dw, static_cast<W>(hwy::LowestValue<T>()));
    return hn::IfThenElse(hn::Gt(x, zero), hi,
                          hn::IfThenElse(hn::Lt(x, zero), lo, zero));
  }
};

// Integer samples: promote, combine exactly, scale, narrow with saturation.
template <typename T, class Op, class Stage>
struct WideRule {
  using DW = hn::ScalableTag<WideOf<T, Op>>;
  hn::Rebind<T, DW> d;
  Stage stage;
  HWY_INLINE auto operator()(const T* a, const T* b) const {
    const DW dw;
    const auto x = Op::Exact(hn::PromoteTo(dw, hn::LoadU(d, a)),
                             hn::PromoteTo(dw, hn::LoadU(d, b)));
    return SaturatingNarrow(d, stage(x));
  }
};

// 16s products at scale factors 1 to 15, kept in 16-bit lanes as the high
// and low halves of the exact 32-bit product x. q = x >> s is rebuilt from
// both halves; it is the true quotient when x >> (s + 15), taken from the
// high half alone, is 0 or -1, and otherwise x saturates by its sign. Ties
// go to even: q rounds up when the remainder passes the half, or meets it
// while q is odd.
struct ProductHalvesRule {
  hn::ScalableTag<int16_t> d;
  int shift;
  HWY_INLINE auto operator()(const int16_t* a, const int16_t* b) const {
    const hn::RebindToUnsigned<decltype(d)> du;
    const auto va = hn::LoadU(d, a), vb = hn::LoadU(d, b);
    const auto hi = hn::MulHigh(va, vb);
    const auto lo = hn::BitCast(du, hn::Mul(va, vb));
    const auto q = hn::Or(hn::ShiftLeftSame(hi, 16 - shift),
                          hn::BitCast(d, hn::ShiftRightSame(lo, shift)));
    const auto r = hn::BitCast(
        d, hn::And(lo, hn::Set(du, static_cast<uint16_t>((1 << shift) - 1))));
    const auto halfLessOdd =
        hn::Sub(hn::Set(d, static_cast<int16_t>(1 << (shift - 1))),
                hn::And(q, hn::Set(d, int16_t{1})));
    const auto up = hn::VecFromMask(d, hn::Gt(r, halfLessOdd));
    const auto beyond = hn::ShiftRightSame(hi, shift - 1);
    const auto fits = hn::Eq(beyond, hn::ShiftRight<15>(q));
    const auto bound = hn::Xor(hn::ShiftRight<15>(beyond), hn::Set(d, int16_t{0x7FFF}));
    return hn::IfThenElse(fits, hn::SaturatedSub(q, up), bound);
  }
};

// Scale factor 0 of add and subtract: the instruction set's own saturation.
template <typename T, class Op>
struct SaturatedRule {
  hn::ScalableTag<T> d;
  HWY_INLINE auto operator()(const T* a, const T* b) const {
    return Op::Saturated(hn::LoadU(d, a), hn::LoadU(d, b));
  }
};

// One IEEE operation per sample, in the caller's rounding mode.
template <class Op>
struct FloatRule {
  hn::ScalableTag<float> d;
  HWY_INLINE auto operator()(const float* a, const float* b) const {
    return Op::Exact(hn::LoadU(d, a), hn::LoadU(d, b));
  }
};

// floor(a * b / max) for unsigned samples whose full scale stands for 1.0,
// as (p + 1 + (p >> bits)) >> bits, which never exceeds the wide lanes.
template <typename T>
struct FullScaleRule {
  using TW = hwy::MakeWide<T>;
  using DW = hn::ScalableTag<TW>;
  hn::Rebind<T, DW> d;
  HWY_INLINE auto operator()(const T* a, const T* b) const {
    const DW dw;
    constexpr int kBits = sizeof(T) * 8;
    const auto p = hn::Mul(hn::PromoteTo(dw, hn::LoadU(d, a)),
                           hn::PromoteTo(dw, hn::LoadU(d, b)));
    const auto y = hn::ShiftRight<kBits>(
        hn::Add(hn::Add(p, hn::Set(dw, TW{1})), hn::ShiftRight<kBits>(p)));
    // y fits T, so the signed saturating narrowing is exact.
    const hn::RebindToSigned<DW> dsw;
    return hn::DemoteTo(d, hn::BitCast(dsw, y));
  }
};

template <typename T, class Op, class Stage>
void RunWide(const ArithJob& job, int y0, int y1, Stage stage) {
  ApplyRows<T, T>(job.rows, y0, y1, WideRule<T, Op, Stage>{{}, stage});
}

// Picks the stage of the scale-factor rule by the value of the factor. The
// entries zero the image themselves for factors above the limit.
template <typename T, class Op>
void RunScaled(const ArithJob& job, int y0, int y1) {
  const hn::ScalableTag<WideOf<T, Op>> dw;
  const int s = job.scale;
  if (s == 0) {
    if constexpr (std::is_same<Op, Mul>::value) {
      RunWide<T, Op>(job, y0, y1, Exactly{});
    } else {
      ApplyRows<T, T>(job.rows, y0, y1, SaturatedRule<T, Op>{});
    }
  } else if (s > 0) {
    if constexpr (std::is_same_v<T, int16_t> && std::is_same_v<Op, Mul>) {
      if (s <= 15) {
        return ApplyRows<T, T>(job.rows, y0, y1, ProductHalvesRule{{}, s});
      }
    }
    RunWide<T, Op>(job, y0, y1, RoundingShift<decltype(dw)>{dw, s});
  } else if (s > LimitsOf<T>(job.op).boundAtOrBelow) {
    RunWide<T, Op>(job, y0, y1,
                   SaturatingLeftShift<decltype(dw), T>{dw, -s});
  } else {
    RunWide<T, Op>(job, y0, y1, SignBound<decltype(dw), T>{dw});
  }
}

template <typename T>
void RunInteger(const ArithJob& job, int y0, int y1) {
  switch (job.op) {
    case ArithOp::kAdd: return RunScaled<T, Add>(job, y0, y1);
    case ArithOp::kSub: return RunScaled<T, Sub>(job, y0, y1);
    case ArithOp::kMul: return RunScaled<T, Mul>(job, y0, y1);
    case ArithOp::kMulScale: break;
  }
}

}  // namespace

void ArithRows8u(const ArithJob& job, int y0, int y1) {
  if (job.op == ArithOp::kMulScale) {
    ApplyRows<uint8_t, uint8_t>(job.rows, y0, y1, FullScaleRule<uint8_t>{});
  } else {
    RunInteger<uint8_t>(job, y0, y1);
  }
}

void ArithRows16u(const ArithJob& job, int y0, int y1) {
  ApplyRows<uint16_t, uint16_t>(job.rows, y0, y1, FullScaleRule<uint16_t>{});
}

void ArithRows16s(const ArithJob& job, int y0, int y1) {
  RunInteger<int16_t>(job, y0, y1);
}

void ArithRows32f(const ArithJob& job, int y0, int y1) {
  switch (job.op) {
    case ArithOp::kAdd: return ApplyRows<float, float>(job.rows, y0, y1, FloatRule<Add>{});
    case ArithOp::kSub: return ApplyRows<float, float>(job.rows, y0, y1, FloatRule<Sub>{});
    case ArithOp::kMul: return ApplyRows<float, float>(job.rows, y0, y1, FloatRule<Mul>{});
    case ArithOp::kMulScale: break;
  }
}

}  // namespace HWY_NAMESPACE
}  // namespace vok
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace vok {

HWY_EXPORT(ArithRows8u);
HWY_EXPORT(ArithRows16u);
HWY_EXPORT(ArithRows16s);
HWY_EXPORT(ArithRows32f);

namespace {

// The static row loop of the rounding paths, entered from the job's
// cut-over on height plus row length.
template <class Rows>
void RunRows(const ArithJob& job, Rows rows) {
  const int measure = job.rows.height + static_cast<int>(job.rows.rowSamples);
  StaticRows(job.rows.height,
             job.parallelFrom > 0 && measure >= job.parallelFrom,
             [&](int y0, int y1) { rows(job, y0, y1); });
}

}  // namespace

template <>
void RunArith<Vok8u>(const ArithJob& job) {
  RunRows(job, HWY_DYNAMIC_DISPATCH(ArithRows8u));
}
template <>
void RunArith<Vok16u>(const ArithJob& job) {
  RunRows(job, HWY_DYNAMIC_DISPATCH(ArithRows16u));
}
template <>
void RunArith<Vok16s>(const ArithJob& job) {
  RunRows(job, HWY_DYNAMIC_DISPATCH(ArithRows16s));
}
template <>
void RunArith<Vok32f>(const ArithJob& job) {
  RunRows(job, HWY_DYNAMIC_DISPATCH(ArithRows32f));
}

}  // namespace vok
#endif  // HWY_ONCE
