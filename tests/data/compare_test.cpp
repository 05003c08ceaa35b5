// Compare, Threshold and Complement against plain models, NaN included, on
// every instruction set; then worked values and the orders of the checks.
#include <cmath>
#include <cstring>

#include "vok_test.h"

namespace {

using vok_test::Image;

// Samples from a narrow range, so that equal values are common; NaN in a
// few float samples.
template <typename T>
void FillNarrow(Image<T>& image, std::mt19937& rng, bool withNaN = true) {
  for (int y = 0; y < image.height(); ++y)
    for (size_t i = 0; i < image.rowSamples(); ++i) {
      T v = static_cast<T>(int(rng() % 7) - 3 + (std::is_unsigned_v<T> ? 3 : 0));
      if (std::is_floating_point_v<T> && withNaN && rng() % 16 == 0) v = T(NAN);
      image.set(int(i) / image.channels(), y, int(i) % image.channels(), v);
    }
}

template <typename T>
bool Relation(int op, T a, T b, float eps) {
  switch (op) {
    case vokCmpLess: return a < b;
    case vokCmpLessEq: return a <= b;
    case vokCmpEq: return a == b;
    case vokCmpGreaterEq: return a >= b;
    case vokCmpGreater: return a > b;
  }
  volatile float d = float(a) - float(b);  // op -1 stands for EqualEps here
  return std::fabs(d) <= eps;
}

// One signature for all compare forms: b is an image or the constant, and
// op -1 selects the EqualEps forms with eps.
template <typename T>
using CompareFn = VokStatus (*)(const T* a, int as, const T* b, int bs,
                                Vok8u* d, int ds, VokiSize r, int op, float eps);

template <typename T>
struct CompareForm {
  const char* name;
  int channels, tested;
  bool constant, eps;
  CompareFn<T> call;
};

#define CMP_IMAGES(T, fn)                                                       \
  [](const T* a, int as, const T* b, int bs, Vok8u* d, int ds, VokiSize r,     \
     int op, float) { return fn(a, as, b, bs, d, ds, r, op); }
#define CMP_C1(T, fn)                                                           \
  [](const T* a, int as, const T* b, int, Vok8u* d, int ds, VokiSize r, int op, \
     float) { return fn(a, as, *b, d, ds, r, op); }
#define CMP_CN(T, fn)                                                           \
  [](const T* a, int as, const T* b, int, Vok8u* d, int ds, VokiSize r, int op, \
     float) { return fn(a, as, b, d, ds, r, op); }
#define EPS_IMAGES(T, fn)                                                       \
  [](const T* a, int as, const T* b, int bs, Vok8u* d, int ds, VokiSize r, int, \
     float e) { return fn(a, as, b, bs, d, ds, r, e); }
#define EPS_C1(T, fn)                                                           \
  [](const T* a, int as, const T* b, int, Vok8u* d, int ds, VokiSize r, int,    \
     float e) { return fn(a, as, *b, d, ds, r, e); }
#define EPS_CN(T, fn)                                                           \
  [](const T* a, int as, const T* b, int, Vok8u* d, int ds, VokiSize r, int,    \
     float e) { return fn(a, as, b, d, ds, r, e); }
#define CMP_FORM(stem, tok, T, lay, ch, tested, constant, eps, shape) \
  CompareForm<T>{#stem "_" #tok "_" #lay, ch, tested, constant, eps,   \
                 shape(T, stem##_##tok##_##lay##R)}
#define CMP_FORMS(stem, tok, T, constant, eps, c1, cn)                 \
  CMP_FORM(stem, tok, T, C1, 1, 1, constant, eps, c1),                         \
      CMP_FORM(stem, tok, T, C3, 3, 3, constant, eps, cn),                     \
      CMP_FORM(stem, tok, T, C4, 4, 4, constant, eps, cn),                     \
      CMP_FORM(stem, tok, T, AC4, 4, 3, constant, eps, cn)
#define COMPARE_FORMS(tok, T)                                                  \
  CMP_FORMS(vokiCompare, tok, T, false, false, CMP_IMAGES, CMP_IMAGES), \
      CMP_FORMS(vokiCompareC, tok, T, true, false, CMP_C1, CMP_CN)

template <typename T>
std::vector<CompareForm<T>> CompareForms();
template <>
std::vector<CompareForm<Vok8u>> CompareForms() { return {COMPARE_FORMS(8u, Vok8u)}; }
template <>
std::vector<CompareForm<Vok16s>> CompareForms() { return {COMPARE_FORMS(16s, Vok16s)}; }
template <>
std::vector<CompareForm<Vok32f>> CompareForms() {
  return {COMPARE_FORMS(32f, Vok32f),
          CMP_FORMS(vokiCompareEqualEps, 32f, Vok32f, false, true, EPS_IMAGES, EPS_IMAGES),
          CMP_FORMS(vokiCompareEqualEpsC, 32f, Vok32f, true, true, EPS_C1, EPS_CN)};
}

template <typename T>
void CheckCompare(uint32_t seed) {
  std::mt19937 rng(seed);
  vok_test::ForEachTarget([&](const char*) {
    for (const auto& form : CompareForms<T>())
      for (int op : form.eps ? std::vector<int>{-1} : std::vector<int>{0, 1, 2, 3, 4})
        for (int trial = 0; trial < 3; ++trial) {
          SCOPED_TRACE(form.name);
          const auto& widths = vok_test::TestWidths();
          const int width = widths[rng() % widths.size()], height = 1 + rng() % 3;
          const auto g = vok_test::TestGeometries(sizeof(T))[rng() % 4];
          Image<T> a(width, height, form.channels, g.padBytes, g.offsetBytes);
          Image<T> b(width, height, form.channels, g.offsetBytes, 0);
          Image<Vok8u> dst(width, height, 1, g.padBytes, g.offsetBytes);
          FillNarrow(a, rng);
          FillNarrow(b, rng);
          dst.randomize(rng);
          const T constant[4] = {T(1), T(0), T(2), T(-1)};
          const float eps = float(rng() % 3);
          Image<Vok8u> want = dst;
          for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x) {
              bool all = true;
              for (int c = 0; c < form.tested; ++c)
                all = all && Relation<T>(op, a.at(x, y, c),
                                         form.constant ? constant[c] : b.at(x, y, c), eps);
              want.set(x, y, 0, all ? 255 : 0);
            }
          ASSERT_EQ(form.call(a.data(), a.step(), form.constant ? constant : b.data(),
                              b.step(), dst.data(), dst.step(), a.size(), op, eps),
                    vokStatusOk);
          EXPECT_EQ(dst.firstDifference(want), "") << "op " << op << " width " << width;
          EXPECT_TRUE(dst.guardsIntact());
        }
  });
}

TEST(CompareModel, Samples8u) { CheckCompare<Vok8u>(1); }
TEST(CompareModel, Samples16s) { CheckCompare<Vok16s>(2); }
TEST(CompareModel, Samples32f) { CheckCompare<Vok32f>(3); }

// ---- Threshold -----------------------------------------------------------

enum class Rule { kLess, kGreater, kLessVal, kGreaterVal, kBand };

template <typename T>
T ThresholdModel(Rule rule, T x, T t, T v, T tU, T vU) {
  const bool isNaN = x != x;
  switch (rule) {
    case Rule::kLess: return isNaN || x < t ? t : x;
    case Rule::kGreater: return isNaN || x > t ? t : x;
    case Rule::kLessVal: return isNaN || x < t ? v : x;
    case Rule::kGreaterVal: return x > t ? v : x;
    case Rule::kBand: return isNaN || x < t ? v : x > tU ? vU : x;
  }
  return x;
}

// One signature for all threshold forms, R or IR by a flag; constants always
// come as arrays of four.
template <typename T>
using ThresholdFn = VokStatus (*)(const T* s, int ss, T* d, int ds, VokiSize r,
                                  bool inPlace, const T* t, const T* v,
                                  const T* tU, const T* vU);

template <typename T>
struct ThresholdForm {
  const char* name;
  int channels;
  bool alpha;
  Rule rule;
  ThresholdFn<T> call;
};

#define TH_ARG_C1(p) *p
#define TH_ARG_C3(p) p
#define TH_ARG_AC4(p) p
#define TH_ARG_C4(p) p
// `args` lists the trailing arguments, in terms of t, v, tU and vU.
#define TH_FORM(stem, T, lay, ch, alpha, rule, args)                           \
  ThresholdForm<T>{#stem "_" #lay, ch, alpha, Rule::rule,                      \
                   [](const T* s, int ss, T* d, int ds, VokiSize r, bool inPlace, \
                      [[maybe_unused]] const T* t, [[maybe_unused]] const T* v,  \
                      [[maybe_unused]] const T* tU,                            \
                      [[maybe_unused]] const T* vU) {                          \
                     return inPlace ? stem##_##lay##IR(d, ds, r, args)         \
                                    : stem##_##lay##R(s, ss, d, ds, r, args);  \
                   }}
#define TH_ONE(lay) TH_ARG_##lay(t)
#define TH_ONE_LT(lay) TH_ARG_##lay(t), vokCmpLess
#define TH_ONE_GT(lay) TH_ARG_##lay(t), vokCmpGreater
#define TH_TWO(lay) TH_ARG_##lay(t), TH_ARG_##lay(v)
#define TH_TWO_LT(lay) TH_TWO(lay), vokCmpLess
#define TH_TWO_GT(lay) TH_TWO(lay), vokCmpGreater
#define TH_FOUR(lay) TH_TWO(lay), TH_ARG_##lay(tU), TH_ARG_##lay(vU)
#define TH_LAYOUTS(stem, T, rule, args)                                         \
  TH_FORM(stem, T, C1, 1, false, rule, args(C1)),                               \
      TH_FORM(stem, T, C3, 3, false, rule, args(C3)),                           \
      TH_FORM(stem, T, AC4, 4, true, rule, args(AC4))
#define THRESHOLD_FORMS(tok, T)                                                  \
  TH_LAYOUTS(vokiThreshold_##tok, T, kLess, TH_ONE_LT),                          \
      TH_LAYOUTS(vokiThreshold_##tok, T, kGreater, TH_ONE_GT),                   \
      TH_LAYOUTS(vokiThreshold_LT_##tok, T, kLess, TH_ONE),                      \
      TH_LAYOUTS(vokiThreshold_GT_##tok, T, kGreater, TH_ONE),                   \
      TH_LAYOUTS(vokiThreshold_Val_##tok, T, kLessVal, TH_TWO_LT),               \
      TH_LAYOUTS(vokiThreshold_Val_##tok, T, kGreaterVal, TH_TWO_GT),            \
      TH_LAYOUTS(vokiThreshold_LTVal_##tok, T, kLessVal, TH_TWO),                \
      TH_LAYOUTS(vokiThreshold_GTVal_##tok, T, kGreaterVal, TH_TWO),             \
      TH_FORM(vokiThreshold_LTVal_##tok, T, C4, 4, false, kLessVal, TH_TWO(C4)), \
      TH_FORM(vokiThreshold_GTVal_##tok, T, C4, 4, false, kGreaterVal, TH_TWO(C4)), \
      TH_LAYOUTS(vokiThreshold_LTValGTVal_##tok, T, kBand, TH_FOUR)

template <typename T>
std::vector<ThresholdForm<T>> ThresholdForms();
template <>
std::vector<ThresholdForm<Vok8u>> ThresholdForms() { return {THRESHOLD_FORMS(8u, Vok8u)}; }
template <>
std::vector<ThresholdForm<Vok16s>> ThresholdForms() { return {THRESHOLD_FORMS(16s, Vok16s)}; }
template <>
std::vector<ThresholdForm<Vok32f>> ThresholdForms() { return {THRESHOLD_FORMS(32f, Vok32f)}; }

template <typename T>
void CheckThreshold(uint32_t seed) {
  std::mt19937 rng(seed);
  vok_test::ForEachTarget([&](const char*) {
    for (const auto& form : ThresholdForms<T>())
      for (bool inPlace : {false, true})
        for (int trial = 0; trial < 3; ++trial) {
          SCOPED_TRACE(form.name);
          const auto& widths = vok_test::TestWidths();
          const int width = widths[rng() % widths.size()], height = 1 + rng() % 3;
          const auto g = vok_test::TestGeometries(sizeof(T))[rng() % 4];
          Image<T> src(width, height, form.channels, g.padBytes, g.offsetBytes);
          Image<T> dst(width, height, form.channels, g.offsetBytes, g.padBytes);
          FillNarrow(src, rng);
          dst.randomize(rng);
          if (inPlace) dst = src;
          T t[4], v[4], tU[4], vU[4];
          for (int c = 0; c < 4; ++c) {
            t[c] = T(int(rng() % 5) - 2 + (std::is_unsigned_v<T> ? 3 : 0));
            tU[c] = T(t[c] + T(rng() % 3));
            v[c] = T(100 + c);
            vU[c] = T(50 + c);
          }
          Image<T> want = dst;
          for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
              for (int c = 0; c < (form.alpha ? 3 : form.channels); ++c)
                want.set(x, y, c, ThresholdModel(form.rule, src.at(x, y, c), t[c],
                                                 v[c], tU[c], vU[c]));
          ASSERT_EQ(form.call(src.data(), src.step(), dst.data(), dst.step(),
                              src.size(), inPlace, t, v, tU, vU),
                    vokStatusOk);
          EXPECT_EQ(dst.firstDifference(want), "") << "width " << width << " in place " << inPlace;
          EXPECT_TRUE(dst.guardsIntact());
        }
  });
}

TEST(ThresholdModel, Samples8u) { CheckThreshold<Vok8u>(11); }
TEST(ThresholdModel, Samples16s) { CheckThreshold<Vok16s>(12); }
TEST(ThresholdModel, Samples32f) { CheckThreshold<Vok32f>(13); }

// ---- Worked values -------------------------------------------------------

TEST(CompareValues, AllChannelsMustHold) {
  const Vok8u a[] = {1, 2, 3, 0, 1, 2}, b[] = {1, 2, 4, 1, 2, 3};
  Vok8u d[2];
  ASSERT_EQ(vokiCompare_8u_C3R(a, 6, b, 6, d, 2, VokiSize{2, 1}, vokCmpLess), vokStatusOk);
  EXPECT_EQ(d[0], 0);
  EXPECT_EQ(d[1], 255);
  const Vok8u p[] = {5, 6, 7, 1}, q[] = {5, 6, 7, 200};
  ASSERT_EQ(vokiCompare_8u_AC4R(p, 4, q, 4, d, 1, VokiSize{1, 1}, vokCmpEq), vokStatusOk);
  EXPECT_EQ(d[0], 255);
  const float nan = NAN, one = 1.0f;
  for (int op = vokCmpLess; op <= vokCmpGreater; ++op) {
    ASSERT_EQ(vokiCompareC_32f_C1R(&nan, 4, one, d, 1, VokiSize{1, 1}, op), vokStatusOk);
    EXPECT_EQ(d[0], 0) << op;
  }
  const float x = 2.0f;
  ASSERT_EQ(vokiCompareC_32f_C1R(&x, 4, 3.0f, d, 1, VokiSize{1, 1}, vokCmpLess), vokStatusOk);
  EXPECT_EQ(d[0], 255);  // sample below the constant
  ASSERT_EQ(vokiCompareEqualEps_32f_C1R(&x, 4, &x, 4, d, 1, VokiSize{1, 1}, 0), vokStatusOk);
  EXPECT_EQ(d[0], 255);
  ASSERT_EQ(vokiCompareEqualEps_32f_C1R(&nan, 4, &nan, 4, d, 1, VokiSize{1, 1}, 0), vokStatusOk);
  EXPECT_EQ(d[0], 0);
}

TEST(ThresholdValues, BandsAndNaN) {
  Vok8u s[] = {9, 10, 11};
  ASSERT_EQ(vokiThreshold_LTValGTVal_8u_C1IR(s, 3, VokiSize{3, 1}, 10, 1, 10, 200), vokStatusOk);
  EXPECT_EQ(s[0], 1);
  EXPECT_EQ(s[1], 10);
  EXPECT_EQ(s[2], 200);
  float f = NAN;
  ASSERT_EQ(vokiThreshold_GTVal_32f_C1IR(&f, 4, VokiSize{1, 1}, 0, 5), vokStatusOk);
  EXPECT_TRUE(std::isnan(f));
  ASSERT_EQ(vokiThreshold_LTVal_32f_C1IR(&f, 4, VokiSize{1, 1}, 0, 5), vokStatusOk);
  EXPECT_EQ(f, 5);
}

TEST(ComplementValues, SignAndMagnitude) {
  Image<Vok32s> image(7, 2, 1, 4, 4);
  const Vok32s in[7] = {0, 5, -1, -5, INT32_MIN, INT32_MAX, -INT32_MAX};
  const uint32_t out[7] = {0, 5, 0x80000001u, 0x80000005u, 0x80000000u,
                           0x7FFFFFFFu, 0xFFFFFFFFu};
  vok_test::ForEachTarget([&](const char*) {
    for (int y = 0; y < 2; ++y) std::memcpy(image.row(y), in, sizeof(in));
    ASSERT_EQ(vokiComplement_32s_C1IR(image.data(), image.step(), image.size()), vokStatusOk);
    for (int y = 0; y < 2; ++y)
      for (int x = 0; x < 7; ++x) EXPECT_EQ(uint32_t(image.at(x, y)), out[x]);
    EXPECT_TRUE(image.guardsIntact());
  });
}

// ---- Argument checks -------------------------------------------------------

TEST(CompareChecks, OrdersAndNothingWritten) {
  Image<Vok8u> a(3, 2), dst(3, 2);
  dst.fill(77);
  const Image<Vok8u> before = dst;
  const VokiSize roi = a.size(), empty{0, 2};
  const Vok8u three[3] = {1, 2, 3};
  // Steps before size.
  EXPECT_EQ(vokiCompare_8u_C1R(a.data(), 0, a.data(), 3, dst.data(), 3, empty, 0),
            vokStatusBadStep);
  EXPECT_EQ(vokiCompare_8u_C1R(a.data(), 3, nullptr, 0, dst.data(), 3, empty, 0),
            vokStatusNullPointer);
  EXPECT_EQ(vokiCompareC_8u_C3R(a.data(), 9, nullptr, dst.data(), 3, roi, 0),
            vokStatusNullPointer);
  EXPECT_EQ(vokiComplement_32s_C1IR(reinterpret_cast<Vok32s*>(dst.data()), 0, empty),
            vokStatusBadStep);
  // Unknown selectors succeed without writing.
  for (int op : {-1, 5, 7})
    EXPECT_EQ(vokiCompare_8u_C1R(a.data(), 3, a.data(), 3, dst.data(), 3, roi, op),
              vokStatusOk);
  EXPECT_EQ(vokiCompareC_8u_C3R(a.data(), 9, three, dst.data(), 3, roi, 9), vokStatusOk);
  const float fa[2] = {}, feps = -1;
  Vok8u d8;
  EXPECT_EQ(vokiCompareEqualEps_32f_C1R(fa, 0, fa, 4, &d8, 1, empty, feps), vokStatusBadStep);
  EXPECT_EQ(vokiCompareEqualEps_32f_C1R(fa, 4, fa, 4, &d8, 1, empty, feps), vokStatusBadSize);
  EXPECT_EQ(vokiCompareEqualEpsC_32f_C1R(fa, 4, 0, dst.data(), 1, VokiSize{1, 1}, feps),
            vokStatusBadEpsilon);
  EXPECT_EQ(vokiCompareEqualEpsC_32f_AC4R(fa, 16, fa, dst.data(), 1, VokiSize{1, 1}, NAN),
            vokStatusBadEpsilon);
  EXPECT_TRUE(dst.sameRegion(before));
  EXPECT_TRUE(dst.guardsIntact());
}

TEST(ThresholdChecks, OrdersAndNothingWritten) {
  Image<Vok8u> src(3, 2), dst(3, 2);
  dst.fill(77);
  const Image<Vok8u> before = dst;
  const VokiSize roi = src.size(), empty{0, 2};
  const Vok8u lo[3] = {5, 5, 5}, hi[3] = {6, 4, 6};
  // The rule: images, size, step, constant pointers, then the selector.
  EXPECT_EQ(vokiThreshold_8u_C1R(src.data(), 3, dst.data(), 3, roi, 1, vokCmpLessEq),
            vokStatusBadMode);
  EXPECT_EQ(vokiThreshold_8u_C1R(nullptr, 3, dst.data(), 3, roi, 1, 1), vokStatusNullPointer);
  EXPECT_EQ(vokiThreshold_8u_C3R(src.data(), 0, dst.data(), 9, empty, lo, 1), vokStatusBadSize);
  EXPECT_EQ(vokiThreshold_8u_C3R(src.data(), 0, dst.data(), 9, roi, lo, 1), vokStatusBadStep);
  EXPECT_EQ(vokiThreshold_8u_C3IR(dst.data(), 9, roi, nullptr, 1), vokStatusNullPointer);
  // Val: the selector before all else.
  EXPECT_EQ(vokiThreshold_Val_8u_C1R(nullptr, 0, nullptr, 0, empty, 1, 2, 1), vokStatusBadMode);
  EXPECT_EQ(vokiThreshold_Val_8u_AC4R(src.data(), 12, dst.data(), 12, roi, lo, nullptr,
                                      vokCmpLess),
            vokStatusNullPointer);
  // Bands: constants, then the order of the thresholds in any used channel.
  EXPECT_EQ(vokiThreshold_LTValGTVal_8u_C1R(src.data(), 3, dst.data(), 3, roi, 11, 0, 10, 0),
            vokStatusBadThresholds);
  EXPECT_EQ(vokiThreshold_LTValGTVal_8u_C3R(src.data(), 9, dst.data(), 9, roi, lo, lo, hi, hi),
            vokStatusBadThresholds);
  EXPECT_EQ(vokiThreshold_LTValGTVal_8u_C3R(src.data(), 9, dst.data(), 9, roi, lo, nullptr,
                                            hi, hi),
            vokStatusNullPointer);
  const float f[3] = {}, nanBand[3] = {0, NAN, 0};
  float fd[3];
  EXPECT_EQ(vokiThreshold_LTValGTVal_32f_AC4R(f, 16, fd, 16, VokiSize{1, 1}, f, f, nanBand, f),
            vokStatusBadThresholds);
  EXPECT_EQ(vokiThreshold_GTVal_8u_C4R(src.data(), 12, dst.data(), 12, roi, nullptr, lo),
            vokStatusNullPointer);
  EXPECT_TRUE(dst.sameRegion(before));
  EXPECT_TRUE(dst.guardsIntact());
}

}  // namespace
