// Entry bodies shared by the element-wise families with two operands: two
// images, or an image and one constant per channel. A family describes
// itself with a policy:
//   kStepBeforeSize  checks null, step, size instead of null, size, step;
//   kForwardTest     what C3 and C4 two-image forms test before they run as
//                    the C1 form over a row of three or four times the width;
//   Run<T>(rows, param)  the row work.
#pragma once

#include <cstdint>

#include "foundation/check.h"
#include "foundation/image.h"

namespace vok {

enum class ForwardTest { kWidth, kWidthAndHeight };

template <class Family>
VokStatus CheckFamilyArgs(Pointers pointers, VokiSize roi, Steps steps) {
  return Family::kStepBeforeSize ? CheckNullStepSize(pointers, roi, steps)
                                 : CheckNullSizeStep(pointers, roi, steps);
}

// src1 op src2 into dst, sample by sample.
template <class Family, typename T, Layout kLayout, typename Param>
VokStatus TwoImages(const T* src1, int src1Step, const T* src2, int src2Step,
                    T* dst, int dstStep, VokiSize roi, Param param) {
  Layout layout = kLayout;
  if (kLayout.channels > 1 && !kLayout.keepAlpha) {
    const bool bad = Family::kForwardTest == ForwardTest::kWidth
                         ? roi.width < 1
                         : BadSize(roi);
    if (bad) return vokStatusBadSize;
    layout = kC1;
  }
  const VokStatus status = CheckFamilyArgs<Family>(
      {src1, src2, dst}, roi, {src1Step, src2Step, dstStep});
  if (status != vokStatusOk) return status;
  Family::template Run<T>(
      ElementRows{src1, src1Step, src2, src2Step, nullptr, dst, dstStep,
                  static_cast<size_t>(int64_t{roi.width} * kLayout.channels),
                  roi.height, layout},
      param);
  return vokStatusOk;
}

// src op constant, the constant having one value V per channel (three for
// AC4, whose fourth is never used).
template <class Family, typename T, typename V, Layout kLayout,
          typename Param>
VokStatus ImageConstant(const T* src, int srcStep, const V* values, T* dst,
                        int dstStep, VokiSize roi, Param param) {
  const VokStatus status =
      CheckFamilyArgs<Family>({src, values, dst}, roi, {srcStep, dstStep});
  if (status != vokStatusOk) return status;
  V constant[4] = {};
  for (int c = 0; c < (kLayout.keepAlpha ? 3 : kLayout.channels); ++c)
    constant[c] = values[c];
  Family::template Run<T>(
      ElementRows{src, srcStep, nullptr, 0, constant, dst, dstStep,
                  static_cast<size_t>(int64_t{roi.width} * kLayout.channels),
                  roi.height, kLayout},
      param);
  return vokStatusOk;
}

}  // namespace vok

// Entry-table helpers. `Sfs` in a table marks the forms with a trailing
// scale factor; forms without one pass 0 on.
#define VOK_SCALE_PARAM_Sfs , int scale
#define VOK_SCALE_PARAM_
#define VOK_SCALE_ARG_Sfs scale
#define VOK_SCALE_ARG_ 0

// C1 constants come by value, the others as a pointer
// to one value per channel.
#define VOK_VALUE_PARAM_C1(V) V value
#define VOK_VALUE_PARAM_C3(V) const V value[3]
#define VOK_VALUE_PARAM_C4(V) const V value[4]
#define VOK_VALUE_PARAM_AC4(V) const V value[3]
#define VOK_VALUE_PTR_C1 &value
#define VOK_VALUE_PTR_C3 value
#define VOK_VALUE_PTR_C4 value
#define VOK_VALUE_PTR_AC4 value

// Expands X(layout) for the four pixel layouts of the element-wise families.
#define VOK_FOR_PIXEL_LAYOUTS(X, ...) \
  X(C1, kC1, __VA_ARGS__)             \
  X(C3, kC3, __VA_ARGS__)             \
  X(C4, kC4, __VA_ARGS__)             \
  X(AC4, kAC4, __VA_ARGS__)
