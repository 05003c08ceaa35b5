// Exported entries of Add, Sub, Mul, their constant forms and the full-scale
// multiplies: argument checks in each family's order, then one row job.
#include <cstdint>
#include <type_traits>
#include <utility>

#include "arith/arith.h"
#include "data/copy.h"
#include "foundation/element_entries.h"
#include "vok.h"

namespace vok {
namespace {

enum class Shape { kTwoImages, kTwoImagesInPlace, kConstant, kConstantInPlace };

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

// What an entry passes on beside the rows: the scale factor and its shape,
// which decides on a parallel region.
struct ArithParam {
  int scale;
  Shape shape;
};

// The policy of the shared element-wise entries: a op b with Sub's minuend
// the second source; the full-scale multiplies check steps before the size,
// and their C3 and C4 forms test width and height before they forward.
template <ArithOp kOp>
struct ArithFamily {
  static constexpr bool kStepBeforeSize = kOp == ArithOp::kMulScale;
  static constexpr ForwardTest kForwardTest = kOp == ArithOp::kMulScale
                                                  ? ForwardTest::kWidthAndHeight
                                                  : ForwardTest::kWidth;
  template <typename T>
  static void Run(ElementRows rows, ArithParam param) {
    // Scale factors above the limit give zero everywhere: the image is set
    // to zero, AC4 alpha staying.
    if (std::is_integral_v<T> && kOp != ArithOp::kMulScale &&
        param.scale > LimitsOf<T>(kOp).zeroAbove) {
      const Layout layout = rows.layout;
      RunSet(SetJob{layout.keepAlpha ? SetKind::kAlpha : SetKind::kWhole,
                    layout.channels, layout.keepAlpha, {}, rows.dst,
                    int(rows.dstStep), nullptr, 0,
                    int(rows.rowSamples / layout.channels), rows.height},
             sizeof(T));
      return;
    }
    if (kOp == ArithOp::kSub && rows.constant == nullptr) {
      std::swap(rows.a, rows.b);
      std::swap(rows.aStep, rows.bStep);
    }
    const int parallelFrom = rows.layout.channels == 1
                                 ? ParallelFrom<T>(kOp, param.shape, param.scale)
                                 : 0;
    RunArith<T>(ArithJob{rows, kOp, param.scale, parallelFrom});
  }
};

}  // namespace
}  // namespace vok

// ---- Entry tables ----------------------------------------------------------
// One line per family and sample type; the layouts and the in-place twins
// expand from it. `Sfs` marks the forms with a trailing scale factor.

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

// In place: srcDst op src, the two-image form with srcDst as second source
// and destination (srcDst - src for Sub).
#define VOK_TWO_IMAGE_LAYOUT(layout, kLayout, family, op, token, T, sfs)     \
  VokStatus voki##family##_##token##_##layout##R##sfs(                        \
      const T* src1, int src1Step, const T* src2, int src2Step, T* dst,       \
      int dstStep, VokiSize roi VOK_SCALE_PARAM_##sfs) {                      \
    return vok::TwoImages<vok::ArithFamily<vok::ArithOp::op>, T,              \
                          vok::kLayout>(                                      \
        src1, src1Step, src2, src2Step, dst, dstStep, roi,                    \
        vok::ArithParam{VOK_SCALE_ARG_##sfs, vok::Shape::kTwoImages});        \
  }                                                                           \
  VokStatus voki##family##_##token##_##layout##IR##sfs(                       \
      const T* src, int srcStep, T* srcDst, int srcDstStep,                   \
      VokiSize roi VOK_SCALE_PARAM_##sfs) {                                   \
    return vok::TwoImages<vok::ArithFamily<vok::ArithOp::op>, T,              \
                          vok::kLayout>(                                      \
        src, srcStep, srcDst, srcDstStep, srcDst, srcDstStep, roi,            \
        vok::ArithParam{VOK_SCALE_ARG_##sfs, vok::Shape::kTwoImagesInPlace}); \
  }

#define VOK_CONSTANT_LAYOUT(layout, kLayout, family, op, token, T, sfs)      \
  VokStatus voki##family##_##token##_##layout##R##sfs(                        \
      const T* src, int srcStep, VOK_VALUE_PARAM_##layout(T), T* dst,         \
      int dstStep, VokiSize roi VOK_SCALE_PARAM_##sfs) {                      \
    return vok::ImageConstant<vok::ArithFamily<vok::ArithOp::op>, T, T,       \
                              vok::kLayout>(                                  \
        src, srcStep, VOK_VALUE_PTR_##layout, dst, dstStep, roi,              \
        vok::ArithParam{VOK_SCALE_ARG_##sfs, vok::Shape::kConstant});         \
  }                                                                           \
  VokStatus voki##family##_##token##_##layout##IR##sfs(                       \
      VOK_VALUE_PARAM_##layout(T), T* srcDst, int srcDstStep,                 \
      VokiSize roi VOK_SCALE_PARAM_##sfs) {                                   \
    return vok::ImageConstant<vok::ArithFamily<vok::ArithOp::op>, T, T,       \
                              vok::kLayout>(                                  \
        srcDst, srcDstStep, VOK_VALUE_PTR_##layout, srcDst, srcDstStep, roi,  \
        vok::ArithParam{VOK_SCALE_ARG_##sfs, vok::Shape::kConstantInPlace});  \
  }

#define VOK_TWO_IMAGE_FAMILY(family, op, token, T, sfs) \
  VOK_FOR_PIXEL_LAYOUTS(VOK_TWO_IMAGE_LAYOUT, family, op, token, T, sfs)
#define VOK_CONSTANT_FAMILY(family, op, token, T, sfs) \
  VOK_FOR_PIXEL_LAYOUTS(VOK_CONSTANT_LAYOUT, family, op, token, T, sfs)

extern "C" {
VOK_TWO_IMAGE_FORMS(VOK_TWO_IMAGE_FAMILY)
VOK_CONSTANT_FORMS(VOK_CONSTANT_FAMILY)
}
