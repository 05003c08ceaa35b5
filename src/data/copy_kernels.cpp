// Row kernels of Copy and Set, compiled once per instruction set. Samples
// are handled as unsigned words of their size. Forms that reorder channels
// walk a row in groups of one vector of pixels, deinterleaving with the
// instruction set's shuffles; the last group goes through stack copies that
// hold exactly the row's bytes, so nothing outside the row is read or
// written.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "data/copy_kernels.cpp"
#include "hwy/foreach_target.h"  // IWYU pragma: keep

#include <algorithm>
#include <array>
#include <cstring>
#include <type_traits>
#include <utility>

#include "data/copy.h"
#include "foundation/image.h"
#include "foundation/rows-inl.h"
#include "hwy/cache_control.h"
#include "hwy/highway.h"

HWY_BEFORE_NAMESPACE();
namespace vok {
namespace HWY_NAMESPACE {
namespace {

// ---- Whole rows, with stores past the cache for large images -------------

// Images above these sizes would only evict the caller's data from the
// cache, so their stores bypass it.
constexpr size_t kCopyBypassBytes = 131072;
constexpr size_t kSetBypassBytes = 262144;
constexpr size_t kSet16sC1BypassBytes = 180000;

// Writes `bytes` bytes from at(i), the source of row byte i, which is
// readable for one vector. Stores that bypass the cache need aligned
// addresses: the bytes before the first aligned one and after the last full
// vector take ordinary stores.
template <bool kBypass, class Source>
HWY_INLINE void WriteRow(uint8_t* dst, size_t bytes, const Source& at) {
  const hn::ScalableTag<uint8_t> d;
  const size_t lanes = hn::Lanes(d);
  auto store = [&](size_t i) {
    if constexpr (kBypass) {
      hn::Stream(hn::LoadU(d, at(i)), d, dst + i);
    } else {
      hn::StoreU(hn::LoadU(d, at(i)), d, dst + i);
    }
  };
  size_t i = 0;
  if (kBypass) {
    const size_t misalignment = reinterpret_cast<uintptr_t>(dst) % lanes;
    i = std::min(bytes, misalignment == 0 ? 0 : lanes - misalignment);
    std::memcpy(dst, at(0), i);
  }
  for (; i + 4 * lanes <= bytes; i += 4 * lanes) {
    store(i);
    store(i + lanes);
    store(i + 2 * lanes);
    store(i + 3 * lanes);
  }
  for (; i + lanes <= bytes; i += lanes) store(i);
  std::memcpy(dst + i, at(i), bytes - i);
}

// Rows of `rowBytes`, or one long row when the image has no gaps.
struct Rows {
  size_t bytes;
  int count;
};
inline Rows Fold(size_t rowBytes, int height, ptrdiff_t srcStep,
                 ptrdiff_t dstStep) {
  if (srcStep == dstStep && size_t(dstStep) == rowBytes)
    return Rows{rowBytes * height, 1};
  return Rows{rowBytes, height};
}

void CopyWhole(const CopyJob& job, size_t sampleBytes) {
  const auto* src = static_cast<const uint8_t*>(job.src[0]);
  auto* dst = static_cast<uint8_t*>(job.dst[0]);
  if (src == dst && job.srcStep == job.dstStep) return;
  const Rows rows = Fold(size_t(job.width) * job.channels * sampleBytes,
                         job.height, job.srcStep, job.dstStep);
  if (rows.bytes * rows.count <= kCopyBypassBytes) {
    for (int y = 0; y < rows.count; ++y)
      std::memcpy(RowAt(dst, job.dstStep, y), RowAt(src, job.srcStep, y),
                  rows.bytes);
    return;
  }
  for (int y = 0; y < rows.count; ++y) {
    const uint8_t* from = RowAt(src, job.srcStep, y);
    WriteRow<true>(RowAt(dst, job.dstStep, y), rows.bytes,
                   [from](size_t i) { return from + i; });
  }
  hwy::FlushStream();
}

// A fill pattern: whole pixels of the value repeated over kPeriodBytes, a
// multiple of every pixel size, plus one vector for reads that start near
// its end. Built once per call.
constexpr size_t kPeriodBytes = 3072;

void SetWhole(const SetJob& job, size_t sampleBytes) {
  const size_t pixelBytes = job.channels * sampleBytes;
  HWY_ALIGN uint8_t pattern[kPeriodBytes + HWY_MAX_BYTES];
  std::memcpy(pattern, job.value, pixelBytes);
  for (size_t n = pixelBytes; n < sizeof(pattern); n *= 2)
    std::memcpy(pattern + n, pattern, std::min(n, sizeof(pattern) - n));
  auto at = [&pattern](size_t i) { return pattern + i % kPeriodBytes; };

  auto* dst = static_cast<uint8_t*>(job.dst);
  const Rows rows = Fold(size_t(job.width) * pixelBytes, job.height,
                         job.dstStep, job.dstStep);
  const size_t bypassAbove = sampleBytes == 2 && job.channels == 1
                                 ? kSet16sC1BypassBytes
                                 : kSetBypassBytes;
  if (rows.bytes * rows.count <= bypassAbove) {
    for (int y = 0; y < rows.count; ++y)
      WriteRow<false>(RowAt(dst, job.dstStep, y), rows.bytes, at);
    return;
  }
  for (int y = 0; y < rows.count; ++y)
    WriteRow<true>(RowAt(dst, job.dstStep, y), rows.bytes, at);
  hwy::FlushStream();
}

// ---- AC4 through the shared element-wise rows ----------------------------

// The rule that yields operand a (Copy) or operand b (Set's repeated value);
// ApplyRows keeps the destination's alpha.
template <typename T, bool kSecond>
struct Pass {
  hn::ScalableTag<T> d;
  HWY_INLINE auto operator()(const T* a, const T* b) const {
    return hn::LoadU(d, kSecond ? b : a);
  }
};

template <typename T>
void CopyAlpha(const CopyJob& job) {
  const ElementRows rows{job.src[0], job.srcStep, job.src[0], job.srcStep,
                         nullptr,    job.dst[0],  job.dstStep,
                         size_t(job.width) * 4,   job.height, kAC4};
  ApplyRows<T, T>(rows, 0, job.height, Pass<T, false>{});
}

template <typename T>
void SetAlpha(const SetJob& job) {
  T constant[4] = {};
  std::memcpy(constant, job.value, 3 * sizeof(T));
  const ElementRows rows{job.dst,  job.dstStep, nullptr,
                         0,        constant,    job.dst,
                         job.dstStep, size_t(job.width) * 4, job.height,
                         kAC4};
  ApplyRows<T, T>(rows, 0, job.height, Pass<T, true>{});
}

// ---- Pixel groups ----------------------------------------------------------

// How a kernel uses an operand: reads it, writes all of it, or writes part
// of what it reads.
enum class Access { kRead, kWrite, kUpdate };

// One operand of a row: its first byte, the bytes from pixel to pixel, the
// bytes from `p` that belong to the row, and how it is used.
struct Operand {
  uint8_t* p;
  size_t pixelBytes;
  size_t extentBytes;
  Access access;
  bool Read() const { return access != Access::kWrite; }
  bool Written() const { return access != Access::kRead; }
};

// Calls body(at) for the first `groups` groups, two per turn. The pointers
// are spelled out per operand rather than looped over, so that they stay in
// registers instead of being rebuilt on the stack for every vector.
template <size_t K, class Body, size_t... k>
HWY_INLINE void WalkGroups(size_t groups, size_t lanes,
                           const std::array<Operand, K>& s, const Body& body,
                           std::index_sequence<k...>) {
  std::array<uint8_t*, K> at = {s[k].p...};
  const std::array<size_t, K> stride = {lanes * s[k].pixelBytes...};
  size_t g = 0;
  for (; g + 2 <= groups; g += 2) {
    body(at);
    body(std::array<uint8_t*, K>{(at[k] + stride[k])...});
    ((at[k] += 2 * stride[k]), ...);
  }
  if (g < groups) body(at);
}

// Calls body(at) with at[k] pointing at the same group of `lanes` pixels in
// every operand. An operand that addresses one channel of interleaved pixels
// ends at that channel of the last pixel, so the last group, which may be
// full, goes through stack copies of exactly the remaining bytes.
template <size_t K, class Body>
HWY_INLINE void ForPixelGroups(size_t width, size_t lanes,
                               const std::array<Operand, K>& s,
                               const Body& body) {
  // An operand falls short of whole groups by less than one pixel, so this
  // takes at most one step per operand and no division.
  size_t groups = width / lanes;
  for (const Operand& operand : s)
    while (groups > 0 && groups * lanes * operand.pixelBytes > operand.extentBytes)
      --groups;
  WalkGroups(groups, lanes, s, body, std::make_index_sequence<K>());
  if (groups * lanes == width) return;
  std::array<uint8_t*, K> at;
  HWY_ALIGN uint8_t tail[K][4 * HWY_MAX_BYTES];
  size_t offset[K];
  for (size_t k = 0; k < K; ++k) {
    offset[k] = groups * lanes * s[k].pixelBytes;
    if (s[k].Read()) {
      CopyIntoPadded<sizeof(tail[k])>(tail[k], s[k].p + offset[k],
                                      s[k].extentBytes - offset[k]);
    }
    at[k] = tail[k];
  }
  body(at);
  for (size_t k = 0; k < K; ++k)
    if (s[k].Written())
      CopyFromPadded(s[k].p + offset[k], tail[k], s[k].extentBytes - offset[k]);
}

// Row y of an image, as an operand.
inline Operand OperandAt(const void* first, ptrdiff_t step, int y,
                       size_t pixelBytes, size_t extentBytes, Access access) {
  return Operand{RowAt(static_cast<uint8_t*>(const_cast<void*>(first)), step, y),
                pixelBytes, extentBytes, access};
}

// Byte counts of one row of w pixels of N samples T: all of it, from a
// channel to the same channel of the last pixel, and one plane.
template <typename T, size_t N>
struct RowBytes {
  explicit RowBytes(int width) : w(width) {}
  size_t w;
  size_t pixel = N * sizeof(T);
  size_t whole = w * pixel;
  size_t channel = (w - 1) * pixel + sizeof(T);
  size_t plane = w * sizeof(T);
};

template <size_t N, class D, class V>
HWY_INLINE void LoadPixels(D d, const uint8_t* p, V (&v)[N]) {
  const auto* t = reinterpret_cast<const hn::TFromD<D>*>(p);
  if constexpr (N == 1) {
    v[0] = hn::LoadU(d, t);
  } else if constexpr (N == 3) {
    hn::LoadInterleaved3(d, t, v[0], v[1], v[2]);
  } else {
    hn::LoadInterleaved4(d, t, v[0], v[1], v[2], v[3]);
  }
}

template <size_t N, class D, class V>
HWY_INLINE void StorePixels(D d, const V (&v)[N], uint8_t* p) {
  auto* t = reinterpret_cast<hn::TFromD<D>*>(p);
  if constexpr (N == 1) {
    hn::StoreU(v[0], d, t);
  } else if constexpr (N == 3) {
    hn::StoreInterleaved3(v[0], v[1], v[2], d, t);
  } else {
    hn::StoreInterleaved4(v[0], v[1], v[2], v[3], d, t);
  }
}

// Lanes whose pixel has a non-zero mask byte.
template <class D>
HWY_INLINE auto Selected(D d, const uint8_t* mask) {
  if constexpr (sizeof(hn::TFromD<D>) == 1) {
    return hn::Ne(hn::LoadU(d, mask), hn::Zero(d));
  } else {
    const hn::Rebind<uint8_t, D> d8;
    return hn::Ne(hn::PromoteTo(d, hn::LoadU(d8, mask)), hn::Zero(d));
  }
}

// The samples of a pixel that an operation writes: alpha is left out.
template <size_t N, bool kKeepAlpha>
constexpr size_t kWritten = kKeepAlpha ? 3 : N;

template <typename T, size_t N, bool kKeepAlpha>
void CopyMasked(const CopyJob& job) {
  using D = hn::ScalableTag<T>;
  const D d;
  using V = hn::Vec<D>;
  const RowBytes<T, N> b(job.width);
  for (int y = 0; y < job.height; ++y) {
    const std::array<Operand, 3> s = {
        OperandAt(job.src[0], job.srcStep, y, b.pixel, b.whole, Access::kRead),
        OperandAt(job.dst[0], job.dstStep, y, b.pixel, b.whole, Access::kUpdate),
        OperandAt(job.mask, job.maskStep, y, 1, b.w, Access::kRead)};
    ForPixelGroups(b.w, hn::Lanes(d), s, [&](const auto& at) {
      V from[N], to[N];
      LoadPixels(d, at[0], from);
      LoadPixels(d, at[1], to);
      const auto selected = Selected(d, at[2]);
      for (size_t c = 0; c < kWritten<N, kKeepAlpha>; ++c)
        to[c] = hn::IfThenElse(selected, from[c], to[c]);
      StorePixels(d, to, at[1]);
    });
  }
}

// Channel, extraction, insertion and the C3/AC4 conversions: NS samples per
// source pixel, ND per destination pixel. With kOneChannel the interleaved
// sides point at the chosen channel, so channel 0 of the loaded pixels is the
// one that moves; otherwise the first three samples move.
template <typename T, size_t NS, size_t ND, bool kOneChannel>
void CopyChannels(const CopyJob& job) {
  using D = hn::ScalableTag<T>;
  const D d;
  using V = hn::Vec<D>;
  const RowBytes<T, NS> from(job.width);
  const RowBytes<T, ND> to(job.width);
  const size_t fromExtent = kOneChannel && NS > 1 ? from.channel : from.whole;
  const size_t toExtent = kOneChannel && ND > 1 ? to.channel : to.whole;
  constexpr size_t kMoved = kOneChannel ? 1 : 3;
  for (int y = 0; y < job.height; ++y) {
    const std::array<Operand, 2> s = {
        OperandAt(job.src[0], job.srcStep, y, from.pixel, fromExtent, Access::kRead),
        OperandAt(job.dst[0], job.dstStep, y, to.pixel, toExtent,
                  kMoved < ND ? Access::kUpdate : Access::kWrite)};
    ForPixelGroups(from.w, hn::Lanes(d), s, [&](const auto& at) {
      V in[NS], out[ND];
      LoadPixels(d, at[0], in);
      if constexpr (kMoved < ND) LoadPixels(d, at[1], out);
      for (size_t c = 0; c < kMoved; ++c) out[c] = in[c];
      StorePixels(d, out, at[1]);
    });
  }
}

// Image bytes above which planar copies store past the cache, by direction,
// channels and sample size.
size_t PlanarBypassBytes(CopyKind kind, int channels, size_t sampleBytes) {
  const bool split = kind == CopyKind::kSplit, three = channels == 3;
  switch (sampleBytes) {
    case 1: return split ? 160000 : three ? 140000 : 180000;
    case 2: return split ? (three ? 1200000 : 1400000) : three ? 170000 : 180000;
    default: return split ? 640000 : three ? 180000 : 160000;
  }
}

// Pixels before the first group at which every written operand sits on a
// vector boundary, or `width` when they never do together.
template <size_t K>
size_t PixelsToAlignment(const std::array<Operand, K>& s, size_t vectorBytes,
                         size_t width) {
  for (size_t h = 0; h < std::min(width, vectorBytes); ++h) {
    bool aligned = true;
    for (const Operand& operand : s)
      if (operand.Written() &&
          reinterpret_cast<uintptr_t>(operand.p + h * operand.pixelBytes) % vectorBytes)
        aligned = false;
    if (aligned) return h;
  }
  return width;
}

// ForPixelGroups with body(at, bypass): with `bypass` the pixels up to the
// first aligned group take ordinary stores, the rest stores past the cache.
template <size_t K, class Body>
HWY_INLINE void ForPixelGroupsPast(size_t width, size_t lanes, size_t vectorBytes,
                                   bool bypass, const std::array<Operand, K>& s,
                                   const Body& body) {
  const auto ordinary = [&](const auto& at) { body(at, std::false_type()); };
  if (!bypass) return ForPixelGroups(width, lanes, s, ordinary);
  const size_t head = PixelsToAlignment(s, vectorBytes, width);
  if (head > 0) {
    std::array<Operand, K> first = s;
    for (Operand& operand : first) operand.extentBytes = head * operand.pixelBytes;
    ForPixelGroups(head, lanes, first, ordinary);
  }
  if (head == width) return;
  std::array<Operand, K> rest = s;
  for (Operand& operand : rest) {
    operand.p += head * operand.pixelBytes;
    operand.extentBytes -= head * operand.pixelBytes;
  }
  ForPixelGroups(width - head, lanes, rest,
                 [&](const auto& at) { body(at, std::true_type()); });
}

// A vector stored the ordinary way or past the cache (aligned).
template <class D, class V, class Bypass>
HWY_INLINE void Put(D d, V v, hn::TFromD<D>* p, Bypass) {
  if constexpr (Bypass::value) {
    hn::Stream(v, d, p);
  } else {
    hn::StoreU(v, d, p);
  }
}

template <typename T, size_t N>
void CopySplit(const CopyJob& job) {
  using D = hn::ScalableTag<T>;
  const D d;
  using V = hn::Vec<D>;
  const RowBytes<T, N> b(job.width);
  const bool bypass = b.whole * job.height >
                      PlanarBypassBytes(job.kind, N, sizeof(T));
  for (int y = 0; y < job.height; ++y) {
    std::array<Operand, N + 1> s;
    s[0] = OperandAt(job.src[0], job.srcStep, y, b.pixel, b.whole, Access::kRead);
    for (size_t c = 0; c < N; ++c)
      s[c + 1] = OperandAt(job.dst[c], job.dstStep, y, sizeof(T), b.plane, Access::kWrite);
    ForPixelGroupsPast(b.w, hn::Lanes(d), hn::Lanes(d) * sizeof(T), bypass, s,
                       [&](const auto& at, auto past) {
                         V v[N];
                         LoadPixels(d, at[0], v);
                         for (size_t c = 0; c < N; ++c)
                           Put(d, v[c], reinterpret_cast<T*>(at[c + 1]), past);
                       });
  }
  if (bypass) hwy::FlushStream();
}

template <typename T, size_t N>
void CopyJoin(const CopyJob& job) {
  using D = hn::ScalableTag<T>;
  const D d;
  using V = hn::Vec<D>;
  const size_t lanes = hn::Lanes(d);
  const RowBytes<T, N> b(job.width);
  const bool bypass = b.whole * job.height >
                      PlanarBypassBytes(job.kind, N, sizeof(T));
  for (int y = 0; y < job.height; ++y) {
    std::array<Operand, N + 1> s;
    s[0] = OperandAt(job.dst[0], job.dstStep, y, b.pixel, b.whole, Access::kWrite);
    for (size_t c = 0; c < N; ++c)
      s[c + 1] = OperandAt(job.src[c], job.srcStep, y, sizeof(T), b.plane, Access::kRead);
    ForPixelGroupsPast(b.w, lanes, lanes * sizeof(T), bypass, s,
                       [&](const auto& at, auto past) {
      V v[N];
      for (size_t c = 0; c < N; ++c)
        v[c] = hn::LoadU(d, reinterpret_cast<const T*>(at[c + 1]));
      auto* out = reinterpret_cast<T*>(at[0]);
      if constexpr (decltype(past)::value) {
        // Interleaved in the first cache, then streamed out.
        HWY_ALIGN T pixels[N * hn::MaxLanes(d)];
        StorePixels(d, v, reinterpret_cast<uint8_t*>(pixels));
        for (size_t k = 0; k < N; ++k)
          hn::Stream(hn::Load(d, pixels + k * lanes), d, out + k * lanes);
      } else {
        StorePixels(d, v, at[0]);
      }
    });
  }
  if (bypass) hwy::FlushStream();
}

template <typename T, size_t N, bool kKeepAlpha>
void SetMasked(const SetJob& job) {
  using D = hn::ScalableTag<T>;
  const D d;
  using V = hn::Vec<D>;
  const RowBytes<T, N> b(job.width);
  T value[4] = {};
  std::memcpy(value, job.value, kWritten<N, kKeepAlpha> * sizeof(T));
  V fill[N];
  for (size_t c = 0; c < N; ++c) fill[c] = hn::Set(d, value[c]);
  for (int y = 0; y < job.height; ++y) {
    const std::array<Operand, 2> s = {
        OperandAt(job.dst, job.dstStep, y, b.pixel, b.whole, Access::kUpdate),
        OperandAt(job.mask, job.maskStep, y, 1, b.w, Access::kRead)};
    ForPixelGroups(b.w, hn::Lanes(d), s, [&](const auto& at) {
      V to[N];
      LoadPixels(d, at[0], to);
      const auto selected = Selected(d, at[1]);
      for (size_t c = 0; c < kWritten<N, kKeepAlpha>; ++c)
        to[c] = hn::IfThenElse(selected, fill[c], to[c]);
      StorePixels(d, to, at[0]);
    });
  }
}

template <typename T, size_t N>
void SetChannel(const SetJob& job) {
  using D = hn::ScalableTag<T>;
  const D d;
  using V = hn::Vec<D>;
  const RowBytes<T, N> b(job.width);
  T value;
  std::memcpy(&value, job.value, sizeof(T));
  const V fill = hn::Set(d, value);
  for (int y = 0; y < job.height; ++y) {
    const std::array<Operand, 1> s = {
        OperandAt(job.dst, job.dstStep, y, b.pixel, b.channel, Access::kUpdate)};
    ForPixelGroups(b.w, hn::Lanes(d), s, [&](const auto& at) {
      V to[N];
      LoadPixels(d, at[0], to);
      to[0] = fill;
      StorePixels(d, to, at[0]);
    });
  }
}

// ---- Selection by form ----------------------------------------------------

template <typename T>
void CopyRowsOf(const CopyJob& job) {
  const bool three = job.channels == 3;
  switch (job.kind) {
    case CopyKind::kWhole: return CopyWhole(job, sizeof(T));
    case CopyKind::kAlpha: return CopyAlpha<T>(job);
    case CopyKind::kMasked:
      if (job.channels == 1) return CopyMasked<T, 1, false>(job);
      if (three) return CopyMasked<T, 3, false>(job);
      if (job.keepAlpha) return CopyMasked<T, 4, true>(job);
      return CopyMasked<T, 4, false>(job);
    case CopyKind::kChannel:
      return three ? CopyChannels<T, 3, 3, true>(job)
                   : CopyChannels<T, 4, 4, true>(job);
    case CopyKind::kExtract:
      return three ? CopyChannels<T, 3, 1, true>(job)
                   : CopyChannels<T, 4, 1, true>(job);
    case CopyKind::kInsert:
      return three ? CopyChannels<T, 1, 3, true>(job)
                   : CopyChannels<T, 1, 4, true>(job);
    case CopyKind::kC3ToAC4: return CopyChannels<T, 3, 4, false>(job);
    case CopyKind::kAC4ToC3: return CopyChannels<T, 4, 3, false>(job);
    case CopyKind::kSplit:
      return three ? CopySplit<T, 3>(job) : CopySplit<T, 4>(job);
    case CopyKind::kJoin:
      return three ? CopyJoin<T, 3>(job) : CopyJoin<T, 4>(job);
  }
}

template <typename T>
void SetRowsOf(const SetJob& job) {
  const bool three = job.channels == 3;
  switch (job.kind) {
    case SetKind::kWhole: return SetWhole(job, sizeof(T));
    case SetKind::kAlpha: return SetAlpha<T>(job);
    case SetKind::kChannel:
      return three ? SetChannel<T, 3>(job) : SetChannel<T, 4>(job);
    case SetKind::kMasked:
      if (job.channels == 1) return SetMasked<T, 1, false>(job);
      if (three) return SetMasked<T, 3, false>(job);
      if (job.keepAlpha) return SetMasked<T, 4, true>(job);
      return SetMasked<T, 4, false>(job);
  }
}

}  // namespace

void CopyRows(const CopyJob& job, size_t sampleBytes) {
  switch (sampleBytes) {
    case 1: return CopyRowsOf<uint8_t>(job);
    case 2: return CopyRowsOf<uint16_t>(job);
    case 4: return CopyRowsOf<uint32_t>(job);
  }
}

void SetRows(const SetJob& job, size_t sampleBytes) {
  switch (sampleBytes) {
    case 1: return SetRowsOf<uint8_t>(job);
    case 2: return SetRowsOf<uint16_t>(job);
    case 4: return SetRowsOf<uint32_t>(job);
  }
}

}  // namespace HWY_NAMESPACE
}  // namespace vok
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace vok {

HWY_EXPORT(CopyRows);
HWY_EXPORT(SetRows);

void RunCopy(const CopyJob& job, size_t sampleBytes) {
  HWY_DYNAMIC_DISPATCH(CopyRows)(job, sampleBytes);
}

void RunSet(const SetJob& job, size_t sampleBytes) {
  HWY_DYNAMIC_DISPATCH(SetRows)(job, sampleBytes);
}

}  // namespace vok
#endif  // HWY_ONCE
