// Row kernels of Convert and Scale, compiled once per instruction set. Each
// rule maps a vector of source samples to the same count of results; the
// shared row loop takes the tails and AC4 alpha.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "data/convert_kernels.cpp"
#include "hwy/foreach_target.h"  // IWYU pragma: keep

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <type_traits>

#include "data/convert.h"
#include "foundation/rows-inl.h"
#include "hwy/highway.h"

// The type pairs with a kernel: Convert's and Scale's together.
#define VOK_CONVERT_PAIRS(X)                                                 \
  X(8u16u, uint8_t, uint16_t) X(8u16s, uint8_t, int16_t)                     \
  X(8u32s, uint8_t, int32_t) X(8u32f, uint8_t, float)                        \
  X(8s32s, int8_t, int32_t) X(8s32f, int8_t, float)                          \
  X(16u32s, uint16_t, int32_t) X(16u32f, uint16_t, float)                    \
  X(16s32f, int16_t, float) X(16u8u, uint16_t, uint8_t)                      \
  X(16s8u, int16_t, uint8_t) X(32s8u, int32_t, uint8_t)                      \
  X(32s8s, int32_t, int8_t) X(32f8u, float, uint8_t)                         \
  X(32f8s, float, int8_t) X(32f16u, float, uint16_t)                         \
  X(32f16s, float, int16_t)

HWY_BEFORE_NAMESPACE();
namespace vok {
namespace HWY_NAMESPACE {
namespace {

// Result lanes TD, as many as a full vector of the wider type holds, so one
// step reads or writes at least a whole vector.
template <typename TS, typename TD>
using ResultTag =
    hn::Rebind<TD, hn::ScalableTag<std::conditional_t<(sizeof(TS) > sizeof(TD)),
                                                      TS, TD>>>;

template <class D, typename TS>
HWY_INLINE auto LoadSource(D /* results */, const TS* a) {
  return hn::LoadU(hn::Rebind<TS, D>(), a);
}

// The value itself: exact widening, integer samples to float through int32.
template <typename TS, typename TD>
struct WidenRule {
  ResultTag<TS, TD> d;
  HWY_INLINE auto operator()(const TS* a, const TS*) const {
    if constexpr (std::is_floating_point_v<TD>) {
      const hn::Rebind<int32_t, decltype(d)> di;
      return hn::ConvertTo(d, hn::PromoteTo(di, LoadSource(d, a)));
    } else {
      return hn::PromoteTo(d, LoadSource(d, a));
    }
  }
};

// Integer narrowing with saturation. Unsigned words have no saturating
// narrowing of their own; once clamped to 255 they are valid signed words.
template <typename TS, typename TD>
struct NarrowRule {
  ResultTag<TS, TD> d;
  HWY_INLINE auto operator()(const TS* a, const TS*) const {
    const auto v = LoadSource(d, a);
    if constexpr (std::is_same_v<TS, uint16_t>) {
      const hn::Rebind<uint16_t, decltype(d)> du;
      const hn::Rebind<int16_t, decltype(d)> di;
      return hn::DemoteTo(d, hn::BitCast(di, hn::Min(v, hn::Set(du, 255))));
    } else {
      return SaturatingNarrow(d, v);
    }
  }
};

// Highway's narrowings keep lane order with a shuffle across blocks for every
// vector. The rules below hold values and NaN to the target's top before
// they round, so saturating packs within 128-bit blocks can narrow, with one
// shuffle of whole chunks at the end to put the lanes back in order.
#define VOK_PACK_BLOCKS(pack)                                                  \
  if constexpr (sizeof(lo.raw) == 16) return VN{_mm_##pack(lo.raw, hi.raw)};   \
  VOK_PACK_256(pack) VOK_PACK_512(pack)
#if HWY_TARGET <= HWY_AVX2
#define VOK_PACK_256(pack) \
  if constexpr (sizeof(lo.raw) == 32) return VN{_mm256_##pack(lo.raw, hi.raw)};
#else
#define VOK_PACK_256(pack)
#endif
#if HWY_TARGET <= HWY_AVX3
#define VOK_PACK_512(pack) \
  if constexpr (sizeof(lo.raw) == 64) return VN{_mm512_##pack(lo.raw, hi.raw)};
#else
#define VOK_PACK_512(pack)
#endif

// The lanes of lo and hi narrowed to TN with saturation, each 128-bit block
// holding lo's lanes of that block, then hi's.
template <typename TN, class V>
HWY_INLINE auto PackBlocks(V lo, V hi) {
  using VN = hn::Vec<hn::Repartition<TN, hn::DFromV<V>>>;
  using TW = hn::TFromV<V>;
  static_assert(sizeof(TW) == 2 * sizeof(TN) && std::is_signed_v<TW>);
  if constexpr (std::is_same_v<TN, int16_t>) {
    VOK_PACK_BLOCKS(packs_epi32)
  } else if constexpr (std::is_same_v<TN, uint16_t>) {
    VOK_PACK_BLOCKS(packus_epi32)
  } else if constexpr (std::is_same_v<TN, int8_t>) {
    VOK_PACK_BLOCKS(packs_epi16)
  } else {
    VOK_PACK_BLOCKS(packus_epi16)
  }
}
#undef VOK_PACK_BLOCKS
#undef VOK_PACK_256
#undef VOK_PACK_512

// Block b of a pack of kVectors vectors holds chunk b of each vector in turn;
// the result takes every vector's chunks in order.
template <size_t kVectors, class D, class V>
HWY_INLINE hn::Vec<D> InLaneOrder(D d, V packed) {
  using TC = hwy::UnsignedFromSize<16 / kVectors>;
  const hn::Repartition<TC, D> dc;
  constexpr size_t kBlocks = hn::MaxLanes(dc) / kVectors;
  if constexpr (kBlocks == 1) {
    return hn::BitCast(d, packed);
  } else {
    const hn::RebindToSigned<decltype(dc)> di;
    const auto j = hn::Iota(di, 0);
    const auto from =
        hn::Add(hn::ShiftRight<hwy::CeilLog2(kBlocks)>(j),
                hn::ShiftLeft<hwy::CeilLog2(kVectors)>(
                    hn::And(j, hn::Set(di, kBlocks - 1))));
    return hn::BitCast(
        d, hn::TableLookupLanes(hn::BitCast(dc, packed),
                                hn::IndicesFromVec(dc, from)));
  }
}

// Float samples to 8- or 16-bit results a whole vector at a time, from two or
// four vectors of floats. `range.Upper` maps x to a value already held to
// the result's upper bound, NaN included; it is rounded in the thread's
// rounding mode, which the entry has set (an overflow below gives INT32_MIN),
// and the packs saturate whatever lies below the lower bound.
template <typename TD, class Range>
struct FromFloatRule {
  hn::ScalableTag<TD> d;
  Range range;
  HWY_INLINE auto operator()(const float* a, const float*) const {
    const hn::ScalableTag<float> df;
    const size_t n = hn::Lanes(df);
    const auto rounded = [&](size_t k) {
      return RoundInMode(range.Upper(df, hn::LoadU(df, a + k * n)));
    };
    // Named in address order: the loads then walk the row forwards.
    const auto r0 = rounded(0), r1 = rounded(1);
    if constexpr (sizeof(TD) == 2) {
      return InLaneOrder<2>(d, PackBlocks<TD>(r0, r1));
    } else {
      const auto r2 = rounded(2), r3 = rounded(3);
      return InLaneOrder<4>(d, PackBlocks<TD>(PackBlocks<int16_t>(r0, r1),
                                              PackBlocks<int16_t>(r2, r3)));
    }
  }
};

// Convert: the target's range. Min is minps, which takes its second operand
// where x is NaN, so NaN gives the top.
template <typename TD>
struct TargetRange {
  template <class DF, class V>
  HWY_INLINE V Upper(DF df, V x) const {
    return hn::Min(x, hn::Set(df, static_cast<float>(hwy::HighestValue<TD>())));
  }
};

// Scale with a finite k > 0 and a finite b. x * k + b, each step rounded,
// never falls as x grows, so clamping x to [vMin, vMax] first is clamping
// the result to its values there, with NaN taking the top as above. At vMin
// it is exactly 0, as b is -(k * vMin), so the packs' saturation is the
// lower clamp; the upper one is the value at vMax, held to 255.
struct ScaledRange {
  float k, b, upper;
  template <class DF, class V>
  HWY_INLINE V Upper(DF df, V x) const {
    return hn::Min(hn::Add(hn::Mul(x, hn::Set(df, k)), hn::Set(df, b)),
                   hn::Set(df, upper));
  }
};

// Scale where k overflowed or b is not finite: x clamped to [vMin, vMax]
// (NaN taking vMax), x * k + b, then the saturation, where the NaN that
// infinity times 0 gives becomes 0.
struct DegenerateScaledRange {
  float vMin, vMax, k, b;
  template <class DF, class V>
  HWY_INLINE V Upper(DF df, V x) const {
    const auto clamped = hn::Max(hn::Min(x, hn::Set(df, vMax)), hn::Set(df, vMin));
    const auto y = hn::Add(hn::Mul(clamped, hn::Set(df, k)), hn::Set(df, b));
    return hn::Min(hn::Max(y, hn::Zero(df)), hn::Set(df, 255.0f));
  }
};

// 8u onto a wider integer range: the byte repeated into every byte of the
// word, the sign bit flipped for signed targets, so 0 and 255 hit the ends.
template <typename TD>
struct ReplicateRule {
  ResultTag<uint8_t, TD> d;
  HWY_INLINE auto operator()(const uint8_t* a, const uint8_t*) const {
    using TU = std::make_unsigned_t<TD>;
    const hn::RebindToUnsigned<decltype(d)> du;
    auto r = hn::Mul(hn::PromoteTo(du, LoadSource(d, a)),
                     hn::Set(du, static_cast<TU>(TU(~TU{0}) / 255)));
    if constexpr (std::is_signed_v<TD>) {
      const TU sign = TU{1} << (sizeof(TU) * 8 - 1);
      r = hn::Xor(r, hn::Set(du, sign));
    }
    return hn::BitCast(d, r);
  }
};

// v * k + vMin, one rounding for each operation.
struct ScaleToFloatRule {
  hn::ScalableTag<float> d;
  float k, vMin;
  HWY_INLINE auto operator()(const uint8_t* a, const uint8_t*) const {
    const hn::Rebind<int32_t, decltype(d)> di;
    const auto v = hn::ConvertTo(d, hn::PromoteTo(di, LoadSource(d, a)));
    return hn::Add(hn::Mul(v, hn::Set(d, k)), hn::Set(d, vMin));
  }
};

// Fast narrowing scale in integers of the source's width: t centred on zero,
// ((t - (t >> 8)) >> (bits - 8)) + 128, shifts arithmetic.
template <typename TS>
struct FastNarrowScaleRule {
  ResultTag<TS, uint8_t> d;
  HWY_INLINE auto operator()(const TS* a, const TS*) const {
    using TI = std::make_signed_t<TS>;
    const hn::Rebind<TI, decltype(d)> di;
    auto t = hn::BitCast(di, LoadSource(d, a));
    if constexpr (std::is_unsigned_v<TS>) {
      t = hn::Xor(t, hn::Set(di, hwy::LimitsMin<TI>()));  // v - 32768
    }
    const auto r = hn::ShiftRight<sizeof(TI) * 8 - 8>(
        hn::Sub(t, hn::ShiftRight<8>(t)));
    return SaturatingNarrow(d, hn::Add(r, hn::Set(di, TI{128})));
  }
};

// Accurate narrowing scale of 16-bit samples: (v, or v + 32768 for signed
// samples) times the float nearest to 1/257, rounded to nearest even.
template <typename TS>
struct AccurateWordScaleRule {
  ResultTag<float, uint8_t> d;
  HWY_INLINE auto operator()(const TS* a, const TS*) const {
    const hn::Rebind<int32_t, decltype(d)> di;
    const hn::Rebind<float, decltype(d)> df;
    auto v = hn::PromoteTo(di, LoadSource(d, a));
    if constexpr (std::is_signed_v<TS>) v = hn::Add(v, hn::Set(di, 32768));
    const auto c = hn::Set(df, std::bit_cast<float>(uint32_t{0x3B7F00FF}));
    return SaturatingNarrow(d,
                            hn::NearestInt(hn::Mul(hn::ConvertTo(df, v), c)));
  }
};

// Accurate narrowing scale of 32s: v * a + b in double, a = 255 / (2^32 - 1)
// and b = a * 2^31, rounded to nearest even. Two half vectors of doubles
// make one vector of int32.
struct AccurateIntScaleRule {
  ResultTag<int32_t, uint8_t> d;
  HWY_INLINE auto operator()(const int32_t* p, const int32_t*) const {
    const hn::ScalableTag<double> dd;
    const hn::Rebind<int32_t, decltype(dd)> dHalf;
    const hn::Rebind<int32_t, decltype(d)> di;
    const auto a =
        hn::Set(dd, std::bit_cast<double>(uint64_t{0x3E6FE000001FE000}));
    const auto b =
        hn::Set(dd, std::bit_cast<double>(uint64_t{0x405FE000001FE000}));
    const auto half = [&](const int32_t* q) {
      const auto x = hn::PromoteTo(dd, hn::LoadU(dHalf, q));
      return hn::DemoteTo(dHalf, hn::Round(hn::Add(hn::Mul(x, a), b)));
    };
    return SaturatingNarrow(
        d, hn::Combine(di, half(p + hn::Lanes(dHalf)), half(p)));
  }
};

template <typename TS, typename TD, class Rule>
void Apply(const ConvertJob& job, const Rule& rule) {
  ApplyRows<TS, TD>(job.rows, 0, job.rows.height, rule);
}

template <typename TS, typename TD>
void ConvertRows(const ConvertJob& job) {
  const bool scale = job.conversion != Conversion::kValue;
  if constexpr (std::is_same_v<TS, float>) {
    if constexpr (std::is_same_v<TD, uint8_t>) {
      if (scale) {
        // Computed here, under the rounding mode that the entry has set.
        const float k = 255.0f / (job.vMax - job.vMin);
        const float b = -k * job.vMin;
        if (!(std::isfinite(k) && k > 0.0f && std::isfinite(b))) {
          return Apply<TS, TD>(job, FromFloatRule<TD, DegenerateScaledRange>{
                                        {}, {job.vMin, job.vMax, k, b}});
        }
        const float atMax = job.vMax * k + b;
        return Apply<TS, TD>(job, FromFloatRule<TD, ScaledRange>{
                                      {}, {k, b, std::min(atMax, 255.0f)}});
      }
    }
    Apply<TS, TD>(job, FromFloatRule<TD, TargetRange<TD>>{});
  } else if constexpr (sizeof(TS) < sizeof(TD)) {
    if constexpr (std::is_same_v<TS, uint8_t> && std::is_same_v<TD, float>) {
      if (scale) {
        const float k = (job.vMax - job.vMin) / 255.0f;
        return Apply<TS, TD>(job, ScaleToFloatRule{{}, k, job.vMin});
      }
    } else if constexpr (std::is_same_v<TS, uint8_t>) {
      if (scale) return Apply<TS, TD>(job, ReplicateRule<TD>{});
    }
    Apply<TS, TD>(job, WidenRule<TS, TD>{});
  } else {
    if constexpr (std::is_same_v<TD, uint8_t>) {
      if (job.conversion == Conversion::kScale) {
        return Apply<TS, TD>(job, FastNarrowScaleRule<TS>{});
      }
      if (job.conversion == Conversion::kScaleAccurate) {
        if constexpr (sizeof(TS) == 4) {
          return Apply<TS, TD>(job, AccurateIntScaleRule{});
        } else {
          return Apply<TS, TD>(job, AccurateWordScaleRule<TS>{});
        }
      }
    }
    Apply<TS, TD>(job, NarrowRule<TS, TD>{});
  }
}

}  // namespace

#define VOK_CONVERT_ROWS(token, TS, TD) \
  void ConvertRows##token(const ConvertJob& job) { ConvertRows<TS, TD>(job); }
VOK_CONVERT_PAIRS(VOK_CONVERT_ROWS)
#undef VOK_CONVERT_ROWS

}  // namespace HWY_NAMESPACE
}  // namespace vok
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace vok {

#define VOK_CONVERT_DISPATCH(token, TS, TD)                 \
  HWY_EXPORT(ConvertRows##token);                           \
  template <>                                               \
  void RunConvert<TS, TD>(const ConvertJob& job) {          \
    HWY_DYNAMIC_DISPATCH(ConvertRows##token)(job);          \
  }
VOK_CONVERT_PAIRS(VOK_CONVERT_DISPATCH)
#undef VOK_CONVERT_DISPATCH

}  // namespace vok
#endif  // HWY_ONCE
