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

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <optional>
#include <type_traits>

#include "foundation/image.h"
#include "hwy/cache_control.h"
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

// Float lanes rounded to int32 in the thread's rounding mode, by the bare
// conversion: Highway's own repairs overflow, which callers that keep their
// values in range do not need. Overflow gives INT32_MIN.
template <class V>
HWY_INLINE auto RoundInMode(V v) {
  using VI = hn::Vec<hn::RebindToSigned<hn::DFromV<V>>>;
  if constexpr (sizeof(v.raw) == 16) return VI{_mm_cvtps_epi32(v.raw)};
#if HWY_TARGET <= HWY_AVX2
  if constexpr (sizeof(v.raw) == 32) return VI{_mm256_cvtps_epi32(v.raw)};
#endif
#if HWY_TARGET <= HWY_AVX3
  if constexpr (sizeof(v.raw) == 64) return VI{_mm512_cvtps_epi32(v.raw)};
#endif
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

// Room for `count` samples of T, rounded up to whole vectors of the widest
// instruction set, as the buffers below need.
template <typename T>
constexpr size_t PaddedCount(size_t count) {
  return (count * sizeof(T) + HWY_MAX_BYTES - 1) / HWY_MAX_BYTES * HWY_MAX_BYTES /
         sizeof(T);
}

// The first `bytes` bytes at `from` into the aligned buffer `to` of kSize
// bytes, zero-filling the rest. AVX-512 does it with masked moves, which
// need no call and touch nothing past `bytes`.
template <size_t kSize>
HWY_INLINE void CopyIntoPadded(void* to, const void* from, size_t bytes) {
#if HWY_TARGET <= HWY_AVX3
  const hn::ScalableTag<uint8_t> d8;
  constexpr size_t kVector = hn::MaxLanes(d8);
  static_assert(kSize % kVector == 0);
  for (size_t k = 0; k < kSize; k += kVector) {
    // Chunks past the end are plain zeros: a masked load with no lane to
    // load still costs as much as a full one.
    const size_t valid = bytes > k ? std::min(bytes - k, kVector) : 0;
    uint8_t* chunk = static_cast<uint8_t*>(to) + k;
    if (valid == 0) {
      hn::Store(hn::Zero(d8), d8, chunk);
    } else {
      hn::Store(hn::MaskedLoad(hn::FirstN(d8, valid), d8,
                               static_cast<const uint8_t*>(from) + k),
                d8, chunk);
    }
  }
#else
  std::memset(to, 0, kSize);
  std::memcpy(to, from, bytes);
#endif
}

// The first `bytes` bytes of the aligned buffer `from` out to `to`.
HWY_INLINE void CopyFromPadded(void* to, const void* from, size_t bytes) {
#if HWY_TARGET <= HWY_AVX3
  const hn::ScalableTag<uint8_t> d8;
  constexpr size_t kVector = hn::MaxLanes(d8);
  for (size_t k = 0; k < bytes; k += kVector) {
    hn::BlendedStore(hn::Load(d8, static_cast<const uint8_t*>(from) + k),
                     hn::FirstN(d8, std::min(bytes - k, kVector)), d8,
                     static_cast<uint8_t*>(to) + k);
  }
#else
  std::memcpy(to, from, bytes);
#endif
}

// Applies `rule` to the first `count` samples, fewer than a vector, through
// zero-padded stack copies so that nothing outside them is read or written.
template <bool kKeepAlpha, class Rule, typename TA, typename TB, typename TO>
HWY_INLINE void ApplyPartial(const Rule& rule, const TA* a, const TB* b,
                             TO* out, size_t count) {
  const auto d = rule.d;
  constexpr size_t kLanes = hn::MaxLanes(decltype(rule.d)());
  HWY_ALIGN TA partA[PaddedCount<TA>(kLanes)];
  HWY_ALIGN TB partB[PaddedCount<TB>(kLanes)];
  HWY_ALIGN TO partOut[PaddedCount<TO>(kLanes)];
  CopyIntoPadded<sizeof(partA)>(partA, a, count * sizeof(TA));
  CopyIntoPadded<sizeof(partB)>(partB, b, count * sizeof(TB));
  auto v = rule(partA, partB);
  if (kKeepAlpha) {
    CopyIntoPadded<sizeof(partOut)>(partOut, out, count * sizeof(TO));
    v = hn::IfThenElse(AlphaLanes(d), hn::Load(d, partOut), v);
  }
  hn::Store(v, d, partOut);
  CopyFromPadded(out, partOut, count * sizeof(TO));
}

// Streaming stores bypass the cache; they need a destination aligned to
// whole vectors, which a partial first group of `head` samples reaches. False
// where no group can: vectors under 16 bytes, or samples off their own
// alignment.
template <typename TO>
HWY_INLINE bool StreamingHead(const TO* out, size_t lanes, size_t n,
                              size_t& head) {
  const size_t vectorBytes = lanes * sizeof(TO);
  const size_t misaligned = reinterpret_cast<uintptr_t>(out) % vectorBytes;
  if (vectorBytes < 16 || misaligned % sizeof(TO) != 0) return false;
  head = misaligned == 0 ? 0 : std::min(n, (vectorBytes - misaligned) / sizeof(TO));
  return true;
}

// Rows whose sources and destination together take at least this many bytes
// do not stay in the cache from one call to the next, and their destination
// is written past it, where reading it in first would only cost bandwidth.
// Below, the cache keeps the destination, and plain stores are faster.
constexpr size_t kStreamingBytes = size_t{16} << 20;

// Covers positions [0, n) of a row whose output `out` holds one result per
// position, in groups of `lanes`: whole(i, streamed) for each whole group.
// A row of at least one group that the groups do not fill ends in a group
// that overlaps the one before it: last(i) computes it before anything is
// stored, so in-place rows read their own samples, and returns the store to
// make at the end. Shorter rows go to partial(i, count). With `stream`, a
// partial head aligns out, the groups after it get std::true_type for
// `streamed`, to store past the cache, and partial takes the rest.
template <typename TO, class Whole, class Last, class Partial>
HWY_INLINE void CoverRow(TO* out, size_t lanes, size_t n, bool stream,
                         const Whole& whole, const Last& last,
                         const Partial& partial) {
  size_t i = 0;
  if (stream && StreamingHead(out, lanes, n, i)) {
    if (i != 0) partial(0, i);
    for (; i + lanes <= n; i += lanes) whole(i, std::true_type{});
    if (i < n) partial(i, n - i);
    return;
  }
  if (n < lanes) {
    if (n != 0) partial(0, n);
    return;
  }
  // One loop for both cases: the compiler inlines `whole` at few call sites.
  std::optional<decltype(last(0))> storeLast;
  if (n % lanes != 0) storeLast.emplace(last(n - lanes));
  for (; i + lanes <= n; i += lanes) whole(i, std::false_type{});
  if (storeLast) (*storeLast)();
}

// The store of a whole group that CoverRow handed `streamed`.
template <class Streamed, class V, class D, typename T>
HWY_INLINE void StoreGroup(Streamed, V v, D d, T* p) {
  if constexpr (Streamed::value) {
    hn::Stream(v, d, p);
  } else {
    hn::StoreU(v, d, p);
  }
}

// Applies `rule` to n samples of a and b into out.
template <bool kKeepAlpha, bool kStream, class Rule, typename TA, typename TB,
          typename TO>
HWY_INLINE void ApplyRowImpl(const Rule& shared, const TA* a, const TB* b,
                             TO* out, size_t n) {
  // A copy of its own, which byte stores cannot alias: the rule's constants
  // then stay in registers for the whole row.
  const Rule rule = shared;
  const auto d = rule.d;
  const auto alpha = AlphaLanes(d);
  CoverRow(
      out, hn::Lanes(d), n, kStream,
      [&](size_t i, auto streamed) {
        auto v = rule(a + i, b + i);
        if (kKeepAlpha) v = hn::IfThenElse(alpha, hn::LoadU(d, out + i), v);
        StoreGroup(streamed, v, d, out + i);
      },
      [&](size_t i) {
        const auto v = rule(a + i, b + i);
        return [&, v, i] {
          const auto kept =
              kKeepAlpha ? hn::IfThenElse(alpha, hn::LoadU(d, out + i), v) : v;
          hn::StoreU(kept, d, out + i);
        };
      },
      [&](size_t i, size_t count) {
        ApplyPartial<kKeepAlpha>(rule, a + i, b + i, out + i, count);
      });
}

template <class Rule, typename TA, typename TB, typename TO>
HWY_INLINE void ApplyRow(const Rule& rule, const TA* a, const TB* b, TO* out,
                         size_t n, bool keepAlpha, bool stream) {
  if (keepAlpha) {
    ApplyRowImpl<true, false>(rule, a, b, out, n);
  } else if (stream) {
    ApplyRowImpl<false, true>(rule, a, b, out, n);
  } else {
    ApplyRowImpl<false, false>(rule, a, b, out, n);
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
  // b counts when it is an image of its own, not a repeat of a.
  const bool secondImage = rows.b != nullptr && rows.b != rows.a;
  const size_t rowBytes =
      n * (sizeof(T) + (secondImage ? sizeof(T) : 0) + sizeof(TO));
  const bool stream = rowBytes * rows.height >= kStreamingBytes;
  if (rows.constant == nullptr) {
    const bool oneRun = Contiguous({{rows.aStep, n * sizeof(T)},
                                    {rows.bStep, n * sizeof(T)},
                                    {rows.dstStep, n * sizeof(TO)}});
    const int yEnd = oneRun ? y0 + 1 : y1;
    const size_t runSamples = oneRun ? n * static_cast<size_t>(y1 - y0) : n;
    for (int y = y0; y < yEnd; ++y) {
      ApplyRow(rule, RowAt(static_cast<const T*>(rows.a), rows.aStep, y),
               RowAt(static_cast<const T*>(rows.b), rows.bStep, y),
               RowAt(static_cast<TO*>(rows.dst), rows.dstStep, y), runSamples,
               keepAlpha, stream);
    }
    hwy::FlushStream();
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
      ApplyRow(rule, a + i, pattern, out + i, count, keepAlpha, stream);
    }
  }
  hwy::FlushStream();
}

}  // namespace HWY_NAMESPACE
}  // namespace vok
HWY_AFTER_NAMESPACE();

#endif  // VOK_FOUNDATION_ROWS_INL_H_
