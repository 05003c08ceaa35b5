// The resize core: checks, interpolation fall-backs, effective destination
// size, coordinate tables, and the destination rows shared among threads.
// Positions are 64-bit floats built by repeated addition of the step, never
// as i x step, since the last bits decide which node a position falls on.
#include <algorithm>
#include <cmath>

#include "foundation/check.h"
#include "foundation/memory.h"
#include "geometry/resize.h"

namespace vok {
namespace {

constexpr double kEpsilon = 1e-7;

// Truncation toward zero that stays defined for positions far outside any
// image (the caller's fault, but not a reason for undefined behaviour).
int32_t TruncIndex(double v) {
  return static_cast<int32_t>(std::clamp(std::trunc(v), -2e9, 2e9));
}

// Three-lobe Lanczos kernel at i/100, i = 0..300, with two closing zeros.
struct LanczosTable {
  float value[302];
  LanczosTable() {
    const double pi = 3.14159265358979323846;
    value[0] = 1.0f;
    for (int i = 1; i < 300; ++i) {
      const double x = i / 100.0;
      const double sinc = std::sin(pi * x) / (pi * x);
      const double sinc3 = std::sin(pi * x / 3) / (pi * x / 3);
      value[i] = static_cast<float>(sinc * sinc3);
    }
    value[300] = value[301] = 0.0f;
  }
};

// Six tap weights for offsets -2..3 around a node, linearly interpolated in
// the table and not normalised.
void LanczosWeights(float t, float* w) {
  static const LanczosTable table;
  const float* T = table.value;
  for (int k = 0; k < 6; ++k) {
    const float u = std::min(std::fabs(static_cast<float>(k - 2) - t), 3.0f) * 100.0f;
    const int i = static_cast<int>(u);
    w[k] = T[i] + (u - static_cast<float>(i)) * (T[i + 1] - T[i]);
  }
}

struct AxisSetup {
  int count;
  double step, start;
};

// Step, start and effective destination length of one axis.
AxisSetup SetupAxis(ResizeKind kind, bool shiftForm, int roiLength,
                    int dstLength, double scale, double shift) {
  const bool nearest = kind == ResizeKind::kNearest;
  AxisSetup a{dstLength, 0, 0};
  double t;
  if (shiftForm) {
    a.step = scale;
    a.start = nearest ? shift + 0.5 * scale : shift;
    t = std::trunc((nearest ? roiLength : roiLength - 1) / scale + kEpsilon);
    if (t < dstLength - 1)
      a.count = std::max(static_cast<int>(t) + (nearest ? 0 : 1), 1);
  } else {
    a.step = ResizeStep(nearest ? vokInterNearest : vokInterLinear, roiLength,
                        scale);
    a.start = nearest ? shift + 0.5 * a.step : shift;
    t = std::trunc(roiLength * scale + kEpsilon);
    if (t < dstLength) a.count = std::max(static_cast<int>(t), 1);
  }
  return a;
}

// Storage of one axis table, carved from one allocation.
struct AxisStorage {
  Scratch<uint8_t> block;
  ResizeAxis axis;
};

bool BuildAxis(ResizeKind kind, const AxisSetup& setup, int origin,
               int imageLength, AxisStorage& out) {
  const size_t n = setup.count;
  const bool lanczos = kind == ResizeKind::kLanczos;
  const size_t bytes = n * (2 * sizeof(int32_t) + sizeof(float)) +
                       (lanczos ? n * 6 * (sizeof(int32_t) + sizeof(float)) : 0);
  out.block = AllocateScratch<uint8_t>(bytes);
  if (!out.block) return false;
  auto* index = reinterpret_cast<int32_t*>(out.block.get());
  auto* fixed = index + n;
  auto* fraction = reinterpret_cast<float*>(fixed + n);
  auto* taps = reinterpret_cast<int32_t*>(fraction + n);
  auto* weights = reinterpret_cast<float*>(taps + (lanczos ? 6 * n : 0));
  out.axis = ResizeAxis{setup.count, index, fraction, fixed,
                        lanczos ? taps : nullptr, lanczos ? weights : nullptr};
  const int last = imageLength - 1;
  double p = setup.start;
  for (size_t i = 0; i < n; ++i, p += setup.step) {
    const int32_t r = TruncIndex(p + kEpsilon);
    const double raw = p - r;
    index[i] = r;
    fraction[i] = static_cast<float>(raw);
    fixed[i] = TruncIndex(raw * kLinearOne + kEpsilon);
    const int a = r + origin;  // image coordinate
    switch (kind) {
      case ResizeKind::kLinear:
        if (a == last) {  // the last sample blends fully into itself
          index[i] = r - 1;
          fraction[i] = 1.0f;
          fixed[i] = kLinearOne;
        }
        break;
      case ResizeKind::kCubic: {
        // Four nodes base-1 .. base+2 that always lie inside the image.
        const int32_t base = a == last ? r - 2 : a == 0 ? r + 1 : a == last - 1 ? r - 1 : r;
        index[i] = base;
        fraction[i] = a == last ? 2.0f : static_cast<float>(p - base);
        break;
      }
      case ResizeKind::kLanczos:
        LanczosWeights(fraction[i], weights + 6 * i);
        for (int k = 0; k < 6; ++k)
          taps[6 * i + k] = std::clamp(a + k - 2, 0, last) - origin;
        break;
      default:
        break;
    }
  }
  return true;
}

// Which entries make each output of supersampling along one axis with
// source step s. Columns and rows differ only when the weight left over from
// the previous output is negligible: columns then take the current entry
// whole, rows skip it. Entries at or past `limit` are never read.
void BuildSpans(int count, double s, int limit, bool columns, SuperSpan* out) {
  const double whole = std::floor(s);
  double frac = s - whole;
  int32_t x = static_cast<int32_t>(whole);
  out[0] = SuperSpan{0, x, 0.0f, frac != 0 ? static_cast<float>(frac) : 0.0f};
  for (int j = 1; j < count; ++j) {
    const double w0 = 1 - frac;
    const double n = std::floor(s - w0 + kEpsilon);
    frac = (s - w0) - n;
    SuperSpan span{x, x, 0.0f, 0.0f};
    const int32_t wholeCount = static_cast<int32_t>(n);
    if (w0 > kEpsilon) {
      span.head = static_cast<float>(w0);
      span.begin = x + 1;
      span.end = x + 1 + wholeCount;
    } else {
      span.end = x + wholeCount + (columns ? 1 : 0);
    }
    x = span.end;
    if (frac > kEpsilon) span.tail = static_cast<float>(frac);
    out[j] = span;
  }
  for (int j = 0; j < count; ++j) {
    SuperSpan& span = out[j];
    if (span.begin - 1 >= limit) span.head = 0.0f;
    span.end = std::min(span.end, limit);
    span.begin = std::min(span.begin, span.end);
    if (span.end >= limit) span.tail = 0.0f;
  }
}

// Taps of each horizontal kernel and how many of them lie left of the node
// that the column table names.
int TapsOf(ResizeKind kind) {
  return kind == ResizeKind::kLinear ? 2 : kind == ResizeKind::kCubic ? 4 : 6;
}
int TapsBefore(ResizeKind kind) {
  return kind == ResizeKind::kCubic ? 1 : kind == ResizeKind::kLanczos ? 2 : 0;
}

// The largest group of consecutive line samples, at most one vector, whose
// first taps all fall within one window of `lanes` samples.
int GroupSize(const int32_t* offset, size_t n, int lanes) {
  for (int size = lanes; size > 1; --size) {
    bool fits = true;
    for (size_t g = 0; g < n && fits; g += size) {
      const auto [lo, hi] = std::minmax_element(offset + g, offset + std::min(n, g + size));
      fits = *hi - *lo < lanes;
    }
    if (fits) return size;
  }
  return 1;
}

// The weights of a plan, writable while the tables are built.
struct GroupWeights {
  int32_t* fixed;
  float* weights;
};

// Window bases and lanes of the groups over the first-tap offsets of n line
// samples, with room for `taps` weight arrays, all zero. Null weights when
// memory is short.
GroupWeights PlanGroups(const int32_t* offset, size_t n, int lanes, int taps,
                        Scratch<uint8_t>& block, ResizeSamples& out) {
  const int size = GroupSize(offset, n, lanes);
  const size_t groups = (n + size - 1) / size, stride = n + lanes;
  block = AllocateScratch<uint8_t>(sizeof(int32_t) * (groups * (1 + lanes) + stride) +
                                   sizeof(float) * taps * stride);
  if (!block) return {nullptr, nullptr};
  auto* base = reinterpret_cast<int32_t*>(block.get());
  auto* lane = base + groups;
  auto* fixed = lane + groups * lanes;
  auto* weights = reinterpret_cast<float*>(fixed + stride);
  std::fill(fixed, fixed + stride, 0);
  std::fill(weights, weights + taps * stride, 0.0f);
  for (size_t g = 0; g < groups; ++g) {
    const size_t i0 = g * size, count = std::min<size_t>(size, n - i0);
    base[g] = *std::min_element(offset + i0, offset + i0 + count);
    for (int l = 0; l < lanes; ++l)
      lane[g * lanes + l] = size_t(l) < count ? offset[i0 + l] - base[g] : 0;
  }
  out.lanes = lanes;
  out.groupSize = size;
  out.groups = int(groups);
  out.taps = taps;
  out.stride = stride;
  out.base = base;
  out.lane = lane;
  out.fixed = fixed;
  out.weights = weights;
  return {fixed, weights};
}

// Bytes of one block of byte pairs: four samples, two 16-bit nodes each.
constexpr int kPairBlock = 16;

// The byte-pair blocks of 8u linear lines over the first-node offsets of n
// samples. None when some block's nodes spread over more than 16 bytes
// (strong reductions), and then the lanes serve; false when memory is short.
bool PlanBytePairs(const int32_t* offset, size_t n, int channels, int inImage,
                   Scratch<uint8_t>& block, ResizeSamples& out) {
  const size_t blocks = (n + 3) / 4;
  for (size_t b = 0; b < blocks; ++b) {
    const size_t i0 = 4 * b, count = std::min<size_t>(4, n - i0);
    const auto [lo, hi] = std::minmax_element(offset + i0, offset + i0 + count);
    if (*hi + channels - *lo >= kPairBlock) return true;
  }
  block = AllocateScratch<uint8_t>(blocks * (sizeof(int32_t) + kPairBlock));
  if (!block) return false;
  auto* base = reinterpret_cast<int32_t*>(block.get());
  auto* shuffle = reinterpret_cast<uint8_t*>(base + blocks);
  out.shuffleBlocks = 0;
  for (size_t b = 0; b < blocks; ++b) {
    const size_t i0 = 4 * b, count = std::min<size_t>(4, n - i0);
    base[b] = *std::min_element(offset + i0, offset + i0 + count);
    uint8_t* lanes = shuffle + b * kPairBlock;
    std::fill(lanes, lanes + kPairBlock, uint8_t{0x80});  // 0x80 gives a zero byte
    for (size_t k = 0; k < count; ++k) {
      lanes[4 * k] = uint8_t(offset[i0 + k] - base[b]);
      lanes[4 * k + 2] = uint8_t(offset[i0 + k] + channels - base[b]);
    }
    if (size_t(out.shuffleBlocks) == b && base[b] + kPairBlock <= inImage) ++out.shuffleBlocks;
  }
  out.blockBase = base;
  out.blockShuffle = shuffle;
  return true;
}

// Destination bytes that one shuffle block of nearest gives, from twice as
// many source bytes.
constexpr int kCopyBlock = 16;

// The shuffle blocks of nearest rows whose pixels are copied whole, the
// leading ones whose windows lie in the image: their bases, then the
// shuffles of the first windows, then those of the second. None when a
// column lies outside the image or some block's bytes spread over more than
// two windows (strong reductions); false when memory is short.
bool PlanCopyBlocks(const ResizeAxis& x, int pixelBytes, int origin, int imageWidth,
                    Scratch<uint8_t>& block, ResizeSamples& out) {
  const auto [lo, hi] = std::minmax_element(x.index, x.index + x.count);
  if (*lo < -origin || *hi > imageWidth - 1 - origin) return true;
  auto source = [&](size_t k) {
    return x.index[k / pixelBytes] * pixelBytes + int(k % pixelBytes);
  };
  auto firstOf = [&](size_t b) {
    int first = source(b * kCopyBlock);
    for (size_t k = b * kCopyBlock; k < (b + 1) * kCopyBlock; ++k) first = std::min(first, source(k));
    return first;
  };
  const int imageEnd = (imageWidth - origin) * pixelBytes;
  size_t blocks = 0;
  for (; blocks < size_t(x.count) * pixelBytes / kCopyBlock; ++blocks) {
    const int first = firstOf(blocks);
    if (first + 2 * kCopyBlock > imageEnd) break;
    for (size_t k = blocks * kCopyBlock; k < (blocks + 1) * kCopyBlock; ++k)
      if (source(k) - first >= 2 * kCopyBlock) return true;
  }
  if (blocks == 0) return true;
  block = AllocateScratch<uint8_t>(blocks * (sizeof(int32_t) + 2 * kCopyBlock));
  if (!block) return false;
  auto* base = reinterpret_cast<int32_t*>(block.get());
  auto* shuffle = reinterpret_cast<uint8_t*>(base + blocks);
  for (size_t b = 0; b < blocks; ++b) {
    base[b] = firstOf(b);
    for (int k = 0; k < kCopyBlock; ++k) {
      const int at = source(b * kCopyBlock + k) - base[b];
      // 0x80 gives a zero byte, where the other window's byte goes.
      shuffle[b * kCopyBlock + k] = at < kCopyBlock ? uint8_t(at) : uint8_t{0x80};
      shuffle[(blocks + b) * kCopyBlock + k] = at < kCopyBlock ? uint8_t{0x80} : uint8_t(at - kCopyBlock);
    }
  }
  out.shuffleBlocks = int(blocks);
  out.blockBase = base;
  out.blockShuffle = shuffle;
  return true;
}

// Spreads the column table over the samples of a line, for vectors of
// `lanes` lanes.
bool BuildSamples(ResizeKind kind, const ResizeAxis& x, int channels, int lanes,
                  int origin, int imageWidth, bool bytePairs, Scratch<uint8_t>& block,
                  Scratch<uint8_t>& pairBlock, ResizeSamples& out) {
  const int before = TapsBefore(kind);
  const size_t n = size_t(x.count) * channels;
  const auto [lo, hi] = std::minmax_element(x.index, x.index + x.count);
  const int first = *lo - before;
  Scratch<int32_t> offset = AllocateScratch<int32_t>(n);
  if (!offset) return false;
  for (size_t i = 0; i < n; ++i)
    offset[i] = (x.index[i / channels] - before - first) * channels + int(i % channels);
  const int terms = kind == ResizeKind::kLinear ? 1 : kind == ResizeKind::kCubic ? 3 : 6;
  const auto [fixed, weights] = PlanGroups(offset.get(), n, lanes, terms, block, out);
  if (!weights) return false;
  out.first = first;
  out.last = *hi - before + TapsOf(kind) - 1;
  out.imageFirst = -origin;
  out.imageLast = imageWidth - 1 - origin;
  const int reach = (TapsOf(kind) - 1) * channels + lanes;
  const int inImage = (out.imageLast - first + 1) * channels;
  out.direct = 0;
  while (first >= out.imageFirst && out.direct < out.groups &&
         out.base[out.direct] + reach <= inImage)
    ++out.direct;
  if (bytePairs && first >= out.imageFirst &&
      !PlanBytePairs(offset.get(), n, channels, inImage, pairBlock, out))
    return false;
  out.widenFrom = out.last + 1 - first;
  for (int g = out.direct; g < out.groups; ++g)
    out.widenFrom = std::min(out.widenFrom, out.base[g] / channels);
  const size_t stride = out.stride;
  for (size_t i = 0; i < n; ++i) {
    const size_t j = i / channels;
    const float t = x.fraction[j];
    switch (kind) {
      case ResizeKind::kLinear:
        fixed[i] = int32_t((uint32_t(x.fixed[j]) << 16) |
                           (uint32_t(kLinearOne - x.fixed[j]) & 0xFFFF));
        weights[i] = t;
        break;
      case ResizeKind::kCubic: {
        // The terms of the cubic that depend on t alone.
        const float m = t * (1.0f + t) * 0.5f;
        weights[i] = m;
        weights[stride + i] = (t - 1.0f) * m / 3.0f;
        weights[2 * stride + i] = 1.0f + t;
        break;
      }
      default:
        for (int k = 0; k < 6; ++k) weights[k * stride + i] = x.weights[6 * j + k];
        break;
    }
  }
  return true;
}

// Spreads the column spans of supersampling over the samples of a line:
// each output reads consecutive accumulator entries, the first and last
// perhaps weighted, the others whole (weight 1, which multiplies exactly).
bool BuildSuperSamples(const SuperSpan* columns, int count, int channels, int lanes,
                       Scratch<uint8_t>& block, ResizeSamples& out) {
  const size_t n = size_t(count) * channels;
  Scratch<int32_t> offset = AllocateScratch<int32_t>(n);
  if (!offset) return false;
  int taps = 1;
  for (int j = 0; j < count; ++j) {
    const SuperSpan& span = columns[j];
    const int first = span.head != 0 ? span.begin - 1 : span.begin;
    taps = std::max(taps, span.end - first + (span.tail != 0 ? 1 : 0));
    for (int c = 0; c < channels; ++c) offset[size_t(j) * channels + c] = first * channels + c;
  }
  float* weights = PlanGroups(offset.get(), n, lanes, taps, block, out).weights;
  if (!weights) return false;
  out.wholeTaps = true;
  for (int j = 0; j < count; ++j) {
    const SuperSpan& span = columns[j];
    int t = 0;
    auto put = [&](float weight) {
      for (int c = 0; c < channels; ++c)
        weights[t * out.stride + size_t(j) * channels + c] = weight;
      out.wholeTaps = out.wholeTaps && weight == 1.0f;
      ++t;
    };
    if (span.head != 0) put(span.head);
    for (int e = span.begin; e < span.end; ++e) put(1.0f);
    if (span.tail != 0) put(span.tail);
    out.wholeTaps = out.wholeTaps && t == taps;
  }
  return true;
}

ResizeKind KindOf(int interpolation) {
  switch (interpolation) {
    case vokInterLinear: return ResizeKind::kLinear;
    case vokInterCubic: return ResizeKind::kCubic;
    case vokInterLanczos: return ResizeKind::kLanczos;
    case vokInterSuper: return ResizeKind::kSuper;
    default: return ResizeKind::kNearest;
  }
}

// Small images cannot feed wide kernels: the full image decides.
ResizeKind FallBack(ResizeKind kind, VokiSize image) {
  const int shortest = std::min(image.width, image.height);
  if (shortest < 2) return ResizeKind::kNearest;
  if (shortest < 4 && (kind == ResizeKind::kCubic || kind == ResizeKind::kLanczos))
    return ResizeKind::kLinear;
  if (shortest < 6 && kind == ResizeKind::kLanczos) return ResizeKind::kCubic;
  return kind;
}

// Runs every plane over the destination rows on the calling thread. Resize
// is single-threaded, so callers that spread images over threads of their
// own get no second level of them.
template <typename T>
VokStatus RunRows(const ResizeTables& tables, const ResizeRequest& request,
                  const uint8_t* const* srcOrigins) {
  const size_t bytes = ResizeScratchBytes(tables, request.channels, sizeof(T));
  Scratch<uint8_t> scratch = AllocateScratch<uint8_t>(bytes);
  if (bytes > 0 && !scratch) return vokStatusNoMemory;
  for (int p = 0; p < request.planes; ++p) {
    const ResizePlane plane{srcOrigins[p], request.srcStep, request.dst[p],
                            request.dstStep, request.channels,
                            request.keepAlpha};
    ResizeRows<T>(tables, plane, 0, tables.y.count, scratch.get());
  }
  return vokStatusOk;
}

}  // namespace

double ResizeStep(int interpolation, int roiLength, double factor) {
  if (interpolation == vokInterNearest) return 1 / factor;
  const double length = roiLength * factor;
  return length > 1 ? (roiLength - 1) / (length - 1) : 0;
}

size_t ResizeScratchBytes(const ResizeTables& tables, int channels,
                          size_t sampleSize) {
  const ResizeSamples& x = tables.samples;
  // Lines, then one source row widened to 32 bits at a 64-byte boundary;
  // both have a vector of slack for the last group's whole-vector access.
  const size_t widened = (size_t(x.last - x.first + 1) * channels + x.lanes) * 4;
  auto withRow = [&](size_t lines, size_t lineSample) {
    return ((lines * x.stride * lineSample + 63) & ~size_t{63}) + widened;
  };
  switch (tables.kind) {
    case ResizeKind::kNearest: return 0;
    case ResizeKind::kLinear:
      return withRow(2, sampleSize == 4 ? sizeof(float) : sizeof(uint16_t));
    case ResizeKind::kCubic: return withRow(4, sizeof(float));
    case ResizeKind::kLanczos: return withRow(6, sizeof(float));
    case ResizeKind::kSuper:
      // The accumulator with slack for the windows of its last group, then
      // the column sums of one row.
      return (size_t(tables.super.accumulated) * channels + x.taps * channels + x.lanes) * 4 +
             x.stride * 4;
  }
  return 0;
}

template <typename T>
VokStatus ResizeCore(const ResizeRequest& q) {
  if (AnyNull({q.src[0], q.dst[0]})) return vokStatusNullPointer;
  if (BadSize(q.srcSize)) return vokStatusBadSize;
  if (AnyBadStep({q.srcStep, q.dstStep})) return vokStatusBadStep;
  const VokiRect roi = q.srcRoi;
  if (roi.x < 0 || roi.y < 0 || BadSize({roi.width, roi.height}))
    return vokStatusBadSize;
  if (q.srcSize.width <= roi.x || q.srcSize.height <= roi.y)
    return vokWarnNoResize;
  if (BadSize(q.dstSize)) return vokStatusBadSize;
  if (!(q.x > 0 && q.y > 0)) return vokStatusBadResizeFactor;
  const bool super = q.interpolation == vokInterSuper && !q.shiftForm &&
                     q.x <= 1 && q.y <= 1;
  if (!super && q.interpolation != vokInterNearest &&
      q.interpolation != vokInterLinear && q.interpolation != vokInterCubic &&
      q.interpolation != vokInterLanczos)
    return vokStatusBadInterpolation;

  const int roiW = std::min(roi.width, q.srcSize.width - roi.x);
  const int roiH = std::min(roi.height, q.srcSize.height - roi.y);
  const uint8_t* origins[4];
  for (int p = 0; p < q.planes; ++p)
    origins[p] = static_cast<const uint8_t*>(q.src[p]) +
                 ptrdiff_t{roi.y} * q.srcStep +
                 ptrdiff_t{roi.x} * q.channels * ptrdiff_t{sizeof(T)};

  ResizeTables tables{};
  if (super) {
    tables.kind = ResizeKind::kSuper;
    const AxisSetup ax = SetupAxis(ResizeKind::kSuper, false, roiW,
                                   q.dstSize.width, q.x, 0);
    const AxisSetup ay = SetupAxis(ResizeKind::kSuper, false, roiH,
                                   q.dstSize.height, q.y, 0);
    const double sx = 1 / q.x, sy = 1 / q.y;
    const double cols = std::trunc(static_cast<float>(ax.count + 1) * sx) + 1;
    tables.x.count = ax.count;
    tables.y.count = ay.count;
    tables.super.accumulated = cols < roiW ? static_cast<int>(cols) : roiW;
    tables.super.wholeSums = sx == std::floor(sx) && sy == std::floor(sy);
    tables.super.scale = q.x * q.y;
    auto spans = AllocateScratch<SuperSpan>(size_t(ax.count) + ay.count);
    if (!spans) return vokStatusNoMemory;
    BuildSpans(ax.count, sx, tables.super.accumulated, true, spans.get());
    BuildSpans(ay.count, sy, roiH, false, spans.get() + ax.count);
    tables.super.rows = spans.get() + ax.count;
    Scratch<uint8_t> samples;
    if (!BuildSuperSamples(spans.get(), ax.count, q.channels, ResizeLanes(), samples,
                           tables.samples))
      return vokStatusNoMemory;
    return RunRows<T>(tables, q, origins);
  }

  tables.kind = FallBack(KindOf(q.interpolation), q.srcSize);
  AxisStorage x, y;
  if (!BuildAxis(tables.kind,
                 SetupAxis(tables.kind, q.shiftForm, roiW, q.dstSize.width,
                           q.x, q.xShift),
                 roi.x, q.srcSize.width, x) ||
      !BuildAxis(tables.kind,
                 SetupAxis(tables.kind, q.shiftForm, roiH, q.dstSize.height,
                           q.y, q.yShift),
                 roi.y, q.srcSize.height, y))
    return vokStatusNoMemory;
  tables.x = x.axis;
  tables.y = y.axis;
  tables.samples.imageLast = q.srcSize.width - 1 - roi.x;
  Scratch<uint8_t> samples, pairs;
  if (tables.kind == ResizeKind::kNearest && !q.keepAlpha &&
      !PlanCopyBlocks(tables.x, q.channels * int(sizeof(T)), roi.x, q.srcSize.width, pairs,
                      tables.samples))
    return vokStatusNoMemory;
  const bool bytePairs = tables.kind == ResizeKind::kLinear && sizeof(T) == 1;
  if (tables.kind != ResizeKind::kNearest &&
      !BuildSamples(tables.kind, tables.x, q.channels, ResizeLanes(), roi.x,
                    q.srcSize.width, bytePairs, samples, pairs, tables.samples))
    return vokStatusNoMemory;
  return RunRows<T>(tables, q, origins);
}

template VokStatus ResizeCore<Vok8u>(const ResizeRequest&);
template VokStatus ResizeCore<Vok16u>(const ResizeRequest&);
template VokStatus ResizeCore<Vok32f>(const ResizeRequest&);

}  // namespace vok
