// Exported entries of Norm, NormDiff and NormRel with the Inf, L1 and L2
// norms: argument checks, the per-channel reductions, and the division and
// its warning for the relative forms.
#include <algorithm>
#include <cfloat>
#include <cmath>
#include <type_traits>

#include "foundation/check.h"
#include "measure/reduce.h"
#include "vok.h"

namespace vok {
namespace {

enum class Norm { kInf, kL1, kL2 };

constexpr int Reported(Layout layout) {
  return layout.keepAlpha ? 3 : layout.channels;
}

ReduceRows Rows(const void* a, int aStep, const void* b, int bStep,
                VokiSize roi, Layout layout) {
  return ReduceRows{a, aStep, b, bStep, static_cast<size_t>(roi.width),
                    roi.height, layout};
}

// Per channel, x being a sample or a difference: max |x| for Inf, the sum of
// |x| for L1, the sum of x^2 (not yet rooted) for L2.
template <typename T>
void Measure(Norm norm, const ReduceRows& rows, VokHint hint, double out[4]) {
  if (norm == Norm::kInf) {
    if constexpr (std::is_same_v<T, Vok32s>) {
      // Extremes in integers, magnitudes in double: -2^31 gives 2^31.
      Vok32s lo[4], hi[4];
      Extrema<Vok32s>(rows, lo, hi);
      out[0] = std::fmax(-static_cast<double>(lo[0]), static_cast<double>(hi[0]));
    } else {
      MaxAbs<T>(rows, out);
    }
    return;
  }
  const Term term = norm == Norm::kL1 ? Term::kAbs : Term::kSquare;
  if constexpr (std::is_same_v<T, Vok32f>) {
    if (hint == vokHintAccurate) {
      AccurateSums32f(rows, term, out);
    } else {
      FastNorm32f(rows, term, out);
    }
  } else if constexpr (!std::is_same_v<T, Vok32s>) {
    Int128 exact[4];
    IntegerSums<T>(rows, term, exact);
    for (int c = 0; c < 4; ++c) out[c] = static_cast<double>(exact[c]);
  }
}

// 8u L2 norms of rows wider than this many pixels are formed from column
// blocks: each block's norm is squared and the squares summed before one
// final root, which rounds a little differently from one root of the whole.
constexpr size_t kL2Block8u = 32768;

// The norm of each channel.
template <typename T>
void NormValues(Norm norm, const ReduceRows& rows, VokHint hint, double out[4]) {
  if (std::is_same_v<T, Vok8u> && norm == Norm::kL2 && rows.width > kL2Block8u) {
    const size_t channels = rows.layout.channels;
    double squares[4] = {};
    for (size_t x0 = 0; x0 < rows.width; x0 += kL2Block8u) {
      ReduceRows block = rows;
      block.a = static_cast<const T*>(rows.a) + x0 * channels;
      if (rows.b) block.b = static_cast<const T*>(rows.b) + x0 * channels;
      block.width = std::min(kL2Block8u, rows.width - x0);
      double part[4];
      Measure<T>(norm, block, hint, part);
      for (int c = 0; c < 4; ++c) {
        const double root = std::sqrt(part[c]);
        squares[c] += root * root;
      }
    }
    for (int c = 0; c < 4; ++c) out[c] = std::sqrt(squares[c]);
    return;
  }
  Measure<T>(norm, rows, hint, out);
  if (norm == Norm::kL2)
    for (int c = 0; c < 4; ++c) out[c] = std::sqrt(out[c]);
}

template <Norm kNorm, typename T, Layout kLayout>
VokStatus NormOf(const T* src, int srcStep, VokiSize roi, Vok64f* value,
                 VokHint hint) {
  const VokStatus status = CheckNullSizeStep({src, value}, roi, {srcStep});
  if (status != vokStatusOk) return status;
  double norms[4];
  NormValues<T>(kNorm, Rows(src, srcStep, nullptr, 0, roi, kLayout), hint, norms);
  for (int c = 0; c < Reported(kLayout); ++c) value[c] = norms[c];
  return vokStatusOk;
}

template <Norm kNorm, typename T, Layout kLayout>
VokStatus NormDiff(const T* src1, int src1Step, const T* src2, int src2Step,
                   VokiSize roi, Vok64f* value, VokHint hint) {
  const VokStatus status =
      CheckNullSizeStep({src1, src2, value}, roi, {src1Step, src2Step});
  if (status != vokStatusOk) return status;
  double norms[4];
  NormValues<T>(kNorm, Rows(src1, src1Step, src2, src2Step, roi, kLayout), hint,
                norms);
  for (int c = 0; c < Reported(kLayout); ++c) value[c] = norms[c];
  return vokStatusOk;
}

// Relative L2 forms that divide sums of squares and take one root; the
// others divide the two rooted norms.
template <typename T>
bool DividesSquareSums(Layout layout, VokHint hint) {
  if (layout.channels == 1) return true;
  return std::is_same_v<T, Vok32f> && layout.channels == 4 &&
         hint != vokHintAccurate;
}

template <Norm kNorm, typename T, Layout kLayout>
VokStatus NormRel(const T* src1, int src1Step, const T* src2, int src2Step,
                  VokiSize roi, Vok64f* value, VokHint hint) {
  const VokStatus status =
      CheckNullSizeStep({src1, src2, value}, roi, {src1Step, src2Step});
  if (status != vokStatusOk) return status;
  const ReduceRows diff = Rows(src1, src1Step, src2, src2Step, roi, kLayout);
  const ReduceRows base = Rows(src2, src2Step, nullptr, 0, roi, kLayout);
  const bool squareSums = kNorm == Norm::kL2 && DividesSquareSums<T>(kLayout, hint);
  double num[4], den[4];
  if (squareSums) {
    Measure<T>(kNorm, base, hint, den);
    Measure<T>(kNorm, diff, hint, num);
  } else {
    NormValues<T>(kNorm, base, hint, den);
    NormValues<T>(kNorm, diff, hint, num);
  }
  // One channel too small leaves every channel undivided.
  bool tooSmall = false;
  for (int c = 0; c < Reported(kLayout); ++c) tooSmall |= !(den[c] >= DBL_MIN);
  for (int c = 0; c < Reported(kLayout); ++c) {
    const double ratio = tooSmall ? num[c] : num[c] / den[c];
    value[c] = squareSums ? std::sqrt(ratio) : ratio;
  }
  return tooSmall ? vokWarnDivideByZero : vokStatusOk;
}

}  // namespace
}  // namespace vok

// ---- Entry tables ----------------------------------------------------------
// One line per norm and sample type; Norm, NormDiff and NormRel in the four
// layouts expand from it. `Hint` marks the 32f L1 and L2 forms, which take
// the summation hint last.

#define VOK_NORM_HINT_PARAM_Hint , VokHint hint
#define VOK_NORM_HINT_PARAM_
#define VOK_NORM_HINT_ARG_Hint hint
#define VOK_NORM_HINT_ARG_ vokHintNone

#define VOK_NORM_TYPES(X)          \
  X(Inf, kInf, 8u, Vok8u, )        \
  X(Inf, kInf, 16s, Vok16s, )      \
  X(Inf, kInf, 32f, Vok32f, )      \
  X(L1, kL1, 8u, Vok8u, )          \
  X(L1, kL1, 16s, Vok16s, )        \
  X(L1, kL1, 32f, Vok32f, Hint)    \
  X(L2, kL2, 8u, Vok8u, )          \
  X(L2, kL2, 16s, Vok16s, )        \
  X(L2, kL2, 32f, Vok32f, Hint)

#define VOK_NORM_FORM(norm, kNorm, token, T, hint, layout, kLayout)           \
  VokStatus vokiNorm_##norm##_##token##_##layout##R(                          \
      const T* src, int srcStep, VokiSize roi,                                \
      Vok64f* pValue VOK_NORM_HINT_PARAM_##hint) {                            \
    return vok::NormOf<vok::Norm::kNorm, T, vok::kLayout>(                    \
        src, srcStep, roi, pValue, VOK_NORM_HINT_ARG_##hint);                 \
  }                                                                           \
  VokStatus vokiNormDiff_##norm##_##token##_##layout##R(                      \
      const T* src1, int src1Step, const T* src2, int src2Step, VokiSize roi, \
      Vok64f* pValue VOK_NORM_HINT_PARAM_##hint) {                            \
    return vok::NormDiff<vok::Norm::kNorm, T, vok::kLayout>(                  \
        src1, src1Step, src2, src2Step, roi, pValue,                          \
        VOK_NORM_HINT_ARG_##hint);                                            \
  }                                                                           \
  VokStatus vokiNormRel_##norm##_##token##_##layout##R(                       \
      const T* src1, int src1Step, const T* src2, int src2Step, VokiSize roi, \
      Vok64f* pValue VOK_NORM_HINT_PARAM_##hint) {                            \
    return vok::NormRel<vok::Norm::kNorm, T, vok::kLayout>(                   \
        src1, src1Step, src2, src2Step, roi, pValue,                          \
        VOK_NORM_HINT_ARG_##hint);                                            \
  }

#define VOK_NORM_LAYOUTS(norm, kNorm, token, T, hint)             \
  VOK_NORM_FORM(norm, kNorm, token, T, hint, C1, kC1)             \
  VOK_NORM_FORM(norm, kNorm, token, T, hint, C3, kC3)             \
  VOK_NORM_FORM(norm, kNorm, token, T, hint, C4, kC4)             \
  VOK_NORM_FORM(norm, kNorm, token, T, hint, AC4, kAC4)

extern "C" {
VOK_NORM_TYPES(VOK_NORM_LAYOUTS)

VokStatus vokiNorm_Inf_32s_C1R(const Vok32s* src, int srcStep, VokiSize roi,
                               Vok64f* pValue) {
  return vok::NormOf<vok::Norm::kInf, Vok32s, vok::kC1>(src, srcStep, roi,
                                                        pValue, vokHintNone);
}
}
