// Row kernels of the user-kernel filters, compiled once per instruction set.
// Each output sample keeps its own accumulator, so a vector holds adjacent
// output samples and walks the window in raster order: every lane sees the
// products in exactly the order of the plain rule, and no target or vector
// width changes a bit. Blocks of four vectors keep the accumulators in
// registers while the window's rows stream through the cache; a row's end
// is covered by one more vector that overlaps the block before it, and rows
// narrower than a vector go one sample at a time through the same code.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "filter/filter_kernels.cpp"
#include "hwy/foreach_target.h"  // IWYU pragma: keep

#include <cstdint>
#include <type_traits>

#include "filter/filter.h"
#include "foundation/image.h"
#include "foundation/rows-inl.h"
#include "hwy/highway.h"

HWY_BEFORE_NAMESPACE();
namespace vok {
namespace HWY_NAMESPACE {
namespace {

// Samples of a source row as accumulator lanes: integers widen to 32 bits,
// and to float for float kernels.
template <class D, typename TS>
HWY_INLINE hn::VFromD<D> LoadSamples(D d, const TS* p) {
  if constexpr (std::is_same_v<TS, hn::TFromD<D>>) {
    return hn::LoadU(d, p);
  } else {
    const hn::RebindToSigned<D> di;
    const auto wide = hn::PromoteTo(di, hn::LoadU(hn::Rebind<TS, D>(), p));
    if constexpr (std::is_floating_point_v<hn::TFromD<D>>) {
      return hn::ConvertTo(d, wide);
    } else {
      return wide;
    }
  }
}

// Adds one window row, from the tap `tap` backwards, into kU vectors of sums.
template <size_t kU, class D, typename TS, typename TK>
HWY_INLINE void SumWindowRow(D d, const TS* row, size_t channels,
                             const TK* tap, int taps, hn::VFromD<D> (&sum)[kU]) {
  const size_t lanes = hn::Lanes(d);
  for (int j = 0; j < taps; ++j, --tap) {
    const auto t = hn::Set(d, static_cast<hn::TFromD<D>>(*tap));
    const TS* p = row + j * channels;
#pragma GCC unroll 8
    for (size_t u = 0; u < kU; ++u)
      sum[u] = hn::Add(sum[u], hn::Mul(t, LoadSamples(d, p + u * lanes)));
  }
}

// Sums the windows of kU vectors of output samples, starting at sample x of
// output row y, in raster order. With kRowSums each window row is summed on
// its own first and the row sum then joins the accumulator.
template <size_t kU, bool kRowSums, class D, typename TS, typename TK>
HWY_INLINE void SumWindow(D d, const FilterJob& job, int y, size_t x,
                          hn::VFromD<D> (&acc)[kU]) {
  const size_t channels = size_t(job.layout.channels);
  const int kw = job.kernelWidth;
  const TK* tap = static_cast<const TK*>(job.kernel) + size_t(kw) * job.kernelHeight - 1;
#pragma GCC unroll 8
  for (size_t u = 0; u < kU; ++u) acc[u] = hn::Zero(d);
  for (int i = 0; i < job.kernelHeight; ++i, tap -= kw) {
    const TS* row = RowAt(static_cast<const TS*>(job.src), job.srcStep, y + i) + x;
    if constexpr (kRowSums) {
      hn::VFromD<D> rowSum[kU];
      for (size_t u = 0; u < kU; ++u) rowSum[u] = hn::Zero(d);
      SumWindowRow<kU>(d, row, channels, tap, kw, rowSum);
      for (size_t u = 0; u < kU; ++u) acc[u] = hn::Add(acc[u], rowSum[u]);
    } else {
      SumWindowRow<kU>(d, row, channels, tap, kw, acc);
    }
  }
}

// An integer sum to 8u by the call's scale descriptor.
template <class D>
HWY_INLINE hn::VFromD<D> ScaleSum(D d, hn::VFromD<D> sum,
                                  const FilterScale& scale) {
  const auto lo = hn::Zero(d), hi = hn::Set(d, 255);
  switch (scale.mode) {
    case FilterScale::kShift: {
      const auto shifted = hn::ShiftRightSame(
          hn::Add(sum, hn::Set(d, scale.roundingAddend)), scale.shift);
      sum = hn::IfThenElseZero(hn::Gt(sum, lo), shifted);
      break;
    }
    case FilterScale::kReciprocal: {
      const hn::Rebind<float, D> df;
      auto f = hn::Mul(hn::ConvertTo(df, sum), hn::Set(df, scale.reciprocal));
      f = hn::Min(hn::Max(f, hn::Zero(df)), hn::Set(df, 255.0f));
      return hn::NearestInt(f);  // the caller's rounding mode
    }
    default:
      break;
  }
  return hn::Min(hn::Max(sum, lo), hi);
}

// A float sum to the integer TD, saturated (NaN to the upper bound).
template <typename TD, class D>
HWY_INLINE auto RoundSum(D d, hn::VFromD<D> sum, bool nearest) {
  const hn::RebindToSigned<D> di;
  sum = hn::Min(sum, hn::Set(d, float(hwy::HighestValue<TD>())));
  sum = hn::Max(sum, hn::Set(d, float(hwy::LowestValue<TD>())));
  return nearest ? hn::ConvertTo(di, hn::Round(sum)) : hn::NearestInt(sum);
}

// Converts accumulators to TD and stores them; AC4 keeps the destination's
// alpha lanes.
template <typename TD, class D>
HWY_INLINE void StoreSums(D d, const FilterJob& job, hn::VFromD<D> sum,
                          TD* out, bool keepAlpha) {
  const hn::Rebind<TD, D> dn;
  hn::VFromD<decltype(dn)> v;
  if constexpr (std::is_same_v<TD, float>) {
    v = sum;
  } else if constexpr (std::is_integral_v<hn::TFromD<D>>) {
    v = SaturatingNarrow(dn, ScaleSum(d, sum, job.scale));
  } else {
    v = SaturatingNarrow(dn, RoundSum<TD>(d, sum, job.nearest));
  }
  if (keepAlpha) v = hn::IfThenElse(AlphaLanes(dn), hn::LoadU(dn, out), v);
  hn::StoreU(v, dn, out);
}

template <size_t kU, bool kRowSums, class D, typename TS, typename TD,
          typename TK>
HWY_INLINE void FilterBlock(D d, const FilterJob& job, int y, size_t x,
                            TD* out, bool keepAlpha) {
  hn::VFromD<D> acc[kU];
  SumWindow<kU, kRowSums, D, TS, TK>(d, job, y, x, acc);
#pragma GCC unroll 8
  for (size_t u = 0; u < kU; ++u)
    StoreSums(d, job, acc[u], out + x + u * hn::Lanes(d), keepAlpha);
}

// Samples [begin, end) one at a time, stepping over alpha in AC4.
template <bool kRowSums, class D, typename TS, typename TD, typename TK>
void FilterSamples(D d1, const FilterJob& job, int y, size_t begin,
                   size_t end, TD* out) {
  for (size_t x = begin; x < end; ++x)
    if (!job.layout.keepAlpha || x % 4 != 3)
      FilterBlock<1, kRowSums, D, TS, TD, TK>(d1, job, y, x, out, false);
}

// Vectors of output samples in flight: enough independent sums to hide the
// latency of the float adds, few enough to stay in registers.
constexpr size_t kBlock = 8;

template <typename TS, typename TD, typename TK>
void Rows(const FilterJob& job, int y0, int y1) {
  using TA = std::conditional_t<std::is_integral_v<TK>, int32_t, float>;
  const hn::ScalableTag<TA> d;
  const hn::CappedTag<TA, 1> d1;
  const size_t lanes = hn::Lanes(d);
  const size_t n = size_t(job.width) * job.layout.channels;
  const size_t end = job.rowSumTail ? n - n % 4 : n;
  const bool keepAlpha = job.layout.keepAlpha;
  for (int y = y0; y < y1; ++y) {
    TD* out = RowAt(static_cast<TD*>(job.dst), job.dstStep, y);
    if (end >= lanes) {
      size_t x = 0;
      for (; x + kBlock * lanes <= end; x += kBlock * lanes)
        FilterBlock<kBlock, false, decltype(d), TS, TD, TK>(d, job, y, x, out,
                                                       keepAlpha);
      for (; x + lanes <= end; x += lanes)
        FilterBlock<1, false, decltype(d), TS, TD, TK>(d, job, y, x, out,
                                                       keepAlpha);
      if (x < end)
        FilterBlock<1, false, decltype(d), TS, TD, TK>(d, job, y, end - lanes,
                                                       out, keepAlpha);
    } else {
      FilterSamples<false, decltype(d1), TS, TD, TK>(d1, job, y, 0, end, out);
    }
    FilterSamples<true, decltype(d1), TS, TD, TK>(d1, job, y, end, n, out);
  }
}

}  // namespace

void FilterRows8u(const FilterJob& job, int y0, int y1) {
  Rows<uint8_t, uint8_t, int32_t>(job, y0, y1);
}
void FilterRows32f8u(const FilterJob& job, int y0, int y1) {
  Rows<uint8_t, uint8_t, float>(job, y0, y1);
}
void FilterRows32f16s(const FilterJob& job, int y0, int y1) {
  Rows<int16_t, int16_t, float>(job, y0, y1);
}
void FilterRows32f(const FilterJob& job, int y0, int y1) {
  Rows<float, float, float>(job, y0, y1);
}

}  // namespace HWY_NAMESPACE
}  // namespace vok
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace vok {

HWY_EXPORT(FilterRows8u);
HWY_EXPORT(FilterRows32f8u);
HWY_EXPORT(FilterRows32f16s);
HWY_EXPORT(FilterRows32f);

void FilterRows8u(const FilterJob& job, int y0, int y1) {
  HWY_DYNAMIC_DISPATCH(FilterRows8u)(job, y0, y1);
}
void FilterRows32f8u(const FilterJob& job, int y0, int y1) {
  HWY_DYNAMIC_DISPATCH(FilterRows32f8u)(job, y0, y1);
}
void FilterRows32f16s(const FilterJob& job, int y0, int y1) {
  HWY_DYNAMIC_DISPATCH(FilterRows32f16s)(job, y0, y1);
}
void FilterRows32f(const FilterJob& job, int y0, int y1) {
  HWY_DYNAMIC_DISPATCH(FilterRows32f)(job, y0, y1);
}

}  // namespace vok
#endif  // HWY_ONCE
