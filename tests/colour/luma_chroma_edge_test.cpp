// Luma-chroma edge cases: where the two paths meet, fixed points of the
// matrices, the 4:2:2 row ends, clamps, and the order of argument checks.
#include <array>
#include <vector>

#include "vok_test.h"

namespace {

using vok_test::Image;

// An image of `width` x 1 pixels, each holding `pixel`.
Image<Vok8u> Uniform(int width, std::vector<Vok8u> pixel) {
  Image<Vok8u> im(width, 1, static_cast<int>(pixel.size()));
  for (int x = 0; x < width; ++x)
    for (size_t c = 0; c < pixel.size(); ++c) im.set(x, 0, int(c), pixel[c]);
  return im;
}

std::array<int, 3> Pixel(const Image<Vok8u>& im, int x) {
  return {im.at(x, 0, 0), im.at(x, 0, 1), im.at(x, 0, 2)};
}

TEST(LumaChromaEdges, RGBToYCbCrSwitchesToTheExactFormAtTheLastColumn) {
  vok_test::ForEachTarget([](const char*) {
    int differing = 0;
    for (int v = 0; v < 256; v += 5) {
      const Image<Vok8u> src = Uniform(9, {Vok8u(v), Vok8u(255 - v), Vok8u(v / 2)});
      Image<Vok8u> dst(9, 1, 3);
      ASSERT_EQ(vokiRGBToYCbCr_8u_C3R(src.data(), src.step(), dst.data(), dst.step(), {9, 1}), vokStatusOk);
      for (int x = 1; x < 8; ++x) EXPECT_EQ(Pixel(dst, x), Pixel(dst, 0));
      differing += Pixel(dst, 8) != Pixel(dst, 0);
    }
    EXPECT_GT(differing, 0);
    const Image<Vok8u> black = Uniform(9, {0, 0, 0});
    Image<Vok8u> dst(9, 1, 3);
    vokiRGBToYCbCr_8u_C3R(black.data(), black.step(), dst.data(), dst.step(), {9, 1});
    for (int x : {0, 8}) EXPECT_EQ(Pixel(dst, x), (std::array<int, 3>{16, 128, 128}));
  });
}

TEST(LumaChromaEdges, YCbCrBlackAndWhiteOnBothPaths) {
  vok_test::ForEachTarget([](const char*) {
    for (int luma : {16, 235}) {
      SCOPED_TRACE(luma);
      const int want = luma == 16 ? 0 : 254;
      const Image<Vok8u> c3 = Uniform(9, {Vok8u(luma), 128, 128});
      const Image<Vok8u> ac4 = Uniform(9, {Vok8u(luma), 128, 128, 7});
      Image<Vok8u> out3(9, 1, 3), out4(9, 1, 4), planes[3] = {Image<Vok8u>(9, 1), Image<Vok8u>(9, 1), Image<Vok8u>(9, 1)};
      Image<Vok8u> inPlanes[3] = {Uniform(9, {Vok8u(luma)}), Uniform(9, {128}), Uniform(9, {128})};
      const Vok8u* in[3] = {inPlanes[0].data(), inPlanes[1].data(), inPlanes[2].data()};
      Vok8u* out[3] = {planes[0].data(), planes[1].data(), planes[2].data()};
      ASSERT_EQ(vokiYCbCrToRGB_8u_C3R(c3.data(), c3.step(), out3.data(), out3.step(), {9, 1}), vokStatusOk);
      ASSERT_EQ(vokiYCbCrToRGB_8u_AC4R(ac4.data(), ac4.step(), out4.data(), out4.step(), {9, 1}), vokStatusOk);
      ASSERT_EQ(vokiYCbCrToRGB_8u_P3R(in, inPlanes[0].step(), out, planes[0].step(), {9, 1}), vokStatusOk);
      for (int x : {0, 8}) {
        EXPECT_EQ(Pixel(out3, x), (std::array<int, 3>{want, want, want}));
        EXPECT_EQ(Pixel(out4, x), (std::array<int, 3>{want, want, want}));
        for (auto& plane : planes) EXPECT_EQ(plane.at(x, 0), want);
      }
      // From planes to interleaved the block path rounds, the tail doesn't.
      ASSERT_EQ(vokiYCbCrToRGB_8u_P3C3R(in, inPlanes[0].step(), out3.data(), out3.step(), {9, 1}), vokStatusOk);
      EXPECT_EQ(out3.at(0, 0), luma == 16 ? 0 : 255);
      EXPECT_EQ(out3.at(8, 0), want);
    }
  });
}

TEST(LumaChromaEdges, CbYCr422FirstPairLosesAQuarterOfTheChroma) {
  const Image<Vok8u> grey = Uniform(8, {90, 90, 90});
  Image<Vok8u> dst(8, 1, 2);
  ASSERT_EQ(vokiRGBToCbYCr422_8u_C3C2R(grey.data(), grey.step(), dst.data(), dst.step(), {8, 1}), vokStatusOk);
  for (int pair = 0; pair < 4; ++pair) {
    EXPECT_EQ(dst.row(0)[4 * pair], 128);
    EXPECT_EQ(dst.row(0)[4 * pair + 2], 128);
  }
  const Image<Vok8u> red = Uniform(8, {255, 0, 0});
  ASSERT_EQ(vokiRGBToCbYCr422_8u_C3C2R(red.data(), red.step(), dst.data(), dst.step(), {8, 1}), vokStatusOk);
  for (int pair = 1; pair < 4; ++pair) EXPECT_LT(dst.row(0)[2], dst.row(0)[4 * pair + 2]);
}

TEST(LumaChromaEdges, CbYCr422AtWidthOne) {
  // RGB to CbYCr writes two bytes, Cb and Y, and nothing around them.
  const Image<Vok8u> src = Uniform(1, {10, 200, 30});
  Image<Vok8u> dst(1, 1, 2);
  ASSERT_EQ(vokiRGBToCbYCr422_8u_C3C2R(src.data(), src.step(), dst.data(), dst.step(), {1, 1}), vokStatusOk);
  EXPECT_TRUE(dst.guardsIntact());
  // Back again the lone pixel's Cb stands in for Cr: Cb = Cr = 200 is the
  // pixel that (100, 200) must give.
  const Image<Vok8u> lone = Uniform(1, {200, 100});
  const Image<Vok8u> pair = Uniform(2, {200, 100});  // Cb 200, Y 100, Cr 200, Y 100
  Image<Vok8u> fromLone(1, 1, 3), fromPair(2, 1, 3);
  ASSERT_EQ(vokiCbYCr422ToRGB_8u_C2C3R(lone.data(), lone.step(), fromLone.data(), fromLone.step(), {1, 1}), vokStatusOk);
  ASSERT_EQ(vokiCbYCr422ToRGB_8u_C2C3R(pair.data(), pair.step(), fromPair.data(), fromPair.step(), {2, 1}), vokStatusOk);
  EXPECT_EQ(Pixel(fromLone, 0), Pixel(fromPair, 0));
  EXPECT_TRUE(fromLone.guardsIntact());
}

TEST(LumaChromaEdges, PhotoYCCClampsOnlyOnTheWayBack) {
  const float rgb[3] = {2.0f, 0.0f, 0.0f};  // beyond 0..1
  float ycc[3], back[3];
  ASSERT_EQ(vokiRGBToYCC_32f_C3R(rgb, 12, ycc, 12, {1, 1}), vokStatusOk);
  const float outside[3] = {1.0f, 1.3f, 1.3f};  // far beyond what RGB reaches
  ASSERT_EQ(vokiYCCToRGB_32f_C3R(outside, 12, back, 12, {1, 1}), vokStatusOk);
  EXPECT_EQ(back[0], 1.0f);
  EXPECT_EQ(back[2], 1.0f);
  const float below[3] = {0.0f, 0.0f, 0.0f};
  ASSERT_EQ(vokiYCCToRGB_32f_C3R(below, 12, back, 12, {1, 1}), vokStatusOk);
  EXPECT_EQ(back[0], 0.0f);
  EXPECT_GT(ycc[2], 1.0f);
}

TEST(LumaChromaEdges, PhotoYCC16sBlockAndTailAtTheLowestSample) {
  vok_test::ForEachTarget([](const char*) {
    std::vector<Vok16s> src(15, -32768), dst(15, 0);
    ASSERT_EQ(vokiRGBToYCC_16s_C3R(src.data(), 30, dst.data(), 30, {5, 1}), vokStatusOk);
    for (int x = 0; x < 4; ++x) {
      EXPECT_EQ(dst[3 * x + 1], 40092 - 32768);
      EXPECT_EQ(dst[3 * x + 2], 35209 - 32768);
    }
    EXPECT_EQ(dst[13], 40092 - 32768 - 1);
    EXPECT_EQ(dst[14], 35209 - 32768 - 1);
  });
}

// ---- Argument checks -------------------------------------------------------

TEST(LumaChromaChecks, InterleavedFormsTestPointersThenSizeThenSteps) {
  Image<Vok8u> src(4, 2, 3), dst(4, 2, 3);
  const Image<Vok8u> before = dst;
  EXPECT_EQ(vokiRGBToYCbCr_8u_C3R(nullptr, 0, dst.data(), 0, {0, 1}), vokStatusNullPointer);
  EXPECT_EQ(vokiRGBToYCbCr_8u_C3R(src.data(), 0, dst.data(), 12, {4, 0}), vokStatusBadSize);
  EXPECT_EQ(vokiRGBToYCbCr_8u_C3R(src.data(), 12, dst.data(), 0, {4, 2}), vokStatusBadStep);
  EXPECT_EQ(vokiRGBToYCC_32f_AC4R(nullptr, 16, nullptr, 16, {1, 1}), vokStatusNullPointer);
  EXPECT_EQ(vokiCbYCr422ToRGB_8u_C2C3R(src.data(), -1, dst.data(), 12, {4, 2}), vokStatusBadStep);
  EXPECT_TRUE(dst.sameRegion(before));
}

TEST(LumaChromaChecks, PlanarFormsTestTheArraysThenSizeThenPlanesThenSteps) {
  Image<Vok8u> plane(4, 2), dst(4, 2, 3);
  const Image<Vok8u> before = dst;
  const Vok8u* good[3] = {plane.data(), plane.data(), plane.data()};
  const Vok8u* holed[3] = {plane.data(), nullptr, plane.data()};
  Vok8u* out[3] = {plane.data(), plane.data(), plane.data()};
  EXPECT_EQ(vokiYCbCrToRGB_8u_P3C3R(nullptr, 4, dst.data(), 12, {0, 2}), vokStatusNullPointer);
  EXPECT_EQ(vokiYCbCrToRGB_8u_P3C3R(holed, 4, dst.data(), 12, {0, 2}), vokStatusBadSize);
  EXPECT_EQ(vokiYCbCrToRGB_8u_P3C3R(holed, 0, dst.data(), 12, {4, 2}), vokStatusNullPointer);
  EXPECT_EQ(vokiYCbCrToRGB_8u_P3C3R(good, 0, dst.data(), 12, {4, 2}), vokStatusBadStep);
  EXPECT_EQ(vokiRGBToYUV_8u_C3P3R(dst.data(), 12, nullptr, 4, {4, 2}), vokStatusNullPointer);
  Vok8u* holedOut[3] = {plane.data(), plane.data(), nullptr};
  EXPECT_EQ(vokiRGBToYUV_8u_C3P3R(dst.data(), 12, holedOut, 4, {4, -1}), vokStatusBadSize);
  EXPECT_EQ(vokiRGBToYUV_8u_P3R(good, 4, holedOut, 4, {4, 2}), vokStatusNullPointer);
  EXPECT_EQ(vokiYUVToRGB_8u_P3R(good, 4, out, 0, {4, 2}), vokStatusBadStep);
  EXPECT_TRUE(dst.sameRegion(before));
}

TEST(LumaChromaChecks, TwoFourTwoTwoFormsHaveNoStepTest) {
  Image<Vok8u> bgra(4, 1, 4), pairs(4, 1, 2), out(4, 1, 4);
  EXPECT_EQ(vokiBGRToCbYCr422_8u_AC4C2R(bgra.data(), 0, pairs.data(), 0, {4, 1}), vokStatusOk);
  EXPECT_EQ(vokiCbYCr422ToBGR_8u_C2C4R(pairs.data(), 0, out.data(), -5, {4, 1}, 255), vokStatusOk);
  EXPECT_EQ(out.at(3, 0, 3), 255);
  EXPECT_EQ(vokiCbYCr422ToBGR_8u_C2C4R(nullptr, 0, out.data(), 0, {0, 1}, 255), vokStatusNullPointer);
  EXPECT_EQ(vokiBGRToCbYCr422_8u_AC4C2R(bgra.data(), 0, pairs.data(), 0, {0, 1}), vokStatusBadSize);
}

}  // namespace
