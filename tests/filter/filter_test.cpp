// Filter, FilterRow and FilterColumn in every type and layout against a plain
// per-sample model of the flipped-kernel rule, on every instruction set, with
// sources that hold a readable border and destinations with guard bytes.
#include <omp.h>

#include <cfenv>
#include <cmath>
#include <cstdint>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "vok_test.h"

namespace {

using vok_test::Image;

enum class Shape { kRect, kRow, kColumn };

struct Kernel {
  int width, height, ax, ay;
};

// One form behind a uniform call: kernel and anchor as a rectangle, the
// divisor ignored by float kernels.
template <typename T, typename TK>
struct Form {
  std::string name;
  Shape shape;
  int channels;
  bool alpha;
  std::function<VokStatus(const T*, int, T*, int, VokiSize, const TK*, Kernel,
                          int)>
      call;
};

#define RECT_FORM(fn, ch, al)                                              \
  Form<T, TK>{#fn, Shape::kRect, ch, al,                                   \
              [](const T* s, int ss, T* d, int ds, VokiSize r, const TK* k, \
                 Kernel g, [[maybe_unused]] int dv) {                      \
                return fn(s, ss, d, ds, r, k, {g.width, g.height},         \
                          {g.ax, g.ay} DIVISOR);                           \
              }}
#define ROW_FORM(fn, ch, al)                                               \
  Form<T, TK>{#fn, Shape::kRow, ch, al,                                    \
              [](const T* s, int ss, T* d, int ds, VokiSize r, const TK* k, \
                 Kernel g, [[maybe_unused]] int dv) {                      \
                return fn(s, ss, d, ds, r, k, g.width, g.ax DIVISOR);      \
              }}
#define COLUMN_FORM(fn, ch, al)                                            \
  Form<T, TK>{#fn, Shape::kColumn, ch, al,                                 \
              [](const T* s, int ss, T* d, int ds, VokiSize r, const TK* k, \
                 Kernel g, [[maybe_unused]] int dv) {                      \
                return fn(s, ss, d, ds, r, k, g.height, g.ay DIVISOR);     \
              }}
#define LAYOUTS(KIND, op)                                              \
  KIND(op##_C1R, 1, false), KIND(op##_C3R, 3, false),                  \
      KIND(op##_C4R, 4, false), KIND(op##_AC4R, 4, true)
#define FORMS(rect, row, column) \
  {LAYOUTS(RECT_FORM, rect), LAYOUTS(ROW_FORM, row), LAYOUTS(COLUMN_FORM, column)}

template <typename T, typename TK>
std::vector<Form<T, TK>> Forms();

#define FORMS_OF(TS, TKS, rect, row, column)                 \
  template <>                                               \
  std::vector<Form<TS, TKS>> Forms() {                      \
    using T = TS;                                           \
    using TK = TKS;                                         \
    return FORMS(rect, row, column);                        \
  }
#define DIVISOR , dv
FORMS_OF(Vok8u, Vok32s, vokiFilter_8u, vokiFilterRow_8u, vokiFilterColumn_8u)
FORMS_OF(Vok16s, Vok32s, vokiFilter_16s, vokiFilterRow_16s, vokiFilterColumn_16s)
#undef DIVISOR
#define DIVISOR
FORMS_OF(Vok8u, Vok32f, vokiFilter32f_8u, vokiFilterRow32f_8u, vokiFilterColumn32f_8u)
FORMS_OF(Vok16s, Vok32f, vokiFilter32f_16s, vokiFilterRow32f_16s, vokiFilterColumn32f_16s)
FORMS_OF(Vok32f, Vok32f, vokiFilter_32f, vokiFilterRow_32f, vokiFilterColumn_32f)
#undef FORMS_OF
#undef DIVISOR

// ---- The model ---------------------------------------------------------------

float RoundTiesToEven(float x) {
  const float f = std::floor(x), rest = x - f;
  if (rest > 0.5f || (rest == 0.5f && std::fmod(f, 2.0f) != 0)) return f + 1;
  return f;
}

template <typename T>
T RoundAndSaturate(float x, bool nearest) {
  if constexpr (std::is_same_v<T, float>) {
    return x;
  } else {
    const float hi = std::numeric_limits<T>::max();
    const float lo = std::numeric_limits<T>::lowest();
    x = std::isnan(x) ? hi : std::min(std::max(x, lo), hi);
    return T(nearest ? RoundTiesToEven(x) : std::nearbyint(x));
  }
}

Vok8u ScaleIntegerSum(int32_t sum, int divisor) {
  int64_t v = sum;
  if (divisor > 1 && (divisor & (divisor - 1)) == 0) {
    const int shift = __builtin_ctz(unsigned(divisor));
    v = sum <= 0 ? 0 : (int64_t(sum) + (int64_t(1) << (shift - 1))) >> shift;
  } else if (divisor != 1) {
    const float q = float(sum) * (1.0f / float(divisor));
    return RoundAndSaturate<Vok8u>(q, false);
  }
  return vok_test::Saturate<Vok8u>(v);
}

// The forms' rule, sample by sample. `src` holds the region at (ox, oy).
// `fast` marks a call of a float kernel on integer samples that takes the
// faster path: it rounds to nearest whatever the mode, and a rectangular
// kernel adds the last (samples mod 4) samples of a row by window rows.
template <typename T, typename TK>
void Model(const Image<T>& src, int ox, int oy, Image<T>& dst, Kernel k,
           const std::vector<TK>& kernel, int divisor, int channels,
           bool alpha, bool fast, bool rect) {
  const int samples = dst.width() * channels;
  for (int y = 0; y < dst.height(); ++y)
    for (int x = 0; x < dst.width(); ++x)
      for (int c = 0; c < channels; ++c) {
        if (alpha && c == 3) continue;
        const int wx = ox + x + k.ax - (k.width - 1);
        const int wy = oy + y + k.ay - (k.height - 1);
        const bool rowSums = fast && rect && x * channels + c >= samples - samples % 4;
        uint32_t isum = 0;
        float fsum = 0;
        for (int i = 0; i < k.height; ++i) {
          float rowSum = 0;
          for (int j = 0; j < k.width; ++j) {
            const TK tap = kernel[size_t(k.height - 1 - i) * k.width + (k.width - 1 - j)];
            const T s = src.at(wx + j, wy + i, c);
            if constexpr (std::is_integral_v<TK>) {
              isum += uint32_t(tap) * uint32_t(int32_t(s));
            } else {
              const float p = float(s) * tap;
              if (rowSums) rowSum += p; else fsum += p;
            }
          }
          if (rowSums) fsum += rowSum;
        }
        if constexpr (std::is_integral_v<TK>)
          dst.set(x, y, c, ScaleIntegerSum(int32_t(isum), divisor));
        else
          dst.set(x, y, c, RoundAndSaturate<T>(fsum, fast));
      }
}

// Whether a float-kernel call on integer samples takes the faster path.
bool FasterPath(Shape shape, bool is8u, int channels, bool alpha, Kernel k,
                int width) {
  if (shape == Shape::kRect) return k.width >= 3 && width >= (channels == 1 ? 4 : 2);
  if (shape != Shape::kColumn || !is8u || k.height < 3) return false;
  if (alpha) return width >= 2;
  return width * channels >= 8;
}

// ---- Randomized comparison ---------------------------------------------------

template <typename TK>
std::vector<TK> RandomKernel(std::mt19937& rng, int taps) {
  std::vector<TK> kernel(taps);
  for (TK& t : kernel) {
    if constexpr (std::is_integral_v<TK>)
      t = std::uniform_int_distribution<int>(-40, 60)(rng);
    else
      t = std::uniform_real_distribution<float>(-1.5f, 2.0f)(rng);
  }
  return kernel;
}

template <typename T, typename TK>
void CompareWithModel(const std::vector<int>& divisors) {
  std::mt19937 rng(7);
  const std::vector<Kernel> rects = {{1, 1, 0, 0}, {2, 3, 1, 0}, {3, 3, 1, 1},
                                     {5, 4, 4, 0}, {3, 2, -1, 3}, {11, 1, 5, 0}};
  const std::vector<int> widths = {1, 2, 3, 5, 8, 13, 16, 17, 31, 67, 150};
  const int height = 3;
  vok_test::ForEachTarget([&](const char*) {
    size_t round = 0;
    for (const Form<T, TK>& form : Forms<T, TK>())
      for (Kernel k : rects) {
        if (form.shape == Shape::kRow) k = {k.width, 1, k.ax, 0};
        if (form.shape == Shape::kColumn) k = {1, k.width, 0, k.ax};
        for (int width : widths) {
          SCOPED_TRACE(form.name + " width " + std::to_string(width) +
                       " kernel " + std::to_string(k.width) + "x" +
                       std::to_string(k.height) + " anchor " +
                       std::to_string(k.ax) + "," + std::to_string(k.ay));
          const int ox = std::max(0, k.width - 1 - k.ax) + 1;
          const int oy = std::max(0, k.height - 1 - k.ay) + 1;
          Image<T> src(ox + width + std::max(0, k.ax) + 1,
                       oy + height + std::max(0, k.ay) + 1, form.channels, 3);
          src.randomize(rng);
          const auto geometry = vok_test::TestGeometries(sizeof(T))[round++ % 4];
          Image<T> dst(width, height, form.channels, geometry.padBytes,
                       geometry.offsetBytes);
          dst.randomize(rng);
          Image<T> want = dst;
          const auto kernel = RandomKernel<TK>(rng, k.width * k.height);
          const int divisor = divisors[round % divisors.size()];
          const bool fast = !std::is_same_v<T, Vok32f> && std::is_same_v<TK, Vok32f> &&
                            FasterPath(form.shape, sizeof(T) == 1, form.channels,
                                       form.alpha, k, width);
          std::vector<TK> used = kernel;
          if constexpr (std::is_same_v<T, Vok16s> && std::is_same_v<TK, Vok32s>) {
            // The 16s forms fold 1 / divisor into a float kernel.
            std::vector<float> folded(kernel.size());
            for (size_t i = 0; i < kernel.size(); ++i)
              folded[i] = float(kernel[i]) * (1.0f / float(divisor));
            Model(src, ox, oy, want, k, folded, 1, form.channels, form.alpha,
                  FasterPath(form.shape, false, form.channels, form.alpha, k, width),
                  form.shape == Shape::kRect);
          } else {
            Model(src, ox, oy, want, k, kernel, divisor, form.channels,
                  form.alpha, fast, form.shape == Shape::kRect);
          }
          const T* origin = src.row(oy) + size_t(ox) * form.channels;
          ASSERT_EQ(vokStatusOk, form.call(origin, src.step(), dst.data(),
                                           dst.step(), dst.size(), kernel.data(),
                                           k, divisor));
          ASSERT_EQ("", dst.firstDifference(want));
          ASSERT_TRUE(dst.guardsIntact());
        }
      }
  });
}

TEST(Filter, IntegerKernelOn8uMatchesModel) {
  CompareWithModel<Vok8u, Vok32s>({1, 2, 3, 8, -5, 64, 1000});
}
TEST(Filter, IntegerKernelOn16sMatchesModel) {
  CompareWithModel<Vok16s, Vok32s>({1, 3, -2, 7});
}
TEST(Filter, FloatKernelOn8uMatchesModel) { CompareWithModel<Vok8u, Vok32f>({1}); }
TEST(Filter, FloatKernelOn16sMatchesModel) { CompareWithModel<Vok16s, Vok32f>({1}); }
TEST(Filter, FloatMatchesModel) { CompareWithModel<Vok32f, Vok32f>({1}); }

// ---- Values the rule fixes ---------------------------------------------------

// A 1x1 kernel of value k with divisor d on one sample s.
Vok8u Single8u(Vok8u s, int k, int d) {
  Vok8u out = 0;
  const Vok32s kernel[1] = {k};
  EXPECT_EQ(vokStatusOk, vokiFilter_8u_C1R(&s, 1, &out, 1, {1, 1}, kernel,
                                           {1, 1}, {0, 0}, d));
  return out;
}

TEST(Filter, ScaleModesRoundAsTheDivisorSays) {
  EXPECT_EQ(200, Single8u(200, 1, 1));
  EXPECT_EQ(0, Single8u(1, 1, 3));     // reciprocal: 1/3
  EXPECT_EQ(1, Single8u(2, 1, 3));
  EXPECT_EQ(1, Single8u(1, 1, 2));     // shift: ties go up
  EXPECT_EQ(2, Single8u(3, 1, 2));
  EXPECT_EQ(0, Single8u(1, -1, 2));    // no positive sum, no result
  EXPECT_EQ(0, Single8u(3, 1, 6));     // reciprocal: ties to even
  EXPECT_EQ(2, Single8u(9, 1, 6));
  EXPECT_EQ(5, Single8u(5, -1, -1));   // negative divisors flip the sign
  EXPECT_EQ(255, Single8u(255, 40000, 1));
}

TEST(Filter, FlippedKernelAndAnchorPickTheSameSample) {
  // {1, 0, 0} with anchor 0 reads samples -2..0, {0, 0, 1} with anchor 2
  // reads 0..2; both keep sample 0.
  const Vok8u src[5] = {10, 20, 30, 40, 50};
  Vok8u a = 0, b = 0;
  const Vok32s first[3] = {1, 0, 0}, last[3] = {0, 0, 1};
  ASSERT_EQ(vokStatusOk, vokiFilterRow_8u_C1R(src + 2, 5, &a, 1, {1, 1}, first, 3, 0, 1));
  ASSERT_EQ(vokStatusOk, vokiFilterRow_8u_C1R(src + 2, 5, &b, 1, {1, 1}, last, 3, 2, 1));
  EXPECT_EQ(30, a);
  EXPECT_EQ(30, b);
}

TEST(Filter, Integer16sFoldsTheDivisorIntoTheKernel) {
  // 3 x (1/3) is 1 in float, but 1 x (1/3) three times sums below 1.
  const Vok16s src[3] = {1, 1, 1};
  Vok16s out = 0;
  const Vok32s ones[3] = {1, 1, 1}, three[1] = {3};
  ASSERT_EQ(vokStatusOk, vokiFilterRow_16s_C1R(src, 6, &out, 2, {1, 1}, ones, 3, 2, 3));
  const float third = 1.0f / 3.0f;
  EXPECT_EQ(std::nearbyint((third + third) + third), out);
  ASSERT_EQ(vokStatusOk, vokiFilterRow_16s_C1R(src, 6, &out, 2, {1, 1}, three, 1, 0, 3));
  EXPECT_EQ(1, out);
}

// ---- Statuses ----------------------------------------------------------------

TEST(Filter, ChecksInOrder) {
  Vok8u src[64] = {}, dst[64];
  const Vok32s k[9] = {};
  const Vok32f kf[9] = {};
  const VokiSize roi{4, 2}, k3{3, 3};
  const VokiPoint a{1, 1};
  EXPECT_EQ(vokStatusNullPointer, vokiFilter_8u_C1R(src, 0, dst, 0, {0, 0}, nullptr, {0, 0}, a, 0));
  EXPECT_EQ(vokStatusBadSize, vokiFilter_8u_C1R(src, 0, dst, 0, {4, 0}, k, {0, 0}, a, 0));
  EXPECT_EQ(vokStatusBadSize, vokiFilter_8u_C1R(src, 0, dst, 0, roi, k, {3, 0}, a, 0));
  EXPECT_EQ(vokStatusBadDivisor, vokiFilter_8u_C1R(src, 0, dst, 0, roi, k, k3, a, 0));
  // The source row must hold width + kw - 1 samples, the destination width.
  EXPECT_EQ(vokStatusBadStep, vokiFilter_8u_C1R(src, 5, dst, 8, roi, k, k3, a, 1));
  EXPECT_EQ(vokStatusBadStep, vokiFilter_8u_C1R(src, 6, dst, 3, roi, k, k3, a, 1));
  EXPECT_EQ(vokStatusOk, vokiFilter_8u_C1R(src + 9, 8, dst, 4, roi, k, k3, a, 1));
  // A kernel wider than the region only needs the bound.
  EXPECT_EQ(vokStatusOk, vokiFilterRow_8u_C1R(src + 8, 16, dst, 1, {1, 1}, k, 9, 4, 1));
  EXPECT_EQ(vokStatusBadStep, vokiFilterColumn32f_8u_C1R(src, 3, dst, 4, roi, kf, 3, 1));
  EXPECT_EQ(vokStatusBadStep, vokiFilter_32f_C3R(reinterpret_cast<Vok32f*>(src), 71,
                                                 reinterpret_cast<Vok32f*>(dst), 72,
                                                 {4, 1}, kf, {3, 1}, {1, 0}));
  // The 16s integer forms check their kernel and divisor before the rest.
  Vok16s s16[8] = {}, d16[8];
  EXPECT_EQ(vokStatusNullPointer, vokiFilter_16s_C1R(s16, 0, d16, 0, {0, 0}, nullptr, k3, a, 1));
  EXPECT_EQ(vokStatusBadSize, vokiFilter_16s_C1R(nullptr, 0, d16, 0, roi, k, {0, 3}, a, 1));
  EXPECT_EQ(vokStatusBadDivisor, vokiFilter_16s_C1R(nullptr, 0, d16, 0, roi, k, k3, a, 0));
  EXPECT_EQ(vokStatusNullPointer, vokiFilter_16s_C1R(nullptr, 0, d16, 0, {0, 0}, k, k3, a, 1));
  EXPECT_EQ(vokStatusNoMemory, vokiFilter_16s_C1R(s16, 16, d16, 16, {1, 1}, k, {65536, 65536}, a, 1));
  // Column filters on C3 and C4 test the width before anything else.
  EXPECT_EQ(vokStatusBadSize, vokiFilterColumn_8u_C3R(nullptr, 0, nullptr, 0, {0, 1}, nullptr, 3, 1, 0));
  EXPECT_EQ(vokStatusNullPointer, vokiFilterColumn_8u_AC4R(nullptr, 0, nullptr, 0, {0, 1}, k, 3, 1, 1));
  EXPECT_EQ(vokStatusBadSize, vokiFilterColumn_16s_C4R(s16, 0, d16, 0, {0, 1}, nullptr, 3, 1, 0));
}

// ---- Threads and rounding mode -----------------------------------------------

TEST(Filter, SameBytesForAnyThreadCountAndInsideACallersRegion) {
  std::mt19937 rng(3);
  Image<Vok8u> src(70, 40, 3);
  src.randomize(rng);
  const auto kernel = RandomKernel<Vok32f>(rng, 25);
  for (int height : {1, 2, 35}) {
    Image<Vok8u> one(64, height, 3), many = one, nested = one;
    const auto run = [&](Image<Vok8u>& dst) {
      return vokiFilter32f_8u_C3R(src.row(2) + 6, src.step(), dst.data(),
                                  dst.step(), dst.size(), kernel.data(), {5, 5},
                                  {2, 2});
    };
    {
      vok_test::ThreadCount threads(1);
      ASSERT_EQ(vokStatusOk, run(one));
    }
    {
      vok_test::ThreadCount threads(4);
      ASSERT_EQ(vokStatusOk, run(many));
#pragma omp parallel num_threads(2)
      {
#pragma omp master
        run(nested);
      }
    }
    EXPECT_TRUE(one.sameRegion(many));
    EXPECT_TRUE(one.sameRegion(nested));
  }
}

TEST(Filter, RoundingModeOfTheCallerOnlyWhereTheRuleKeepsIt) {
  const Vok8u src[8] = {1, 1, 1, 1, 1, 1, 1, 1};
  const Vok32f half[3] = {0.5f, 0.0f, 0.0f};
  const Vok32s one[1] = {1};
  Vok8u out[8];
  std::fesetround(FE_UPWARD);
  // Integer kernels divide with the caller's mode: 1/3 goes up to 1.
  EXPECT_EQ(vokStatusOk, vokiFilter_8u_C1R(src, 8, out, 8, {4, 1}, one, {1, 1}, {0, 0}, 3));
  EXPECT_EQ(1, out[0]);
  // A 3-tap float kernel on a wide row rounds 0.5 to nearest even...
  EXPECT_EQ(vokStatusOk, vokiFilter32f_8u_C1R(src + 2, 8, out, 8, {4, 1}, half, {3, 1}, {0, 0}));
  EXPECT_EQ(0, out[0]);
  // ...and the row form keeps the caller's mode.
  EXPECT_EQ(vokStatusOk, vokiFilterRow32f_8u_C1R(src + 2, 8, out, 8, {4, 1}, half, 3, 0));
  EXPECT_EQ(1, out[0]);
  EXPECT_EQ(FE_UPWARD, std::fegetround());
  std::fesetround(FE_TONEAREST);
}

}  // namespace
