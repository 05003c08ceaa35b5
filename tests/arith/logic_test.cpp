// Bitwise logic and constant shifts against a plain model, every form and
// every instruction set, plus the worked cases and the order of checks.
#include <functional>

#include "vok_test.h"

namespace {

using vok_test::Image;

enum class Op { kAnd, kOr, kXor, kLeft, kRight };

template <typename T>
T Model(Op op, T a, uint64_t b) {
  constexpr uint32_t kBits = 8 * sizeof(T);
  using U = std::make_unsigned_t<T>;
  const U ua = static_cast<U>(a);
  switch (op) {
    case Op::kAnd: return static_cast<T>(ua & static_cast<U>(b));
    case Op::kOr: return static_cast<T>(ua | static_cast<U>(b));
    case Op::kXor: return static_cast<T>(ua ^ static_cast<U>(b));
    case Op::kLeft: return b >= kBits ? T{0} : static_cast<T>(static_cast<U>(uint64_t{ua} << b));
    case Op::kRight:
      if (b >= kBits) return std::is_signed_v<T> && a < 0 ? T(-1) : T{0};
      return static_cast<T>(static_cast<int64_t>(a) >> b);  // floor for signed
  }
  return 0;
}

// A form called through one signature: b is the second image or null, the
// constants (or counts) are per channel.
template <typename T>
struct Form {
  const char* name;
  Op op;
  int channels;
  bool alpha;
  std::function<VokStatus(const T*, int, const T*, int, const uint32_t*, T*, int, VokiSize)> call;
  std::function<VokStatus(const T*, int, const uint32_t*, T*, int, VokiSize)> inPlace;
};

#define VALUE_C1(V, v) static_cast<V>(v[0])
#define VALUE_C3(V, v) vals
#define VALUE_C4(V, v) vals
#define VALUE_AC4(V, v) vals
#define COPY_VALUES(V, v) V vals[4]; for (int i = 0; i < 4; ++i) vals[i] = static_cast<V>(v[i]);

#define IMAGE_FORM(fam, op, tok, T, lay, ch, al)                                   \
  Form<T>{#fam "_" #tok "_" #lay, Op::op, ch, al,                                  \
          [](const T* a, int as, const T* b, int bs, const uint32_t*, T* d, int ds, \
             VokiSize r) { return voki##fam##_##tok##_##lay##R(a, as, b, bs, d, ds, r); }, \
          [](const T* a, int as, const uint32_t*, T* d, int ds, VokiSize r) {      \
            return voki##fam##_##tok##_##lay##IR(a, as, d, ds, r);                 \
          }}
#define CONST_FORM(fam, op, tok, T, V, lay, ch, al)                                \
  Form<T>{#fam "_" #tok "_" #lay, Op::op, ch, al,                                  \
          [](const T* a, int as, const T*, int, const uint32_t* v, T* d, int ds,   \
             VokiSize r) { COPY_VALUES(V, v) (void)vals;                          \
            return voki##fam##_##tok##_##lay##R(a, as, VALUE_##lay(V, v), d, ds, r); }, \
          [](const T*, int, const uint32_t* v, T* d, int ds, VokiSize r) {         \
            COPY_VALUES(V, v) (void)vals;                                          \
            return voki##fam##_##tok##_##lay##IR(VALUE_##lay(V, v), d, ds, r);     \
          }}
#define LAYOUTS(F, ...) F(__VA_ARGS__, C1, 1, false), F(__VA_ARGS__, C3, 3, false), \
                        F(__VA_ARGS__, C4, 4, false), F(__VA_ARGS__, AC4, 4, true)
#define BITWISE(T, tok)                                                       \
  LAYOUTS(IMAGE_FORM, And, kAnd, tok, T), LAYOUTS(IMAGE_FORM, Or, kOr, tok, T), \
      LAYOUTS(IMAGE_FORM, Xor, kXor, tok, T),                                 \
      LAYOUTS(CONST_FORM, AndC, kAnd, tok, T, T),                             \
      LAYOUTS(CONST_FORM, OrC, kOr, tok, T, T),                               \
      LAYOUTS(CONST_FORM, XorC, kXor, tok, T, T)
#define LSHIFT(T, tok) LAYOUTS(CONST_FORM, LShiftC, kLeft, tok, T, Vok32u)
#define RSHIFT(T, tok) LAYOUTS(CONST_FORM, RShiftC, kRight, tok, T, Vok32u)

template <typename T> std::vector<Form<T>> Forms();
template <> std::vector<Form<Vok8u>> Forms() { return {BITWISE(Vok8u, 8u), LSHIFT(Vok8u, 8u), RSHIFT(Vok8u, 8u)}; }
template <> std::vector<Form<Vok8s>> Forms() { return {RSHIFT(Vok8s, 8s)}; }
template <> std::vector<Form<Vok16u>> Forms() { return {BITWISE(Vok16u, 16u), LSHIFT(Vok16u, 16u), RSHIFT(Vok16u, 16u)}; }
template <> std::vector<Form<Vok16s>> Forms() { return {RSHIFT(Vok16s, 16s)}; }
template <> std::vector<Form<Vok32s>> Forms() { return {BITWISE(Vok32s, 32s), LSHIFT(Vok32s, 32s), RSHIFT(Vok32s, 32s)}; }

template <typename T>
void CompareWithModel(uint32_t seed) {
  std::mt19937 rng(seed);
  const uint32_t counts[] = {0, 1, 3, 7, 8, 9, 15, 16, 17, 31, 32, 33, 100, 0xFFFFFFFFu};
  vok_test::ForEachTarget([&](const char*) {
    for (const Form<T>& form : Forms<T>()) {
      SCOPED_TRACE(form.name);
      const bool shift = form.op == Op::kLeft || form.op == Op::kRight;
      for (int trial = 0; trial < 12; ++trial) {
        const int width = vok_test::TestWidths()[rng() % vok_test::TestWidths().size()];
        const int height = 1 + rng() % 3;
        const auto g = vok_test::TestGeometries(sizeof(T))[trial % 4];
        Image<T> a(width, height, form.channels, g.padBytes, g.offsetBytes);
        Image<T> b(width, height, form.channels, g.offsetBytes, 0);
        Image<T> dst(width, height, form.channels, 0, g.offsetBytes);
        a.randomize(rng);
        b.randomize(rng);
        dst.randomize(rng);
        uint32_t values[4];
        const bool equal = trial % 3 == 0;  // the shared-count path
        for (uint32_t& v : values)
          v = shift ? counts[(equal ? trial : rng()) % std::size(counts)]
                    : static_cast<uint32_t>(Image<T>::RandomSample(rng));
        const bool twoImages = !shift && form.name[std::strcspn(form.name, "_") - 1] != 'C';
        // The model: dst for out of place, and in place on a copy of b (or a).
        Image<T> want = dst, wantInPlace = twoImages ? b : a;
        for (int y = 0; y < height; ++y)
          for (int x = 0; x < width; ++x)
            for (int c = 0; c < form.channels; ++c) {
              if (form.alpha && c == 3) continue;
              const uint64_t operand = twoImages ? uint64_t(std::make_unsigned_t<T>(b.at(x, y, c)))
                                                 : values[form.channels == 1 ? 0 : c];
              const T r = Model<T>(form.op, a.at(x, y, c), operand);
              want.set(x, y, c, r);
              wantInPlace.set(x, y, c, r);
            }
        ASSERT_EQ(form.call(a.data(), a.step(), b.data(), b.step(), values, dst.data(),
                            dst.step(), a.size()), vokStatusOk);
        EXPECT_EQ(dst.firstDifference(want), "") << "width " << width;
        EXPECT_TRUE(dst.guardsIntact());
        Image<T> inPlace = twoImages ? b : a;
        ASSERT_EQ(form.inPlace(a.data(), a.step(), values, inPlace.data(), inPlace.step(),
                               a.size()), vokStatusOk);
        EXPECT_EQ(inPlace.firstDifference(wantInPlace), "") << "in place, width " << width;
        EXPECT_TRUE(inPlace.guardsIntact());
      }
    }
  });
}

TEST(LogicModel, Samples8u) { CompareWithModel<Vok8u>(11); }
TEST(LogicModel, Samples8s) { CompareWithModel<Vok8s>(12); }
TEST(LogicModel, Samples16u) { CompareWithModel<Vok16u>(13); }
TEST(LogicModel, Samples16s) { CompareWithModel<Vok16s>(14); }
TEST(LogicModel, Samples32s) { CompareWithModel<Vok32s>(15); }

constexpr VokiSize kOne{1, 1};

TEST(LogicCases, ShiftsAtTheEdges) {
  Vok8u u = 0x81, d = 7;
  EXPECT_EQ(vokiLShiftC_8u_C1R(&u, 1, 1, &d, 1, kOne), vokStatusOk);
  EXPECT_EQ(d, 0x02);
  EXPECT_EQ(vokiLShiftC_8u_C1R(&u, 1, 8, &d, 1, kOne), vokStatusOk);
  EXPECT_EQ(d, 0);
  EXPECT_EQ(vokiLShiftC_8u_C1R(&u, 1, 0, &d, 1, kOne), vokStatusOk);
  EXPECT_EQ(d, 0x81);
  for (auto [x, n, want] : {std::tuple{-1, 1u, -1}, {-2, 1u, -1}, {-128, 7u, -1},
                            {-128, 100u, -1}, {127, 100u, 0}}) {
    Vok8s s = static_cast<Vok8s>(x), r = 5;
    EXPECT_EQ(vokiRShiftC_8s_C1R(&s, 1, n, &r, 1, kOne), vokStatusOk);
    EXPECT_EQ(r, want) << x << " >> " << n;
  }
  Vok16s s16 = -3, r16 = 0;
  EXPECT_EQ(vokiRShiftC_16s_C1R(&s16, 2, 1, &r16, 2, kOne), vokStatusOk);
  EXPECT_EQ(r16, -2);
  const Vok8u rgb[3] = {200, 200, 200};
  Vok8u out[3];
  const Vok32u counts[3] = {1, 8, 0};
  EXPECT_EQ(vokiRShiftC_8u_C3R(rgb, 3, counts, out, 3, kOne), vokStatusOk);
  EXPECT_EQ(out[0], 100);
  EXPECT_EQ(out[1], 0);
  EXPECT_EQ(out[2], 200);
  Vok32s all = 0x12345678, inverted = 0;
  EXPECT_EQ(vokiXorC_32s_C1R(&all, 4, -1, &inverted, 4, kOne), vokStatusOk);
  EXPECT_EQ(inverted, ~0x12345678);
}

TEST(LogicCases, NotAndFullShiftsKeepAlpha) {
  Image<Vok8u> img(5, 2, 4);
  std::mt19937 rng(3);
  img.randomize(rng);
  Image<Vok8u> notAc4 = img, notC4 = img, shifted = img;
  EXPECT_EQ(vokiNot_8u_AC4IR(notAc4.data(), notAc4.step(), img.size()), vokStatusOk);
  EXPECT_EQ(vokiNot_8u_C4IR(notC4.data(), notC4.step(), img.size()), vokStatusOk);
  const Vok32u eights[3] = {8, 8, 8};
  EXPECT_EQ(vokiLShiftC_8u_AC4IR(eights, shifted.data(), shifted.step(), img.size()),
            vokStatusOk);
  for (int y = 0; y < 2; ++y)
    for (int x = 0; x < 5; ++x)
      for (int c = 0; c < 4; ++c) {
        const Vok8u v = img.at(x, y, c);
        EXPECT_EQ(notAc4.at(x, y, c), c == 3 ? v : Vok8u(~v));
        EXPECT_EQ(notC4.at(x, y, c), Vok8u(~v));
        EXPECT_EQ(shifted.at(x, y, c), c == 3 ? v : 0);
      }
}

TEST(LogicChecks, StepBeforeSizeAndWidthFirstForMultiChannel) {
  Vok8u buf[64] = {};
  const VokiSize noWidth{0, 1}, ok{4, 2};
  EXPECT_EQ(vokiAnd_8u_C3R(nullptr, 3, nullptr, 3, nullptr, 3, noWidth), vokStatusBadSize);
  EXPECT_EQ(vokiAnd_8u_C1R(nullptr, 3, nullptr, 3, nullptr, 3, noWidth), vokStatusNullPointer);
  EXPECT_EQ(vokiNot_8u_C4R(nullptr, 0, nullptr, 0, VokiSize{3, 0}), vokStatusBadSize);
  EXPECT_EQ(vokiOr_16u_AC4R(reinterpret_cast<Vok16u*>(buf), 0, reinterpret_cast<Vok16u*>(buf),
                            8, reinterpret_cast<Vok16u*>(buf), 8, noWidth), vokStatusBadStep);
  EXPECT_EQ(vokiXorC_8u_C1R(buf, 0, 1, buf, 4, noWidth), vokStatusBadStep);
  EXPECT_EQ(vokiXorC_8u_C1R(buf, 4, 1, buf, 4, noWidth), vokStatusBadSize);
  EXPECT_EQ(vokiRShiftC_32s_C3R(reinterpret_cast<Vok32s*>(buf), 12, nullptr,
                                reinterpret_cast<Vok32s*>(buf), 12, ok), vokStatusNullPointer);
  EXPECT_EQ(vokiLShiftC_16u_C1IR(3, reinterpret_cast<Vok16u*>(buf), -2, ok), vokStatusBadStep);
  for (Vok8u b : buf) EXPECT_EQ(b, 0);
}

}  // namespace
