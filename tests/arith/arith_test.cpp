// Add, Sub, Mul, their constant forms and the full-scale multiplies against
// a plain model of the scale-factor rule, on every instruction set.
#include <algorithm>
#include <cmath>
#include <cstring>

#include "vok_test.h"

namespace {

using vok_test::Image;

enum class Op { kAdd, kSub, kMul, kMulScale };

// The scale-factor rule on the exact result: ties to even, then saturation.
template <typename T>
T ScaleRule(int64_t x, int scale) {
  if (scale > 0) {
    const int s = scale > 40 ? 40 : scale;
    const int64_t q = x >> s, r = x - (q << s), half = int64_t{1} << (s - 1);
    x = q + ((r > half || (r == half && (q & 1))) ? 1 : 0);
  } else if (scale < 0) {
    const int k = -scale > 40 ? 40 : -scale;
    x = x > 0 ? (x > (int64_t{1} << 20) ? int64_t{1} << 60 : x << k)
              : (x < -(int64_t{1} << 20) ? -(int64_t{1} << 60) : x * (int64_t{1} << k));
  }
  return vok_test::Saturate<T>(x);
}

// a op b, the minuend of Sub being a.
template <typename T>
T Model(Op op, T a, T b, int scale) {
  if constexpr (std::is_floating_point_v<T>) {
    volatile T x = a, y = b;
    return op == Op::kAdd ? x + y : op == Op::kSub ? x - y : x * y;
  } else {
    const int64_t x = a, y = b;
    switch (op) {
      case Op::kAdd: return ScaleRule<T>(x + y, scale);
      case Op::kSub: return ScaleRule<T>(x - y, scale);
      case Op::kMul: return ScaleRule<T>(x * y, scale);
      case Op::kMulScale:
        return static_cast<T>(x * y / std::numeric_limits<T>::max());
    }
  }
  return 0;
}

// Every form, called through one signature.
template <typename T>
using TwoImageFn = VokStatus (*)(const T*, int, const T*, int, T*, int,
                                 VokiSize, int);
template <typename T>
using InPlaceFn = VokStatus (*)(const T*, int, T*, int, VokiSize, int);
template <typename T>
using ConstantFn = VokStatus (*)(const T*, int, const T*, T*, int, VokiSize,
                                 int);
template <typename T>
using ConstantInPlaceFn = VokStatus (*)(const T*, T*, int, VokiSize, int);

template <typename T>
struct Form {
  const char* name;
  Op op;
  int channels;
  bool alpha;  // AC4
  TwoImageFn<T> twoImages = nullptr;
  InPlaceFn<T> inPlace = nullptr;
  ConstantFn<T> constant = nullptr;
  ConstantInPlaceFn<T> constantInPlace = nullptr;
};

#define SCALE_Sfs , scale
#define SCALE_
#define TWO_IMAGE(T, fn, sfs)                                              \
  [](const T* a, int as, const T* b, int bs, T* d, int ds, VokiSize r,     \
     [[maybe_unused]] int scale) { return fn(a, as, b, bs, d, ds, r SCALE_##sfs); }
#define IN_PLACE(T, fn, sfs)                                               \
  [](const T* a, int as, T* d, int ds, VokiSize r,                         \
     [[maybe_unused]] int scale) { return fn(a, as, d, ds, r SCALE_##sfs); }
#define CONSTANT_C1(T, fn, sfs)                                            \
  [](const T* a, int as, const T* v, T* d, int ds, VokiSize r,             \
     [[maybe_unused]] int scale) { return fn(a, as, *v, d, ds, r SCALE_##sfs); }
#define CONSTANT_IN_PLACE_C1(T, fn, sfs)                                   \
  [](const T* v, T* d, int ds, VokiSize r, [[maybe_unused]] int scale) {   \
    return fn(*v, d, ds, r SCALE_##sfs);                                   \
  }
#define CONSTANT_CN(T, fn, sfs)                                            \
  [](const T* a, int as, const T* v, T* d, int ds, VokiSize r,             \
     [[maybe_unused]] int scale) { return fn(a, as, v, d, ds, r SCALE_##sfs); }
#define CONSTANT_IN_PLACE_CN(T, fn, sfs)                                   \
  [](const T* v, T* d, int ds, VokiSize r, [[maybe_unused]] int scale) {   \
    return fn(v, d, ds, r SCALE_##sfs);                                    \
  }

#define TWO_IMAGE_FORM(fam, op, tok, T, sfs, lay, ch, alpha)                  \
  Form<T>{#fam "_" #tok "_" #lay, Op::op, ch, alpha,                          \
          TWO_IMAGE(T, voki##fam##_##tok##_##lay##R##sfs, sfs),               \
          IN_PLACE(T, voki##fam##_##tok##_##lay##IR##sfs, sfs)}
#define TWO_IMAGE_FORMS(fam, op, tok, T, sfs)                                 \
  TWO_IMAGE_FORM(fam, op, tok, T, sfs, C1, 1, false),                         \
      TWO_IMAGE_FORM(fam, op, tok, T, sfs, C3, 3, false),                     \
      TWO_IMAGE_FORM(fam, op, tok, T, sfs, C4, 4, false),                     \
      TWO_IMAGE_FORM(fam, op, tok, T, sfs, AC4, 4, true)
#define CONSTANT_FORM(fam, op, tok, T, sfs, lay, ch, alpha, kind)             \
  Form<T>{#fam "_" #tok "_" #lay, Op::op, ch, alpha, nullptr, nullptr,        \
          CONSTANT_##kind(T, voki##fam##_##tok##_##lay##R##sfs, sfs),         \
          CONSTANT_IN_PLACE_##kind(T, voki##fam##_##tok##_##lay##IR##sfs, sfs)}
#define CONSTANT_FORMS(fam, op, tok, T, sfs)                                  \
  CONSTANT_FORM(fam, op, tok, T, sfs, C1, 1, false, C1),                      \
      CONSTANT_FORM(fam, op, tok, T, sfs, C3, 3, false, CN),                  \
      CONSTANT_FORM(fam, op, tok, T, sfs, C4, 4, false, CN),                  \
      CONSTANT_FORM(fam, op, tok, T, sfs, AC4, 4, true, CN)

template <typename T>
std::vector<Form<T>> Forms();

template <>
std::vector<Form<Vok8u>> Forms() {
  return {TWO_IMAGE_FORMS(Add, kAdd, 8u, Vok8u, Sfs),
          TWO_IMAGE_FORMS(Sub, kSub, 8u, Vok8u, Sfs),
          TWO_IMAGE_FORMS(Mul, kMul, 8u, Vok8u, Sfs),
          TWO_IMAGE_FORMS(MulScale, kMulScale, 8u, Vok8u, ),
          CONSTANT_FORMS(AddC, kAdd, 8u, Vok8u, Sfs),
          CONSTANT_FORMS(SubC, kSub, 8u, Vok8u, Sfs),
          CONSTANT_FORMS(MulC, kMul, 8u, Vok8u, Sfs),
          CONSTANT_FORMS(MulCScale, kMulScale, 8u, Vok8u, )};
}
template <>
std::vector<Form<Vok16s>> Forms() {
  return {TWO_IMAGE_FORMS(Add, kAdd, 16s, Vok16s, Sfs),
          TWO_IMAGE_FORMS(Sub, kSub, 16s, Vok16s, Sfs),
          TWO_IMAGE_FORMS(Mul, kMul, 16s, Vok16s, Sfs),
          CONSTANT_FORMS(AddC, kAdd, 16s, Vok16s, Sfs),
          CONSTANT_FORMS(SubC, kSub, 16s, Vok16s, Sfs),
          CONSTANT_FORMS(MulC, kMul, 16s, Vok16s, Sfs)};
}
template <>
std::vector<Form<Vok16u>> Forms() {
  return {TWO_IMAGE_FORMS(MulScale, kMulScale, 16u, Vok16u, ),
          CONSTANT_FORMS(MulCScale, kMulScale, 16u, Vok16u, )};
}
template <>
std::vector<Form<Vok32f>> Forms() {
  return {TWO_IMAGE_FORMS(Add, kAdd, 32f, Vok32f, ),
          TWO_IMAGE_FORMS(Sub, kSub, 32f, Vok32f, ),
          TWO_IMAGE_FORMS(Mul, kMul, 32f, Vok32f, ),
          CONSTANT_FORMS(AddC, kAdd, 32f, Vok32f, ),
          CONSTANT_FORMS(SubC, kSub, 32f, Vok32f, ),
          CONSTANT_FORMS(MulC, kMul, 32f, Vok32f, )};
}

// Scale factors that reach every kernel: all-saturating, left shifts, none,
// the halving shortcut, rounding shifts, the limits and beyond.
template <typename T>
std::vector<int> Scales(Op op) {
  if (std::is_floating_point_v<T> || op == Op::kMulScale) return {0};
  return {-40, -17, -16, -15, -9, -8, -7, -3, -1, 0, 1, 2, 3,
          7,   8,   9,   10,  15, 16, 17, 29, 30, 31, 40};
}

// The model of one form: dst from a (and b or the constant), alpha kept.
template <typename T>
Image<T> Expected(const Form<T>& form, const Image<T>& src1,
                  const Image<T>* src2, const T* constant,
                  const Image<T>& oldDst, int scale) {
  Image<T> want = oldDst;
  for (int y = 0; y < want.height(); ++y)
    for (int x = 0; x < want.width(); ++x)
      for (int c = 0; c < form.channels; ++c) {
        if (form.alpha && c == 3) continue;
        const T a = src1.at(x, y, c);
        const T b = src2 ? src2->at(x, y, c) : constant[c];
        // Sub of two images takes src2 - src1; SubC takes src - value.
        want.set(x, y, c,
                 src2 && form.op == Op::kSub ? Model(form.op, b, a, scale)
                                             : Model(form.op, a, b, scale));
      }
  return want;
}

template <typename T>
void CompareWithModel(uint32_t seed) {
  std::mt19937 rng(seed);
  vok_test::ForEachTarget([&](const char*) {
    for (const Form<T>& form : Forms<T>()) {
      SCOPED_TRACE(form.name);
      for (int scale : Scales<T>(form.op))
      for (int trial = 0; trial < 3; ++trial) {
        SCOPED_TRACE(scale);
        const int width = vok_test::TestWidths()[rng() % vok_test::TestWidths().size()];
        const int height = 1 + rng() % 3;
        const auto& geometries = vok_test::TestGeometries(sizeof(T));
        const auto g = geometries[rng() % geometries.size()];
        const VokiSize roi{width, height};
        Image<T> src1(width, height, form.channels, g.padBytes, g.offsetBytes);
        Image<T> src2(width, height, form.channels, g.padBytes + 2 * sizeof(T), 0);
        Image<T> dst(width, height, form.channels, 0, g.offsetBytes);
        src1.randomize(rng);
        src2.randomize(rng);
        dst.randomize(rng);
        T constant[4];
        for (T& v : constant) v = Image<T>::RandomSample(rng);
        if (form.twoImages) {
          const Image<T> want = Expected<T>(form, src1, &src2, nullptr, dst, scale);
          Image<T> out = dst;
          ASSERT_EQ(form.twoImages(src1.data(), src1.step(), src2.data(),
                                   src2.step(), out.data(), out.step(), roi, scale),
                    vokStatusOk);
          EXPECT_EQ(out.firstDifference(want), "") << "width " << width;
          EXPECT_TRUE(out.guardsIntact());
          // In place: srcDst op src, srcDst - src for Sub, which is the
          // two-image rule with srcDst as second source.
          Image<T> inPlace = src2;
          const Image<T> modelInPlace =
              Expected<T>(form, src1, &src2, nullptr, src2, scale);
          ASSERT_EQ(form.inPlace(src1.data(), src1.step(), inPlace.data(),
                                 inPlace.step(), roi, scale),
                    vokStatusOk);
          EXPECT_EQ(inPlace.firstDifference(modelInPlace), "") << "in place, width " << width;
          EXPECT_TRUE(inPlace.guardsIntact());
        } else {
          const Image<T> want = Expected<T>(form, src1, nullptr, constant, dst, scale);
          Image<T> out = dst;
          ASSERT_EQ(form.constant(src1.data(), src1.step(), constant, out.data(),
                                  out.step(), roi, scale),
                    vokStatusOk);
          EXPECT_EQ(out.firstDifference(want), "") << "width " << width;
          EXPECT_TRUE(out.guardsIntact());
          Image<T> inPlace = src1;
          const Image<T> wantInPlace = Expected<T>(form, src1, nullptr, constant, src1, scale);
          ASSERT_EQ(form.constantInPlace(constant, inPlace.data(), inPlace.step(),
                                         roi, scale),
                    vokStatusOk);
          EXPECT_EQ(inPlace.firstDifference(wantInPlace), "") << "in place, width " << width;
          EXPECT_TRUE(inPlace.guardsIntact());
        }
      }
    }
  });
}

// Images without a gap between their rows run as one long row: an odd width
// puts every row end inside a vector, and AC4 alpha must stay.
template <typename T>
void PackedImagesMatchTheModel(uint32_t seed) {
  std::mt19937 rng(seed);
  vok_test::ForEachTarget([&](const char*) {
    for (const Form<T>& form : Forms<T>()) {
      if (!form.twoImages) continue;
      SCOPED_TRACE(form.name);
      Image<T> src1(37, 5, form.channels), src2(37, 5, form.channels),
          dst(37, 5, form.channels);
      src1.randomize(rng);
      src2.randomize(rng);
      dst.randomize(rng);
      for (int scale : {0, 1, 3}) {
        const Image<T> want = Expected<T>(form, src1, &src2, nullptr, dst, scale);
        Image<T> out = dst;
        ASSERT_EQ(form.twoImages(src1.data(), src1.step(), src2.data(), src2.step(),
                                 out.data(), out.step(), src1.size(), scale),
                  vokStatusOk);
        EXPECT_EQ(out.firstDifference(want), "") << "scale " << scale;
      }
    }
  });
}

TEST(ArithModel, PackedImages) {
  PackedImagesMatchTheModel<Vok8u>(5);
  PackedImagesMatchTheModel<Vok16s>(6);
}

TEST(ArithModel, Samples8u) { CompareWithModel<Vok8u>(1); }
TEST(ArithModel, Samples16s) { CompareWithModel<Vok16s>(2); }
TEST(ArithModel, Samples16u) { CompareWithModel<Vok16u>(3); }
TEST(ArithModel, Samples32f) { CompareWithModel<Vok32f>(4); }

// Uniform random samples seldom land on a tie or next to the saturation
// bound. Here every other product is an exact tie at the scale factor, and
// the rest lie within a few units of a bound.
std::pair<Vok16s, Vok16s> TieOrNearBound(std::mt19937& rng, int scale, bool tie) {
  const int s = std::min(scale, 15);
  if (tie) {
    const int64_t odd = 2 * int64_t(rng() % 32768) - 32767;
    return {Vok16s(odd), Vok16s(scale <= 15 ? 1 << (scale - 1) : -32768)};
  }
  const int64_t unit = int64_t{1} << s;
  const int64_t target = (rng() % 2 ? 1 : -1) *
                         (32767 * unit + int64_t(rng() % (6 * unit)) - 3 * unit);
  const int64_t lowest = std::min<int64_t>(32767, std::abs(target) / 32767 + 1);
  const int64_t a = lowest + rng() % (std::min<int64_t>(32767, 2 * unit) - lowest + 1);
  const int64_t b = std::clamp<int64_t>(std::llround(double(target) / double(a)), -32768, 32767);
  return {Vok16s(a), Vok16s(b)};
}

TEST(ArithModel, Mul16sTiesAndBoundsAtEveryScale) {
  std::mt19937 rng(11);
  const int width = 997, height = 2;
  for (int scale = 1; scale <= 17; ++scale) {
    SCOPED_TRACE(scale);
    Image<Vok16s> a(width, height), b(width, height), want(width, height);
    for (int y = 0; y < height; ++y)
      for (int x = 0; x < width; ++x) {
        const auto [va, vb] = TieOrNearBound(rng, scale, x % 2 == 0);
        a.set(x, y, 0, va);
        b.set(x, y, 0, vb);
        want.set(x, y, 0, Model<Vok16s>(Op::kMul, va, vb, scale));
      }
    vok_test::ForEachTarget([&](const char*) {
      Image<Vok16s> out(width, height);
      ASSERT_EQ(vokiMul_16s_C1RSfs(a.data(), a.step(), b.data(), b.step(),
                                   out.data(), out.step(), a.size(), scale),
                vokStatusOk);
      EXPECT_EQ(out.firstDifference(want), "");
    });
  }
}

}  // namespace

namespace {

// Destinations of many megabytes take the path that stores past the cache,
// from a misaligned first sample; it must give the same bytes.
TEST(ArithModel, LargeImagesMatchTheModel) {
  std::mt19937 rng(9);
  const int width = 2051, height = 4100;  // 8.4 MB of 8u, with a pad and offset
  Image<Vok8u> a(width, height, 1, 13, 3), b(width, height, 1, 5, 1);
  a.randomize(rng);
  b.randomize(rng);
  vok_test::ForEachTarget([&](const char*) {
    Image<Vok8u> dst(width, height, 1, 7, 5);
    ASSERT_EQ(vokiAdd_8u_C1RSfs(a.data(), a.step(), b.data(), b.step(), dst.data(),
                                dst.step(), a.size(), 0),
              vokStatusOk);
    bool same = true;
    for (int y = 0; y < height && same; ++y)
      for (int x = 0; x < width && same; ++x)
        same = dst.at(x, y) == vok_test::Saturate<Vok8u>(a.at(x, y) + b.at(x, y));
    EXPECT_TRUE(same);
    EXPECT_TRUE(dst.guardsIntact());
  });
}

}  // namespace
