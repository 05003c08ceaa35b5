// Complex Add, Sub, Mul, Div and their constant forms against a plain model
// of each rule, every form on every instruction set, plus the cases where
// layouts of one family must differ, and the order of checks.
#include <array>
#include <cfenv>
#include <cmath>
#include <functional>
#include <tuple>

#include "vok_test.h"

namespace {

using vok_test::Image;
using vok_test::SaturateWhole;
using vok_test::ScaleToEven;

enum class Op { kAdd, kSub, kMul, kDiv };

template <typename T>
using Part = decltype(T::re);

// The loops' rounding: half away from zero, saturated; NaN gives 0.
template <typename P>
P Away(double v) {
  return std::isnan(v) ? 0 : SaturateWhole<P>(std::round(v));
}

int32_t Low32(__int128 x) { return static_cast<int32_t>(static_cast<uint32_t>(x)); }

// a op b for one sample, a being the minuend and dividend.
template <typename T>
T Model(Op op, bool plain, bool constant, bool inPlace, T a, T b, int s, bool* zero) {
  using P = Part<T>;
  if constexpr (std::is_same_v<T, Vok32fc>) {
    volatile float ar = a.re, ai = a.im, br = b.re, bi = b.im;
    switch (op) {
      case Op::kAdd: return T{ar + br, ai + bi};
      case Op::kSub: return T{ar - br, ai - bi};
      case Op::kMul: return T{ar * br - ai * bi, ar * bi + ai * br};
      case Op::kDiv: break;
    }
    const float d = br * br + bi * bi;
    if (constant && !plain) {  // by the product with the reciprocal
      volatile float r = 1.0f / d, u = br * r, v = (0.0f - bi) * r;
      return T{ar * u - ai * v, ar * v + ai * u};
    }
    if (constant) {
      const double dd = d;
      return T{float((double(ar) * br + double(ai) * bi) / dd),
               float((double(ai) * br - double(ar) * bi) / dd)};
    }
    const float x = ar * br + ai * bi, y = ai * br - ar * bi;
    if (d == 0) {
      *zero = true;
      const float inf = INFINITY;
      if (!plain) return T{NAN, NAN};
      return T{x > 0 ? inf : x < 0 ? -inf : NAN, y > 0 ? inf : y < 0 ? -inf : NAN};
    }
    if (!plain) {
      volatile float k = 1.0f / d;
      return T{x * k, y * k};
    }
    const double k = 1.0 / d;
    return T{float(x * k), float(y * k)};
  } else {
    const __int128 ar = a.re, ai = a.im, br = b.re, bi = b.im;
    const double f = std::ldexp(1.0, -s);
    if (op != Op::kDiv) {
      const __int128 re = op == Op::kAdd ? ar + br : op == Op::kSub ? ar - br : ar * br - ai * bi;
      const __int128 im = op == Op::kAdd ? ai + bi : op == Op::kSub ? ai - bi : ar * bi + ai * br;
      if (!plain) return T{ScaleToEven<P>(re, s), ScaleToEven<P>(im, s)};
      if (constant) return T{Away<P>(Low32(re) * f), Away<P>(Low32(im) * f)};
      if (sizeof(P) == 4 && op == Op::kMul)
        return T{Away<P>((double(a.re) * b.re - double(a.im) * b.im) * f),
                 Away<P>((double(a.re) * b.im + double(a.im) * b.re) * f)};
      const float fs = std::ldexp(1.0f, -s);
      return T{Away<P>(double(float(Low32(re)) * fs)), Away<P>(double(float(Low32(im)) * fs))};
    }
    const __int128 d = br * br + bi * bi, x = ar * br + ai * bi, y = ai * br - ar * bi;
    if (plain && constant)
      return T{Away<P>(Low32(x) * f / Low32(d)), Away<P>(Low32(y) * f / Low32(d))};
    if (constant && sizeof(P) == 2) {
      if (s >= 16) return T{};
      const double k = f / double(d);
      if (s >= -16) return T{ScaleToEven<P>(double(x) * k, 0), ScaleToEven<P>(double(y) * k, 0)};
      const double u = b.re * k, v = -b.im * k;
      return T{ScaleToEven<P>(u * a.re - v * a.im, 0), ScaleToEven<P>(a.re * v + a.im * u, 0)};
    }
    const double dr = b.re, di = b.im, nr = a.re, ni = a.im;
    if (constant) {  // 32sc C1
      const double k = 1.0 / Low32(d) * f;
      return T{Away<P>((nr * dr + ni * di) * k), Away<P>((ni * dr - nr * di) * k)};
    }
    if (d == 0 || (sizeof(P) == 2 && plain && Low32(d) == 0)) {
      *zero = true;
      return T{};
    }
    if (!plain && sizeof(P) == 2) {
      const double k = f / double(d);
      return T{ScaleToEven<P>(double(x) * k, 0), ScaleToEven<P>(double(y) * k, 0)};
    }
    const double dd = dr * dr + di * di, xd = nr * dr + ni * di, yd = ni * dr - nr * di;
    if (!plain)
      return T{SaturateWhole<P>(std::trunc(xd / dd * f)), SaturateWhole<P>(std::trunc(yd / dd * f))};
    if (sizeof(P) == 4) return T{Away<P>(xd * (f / dd)), Away<P>(yd * (f / dd))};
    const auto widen = [inPlace](__int128 v) {
      return inPlace ? double(Low32(v)) : double(float(Low32(v)));
    };
    const double k = f / widen(d);
    return T{Away<P>(widen(x) * k), Away<P>(widen(y) * k)};
  }
}

// ---- Every form through one signature -------------------------------------------

template <typename T>
struct Form {
  const char* name;
  Op op;
  int channels;
  bool alpha, constant;
  std::function<VokStatus(const T*, int, const T*, int, const T*, T*, int, VokiSize, int)> call;
  std::function<VokStatus(const T*, int, const T*, T*, int, VokiSize, int)> inPlace;
};

#define SCALE_Sfs , s
#define SCALE_
#define VALUE_C1 v[0]
#define VALUE_C3 v
#define VALUE_AC4 v
#define IMAGE_FORM(fam, op, tok, T, sfs, lay, ch, al)                                       \
  Form<T>{#fam "_" #tok "_" #lay, Op::op, ch, al, false,                                     \
          [](const T* a, int as, const T* b, int bs, const T*, T* d, int ds, VokiSize r,     \
             [[maybe_unused]] int s) {                                                       \
            return voki##fam##_##tok##_##lay##R##sfs(a, as, b, bs, d, ds, r SCALE_##sfs);    \
          },                                                                                 \
          [](const T* a, int as, const T*, T* d, int ds, VokiSize r, [[maybe_unused]] int s) { \
            return voki##fam##_##tok##_##lay##IR##sfs(a, as, d, ds, r SCALE_##sfs);          \
          }}
#define CONST_FORM(fam, op, tok, T, sfs, lay, ch, al)                                        \
  Form<T>{#fam "C_" #tok "_" #lay, Op::op, ch, al, true,                                     \
          [](const T* a, int as, const T*, int, const T* v, T* d, int ds, VokiSize r,        \
             [[maybe_unused]] int s) {                                                       \
            return voki##fam##C_##tok##_##lay##R##sfs(a, as, VALUE_##lay, d, ds, r SCALE_##sfs); \
          },                                                                                 \
          [](const T*, int, const T* v, T* d, int ds, VokiSize r, [[maybe_unused]] int s) {  \
            return voki##fam##C_##tok##_##lay##IR##sfs(VALUE_##lay, d, ds, r SCALE_##sfs);   \
          }}
#define LAYOUTS(F, ...) \
  F(__VA_ARGS__, C1, 1, false), F(__VA_ARGS__, C3, 3, false), F(__VA_ARGS__, AC4, 4, true)
#define FAMILY(fam, op, tok, T, sfs) \
  LAYOUTS(IMAGE_FORM, fam, op, tok, T, sfs), LAYOUTS(CONST_FORM, fam, op, tok, T, sfs)
#define ALL_FAMILIES(tok, T, sfs)                                                   \
  FAMILY(Add, kAdd, tok, T, sfs), FAMILY(Sub, kSub, tok, T, sfs),                   \
      FAMILY(Mul, kMul, tok, T, sfs), FAMILY(Div, kDiv, tok, T, sfs)

template <typename T> std::vector<Form<T>> Forms();
template <> std::vector<Form<Vok16sc>> Forms() { return {ALL_FAMILIES(16sc, Vok16sc, Sfs)}; }
template <> std::vector<Form<Vok32sc>> Forms() { return {ALL_FAMILIES(32sc, Vok32sc, Sfs)}; }
template <> std::vector<Form<Vok32fc>> Forms() { return {ALL_FAMILIES(32fc, Vok32fc, )}; }

// Parts drawn small or over the whole range, with some zero samples so that
// divisions meet zero divisors.
template <typename T>
T RandomComplex(std::mt19937& rng) {
  using P = Part<T>;
  const auto part = [&]() -> P {
    if constexpr (std::is_floating_point_v<P>) return std::uniform_real_distribution<P>(-1000, 1000)(rng);
    else return rng() % 2 ? P(int(rng() % 201) - 100) : Image<P>::RandomSample(rng);
  };
  if (rng() % 16 == 0) return T{};
  return T{part(), part()};
}

// Compares one form, out of place and in place, with the model.
template <typename T>
void CheckForm(const Form<T>& form, std::mt19937& rng, int width, int height, int s,
               const vok_test::Geometry& g) {
  using P = Part<T>;
  const int ch = form.channels;
  Image<P> a(width, height, 2 * ch, g.padBytes, g.offsetBytes);
  Image<P> b(width, height, 2 * ch, g.offsetBytes, 0);
  Image<P> dst(width, height, 2 * ch, 0, g.offsetBytes);
  for (Image<P>* img : {&a, &b})
    for (int y = 0; y < height; ++y)
      for (int i = 0; i < width * ch; ++i) {
        const T v = RandomComplex<T>(rng);
        std::memcpy(img->row(y) + 2 * i, &v, sizeof(T));
      }
  dst.randomize(rng);
  T values[3];
  for (T& v : values) {
    do v = RandomComplex<T>(rng);
    while (form.op == Op::kDiv && v.re == 0 && v.im == 0);
  }
  // Sub and Div of two images take the second as minuend and dividend.
  const bool swap = !form.constant && (form.op == Op::kSub || form.op == Op::kDiv);
  const bool plain = form.alpha || (form.constant && ch == 3);
  Image<P> want = dst, wantInPlace = form.constant ? a : b;
  bool zero = false, zeroInPlace = false;
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x)
      for (int c = 0; c < (form.alpha ? 3 : ch); ++c) {
        const T va{a.at(x, y, 2 * c), a.at(x, y, 2 * c + 1)};
        const T vb = form.constant ? values[ch == 1 ? 0 : c] : T{b.at(x, y, 2 * c), b.at(x, y, 2 * c + 1)};
        for (bool inPlace : {false, true}) {
          const T r = Model<T>(form.op, plain, form.constant, inPlace, swap ? vb : va, swap ? va : vb, s,
                               inPlace ? &zeroInPlace : &zero);
          (inPlace ? wantInPlace : want).set(x, y, 2 * c, r.re);
          (inPlace ? wantInPlace : want).set(x, y, 2 * c + 1, r.im);
        }
      }
  const auto ptr = [](Image<P>& img) { return reinterpret_cast<T*>(img.data()); };
  EXPECT_EQ(form.call(ptr(a), a.step(), ptr(b), b.step(), values, ptr(dst), dst.step(), a.size(), s),
            zero ? vokWarnDivideByZero : vokStatusOk);
  EXPECT_EQ(dst.firstDifference(want), "") << "width " << width << " scale " << s;
  EXPECT_TRUE(dst.guardsIntact());
  Image<P> inPlace = form.constant ? a : b;
  EXPECT_EQ(form.inPlace(ptr(a), a.step(), values, ptr(inPlace), inPlace.step(), a.size(), s),
            zeroInPlace ? vokWarnDivideByZero : vokStatusOk);
  EXPECT_EQ(inPlace.firstDifference(wantInPlace), "") << "in place, width " << width << " scale " << s;
  EXPECT_TRUE(inPlace.guardsIntact());
}

template <typename T>
void CompareWithModel(uint32_t seed, std::vector<int> scales) {
  std::mt19937 rng(seed);
  vok_test::ForEachTarget([&](const char*) {
    for (const Form<T>& form : Forms<T>()) {
      SCOPED_TRACE(form.name);
      for (int trial = 0; trial < 8; ++trial) {
        const auto [width, height, g] = vok_test::RandomShape(rng, sizeof(Part<T>));
        CheckForm(form, rng, width, height, scales[trial % scales.size()], g);
      }
    }
  });
}

TEST(ComplexModel, Samples16sc) { CompareWithModel<Vok16sc>(21, {0, 1, 3, -2, 15, 17, -20, 40}); }
TEST(ComplexModel, Samples32sc) { CompareWithModel<Vok32sc>(22, {0, 1, 2, -1, 20, 31, -30, 7}); }
TEST(ComplexModel, Samples32fc) { CompareWithModel<Vok32fc>(23, {0}); }

// The caller's rounding mode governs 32fc arithmetic, as for 32f.
TEST(ComplexModel, Samples32fcRoundingUpward) {
  std::fesetround(FE_UPWARD);
  CompareWithModel<Vok32fc>(24, {0});
  std::fesetround(FE_TONEAREST);
}

// ---- Worked cases, independent of the model ----------------------------------

constexpr VokiSize kOne{1, 1};

// A tie at scale 1 goes to even in the vector forms, away from zero in the loops.
TEST(ComplexCases, TiesDependOnTheLayout) {
  for (auto [sum, even, away] : {std::tuple{5, 2, 3}, {-5, -2, -3}}) {
    const Vok16sc a[4] = {{Vok16s(sum - 1), 0}, {1, 1}, {1, 1}, {9, 9}}, b[4] = {{1, 0}, {1, 1}, {1, 1}, {7, 7}};
    const Vok16sc c3[3] = {{1, 0}, {1, 0}, {1, 0}};
    Vok16sc o[6][4] = {};
    const VokStatus status[] = {vokiAdd_16sc_C1RSfs(a, 16, b, 16, o[0], 16, kOne, 1),
                                vokiAdd_16sc_C3RSfs(a, 16, b, 16, o[1], 16, kOne, 1),
                                vokiAdd_16sc_AC4RSfs(a, 16, b, 16, o[2], 16, kOne, 1),
                                vokiAddC_16sc_C1RSfs(a, 16, c3[0], o[3], 16, kOne, 1),
                                vokiAddC_16sc_C3RSfs(a, 16, c3, o[4], 16, kOne, 1),
                                vokiAddC_16sc_AC4RSfs(a, 16, c3, o[5], 16, kOne, 1)};
    for (VokStatus st : status) EXPECT_EQ(st, vokStatusOk);
    EXPECT_EQ((std::array<int, 6>{o[0][0].re, o[1][0].re, o[2][0].re, o[3][0].re, o[4][0].re, o[5][0].re}),
              (std::array<int, 6>{even, even, away, even, away, away}));
    EXPECT_EQ(o[2][3].re, 0);  // alpha untouched
  }
}

TEST(ComplexCases, DivisionRounding) {
  // 7 / 2: the vector forms of 32sc truncate, the AC4 loop rounds away.
  const Vok32sc n[4] = {{7, 0}, {7, 0}, {7, 0}}, d[4] = {{2, 0}, {2, 0}, {2, 0}};
  Vok32sc o32[3][4] = {};
  ASSERT_EQ(vokiDiv_32sc_C1RSfs(d, 32, n, 32, o32[0], 32, kOne, 0), vokStatusOk);
  ASSERT_EQ(vokiDiv_32sc_C3RSfs(d, 32, n, 32, o32[1], 32, kOne, 0), vokStatusOk);
  ASSERT_EQ(vokiDiv_32sc_AC4RSfs(d, 32, n, 32, o32[2], 32, kOne, 0), vokStatusOk);
  EXPECT_EQ(std::tuple(o32[0][0].re, o32[1][2].re, o32[2][0].re, o32[2][0].im), std::tuple(3, 3, 4, 0));
  // 17425 / 4100 * 2 is 8.5 exactly; out of place the AC4 form rounds the
  // numerator and the norm to single precision and lands below the tie.
  const Vok16sc d16[4] = {{4100, 0}, {1, 0}, {1, 0}}, n16[4] = {{17425, 0}};
  Vok16sc out[4] = {}, inPlace[4] = {{17425, 0}}, c1 = {};
  ASSERT_EQ(vokiDiv_16sc_AC4RSfs(d16, 16, n16, 16, out, 16, kOne, -1), vokStatusOk);
  ASSERT_EQ(vokiDiv_16sc_AC4IRSfs(d16, 16, inPlace, 16, kOne, -1), vokStatusOk);
  ASSERT_EQ(vokiDiv_16sc_C1RSfs(d16, 4, n16, 4, &c1, 4, kOne, -1), vokStatusOk);
  EXPECT_EQ(std::tuple(out[0].re, inPlace[0].re, c1.re), std::tuple(8, 9, 8));  // C1: the tie to even
}

// A square norm that underflows in single precision divides by zero: the AC4
// loop gives infinities of the numerators' signs, and NaN where they are 0.
TEST(ComplexCases, UnderflowingNormDividesByZero) {
  const Vok32fc n4[4] = {{1, -2}, {}, {}, {}}, d4[4] = {{1e-30f, 0}, {}, {}, {}};
  Vok32fc o4[4];
  EXPECT_EQ(vokiDiv_32fc_AC4R(d4, 32, n4, 32, o4, 32, kOne), vokWarnDivideByZero);
  EXPECT_EQ(o4[0].re, INFINITY);
  EXPECT_EQ(o4[0].im, -INFINITY);
  EXPECT_TRUE(std::isnan(o4[1].re));
}

// The imaginary part of (-32768, -32768) squared is 2^31, beyond 32 bits.
TEST(ComplexCases, ProductOfMostNegativeParts) {
  const Vok16sc m{-32768, -32768};
  Vok16sc out, scaled;
  ASSERT_EQ(vokiMul_16sc_C1RSfs(&m, 4, &m, 4, &out, 4, kOne, 0), vokStatusOk);
  ASSERT_EQ(vokiMul_16sc_C1RSfs(&m, 4, &m, 4, &scaled, 4, kOne, 17), vokStatusOk);
  EXPECT_EQ(std::tuple(out.re, out.im, scaled.im), std::tuple(0, 32767, 16384));
}

// Every combination of extreme and small parts, at every scale where the
// rounding, the saturation or the limit of 32 bits shows, through the
// product of two arrays and the product with a few of the pairs as constant.
TEST(ComplexCases, Products16scAtEveryScale) {
  const Vok16s parts[] = {-32768, -32767, -12345, -3, -1, 0, 1, 181, 32767};
  std::vector<Vok16sc> a, b;
  for (Vok16s ar : parts)
    for (Vok16s ai : parts)
      for (Vok16s br : parts)
        for (Vok16s bi : parts) {
          a.push_back({ar, ai});
          b.push_back({br, bi});
        }
  const int n = static_cast<int>(a.size());
  const Vok16sc constants[] = {b[0], b[1000], b[4321]};
  // The model's results by scale: the array product, then each constant's.
  std::vector<std::vector<Vok16sc>> want;
  for (int s = -18; s <= 34; ++s)
    for (int form = 0; form < 4; ++form) {
      std::vector<Vok16sc>& w = want.emplace_back(n);
      for (int i = 0; i < n; ++i)
        w[i] = Model<Vok16sc>(Op::kMul, false, false, false, a[i], form == 0 ? b[i] : constants[form - 1], s,
                              nullptr);
    }
  std::vector<Vok16sc> got(n);
  vok_test::ForEachTarget([&](const char*) {
    for (int s = -18, row = 0; s <= 34; ++s)
      for (int form = 0; form < 4; ++form, ++row) {
        ASSERT_EQ(form == 0 ? voksMul_16sc_Sfs(a.data(), b.data(), got.data(), n, s)
                            : voksMulC_16sc_Sfs(a.data(), constants[form - 1], got.data(), n, s),
                  vokStatusOk);
        for (int i = 0; i < n; ++i)
          ASSERT_EQ(std::tuple(got[i].re, got[i].im), std::tuple(want[row][i].re, want[row][i].im))
              << "scale " << s << ", form " << form << ", sample " << i;
      }
  });
}

// ---- Checks ------------------------------------------------------------------------

// Constant forms test their constant before the image: an all-zero constant
// added or subtracted in place returns at once; C3 and AC4 division rejects
// a zero norm (also one that wraps in 32 bits) before the image; C1 integer
// division tests the image first; 32fc C1 division rejects a norm that
// underflows. The three-channel sums and products test the width first.
TEST(ComplexChecks, OrderOfChecks) {
  Vok32fc img[8] = {{5, 5}};
  Vok16sc img16[4] = {};
  Vok32sc img32[3] = {};
  const Vok32fc zeros[3] = {{0, -0.0f}, {0, 0}, {0, 0}}, tiny{1e-30f, 0};
  const Vok16sc divisors[3] = {{1, 0}, {0, 0}, {1, 1}};
  const Vok32sc wraps[3] = {{65536, 0}, {1, 0}, {1, 0}};
  const VokiSize noWidth{0, 1}, noHeight{1, 0}, two{2, 1};
  vok_test::ExpectStatuses({
      {vokiAddC_32fc_C1IR(Vok32fc{0, 0}, nullptr, 0, noWidth), vokStatusOk},
      {vokiSubC_32fc_C3IR(zeros, nullptr, 0, noWidth), vokStatusOk},
      {vokiAddC_32fc_C1IR(Vok32fc{NAN, 0}, nullptr, 0, noWidth), vokStatusOk},
      {vokiAddC_32fc_AC4IR(nullptr, img, 32, two), vokStatusNullPointer},
      {vokiAddC_32fc_C1R(img, 8, Vok32fc{0, 0}, nullptr, 8, two), vokStatusNullPointer},
      {vokiMulC_32fc_C3IR(zeros, img, 24, noWidth), vokStatusBadSize},
      {vokiDivC_16sc_C3RSfs(nullptr, 0, divisors, nullptr, 0, noWidth, 0), vokStatusDivideByZero},
      {vokiDivC_16sc_AC4IRSfs(nullptr, nullptr, 0, noWidth, 0), vokStatusNullPointer},
      {vokiDivC_32sc_C3RSfs(img32, 24, wraps, img32, 24, kOne, 0), vokStatusDivideByZero},
      {vokiDivC_16sc_C1RSfs(nullptr, 4, Vok16sc{0, 0}, img16, 4, kOne, 0), vokStatusNullPointer},
      {vokiDivC_16sc_C1RSfs(img16, 4, Vok16sc{0, 0}, img16, 4, kOne, 0), vokStatusDivideByZero},
      {vokiDivC_32fc_C1R(nullptr, 8, Vok32fc{0, 0}, img, 8, kOne), vokStatusDivideByZero},
      {vokiDivC_32fc_C1IR(Vok32fc{0, 0}, nullptr, 8, kOne), vokStatusNullPointer},
      {vokiDivC_32fc_C1IR(tiny, img, 8, kOne), vokStatusDivideByZero},
      {vokiDivC_32fc_C1R(img, 8, tiny, img, 8, kOne), vokStatusDivideByZero},
      {vokiAdd_16sc_C3RSfs(nullptr, 0, nullptr, 0, nullptr, 0, noWidth, 0), vokStatusBadSize},
      {vokiMul_32fc_C3IR(nullptr, 0, nullptr, 0, noWidth), vokStatusBadSize},
      {vokiSub_32sc_C3RSfs(nullptr, 0, nullptr, 0, nullptr, 0, noHeight, 0), vokStatusNullPointer},
      {vokiDiv_16sc_C3RSfs(nullptr, 0, nullptr, 0, nullptr, 0, noWidth, 0), vokStatusNullPointer},
      {vokiAdd_16sc_C1RSfs(nullptr, 0, nullptr, 0, nullptr, 0, noWidth, 0), vokStatusNullPointer},
      {vokiMul_16sc_AC4RSfs(img16, 16, img16, 16, img16, 16, noWidth, 0), vokStatusBadSize},
      {vokiMul_16sc_AC4RSfs(img16, 16, img16, 0, img16, 16, kOne, 0), vokStatusBadStep},
  });
  EXPECT_EQ(img[0].re, 5);
}

}  // namespace
