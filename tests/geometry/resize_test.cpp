// Resize, ResizeShift, ResizeCenter and GetResizeFract against a per-pixel
// model of each interpolation, on every instruction set, plus the statuses
// and the corner cases of small images.
#include <algorithm>
#include <cmath>
#include <functional>
#include <vector>

#include "vok_test.h"

namespace {

using vok_test::Image;
constexpr double kE = 1e-7;

// ---- The model ---------------------------------------------------------------

// A source image as the model reads it: absolute coordinates, channel c.
template <typename T>
struct Source {
  const std::vector<Image<T>>* planes;
  bool planar;
  T at(int x, int y, int c) const {
    return planar ? (*planes)[c].at(x, y) : (*planes)[0].at(x, y, c);
  }
};

float Cubic(float a, float b, float c, float d, float t, bool exactThird) {
  const float d1 = b - a, d2 = (c - b) - d1, d3 = ((b - 2.0f * c) + d) - d2;
  const float m = t * (1.0f + t) * 0.5f;
  const float n = exactThird ? (t - 1.0f) * m / 3.0f : (t - 1.0f) * m * (1.0f / 3.0f);
  return ((a + n * d3) + m * d2) + (1.0f + t) * d1;
}

float LanczosWeight(float distance) {
  static const std::vector<float> table = [] {
    std::vector<float> v(302, 0.0f);
    v[0] = 1;
    for (int i = 1; i < 300; ++i) {
      const double x = i / 100.0, pi = M_PI;
      v[i] = float(std::sin(pi * x) / (pi * x) * (std::sin(pi * x / 3) / (pi * x / 3)));
    }
    return v;
  }();
  const float u = std::min(std::fabs(distance), 3.0f) * 100.0f;
  const int i = int(u);
  return table[i] + (u - float(i)) * (table[i + 1] - table[i]);
}

enum Kind { kNearest = 1, kLinear = 2, kCubic = 4, kSuper = 8, kLanczos = 16 };

// What one destination column (or row) reads: a node index in image
// coordinates and a fraction, per interpolation.
struct Node {
  int index;     // nearest: the sample; linear: left; cubic: base; Lanczos: r
  float frac;
  int fixed;     // linear integer weight
};

struct Call {
  bool shiftForm;
  double scale, shift;  // factor or source step, and shift
};

// Effective length, step and start of one axis, then the nodes.
std::vector<Node> ModelAxis(int kind, Call call, int origin, int roiLen,
                            int imageLen, int dstLen) {
  double step, start, t;
  int count = dstLen;
  if (call.shiftForm) {
    step = call.scale;
    start = kind == kNearest ? call.shift + 0.5 * step : call.shift;
    t = std::trunc((kind == kNearest ? roiLen : roiLen - 1) / step + kE);
    if (t < dstLen - 1) count = std::max(int(t) + (kind == kNearest ? 0 : 1), 1);
  } else {
    const double f = call.scale;
    if (kind == kNearest) step = 1 / f;
    else step = roiLen * f > 1 ? (roiLen - 1) / (roiLen * f - 1) : 0;
    start = kind == kNearest ? call.shift + 0.5 * step : call.shift;
    t = std::trunc(roiLen * f + kE);
    if (t < dstLen) count = std::max(int(t), 1);
  }
  std::vector<Node> nodes;
  double p = start;
  for (int i = 0; i < count; ++i, p += step) {
    const int r = int(std::trunc(p + kE));
    const int a = r + origin;
    Node n{a, float(p - r), int(std::trunc((p - r) * 16384 + kE))};
    if (kind == kLinear && a == imageLen - 1) n = {a - 1, 1.0f, 16384};
    if (kind == kCubic) {
      const int base = a == imageLen - 1 ? a - 2 : a == 0 ? a + 1 : a == imageLen - 2 ? a - 1 : a;
      n = {base, a == imageLen - 1 ? 2.0f : float(p - (base - origin)), 0};
    }
    nodes.push_back(n);
  }
  return nodes;
}

// Supersampling terms of each output along one axis: (entry, weight), a
// weight of 0 meaning a whole entry.
std::vector<std::vector<std::pair<int, float>>> SuperAxis(int count, double s,
                                                          bool columns) {
  std::vector<std::vector<std::pair<int, float>>> out(count);
  const double whole = std::floor(s);
  double frac = s - whole;
  int x = 0;
  for (; x < int(whole); ++x) out[0].push_back({x, 0.0f});
  if (frac != 0) out[0].push_back({x, float(frac)});
  for (int j = 1; j < count; ++j) {
    const double w0 = 1 - frac, n = std::floor(s - w0 + kE);
    frac = (s - w0) - n;
    if (w0 > kE) out[j].push_back({x++, float(w0)});
    const int wholeCount = int(n) + (w0 > kE || !columns ? 0 : 1);
    for (int k = 0; k < wholeCount; ++k) out[j].push_back({x++, 0.0f});
    if (frac > kE) out[j].push_back({x, float(frac)});
  }
  return out;
}

template <typename T>
T FromDouble(double v) {
  if constexpr (std::is_same_v<T, float>) return float(v);
  return T(std::clamp(v, 0.0, double(std::numeric_limits<T>::max())));
}

// Fills `dst` (planes or one image) with what the Part's arithmetic gives.
template <typename T>
void Model(const Source<T>& src, VokiSize size, VokiRect roi, int kind,
           Call cx, Call cy, VokiSize dstSize, bool alpha,
           std::vector<Image<T>>& dst) {
  const bool planar = src.planar;
  const int channels = planar ? int(dst.size()) : dst[0].channels();
  const int computed = alpha ? 3 : channels;
  const int roiW = std::min(roi.width, size.width - roi.x);
  const int roiH = std::min(roi.height, size.height - roi.y);
  auto put = [&](int x, int y, int c, T v) {
    if (planar) dst[c].set(x, y, 0, v); else dst[0].set(x, y, c, v);
  };
  auto S = [&](int x, int y, int c) { return src.at(x, y, c); };
  constexpr bool isFloat = std::is_same_v<T, float>;

  if (kind == kSuper) {
    const double f = cx.scale, g = cy.scale;
    const int w = std::min(dstSize.width, std::max(int(std::trunc(roiW * f + kE)), 1));
    const int h = std::min(dstSize.height, std::max(int(std::trunc(roiH * g + kE)), 1));
    const auto cols = SuperAxis(w, 1 / f, true), rows = SuperAxis(h, 1 / g, false);
    const bool whole = 1 / f == std::floor(1 / f) && 1 / g == std::floor(1 / g);
    for (int y = 0; y < h; ++y)
      for (int x = 0; x < w; ++x)
        for (int c = 0; c < computed; ++c) {
          double result;
          if (whole && !isFloat) {
            uint64_t sum = 0;
            for (auto [e, wc] : cols[x])
              for (auto [r, wr] : rows[y]) sum += S(roi.x + e, roi.y + r, c);
            result = std::trunc(double(sum) * (f * g) + 0.5);
          } else {
            float sum = -0.0f;
            for (auto [e, wc] : cols[x]) {
              float acc = -0.0f;
              for (auto [r, wr] : rows[y]) {
                const float v = float(S(roi.x + e, roi.y + r, c));
                acc = acc + (wr != 0 ? wr * v : v);
              }
              sum = sum + (wc != 0 ? acc * wc : acc);
            }
            result = isFloat ? double(float(double(sum) * (f * g)))
                             : std::trunc(double(sum) * (f * g) + 0.5);
          }
          put(x, y, c, FromDouble<T>(result));
        }
    return;
  }

  const int shortest = std::min(size.width, size.height);
  if (shortest < 2) kind = kNearest;
  else if (shortest < 4 && (kind == kCubic || kind == kLanczos)) kind = kLinear;
  else if (shortest < 6 && kind == kLanczos) kind = kCubic;
  const auto xs = ModelAxis(kind, cx, roi.x, roiW, size.width, dstSize.width);
  const auto ys = ModelAxis(kind, cy, roi.y, roiH, size.height, dstSize.height);
  const int w = int(xs.size()), h = int(ys.size());
  const int run = w * (planar ? 1 : computed);
  auto clampX = [&](int x) { return std::clamp(x, 0, size.width - 1); };
  auto clampY = [&](int y) { return std::clamp(y, 0, size.height - 1); };
  for (int y = 0; y < h; ++y)
    for (int x = 0; x < w; ++x)
      for (int c = 0; c < computed; ++c) {
        const Node nx = xs[x], ny = ys[y];
        double out = 0;
        if (kind == kNearest) {
          out = double(S(nx.index, ny.index, c));
        } else if (kind == kLinear) {
          if constexpr (isFloat) {
            auto H = [&](int row) {
              const float a = S(nx.index, row, c), b = S(nx.index + 1, row, c);
              return a + (b - a) * nx.frac;
            };
            out = H(ny.index) * (1.0f - ny.frac) + H(ny.index + 1) * ny.frac;
          } else {
            const int shift = sizeof(T) == 1 ? 8 : 14;
            auto H = [&](int row) {
              return (S(nx.index, row, c) * (16384 - nx.fixed) +
                      S(nx.index + 1, row, c) * nx.fixed + (1 << (shift - 1))) >> shift;
            };
            const int outShift = sizeof(T) == 1 ? 20 : 14;
            out = (H(ny.index) * (16384 - ny.fixed) + H(ny.index + 1) * ny.fixed +
                   (1 << (outShift - 1))) >> outShift;
          }
        } else if (kind == kCubic) {
          float line[4];
          for (int k = 0; k < 4; ++k) {
            const int row = ny.index - 1 + k, b = nx.index;
            line[k] = Cubic(S(b - 1, row, c), S(b, row, c), S(b + 1, row, c),
                            S(b + 2, row, c), nx.frac, true);
          }
          const int runIndex = planar ? x : x * computed + c;
          const bool vectorGroup = runIndex < (run & ~3);
          const float v = Cubic(line[0], line[1], line[2], line[3], ny.frac, !vectorGroup);
          if (isFloat) out = v;
          else if (vectorGroup) out = std::nearbyint(v + 1e-5f);
          else out = std::trunc(double(v) + kE);
        } else {
          float line[6];
          for (int k = 0; k < 6; ++k) {
            const int row = clampY(ny.index + k - 2);
            float sum = 0;
            for (int j = 0; j < 6; ++j) {
              const float term = LanczosWeight(float(j - 2) - nx.frac) *
                                 float(S(clampX(nx.index + j - 2), row, c));
              sum = j == 0 ? term : sum + term;
            }
            line[k] = sum;
          }
          if (isFloat) {
            float sum = 0;
            for (int k = 0; k < 6; ++k) {
              const float term = line[k] * LanczosWeight(float(k - 2) - ny.frac);
              sum = k == 0 ? term : sum + term;
            }
            out = sum;
          } else {
            double sum = 0;
            for (int k = 0; k < 6; ++k)
              sum += double(line[k]) * double(LanczosWeight(float(k - 2) - ny.frac));
            out = std::trunc(sum + kE);
          }
        }
        put(x, y, c, FromDouble<T>(out));
      }
}

// ---- Every form through one signature ---------------------------------------

template <typename T>
using Fn = std::function<VokStatus(const T* const*, VokiSize, int, VokiRect,
                                   T* const*, int, VokiSize, double, double,
                                   double, double, int)>;

template <typename T>
struct Form {
  const char* name;
  int channels;  // samples per pixel of one image, or planes
  bool planar, alpha;
  Fn<T> resize, shift, center;
};

#define ONE(p) (p)[0]
#define ALL(p) (p)
#define FORM(token, layout, ch, planar, alpha, pick)                                         \
  Form<T>{#layout, ch, planar, alpha,                                                         \
          [](auto s, auto ss, int st, auto r, auto d, int dt, auto ds, double a, double b,   \
             double, double, int i) {                                                        \
            return vokiResize_##token##_##layout##R(pick(s), ss, st, r, pick(d), dt, ds, a, b, i); \
          },                                                                                 \
          [](auto s, auto ss, int st, auto r, auto d, int dt, auto ds, double a, double b,   \
             double c, double e, int i) {                                                    \
            return vokiResizeShift_##token##_##layout##R(pick(s), ss, st, r, pick(d), dt, ds, a, b, c, e, i); \
          },                                                                                 \
          [](auto s, auto ss, int st, auto r, auto d, int dt, auto ds, double a, double b,   \
             double c, double e, int i) {                                                    \
            return vokiResizeCenter_##token##_##layout##R(pick(s), ss, st, r, pick(d), dt, ds, a, b, c, e, i); \
          }}
#define FORMS(token)                                                                  \
  {FORM(token, C1, 1, false, false, ONE), FORM(token, C3, 3, false, false, ONE),      \
   FORM(token, C4, 4, false, false, ONE), FORM(token, AC4, 4, false, true, ONE),      \
   FORM(token, P3, 3, true, false, ALL), FORM(token, P4, 4, true, false, ALL)}

template <typename T>
std::vector<Form<T>> Forms();
template <>
std::vector<Form<Vok8u>> Forms() { using T = Vok8u; return FORMS(8u); }
template <>
std::vector<Form<Vok16u>> Forms() { using T = Vok16u; return FORMS(16u); }
template <>
std::vector<Form<Vok32f>> Forms() { using T = Vok32f; return FORMS(32f); }

// Source and destination of one form: planes, or one interleaved image.
template <typename T>
struct Images {
  std::vector<Image<T>> src, dst;
  std::vector<const T*> srcPtr;
  std::vector<T*> dstPtr;
  Images(const Form<T>& form, VokiSize s, VokiSize d, std::mt19937& rng, int pad = 0) {
    const int n = form.planar ? form.channels : 1, ch = form.planar ? 1 : form.channels;
    for (int p = 0; p < n; ++p) {
      src.emplace_back(s.width, s.height, ch, pad);
      dst.emplace_back(d.width, d.height, ch, pad);
    }
    for (int p = 0; p < n; ++p) {
      src[p].randomize(rng);
      dst[p].randomize(rng);
      srcPtr.push_back(src[p].data());
      dstPtr.push_back(dst[p].data());
    }
  }
  Source<T> source() const { return Source<T>{&src, src.size() > 1}; }
};

enum Family { kResize, kShift, kCenter };

// One call of the library against the model on a copy of the destination.
template <typename T>
void Compare(const Form<T>& form, Family family, VokiSize size, VokiRect roi,
             VokiSize dstSize, double a, double b, double c, double d, int kind,
             std::mt19937& rng) {
  Images<T> images(form, size, dstSize, rng, 3);
  std::vector<Image<T>> want = images.dst;
  const Fn<T>& fn = family == kResize ? form.resize : family == kShift ? form.shift : form.center;
  const VokStatus status =
      fn(images.srcPtr.data(), size, images.src[0].step(), roi, images.dstPtr.data(),
         images.dst[0].step(), dstSize, a, b, c, d, kind);
  ASSERT_EQ(status, vokStatusOk);
  if (family == kCenter) {
    // The model of the centre form: the source rectangle and shifts it finds,
    // then the factor form on the moved destination.
    auto axis = [](int dstLen, int sLen, double f, double centre) {
      const double x0 = 0.5 * dstLen - centre * f;
      const double first = std::trunc(std::max(x0, 0.0));
      const double last = std::trunc(std::min(double(dstLen), f * sLen + x0));
      const double len = std::ceil(std::min((dstLen - x0) / f, double(sLen)));
      const double p = centre + (first - 0.5 * dstLen) / f;
      return std::tuple{int(first), int(last - first), int(std::trunc(p)), int(len),
                        p - std::trunc(p)};
    };
    const int sW = std::min(roi.width, size.width - roi.x);
    const int sH = std::min(roi.height, size.height - roi.y);
    auto [left, w, sx, sw, xShift] = axis(dstSize.width, sW, a, c);
    auto [top, h, sy, sh, yShift] = axis(dstSize.height, sH, b, d);
    ASSERT_GE(sx, 0);
    ASSERT_GE(sy, 0);
    std::vector<Image<T>> window;
    for (auto& img : want) {
      window.emplace_back(w, h, img.channels());
      for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
          for (int ch = 0; ch < img.channels(); ++ch)
            window.back().set(x, y, ch, img.at(left + x, top + y, ch));
    }
    const bool super = kind == kSuper;
    Model(images.source(), size, {sx, sy, sw, sh}, kind, {false, a, super ? 0 : xShift},
          {false, b, super ? 0 : yShift}, {w, h}, form.alpha, window);
    for (size_t p = 0; p < want.size(); ++p)
      for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
          for (int ch = 0; ch < want[p].channels(); ++ch)
            want[p].set(left + x, top + y, ch, window[p].at(x, y, ch));
  } else {
    Model(images.source(), size, roi, kind, {family == kShift, a, c},
          {family == kShift, b, d}, dstSize, form.alpha, want);
  }
  for (size_t p = 0; p < want.size(); ++p) {
    EXPECT_EQ(images.dst[p].firstDifference(want[p]), "") << form.name << " plane " << p;
    EXPECT_TRUE(images.dst[p].guardsIntact()) << form.name;
  }
}

template <typename T>
void CompareAll() {
  std::mt19937 rng(7);
  const int kinds[] = {kNearest, kLinear, kCubic, kLanczos};
  vok_test::ForEachTarget([&](const char*) {
    for (const Form<T>& form : Forms<T>()) {
      SCOPED_TRACE(form.name);
      for (int kind : kinds) {
        SCOPED_TRACE(kind);
        // Shrink and enlarge by non-integer factors from a ROI inside a larger
        // image, identity, and a destination larger than the result.
        Compare(form, kResize, {40, 30}, {3, 2, 31, 25}, {70, 60}, 1.7, 2.3, 0, 0, kind, rng);
        Compare(form, kResize, {40, 30}, {5, 4, 35, 26}, {23, 9}, 0.61, 0.33, 0, 0, kind, rng);
        Compare(form, kResize, {21, 17}, {0, 0, 21, 17}, {21, 17}, 1, 1, 0, 0, kind, rng);
        Compare(form, kResize, {33, 19}, {2, 1, 40, 40}, {80, 80}, 1.37, 0.8, 0, 0, kind, rng);
        Compare(form, kShift, {40, 30}, {3, 2, 30, 25}, {50, 40}, 0.55, 0.7, 0.25, 0.5, kind, rng);
        Compare(form, kShift, {40, 30}, {3, 2, 30, 25}, {13, 11}, 2.2, 1.9, 1.5, 0, kind, rng);
        Compare(form, kCenter, {40, 30}, {0, 0, 40, 30}, {50, 44}, 1.3, 1.6, 20.2, 15.7, kind, rng);
        // Strong reductions: few samples share a vector's window, and 8u
        // linear nodes no longer fit a 16-byte block.
        Compare(form, kResize, {130, 40}, {2, 1, 127, 38}, {26, 8}, 0.2, 0.21, 0, 0, kind, rng);
      }
      Compare(form, kResize, {40, 30}, {3, 2, 31, 25}, {20, 14}, 0.5, 0.25, 0, 0, kSuper, rng);
      Compare(form, kResize, {40, 30}, {3, 2, 37, 28}, {40, 30}, 0.37, 0.62, 0, 0, kSuper, rng);
      Compare(form, kCenter, {40, 30}, {0, 0, 40, 30}, {30, 20}, 0.4, 0.6, 20, 15, kSuper, rng);
      // More source rows per output than one accumulating pass takes.
      Compare(form, kResize, {90, 60}, {1, 0, 89, 60}, {12, 8}, 0.13, 0.11, 0, 0, kSuper, rng);
    }
  });
}

TEST(Resize, MatchesModel8u) { CompareAll<Vok8u>(); }
TEST(Resize, MatchesModel16u) { CompareAll<Vok16u>(); }
TEST(Resize, MatchesModel32f) { CompareAll<Vok32f>(); }

// Destinations of 8 MB and more are written past the cache, starting with
// single samples up to the first vector boundary.
TEST(Resize, LargeDestinationsMatchModel) {
  std::mt19937 rng(11);
  Image<Vok8u> src(700, 400, 3);
  src.randomize(rng);
  const std::vector<Image<Vok8u>> planes{src};
  vok_test::ForEachTarget([&](const char*) {
  for (int kind : {kLinear, kCubic}) {
    std::vector<Image<Vok8u>> dst{Image<Vok8u>(2000, 1400, 3, 0, 1)};
    dst[0].fill(0);
    std::vector<Image<Vok8u>> want = dst;
    ASSERT_EQ(vokiResize_8u_C3R(src.data(), src.size(), src.step(), {0, 0, 700, 400},
                                dst[0].data(), dst[0].step(), dst[0].size(), 2000 / 700.0,
                                1400 / 400.0, kind),
              vokStatusOk);
    Model(Source<Vok8u>{&planes, false}, src.size(), {0, 0, 700, 400}, kind,
          {false, 2000 / 700.0, 0}, {false, 1400 / 400.0, 0}, dst[0].size(), false, want);
    EXPECT_EQ(dst[0].firstDifference(want[0]), "") << kind;
    EXPECT_TRUE(dst[0].guardsIntact());
  }
  });
}

// Calls vokiResize_32f_C1R on a one-row-repeated image and returns row 0.
std::vector<float> ResizeRow(const std::vector<float>& row, int rows, double factor,
                             int dstWidth, int kind) {
  const int w = int(row.size());
  Image<float> src(w, rows), dst(dstWidth, 1);
  for (int y = 0; y < rows; ++y)
    for (int x = 0; x < w; ++x) src.set(x, y, 0, row[x]);
  dst.fill(-1);
  EXPECT_EQ(vokiResize_32f_C1R(src.data(), src.size(), src.step(), {0, 0, w, rows},
                               dst.data(), dst.step(), {dstWidth, 1}, factor, 1.0 / rows, kind),
            vokStatusOk);
  std::vector<float> out(dstWidth);
  for (int x = 0; x < dstWidth; ++x) out[x] = dst.at(x, 0);
  return out;
}

TEST(Resize, CoordinateMappings) {
  // Linear maps first to first and last to last: positions 0, 1/3, 2/3, 1.
  EXPECT_EQ(ResizeRow({0, 3}, 2, 2, 4, kLinear), (std::vector<float>{0, 1, 2, 3}));
  // Nearest maps centres.
  EXPECT_EQ(ResizeRow({5, 6, 7}, 2, 2, 6, kNearest), (std::vector<float>{5, 5, 6, 6, 7, 7}));
  // One destination column from a longer row: the step is 0, column 0 is read.
  EXPECT_EQ(ResizeRow({9, 1, 2, 3}, 4, 0.25, 1, kLinear), (std::vector<float>{9}));
  // The result is limited to trunc(roiW x factor); the rest stays.
  EXPECT_EQ(ResizeRow({1, 2, 3}, 2, 1, 5, kLinear), (std::vector<float>{1, 2, 3, -1, -1}));
}

TEST(Resize, IdentityCopiesTheRoi) {
  std::mt19937 rng(5);
  Image<Vok8u> src(30, 20, 3), dst(17, 11, 3);
  src.randomize(rng);
  for (int kind : {kNearest, kLinear, kCubic, kLanczos, kSuper}) {
    ASSERT_EQ(vokiResize_8u_C3R(src.data(), src.size(), src.step(), {6, 4, 17, 11},
                                dst.data(), dst.step(), dst.size(), 1, 1, kind),
              vokStatusOk);
    for (int y = 0; y < 11; ++y)
      for (int x = 0; x < 17 * 3; ++x)
        ASSERT_EQ(dst.row(y)[x], src.row(y + 4)[x + 18]) << kind << " " << x << "," << y;
  }
}

TEST(Resize, SmallImagesFallBack) {
  std::mt19937 rng(9);
  // Returns the result of one interpolation on a random w x h image.
  auto run = [&](int w, int h, int kind, uint32_t seed) {
    rng.seed(seed);
    Image<Vok16u> src(w, h), dst(23, 19);
    src.randomize(rng);
    dst.fill(0);
    EXPECT_EQ(vokiResize_16u_C1R(src.data(), src.size(), src.step(), {0, 0, w, h},
                                 dst.data(), dst.step(), dst.size(), 23.0 / w, 19.0 / h, kind),
              vokStatusOk);
    return dst;
  };
  EXPECT_EQ(run(1, 1, kCubic, 1).firstDifference(run(1, 1, kNearest, 1)), "");
  EXPECT_EQ(run(1, 7, kLinear, 1).firstDifference(run(1, 7, kNearest, 1)), "");
  EXPECT_EQ(run(7, 1, kLanczos, 1).firstDifference(run(7, 1, kNearest, 1)), "");
  EXPECT_EQ(run(3, 3, kCubic, 2).firstDifference(run(3, 3, kLinear, 2)), "");
  EXPECT_EQ(run(3, 9, kLanczos, 2).firstDifference(run(3, 9, kLinear, 2)), "");
  EXPECT_EQ(run(4, 4, kLanczos, 3).firstDifference(run(4, 4, kCubic, 3)), "");
  EXPECT_EQ(run(5, 5, kLanczos, 3).firstDifference(run(5, 5, kCubic, 3)), "");
  EXPECT_NE(run(6, 6, kLanczos, 3).firstDifference(run(6, 6, kCubic, 3)), "");
}

TEST(Resize, SupersamplingByHalfRoundsHalfUp) {
  Image<Vok8u> src(4, 2), dst(2, 1);
  const Vok8u samples[2][4] = {{1, 2, 10, 10}, {3, 4, 11, 10}};
  for (int y = 0; y < 2; ++y)
    for (int x = 0; x < 4; ++x) src.set(x, y, 0, samples[y][x]);
  ASSERT_EQ(vokiResize_8u_C1R(src.data(), src.size(), src.step(), {0, 0, 4, 2}, dst.data(),
                              dst.step(), dst.size(), 0.5, 0.5, kSuper),
            vokStatusOk);
  EXPECT_EQ(dst.at(0, 0), 3);   // 10 / 4 + 0.5
  EXPECT_EQ(dst.at(1, 0), 10);  // 41 / 4 + 0.5
}

// ---- Bad input ------------------------------------------------------------------

struct Args {
  VokiSize srcSize{8, 8};
  int srcStep = 8;
  VokiRect roi{0, 0, 8, 8};
  int dstStep = 16;
  VokiSize dstSize{16, 16};
  double x = 2, y = 2;
  int kind = kLinear;
  bool nullSrc = false, nullDst = false;
};

// Every family and layout with these arguments; all must give `want` and
// leave the destination as it was.
void ExpectStatus(const Args& a, VokStatus want, VokStatus wantCenter) {
  std::mt19937 rng(1);
  for (const Form<Vok8u>& form : Forms<Vok8u>()) {
    Images<Vok8u> images(form, {8, 8}, {16, 16}, rng);
    const std::vector<Image<Vok8u>> before = images.dst;
    if (a.nullSrc) images.srcPtr.back() = nullptr;
    if (a.nullDst) images.dstPtr.back() = nullptr;
    const int step = a.srcStep * (form.planar ? 1 : form.channels);
    const int dstStep = a.dstStep * (form.planar ? 1 : form.channels);
    for (Family family : {kResize, kShift, kCenter}) {
      const Fn<Vok8u>& fn = family == kResize ? form.resize : family == kShift ? form.shift : form.center;
      const double c = family == kCenter ? 4 : 0;
      // Planar forms test every plane pointer before anything else.
      const VokStatus expected = form.planar && (a.nullSrc || a.nullDst) ? vokStatusNullPointer
                                 : family == kCenter                  ? wantCenter
                                                                      : want;
      EXPECT_EQ(fn(images.srcPtr.data(), a.srcSize, step, a.roi, images.dstPtr.data(),
                   dstStep, a.dstSize, a.x, a.y, c, c, a.kind),
                expected)
          << form.name << " family " << family;
      for (size_t p = 0; p < before.size(); ++p)
        EXPECT_TRUE(images.dst[p].sameRegion(before[p])) << form.name;
    }
  }
}

TEST(Resize, StatusesInOrder) {
  Args a;
  a.nullSrc = true;
  a.srcSize = {0, 8};
  a.srcStep = 0;
  ExpectStatus(a, vokStatusNullPointer, vokStatusBadSize);  // centre tests src late
  a.nullSrc = false;
  a.nullDst = true;
  ExpectStatus(a, vokStatusNullPointer, vokStatusNullPointer);
  a.nullDst = false;
  ExpectStatus(a, vokStatusBadSize, vokStatusBadSize);
  a.srcSize = {8, 8};
  a.roi = {-1, 0, 8, 8};
  ExpectStatus(a, vokStatusBadStep, vokStatusBadSize);  // centre tests steps late
  a.srcStep = 8;
  ExpectStatus(a, vokStatusBadSize, vokStatusBadSize);
  // A ROI that starts past the image wins over a bad destination and factor.
  a.roi = {8, 0, 1, 1};
  a.dstSize = {0, 0};
  a.x = 0;
  ExpectStatus(a, vokWarnNoResize, vokWarnNoResize);
  a.roi = {0, 0, 8, 8};
  ExpectStatus(a, vokStatusBadSize, vokStatusBadSize);
  a.dstSize = {16, 16};
  ExpectStatus(a, vokStatusBadResizeFactor, vokStatusBadResizeFactor);
  a.x = std::nan("");
  ExpectStatus(a, vokStatusBadResizeFactor, vokStatusBadResizeFactor);
  a.x = 2;
  a.kind = 3;
  ExpectStatus(a, vokStatusBadInterpolation, vokStatusBadInterpolation);
  a.kind = kSuper;  // supersampling only reduces
  ExpectStatus(a, vokStatusBadInterpolation, vokStatusBadInterpolation);
  a.kind = kLinear;
  a.srcStep = 0;
  a.nullSrc = true;
  ExpectStatus(a, vokStatusNullPointer, vokStatusNullPointer);
}

TEST(Resize, ShiftFormRejectsSupersampling) {
  Image<Vok8u> src(8, 8), dst(4, 4);
  src.fill(1);
  dst.fill(7);
  EXPECT_EQ(vokiResizeShift_8u_C1R(src.data(), src.size(), src.step(), {0, 0, 8, 8},
                                   dst.data(), dst.step(), dst.size(), 2, 2, 0, 0, kSuper),
            vokStatusBadInterpolation);
  EXPECT_EQ(dst.at(0, 0), 7);
}

// Null plane elements are covered above; a null array is refused as well.
TEST(Resize, PlanarRefusesNullArrays) {
  Image<Vok8u> plane(4, 4);
  Vok8u* dst[3] = {plane.data(), plane.data(), plane.data()};
  EXPECT_EQ(vokiResize_8u_P3R(nullptr, {4, 4}, 4, {0, 0, 4, 4}, dst, 4, {4, 4}, 1, 1, 1),
            vokStatusNullPointer);
}

TEST(GetResizeFract, StepsAndStatuses) {
  double xFr = -1, yFr = -1;
  ASSERT_EQ(vokiGetResizeFract({10, 10}, {2, 0, 20, 10}, 2, 0.5, &xFr, &yFr, kNearest),
            vokStatusOk);
  EXPECT_EQ(xFr, 0.5);
  EXPECT_EQ(yFr, 2.0);
  ASSERT_EQ(vokiGetResizeFract({10, 10}, {2, 0, 20, 10}, 2, 0.05, &xFr, &yFr, kCubic),
            vokStatusOk);
  EXPECT_EQ(xFr, 7.0 / 15.0);  // clipped to 8 columns
  EXPECT_EQ(yFr, 0.0);         // 10 x 0.05 is not above 1
  EXPECT_EQ(vokiGetResizeFract({0, 10}, {10, 0, 1, 1}, 0, 1, nullptr, &yFr, 3), vokStatusBadSize);
  EXPECT_EQ(vokiGetResizeFract({10, 10}, {10, 0, 1, 1}, 0, 1, nullptr, &yFr, 3), vokWarnNoResize);
  EXPECT_EQ(vokiGetResizeFract({10, 10}, {0, 0, 1, 1}, 0, 1, nullptr, &yFr, 3),
            vokStatusBadResizeFactor);
  EXPECT_EQ(vokiGetResizeFract({10, 10}, {0, 0, 1, 1}, 1, 1, nullptr, &yFr, 3),
            vokStatusNullPointer);
  EXPECT_EQ(vokiGetResizeFract({10, 10}, {0, 0, 1, 1}, 1, 1, &xFr, &yFr, kSuper),
            vokStatusBadInterpolation);
}

}  // namespace
