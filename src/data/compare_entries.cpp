// Exported entries of Compare, CompareC, CompareEqualEps(C) and Complement:
// null, step, size, then the family's own tests, then one row job.
#include "data/compare.h"
#include "foundation/check.h"
#include "foundation/element_entries.h"
#include "vok.h"

namespace vok {
namespace {

// The second operand is an image, or a constant when `constant` is given.
template <typename T>
VokStatus CheckOperands(const T* src1, int src1Step, const T* src2,
                        int src2Step, const T* constant, const Vok8u* dst,
                        int dstStep, VokiSize roi) {
  return constant == nullptr
             ? CheckNullStepSize({src1, src2, dst}, roi,
                                 {src1Step, src2Step, dstStep})
             : CheckNullStepSize({src1, constant, dst}, roi,
                                 {src1Step, dstStep});
}

template <typename T, Layout kLayout>
void RunOn(const T* src1, int src1Step, const T* src2, int src2Step,
           const T* constant, Vok8u* dst, int dstStep, VokiSize roi,
           Relation relation, float eps) {
  RunCompare<T>(CompareJob{src1, src1Step, src2, src2Step, constant, dst,
                           dstStep, roi.width, roi.height, kLayout, relation,
                           eps});
}

// A selector outside the five relations does nothing, successfully.
template <typename T, Layout kLayout>
VokStatus CompareImages(const T* src1, int src1Step, const T* src2,
                        int src2Step, const T* constant, Vok8u* dst,
                        int dstStep, VokiSize roi, VokCmpOp op) {
  const VokStatus status = CheckOperands(src1, src1Step, src2, src2Step,
                                         constant, dst, dstStep, roi);
  if (status != vokStatusOk) return status;
  if (op < vokCmpLess || op > vokCmpGreater) return vokStatusOk;
  RunOn<T, kLayout>(src1, src1Step, src2, src2Step, constant, dst, dstStep,
                    roi, static_cast<Relation>(op), 0);
  return vokStatusOk;
}

// eps must be at least 0; NaN is not.
template <Layout kLayout>
VokStatus CompareEps(const Vok32f* src1, int src1Step, const Vok32f* src2,
                     int src2Step, const Vok32f* constant, Vok8u* dst,
                     int dstStep, VokiSize roi, Vok32f eps) {
  const VokStatus status = CheckOperands(src1, src1Step, src2, src2Step,
                                         constant, dst, dstStep, roi);
  if (status != vokStatusOk) return status;
  if (!(eps >= 0.0f)) return vokStatusBadEpsilon;
  RunOn<Vok32f, kLayout>(src1, src1Step, src2, src2Step, constant, dst,
                         dstStep, roi, Relation::kEqualEps, eps);
  return vokStatusOk;
}

}  // namespace
}  // namespace vok

// ---- Entry tables ----------------------------------------------------------
// One line per sample type; the layouts expand from it. C1 constants come by
// value, the others as one sample per channel.

#define VOK_COMPARE_TYPES(X) X(8u, Vok8u) X(16s, Vok16s) X(32f, Vok32f)

#define VOK_COMPARE(layout, kLayout, token, T)                               \
  VokStatus vokiCompare_##token##_##layout##R(                               \
      const T* src1, int src1Step, const T* src2, int src2Step, Vok8u* dst,  \
      int dstStep, VokiSize roi, VokCmpOp cmpOp) {                           \
    return vok::CompareImages<T, vok::kLayout>(src1, src1Step, src2,         \
                                               src2Step, nullptr, dst,       \
                                               dstStep, roi, cmpOp);      \
  }                                                                          \
  VokStatus vokiCompareC_##token##_##layout##R(                              \
      const T* src, int srcStep, VOK_VALUE_PARAM_##layout(T), Vok8u* dst,    \
      int dstStep, VokiSize roi, VokCmpOp cmpOp) {                           \
    return vok::CompareImages<T, vok::kLayout>(src, srcStep, nullptr, 0,     \
                                               VOK_VALUE_PTR_##layout, dst,  \
                                               dstStep, roi, cmpOp);      \
  }

#define VOK_COMPARE_EPS(layout, kLayout, unused)                             \
  VokStatus vokiCompareEqualEps_32f_##layout##R(                             \
      const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step,    \
      Vok8u* dst, int dstStep, VokiSize roi, Vok32f eps) {                   \
    return vok::CompareEps<vok::kLayout>(src1, src1Step, src2, src2Step,     \
                                         nullptr, dst, dstStep, roi, eps);   \
  }                                                                          \
  VokStatus vokiCompareEqualEpsC_32f_##layout##R(                            \
      const Vok32f* src, int srcStep, VOK_VALUE_PARAM_##layout(Vok32f),      \
      Vok8u* dst, int dstStep, VokiSize roi, Vok32f eps) {                   \
    return vok::CompareEps<vok::kLayout>(src, srcStep, nullptr, 0,           \
                                         VOK_VALUE_PTR_##layout, dst,        \
                                         dstStep, roi, eps);                 \
  }

#define VOK_COMPARE_FAMILY(...) VOK_FOR_PIXEL_LAYOUTS(VOK_COMPARE, __VA_ARGS__)

extern "C" {
VOK_COMPARE_TYPES(VOK_COMPARE_FAMILY)
VOK_FOR_PIXEL_LAYOUTS(VOK_COMPARE_EPS, )

VokStatus vokiComplement_32s_C1IR(Vok32s* srcDst, int srcDstStep,
                                  VokiSize roi) {
  const VokStatus status = vok::CheckNullStepSize({srcDst}, roi, {srcDstStep});
  if (status != vokStatusOk) return status;
  vok::RunComplement(vok::ElementRows{srcDst, srcDstStep, srcDst, srcDstStep,
                                      nullptr, srcDst, srcDstStep,
                                      size_t(roi.width), roi.height, vok::kC1});
  return vokStatusOk;
}
}
