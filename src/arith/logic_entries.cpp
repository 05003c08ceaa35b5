// Exported entries of And, Or, Xor, Not, their constant forms and the
// constant shifts. All check null, then step, then size; in-place forms are
// the out-of-place ones with the in-place image as second source and
// destination.
#include <algorithm>

#include "arith/logic.h"
#include "foundation/element_entries.h"
#include "vok.h"

namespace vok {
namespace {

template <LogicOp kOp>
struct BitwiseFamily {
  static constexpr bool kStepBeforeSize = true;
  static constexpr ForwardTest kForwardTest = ForwardTest::kWidthAndHeight;
  template <typename T>
  static void Run(const ElementRows& rows, int) {
    RunLogic<T>(LogicJob{rows, kOp, 0});
  }
};

// The counts arrive as one unsigned 32-bit value per channel. A count at or
// above the sample's width acts as the width itself, which also fits in a
// sample of every type.
template <LogicOp kOp>
struct ShiftFamily {
  static constexpr bool kStepBeforeSize = true;
  static constexpr ForwardTest kForwardTest = ForwardTest::kWidthAndHeight;
  template <typename T>
  static void Run(const ElementRows& rows, int) {
    constexpr Vok32u kBits = 8 * sizeof(T);
    const Vok32u* counts = static_cast<const Vok32u*>(rows.constant);
    const int used = rows.layout.keepAlpha ? 3 : rows.layout.channels;
    T limited[4] = {};
    bool uniform = true;
    for (int c = 0; c < used; ++c) {
      limited[c] = static_cast<T>(std::min(counts[c], kBits));
      uniform = uniform && limited[c] == limited[0];
    }
    ElementRows shifted = rows;
    shifted.constant = limited;
    RunLogic<T>(LogicJob{shifted, kOp, uniform ? int{limited[0]} : -1});
  }
};

// Not is Xor with all ones; C3 and C4 forms test the size first.
template <Layout kLayout>
VokStatus Not(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep,
              VokiSize roi) {
  if (kLayout.channels > 1 && !kLayout.keepAlpha && BadSize(roi))
    return vokStatusBadSize;
  const Vok8u ones[4] = {0xFF, 0xFF, 0xFF, 0xFF};
  return ImageConstant<BitwiseFamily<LogicOp::kXor>, Vok8u, Vok8u, kLayout>(
      src, srcStep, ones, dst, dstStep, roi, 0);
}

}  // namespace
}  // namespace vok

// ---- Entry tables ----------------------------------------------------------
// One line per family and sample type; layouts and in-place twins expand
// from it.

#define VOK_BITWISE_FORMS(X) \
  X(And, kAnd, 8u, Vok8u)    \
  X(And, kAnd, 16u, Vok16u)  \
  X(And, kAnd, 32s, Vok32s)  \
  X(Or, kOr, 8u, Vok8u)      \
  X(Or, kOr, 16u, Vok16u)    \
  X(Or, kOr, 32s, Vok32s)    \
  X(Xor, kXor, 8u, Vok8u)    \
  X(Xor, kXor, 16u, Vok16u)  \
  X(Xor, kXor, 32s, Vok32s)

#define VOK_SHIFT_FORMS(X)                     \
  X(LShiftC, kShiftLeft, 8u, Vok8u)            \
  X(LShiftC, kShiftLeft, 16u, Vok16u)          \
  X(LShiftC, kShiftLeft, 32s, Vok32s)          \
  X(RShiftC, kShiftRight, 8u, Vok8u)           \
  X(RShiftC, kShiftRight, 8s, Vok8s)           \
  X(RShiftC, kShiftRight, 16u, Vok16u)         \
  X(RShiftC, kShiftRight, 16s, Vok16s)         \
  X(RShiftC, kShiftRight, 32s, Vok32s)

#define VOK_TWO_IMAGE_LOGIC(layout, kLayout, family, op, token, T)           \
  VokStatus voki##family##_##token##_##layout##R(                            \
      const T* src1, int src1Step, const T* src2, int src2Step, T* dst,      \
      int dstStep, VokiSize roi) {                                           \
    return vok::TwoImages<vok::BitwiseFamily<vok::LogicOp::op>, T,           \
                          vok::kLayout>(src1, src1Step, src2, src2Step, dst, \
                                        dstStep, roi, 0);                    \
  }                                                                          \
  VokStatus voki##family##_##token##_##layout##IR(                           \
      const T* src, int srcStep, T* srcDst, int srcDstStep, VokiSize roi) {  \
    return voki##family##_##token##_##layout##R(src, srcStep, srcDst,        \
                                                srcDstStep, srcDst,          \
                                                srcDstStep, roi);            \
  }

#define VOK_CONSTANT_LOGIC(layout, kLayout, Family, family, op, token, T, V) \
  VokStatus voki##family##_##token##_##layout##R(                            \
      const T* src, int srcStep, VOK_VALUE_PARAM_##layout(V), T* dst,        \
      int dstStep, VokiSize roi) {                                           \
    return vok::ImageConstant<vok::Family<vok::LogicOp::op>, T, V,           \
                              vok::kLayout>(src, srcStep,                    \
                                            VOK_VALUE_PTR_##layout, dst,     \
                                            dstStep, roi, 0);                \
  }                                                                          \
  VokStatus voki##family##_##token##_##layout##IR(                           \
      VOK_VALUE_PARAM_##layout(V), T* srcDst, int srcDstStep, VokiSize roi) { \
    return voki##family##_##token##_##layout##R(                             \
        srcDst, srcDstStep, value, srcDst, srcDstStep, roi);                 \
  }

#define VOK_NOT(layout, kLayout, unused)                                      \
  VokStatus vokiNot_8u_##layout##R(const Vok8u* src, int srcStep, Vok8u* dst, \
                                   int dstStep, VokiSize roi) {               \
    return vok::Not<vok::kLayout>(src, srcStep, dst, dstStep, roi);           \
  }                                                                           \
  VokStatus vokiNot_8u_##layout##IR(Vok8u* srcDst, int srcDstStep,            \
                                    VokiSize roi) {                           \
    return vok::Not<vok::kLayout>(srcDst, srcDstStep, srcDst, srcDstStep,     \
                                  roi);                                       \
  }

#define VOK_BITWISE_FAMILY(family, op, token, T)                       \
  VOK_FOR_PIXEL_LAYOUTS(VOK_TWO_IMAGE_LOGIC, family, op, token, T)     \
  VOK_FOR_PIXEL_LAYOUTS(VOK_CONSTANT_LOGIC, BitwiseFamily, family##C, \
                        op, token, T, T)
#define VOK_SHIFT_FAMILY(family, op, token, T)                       \
  VOK_FOR_PIXEL_LAYOUTS(VOK_CONSTANT_LOGIC, ShiftFamily, family, op, \
                        token, T, Vok32u)

extern "C" {
VOK_BITWISE_FORMS(VOK_BITWISE_FAMILY)
VOK_SHIFT_FORMS(VOK_SHIFT_FAMILY)
VOK_FOR_PIXEL_LAYOUTS(VOK_NOT, )
}
