// Copy and Set against a plain model of every form on every instruction set:
// random bits (NaN payloads included), odd steps, unaligned pointers, every
// channel of interest, images large enough to store past the cache; and the
// order of the argument checks.
#include "vok_test.h"

namespace {

using vok_test::Image;

enum Kind { kWhole, kAlpha, kMasked, kChannel, kExtract, kInsert, kC3ToAC4, kAC4ToC3, kSplit, kJoin };

// A form and a call through one signature: planar sides use the arrays, Set
// forms that take one value by value get v[0].
template <typename T>
struct Form {
  const char* name;
  Kind kind;
  int channels;  // of the interleaved side
  bool alpha;
  VokStatus (*copy)(T* const* s, int ss, T* const* d, int ds, VokiSize r, const Vok8u* m, int ms);
  VokStatus (*set)(const T* v, T* d, int ds, VokiSize r, const Vok8u* m, int ms);
};

#define ARGS_Image s[0], ss, d[0], ds, r
#define ARGS_Masked s[0], ss, d[0], ds, r, m, ms
#define ARGS_Split s[0], ss, d, ds, r
#define ARGS_Join s, ss, d[0], ds, r
#define ARGS_One *v, d, ds, r
#define ARGS_Array v, d, ds, r
#define ARGS_OneMasked *v, d, ds, r, m, ms
#define ARGS_ArrayMasked v, d, ds, r, m, ms
#define COPY(tok, form, shape, kind, ch, alpha)                                        \
  Form<T>{"Copy_" #form, kind, ch, alpha,                                              \
          [](T* const* s, int ss, T* const* d, int ds, VokiSize r,                     \
             [[maybe_unused]] const Vok8u* m, [[maybe_unused]] int ms) {               \
            return vokiCopy_##tok##_##form(ARGS_##shape);                              \
          }, nullptr}
#define SET(tok, form, shape, kind, ch, alpha)                                         \
  Form<T>{"Set_" #form, kind, ch, alpha, nullptr,                                      \
          [](const T* v, T* d, int ds, VokiSize r, [[maybe_unused]] const Vok8u* m,    \
             [[maybe_unused]] int ms) { return vokiSet_##tok##_##form(ARGS_##shape); }}
#define FORMS(tok)                                                                     \
  {COPY(tok, C1R, Image, kWhole, 1, false),     COPY(tok, C3R, Image, kWhole, 3, false),     \
   COPY(tok, C4R, Image, kWhole, 4, false),     COPY(tok, AC4R, Image, kAlpha, 4, true),     \
   COPY(tok, C1MR, Masked, kMasked, 1, false),  COPY(tok, C3MR, Masked, kMasked, 3, false),  \
   COPY(tok, C4MR, Masked, kMasked, 4, false),  COPY(tok, AC4MR, Masked, kMasked, 4, true),  \
   COPY(tok, C3CR, Image, kChannel, 3, false),  COPY(tok, C4CR, Image, kChannel, 4, false),  \
   COPY(tok, C3C1R, Image, kExtract, 3, false), COPY(tok, C4C1R, Image, kExtract, 4, false), \
   COPY(tok, C1C3R, Image, kInsert, 3, false),  COPY(tok, C1C4R, Image, kInsert, 4, false),  \
   COPY(tok, C3AC4R, Image, kC3ToAC4, 3, true), COPY(tok, AC4C3R, Image, kAC4ToC3, 3, true), \
   COPY(tok, C3P3R, Split, kSplit, 3, false),   COPY(tok, C4P4R, Split, kSplit, 4, false),   \
   COPY(tok, P3C3R, Join, kJoin, 3, false),     COPY(tok, P4C4R, Join, kJoin, 4, false),     \
   SET(tok, C1R, One, kWhole, 1, false),        SET(tok, C3R, Array, kWhole, 3, false),      \
   SET(tok, C4R, Array, kWhole, 4, false),      SET(tok, AC4R, Array, kAlpha, 4, true),      \
   SET(tok, C3CR, One, kChannel, 3, false),     SET(tok, C4CR, One, kChannel, 4, false),     \
   SET(tok, C1MR, OneMasked, kMasked, 1, false), SET(tok, C3MR, ArrayMasked, kMasked, 3, false), \
   SET(tok, C4MR, ArrayMasked, kMasked, 4, false), SET(tok, AC4MR, ArrayMasked, kMasked, 4, true)}

template <typename T> std::vector<Form<T>> Forms();
template <> std::vector<Form<Vok8u>> Forms() { using T = Vok8u; return FORMS(8u); }
template <> std::vector<Form<Vok16s>> Forms() { using T = Vok16s; return FORMS(16s); }
template <> std::vector<Form<Vok32f>> Forms() { using T = Vok32f; return FORMS(32f); }

template <typename T>
void RandomBits(Image<T>& image, std::mt19937& rng) {
  for (int y = 0; y < image.height(); ++y) {
    auto* bytes = reinterpret_cast<uint8_t*>(image.row(y));
    for (size_t i = 0; i < image.rowSamples() * sizeof(T); ++i) bytes[i] = rng();
  }
}

// Width, height, step padding and pointer offset in bytes, and the further
// offset of each plane of a planar side.
struct Case {
  int width, height, padBytes, offsetBytes, planeShift;
};

// One call against the model: channel `ch` is the channel of interest.
template <typename T>
void Check(const Form<T>& form, const Case& k, int ch, std::mt19937& rng) {
  const int n = form.channels;
  const Kind kind = form.kind;
  const int inChannels = kind == kInsert ? 1 : kind == kAlpha || kind == kAC4ToC3 ? 4 : n;
  const int outChannels = kind == kExtract ? 1 : kind == kAlpha || kind == kC3ToAC4 ? 4 : n;
  const int inImages = kind == kJoin ? n : 1, outImages = kind == kSplit ? n : 1;
  std::vector<Image<T>> in, out;
  for (int i = 0; i < inImages; ++i) {
    in.emplace_back(k.width, k.height, inImages > 1 ? 1 : inChannels, k.padBytes, k.offsetBytes);
    RandomBits(in.back(), rng);
  }
  for (int i = 0; i < outImages; ++i) {
    out.emplace_back(k.width, k.height, outImages > 1 ? 1 : outChannels,
                     k.padBytes + 2 * int(sizeof(T)), k.offsetBytes + k.planeShift * i);
    RandomBits(out.back(), rng);
  }
  // A third of the mask is 0, the rest anything from 1 to 255.
  Image<Vok8u> mask(k.width, k.height, 1, k.padBytes + 3, 1);
  for (int y = 0; y < k.height; ++y)
    for (int x = 0; x < k.width; ++x) mask.set(x, y, 0, rng() % 3 ? 1 + rng() % 255 : 0);
  Image<T> values(4, 1);
  RandomBits(values, rng);

  // Sample c of pixel (x, y) of input image i, the Set value standing in.
  auto source = [&](int i, int x, int y, int c) {
    return form.set ? values.at(c, 0) : in[i].at(x, y, c);
  };
  std::vector<Image<T>> want = out;
  for (int y = 0; y < k.height; ++y)
    for (int x = 0; x < k.width; ++x) {
      if (kind == kMasked && mask.at(x, y) == 0) continue;
      if (kind == kChannel) want[0].set(x, y, ch, form.set ? source(0, x, y, 0) : source(0, x, y, ch));
      if (kind == kExtract) want[0].set(x, y, 0, source(0, x, y, ch));
      if (kind == kInsert) want[0].set(x, y, ch, source(0, x, y, 0));
      for (int c = 0; c < n; ++c) {
        if (kind == kSplit) want[c].set(x, y, 0, source(0, x, y, c));
        if (kind == kJoin) want[0].set(x, y, c, source(c, x, y, 0));
        const bool whole = kind == kWhole || kind == kAlpha || kind == kMasked ||
                           kind == kC3ToAC4 || kind == kAC4ToC3;
        if (whole && !(form.alpha && c == 3)) want[0].set(x, y, c, source(0, x, y, c));
      }
    }

  const bool channelIn = kind == kChannel || kind == kExtract;
  const bool channelOut = kind == kChannel || kind == kInsert;
  T* inPointers[4] = {};
  T* outPointers[4] = {};
  for (int i = 0; i < inImages; ++i) inPointers[i] = in[i].data() + (channelIn ? ch : 0);
  for (int i = 0; i < outImages; ++i) outPointers[i] = out[i].data() + (channelOut ? ch : 0);
  const VokiSize roi{k.width, k.height};
  ASSERT_EQ(form.set ? form.set(values.data(), outPointers[0], out[0].step(), roi, mask.data(), mask.step())
                     : form.copy(inPointers, in[0].step(), outPointers, out[0].step(), roi,
                                 mask.data(), mask.step()),
            vokStatusOk);
  for (int i = 0; i < outImages; ++i) {
    EXPECT_EQ(out[i].firstDifference(want[i]), "")
        << "image " << i << ", " << k.width << "x" << k.height << " pad " << k.padBytes
        << " offset " << k.offsetBytes << " channel " << ch;
    EXPECT_TRUE(out[i].guardsIntact()) << "image " << i << " width " << k.width;
  }
}

template <typename T>
void CompareWithModel(uint32_t seed) {
  std::mt19937 rng(seed);
  const auto& geometries = vok_test::TestGeometries(sizeof(T));
  // Above every size from which whole and planar copies and fills store past
  // the cache, with and without gaps between rows; the planes share their
  // alignment, as they must to stream.
  const int sample = sizeof(T);
  const Case large[] = {{801, 401, 0, 0, 0}, {801, 401, 5 * sample, 3 * sample, 0}};
  vok_test::ForEachTarget([&](const char*) {
    for (const Form<T>& form : Forms<T>()) {
      SCOPED_TRACE(form.name);
      const bool oneChannel = form.kind == kChannel || form.kind == kExtract || form.kind == kInsert;
      for (int width : vok_test::TestWidths()) {
        const auto g = geometries[rng() % geometries.size()];
        for (int ch = 0; ch < (oneChannel ? form.channels : 1); ++ch)
          Check(form, Case{width, 1 + int(rng() % 3), g.padBytes, g.offsetBytes, sample}, ch, rng);
      }
      if (form.kind == kWhole || form.kind == kSplit || form.kind == kJoin)
        for (const Case& k : large) Check(form, k, 0, rng);
    }
  });
}

TEST(CopySetModel, Samples8u) { CompareWithModel<Vok8u>(1); }
TEST(CopySetModel, Samples16s) { CompareWithModel<Vok16s>(2); }
TEST(CopySetModel, Samples32fKeepEveryBit) { CompareWithModel<Vok32f>(3); }

TEST(Copy, OntoItselfLeavesTheImage) {
  std::mt19937 rng(7);
  for (Case k : {Case{37, 5, 6, 2, 0}, Case{801, 401, 0, 0, 0}}) {
    Image<Vok16s> image(k.width, k.height, 3, k.padBytes, k.offsetBytes);
    RandomBits(image, rng);
    const Image<Vok16s> before = image;
    EXPECT_EQ(vokiCopy_16s_C3R(image.data(), image.step(), image.data(), image.step(), image.size()),
              vokStatusOk);
    EXPECT_EQ(image.firstDifference(before), "");
  }
}

// Nulls (the mask, the value and every plane among them), then the size,
// then the steps (the mask's among them); nothing is written on failure.
TEST(CopySet, ChecksRunInOrderAndWriteNothing) {
  Image<Vok8u> src(8, 4, 3), dst(8, 4, 3), mask(8, 4), plane(8, 4);
  src.fill(1);
  dst.fill(2);
  const Image<Vok8u> before = dst;
  const VokiSize roi{8, 4}, empty{0, 4};
  Vok8u* planes[3] = {plane.data(), plane.data(), plane.data()};
  Vok8u* nullPlane[3] = {plane.data(), nullptr, plane.data()};
  const Vok8u value[3] = {9, 9, 9};
  const int s = src.step(), d = dst.step(), m = mask.step();
  Vok8u *sp = src.data(), *dp = dst.data(), *mp = mask.data();
  EXPECT_EQ(vokiCopy_8u_C3MR(sp, s, dp, d, empty, nullptr, m), vokStatusNullPointer);
  EXPECT_EQ(vokiCopy_8u_C3MR(sp, s, dp, d, empty, mp, 0), vokStatusBadSize);
  EXPECT_EQ(vokiCopy_8u_C3MR(sp, s, dp, d, roi, mp, 0), vokStatusBadStep);
  EXPECT_EQ(vokiCopy_8u_C3R(nullptr, 0, dp, d, empty), vokStatusNullPointer);
  EXPECT_EQ(vokiCopy_8u_C3P3R(sp, s, nullPlane, 0, empty), vokStatusNullPointer);
  EXPECT_EQ(vokiCopy_8u_C3P3R(sp, s, nullptr, 0, empty), vokStatusNullPointer);
  EXPECT_EQ(vokiCopy_8u_P3C3R(planes, 0, dp, d, roi), vokStatusBadStep);
  EXPECT_EQ(vokiSet_8u_C3R(nullptr, dp, d, empty), vokStatusNullPointer);
  EXPECT_EQ(vokiSet_8u_C3R(value, dp, 0, empty), vokStatusBadSize);
  EXPECT_EQ(vokiSet_8u_C3MR(value, dp, d, roi, mp, 0), vokStatusBadStep);
  EXPECT_EQ(vokiSet_8u_C3CR(7, dp, d, VokiSize{8, -1}), vokStatusBadSize);
  EXPECT_EQ(dst.firstDifference(before), "");
  EXPECT_TRUE(dst.guardsIntact());
}

}  // namespace
