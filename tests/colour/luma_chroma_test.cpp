// Luma-chroma conversions against a plain per-pixel model that knows where
// each form's block path ends, on every instruction set, with guard bytes,
// kept alpha and odd steps.
#include <omp.h>

#include <array>
#include <cmath>
#include <functional>

#include "vok_test.h"

namespace {

using vok_test::Image;
using Px = std::array<int, 3>;

// floor(a * c / 65536), the high half of a product.
int H(int64_t a, int64_t c) { return static_cast<int>((a * c) >> 16); }
int Sat8(int v) { return v < 0 ? 0 : v > 255 ? 255 : v; }

// ---- Models of the 8-bit forms: pixel, column, row width ----------------

Px YCbCrExact(Px p) {
  const int r = p[0], g = p[1], b = p[2];
  return {(16843 * r + 33030 * g + 6423 * b + 0x108000) >> 16,
          (-9699 * r - 19071 * g + 28770 * b + 0x808000) >> 16,
          (28770 * r - 24117 * g - 4653 * b + 0x808000) >> 16};
}

Px RGBToYCbCrC3(Px p, int x, int w) {
  if (x >= w / 8 * 8) return YCbCrExact(p);
  const int r = p[0], g = p[1], b = p[2];
  const auto part = [&](int cr, int cg, int cb, int offset) {
    return Sat8(((((cr * r + cg * g) >> 11) + ((cb * b) >> 11)) >> 4) + offset);
  };
  return {part(8421, 16515, 3211, 16), part(-4850, -9535, 14385, 128),
          part(14385, -12059, -2327, 128)};
}

Px RGBToYCbCrAC4(Px p, int, int) { return YCbCrExact(p); }

Px RGBToYCbCrP3(Px p, int x, int w) {
  if (x >= w / 16 * 16) return YCbCrExact(p);
  const int r = p[0], g = p[1], b = p[2];
  const int y = ((H(r << 8, 16843) + H(g << 8, 33030) + H(b << 8, 6423)) >> 8) + 16;
  const auto chroma = [&](int cr, int cg, int cb) {
    return Sat8(((H(r << 7, cr) + H(g << 7, cg) + H(b << 7, cb)) >> 7) + 128);
  };
  return {y, chroma(-9699, -19071, 28770), chroma(28770, -24117, -4653)};
}

struct Set {
  int k0, kR, kGb, kGr, kB, bias;
};
Px ExactRGB(Px p, Set s) {
  const int y = p[0] * s.k0 - 16 * s.k0 + s.bias, cb = p[1] - 128, cr = p[2] - 128;
  return {Sat8((y + s.kR * cr) >> 16), Sat8((y - s.kGb * cb - s.kGr * cr) >> 16),
          Sat8((y + s.kB * cb) >> 16)};
}
constexpr Set kSetA{76284, 104595, 25690, 53281, 132186, 0};
constexpr Set kSetB{76282, 104593, 25689, 53279, 132184, 0};

Px Q4RGB(Px p, int m0, int mG, int e) {
  const int yq = H((p[0] - 16) << 7, m0);
  const int cb = (p[1] - 128) * 128, cr = (p[2] - 128) * 128;
  return {Sat8((yq + H(cr, 13074) + e) >> 4),
          Sat8((yq + H(cr, -6660) + H(cb, mG) + e) >> 4),
          Sat8((yq + H(cb, 16523) + e) >> 4)};
}

Px YCbCrToRGBC3(Px p, int x, int w) {
  return x < w / 8 * 8 + (w & 4) ? Q4RGB(p, 9536, -3203, 0) : ExactRGB(p, kSetA);
}
Px YCbCrToRGBAC4(Px p, int, int) { return ExactRGB(p, kSetA); }
Px YCbCrToRGBP3C3(Px p, int x, int w) {
  return x < w / 8 * 8 ? Q4RGB(p, 9535, -3211, 8) : ExactRGB(p, kSetB);
}
Px CbYCr422ToRGB(Px p, int x, int w) {
  Set rounded = kSetB;
  rounded.bias = 32768;
  return x < w / 8 * 8 ? Q4RGB(p, 9535, -3211, 8) : ExactRGB(p, rounded);
}

Px YUVB1(Px p) {
  const int r = p[0], g = p[1], b = p[2];
  const int y = (H(r << 8, 19595) + H(g << 8, 38469) + H(b << 8, 7471)) >> 8;
  const auto chroma = [&](int cr, int cg, int cb) {
    return Sat8(((H(r << 7, cr) + H(g << 7, cg) + H(b << 7, cb)) >> 6) + 128);
  };
  return {y, chroma(-4816, -9469, 14286), chroma(20152, -16875, -3276)};
}
Px YUVDifference(Px p) {
  const int r = p[0], g = p[1], b = p[2];
  const int y2 = ((2 * r * 9798 + 2 * g * 19235) >> 15) + ((2 * b * 3736) >> 15);
  return {Sat8(y2 >> 1), Sat8(H(2 * b - y2, 16121) + 128),
          Sat8(H(2 * r - y2, 28737) + 128)};
}
Px RGBToYUVC3(Px p, int x, int w) {
  return x < w / 16 * 16 ? YUVB1(p) : YUVDifference(p);
}
Px RGBToYUVAC4(Px p, int x, int w) {
  if (x >= w / 8 * 8) return YUVDifference(p);
  const int r = p[0], g = p[1], b = p[2];
  return {Sat8(((9798 * r + 19235 * g) >> 15) + ((3736 * b) >> 15)),
          Sat8(((-4817 * r - 9470 * g) >> 15) + ((14287 * b) >> 15) + 128),
          Sat8(((20152 * r - 16876 * g) >> 15) + ((-3277 * b) >> 15) + 128)};
}
Px RGBToYUVP3(Px p, int x, int w) {
  if (x < w / 16 * 16) return YUVB1(p);
  const int r = p[0], g = p[1], b = p[2];
  return {(19595 * r + 38469 * g + 7471 * b) >> 16,
          Sat8(((14286 * b - 4816 * r - 9469 * g) >> 15) + 128),
          Sat8(((20152 * r - 16875 * g - 3276 * b) >> 15) + 128)};
}
Px RGBToYUVC3P3(Px p, int x, int w) {
  if (x < w / 8 * 8) return YUVB1(p);
  const int r = p[0], g = p[1], b = p[2];
  const int l = 19595 * r + 38470 * g + 7471 * b;
  return {l >> 16, ((((b << 16) - l + 32767) >> 16) * 32244 >> 16) + 128,
          Sat8(((((r << 16) - l + 32767) >> 16) * 57475 >> 16) + 128)};
}

Px YUVToRGBC3(Px p, int, int) {
  const int y = p[0], u = (p[1] - 128) * 8, v = (p[2] - 128) * 8;
  return {Sat8(y + H(v, 9339)), Sat8(y + H(v, -4760) + H(u, -3228)),
          Sat8(y + H(u, 16646))};
}
Px YUVToRGBP3C3(Px p, int, int) {
  const int y = p[0] * 2, u = (p[1] - 128) * 16, v = (p[2] - 128) * 16;
  return {Sat8((y + H(v, 9339)) >> 1), Sat8((y + H(v, -4760) + H(u, -3228)) >> 1),
          Sat8((y + H(u, 16646)) >> 1)};
}
Px YUVToRGBP3(Px p, int x, int w) {
  const int y = p[0], u = p[1], v = p[2];
  if (x >= w / 8 * 8)
    return {Sat8((16384 * y + 18677 * v - 2390656) >> 14),
            Sat8((16384 * y - 6455 * u - 9519 * v + 0x1F3300) >> 14),
            Sat8((8192 * y + 16646 * u - 0x208300) >> 13)};
  const int u6 = (u - 128) * 64, v6 = (v - 128) * 64;
  return {Sat8(y + (H(v6, 18677) >> 4)), Sat8(y - ((H(u6, 6455) + H(v6, 9519)) >> 4)),
          Sat8(y + (H(u6, 16646) >> 3))};
}

Px RGBToYCC(Px p, bool block) {
  const int r = p[0], g = p[1], b = p[2];
  if (block) {
    const int l = H(r << 8, 4898) + H(g << 8, 9617) + H(b << 8, 1867);
    return {Sat8(H(l, 2921) >> 2), Sat8((H((b << 6) - l, 1789) + 624) >> 2),
            Sat8((H((r << 6) - l, 2178) + 548) >> 2)};
  }
  const int l = 4898 * r + 9617 * g + 1867 * b;
  return {((l >> 10) * 2921) >> 16, ((((b << 14) - l) >> 10) * 1789 >> 16) + 156,
          ((((r << 14) - l) >> 10) * 2178 >> 16) + 137};
}
Px YCCToRGB(Px p, bool block) {
  if (block) {
    const int yq = H(p[0] << 8, 5563), c1 = H((p[1] - 156) << 7, 18168),
              c2 = H((p[2] - 137) << 7, 14921);
    return {Sat8((yq + c2) >> 4), Sat8(((yq >> 1) + H(c1, -6357) + H(c2, -16679)) >> 3),
            Sat8((yq + c1) >> 4)};
  }
  const int y = 5564 * p[0], c1 = 9084 * p[1] - 1417104, c2 = 7460 * p[2] - 1022020;
  return {Sat8((y + c2) >> 12), Sat8(((y << 4) - 794 * (c1 >> 8) - 2084 * (c2 >> 8)) >> 16),
          Sat8((y + c1) >> 12)};
}
Px RGBToYCCC3(Px p, int x, int w) { return RGBToYCC(p, x < w / 8 * 8); }
Px RGBToYCCAC4(Px p, int x, int w) { return RGBToYCC(p, x < w / 4 * 4); }
Px YCCToRGBC3(Px p, int x, int w) { return YCCToRGB(p, x < w / 8 * 8); }
Px YCCToRGBAC4(Px p, int x, int w) { return YCCToRGB(p, x < w / 4 * 4); }

// ---- Images of every layout ----------------------------------------------

enum class Shape { kC3, kAC4, kP3, kC2, kC4Alpha };

// One side of a conversion: an interleaved image or three planes.
struct SideImage {
  Shape shape;
  std::vector<Image<Vok8u>> images;
  std::array<Vok8u*, 3> planes{};

  SideImage(Shape s, int width, int height, vok_test::Geometry g) : shape(s) {
    const int channels = s == Shape::kC3 ? 3 : s == Shape::kC2 ? 2 : s == Shape::kP3 ? 1 : 4;
    for (int i = 0; i < (s == Shape::kP3 ? 3 : 1); ++i)
      images.emplace_back(width, height, channels, g.padBytes, g.offsetBytes + i);
    for (size_t i = 0; i < images.size(); ++i) planes[i] = images[i].data();
  }
  // What the entry takes: the image, or the array of planes.
  void* arg() { return shape == Shape::kP3 ? static_cast<void*>(planes.data()) : images[0].data(); }
  int step() const { return images[0].step(); }

  Px get(int x, int y) const {
    const auto at = [&](int plane, int i) { return int(images[plane].row(y)[i]); };
    if (shape == Shape::kP3) return {at(0, x), at(1, x), at(2, x)};
    const int k = x * images[0].channels();
    if (shape != Shape::kC2) return {at(0, k), at(0, k + 1), at(0, k + 2)};
    // Y, Cb, Cr of a pixel pair; a lone last pixel borrows the Cr two bytes
    // back, or at width 1 its own Cb.
    const bool lone = x == images[0].width() - 1 && x % 2 == 0;
    return {at(0, k + 1), at(0, x / 2 * 4), lone ? at(0, x == 0 ? 0 : k - 2) : at(0, x / 2 * 4 + 2)};
  }
  void set(int x, int y, Px v, Vok8u alpha) {
    for (int c = 0; c < 3; ++c) {
      if (shape == Shape::kP3) images[c].set(x, y, 0, Vok8u(Sat8(v[c])));
      else images[0].set(x, y, c, Vok8u(Sat8(v[c])));
    }
    if (shape == Shape::kC4Alpha) images[0].set(x, y, 3, alpha);
  }
  void randomize(std::mt19937& rng) { for (auto& im : images) im.randomize(rng); }
  // The first differing sample or broken guard band, empty when none.
  std::string difference(const SideImage& want) const {
    for (size_t i = 0; i < images.size(); ++i) {
      const std::string d = images[i].firstDifference(want.images[i]);
      if (!d.empty() || !images[i].guardsIntact())
        return "plane " + std::to_string(i) + ": " + (d.empty() ? "guard bytes written" : d);
    }
    return {};
  }
};

using Call = std::function<VokStatus(void* src, int srcStep, void* dst, int dstStep, VokiSize roi)>;

// Any form through one signature: the sides are an image or an array of planes.
template <typename S, typename D>
Call Erase(VokStatus (*fn)(S, int, D, int, VokiSize)) {
  return [fn](void* s, int ss, void* d, int ds, VokiSize r) {
    return fn(static_cast<S>(s), ss, static_cast<D>(d), ds, r);
  };
}

constexpr Vok8u kAval = 0x5C;

struct PixelForm {
  const char* name;
  Shape src, dst;
  Call call;
  Px (*model)(Px, int x, int width);
};

#define FORM(fn, src, dst, model) {#fn, Shape::src, Shape::dst, Erase(voki##fn), model}

const std::vector<PixelForm>& PixelForms() {
  static const std::vector<PixelForm> forms = {
      FORM(RGBToYCbCr_8u_C3R, kC3, kC3, RGBToYCbCrC3),
      FORM(RGBToYCbCr_8u_AC4R, kAC4, kAC4, RGBToYCbCrAC4),
      FORM(RGBToYCbCr_8u_P3R, kP3, kP3, RGBToYCbCrP3),
      FORM(YCbCrToRGB_8u_C3R, kC3, kC3, YCbCrToRGBC3),
      FORM(YCbCrToRGB_8u_AC4R, kAC4, kAC4, YCbCrToRGBAC4),
      FORM(YCbCrToRGB_8u_P3R, kP3, kP3, YCbCrToRGBC3),
      FORM(YCbCrToRGB_8u_P3C3R, kP3, kC3, YCbCrToRGBP3C3),
      FORM(RGBToYUV_8u_C3R, kC3, kC3, RGBToYUVC3),
      FORM(RGBToYUV_8u_AC4R, kAC4, kAC4, RGBToYUVAC4),
      FORM(RGBToYUV_8u_P3R, kP3, kP3, RGBToYUVP3),
      FORM(RGBToYUV_8u_C3P3R, kC3, kP3, RGBToYUVC3P3),
      FORM(YUVToRGB_8u_C3R, kC3, kC3, YUVToRGBC3),
      FORM(YUVToRGB_8u_AC4R, kAC4, kAC4, YUVToRGBC3),
      FORM(YUVToRGB_8u_P3R, kP3, kP3, YUVToRGBP3),
      FORM(YUVToRGB_8u_P3C3R, kP3, kC3, YUVToRGBP3C3),
      FORM(RGBToYCC_8u_C3R, kC3, kC3, RGBToYCCC3),
      FORM(RGBToYCC_8u_AC4R, kAC4, kAC4, RGBToYCCAC4),
      FORM(YCCToRGB_8u_C3R, kC3, kC3, YCCToRGBC3),
      FORM(YCCToRGB_8u_AC4R, kAC4, kAC4, YCCToRGBAC4),
      FORM(CbYCr422ToRGB_8u_C2C3R, kC2, kC3, CbYCr422ToRGB),
      {"CbYCr422ToBGR_8u_C2C4R", Shape::kC2, Shape::kC4Alpha,
       [](void* s, int ss, void* d, int ds, VokiSize r) {
         return vokiCbYCr422ToBGR_8u_C2C4R(static_cast<const Vok8u*>(s), ss, static_cast<Vok8u*>(d), ds, r, kAval);
       },
       [](Px p, int x, int w) {
         const Px rgb = CbYCr422ToRGB(p, x, w);
         return Px{rgb[2], rgb[1], rgb[0]};
       }},
  };
  return forms;
}

// Runs a form and checks every written sample against the model, and every
// guard byte and kept alpha against the old destination. The source is
// random, or a sweep in which every sample takes all 256 values down the
// rows, so that each value of each channel meets each column's path.
void CheckPixelForm(const PixelForm& form, int width, int height, vok_test::Geometry g,
                    std::mt19937& rng, bool sweep = false) {
  SideImage src(form.src, width, height, g);
  SideImage dst(form.dst, width, height, {g.padBytes + 3, g.offsetBytes});
  src.randomize(rng);
  dst.randomize(rng);
  if (sweep)
    for (size_t i = 0; i < src.images.size(); ++i)
      for (int y = 0; y < height; ++y)
        for (size_t k = 0; k < src.images[i].rowSamples(); ++k)
          src.images[i].row(y)[k] = Vok8u(y + 37 * k + 101 * i);
  SideImage want = dst;
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x) want.set(x, y, form.model(src.get(x, y), x, width), kAval);
  ASSERT_EQ(form.call(src.arg(), src.step(), dst.arg(), dst.step(), {width, height}), vokStatusOk);
  EXPECT_EQ(dst.difference(want), "") << "width " << width;
}

TEST(LumaChroma, EightBitFormsMatchModelOnEveryTarget) {
  std::mt19937 rng(7);
  vok_test::ForEachTarget([&](const char*) {
    for (const PixelForm& form : PixelForms()) {
      SCOPED_TRACE(form.name);
      for (int width : vok_test::TestWidths()) {
        const auto& gs = vok_test::TestGeometries(1);
        CheckPixelForm(form, width, 1 + rng() % 3, gs[rng() % gs.size()], rng);
      }
      // 31 columns end on a tail of every block path.
      CheckPixelForm(form, 31, 256, {5, 1}, rng, true);
    }
  });
}

// ---- PhotoYCC on 16-bit and float samples --------------------------------

// Samples in the unsigned domain: 16s is offset by 32768.
template <typename T>
float Unsigned(T v) { return std::is_same_v<T, Vok16s> ? v + 32768.0f : float(v); }
template <typename T>
T Quantised(float v) {
  if constexpr (std::is_same_v<T, Vok32f>) return v;
  const int q = std::clamp(static_cast<int>(v), 0, 65535);
  return static_cast<T>(std::is_same_v<T, Vok16s> ? q - 32768 : q);
}

template <typename T>
std::array<T, 3> RGBToYCCModel(const T* in, bool block) {
  const float r = Unsigned(in[0]), g = Unsigned(in[1]), b = Unsigned(in[2]);
  const bool isFloat = std::is_same_v<T, Vok32f>;
  if (block || isFloat) {
    const float o1 = isFloat ? 0.6117647f : 40092.0f, o2 = isFloat ? 0.5372549f : 35209.0f;
    const float l = 0.299f * r + 0.587f * g + 0.114f * b;
    return {Quantised<T>(0.7132668f * l), Quantised<T>(0.43686f * (b - l) + o1),
            Quantised<T>(0.53192f * (r - l) + o2)};
  }
  return {Quantised<T>(0.213267f * r + 0.418688f * g + 0.0813124f * b + -0.499999f),
          Quantised<T>(40092.0f - 0.130621f * r - 0.256437f * g + 0.387058f * b + -0.499999f),
          Quantised<T>(35209.0f + 0.372876f * r - 0.312237f * g - 0.0606389f * b + -0.499999f)};
}

template <typename T>
std::array<T, 3> YCCToRGBModel(const T* in, bool block) {
  const float y = Unsigned(in[0]), c1 = Unsigned(in[1]), c2 = Unsigned(in[2]);
  const bool isFloat = std::is_same_v<T, Vok32f>;
  if (block || isFloat) {
    const float o1 = isFloat ? 0.6117647f : 40092.0f, o2 = isFloat ? 0.5372549f : 35209.0f;
    const float top = isFloat ? 1.0f : 65535.0f;
    const float yy = 1.3584f * y, cc1 = 2.2179f * (c1 - o1), cc2 = 1.8215f * (c2 - o2);
    const auto clamp = [&](float v) { return Quantised<T>(std::min(std::max(v, 0.0f), top)); };
    return {clamp(yy + cc2), clamp(yy - 0.194f * cc1 - 0.509f * cc2), clamp(yy + cc1)};
  }
  const float yy = 1.3584f * y, d1 = c1 - 40092.0f, d2 = c2 - 35209.0f;
  return {Quantised<T>(yy + 1.8215f * d2 + -0.499999f),
          Quantised<T>(yy - 0.4302726f * d1 - 0.9271435f * d2 + -0.499999f),
          Quantised<T>(yy + 2.2179f * d1 + -0.499999f)};
}

template <typename T>
using YCCFn = VokStatus (*)(const T*, int, T*, int, VokiSize);

// Random images of every test width against a row model: model(source row,
// width, destination row). Extra widths give more samples to a rule whose
// rounding bias shows on few of them.
template <typename T, typename Model>
void CheckRows(YCCFn<T> fn, int srcChannels, int dstChannels, std::mt19937& rng, Model model,
               std::vector<int> extraWidths = {}) {
  std::vector<int> widths = vok_test::TestWidths();
  widths.insert(widths.end(), extraWidths.begin(), extraWidths.end());
  for (int width : widths) {
    const auto [unused, height, g] = vok_test::RandomShape(rng, sizeof(T));
    Image<T> src(width, height, srcChannels, g.padBytes, g.offsetBytes);
    Image<T> dst(width, height, dstChannels, g.padBytes + 4, 0);
    src.randomize(rng);
    dst.randomize(rng);
    if constexpr (std::is_same_v<T, Vok32f>)  // 0..1 and a little beyond
      for (int y = 0; y < height; ++y)
        for (size_t i = 0; i < src.rowSamples(); ++i) src.row(y)[i] = std::uniform_real_distribution<float>(-0.2f, 1.2f)(rng);
    Image<T> want = dst;
    for (int y = 0; y < height; ++y)
      model(src.row(y), width, want.row(y));
    ASSERT_EQ(fn(src.data(), src.step(), dst.data(), dst.step(), src.size()), vokStatusOk);
    EXPECT_EQ(dst.firstDifference(want), "") << "width " << width;
    EXPECT_TRUE(dst.guardsIntact());
  }
}

template <typename T>
void CheckYCC(YCCFn<T> fn, int channels, bool toRGB, std::mt19937& rng) {
  CheckRows<T>(fn, channels, channels, rng, [&](const T* row, int width, T* out) {
    for (int x = 0; x < width; ++x) {
      const bool block = x < width / 4 * 4;
      const T* in = row + x * channels;
      const auto px = toRGB ? YCCToRGBModel(in, block) : RGBToYCCModel(in, block);
      std::copy(px.begin(), px.end(), out + x * channels);
    }
  });
}

TEST(LumaChroma, PhotoYCCWordAndFloatFormsMatchModel) {
  std::mt19937 rng(3);
  vok_test::ForEachTarget([&](const char*) {
    for (bool toRGB : {false, true}) {
#define CHECK_YCC(T, tok, lay, channels) \
  CheckYCC<T>(toRGB ? vokiYCCToRGB_##tok##_##lay##R : vokiRGBToYCC_##tok##_##lay##R, channels, toRGB, rng)
      CHECK_YCC(Vok16u, 16u, C3, 3);
      CHECK_YCC(Vok16u, 16u, AC4, 4);
      CHECK_YCC(Vok16s, 16s, C3, 3);
      CHECK_YCC(Vok16s, 16s, AC4, 4);
      CHECK_YCC(Vok32f, 32f, C3, 3);
      CHECK_YCC(Vok32f, 32f, AC4, 4);
#undef CHECK_YCC
    }
  });
}

// ---- RGB and BGR to CbYCr 4:2:2 --------------------------------------------

// Models of one row of `width` pixels to 2 x width bytes.
std::vector<int> FilteredRow(const Vok8u* row, int width, bool gamma) {
  static const auto table = [] {
    std::array<int, 256> t{};
    for (int i = 0; i < 256; ++i) {
      const double s = i / 255.0;
      t[i] = int(std::nearbyint(255 * (s < 0.018 ? 4.5 * s : 1.099 * std::pow(s, 0.45) - 0.099)));
    }
    return t;
  }();
  const auto px = [&](int x) {
    Px p;
    for (int c = 0; c < 3; ++c) p[c] = gamma ? table[row[3 * x + c]] : row[3 * x + c];
    return p;
  };
  const auto co = [&](int x, bool cr) {
    if (x < 0) return 0;
    const Px p = px(x);
    return cr ? 3596 * p[0] - 3015 * p[1] - 582 * p[2] : -1213 * p[0] - 2385 * p[1] + 3596 * p[2];
  };
  std::vector<int> out(2 * width);
  for (int x = 0; x + 1 < width; x += 2) {
    const Px e = px(x);
    const int ceCb = -2426 * e[0] - 4769 * e[1] + 7193 * e[2];
    const int ceCr = 7193 * e[0] - 6030 * e[1] - 1164 * e[2];
    out[2 * x] = (co(x - 1, false) + ceCb + co(x + 1, false) + 0x403FFF) >> 15;
    out[2 * x + 2] = (co(x - 1, true) + ceCr + co(x + 1, true) + 0x403FFF) >> 15;
    for (int i : {0, 1}) {
      const Px p = px(x + i);
      out[2 * (x + i) + 1] = (8422 * p[0] + 16515 * p[1] + 3212 * p[2] + 0x84000) >> 15;
    }
  }
  if (width % 2) {
    const Px v = YCbCrExact(px(width - 1));
    out[2 * width - 2] = v[1];
    out[2 * width - 1] = v[0];
  }
  return out;
}

std::vector<int> AveragedRow(const Vok8u* row, int width) {
  const auto px = [&](int x) { return Px{row[4 * x + 2], row[4 * x + 1], row[4 * x]}; };
  std::vector<int> out(2 * width);
  for (int x = 0; x + 1 < width; x += 2) {
    const Px p0 = px(x), p1 = px(x + 1);
    const int rs = p0[0] + p1[0], gs = p0[1] + p1[1], bs = p0[2] + p1[2];
    if (x < width / 8 * 8) {
      for (int i : {0, 1}) {
        const Px p = px(x + i);
        out[2 * (x + i) + 1] =
            (H(p[0] << 8, 8422) + H(p[1] << 8, 16515) + H(p[2] << 8, 3212) + 2112) >> 7;
      }
      out[2 * x] = (H(rs << 6, -9699) + H(gs << 6, -19071) + H(bs << 6, 28770) + 16448) >> 7;
      out[2 * x + 2] = (H(rs << 6, 28770) + H(gs << 6, -24117) + H(bs << 6, -4653) + 16448) >> 7;
    } else {
      out[2 * x + 1] = YCbCrExact(p0)[0];
      out[2 * x + 3] = YCbCrExact(p1)[0];
      out[2 * x] = (-9699 * rs - 19071 * gs + 28770 * bs + 0x1010000) >> 17;
      out[2 * x + 2] = (28770 * rs - 24117 * gs - 4653 * bs + 0x100FFFE) >> 17;
    }
  }
  if (width % 2) {
    const Px v = YCbCrExact(px(width - 1));
    out[2 * width - 2] = v[1];
    out[2 * width - 1] = v[0];
  }
  return out;
}

TEST(LumaChroma, ToCbYCr422MatchesModel) {
  std::mt19937 rng(5);
  vok_test::ForEachTarget([&](const char*) {
    for (bool gamma : {false, true}) {
      SCOPED_TRACE(gamma ? "Gamma" : "RGB");
      CheckRows<Vok8u>(gamma ? vokiRGBToCbYCr422Gamma_8u_C3C2R : vokiRGBToCbYCr422_8u_C3C2R, 3, 2, rng,
                       [&](const Vok8u* row, int width, Vok8u* out) {
                         for (int v : FilteredRow(row, width, gamma)) *out++ = Vok8u(v);
                       }, {16383});
    }
    SCOPED_TRACE("BGR");
    CheckRows<Vok8u>(vokiBGRToCbYCr422_8u_AC4C2R, 4, 2, rng, [](const Vok8u* row, int width, Vok8u* out) {
      for (int v : AveragedRow(row, width)) *out++ = Vok8u(v);
    });
  });
}

// ---- Threads ---------------------------------------------------------------

// Once with one thread, once with several, once from inside a parallel
// region of the caller: the same bytes.
TEST(LumaChroma, PhotoYCCGivesTheSameBytesOnAnyTeam) {
  std::mt19937 rng(9);
  Image<Vok16s> src(333, 61, 3, 6, 0);
  src.randomize(rng);
  std::vector<Image<Vok16s>> out(3, Image<Vok16s>(333, 61, 3));
  const auto run = [&](Image<Vok16s>& dst) {
    return vokiRGBToYCC_16s_C3R(src.data(), src.step(), dst.data(), dst.step(), src.size());
  };
  {
    vok_test::ThreadCount threads(1);
    ASSERT_EQ(run(out[0]), vokStatusOk);
  }
  vok_test::ThreadCount threads(std::max(4, omp_get_num_procs()));
  ASSERT_EQ(run(out[1]), vokStatusOk);
#pragma omp parallel num_threads(2)
  {
#pragma omp master
    run(out[2]);
  }
  EXPECT_TRUE(out[0].sameRegion(out[1]));
  EXPECT_TRUE(out[0].sameRegion(out[2]));
}

}  // namespace
