// Kernels of the vector layer, compiled once per instruction set: complex
// products, magnitude, phase, polar to cartesian, single-precision sums,
// conversions and the streaming copies and fills.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "arith/vector_kernels.cpp"
#include "hwy/foreach_target.h"  // IWYU pragma: keep

#include <cstring>
#include <limits>

#include "arith/scale_stages-inl.h"
#include "arith/vector.h"
#include "foundation/rows-inl.h"
#include "hwy/cache_control.h"
#include "hwy/highway.h"

HWY_BEFORE_NAMESPACE();
namespace vok {
namespace HWY_NAMESPACE {
namespace {

using DF = hn::ScalableTag<float>;
using VF = hn::Vec<DF>;

// (ar, ai) * (br, bi) on interleaved pairs: the real part subtracts, the
// imaginary part adds, each of the four products rounded on its own.
struct ComplexMulRule {
  DF d;
  HWY_INLINE VF operator()(const float* a, const float* b) const {
    const VF x = hn::LoadU(d, a), y = hn::LoadU(d, b);
    const VF p = hn::Mul(hn::DupEven(x), y);                   // ar*br, ar*bi
    const VF q = hn::Mul(hn::DupOdd(x), hn::Reverse2(d, y));   // ai*bi, ai*br
    return hn::OddEven(hn::Add(p, q), hn::Sub(p, q));
  }
};

// The exact (ar, ai) * (br, bi) on interleaved 16-bit parts, scaled by
// `stage` and saturated. Pairwise products in 32-bit lanes give
// ar*br + ai*~bi + ai for the real part (the complement keeps -32768 in
// range) and ar*bi + ai*br for the imaginary part, which leaves 32 bits only
// as 2^31, from four parts of -32768: it wraps to -2^31 and is taken as
// 2^31 - 1, which every scale maps to the same result.
template <class Stage>
struct ComplexMul16Rule {
  hn::ScalableTag<int16_t> d;
  Stage stage;
  HWY_INLINE auto operator()(const int16_t* a, const int16_t* b) const {
    const hn::Repartition<int32_t, decltype(d)> dw;
    const hn::RebindToUnsigned<decltype(dw)> du;
    const auto va = hn::LoadU(d, a), vb = hn::LoadU(d, b);
    const auto complement = hn::BitCast(
        d, hn::Xor(hn::BitCast(dw, vb), hn::Set(dw, static_cast<int32_t>(0xFFFF0000u))));
    const auto swapped = hn::BitCast(d, hn::RotateRight<16>(hn::BitCast(du, vb)));
    auto reRest = hn::Zero(dw), imRest = hn::Zero(dw);
    auto re = hn::ReorderWidenMulAccumulate(dw, va, complement,
                                            hn::ShiftRight<16>(hn::BitCast(dw, va)), reRest);
    re = hn::RearrangeToOddPlusEven(re, reRest);
    auto im = hn::ReorderWidenMulAccumulate(dw, va, swapped, hn::Zero(dw), imRest);
    im = hn::RearrangeToOddPlusEven(im, imRest);
    const auto wrapped = hn::Set(dw, std::numeric_limits<int32_t>::min());
    im = hn::Add(im, hn::VecFromMask(dw, hn::Eq(im, wrapped)));
    const auto lo = hn::Set(dw, -32768), hi = hn::Set(dw, 32767);
    re = hn::Min(hn::Max(stage(re), lo), hi);
    im = hn::Min(hn::Max(stage(im), lo), hi);
    return hn::BitCast(d, hn::Or(hn::And(re, hn::Set(dw, 0xFFFF)), hn::ShiftLeft<16>(im)));
  }
};

// Runs block(in, in2, out) over whole blocks of `lanes` elements, then once
// over the rest through zero-padded stack copies, so nothing beyond the
// arrays is touched. The arrays hold kIn, kIn2 and kOut samples per element;
// a block spans kVectors float vectors.
template <size_t kIn, size_t kIn2, size_t kOut, size_t kVectors = 1,
          typename TI, typename TI2, typename TO, class Block>
HWY_INLINE void ElementLoop(size_t lanes, const TI* in, const TI2* in2,
                            TO* out, size_t n, const Block& block) {
  size_t i = 0;
  for (; i + lanes <= n; i += lanes)
    block(in + kIn * i, in2 + kIn2 * i, out + kOut * i);
  if (i == n) return;
  const size_t rest = n - i;
  constexpr size_t kBytes = 2 * kVectors * HWY_MAX_BYTES;
  HWY_ALIGN TI partIn[kBytes / sizeof(TI)] = {};
  HWY_ALIGN TI2 partIn2[kBytes / sizeof(TI2)] = {};
  HWY_ALIGN TO partOut[kBytes / sizeof(TO)] = {};
  std::memcpy(partIn, in + kIn * i, kIn * rest * sizeof(TI));
  std::memcpy(partIn2, in2 + kIn2 * i, kIn2 * rest * sizeof(TI2));
  block(partIn, partIn2, partOut);
  std::memcpy(out + kOut * i, partOut, kOut * rest * sizeof(TO));
}

constexpr float kPi = 3.14159265358979f;
constexpr float kHalfPi = 1.57079632679490f;

// Lanes where the sign bit is set, -0 and negative NaN included.
HWY_INLINE auto SignBitSet(DF d, VF v) {
  const hn::RebindToSigned<DF> di;
  return hn::RebindMask(d, hn::Lt(hn::BitCast(di, v), hn::Zero(di)));
}

// atan2(im, re) by the rational approximation on the first octant, folded
// out by the quadrant, in two halves: StartPhase forms the quotient
// u = min(|re|, |im|) / max(|re|, |im|), EndPhase the rest. Callers start the
// next vectors before they end the current ones, so that the long chain of
// two divisions and two polynomials overlaps with the next one.
struct PhaseStart {
  VF re, im, u;
  hn::Mask<DF> above;  // |im| > |re|: the angle folds over pi / 4
};

HWY_INLINE PhaseStart StartPhase(DF d, const float* pairs) {
  PhaseStart s;
  hn::LoadInterleaved2(d, pairs, s.re, s.im);
  const VF ax = hn::Abs(s.re), ay = hn::Abs(s.im);
  s.above = hn::Gt(ay, ax);
  // minps and maxps return their second operand when one is NaN: in this
  // order a NaN part always reaches u.
  s.u = hn::Div(hn::Min(ax, ay), hn::Max(ay, ax));
  return s;
}

// The phase of the finite parts that are not both zero; NaN elsewhere, where
// RepairPhase takes over.
HWY_INLINE VF EndPhase(DF d, const PhaseStart& s) {
  const VF one = hn::Set(d, 1.0f);
  const VF w = hn::Mul(s.u, s.u);
  const auto poly = [&](float c1, float c2, float c3) {
    VF p = hn::Add(hn::Mul(hn::Set(d, c3), w), hn::Set(d, c2));
    p = hn::Add(hn::Mul(p, w), hn::Set(d, c1));
    return hn::Add(hn::Mul(p, w), one);
  };
  // A true division, not the hardware's estimate of the reciprocal: the
  // estimates differ between instruction sets and so would the last bit.
  VF a = hn::Div(hn::Mul(s.u, poly(1.1202340f, 0.28050455f, 0.0085611893f)),
                 poly(1.4535671f, 0.56503099f, 0.049017590f));
  a = hn::IfThenElse(s.above, hn::Sub(hn::Set(d, kHalfPi), a), a);
  a = hn::IfThenElse(hn::Lt(s.re, hn::Zero(d)), hn::Sub(hn::Set(d, kPi), a), a);
  return hn::CopySign(a, s.im);
}

// The lanes where u was 0 / 0 or infinity / infinity, and NaN parts, as the
// standard atan2 has them. A zero or infinite part beside a finite one needs
// nothing: u is 0 there and the fold gives 0, pi / 2 or pi.
HWY_NOINLINE VF RepairPhase(DF d, VF re, VF im, VF a) {
  const VF zero = hn::Zero(d);
  const VF onAxis = hn::IfThenElse(SignBitSet(d, re), hn::Set(d, kPi), zero);
  a = hn::IfThenElse(hn::And(hn::Eq(re, zero), hn::Eq(im, zero)), onAxis, a);
  const VF diagonal = hn::IfThenElse(hn::Lt(re, zero), hn::Set(d, 2.35619449f),
                                     hn::Set(d, 0.785398163f));
  a = hn::IfThenElse(hn::And(hn::IsInf(re), hn::IsInf(im)), diagonal, a);
  a = hn::CopySign(a, im);  // the repaired values are magnitudes
  return hn::IfThenElse(hn::Or(hn::IsNaN(re), hn::IsNaN(im)), hn::Add(re, im), a);
}

// Ends two started vectors and stores them at out; one test covers both, as
// the phases are finite, at most pi, unless a lane needs repair.
HWY_INLINE void EndPhases(DF d, const PhaseStart& s0, const PhaseStart& s1,
                          float* out) {
  VF a0 = EndPhase(d, s0), a1 = EndPhase(d, s1);
  if (HWY_UNLIKELY(!hn::AllFalse(d, hn::IsNaN(hn::Add(a0, a1))))) {
    a0 = RepairPhase(d, s0.re, s0.im, a0);
    a1 = RepairPhase(d, s1.re, s1.im, a1);
  }
  hn::StoreU(a0, d, out);
  hn::StoreU(a1, d, out + hn::Lanes(d));
}

// x minus k * pi, with pi in five parts so that the first products are exact.
HWY_INLINE VF ReduceByPi(DF d, VF x, VF k) {
  for (float part : {3.140625f, 9.6750259e-4f, 1.5099067e-7f, 5.1159077e-12f,
                     1.0780605e-14f})
    x = hn::Sub(x, hn::Mul(k, hn::Set(d, part)));
  return x;
}

// sin r for |r| up to pi / 2.
HWY_INLINE VF SinPoly(DF d, VF r) {
  const VF r2 = hn::Mul(r, r);
  VF p = hn::Set(d, 0.0000026300338f);
  for (float c : {-0.00019820665f, 0.0083332155f, -0.16666666f, 1.0f})
    p = hn::Add(hn::Mul(p, r2), hn::Set(d, c));
  return hn::Mul(r, p);
}

// True where the integral float k is odd.
HWY_INLINE auto Odd(DF d, VF k) {
  const hn::RebindToSigned<DF> di;
  const auto bit = hn::And(hn::ConvertTo(di, k), hn::Set(di, 1));
  return hn::RebindMask(d, hn::Eq(bit, hn::Set(di, 1)));
}

// Four-way single-precision accumulation of term(i) over whole vectors, the
// rest added one by one.
template <class VectorTerm, class ScalarTerm>
HWY_INLINE float Accumulate(size_t n, const VectorTerm& vectorTerm,
                            const ScalarTerm& scalarTerm) {
  const DF d;
  const size_t lanes = hn::Lanes(d);
  VF s0 = hn::Zero(d), s1 = s0, s2 = s0, s3 = s0;
  size_t i = 0;
  for (; i + 4 * lanes <= n; i += 4 * lanes) {
    s0 = hn::Add(s0, vectorTerm(i));
    s1 = hn::Add(s1, vectorTerm(i + lanes));
    s2 = hn::Add(s2, vectorTerm(i + 2 * lanes));
    s3 = hn::Add(s3, vectorTerm(i + 3 * lanes));
  }
  for (; i + lanes <= n; i += lanes) s0 = hn::Add(s0, vectorTerm(i));
  const VF all = hn::Add(hn::Add(s0, s1), hn::Add(s2, s3));
  float sum = hn::GetLane(hn::SumOfLanes(d, all));
  for (; i < n; ++i) sum += scalarTerm(i);
  return sum;
}

// Scales, rounds and clamps to [lo, hi] with NaN as nanValue, ready for an
// exact conversion to integers.
HWY_INLINE VF RoundedAndClamped(DF d, VF v, FromFloat how, float lo, float hi,
                                float nanValue) {
  if (how.factor != 1.0f) v = hn::Mul(v, hn::Set(d, how.factor));
  v = how.truncate ? hn::Trunc(v) : hn::Round(v);
  const VF clamped = hn::Min(hn::Max(v, hn::Set(d, lo)), hn::Set(d, hi));
  return hn::IfThenElse(hn::IsNaN(v), hn::Set(d, nanValue), clamped);
}

}  // namespace

void ComplexMulRows32f(const ElementRows& rows) {
  ApplyRows<float, float>(rows, 0, rows.height, ComplexMulRule{});
}

void ComplexMulRows16sc(const ElementRows& rows, int scale) {
  const hn::ScalableTag<int32_t> dw;
  if (scale >= 1) {
    using Stage = RoundingShift<decltype(dw)>;
    ApplyRows<int16_t, int16_t>(rows, 0, rows.height,
                                ComplexMul16Rule<Stage>{{}, Stage{dw, scale}});
  } else {
    // Beyond 2^16 every non-zero product saturates alike.
    using Stage = SaturatingLeftShift<decltype(dw), int16_t>;
    const int k = scale < -16 ? 16 : -scale;
    ApplyRows<int16_t, int16_t>(rows, 0, rows.height,
                                ComplexMul16Rule<Stage>{{}, Stage{dw, k}});
  }
}

// The parts are squared where they lie, and one pair of permutes gathers
// re^2 and im^2 for each vector of results; two vectors per step keep two
// roots under way.
void Magnitude32fcRow(const Vok32fc* src, Vok32f* dst, size_t n) {
  const DF d;
  const size_t lanes = hn::Lanes(d);
  const float* in = reinterpret_cast<const float*>(src);
  const auto magnitudes = [d](const float* s) {
    const VF lo = hn::LoadU(d, s), hi = hn::LoadU(d, s + hn::Lanes(d));
    const VF lo2 = hn::Mul(lo, lo), hi2 = hn::Mul(hi, hi);
    return hn::Sqrt(hn::Add(hn::ConcatEven(d, hi2, lo2), hn::ConcatOdd(d, hi2, lo2)));
  };
  ElementLoop<2, 0, 1, 2>(2 * lanes, in, in, dst, n,
                          [=](const float* s, const float*, float* out) {
                            const VF m0 = magnitudes(s), m1 = magnitudes(s + 2 * lanes);
                            hn::StoreU(m0, d, out);
                            hn::StoreU(m1, d, out + lanes);
                          });
}

void Phase32fcRow(const Vok32fc* src, Vok32f* dst, size_t n) {
  const DF d;
  const size_t lanes = hn::Lanes(d), step = 2 * lanes;
  const float* in = reinterpret_cast<const float*>(src);
  size_t i = 0;
  if (n >= step) {
    // Two pairs per turn, each started while the other ends, so that no
    // started pair is copied between turns.
    PhaseStart a0 = StartPhase(d, in), a1 = StartPhase(d, in + step);
    for (i = step; i + 2 * step <= n; i += 2 * step) {
      const PhaseStart b0 = StartPhase(d, in + 2 * i);
      const PhaseStart b1 = StartPhase(d, in + 2 * i + step);
      EndPhases(d, a0, a1, dst + i - step);
      a0 = StartPhase(d, in + 2 * i + 2 * step);
      a1 = StartPhase(d, in + 2 * i + 3 * step);
      EndPhases(d, b0, b1, dst + i);
    }
    EndPhases(d, a0, a1, dst + i - step);
  }
  ElementLoop<2, 0, 1, 2>(step, in + 2 * i, in, dst + i, n - i,
                          [d, step](const float* s, const float*, float* out) {
                            EndPhases(d, StartPhase(d, s),
                                      StartPhase(d, s + step), out);
                          });
}

// The sine reduces by the nearest multiple k of pi, the cosine by the
// nearest odd multiple (2m + 1) of pi / 2: cos x = (-1)^(m+1) sin r.
void PolarToCart32fcRow(const Vok32f* mag, const Vok32f* phase, Vok32fc* dst,
                        size_t n) {
  const DF d;
  float* out = reinterpret_cast<float*>(dst);
  ElementLoop<1, 1, 2>(
      hn::Lanes(d), mag, phase, out, n,
      [d](const float* m, const float* p, float* o) {
        const VF x = hn::LoadU(d, p), r = hn::LoadU(d, m);
        const VF turns = hn::Mul(x, hn::Set(d, 0.318309886f));
        const VF k = hn::Round(turns);
        const VF sinAbs = SinPoly(d, ReduceByPi(d, x, k));
        const VF sine = hn::IfThenElse(Odd(d, k), hn::Neg(sinAbs), sinAbs);
        const VF mHalf = hn::Floor(turns);
        const VF cosAbs =
            SinPoly(d, ReduceByPi(d, x, hn::Add(mHalf, hn::Set(d, 0.5f))));
        const VF cosine = hn::IfThenElse(Odd(d, mHalf), cosAbs, hn::Neg(cosAbs));
        hn::StoreInterleaved2(hn::Mul(r, cosine), hn::Mul(r, sine), d, o);
      });
}

float DotProd32fRow(const Vok32f* a, const Vok32f* b, size_t n) {
  const DF d;
  return Accumulate(
      n,
      [&](size_t i) { return hn::Mul(hn::LoadU(d, a + i), hn::LoadU(d, b + i)); },
      [&](size_t i) { return a[i] * b[i]; });
}

float SumOfSquares32fRow(const Vok32f* src, size_t n) {
  const DF d;
  return Accumulate(
      n,
      [&](size_t i) {
        const VF v = hn::LoadU(d, src + i);
        return hn::Mul(v, v);
      },
      [&](size_t i) { return src[i] * src[i]; });
}

float Sum32fRow(const Vok32f* src, size_t n) {
  const DF d;
  return Accumulate(
      n, [&](size_t i) { return hn::LoadU(d, src + i); },
      [&](size_t i) { return src[i]; });
}

void Convert8u32fRow(const Vok8u* src, Vok32f* dst, size_t n) {
  const DF d;
  ElementLoop<1, 0, 1>(hn::Lanes(d), src, src, dst, n,
                       [d](const Vok8u* s, const Vok8u*, float* out) {
                         const hn::Rebind<uint8_t, DF> d8;
                         const hn::Rebind<int32_t, DF> di;
                         hn::StoreU(hn::ConvertTo(d, hn::PromoteTo(di, hn::LoadU(d8, s))),
                                    d, out);
                       });
}

void Convert32s32fRow(const Vok32s* src, Vok32f* dst, size_t n) {
  const DF d;
  ElementLoop<1, 0, 1>(hn::Lanes(d), src, src, dst, n,
                       [d](const Vok32s* s, const Vok32s*, float* out) {
                         const hn::Rebind<int32_t, DF> di;
                         hn::StoreU(hn::ConvertTo(d, hn::LoadU(di, s)), d, out);
                       });
}

// Float to a narrower integer: rounded, clamped to T's range (NaN to its top).
template <typename T>
void NarrowFromFloatRow(const Vok32f* src, T* dst, size_t n, FromFloat how) {
  const DF d;
  constexpr float kLo = float(hwy::LowestValue<T>()), kHi = float(hwy::HighestValue<T>());
  ElementLoop<1, 0, 1>(hn::Lanes(d), src, src, dst, n,
                       [d, how](const float* s, const float*, T* out) {
                         const hn::Rebind<int32_t, DF> di;
                         const hn::Rebind<T, DF> dn;
                         const VF v = RoundedAndClamped(d, hn::LoadU(d, s), how, kLo, kHi, kHi);
                         hn::StoreU(SaturatingNarrow(dn, hn::ConvertTo(di, v)), dn, out);
                       });
}

void Convert32f8uRow(const Vok32f* src, Vok8u* dst, size_t n, FromFloat how) {
  NarrowFromFloatRow(src, dst, n, how);
}

void Convert32f16sRow(const Vok32f* src, Vok16s* dst, size_t n, FromFloat how) {
  NarrowFromFloatRow(src, dst, n, how);
}

// The conversion itself saturates: 2^31 and above, +infinity and positive
// NaN give the maximum; below -2^31 and negative NaN the minimum.
void Convert32f32sRow(const Vok32f* src, Vok32s* dst, size_t n, FromFloat how) {
  const DF d;
  ElementLoop<1, 0, 1>(hn::Lanes(d), src, src, dst, n,
                       [d, how](const float* s, const float*, Vok32s* out) {
                         const hn::Rebind<int32_t, DF> di;
                         VF v = hn::LoadU(d, s);
                         if (how.factor != 1.0f) v = hn::Mul(v, hn::Set(d, how.factor));
                         v = how.truncate ? hn::Trunc(v) : hn::Round(v);
                         hn::StoreU(hn::ConvertTo(di, v), di, out);
                       });
}

// The first bytes up to the vector alignment of dst are written by `head`,
// whole vectors past the cache, and the rest by `tail`.
template <class Head, class Body, class Tail>
HWY_INLINE void Streamed(void* dst, size_t bytes, size_t unit, const Head& head,
                         const Body& body, const Tail& tail) {
  const hn::ScalableTag<uint8_t> d8;
  const size_t vectorBytes = hn::Lanes(d8);
  const size_t misaligned = reinterpret_cast<uintptr_t>(dst) % vectorBytes;
  size_t i = misaligned == 0 ? 0 : vectorBytes - misaligned;
  if (i > bytes || i % unit != 0) i = bytes - bytes % unit;  // no room to stream
  head(i);
  for (; i + vectorBytes <= bytes; i += vectorBytes) body(i);
  tail(i);
  hwy::FlushStream();
}

void CopyBytesRow(const void* src, void* dst, size_t bytes) {
  if (bytes < kStreamingFrom) {
    std::memcpy(dst, src, bytes);
    return;
  }
  const hn::ScalableTag<uint8_t> d8;
  const uint8_t* in = static_cast<const uint8_t*>(src);
  uint8_t* out = static_cast<uint8_t*>(dst);
  Streamed(
      dst, bytes, 1, [&](size_t i) { std::memcpy(out, in, i); },
      [&](size_t i) { hn::Stream(hn::LoadU(d8, in + i), d8, out + i); },
      [&](size_t i) { std::memcpy(out + i, in + i, bytes - i); });
}

void Fill32Row(uint32_t pattern, void* dst, size_t count) {
  uint32_t* out = static_cast<uint32_t*>(dst);
  const size_t bytes = count * 4;
  const auto fill = [&](size_t from, size_t to) {
    for (size_t i = from / 4; i < to / 4; ++i) out[i] = pattern;
  };
  if (bytes < kStreamingFrom) {
    fill(0, bytes);
    return;
  }
  const hn::ScalableTag<uint32_t> d32;
  const hn::Repartition<uint8_t, decltype(d32)> d8;
  const auto v = hn::BitCast(d8, hn::Set(d32, pattern));
  uint8_t* bytesOut = static_cast<uint8_t*>(dst);
  Streamed(
      dst, bytes, 4, [&](size_t i) { fill(0, i); },
      [&](size_t i) { hn::Stream(v, d8, bytesOut + i); },
      [&](size_t i) { fill(i, bytes); });
}

void ZeroBytesRow(void* dst, size_t bytes) {
  uint8_t* out = static_cast<uint8_t*>(dst);
  if (bytes < kStreamingFrom) {
    std::memset(out, 0, bytes);
    return;
  }
  const hn::ScalableTag<uint8_t> d8;
  Streamed(
      dst, bytes, 1, [&](size_t i) { std::memset(out, 0, i); },
      [&](size_t i) { hn::Stream(hn::Zero(d8), d8, out + i); },
      [&](size_t i) { std::memset(out + i, 0, bytes - i); });
}

}  // namespace HWY_NAMESPACE
}  // namespace vok
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace vok {

HWY_EXPORT(ComplexMulRows32f);
HWY_EXPORT(ComplexMulRows16sc);
HWY_EXPORT(Magnitude32fcRow);
HWY_EXPORT(Phase32fcRow);
HWY_EXPORT(PolarToCart32fcRow);
HWY_EXPORT(DotProd32fRow);
HWY_EXPORT(SumOfSquares32fRow);
HWY_EXPORT(Sum32fRow);
HWY_EXPORT(Convert8u32fRow);
HWY_EXPORT(Convert32s32fRow);
HWY_EXPORT(Convert32f8uRow);
HWY_EXPORT(Convert32f16sRow);
HWY_EXPORT(Convert32f32sRow);
HWY_EXPORT(CopyBytesRow);
HWY_EXPORT(Fill32Row);
HWY_EXPORT(ZeroBytesRow);

void RunComplexMul32f(const ElementRows& rows) {
  HWY_DYNAMIC_DISPATCH(ComplexMulRows32f)(rows);
}
void RunComplexMul16sc(const ElementRows& rows, int scale) {
  HWY_DYNAMIC_DISPATCH(ComplexMulRows16sc)(rows, scale);
}
void Magnitude32fc(const Vok32fc* src, Vok32f* dst, size_t n) {
  HWY_DYNAMIC_DISPATCH(Magnitude32fcRow)(src, dst, n);
}
void Phase32fc(const Vok32fc* src, Vok32f* dst, size_t n) {
  HWY_DYNAMIC_DISPATCH(Phase32fcRow)(src, dst, n);
}
void PolarToCart32fc(const Vok32f* mag, const Vok32f* phase, Vok32fc* dst,
                     size_t n) {
  HWY_DYNAMIC_DISPATCH(PolarToCart32fcRow)(mag, phase, dst, n);
}
float DotProd32f(const Vok32f* a, const Vok32f* b, size_t n) {
  return HWY_DYNAMIC_DISPATCH(DotProd32fRow)(a, b, n);
}
float SumOfSquares32f(const Vok32f* src, size_t n) {
  return HWY_DYNAMIC_DISPATCH(SumOfSquares32fRow)(src, n);
}
float Sum32f(const Vok32f* src, size_t n) {
  return HWY_DYNAMIC_DISPATCH(Sum32fRow)(src, n);
}
void Convert8u32f(const Vok8u* src, Vok32f* dst, size_t n) {
  HWY_DYNAMIC_DISPATCH(Convert8u32fRow)(src, dst, n);
}
void Convert32s32f(const Vok32s* src, Vok32f* dst, size_t n) {
  const NearestRounding nearest;
  HWY_DYNAMIC_DISPATCH(Convert32s32fRow)(src, dst, n);
}
void Convert32f8u(const Vok32f* src, Vok8u* dst, size_t n, FromFloat how) {
  const NearestRounding nearest;
  HWY_DYNAMIC_DISPATCH(Convert32f8uRow)(src, dst, n, how);
}
void Convert32f16s(const Vok32f* src, Vok16s* dst, size_t n, FromFloat how) {
  const NearestRounding nearest;
  HWY_DYNAMIC_DISPATCH(Convert32f16sRow)(src, dst, n, how);
}
void Convert32f32s(const Vok32f* src, Vok32s* dst, size_t n, FromFloat how) {
  const NearestRounding nearest;
  HWY_DYNAMIC_DISPATCH(Convert32f32sRow)(src, dst, n, how);
}
void CopyBytes(const void* src, void* dst, size_t bytes) {
  HWY_DYNAMIC_DISPATCH(CopyBytesRow)(src, dst, bytes);
}
void Fill32(uint32_t pattern, void* dst, size_t count) {
  HWY_DYNAMIC_DISPATCH(Fill32Row)(pattern, dst, count);
}
void ZeroBytes(void* dst, size_t bytes) {
  HWY_DYNAMIC_DISPATCH(ZeroBytesRow)(dst, bytes);
}

}  // namespace vok
#endif  // HWY_ONCE
