// Worked values of the scale-factor rule, its limits and shortcuts, AC4
// alpha, floats, and the order of argument checks.
#include <cmath>

#include "vok_test.h"

namespace {

using vok_test::Image;

constexpr VokiSize kOne{1, 1};

Vok8u Add8u(Vok8u a, Vok8u b, int scale) {
  Vok8u d = 77;
  EXPECT_EQ(vokiAdd_8u_C1RSfs(&a, 1, &b, 1, &d, 1, kOne, scale), vokStatusOk);
  return d;
}

TEST(ArithRule, AddRoundsTiesToEvenAndSaturates) {
  EXPECT_EQ(Add8u(1, 2, 1), 2);
  EXPECT_EQ(Add8u(2, 3, 1), 2);
  EXPECT_EQ(Add8u(255, 255, 1), 255);
  EXPECT_EQ(Add8u(255, 255, 9), 1);
  EXPECT_EQ(Add8u(255, 255, 10), 0);
  EXPECT_EQ(Add8u(0, 0, -8), 0);
  EXPECT_EQ(Add8u(0, 1, -8), 255);
  EXPECT_EQ(Add8u(0, 1, -7), 128);
  EXPECT_EQ(Add8u(3, 3, 2), 2);   // 6/4 = 1.5 goes to 2
  EXPECT_EQ(Add8u(5, 5, 2), 2);   // 10/4 = 2.5 goes to 2
}

TEST(ArithRule, SubTakesTheSecondSourceAsMinuend) {
  Vok8u a = 10, b = 3, d = 0;
  EXPECT_EQ(vokiSub_8u_C1RSfs(&a, 1, &b, 1, &d, 1, kOne, 0), vokStatusOk);
  EXPECT_EQ(d, 0);
  a = 3, b = 10;
  EXPECT_EQ(vokiSub_8u_C1RSfs(&a, 1, &b, 1, &d, 1, kOne, 0), vokStatusOk);
  EXPECT_EQ(d, 7);
  Vok16s s1 = 3, s2 = 0, d16 = 0;  // -1.5 goes to the even -2
  EXPECT_EQ(vokiSub_16s_C1RSfs(&s1, 2, &s2, 2, &d16, 2, kOne, 1), vokStatusOk);
  EXPECT_EQ(d16, -2);
  Vok8u c = 200;  // in place: srcDst - src
  Vok8u srcDst = 250;
  EXPECT_EQ(vokiSub_8u_C1IRSfs(&c, 1, &srcDst, 1, kOne, 0), vokStatusOk);
  EXPECT_EQ(srcDst, 50);
}

TEST(ArithRule, Mul16sAtTheExtremes) {
  const Vok16s a = -32768;
  Vok16s d = 0;
  for (auto [scale, want] : {std::pair{0, 32767}, {30, 1}, {31, 0}, {29, 2}}) {
    EXPECT_EQ(vokiMul_16s_C1RSfs(&a, 2, &a, 2, &d, 2, kOne, scale), vokStatusOk);
    EXPECT_EQ(d, want) << "scale " << scale;
  }
  const Vok16s b = 32767;  // -32768 * 32767 at the lowest shifts
  EXPECT_EQ(vokiMul_16s_C1RSfs(&a, 2, &b, 2, &d, 2, kOne, -15), vokStatusOk);
  EXPECT_EQ(d, -32768);
}

TEST(ArithRule, ConstantShortcutsAgreeWithTheRule) {
  Image<Vok8u> src(5, 2), dst(5, 2);
  src.fill(9);
  dst.fill(1);
  EXPECT_EQ(vokiMulC_8u_C1RSfs(src.data(), src.step(), 0, dst.data(), dst.step(),
                               src.size(), -20), vokStatusOk);
  EXPECT_EQ(dst.at(4, 1), 0);
  EXPECT_EQ(vokiAddC_8u_C1RSfs(src.data(), src.step(), 0, dst.data(), dst.step(),
                               src.size(), 0), vokStatusOk);
  EXPECT_EQ(dst.at(4, 1), 9);
  EXPECT_EQ(vokiSubC_8u_C1RSfs(src.data(), src.step(), 0, dst.data(), dst.step(),
                               src.size(), -8), vokStatusOk);
  EXPECT_EQ(dst.at(0, 0), 255);
  EXPECT_TRUE(dst.guardsIntact());
}

TEST(ArithRule, FullScaleMultiplyTruncates) {
  const Vok8u a[] = {255, 254, 1, 128}, b[] = {255, 255, 254, 128};
  Vok8u d[4];
  EXPECT_EQ(vokiMulScale_8u_C1R(a, 4, b, 4, d, 4, VokiSize{4, 1}), vokStatusOk);
  EXPECT_EQ(d[0], 255);
  EXPECT_EQ(d[1], 254);
  EXPECT_EQ(d[2], 0);
  EXPECT_EQ(d[3], 64);
  const Vok16u w = 65535, x = 1234;
  Vok16u y = 0;
  EXPECT_EQ(vokiMulCScale_16u_C1R(&x, 2, w, &y, 2, kOne), vokStatusOk);
  EXPECT_EQ(y, 1234);
}

TEST(ArithRule, AlphaSurvivesZeroingAndSaturation) {
  Image<Vok8u> img(7, 3, 4);
  std::mt19937 rng(5);
  img.randomize(rng);
  const Image<Vok8u> before = img;
  const Vok8u value[3] = {1, 2, 3};
  for (int scale : {10, -9, 0}) {
    EXPECT_EQ(vokiAddC_8u_AC4IRSfs(value, img.data(), img.step(), img.size(), scale),
              vokStatusOk);
    for (int y = 0; y < 3; ++y)
      for (int x = 0; x < 7; ++x) EXPECT_EQ(img.at(x, y, 3), before.at(x, y, 3));
  }
  EXPECT_TRUE(img.guardsIntact());
}

TEST(ArithFloat, FollowsIeee) {
  const float inf = INFINITY;
  const float a = inf, b = -inf;
  float d = 0;
  EXPECT_EQ(vokiAdd_32f_C1R(&a, 4, &b, 4, &d, 4, kOne), vokStatusOk);
  EXPECT_TRUE(std::isnan(d));
  // Alpha keeps its exact bits, -0 and NaN included.
  Image<float> img(3, 1, 4);
  img.fill(-0.0f);
  img.set(1, 0, 3, NAN);
  const Image<float> before = img;
  const float value[3] = {0, 0, 0};
  EXPECT_EQ(vokiAddC_32f_AC4IR(value, img.data(), img.step(), img.size()), vokStatusOk);
  for (int x = 0; x < 3; ++x)
    EXPECT_EQ(std::memcmp(img.row(0) + 4 * x + 3, before.row(0) + 4 * x + 3, 4), 0);
}

// Each family checks in its own order, and nothing is written on failure.
TEST(ArithChecks, OrderOfStatuses) {
  Image<Vok8u> img(4, 2, 4);
  img.fill(3);
  const Image<Vok8u> before = img;
  Vok8u* p = img.data();
  const int s = img.step();
  const VokiSize ok{4, 2}, noWidth{0, 2}, noHeight{4, 0};

  // C3/C4 two-image forms test the width before the pointers.
  EXPECT_EQ(vokiAdd_8u_C3RSfs(nullptr, s, p, s, p, s, noWidth, 0), vokStatusBadSize);
  EXPECT_EQ(vokiAdd_8u_C4IRSfs(nullptr, s, p, s, noWidth, 0), vokStatusBadSize);
  // ... the width alone: a zero height is left to the C1 checks.
  EXPECT_EQ(vokiAdd_8u_C3RSfs(nullptr, s, p, s, p, s, noHeight, 0), vokStatusNullPointer);
  // The full-scale multiply tests width and height first.
  EXPECT_EQ(vokiMulScale_8u_C3R(nullptr, s, p, s, p, s, noHeight), vokStatusBadSize);
  // C1 and AC4: null, then size, then step.
  EXPECT_EQ(vokiAdd_8u_C1RSfs(nullptr, s, p, s, p, s, noWidth, 0), vokStatusNullPointer);
  EXPECT_EQ(vokiAdd_8u_AC4RSfs(p, 0, p, s, p, s, noWidth, 0), vokStatusBadSize);
  EXPECT_EQ(vokiAdd_8u_AC4RSfs(p, 0, p, s, p, s, ok, 0), vokStatusBadStep);
  EXPECT_EQ(vokiAddC_16s_C3RSfs(reinterpret_cast<Vok16s*>(p), s, nullptr,
                                reinterpret_cast<Vok16s*>(p), s, ok, 0),
            vokStatusNullPointer);
  EXPECT_EQ(vokiMulC_32f_C1IR(1.0f, reinterpret_cast<float*>(p), -4, ok), vokStatusBadStep);
  // The full-scale multiplies: null, then step, then size.
  EXPECT_EQ(vokiMulScale_8u_C1R(p, 0, p, s, p, s, noWidth), vokStatusBadStep);
  EXPECT_EQ(vokiMulCScale_8u_AC4IR(nullptr, p, 0, noWidth), vokStatusNullPointer);
  EXPECT_EQ(vokiMulCScale_8u_C1IR(2, p, 0, noWidth), vokStatusBadStep);
  EXPECT_EQ(vokiMulCScale_16u_C1IR(2, reinterpret_cast<Vok16u*>(p), s, noWidth),
            vokStatusBadSize);
  EXPECT_TRUE(img.sameRegion(before));
  EXPECT_TRUE(img.guardsIntact());
}

}  // namespace
