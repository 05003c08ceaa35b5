// Sum, Mean, Min, Max, MinMax, MinIndx and MaxIndx against plain models of
// their rules, on every instruction set.
#include <cfloat>
#include <cmath>

#include "vok_test.h"

namespace {

using vok_test::Image;

template <typename T>
struct StatForms {
  const char* name;
  int channels;
  int reported;  // AC4 reports three channels
  VokStatus (*sum)(const T*, int, VokiSize, Vok64f*, VokHint);
  VokStatus (*mean)(const T*, int, VokiSize, Vok64f*, VokHint);
  VokStatus (*min)(const T*, int, VokiSize, T*);
  VokStatus (*max)(const T*, int, VokiSize, T*);
  VokStatus (*minMax)(const T*, int, VokiSize, T*, T*);
  VokStatus (*indx[2])(const T*, int, VokiSize, T*, int*, int*);  // min, max
};

#define HINTED_(T, fn) \
  [](const T* s, int st, VokiSize r, Vok64f* o, VokHint) { return fn(s, st, r, o); }
#define HINTED_Hint(T, fn) fn
#define STAT_FORMS(tok, T, hint, lay, ch, rep)                                          \
  StatForms<T> {                                                                        \
    #tok "_" #lay, ch, rep, HINTED_##hint(T, vokiSum_##tok##_##lay##R),                 \
        HINTED_##hint(T, vokiMean_##tok##_##lay##R), vokiMin_##tok##_##lay##R,          \
        vokiMax_##tok##_##lay##R, vokiMinMax_##tok##_##lay##R,                          \
        {vokiMinIndx_##tok##_##lay##R, vokiMaxIndx_##tok##_##lay##R}                    \
  }
#define STAT_LAYOUTS(tok, T, hint)                                                      \
  {                                                                                     \
    STAT_FORMS(tok, T, hint, C1, 1, 1), STAT_FORMS(tok, T, hint, C3, 3, 3),             \
        STAT_FORMS(tok, T, hint, C4, 4, 4), STAT_FORMS(tok, T, hint, AC4, 4, 3)         \
  }

template <typename T>
std::vector<StatForms<T>> Forms();
template <>
std::vector<StatForms<Vok8u>> Forms() { return STAT_LAYOUTS(8u, Vok8u, ); }
template <>
std::vector<StatForms<Vok16s>> Forms() { return STAT_LAYOUTS(16s, Vok16s, ); }
template <>
std::vector<StatForms<Vok32f>> Forms() { return STAT_LAYOUTS(32f, Vok32f, Hint); }

// Images whose samples come from a handful of values, so extrema repeat and
// the tie rules decide, or from the whole range, so the type's bounds occur.
template <typename T>
void Fill(Image<T>& image, std::mt19937& rng, bool fewValues) {
  if (!fewValues) return image.randomize(rng);
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      for (int c = 0; c < image.channels(); ++c)
        image.set(x, y, c, T(std::is_floating_point_v<T> ? 0.5 * (rng() % 5) : 100 + int(rng() % 5)));
}

// The accurate 32f sum and every integer sum: doubles in raster order, even
// and odd columns apart in C1. Integer sums of test images are exact either way.
template <typename T>
std::vector<double> SumModel(const Image<T>& image) {
  std::vector<double> sum(4, 0.0);
  double odd = 0.0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      for (int c = 0; c < image.channels(); ++c)
        (image.channels() == 1 && x % 2 ? odd : sum[c]) += image.at(x, y, c);
  if (image.channels() == 1) sum[0] = odd + sum[0];
  return sum;
}

// Row by row, a channel's position moves only to a row whose extremum is
// strictly beyond it, and then to that row's first such sample. C1 starts
// from the type's bound, the other layouts from the first pixel.
template <typename T>
void IndexModel(const Image<T>& image, int c, bool findMax, T& value, int& x, int& y) {
  value = image.channels() > 1 ? image.at(0, 0, c)
          : findMax            ? std::numeric_limits<T>::lowest()
                               : std::numeric_limits<T>::max();
  x = y = 0;
  for (int row = 0; row < image.height(); ++row)
    for (int col = 0; col < image.width(); ++col) {
      const T v = image.at(col, row, c);
      if (findMax ? v > value : v < value) value = v, x = col, y = row;
    }
}

constexpr double kUnwritten = -12345.0;

template <typename T>
void CompareWithModels(uint32_t seed) {
  std::mt19937 rng(seed);
  vok_test::ForEachTarget([&](const char*) {
    for (const StatForms<T>& form : Forms<T>()) {
      SCOPED_TRACE(form.name);
      for (int round = 0; round < 12; ++round) {
        const auto [width, height, g] = vok_test::RandomShape(rng, sizeof(T), 5);
        SCOPED_TRACE(::testing::Message() << width << "x" << height << " pad " << g.padBytes);
        Image<T> image(width, height, form.channels, g.padBytes, g.offsetBytes);
        Fill(image, rng, round % 2 == 0);
        const T* src = image.data();
        const int step = image.step(), n = form.reported;
        const VokiSize roi = image.size();

        // For 32f the accurate path is exact, the fast one within
        // single-precision rounding of the rows.
        const std::vector<double> want = SumModel(image);
        for (VokHint hint : {vokHintNone, vokHintAccurate}) {
          const bool exact = !std::is_floating_point_v<T> || hint == vokHintAccurate;
          Vok64f sum[5], mean[5];
          std::fill_n(sum, 5, kUnwritten);
          std::fill_n(mean, 5, kUnwritten);
          ASSERT_EQ(form.sum(src, step, roi, sum, hint), vokStatusOk);
          ASSERT_EQ(form.mean(src, step, roi, mean, hint), vokStatusOk);
          for (int c = 0; c < n; ++c) {
            // C1 divides, the other layouts multiply by the reciprocal.
            const double count = double(width) * height;
            EXPECT_EQ(mean[c], n == 1 ? sum[0] / count : sum[c] * (1.0 / count)) << c;
            if (exact) EXPECT_EQ(sum[c], want[c]) << c << " hint " << hint;
            else EXPECT_NEAR(sum[c], want[c], 1e-2 * count) << c;
          }
          EXPECT_EQ(sum[n], kUnwritten);
          EXPECT_EQ(mean[n], kUnwritten);
        }

        T lo[5], hi[5], loOnly[5], hiOnly[5];
        ASSERT_EQ(form.minMax(src, step, roi, lo, hi), vokStatusOk);
        ASSERT_EQ(form.min(src, step, roi, loOnly), vokStatusOk);
        ASSERT_EQ(form.max(src, step, roi, hiOnly), vokStatusOk);
        for (bool findMax : {false, true}) {
          T value[5];
          int x[5] = {-1, -1, -1, -1, -1}, y[5] = {-1, -1, -1, -1, -1};
          ASSERT_EQ(form.indx[findMax](src, step, roi, value, x, y), vokStatusOk);
          for (int c = 0; c < n; ++c) {
            T wantValue;
            int wantX, wantY;
            IndexModel(image, c, findMax, wantValue, wantX, wantY);
            EXPECT_EQ(findMax ? hi[c] : lo[c], wantValue) << c;
            EXPECT_EQ(findMax ? hiOnly[c] : loOnly[c], wantValue) << c;
            EXPECT_EQ(value[c], wantValue) << c << " max " << findMax;
            EXPECT_EQ(x[c], wantX) << c << " max " << findMax;
            EXPECT_EQ(y[c], wantY) << c << " max " << findMax;
          }
          EXPECT_EQ(x[n], -1);
        }
      }
    }
  });
}

TEST(StatsModel, Samples8u) { CompareWithModels<Vok8u>(11); }
TEST(StatsModel, Samples16s) { CompareWithModels<Vok16s>(12); }
TEST(StatsModel, Samples32f) { CompareWithModels<Vok32f>(13); }

// Totals far beyond 32 bits, and beyond what 32-bit lanes hold between
// flushes on every vector width.
TEST(Stats, SumsOfLargeImagesAreExact) {
  Image<Vok8u> bytes(4096, 4096);
  bytes.fill(255);
  Image<Vok16s> words(2048, 1024, 4);
  words.fill(-32768);
  vok_test::ForEachTarget([&](const char*) {
    Vok64f sum = 0, mean = 0, sums[4] = {};
    ASSERT_EQ(vokiSum_8u_C1R(bytes.data(), bytes.step(), bytes.size(), &sum), vokStatusOk);
    EXPECT_EQ(sum, 255.0 * 4096 * 4096);
    ASSERT_EQ(vokiMean_8u_C1R(bytes.data(), bytes.step(), bytes.size(), &mean), vokStatusOk);
    EXPECT_EQ(mean, 255.0);
    ASSERT_EQ(vokiSum_16s_C4R(words.data(), words.step(), words.size(), sums), vokStatusOk);
    for (double s : sums) EXPECT_EQ(s, -32768.0 * 2048 * 1024);
  });
}

// The fast 32f sum fixes its lanes, so every instruction set gives the same
// bits, and any hint but vokHintAccurate selects it.
TEST(Stats, FastFloatSumIsTheSameEverywhere) {
  std::mt19937 rng(5);
  Image<Vok32f> image(1031, 7, 3, 6, 2);
  image.randomize(rng);
  std::vector<double> first;
  vok_test::ForEachTarget([&](const char*) {
    for (VokHint hint : std::initializer_list<VokHint>{vokHintNone, vokHintFast, 7}) {
      Vok64f sums[3];
      ASSERT_EQ(vokiSum_32f_C3R(image.data(), image.step(), image.size(), sums, hint), vokStatusOk);
      if (first.empty()) first.assign(sums, sums + 3);
      EXPECT_EQ(std::vector<double>(sums, sums + 3), first) << "hint " << hint;
    }
  });
}

// Start values that the data never beats come back as they are: 255 at
// (0, 0) for an 8u C1 minimum, FLT_MAX and -FLT_MAX where the 32f C1 forms
// see only infinities; other layouts start from the first pixel.
TEST(Stats, StartValuesTheDataNeverBeats) {
  Image<Vok8u> flat(9, 4);
  flat.fill(255);
  Vok8u v8 = 0;
  int x = -1, y = -1, xs[3], ys[3];
  ASSERT_EQ(vokiMinIndx_8u_C1R(flat.data(), flat.step(), flat.size(), &v8, &x, &y), vokStatusOk);
  EXPECT_EQ(std::tuple(v8, x, y), std::tuple(255, 0, 0));

  Image<Vok32f> inf(5, 3), negInf(5, 3, 3);
  inf.fill(INFINITY);
  negInf.fill(-INFINITY);
  Vok32f f = 0, fs[3];
  ASSERT_EQ(vokiMin_32f_C1R(inf.data(), inf.step(), inf.size(), &f), vokStatusOk);
  EXPECT_EQ(f, FLT_MAX);
  ASSERT_EQ(vokiMinIndx_32f_C1R(inf.data(), inf.step(), inf.size(), &f, &x, &y), vokStatusOk);
  EXPECT_EQ(f, FLT_MAX);
  ASSERT_EQ(vokiMax_32f_C3R(negInf.data(), negInf.step(), negInf.size(), fs), vokStatusOk);
  EXPECT_EQ(fs[1], -FLT_MAX);
  ASSERT_EQ(vokiMaxIndx_32f_C3R(negInf.data(), negInf.step(), negInf.size(), fs, xs, ys), vokStatusOk);
  EXPECT_EQ(fs[0], -INFINITY);
}

// Null pointers, then size, then step; nothing is written on failure. Mean
// tests its own output first and leaves the rest to Sum.
TEST(Stats, ArgumentChecksInOrder) {
  Image<Vok8u> image(4, 4);
  const Vok8u* src = image.data();
  Vok64f out = kUnwritten, sums[4];
  Vok8u value = 0;
  int x = 0, y = 0;
  const auto* f = reinterpret_cast<const Vok32f*>(src);
  vok_test::ExpectStatuses({
      {vokiSum_8u_C1R(nullptr, 0, {0, 0}, &out), vokStatusNullPointer},
      {vokiSum_8u_C1R(src, 0, {0, 4}, &out), vokStatusBadSize},
      {vokiSum_8u_C1R(src, 0, {4, 4}, &out), vokStatusBadStep},
      {vokiMean_8u_C1R(nullptr, 4, {4, 4}, nullptr), vokStatusNullPointer},
      {vokiMean_8u_C1R(src, -1, {4, 0}, &out), vokStatusBadSize},
      {vokiMinMax_8u_C1R(src, 4, {4, 4}, &value, nullptr), vokStatusNullPointer},
      {vokiMax_8u_C1R(src, 0, {-1, 4}, &value), vokStatusBadSize},
      {vokiMinIndx_8u_C1R(src, 4, {4, 4}, &value, &x, nullptr), vokStatusNullPointer},
      {vokiMaxIndx_8u_C1R(nullptr, 0, {0, 0}, &value, &x, &y), vokStatusNullPointer},
      {vokiMaxIndx_8u_C1R(src, 0, {4, 4}, &value, &x, &y), vokStatusBadStep},
      {vokiSum_32f_AC4R(nullptr, 0, {0, 0}, sums, vokHintAccurate), vokStatusNullPointer},
      {vokiMean_32f_C3R(f, 0, {1, 0}, sums, vokHintNone), vokStatusBadSize},
  });
  EXPECT_EQ(out, kUnwritten);
  EXPECT_EQ(value, 0);
}

}  // namespace
