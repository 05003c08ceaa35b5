// Exported entries of Add, Sub, Mul, their constant forms and the full-scale
// multiplies: argument checks in each family's order, then one row job.
#include <cstdint>
#include <type_traits>
#include <utility>

#include "arith/arith.h"
#include "data/copy.h"
#include "foundation/check.h"
#include "vok.h"

namespace vok {
namespace {

ElementRows MakeRows(const void* a, int aStep, const void* b, int bStep,
                     const void* constant, void* dst, int dstStep,
                     int64_t rowSamples, int height, Layout layout) {
  return ElementRows{a,   aStep,   b,      bStep,
                     constant, dst, dstStep, static_cast<size_t>(rowSamples),
                     height, layout};
}

enum class Shape { kTwoImages, kTwoImagesInPlace, kConstantInPlace };

// The C1 forms whose rounding paths share rows among threads: height plus
// width from which they do, for scale factors of 2 and up (to the zeroing
// limit) and for 1. 0 keeps that path serial, as are all forms not listed.
struct Cutover {
  ArithOp op;
  Shape shape;
  bool is8u;  // else 16s
  int fromScale2, fromScale1;
};
constexpr Cutover kCutovers[] = {
    {ArithOp::kAdd, Shape::kTwoImagesInPlace, true, 256, 0},
    {ArithOp::kAdd, Shape::kTwoImages, false, 256, 0},
    {ArithOp::kAdd, Shape::kConstantInPlace, true, 256, 256},
    {ArithOp::kAdd, Shape::kConstantInPlace, false, 0, 256},
    {ArithOp::kSub, Shape::kTwoImagesInPlace, true, 256, 0},
    {ArithOp::kSub, Shape::kTwoImages, false, 256, 0},
    {ArithOp::kSub, Shape::kTwoImagesInPlace, false, 128, 256},
    {ArithOp::kSub, Shape::kConstantInPlace, true, 256, 256},
    {ArithOp::kSub, Shape::kConstantInPlace, false, 0, 256},
    {ArithOp::kMul, Shape::kTwoImages, true, 256, 128},
    {ArithOp::kMul, Shape::kTwoImagesInPlace, true, 256, 256},
    {ArithOp::kMul, Shape::kTwoImages, false, 128, 128},
    {ArithOp::kMul, Shape::kTwoImagesInPlace, false, 0, 256},
    {ArithOp::kMul, Shape::kConstantInPlace, true, 128, 0},
    {ArithOp::kMul, Shape::kConstantInPlace, false, 256, 256},
};

template <typename T>
int ParallelFrom(ArithOp op, Shape shape, int scale) {
  if constexpr (std::is_same_v<T, Vok8u> || std::is_same_v<T, Vok16s>) {
    if (scale < 1) return 0;
    for (const Cutover& c : kCutovers)
      if (c.op == op && c.shape == shape && c.is8u == std::is_same_v<T, Vok8u>)
        return scale == 1 ? c.fromScale1 : c.fromScale2;
  }
  return 0;
}

// Scale factors above the limit give zero everywhere: the image is set to
// zero, AC4 alpha staying.
template <ArithOp kOp, typename T>
bool ZeroesAll(int scale) {
  return std::is_integral_v<T> && kOp != ArithOp::kMulScale &&
         scale > LimitsOf<T>(kOp).zeroAbove;
}

template <typename T>
void SetZero(T* dst, int dstStep, VokiSize roi, Layout layout) {
  RunSet(SetJob{layout.keepAlpha ? SetKind::kAlpha : SetKind::kWhole,
                layout.channels, layout.keepAlpha, {}, dst, dstStep, nullptr,
                0, roi.width, roi.height},
         sizeof(T));
}

// The full-scale multiplies test steps before the size; the others the size
// before the steps.
VokStatus CheckArgs(ArithOp op, Pointers pointers, VokiSize roi, Steps steps) {
  return op == ArithOp::kMulScale ? CheckNullStepSize(pointers, roi, steps)
                                  : CheckNullSizeStep(pointers, roi, steps);
}

// C3 and C4 two-image forms are the C1 form over a row of channels times the
// width. They test the size first: Add, Sub and Mul the width alone, the
// full-scale multiply width and height.
bool BadSizeBeforeForwarding(ArithOp op, VokiSize roi) {
  return op == ArithOp::kMulScale ? BadSize(roi) : roi.width < 1;
}

// a op b, where Sub's minuend is the second source.
template <ArithOp kOp, typename T, Layout kLayout, Shape kShape>
VokStatus TwoImages(const T* src1, int src1Step, const T* src2, int src2Step,
                    T* dst, int dstStep, VokiSize roi, int scale) {
  Layout layout = kLayout;
  if (kLayout.channels > 1 && !kLayout.keepAlpha) {
    if (BadSizeBeforeForwarding(kOp, roi)) return vokStatusBadSize;
    layout = kC1;
  }
  const VokStatus status = CheckArgs(kOp, {src1, src2, dst}, roi,
                                     {src1Step, src2Step, dstStep});
  if (status != vokStatusOk) return status;
  if (ZeroesAll<kOp, T>(scale)) {
    SetZero(dst, dstStep, roi, kLayout);
    return vokStatusOk;
  }
  if (kOp == ArithOp::kSub) {
    std::swap(src1, src2);
    std::swap(src1Step, src2Step);
  }
  const int parallelFrom =
      layout.channels == 1 ? ParallelFrom<T>(kOp, kShape, scale) : 0;
  RunArith<T>(ArithJob{
      MakeRows(src1, src1Step, src2, src2Step, nullptr, dst, dstStep,
               int64_t{roi.width} * kLayout.channels, roi.height, layout),
      kOp, scale, parallelFrom});
  return vokStatusOk;
}

// source op constant, one constant per channel. AC4 constants have three
// components; the fourth lane's value is never stored.
template <ArithOp kOp, typename T, Layout kLayout, bool kInPlace>
VokStatus ImageConstant(const T* src, int srcStep, const T* values, T* dst,
                        int dstStep, VokiSize roi, int scale) {
  const VokStatus status =
      CheckArgs(kOp, {src, values, dst}, roi, {srcStep, dstStep});
  if (status != vokStatusOk) return status;
  if (ZeroesAll<kOp, T>(scale)) {
    SetZero(dst, dstStep, roi, kLayout);
    return vokStatusOk;
  }
  // Only the in-place C1 forms have regions; the others run serially.
  const int parallelFrom =
      kInPlace && kLayout.channels == 1
          ? ParallelFrom<T>(kOp, Shape::kConstantInPlace, scale)
          : 0;
  T constant[4] = {};
  for (int c = 0; c < (kLayout.keepAlpha ? 3 : kLayout.channels); ++c)
    constant[c] = values[c];
  RunArith<T>(ArithJob{
      MakeRows(src, srcStep, nullptr, 0, constant, dst, dstStep,
               int64_t{roi.width} * kLayout.channels, roi.height, kLayout),
      kOp, scale, parallelFrom});
  return vokStatusOk;
}

}  // namespace
}  // namespace vok

// ---- Entry tables ----------------------------------------------------------
// One line per family and sample type; the layouts and the in-place twins
// expand from it. `Sfs` marks the forms with a trailing scale factor.

#define VOK_SCALE_PARAM_Sfs , int scale
#define VOK_SCALE_PARAM_
#define VOK_SCALE_ARG_Sfs scale
#define VOK_SCALE_ARG_ 0

#define VOK_TWO_IMAGE_FORMS(X)      \
  X(Add, kAdd, 8u, Vok8u, Sfs)      \
  X(Add, kAdd, 16s, Vok16s, Sfs)    \
  X(Add, kAdd, 32f, Vok32f, )       \
  X(Sub, kSub, 8u, Vok8u, Sfs)      \
  X(Sub, kSub, 16s, Vok16s, Sfs)    \
  X(Sub, kSub, 32f, Vok32f, )       \
  X(Mul, kMul, 8u, Vok8u, Sfs)      \
  X(Mul, kMul, 16s, Vok16s, Sfs)    \
  X(Mul, kMul, 32f, Vok32f, )       \
  X(MulScale, kMulScale, 8u, Vok8u, ) \
  X(MulScale, kMulScale, 16u, Vok16u, )

#define VOK_CONSTANT_FORMS(X)          \
  X(AddC, kAdd, 8u, Vok8u, Sfs)        \
  X(AddC, kAdd, 16s, Vok16s, Sfs)      \
  X(AddC, kAdd, 32f, Vok32f, )         \
  X(SubC, kSub, 8u, Vok8u, Sfs)        \
  X(SubC, kSub, 16s, Vok16s, Sfs)      \
  X(SubC, kSub, 32f, Vok32f, )         \
  X(MulC, kMul, 8u, Vok8u, Sfs)        \
  X(MulC, kMul, 16s, Vok16s, Sfs)      \
  X(MulC, kMul, 32f, Vok32f, )         \
  X(MulCScale, kMulScale, 8u, Vok8u, ) \
  X(MulCScale, kMulScale, 16u, Vok16u, )

#define VOK_TWO_IMAGE_LAYOUT(family, op, token, T, sfs, layout, kLayout)      \
  VokStatus voki##family##_##token##_##layout##R##sfs(                        \
      const T* src1, int src1Step, const T* src2, int src2Step, T* dst,       \
      int dstStep, VokiSize roi VOK_SCALE_PARAM_##sfs) {                      \
    return vok::TwoImages<vok::ArithOp::op, T, vok::kLayout,                  \
                          vok::Shape::kTwoImages>(                            \
        src1, src1Step, src2, src2Step, dst, dstStep, roi,                    \
        VOK_SCALE_ARG_##sfs);                                                 \
  }                                                                           \
  VokStatus voki##family##_##token##_##layout##IR##sfs(                       \
      const T* src, int srcStep, T* srcDst, int srcDstStep,                   \
      VokiSize roi VOK_SCALE_PARAM_##sfs) {                                   \
    return vok::TwoImages<vok::ArithOp::op, T, vok::kLayout,                  \
                          vok::Shape::kTwoImagesInPlace>(                     \
        src, srcStep, srcDst, srcDstStep, srcDst, srcDstStep, roi,            \
        VOK_SCALE_ARG_##sfs);                                                 \
  }

// C1 constants come by value, the others as a pointer to one per channel.
#define VOK_CONSTANT_LAYOUT(family, op, token, T, sfs, layout, kLayout,       \
                            ValueParam, valuePtr)                             \
  VokStatus voki##family##_##token##_##layout##R##sfs(                        \
      const T* src, int srcStep, ValueParam, T* dst, int dstStep,             \
      VokiSize roi VOK_SCALE_PARAM_##sfs) {                                   \
    return vok::ImageConstant<vok::ArithOp::op, T, vok::kLayout, false>(      \
        src, srcStep, valuePtr, dst, dstStep, roi, VOK_SCALE_ARG_##sfs);      \
  }                                                                           \
  VokStatus voki##family##_##token##_##layout##IR##sfs(                       \
      ValueParam, T* srcDst, int srcDstStep,                                  \
      VokiSize roi VOK_SCALE_PARAM_##sfs) {                                   \
    return vok::ImageConstant<vok::ArithOp::op, T, vok::kLayout, true>(       \
        srcDst, srcDstStep, valuePtr, srcDst, srcDstStep, roi,                \
        VOK_SCALE_ARG_##sfs);                                                 \
  }

#define VOK_TWO_IMAGE_FAMILY(family, op, token, T, sfs)         \
  VOK_TWO_IMAGE_LAYOUT(family, op, token, T, sfs, C1, kC1)      \
  VOK_TWO_IMAGE_LAYOUT(family, op, token, T, sfs, C3, kC3)      \
  VOK_TWO_IMAGE_LAYOUT(family, op, token, T, sfs, C4, kC4)      \
  VOK_TWO_IMAGE_LAYOUT(family, op, token, T, sfs, AC4, kAC4)

#define VOK_CONSTANT_FAMILY(family, op, token, T, sfs)                       \
  VOK_CONSTANT_LAYOUT(family, op, token, T, sfs, C1, kC1, T value, &value)  \
  VOK_CONSTANT_LAYOUT(family, op, token, T, sfs, C3, kC3,                   \
                      const T value[3], value)                              \
  VOK_CONSTANT_LAYOUT(family, op, token, T, sfs, C4, kC4,                   \
                      const T value[4], value)                              \
  VOK_CONSTANT_LAYOUT(family, op, token, T, sfs, AC4, kAC4,                 \
                      const T value[3], value)

extern "C" {
VOK_TWO_IMAGE_FORMS(VOK_TWO_IMAGE_FAMILY)
VOK_CONSTANT_FORMS(VOK_CONSTANT_FAMILY)
}
