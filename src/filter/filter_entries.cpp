// Exported entries of the user-kernel filters: Filter, FilterRow and
// FilterColumn with integer kernels and divisor, their 32f-kernel siblings,
// and the 32f forms. Row and column kernels are the one-row and one-column
// cases of the rectangular kernel, so every form runs the same row kernels
// over a slab split of the destination rows.
#include <climits>
#include <cstdint>
#include <type_traits>

#include "filter/filter.h"
#include "foundation/element_entries.h"
#include "foundation/image.h"
#include "foundation/parallel.h"
#include "foundation/rounding.h"
#include "vok.h"

namespace vok {
namespace {

enum class Shape { kRect, kRow, kColumn };

struct KernelShape {
  VokiSize size;
  VokiPoint anchor;
};

inline KernelShape RowKernel(int length, int anchor) {
  return KernelShape{{length, 1}, {anchor, 0}};
}
inline KernelShape ColumnKernel(int length, int anchor) {
  return KernelShape{{1, length}, {0, anchor}};
}

// The region as the checks see it: a column filter on C3 or C4 runs as C1
// over width x channels samples, which may pass the int range before the
// step test refuses it.
struct Region {
  int64_t width;
  int height;
  Layout layout;
};

// A column filter never mixes the samples of a row, so C3 and C4 are C1
// over the whole row; AC4 is a filter of its own since alpha must stay.
inline Region RegionOf(Shape shape, VokiSize roi, Layout layout) {
  if (shape == Shape::kColumn && !layout.keepAlpha && layout.channels > 1)
    return Region{int64_t(roi.width) * layout.channels, roi.height, kC1};
  return Region{roi.width, roi.height, layout};
}

// The least ROI width from which a float-kernel filter on integer samples
// takes its faster path, 0 for forms that have none. That path converts
// with round to nearest whatever the caller's mode, and in the rectangular
// filters adds the last (samples mod 4) samples of a row window row by
// window row. Only kernels of at least 3 taps along the filter qualify.
template <typename T>
int FasterPathWidth(Shape shape, Layout layout) {
  if constexpr (std::is_same_v<T, Vok32f>) {
    return 0;
  } else {
    const bool c1 = layout.channels == 1;
    if (shape == Shape::kRect) return c1 ? 4 : 2;
    if (shape == Shape::kColumn && std::is_same_v<T, Vok8u>)
      return c1 ? 8 : layout.keepAlpha ? 2 : 0;
    return 0;
  }
}

// Workers round as the calling thread does, so no result depends on which
// thread computed it.
template <typename T, typename TK>
void RunRows(const FilterJob& job, int height) {
  const unsigned mode = RoundingScope::Current();
  Slabs(height, [&](int y0, int y1, int) {
    const RoundingScope scope(mode);
    if constexpr (std::is_same_v<TK, Vok32s>) {
      FilterRows8u(job, y0, y1);
    } else if constexpr (std::is_same_v<T, Vok8u>) {
      FilterRows32f8u(job, y0, y1);
    } else if constexpr (std::is_same_v<T, Vok16s>) {
      FilterRows32f16s(job, y0, y1);
    } else {
      FilterRows32f(job, y0, y1);
    }
  });
}

// Checks and runs a form that filters with the kernel as given: every 8u
// form and every 32f-kernel form. `divisor` is null for forms without one.
template <typename T, typename TK>
VokStatus RunFilter(Shape shape, const T* src, int srcStep, T* dst,
                    int dstStep, Region roi, const TK* kernel,
                    KernelShape k, const int* divisor) {
  if (AnyNull({src, dst, kernel})) return vokStatusNullPointer;
  if (roi.width < 1 || roi.height < 1) return vokStatusBadSize;
  if (k.size.width < 1 || k.size.height < 1) return vokStatusBadSize;
  if (divisor != nullptr && *divisor == 0) return vokStatusBadDivisor;
  const int64_t pixelBytes = int64_t(roi.layout.channels) * sizeof(T);
  if ((roi.width + k.size.width - 1) * pixelBytes > srcStep ||
      roi.width * pixelBytes > dstStep)
    return vokStatusBadStep;

  FilterJob job{};
  job.src = WindowStart(src, srcStep, roi.layout.channels,
                        WindowOf(k.size, k.anchor));
  job.srcStep = srcStep;
  job.dst = dst;
  job.dstStep = dstStep;
  job.width = int(roi.width);
  job.layout = roi.layout;
  job.kernel = kernel;
  job.kernelWidth = k.size.width;
  job.kernelHeight = k.size.height;
  if (divisor != nullptr) job.scale = ScaleOf(*divisor);
  const int fasterWidth = FasterPathWidth<T>(shape, roi.layout);
  const int length = shape == Shape::kColumn ? k.size.height : k.size.width;
  job.nearest = fasterWidth > 0 && length >= 3 && roi.width >= fasterWidth;
  job.rowSumTail = job.nearest && shape == Shape::kRect;
  RunRows<T, TK>(job, roi.height);
  return vokStatusOk;
}

// 16s with an integer kernel filters with the float kernel k x (1 / divisor),
// each tap rounded to float, through the 32f-kernel form.
VokStatus RunFilter16s(Shape shape, const Vok16s* src, int srcStep,
                       Vok16s* dst, int dstStep, Region roi,
                       const Vok32s* kernel, KernelShape k, int divisor) {
  if (kernel == nullptr) return vokStatusNullPointer;
  if (k.size.width < 1 || k.size.height < 1) return vokStatusBadSize;
  if (divisor == 0) return vokStatusBadDivisor;
  const int64_t taps = int64_t(k.size.width) * k.size.height;
  Vok32f* scaled = taps <= INT_MAX ? voksMalloc_32f(int(taps)) : nullptr;
  if (scaled == nullptr) return vokStatusNoMemory;
  voksConvert_32s32f(kernel, scaled, int(taps));
  voksMulC_32f_I(1.0f / static_cast<float>(divisor), scaled, int(taps));
  const VokStatus status = RunFilter<Vok16s, Vok32f>(
      shape, src, srcStep, dst, dstStep, roi, scaled, k, nullptr);
  voksFree(scaled);
  return status;
}

template <Shape kShape, typename T, typename TK>
VokStatus Filter(const T* src, int srcStep, T* dst, int dstStep, VokiSize roi,
                 const TK* kernel, KernelShape k, const int* divisor,
                 Layout layout) {
  const Region region = RegionOf(kShape, roi, layout);
  if (region.layout.channels != layout.channels && roi.width < 1)
    return vokStatusBadSize;
  if constexpr (std::is_same_v<T, Vok16s> && std::is_same_v<TK, Vok32s>) {
    return RunFilter16s(kShape, src, srcStep, dst, dstStep, region, kernel, k,
                        *divisor);
  } else {
    return RunFilter<T, TK>(kShape, src, srcStep, dst, dstStep, region,
                            kernel, k, divisor);
  }
}

}  // namespace
}  // namespace vok

// One form: the layout, the operation's name, the kernel's shape (Rect, Row
// or Column) and kind (Int with a divisor, or Float), the sample type.
#define VOK_FILTER_FORM(L, layout, op, shape, kind, S)                      \
  VokStatus op##_##S##_##L##R(                                              \
      const Vok##S* src, int srcStep, Vok##S* dst, int dstStep,             \
      VokiSize roi, const VOK_KERNEL_TYPE_##kind* kernel,                   \
      VOK_KERNEL_PARAMS_##shape VOK_DIVISOR_PARAM_##kind) {                 \
    return vok::Filter<vok::Shape::k##shape>(                               \
        src, srcStep, dst, dstStep, roi, kernel, VOK_KERNEL_ARG_##shape,    \
        VOK_DIVISOR_ARG_##kind, vok::layout);                               \
  }

#define VOK_KERNEL_PARAMS_Rect VokiSize kernelSize, VokiPoint anchor
#define VOK_KERNEL_PARAMS_Row int kernelSize, int xAnchor
#define VOK_KERNEL_PARAMS_Column int kernelSize, int yAnchor
#define VOK_KERNEL_ARG_Rect (vok::KernelShape{kernelSize, anchor})
#define VOK_KERNEL_ARG_Row vok::RowKernel(kernelSize, xAnchor)
#define VOK_KERNEL_ARG_Column vok::ColumnKernel(kernelSize, yAnchor)
#define VOK_KERNEL_TYPE_Int Vok32s
#define VOK_KERNEL_TYPE_Float Vok32f
#define VOK_DIVISOR_PARAM_Int , int divisor
#define VOK_DIVISOR_PARAM_Float
#define VOK_DIVISOR_ARG_Int &divisor
#define VOK_DIVISOR_ARG_Float nullptr

// The three operations of one name stem, in the four layouts.
#define VOK_FILTER_OPS(stem, kind, S)                                          \
  VOK_FOR_PIXEL_LAYOUTS(VOK_FILTER_FORM, vokiFilter##stem, Rect, kind, S)     \
  VOK_FOR_PIXEL_LAYOUTS(VOK_FILTER_FORM, vokiFilterRow##stem, Row, kind, S)   \
  VOK_FOR_PIXEL_LAYOUTS(VOK_FILTER_FORM, vokiFilterColumn##stem, Column, kind, S)

extern "C" {
VOK_FILTER_OPS(, Int, 8u)
VOK_FILTER_OPS(, Int, 16s)
VOK_FILTER_OPS(32f, Float, 8u)
VOK_FILTER_OPS(32f, Float, 16s)
VOK_FILTER_OPS(, Float, 32f)
}
