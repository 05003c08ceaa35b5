// Exported entries of Add, Sub, Mul, Div and their constant forms on 16sc,
// 32sc and 32fc images. C1 forms and two-image C3 forms run the vector
// layer's rule row by row; AC4 forms and constant C3 forms are plain loops
// with ties away from zero.
#include <cstdint>
#include <type_traits>
#include <utility>

#include "arith/complex.h"
#include "arith/exact_rounding.h"
#include "foundation/check.h"
#include "foundation/element_entries.h"
#include "vok.h"

namespace vok {
namespace {

template <typename T>
constexpr bool kIsFloat = std::is_same_v<T, Vok32fc>;

// Whether the square norm of a constant is zero as the plain loops form it:
// in single precision, or as a 32-bit integer that may wrap.
template <typename T>
bool ZeroNorm(T c) {
  if constexpr (kIsFloat<T>) {
    return c.re * c.re + c.im * c.im == 0.0f;
  } else {
    const uint64_t re2 = static_cast<uint64_t>(int64_t{c.re} * c.re);
    const uint64_t im2 = static_cast<uint64_t>(int64_t{c.im} * c.im);
    return Wrap32(re2 + im2) == 0;
  }
}

template <typename T>
bool BothPartsZero(T c) {
  return c.re == 0 && c.im == 0;
}

template <typename T, ComplexOp kOp, Layout kLayout, bool kInPlace>
VokStatus ComplexImages(const T* src1, int src1Step, const T* src2, int src2Step,
                    T* dst, int dstStep, VokiSize roi, int scale) {
  // C3 sums, differences and products are the C1 form over three times the
  // width, which tests the width before anything else.
  if (kLayout.channels == 3 && kOp != ComplexOp::kDiv && roi.width < 1)
    return vokStatusBadSize;
  const VokStatus status = CheckNullSizeStep({src1, src2, dst}, roi,
                                             {src1Step, src2Step, dstStep});
  if (status != vokStatusOk) return status;
  if (SecondLeads(kOp)) {
    std::swap(src1, src2);
    std::swap(src1Step, src2Step);
  }
  const ComplexArith arith = !kLayout.keepAlpha ? ComplexArith::kVector
                             : kInPlace         ? ComplexArith::kPlainInPlace
                                                : ComplexArith::kPlain;
  const ElementRows rows{src1, src1Step, src2, src2Step, nullptr, dst, dstStep,
                         static_cast<size_t>(int64_t{roi.width} * kLayout.channels),
                         roi.height, kLayout.keepAlpha ? kAC4 : kC1};
  return RunComplex<T>(ComplexJob{rows, kOp, arith, scale});
}

// The constant forms test their constant before the image in several
// places: a zero divisor, and the in-place float sum with zero, which
// returns before any other test.
template <typename T, ComplexOp kOp, Layout kLayout, bool kInPlace>
VokStatus ComplexImageConstant(const T* src, int srcStep, const T* values, T* dst,
                        int dstStep, VokiSize roi, int scale) {
  constexpr int kUsed = kLayout.keepAlpha ? 3 : kLayout.channels;
  constexpr bool kPlain = kLayout.channels > 1;
  constexpr bool kSkipsZero =
      kIsFloat<T> && kInPlace && (kOp == ComplexOp::kAdd || kOp == ComplexOp::kSub);
  constexpr bool kDiv = kOp == ComplexOp::kDiv;
  if ((kSkipsZero || (kDiv && kPlain)) && values == nullptr) return vokStatusNullPointer;
  if constexpr (kSkipsZero) {
    bool changes = false;
    for (int c = 0; c < kUsed; ++c)
      for (float part : {values[c].re, values[c].im}) changes |= part < 0 || part > 0;
    if (!changes) return vokStatusOk;
  }
  if constexpr (kDiv && kPlain) {
    for (int c = 0; c < kUsed; ++c)
      if (ZeroNorm(values[c])) return vokStatusDivideByZero;
  } else if constexpr (kDiv && kIsFloat<T> && !kInPlace) {
    if (BothPartsZero(*values)) return vokStatusDivideByZero;
  }
  const VokStatus status =
      CheckNullSizeStep({src, values, dst}, roi, {srcStep, dstStep});
  if (status != vokStatusOk) return status;
  if (kDiv && !kPlain && !kIsFloat<T> && BothPartsZero(*values))
    return vokStatusDivideByZero;
  T constant[4] = {};
  for (int c = 0; c < kUsed; ++c) constant[c] = values[c];
  const ElementRows rows{src, srcStep, nullptr, 0, constant, dst, dstStep,
                         static_cast<size_t>(int64_t{roi.width} * kLayout.channels),
                         roi.height, kLayout};
  return RunComplex<T>(ComplexJob{
      rows, kOp, kPlain ? ComplexArith::kPlain : ComplexArith::kVector, scale});
}

}  // namespace
}  // namespace vok

// ---- Entry tables ------------------------------------------------------------
// One line per family and sample type; layouts and in-place twins expand
// from it. `Sfs` marks the forms with a trailing scale factor.

#define VOK_COMPLEX_FAMILIES(X)  \
  X(Add, kAdd, 16sc, Vok16sc, Sfs) \
  X(Add, kAdd, 32sc, Vok32sc, Sfs) \
  X(Add, kAdd, 32fc, Vok32fc, )    \
  X(Sub, kSub, 16sc, Vok16sc, Sfs) \
  X(Sub, kSub, 32sc, Vok32sc, Sfs) \
  X(Sub, kSub, 32fc, Vok32fc, )    \
  X(Mul, kMul, 16sc, Vok16sc, Sfs) \
  X(Mul, kMul, 32sc, Vok32sc, Sfs) \
  X(Mul, kMul, 32fc, Vok32fc, )    \
  X(Div, kDiv, 16sc, Vok16sc, Sfs) \
  X(Div, kDiv, 32sc, Vok32sc, Sfs) \
  X(Div, kDiv, 32fc, Vok32fc, )

#define VOK_COMPLEX_LAYOUTS(X, ...) \
  X(C1, kC1, __VA_ARGS__)           \
  X(C3, kC3, __VA_ARGS__)           \
  X(AC4, kAC4, __VA_ARGS__)

#define VOK_COMPLEX_TWO_IMAGES(layout, kLayout, family, op, token, T, sfs)    \
  VokStatus voki##family##_##token##_##layout##R##sfs(                        \
      const T* src1, int src1Step, const T* src2, int src2Step, T* dst,       \
      int dstStep, VokiSize roi VOK_SCALE_PARAM_##sfs) {                      \
    return vok::ComplexImages<T, vok::ComplexOp::op, vok::kLayout, false>(        \
        src1, src1Step, src2, src2Step, dst, dstStep, roi,                    \
        VOK_SCALE_ARG_##sfs);                                                 \
  }                                                                           \
  VokStatus voki##family##_##token##_##layout##IR##sfs(                       \
      const T* src, int srcStep, T* srcDst, int srcDstStep,                   \
      VokiSize roi VOK_SCALE_PARAM_##sfs) {                                   \
    return vok::ComplexImages<T, vok::ComplexOp::op, vok::kLayout, true>(         \
        src, srcStep, srcDst, srcDstStep, srcDst, srcDstStep, roi,            \
        VOK_SCALE_ARG_##sfs);                                                 \
  }

#define VOK_COMPLEX_CONSTANT(layout, kLayout, family, op, token, T, sfs)      \
  VokStatus voki##family##C_##token##_##layout##R##sfs(                       \
      const T* src, int srcStep, VOK_VALUE_PARAM_##layout(T), T* dst,         \
      int dstStep, VokiSize roi VOK_SCALE_PARAM_##sfs) {                      \
    return vok::ComplexImageConstant<T, vok::ComplexOp::op, vok::kLayout, false>(    \
        src, srcStep, VOK_VALUE_PTR_##layout, dst, dstStep, roi,              \
        VOK_SCALE_ARG_##sfs);                                                 \
  }                                                                           \
  VokStatus voki##family##C_##token##_##layout##IR##sfs(                      \
      VOK_VALUE_PARAM_##layout(T), T* srcDst, int srcDstStep,                 \
      VokiSize roi VOK_SCALE_PARAM_##sfs) {                                   \
    return vok::ComplexImageConstant<T, vok::ComplexOp::op, vok::kLayout, true>(     \
        srcDst, srcDstStep, VOK_VALUE_PTR_##layout, srcDst, srcDstStep, roi,  \
        VOK_SCALE_ARG_##sfs);                                                 \
  }

#define VOK_COMPLEX_FAMILY(family, op, token, T, sfs)                          \
  VOK_COMPLEX_LAYOUTS(VOK_COMPLEX_TWO_IMAGES, family, op, token, T, sfs)       \
  VOK_COMPLEX_LAYOUTS(VOK_COMPLEX_CONSTANT, family, op, token, T, sfs)

extern "C" {
VOK_COMPLEX_FAMILIES(VOK_COMPLEX_FAMILY)
}
