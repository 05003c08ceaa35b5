// Luma-chroma values worked out by hand, independent of the models: fixed
// points of the matrices on both paths, the 4:2:2 row ends, clamps, and the
// order of argument checks.
#include <array>
#include <tuple>
#include <vector>

#include "vok_test.h"

namespace {

using vok_test::Image;
using Px = std::array<int, 3>;

// An image of `width` x 1 pixels, each holding `pixel`.
Image<Vok8u> Uniform(int width, std::vector<Vok8u> pixel) {
  Image<Vok8u> im(width, 1, static_cast<int>(pixel.size()));
  for (int x = 0; x < width; ++x)
    for (size_t c = 0; c < pixel.size(); ++c) im.set(x, 0, int(c), pixel[c]);
  return im;
}

Px Pixel(const Image<Vok8u>& im, int x) { return {im.at(x, 0, 0), im.at(x, 0, 1), im.at(x, 0, 2)}; }

using Fn8 = VokStatus (*)(const Vok8u*, int, Vok8u*, int, VokiSize);

// Column 0 lies on the block path and column 8 on the tail of a 9-pixel row.
TEST(LumaChromaEdges, FixedPointsOnBothPaths) {
  struct Case {
    Fn8 fn;
    std::vector<Vok8u> in;
    Px want;
  };
  const Case cases[] = {
      {vokiRGBToYCbCr_8u_C3R, {0, 0, 0}, {16, 128, 128}},
      {vokiYCbCrToRGB_8u_C3R, {16, 128, 128}, {0, 0, 0}},
      {vokiYCbCrToRGB_8u_C3R, {235, 128, 128}, {254, 254, 254}},
      {vokiYCbCrToRGB_8u_AC4R, {235, 128, 128, 7}, {254, 254, 254}},
  };
  vok_test::ForEachTarget([&](const char*) {
    for (const Case& c : cases) {
      const Image<Vok8u> src = Uniform(9, c.in);
      Image<Vok8u> dst(9, 1, src.channels());
      ASSERT_EQ(c.fn(src.data(), src.step(), dst.data(), dst.step(), {9, 1}), vokStatusOk);
      EXPECT_EQ(Pixel(dst, 0), c.want) << int(c.in[0]);
      EXPECT_EQ(Pixel(dst, 8), c.want) << int(c.in[0]);
    }
    // From planes white is 255 on the block path of the interleaved form,
    // 254 on its tail and on every column of the planar form.
    const Image<Vok8u> luma = Uniform(9, {235}), chroma = Uniform(9, {128});
    const Vok8u* in[3] = {luma.data(), chroma.data(), chroma.data()};
    Image<Vok8u> rgb(9, 1, 3), planes[3] = {Image<Vok8u>(9, 1), Image<Vok8u>(9, 1), Image<Vok8u>(9, 1)};
    Vok8u* out[3] = {planes[0].data(), planes[1].data(), planes[2].data()};
    ASSERT_EQ(vokiYCbCrToRGB_8u_P3C3R(in, luma.step(), rgb.data(), rgb.step(), {9, 1}), vokStatusOk);
    ASSERT_EQ(vokiYCbCrToRGB_8u_P3R(in, luma.step(), out, planes[0].step(), {9, 1}), vokStatusOk);
    EXPECT_EQ(std::tuple(rgb.at(0, 0), rgb.at(8, 0)), std::tuple(255, 254));
    for (auto& plane : planes) EXPECT_EQ(std::tuple(plane.at(0, 0), plane.at(8, 0)), std::tuple(254, 254));
  });
}

// The first pair has no left neighbour and keeps three quarters of the
// chroma: grey stays 128, red's Cr stays nearer to 128 than on later pairs.
TEST(LumaChromaEdges, CbYCr422FirstPairLosesAQuarterOfTheChroma) {
  Image<Vok8u> grey(8, 1, 2), red(8, 1, 2);
  ASSERT_EQ(vokiRGBToCbYCr422_8u_C3C2R(Uniform(8, {90, 90, 90}).data(), 24, grey.data(), 16, {8, 1}), vokStatusOk);
  ASSERT_EQ(vokiRGBToCbYCr422_8u_C3C2R(Uniform(8, {255, 0, 0}).data(), 24, red.data(), 16, {8, 1}), vokStatusOk);
  for (int pair = 0; pair < 4; ++pair)
    EXPECT_EQ(std::tuple(grey.row(0)[4 * pair], grey.row(0)[4 * pair + 2]), std::tuple(128, 128));
  for (int pair = 1; pair < 4; ++pair) EXPECT_LT(red.row(0)[2], red.row(0)[4 * pair + 2]);
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
  const float red[3] = {2.0f, 0.0f, 0.0f}, outside[3] = {1.0f, 1.3f, 1.3f}, black[3] = {};
  float ycc[3], high[3], low[3];
  ASSERT_EQ(vokiRGBToYCC_32f_C3R(red, 12, ycc, 12, {1, 1}), vokStatusOk);
  ASSERT_EQ(vokiYCCToRGB_32f_C3R(outside, 12, high, 12, {1, 1}), vokStatusOk);
  ASSERT_EQ(vokiYCCToRGB_32f_C3R(black, 12, low, 12, {1, 1}), vokStatusOk);
  EXPECT_GT(ycc[2], 1.0f);
  EXPECT_EQ(std::tuple(high[0], high[2], low[0]), std::tuple(1.0f, 1.0f, 0.0f));
}

// The tail's bias of -0.499999 takes one off a chroma that the block path
// keeps whole.
TEST(LumaChromaEdges, PhotoYCC16sBlockAndTailAtTheLowestSample) {
  vok_test::ForEachTarget([](const char*) {
    std::vector<Vok16s> src(15, -32768), dst(15, 0);
    ASSERT_EQ(vokiRGBToYCC_16s_C3R(src.data(), 30, dst.data(), 30, {5, 1}), vokStatusOk);
    for (int x = 0; x < 5; ++x) {
      EXPECT_EQ(dst[3 * x + 1], 40092 - 32768 - (x == 4)) << x;
      EXPECT_EQ(dst[3 * x + 2], 35209 - 32768 - (x == 4)) << x;
    }
  });
}

// Interleaved forms: pointers, size, steps. Planar forms: the arrays, size,
// the planes, steps. The 4:2:2 forms with four channels have no step test.
TEST(LumaChromaChecks, OrderOfChecksAndNothingWritten) {
  Image<Vok8u> src(4, 2, 3), dst(4, 2, 3), plane(4, 2), bgra(4, 1, 4), pairs(4, 1, 2);
  const Image<Vok8u> before = dst;
  const Vok8u* good[3] = {plane.data(), plane.data(), plane.data()};
  const Vok8u* holed[3] = {plane.data(), nullptr, plane.data()};
  Vok8u* out[3] = {plane.data(), plane.data(), plane.data()};
  Vok8u* holedOut[3] = {plane.data(), plane.data(), nullptr};
  vok_test::ExpectStatuses({
      {vokiRGBToYCbCr_8u_C3R(nullptr, 0, dst.data(), 0, {0, 1}), vokStatusNullPointer},
      {vokiRGBToYCbCr_8u_C3R(src.data(), 0, dst.data(), 12, {4, 0}), vokStatusBadSize},
      {vokiRGBToYCbCr_8u_C3R(src.data(), 12, dst.data(), 0, {4, 2}), vokStatusBadStep},
      {vokiRGBToYCC_32f_AC4R(nullptr, 16, nullptr, 16, {1, 1}), vokStatusNullPointer},
      {vokiCbYCr422ToRGB_8u_C2C3R(src.data(), -1, dst.data(), 12, {4, 2}), vokStatusBadStep},
      {vokiYCbCrToRGB_8u_P3C3R(nullptr, 4, dst.data(), 12, {0, 2}), vokStatusNullPointer},
      {vokiYCbCrToRGB_8u_P3C3R(holed, 4, dst.data(), 12, {0, 2}), vokStatusBadSize},
      {vokiYCbCrToRGB_8u_P3C3R(holed, 0, dst.data(), 12, {4, 2}), vokStatusNullPointer},
      {vokiYCbCrToRGB_8u_P3C3R(good, 0, dst.data(), 12, {4, 2}), vokStatusBadStep},
      {vokiRGBToYUV_8u_C3P3R(dst.data(), 12, nullptr, 4, {4, 2}), vokStatusNullPointer},
      {vokiRGBToYUV_8u_C3P3R(dst.data(), 12, holedOut, 4, {4, -1}), vokStatusBadSize},
      {vokiRGBToYUV_8u_P3R(good, 4, holedOut, 4, {4, 2}), vokStatusNullPointer},
      {vokiYUVToRGB_8u_P3R(good, 4, out, 0, {4, 2}), vokStatusBadStep},
      {vokiCbYCr422ToBGR_8u_C2C4R(nullptr, 0, bgra.data(), 0, {0, 1}, 255), vokStatusNullPointer},
      {vokiBGRToCbYCr422_8u_AC4C2R(bgra.data(), 0, pairs.data(), 0, {0, 1}), vokStatusBadSize},
      {vokiBGRToCbYCr422_8u_AC4C2R(bgra.data(), 0, pairs.data(), 0, {4, 1}), vokStatusOk},
      {vokiCbYCr422ToBGR_8u_C2C4R(pairs.data(), 0, bgra.data(), -5, {4, 1}, 255), vokStatusOk},
  });
  EXPECT_TRUE(dst.sameRegion(before));
  EXPECT_EQ(bgra.at(3, 0, 3), 255);
}

}  // namespace
