// Convert and Scale against a plain model of each rule, on every instruction
// set, in every layout, with odd widths, padded steps and unaligned rows.
#include <cfenv>
#include <cmath>
#include <cstring>

#include "vok_test.h"

namespace {

using vok_test::Image;

struct Extra {
  VokRoundMode round = vokRoundNear;
  float vMin = 0, vMax = 1;
  VokHint hint = vokHintNone;
};

enum class Kind { kValue, kScale };

template <typename TS, typename TD>
using ConvertFn = VokStatus (*)(const TS*, int, TD*, int, VokiSize,
                                const Extra&);

template <typename TS, typename TD>
struct Form {
  const char* name;
  int channels;
  bool alpha;
  Kind kind;
  ConvertFn<TS, TD> call;
};

// Ties to even on an exact double, whatever the caller's rounding mode.
double RoundHalfEven(double x) {
  const double down = std::floor(x), rest = x - down;
  if (rest > 0.5 || (rest == 0.5 && std::fmod(down, 2.0) != 0)) return down + 1;
  return down;
}

template <typename T>
float Highest() { return static_cast<float>(std::numeric_limits<T>::max()); }
template <typename T>
float Lowest() { return static_cast<float>(std::numeric_limits<T>::lowest()); }

template <typename TS, typename TD>
TD Model(Kind kind, TS v, const Extra& e) {
  if constexpr (std::is_same_v<TS, float> && std::is_same_v<TD, uint8_t>) {
    if (kind == Kind::kScale) {
      const float k = 255.0f / (e.vMax - e.vMin), b = -k * e.vMin;
      float x = v < e.vMax ? v : e.vMax;
      x = x > e.vMin ? x : e.vMin;
      volatile float product = x * k;
      return vok_test::Saturate<TD>(int64_t(RoundHalfEven(product + b)));
    }
  }
  if constexpr (std::is_same_v<TS, float>) {
    float x = v < Highest<TD>() ? v : Highest<TD>();
    x = x > Lowest<TD>() ? x : Lowest<TD>();
    return TD(e.round == vokRoundNear ? RoundHalfEven(x) : std::trunc(x));
  } else if constexpr (std::is_same_v<TD, float>) {
    if (kind == Kind::kValue) return TD(v);
    const float k = (e.vMax - e.vMin) / 255.0f;
    volatile float product = float(v) * k;
    return product + e.vMin;
  } else if constexpr (sizeof(TS) < sizeof(TD)) {
    if (kind == Kind::kValue) return TD(v);
    using TU = std::make_unsigned_t<TD>;
    const TU repeated = TU(v * (TU(~TU{0}) / 255));
    return TD(std::is_signed_v<TD> ? TU(repeated ^ (TU{1} << (sizeof(TU) * 8 - 1)))
                                   : repeated);
  } else {
    if (kind == Kind::kValue) return vok_test::Saturate<TD>(v);
    const bool wide = sizeof(TS) == 4;
    if (e.hint == vokHintAccurate) {
      if (wide) {
        const double a = std::bit_cast<double>(uint64_t{0x3E6FE000001FE000});
        const double b = std::bit_cast<double>(uint64_t{0x405FE000001FE000});
        volatile double product = double(v) * a;
        return TD(RoundHalfEven(product + b));
      }
      const float c = std::bit_cast<float>(uint32_t{0x3B7F00FF});
      const int32_t operand = std::is_signed_v<TS> ? v + 32768 : v;
      return TD(RoundHalfEven(float(operand) * c));
    }
    const int64_t t = std::is_signed_v<TS> ? int64_t(v) : int64_t(v) - 32768;
    const int64_t r = ((t - (t >> 8)) >> (wide ? 24 : 8)) + 128;
    return TD(r);
  }
}

#define PLAIN(TS, TD, fn)                                                  \
  [](const TS* s, int ss, TD* d, int ds, VokiSize r, const Extra&) {      \
    return fn(s, ss, d, ds, r);                                            \
  }
#define ROUNDED(TS, TD, fn)                                                \
  [](const TS* s, int ss, TD* d, int ds, VokiSize r, const Extra& e) {    \
    return fn(s, ss, d, ds, r, e.round);                                   \
  }
#define RANGED(TS, TD, fn)                                                 \
  [](const TS* s, int ss, TD* d, int ds, VokiSize r, const Extra& e) {    \
    return fn(s, ss, d, ds, r, e.vMin, e.vMax);                            \
  }
#define HINTED(TS, TD, fn)                                                 \
  [](const TS* s, int ss, TD* d, int ds, VokiSize r, const Extra& e) {    \
    return fn(s, ss, d, ds, r, e.hint);                                    \
  }
#define FORM(stem, TS, TD, kind, shape, lay, ch, alpha) \
  Form<TS, TD>{#stem "_" #lay, ch, alpha, Kind::kind, shape(TS, TD, stem##_##lay##R)}
#define FORMS(stem, TS, TD, kind, shape)                          \
  FORM(stem, TS, TD, kind, shape, C1, 1, false),                  \
      FORM(stem, TS, TD, kind, shape, C3, 3, false),              \
      FORM(stem, TS, TD, kind, shape, C4, 4, false),              \
      FORM(stem, TS, TD, kind, shape, AC4, 4, true)

// Float sources get the awkward values: NaN, infinities, ties, range ends.
template <typename T>
void AddSpecialValues(Image<T>& image, std::mt19937& rng) {
  if constexpr (std::is_floating_point_v<T>) {
    const T specials[] = {NAN, INFINITY, -INFINITY, 1e30f, -1e30f, 0.5f, 1.5f,
                          2.5f, -0.5f, -2.5f, 254.5f, 255.5f, 127.5f, -128.5f,
                          65535.5f, 32767.5f, -32768.5f, -0.0f, 0.999999f};
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x)
        for (int c = 0; c < image.channels(); ++c) {
          const uint32_t pick = rng() % 4;
          if (pick == 0) image.set(x, y, c, specials[rng() % std::size(specials)]);
          if (pick == 1) image.set(x, y, c, std::floor(image.at(x, y, c)) + 0.5f);
        }
  }
}

template <typename TS, typename TD>
void CheckForms(const std::vector<Form<TS, TD>>& forms,
                const std::vector<Extra>& extras, uint32_t seed) {
  std::mt19937 rng(seed);
  vok_test::ForEachTarget([&](const char*) {
    for (const auto& form : forms)
      for (const Extra& extra : extras)
        for (int trial = 0; trial < 4; ++trial) {
          SCOPED_TRACE(form.name);
          const auto& widths = vok_test::TestWidths();
          const int width = widths[rng() % widths.size()], height = 1 + rng() % 3;
          const auto g = vok_test::TestGeometries(1)[rng() % 4];
          Image<TS> src(width, height, form.channels, g.padBytes, g.offsetBytes);
          Image<TD> dst(width, height, form.channels, g.offsetBytes, g.padBytes);
          src.randomize(rng);
          AddSpecialValues(src, rng);
          dst.randomize(rng);
          Image<TD> want = dst;
          for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
              for (int c = 0; c < (form.alpha ? 3 : form.channels); ++c)
                want.set(x, y, c, Model<TS, TD>(form.kind, src.at(x, y, c), extra));
          ASSERT_EQ(form.call(src.data(), src.step(), dst.data(), dst.step(),
                              src.size(), extra),
                    vokStatusOk);
          EXPECT_EQ(dst.firstDifference(want), "")
              << "width " << width << " round " << extra.round << " hint "
              << extra.hint << " range " << extra.vMin << ".." << extra.vMax;
          EXPECT_TRUE(dst.guardsIntact());
        }
  });
}

const std::vector<Extra> kNoExtra = {Extra{}};
const std::vector<Extra> kRoundings = {{vokRoundNear}, {vokRoundZero}, {7}};
const std::vector<Extra> kRanges = {{vokRoundNear, 0, 1},
                                    {vokRoundNear, -100, 300},
                                    {vokRoundNear, 10, 10.5f},
                                    {vokRoundNear, -1e6f, 3.25f},
                                    {vokRoundNear, 3e6f, 3e6f + 0.75f},
                                    {vokRoundNear, -3e38f, 3e38f}};
const std::vector<Extra> kHints = {{vokRoundNear, 0, 1, vokHintNone},
                                   {vokRoundNear, 0, 1, vokHintFast},
                                   {vokRoundNear, 0, 1, vokHintAccurate}};

TEST(ConvertModel, Widening) {
  CheckForms<Vok8u, Vok16u>({FORMS(vokiConvert_8u16u, Vok8u, Vok16u, kValue, PLAIN)}, kNoExtra, 1);
  CheckForms<Vok8u, Vok16s>({FORMS(vokiConvert_8u16s, Vok8u, Vok16s, kValue, PLAIN)}, kNoExtra, 2);
  CheckForms<Vok8u, Vok32s>({FORMS(vokiConvert_8u32s, Vok8u, Vok32s, kValue, PLAIN)}, kNoExtra, 3);
  CheckForms<Vok8u, Vok32f>({FORMS(vokiConvert_8u32f, Vok8u, Vok32f, kValue, PLAIN)}, kNoExtra, 4);
  CheckForms<Vok8s, Vok32s>({FORMS(vokiConvert_8s32s, Vok8s, Vok32s, kValue, PLAIN)}, kNoExtra, 5);
  CheckForms<Vok8s, Vok32f>({FORMS(vokiConvert_8s32f, Vok8s, Vok32f, kValue, PLAIN)}, kNoExtra, 6);
  CheckForms<Vok16u, Vok32s>({FORMS(vokiConvert_16u32s, Vok16u, Vok32s, kValue, PLAIN)}, kNoExtra, 7);
  CheckForms<Vok16u, Vok32f>({FORMS(vokiConvert_16u32f, Vok16u, Vok32f, kValue, PLAIN)}, kNoExtra, 8);
  CheckForms<Vok16s, Vok32f>({FORMS(vokiConvert_16s32f, Vok16s, Vok32f, kValue, PLAIN)}, kNoExtra, 9);
}

TEST(ConvertModel, IntegerNarrowingSaturates) {
  CheckForms<Vok16u, Vok8u>({FORMS(vokiConvert_16u8u, Vok16u, Vok8u, kValue, PLAIN)}, kNoExtra, 11);
  CheckForms<Vok16s, Vok8u>({FORMS(vokiConvert_16s8u, Vok16s, Vok8u, kValue, PLAIN)}, kNoExtra, 12);
  CheckForms<Vok32s, Vok8u>({FORMS(vokiConvert_32s8u, Vok32s, Vok8u, kValue, PLAIN)}, kNoExtra, 13);
  CheckForms<Vok32s, Vok8s>({FORMS(vokiConvert_32s8s, Vok32s, Vok8s, kValue, PLAIN)}, kNoExtra, 14);
}

TEST(ConvertModel, FromFloatClampsThenRounds) {
  CheckForms<Vok32f, Vok8u>({FORMS(vokiConvert_32f8u, Vok32f, Vok8u, kValue, ROUNDED)}, kRoundings, 21);
  CheckForms<Vok32f, Vok8s>({FORMS(vokiConvert_32f8s, Vok32f, Vok8s, kValue, ROUNDED)}, kRoundings, 22);
  CheckForms<Vok32f, Vok16u>({FORMS(vokiConvert_32f16u, Vok32f, Vok16u, kValue, ROUNDED)}, kRoundings, 23);
  CheckForms<Vok32f, Vok16s>({FORMS(vokiConvert_32f16s, Vok32f, Vok16s, kValue, ROUNDED)}, kRoundings, 24);
}

TEST(ScaleModel, FullRangeOntoFullRange) {
  CheckForms<Vok8u, Vok16u>({FORMS(vokiScale_8u16u, Vok8u, Vok16u, kScale, PLAIN)}, kNoExtra, 31);
  CheckForms<Vok8u, Vok16s>({FORMS(vokiScale_8u16s, Vok8u, Vok16s, kScale, PLAIN)}, kNoExtra, 32);
  CheckForms<Vok8u, Vok32s>({FORMS(vokiScale_8u32s, Vok8u, Vok32s, kScale, PLAIN)}, kNoExtra, 33);
  CheckForms<Vok8u, Vok32f>({FORMS(vokiScale_8u32f, Vok8u, Vok32f, kScale, RANGED)}, kRanges, 34);
  CheckForms<Vok32f, Vok8u>({FORMS(vokiScale_32f8u, Vok32f, Vok8u, kScale, RANGED)}, kRanges, 35);
  CheckForms<Vok16u, Vok8u>({FORMS(vokiScale_16u8u, Vok16u, Vok8u, kScale, HINTED)}, kHints, 36);
  CheckForms<Vok16s, Vok8u>({FORMS(vokiScale_16s8u, Vok16s, Vok8u, kScale, HINTED)}, kHints, 37);
  CheckForms<Vok32s, Vok8u>({FORMS(vokiScale_32s8u, Vok32s, Vok8u, kScale, HINTED)}, kHints, 38);
}

// Images of many megabytes store past the cache, from a misaligned first
// sample, with gaps between rows and without; they give the same bytes.
TEST(ConvertModel, LargeImagesMatchTheModel) {
  std::mt19937 rng(41);
  const int width = 2051, height = 1700;  // 17 MB of 8u and 32f together
  for (int pad : {0, 12}) {
    SCOPED_TRACE(pad);
    Image<Vok8u> src(width, height, 1, pad, 3);
    src.randomize(rng);
    vok_test::ForEachTarget([&](const char*) {
      Image<Vok32f> dst(width, height, 1, pad, pad == 0 ? 0 : 4);
      ASSERT_EQ(vokiConvert_8u32f_C1R(src.data(), src.step(), dst.data(), dst.step(),
                                      src.size()),
                vokStatusOk);
      size_t wrong = 0;
      for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) wrong += dst.at(x, y) != float(src.at(x, y));
      EXPECT_EQ(wrong, 0u);
      EXPECT_TRUE(dst.guardsIntact());
    });
  }
}

// ---- Worked values ----------------------------------------------------------

template <typename TD, class Call>
std::vector<TD> ConvertRow(const std::vector<float>& in, Call call) {
  std::vector<TD> out(in.size());
  EXPECT_EQ(call(in.data(), int(in.size() * 4), out.data(),
                 int(out.size() * sizeof(TD)), VokiSize{int(in.size()), 1}),
            vokStatusOk);
  return out;
}

std::vector<Vok8u> To8u(const std::vector<float>& in, VokRoundMode mode) {
  return ConvertRow<Vok8u>(in, [&](const float* s, int ss, Vok8u* d, int ds, VokiSize r) {
    return vokiConvert_32f8u_C1R(s, ss, d, ds, r, mode);
  });
}

TEST(ConvertValues, FloatTo8u) {
  EXPECT_EQ(To8u({0.5f, 1.5f, 254.5f, 255.5f, -0.5f, 1e30f, NAN}, vokRoundNear),
            (std::vector<Vok8u>{0, 2, 254, 255, 0, 255, 255}));
  EXPECT_EQ(To8u({254.9f, -0.9f, 2.9f}, vokRoundZero), (std::vector<Vok8u>{254, 0, 2}));
  EXPECT_EQ(To8u({254.9f, 3.5f}, 7), (std::vector<Vok8u>{254, 3}));
  const auto to16s = ConvertRow<Vok16s>({-40000.0f, NAN, -2.5f}, [](auto... a) {
    return vokiConvert_32f16s_C1R(a..., vokRoundNear);
  });
  EXPECT_EQ(to16s, (std::vector<Vok16s>{-32768, 32767, -2}));
}

TEST(ScaleValues, EndsOfTheRanges) {
  const Vok8u bytes[] = {0, 255, 128};
  Vok16s s16[3];
  ASSERT_EQ(vokiScale_8u16s_C1R(bytes, 3, s16, 6, VokiSize{3, 1}), vokStatusOk);
  EXPECT_EQ(s16[0], -32768);
  EXPECT_EQ(s16[1], 32767);
  EXPECT_EQ(s16[2], 128);
  const Vok16s words[] = {-32768, 32767, 0};
  Vok8u out[3];
  ASSERT_EQ(vokiScale_16s8u_C1R(words, 6, out, 3, VokiSize{3, 1}, vokHintFast), vokStatusOk);
  EXPECT_EQ(out[0], 0);
  EXPECT_EQ(out[1], 255);
  EXPECT_EQ(out[2], 128);
  const Vok32s ints[] = {INT32_MIN, INT32_MAX};
  ASSERT_EQ(vokiScale_32s8u_C1R(ints, 8, out, 3, VokiSize{2, 1}, vokHintNone), vokStatusOk);
  EXPECT_EQ(out[0], 0);
  EXPECT_EQ(out[1], 255);
  const float floats[] = {0.5f, 2.0f, NAN};
  ASSERT_EQ(vokiScale_32f8u_C1R(floats, 12, out, 3, VokiSize{3, 1}, 0, 1), vokStatusOk);
  EXPECT_EQ(out[0], 128);  // 127.5 goes to the even 128
  EXPECT_EQ(out[1], 255);
  EXPECT_EQ(out[2], 255);
  // A range so narrow that 255 / range overflows: inf * 0 makes every
  // result NaN, which the rounding gives as 0.
  ASSERT_EQ(vokiScale_32f8u_C1R(floats, 12, out, 3, VokiSize{3, 1}, 0, 3e-38f), vokStatusOk);
  EXPECT_EQ(out[0], 0);
  EXPECT_EQ(out[1], 0);
  EXPECT_EQ(out[2], 0);
}

// The caller's rounding mode neither leaks into the results nor changes.
TEST(ConvertRounding, CallerModeIsIgnoredAndRestored) {
  const std::vector<float> ties = {0.5f, 1.5f, 2.5f, 254.5f, 3.7f};
  const std::vector<Vok8u> near = To8u(ties, vokRoundNear);
  const std::vector<Vok8u> zero = To8u(ties, vokRoundZero);
  const Vok16u words[] = {128, 385, 65535, 32896};
  const Vok32s ints[] = {8421504, -8421505, 12345678};
  const float floats[] = {0.3f, 0.1f, 0.7f};
  Vok8u wantWords[4], wantInts[3], wantFloats[3];
  vokiScale_16u8u_C1R(words, 8, wantWords, 4, VokiSize{4, 1}, vokHintAccurate);
  vokiScale_32s8u_C1R(ints, 12, wantInts, 3, VokiSize{3, 1}, vokHintAccurate);
  vokiScale_32f8u_C1R(floats, 12, wantFloats, 3, VokiSize{3, 1}, 0.0f, 0.9f);
  for (int mode : {FE_UPWARD, FE_TOWARDZERO, FE_DOWNWARD}) {
    SCOPED_TRACE(mode);
    ASSERT_EQ(std::fesetround(mode), 0);
    EXPECT_EQ(To8u(ties, vokRoundNear), near);
    EXPECT_EQ(To8u(ties, vokRoundZero), zero);
    Vok8u out[4];
    vokiScale_16u8u_C1R(words, 8, out, 4, VokiSize{4, 1}, vokHintAccurate);
    EXPECT_EQ(0, std::memcmp(out, wantWords, 4));
    vokiScale_32s8u_C1R(ints, 12, out, 3, VokiSize{3, 1}, vokHintAccurate);
    EXPECT_EQ(0, std::memcmp(out, wantInts, 3));
    vokiScale_32f8u_C1R(floats, 12, out, 3, VokiSize{3, 1}, 0.0f, 0.9f);
    EXPECT_EQ(0, std::memcmp(out, wantFloats, 3));
    // A failing check returns before the mode is touched.
    EXPECT_EQ(vokiConvert_32f8u_C1R(nullptr, 4, out, 4, VokiSize{1, 1}, vokRoundZero),
              vokStatusNullPointer);
    EXPECT_EQ(std::fegetround(), mode);
    std::fesetround(FE_TONEAREST);
  }
}

// ---- Argument checks -------------------------------------------------------

TEST(ConvertChecks, OrdersAndNothingWritten) {
  Image<Vok8u> src(4, 2), dst(4, 2);
  const Image<Vok8u> before = dst;
  Image<Vok32f> fsrc(4, 2);
  const VokiSize roi = src.size(), empty{0, 2};
  EXPECT_EQ(vokiConvert_8u16u_C1R(src.data(), src.step(), nullptr, 8, empty),
            vokStatusNullPointer);
  EXPECT_EQ(vokiConvert_8u32f_C3R(src.data(), 0, reinterpret_cast<Vok32f*>(dst.data()), 0, empty),
            vokStatusBadSize);
  EXPECT_EQ(vokiConvert_32f8u_AC4R(fsrc.data(), 0, dst.data(), 4, roi, vokRoundNear),
            vokStatusBadStep);
  // The float range comes first, NaN counting as not positive.
  EXPECT_EQ(vokiScale_32f8u_C1R(nullptr, 0, nullptr, 0, empty, 1, 1), vokStatusBadRange);
  EXPECT_EQ(vokiScale_8u32f_C4R(nullptr, 0, nullptr, 0, empty, 0, NAN), vokStatusBadRange);
  EXPECT_EQ(vokiScale_8u32f_C1R(nullptr, 0, nullptr, 0, empty, 0, 1), vokStatusNullPointer);
  EXPECT_EQ(vokiScale_16u8u_C1R(reinterpret_cast<Vok16u*>(src.data()), 8, dst.data(), 4,
                                empty, vokHintAccurate),
            vokStatusBadSize);
  // Bit images: the offset after the steps; the dither tests no step.
  EXPECT_EQ(vokiConvert_1u8u_C1R(src.data(), 0, -1, dst.data(), 4, roi), vokStatusBadStep);
  EXPECT_EQ(vokiConvert_1u8u_C1R(src.data(), 1, -1, dst.data(), 4, roi), vokStatusBadSize);
  EXPECT_EQ(vokiConvert_8u1u_C1R(src.data(), 4, nullptr, 0, -1, empty, 0),
            vokStatusNullPointer);
  EXPECT_EQ(vokiConvert_8u1u_C1R(src.data(), 0, dst.data(), 0, -1, roi, 0), vokStatusBadSize);
  EXPECT_TRUE(dst.sameRegion(before));
  EXPECT_TRUE(dst.guardsIntact());
}

// ---- Bit images ----------------------------------------------------------

TEST(BitImages, ExpandFromAnyOffset) {
  std::mt19937 rng(41);
  for (int offset : {0, 1, 3, 7, 8, 13})
    for (int width : {1, 5, 7, 8, 9, 16, 17, 31, 64, 67}) {
      const int bytes = (offset + width + 7) / 8;
      Image<Vok8u> bits(bytes, 2, 1, 3, 1);
      Image<Vok8u> dst(width, 2, 1, 5, 2);
      bits.randomize(rng);
      ASSERT_EQ(vokiConvert_1u8u_C1R(bits.data(), bits.step(), offset, dst.data(),
                                     dst.step(), dst.size()),
                vokStatusOk);
      for (int y = 0; y < 2; ++y)
        for (int x = 0; x < width; ++x) {
          const int bit = offset + x;
          const bool set = (bits.at(bit / 8, y) >> (7 - bit % 8)) & 1;
          ASSERT_EQ(dst.at(x, y), set ? 255 : 0) << offset << " " << width << " " << x;
        }
      EXPECT_TRUE(dst.guardsIntact());
    }
}

// The dither with a whole image of errors instead of three rotating rows.
std::vector<uint8_t> DitherModel(const Image<Vok8u>& src, int threshold) {
  const int w = src.width(), h = src.height();
  std::vector<int32_t> err(size_t(w) * h, 0);
  auto e = [&](int x, int y) -> int32_t {
    return x < 0 || x >= w || y < 0 ? 0 : err[size_t(y) * w + x];
  };
  std::vector<uint8_t> bits(size_t(w) * h);
  for (int y = 0; y < h; ++y)
    for (int x = 0; x < w; ++x) {
      const int kA[5] = {1, 2, 4, 2, 1}, kB[5] = {2, 4, 8, 4, 2};
      int32_t s = 4 * e(x - 2, y) + 8 * e(x - 1, y);
      for (int i = 0; i < 5; ++i)
        s += kA[i] * e(x - 2 + i, y - 2) + kB[i] * e(x - 2 + i, y - 1);
      const int32_t v = src.at(x, y) * 8192 + 23 * s;
      const bool on = v > threshold * 8192;
      err[size_t(y) * w + x] = (v >> 10) - (on ? 2047 : 0);
      bits[size_t(y) * w + x] = on;
    }
  return bits;
}

TEST(BitImages, DitherMatchesTheModelAndKeepsOuterBits) {
  std::mt19937 rng(42);
  for (int offset : {0, 3, 7, 11})
    for (int width : {1, 4, 5, 9, 13, 40})
      for (int threshold : {0, 77, 128, 255}) {
        Image<Vok8u> src(width, 5, 1, 3, 1);
        src.randomize(rng);
        const int bytes = (offset % 8 + width + 7) / 8;
        Image<Vok8u> dst(bytes, 5, 1, 2, 0);
        dst.fill(0x5A);
        ASSERT_EQ(vokiConvert_8u1u_C1R(src.data(), src.step(), dst.data(), dst.step(),
                                       offset, src.size(), Vok8u(threshold)),
                  vokStatusOk);
        const std::vector<uint8_t> want = DitherModel(src, threshold);
        const int o = offset % 8;
        const bool oneByte = o + width <= 8;
        for (int y = 0; y < 5; ++y)
          for (int i = 0; i < bytes * 8; ++i) {
            const int x = i - o;
            const bool got = (dst.at(i / 8, y) >> (7 - i % 8)) & 1;
            bool expected = (0x5A >> (7 - i % 8)) & 1;  // bits outside the row
            if (x >= 0 && x < width) expected = want[size_t(y) * width + x];
            if (x >= width && oneByte) expected = false;
            ASSERT_EQ(got, expected) << offset << " " << width << " " << threshold
                                     << " row " << y << " bit " << i;
          }
        EXPECT_TRUE(dst.guardsIntact());
      }
}

TEST(BitImages, FullImageAtThresholdGivesAZeroFirst) {
  Image<Vok8u> src(8, 1);
  src.fill(255);
  Vok8u dst = 0xFF;
  ASSERT_EQ(vokiConvert_8u1u_C1R(src.data(), src.step(), &dst, 1, 0, src.size(), 255),
            vokStatusOk);
  EXPECT_EQ(dst & 0x80, 0);
}

}  // namespace
