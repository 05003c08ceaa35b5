// Copy and Set against a plain model of every form, on every instruction
// set, with random bits (NaN payloads included), odd steps, unaligned
// pointers, every channel of interest and images large enough to store past
// the cache; and the order of the argument checks.
#include <cstring>

#include "vok_test.h"

namespace {

using vok_test::Image;

enum class Kind {
  kWhole, kAlpha, kMasked, kChannel, kExtract, kInsert, kC3ToAC4, kAC4ToC3,
  kSplit, kJoin
};

// Every Copy form through one signature; planar sides use the arrays.
template <typename T>
using CopyFn = VokStatus (*)(T* const* src, int srcStep, T* const* dst,
                             int dstStep, VokiSize roi, const Vok8u* mask,
                             int maskStep);

template <typename T>
struct CopyForm {
  const char* name;
  Kind kind;
  int channels;  // of the interleaved side
  bool alpha;
  CopyFn<T> fn;
};

#define CALL_Image(fn) fn(s[0], ss, d[0], ds, r)
#define CALL_Masked(fn) fn(s[0], ss, d[0], ds, r, m, ms)
#define CALL_Split(fn) fn(s[0], ss, d, ds, r)
#define CALL_Join(fn) fn(s, ss, d[0], ds, r)
#define COPY_FORM(tok, T, form, shape, kind, ch, alpha)                      \
  CopyForm<T>{#form, Kind::kind, ch, alpha,                                  \
              [](T* const* s, int ss, T* const* d, int ds, VokiSize r,       \
                 [[maybe_unused]] const Vok8u* m, [[maybe_unused]] int ms) { \
                return CALL_##shape(vokiCopy_##tok##_##form);                \
              }}
#define COPY_FORMS(tok, T)                                        \
  {COPY_FORM(tok, T, C1R, Image, kWhole, 1, false),               \
   COPY_FORM(tok, T, C3R, Image, kWhole, 3, false),               \
   COPY_FORM(tok, T, C4R, Image, kWhole, 4, false),               \
   COPY_FORM(tok, T, AC4R, Image, kAlpha, 4, true),               \
   COPY_FORM(tok, T, C1MR, Masked, kMasked, 1, false),            \
   COPY_FORM(tok, T, C3MR, Masked, kMasked, 3, false),            \
   COPY_FORM(tok, T, C4MR, Masked, kMasked, 4, false),            \
   COPY_FORM(tok, T, AC4MR, Masked, kMasked, 4, true),            \
   COPY_FORM(tok, T, C3CR, Image, kChannel, 3, false),            \
   COPY_FORM(tok, T, C4CR, Image, kChannel, 4, false),            \
   COPY_FORM(tok, T, C3C1R, Image, kExtract, 3, false),           \
   COPY_FORM(tok, T, C4C1R, Image, kExtract, 4, false),           \
   COPY_FORM(tok, T, C1C3R, Image, kInsert, 3, false),            \
   COPY_FORM(tok, T, C1C4R, Image, kInsert, 4, false),            \
   COPY_FORM(tok, T, C3AC4R, Image, kC3ToAC4, 3, false),          \
   COPY_FORM(tok, T, AC4C3R, Image, kAC4ToC3, 3, false),          \
   COPY_FORM(tok, T, C3P3R, Split, kSplit, 3, false),             \
   COPY_FORM(tok, T, C4P4R, Split, kSplit, 4, false),             \
   COPY_FORM(tok, T, P3C3R, Join, kJoin, 3, false),               \
   COPY_FORM(tok, T, P4C4R, Join, kJoin, 4, false)}

template <typename T>
std::vector<CopyForm<T>> CopyForms();
template <>
std::vector<CopyForm<Vok8u>> CopyForms() { return COPY_FORMS(8u, Vok8u); }
template <>
std::vector<CopyForm<Vok16s>> CopyForms() { return COPY_FORMS(16s, Vok16s); }
template <>
std::vector<CopyForm<Vok32f>> CopyForms() { return COPY_FORMS(32f, Vok32f); }

// Every Set form through one signature; by-value forms take value[0].
template <typename T>
using SetFn = VokStatus (*)(const T* value, T* dst, int dstStep, VokiSize roi,
                            const Vok8u* mask, int maskStep);

template <typename T>
struct SetForm {
  const char* name;
  Kind kind;
  int channels;
  bool alpha;
  SetFn<T> fn;
};

#define SET_VALUE_One *v
#define SET_VALUE_Array v
#define SET_MASK_Plain
#define SET_MASK_Masked , m, ms
#define SET_FORM(tok, T, form, value, mask, kind, ch, alpha)                   \
  SetForm<T>{#form, Kind::kind, ch, alpha,                                     \
             [](const T* v, T* d, int ds, VokiSize r,                          \
                [[maybe_unused]] const Vok8u* m, [[maybe_unused]] int ms) {    \
               return vokiSet_##tok##_##form(SET_VALUE_##value, d, ds,         \
                                             r SET_MASK_##mask);               \
             }}
#define SET_FORMS(tok, T)                                            \
  {SET_FORM(tok, T, C1R, One, Plain, kWhole, 1, false),              \
   SET_FORM(tok, T, C3R, Array, Plain, kWhole, 3, false),            \
   SET_FORM(tok, T, C4R, Array, Plain, kWhole, 4, false),            \
   SET_FORM(tok, T, AC4R, Array, Plain, kAlpha, 4, true),            \
   SET_FORM(tok, T, C3CR, One, Plain, kChannel, 3, false),           \
   SET_FORM(tok, T, C4CR, One, Plain, kChannel, 4, false),           \
   SET_FORM(tok, T, C1MR, One, Masked, kMasked, 1, false),           \
   SET_FORM(tok, T, C3MR, Array, Masked, kMasked, 3, false),         \
   SET_FORM(tok, T, C4MR, Array, Masked, kMasked, 4, false),         \
   SET_FORM(tok, T, AC4MR, Array, Masked, kMasked, 4, true)}

template <typename T>
std::vector<SetForm<T>> SetForms();
template <>
std::vector<SetForm<Vok8u>> SetForms() { return SET_FORMS(8u, Vok8u); }
template <>
std::vector<SetForm<Vok16s>> SetForms() { return SET_FORMS(16s, Vok16s); }
template <>
std::vector<SetForm<Vok32f>> SetForms() { return SET_FORMS(32f, Vok32f); }

template <typename T>
void RandomBits(Image<T>& image, std::mt19937& rng) {
  for (int y = 0; y < image.height(); ++y) {
    auto* bytes = reinterpret_cast<uint8_t*>(image.row(y));
    for (size_t i = 0; i < image.rowSamples() * sizeof(T); ++i) bytes[i] = rng();
  }
}

// Mask bytes: a third zero, the rest any value, 1 and 255 among them.
Image<Vok8u> RandomMask(int width, int height, int pad, std::mt19937& rng) {
  Image<Vok8u> mask(width, height, 1, pad, 1);
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x)
      mask.set(x, y, 0, rng() % 3 == 0 ? 0 : rng() % 2 ? 1 + rng() % 255 : 255);
  return mask;
}

// Width, height, step padding and pointer offset in bytes.
struct Case {
  int width, height, padBytes, offsetBytes;
};

template <typename T>
std::vector<Case> SmallCases(std::mt19937& rng) {
  std::vector<Case> cases;
  const auto& geometries = vok_test::TestGeometries(sizeof(T));
  for (int width : vok_test::TestWidths()) {
    const auto g = geometries[rng() % geometries.size()];
    cases.push_back({width, 1 + int(rng() % 3), g.padBytes, g.offsetBytes});
  }
  return cases;
}

// Above every threshold of the stores past the cache, with and without gaps
// between rows.
template <typename T>
std::vector<Case> LargeCases() {
  return {{801, 401, 0, 0}, {801, 401, 5 * int(sizeof(T)), 3 * int(sizeof(T))}};
}

// Sample pointer of channel `c` of the first pixel.
template <typename T>
T* At(Image<T>& image, int c) { return image.data() + c; }

template <typename T>
void CheckCopy(const CopyForm<T>& form, const Case& k, int channel,
               std::mt19937& rng) {
  const int n = form.channels;
  const bool alphaOut = form.kind == Kind::kAlpha || form.kind == Kind::kC3ToAC4;
  const bool alphaIn = form.kind == Kind::kAlpha || form.kind == Kind::kAC4ToC3;
  const int inChannels = form.kind == Kind::kInsert ? 1 : alphaIn ? 4 : n;
  const int outChannels = form.kind == Kind::kExtract ? 1 : alphaOut ? 4 : n;
  const int inImages = form.kind == Kind::kJoin ? n : 1;
  const int outImages = form.kind == Kind::kSplit ? n : 1;
  const int inPerImage = inImages > 1 ? 1 : inChannels;
  const int outPerImage = outImages > 1 ? 1 : outChannels;

  std::vector<Image<T>> in, out;
  for (int i = 0; i < inImages; ++i) {
    in.emplace_back(k.width, k.height, inPerImage, k.padBytes, k.offsetBytes);
    RandomBits(in.back(), rng);
  }
  for (int i = 0; i < outImages; ++i) {
    out.emplace_back(k.width, k.height, outPerImage, k.padBytes + 2 * int(sizeof(T)),
                     k.offsetBytes + int(sizeof(T)) * i);
    RandomBits(out.back(), rng);
  }
  // Planes share one step but not an alignment.
  const Image<Vok8u> mask = RandomMask(k.width, k.height, k.padBytes, rng);

  std::vector<Image<T>> want = out;
  for (int y = 0; y < k.height; ++y)
    for (int x = 0; x < k.width; ++x) {
      switch (form.kind) {
        case Kind::kMasked:
          if (mask.at(x, y) == 0) break;
          [[fallthrough]];
        case Kind::kWhole:
        case Kind::kAlpha:
        case Kind::kC3ToAC4:
        case Kind::kAC4ToC3:
          for (int c = 0; c < (form.alpha || alphaOut || alphaIn ? 3 : n); ++c)
            want[0].set(x, y, c, in[0].at(x, y, c));
          break;
        case Kind::kChannel:
          want[0].set(x, y, channel, in[0].at(x, y, channel));
          break;
        case Kind::kExtract:
          want[0].set(x, y, 0, in[0].at(x, y, channel));
          break;
        case Kind::kInsert:
          want[0].set(x, y, channel, in[0].at(x, y, 0));
          break;
        case Kind::kSplit:
          for (int c = 0; c < n; ++c) want[c].set(x, y, 0, in[0].at(x, y, c));
          break;
        case Kind::kJoin:
          for (int c = 0; c < n; ++c) want[0].set(x, y, c, in[c].at(x, y, 0));
          break;
      }
    }

  const bool channelIn = form.kind == Kind::kChannel || form.kind == Kind::kExtract;
  const bool channelOut = form.kind == Kind::kChannel || form.kind == Kind::kInsert;
  T* inPointers[4] = {};
  T* outPointers[4] = {};
  for (int i = 0; i < inImages; ++i) inPointers[i] = At(in[i], channelIn ? channel : 0);
  for (int i = 0; i < outImages; ++i) outPointers[i] = At(out[i], channelOut ? channel : 0);
  ASSERT_EQ(form.fn(inPointers, in[0].step(), outPointers, out[0].step(),
                    VokiSize{k.width, k.height}, mask.data(), mask.step()),
            vokStatusOk);
  for (int i = 0; i < outImages; ++i) {
    EXPECT_EQ(out[i].firstDifference(want[i]), "")
        << "image " << i << ", " << k.width << "x" << k.height << " pad "
        << k.padBytes << " offset " << k.offsetBytes << " channel " << channel;
    EXPECT_TRUE(out[i].guardsIntact()) << "image " << i << " width " << k.width;
  }
}

template <typename T>
void CheckSet(const SetForm<T>& form, const Case& k, int channel,
              std::mt19937& rng) {
  Image<T> out(k.width, k.height, form.channels, k.padBytes, k.offsetBytes);
  RandomBits(out, rng);
  const Image<Vok8u> mask = RandomMask(k.width, k.height, k.padBytes + 3, rng);
  Image<T> values(4, 1);
  RandomBits(values, rng);
  const T* value = values.data();

  Image<T> want = out;
  for (int y = 0; y < k.height; ++y)
    for (int x = 0; x < k.width; ++x) {
      if (form.kind == Kind::kChannel) {
        want.set(x, y, channel, value[0]);
      } else if (form.kind != Kind::kMasked || mask.at(x, y) != 0) {
        for (int c = 0; c < (form.alpha ? 3 : form.channels); ++c)
          want.set(x, y, c, value[c]);
      }
    }
  T* dst = At(out, form.kind == Kind::kChannel ? channel : 0);
  ASSERT_EQ(form.fn(value, dst, out.step(), VokiSize{k.width, k.height},
                    mask.data(), mask.step()),
            vokStatusOk);
  EXPECT_EQ(out.firstDifference(want), "")
      << k.width << "x" << k.height << " pad " << k.padBytes << " offset "
      << k.offsetBytes << " channel " << channel;
  EXPECT_TRUE(out.guardsIntact()) << "width " << k.width;
}

bool HasChannelOfInterest(Kind kind) {
  return kind == Kind::kChannel || kind == Kind::kExtract || kind == Kind::kInsert;
}

template <typename T>
void CompareCopyWithModel(uint32_t seed) {
  std::mt19937 rng(seed);
  vok_test::ForEachTarget([&](const char*) {
    for (const CopyForm<T>& form : CopyForms<T>()) {
      SCOPED_TRACE(form.name);
      const int channels = HasChannelOfInterest(form.kind) ? form.channels : 1;
      for (const Case& k : SmallCases<T>(rng))
        for (int c = 0; c < channels; ++c) CheckCopy(form, k, c, rng);
      if (form.kind == Kind::kWhole)
        for (const Case& k : LargeCases<T>()) CheckCopy(form, k, 0, rng);
    }
  });
}

template <typename T>
void CompareSetWithModel(uint32_t seed) {
  std::mt19937 rng(seed);
  vok_test::ForEachTarget([&](const char*) {
    for (const SetForm<T>& form : SetForms<T>()) {
      SCOPED_TRACE(form.name);
      const int channels = form.kind == Kind::kChannel ? form.channels : 1;
      for (const Case& k : SmallCases<T>(rng))
        for (int c = 0; c < channels; ++c) CheckSet(form, k, c, rng);
      if (form.kind == Kind::kWhole)
        for (const Case& k : LargeCases<T>()) CheckSet(form, k, 0, rng);
    }
  });
}

TEST(CopyModel, Samples8u) { CompareCopyWithModel<Vok8u>(1); }
TEST(CopyModel, Samples16s) { CompareCopyWithModel<Vok16s>(2); }
TEST(CopyModel, Samples32fKeepEveryBit) { CompareCopyWithModel<Vok32f>(3); }
TEST(SetModel, Samples8u) { CompareSetWithModel<Vok8u>(4); }
TEST(SetModel, Samples16s) { CompareSetWithModel<Vok16s>(5); }
TEST(SetModel, Samples32f) { CompareSetWithModel<Vok32f>(6); }

TEST(Copy, OntoItselfLeavesTheImage) {
  std::mt19937 rng(7);
  for (const Case& k : {Case{37, 5, 6, 2}, LargeCases<Vok16s>()[1]}) {
    Image<Vok16s> image(k.width, k.height, 3, k.padBytes, k.offsetBytes);
    RandomBits(image, rng);
    const Image<Vok16s> before = image;
    EXPECT_EQ(vokiCopy_16s_C3R(image.data(), image.step(), image.data(),
                               image.step(), image.size()),
              vokStatusOk);
    EXPECT_EQ(image.firstDifference(before), "");
  }
}

// Nulls (the mask, the value and every plane among them), then the size,
// then the steps (the mask's among them); nothing is written on failure.
TEST(CopySet, ChecksRunInOrderAndWriteNothing) {
  Image<Vok8u> src(8, 4, 3), dst(8, 4, 3), mask(8, 4);
  Image<Vok8u> planes[3] = {Image<Vok8u>(8, 4), Image<Vok8u>(8, 4), Image<Vok8u>(8, 4)};
  src.fill(1);
  dst.fill(2);
  mask.fill(1);
  const Image<Vok8u> before = dst;
  const VokiSize roi{8, 4}, empty{0, 4};
  Vok8u* p[3] = {planes[0].data(), planes[1].data(), planes[2].data()};
  Vok8u* nullPlane[3] = {p[0], nullptr, p[2]};
  const Vok8u value[3] = {9, 9, 9};
  const int s = src.step(), d = dst.step(), m = mask.step();

  EXPECT_EQ(vokiCopy_8u_C3MR(src.data(), s, dst.data(), d, empty, nullptr, m), vokStatusNullPointer);
  EXPECT_EQ(vokiCopy_8u_C3MR(src.data(), s, dst.data(), d, empty, mask.data(), 0), vokStatusBadSize);
  EXPECT_EQ(vokiCopy_8u_C3MR(src.data(), s, dst.data(), d, roi, mask.data(), 0), vokStatusBadStep);
  EXPECT_EQ(vokiCopy_8u_C3R(src.data(), 0, dst.data(), d, empty), vokStatusBadSize);
  EXPECT_EQ(vokiCopy_8u_C3R(nullptr, 0, dst.data(), d, empty), vokStatusNullPointer);
  EXPECT_EQ(vokiCopy_8u_C3P3R(src.data(), s, nullPlane, 0, empty), vokStatusNullPointer);
  EXPECT_EQ(vokiCopy_8u_C3P3R(src.data(), s, nullptr, 0, empty), vokStatusNullPointer);
  EXPECT_EQ(vokiCopy_8u_P3C3R(nullPlane, s, dst.data(), d, roi), vokStatusNullPointer);
  EXPECT_EQ(vokiCopy_8u_P3C3R(p, 0, dst.data(), d, roi), vokStatusBadStep);
  EXPECT_EQ(vokiSet_8u_C3R(nullptr, dst.data(), d, empty), vokStatusNullPointer);
  EXPECT_EQ(vokiSet_8u_C3R(value, dst.data(), 0, empty), vokStatusBadSize);
  EXPECT_EQ(vokiSet_8u_C3R(value, dst.data(), 0, roi), vokStatusBadStep);
  EXPECT_EQ(vokiSet_8u_C3MR(value, dst.data(), d, empty, nullptr, m), vokStatusNullPointer);
  EXPECT_EQ(vokiSet_8u_C3MR(value, dst.data(), d, roi, mask.data(), 0), vokStatusBadStep);
  EXPECT_EQ(vokiSet_8u_C3CR(7, dst.data(), d, VokiSize{8, -1}), vokStatusBadSize);
  EXPECT_EQ(dst.firstDifference(before), "");
  EXPECT_TRUE(dst.guardsIntact());
}

}  // namespace
