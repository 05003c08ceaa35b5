// The vector layer: scaled sums, the float shortcuts, moves, conversions,
// reductions, magnitude, phase and polar to cartesian, against plain models
// on every instruction set, plus the worked cases and bad input.
#include <bit>
#include <cfenv>
#include <cmath>
#include <numbers>
#include <vector>

#include "vok_test.h"

namespace {

// Lengths around every vector size, and one past the streaming threshold.
const std::vector<int> kLengths = {1, 2, 3, 7, 8, 15, 16, 17, 31, 33, 64, 100, 1031};

template <typename T>
std::vector<T> Random(std::mt19937& rng, int n) {
  std::vector<T> v(n);
  for (T& x : v) x = vok_test::Image<T>::RandomSample(rng);
  return v;
}

template <typename T>
void CheckScaled(VokStatus (*add)(const T*, const T*, T*, int, int),
                 VokStatus (*sub)(const T*, const T*, T*, int, int), const std::vector<int>& scales) {
  std::mt19937 rng(31);
  vok_test::ForEachTarget([&](const char*) {
    for (int n : kLengths)
      for (int s : scales) {
        const auto a = Random<T>(rng, n), b = Random<T>(rng, n);
        std::vector<T> sum(n), diff(n);
        ASSERT_EQ(add(a.data(), b.data(), sum.data(), n, s), vokStatusOk);
        ASSERT_EQ(sub(a.data(), b.data(), diff.data(), n, s), vokStatusOk);
        for (int i = 0; i < n; ++i) {
          ASSERT_EQ(sum[i], vok_test::ScaleToEven<T>(int64_t{a[i]} + b[i], s)) << n << " " << s;
          ASSERT_EQ(diff[i], vok_test::ScaleToEven<T>(int64_t{b[i]} - a[i], s)) << n << " " << s;
        }
      }
  });
}

TEST(VectorScaled, AddSubTiesToEvenAndSaturate) {
  CheckScaled<Vok16s>(voksAdd_16s_Sfs, voksSub_16s_Sfs, {0, 1, 2, 16, 17, -1, -16, -40, INT32_MIN, INT32_MAX});
  CheckScaled<Vok32s>(voksAdd_32s_Sfs, voksSub_32s_Sfs, {0, 1, 5, 32, 33, -1, -31, -40, INT32_MIN, INT32_MAX});
}

// The complex vector forms are the rows of the C1 image forms: in particular
// Sub and Div take the second source as minuend and dividend.
TEST(VectorComplex, SameAsTheImageRows) {
  std::mt19937 rng(32);
  const int n = 37, step = n * 4;
  std::vector<Vok16sc> a(n), b(n), v(n), img(n);
  for (int i = 0; i < n; ++i) {
    a[i] = {Vok16s(rng() % 2001 - 1000), Vok16s(rng() % 2001 - 1000)};
    b[i] = {Vok16s(rng() % 2001 - 1000), Vok16s(rng() % 2001 - 1000)};
  }
  using VecFn = VokStatus (*)(const Vok16sc*, const Vok16sc*, Vok16sc*, int, int);
  using ImgFn = VokStatus (*)(const Vok16sc*, int, const Vok16sc*, int, Vok16sc*, int, VokiSize, int);
  const std::pair<VecFn, ImgFn> pairs[] = {{voksAdd_16sc_Sfs, vokiAdd_16sc_C1RSfs},
                                           {voksSub_16sc_Sfs, vokiSub_16sc_C1RSfs},
                                           {voksMul_16sc_Sfs, vokiMul_16sc_C1RSfs},
                                           {voksDiv_16sc_Sfs, vokiDiv_16sc_C1RSfs}};
  for (auto [vec, image] : pairs) {
    ASSERT_EQ(vec(a.data(), b.data(), v.data(), n, 3),
              image(a.data(), step, b.data(), step, img.data(), step, {n, 1}, 3));
    EXPECT_EQ(std::memcmp(v.data(), img.data(), n * 4), 0);
  }
  v = b;
  ASSERT_EQ(voksSub_16sc_ISfs(a.data(), v.data(), n, 0), vokStatusOk);
  ASSERT_EQ(voksSub_16sc_Sfs(a.data(), b.data(), img.data(), n, 0), vokStatusOk);
  EXPECT_EQ(std::memcmp(v.data(), img.data(), n * 4), 0);
  EXPECT_EQ(img[0].re, Vok16s(b[0].re - a[0].re));
}

TEST(VectorFloat, ShortcutsOfTheConstantForms) {
  std::vector<float> v = {1.0f, NAN, INFINITY, -2.0f}, out(4, 9.0f), same = v;
  ASSERT_EQ(voksSubC_32f(v.data(), NAN, out.data(), 4), vokStatusOk);  // a copy
  EXPECT_EQ(std::memcmp(out.data(), v.data(), 16), 0);
  ASSERT_EQ(voksSubC_32f(v.data(), 0.5f, out.data(), 4), vokStatusOk);
  EXPECT_EQ(out[3], -2.5f);
  ASSERT_EQ(voksMulC_32f_I(NAN, same.data(), 4), vokStatusOk);
  EXPECT_EQ(same[0], 1.0f);
  ASSERT_EQ(voksMulC_32f_I(-0.0f, same.data(), 4), vokStatusOk);  // NaN too turns to +0
  for (float x : same) EXPECT_EQ(std::bit_cast<uint32_t>(x), 0u);
  float image = NAN, imageOut = 1;
  ASSERT_EQ(vokiMulC_32f_C1R(&image, 4, 0.0f, &imageOut, 4, VokiSize{1, 1}), vokStatusOk);
  EXPECT_TRUE(std::isnan(imageOut));
}

// Lengths past the cache take the streaming stores; destinations sit off the
// vector alignment between guard bytes.
TEST(VectorMove, CopySetZeroSmallAndPastTheCache) {
  for (int n : {1, 33, 0x80000 / 4 + 13}) {
    std::vector<uint8_t> buffer(4 * n + 64, 0xA5);
    float* dst = reinterpret_cast<float*>(buffer.data() + 4);
    std::vector<float> src(n);
    for (int i = 0; i < n; ++i) src[i] = float(i) - 7.5f;
    ASSERT_EQ(voksCopy_32f(src.data(), dst, n), vokStatusOk);
    EXPECT_EQ(std::memcmp(dst, src.data(), 4 * n), 0);
    ASSERT_EQ(voksSet_32f(-1.5f, dst, n), vokStatusOk);
    EXPECT_EQ(std::count(dst, dst + n, -1.5f), n);
    ASSERT_EQ(voksZero_16sc(reinterpret_cast<Vok16sc*>(dst), n), vokStatusOk);
    EXPECT_EQ(std::count(buffer.begin() + 4, buffer.begin() + 4 + 4 * n, 0), 4 * n);
    EXPECT_EQ(std::tuple(buffer[3], buffer[4 + 4 * n]), std::tuple(0xA5, 0xA5));
    ASSERT_EQ(voksCopy_8u(reinterpret_cast<const Vok8u*>(src.data()), buffer.data() + 1, 4 * n - 1), vokStatusOk);
    EXPECT_EQ(std::memcmp(buffer.data() + 1, src.data(), 4 * n - 1), 0);
    EXPECT_EQ(std::tuple(buffer[0], buffer[4 * n]), std::tuple(0xA5, 0));
  }
}

TEST(VectorConvert, WorkedCases) {
  const float in[] = {NAN, -1e30f, 2.5f, 3.5f, -2.5f, 300.0f, 3e9f, -NAN};
  const auto run = [&](auto convert, auto sample, VokRoundMode mode, int scale) {
    decltype(sample) out[8];
    EXPECT_EQ(convert(in, out, 8, mode, scale), vokStatusOk);
    return std::vector<int64_t>(out, out + 8);
  };
  using V = std::vector<int64_t>;
  EXPECT_EQ(run(voksConvert_32f8u_Sfs, Vok8u{}, vokRoundNear, 0), (V{255, 0, 2, 4, 0, 255, 255, 255}));
  EXPECT_EQ(run(voksConvert_32f8u_Sfs, Vok8u{}, vokRoundZero, 0), (V{255, 0, 2, 3, 0, 255, 255, 255}));
  EXPECT_EQ(run(voksConvert_32f8u_Sfs, Vok8u{}, 7, 0), (V{255, 0, 2, 4, 0, 255, 255, 255}));
  EXPECT_EQ(run(voksConvert_32f16s_Sfs, Vok16s{}, vokRoundNear, 0),
            (V{32767, -32768, 2, 4, -2, 300, 32767, 32767}));
  EXPECT_EQ(run(voksConvert_32f32s_Sfs, Vok32s{}, vokRoundNear, 0),
            (V{INT32_MAX, INT32_MIN, 2, 4, -2, 300, INT32_MAX, INT32_MIN}));
  EXPECT_EQ(run(voksConvert_32f16s_Sfs, Vok16s{}, vokRoundNear, -1),
            (V{32767, -32768, 5, 7, -5, 600, 32767, 32767}));
  // 2^-200 is zero in single precision, and zero times NaN is NaN.
  EXPECT_EQ(run(voksConvert_32f16s_Sfs, Vok16s{}, vokRoundNear, 200),
            (V{32767, 0, 0, 0, 0, 0, 0, 32767}));
}

// The caller's rounding state neither changes the result nor is lost.
TEST(VectorConvert, RoundingModeIsTheCallsOwn) {
  std::mt19937 rng(33);
  vok_test::ForEachTarget([&](const char*) {
    for (int n : kLengths) {
      std::vector<float> in(n), fromInts(n), fromBytes(n);
      for (float& x : in) x = float(int(rng() % 2001) - 1000) / 4;  // quarters and halves
      const auto ints = Random<Vok32s>(rng, n);
      const auto bytes = Random<Vok8u>(rng, n);
      std::vector<Vok16s> out(n);
      std::fesetround(FE_UPWARD);
      ASSERT_EQ(voksConvert_32f16s_Sfs(in.data(), out.data(), n, vokRoundNear, 1), vokStatusOk);
      ASSERT_EQ(voksConvert_32s32f(ints.data(), fromInts.data(), n), vokStatusOk);
      ASSERT_EQ(voksConvert_8u32f(bytes.data(), fromBytes.data(), n), vokStatusOk);
      EXPECT_EQ(std::fegetround(), FE_UPWARD);
      std::fesetround(FE_TONEAREST);
      for (int i = 0; i < n; ++i) {
        ASSERT_EQ(out[i], Vok16s(std::nearbyint(in[i] * 0.5f))) << in[i];
        ASSERT_EQ(fromInts[i], float(ints[i])) << ints[i];
        ASSERT_EQ(fromBytes[i], float(bytes[i]));
      }
    }
  });
}

TEST(VectorReduce, SumsInSinglePrecision) {
  std::mt19937 rng(34);
  vok_test::ForEachTarget([&](const char*) {
    for (int n : kLengths) {
      const auto a = Random<float>(rng, n), b = Random<float>(rng, n);
      double dot = 0, squares = 0, sum = 0, magnitude = 0;
      for (int i = 0; i < n; ++i) {
        dot += double(a[i]) * b[i];
        squares += double(a[i]) * a[i];
        sum += a[i];
        magnitude += std::fabs(double(a[i]) * b[i]);
      }
      float got = 0, norm = 0, fast = 0, accurate = 0;
      ASSERT_EQ(voksDotProd_32f(a.data(), b.data(), n, &got), vokStatusOk);
      EXPECT_NEAR(got, dot, magnitude * 1e-6);
      ASSERT_EQ(voksNorm_L2_32f(a.data(), n, &norm), vokStatusOk);
      EXPECT_NEAR(norm, std::sqrt(squares), std::sqrt(squares) * 1e-6);
      ASSERT_EQ(voksMean_32f(a.data(), n, &fast, vokHintFast), vokStatusOk);
      ASSERT_EQ(voksMean_32f(a.data(), n, &accurate, vokHintAccurate), vokStatusOk);
      EXPECT_EQ(accurate, float(sum / n));
      EXPECT_NEAR(fast, sum / n, 1000.0 * 1e-6);
    }
  });
}

TEST(VectorPolar, MagnitudePhaseAndBack) {
  std::mt19937 rng(35);
  vok_test::ForEachTarget([&](const char*) {
    for (int n : kLengths) {
      const auto parts = Random<float>(rng, 2 * n);
      std::vector<Vok32fc> src(n);
      std::memcpy(src.data(), parts.data(), 8 * n);
      std::vector<float> mag(n), phase(n);
      std::vector<Vok32fc> back(n);
      ASSERT_EQ(voksMagnitude_32fc(src.data(), mag.data(), n), vokStatusOk);
      ASSERT_EQ(voksPhase_32fc(src.data(), phase.data(), n), vokStatusOk);
      ASSERT_EQ(voksPolarToCart_32fc(mag.data(), phase.data(), back.data(), n), vokStatusOk);
      for (int i = 0; i < n; ++i) {
        const float re = src[i].re, im = src[i].im;
        ASSERT_EQ(mag[i], std::sqrt(re * re + im * im));
        ASSERT_NEAR(phase[i], std::atan2(im, re), 4e-7);
        ASSERT_NEAR(back[i].re, re, mag[i] * 1e-6);
        ASSERT_NEAR(back[i].im, im, mag[i] * 1e-6);
      }
    }
    // Phases far from the first turn keep their accuracy.
    std::vector<float> ones(64, 2.0f), angles(64);
    for (int i = 0; i < 64; ++i) angles[i] = -1000.0f + 31.25f * float(i);
    std::vector<Vok32fc> out(64);
    ASSERT_EQ(voksPolarToCart_32fc(ones.data(), angles.data(), out.data(), 64), vokStatusOk);
    for (int i = 0; i < 64; ++i) {
      ASSERT_NEAR(out[i].re, 2 * std::cos(double(angles[i])), 2e-6) << angles[i];
      ASSERT_NEAR(out[i].im, 2 * std::sin(double(angles[i])), 2e-6) << angles[i];
    }
  });
}

// Every instruction set gives the same bytes, over finite parts of every
// exponent: the reciprocals inside must not follow the hardware's estimates.
TEST(VectorPolar, SameBytesOnEveryTarget) {
  std::mt19937 rng(37);
  const int n = 4099;
  std::vector<Vok32fc> src(n);
  for (auto& c : src) {
    const auto part = [&] { return std::ldexp(float(int32_t(rng())) * 0x1p-31f, int(rng() % 200) - 100); };
    c = {part(), part()};
  }
  std::vector<std::vector<float>> results;
  vok_test::ForEachTarget([&](const char*) {
    std::vector<float> mag(n), phase(n);
    ASSERT_EQ(voksMagnitude_32fc(src.data(), mag.data(), n), vokStatusOk);
    ASSERT_EQ(voksPhase_32fc(src.data(), phase.data(), n), vokStatusOk);
    mag.insert(mag.end(), phase.begin(), phase.end());
    if (!results.empty()) {
      for (int i = 0; i < 2 * n; ++i)
        ASSERT_EQ(std::bit_cast<uint32_t>(mag[i]), std::bit_cast<uint32_t>(results[0][i]))
            << (i < n ? "magnitude " : "phase ") << i % n;
    }
    results.push_back(std::move(mag));
  });
}

// Signed zeros, infinities and NaN as atan2 has them, (-1, +0) giving pi,
// cycled through a long array so that each lands in every vector position.
TEST(VectorPolar, PhaseConventionsOfAtan2) {
  const float inf = INFINITY;
  const Vok32fc cases[] = {{-1, 0}, {0, 0}, {-0.0f, 0}, {0, -0.0f}, {-0.0f, -0.0f}, {0, 3}, {-0.0f, -inf},
                           {inf, 1}, {-inf, 1}, {1, inf}, {inf, inf}, {-inf, -inf}, {inf, -inf},
                           {NAN, 1}, {1, -NAN}, {NAN, inf}, {2, -2}};
  const int n = 101;
  std::vector<Vok32fc> src(n);
  for (int i = 0; i < n; ++i) src[i] = cases[i % std::size(cases)];
  std::vector<float> phase(n);
  vok_test::ForEachTarget([&](const char*) {
    ASSERT_EQ(voksPhase_32fc(src.data(), phase.data(), n), vokStatusOk);
    for (int i = 0; i < n; ++i) {
      const float want = std::atan2(src[i].im, src[i].re), got = phase[i];
      EXPECT_TRUE(std::isnan(want) ? std::isnan(got)
                                   : std::fabs(got - want) <= 4e-7 && std::signbit(got) == std::signbit(want))
          << i << ": " << got;
    }
    EXPECT_EQ(phase[0], std::numbers::pi_v<float>);
    // A lone NaN part among ordinary samples is returned as well.
    for (int at : {0, 37, 100})
      for (const Vok32fc lone : {Vok32fc{NAN, 1}, Vok32fc{1, NAN}}) {
        std::vector<Vok32fc> plain(n, Vok32fc{3, -4});
        plain[at] = lone;
        ASSERT_EQ(voksPhase_32fc(plain.data(), phase.data(), n), vokStatusOk);
        EXPECT_TRUE(std::isnan(phase[at])) << at;
        EXPECT_NEAR(phase[at == 0 ? 1 : 0], std::atan2(-4.0f, 3.0f), 4e-7);
      }
  });
}

TEST(VectorIntegerPolar, MagnitudeIsExact) {
  // (-32768, -32768) saturates; 2.5, 6.5 and 12.5 go to even.
  const Vok16sc ties[] = {{-32768, -32768}, {3, 4}, {6, 8}, {5, 12}, {-7, 24}};
  Vok16s out[5];
  ASSERT_EQ(voksMagnitude_16sc_Sfs(ties, out, 1, 0), vokStatusOk);
  ASSERT_EQ(voksMagnitude_16sc_Sfs(ties + 1, out + 1, 4, 1), vokStatusOk);
  EXPECT_EQ(std::vector<int>(out, out + 5), (std::vector<int>{32767, 2, 5, 6, 12}));
  std::mt19937 rng(36);
  for (int s : {-15, -14, -3, 0, 1, 2, 7, 15, 16, 17}) {
    std::vector<Vok16sc> src(500);
    for (auto& c : src) c = {Vok16s(rng()), Vok16s(rng() % 2 ? rng() : rng() % 50)};
    std::vector<Vok16s> got(500);
    ASSERT_EQ(voksMagnitude_16sc_Sfs(src.data(), got.data(), 500, s), vokStatusOk);
    for (int i = 0; i < 500; ++i) {  // the exact root, scaled
      const long double squares = (long double)src[i].re * src[i].re + (long double)src[i].im * src[i].im;
      ASSERT_EQ(got[i], vok_test::ScaleToEven<Vok16s>(std::sqrt(squares), s)) << s;
    }
  }
  const Vok32sc big[] = {{INT32_MIN, INT32_MIN}, {3, 4}, {0, 0}};
  const auto magnitudes = [&](int scale) {
    Vok32s m[3];
    EXPECT_EQ(voksMagnitude_32sc_Sfs(big, m, 3, scale), vokStatusOk);
    return std::vector<int64_t>(m, m + 3);
  };
  EXPECT_EQ(magnitudes(0), (std::vector<int64_t>{INT32_MAX, 5, 0}));
  EXPECT_EQ(magnitudes(1), (std::vector<int64_t>{1518500250, 2, 0}));  // 2^30.5
  EXPECT_EQ(magnitudes(-31), (std::vector<int64_t>{INT32_MAX, INT32_MAX, 0}));
}

TEST(VectorIntegerPolar, PhaseByScaleFactor) {
  const Vok16sc src[] = {{100, 50}, {0, 5}, {0, -5}, {0, 0}, {-3, 0}, {-100, -1}};
  Vok16s out[6];
  ASSERT_EQ(voksPhase_16sc_Sfs(src, out, 6, 0), vokStatusOk);  // the coarse form
  EXPECT_EQ(std::vector<int>(out, out + 6), (std::vector<int>{1, 2, -2, 0, 3, -3}));
  ASSERT_EQ(voksPhase_16sc_Sfs(src, out, 6, 2), vokStatusOk);
  EXPECT_EQ(std::vector<int>(out, out + 6), std::vector<int>(6, 0));
  for (int s : {1, -1, -12, -28, -29, -40}) {
    Vok16s p16[6];
    Vok32s p32[6];
    Vok32sc wide[6];
    for (int i = 0; i < 6; ++i) wide[i] = {src[i].re, src[i].im};
    ASSERT_EQ(voksPhase_16sc_Sfs(src, p16, 6, s), vokStatusOk);
    ASSERT_EQ(voksPhase_32sc_Sfs(wide, p32, 6, s), vokStatusOk);
    for (int i = 0; i < 6; ++i) {
      const double want = std::ldexp(std::atan2(double(src[i].im), double(src[i].re)), -s);
      EXPECT_NEAR(p16[i], std::clamp(want, -32768.0, 32767.0), 1.0) << s << " " << i;
      EXPECT_NEAR(p32[i], std::clamp(want, -2147483648.0, 2147483647.0), 1.0) << s << " " << i;
    }
  }
}

// Pointers before the length; a zero divisor as a constant fails, in an
// array it warns; a norm that underflows in single precision is zero.
TEST(VectorChecks, NullThenLengthThenDivisor) {
  float f[4] = {};
  Vok16sc c[4] = {};
  Vok32fc one[1] = {{1, 1}};
  vok_test::ExpectStatuses({
      {voksAdd_32f(nullptr, f, f, 0), vokStatusNullPointer},
      {voksAdd_32f(f, f, f, 0), vokStatusBadSize},
      {voksMulC_32f_I(1.0f, f, -1), vokStatusBadSize},
      {voksSubC_32f_I(0.0f, nullptr, 4), vokStatusNullPointer},
      {voksDivC_16sc_Sfs(c, Vok16sc{0, 0}, c, 0, 0), vokStatusBadSize},
      {voksDivC_16sc_Sfs(c, Vok16sc{0, 0}, c, 4, 0), vokStatusDivideByZero},
      {voksDivC_32fc_I(Vok32fc{1e-30f, 0}, one, 1), vokStatusDivideByZero},
      {voksDotProd_32f(f, f, 4, nullptr), vokStatusNullPointer},
      {voksMean_32f(f, 0, f, vokHintNone), vokStatusBadSize},
      {voksConvert_32f8u_Sfs(f, nullptr, 4, 0, 0), vokStatusNullPointer},
      {voksZero_8u(nullptr, 0), vokStatusNullPointer},
      {voksPolarToCart_32fc(f, f, nullptr, 1), vokStatusNullPointer},
      {voksDiv_16sc_ISfs(c, c, 1, 0), vokWarnDivideByZero},
  });
}

}  // namespace
