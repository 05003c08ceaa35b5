// Exported entries of Resize, ResizeShift, ResizeCenter and GetResizeFract.
// Planar forms test every plane pointer first, then all forms share the core.
#include <algorithm>
#include <cmath>

#include "foundation/check.h"
#include "foundation/image.h"
#include "geometry/resize.h"
#include "vok.h"

namespace vok {
namespace {

// The images of one call: one interleaved image or kPlanes planes.
template <typename T>
struct Images {
  const T* src[4];
  T* dst[4];
  int planes;
  Layout layout;
};

template <typename T>
Images<T> Interleaved(const T* src, T* dst, Layout layout) {
  return Images<T>{{src}, {dst}, 1, layout};
}

template <typename T, int kPlanes>
Images<T> Planar(const T* const* src, T* const* dst) {
  Images<T> images{{}, {}, kPlanes, kC1};
  for (int p = 0; p < kPlanes; ++p) {
    images.src[p] = src[p];
    images.dst[p] = dst[p];
  }
  return images;
}

// Null arrays or planes of a planar form.
template <typename T>
bool AnyNullPlane(const T* const* src, T* const* dst, int planes) {
  if (src == nullptr || dst == nullptr) return true;
  for (int p = 0; p < planes; ++p)
    if (src[p] == nullptr || dst[p] == nullptr) return true;
  return false;
}

template <typename T>
ResizeRequest MakeRequest(const Images<T>& images, VokiSize srcSize,
                          int srcStep, VokiRect srcRoi, int dstStep,
                          VokiSize dstSize, bool shiftForm, double x, double y,
                          double xShift, double yShift, int interpolation) {
  ResizeRequest q{};
  for (int p = 0; p < images.planes; ++p) {
    q.src[p] = images.src[p];
    q.dst[p] = images.dst[p];
  }
  q.planes = images.planes;
  q.channels = images.layout.channels;
  q.keepAlpha = images.layout.keepAlpha;
  q.srcSize = srcSize;
  q.srcStep = srcStep;
  q.srcRoi = srcRoi;
  q.dstStep = dstStep;
  q.dstSize = dstSize;
  q.shiftForm = shiftForm;
  q.x = x;
  q.y = y;
  q.xShift = xShift;
  q.yShift = yShift;
  q.interpolation = interpolation;
  return q;
}

template <typename T>
VokStatus Resize(const Images<T>& images, VokiSize srcSize, int srcStep,
                 VokiRect srcRoi, int dstStep, VokiSize dstSize,
                 double xFactor, double yFactor, int interpolation) {
  return ResizeCore<T>(MakeRequest(images, srcSize, srcStep, srcRoi, dstStep,
                                   dstSize, false, xFactor, yFactor, 0, 0,
                                   interpolation));
}

template <typename T>
VokStatus ResizeShift(const Images<T>& images, VokiSize srcSize, int srcStep,
                      VokiRect srcRoi, int dstStep, VokiSize dstSize,
                      double xFr, double yFr, double xShift, double yShift,
                      int interpolation) {
  return ResizeCore<T>(MakeRequest(images, srcSize, srcStep, srcRoi, dstStep,
                                   dstSize, true, xFr, yFr, xShift, yShift,
                                   interpolation));
}

// The destination window that source column 0 .. sW lands on, and the source
// rectangle and fractional shift that feed its first pixel; one axis.
struct CenterAxis {
  int dstFirst, dstLength;
  int srcFirst, srcLength;
  double shift;
};

CenterAxis CenterOneAxis(int dstLength, int srcLength, double factor,
                         double center) {
  const double x0 = 0.5 * dstLength - center * factor;
  const double first = std::trunc(std::max(x0, 0.0));
  const double last =
      std::trunc(std::min(double(dstLength), factor * srcLength + x0));
  const double length =
      std::ceil(std::min((dstLength - x0) / factor, double(srcLength)));
  const double p = center + (first - 0.5 * dstLength) / factor;
  const double srcFirst = std::trunc(p);
  auto toInt = [](double v) { return int(std::clamp(v, -2e9, 2e9)); };
  return CenterAxis{toInt(first), toInt(last - first), toInt(srcFirst),
                    toInt(length), p - srcFirst};
}

template <typename T>
VokStatus ResizeCenter(const Images<T>& images, VokiSize srcSize, int srcStep,
                       VokiRect srcRoi, int dstStep, VokiSize dstSize,
                       double xFactor, double yFactor, double xCenter,
                       double yCenter, int interpolation) {
  if (images.dst[0] == nullptr) return vokStatusNullPointer;
  if (BadSize(srcSize) || srcRoi.x < 0 || srcRoi.y < 0 ||
      BadSize({srcRoi.width, srcRoi.height}))
    return vokStatusBadSize;
  if (srcSize.width <= srcRoi.x || srcSize.height <= srcRoi.y)
    return vokWarnNoResize;
  if (BadSize(dstSize)) return vokStatusBadSize;
  if (!(xFactor > 0 && yFactor > 0)) return vokStatusBadResizeFactor;
  if (images.src[0] == nullptr) return vokStatusNullPointer;

  const int sW = std::min(srcRoi.width, srcSize.width - srcRoi.x);
  const int sH = std::min(srcRoi.height, srcSize.height - srcRoi.y);
  const CenterAxis x = CenterOneAxis(dstSize.width, sW, xFactor, xCenter);
  const CenterAxis y = CenterOneAxis(dstSize.height, sH, yFactor, yCenter);
  Images<T> moved = images;
  for (int p = 0; p < images.planes; ++p)
    moved.dst[p] = RowAt(images.dst[p], dstStep, y.dstFirst) +
                   ptrdiff_t{x.dstFirst} * images.layout.channels;
  const bool super = interpolation == vokInterSuper && xFactor <= 1 && yFactor <= 1;
  return ResizeCore<T>(MakeRequest(
      moved, srcSize, srcStep, {x.srcFirst, y.srcFirst, x.srcLength, y.srcLength},
      dstStep, {x.dstLength, y.dstLength}, false, xFactor, yFactor,
      super ? 0 : x.shift, super ? 0 : y.shift, interpolation));
}

}  // namespace
}  // namespace vok

// ---- Entry tables ----------------------------------------------------------
// One line per sample type; the layouts and planar forms expand from it.

#define VOK_RESIZE_TYPES(X) \
  X(8u, Vok8u)              \
  X(16u, Vok16u)            \
  X(32f, Vok32f)

#define VOK_RESIZE_FORMS(token, T, layout, SrcParam, DstParam, images, guard) \
  VokStatus vokiResize_##token##_##layout##R(                                 \
      SrcParam, VokiSize srcSize, int srcStep, VokiRect srcRoi, DstParam,     \
      int dstStep, VokiSize dstRoiSize, double xFactor, double yFactor,       \
      int interpolation) {                                                    \
    guard;                                                                    \
    return vok::Resize<T>(images, srcSize, srcStep, srcRoi, dstStep,          \
                          dstRoiSize, xFactor, yFactor, interpolation);       \
  }                                                                           \
  VokStatus vokiResizeShift_##token##_##layout##R(                            \
      SrcParam, VokiSize srcSize, int srcStep, VokiRect srcRoi, DstParam,     \
      int dstStep, VokiSize dstRoiSize, double xFr, double yFr,               \
      double xShift, double yShift, int interpolation) {                      \
    guard;                                                                    \
    return vok::ResizeShift<T>(images, srcSize, srcStep, srcRoi, dstStep,     \
                               dstRoiSize, xFr, yFr, xShift, yShift,          \
                               interpolation);                                \
  }                                                                           \
  VokStatus vokiResizeCenter_##token##_##layout##R(                           \
      SrcParam, VokiSize srcSize, int srcStep, VokiRect srcRoi, DstParam,     \
      int dstStep, VokiSize dstRoiSize, double xFactor, double yFactor,       \
      double xCenter, double yCenter, int interpolation) {                    \
    guard;                                                                    \
    return vok::ResizeCenter<T>(images, srcSize, srcStep, srcRoi, dstStep,    \
                                dstRoiSize, xFactor, yFactor, xCenter,        \
                                yCenter, interpolation);                      \
  }

#define VOK_RESIZE_INTERLEAVED(token, T, layout, kLayout)                 \
  VOK_RESIZE_FORMS(token, T, layout, const T* src, T* dst,                \
                   vok::Interleaved<T>(src, dst, vok::kLayout), (void)0)

#define VOK_RESIZE_PLANAR(token, T, planes)                               \
  VOK_RESIZE_FORMS(                                                       \
      token, T, P##planes, const T* const src[planes],                    \
      T* const dst[planes], (vok::Planar<T, planes>(src, dst)),           \
      if (vok::AnyNullPlane<T>(src, dst, planes)) return vokStatusNullPointer)

#define VOK_RESIZE_TYPE(token, T)                \
  VOK_RESIZE_INTERLEAVED(token, T, C1, kC1)      \
  VOK_RESIZE_INTERLEAVED(token, T, C3, kC3)      \
  VOK_RESIZE_INTERLEAVED(token, T, C4, kC4)      \
  VOK_RESIZE_INTERLEAVED(token, T, AC4, kAC4)    \
  VOK_RESIZE_PLANAR(token, T, 3)                 \
  VOK_RESIZE_PLANAR(token, T, 4)

extern "C" {
VOK_RESIZE_TYPES(VOK_RESIZE_TYPE)

VokStatus vokiGetResizeFract(VokiSize srcSize, VokiRect srcRoi, double xFactor,
                             double yFactor, double* xFr, double* yFr,
                             int interpolation) {
  if (vok::BadSize(srcSize) || srcRoi.x < 0 || srcRoi.y < 0 ||
      vok::BadSize({srcRoi.width, srcRoi.height}))
    return vokStatusBadSize;
  if (srcSize.width <= srcRoi.x || srcSize.height <= srcRoi.y)
    return vokWarnNoResize;
  if (!(xFactor > 0 && yFactor > 0)) return vokStatusBadResizeFactor;
  if (xFr == nullptr || yFr == nullptr) return vokStatusNullPointer;
  if (interpolation != vokInterNearest && interpolation != vokInterLinear &&
      interpolation != vokInterCubic && interpolation != vokInterLanczos)
    return vokStatusBadInterpolation;
  const int roiW = std::min(srcRoi.width, srcSize.width - srcRoi.x);
  const int roiH = std::min(srcRoi.height, srcSize.height - srcRoi.y);
  *xFr = vok::ResizeStep(interpolation, roiW, xFactor);
  *yFr = vok::ResizeStep(interpolation, roiH, yFactor);
  return vokStatusOk;
}
}
