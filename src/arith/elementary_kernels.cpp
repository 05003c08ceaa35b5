// Row kernels of Div, DivC, Abs, Sqr, Sqrt, Ln and Exp, compiled once per
// instruction set. Every kernel spells its float operations out one by one
// (no fused multiply-add), so each instruction set gives the same bytes.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "arith/elementary_kernels.cpp"
#include "hwy/foreach_target.h"  // IWYU pragma: keep

#include <algorithm>
#include <cmath>
#include <type_traits>

#include "arith/elementary.h"
#include "data/copy.h"
#include "foundation/rounding.h"
#include "foundation/rows-inl.h"
#include "hwy/contrib/math/math-inl.h"
#include "hwy/highway.h"

HWY_BEFORE_NAMESPACE();
namespace vok {
namespace HWY_NAMESPACE {
namespace {

// ---- Warnings --------------------------------------------------------------
// A rule sees `valid` real lanes (fewer in the padded last group of a row)
// and notes a warning only while none stands: the first one met is kept.

template <class D, class M>
HWY_INLINE void NoteWarning(D d, M mask, size_t valid, VokStatus code,
                            VokStatus& warning) {
  if (warning == vokStatusOk &&
      !hn::AllFalse(d, hn::And(mask, hn::FirstN(d, valid))))
    warning = code;
}

// Ln has two warnings; the first zero or negative lane decides which.
template <class D, class M>
HWY_INLINE void NoteLogWarnings(D d, M zero, M negative, size_t valid,
                                VokStatus& warning) {
  if (warning != vokStatusOk ||
      hn::AllFalse(d, hn::And(hn::Or(zero, negative), hn::FirstN(d, valid))))
    return;
  const hn::RebindToUnsigned<D> du;
  using TU = hn::TFromD<decltype(du)>;
  HWY_ALIGN TU isZero[HWY_MAX_BYTES / sizeof(TU)];
  HWY_ALIGN TU isNegative[HWY_MAX_BYTES / sizeof(TU)];
  hn::Store(hn::BitCast(du, hn::VecFromMask(d, zero)), du, isZero);
  hn::Store(hn::BitCast(du, hn::VecFromMask(d, negative)), du, isNegative);
  for (size_t i = 0; i < valid; ++i) {
    if (isNegative[i]) {
      warning = vokWarnDomain;
      return;
    }
    if (isZero[i]) {
      warning = vokWarnSingularity;
      return;
    }
  }
}

// ---- Functions of one vector -------------------------------------------------
// Each maps a vector x (lanes of D) to f(x), noting its warnings.

struct Magnitude {
  template <class D, class V>
  HWY_INLINE V operator()(D d, V x, size_t, VokStatus&) const {
    if constexpr (hwy::IsFloat<hn::TFromD<D>>()) {
      return hn::Abs(x);  // clears the sign bit: -0 gives +0, NaN stays NaN
    } else {
      return hn::Max(x, hn::SaturatedSub(hn::Zero(d), x));  // -32768 gives 32767
    }
  }
};

struct Square {
  template <class D, class V>
  HWY_INLINE V operator()(D, V x, size_t, VokStatus&) const {
    return hn::Mul(x, x);
  }
};

// Negative samples (not -0) warn and give NaN.
struct SquareRoot {
  template <class D, class V>
  HWY_INLINE V operator()(D d, V x, size_t valid, VokStatus& warning) const {
    NoteWarning(d, hn::Lt(x, hn::Zero(d)), valid, vokWarnSqrtDomain, warning);
    return hn::Sqrt(x);
  }
};

// Integer samples held in doubles: 0 gives -infinity, which saturates to the
// lowest sample, and so do negative samples.
struct Logarithm {
  template <class D, class V>
  HWY_INLINE V operator()(D d, V x, size_t valid, VokStatus& warning) const {
    const V zero = hn::Zero(d);
    NoteLogWarnings(d, hn::Eq(x, zero), hn::Lt(x, zero), valid, warning);
    return hn::IfThenElse(hn::Gt(x, zero), hn::Log(d, x),
                          hn::Set(d, -HUGE_VAL));
  }
};

// Integer samples held in doubles. e^706 saturates with every factor that
// the rule below uses, and so does anything larger.
struct Exponential {
  template <class D, class V>
  HWY_INLINE V operator()(D d, V x, size_t, VokStatus&) const {
    return hn::Exp(d, hn::Min(x, hn::Set(d, 706.0)));
  }
};

// The single-precision logarithm by its fixed polynomial: x = m 2^e with m
// in [1/sqrt(2), sqrt(2)), t = (m - 1) / (m + 1), ln x = e ln 2 + t P(t^2).
struct LnPolynomial {
  template <class D, class V>
  HWY_INLINE V operator()(D d, V x, size_t valid, VokStatus& warning) const {
    const hn::RebindToSigned<D> di;
    const auto bits = hn::BitCast(di, x);
    const auto mantissa = hn::And(bits, hn::Set(di, 0x7FFFFF));
    // Mantissas past the one of sqrt(2) take m/2 and an exponent one higher.
    const auto exponentBias = hn::IfThenElse(
        hn::Gt(mantissa, hn::Set(di, 0x3504F2)), hn::Set(di, 126), hn::Set(di, 127));
    const V m = hn::BitCast(d, hn::Or(mantissa, hn::ShiftLeft<23>(exponentBias)));
    const V e = hn::ConvertTo(d, hn::Sub(hn::ShiftRight<23>(bits), exponentBias));
    const V one = hn::Set(d, 1.0f);
    const V t = hn::Div(hn::Sub(m, one), hn::Add(m, one));
    const V t2 = hn::Mul(t, t);
    V p = hn::Add(hn::Set(d, 0.28525382f), hn::Mul(t2, hn::Set(d, 0.23762456f)));
    p = hn::Add(hn::Set(d, 0.40000597f), hn::Mul(t2, p));
    p = hn::Add(hn::Set(d, 0.66666663f), hn::Mul(t2, p));
    p = hn::Add(hn::Set(d, 2.0f), hn::Mul(t2, p));
    const V ln = hn::Add(hn::Mul(e, hn::Set(d, 0.693147182f)), hn::Mul(t, p));

    // NaN stays itself; any other sample with the sign bit is out of domain.
    const auto nan = hn::IsNaN(x);
    const auto negative =
        hn::AndNot(nan, hn::RebindMask(d, hn::Lt(bits, hn::Zero(di))));
    const auto positiveZero = hn::RebindMask(d, hn::Eq(bits, hn::Zero(di)));
    NoteLogWarnings(d, positiveZero, negative, valid, warning);
    const V domainNaN = hn::BitCast(d, hn::Set(di, static_cast<int32_t>(0xFFC00000u)));
    const V minusInfinity = hn::BitCast(d, hn::Set(di, static_cast<int32_t>(0xFF800000u)));
    return hn::IfThenElse(
        nan, x,
        hn::IfThenElse(negative, domainNaN,
                       hn::IfThenElse(positiveZero, minusInfinity, ln)));
  }
};

// The single-precision exponential: x = n ln 2 + r with |r| <= ln 2 / 2,
// e^r by a polynomial, times 2^n. Accurate to about one unit in the last
// place; overflow gives infinity and underflow rounds through subnormals to 0.
struct ExpPolynomial {
  template <class D, class V>
  HWY_INLINE V operator()(D d, V x, size_t, VokStatus&) const {
    const hn::RebindToSigned<D> di;
    // Beyond these bounds every result is 0 or infinity.
    const V xc = hn::Min(hn::Max(x, hn::Set(d, -104.0f)), hn::Set(d, 89.0f));
    const V n = hn::Round(hn::Mul(xc, hn::Set(d, 1.44269504f)));
    // ln 2 in two parts; n times the first part is exact.
    const V r = hn::Sub(hn::Sub(xc, hn::Mul(n, hn::Set(d, 0.693359375f))),
                        hn::Mul(n, hn::Set(d, -2.12194440e-4f)));
    V p = hn::Set(d, 1.9875691500e-4f);
    p = hn::Add(hn::Mul(p, r), hn::Set(d, 1.3981999507e-3f));
    p = hn::Add(hn::Mul(p, r), hn::Set(d, 8.3334519073e-3f));
    p = hn::Add(hn::Mul(p, r), hn::Set(d, 4.1665795894e-2f));
    p = hn::Add(hn::Mul(p, r), hn::Set(d, 1.6666665459e-1f));
    p = hn::Add(hn::Mul(p, r), hn::Set(d, 5.0000001201e-1f));
    const V y = hn::Add(hn::Add(hn::Mul(p, hn::Mul(r, r)), r), hn::Set(d, 1.0f));
    // 2^n as two normal powers of two, so a subnormal result rounds once.
    const auto ni = hn::ConvertTo(di, n);
    const auto half = hn::ShiftRight<1>(ni);
    const auto bias = hn::Set(di, 127);
    const V first = hn::BitCast(d, hn::ShiftLeft<23>(hn::Add(half, bias)));
    const V second = hn::BitCast(d, hn::ShiftLeft<23>(hn::Add(hn::Sub(ni, half), bias)));
    return hn::IfThenElse(hn::IsNaN(x), x, hn::Mul(hn::Mul(y, first), second));
  }
};

// ---- Rules: one group of samples of a row ------------------------------------
// A rule names its sample lanes `d` and maps the samples at a (and b) to one
// vector of results.

// f(x) of samples T in their own lanes.
template <typename T, class Fn>
struct UnaryRule {
  hn::ScalableTag<T> d;
  Fn fn;
  HWY_INLINE auto operator()(const T* a, const T*, size_t valid,
                             VokStatus& warning) const {
    return fn(d, hn::LoadU(d, a), valid, warning);
  }
};

// Integer samples through double lanes: f(x) times 2^-scale, rounded to
// nearest (ties to even, or up for Exp) and saturated. A sample, its square
// and the power of two are exact in a double, so only f itself rounds; NaN,
// the root of a negative sample, gives 0.
template <typename T, class Fn, bool kTiesUp = false>
struct ScaledDoubleRule {
  using DF = hn::ScalableTag<double>;
  hn::Rebind<T, DF> d;
  Fn fn;
  double factor;
  HWY_INLINE auto operator()(const T* a, const T*, size_t valid,
                             VokStatus& warning) const {
    const DF df;
    const hn::Rebind<int32_t, DF> di;
    const auto x = hn::PromoteTo(df, hn::PromoteTo(di, hn::LoadU(d, a)));
    const auto y = hn::Mul(fn(df, x, valid, warning), hn::Set(df, factor));
    const auto rounded =
        kTiesUp ? hn::Floor(hn::Add(y, hn::Set(df, 0.5))) : hn::Round(y);
    const auto clamped = hn::Min(
        hn::Max(hn::IfThenZeroElse(hn::IsNaN(rounded), rounded),
                hn::Set(df, static_cast<double>(hwy::LowestValue<T>()))),
        hn::Set(df, static_cast<double>(hwy::HighestValue<T>())));
    return SaturatingNarrow(d, hn::DemoteTo(di, clamped));
  }
};

// dividend / divisor in single precision. A divisor of either zero gives
// infinity of the dividend's sign, or NaN for a dividend of 0 or NaN; such
// divisors are rare, so vectors without one take the quotient alone.
struct FloatDivRule {
  hn::ScalableTag<float> d;
  HWY_INLINE auto operator()(const float* divisor, const float* dividend,
                             size_t valid, VokStatus& warning) const {
    const auto b = hn::LoadU(d, divisor);
    const auto a = hn::LoadU(d, dividend);
    const auto quotient = hn::Div(a, b);
    const auto byZero = hn::Eq(b, hn::Zero(d));
    if (HWY_LIKELY(hn::AllFalse(d, byZero))) return quotient;
    return ByZero(a, byZero, quotient, valid, warning);
  }

  template <class V, class M>
  HWY_NOINLINE V ByZero(V a, M byZero, V quotient, size_t valid,
                        VokStatus& warning) const {
    const hn::RebindToSigned<decltype(d)> di;
    NoteWarning(d, byZero, valid, vokWarnDivideByZero, warning);
    const auto zero = hn::Zero(d);
    const auto infinity = hn::Set(d, HUGE_VALF);
    const auto limit = hn::IfThenElse(
        hn::Gt(a, zero), infinity,
        hn::IfThenElse(hn::Lt(a, zero), hn::Neg(infinity),
                       hn::BitCast(d, hn::Set(di, 0x7FC00000))));
    return hn::IfThenElse(byZero, limit, quotient);
  }
};

// Integer quotients (a << aShift) / (b << bShift) in float for non-zero
// divisors. Both shifted samples are exact in a float, so only the division
// rounds. The quotient, within 2^21 of zero, is rounded to nearest even by
// the conversion, under the mode that RunIntDiv sets. Scale 0 shifts nothing.
template <bool kShifted>
struct FloatQuotient {
  int aShift, bShift;
  template <class V>
  HWY_INLINE V operator()(V a, V b) const {
    const hn::DFromV<V> dw;
    const hn::Rebind<float, decltype(dw)> df;
    if constexpr (kShifted) {
      a = hn::ShiftLeftSame(a, aShift);
      b = hn::ShiftLeftSame(b, bShift);
    }
    return RoundInMode(hn::Div(hn::ConvertTo(df, a), hn::ConvertTo(df, b)));
  }
};

// (a aScale) / b in double, clamped to the 16s range before rounding: the
// large negative scales, and the scales past which every quotient is 0 or a
// bound. Each half of the int32 lanes goes through its own doubles.
struct DoubleQuotient {
  double aScale;
  template <class V>
  HWY_INLINE V operator()(V a, V b) const {
    const hn::DFromV<V> dw;
    const hn::Half<decltype(dw)> dh;
    const hn::Repartition<double, decltype(dw)> df;
    const auto half = [&](auto ah, auto bh) {
      const auto q = hn::Div(hn::Mul(hn::PromoteTo(df, ah), hn::Set(df, aScale)),
                             hn::PromoteTo(df, bh));
      const auto clamped = hn::Min(hn::Max(q, hn::Set(df, -32768.0)),
                                   hn::Set(df, 32767.0));
      return hn::DemoteTo(dh, hn::Round(clamped));
    };
    return hn::Combine(dw, half(hn::UpperHalf(dh, a), hn::UpperHalf(dh, b)),
                       half(hn::LowerHalf(dh, a), hn::LowerHalf(dh, b)));
  }
};

// The int32 lanes of the lower or upper four words of every 128-bit block.
// Widening and narrowing (with ReorderDemote2To) block by block keeps every
// sample in its block, so the words need no reordering across the vector.
template <class D32, class V16>
HWY_INLINE hn::Vec<D32> LowerWordsOfBlocks(D32 d32, V16 words) {
  return hn::ShiftRight<16>(hn::BitCast(d32, hn::InterleaveLower(words, words)));
}
template <class D32, class V16>
HWY_INLINE hn::Vec<D32> UpperWordsOfBlocks(D32 d32, V16 words) {
  const hn::DFromV<V16> d16;
  return hn::ShiftRight<16>(hn::BitCast(d32, hn::InterleaveUpper(d16, words, words)));
}

// dividend / divisor of integer samples, a vector of words at a time, each
// half of it in int32 lanes. A zero divisor warns and gives the bound of the
// dividend's sign, or 0 for a dividend of 0.
template <typename T, class Quotient>
struct IntDivRule {
  using D16 = hn::ScalableTag<int16_t>;
  hn::Rebind<T, D16> d;
  Quotient quotient;
  HWY_INLINE auto operator()(const T* divisor, const T* dividend, size_t valid,
                             VokStatus& warning) const {
    const D16 d16;
    const hn::Repartition<int32_t, D16> d32;
    const auto words = [&](const T* p) {
      if constexpr (std::is_same_v<T, int16_t>) {
        return hn::LoadU(d16, p);
      } else {
        return hn::PromoteTo(d16, hn::LoadU(d, p));
      }
    };
    const auto a = words(dividend), b = words(divisor);
    const auto byZero = hn::Eq(b, hn::Zero(d16));
    // Zero divisors are rare: vectors without one skip their repair.
    const bool anyByZero = !hn::AllFalse(d16, byZero);
    if (HWY_UNLIKELY(anyByZero)) {
      NoteWarning(d16, byZero, valid, vokWarnDivideByZero, warning);
    }
    // a * 2^15 lies beyond the sample range for every non-zero a.
    const auto quotients = [&](auto a32, auto b32) {
      const auto q = quotient(a32, b32);
      if (HWY_LIKELY(!anyByZero)) return q;
      return hn::IfThenElse(hn::Eq(b32, hn::Zero(d32)), hn::ShiftLeft<15>(a32), q);
    };
    const auto result = hn::ReorderDemote2To(
        d16, quotients(LowerWordsOfBlocks(d32, a), LowerWordsOfBlocks(d32, b)),
        quotients(UpperWordsOfBlocks(d32, a), UpperWordsOfBlocks(d32, b)));
    if constexpr (std::is_same_v<T, int16_t>) {
      return result;
    } else {
      return hn::DemoteTo(d, result);
    }
  }
};

// x times a factor formed once in float, rounded with ties to even and
// saturated: DivC of integer samples.
template <typename T>
struct ScaledProductRule {
  using DW = hn::ScalableTag<int32_t>;
  hn::Rebind<T, DW> d;
  float factor;
  HWY_INLINE auto operator()(const T* a, const T*, size_t, VokStatus&) const {
    const DW dw;
    const hn::Rebind<float, DW> df;
    const auto x = hn::ConvertTo(df, hn::PromoteTo(dw, hn::LoadU(d, a)));
    return SaturatingNarrow(
        d, hn::ConvertTo(dw, hn::Round(hn::Mul(x, hn::Set(df, factor)))));
  }
};

// ---- Row loops -----------------------------------------------------------

// Applies `rule` to the first `count` samples, fewer than a vector, through
// padded stack copies, so nothing outside them is read or written.
template <typename T, class Rule>
HWY_INLINE void RunPartial(const Rule& rule, const T* a, const T* b, T* out,
                           size_t count, VokStatus& warning) {
  HWY_ALIGN T partA[HWY_MAX_BYTES / sizeof(T)];
  HWY_ALIGN T partB[HWY_MAX_BYTES / sizeof(T)];
  HWY_ALIGN T partOut[HWY_MAX_BYTES / sizeof(T)];
  CopyIntoPadded<sizeof(partA)>(partA, a, count * sizeof(T));
  CopyIntoPadded<sizeof(partB)>(partB, b, count * sizeof(T));
  hn::Store(rule(partA, partB, count, warning), rule.d, partOut);
  CopyFromPadded(out, partOut, count * sizeof(T));
}

// Applies `rule` to n samples, streaming the stores when `stream` is set and
// the destination allows it. Warnings keep row order: the overlapping last
// group notes its own, which count only after those of the groups before it.
template <typename T, class Rule>
HWY_INLINE void RunRow(const Rule& rule, const T* a, const T* b, T* out,
                       size_t n, bool stream, VokStatus& warning) {
  const size_t lanes = hn::Lanes(rule.d);
  CoverRow(
      out, lanes, n, stream,
      [&](size_t i, auto streamed) {
        StoreGroup(streamed, rule(a + i, b + i, lanes, warning), rule.d, out + i);
      },
      [&](size_t i) {
        VokStatus lastWarning = vokStatusOk;
        const auto v = rule(a + i, b + i, lanes, lastWarning);
        return [&, v, i, lastWarning] {
          if (warning == vokStatusOk) warning = lastWarning;
          hn::StoreU(v, rule.d, out + i);
        };
      },
      [&](size_t i, size_t count) {
        RunPartial(rule, a + i, b + i, out + i, count, warning);
      });
}

// The AC4 copy of one row: the first three samples of every four.
template <typename T>
void CopyKeepingAlpha(const T* from, T* to, size_t n) {
  RunCopy(CopyJob{CopyKind::kAlpha, 4, true, {from}, 0, {to}, 0, nullptr, 0,
                  static_cast<int>(n / 4), 1},
          sizeof(T));
}

// Runs `rule` over the rows of the job and returns the first warning. AC4
// rows are computed whole into the scratch row and stored with alpha kept.
template <typename T, class Rule>
VokStatus RunRows(const ElementaryJob& job, const Rule& rule) {
  VokStatus warning = vokStatusOk;
  T* scratch = static_cast<T*>(job.alphaRow);
  const size_t rowBytes = job.rowSamples * sizeof(T);
  const bool oneRun =
      scratch == nullptr &&
      Contiguous({{job.aStep, rowBytes},
                  {job.b != nullptr ? job.bStep : job.aStep, rowBytes},
                  {job.dstStep, rowBytes}});
  const int height = oneRun ? 1 : job.height;
  const size_t n = oneRun ? job.rowSamples * job.height : job.rowSamples;
  const size_t images = job.b != nullptr ? 3 : 2;
  const bool stream = scratch == nullptr &&
                      n * sizeof(T) * images * height >= kStreamingBytes;
  for (int y = 0; y < height; ++y) {
    const T* a = RowAt(static_cast<const T*>(job.a), job.aStep, y);
    const T* b = job.b ? RowAt(static_cast<const T*>(job.b), job.bStep, y) : a;
    T* dst = RowAt(static_cast<T*>(job.dst), job.dstStep, y);
    if (scratch == nullptr) {
      RunRow(rule, a, b, dst, n, stream, warning);
      continue;
    }
    if (job.op == ElementaryOp::kDiv) {
      // Alpha lanes divide by 1, so they never warn.
      std::fill(scratch, scratch + n, T{1});
      CopyKeepingAlpha(a, scratch, n);
      a = scratch;
    }
    RunRow(rule, a, b, scratch, n, false, warning);
    CopyKeepingAlpha(scratch, dst, n);
  }
  if (stream) hwy::FlushStream();
  return warning;
}

// ---- Integer division ------------------------------------------------------

// Scales past which a quotient is the same for every sample: 0 above, the
// bound of its sign below. From kDoubleAtOrBelow down the quotients go
// through double, which keeps those of float within 2^21 of zero. For 8u
// that changes no result: a quotient of samples below 256 lies at least
// 1/510 off every half that it does not hit, far beyond the error of float.
template <typename T>
struct DivLimits;
template <>
struct DivLimits<uint8_t> {
  static constexpr int kZeroAbove = 8, kBoundBelow = -15, kDoubleAtOrBelow = -8;
};
template <>
struct DivLimits<int16_t> {
  static constexpr int kZeroAbove = 15, kBoundBelow = -30, kDoubleAtOrBelow = -6;
};

template <typename T>
VokStatus RunIntDiv(const ElementaryJob& job) {
  using Limits = DivLimits<T>;
  using DoubleRule = IntDivRule<T, DoubleQuotient>;
  const int s = job.scale;
  if (s > Limits::kZeroAbove) return RunRows<T>(job, DoubleRule{{}, {0.0}});
  if (s < Limits::kBoundBelow) return RunRows<T>(job, DoubleRule{{}, {0x1p40}});
  if (s <= Limits::kDoubleAtOrBelow) {
    return RunRows<T>(job, DoubleRule{{}, {std::ldexp(1.0, -s)}});
  }
  const RoundingScope nearest(RoundingScope::kNearest);
  if (s == 0) return RunRows<T>(job, IntDivRule<T, FloatQuotient<false>>{});
  return RunRows<T>(job, IntDivRule<T, FloatQuotient<true>>{
                             {}, {std::max(-s, 0), std::max(s, 0)}});
}

// k = 2^-s / c in float, or the factor that gives 0 or the bound for all.
template <typename T>
float DivCFactor(int s, int c) {
  using Limits = DivLimits<T>;
  if (s > Limits::kZeroAbove) return 0.0f;
  if (s < Limits::kBoundBelow) return c < 0 ? -0x1p40f : 0x1p40f;
  return std::ldexp(1.0f, -s) / static_cast<float>(c);
}

template <typename T>
constexpr bool kHasDivision = std::is_same_v<T, uint8_t> || std::is_same_v<T, int16_t>;

template <typename T>
VokStatus Elementary(const ElementaryJob& job) {
  if constexpr (std::is_same_v<T, float>) {
    switch (job.op) {
      case ElementaryOp::kDiv: return RunRows<T>(job, FloatDivRule{});
      case ElementaryOp::kAbs: return RunRows<T>(job, UnaryRule<T, Magnitude>{});
      case ElementaryOp::kSqr: return RunRows<T>(job, UnaryRule<T, Square>{});
      case ElementaryOp::kSqrt: return RunRows<T>(job, UnaryRule<T, SquareRoot>{});
      case ElementaryOp::kLn: return RunRows<T>(job, UnaryRule<T, LnPolynomial>{});
      case ElementaryOp::kExp: return RunRows<T>(job, UnaryRule<T, ExpPolynomial>{});
      case ElementaryOp::kDivC: break;  // the 32f forms multiply by 1/c
    }
  } else {
    // Past these scales every result is 0 or saturated, as at the bounds.
    const double factor = std::ldexp(1.0, -std::clamp(job.scale, -200, 1000));
    switch (job.op) {
      case ElementaryOp::kDiv:
        if constexpr (kHasDivision<T>) return RunIntDiv<T>(job);
        break;
      case ElementaryOp::kDivC:
        if constexpr (kHasDivision<T>) {
          return RunRows<T>(job, ScaledProductRule<T>{
                                     {}, DivCFactor<T>(job.scale, job.divisor)});
        }
        break;
      case ElementaryOp::kAbs:
        if constexpr (std::is_same_v<T, int16_t>) {
          return RunRows<T>(job, UnaryRule<T, Magnitude>{});
        }
        break;
      case ElementaryOp::kSqr:
        return RunRows<T>(job, ScaledDoubleRule<T, Square>{{}, {}, factor});
      case ElementaryOp::kSqrt:
        return RunRows<T>(job, ScaledDoubleRule<T, SquareRoot>{{}, {}, factor});
      case ElementaryOp::kLn:
        return RunRows<T>(job, ScaledDoubleRule<T, Logarithm>{{}, {}, factor});
      case ElementaryOp::kExp:
        // e^0 / 2, the one exact tie, goes up to 1.
        return RunRows<T>(job, ScaledDoubleRule<T, Exponential, true>{{}, {}, factor});
    }
  }
  return vokStatusOk;
}

}  // namespace

VokStatus Elementary8u(const ElementaryJob& job) { return Elementary<uint8_t>(job); }
VokStatus Elementary16u(const ElementaryJob& job) { return Elementary<uint16_t>(job); }
VokStatus Elementary16s(const ElementaryJob& job) { return Elementary<int16_t>(job); }
VokStatus Elementary32f(const ElementaryJob& job) { return Elementary<float>(job); }

}  // namespace HWY_NAMESPACE
}  // namespace vok
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace vok {

#define VOK_ELEMENTARY_DISPATCH(token, T)                    \
  HWY_EXPORT(Elementary##token);                             \
  template <>                                                \
  VokStatus RunElementary<T>(const ElementaryJob& job) {     \
    return HWY_DYNAMIC_DISPATCH(Elementary##token)(job);     \
  }
VOK_ELEMENTARY_DISPATCH(8u, Vok8u)
VOK_ELEMENTARY_DISPATCH(16u, Vok16u)
VOK_ELEMENTARY_DISPATCH(16s, Vok16s)
VOK_ELEMENTARY_DISPATCH(32f, Vok32f)
#undef VOK_ELEMENTARY_DISPATCH

}  // namespace vok
#endif  // HWY_ONCE
