// Exported entries of the luma-chroma conversions: argument checks in each
// shape's order, then one job.
#include <array>
#include <cstdint>

#include "colour/luma_chroma.h"
#include "foundation/check.h"
#include "vok.h"

namespace vok {
namespace {

template <typename T>
constexpr SampleType kSampleOf = SampleType::k8u;
template <>
constexpr SampleType kSampleOf<Vok16u> = SampleType::k16u;
template <>
constexpr SampleType kSampleOf<Vok16s> = SampleType::k16s;
template <>
constexpr SampleType kSampleOf<Vok32f> = SampleType::k32f;

// The planes of a side: an interleaved image stands in all three places.
using SourcePlanes = std::array<const void*, 3>;
using DestinationPlanes = std::array<void*, 3>;
SourcePlanes PlanesOf(const Vok8u* image) { return {image, image, image}; }
SourcePlanes PlanesOf(const Vok8u* const* planes) {
  return {planes[0], planes[1], planes[2]};
}
DestinationPlanes PlanesOf(Vok8u* image) { return {image, image, image}; }
DestinationPlanes PlanesOf(Vok8u* const* planes) {
  return {planes[0], planes[1], planes[2]};
}

template <ColourForm kForm, typename T>
VokStatus Run(const SourcePlanes& src, int srcStep, const DestinationPlanes& dst,
              int dstStep, VokiSize roi, Vok8u alpha = 0) {
  RunColour(ColourJob{kForm, kSampleOf<T>, {src[0], src[1], src[2]}, srcStep,
                      {dst[0], dst[1], dst[2]}, dstStep, roi.width, roi.height,
                      alpha});
  return vokStatusOk;
}

// Interleaved on both sides: pointers, size, steps. The two 4:2:2 forms
// with kStepTest false have no step test at all.
template <ColourForm kForm, typename T, bool kStepTest = true>
VokStatus Packed(const T* src, int srcStep, T* dst, int dstStep, VokiSize roi,
                 Vok8u alpha = 0) {
  const VokStatus status =
      CheckNullSizeStep({src, dst}, roi, {kStepTest ? srcStep : 1, kStepTest ? dstStep : 1});
  if (status != vokStatusOk) return status;
  return Run<kForm, T>({src, src, src}, srcStep, {dst, dst, dst}, dstStep, roi,
                       alpha);
}

// Planes on one side or both: the pointers passed, then the size, then each
// plane, then the steps. So a null plane with a bad size is a bad size.
template <ColourForm kForm, typename SrcArg, typename DstArg>
VokStatus Planar(SrcArg src, int srcStep, DstArg dst, int dstStep,
                 VokiSize roi) {
  if (AnyNull({src, dst})) return vokStatusNullPointer;
  if (BadSize(roi)) return vokStatusBadSize;
  const SourcePlanes in = PlanesOf(src);
  const DestinationPlanes out = PlanesOf(dst);
  if (AnyNull({in[0], in[1], in[2], out[0], out[1], out[2]}))
    return vokStatusNullPointer;
  if (AnyBadStep({srcStep, dstStep})) return vokStatusBadStep;
  return Run<kForm, Vok8u>(in, srcStep, out, dstStep, roi);
}

}  // namespace
}  // namespace vok

// ---- Entry tables ----------------------------------------------------------

// Interleaved forms: name, kernel, sample type, whether the steps are tested.
#define VOK_PACKED_FORMS(X)                                          \
  X(RGBToYCbCr_8u_C3R, kRGBToYCbCrC3, Vok8u, true)                   \
  X(RGBToYCbCr_8u_AC4R, kRGBToYCbCrAC4, Vok8u, true)                 \
  X(YCbCrToRGB_8u_C3R, kYCbCrToRGBC3, Vok8u, true)                   \
  X(YCbCrToRGB_8u_AC4R, kYCbCrToRGBAC4, Vok8u, true)                 \
  X(RGBToYUV_8u_C3R, kRGBToYUVC3, Vok8u, true)                       \
  X(RGBToYUV_8u_AC4R, kRGBToYUVAC4, Vok8u, true)                     \
  X(YUVToRGB_8u_C3R, kYUVToRGBC3, Vok8u, true)                       \
  X(YUVToRGB_8u_AC4R, kYUVToRGBAC4, Vok8u, true)                     \
  X(RGBToYCC_8u_C3R, kRGBToYCCC3, Vok8u, true)                       \
  X(RGBToYCC_8u_AC4R, kRGBToYCCAC4, Vok8u, true)                     \
  X(RGBToYCC_16u_C3R, kRGBToYCCC3, Vok16u, true)                     \
  X(RGBToYCC_16u_AC4R, kRGBToYCCAC4, Vok16u, true)                   \
  X(RGBToYCC_16s_C3R, kRGBToYCCC3, Vok16s, true)                     \
  X(RGBToYCC_16s_AC4R, kRGBToYCCAC4, Vok16s, true)                   \
  X(RGBToYCC_32f_C3R, kRGBToYCCC3, Vok32f, true)                     \
  X(RGBToYCC_32f_AC4R, kRGBToYCCAC4, Vok32f, true)                   \
  X(YCCToRGB_8u_C3R, kYCCToRGBC3, Vok8u, true)                       \
  X(YCCToRGB_8u_AC4R, kYCCToRGBAC4, Vok8u, true)                     \
  X(YCCToRGB_16u_C3R, kYCCToRGBC3, Vok16u, true)                     \
  X(YCCToRGB_16u_AC4R, kYCCToRGBAC4, Vok16u, true)                   \
  X(YCCToRGB_16s_C3R, kYCCToRGBC3, Vok16s, true)                     \
  X(YCCToRGB_16s_AC4R, kYCCToRGBAC4, Vok16s, true)                   \
  X(YCCToRGB_32f_C3R, kYCCToRGBC3, Vok32f, true)                     \
  X(YCCToRGB_32f_AC4R, kYCCToRGBAC4, Vok32f, true)                   \
  X(RGBToCbYCr422_8u_C3C2R, kRGBToCbYCr422, Vok8u, true)             \
  X(RGBToCbYCr422Gamma_8u_C3C2R, kRGBToCbYCr422Gamma, Vok8u, true)   \
  X(CbYCr422ToRGB_8u_C2C3R, kCbYCr422ToRGB, Vok8u, true)             \
  X(BGRToCbYCr422_8u_AC4C2R, kBGRToCbYCr422, Vok8u, false)

// Forms with planes: name, kernel, source and destination parameters.
#define VOK_PLANAR_FORMS(X)                                                   \
  X(RGBToYCbCr_8u_P3R, kRGBToYCbCrP3, const Vok8u* const src[3], Vok8u* const dst[3]) \
  X(YCbCrToRGB_8u_P3R, kYCbCrToRGBP3, const Vok8u* const src[3], Vok8u* const dst[3]) \
  X(YCbCrToRGB_8u_P3C3R, kYCbCrToRGBP3C3, const Vok8u* const src[3], Vok8u* dst)      \
  X(RGBToYUV_8u_P3R, kRGBToYUVP3, const Vok8u* const src[3], Vok8u* const dst[3])     \
  X(RGBToYUV_8u_C3P3R, kRGBToYUVC3P3, const Vok8u* src, Vok8u* const dst[3])          \
  X(YUVToRGB_8u_P3R, kYUVToRGBP3, const Vok8u* const src[3], Vok8u* const dst[3])     \
  X(YUVToRGB_8u_P3C3R, kYUVToRGBP3C3, const Vok8u* const src[3], Vok8u* dst)

#define VOK_PACKED_ENTRY(name, form, T, stepTest)                             \
  VokStatus voki##name(const T* src, int srcStep, T* dst, int dstStep,        \
                       VokiSize roi) {                                        \
    return vok::Packed<vok::ColourForm::form, T, stepTest>(src, srcStep, dst, \
                                                           dstStep, roi);     \
  }

#define VOK_PLANAR_ENTRY(name, form, SrcParam, DstParam)                      \
  VokStatus voki##name(SrcParam, int srcStep, DstParam, int dstStep,          \
                       VokiSize roi) {                                        \
    return vok::Planar<vok::ColourForm::form>(src, srcStep, dst, dstStep,     \
                                              roi);                           \
  }

extern "C" {
VOK_PACKED_FORMS(VOK_PACKED_ENTRY)
VOK_PLANAR_FORMS(VOK_PLANAR_ENTRY)

// The one form with a further parameter: the alpha it writes.
VokStatus vokiCbYCr422ToBGR_8u_C2C4R(const Vok8u* src, int srcStep, Vok8u* dst,
                                     int dstStep, VokiSize roi, Vok8u aval) {
  return vok::Packed<vok::ColourForm::kCbYCr422ToBGR, Vok8u, false>(
      src, srcStep, dst, dstStep, roi, aval);
}
}
