// Worked values of Div, DivC and the elementary functions, warnings that
// leave every row finished, the constant forms, and the order of checks.
#include <cfenv>
#include <cmath>
#include <cstring>

#include "vok_test.h"

namespace {

using vok_test::Image;
using Result = std::pair<double, VokStatus>;

constexpr VokiSize kOne{1, 1};

Result Ok(double value) { return {value, vokStatusOk}; }

// One sample through a C1R form, with or without a scale factor.
template <typename T, typename... Scale>
Result One(VokStatus (*form)(const T*, int, T*, int, VokiSize, Scale...), T x,
           Scale... scale) {
  T y{};
  const VokStatus status = form(&x, sizeof(T), &y, sizeof(T), kOne, scale...);
  return {double(y), status};
}

template <typename T, typename... Scale>
Result Div(VokStatus (*form)(const T*, int, const T*, int, T*, int, VokiSize, Scale...),
           T divisor, T dividend, Scale... scale) {
  T q{};
  const VokStatus status =
      form(&divisor, sizeof(T), &dividend, sizeof(T), &q, sizeof(T), kOne, scale...);
  return {double(q), status};
}

uint32_t Bits(double value) {
  const float f = float(value);
  uint32_t bits;
  std::memcpy(&bits, &f, 4);
  return bits;
}

TEST(ElementaryRule, WorkedValues) {
  const auto div8u = vokiDiv_8u_C1RSfs;
  const auto div16s = vokiDiv_16s_C1RSfs;
  EXPECT_EQ(Div<Vok8u>(div8u, 2, 7, 0), Ok(4));  // 3.5 to even
  EXPECT_EQ(Div<Vok8u>(div8u, 2, 5, 0), Ok(2));
  EXPECT_EQ(Div<Vok8u>(div8u, 0, 200, 0), Result(255, vokWarnDivideByZero));
  EXPECT_EQ(Div<Vok8u>(div8u, 0, 0, 0), Result(0, vokWarnDivideByZero));
  EXPECT_EQ(Div<Vok8u>(div8u, 0, 9, 12), Result(255, vokWarnDivideByZero));
  EXPECT_EQ(Div<Vok8u>(div8u, 1, 255, 9), Ok(0));
  EXPECT_EQ(Div<Vok16s>(div16s, 2, -7, 0), Ok(-4));
  EXPECT_EQ(Div<Vok16s>(div16s, 0, -3, 0), Result(-32768, vokWarnDivideByZero));
  EXPECT_EQ(Div<Vok16s>(div16s, -1, 1, -31), Ok(-32768));
  EXPECT_EQ(Div<Vok16s>(div16s, 3, 1, -6), Ok(21));  // 64 / 3 in double
  EXPECT_EQ(Div<float>(vokiDiv_32f_C1R, -0.0f, 1.0f), Result(INFINITY, vokWarnDivideByZero));
  EXPECT_EQ(Div<float>(vokiDiv_32f_C1R, 0.0f, -2.0f), Result(-INFINITY, vokWarnDivideByZero));
  EXPECT_EQ(Bits(Div<float>(vokiDiv_32f_C1R, 0.0f, NAN).first), 0x7FC00000u);

  EXPECT_EQ(One<Vok16s>(vokiAbs_16s_C1R, -32768), Ok(32767));
  EXPECT_EQ(Bits(One<float>(vokiAbs_32f_C1R, -0.0f).first), 0u);
  EXPECT_EQ(One<Vok8u>(vokiSqr_8u_C1RSfs, 16, 0), Ok(255));
  EXPECT_EQ(One<Vok8u>(vokiSqr_8u_C1RSfs, 15, 0), Ok(225));
  EXPECT_EQ(One<Vok8u>(vokiSqr_8u_C1RSfs, 3, 1), Ok(4));  // 4.5 to even
  EXPECT_EQ(One<Vok16s>(vokiSqr_16s_C1RSfs, -32768, 30), Ok(1));
  EXPECT_EQ(One<Vok16s>(vokiSqr_16s_C1RSfs, -32768, 31), Ok(0));
  EXPECT_EQ(One<Vok16s>(vokiSqr_16s_C1RSfs, 1, -15), Ok(32767));

  const auto sqrt8u = vokiSqrt_8u_C1RSfs;
  for (auto [x, scale, want] : {std::tuple{2, 0, 1}, {3, 0, 2}, {255, 0, 16}, {255, -4, 255},
                                {225, 1, 8}, {9, 1, 2}, {25, 1, 2}, {49, 1, 4}, {81, 1, 4}})
    EXPECT_EQ(One<Vok8u>(sqrt8u, Vok8u(x), scale), Ok(want)) << x << " at " << scale;
  EXPECT_EQ(One<Vok16s>(vokiSqrt_16s_C1RSfs, -1, 0), Result(0, vokWarnSqrtDomain));
  EXPECT_EQ(Bits(One<float>(vokiSqrt_32f_C1R, -0.0f).first), 0x80000000u);
  EXPECT_EQ(One<float>(vokiSqrt_32f_C1R, -0.0f).second, vokStatusOk);
  EXPECT_EQ(One<float>(vokiSqrt_32f_C1R, -4.0f).second, vokWarnSqrtDomain);

  EXPECT_EQ(One<Vok16s>(vokiLn_16s_C1RSfs, 0, 0), Result(-32768, vokWarnSingularity));
  EXPECT_EQ(One<Vok16s>(vokiLn_16s_C1RSfs, -3, 0), Result(-32768, vokWarnDomain));
  EXPECT_EQ(One<Vok8u>(vokiLn_8u_C1RSfs, 0, 0), Result(0, vokWarnSingularity));
  EXPECT_EQ(One<float>(vokiLn_32f_C1R, 0.0f), Result(-INFINITY, vokWarnSingularity));
  const Result lnOfMinusZero = One<float>(vokiLn_32f_C1R, -0.0f);
  EXPECT_EQ(Bits(lnOfMinusZero.first), 0xFFC00000u);
  EXPECT_EQ(lnOfMinusZero.second, vokWarnDomain);

  EXPECT_EQ(One<Vok8u>(vokiExp_8u_C1RSfs, 0, 0), Ok(1));
  EXPECT_EQ(One<Vok8u>(vokiExp_8u_C1RSfs, 5, 0), Ok(148));
  EXPECT_EQ(One<Vok8u>(vokiExp_8u_C1RSfs, 6, 0), Ok(255));
  EXPECT_EQ(One<Vok8u>(vokiExp_8u_C1RSfs, 0, 1), Ok(1));  // the one exact tie goes up
  EXPECT_EQ(One<Vok16s>(vokiExp_16s_C1RSfs, 0, 1), Ok(1));
}

// Integer division rounds ties to even whatever mode the caller has set,
// and gives the caller's mode back.
TEST(ElementaryRule, DivisionIgnoresTheCallersRoundingMode) {
  std::fesetround(FE_UPWARD);
  const Result half8u = Div<Vok8u>(vokiDiv_8u_C1RSfs, 2, 5, 0);
  const Result half16s = Div<Vok16s>(vokiDiv_16s_C1RSfs, 2, -7, 0);
  const Result scaled = Div<Vok16s>(vokiDiv_16s_C1RSfs, 1, 5, 1);
  const int mode = std::fegetround();
  std::fesetround(FE_TONEAREST);
  EXPECT_EQ(half8u, Ok(2));
  EXPECT_EQ(half16s, Ok(-4));
  EXPECT_EQ(scaled, Ok(2));
  EXPECT_EQ(mode, FE_UPWARD);
}

// A warning never stops the image: every sample after it gets its value,
// and the first warning of the image, in row order, is the status.
TEST(ElementaryWarnings, FirstWarningOfTheImageStands) {
  vok_test::ForEachTarget([](const char*) {
    Image<Vok16s> src(37, 3), dst(37, 3);
    for (int y = 0; y < 3; ++y)
      for (int x = 0; x < 37; ++x) src.set(x, y, 0, Vok16s(1 + x + 40 * y));
    src.set(30, 0, 0, -5);  // negative before zero, in the last partial group
    src.set(33, 0, 0, 0);
    src.set(2, 1, 0, 0);
    EXPECT_EQ(vokiLn_16s_C1RSfs(src.data(), src.step(), dst.data(), dst.step(),
                                src.size(), -8),
              vokWarnDomain);
    EXPECT_EQ(dst.at(33, 0), -32768);
    EXPECT_EQ(dst.at(3, 1), std::lround(std::log(44.0) * 256));
    EXPECT_EQ(dst.at(36, 2), std::lround(std::log(117.0) * 256));
    src.set(0, 0, 0, 0);  // now a zero comes first
    EXPECT_EQ(vokiLn_16s_C1IRSfs(src.data(), src.step(), src.size(), 0),
              vokWarnSingularity);
    EXPECT_EQ(src.at(36, 2), std::lround(std::log(117.0)));
    EXPECT_TRUE(src.guardsIntact() && dst.guardsIntact());
  });
}

// DivC of integers multiplies by 2^-s / c formed once in float.
template <typename T>
T DivCModel(T x, T c, int s) {
  const bool is8u = std::is_same_v<T, Vok8u>;
  if (s > (is8u ? 8 : 15)) return 0;
  if (s < (is8u ? -15 : -30)) return vok_test::Saturate<T>(int64_t(x) * c * 100000);
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
      for (T& v : values) do v = Image<T>::RandomSample(rng); while (v == 0);
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

TEST(ElementaryDivC, ZeroConstantsAndFloats) {
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
  Image<Vok16s> d16(5, 2, 3);
  d16.fill(1);
  const Vok16s values16[3] = {3, 0, 4};
  EXPECT_EQ(vokiDivC_16s_C3IRSfs(values16, d16.data(), d16.step(), d16.size(), 0),
            vokStatusDivideByZero);
  EXPECT_EQ(d16.at(4, 1, 2), 1);
  // 32f refuses ±0 and NaN, and otherwise multiplies by 1/c.
  float f3[3] = {5, 5, 5};
  const float zeroAmong[3] = {2.0f, -0.0f, 1.0f}, valid[3] = {3.0f, 7.0f, 0.1f};
  EXPECT_EQ(vokiDivC_32f_C1IR(NAN, f3, 4, kOne), vokStatusDivideByZero);
  EXPECT_EQ(vokiDivC_32f_C3IR(zeroAmong, f3, 12, kOne), vokStatusDivideByZero);
  EXPECT_EQ(f3[0], 5.0f);
  EXPECT_EQ(vokiDivC_32f_C3R(f3, 12, valid, f3, 12, kOne), vokStatusOk);
  volatile float five = 5, ten = 0.1f;
  EXPECT_EQ(f3[2], five * (1.0f / ten));
}

// Image forms: null, then size, then step, then the constant; vector forms
// null, then length, then the constant. Nothing is written on failure.
TEST(ElementaryChecks, OrderOfStatuses) {
  Image<Vok16s> img(4, 2, 4);
  img.fill(3);
  const Image<Vok16s> before = img;
  Vok16s* p = img.data();
  float* f = reinterpret_cast<float*>(p);
  const int s = img.step();
  const VokiSize ok{4, 2}, noWidth{0, 2};
  EXPECT_EQ(vokiAbs_16s_C1R(nullptr, s, p, s, noWidth), vokStatusNullPointer);
  EXPECT_EQ(vokiAbs_16s_C1R(p, 0, p, s, noWidth), vokStatusBadSize);
  EXPECT_EQ(vokiAbs_16s_AC4R(p, 0, p, s, ok), vokStatusBadStep);
  EXPECT_EQ(vokiDiv_16s_C3RSfs(p, s, nullptr, s, p, s, noWidth, 0), vokStatusNullPointer);
  EXPECT_EQ(vokiDiv_32f_AC4IR(f, s, f, s, VokiSize{4, 0}), vokStatusBadSize);
  EXPECT_EQ(vokiDivC_16s_C1RSfs(p, s, 0, p, -1, ok, 0), vokStatusBadStep);
  EXPECT_EQ(vokiDivC_16s_C1RSfs(p, s, 0, p, s, noWidth, 0), vokStatusBadSize);
  EXPECT_EQ(vokiDivC_16s_C3RSfs(p, s, nullptr, p, s, ok, 0), vokStatusNullPointer);
  EXPECT_EQ(vokiDivC_32f_C1IR(0.0f, f, 0, ok), vokStatusBadStep);
  EXPECT_EQ(vokiSqrt_32f_C4IR(nullptr, 0, noWidth), vokStatusNullPointer);
  EXPECT_EQ(vokiLn_32f_C3R(f, s, f, 0, ok), vokStatusBadStep);

  EXPECT_EQ(voksAbs_16s(nullptr, p, 0), vokStatusNullPointer);
  EXPECT_EQ(voksAbs_16s_I(p, 0), vokStatusBadSize);
  EXPECT_EQ(voksSqrt_16s_ISfs(p, -1, 0), vokStatusBadSize);
  EXPECT_EQ(voksDiv_32f(nullptr, f, f, 0), vokStatusNullPointer);
  EXPECT_EQ(voksDivC_16s_Sfs(p, 0, p, 0, 0), vokStatusBadSize);
  EXPECT_EQ(voksDivC_8u_Sfs(nullptr, 0, nullptr, 0, 0), vokStatusNullPointer);
  EXPECT_EQ(voksDivC_16s_Sfs(p, 0, p, 4, 0), vokStatusDivideByZero);
  EXPECT_TRUE(img.sameRegion(before));
  EXPECT_TRUE(img.guardsIntact());
}

}  // namespace
