// Exported entries of Convert and Scale: argument checks, then one row job,
// run under the rounding mode that the form fixes.
#include <cstdint>
#include <optional>
#include <type_traits>

#include "data/convert.h"
#include "foundation/check.h"
#include "foundation/element_entries.h"
#include "vok.h"

namespace vok {
namespace {

// Null, size, step; then the job, under `rounding` when the form sets one.
template <typename TS, typename TD, Layout kLayout>
VokStatus ConvertImage(const TS* src, int srcStep, TD* dst, int dstStep,
                       VokiSize roi, Conversion conversion,
                       std::optional<unsigned> rounding = {}, float vMin = 0,
                       float vMax = 0) {
  const VokStatus status =
      CheckNullSizeStep({src, dst}, roi, {srcStep, dstStep});
  if (status != vokStatusOk) return status;
  // Single-source rows: b repeats a so the row loop never sees a null.
  const ConvertJob job{
      ElementRows{src, srcStep, src, srcStep, nullptr, dst, dstStep,
                  size_t(roi.width) * kLayout.channels, roi.height, kLayout},
      conversion, vMin, vMax};
  if (rounding) {
    const RoundingScope scope(*rounding);
    RunConvert<TS, TD>(job);
  } else {
    RunConvert<TS, TD>(job);
  }
  return vokStatusOk;
}

// Any selector but vokRoundNear truncates.
template <typename TD, Layout kLayout>
VokStatus ConvertFromFloat(const Vok32f* src, int srcStep, TD* dst,
                           int dstStep, VokiSize roi, VokRoundMode mode) {
  return ConvertImage<Vok32f, TD, kLayout>(
      src, srcStep, dst, dstStep, roi, Conversion::kValue,
      mode == vokRoundNear ? RoundingScope::kNearest
                           : RoundingScope::kTowardZero);
}

// The float range is tested before anything else; NaN is not positive.
// Only the scale from float rounds, always to nearest.
template <typename TS, typename TD, Layout kLayout>
VokStatus ScaleWithRange(const TS* src, int srcStep, TD* dst, int dstStep,
                         VokiSize roi, Vok32f vMin, Vok32f vMax) {
  if (!(vMax - vMin > 0.0f)) return vokStatusBadRange;
  std::optional<unsigned> rounding;
  if constexpr (std::is_same_v<TS, Vok32f>) rounding = RoundingScope::kNearest;
  return ConvertImage<TS, TD, kLayout>(src, srcStep, dst, dstStep, roi,
                                       Conversion::kScale, rounding, vMin,
                                       vMax);
}

// Only vokHintAccurate selects the rounded form, which runs to nearest.
template <typename TS, Layout kLayout>
VokStatus ScaleNarrowing(const TS* src, int srcStep, Vok8u* dst, int dstStep,
                         VokiSize roi, VokHint hint) {
  if (hint == vokHintAccurate) {
    return ConvertImage<TS, Vok8u, kLayout>(src, srcStep, dst, dstStep, roi,
                                            Conversion::kScaleAccurate,
                                            RoundingScope::kNearest);
  }
  return ConvertImage<TS, Vok8u, kLayout>(src, srcStep, dst, dstStep, roi,
                                          Conversion::kScale);
}

}  // namespace
}  // namespace vok

// ---- Entry tables ----------------------------------------------------------
// One line per type pair; the four layouts expand from it.

#define VOK_CONVERT_VALUE_PAIRS(X)                                         \
  X(8u16u, Vok8u, Vok16u) X(8u16s, Vok8u, Vok16s) X(8u32s, Vok8u, Vok32s)  \
  X(8u32f, Vok8u, Vok32f) X(8s32s, Vok8s, Vok32s) X(8s32f, Vok8s, Vok32f)  \
  X(16u32s, Vok16u, Vok32s) X(16u32f, Vok16u, Vok32f)                      \
  X(16s32f, Vok16s, Vok32f) X(16u8u, Vok16u, Vok8u)                        \
  X(16s8u, Vok16s, Vok8u) X(32s8u, Vok32s, Vok8u) X(32s8s, Vok32s, Vok8s)

#define VOK_CONVERT_FLOAT_PAIRS(X) \
  X(32f8u, Vok8u) X(32f8s, Vok8s) X(32f16u, Vok16u) X(32f16s, Vok16s)

#define VOK_SCALE_PAIRS(X) \
  X(8u16u, Vok16u) X(8u16s, Vok16s) X(8u32s, Vok32s)

#define VOK_SCALE_RANGE_PAIRS(X) X(8u32f, Vok8u, Vok32f) X(32f8u, Vok32f, Vok8u)

#define VOK_SCALE_HINT_PAIRS(X) \
  X(16u8u, Vok16u) X(16s8u, Vok16s) X(32s8u, Vok32s)

#define VOK_CONVERT_VALUE(layout, kLayout, token, TS, TD)                    \
  VokStatus vokiConvert_##token##_##layout##R(                               \
      const TS* src, int srcStep, TD* dst, int dstStep, VokiSize roi) {      \
    return vok::ConvertImage<TS, TD, vok::kLayout>(                          \
        src, srcStep, dst, dstStep, roi, vok::Conversion::kValue);           \
  }
#define VOK_CONVERT_FLOAT(layout, kLayout, token, TD)                        \
  VokStatus vokiConvert_##token##_##layout##R(                               \
      const Vok32f* src, int srcStep, TD* dst, int dstStep, VokiSize roi,    \
      VokRoundMode roundMode) {                                              \
    return vok::ConvertFromFloat<TD, vok::kLayout>(src, srcStep, dst,        \
                                                   dstStep, roi, roundMode); \
  }
#define VOK_SCALE(layout, kLayout, token, TD)                                \
  VokStatus vokiScale_##token##_##layout##R(                                 \
      const Vok8u* src, int srcStep, TD* dst, int dstStep, VokiSize roi) {   \
    return vok::ConvertImage<Vok8u, TD, vok::kLayout>(                       \
        src, srcStep, dst, dstStep, roi, vok::Conversion::kScale);           \
  }
#define VOK_SCALE_RANGE(layout, kLayout, token, TS, TD)                      \
  VokStatus vokiScale_##token##_##layout##R(const TS* src, int srcStep,      \
                                            TD* dst, int dstStep,            \
                                            VokiSize roi, Vok32f vMin,       \
                                            Vok32f vMax) {                   \
    return vok::ScaleWithRange<TS, TD, vok::kLayout>(src, srcStep, dst,      \
                                                     dstStep, roi, vMin,     \
                                                     vMax);                  \
  }
#define VOK_SCALE_HINT(layout, kLayout, token, TS)                           \
  VokStatus vokiScale_##token##_##layout##R(const TS* src, int srcStep,      \
                                            Vok8u* dst, int dstStep,         \
                                            VokiSize roi, VokHint hint) {    \
    return vok::ScaleNarrowing<TS, vok::kLayout>(src, srcStep, dst, dstStep, \
                                                 roi, hint);                 \
  }

#define VOK_CONVERT_VALUE_FAMILY(...) \
  VOK_FOR_PIXEL_LAYOUTS(VOK_CONVERT_VALUE, __VA_ARGS__)
#define VOK_CONVERT_FLOAT_FAMILY(...) \
  VOK_FOR_PIXEL_LAYOUTS(VOK_CONVERT_FLOAT, __VA_ARGS__)
#define VOK_SCALE_FAMILY(...) \
  VOK_FOR_PIXEL_LAYOUTS(VOK_SCALE, __VA_ARGS__)
#define VOK_SCALE_RANGE_FAMILY(...) \
  VOK_FOR_PIXEL_LAYOUTS(VOK_SCALE_RANGE, __VA_ARGS__)
#define VOK_SCALE_HINT_FAMILY(...) \
  VOK_FOR_PIXEL_LAYOUTS(VOK_SCALE_HINT, __VA_ARGS__)

extern "C" {
VOK_CONVERT_VALUE_PAIRS(VOK_CONVERT_VALUE_FAMILY)
VOK_CONVERT_FLOAT_PAIRS(VOK_CONVERT_FLOAT_FAMILY)
VOK_SCALE_PAIRS(VOK_SCALE_FAMILY)
VOK_SCALE_RANGE_PAIRS(VOK_SCALE_RANGE_FAMILY)
VOK_SCALE_HINT_PAIRS(VOK_SCALE_HINT_FAMILY)
}
