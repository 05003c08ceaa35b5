// Row kernels of Compare, Threshold and Complement, compiled once per
// instruction set. Interleaved pixels are split into one vector per channel,
// so per-channel constants are plain broadcasts and a compare reduces the
// channels of a pixel with an And. Partial groups of a row go through
// zero-padded stack copies, so nothing outside the row is read or written.
// Calls too large to stay in the cache stream their one-channel output past
// it.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "data/compare_kernels.cpp"
#include "hwy/foreach_target.h"  // IWYU pragma: keep

#include <type_traits>
#include <utility>

#include "data/compare.h"
#include "foundation/rows-inl.h"
#include "hwy/highway.h"

HWY_BEFORE_NAMESPACE();
namespace vok {
namespace HWY_NAMESPACE {
namespace {

// ---- Pixels as one vector per channel ----------------------------------

template <class D>
using Channels = hn::Vec<D>[4];

// f(c) for c = 0 .. kCount - 1 as compile-time constants, so that the
// channel vectors stay in registers instead of an array on the stack.
template <int kCount, class F>
HWY_INLINE void ForEachChannel(const F& f) {
  [&]<int... c>(std::integer_sequence<int, c...>) {
    (f(std::integral_constant<int, c>{}), ...);
  }(std::make_integer_sequence<int, kCount>{});
}

template <int kChannels, class D, typename T>
HWY_INLINE void LoadPixels(D d, const T* p, Channels<D>& v) {
  if constexpr (kChannels == 1) {
    v[0] = hn::LoadU(d, p);
  } else if constexpr (kChannels == 3) {
    hn::LoadInterleaved3(d, p, v[0], v[1], v[2]);
  } else {
    hn::LoadInterleaved4(d, p, v[0], v[1], v[2], v[3]);
  }
}

// Only one-channel rows are ever streamed.
template <int kChannels, class D, typename T, class Streamed>
HWY_INLINE void StorePixels(D d, const Channels<D>& v, T* p, Streamed streamed) {
  if constexpr (kChannels == 1) {
    StoreGroup(streamed, v[0], d, p);
  } else if constexpr (kChannels == 3) {
    hn::StoreInterleaved3(v[0], v[1], v[2], d, p);
  } else {
    hn::StoreInterleaved4(v[0], v[1], v[2], v[3], d, p);
  }
}

// Samples of a partial group, zero-padded to a whole group of pixels.
template <typename T, int kChannels>
struct PaddedGroup {
  HWY_ALIGN T samples[kChannels * HWY_MAX_BYTES / sizeof(T)];
  PaddedGroup(const T* p, size_t count) {
    CopyIntoPadded<sizeof(samples)>(samples, p, count * sizeof(T));
  }
};

// Integer vectors have no <= of their own in the Highway release we build
// on; for floats the negation would turn NaN into true.
template <class V>
HWY_INLINE auto LessEq(V a, V b) {
  if constexpr (hwy::IsFloat<hn::TFromV<V>>()) {
    return hn::Le(a, b);
  } else {
    return hn::Not(hn::Gt(a, b));
  }
}

// ---- Compare -------------------------------------------------------------

// The relation of sample to sample or constant. Greater forms test the
// reverse relation, so NaN fails every one of them.
template <Relation kRelation>
struct Holds {
  float eps;
  template <class V>
  HWY_INLINE auto operator()(V a, V b) const {
    if constexpr (kRelation == Relation::kLess) return hn::Lt(a, b);
    if constexpr (kRelation == Relation::kLessEq) return LessEq(a, b);
    if constexpr (kRelation == Relation::kEq) return hn::Eq(a, b);
    if constexpr (kRelation == Relation::kGreaterEq) return LessEq(b, a);
    if constexpr (kRelation == Relation::kGreater) return hn::Lt(b, a);
    if constexpr (kRelation == Relation::kEqualEps) {
      const hn::DFromV<V> d;
      return hn::Le(hn::Abs(hn::Sub(a, b)), hn::Set(d, eps));
    }
  }
};

// 255 or 0 per lane of a mask, as bytes.
template <class D, class M>
HWY_INLINE auto MaskBytes(D d, M mask) {
  const hn::Rebind<uint8_t, D> d8;
  const auto ones = hn::VecFromMask(d, mask);
  if constexpr (sizeof(hn::TFromD<D>) == 1) {
    return hn::BitCast(d8, ones);
  } else {
    const hn::RebindToSigned<D> di;
    const hn::Rebind<int8_t, D> d8s;
    return hn::BitCast(d8, hn::DemoteTo(d8s, hn::BitCast(di, ones)));
  }
}

// The second operand is the pixels of an image or, with kConstant, one
// constant per channel held in registers for the whole call. kTested is 3
// for AC4, which ignores alpha.
template <typename T, int kChannels, int kTested, bool kConstant, class Test>
void CompareRowsWith(const CompareJob& job, const Test& test) {
  const hn::ScalableTag<T> d;
  const hn::Rebind<uint8_t, decltype(d)> d8;
  const size_t lanes = hn::Lanes(d);
  Channels<decltype(d)> constant;
  if constexpr (kConstant) {
    ForEachChannel<kTested>([&](auto c) {
      constant[c] = hn::Set(d, static_cast<const T*>(job.constant)[c]);
    });
  }
  const auto group = [&](const T* a, const T* b) {
    Channels<decltype(d)> va, vb;
    LoadPixels<kChannels>(d, a, va);
    if constexpr (!kConstant) LoadPixels<kChannels>(d, b, vb);
    const auto& rhs = kConstant ? constant : vb;
    auto all = test(va[0], rhs[0]);
    ForEachChannel<kTested - 1>(
        [&](auto c) { all = hn::And(all, test(va[c + 1], rhs[c + 1])); });
    return MaskBytes(d, all);
  };
  const size_t rowSamples = static_cast<size_t>(job.width) * kChannels;
  const bool oneRun = Contiguous({{job.aStep, rowSamples * sizeof(T)},
                                  {kConstant ? job.aStep : job.bStep,
                                   rowSamples * sizeof(T)},
                                  {job.dstStep, static_cast<size_t>(job.width)}});
  const size_t width = oneRun ? static_cast<size_t>(job.width) * job.height : job.width;
  const int height = oneRun ? 1 : job.height;
  const size_t rowBytes =
      width * (kChannels * sizeof(T) * (kConstant ? 1 : 2) + 1);
  const bool stream = rowBytes * height >= kStreamingBytes;
  for (int y = 0; y < height; ++y) {
    const T* a = RowAt(static_cast<const T*>(job.a), job.aStep, y);
    // With a constant, b is a stand-in that the group never reads.
    const T* b = kConstant ? a : RowAt(static_cast<const T*>(job.b), job.bStep, y);
    uint8_t* out = RowAt(job.dst, job.dstStep, y);
    CoverRow(
        out, lanes, width, stream,
        [&](size_t x, auto streamed) {
          StoreGroup(streamed, group(a + x * kChannels, b + x * kChannels), d8,
                     out + x);
        },
        [&](size_t x) {
          const auto mask = group(a + x * kChannels, b + x * kChannels);
          return [&, mask, x] { hn::StoreU(mask, d8, out + x); };
        },
        [&](size_t x, size_t pixels) {
          const size_t count = pixels * kChannels;
          const PaddedGroup<T, kChannels> partA(a + x * kChannels, count);
          const PaddedGroup<T, kChannels> partB(
              kConstant ? partA.samples : b + x * kChannels,
              kConstant ? 0 : count);
          HWY_ALIGN uint8_t partOut[HWY_MAX_BYTES];
          hn::Store(group(partA.samples, partB.samples), d8, partOut);
          CopyFromPadded(out + x, partOut, pixels);
        });
  }
  hwy::FlushStream();
}

template <typename T, int kChannels, int kTested, class Test>
void CompareRowsWith(const CompareJob& job, const Test& test) {
  if (job.constant != nullptr) {
    CompareRowsWith<T, kChannels, kTested, true>(job, test);
  } else {
    CompareRowsWith<T, kChannels, kTested, false>(job, test);
  }
}

template <typename T, int kChannels, int kTested>
void CompareRowsOf(const CompareJob& job) {
  switch (job.relation) {
    case Relation::kLess:
      return CompareRowsWith<T, kChannels, kTested>(job,
                                                    Holds<Relation::kLess>{});
    case Relation::kLessEq:
      return CompareRowsWith<T, kChannels, kTested>(job,
                                                    Holds<Relation::kLessEq>{});
    case Relation::kEq:
      return CompareRowsWith<T, kChannels, kTested>(job,
                                                    Holds<Relation::kEq>{});
    case Relation::kGreaterEq:
      return CompareRowsWith<T, kChannels, kTested>(
          job, Holds<Relation::kGreaterEq>{});
    case Relation::kGreater:
      return CompareRowsWith<T, kChannels, kTested>(
          job, Holds<Relation::kGreater>{});
    case Relation::kEqualEps:
      if constexpr (std::is_same_v<T, float>) {
        return CompareRowsWith<T, kChannels, kTested>(
            job, Holds<Relation::kEqualEps>{job.eps});
      }
      return;
  }
}

template <typename T>
void CompareRows(const CompareJob& job) {
  switch (job.layout.channels) {
    case 1: return CompareRowsOf<T, 1, 1>(job);
    case 3: return CompareRowsOf<T, 3, 3>(job);
    default:
      return job.layout.keepAlpha ? CompareRowsOf<T, 4, 3>(job)
                                  : CompareRowsOf<T, 4, 4>(job);
  }
}

// ---- Threshold -----------------------------------------------------------

// One rule per channel c, its constants broadcast once.
template <class D>
struct ThresholdConstants {
  Channels<D> t, v, tUpper, vUpper;
  ThresholdConstants(D d, const ThresholdJob& job) {
    using T = hn::TFromD<D>;
    const auto broadcast = [&](const void* p, Channels<D>& out) {
      ForEachChannel<4>([&](auto c) {
        out[c] = hn::Set(d, p ? static_cast<const T*>(p)[c] : T{0});
      });
    };
    broadcast(job.threshold, t);
    broadcast(job.value, v);
    broadcast(job.upperThreshold, tUpper);
    broadcast(job.upperValue, vUpper);
  }
};

// NaN samples fail every comparison below: max and min give t, the lower
// replacement gives v, the upper one keeps the NaN. Integers take the single
// instruction of Max and Min, whose NaN result Highway leaves open.
template <ThresholdRule kRule, class D>
HWY_INLINE hn::Vec<D> ApplyThreshold(const ThresholdConstants<D>& k, int c,
                                     hn::Vec<D> x) {
  constexpr bool kFloat = hwy::IsFloat<hn::TFromD<D>>();
  if constexpr (kRule == ThresholdRule::kLess) {
    return kFloat ? hn::IfThenElse(hn::Gt(x, k.t[c]), x, k.t[c])
                  : hn::Max(x, k.t[c]);
  } else if constexpr (kRule == ThresholdRule::kGreater) {
    return kFloat ? hn::IfThenElse(hn::Lt(x, k.t[c]), x, k.t[c])
                  : hn::Min(x, k.t[c]);
  } else if constexpr (kRule == ThresholdRule::kLessVal) {
    return hn::IfThenElse(LessEq(k.t[c], x), x, k.v[c]);
  } else if constexpr (kRule == ThresholdRule::kGreaterVal) {
    return hn::IfThenElse(hn::Lt(k.t[c], x), k.v[c], x);
  } else {
    const auto upper = hn::IfThenElse(hn::Gt(x, k.tUpper[c]), k.vUpper[c], x);
    return hn::IfThenElse(LessEq(k.t[c], x), upper, k.v[c]);
  }
}

// kKeepAlpha is AC4: three channels are thresholded and the alpha of dst is
// put back before whole pixels are stored.
template <typename T, int kChannels, bool kKeepAlpha, ThresholdRule kRule>
void ThresholdRowsWith(const ThresholdJob& job) {
  const hn::ScalableTag<T> d;
  const size_t lanes = hn::Lanes(d);
  const ThresholdConstants<decltype(d)> constants(d, job);
  using Pixels = Channels<decltype(d)>;
  const auto thresholded = [&](const T* src, const T* oldDst, Pixels& v) {
    LoadPixels<kChannels>(d, src, v);
    ForEachChannel<kKeepAlpha ? 3 : kChannels>(
        [&](auto c) { v[c] = ApplyThreshold<kRule>(constants, c, v[c]); });
    if constexpr (kKeepAlpha) {
      Pixels old;
      LoadPixels<kChannels>(d, oldDst, old);
      v[3] = old[3];
    }
  };
  const auto group = [&](const T* src, const T* oldDst, T* out,
                         auto streamed) {
    Pixels v;
    thresholded(src, oldDst, v);
    StorePixels<kChannels>(d, v, out, streamed);
  };
  const size_t rowBytes = static_cast<size_t>(job.width) * kChannels * sizeof(T);
  const bool oneRun =
      Contiguous({{job.srcStep, rowBytes}, {job.dstStep, rowBytes}});
  const size_t width = oneRun ? static_cast<size_t>(job.width) * job.height : job.width;
  const int height = oneRun ? 1 : job.height;
  const bool stream =
      kChannels == 1 && width * 2 * sizeof(T) * height >= kStreamingBytes;
  for (int y = 0; y < height; ++y) {
    const T* src = RowAt(static_cast<const T*>(job.src), job.srcStep, y);
    T* out = RowAt(static_cast<T*>(job.dst), job.dstStep, y);
    CoverRow(
        out, lanes, width, stream,
        [&](size_t x, auto streamed) {
          const size_t i = x * kChannels;
          group(src + i, out + i, out + i, streamed);
        },
        [&](size_t x) {
          const size_t i = x * kChannels;
          Pixels v;
          thresholded(src + i, out + i, v);
          return [&, v, i] {
            StorePixels<kChannels>(d, v, out + i, std::false_type{});
          };
        },
        [&](size_t x, size_t pixels) {
          const size_t i = x * kChannels, count = pixels * kChannels;
          const PaddedGroup<T, kChannels> part(src + i, count);
          PaddedGroup<T, kChannels> partOut(out + i, kKeepAlpha ? count : 0);
          group(part.samples, partOut.samples, partOut.samples,
                std::false_type{});
          CopyFromPadded(out + i, partOut.samples, count * sizeof(T));
        });
  }
  hwy::FlushStream();
}

template <typename T, int kChannels, bool kKeepAlpha>
void ThresholdRowsOf(const ThresholdJob& job) {
  switch (job.rule) {
    case ThresholdRule::kLess:
      return ThresholdRowsWith<T, kChannels, kKeepAlpha, ThresholdRule::kLess>(
          job);
    case ThresholdRule::kGreater:
      return ThresholdRowsWith<T, kChannels, kKeepAlpha,
                               ThresholdRule::kGreater>(job);
    case ThresholdRule::kLessVal:
      return ThresholdRowsWith<T, kChannels, kKeepAlpha,
                               ThresholdRule::kLessVal>(job);
    case ThresholdRule::kGreaterVal:
      return ThresholdRowsWith<T, kChannels, kKeepAlpha,
                               ThresholdRule::kGreaterVal>(job);
    case ThresholdRule::kLessGreaterVal:
      return ThresholdRowsWith<T, kChannels, kKeepAlpha,
                               ThresholdRule::kLessGreaterVal>(job);
  }
}

template <typename T>
void ThresholdRows(const ThresholdJob& job) {
  switch (job.layout.channels) {
    case 1: return ThresholdRowsOf<T, 1, false>(job);
    case 3: return ThresholdRowsOf<T, 3, false>(job);
    default:
      return job.layout.keepAlpha ? ThresholdRowsOf<T, 4, true>(job)
                                  : ThresholdRowsOf<T, 4, false>(job);
  }
}

// ---- Complement ----------------------------------------------------------

// Two's complement to sign and magnitude: |x| with x's sign bit. The most
// negative value is its own absolute value and stays.
struct ComplementRule {
  hn::ScalableTag<int32_t> d;
  HWY_INLINE auto operator()(const int32_t* a, const int32_t*) const {
    const auto x = hn::LoadU(d, a);
    const auto sign = hn::Set(d, hwy::LimitsMin<int32_t>());
    return hn::Or(hn::Abs(x), hn::And(x, sign));
  }
};

}  // namespace

void CompareRows8u(const CompareJob& job) { CompareRows<uint8_t>(job); }
void CompareRows16s(const CompareJob& job) { CompareRows<int16_t>(job); }
void CompareRows32f(const CompareJob& job) { CompareRows<float>(job); }
void ThresholdRows8u(const ThresholdJob& job) { ThresholdRows<uint8_t>(job); }
void ThresholdRows16s(const ThresholdJob& job) { ThresholdRows<int16_t>(job); }
void ThresholdRows32f(const ThresholdJob& job) { ThresholdRows<float>(job); }
void ComplementRows(const ElementRows& rows) {
  ApplyRows<int32_t, int32_t>(rows, 0, rows.height, ComplementRule{});
}

}  // namespace HWY_NAMESPACE
}  // namespace vok
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace vok {

HWY_EXPORT(CompareRows8u);
HWY_EXPORT(CompareRows16s);
HWY_EXPORT(CompareRows32f);
HWY_EXPORT(ThresholdRows8u);
HWY_EXPORT(ThresholdRows16s);
HWY_EXPORT(ThresholdRows32f);
HWY_EXPORT(ComplementRows);

template <>
void RunCompare<Vok8u>(const CompareJob& job) {
  HWY_DYNAMIC_DISPATCH(CompareRows8u)(job);
}
template <>
void RunCompare<Vok16s>(const CompareJob& job) {
  HWY_DYNAMIC_DISPATCH(CompareRows16s)(job);
}
template <>
void RunCompare<Vok32f>(const CompareJob& job) {
  HWY_DYNAMIC_DISPATCH(CompareRows32f)(job);
}
template <>
void RunThreshold<Vok8u>(const ThresholdJob& job) {
  HWY_DYNAMIC_DISPATCH(ThresholdRows8u)(job);
}
template <>
void RunThreshold<Vok16s>(const ThresholdJob& job) {
  HWY_DYNAMIC_DISPATCH(ThresholdRows16s)(job);
}
template <>
void RunThreshold<Vok32f>(const ThresholdJob& job) {
  HWY_DYNAMIC_DISPATCH(ThresholdRows32f)(job);
}
void RunComplement(const ElementRows& rows) {
  HWY_DYNAMIC_DISPATCH(ComplementRows)(rows);
}

}  // namespace vok
#endif  // HWY_ONCE
