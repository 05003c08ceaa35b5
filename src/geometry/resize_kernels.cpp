// Row kernels of resize, compiled once per instruction set. Horizontal passes
// gather the nodes of a vector of line samples from one window of the row
// with a lane permutation (8u linear: with a byte shuffle per 16 bytes);
// vertical passes blend whole lines with vectors and take the end of a row
// one sample at a time with the same arithmetic, so every target writes the
// same bytes.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "geometry/resize_kernels.cpp"
#include "hwy/foreach_target.h"  // IWYU pragma: keep

#include <algorithm>
#include <bit>
#include <climits>
#include <cmath>
#include <cstring>
#include <limits>
#include <type_traits>

#include "foundation/image.h"
#include "foundation/rows-inl.h"
#include "geometry/resize.h"
#include "hwy/highway.h"

HWY_BEFORE_NAMESPACE();
namespace vok {
namespace HWY_NAMESPACE {
namespace {

constexpr double kEpsilon = 1e-7;

template <typename T>
constexpr float kMaxOf = std::is_same_v<T, float> ? 0.0f : float(std::numeric_limits<T>::max());

template <typename T>
const T* SrcRow(const ResizePlane& p, int32_t row) {
  return RowAt(static_cast<const T*>(p.src), p.srcStep, row);
}
template <typename T>
T* DstRow(const ResizePlane& p, int y) {
  return RowAt(static_cast<T*>(p.dst), p.dstStep, y);
}


// How a destination row is written: AC4 alpha keeps its value, and large
// destinations go past the cache, where reading them in first would only
// cost bandwidth.
struct WriteMode {
  bool keepAlpha, stream;
};

// Writes n samples of a destination row: whole vectors from vec(i), the rest
// from one(i). Streamed rows take the samples before the first vector
// boundary one at a time.
template <class D, typename T, class Vec, class One>
HWY_INLINE void WriteRow(D d, T* out, size_t n, WriteMode mode, const Vec& vec,
                         const One& one) {
  const size_t lanes = hn::Lanes(d);
  size_t i = 0;
  if (mode.keepAlpha) {
    const auto alpha = AlphaLanes(d);
    for (; i + lanes <= n; i += lanes)
      hn::StoreU(hn::IfThenElse(alpha, hn::LoadU(d, out + i), vec(i)), d, out + i);
  } else if (mode.stream && lanes * sizeof(T) >= 16) {
    // Streaming stores write whole 16-byte blocks, so narrower vectors do not
    // stream.
    const size_t bytes = lanes * sizeof(T);
    const size_t head = (bytes - reinterpret_cast<uintptr_t>(out) % bytes) % bytes;
    if (head % sizeof(T) == 0) {
      for (const size_t first = std::min(head / sizeof(T), n); i < first; ++i)
        StoreSample(out + i, one(i));
      for (; i + lanes <= n; i += lanes) hn::Stream(vec(i), d, out + i);
    }
  }
  for (; i + lanes <= n; i += lanes) hn::StoreU(vec(i), d, out + i);
  for (; i < n; ++i)
    if (!mode.keepAlpha || (i & 3) != 3) StoreSample(out + i, one(i));
}

// Float lanes rounded to nearest with ties to even and saturated to an
// integer sample type.
template <typename T, class VF>
HWY_INLINE auto RoundToSample(VF v) {
  const hn::ScalableTag<float> df;
  const hn::ScalableTag<int32_t> di;
  const auto clamped = hn::Min(hn::Max(hn::Round(v), hn::Zero(df)), hn::Set(df, kMaxOf<T>));
  return SaturatingNarrow(hn::Rebind<T, decltype(di)>(), hn::ConvertTo(di, clamped));
}

// ---- Line cache ------------------------------------------------------------

// K lines tagged with the source row they hold. A destination row asks for K
// rows; rows already held are reused, the others computed into free slots,
// so sliding windows cost one line per new source row.
template <typename L, int K>
class LineCache {
 public:
  LineCache(L* block, size_t lineSamples) {
    for (int k = 0; k < K; ++k) {
      slot_[k] = block + k * lineSamples;
      tag_[k] = INT32_MIN;
    }
  }

  template <class Fill>
  void Fetch(const int32_t* rows, const L** lines, const Fill& fill) {
    bool used[K] = {};
    int slotOf[K];
    for (int k = 0; k < K; ++k) {
      slotOf[k] = -1;
      for (int s = 0; s < K; ++s)
        if (tag_[s] == rows[k]) {
          slotOf[k] = s;
          used[s] = true;
        }
    }
    for (int k = 0; k < K; ++k) {
      for (int j = 0; j < k && slotOf[k] < 0; ++j)
        if (rows[j] == rows[k]) slotOf[k] = slotOf[j];
      if (slotOf[k] < 0) {
        int s = 0;
        while (used[s]) ++s;
        used[s] = true;
        tag_[s] = rows[k];
        fill(rows[k], slot_[s]);
        slotOf[k] = s;
      }
      lines[k] = slot_[slotOf[k]];
    }
  }

 private:
  L* slot_[K];
  int32_t tag_[K];
};

// ---- Nearest ---------------------------------------------------------------

// The 16-byte blocks of one vector, each loaded from its own row offset.
template <class D>
HWY_INLINE hn::Vec<D> LoadBlocks(D d, const uint8_t* row, const int32_t* base) {
  if constexpr (hn::MaxLanes(d) <= 16) {
    return hn::LoadU(d, row + base[0]);
  } else {
    const hn::Half<D> dh;
    constexpr size_t kHalfBlocks = hn::MaxLanes(dh) / 16;
    return hn::Combine(d, LoadBlocks(dh, row, base + kHalfBlocks), LoadBlocks(dh, row, base));
  }
}

// Copies the shuffle blocks of a nearest row, 16 destination bytes from two
// 16-byte windows of the source each; returns the bytes written.
template <typename T>
size_t CopyBlocks(const T* s, const ResizeSamples& x, T* out) {
  const hn::ScalableTag<uint8_t> d8;
  constexpr int kBlocks = hn::MaxLanes(d8) / 16;
  const auto* row = reinterpret_cast<const uint8_t*>(s);
  auto* to = reinterpret_cast<uint8_t*>(out);
  const uint8_t* second = x.blockShuffle + size_t(x.shuffleBlocks) * 16;
  int b = 0;
  for (; b + kBlocks <= x.shuffleBlocks; b += kBlocks) {
    const auto lo = LoadBlocks(d8, row, x.blockBase + b);
    const auto hi = LoadBlocks(d8, row + 16, x.blockBase + b);
    hn::StoreU(hn::Or(hn::TableLookupBytesOr0(lo, hn::LoadU(d8, x.blockShuffle + b * 16)),
                      hn::TableLookupBytesOr0(hi, hn::LoadU(d8, second + b * 16))),
               d8, to + b * 16);
  }
  return size_t(b) * 16;
}

// kCopied samples of each S-sample pixel; AC4 copies three of four.
template <typename T, int S, int kCopied>
void NearestRows(const ResizeTables& t, const ResizePlane& p, int y0, int y1) {
  constexpr size_t kPixel = kCopied * sizeof(T), kWide = std::bit_ceil(kPixel);
  const size_t rowBytes = size_t(t.x.count) * S * sizeof(T);
  for (int y = y0; y < y1; ++y) {
    T* out = DstRow<T>(p, y);
    if (kCopied == S && y > y0 && t.y.index[y] == t.y.index[y - 1]) {
      std::memcpy(out, DstRow<T>(p, y - 1), rowBytes);
      continue;
    }
    const T* s = SrcRow<T>(p, t.y.index[y]);
    int j = 0;
    if constexpr (kCopied == S) {
      if (t.samples.blockShuffle != nullptr) j = CopyBlocks(s, t.samples, out) / int(kPixel);
    }
    if constexpr (kCopied == S && kWide != kPixel) {
      // Pixels of 3, 6 or 12 bytes move as one word of the next power of two
      // where the source has the bytes and the next pixel overwrites them.
      for (; j + 1 < t.x.count; ++j) {
        const T* from = s + ptrdiff_t{t.x.index[j]} * S;
        if (t.x.index[j] < t.samples.imageLast) std::memcpy(out + j * S, from, kWide);
        else std::memcpy(out + j * S, from, kPixel);
      }
    }
    for (; j < t.x.count; ++j)
      std::memcpy(out + j * S, s + ptrdiff_t{t.x.index[j]} * S, kPixel);
  }
}

// ---- Linear ----------------------------------------------------------------

// The vertical blend drops the 14 weight bits, and for 8u also the six
// fraction bits that its lines keep.
template <typename T>
constexpr int kLinearOutShift = sizeof(T) == 1 ? 20 : 14;

// Fixed-point linear passes widen to int32, the others to float.
template <typename T, ResizeKind kKind>
using WideOf = std::conditional_t<kKind == ResizeKind::kLinear && !std::is_same_v<T, float>,
                                  int32_t, float>;

// Source columns [first, last] of a row in 32-bit lanes; columns outside the
// image repeat its edge column. Paired rows (8u linear) hold in each lane
// the sample and, in the upper 16 bits, the same sample one column on, the
// two nodes that one multiply-add of 16-bit pairs weighs.
template <int S, bool kPaired, typename W, typename T>
void WidenRow(const T* s, const ResizeSamples& x, int first, W* wide) {
  const int last = x.last - (kPaired ? 1 : 0), imageLast = x.imageLast - (kPaired ? 1 : 0);
  const int columns = std::max(last - first + 1, 0);
  const int before = std::clamp(x.imageFirst - first, 0, columns);
  const int after = std::clamp(last - imageLast, 0, columns - before);
  auto sampleAt = [&](int column, int c) {
    return static_cast<W>(
        LoadSample(s + ptrdiff_t{std::clamp(column, x.imageFirst, x.imageLast)} * S + c));
  };
  auto edge = [&](int column, W* to) {
    for (int c = 0; c < S; ++c) {
      if constexpr (kPaired) to[c] = sampleAt(column, c) | sampleAt(column + 1, c) << 16;
      else to[c] = sampleAt(column, c);
    }
  };
  for (int k = 0; k < before; ++k) edge(first + k, wide + k * S);
  const size_t count = size_t(columns - before - after) * S;
  const T* in = s + ptrdiff_t{first + before} * S;
  W* out = wide + before * S;
  if constexpr (std::is_same_v<T, float>) {
    std::memcpy(out, in, count * sizeof(float));
  } else {
    const hn::ScalableTag<int32_t> di;
    const hn::Rebind<T, decltype(di)> dt;
    const hn::ScalableTag<W> dw;
    const size_t lanes = hn::Lanes(di);
    size_t i = 0;
    for (; i + lanes <= count; i += lanes) {
      auto v = hn::PromoteTo(di, hn::LoadU(dt, in + i));
      if constexpr (kPaired) v = hn::Or(v, hn::ShiftLeft<16>(hn::PromoteTo(di, hn::LoadU(dt, in + i + S))));
      if constexpr (std::is_same_v<W, float>) hn::StoreU(hn::ConvertTo(dw, v), dw, out + i);
      else hn::StoreU(v, dw, out + i);
    }
    for (; i < count; ++i) {
      if constexpr (kPaired) out[i] = W(LoadSample(in + i)) | W(LoadSample(in + i + S)) << 16;
      else out[i] = static_cast<W>(LoadSample(in + i));
    }
  }
  for (int k = columns - after; k < columns; ++k) edge(first + k, wide + k * S);
}

// Weighs 8u linear nodes held as 16-bit pairs with one multiply-add: samples
// of 8 bits and weights of at most 15 give exact 32-bit sums, and lines keep
// six fraction bits.
template <class D32, class V>
HWY_INLINE void StoreWeighedPairs(D32 d32, V pairs, const int32_t* fixed, uint16_t* line) {
  const hn::Repartition<int16_t, D32> d16;
  const hn::Rebind<uint16_t, D32> dl;
  auto unused = hn::Zero(d32);
  const auto h = hn::ReorderWidenMulAccumulate(d32, hn::BitCast(d16, pairs),
                                               hn::BitCast(d16, hn::LoadU(d32, fixed)),
                                               hn::Set(d32, 1 << 7), unused);
  hn::StoreU(hn::DemoteTo(dl, hn::ShiftRight<8>(h)), dl, line);
}

// An 8u linear line straight from the source bytes: each block of four
// samples shuffles its nodes into 16-bit pairs. Blocks that would read past
// the image go one sample at a time.
template <int S>
void PairedLine(const uint8_t* s, const ResizeSamples& x, size_t n, uint16_t* line) {
  const hn::ScalableTag<uint8_t> d8;
  const hn::Repartition<int32_t, decltype(d8)> d32;
  constexpr int kBlocks = hn::MaxLanes(d8) / 16;
  const uint8_t* row = s + ptrdiff_t{x.first} * S;
  int b = 0;
  for (; b + kBlocks <= x.shuffleBlocks; b += kBlocks) {
    const auto bytes = LoadBlocks(d8, row, x.blockBase + b);
    StoreWeighedPairs(d32, hn::TableLookupBytesOr0(bytes, hn::LoadU(d8, x.blockShuffle + b * 16)),
                      x.fixed + 4 * b, line + 4 * b);
  }
  for (size_t i = 4 * size_t(b); i < n; ++i) {
    const uint8_t* nodes = row + x.blockBase[i / 4];
    const uint8_t* lanes = x.blockShuffle + i * 4;
    const int32_t w = x.fixed[i];
    const int32_t h = (nodes[lanes[0]] * (w & 0xFFFF) + nodes[lanes[2]] * (w >> 16) + (1 << 7)) >> 8;
    line[i] = static_cast<uint16_t>(std::clamp<int32_t>(h, 0, 65535));
  }
}

// One horizontal line: per group, the taps come from a window of the
// widened row through one lane permutation, and the kernel runs on whole
// vectors. Each group stores a whole vector, which the next group partly
// overwrites; lines have a vector of slack for the last one.
template <typename T, int S, ResizeKind kKind, typename L>
void HorizontalLine(const T* s, const ResizeSamples& x, size_t n, void* scratch, L* line) {
  using W = WideOf<T, kKind>;
  constexpr bool kPaired = kKind == ResizeKind::kLinear && sizeof(T) == 1;
  if constexpr (kPaired) {
    if (x.blockShuffle != nullptr) return PairedLine<S>(s, x, n, line);
  }
  // Float rows serve their windows in place as far as those stay in the
  // image; the rest come from a widened copy of the row's end.
  int direct = 0;
  const W* row = nullptr;
  if constexpr (std::is_same_v<T, W>) {
    direct = x.direct;
    row = s + ptrdiff_t{x.first} * S;
  }
  const int from = direct > 0 ? x.widenFrom : 0;
  W* wide = static_cast<W*>(scratch);
  WidenRow<S, kPaired>(s, x, x.first + from, wide);
  const hn::ScalableTag<W> dw;
  const hn::RebindToSigned<decltype(dw)> di;
  const hn::ScalableTag<float> df;
  const hn::Rebind<uint16_t, decltype(di)> dl;
  const size_t lanes = hn::Lanes(dw);
  const size_t stride = x.stride;
  for (int g = 0; g < x.groups; ++g) {
    const size_t i = size_t(g) * x.groupSize;
    const auto idx = hn::IndicesFromVec(dw, hn::LoadU(di, x.lane + g * lanes));
    const W* window = g < direct ? row + x.base[g] : wide + (x.base[g] - from * S);
    auto tap = [&](int k) { return hn::TableLookupLanes(hn::LoadU(dw, window + k * S), idx); };
    if constexpr (kPaired) {
      StoreWeighedPairs(di, tap(0), x.fixed + i, line + i);
    } else if constexpr (kKind == ResizeKind::kLinear && std::is_same_v<W, int32_t>) {
      // 16u lines keep the full range.
      const auto weights = hn::LoadU(di, x.fixed + i);
      const auto f = hn::ShiftRight<16>(weights);
      const auto h = hn::Add(hn::Add(hn::Mul(tap(0), hn::Sub(hn::Set(di, kLinearOne), f)),
                                     hn::Mul(tap(1), f)),
                             hn::Set(di, 1 << 13));
      hn::StoreU(hn::DemoteTo(dl, hn::ShiftRight<14>(h)), dl, line + i);
    } else if constexpr (kKind == ResizeKind::kLinear) {
      const auto a = tap(0);
      hn::StoreU(hn::Add(a, hn::Mul(hn::Sub(tap(1), a), hn::LoadU(df, x.weights + i))), df,
                 line + i);
    } else if constexpr (kKind == ResizeKind::kCubic) {
      const auto a = tap(0), b = tap(1), c = tap(2);
      const auto d1 = hn::Sub(b, a);
      const auto d2 = hn::Sub(hn::Sub(c, b), d1);
      const auto d3 = hn::Sub(hn::Add(hn::Sub(b, hn::Mul(hn::Set(df, 2.0f), c)), tap(3)), d2);
      const auto m = hn::LoadU(df, x.weights + i);
      const auto n = hn::LoadU(df, x.weights + stride + i);
      const auto onePlusT = hn::LoadU(df, x.weights + 2 * stride + i);
      hn::StoreU(hn::Add(hn::Add(hn::Add(a, hn::Mul(n, d3)), hn::Mul(m, d2)),
                         hn::Mul(onePlusT, d1)),
                 df, line + i);
    } else {
      auto sum = hn::Mul(hn::LoadU(df, x.weights + i), tap(0));
      for (int k = 1; k < 6; ++k)
        sum = hn::Add(sum, hn::Mul(hn::LoadU(df, x.weights + k * stride + i), tap(k)));
      hn::StoreU(sum, df, line + i);
    }
  }
}

template <typename T, typename L>
void LinearColumn(const L* h0, const L* h1, const ResizeAxis& y, int row,
                  T* out, size_t n, WriteMode mode) {
  const hn::ScalableTag<float> df;
  const hn::Rebind<T, decltype(df)> dt;
  if constexpr (std::is_same_v<T, float>) {
    const float g = y.fraction[row], g0 = 1.0f - g;
    const auto vg = hn::Set(df, g), vg0 = hn::Set(df, g0);
    WriteRow(dt, out, n, mode,
             [&](size_t i) {
               return hn::Add(hn::Mul(hn::LoadU(df, h0 + i), vg0),
                              hn::Mul(hn::LoadU(df, h1 + i), vg));
             },
             [&](size_t i) { return h0[i] * g0 + h1[i] * g; });
  } else if constexpr (sizeof(T) == 1) {
    // 8u lines hold at most 15 bits and the weights fit 16 signed bits, so
    // one multiply-add of interleaved 16-bit pairs gives each exact sum. The
    // pairs, sums and packs all stay within 128-bit blocks, which keeps the
    // samples in order.
    constexpr int shift = kLinearOutShift<T>;
    const int32_t g = y.fixed[row], g0 = kLinearOne - g;
    const hn::ScalableTag<int16_t> d16;
    const hn::RepartitionToWide<decltype(d16)> d32;
    const hn::Rebind<uint8_t, decltype(d16)> d8;
    const auto weights = hn::BitCast(
        d16, hn::Set(d32, int32_t((uint32_t(g) << 16) | (uint32_t(g0) & 0xFFFF))));
    const auto half = hn::Set(d32, 1 << (shift - 1)), zero = hn::Zero(d32);
    auto blend = [&](const auto& pairs) {
      auto unused = zero;
      return hn::ShiftRight<shift>(
          hn::ReorderWidenMulAccumulate(d32, pairs, weights, half, unused));
    };
    WriteRow(d8, out, n, mode,
             [&](size_t i) {
               const auto a = hn::BitCast(d16, hn::LoadU(hn::RebindToUnsigned<decltype(d16)>(), h0 + i));
               const auto b = hn::BitCast(d16, hn::LoadU(hn::RebindToUnsigned<decltype(d16)>(), h1 + i));
               const auto sums = hn::ReorderDemote2To(d16, blend(hn::InterleaveLower(d16, a, b)),
                                                      blend(hn::InterleaveUpper(d16, a, b)));
               return hn::DemoteTo(d8, sums);
             },
             [&](size_t i) {
               const int32_t v = (h0[i] * g0 + h1[i] * g + (1 << (shift - 1))) >> shift;
               return static_cast<T>(std::clamp<int32_t>(v, 0, 255));
             });
  } else {
    constexpr int shift = kLinearOutShift<T>;
    constexpr int32_t half = 1 << (shift - 1);
    const int32_t g = y.fixed[row], g0 = kLinearOne - g;
    const hn::ScalableTag<int32_t> di;
    const hn::Rebind<uint16_t, decltype(di)> dl;
    const auto vg = hn::Set(di, g), vg0 = hn::Set(di, g0), vhalf = hn::Set(di, half);
    WriteRow(dt, out, n, mode,
             [&](size_t i) {
               const auto a = hn::PromoteTo(di, hn::LoadU(dl, h0 + i));
               const auto b = hn::PromoteTo(di, hn::LoadU(dl, h1 + i));
               const auto sum = hn::Add(hn::Add(hn::Mul(a, vg0), hn::Mul(b, vg)), vhalf);
               return SaturatingNarrow(dt, hn::ShiftRight<shift>(sum));
             },
             [&](size_t i) {
               const int32_t v = (h0[i] * g0 + h1[i] * g + half) >> shift;
               return static_cast<T>(std::clamp<int32_t>(v, 0, int32_t(kMaxOf<T>)));
             });
  }
}

// ---- Cubic -----------------------------------------------------------------

// The cubic through a, b, c, d at -1, 0, 1, 2 in Newton form. The vertical
// pass's vector group divides by 3 as a multiplication by the float 1/3.
template <bool kTrueThird>
inline float Cubic(float a, float b, float c, float d, float t) {
  const float d1 = b - a;
  const float d2 = (c - b) - d1;
  const float d3 = ((b - 2.0f * c) + d) - d2;
  const float m = t * (1.0f + t) * 0.5f;
  const float n = kTrueThird ? (t - 1.0f) * m / 3.0f : (t - 1.0f) * m * (1.0f / 3.0f);
  return ((a + n * d3) + m * d2) + (1.0f + t) * d1;
}

template <class V, class D>
HWY_INLINE V CubicV(D d, V a, V b, V c, V e, V t) {
  const V one = hn::Set(d, 1.0f);
  const V d1 = hn::Sub(b, a);
  const V d2 = hn::Sub(hn::Sub(c, b), d1);
  const V d3 = hn::Sub(hn::Add(hn::Sub(b, hn::Mul(hn::Set(d, 2.0f), c)), e), d2);
  const V onePlusT = hn::Add(one, t);
  const V m = hn::Mul(hn::Mul(t, onePlusT), hn::Set(d, 0.5f));
  const V n = hn::Mul(hn::Mul(hn::Sub(t, one), m), hn::Set(d, 1.0f / 3.0f));
  return hn::Add(hn::Add(hn::Add(a, hn::Mul(n, d3)), hn::Mul(m, d2)),
                 hn::Mul(onePlusT, d1));
}

// Integer results: the run of samples rounded down to a multiple of four
// converts with a nudge of 1e-5 and ties to even; the last n mod 4 samples
// of the run truncate instead, and divide by 3 exactly.
template <int S, typename T>
void CubicColumn(const float* const* l, const ResizeAxis& y, int row, T* out,
                 size_t n, WriteMode mode) {
  const hn::ScalableTag<float> df;
  const hn::Rebind<T, decltype(df)> dt;
  const float t = y.fraction[row];
  constexpr bool kFloat = std::is_same_v<T, float>;
  const auto vt = hn::Set(df, t), nudge = hn::Set(df, 1e-5f);
  WriteRow(dt, out, n, mode,
           [&](size_t i) {
             const auto v = CubicV(df, hn::LoadU(df, l[0] + i), hn::LoadU(df, l[1] + i),
                                   hn::LoadU(df, l[2] + i), hn::LoadU(df, l[3] + i), vt);
             if constexpr (kFloat) return v;
             else return RoundToSample<T>(hn::Add(v, nudge));
           },
           [&](size_t i) {
             const float v = Cubic<false>(l[0][i], l[1][i], l[2][i], l[3][i], t);
             if constexpr (kFloat) return v;
             else return static_cast<T>(std::clamp(std::nearbyint(v + 1e-5f), 0.0f, kMaxOf<T>));
           });
  const size_t run = mode.keepAlpha ? n / 4 * 3 : n;
  for (size_t r = run & ~size_t{3}; r < run; ++r) {
    const size_t i = mode.keepAlpha ? r / 3 * 4 + r % 3 : r;
    const float v = Cubic<true>(l[0][i], l[1][i], l[2][i], l[3][i], t);
    if constexpr (kFloat) {
      StoreSample(out + i, v);
    } else {
      const double truncated = std::trunc(double(v) + kEpsilon);
      StoreSample(out + i, static_cast<T>(std::clamp(truncated, 0.0, double(kMaxOf<T>))));
    }
  }
}

// ---- Lanczos ---------------------------------------------------------------

// Integer results sum in double and truncate; float results sum in float.
template <typename T>
void LanczosColumn(const float* const* l, const ResizeAxis& y, int row, T* out,
                   size_t n, WriteMode mode) {
  const hn::ScalableTag<float> df;
  const hn::Rebind<T, decltype(df)> dt;
  const float* w = y.weights + 6 * row;
  if constexpr (std::is_same_v<T, float>) {
    WriteRow(dt, out, n, mode,
             [&](size_t i) {
               auto sum = hn::Mul(hn::LoadU(df, l[0] + i), hn::Set(df, w[0]));
               for (int k = 1; k < 6; ++k)
                 sum = hn::Add(sum, hn::Mul(hn::LoadU(df, l[k] + i), hn::Set(df, w[k])));
               return sum;
             },
             [&](size_t i) {
               float sum = l[0][i] * w[0];
               for (int k = 1; k < 6; ++k) sum = sum + l[k][i] * w[k];
               return sum;
             });
  } else {
    const hn::ScalableTag<double> dd;
    const hn::Rebind<float, decltype(dd)> dfHalf;
    const hn::Rebind<int32_t, decltype(dd)> diHalf;
    const hn::ScalableTag<int32_t> di;
    const size_t half = hn::Lanes(dd);
    auto sumAt = [&](size_t i) {
      auto sum = hn::Mul(hn::PromoteTo(dd, hn::LoadU(dfHalf, l[0] + i)), hn::Set(dd, double(w[0])));
      for (int k = 1; k < 6; ++k)
        sum = hn::Add(sum, hn::Mul(hn::PromoteTo(dd, hn::LoadU(dfHalf, l[k] + i)),
                                   hn::Set(dd, double(w[k]))));
      const auto v = hn::Add(sum, hn::Set(dd, kEpsilon));
      return hn::DemoteTo(diHalf, hn::Min(hn::Max(v, hn::Zero(dd)),
                                          hn::Set(dd, double(kMaxOf<T>))));
    };
    WriteRow(dt, out, n, mode,
             [&](size_t i) {
               return SaturatingNarrow(dt, hn::Combine(di, sumAt(i + half), sumAt(i)));
             },
             [&](size_t i) {
               double sum = double(l[0][i]) * double(w[0]);
               for (int k = 1; k < 6; ++k) sum = sum + double(l[k][i]) * double(w[k]);
               return static_cast<T>(std::clamp(std::trunc(sum + kEpsilon), 0.0, double(kMaxOf<T>)));
             });
  }
}

// ---- Two-pass driver ---------------------------------------------------------

template <typename T, ResizeKind kKind>
using LineOf = std::conditional_t<kKind == ResizeKind::kLinear && !std::is_same_v<T, float>,
                                  uint16_t, float>;
template <ResizeKind kKind>
constexpr int kLinesOf = kKind == ResizeKind::kLinear ? 2 : kKind == ResizeKind::kCubic ? 4 : 6;

template <typename T, int S, ResizeKind kKind>
void InterpolatedRows(const ResizeTables& t, const ResizePlane& p, int y0, int y1,
                      void* scratch) {
  using L = LineOf<T, kKind>;
  constexpr int K = kLinesOf<kKind>;
  const size_t n = size_t(t.x.count) * S;
  LineCache<L, K> cache(static_cast<L*>(scratch), t.samples.stride);
  void* wide = static_cast<uint8_t*>(scratch) +
               ((K * t.samples.stride * sizeof(L) + 63) & ~size_t{63});
  auto fill = [&](int32_t row, L* line) {
    HorizontalLine<T, S, kKind>(SrcRow<T>(p, row), t.samples, n, wide, line);
  };
  const WriteMode mode{p.keepAlpha, n * sizeof(T) * t.y.count >= kStreamingBytes};
  for (int y = y0; y < y1; ++y) {
    int32_t rows[K];
    if constexpr (kKind == ResizeKind::kLanczos) {
      std::memcpy(rows, t.y.taps + 6 * y, sizeof(rows));
    } else {
      const int32_t first = t.y.index[y] - (kKind == ResizeKind::kCubic ? 1 : 0);
      for (int k = 0; k < K; ++k) rows[k] = first + k;
    }
    const L* lines[K];
    cache.Fetch(rows, lines, fill);
    T* out = DstRow<T>(p, y);
    if constexpr (kKind == ResizeKind::kLinear) LinearColumn(lines[0], lines[1], t.y, y, out, n, mode);
    else if constexpr (kKind == ResizeKind::kCubic) CubicColumn<S>(lines, t.y, y, out, n, mode);
    else LanczosColumn(lines, t.y, y, out, n, mode);
  }
  hwy::FlushStream();
}

// ---- Supersampling -----------------------------------------------------------

// Up to this many source rows go into the accumulator in one pass, which
// keeps that many streams of memory in flight.
constexpr int kRowsPerPass = 4;

// acc += weight[k] x rows[k] over n samples for k = 0 .. count - 1, in that
// order; a weight of 1 adds the row as it is. The first rows of a sum are
// stored instead of added, which is what adding them to the empty sum gives.
// Whole-number steps accumulate integer samples exactly in 32 bits.
template <typename Acc, typename T>
void AccumulateRows(Acc* acc, const T* const* rows, const float* weights, int count,
                    size_t n, bool first) {
  const hn::ScalableTag<Acc> da;
  const hn::ScalableTag<float> df;
  const size_t lanes = hn::Lanes(da);
  auto term = [&](int k, size_t at) {
    if constexpr (std::is_same_v<Acc, uint32_t>) {
      return hn::PromoteTo(da, hn::LoadU(hn::Rebind<T, decltype(da)>(), rows[k] + at));
    } else {
      hn::Vec<decltype(da)> v;
      if constexpr (std::is_same_v<T, float>) {
        v = hn::LoadU(da, rows[k] + at);
      } else {
        const hn::ScalableTag<int32_t> di;
        v = hn::ConvertTo(da, hn::PromoteTo(di, hn::LoadU(hn::Rebind<T, decltype(di)>(), rows[k] + at)));
      }
      return weights[k] != 1.0f ? hn::Mul(hn::Set(df, weights[k]), v) : v;
    }
  };
  auto scalarTerm = [&](int k, size_t at) -> Acc {
    const auto v = LoadSample(rows[k] + at);
    if constexpr (std::is_same_v<Acc, uint32_t>) return v;
    else return weights[k] != 1.0f ? weights[k] * float(v) : float(v);
  };
  size_t i = 0;
  for (; i + lanes <= n; i += lanes) {
    auto sum = first ? term(0, i) : hn::Add(hn::LoadU(da, acc + i), term(0, i));
    for (int k = 1; k < count; ++k) sum = hn::Add(sum, term(k, i));
    hn::StoreU(sum, da, acc + i);
  }
  for (; i < n; ++i) {
    Acc sum = first ? scalarTerm(0, i) : acc[i] + scalarTerm(0, i);
    for (int k = 1; k < count; ++k) sum = sum + scalarTerm(k, i);
    acc[i] = sum;
  }
}

// Sums start from -0 so that the first term passes through unchanged.
template <typename Acc>
constexpr Acc kEmptySum = std::is_same_v<Acc, float> ? Acc(-0.0f) : Acc(0);

// The sum of each output's accumulator entries, in order, into `sums`. An
// output with fewer entries than the plan's taps has weight 0 at the rest,
// which its lanes skip. Whole-number steps weigh every entry by 1.
template <int S, typename Acc>
void ColumnSums(const Acc* acc, const ResizeSamples& x, Acc* sums) {
  const hn::ScalableTag<Acc> da;
  const hn::RebindToSigned<decltype(da)> di;
  const hn::ScalableTag<float> df;
  const size_t lanes = hn::Lanes(da);
  for (int g = 0; g < x.groups; ++g) {
    const size_t i = size_t(g) * x.groupSize;
    const auto idx = hn::IndicesFromVec(da, hn::LoadU(di, x.lane + g * lanes));
    const Acc* window = acc + x.base[g];
    auto entry = [&](int k) { return hn::TableLookupLanes(hn::LoadU(da, window + k * S), idx); };
    if (x.wholeTaps) {
      // The first entry added to the empty sum is the entry itself.
      auto sum = entry(0);
      for (int k = 1; k < x.taps; ++k) sum = hn::Add(sum, entry(k));
      hn::StoreU(sum, da, sums + i);
      continue;
    }
    auto sum = hn::Set(da, kEmptySum<Acc>);
    for (int k = 0; k < x.taps; ++k) {
      const auto w = hn::LoadU(df, x.weights + k * x.stride + i);
      const auto active = hn::RebindMask(da, hn::Ne(w, hn::Zero(df)));
      if constexpr (std::is_same_v<Acc, float>) {
        sum = hn::IfThenElse(active, hn::Add(sum, hn::Mul(entry(k), w)), sum);
      } else {
        sum = hn::Add(sum, hn::IfThenElseZero(active, entry(k)));
      }
    }
    hn::StoreU(sum, da, sums + i);
  }
}

// 32-bit sums widened to double: unsigned sums can pass 2^31.
template <class DD, typename Acc>
HWY_INLINE auto SumsToDouble(DD dd, const Acc* sums) {
  const hn::Rebind<Acc, DD> da;
  if constexpr (std::is_same_v<Acc, float>) {
    return hn::PromoteTo(dd, hn::LoadU(da, sums));
  } else {
    const hn::Rebind<int32_t, DD> di;
    const auto v = hn::PromoteTo(dd, hn::BitCast(di, hn::LoadU(da, sums)));
    return hn::IfThenElse(hn::Lt(v, hn::Zero(dd)), hn::Add(v, hn::Set(dd, 4294967296.0)), v);
  }
}

// Outputs from the sums: sum x scale in double, then float results as they
// are and integer results + 0.5, truncated.
template <typename T, typename Acc>
void WriteSums(const Acc* sums, double scale, T* out, size_t n, WriteMode mode) {
  const hn::ScalableTag<float> df;
  const hn::Rebind<T, decltype(df)> dt;
  const hn::ScalableTag<double> dd;
  const size_t half = hn::Lanes(dd);
  auto scaled = [&](size_t i) {
    auto v = hn::Mul(SumsToDouble(dd, sums + i), hn::Set(dd, scale));
    if constexpr (std::is_same_v<T, float>) {
      return hn::DemoteTo(hn::Rebind<float, decltype(dd)>(), v);
    } else {
      v = hn::Min(hn::Add(v, hn::Set(dd, 0.5)), hn::Set(dd, double(kMaxOf<T>)));
      return hn::DemoteTo(hn::Rebind<int32_t, decltype(dd)>(), v);
    }
  };
  WriteRow(dt, out, n, mode,
           [&](size_t i) {
             if constexpr (std::is_same_v<T, float>) {
               return hn::Combine(df, scaled(i + half), scaled(i));
             } else {
               const hn::RebindToSigned<decltype(df)> di;
               return SaturatingNarrow(dt, hn::Combine(di, scaled(i + half), scaled(i)));
             }
           },
           [&](size_t i) {
             const double v = double(sums[i]) * scale;
             if constexpr (std::is_same_v<T, float>) return static_cast<float>(v);
             else return static_cast<T>(std::clamp(std::trunc(v + 0.5), 0.0, double(kMaxOf<T>)));
           });
}

template <typename T, int S, typename Acc>
void SuperRows(const ResizeTables& t, const ResizePlane& p, int y0, int y1, void* scratch) {
  const SuperPlan& plan = t.super;
  const ResizeSamples& x = t.samples;
  const size_t n = size_t(plan.accumulated) * S, slack = size_t(x.taps) * S + x.lanes;
  Acc* acc = static_cast<Acc*>(scratch);
  Acc* sums = acc + n + slack;
  std::fill(acc + n, acc + n + slack, Acc(0));
  for (int y = y0; y < y1; ++y) {
    const SuperSpan span = plan.rows[y];
    const T* rows[kRowsPerPass];
    float weights[kRowsPerPass];
    int count = 0;
    bool first = true;
    auto add = [&](int32_t r, float weight) {
      rows[count] = SrcRow<T>(p, r);
      weights[count++] = weight;
      if (count == kRowsPerPass) {
        AccumulateRows(acc, rows, weights, count, n, first);
        first = false;
        count = 0;
      }
    };
    if (span.head != 0) add(span.begin - 1, span.head);
    for (int32_t r = span.begin; r < span.end; ++r) add(r, 1.0f);
    if (span.tail != 0) add(span.end, span.tail);
    if (count > 0) {
      AccumulateRows(acc, rows, weights, count, n, first);
      first = false;
    }
    if (first) std::fill(acc, acc + n, kEmptySum<Acc>);
    ColumnSums<S>(acc, x, sums);
    WriteSums(sums, plan.scale, DstRow<T>(p, y), size_t(t.x.count) * S, {p.keepAlpha, false});
  }
}

// ---- Dispatch ------------------------------------------------------------------

template <typename T, int S>
void RowsOf(const ResizeTables& t, const ResizePlane& p, int y0, int y1, void* scratch) {
  switch (t.kind) {
    case ResizeKind::kNearest:
      if constexpr (S == 4) {
        if (p.keepAlpha) return NearestRows<T, 4, 3>(t, p, y0, y1);
      }
      return NearestRows<T, S, S>(t, p, y0, y1);
    case ResizeKind::kLinear:
      return InterpolatedRows<T, S, ResizeKind::kLinear>(t, p, y0, y1, scratch);
    case ResizeKind::kCubic:
      return InterpolatedRows<T, S, ResizeKind::kCubic>(t, p, y0, y1, scratch);
    case ResizeKind::kLanczos:
      return InterpolatedRows<T, S, ResizeKind::kLanczos>(t, p, y0, y1, scratch);
    case ResizeKind::kSuper:
      if constexpr (!std::is_same_v<T, float>) {
        if (t.super.wholeSums)
          return SuperRows<T, S, uint32_t>(t, p, y0, y1, scratch);
      }
      return SuperRows<T, S, float>(t, p, y0, y1, scratch);
  }
}

template <typename T>
void Rows(const ResizeTables& t, const ResizePlane& p, int y0, int y1, void* scratch) {
  switch (p.channels) {
    case 1: return RowsOf<T, 1>(t, p, y0, y1, scratch);
    case 3: return RowsOf<T, 3>(t, p, y0, y1, scratch);
    default: return RowsOf<T, 4>(t, p, y0, y1, scratch);
  }
}

}  // namespace

void ResizeRows8u(const ResizeTables& t, const ResizePlane& p, int y0, int y1, void* scratch) {
  Rows<uint8_t>(t, p, y0, y1, scratch);
}
void ResizeRows16u(const ResizeTables& t, const ResizePlane& p, int y0, int y1, void* scratch) {
  Rows<uint16_t>(t, p, y0, y1, scratch);
}
void ResizeRows32f(const ResizeTables& t, const ResizePlane& p, int y0, int y1, void* scratch) {
  Rows<float>(t, p, y0, y1, scratch);
}
int FloatLanes() { return int(hn::Lanes(hn::ScalableTag<float>())); }

}  // namespace HWY_NAMESPACE
}  // namespace vok
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace vok {

HWY_EXPORT(ResizeRows8u);
HWY_EXPORT(ResizeRows16u);
HWY_EXPORT(ResizeRows32f);
HWY_EXPORT(FloatLanes);

int ResizeLanes() { return HWY_DYNAMIC_DISPATCH(FloatLanes)(); }

template <>
void ResizeRows<Vok8u>(const ResizeTables& t, const ResizePlane& p, int y0, int y1, void* scratch) {
  HWY_DYNAMIC_DISPATCH(ResizeRows8u)(t, p, y0, y1, scratch);
}
template <>
void ResizeRows<Vok16u>(const ResizeTables& t, const ResizePlane& p, int y0, int y1, void* scratch) {
  HWY_DYNAMIC_DISPATCH(ResizeRows16u)(t, p, y0, y1, scratch);
}
template <>
void ResizeRows<Vok32f>(const ResizeTables& t, const ResizePlane& p, int y0, int y1, void* scratch) {
  HWY_DYNAMIC_DISPATCH(ResizeRows32f)(t, p, y0, y1, scratch);
}

}  // namespace vok
#endif  // HWY_ONCE
