// Exported entries of Sum, Mean, Min, Max, MinMax, MinIndx and MaxIndx:
// argument checks, one reduction over the image, results per channel.
#include <cstdint>
#include <type_traits>

#include "foundation/check.h"
#include "measure/reduce.h"
#include "vok.h"

namespace vok {
namespace {

// AC4 reports the three colour channels and leaves a fourth slot alone.
constexpr int Reported(Layout layout) {
  return layout.keepAlpha ? 3 : layout.channels;
}

ReduceRows OneImage(const void* src, int srcStep, VokiSize roi, Layout layout) {
  return ReduceRows{src, srcStep, nullptr, 0, static_cast<size_t>(roi.width),
                    roi.height, layout};
}

template <typename T, Layout kLayout>
VokStatus Sum(const T* src, int srcStep, VokiSize roi, Vok64f* sum,
              VokHint hint) {
  const VokStatus status = CheckNullSizeStep({src, sum}, roi, {srcStep});
  if (status != vokStatusOk) return status;
  const ReduceRows rows = OneImage(src, srcStep, roi, kLayout);
  double sums[4];
  if constexpr (std::is_same_v<T, Vok32f>) {
    if (hint == vokHintAccurate) {
      AccurateSums32f(rows, Term::kValue, sums);
    } else {
      FastSum32f(rows, sums);
    }
  } else {
    Int128 exact[4];
    IntegerSums<T>(rows, Term::kValue, exact);
    for (int c = 0; c < 4; ++c) sums[c] = static_cast<double>(exact[c]);
  }
  for (int c = 0; c < Reported(kLayout); ++c) sum[c] = sums[c];
  return vokStatusOk;
}

// The mean tests its own pointer, then leaves every check to the sum.
template <typename T, Layout kLayout>
VokStatus Mean(const T* src, int srcStep, VokiSize roi, Vok64f* mean,
               VokHint hint) {
  if (mean == nullptr) return vokStatusNullPointer;
  double sums[4];
  const VokStatus status = Sum<T, kLayout>(src, srcStep, roi, sums, hint);
  if (status != vokStatusOk) return status;
  // The pixel count is a signed 32-bit product: it wraps past 2^31 - 1.
  const int32_t count = static_cast<int32_t>(static_cast<uint32_t>(roi.width) *
                                             static_cast<uint32_t>(roi.height));
  if (kLayout.channels == 1) {
    mean[0] = sums[0] / count;
  } else {
    // Several channels multiply by the reciprocal, so a C3 mean can differ
    // from the C1 mean of the same samples in the last bit.
    const double reciprocal = 1.0 / count;
    for (int c = 0; c < Reported(kLayout); ++c) mean[c] = sums[c] * reciprocal;
  }
  return vokStatusOk;
}

enum class Want { kMin, kMax, kBoth };

template <Want kWant, typename T, Layout kLayout>
VokStatus Extremes(const T* src, int srcStep, VokiSize roi, T* lo, T* hi) {
  // Only the requested results are required pointers; src stands in for the
  // other.
  const VokStatus status =
      CheckNullSizeStep({src, kWant == Want::kMax ? src : lo,
                         kWant == Want::kMin ? src : hi},
                        roi, {srcStep});
  if (status != vokStatusOk) return status;
  T mins[4], maxs[4];
  Extrema<T>(OneImage(src, srcStep, roi, kLayout), mins, maxs);
  for (int c = 0; c < Reported(kLayout); ++c) {
    if (kWant != Want::kMax) lo[c] = mins[c];
    if (kWant != Want::kMin) hi[c] = maxs[c];
  }
  return vokStatusOk;
}

template <bool kMax, typename T, Layout kLayout>
VokStatus Indexed(const T* src, int srcStep, VokiSize roi, T* value, int* x,
                  int* y) {
  const VokStatus status =
      CheckNullSizeStep({src, value, x, y}, roi, {srcStep});
  if (status != vokStatusOk) return status;
  T best[4];
  int bestX[4], bestY[4];
  ExtremumIndex<T>(OneImage(src, srcStep, roi, kLayout), kMax, best, bestX,
                   bestY);
  for (int c = 0; c < Reported(kLayout); ++c) {
    value[c] = best[c];
    x[c] = bestX[c];
    y[c] = bestY[c];
  }
  return vokStatusOk;
}

}  // namespace
}  // namespace vok

// ---- Entry tables ----------------------------------------------------------
// One line per sample type; the four layouts expand from it. `Hint` marks
// the 32f sums, which take the summation hint last.

#define VOK_HINT_PARAM_Hint , VokHint hint
#define VOK_HINT_PARAM_
#define VOK_HINT_ARG_Hint hint
#define VOK_HINT_ARG_ vokHintNone

#define VOK_STATS_LAYOUTS(X, ...) \
  X(__VA_ARGS__, C1, kC1)         \
  X(__VA_ARGS__, C3, kC3)         \
  X(__VA_ARGS__, C4, kC4)         \
  X(__VA_ARGS__, AC4, kAC4)

#define VOK_SUM_TYPES(X) \
  X(8u, Vok8u, )         \
  X(16s, Vok16s, )       \
  X(32f, Vok32f, Hint)

#define VOK_EXTREMA_TYPES(X) \
  X(8u, Vok8u)               \
  X(16s, Vok16s)             \
  X(32f, Vok32f)

#define VOK_SUM_FORM(token, T, hint, layout, kLayout)                        \
  VokStatus vokiSum_##token##_##layout##R(const T* src, int srcStep,         \
                                          VokiSize roi,                      \
                                          Vok64f* pSum VOK_HINT_PARAM_##hint) { \
    return vok::Sum<T, vok::kLayout>(src, srcStep, roi, pSum,                \
                                     VOK_HINT_ARG_##hint);                   \
  }                                                                          \
  VokStatus vokiMean_##token##_##layout##R(                                  \
      const T* src, int srcStep, VokiSize roi,                               \
      Vok64f* pMean VOK_HINT_PARAM_##hint) {                                 \
    return vok::Mean<T, vok::kLayout>(src, srcStep, roi, pMean,              \
                                      VOK_HINT_ARG_##hint);                  \
  }

#define VOK_EXTREMA_FORM(token, T, layout, kLayout)                           \
  VokStatus vokiMin_##token##_##layout##R(const T* src, int srcStep,          \
                                          VokiSize roi, T* pMin) {            \
    return vok::Extremes<vok::Want::kMin, T, vok::kLayout>(src, srcStep, roi, \
                                                           pMin, nullptr);    \
  }                                                                           \
  VokStatus vokiMax_##token##_##layout##R(const T* src, int srcStep,          \
                                          VokiSize roi, T* pMax) {            \
    return vok::Extremes<vok::Want::kMax, T, vok::kLayout>(src, srcStep, roi, \
                                                           nullptr, pMax);    \
  }                                                                           \
  VokStatus vokiMinMax_##token##_##layout##R(                                 \
      const T* src, int srcStep, VokiSize roi, T* pMin, T* pMax) {            \
    return vok::Extremes<vok::Want::kBoth, T, vok::kLayout>(                  \
        src, srcStep, roi, pMin, pMax);                                       \
  }                                                                           \
  VokStatus vokiMinIndx_##token##_##layout##R(const T* src, int srcStep,      \
                                              VokiSize roi, T* pMin,          \
                                              int* pIndexX, int* pIndexY) {   \
    return vok::Indexed<false, T, vok::kLayout>(src, srcStep, roi, pMin,      \
                                                pIndexX, pIndexY);            \
  }                                                                           \
  VokStatus vokiMaxIndx_##token##_##layout##R(const T* src, int srcStep,      \
                                              VokiSize roi, T* pMax,          \
                                              int* pIndexX, int* pIndexY) {   \
    return vok::Indexed<true, T, vok::kLayout>(src, srcStep, roi, pMax,       \
                                               pIndexX, pIndexY);             \
  }

#define VOK_SUM_TYPE(token, T, hint) \
  VOK_STATS_LAYOUTS(VOK_SUM_FORM, token, T, hint)
#define VOK_EXTREMA_TYPE(token, T) \
  VOK_STATS_LAYOUTS(VOK_EXTREMA_FORM, token, T)

extern "C" {
VOK_SUM_TYPES(VOK_SUM_TYPE)
VOK_EXTREMA_TYPES(VOK_EXTREMA_TYPE)
}
