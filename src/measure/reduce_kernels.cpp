// Kernels of the sums, extrema and norms, compiled once per instruction set.
// Results do not depend on the instruction set: integer sums are exact,
// extrema are order-free, and the float sums fix their lane layout (48 lanes
// for the fast sum, 4 for the fast norms) whatever the vector width.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "measure/reduce_kernels.cpp"
#include "hwy/foreach_target.h"  // IWYU pragma: keep

#include <cstring>
#include <limits>
#include <type_traits>

#include "hwy/highway.h"
#include "measure/reduce.h"

HWY_BEFORE_NAMESPACE();
namespace vok {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;
namespace {

// Integer lane accumulators are emptied into the wide totals after this many
// chunks: 32768 times any term below 65536 stays below 2^31, and 64-bit
// lanes are safe however large the image.
constexpr size_t kIntegerFlush = 32768;
constexpr size_t kNeverFlush = ~size_t{0};

// Vectors per chunk such that a chunk always holds whole pixels of 1, 3 or 4
// channels: 3 vectors of at least 4 lanes, or 6 vectors of 2.
template <class D>
constexpr size_t WholePixelVectors() {
  return hn::MaxLanes(D()) >= 4 ? 3 : 6;
}

// Walks the rows in chunks of kVectors vectors of rule.dv lanes, lane j of a
// chunk covering rule.kSamplesPerLane samples from sample j * that count.
// Each row starts a new chunk and its last partial chunk goes through
// zero-padded copies, so chunk lane j always belongs to channel
// (j * kSamplesPerLane) % channels and nothing outside a row is read. Zero
// must be neutral for rule.Combine. drain(lanes, count) takes the
// accumulators after rule.kFlushChunks chunks, after every row if
// rule.kDrainEachRow, and at the end.
template <size_t kVectors, class Rule, class Drain>
HWY_INLINE void FoldRows(const Rule& rule, const ReduceRows& rows,
                         const Drain& drain) {
  using T = typename Rule::T;
  using DV = std::remove_const_t<decltype(rule.dv)>;
  using TV = hn::TFromD<DV>;
  using V = hn::Vec<DV>;
  constexpr size_t kMaxLanes = HWY_MAX_BYTES / sizeof(TV);  // any tag's bound
  constexpr size_t kPerLane = Rule::kSamplesPerLane;
  const DV dv;
  const size_t lanes = hn::Lanes(dv);
  const size_t stride = lanes * kPerLane;
  const size_t chunk = kVectors * stride;

  V acc[kVectors];
  for (V& v : acc) v = hn::Zero(dv);
  size_t pending = 0;
  HWY_ALIGN TV out[kVectors * kMaxLanes];
  auto empty = [&] {
    for (size_t k = 0; k < kVectors; ++k) {
      hn::Store(acc[k], dv, out + k * lanes);
      acc[k] = hn::Zero(dv);
    }
    drain(out, kVectors * lanes);
    pending = 0;
  };
  auto add = [&](size_t k, const T* a, const T* b) {
    acc[k] = rule.Combine(acc[k], rule(a, b));
  };
  auto endChunk = [&] {
    if (++pending == Rule::kFlushChunks) empty();
  };

  const size_t n = rows.width * rows.layout.channels;
  for (int y = 0; y < rows.height; ++y) {
    const T* a = RowAt(static_cast<const T*>(rows.a), rows.aStep, y);
    // Rules of one image ignore b; the row itself stands in for it.
    const T* b = rows.b ? RowAt(static_cast<const T*>(rows.b), rows.bStep, y) : a;
    size_t i = 0;
    for (; i + chunk <= n; i += chunk) {
      for (size_t k = 0; k < kVectors; ++k)
        add(k, a + i + k * stride, b + i + k * stride);
      endChunk();
    }
    if (i < n) {
      // The partial last chunk: whole vectors from the row, the rest through
      // zero-padded copies.
      size_t k = 0;
      for (; i + stride <= n; i += stride, ++k) add(k, a + i, b + i);
      if (i < n) {
        HWY_ALIGN T tailA[kMaxLanes * kPerLane] = {};
        HWY_ALIGN T tailB[kMaxLanes * kPerLane] = {};
        std::memcpy(tailA, a + i, (n - i) * sizeof(T));
        std::memcpy(tailB, b + i, (n - i) * sizeof(T));
        add(k, tailA, tailB);
      }
      endChunk();
    }
    if (Rule::kDrainEachRow) empty();
  }
  if (!Rule::kDrainEachRow) empty();
}

// Common members of the rules. dv is the tag of the accumulator lanes.
template <class DV, typename TSample>
struct RuleBase {
  using T = TSample;
  static constexpr size_t kSamplesPerLane = 1;
  static constexpr size_t kFlushChunks = kIntegerFlush;
  static constexpr bool kDrainEachRow = false;
  DV dv;
};

// |a - b| of unsigned bytes without widening.
template <class V>
HWY_INLINE V AbsDiffU8(V a, V b) {
  return hn::Or(hn::SaturatedSub(a, b), hn::SaturatedSub(b, a));
}

// 8u x or x^2 (x = a or |a - b|) in 32-bit lanes, one sample per lane.
template <Term kTerm, bool kDiff>
struct U8Widened : RuleBase<hn::ScalableTag<uint32_t>, uint8_t> {
  HWY_INLINE auto operator()(const uint8_t* a, const uint8_t* b) const {
    const hn::Rebind<uint8_t, decltype(dv)> d8;
    auto x = hn::LoadU(d8, a);
    if (kDiff) x = AbsDiffU8(x, hn::LoadU(d8, b));
    const auto wide = hn::PromoteTo(dv, x);
    return kTerm == Term::kSquare ? hn::Mul(wide, wide) : wide;
  }
  template <class V>
  static V Combine(V acc, V x) { return hn::Add(acc, x); }
};

// 8u x (x = a or |a - b|) of one channel: eight samples per 64-bit lane.
template <bool kDiff>
struct U8Bytes : RuleBase<hn::ScalableTag<uint64_t>, uint8_t> {
  static constexpr size_t kSamplesPerLane = 8;
  HWY_INLINE auto operator()(const uint8_t* a, const uint8_t* b) const {
    const hn::Repartition<uint8_t, decltype(dv)> d8;
    auto x = hn::LoadU(d8, a);
    if (kDiff) x = AbsDiffU8(x, hn::LoadU(d8, b));
    return hn::SumsOf8(x);
  }
  template <class V>
  static V Combine(V acc, V x) { return hn::Add(acc, x); }
};

// 16s x or |x| (x = a or a - b) in 32-bit lanes.
template <Term kTerm, bool kDiff>
struct I16Widened : RuleBase<hn::ScalableTag<int32_t>, int16_t> {
  HWY_INLINE auto operator()(const int16_t* a, const int16_t* b) const {
    const hn::Rebind<int16_t, decltype(dv)> d16;
    auto x = hn::PromoteTo(dv, hn::LoadU(d16, a));
    if (kDiff) x = hn::Sub(x, hn::PromoteTo(dv, hn::LoadU(d16, b)));
    return kTerm == Term::kAbs ? hn::Abs(x) : x;
  }
  template <class V>
  static V Combine(V acc, V x) { return hn::Add(acc, x); }
};

// 16s x^2 (x = a or a - b) in 64-bit lanes: a difference squared needs 32
// bits unsigned, so the product is formed from the low halves of 64-bit
// lanes.
template <bool kDiff>
struct I16Squares : RuleBase<hn::ScalableTag<int64_t>, int16_t> {
  HWY_INLINE auto operator()(const int16_t* a, const int16_t* b) const {
    const hn::Rebind<int16_t, decltype(dv)> d16;
    const hn::Rebind<int32_t, decltype(dv)> d32;
    auto x = hn::PromoteTo(d32, hn::LoadU(d16, a));
    if (kDiff) x = hn::Sub(x, hn::PromoteTo(d32, hn::LoadU(d16, b)));
    const auto low = hn::BitCast(hn::Repartition<int32_t, decltype(dv)>(),
                                 hn::PromoteTo(dv, x));
    return hn::MulEven(low, low);
  }
  template <class V>
  static V Combine(V acc, V x) { return hn::Add(acc, x); }
};

// Exact per-channel totals of a rule's terms.
template <class Rule>
HWY_NOINLINE void SumRows(const Rule& rule, const ReduceRows& rows,
                          Int128 sums[4]) {
  const size_t channels = rows.layout.channels;
  for (int c = 0; c < 4; ++c) sums[c] = 0;
  FoldRows<WholePixelVectors<decltype(rule.dv)>()>(
      rule, rows, [&](const auto* lanes, size_t count) {
        for (size_t j = 0; j < count; ++j)
          sums[(j * Rule::kSamplesPerLane) % channels] += lanes[j];
      });
}

template <template <bool> class Rule>
void SumRowsOf(const ReduceRows& rows, Int128 sums[4]) {
  if (rows.b) {
    SumRows(Rule<true>{}, rows, sums);
  } else {
    SumRows(Rule<false>{}, rows, sums);
  }
}

template <bool kDiff> using U8Values = U8Widened<Term::kValue, kDiff>;
template <bool kDiff> using U8Squares = U8Widened<Term::kSquare, kDiff>;
template <bool kDiff> using I16Values = I16Widened<Term::kValue, kDiff>;
template <bool kDiff> using I16Abs = I16Widened<Term::kAbs, kDiff>;

// Largest |x| (x = a or a - b) of each lane, as unsigned lanes of the
// sample's width (|-32768| is 32768) or as floats with the sign cleared.
struct MaxAbsU8 : RuleBase<hn::ScalableTag<uint8_t>, uint8_t> {
  static constexpr size_t kFlushChunks = kNeverFlush;
  bool diff;
  HWY_INLINE auto operator()(const uint8_t* a, const uint8_t* b) const {
    const auto x = hn::LoadU(dv, a);
    return diff ? AbsDiffU8(x, hn::LoadU(dv, b)) : x;
  }
  template <class V>
  static V Combine(V acc, V x) { return hn::Max(acc, x); }
};

struct MaxAbsI16 : RuleBase<hn::ScalableTag<uint16_t>, int16_t> {
  static constexpr size_t kFlushChunks = kNeverFlush;
  bool diff;
  HWY_INLINE auto operator()(const int16_t* a, const int16_t* b) const {
    const hn::RebindToSigned<decltype(dv)> d16;
    const auto x = hn::LoadU(d16, a);
    if (!diff) return hn::BitCast(dv, hn::Abs(x));
    // max - min wraps into the unsigned distance.
    const auto y = hn::LoadU(d16, b);
    return hn::BitCast(dv, hn::Sub(hn::Max(x, y), hn::Min(x, y)));
  }
  template <class V>
  static V Combine(V acc, V x) { return hn::Max(acc, x); }
};

struct MaxAbsF32 : RuleBase<hn::ScalableTag<float>, float> {
  static constexpr size_t kFlushChunks = kNeverFlush;
  bool diff;
  HWY_INLINE auto operator()(const float* a, const float* b) const {
    const auto x = hn::LoadU(dv, a);
    return hn::Abs(diff ? hn::Sub(x, hn::LoadU(dv, b)) : x);
  }
  template <class V>
  static V Combine(V acc, V x) { return hn::Max(acc, x); }
};

template <class Rule>
HWY_NOINLINE void MaxAbsRows(const Rule& rule, const ReduceRows& rows,
                             double out[4]) {
  const size_t channels = rows.layout.channels;
  for (int c = 0; c < 4; ++c) out[c] = 0.0;
  FoldRows<WholePixelVectors<decltype(rule.dv)>()>(
      rule, rows, [&](const auto* lanes, size_t count) {
        for (size_t j = 0; j < count; ++j) {
          const double x = static_cast<double>(lanes[j]);
          if (x > out[j % channels]) out[j % channels] = x;
        }
      });
}

// Sums x[0..n) in a fixed pairwise tree; for four lanes (x0 + x1) + (x2 + x3).
float PairwiseSum(float* x, size_t n) {
  while (n > 1) {
    const size_t half = n / 2;
    for (size_t i = 0; i < half; ++i) x[i] = x[2 * i] + x[2 * i + 1];
    if (n % 2) x[half] = x[n - 1];
    n -= half;
  }
  return x[0];
}

// Gathers the lanes of each channel in order and sums them pairwise.
template <class Out>
void SumLanesPerChannel(const float* lanes, size_t count, size_t channels,
                        const Out& out) {
  for (size_t c = 0; c < channels; ++c) {
    float own[64];
    size_t n = 0;
    for (size_t j = c; j < count; j += channels) own[n++] = lanes[j];
    out(c, PairwiseSum(own, n));
  }
}

// The fast sum: 48 float lanes per row whatever the vector width, so every
// instruction set gives the same bits.
constexpr size_t kFastSumLanes = 48;

struct FastSumRule : RuleBase<hn::ScalableTag<float>, float> {
  static constexpr size_t kFlushChunks = kNeverFlush;
  static constexpr bool kDrainEachRow = true;
  HWY_INLINE auto operator()(const float* a, const float*) const {
    return hn::LoadU(dv, a);
  }
  template <class V>
  static V Combine(V acc, V x) { return hn::Add(acc, x); }
};

// The fast norms: single precision through all rows in 4-lane vectors, one
// per pixel pattern (three for C3, whose pattern spans 12 samples).
template <Term kTerm, bool kDiff>
struct FastNormRule : RuleBase<hn::FixedTag<float, 4>, float> {
  static constexpr size_t kFlushChunks = kNeverFlush;
  HWY_INLINE auto operator()(const float* a, const float* b) const {
    auto x = hn::LoadU(dv, a);
    if (kDiff) x = hn::Sub(x, hn::LoadU(dv, b));
    return kTerm == Term::kAbs ? hn::Abs(x) : hn::Mul(x, x);
  }
  template <class V>
  static V Combine(V acc, V x) { return hn::Add(acc, x); }
};

template <Term kTerm, bool kDiff>
void FastNormRows(const ReduceRows& rows, double sums[4]) {
  const size_t channels = rows.layout.channels;
  auto drain = [&](const float* lanes, size_t count) {
    SumLanesPerChannel(lanes, count, channels,
                       [&](size_t c, float s) { sums[c] = s; });
  };
  const FastNormRule<kTerm, kDiff> rule;
  if (channels == 3) {
    FoldRows<3>(rule, rows, drain);
  } else {
    FoldRows<1>(rule, rows, drain);
  }
}

// ---- Extrema -----------------------------------------------------------


// Runs visit(k, v) over a row of n samples in chunks of three vectors, k
// being the vector's place in the chunk. Chunks hold whole pixels, so a
// partial last chunk can be the row's last full chunk again, which moves no
// extremum; a row shorter than a chunk is padded with copies of its first
// pixel.
template <class D, typename T, class Visit>
HWY_INLINE void VisitRow(D d, const T* row, size_t n, size_t channels,
                         const Visit& visit) {
  const size_t lanes = hn::Lanes(d);
  const size_t chunk = 3 * lanes;
  auto visitChunk = [&](const T* p) {
    for (size_t k = 0; k < 3; ++k) visit(k, hn::LoadU(d, p + k * lanes));
  };
  size_t i = 0;
  for (; i + chunk <= n; i += chunk) visitChunk(row + i);
  if (i == n) return;
  if (n >= chunk) return visitChunk(row + n - chunk);
  HWY_ALIGN T tail[3 * hn::MaxLanes(D())];
  std::memcpy(tail, row, n * sizeof(T));
  T pixel[4];
  for (size_t c = 0; c < channels; ++c) pixel[c] = LoadSample(row + c);
  for (size_t j = n; j < chunk; j += channels)
    for (size_t c = 0; c < channels; ++c) tail[j + c] = pixel[c];
  visitChunk(tail);
}

template <typename T>
HWY_NOINLINE void ExtremaRows(const ReduceRows& rows, T lo[4], T hi[4]) {
  const hn::ScalableTag<T> d;
  using V = hn::Vec<decltype(d)>;
  const size_t channels = rows.layout.channels;
  const size_t n = rows.width * channels;
  // Float starts are FLT_MAX and -FLT_MAX, not infinities.
  constexpr T kLowStart = std::numeric_limits<T>::max();
  constexpr T kHighStart = std::numeric_limits<T>::lowest();
  V mins[3], maxs[3];
  for (size_t k = 0; k < 3; ++k) {
    mins[k] = hn::Set(d, kLowStart);
    maxs[k] = hn::Set(d, kHighStart);
  }
  for (int y = 0; y < rows.height; ++y) {
    VisitRow(d, RowAt(static_cast<const T*>(rows.a), rows.aStep, y), n, channels,
             [&](size_t k, V v) {
               mins[k] = hn::Min(mins[k], v);
               maxs[k] = hn::Max(maxs[k], v);
             });
  }
  const size_t lanes = hn::Lanes(d);
  HWY_ALIGN T minLanes[3 * hn::MaxLanes(decltype(d)())];
  HWY_ALIGN T maxLanes[3 * hn::MaxLanes(decltype(d)())];
  for (size_t k = 0; k < 3; ++k) {
    hn::Store(mins[k], d, minLanes + k * lanes);
    hn::Store(maxs[k], d, maxLanes + k * lanes);
  }
  for (int c = 0; c < 4; ++c) {
    lo[c] = kLowStart;
    hi[c] = kHighStart;
  }
  for (size_t j = 0; j < 3 * lanes; ++j) {
    T& l = lo[j % channels];
    T& h = hi[j % channels];
    if (minLanes[j] < l) l = minLanes[j];
    if (maxLanes[j] > h) h = maxLanes[j];
  }
}

// Row by row: a vector pass finds the row's extrema, and only a row that
// beats the best so far in some channel is scanned again for the position.
template <typename T, bool kMax>
HWY_NOINLINE void IndexRows(const ReduceRows& rows, T value[4], int x[4],
                            int y[4]) {
  using Limits = std::numeric_limits<T>;
  const hn::ScalableTag<T> d;
  using V = hn::Vec<decltype(d)>;
  const size_t channels = rows.layout.channels;
  const size_t counted = rows.layout.keepAlpha ? 3 : channels;
  const size_t n = rows.width * channels;
  const size_t lanes = hn::Lanes(d);
  constexpr size_t kMaxChunk = 3 * hn::MaxLanes(decltype(d)());
  // The far end of the range: nothing is strictly beyond it.
  constexpr T kFarthest = Limits::has_infinity
                              ? (kMax ? Limits::infinity() : -Limits::infinity())
                              : (kMax ? Limits::max() : Limits::lowest());
  constexpr T kNeutral = Limits::has_infinity
                             ? (kMax ? -Limits::infinity() : Limits::infinity())
                             : (kMax ? Limits::lowest() : Limits::max());
  auto beats = [](T a, T b) { return kMax ? a > b : a < b; };

  const T* first = static_cast<const T*>(rows.a);
  for (size_t c = 0; c < 4; ++c) {
    // C1 starts from the type's bound (FLT_MAX for floats), the others from
    // the first pixel.
    value[c] = channels == 1 ? (kMax ? Limits::lowest() : Limits::max())
                             : LoadSample(first + (c < channels ? c : 0));
    x[c] = y[c] = 0;
  }
  V best[3];
  auto setBest = [&] {
    HWY_ALIGN T pattern[kMaxChunk];
    for (size_t j = 0; j < 3 * lanes; ++j) {
      const size_t c = j % channels;
      pattern[j] = c < counted ? value[c] : kFarthest;
    }
    for (size_t k = 0; k < 3; ++k) best[k] = hn::Load(d, pattern + k * lanes);
  };
  setBest();

  for (int row = 0; row < rows.height; ++row) {
    const T* a = RowAt(first, rows.aStep, row);
    V acc[3] = {hn::Set(d, kNeutral), hn::Set(d, kNeutral), hn::Set(d, kNeutral)};
    VisitRow(d, a, n, channels, [&](size_t k, V v) {
      acc[k] = kMax ? hn::Max(acc[k], v) : hn::Min(acc[k], v);
    });
    bool improves = false;
    for (size_t k = 0; k < 3; ++k)
      improves |= !hn::AllFalse(d, kMax ? hn::Gt(acc[k], best[k])
                                        : hn::Lt(acc[k], best[k]));
    if (!improves) continue;

    HWY_ALIGN T accLanes[kMaxChunk];
    for (size_t k = 0; k < 3; ++k) hn::Store(acc[k], d, accLanes + k * lanes);
    T rowBest[4] = {kNeutral, kNeutral, kNeutral, kNeutral};
    for (size_t j = 0; j < 3 * lanes; ++j)
      if (beats(accLanes[j], rowBest[j % channels])) rowBest[j % channels] = accLanes[j];
    for (size_t c = 0; c < counted; ++c) {
      if (!beats(rowBest[c], value[c])) continue;
      value[c] = rowBest[c];
      y[c] = row;
      size_t px = 0;
      while (!(LoadSample(a + px * channels + c) == rowBest[c])) ++px;
      x[c] = static_cast<int>(px);
    }
    setBest();
    // Integer samples stop once every channel holds the type's bound.
    if constexpr (!Limits::has_infinity) {
      bool done = true;
      for (size_t c = 0; c < counted; ++c) done &= value[c] == kFarthest;
      if (done) break;
    }
  }
}

}  // namespace

// ---- Per-target entry points -----------------------------------------------

void IntegerSums8u(const ReduceRows& rows, Term term, Int128 sums[4]) {
  // |x| and x agree for unsigned samples and their absolute differences.
  if (term == Term::kSquare) return SumRowsOf<U8Squares>(rows, sums);
  if (rows.layout.channels == 1) return SumRowsOf<U8Bytes>(rows, sums);
  SumRowsOf<U8Values>(rows, sums);
}

void IntegerSums16s(const ReduceRows& rows, Term term, Int128 sums[4]) {
  switch (term) {
    case Term::kValue: return SumRowsOf<I16Values>(rows, sums);
    case Term::kAbs: return SumRowsOf<I16Abs>(rows, sums);
    case Term::kSquare: return SumRowsOf<I16Squares>(rows, sums);
  }
}

void Extrema8u(const ReduceRows& rows, uint8_t lo[4], uint8_t hi[4]) {
  ExtremaRows(rows, lo, hi);
}
void Extrema16s(const ReduceRows& rows, int16_t lo[4], int16_t hi[4]) {
  ExtremaRows(rows, lo, hi);
}
void Extrema32s(const ReduceRows& rows, int32_t lo[4], int32_t hi[4]) {
  ExtremaRows(rows, lo, hi);
}
void Extrema32f(const ReduceRows& rows, float lo[4], float hi[4]) {
  ExtremaRows(rows, lo, hi);
}

void MaxAbs8u(const ReduceRows& rows, double out[4]) {
  MaxAbsRows(MaxAbsU8{{}, rows.b != nullptr}, rows, out);
}
void MaxAbs16s(const ReduceRows& rows, double out[4]) {
  MaxAbsRows(MaxAbsI16{{}, rows.b != nullptr}, rows, out);
}
void MaxAbs32f(const ReduceRows& rows, double out[4]) {
  MaxAbsRows(MaxAbsF32{{}, rows.b != nullptr}, rows, out);
}

template <typename T>
void IndexOf(const ReduceRows& rows, bool findMax, T value[4], int x[4],
             int y[4]) {
  if (findMax) {
    IndexRows<T, true>(rows, value, x, y);
  } else {
    IndexRows<T, false>(rows, value, x, y);
  }
}
void Index8u(const ReduceRows& rows, bool findMax, uint8_t value[4], int x[4],
             int y[4]) {
  IndexOf(rows, findMax, value, x, y);
}
void Index16s(const ReduceRows& rows, bool findMax, int16_t value[4], int x[4],
              int y[4]) {
  IndexOf(rows, findMax, value, x, y);
}
void Index32f(const ReduceRows& rows, bool findMax, float value[4], int x[4],
              int y[4]) {
  IndexOf(rows, findMax, value, x, y);
}

void FastSum32fRows(const ReduceRows& rows, double sums[4]) {
  const hn::ScalableTag<float> d;
  const size_t channels = rows.layout.channels;
  long double totals[4] = {};
  FoldRows<kFastSumLanes / hn::MaxLanes(decltype(d)())>(
      FastSumRule{}, rows, [&](const float* lanes, size_t count) {
        SumLanesPerChannel(lanes, count, channels,
                           [&](size_t c, float s) { totals[c] += s; });
      });
  for (int c = 0; c < 4; ++c) sums[c] = static_cast<double>(totals[c]);
}

void FastNorm32fRows(const ReduceRows& rows, Term term, double sums[4]) {
  for (int c = 0; c < 4; ++c) sums[c] = 0.0;
  const bool diff = rows.b != nullptr;
  if (term == Term::kSquare) {
    return diff ? FastNormRows<Term::kSquare, true>(rows, sums)
                : FastNormRows<Term::kSquare, false>(rows, sums);
  }
  diff ? FastNormRows<Term::kAbs, true>(rows, sums)
       : FastNormRows<Term::kAbs, false>(rows, sums);
}

}  // namespace HWY_NAMESPACE
}  // namespace vok
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace vok {

HWY_EXPORT(IntegerSums8u);
HWY_EXPORT(IntegerSums16s);
HWY_EXPORT(Extrema8u);
HWY_EXPORT(Extrema16s);
HWY_EXPORT(Extrema32s);
HWY_EXPORT(Extrema32f);
HWY_EXPORT(MaxAbs8u);
HWY_EXPORT(MaxAbs16s);
HWY_EXPORT(MaxAbs32f);
HWY_EXPORT(Index8u);
HWY_EXPORT(Index16s);
HWY_EXPORT(Index32f);
HWY_EXPORT(FastSum32fRows);
HWY_EXPORT(FastNorm32fRows);

template <>
void IntegerSums<Vok8u>(const ReduceRows& rows, Term term, Int128 sums[4]) {
  HWY_DYNAMIC_DISPATCH(IntegerSums8u)(rows, term, sums);
}
template <>
void IntegerSums<Vok16s>(const ReduceRows& rows, Term term, Int128 sums[4]) {
  HWY_DYNAMIC_DISPATCH(IntegerSums16s)(rows, term, sums);
}

template <>
void Extrema<Vok8u>(const ReduceRows& rows, Vok8u lo[4], Vok8u hi[4]) {
  HWY_DYNAMIC_DISPATCH(Extrema8u)(rows, lo, hi);
}
template <>
void Extrema<Vok16s>(const ReduceRows& rows, Vok16s lo[4], Vok16s hi[4]) {
  HWY_DYNAMIC_DISPATCH(Extrema16s)(rows, lo, hi);
}
template <>
void Extrema<Vok32s>(const ReduceRows& rows, Vok32s lo[4], Vok32s hi[4]) {
  HWY_DYNAMIC_DISPATCH(Extrema32s)(rows, lo, hi);
}
template <>
void Extrema<Vok32f>(const ReduceRows& rows, Vok32f lo[4], Vok32f hi[4]) {
  HWY_DYNAMIC_DISPATCH(Extrema32f)(rows, lo, hi);
}

template <>
void MaxAbs<Vok8u>(const ReduceRows& rows, double out[4]) {
  HWY_DYNAMIC_DISPATCH(MaxAbs8u)(rows, out);
}
template <>
void MaxAbs<Vok16s>(const ReduceRows& rows, double out[4]) {
  HWY_DYNAMIC_DISPATCH(MaxAbs16s)(rows, out);
}
template <>
void MaxAbs<Vok32f>(const ReduceRows& rows, double out[4]) {
  HWY_DYNAMIC_DISPATCH(MaxAbs32f)(rows, out);
}

template <>
void ExtremumIndex<Vok8u>(const ReduceRows& rows, bool findMax, Vok8u value[4],
                          int x[4], int y[4]) {
  HWY_DYNAMIC_DISPATCH(Index8u)(rows, findMax, value, x, y);
}
template <>
void ExtremumIndex<Vok16s>(const ReduceRows& rows, bool findMax,
                           Vok16s value[4], int x[4], int y[4]) {
  HWY_DYNAMIC_DISPATCH(Index16s)(rows, findMax, value, x, y);
}
template <>
void ExtremumIndex<Vok32f>(const ReduceRows& rows, bool findMax,
                           Vok32f value[4], int x[4], int y[4]) {
  HWY_DYNAMIC_DISPATCH(Index32f)(rows, findMax, value, x, y);
}

void FastSum32f(const ReduceRows& rows, double sums[4]) {
  HWY_DYNAMIC_DISPATCH(FastSum32fRows)(rows, sums);
}
void FastNorm32f(const ReduceRows& rows, Term term, double sums[4]) {
  HWY_DYNAMIC_DISPATCH(FastNorm32fRows)(rows, term, sums);
}

}  // namespace vok
#endif  // HWY_ONCE
