// Per-instruction-set row loops shared by the element-wise families. A rule
// is a small functor: it names its lane descriptor `d` and maps operand
// pointers to one vector of results. The loops below apply it over a row,
// take the last partial vector through zero-padded stack copies so nothing
// outside the row is touched, keep AC4 alpha, and repeat constants.

// Include guard that is toggled once per compiled instruction set.
#if defined(VOK_FOUNDATION_ROWS_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef VOK_FOUNDATION_ROWS_INL_H_
#undef VOK_FOUNDATION_ROWS_INL_H_
#else
#define VOK_FOUNDATION_ROWS_INL_H_
#endif

#include <cstring>

#include "foundation/image.h"
#include "hwy/highway.h"

HWY_BEFORE_NAMESPACE();
namespace vok {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

// Narrows wide integer lanes to the samples of d with saturation. 32-bit to
// 8-bit goes through 16 bits: the direct narrowing of the Highway release we
// build on wraps values from 32768 to 65535.
template <class DN, class V>
HWY_INLINE auto SaturatingNarrow(DN dn, V wide) {
  using TW = hn::TFromV<V>;
  if constexpr (sizeof(hn::TFromD<DN>) == 1 && sizeof(TW) == 4) {
    const hn::Rebind<hwy::MakeNarrow<TW>, DN> dHalf;
    return hn::DemoteTo(dn, hn::DemoteTo(dHalf, wide));
  } else {
    return hn::DemoteTo(dn, wide);
  }
}

// True in the lanes that hold the fourth sample of a pixel. Vectors always
// hold whole pixels, so one mask serves a whole row.
template <class D>
HWY_INLINE auto AlphaLanes(D d) {
  const hn::RebindToUnsigned<D> du;
  using TU = hn::TFromD<decltype(du)>;
  const auto lane = hn::And(hn::Iota(du, 0), hn::Set(du, TU{3}));
  return hn::RebindMask(d, hn::Eq(lane, hn::Set(du, TU{3})));
}

// Applies `rule` to n samples of a and b into out.
template <bool kKeepAlpha, class Rule, typename TA, typename TB, typename TO>
HWY_INLINE void ApplyRowImpl(const Rule& rule, const TA* a, const TB* b,
                             TO* out, size_t n) {
  const auto d = rule.d;
  const size_t lanes = hn::Lanes(d);
  const auto alpha = AlphaLanes(d);
  auto store = [&](auto v, TO* to) {
    if (kKeepAlpha) v = hn::IfThenElse(alpha, hn::LoadU(d, to), v);
    hn::StoreU(v, d, to);
  };
  size_t i = 0;
  for (; i + lanes <= n; i += lanes) store(rule(a + i, b + i), out + i);
  if (i == n) return;
  const size_t rest = n - i;
  HWY_ALIGN TA tailA[HWY_MAX_BYTES] = {};
  HWY_ALIGN TB tailB[HWY_MAX_BYTES] = {};
  HWY_ALIGN TO tailOut[HWY_MAX_BYTES] = {};
  std::memcpy(tailA, a + i, rest * sizeof(TA));
  std::memcpy(tailB, b + i, rest * sizeof(TB));
  if (kKeepAlpha) std::memcpy(tailOut, out + i, rest * sizeof(TO));
  store(rule(tailA, tailB), tailOut);
  std::memcpy(out + i, tailOut, rest * sizeof(TO));
}

template <class Rule, typename TA, typename TB, typename TO>
HWY_INLINE void ApplyRow(const Rule& rule, const TA* a, const TB* b, TO* out,
                         size_t n, bool keepAlpha) {
  if (keepAlpha) {
    ApplyRowImpl<true>(rule, a, b, out, n);
  } else {
    ApplyRowImpl<false>(rule, a, b, out, n);
  }
}

// A row is cut into chunks of this many samples when b is a constant: a
// multiple of 3, of 4 and of every lane count, so each chunk starts on a pixel
// and a vector boundary and the repeated constant stays in the first cache.
constexpr size_t kConstantChunk = 768;

// Rows [y0, y1) of `rows`, operands of type T, results of type TO.
template <typename T, typename TO, class Rule>
HWY_NOINLINE void ApplyRows(const ElementRows& rows, int y0, int y1,
                            const Rule& rule) {
  const size_t n = rows.rowSamples;
  const bool keepAlpha = rows.layout.keepAlpha;
  if (rows.constant == nullptr) {
    for (int y = y0; y < y1; ++y) {
      ApplyRow(rule, RowAt(static_cast<const T*>(rows.a), rows.aStep, y),
               RowAt(static_cast<const T*>(rows.b), rows.bStep, y),
               RowAt(static_cast<TO*>(rows.dst), rows.dstStep, y), n,
               keepAlpha);
    }
    return;
  }
  HWY_ALIGN T pattern[kConstantChunk];
  const T* constant = static_cast<const T*>(rows.constant);
  const int channels = rows.layout.channels;
  for (size_t i = 0; i < kConstantChunk; ++i) pattern[i] = constant[i % channels];
  for (int y = y0; y < y1; ++y) {
    const T* a = RowAt(static_cast<const T*>(rows.a), rows.aStep, y);
    TO* out = RowAt(static_cast<TO*>(rows.dst), rows.dstStep, y);
    for (size_t i = 0; i < n; i += kConstantChunk) {
      const size_t count = n - i < kConstantChunk ? n - i : kConstantChunk;
      ApplyRow(rule, a + i, pattern, out + i, count, keepAlpha);
    }
  }
}

}  // namespace HWY_NAMESPACE
}  // namespace vok
HWY_AFTER_NAMESPACE();

#endif  // VOK_FOUNDATION_ROWS_INL_H_
