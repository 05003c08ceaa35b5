// Row kernels of the luma-chroma conversions, compiled once per instruction
// set.
//
// A conversion is a rule over the three channels of a pixel with up to two
// paths: a block path on vectors of 16-bit lanes (float lanes for 16-bit and
// float samples) and a tail path on wider integers or scalar floats. The two
// can differ by one unit, and each rule says where its block path ends, so a
// pixel's result depends on its column and on nothing else. Sides read and
// write the pixels of one layout, which keeps each rule's arithmetic in one
// place whatever the layouts around it.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "colour/luma_chroma_kernels.cpp"
#include "hwy/foreach_target.h"  // IWYU pragma: keep

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <utility>

#include "colour/luma_chroma.h"
#include "foundation/image.h"
#include "foundation/parallel.h"
#include "hwy/highway.h"

// Read-only tables, compiled once for all instruction sets.
#ifndef VOK_COLOUR_TABLES_ONCE
#define VOK_COLOUR_TABLES_ONCE
namespace vok {
namespace {
// The forward gamma curve on 8-bit samples: round(255 * curve(i / 255)),
// ties to even, with 4.5 s below 0.018 and 1.099 s^0.45 - 0.099 above.
constexpr uint8_t kGammaFwd8u[256] = {
    0,   4,   9,   14,  18,  23,  27,  30,  34,  37,  40,  43,  46,  48,  51,
    53,  55,  58,  60,  62,  64,  66,  68,  70,  72,  73,  75,  77,  78,  80,
    82,  83,  85,  86,  88,  89,  91,  92,  94,  95,  97,  98,  99,  101, 102,
    103, 104, 106, 107, 108, 109, 111, 112, 113, 114, 115, 116, 118, 119, 120,
    121, 122, 123, 124, 125, 126, 127, 128, 129, 130, 131, 132, 133, 134, 135,
    136, 137, 138, 139, 140, 141, 142, 143, 144, 145, 146, 147, 147, 148, 149,
    150, 151, 152, 153, 154, 154, 155, 156, 157, 158, 159, 159, 160, 161, 162,
    163, 164, 164, 165, 166, 167, 168, 168, 169, 170, 171, 171, 172, 173, 174,
    174, 175, 176, 177, 177, 178, 179, 180, 180, 181, 182, 182, 183, 184, 185,
    185, 186, 187, 187, 188, 189, 189, 190, 191, 191, 192, 193, 193, 194, 195,
    195, 196, 197, 197, 198, 199, 199, 200, 201, 201, 202, 203, 203, 204, 205,
    205, 206, 206, 207, 208, 208, 209, 209, 210, 211, 211, 212, 213, 213, 214,
    214, 215, 216, 216, 217, 217, 218, 218, 219, 220, 220, 221, 221, 222, 223,
    223, 224, 224, 225, 225, 226, 227, 227, 228, 228, 229, 229, 230, 230, 231,
    232, 232, 233, 233, 234, 234, 235, 235, 236, 236, 237, 238, 238, 239, 239,
    240, 240, 241, 241, 242, 242, 243, 243, 244, 244, 245, 245, 246, 246, 247,
    247, 248, 248, 249, 249, 250, 251, 251, 252, 252, 253, 253, 254, 254, 255,
    255};
}  // namespace
}  // namespace vok
#endif  // VOK_COLOUR_TABLES_ONCE

HWY_BEFORE_NAMESPACE();
namespace vok {
namespace HWY_NAMESPACE {
namespace {
namespace hn = hwy::HWY_NAMESPACE;

template <class D>
using Vec = hn::VFromD<D>;

// ---- Fixed-point steps of the block paths ---------------------------------

// H(a, c) = floor(a * c / 65536), the high half of a signed 16-bit product.
template <class D>
HWY_INLINE Vec<D> H(D d, Vec<D> a, int16_t c) {
  return hn::MulHigh(a, hn::Set(d, c));
}

// HU(r << 8, cr) + HU(g << 8, cg) + HU(b << 8, cb) for 8-bit samples, as
// unsigned lanes: the sum may pass 32767.
template <class D>
HWY_INLINE Vec<hn::RebindToUnsigned<D>> WeightedHU(D, Vec<D> r, Vec<D> g,
                                                   Vec<D> b, uint16_t cr,
                                                   uint16_t cg, uint16_t cb) {
  const hn::RebindToUnsigned<D> du;
  const auto term = [du](Vec<D> v, uint16_t c) {
    return hn::MulHigh(hn::ShiftLeft<8>(hn::BitCast(du, v)), hn::Set(du, c));
  };
  return hn::Add(hn::Add(term(r, cr), term(g, cg)), term(b, cb));
}

// H(r, cr) + H(g, cg) + H(b, cb) on pre-shifted samples.
template <class D>
HWY_INLINE Vec<D> WeightedH(D d, Vec<D> r, Vec<D> g, Vec<D> b, int16_t cr,
                            int16_t cg, int16_t cb) {
  return hn::Add(hn::Add(H(d, r, cr), H(d, g, cg)), H(d, b, cb));
}

// (ca * a + cb * b) >> kShift, the sum exact in 32 bits and the result back
// in 16-bit lanes. The widening multiply-add pairs neighbouring lanes, and
// its interleave and the narrowing pack both work per 128-bit block, so the
// lanes come back in order.
template <int kShift, class D>
HWY_INLINE Vec<D> PairSumShift(D d, Vec<D> a, Vec<D> b, int16_t ca,
                               int16_t cb) {
  const hn::RepartitionToWide<D> dw;
  const auto weights = hn::BitCast(
      d, hn::Set(dw, static_cast<int32_t>(uint32_t(uint16_t(ca)) |
                                          uint32_t(uint16_t(cb)) << 16)));
  Vec<decltype(dw)> unused = hn::Zero(dw);
  const auto lower = hn::ReorderWidenMulAccumulate(
      dw, hn::InterleaveLower(d, a, b), weights, hn::Zero(dw), unused);
  const auto upper = hn::ReorderWidenMulAccumulate(
      dw, hn::InterleaveUpper(d, a, b), weights, hn::Zero(dw), unused);
  return hn::ReorderDemote2To(d, hn::ShiftRight<kShift>(lower),
                              hn::ShiftRight<kShift>(upper));
}

// floor(a * c / 65536) on wide integers, the tail's form of H.
inline int HighHalf(int a, int c) { return (a * c) >> 16; }

// ---- Samples ---------------------------------------------------------------
// Lanes and scalars of each sample type. 16-bit samples go to float in the
// unsigned domain (16s offset by 32768) and come back truncated toward zero
// and clamped to 0..65535; 8-bit samples come back saturated.

template <typename T>
struct Samples;

template <>
struct Samples<uint8_t> {
  using Scalar = int;
  template <class D, class V>
  static Vec<D> In(D d, V v) { return hn::PromoteTo(d, v); }
  template <class DT, class V>
  static Vec<DT> Out(DT dt, V v) { return hn::DemoteTo(dt, v); }
  static int In(uint8_t v) { return v; }
  static uint8_t Out(int v) { return static_cast<uint8_t>(std::clamp(v, 0, 255)); }
};

template <>
struct Samples<uint16_t> {
  using Scalar = float;
  template <class D, class V>
  static Vec<D> In(D d, V v) {
    return hn::ConvertTo(d, hn::PromoteTo(hn::Rebind<int32_t, D>(), v));
  }
  template <class DT, class V>
  static Vec<DT> Out(DT dt, V v) {
    return hn::DemoteTo(dt, hn::ConvertTo(hn::Rebind<int32_t, DT>(), v));
  }
  static float In(uint16_t v) { return v; }
  static uint16_t Out(float v) {
    return static_cast<uint16_t>(std::clamp(static_cast<int>(v), 0, 65535));
  }
};

template <>
struct Samples<int16_t> {
  using Scalar = float;
  template <class D, class V>
  static Vec<D> In(D d, V v) {
    const hn::Rebind<int32_t, D> di;
    return hn::ConvertTo(d, hn::Add(hn::PromoteTo(di, v), hn::Set(di, 32768)));
  }
  template <class DT, class V>
  static Vec<DT> Out(DT dt, V v) {
    const hn::Rebind<int32_t, DT> di;
    const auto clamped = hn::Min(hn::Max(hn::ConvertTo(di, v), hn::Zero(di)),
                                 hn::Set(di, 65535));
    return hn::DemoteTo(dt, hn::Sub(clamped, hn::Set(di, 32768)));
  }
  static float In(int16_t v) { return v + 32768; }
  static int16_t Out(float v) {
    return static_cast<int16_t>(std::clamp(static_cast<int>(v), 0, 65535) -
                                32768);
  }
};

template <>
struct Samples<float> {
  using Scalar = float;
  template <class D, class V>
  static Vec<D> In(D, V v) { return v; }
  template <class DT, class V>
  static Vec<DT> Out(DT, V v) { return v; }
  static float In(float v) { return v; }
  static float Out(float v) { return v; }
};

// ---- Sides -----------------------------------------------------------------

// A side is one row of one layout: Load and Store move a group of pixels as
// three channel vectors, Get and Put one pixel as three scalars. Sources
// have a const T.

// kChannels samples per pixel. A fourth sample is alpha: a source ignores
// it, a destination keeps it or, with kFillAlpha, writes the job's alpha.
// kBgr stores the colour channels in reverse order.
template <typename T, int kChannels, bool kBgr = false, bool kFillAlpha = false>
struct Interleaved {
  using Sample = std::remove_const_t<T>;
  using S = Samples<Sample>;
  T* row;
  Sample alpha;

  template <typename P>
  Interleaved(P* const* planes, int step, int y, const ColourJob& job)
      : row(RowAt(static_cast<T*>(planes[0]), step, y)),
        alpha(static_cast<Sample>(job.alpha)) {}

  template <class D>
  HWY_INLINE void Load(D d, size_t x, Vec<D>& c0, Vec<D>& c1,
                       Vec<D>& c2) const {
    const hn::Rebind<Sample, D> dt;
    Vec<decltype(dt)> a, b, c, ignored;
    if constexpr (kChannels == 3) {
      hn::LoadInterleaved3(dt, row + x * 3, a, b, c);
    } else {
      hn::LoadInterleaved4(dt, row + x * 4, a, b, c, ignored);
    }
    if constexpr (kBgr) std::swap(a, c);
    c0 = S::In(d, a);
    c1 = S::In(d, b);
    c2 = S::In(d, c);
  }

  template <class D>
  HWY_INLINE void Store(D, size_t x, Vec<D> c0, Vec<D> c1,
                        Vec<D> c2) const {
    const hn::Rebind<Sample, D> dt;
    auto a = S::Out(dt, c0), b = S::Out(dt, c1), c = S::Out(dt, c2);
    if constexpr (kBgr) std::swap(a, c);
    if constexpr (kChannels == 3) {
      hn::StoreInterleaved3(a, b, c, dt, row + x * 3);
    } else {
      Vec<decltype(dt)> fourth;
      if constexpr (kFillAlpha) {
        fourth = hn::Set(dt, alpha);
      } else {
        Vec<decltype(dt)> old0, old1, old2;
        hn::LoadInterleaved4(dt, row + x * 4, old0, old1, old2, fourth);
      }
      hn::StoreInterleaved4(a, b, c, fourth, dt, row + x * 4);
    }
  }

  template <typename Scalar>
  void Get(size_t x, Scalar v[3]) const {
    for (int c = 0; c < 3; ++c) v[c] = S::In(LoadSample(row + x * kChannels + Channel(c)));
  }
  template <typename Scalar>
  void Put(size_t x, const Scalar v[3]) const {
    for (int c = 0; c < 3; ++c) StoreSample(row + x * kChannels + Channel(c), S::Out(v[c]));
    if constexpr (kFillAlpha) StoreSample(row + x * kChannels + 3, alpha);
  }
  static int Channel(int c) { return kBgr ? 2 - c : c; }
};

// Three planes with one step.
template <typename T>
struct Planar {
  using Sample = std::remove_const_t<T>;
  using S = Samples<Sample>;
  T* rows[3];

  template <typename P>
  Planar(P* const* planes, int step, int y, const ColourJob&)
      : rows{RowAt(static_cast<T*>(planes[0]), step, y),
             RowAt(static_cast<T*>(planes[1]), step, y),
             RowAt(static_cast<T*>(planes[2]), step, y)} {}

  template <class D>
  HWY_INLINE void Load(D d, size_t x, Vec<D>& c0, Vec<D>& c1,
                       Vec<D>& c2) const {
    const hn::Rebind<Sample, D> dt;
    c0 = S::In(d, hn::LoadU(dt, rows[0] + x));
    c1 = S::In(d, hn::LoadU(dt, rows[1] + x));
    c2 = S::In(d, hn::LoadU(dt, rows[2] + x));
  }
  template <class D>
  HWY_INLINE void Store(D, size_t x, Vec<D> c0, Vec<D> c1,
                        Vec<D> c2) const {
    const hn::Rebind<Sample, D> dt;
    hn::StoreU(S::Out(dt, c0), dt, rows[0] + x);
    hn::StoreU(S::Out(dt, c1), dt, rows[1] + x);
    hn::StoreU(S::Out(dt, c2), dt, rows[2] + x);
  }
  template <typename Scalar>
  void Get(size_t x, Scalar v[3]) const {
    for (int c = 0; c < 3; ++c) v[c] = S::In(LoadSample(rows[c] + x));
  }
  template <typename Scalar>
  void Put(size_t x, const Scalar v[3]) const {
    for (int c = 0; c < 3; ++c) StoreSample(rows[c] + x, S::Out(v[c]));
  }
};

// CbYCr 4:2:2 pixel pairs, Cb Y0 Cr Y1, as Y, Cb, Cr per pixel: both pixels
// of a pair see the pair's chroma. Groups start on a pair.
struct CbYCr422Source {
  const uint8_t* row;
  size_t width;

  CbYCr422Source(const void* const* planes, int step, int y,
                 const ColourJob& job)
      : row(RowAt(static_cast<const uint8_t*>(planes[0]), step, y)),
        width(static_cast<size_t>(job.width)) {}

  template <class D>
  HWY_INLINE void Load(D d, size_t x, Vec<D>& luma, Vec<D>& cb,
                       Vec<D>& cr) const {
    const hn::Rebind<uint8_t, D> d8;
    const hn::Repartition<uint16_t, decltype(d8)> dPair;
    Vec<decltype(d8)> chroma, y;
    hn::LoadInterleaved2(d8, row + 2 * x, chroma, y);
    const auto pair = hn::BitCast(dPair, chroma);
    const auto low = hn::And(pair, hn::Set(dPair, uint16_t{0xFF}));
    const auto high = hn::ShiftRight<8>(pair);
    luma = hn::PromoteTo(d, y);
    cb = hn::PromoteTo(d, hn::BitCast(d8, hn::Or(low, hn::ShiftLeft<8>(low))));
    cr = hn::PromoteTo(d, hn::BitCast(d8, hn::Or(high, hn::ShiftLeft<8>(high))));
  }

  void Get(size_t x, int v[3]) const {
    const size_t pair = x / 2 * 4;
    v[0] = row[2 * x + 1];
    v[1] = row[pair];
    // A lone last pixel has no Cr of its own: it takes the previous pair's,
    // two bytes back, or at width 1 its own Cb.
    const bool lone = x + 1 == width && width % 2 == 1;
    v[2] = lone ? row[x == 0 ? 0 : 2 * x - 2] : row[pair + 2];
  }
};

// The block path of BGR to CbYCr 4:2:2 takes Y per pixel and Cb, Cr repeated
// in both lanes of a pair; even lanes give the pair's Cb, odd lanes its Cr.
struct CbYCr422Destination {
  uint8_t* row;

  CbYCr422Destination(void* const* planes, int step, int y, const ColourJob&)
      : row(RowAt(static_cast<uint8_t*>(planes[0]), step, y)) {}

  template <class D>
  HWY_INLINE void Store(D, size_t x, Vec<D> luma, Vec<D> cb,
                        Vec<D> cr) const {
    const hn::Rebind<uint8_t, D> d8;
    const auto chroma = hn::DemoteTo(d8, hn::OddEven(cr, cb));
    hn::StoreInterleaved2(chroma, hn::DemoteTo(d8, luma), d8, row + 2 * x);
  }
};

// ---- Rules -----------------------------------------------------------------
// A rule joins a block part (Block on lane vectors, in place) and a tail
// part (Pixel on scalars, in place) with the extent of its block path.

enum class Extent {
  kNone,       // tail only
  k4,          // 4 x floor(width / 4)
  k8,          // 8 x floor(width / 8)
  k8AndFour,   // 8 x floor(width / 8), then a group of 4 if width has bit 2
  k16,         // 16 x floor(width / 16)
  kAll,        // every pixel: the two paths agree
};

constexpr size_t GroupOf(Extent e) {
  return e == Extent::k4 || e == Extent::k8AndFour ? 4
         : e == Extent::k8                        ? 8
         : e == Extent::k16                       ? 16
                                                  : 1;
}

inline size_t BlockEnd(Extent e, size_t width) {
  switch (e) {
    case Extent::kNone: return 0;
    case Extent::k4: return width / 4 * 4;
    case Extent::k8: return width / 8 * 8;
    case Extent::k8AndFour: return width / 8 * 8 + (width & 4);
    case Extent::k16: return width / 16 * 16;
    case Extent::kAll: break;
  }
  return width;
}

template <Extent kE, class BlockPart, class TailPart>
struct Rule : BlockPart, TailPart {
  static constexpr Extent kExtent = kE;
};

struct NoBlock {};
struct NoTail {};

// RGB to YCbCr, studio range: the exact form.
struct YCbCrExact {
  using Scalar = int;
  void Pixel(int v[3]) const {
    const int r = v[0], g = v[1], b = v[2];
    v[0] = (16843 * r + 33030 * g + 6423 * b + 0x108000) >> 16;
    v[1] = (-9699 * r - 19071 * g + 28770 * b + 0x808000) >> 16;
    v[2] = (28770 * r - 24117 * g - 4653 * b + 0x808000) >> 16;
  }
};

// Interleaved block: two partial sums, each floored by 2^11, then by 2^4.
struct YCbCrInterleavedBlock {
  using Lane = int16_t;
  template <class D>
  HWY_INLINE void Block(D d, Vec<D>& r, Vec<D>& g, Vec<D>& b) const {
    // (c * B) >> 11 as the high half of (B << 5) * c.
    const auto b5 = hn::ShiftLeft<5>(b);
    const auto part = [&](int16_t cr, int16_t cg, int16_t cb, int16_t offset) {
      const auto sum = hn::Add(PairSumShift<11>(d, r, g, cr, cg), H(d, b5, cb));
      return hn::Add(hn::ShiftRight<4>(sum), hn::Set(d, offset));
    };
    const auto y = part(8421, 16515, 3211, 16);
    const auto cb = part(-4850, -9535, 14385, 128);
    const auto cr = part(14385, -12059, -2327, 128);
    r = y, g = cb, b = cr;
  }
};

// Planar block: high halves of Q8 (luma, unsigned) and Q7 (chroma) samples.
struct YCbCrPlanarBlock {
  using Lane = int16_t;
  template <class D>
  HWY_INLINE void Block(D d, Vec<D>& r, Vec<D>& g, Vec<D>& b) const {
    const auto luma = hn::ShiftRight<8>(WeightedHU(d, r, g, b, 16843, 33030, 6423));
    const auto r7 = hn::ShiftLeft<7>(r), g7 = hn::ShiftLeft<7>(g),
               b7 = hn::ShiftLeft<7>(b);
    const auto chroma = [&](int16_t cr, int16_t cg, int16_t cb) {
      return hn::Add(hn::ShiftRight<7>(WeightedH(d, r7, g7, b7, cr, cg, cb)),
                     hn::Set(d, int16_t{128}));
    };
    const auto cb = chroma(-9699, -19071, 28770);
    const auto cr = chroma(28770, -24117, -4653);
    r = hn::Add(hn::BitCast(d, luma), hn::Set(d, int16_t{16}));
    g = cb, b = cr;
  }
};

// YCbCr to RGB. The exact form in Q16 with one of the coefficient sets; the
// rounded set of the 4:2:2 tail adds half a unit.
struct YCbCrSet {
  int k0, kR, kGb, kGr, kB, bias;
};
constexpr YCbCrSet kSetA{76284, 104595, 25690, 53281, 132186, 0};
constexpr YCbCrSet kSetB{76282, 104593, 25689, 53279, 132184, 0};
constexpr YCbCrSet kSetBRounded{76282, 104593, 25689, 53279, 132184, 32768};

struct YCbCrSetTail {
  using Scalar = int;
  YCbCrSet set;
  void Pixel(int v[3]) const {
    const int y = v[0] * set.k0 - 16 * set.k0 + set.bias;
    const int cb = v[1] - 128, cr = v[2] - 128;
    v[0] = (y + set.kR * cr) >> 16;
    v[1] = (y - set.kGb * cb - set.kGr * cr) >> 16;
    v[2] = (y + set.kB * cb) >> 16;
  }
};

// The Q4 block form: yq = H((Y - 16) << 7, m0), chroma terms of Q7 chroma,
// e added before the last shift.
struct Q4Constants {
  int16_t m0, mG, e;
};
constexpr Q4Constants kQ4Plain{9536, -3203, 0};
constexpr Q4Constants kQ4Rounded{9535, -3211, 8};

struct YCbCrQ4Block {
  using Lane = int16_t;
  Q4Constants q4;
  template <class D>
  HWY_INLINE void Block(D d, Vec<D>& y, Vec<D>& cb, Vec<D>& cr) const {
    const auto yq = hn::Add(
        H(d, hn::ShiftLeft<7>(hn::Sub(y, hn::Set(d, int16_t{16}))), q4.m0),
        hn::Set(d, q4.e));
    const auto cb7 = hn::ShiftLeft<7>(hn::Sub(cb, hn::Set(d, int16_t{128})));
    const auto cr7 = hn::ShiftLeft<7>(hn::Sub(cr, hn::Set(d, int16_t{128})));
    y = hn::ShiftRight<4>(hn::Add(yq, H(d, cr7, 13074)));
    cb = hn::ShiftRight<4>(
        hn::Add(hn::Add(yq, H(d, cr7, -6660)), H(d, cb7, q4.mG)));
    cr = hn::ShiftRight<4>(hn::Add(yq, H(d, cb7, 16523)));
  }
};

// RGB to YUV. Block form B1: high halves of Q8 luma and Q7 chroma samples.
struct YUVBlockB1 {
  using Lane = int16_t;
  template <class D>
  HWY_INLINE void Block(D d, Vec<D>& r, Vec<D>& g, Vec<D>& b) const {
    const auto luma = hn::ShiftRight<8>(WeightedHU(d, r, g, b, 19595, 38469, 7471));
    const auto r7 = hn::ShiftLeft<7>(r), g7 = hn::ShiftLeft<7>(g),
               b7 = hn::ShiftLeft<7>(b);
    const auto chroma = [&](int16_t cr, int16_t cg, int16_t cb) {
      return hn::Add(hn::ShiftRight<6>(WeightedH(d, r7, g7, b7, cr, cg, cb)),
                     hn::Set(d, int16_t{128}));
    };
    const auto u = chroma(-4816, -9469, 14286);
    const auto v = chroma(20152, -16875, -3276);
    r = hn::BitCast(d, luma), g = u, b = v;
  }
};

// Block form B2: the two partial sums of the interleaved YCbCr block, each
// floored by 2^15.
struct YUVBlockB2 {
  using Lane = int16_t;
  template <class D>
  HWY_INLINE void Block(D d, Vec<D>& r, Vec<D>& g, Vec<D>& b) const {
    // (c * B) >> 15 as the high half of (B << 1) * c.
    const auto b1 = hn::ShiftLeft<1>(b);
    const auto part = [&](int16_t cr, int16_t cg, int16_t cb, int16_t offset) {
      return hn::Add(hn::Add(PairSumShift<15>(d, r, g, cr, cg), H(d, b1, cb)),
                     hn::Set(d, offset));
    };
    const auto y = part(9798, 19235, 3736, 0);
    const auto u = part(-4817, -9470, 14287, 128);
    const auto v = part(20152, -16876, -3277, 128);
    r = y, g = u, b = v;
  }
};

// Tail of the interleaved forms: chroma from the differences to twice luma.
struct YUVDifferenceTail {
  using Scalar = int;
  void Pixel(int v[3]) const {
    const int r2 = 2 * v[0], g2 = 2 * v[1], b2 = 2 * v[2];
    const int y2 = ((r2 * 9798 + g2 * 19235) >> 15) + ((b2 * 3736) >> 15);
    v[0] = y2 >> 1;
    v[1] = HighHalf(b2 - y2, 16121) + 128;
    v[2] = HighHalf(r2 - y2, 28737) + 128;
  }
};

// Tail of the planar form.
struct YUVPlanarTail {
  using Scalar = int;
  void Pixel(int v[3]) const {
    const int r = v[0], g = v[1], b = v[2];
    v[0] = (19595 * r + 38469 * g + 7471 * b) >> 16;
    v[1] = ((14286 * b - 4816 * r - 9469 * g) >> 15) + 128;
    v[2] = ((20152 * r - 16875 * g - 3276 * b) >> 15) + 128;
  }
};

// Tail of the interleaved-to-planes form: Q16 luma (38470 for green here),
// chroma differences rounded to whole units before their weights.
struct YUVToPlanesTail {
  using Scalar = int;
  void Pixel(int v[3]) const {
    const int r = v[0], b = v[2];
    const int l = 19595 * r + 38470 * v[1] + 7471 * b;
    v[0] = l >> 16;
    v[1] = ((((b << 16) - l + 32767) >> 16) * 32244 >> 16) + 128;
    v[2] = ((((r << 16) - l + 32767) >> 16) * 57475 >> 16) + 128;
  }
};

// YUV to RGB of the interleaved (kHalf 0) and planes-to-interleaved
// (kHalf 1) forms, the same for every pixel: luma in Q(kHalf), chroma
// differences in Q(3 + kHalf).
template <int kHalf>
struct YUVToRGBEveryPixel {
  using Lane = int16_t;
  template <class D>
  HWY_INLINE void Block(D d, Vec<D>& y, Vec<D>& u, Vec<D>& v) const {
    const auto yq = hn::ShiftLeft<kHalf>(y);
    const auto u3 = hn::ShiftLeft<3 + kHalf>(hn::Sub(u, hn::Set(d, int16_t{128})));
    const auto v3 = hn::ShiftLeft<3 + kHalf>(hn::Sub(v, hn::Set(d, int16_t{128})));
    y = hn::ShiftRight<kHalf>(hn::Add(yq, H(d, v3, 9339)));
    u = hn::ShiftRight<kHalf>(hn::Add(hn::Add(yq, H(d, v3, -4760)), H(d, u3, -3228)));
    v = hn::ShiftRight<kHalf>(hn::Add(yq, H(d, u3, 16646)));
  }
};

struct YUVToRGBPlanarBlock {
  using Lane = int16_t;
  template <class D>
  HWY_INLINE void Block(D d, Vec<D>& y, Vec<D>& u, Vec<D>& v) const {
    const auto u6 = hn::ShiftLeft<6>(hn::Sub(u, hn::Set(d, int16_t{128})));
    const auto v6 = hn::ShiftLeft<6>(hn::Sub(v, hn::Set(d, int16_t{128})));
    const auto r = hn::Add(y, hn::ShiftRight<4>(H(d, v6, 18677)));
    const auto g = hn::Sub(
        y, hn::ShiftRight<4>(hn::Add(H(d, u6, 6455), H(d, v6, 9519))));
    v = hn::Add(y, hn::ShiftRight<3>(H(d, u6, 16646)));
    y = r, u = g;
  }
};

struct YUVToRGBPlanarTail {
  using Scalar = int;
  void Pixel(int v[3]) const {
    const int y = v[0], u = v[1], vv = v[2];
    v[0] = (16384 * y + 18677 * vv - 2390656) >> 14;
    v[1] = (16384 * y - 6455 * u - 9519 * vv + 0x1F3300) >> 14;
    v[2] = (8192 * y + 16646 * u - 0x208300) >> 13;
  }
};

// PhotoYCC on 8-bit samples: Q6 luma in the block, Q14 in the tail.
struct RGBToYCCBlock8u {
  using Lane = int16_t;
  template <class D>
  HWY_INLINE void Block(D d, Vec<D>& r, Vec<D>& g, Vec<D>& b) const {
    const auto l = hn::BitCast(d, WeightedHU(d, r, g, b, 4898, 9617, 1867));
    const auto c1 = H(d, hn::Sub(hn::ShiftLeft<6>(b), l), 1789);
    const auto c2 = H(d, hn::Sub(hn::ShiftLeft<6>(r), l), 2178);
    r = hn::ShiftRight<2>(H(d, l, 2921));
    g = hn::ShiftRight<2>(hn::Add(c1, hn::Set(d, int16_t{624})));
    b = hn::ShiftRight<2>(hn::Add(c2, hn::Set(d, int16_t{548})));
  }
};

struct RGBToYCCTail8u {
  using Scalar = int;
  void Pixel(int v[3]) const {
    const int r = v[0], b = v[2];
    const int l = 4898 * r + 9617 * v[1] + 1867 * b;
    v[0] = ((l >> 10) * 2921) >> 16;
    v[1] = ((((b << 14) - l) >> 10) * 1789 >> 16) + 156;
    v[2] = ((((r << 14) - l) >> 10) * 2178 >> 16) + 137;
  }
};

struct YCCToRGBBlock8u {
  using Lane = int16_t;
  template <class D>
  HWY_INLINE void Block(D d, Vec<D>& y, Vec<D>& c1, Vec<D>& c2) const {
    const hn::RebindToUnsigned<D> du;
    const auto yq = hn::BitCast(
        d, hn::MulHigh(hn::ShiftLeft<8>(hn::BitCast(du, y)),
                       hn::Set(du, uint16_t{5563})));
    const auto c1q = H(d, hn::ShiftLeft<7>(hn::Sub(c1, hn::Set(d, int16_t{156}))), 18168);
    const auto c2q = H(d, hn::ShiftLeft<7>(hn::Sub(c2, hn::Set(d, int16_t{137}))), 14921);
    y = hn::ShiftRight<4>(hn::Add(yq, c2q));
    c1 = hn::ShiftRight<3>(hn::Add(hn::Add(hn::ShiftRight<1>(yq), H(d, c1q, -6357)),
                                   H(d, c2q, -16679)));
    c2 = hn::ShiftRight<4>(hn::Add(yq, c1q));
  }
};

struct YCCToRGBTail8u {
  using Scalar = int;
  void Pixel(int v[3]) const {
    const int y = 5564 * v[0];
    const int c1 = 9084 * v[1] - 1417104, c2 = 7460 * v[2] - 1022020;
    v[0] = (y + c2) >> 12;
    v[1] = ((y << 4) - 794 * (c1 >> 8) - 2084 * (c2 >> 8)) >> 16;
    v[2] = (y + c1) >> 12;
  }
};

// PhotoYCC in single precision, in the order of the definition. Offsets are
// 0.6117647 and 0.5372549 on float samples and 40092 and 35209 on 16-bit
// samples, whose full scale is folded in.
struct YCCOffsets {
  float c1, c2;
};
constexpr YCCOffsets kFloatOffsets{0.6117647f, 0.5372549f};
constexpr YCCOffsets kWordOffsets{40092.0f, 35209.0f};

struct RGBToYCCFloat {
  using Lane = float;
  YCCOffsets offsets;
  template <class D>
  HWY_INLINE void Block(D d, Vec<D>& r, Vec<D>& g, Vec<D>& b) const {
    const auto l = hn::Add(hn::Add(hn::Mul(hn::Set(d, 0.299f), r),
                                   hn::Mul(hn::Set(d, 0.587f), g)),
                           hn::Mul(hn::Set(d, 0.114f), b));
    const auto c1 = hn::Add(hn::Mul(hn::Set(d, 0.43686f), hn::Sub(b, l)),
                            hn::Set(d, offsets.c1));
    const auto c2 = hn::Add(hn::Mul(hn::Set(d, 0.53192f), hn::Sub(r, l)),
                            hn::Set(d, offsets.c2));
    r = hn::Mul(hn::Set(d, 0.7132668f), l), g = c1, b = c2;
  }
};

// `top` is the full scale the results clamp to: 1 for float samples; on
// 16-bit samples the clamp at 65535 is the one that the store makes anyway.
struct YCCToRGBFloat {
  using Lane = float;
  YCCOffsets offsets;
  float top;
  template <class D>
  HWY_INLINE void Block(D d, Vec<D>& y, Vec<D>& c1, Vec<D>& c2) const {
    const auto yy = hn::Mul(hn::Set(d, 1.3584f), y);
    const auto cc1 = hn::Mul(hn::Set(d, 2.2179f), hn::Sub(c1, hn::Set(d, offsets.c1)));
    const auto cc2 = hn::Mul(hn::Set(d, 1.8215f), hn::Sub(c2, hn::Set(d, offsets.c2)));
    const auto clamp = [&](Vec<D> v) {
      return hn::Min(hn::Max(v, hn::Zero(d)), hn::Set(d, top));
    };
    y = clamp(hn::Add(yy, cc2));
    c1 = clamp(hn::Sub(hn::Sub(yy, hn::Mul(hn::Set(d, 0.194f), cc1)),
                       hn::Mul(hn::Set(d, 0.509f), cc2)));
    c2 = clamp(hn::Add(yy, cc1));
  }
};

// Tails of the 16-bit forms: folded matrices, -0.499999 before truncation.
struct RGBToYCCTail16 {
  using Scalar = float;
  void Pixel(float v[3]) const {
    const float r = v[0], g = v[1], b = v[2];
    v[0] = 0.213267f * r + 0.418688f * g + 0.0813124f * b - 0.499999f;
    v[1] = 40092.0f - 0.130621f * r - 0.256437f * g + 0.387058f * b - 0.499999f;
    v[2] = 35209.0f + 0.372876f * r - 0.312237f * g - 0.0606389f * b - 0.499999f;
  }
};

struct YCCToRGBTail16 {
  using Scalar = float;
  void Pixel(float v[3]) const {
    const float y = 1.3584f * v[0];
    const float c1 = v[1] - 40092.0f, c2 = v[2] - 35209.0f;
    v[0] = y + 1.8215f * c2 - 0.499999f;
    v[1] = y - 0.4302726f * c1 - 0.9271435f * c2 - 0.499999f;
    v[2] = y + 2.2179f * c1 - 0.499999f;
  }
};

// BGR to CbYCr 4:2:2, block path: Y per pixel, chroma of the pair's sums,
// repeated in both lanes of the pair.
struct CbYCr422Block {
  using Lane = int16_t;
  template <class D>
  HWY_INLINE void Block(D d, Vec<D>& r, Vec<D>& g, Vec<D>& b) const {
    const auto luma = hn::ShiftRight<7>(hn::Add(
        WeightedHU(d, r, g, b, 8422, 16515, 3212), hn::Set(hn::RebindToUnsigned<D>(), uint16_t{2112})));
    const auto pairSum6 = [d](Vec<D> v) {
      return hn::ShiftLeft<6>(hn::Add(v, hn::Reverse2(d, v)));
    };
    const auto rs = pairSum6(r), gs = pairSum6(g), bs = pairSum6(b);
    const auto chroma = [&](int16_t cr, int16_t cg, int16_t cb) {
      return hn::ShiftRight<7>(hn::Add(WeightedH(d, rs, gs, bs, cr, cg, cb),
                                       hn::Set(d, int16_t{16448})));
    };
    g = chroma(-9699, -19071, 28770);
    b = chroma(28770, -24117, -4653);
    r = hn::BitCast(d, luma);
  }
};

// ---- Rows ------------------------------------------------------------------

// Groups of Lanes(d) pixels from x while they end at or before `end`.
template <class D, class R, class Src, class Dst>
HWY_INLINE size_t Groups(D d, const R& rule, const Src& src, const Dst& dst,
                         size_t x, size_t end) {
  const size_t lanes = hn::Lanes(d);
  for (; x + lanes <= end; x += lanes) {
    Vec<D> c0, c1, c2;
    src.Load(d, x, c0, c1, c2);
    rule.Block(d, c0, c1, c2);
    dst.Store(d, x, c0, c1, c2);
  }
  return x;
}

// The block path over [0, end), a multiple of the rule's group: whole
// vectors, then narrower ones down to one group, so that nothing outside the
// block is read or written.
template <class R, class Src, class Dst>
HWY_INLINE size_t BlockPath(const R& rule, const Src& src, const Dst& dst,
                            size_t end) {
  using Lane = typename R::Lane;
  constexpr size_t kGroup = GroupOf(R::kExtent);
  size_t x = Groups(hn::ScalableTag<Lane>(), rule, src, dst, 0, end);
  if constexpr (kGroup <= 16) x = Groups(hn::CappedTag<Lane, 16>(), rule, src, dst, x, end);
  if constexpr (kGroup <= 8) x = Groups(hn::CappedTag<Lane, 8>(), rule, src, dst, x, end);
  if constexpr (kGroup <= 4) x = Groups(hn::CappedTag<Lane, 4>(), rule, src, dst, x, end);
  if constexpr (kGroup <= 2) x = Groups(hn::CappedTag<Lane, 2>(), rule, src, dst, x, end);
  if constexpr (kGroup <= 1) x = Groups(hn::CappedTag<Lane, 1>(), rule, src, dst, x, end);
  return x;
}

template <class R, class Src, class Dst>
HWY_INLINE void PixelRow(const R& rule, const Src& src, const Dst& dst,
                         size_t width) {
  size_t x = 0;
  if constexpr (R::kExtent != Extent::kNone) {
    x = BlockPath(rule, src, dst, BlockEnd(R::kExtent, width));
  }
  if constexpr (R::kExtent != Extent::kAll) {
    for (; x < width; ++x) {
      typename R::Scalar v[3];
      src.Get(x, v);
      rule.Pixel(v);
      dst.Put(x, v);
    }
  }
}

template <class Src, class Dst, class R>
HWY_NOINLINE void PixelRows(const ColourJob& job, int y0, int y1,
                            const R& rule) {
  for (int y = y0; y < y1; ++y) {
    PixelRow(rule, Src(job.src, job.srcStep, y, job),
             Dst(job.dst, job.dstStep, y, job), size_t(job.width));
  }
}

// RGB to CbYCr 4:2:2: luma per pixel, chroma by a 1-2-1 filter over the odd
// pixel before the pair, the even and the odd pixel of the pair. The odd
// weights carry from pair to pair and start at 0 on each row.
template <bool kGamma>
HWY_NOINLINE void RGBToCbYCr422Rows(const ColourJob& job, int y0, int y1) {
  const size_t width = size_t(job.width);
  for (int row = y0; row < y1; ++row) {
    const uint8_t* src = RowAt(static_cast<const uint8_t*>(job.src[0]), job.srcStep, row);
    uint8_t* dst = RowAt(static_cast<uint8_t*>(job.dst[0]), job.dstStep, row);
    const auto pixel = [&](size_t x, int v[3]) {
      for (int c = 0; c < 3; ++c) {
        const uint8_t s = src[3 * x + c];
        v[c] = kGamma ? kGammaFwd8u[s] : s;
      }
    };
    const auto luma = [](const int v[3]) {
      return (8422 * v[0] + 16515 * v[1] + 3212 * v[2] + 0x84000) >> 15;
    };
    int carriedCb = 0, carriedCr = 0;
    size_t x = 0;
    for (; x + 2 <= width; x += 2) {
      int even[3], odd[3];
      pixel(x, even);
      pixel(x + 1, odd);
      const int oddCb = -1213 * odd[0] - 2385 * odd[1] + 3596 * odd[2];
      const int oddCr = 3596 * odd[0] - 3015 * odd[1] - 582 * odd[2];
      const int evenCb = -2426 * even[0] - 4769 * even[1] + 7193 * even[2];
      const int evenCr = 7193 * even[0] - 6030 * even[1] - 1164 * even[2];
      dst[2 * x] = uint8_t((carriedCb + evenCb + oddCb + 0x403FFF) >> 15);
      dst[2 * x + 1] = uint8_t(luma(even));
      dst[2 * x + 2] = uint8_t((carriedCr + evenCr + oddCr + 0x403FFF) >> 15);
      dst[2 * x + 3] = uint8_t(luma(odd));
      carriedCb = oddCb, carriedCr = oddCr;
    }
    if (x < width) {  // a lone last pixel: exact Y and Cb
      int v[3];
      pixel(x, v);
      YCbCrExact().Pixel(v);
      dst[2 * x] = uint8_t(v[1]);
      dst[2 * x + 1] = uint8_t(v[0]);
    }
  }
}

// BGR to CbYCr 4:2:2 averages the pair: a block path, exact tail pairs and
// a lone last pixel in the exact form.
HWY_NOINLINE void BGRToCbYCr422Rows(const ColourJob& job, int y0, int y1) {
  using Src = Interleaved<const uint8_t, 4, true>;
  const Rule<Extent::k8, CbYCr422Block, NoTail> block{};
  const size_t width = size_t(job.width);
  for (int y = y0; y < y1; ++y) {
    const Src src(job.src, job.srcStep, y, job);
    const CbYCr422Destination dst(job.dst, job.dstStep, y, job);
    size_t x = BlockPath(block, src, dst, BlockEnd(Extent::k8, width));
    for (; x + 2 <= width; x += 2) {
      int even[3], odd[3];
      src.Get(x, even);
      src.Get(x + 1, odd);
      const int rs = even[0] + odd[0], gs = even[1] + odd[1], bs = even[2] + odd[2];
      YCbCrExact().Pixel(even);
      YCbCrExact().Pixel(odd);
      dst.row[2 * x] = uint8_t((-9699 * rs - 19071 * gs + 28770 * bs + 0x1010000) >> 17);
      dst.row[2 * x + 1] = uint8_t(even[0]);
      dst.row[2 * x + 2] = uint8_t((28770 * rs - 24117 * gs - 4653 * bs + 0x100FFFE) >> 17);
      dst.row[2 * x + 3] = uint8_t(odd[0]);
    }
    if (x < width) {
      int v[3];
      src.Get(x, v);
      YCbCrExact().Pixel(v);
      dst.row[2 * x] = uint8_t(v[1]);
      dst.row[2 * x + 1] = uint8_t(v[0]);
    }
  }
}

template <typename T>
using In3 = Interleaved<const T, 3>;
template <typename T>
using In4 = Interleaved<const T, 4>;
template <typename T>
using Out3 = Interleaved<T, 3>;
template <typename T>
using Out4 = Interleaved<T, 4>;
template <typename T>
using InPlanes = Planar<const T>;
template <typename T>
using OutPlanes = Planar<T>;

// PhotoYCC on each sample type; k8u is the extent of the 8-bit block path.
template <template <typename> class Src, template <typename> class Dst,
          Extent k8u>
void RGBToYCCRows(const ColourJob& job, int y0, int y1) {
  switch (job.sample) {
    case SampleType::k8u:
      return PixelRows<Src<uint8_t>, Dst<uint8_t>>(
          job, y0, y1, Rule<k8u, RGBToYCCBlock8u, RGBToYCCTail8u>{});
    case SampleType::k16u:
      return PixelRows<Src<uint16_t>, Dst<uint16_t>>(
          job, y0, y1, Rule<Extent::k4, RGBToYCCFloat, RGBToYCCTail16>{{kWordOffsets}, {}});
    case SampleType::k16s:
      return PixelRows<Src<int16_t>, Dst<int16_t>>(
          job, y0, y1, Rule<Extent::k4, RGBToYCCFloat, RGBToYCCTail16>{{kWordOffsets}, {}});
    case SampleType::k32f:
      return PixelRows<Src<float>, Dst<float>>(
          job, y0, y1, Rule<Extent::kAll, RGBToYCCFloat, NoTail>{{kFloatOffsets}, {}});
  }
}

template <template <typename> class Src, template <typename> class Dst,
          Extent k8u>
void YCCToRGBRows(const ColourJob& job, int y0, int y1) {
  switch (job.sample) {
    case SampleType::k8u:
      return PixelRows<Src<uint8_t>, Dst<uint8_t>>(
          job, y0, y1, Rule<k8u, YCCToRGBBlock8u, YCCToRGBTail8u>{});
    case SampleType::k16u:
      return PixelRows<Src<uint16_t>, Dst<uint16_t>>(
          job, y0, y1, Rule<Extent::k4, YCCToRGBFloat, YCCToRGBTail16>{{kWordOffsets, 65535.0f}, {}});
    case SampleType::k16s:
      return PixelRows<Src<int16_t>, Dst<int16_t>>(
          job, y0, y1, Rule<Extent::k4, YCCToRGBFloat, YCCToRGBTail16>{{kWordOffsets, 65535.0f}, {}});
    case SampleType::k32f:
      return PixelRows<Src<float>, Dst<float>>(
          job, y0, y1, Rule<Extent::kAll, YCCToRGBFloat, NoTail>{{kFloatOffsets, 1.0f}, {}});
  }
}

}  // namespace

void ColourRows(const ColourJob& job, int y0, int y1) {
  using u8 = uint8_t;
  using F = ColourForm;
  using E = Extent;
  switch (job.form) {
    case F::kRGBToYCbCrC3: return PixelRows<In3<u8>, Out3<u8>>(job, y0, y1, Rule<E::k8, YCbCrInterleavedBlock, YCbCrExact>{});
    case F::kRGBToYCbCrAC4: return PixelRows<In4<u8>, Out4<u8>>(job, y0, y1, Rule<E::kNone, NoBlock, YCbCrExact>{});
    case F::kRGBToYCbCrP3: return PixelRows<InPlanes<u8>, OutPlanes<u8>>(job, y0, y1, Rule<E::k16, YCbCrPlanarBlock, YCbCrExact>{});
    case F::kYCbCrToRGBC3: return PixelRows<In3<u8>, Out3<u8>>(job, y0, y1, Rule<E::k8AndFour, YCbCrQ4Block, YCbCrSetTail>{{kQ4Plain}, {kSetA}});
    case F::kYCbCrToRGBAC4: return PixelRows<In4<u8>, Out4<u8>>(job, y0, y1, Rule<E::kNone, NoBlock, YCbCrSetTail>{{}, {kSetA}});
    case F::kYCbCrToRGBP3: return PixelRows<InPlanes<u8>, OutPlanes<u8>>(job, y0, y1, Rule<E::k8AndFour, YCbCrQ4Block, YCbCrSetTail>{{kQ4Plain}, {kSetA}});
    case F::kYCbCrToRGBP3C3: return PixelRows<InPlanes<u8>, Out3<u8>>(job, y0, y1, Rule<E::k8, YCbCrQ4Block, YCbCrSetTail>{{kQ4Rounded}, {kSetB}});
    case F::kRGBToYUVC3: return PixelRows<In3<u8>, Out3<u8>>(job, y0, y1, Rule<E::k16, YUVBlockB1, YUVDifferenceTail>{});
    case F::kRGBToYUVAC4: return PixelRows<In4<u8>, Out4<u8>>(job, y0, y1, Rule<E::k8, YUVBlockB2, YUVDifferenceTail>{});
    case F::kRGBToYUVP3: return PixelRows<InPlanes<u8>, OutPlanes<u8>>(job, y0, y1, Rule<E::k16, YUVBlockB1, YUVPlanarTail>{});
    case F::kRGBToYUVC3P3: return PixelRows<In3<u8>, OutPlanes<u8>>(job, y0, y1, Rule<E::k8, YUVBlockB1, YUVToPlanesTail>{});
    case F::kYUVToRGBC3: return PixelRows<In3<u8>, Out3<u8>>(job, y0, y1, Rule<E::kAll, YUVToRGBEveryPixel<0>, NoTail>{});
    case F::kYUVToRGBAC4: return PixelRows<In4<u8>, Out4<u8>>(job, y0, y1, Rule<E::kAll, YUVToRGBEveryPixel<0>, NoTail>{});
    case F::kYUVToRGBP3: return PixelRows<InPlanes<u8>, OutPlanes<u8>>(job, y0, y1, Rule<E::k8, YUVToRGBPlanarBlock, YUVToRGBPlanarTail>{});
    case F::kYUVToRGBP3C3: return PixelRows<InPlanes<u8>, Out3<u8>>(job, y0, y1, Rule<E::kAll, YUVToRGBEveryPixel<1>, NoTail>{});
    case F::kRGBToYCCC3: return RGBToYCCRows<In3, Out3, E::k8>(job, y0, y1);
    case F::kRGBToYCCAC4: return RGBToYCCRows<In4, Out4, E::k4>(job, y0, y1);
    case F::kYCCToRGBC3: return YCCToRGBRows<In3, Out3, E::k8>(job, y0, y1);
    case F::kYCCToRGBAC4: return YCCToRGBRows<In4, Out4, E::k4>(job, y0, y1);
    case F::kRGBToCbYCr422: return RGBToCbYCr422Rows<false>(job, y0, y1);
    case F::kRGBToCbYCr422Gamma: return RGBToCbYCr422Rows<true>(job, y0, y1);
    case F::kBGRToCbYCr422: return BGRToCbYCr422Rows(job, y0, y1);
    case F::kCbYCr422ToRGB: return PixelRows<CbYCr422Source, Out3<u8>>(job, y0, y1, Rule<E::k8, YCbCrQ4Block, YCbCrSetTail>{{kQ4Rounded}, {kSetBRounded}});
    case F::kCbYCr422ToBGR: return PixelRows<CbYCr422Source, Interleaved<u8, 4, true, true>>(job, y0, y1, Rule<E::k8, YCbCrQ4Block, YCbCrSetTail>{{kQ4Rounded}, {kSetBRounded}});
  }
}

}  // namespace HWY_NAMESPACE
}  // namespace vok
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace vok {

HWY_EXPORT(ColourRows);

// PhotoYCC spreads its rows over the team with a static schedule; the other
// conversions run on the calling thread.
void RunColour(const ColourJob& job) {
  const bool photoYCC =
      job.form == ColourForm::kRGBToYCCC3 || job.form == ColourForm::kRGBToYCCAC4 ||
      job.form == ColourForm::kYCCToRGBC3 || job.form == ColourForm::kYCCToRGBAC4;
  StaticRows(job.height, photoYCC, [&job](int y0, int y1) {
    HWY_DYNAMIC_DISPATCH(ColourRows)(job, y0, y1);
  });
}

}  // namespace vok
#endif  // HWY_ONCE
