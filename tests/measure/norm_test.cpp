// Norm, NormDiff and NormRel against plain models of the three norms, on
// every instruction set.
#include <cfloat>
#include <climits>
#include <cmath>

#include "vok_test.h"

namespace {

using vok_test::Image;

enum class Norm { kInf, kL1, kL2 };
enum class Kind { kNorm, kDiff, kRel };

// Every form through one signature: Norm forms ignore the second image and
// forms without a hint ignore the hint.
template <typename T>
using NormFn = VokStatus (*)(const T*, int, const T*, int, VokiSize, Vok64f*, VokHint);

template <typename T>
struct NormForm {
  const char* name;
  Norm norm;
  Kind kind;
  int channels, reported;
  NormFn<T> fn;
};

#define ONE_(T, fn) \
  [](const T* a, int as, const T*, int, VokiSize r, Vok64f* o, VokHint) { return fn(a, as, r, o); }
#define ONE_Hint(T, fn)                                                        \
  [](const T* a, int as, const T*, int, VokiSize r, Vok64f* o, VokHint h) {    \
    return fn(a, as, r, o, h);                                                 \
  }
#define TWO_(T, fn)                                                            \
  [](const T* a, int as, const T* b, int bs, VokiSize r, Vok64f* o, VokHint) { \
    return fn(a, as, b, bs, r, o);                                             \
  }
#define TWO_Hint(T, fn) fn
#define NORM_FORM(norm, tok, T, hint, lay, ch, rep)                                         \
  NormForm<T>{"Norm_" #norm "_" #tok "_" #lay, Norm::k##norm, Kind::kNorm, ch, rep,         \
              ONE_##hint(T, vokiNorm_##norm##_##tok##_##lay##R)},                           \
      NormForm<T>{"NormDiff_" #norm "_" #tok "_" #lay, Norm::k##norm, Kind::kDiff, ch, rep, \
                  TWO_##hint(T, vokiNormDiff_##norm##_##tok##_##lay##R)},                   \
      NormForm<T>{"NormRel_" #norm "_" #tok "_" #lay, Norm::k##norm, Kind::kRel, ch, rep,   \
                  TWO_##hint(T, vokiNormRel_##norm##_##tok##_##lay##R)}
#define NORM_LAYOUTS(norm, tok, T, hint)                                               \
  NORM_FORM(norm, tok, T, hint, C1, 1, 1), NORM_FORM(norm, tok, T, hint, C3, 3, 3),    \
      NORM_FORM(norm, tok, T, hint, C4, 4, 4), NORM_FORM(norm, tok, T, hint, AC4, 4, 3)
#define ALL_NORMS(tok, T, hint) \
  {NORM_LAYOUTS(Inf, tok, T, ), NORM_LAYOUTS(L1, tok, T, hint), NORM_LAYOUTS(L2, tok, T, hint)}

template <typename T>
std::vector<NormForm<T>> Forms();
template <>
std::vector<NormForm<Vok8u>> Forms() { return ALL_NORMS(8u, Vok8u, ); }
template <>
std::vector<NormForm<Vok16s>> Forms() { return ALL_NORMS(16s, Vok16s, ); }
template <>
std::vector<NormForm<Vok32f>> Forms() { return ALL_NORMS(32f, Vok32f, Hint); }

// The fast 32f norms of one channel run four float lanes through all rows,
// lane j taking columns j, j + 4, ...; the lanes end as (l0 + l1) + (l2 + l3).
double FastFloatC1(Norm norm, const Image<Vok32f>& a, const Image<Vok32f>* b) {
  float lanes[4] = {};
  for (int y = 0; y < a.height(); ++y)
    for (int x = 0; x < a.width(); ++x) {
      const float d = b ? a.at(x, y) - b->at(x, y) : a.at(x, y);
      lanes[x % 4] += norm == Norm::kL1 ? std::fabs(d) : d * d;
    }
  return static_cast<double>((lanes[0] + lanes[1]) + (lanes[2] + lanes[3]));
}

// Per channel: max |x|, sum |x| or sum x^2 with x = a or a - b. Integers are
// exact; 32f sums are the accurate path's doubles (even and odd columns
// apart in C1), or the fast path's floats.
template <typename T>
std::vector<double> Measure(Norm norm, const Image<T>& a, const Image<T>* b, bool accurate) {
  constexpr bool kFloat = std::is_floating_point_v<T>;
  std::vector<double> out(4, 0.0);
  if (kFloat && !accurate && norm != Norm::kInf && a.channels() == 1) {
    if constexpr (kFloat) out[0] = FastFloatC1(norm, a, b);
    return out;
  }
  double odd = 0.0;
  for (int y = 0; y < a.height(); ++y)
    for (int x = 0; x < a.width(); ++x)
      for (int c = 0; c < a.channels(); ++c) {
        const T va = a.at(x, y, c), vb = b ? b->at(x, y, c) : T(0);
        // The float infinity norm subtracts in single precision.
        const double d = kFloat && norm == Norm::kInf ? double(T(va - vb)) : double(va) - double(vb);
        if (norm == Norm::kInf) out[c] = std::max(out[c], std::fabs(d));
        else (a.channels() == 1 && x % 2 ? odd : out[c]) += norm == Norm::kL1 ? std::fabs(d) : d * d;
      }
  if (a.channels() == 1) out[0] = odd + out[0];
  return out;
}

std::vector<double> Rooted(Norm norm, std::vector<double> v) {
  if (norm == Norm::kL2)
    for (double& x : v) x = std::sqrt(x);
  return v;
}

template <typename T>
void CompareWithModel(uint32_t seed) {
  std::mt19937 rng(seed);
  constexpr bool kFloat = std::is_floating_point_v<T>;
  vok_test::ForEachTarget([&](const char*) {
    for (const NormForm<T>& form : Forms<T>()) {
      SCOPED_TRACE(form.name);
      for (int round = 0; round < 8; ++round) {
        const auto [width, height, g] = vok_test::RandomShape(rng, sizeof(T), 4);
        Image<T> a(width, height, form.channels, g.padBytes, g.offsetBytes);
        Image<T> b(width, height, form.channels, g.padBytes + 2 * sizeof(T), 0);
        a.randomize(rng);
        b.randomize(rng);
        if (round == 7) b.fill(0);  // every relative form warns
        const bool accurate = kFloat && round % 2;
        const VokHint hint = accurate ? vokHintAccurate : vokHintFast;
        SCOPED_TRACE(::testing::Message() << width << "x" << height << " hint " << hint);

        const Image<T>* second = form.kind == Kind::kNorm ? nullptr : &b;
        std::vector<double> want = Rooted(form.norm, Measure(form.norm, a, second, accurate));
        VokStatus wantStatus = vokStatusOk;
        if (form.kind == Kind::kRel) {
          // One-pass L2 forms divide sums of squares under one root; the
          // others divide two finished norms. A small denominator in any
          // channel leaves every channel undivided.
          const bool squareSums = form.norm == Norm::kL2 &&
                                  (form.channels == 1 || (kFloat && form.channels == 4 && !accurate));
          std::vector<double> num = Measure(form.norm, a, &b, accurate);
          std::vector<double> den = Measure<T>(form.norm, b, nullptr, accurate);
          if (!squareSums) num = Rooted(form.norm, num), den = Rooted(form.norm, den);
          for (int c = 0; c < form.reported; ++c)
            if (!(den[c] >= DBL_MIN)) wantStatus = vokWarnDivideByZero;
          for (int c = 0; c < form.reported; ++c) {
            const double ratio = wantStatus ? num[c] : num[c] / den[c];
            want[c] = squareSums ? std::sqrt(ratio) : ratio;
          }
        }
        Vok64f got[5] = {-1, -1, -1, -1, -1};
        ASSERT_EQ(form.fn(a.data(), a.step(), b.data(), b.step(), a.size(), got, hint), wantStatus);
        const bool exact = !kFloat || accurate || form.channels == 1 || form.norm == Norm::kInf;
        for (int c = 0; c < form.reported; ++c) {
          if (exact) EXPECT_EQ(got[c], want[c]) << "channel " << c;
          else EXPECT_NEAR(got[c], want[c], 1e-5 * std::fabs(want[c])) << "channel " << c;
        }
        EXPECT_EQ(got[form.reported], -1);
      }
    }
  });
}

TEST(NormModel, Samples8u) { CompareWithModel<Vok8u>(21); }
TEST(NormModel, Samples16s) { CompareWithModel<Vok16s>(22); }
TEST(NormModel, Samples32f) { CompareWithModel<Vok32f>(23); }

// Terms and totals that overflow 32-bit lanes or 32-bit totals.
TEST(Norm, LargeSumsAreExact) {
  Image<Vok16s> high(1024, 1024), low(1024, 1024);
  high.fill(32767);
  low.fill(-32768);
  Image<Vok8u> white(2048, 1024, 4);
  white.fill(255);
  vok_test::ForEachTarget([&](const char*) {
    Vok64f v = 0, v4[4];
    ASSERT_EQ(vokiNormDiff_L2_16s_C1R(high.data(), high.step(), low.data(), low.step(),
                                      high.size(), &v), vokStatusOk);
    EXPECT_EQ(v, std::sqrt(65535.0 * 65535.0 * 1024 * 1024));
    ASSERT_EQ(vokiNorm_L1_16s_C1R(low.data(), low.step(), low.size(), &v), vokStatusOk);
    EXPECT_EQ(v, 32768.0 * 1024 * 1024);
    ASSERT_EQ(vokiNorm_L2_8u_C4R(white.data(), white.step(), white.size(), v4), vokStatusOk);
    for (double x : v4) EXPECT_EQ(x, std::sqrt(65025.0 * 2048 * 1024));
  });
}

// 8u L2 rows wider than 32768 pixels: the squares of column-block norms are
// summed before one root; the relative C1 form sums exactly instead.
TEST(Norm, WideRowsOf8uL2GoByColumnBlocks) {
  std::mt19937 rng(9);
  Image<Vok8u> a(40000, 2, 3), b(40000, 2, 3);
  a.randomize(rng);
  b.randomize(rng);
  // Sum of (a - b)^2 over columns [x0, x1) of channel c.
  const auto squares = [&](int x0, int x1, int c) {
    double s = 0;
    for (int y = 0; y < a.height(); ++y)
      for (int x = x0; x < x1; ++x) {
        const double d = double(a.at(x, y, c)) - b.at(x, y, c);
        s += d * d;
      }
    return s;
  };
  Vok64f v[3];
  ASSERT_EQ(vokiNormDiff_L2_8u_C3R(a.data(), a.step(), b.data(), b.step(), a.size(), v), vokStatusOk);
  for (int c = 0; c < 3; ++c) {
    const double left = std::sqrt(squares(0, 32768, c)), right = std::sqrt(squares(32768, 40000, c));
    EXPECT_EQ(v[c], std::sqrt(left * left + right * right));
  }
  // The first 40000 bytes of row 0 as one C1 row.
  Vok64f rel = 0;
  ASSERT_EQ(vokiNormRel_L2_8u_C1R(a.data(), a.step(), b.data(), b.step(), {40000, 1}, &rel), vokStatusOk);
  double num = 0, den = 0;
  for (int x = 0; x < 40000; ++x) {
    const double d = double(a.row(0)[x]) - b.row(0)[x];
    num += d * d;
    den += double(b.row(0)[x]) * b.row(0)[x];
  }
  EXPECT_EQ(rel, std::sqrt(num / den));
}

TEST(Norm, EdgeCases) {
  Vok16s lowest = -32768;
  Vok32s lowest32 = INT_MIN;
  Vok64f v = 0;
  ASSERT_EQ(vokiNorm_Inf_16s_C1R(&lowest, 2, {1, 1}, &v), vokStatusOk);
  EXPECT_EQ(v, 32768.0);
  ASSERT_EQ(vokiNorm_Inf_32s_C1R(&lowest32, 4, {1, 1}, &v), vokStatusOk);
  EXPECT_EQ(v, 2147483648.0);

  // A zero channel in the second image leaves every channel undivided.
  Vok8u a[8] = {9, 8, 7, 200, 1, 2, 3, 100}, b[8] = {1, 0, 1, 50, 1, 0, 1, 0};
  Vok64f rel[4] = {0, 0, 0, -1};
  EXPECT_EQ(vokiNormRel_Inf_8u_AC4R(a, 8, b, 8, {2, 1}, rel), vokWarnDivideByZero);
  EXPECT_EQ(std::vector<double>(rel, rel + 4), (std::vector<double>{8, 8, 6, -1}));
  b[1] = b[5] = 2;  // alpha still differs, and takes no part
  EXPECT_EQ(vokiNormRel_Inf_8u_AC4R(a, 8, b, 8, {2, 1}, rel), vokStatusOk);
  EXPECT_EQ(rel[1], 6.0 / 2.0);

  Vok8u zeros[8] = {};
  EXPECT_EQ(vokiNormRel_L1_8u_C1R(a, 8, zeros, 8, {8, 1}, &v), vokWarnDivideByZero);
  EXPECT_EQ(v, 330.0);
  EXPECT_EQ(vokiNormRel_L2_8u_C1R(a, 8, a, 8, {8, 1}, &v), vokStatusOk);
  EXPECT_EQ(v, 0.0);
}

TEST(Norm, ArgumentChecksInOrder) {
  Vok8u a[16] = {};
  const auto* f = reinterpret_cast<const Vok32f*>(a);
  Vok64f v = -1;
  vok_test::ExpectStatuses({
      {vokiNorm_L1_8u_C1R(nullptr, 0, {0, 0}, &v), vokStatusNullPointer},
      {vokiNormDiff_Inf_8u_C3R(a, 4, nullptr, 4, {1, 1}, &v), vokStatusNullPointer},
      {vokiNormRel_L2_8u_C1R(a, 4, a, 4, {4, 1}, nullptr), vokStatusNullPointer},
      {vokiNormRel_L2_8u_C1R(a, 0, a, 0, {4, 0}, &v), vokStatusBadSize},
      {vokiNormDiff_L2_8u_C1R(a, 4, a, 0, {4, 1}, &v), vokStatusBadStep},
      {vokiNorm_L2_32f_C4R(f, 0, {0, 1}, &v, vokHintAccurate), vokStatusBadSize},
      {vokiNorm_Inf_32s_C1R(nullptr, 0, {0, 0}, &v), vokStatusNullPointer},
  });
  EXPECT_EQ(v, -1);
}

}  // namespace
