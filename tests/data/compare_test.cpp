// Compare, Threshold and Complement against plain models, NaN included, on
// every instruction set; then the orders of the checks.
#include <cmath>
#include <cstring>

#include "vok_test.h"

namespace {

using vok_test::Image;

// Samples from a narrow range, so that equal values are common; NaN in a
// few float samples.
template <typename T>
void FillNarrow(Image<T>& image, std::mt19937& rng) {
  for (int y = 0; y < image.height(); ++y)
    for (size_t i = 0; i < image.rowSamples(); ++i) {
      T v = static_cast<T>(int(rng() % 7) - 3 + (std::is_unsigned_v<T> ? 3 : 0));
      if (std::is_floating_point_v<T> && rng() % 16 == 0) v = T(NAN);
      std::memcpy(image.row(y) + i, &v, sizeof(T));
    }
}

// A random shape, or for `large` one whose images together pass the size
// from which one-channel rows store past the cache, a sample off the vector
// alignment so that every row starts with a partial group.
template <typename T>
vok_test::Shape TrialShape(std::mt19937& rng, bool large, int bytesPerPixel) {
  if (!large) return vok_test::RandomShape(rng, sizeof(T));
  const int width = 2051, sample = sizeof(T);
  return {width, (16 << 20) / (width * bytesPerPixel) + 1, {sample, sample}};
}

// ---- Compare ---------------------------------------------------------------

// op -1 stands for the EqualEps forms.
template <typename T>
bool Relation(int op, T a, T b, float eps) {
  switch (op) {
    case vokCmpLess: return a < b;
    case vokCmpLessEq: return a <= b;
    case vokCmpEq: return a == b;
    case vokCmpGreaterEq: return a >= b;
    case vokCmpGreater: return a > b;
  }
  volatile float d = float(a) - float(b);
  return std::fabs(d) <= eps;
}

// One signature for all compare forms: b is an image or the constant.
template <typename T>
using CompareFn = VokStatus (*)(const T* a, int as, const T* b, int bs, Vok8u* d, int ds,
                                VokiSize r, int op, float eps);

template <typename T>
struct CompareForm {
  const char* name;
  int channels, tested;  // AC4 tests three
  bool constant, eps;
  CompareFn<T> call;
};

#define CMP_SECOND_IMAGE b, bs
#define CMP_SECOND_C1 *b
#define CMP_SECOND_CN b
#define CMP_EPS_op false
#define CMP_EPS_e true
#define CMP_FORM(stem, tok, T, lay, ch, tested, constant, second, last)                      \
  CompareForm<T>{#stem "_" #tok "_" #lay, ch, tested, constant, CMP_EPS_##last,              \
                 [](const T* a, int as, const T* b, [[maybe_unused]] int bs, Vok8u* d, int ds, \
                    VokiSize r, [[maybe_unused]] int op, [[maybe_unused]] float e) {         \
                   return stem##_##tok##_##lay##R(a, as, CMP_SECOND_##second, d, ds, r, last); \
                 }}
#define CMP_FORMS(stem, tok, T, constant, c1, cn, last)                                         \
  CMP_FORM(stem, tok, T, C1, 1, 1, constant, c1, last),                                         \
      CMP_FORM(stem, tok, T, C3, 3, 3, constant, cn, last),                                     \
      CMP_FORM(stem, tok, T, C4, 4, 4, constant, cn, last),                                     \
      CMP_FORM(stem, tok, T, AC4, 4, 3, constant, cn, last)
#define COMPARE_FORMS(tok, T)                                         \
  CMP_FORMS(vokiCompare, tok, T, false, IMAGE, IMAGE, op),            \
      CMP_FORMS(vokiCompareC, tok, T, true, C1, CN, op)

template <typename T>
std::vector<CompareForm<T>> CompareForms();
template <>
std::vector<CompareForm<Vok8u>> CompareForms() { return {COMPARE_FORMS(8u, Vok8u)}; }
template <>
std::vector<CompareForm<Vok16s>> CompareForms() { return {COMPARE_FORMS(16s, Vok16s)}; }
template <>
std::vector<CompareForm<Vok32f>> CompareForms() {
  return {COMPARE_FORMS(32f, Vok32f), CMP_FORMS(vokiCompareEqualEps, 32f, Vok32f, false, IMAGE, IMAGE, e),
          CMP_FORMS(vokiCompareEqualEpsC, 32f, Vok32f, true, C1, CN, e)};
}

template <typename T>
void CheckCompare(uint32_t seed) {
  std::mt19937 rng(seed);
  vok_test::ForEachTarget([&](const char*) {
    for (const auto& form : CompareForms<T>())
      for (int op : form.eps ? std::vector<int>{-1} : std::vector<int>{0, 1, 2, 3, 4})
        for (int trial = 0; trial < (form.channels == 1 && op <= 0 ? 4 : 3); ++trial) {
          SCOPED_TRACE(form.name);
          const int pixelBytes = sizeof(T) * (form.constant ? 1 : 2) + 1;
          const auto [width, height, g] = TrialShape<T>(rng, trial == 3, pixelBytes);
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
              bool all = true;  // every tested channel must hold
              for (int c = 0; c < form.tested; ++c)
                all = all && Relation<T>(op, a.at(x, y, c), form.constant ? constant[c] : b.at(x, y, c), eps);
              want.set(x, y, 0, all ? 255 : 0);
            }
          ASSERT_EQ(form.call(a.data(), a.step(), form.constant ? constant : b.data(), b.step(),
                              dst.data(), dst.step(), a.size(), op, eps),
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

// NaN counts as below the threshold, never as above it, except in the band.
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
using ThresholdFn = VokStatus (*)(const T* s, int ss, T* d, int ds, VokiSize r, bool inPlace,
                                  const T* t, const T* v, const T* tU, const T* vU);

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
#define TH_FORM(stem, T, lay, ch, alpha, rule, args)                                          \
  ThresholdForm<T>{#stem "_" #lay, ch, alpha, Rule::rule,                                     \
                   [](const T* s, int ss, T* d, int ds, VokiSize r, bool inPlace,             \
                      [[maybe_unused]] const T* t, [[maybe_unused]] const T* v,               \
                      [[maybe_unused]] const T* tU, [[maybe_unused]] const T* vU) {           \
                     return inPlace ? stem##_##lay##IR(d, ds, r, args) : stem##_##lay##R(s, ss, d, ds, r, args); \
                   }}
#define TH_ONE(lay) TH_ARG_##lay(t)
#define TH_ONE_LT(lay) TH_ARG_##lay(t), vokCmpLess
#define TH_ONE_GT(lay) TH_ARG_##lay(t), vokCmpGreater
#define TH_TWO(lay) TH_ARG_##lay(t), TH_ARG_##lay(v)
#define TH_TWO_LT(lay) TH_TWO(lay), vokCmpLess
#define TH_TWO_GT(lay) TH_TWO(lay), vokCmpGreater
#define TH_FOUR(lay) TH_TWO(lay), TH_ARG_##lay(tU), TH_ARG_##lay(vU)
#define TH_LAYOUTS(stem, T, rule, args)                                                        \
  TH_FORM(stem, T, C1, 1, false, rule, args(C1)), TH_FORM(stem, T, C3, 3, false, rule, args(C3)), \
      TH_FORM(stem, T, AC4, 4, true, rule, args(AC4))
#define THRESHOLD_FORMS(tok, T)                                                        \
  TH_LAYOUTS(vokiThreshold_##tok, T, kLess, TH_ONE_LT),                                \
      TH_LAYOUTS(vokiThreshold_##tok, T, kGreater, TH_ONE_GT),                         \
      TH_LAYOUTS(vokiThreshold_LT_##tok, T, kLess, TH_ONE),                            \
      TH_LAYOUTS(vokiThreshold_GT_##tok, T, kGreater, TH_ONE),                         \
      TH_LAYOUTS(vokiThreshold_Val_##tok, T, kLessVal, TH_TWO_LT),                     \
      TH_LAYOUTS(vokiThreshold_Val_##tok, T, kGreaterVal, TH_TWO_GT),                  \
      TH_LAYOUTS(vokiThreshold_LTVal_##tok, T, kLessVal, TH_TWO),                      \
      TH_LAYOUTS(vokiThreshold_GTVal_##tok, T, kGreaterVal, TH_TWO),                   \
      TH_FORM(vokiThreshold_LTVal_##tok, T, C4, 4, false, kLessVal, TH_TWO(C4)),       \
      TH_FORM(vokiThreshold_GTVal_##tok, T, C4, 4, false, kGreaterVal, TH_TWO(C4)),    \
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
        for (int trial = 0; trial < (form.channels == 1 && form.rule == Rule::kBand ? 4 : 3); ++trial) {
          SCOPED_TRACE(form.name);
          const auto [width, height, g] = TrialShape<T>(rng, trial == 3, 2 * sizeof(T));
          Image<T> src(width, height, form.channels, g.padBytes, g.offsetBytes);
          Image<T> dst(width, height, form.channels, g.offsetBytes, g.padBytes);
          FillNarrow(src, rng);
          dst.randomize(rng);
          if (inPlace) dst = src;
          T t[4], v[4], tU[4], vU[4];  // thresholds within the samples, tU = t included
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
                want.set(x, y, c, ThresholdModel(form.rule, src.at(x, y, c), t[c], v[c], tU[c], vU[c]));
          ASSERT_EQ(form.call(src.data(), src.step(), dst.data(), dst.step(), src.size(), inPlace, t, v, tU, vU),
                    vokStatusOk);
          EXPECT_EQ(dst.firstDifference(want), "") << "width " << width << " in place " << inPlace;
          EXPECT_TRUE(dst.guardsIntact());
        }
  });
}

TEST(ThresholdModel, Samples8u) { CheckThreshold<Vok8u>(11); }
TEST(ThresholdModel, Samples16s) { CheckThreshold<Vok16s>(12); }
TEST(ThresholdModel, Samples32f) { CheckThreshold<Vok32f>(13); }

// ---- Complement ----------------------------------------------------------

// Two's complement to sign and magnitude; the most negative value has no
// magnitude and turns into negative zero's pattern.
TEST(Complement, SignAndMagnitude) {
  Image<Vok32s> image(7, 2, 1, 4, 4);
  const Vok32s in[7] = {0, 5, -1, -5, INT32_MIN, INT32_MAX, -INT32_MAX};
  const uint32_t out[7] = {0, 5, 0x80000001u, 0x80000005u, 0x80000000u, 0x7FFFFFFFu, 0xFFFFFFFFu};
  vok_test::ForEachTarget([&](const char*) {
    for (int y = 0; y < 2; ++y) std::memcpy(image.row(y), in, sizeof(in));
    ASSERT_EQ(vokiComplement_32s_C1IR(image.data(), image.step(), image.size()), vokStatusOk);
    for (int y = 0; y < 2; ++y)
      for (int x = 0; x < 7; ++x) EXPECT_EQ(uint32_t(image.at(x, y)), out[x]);
    EXPECT_TRUE(image.guardsIntact());
  });
}

// ---- Argument checks -------------------------------------------------------

// Compare tests steps before size; unknown selectors succeed without
// writing; EqualEps rejects a negative or NaN eps last.
TEST(CompareChecks, OrdersAndNothingWritten) {
  Image<Vok8u> a(3, 2), dst(3, 2);
  dst.fill(77);
  const Image<Vok8u> before = dst;
  const VokiSize roi = a.size(), empty{0, 2}, one{1, 1};
  const Vok8u three[3] = {1, 2, 3};
  const float fa[4] = {};
  vok_test::ExpectStatuses({
      {vokiCompare_8u_C1R(a.data(), 0, a.data(), 3, dst.data(), 3, empty, 0), vokStatusBadStep},
      {vokiCompare_8u_C1R(a.data(), 3, nullptr, 0, dst.data(), 3, empty, 0), vokStatusNullPointer},
      {vokiCompareC_8u_C3R(a.data(), 9, nullptr, dst.data(), 3, roi, 0), vokStatusNullPointer},
      {vokiComplement_32s_C1IR(reinterpret_cast<Vok32s*>(dst.data()), 0, empty), vokStatusBadStep},
      {vokiCompare_8u_C1R(a.data(), 3, a.data(), 3, dst.data(), 3, roi, -1), vokStatusOk},
      {vokiCompare_8u_C1R(a.data(), 3, a.data(), 3, dst.data(), 3, roi, 5), vokStatusOk},
      {vokiCompare_8u_C1R(a.data(), 3, a.data(), 3, dst.data(), 3, roi, 7), vokStatusOk},
      {vokiCompareC_8u_C3R(a.data(), 9, three, dst.data(), 3, roi, 9), vokStatusOk},
      {vokiCompareEqualEps_32f_C1R(fa, 0, fa, 4, dst.data(), 1, empty, -1), vokStatusBadStep},
      {vokiCompareEqualEps_32f_C1R(fa, 4, fa, 4, dst.data(), 1, empty, -1), vokStatusBadSize},
      {vokiCompareEqualEpsC_32f_C1R(fa, 4, 0, dst.data(), 1, one, -1), vokStatusBadEpsilon},
      {vokiCompareEqualEpsC_32f_AC4R(fa, 16, fa, dst.data(), 1, one, NAN), vokStatusBadEpsilon},
  });
  EXPECT_TRUE(dst.sameRegion(before));
  EXPECT_TRUE(dst.guardsIntact());
}

// Threshold: images, size, step, constant pointers, then the selector; Val
// tests its selector before all else; the bands test their constants, then
// the order of the thresholds in every used channel.
TEST(ThresholdChecks, OrdersAndNothingWritten) {
  Image<Vok8u> src(3, 2), dst(3, 2);
  dst.fill(77);
  const Image<Vok8u> before = dst;
  const VokiSize roi = src.size(), empty{0, 2};
  const Vok8u lo[3] = {5, 5, 5}, hi[3] = {6, 4, 6};
  const float f[3] = {}, nanBand[3] = {0, NAN, 0};
  float fd[4];
  Vok8u* d = dst.data();
  vok_test::ExpectStatuses({
      {vokiThreshold_8u_C1R(src.data(), 3, d, 3, roi, 1, vokCmpLessEq), vokStatusBadMode},
      {vokiThreshold_8u_C1R(nullptr, 3, d, 3, roi, 1, 1), vokStatusNullPointer},
      {vokiThreshold_8u_C3R(src.data(), 0, d, 9, empty, lo, 1), vokStatusBadSize},
      {vokiThreshold_8u_C3R(src.data(), 0, d, 9, roi, lo, 1), vokStatusBadStep},
      {vokiThreshold_8u_C3IR(d, 9, roi, nullptr, 1), vokStatusNullPointer},
      {vokiThreshold_Val_8u_C1R(nullptr, 0, nullptr, 0, empty, 1, 2, 1), vokStatusBadMode},
      {vokiThreshold_Val_8u_AC4R(src.data(), 12, d, 12, roi, lo, nullptr, vokCmpLess), vokStatusNullPointer},
      {vokiThreshold_LTValGTVal_8u_C1R(src.data(), 3, d, 3, roi, 11, 0, 10, 0), vokStatusBadThresholds},
      {vokiThreshold_LTValGTVal_8u_C3R(src.data(), 9, d, 9, roi, lo, lo, hi, hi), vokStatusBadThresholds},
      {vokiThreshold_LTValGTVal_8u_C3R(src.data(), 9, d, 9, roi, lo, nullptr, hi, hi), vokStatusNullPointer},
      {vokiThreshold_LTValGTVal_32f_AC4R(f, 16, fd, 16, {1, 1}, f, f, nanBand, f), vokStatusBadThresholds},
      {vokiThreshold_GTVal_8u_C4R(src.data(), 12, d, 12, roi, nullptr, lo), vokStatusNullPointer},
  });
  EXPECT_TRUE(dst.sameRegion(before));
  EXPECT_TRUE(dst.guardsIntact());
}

}  // namespace
