// Div, Abs, Sqr, Sqrt, Ln and Exp against plain models of their rules, over
// every image form, every instruction set, odd widths, padded steps and
// unaligned pointers; then every 16-bit sample through the vector forms.
#include <cmath>
#include <cstring>
#include <functional>

#include "vok_test.h"

namespace {

using vok_test::Image;
using vok_test::Saturate;

enum class Op { kDiv, kAbs, kSqr, kSqrt, kLn, kExp };

void Warn(VokStatus& first, VokStatus warning) {
  if (first == vokStatusOk) first = warning;
}

template <typename T>
constexpr bool kFloat = std::is_floating_point_v<T>;

// x / 2^s rounded to nearest with ties to even; s may be negative.
double RoundScaled(long double x, int s) {
  return static_cast<double>(std::nearbyint(std::ldexp(x, -s)));
}

float FromBits(uint32_t bits) {
  float f;
  std::memcpy(&f, &bits, 4);
  return f;
}

// The quotient rule: integers in float (double for 16s from -6 down) with
// fixed results past the limits; floats in single precision. A zero divisor
// gives the bound of the dividend's sign, or 0 (NaN) for 0.
template <typename T>
T DivModel(T divisor, T dividend, int s, VokStatus& warning) {
  const double a = dividend, b = divisor;
  if (b == 0) Warn(warning, vokWarnDivideByZero);
  if constexpr (kFloat<T>) {
    volatile float q = dividend / divisor;
    return b != 0 ? q : a > 0 ? INFINITY : a < 0 ? -INFINITY : FromBits(0x7FC00000);
  } else {
    const bool is8u = std::is_same_v<T, Vok8u>;
    if (b == 0 || s < (is8u ? -15 : -30)) return Saturate<T>(int64_t(a / (b == 0 ? 1 : b) * 1e12));
    if (s > (is8u ? 8 : 15)) return 0;
    if (!is8u && s <= -6)
      return Saturate<T>(int64_t(std::nearbyint(std::fmin(std::fmax(std::ldexp(a, -s) / b, -32768.0), 32767.0))));
    volatile float num = std::ldexp(float(a), s < 0 ? -s : 0);
    volatile float den = std::ldexp(float(b), s > 0 ? s : 0);
    return Saturate<T>(int64_t(std::nearbyint(double(num / den))));
  }
}

// The fixed single-precision polynomial of Ln.
float LnModel(float x, VokStatus& warning) {
  uint32_t bits;
  std::memcpy(&bits, &x, 4);
  if (std::isnan(x)) return x;
  if (bits >> 31) {
    Warn(warning, vokWarnDomain);
    return FromBits(0xFFC00000);
  }
  if (bits == 0) {
    Warn(warning, vokWarnSingularity);
    return -INFINITY;
  }
  const uint32_t mantissa = bits & 0x7FFFFF;
  const int bias = mantissa > 0x3504F2 ? 126 : 127;
  const float m = FromBits(mantissa | uint32_t(bias) << 23);
  const float e = float(int(bits >> 23) - bias);
  const float t = (m - 1) / (m + 1), t2 = t * t;
  const float p = 2 + t2 * (0.66666663f + t2 * (0.40000597f + t2 * (0.28525382f + t2 * 0.23762456f)));
  return e * 0.693147182f + t * p;
}

// One sample of a one-source rule. Exp of 32f has no fixed polynomial: its
// accuracy has a test of its own, and here the library's value stands.
template <typename T>
T UnaryModel(Op op, T x, int s, VokStatus& warning) {
  if constexpr (kFloat<T>) {
    volatile float v = x;
    switch (op) {
      case Op::kAbs: return std::fabs(x);
      case Op::kSqr: return v * v;
      case Op::kSqrt:
        if (x < 0) Warn(warning, vokWarnSqrtDomain);
        return std::sqrt(v);
      case Op::kLn: return LnModel(x, warning);
      case Op::kExp: {
        float y;
        voksExp_32f(&x, &y, 1);
        return y;
      }
      case Op::kDiv: break;
    }
  } else {
    const long double lowest = std::numeric_limits<T>::lowest();
    switch (op) {
      case Op::kAbs: return Saturate<T>(std::abs(int64_t{x}));
      case Op::kSqr:
        return Saturate<T>(int64_t(std::fmin(RoundScaled((long double)x * x, s), 1e18)));
      case Op::kSqrt:
        if (x < 0) Warn(warning, vokWarnSqrtDomain);
        return x < 0 ? T{0} : Saturate<T>(int64_t(std::fmin(RoundScaled(std::sqrt((long double)x), s), 1e18)));
      case Op::kLn:
        if (x < 0) Warn(warning, vokWarnDomain);
        if (x == 0) Warn(warning, vokWarnSingularity);
        if (x <= 0) return Saturate<T>(int64_t(lowest));
        return Saturate<T>(int64_t(std::floor(std::ldexp(std::log(double(x)), -s) + 0.5)));
      case Op::kExp: {
        const double v = std::ldexp(std::exp(double(x)), -s);
        return Saturate<T>(int64_t(std::fmin(std::floor(v + 0.5), 1e18)));
      }
      case Op::kDiv: break;
    }
  }
  return 0;
}

// Samples that reach the interesting parts of each rule.
template <typename T>
T Sample(Op op, std::mt19937& rng) {
  const int pick = rng() % 16;
  if (pick == 0) return T{0};
  if constexpr (kFloat<T>) {
    if (pick == 1) return -0.0f;
    if (op == Op::kExp) return std::uniform_real_distribution<float>(-110, 95)(rng);
    if (op == Op::kLn && pick < 4) return FromBits(uint32_t(rng()));  // any bits
  } else if (op == Op::kExp && pick < 12) {
    return static_cast<T>(std::is_signed_v<T> ? int(rng() % 81) - 40 : int(rng() % 20));
  }
  return Image<T>::RandomSample(rng);
}

// Every image form through one signature: two sources (the first the
// divisor) for Div, the first source alone for the others.
template <typename T>
using Call = std::function<VokStatus(const T*, int, const T*, int, T*, int, VokiSize, int)>;
template <typename T>
using InPlaceCall = std::function<VokStatus(const T*, int, T*, int, VokiSize, int)>;

template <typename T>
struct Form {
  const char* name;
  Op op;
  int channels;
  bool alpha;
  Call<T> call;            // null where only the in-place form exists
  InPlaceCall<T> inPlace;
};

#define SCALE_Sfs , scale
#define SCALE_
#define UNARY(fam, tok, T, sfs, lay, ch, alpha)                                  \
  Form<T>{#fam "_" #tok "_" #lay, Op::k##fam, ch, alpha,                          \
          [](const T* a, int as, const T*, int, T* d, int ds, VokiSize r,         \
             [[maybe_unused]] int scale) {                                       \
            return voki##fam##_##tok##_##lay##R##sfs(a, as, d, ds, r SCALE_##sfs); \
          },                                                                     \
          [](const T*, int, T* d, int ds, VokiSize r, [[maybe_unused]] int scale) { \
            return voki##fam##_##tok##_##lay##IR##sfs(d, ds, r SCALE_##sfs);      \
          }}
#define DIV(tok, T, sfs, lay, ch, alpha)                                         \
  Form<T>{"Div_" #tok "_" #lay, Op::kDiv, ch, alpha,                             \
          [](const T* a, int as, const T* b, int bs, T* d, int ds, VokiSize r,    \
             [[maybe_unused]] int scale) {                                       \
            return vokiDiv_##tok##_##lay##R##sfs(a, as, b, bs, d, ds, r SCALE_##sfs); \
          },                                                                     \
          [](const T* a, int as, T* d, int ds, VokiSize r, [[maybe_unused]] int scale) { \
            return vokiDiv_##tok##_##lay##IR##sfs(a, as, d, ds, r SCALE_##sfs);   \
          }}
#define FOUR(M, ...) M(__VA_ARGS__, C1, 1, false), M(__VA_ARGS__, C3, 3, false), \
                     M(__VA_ARGS__, C4, 4, false), M(__VA_ARGS__, AC4, 4, true)
#define C1C3AC4(M, ...) M(__VA_ARGS__, C1, 1, false), M(__VA_ARGS__, C3, 3, false), \
                        M(__VA_ARGS__, AC4, 4, true)
#define C1C3(M, ...) M(__VA_ARGS__, C1, 1, false), M(__VA_ARGS__, C3, 3, false)

template <typename T>
std::vector<Form<T>> Forms();
template <>
std::vector<Form<Vok8u>> Forms() {
  return {C1C3(DIV, 8u, Vok8u, Sfs), FOUR(UNARY, Sqr, 8u, Vok8u, Sfs),
          C1C3AC4(UNARY, Sqrt, 8u, Vok8u, Sfs), C1C3(UNARY, Ln, 8u, Vok8u, Sfs),
          C1C3(UNARY, Exp, 8u, Vok8u, Sfs)};
}
template <>
std::vector<Form<Vok16u>> Forms() {
  return {FOUR(UNARY, Sqr, 16u, Vok16u, Sfs), C1C3AC4(UNARY, Sqrt, 16u, Vok16u, Sfs)};
}
template <>
std::vector<Form<Vok16s>> Forms() {
  return {C1C3(DIV, 16s, Vok16s, Sfs), FOUR(UNARY, Abs, 16s, Vok16s, ),
          FOUR(UNARY, Sqr, 16s, Vok16s, Sfs), C1C3AC4(UNARY, Sqrt, 16s, Vok16s, Sfs),
          C1C3(UNARY, Ln, 16s, Vok16s, Sfs), C1C3(UNARY, Exp, 16s, Vok16s, Sfs)};
}
template <>
std::vector<Form<Vok32f>> Forms() {
  auto forms = std::vector<Form<Vok32f>>{
      FOUR(DIV, 32f, Vok32f, ), FOUR(UNARY, Abs, 32f, Vok32f, ),
      FOUR(UNARY, Sqr, 32f, Vok32f, ), C1C3AC4(UNARY, Sqrt, 32f, Vok32f, ),
      C1C3(UNARY, Ln, 32f, Vok32f, ), C1C3(UNARY, Exp, 32f, Vok32f, )};
  forms.push_back({"Sqrt_32f_C4", Op::kSqrt, 4, false, nullptr,
                   [](const float*, int, float* d, int ds, VokiSize r, int) {
                     return vokiSqrt_32f_C4IR(d, ds, r);
                   }});
  return forms;
}

// Scales that reach every path: the bounds, the double division, the
// float division, zero results, and beyond.
template <typename T>
std::vector<int> Scales() {
  if (kFloat<T>) return {0};
  return {-40, -31, -30, -29, -17, -16, -15, -14, -8, -7, -6, -5, -1,
          0,   1,   2,   4,   8,   9,   15,  16,  17,  31,  32,  33, 40};
}

// The model of a form: dst from the sources, alpha kept. AC4 rows run whole,
// so the source's alpha can warn, except for Div whose alpha divides by 1.
template <typename T>
Image<T> Expected(const Form<T>& form, const Image<T>& src1, const Image<T>& src2,
                  const Image<T>& oldDst, int scale, VokStatus& warning) {
  Image<T> want = oldDst;
  warning = vokStatusOk;
  for (int y = 0; y < want.height(); ++y)
    for (int x = 0; x < want.width(); ++x)
      for (int c = 0; c < form.channels; ++c) {
        const bool alpha = form.alpha && c == 3;
        if (form.op == Op::kDiv) {
          if (!alpha) want.set(x, y, c, DivModel<T>(src1.at(x, y, c), src2.at(x, y, c), scale, warning));
        } else {
          const T value = UnaryModel<T>(form.op, src1.at(x, y, c), scale, warning);
          if (!alpha) want.set(x, y, c, value);
        }
      }
  return want;
}

template <typename T>
void CompareWithModel(uint32_t seed) {
  std::mt19937 rng(seed);
  vok_test::ForEachTarget([&](const char*) {
    for (const Form<T>& form : Forms<T>()) {
      SCOPED_TRACE(form.name);
      for (int scale : Scales<T>()) {
        SCOPED_TRACE(scale);
        const auto& widths = vok_test::TestWidths();
        const int width = widths[rng() % widths.size()];
        const int height = 1 + rng() % 3;
        const auto& geometries = vok_test::TestGeometries(sizeof(T));
        const auto g = geometries[rng() % geometries.size()];
        const VokiSize roi{width, height};
        Image<T> src1(width, height, form.channels, g.padBytes, g.offsetBytes);
        Image<T> src2(width, height, form.channels, g.padBytes + 2 * sizeof(T), 0);
        Image<T> dst(width, height, form.channels, 0, g.offsetBytes);
        for (Image<T>* image : {&src1, &src2, &dst})
          for (int y = 0; y < height; ++y)
            for (size_t i = 0; i < image->rowSamples(); ++i)
              image->set(int(i / form.channels), y, int(i % form.channels),
                         Sample<T>(form.op, rng));
        VokStatus warning;
        const Image<T> want = Expected(form, src1, src2, dst, scale, warning);
        if (form.call) {
          Image<T> out = dst;
          EXPECT_EQ(form.call(src1.data(), src1.step(), src2.data(), src2.step(),
                              out.data(), out.step(), roi, scale),
                    warning);
          EXPECT_EQ(out.firstDifference(want), "") << "width " << width;
          EXPECT_TRUE(out.guardsIntact());
        }
        // In place the image is the dividend of Div and the source otherwise.
        Image<T> io = form.op == Op::kDiv ? src2 : src1;
        const Image<T> wantInPlace = Expected(form, src1, src2, io, scale, warning);
        EXPECT_EQ(form.inPlace(src1.data(), src1.step(), io.data(), io.step(), roi, scale),
                  warning);
        EXPECT_EQ(io.firstDifference(wantInPlace), "") << "in place, width " << width;
        EXPECT_TRUE(io.guardsIntact());
      }
    }
  });
}

TEST(ElementaryModel, Samples8u) { CompareWithModel<Vok8u>(11); }
TEST(ElementaryModel, Samples16u) { CompareWithModel<Vok16u>(12); }
TEST(ElementaryModel, Samples16s) { CompareWithModel<Vok16s>(13); }
TEST(ElementaryModel, Samples32f) { CompareWithModel<Vok32f>(14); }

// Every 16-bit sample, at every scale where the result still changes,
// through the vector forms that the image forms run on.
template <typename T, class Fn>
void EverySample(Op op, Fn vectorForm, std::vector<int> scales) {
  std::vector<T> src(65536 >> (sizeof(T) == 1 ? 8 : 0)), dst(src.size());
  for (size_t i = 0; i < src.size(); ++i) src[i] = static_cast<T>(i);
  vok_test::ForEachTarget([&](const char*) {
    for (int scale : scales) {
      VokStatus want = vokStatusOk;
      std::string firstDifference;
      const VokStatus got = vectorForm(src.data(), dst.data(), int(src.size()), scale);
      for (size_t i = 0; i < src.size(); ++i) {
        const T expected = UnaryModel<T>(op, src[i], scale, want);
        if (dst[i] != expected && firstDifference.empty())
          firstDifference = std::to_string(src[i]) + ": got " + std::to_string(dst[i]) +
                            " want " + std::to_string(expected);
      }
      EXPECT_EQ(got, want) << "scale " << scale;
      EXPECT_EQ(firstDifference, "") << "scale " << scale;
    }
  });
}

std::vector<int> Range(int from, int to) {
  std::vector<int> r;
  for (int s = from; s <= to; ++s) r.push_back(s);
  return r;
}

TEST(ElementaryExhaustive, SqrAndSqrt) {
  EverySample<Vok16u>(Op::kSqr, voksSqr_16u_Sfs, Range(-17, 34));
  EverySample<Vok16s>(Op::kSqr, voksSqr_16s_Sfs, Range(-16, 32));
  EverySample<Vok8u>(Op::kSqr, voksSqr_8u_Sfs, Range(-9, 18));
  EverySample<Vok16u>(Op::kSqrt, voksSqrt_16u_Sfs, Range(-17, 10));
  EverySample<Vok16s>(Op::kSqrt, voksSqrt_16s_Sfs, Range(-16, 10));
  EverySample<Vok8u>(Op::kSqrt, voksSqrt_8u_Sfs, Range(-9, 6));
}

TEST(ElementaryExhaustive, LnAndExp) {
  EverySample<Vok16s>(Op::kLn, voksLn_16s_Sfs, Range(-13, 5));
  EverySample<Vok16s>(Op::kExp, voksExp_16s_Sfs, Range(-18, 18));
  EverySample<Vok16s>(Op::kExp, voksExp_16s_Sfs, {-200, 60, 200, 400, 1000});
  const auto ln8u = [](const Vok8u* s, Vok8u* d, int len, int scale) {
    return vokiLn_8u_C1RSfs(s, len, d, len, VokiSize{len, 1}, scale);
  };
  const auto exp8u = [](const Vok8u* s, Vok8u* d, int len, int scale) {
    return vokiExp_8u_C1RSfs(s, len, d, len, VokiSize{len, 1}, scale);
  };
  EverySample<Vok8u>(Op::kLn, ln8u, Range(-8, 4));
  EverySample<Vok8u>(Op::kExp, exp8u, Range(-9, 10));
  EverySample<Vok8u>(Op::kExp, exp8u, {-100, 40, 300, 368, 369});
}

// Every pair of 8u samples, at every scale up to the fixed results: the
// kernels may divide in float or double, and no quotient may tell.
TEST(ElementaryExhaustive, Div8uEveryPair) {
  std::vector<Vok8u> divisor(65536), dividend(65536), dst(65536);
  for (size_t i = 0; i < divisor.size(); ++i) {
    divisor[i] = static_cast<Vok8u>(i);
    dividend[i] = static_cast<Vok8u>(i >> 8);
  }
  vok_test::ForEachTarget([&](const char*) {
    for (int scale : Range(-16, 9)) {
      SCOPED_TRACE(scale);
      ASSERT_EQ(voksDiv_8u_Sfs(divisor.data(), dividend.data(), dst.data(), 65536, scale),
                vokWarnDivideByZero);
      VokStatus warning = vokStatusOk;
      size_t wrong = 0;
      for (size_t i = 0; i < dst.size(); ++i)
        wrong += dst[i] != DivModel<Vok8u>(divisor[i], dividend[i], scale, warning);
      EXPECT_EQ(wrong, 0u);
    }
  });
}

// Images of many megabytes store past the cache, from a misaligned first
// sample; they must give the same bytes and the same warning.
TEST(ElementaryModel, LargeImagesMatchTheModel) {
  std::mt19937 rng(15);
  const int width = 2051, height = 1000;  // 8.2 MB per image
  Image<Vok32f> divisor(width, height, 1, 12, 4), dividend(width, height, 1, 4, 8);
  divisor.randomize(rng);
  dividend.randomize(rng);
  divisor.set(width - 1, height / 2, 0, 0.0f);
  vok_test::ForEachTarget([&](const char*) {
    Image<Vok32f> dst(width, height, 1, 20, 4);
    ASSERT_EQ(vokiDiv_32f_C1R(divisor.data(), divisor.step(), dividend.data(),
                              dividend.step(), dst.data(), dst.step(), dst.size()),
              vokWarnDivideByZero);
    VokStatus warning = vokStatusOk;
    size_t wrong = 0;
    for (int y = 0; y < height; ++y)
      for (int x = 0; x < width; ++x) {
        const Vok32f want = DivModel<Vok32f>(divisor.at(x, y), dividend.at(x, y), 0, warning);
        const Vok32f got = dst.at(x, y);
        wrong += std::memcmp(&got, &want, sizeof(got)) != 0;
      }
    EXPECT_EQ(wrong, 0u);
    EXPECT_TRUE(dst.guardsIntact());
  });
}

// Units in the last place between f and the double-precision reference,
// at most, over samples where the reference is a normal float.
template <class F, class Ref>
int WorstUlps(F f, Ref reference, const std::vector<float>& src, std::vector<float>& dst) {
  dst.resize(src.size());
  f(src.data(), dst.data(), int(src.size()));
  int worst = 0;
  for (size_t i = 0; i < src.size(); ++i) {
    const float want = static_cast<float>(reference(double(src[i])));
    if (!(std::fabs(want) >= 1.2e-38f && std::fabs(want) < 3e38f)) continue;
    int32_t a, b;
    std::memcpy(&a, &dst[i], 4);
    std::memcpy(&b, &want, 4);
    worst = std::max(worst, std::abs(a - b));
  }
  return worst;
}

// Exp of 32f has no fixed polynomial: it is accurate to about a unit, goes
// to infinity and 0 at the ends, and gives the same bits on every
// instruction set. Ln's fixed polynomial stays close to the logarithm.
TEST(ElementaryExhaustive, FloatAccuracy) {
  std::vector<float> src, dst, first;
  for (float x = -104.5f; x < 89.5f; x += 0.00371f) src.push_back(x);
  vok_test::ForEachTarget([&](const char*) {
    EXPECT_LE(WorstUlps(voksExp_32f, [](double x) { return std::exp(x); }, src, dst), 1);
    if (first.empty()) first = dst;
    EXPECT_TRUE(first == dst);
  });
  const float ends[] = {89.0f, INFINITY, -104.0f, -INFINITY, NAN};
  float out[5];
  EXPECT_EQ(voksExp_32f(ends, out, 5), vokStatusOk);
  EXPECT_TRUE(out[0] == INFINITY && out[1] == INFINITY && out[2] == 0 && out[3] == 0 &&
              std::isnan(out[4]));
  std::vector<float> positive;
  for (float x = 1e-37f; x < 3e38f; x *= 1.0007f)
    if (std::fabs(std::log(x)) > 1e-3) positive.push_back(x);
  EXPECT_LE(WorstUlps(voksLn_32f, [](double x) { return std::log(x); }, positive, dst), 4);
}

}  // namespace
