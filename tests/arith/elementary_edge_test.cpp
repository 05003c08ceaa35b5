// Worked values of Div, DivC and the elementary functions, warnings that
// leave every row finished, the constant forms, and the order of checks.
#include <cmath>
#include <cstring>

#include "vok_test.h"

namespace {

using vok_test::Image;

constexpr VokiSize kOne{1, 1};

template <typename T>
std::pair<T, VokStatus> Div(T divisor, T dividend, int scale) {
  T d = 77;
  VokStatus status;
  if constexpr (std::is_same_v<T, Vok8u>) {
    status = vokiDiv_8u_C1RSfs(&divisor, 1, &dividend, 1, &d, 1, kOne, scale);
  } else {
    status = vokiDiv_16s_C1RSfs(&divisor, 2, &dividend, 2, &d, 2, kOne, scale);
  }
  return {d, status};
}

TEST(ElementaryRule, IntegerDivisionRoundsTiesToEven) {
  using P8 = std::pair<Vok8u, VokStatus>;
  using P16 = std::pair<Vok16s, VokStatus>;
  EXPECT_EQ(Div<Vok8u>(2, 7, 0), P8(4, vokStatusOk));
  EXPECT_EQ(Div<Vok8u>(2, 5, 0), P8(2, vokStatusOk));
  EXPECT_EQ(Div<Vok8u>(0, 200, 0), P8(255, vokWarnDivideByZero));
  EXPECT_EQ(Div<Vok8u>(0, 0, 0), P8(0, vokWarnDivideByZero));
  EXPECT_EQ(Div<Vok8u>(0, 9, 12), P8(255, vokWarnDivideByZero));  // past the limit
  EXPECT_EQ(Div<Vok8u>(1, 255, 9), P8(0, vokStatusOk));
  EXPECT_EQ(Div<Vok8u>(255, 1, -16), P8(255, vokStatusOk));
  EXPECT_EQ(Div<Vok16s>(2, -7, 0), P16(-4, vokStatusOk));
  EXPECT_EQ(Div<Vok16s>(0, -3, 0), P16(-32768, vokWarnDivideByZero));
  EXPECT_EQ(Div<Vok16s>(-1, 1, -31), P16(-32768, vokStatusOk));
  EXPECT_EQ(Div<Vok16s>(3, 1, -6), P16(21, vokStatusOk));  // 64 / 3 in double
  EXPECT_EQ(Div<Vok16s>(4, 6, 2), P16(0, vokStatusOk));    // 6 / 16 = 0.375
}

TEST(ElementaryRule, FloatDivisionByZero) {
  const float divisors[4] = {-0.0f, 0.0f, 0.0f, 0.0f};
  const float dividends[4] = {1.0f, -2.0f, 0.0f, NAN};
  float q[4];
  EXPECT_EQ(vokiDiv_32f_C1R(divisors, 16, dividends, 16, q, 16, VokiSize{4, 1}),
            vokWarnDivideByZero);
  EXPECT_EQ(q[0], INFINITY);
  EXPECT_EQ(q[1], -INFINITY);
  uint32_t bits[2];
  std::memcpy(bits, q + 2, 8);
  EXPECT_EQ(bits[0], 0x7FC00000u);
  EXPECT_EQ(bits[1], 0x7FC00000u);
}

TEST(ElementaryRule, WorkedValues) {
  Vok16s s16 = -32768, d16 = 0;
  EXPECT_EQ(vokiAbs_16s_C1R(&s16, 2, &d16, 2, kOne), vokStatusOk);
  EXPECT_EQ(d16, 32767);
  float f = -0.0f;
  EXPECT_EQ(vokiAbs_32f_C1IR(&f, 4, kOne), vokStatusOk);
  EXPECT_FALSE(std::signbit(f));

  const auto sqr8u = [](Vok8u x, int scale) {
    Vok8u y = 0;
    EXPECT_EQ(vokiSqr_8u_C1RSfs(&x, 1, &y, 1, kOne, scale), vokStatusOk);
    return y;
  };
  EXPECT_EQ(sqr8u(16, 0), 255);
  EXPECT_EQ(sqr8u(15, 0), 225);
  EXPECT_EQ(sqr8u(3, 1), 4);  // 4.5 to even
  EXPECT_EQ(sqr8u(5, 1), 12);
  s16 = -32768;
  for (auto [scale, want] : {std::pair{30, 1}, {31, 0}, {-14, 32767}, {0, 32767}}) {
    EXPECT_EQ(vokiSqr_16s_C1RSfs(&s16, 2, &d16, 2, kOne, scale), vokStatusOk);
    EXPECT_EQ(d16, want) << scale;
  }

  const auto sqrt8u = [](Vok8u x, int scale) {
    Vok8u y = 0;
    EXPECT_EQ(vokiSqrt_8u_C1RSfs(&x, 1, &y, 1, kOne, scale), vokStatusOk);
    return y;
  };
  EXPECT_EQ(sqrt8u(2, 0), 1);
  EXPECT_EQ(sqrt8u(3, 0), 2);
  EXPECT_EQ(sqrt8u(255, 0), 16);
  EXPECT_EQ(sqrt8u(255, -4), 255);
  EXPECT_EQ(sqrt8u(225, 1), 8);  // 7.5 to even
  for (auto [x, want] : {std::pair{9, 2}, {25, 2}, {49, 4}, {81, 4}})
    EXPECT_EQ(sqrt8u(Vok8u(x), 1), want) << x;
  s16 = -1;
  EXPECT_EQ(vokiSqrt_16s_C1RSfs(&s16, 2, &d16, 2, kOne, 0), vokWarnSqrtDomain);
  EXPECT_EQ(d16, 0);
  f = -0.0f;
  EXPECT_EQ(vokiSqrt_32f_C1IR(&f, 4, kOne), vokStatusOk);  // -0 is no negative
  f = -4.0f;
  EXPECT_EQ(vokiSqrt_32f_C1IR(&f, 4, kOne), vokWarnSqrtDomain);
  EXPECT_TRUE(std::isnan(f));

  s16 = 0;
  EXPECT_EQ(vokiLn_16s_C1RSfs(&s16, 2, &d16, 2, kOne, 0), vokWarnSingularity);
  EXPECT_EQ(d16, -32768);
  Vok8u zero = 0, ln8u = 9;
  EXPECT_EQ(vokiLn_8u_C1RSfs(&zero, 1, &ln8u, 1, kOne, 0), vokWarnSingularity);
  EXPECT_EQ(ln8u, 0);
  f = -0.0f;
  EXPECT_EQ(vokiLn_32f_C1IR(&f, 4, kOne), vokWarnDomain);
  uint32_t bits;
  std::memcpy(&bits, &f, 4);
  EXPECT_EQ(bits, 0xFFC00000u);
  f = 0.0f;
  EXPECT_EQ(vokiLn_32f_C1IR(&f, 4, kOne), vokWarnSingularity);
  EXPECT_EQ(f, -INFINITY);

  const auto exp8u = [](Vok8u x, int scale) {
    Vok8u y = 0;
    EXPECT_EQ(vokiExp_8u_C1RSfs(&x, 1, &y, 1, kOne, scale), vokStatusOk);
    return y;
  };
  EXPECT_EQ(exp8u(0, 0), 1);
  EXPECT_EQ(exp8u(5, 0), 148);
  EXPECT_EQ(exp8u(6, 0), 255);
  EXPECT_EQ(exp8u(0, 1), 1);  // the one exact tie goes up
  s16 = 0;
  EXPECT_EQ(vokiExp_16s_C1RSfs(&s16, 2, &d16, 2, kOne, 1), vokStatusOk);
  EXPECT_EQ(d16, 1);
}

// A warning never stops the image: every sample after it gets its value,
// and the first warning of the image, in row order, is the status.
TEST(ElementaryWarnings, FirstWarningOfTheImageStands) {
  vok_test::ForEachTarget([](const char*) {
    Image<Vok16s> src(37, 3), dst(37, 3);
    for (int y = 0; y < 3; ++y)
      for (int x = 0; x < 37; ++x) src.set(x, y, 0, Vok16s(1 + x + 40 * y));
    src.set(30, 0, 0, -5);  // negative before zero, both in the last partial group
    src.set(33, 0, 0, 0);
    src.set(2, 1, 0, 0);
    EXPECT_EQ(vokiLn_16s_C1RSfs(src.data(), src.step(), dst.data(), dst.step(),
                                src.size(), -8),
              vokWarnDomain);
    EXPECT_EQ(dst.at(30, 0), -32768);
    EXPECT_EQ(dst.at(33, 0), -32768);
    EXPECT_EQ(dst.at(36, 2), std::lround(std::log(1.0 + 36 + 80) * 256));
    EXPECT_EQ(dst.at(3, 1), std::lround(std::log(1.0 + 3 + 40) * 256));
    // A zero first: the singularity stands, the negative later is not reported.
    src.set(0, 0, 0, 0);
    EXPECT_EQ(vokiLn_16s_C1IRSfs(src.data(), src.step(), src.size(), 0),
              vokWarnSingularity);
    EXPECT_EQ(src.at(36, 2), std::lround(std::log(1.0 + 36 + 80)));
    EXPECT_TRUE(src.guardsIntact() && dst.guardsIntact());

    // Division: a zero divisor in the first row, valid quotients after it.
    Image<float> divisors(9, 2), dividends(9, 2), q(9, 2);
    divisors.fill(2.0f);
    dividends.fill(3.0f);
    divisors.set(0, 0, 0, 0.0f);
    EXPECT_EQ(vokiDiv_32f_C1R(divisors.data(), divisors.step(), dividends.data(),
                              dividends.step(), q.data(), q.step(), q.size()),
              vokWarnDivideByZero);
    EXPECT_EQ(q.at(0, 0), INFINITY);
    EXPECT_EQ(q.at(8, 1), 1.5f);
  });
}

// Padding lanes past the end of a row never warn.
TEST(ElementaryWarnings, NoWarningFromOutsideTheRow) {
  vok_test::ForEachTarget([](const char*) {
    for (int width : vok_test::TestWidths()) {
      Image<Vok16s> src(width, 1), dst(width, 1);
      src.fill(3);
      EXPECT_EQ(vokiDiv_16s_C1RSfs(src.data(), src.step(), src.data(), src.step(),
                                   dst.data(), dst.step(), src.size(), 0),
                vokStatusOk);
      EXPECT_EQ(vokiLn_16s_C1RSfs(src.data(), src.step(), dst.data(), dst.step(),
                                  src.size(), 0),
                vokStatusOk);
      Image<float> f(width, 1);
      f.fill(1.0f);
      EXPECT_EQ(vokiLn_32f_C1IR(f.data(), f.step(), f.size()), vokStatusOk);
    }
  });
}

// Alpha of Div_32f_AC4R divides by 1 and never warns; alpha stays as it was.
TEST(ElementaryWarnings, Div32fAlphaNeverWarns) {
  Image<float> divisors(3, 2, 4), dividends(3, 2, 4), dst(3, 2, 4);
  divisors.fill(0.0f);
  for (int y = 0; y < 2; ++y)
    for (int x = 0; x < 3; ++x)
      for (int c = 0; c < 3; ++c) divisors.set(x, y, c, 4.0f);
  dividends.fill(2.0f);
  dst.fill(-7.0f);
  EXPECT_EQ(vokiDiv_32f_AC4R(divisors.data(), divisors.step(), dividends.data(),
                             dividends.step(), dst.data(), dst.step(), dst.size()),
            vokStatusOk);
  EXPECT_EQ(dst.at(2, 1, 2), 0.5f);
  EXPECT_EQ(dst.at(2, 1, 3), -7.0f);
}

// DivC of integers: x times 2^-s / c formed once in float.
template <typename T>
T DivCModel(T x, T c, int s) {
  const bool is8u = std::is_same_v<T, Vok8u>;
  if (s > (is8u ? 8 : 15)) return 0;
  if (s < (is8u ? -15 : -30)) {
    const int sign = (x > 0) - (x < 0);
    return vok_test::Saturate<T>(int64_t(c < 0 ? -sign : sign) * 100000);
  }
  volatile float k = std::ldexp(1.0f, -s) / float(c);
  volatile float v = float(x) * k;
  return vok_test::Saturate<T>(int64_t(std::nearbyint(double(v))));
}

// C1 against the model over rows of width x 3; C3 against the division by a
// row of its three constants, which is what it runs.
template <typename T, class C1Form, class C3Form, class DivVector>
void CheckDivC(C1Form c1, C3Form c3, DivVector div, uint32_t seed) {
  std::mt19937 rng(seed);
  vok_test::ForEachTarget([&](const char*) {
    for (int scale : {-40, -31, -30, -16, -15, -9, -1, 0, 1, 3, 8, 9, 15, 16}) {
      const int width = 1 + rng() % 70;
      Image<T> src(width, 2, 3, 3 * sizeof(T), sizeof(T)), out(width, 2, 3);
      src.randomize(rng);
      T values[3];
      for (T& v : values) {
        do v = Image<T>::RandomSample(rng);
        while (v == 0);
      }
      if (rng() % 2) values[1] = 1;
      ASSERT_EQ(c1(src.data(), src.step(), values[0], out.data(), out.step(),
                   VokiSize{3 * width, 2}, scale),
                vokStatusOk);
      Image<T> want = out;
      for (int y = 0; y < 2; ++y)
        for (int i = 0; i < 3 * width; ++i)
          want.set(i / 3, y, i % 3, DivCModel(src.at(i / 3, y, i % 3), values[0], scale));
      EXPECT_EQ(out.firstDifference(want), "") << "C1, scale " << scale;
      ASSERT_EQ(c3(src.data(), src.step(), values, out.data(), out.step(),
                   VokiSize{width, 2}, scale),
                vokStatusOk);
      std::vector<T> divisors(3 * width);
      for (int i = 0; i < 3 * width; ++i) divisors[i] = values[i % 3];
      for (int y = 0; y < 2; ++y)
        ASSERT_EQ(div(divisors.data(), src.row(y), want.row(y), 3 * width, scale), vokStatusOk);
      EXPECT_EQ(out.firstDifference(want), "") << "C3, scale " << scale;
      EXPECT_TRUE(out.guardsIntact());
    }
  });
}

TEST(ElementaryDivC, IntegerFormsFollowTheModel) {
  CheckDivC<Vok8u>(vokiDivC_8u_C1RSfs, vokiDivC_8u_C3RSfs, voksDiv_8u_Sfs, 3);
  CheckDivC<Vok16s>(vokiDivC_16s_C1RSfs, vokiDivC_16s_C3RSfs, voksDiv_16s_Sfs, 4);
}

TEST(ElementaryDivC, ZeroConstants) {
  Image<Vok8u> src(5, 2, 3), dst(5, 2, 3);
  src.fill(6);
  dst.fill(1);
  const Image<Vok8u> before = dst;
  EXPECT_EQ(vokiDivC_8u_C1RSfs(src.data(), src.step(), 0, dst.data(), dst.step(),
                               VokiSize{15, 2}, 0),
            vokStatusDivideByZero);
  EXPECT_TRUE(dst.sameRegion(before));
  // 8u C3 writes the image, with the zero-divisor result in channel 1.
  const Vok8u values[3] = {3, 0, 4};
  EXPECT_EQ(vokiDivC_8u_C3RSfs(src.data(), src.step(), values, dst.data(),
                               dst.step(), dst.size(), 0),
            vokStatusDivideByZero);
  EXPECT_EQ(dst.at(4, 1, 0), 2);
  EXPECT_EQ(dst.at(4, 1, 1), 255);
  EXPECT_EQ(dst.at(4, 1, 2), 2);  // 1.5 to even
  // 16s C3 refuses before writing.
  Image<Vok16s> s16(5, 2, 3), d16(5, 2, 3);
  s16.fill(6);
  d16.fill(1);
  const Vok16s values16[3] = {3, 0, 4};
  EXPECT_EQ(vokiDivC_16s_C3IRSfs(values16, d16.data(), d16.step(), d16.size(), 0),
            vokStatusDivideByZero);
  EXPECT_EQ(d16.at(4, 1, 2), 1);
  // 32f: ±0 and NaN are refused; otherwise x times 1/c.
  float f = 3.0f;
  EXPECT_EQ(vokiDivC_32f_C1IR(NAN, &f, 4, kOne), vokStatusDivideByZero);
  EXPECT_EQ(vokiDivC_32f_C1IR(-0.0f, &f, 4, kOne), vokStatusDivideByZero);
  const float v3[3] = {2.0f, 0.0f, 1.0f};
  float f3[3] = {1, 2, 3};
  EXPECT_EQ(vokiDivC_32f_C3IR(v3, f3, 12, kOne), vokStatusDivideByZero);
  EXPECT_EQ(f3[0], 1.0f);
  volatile float c = 3.0f, x = 5.0f;
  EXPECT_EQ(vokiDivC_32f_C1IR(3.0f, &f, 4, kOne), vokStatusOk);
  EXPECT_EQ(f, 3.0f * (1.0f / c));
  const float v3b[3] = {3.0f, 7.0f, 0.1f};
  float y3[3] = {5.0f, 5.0f, 5.0f};
  EXPECT_EQ(vokiDivC_32f_C3R(y3, 12, v3b, y3, 12, kOne), vokStatusOk);
  EXPECT_EQ(y3[0], x * (1.0f / c));
  EXPECT_EQ(y3[2], x * (1.0f / 0.1f));
}

// Image forms: null, then size, then step, then the constant; vector forms
// null, then length, then the constant. Nothing is written on failure.
TEST(ElementaryChecks, OrderOfStatuses) {
  Image<Vok16s> img(4, 2, 4);
  img.fill(3);
  const Image<Vok16s> before = img;
  Vok16s* p = img.data();
  const int s = img.step();
  const VokiSize ok{4, 2}, noWidth{0, 2};
  EXPECT_EQ(vokiAbs_16s_C1R(nullptr, s, p, s, noWidth), vokStatusNullPointer);
  EXPECT_EQ(vokiAbs_16s_C1R(p, 0, p, s, noWidth), vokStatusBadSize);
  EXPECT_EQ(vokiAbs_16s_AC4R(p, 0, p, s, ok), vokStatusBadStep);
  EXPECT_EQ(vokiDiv_16s_C3RSfs(p, s, nullptr, s, p, s, noWidth, 0), vokStatusNullPointer);
  EXPECT_EQ(vokiDiv_16s_C3IRSfs(p, s, p, s, VokiSize{4, 0}, 0), vokStatusBadSize);
  EXPECT_EQ(vokiDivC_16s_C1RSfs(p, s, 0, p, -1, ok, 0), vokStatusBadStep);
  EXPECT_EQ(vokiDivC_16s_C1RSfs(p, s, 0, p, s, noWidth, 0), vokStatusBadSize);
  EXPECT_EQ(vokiDivC_16s_C3RSfs(p, s, nullptr, p, s, ok, 0), vokStatusNullPointer);
  EXPECT_EQ(vokiDivC_16s_C1IRSfs(0, p, s, ok, 0), vokStatusDivideByZero);
  EXPECT_EQ(vokiSqrt_32f_C4IR(nullptr, 0, noWidth), vokStatusNullPointer);
  EXPECT_EQ(vokiLn_32f_C3R(reinterpret_cast<float*>(p), s, reinterpret_cast<float*>(p),
                           0, ok),
            vokStatusBadStep);
  EXPECT_TRUE(img.sameRegion(before));

  EXPECT_EQ(voksAbs_16s(nullptr, p, 0), vokStatusNullPointer);
  EXPECT_EQ(voksAbs_16s_I(p, 0), vokStatusBadSize);
  EXPECT_EQ(voksSqrt_16s_ISfs(p, -1, 0), vokStatusBadSize);
  EXPECT_EQ(voksDiv_16s_Sfs(p, nullptr, p, 0, 0), vokStatusNullPointer);
  EXPECT_EQ(voksDiv_32f(nullptr, nullptr, nullptr, 1), vokStatusNullPointer);
  EXPECT_EQ(voksDivC_16s_Sfs(p, 0, p, 0, 0), vokStatusBadSize);
  EXPECT_EQ(voksDivC_8u_Sfs(nullptr, 0, nullptr, 0, 0), vokStatusNullPointer);
  EXPECT_EQ(voksDivC_16s_Sfs(p, 0, p, 4, 0), vokStatusDivideByZero);
  EXPECT_TRUE(img.sameRegion(before));
  EXPECT_TRUE(img.guardsIntact());
}

}  // namespace
