// Exported entries of Div, DivC, Abs, Sqr, Sqrt, Ln and Exp: the vector
// operations and the image loops over the same row kernels. Checks come
// first (null, size, step; vectors null, then length), then one job runs
// every row and the first warning it met is the status.
#include <cstdint>
#include <type_traits>

#include "arith/elementary.h"
#include "foundation/element_entries.h"
#include "foundation/memory.h"
#include "vok.h"

namespace vok {
namespace {

ElementaryJob MakeJob(ElementaryOp op, const void* a, int aStep, const void* b,
                      int bStep, void* dst, int dstStep, int64_t rowSamples,
                      int height, int scale) {
  return ElementaryJob{op,  a,     aStep, b, bStep, dst, dstStep,
                       static_cast<size_t>(rowSamples), height, scale, 0, nullptr};
}

int64_t RowSamples(VokiSize roi, Layout layout) {
  return int64_t{roi.width} * layout.channels;
}

// AC4 rows run whole through a scratch row; the others straight into dst.
template <typename T, Layout kLayout>
VokStatus Run(ElementaryJob job) {
  if constexpr (kLayout.keepAlpha) {
    const Scratch<T> row = AllocateScratch<T>(job.rowSamples);
    if (!row) return vokStatusNoMemory;
    job.alphaRow = row.get();
    return RunElementary<T>(job);
  } else {
    return RunElementary<T>(job);
  }
}

template <ElementaryOp kOp, typename T, Layout kLayout>
VokStatus OneImage(const T* src, int srcStep, T* dst, int dstStep,
                   VokiSize roi, int scale) {
  const VokStatus status = CheckNullSizeStep({src, dst}, roi, {srcStep, dstStep});
  if (status != vokStatusOk) return status;
  return Run<T, kLayout>(MakeJob(kOp, src, srcStep, nullptr, 0, dst, dstStep,
                                 RowSamples(roi, kLayout), roi.height, scale));
}

// src2 / src1: the first source holds the divisors.
template <typename T, Layout kLayout>
VokStatus DivImages(const T* src1, int src1Step, const T* src2, int src2Step,
                    T* dst, int dstStep, VokiSize roi, int scale) {
  const VokStatus status = CheckNullSizeStep({src1, src2, dst}, roi,
                                             {src1Step, src2Step, dstStep});
  if (status != vokStatusOk) return status;
  return Run<T, kLayout>(MakeJob(ElementaryOp::kDiv, src1, src1Step, src2,
                                 src2Step, dst, dstStep,
                                 RowSamples(roi, kLayout), roi.height, scale));
}

// Single precision multiplies by 1/c, which can differ from a true division
// in the last bit; ±0 and NaN constants are refused.
template <Layout kLayout>
VokStatus DivConstant32f(const Vok32f* src, int srcStep, const Vok32f* values,
                         Vok32f* dst, int dstStep, VokiSize roi) {
  Vok32f reciprocals[3];
  for (int c = 0; c < kLayout.channels; ++c) {
    if (!(values[c] < 0 || values[c] > 0)) return vokStatusDivideByZero;
    reciprocals[c] = 1.0f / values[c];
  }
  if constexpr (kLayout.channels == 1) {
    return vokiMulC_32f_C1R(src, srcStep, reciprocals[0], dst, dstStep, roi);
  } else {
    return vokiMulC_32f_C3R(src, srcStep, reciprocals, dst, dstStep, roi);
  }
}

// Integer C1 forms multiply by 2^-scale / c formed once. C3 forms divide by
// a row of the three constants: 16s refuses a zero constant before writing,
// 8u writes the zero-divisor results in its channel and reports it at the end.
template <typename T, Layout kLayout>
VokStatus DivConstant(const T* src, int srcStep, const T* values, T* dst,
                      int dstStep, VokiSize roi, int scale) {
  const VokStatus status =
      CheckNullSizeStep({src, values, dst}, roi, {srcStep, dstStep});
  if (status != vokStatusOk) return status;
  if constexpr (std::is_same_v<T, Vok32f>) {
    return DivConstant32f<kLayout>(src, srcStep, values, dst, dstStep, roi);
  } else {
    const int64_t rowSamples = RowSamples(roi, kLayout);
    ElementaryJob job = MakeJob(ElementaryOp::kDivC, src, srcStep, nullptr, 0, dst,
                                dstStep, rowSamples, roi.height, scale);
    if constexpr (kLayout.channels == 1) {
      if (values[0] == 0) return vokStatusDivideByZero;
      job.divisor = values[0];
      return RunElementary<T>(job);
    } else {
      const bool zero = values[0] == 0 || values[1] == 0 || values[2] == 0;
      if (zero && std::is_same_v<T, Vok16s>) return vokStatusDivideByZero;
      const Scratch<T> divisors = AllocateScratch<T>(rowSamples);
      if (!divisors) return vokStatusNoMemory;
      for (int64_t i = 0; i < rowSamples; ++i) divisors[i] = values[i % 3];
      job = MakeJob(ElementaryOp::kDiv, divisors.get(), 0, src, srcStep, dst,
                    dstStep, rowSamples, roi.height, scale);
      const VokStatus warning = RunElementary<T>(job);
      return zero ? vokStatusDivideByZero : warning;
    }
  }
}

// ---- Vector operations -------------------------------------------------------

template <ElementaryOp kOp, typename T>
VokStatus Vector(const T* src, T* dst, int len, int scale) {
  if (AnyNull({src, dst})) return vokStatusNullPointer;
  if (len < 1) return vokStatusBadSize;
  return RunElementary<T>(MakeJob(kOp, src, 0, nullptr, 0, dst, 0, len, 1, scale));
}

template <typename T>
VokStatus DivVector(const T* src1, const T* src2, T* dst, int len, int scale) {
  if (AnyNull({src1, src2, dst})) return vokStatusNullPointer;
  if (len < 1) return vokStatusBadSize;
  return RunElementary<T>(
      MakeJob(ElementaryOp::kDiv, src1, 0, src2, 0, dst, 0, len, 1, scale));
}

template <typename T>
VokStatus DivConstantVector(const T* src, T value, T* dst, int len, int scale) {
  if (AnyNull({src, dst})) return vokStatusNullPointer;
  if (len < 1) return vokStatusBadSize;
  if (value == 0) return vokStatusDivideByZero;
  ElementaryJob job =
      MakeJob(ElementaryOp::kDivC, src, 0, nullptr, 0, dst, 0, len, 1, scale);
  job.divisor = value;
  return RunElementary<T>(job);
}

}  // namespace
}  // namespace vok

// ---- Entry tables ----------------------------------------------------------
// One line per family and sample type with the set of layouts it has; the
// in-place twins expand from it. `Sfs` marks a trailing scale factor.

#define VOK_VECTOR_SUFFIX_Sfs _Sfs
#define VOK_VECTOR_SUFFIX_
#define VOK_IN_PLACE_SUFFIX_Sfs _ISfs
#define VOK_IN_PLACE_SUFFIX_ _I
#define VOK_CAT(a, b) VOK_CAT_(a, b)
#define VOK_CAT_(a, b) a##b

#define VOK_C1_C3(X, ...) X(C1, kC1, __VA_ARGS__) X(C3, kC3, __VA_ARGS__)
#define VOK_C1_C3_AC4(X, ...) VOK_C1_C3(X, __VA_ARGS__) X(AC4, kAC4, __VA_ARGS__)

#define VOK_ONE_IMAGE_FORMS(X)                         \
  X(VOK_FOR_PIXEL_LAYOUTS, Abs, kAbs, 16s, Vok16s, )   \
  X(VOK_FOR_PIXEL_LAYOUTS, Abs, kAbs, 32f, Vok32f, )   \
  X(VOK_FOR_PIXEL_LAYOUTS, Sqr, kSqr, 8u, Vok8u, Sfs)  \
  X(VOK_FOR_PIXEL_LAYOUTS, Sqr, kSqr, 16u, Vok16u, Sfs) \
  X(VOK_FOR_PIXEL_LAYOUTS, Sqr, kSqr, 16s, Vok16s, Sfs) \
  X(VOK_FOR_PIXEL_LAYOUTS, Sqr, kSqr, 32f, Vok32f, )   \
  X(VOK_C1_C3_AC4, Sqrt, kSqrt, 8u, Vok8u, Sfs)        \
  X(VOK_C1_C3_AC4, Sqrt, kSqrt, 16u, Vok16u, Sfs)      \
  X(VOK_C1_C3_AC4, Sqrt, kSqrt, 16s, Vok16s, Sfs)      \
  X(VOK_C1_C3_AC4, Sqrt, kSqrt, 32f, Vok32f, )         \
  X(VOK_C1_C3, Ln, kLn, 8u, Vok8u, Sfs)                \
  X(VOK_C1_C3, Ln, kLn, 16s, Vok16s, Sfs)              \
  X(VOK_C1_C3, Ln, kLn, 32f, Vok32f, )                 \
  X(VOK_C1_C3, Exp, kExp, 8u, Vok8u, Sfs)              \
  X(VOK_C1_C3, Exp, kExp, 16s, Vok16s, Sfs)            \
  X(VOK_C1_C3, Exp, kExp, 32f, Vok32f, )

#define VOK_VECTOR_FORMS(X)       \
  X(Abs, kAbs, 16s, Vok16s, )     \
  X(Abs, kAbs, 32f, Vok32f, )     \
  X(Sqr, kSqr, 8u, Vok8u, Sfs)    \
  X(Sqr, kSqr, 16u, Vok16u, Sfs)  \
  X(Sqr, kSqr, 16s, Vok16s, Sfs)  \
  X(Sqr, kSqr, 32f, Vok32f, )     \
  X(Sqrt, kSqrt, 8u, Vok8u, Sfs)  \
  X(Sqrt, kSqrt, 16u, Vok16u, Sfs) \
  X(Sqrt, kSqrt, 16s, Vok16s, Sfs) \
  X(Sqrt, kSqrt, 32f, Vok32f, )   \
  X(Ln, kLn, 16s, Vok16s, Sfs)    \
  X(Ln, kLn, 32f, Vok32f, )       \
  X(Exp, kExp, 16s, Vok16s, Sfs)  \
  X(Exp, kExp, 32f, Vok32f, )

#define VOK_DIV_FORMS(X)                   \
  X(VOK_C1_C3, 8u, Vok8u, Sfs)             \
  X(VOK_C1_C3, 16s, Vok16s, Sfs)           \
  X(VOK_FOR_PIXEL_LAYOUTS, 32f, Vok32f, )

#define VOK_DIVC_FORMS(X)          \
  X(VOK_C1_C3, 8u, Vok8u, Sfs)     \
  X(VOK_C1_C3, 16s, Vok16s, Sfs)   \
  X(VOK_C1_C3, 32f, Vok32f, )

#define VOK_ONE_IMAGE_R(layout, kLayout, family, op, token, T, sfs)             \
  VokStatus voki##family##_##token##_##layout##R##sfs(                          \
      const T* src, int srcStep, T* dst, int dstStep,                           \
      VokiSize roi VOK_SCALE_PARAM_##sfs) {                                     \
    return vok::OneImage<vok::ElementaryOp::op, T, vok::kLayout>(               \
        src, srcStep, dst, dstStep, roi, VOK_SCALE_ARG_##sfs);                  \
  }
#define VOK_ONE_IMAGE_IR(layout, kLayout, family, op, token, T, sfs)            \
  VokStatus voki##family##_##token##_##layout##IR##sfs(                         \
      T* srcDst, int srcDstStep, VokiSize roi VOK_SCALE_PARAM_##sfs) {          \
    return vok::OneImage<vok::ElementaryOp::op, T, vok::kLayout>(               \
        srcDst, srcDstStep, srcDst, srcDstStep, roi, VOK_SCALE_ARG_##sfs);      \
  }
#define VOK_ONE_IMAGE(...) VOK_ONE_IMAGE_R(__VA_ARGS__) VOK_ONE_IMAGE_IR(__VA_ARGS__)
#define VOK_ONE_IMAGE_FAMILY(layouts, ...) layouts(VOK_ONE_IMAGE, __VA_ARGS__)

#define VOK_VECTOR(family, op, token, T, sfs)                                    \
  VokStatus VOK_CAT(voks##family##_##token, VOK_VECTOR_SUFFIX_##sfs)(            \
      const T* src, T* dst, int len VOK_SCALE_PARAM_##sfs) {                     \
    return vok::Vector<vok::ElementaryOp::op, T>(src, dst, len,                  \
                                                 VOK_SCALE_ARG_##sfs);           \
  }                                                                              \
  VokStatus VOK_CAT(voks##family##_##token, VOK_IN_PLACE_SUFFIX_##sfs)(          \
      T* srcDst, int len VOK_SCALE_PARAM_##sfs) {                                \
    return vok::Vector<vok::ElementaryOp::op, T>(srcDst, srcDst, len,            \
                                                 VOK_SCALE_ARG_##sfs);           \
  }

// The in-place forms of Div and DivC are the R form with srcDst as dividend
// and destination.
#define VOK_DIV_LAYOUT(layout, kLayout, token, T, sfs)                           \
  VokStatus vokiDiv_##token##_##layout##R##sfs(                                  \
      const T* src1, int src1Step, const T* src2, int src2Step, T* dst,          \
      int dstStep, VokiSize roi VOK_SCALE_PARAM_##sfs) {                         \
    return vok::DivImages<T, vok::kLayout>(src1, src1Step, src2, src2Step, dst,  \
                                           dstStep, roi, VOK_SCALE_ARG_##sfs);   \
  }                                                                              \
  VokStatus vokiDiv_##token##_##layout##IR##sfs(                                 \
      const T* src, int srcStep, T* srcDst, int srcDstStep,                      \
      VokiSize roi VOK_SCALE_PARAM_##sfs) {                                      \
    return vok::DivImages<T, vok::kLayout>(src, srcStep, srcDst, srcDstStep,     \
                                           srcDst, srcDstStep, roi,              \
                                           VOK_SCALE_ARG_##sfs);                 \
  }
#define VOK_DIVC_LAYOUT(layout, kLayout, token, T, sfs)                          \
  VokStatus vokiDivC_##token##_##layout##R##sfs(                                 \
      const T* src, int srcStep, VOK_VALUE_PARAM_##layout(T), T* dst,            \
      int dstStep, VokiSize roi VOK_SCALE_PARAM_##sfs) {                         \
    return vok::DivConstant<T, vok::kLayout>(src, srcStep, VOK_VALUE_PTR_##layout, \
                                             dst, dstStep, roi,                  \
                                             VOK_SCALE_ARG_##sfs);               \
  }                                                                              \
  VokStatus vokiDivC_##token##_##layout##IR##sfs(                                \
      VOK_VALUE_PARAM_##layout(T), T* srcDst, int srcDstStep,                    \
      VokiSize roi VOK_SCALE_PARAM_##sfs) {                                      \
    return vok::DivConstant<T, vok::kLayout>(srcDst, srcDstStep,                 \
                                             VOK_VALUE_PTR_##layout, srcDst,     \
                                             srcDstStep, roi,                    \
                                             VOK_SCALE_ARG_##sfs);               \
  }
#define VOK_DIV_FAMILY(layouts, ...) layouts(VOK_DIV_LAYOUT, __VA_ARGS__)
#define VOK_DIVC_FAMILY(layouts, ...) layouts(VOK_DIVC_LAYOUT, __VA_ARGS__)

#define VOK_DIV_VECTOR(token, T, sfs)                                            \
  VokStatus VOK_CAT(voksDiv_##token, VOK_VECTOR_SUFFIX_##sfs)(                   \
      const T* src1, const T* src2, T* dst, int len VOK_SCALE_PARAM_##sfs) {     \
    return vok::DivVector<T>(src1, src2, dst, len, VOK_SCALE_ARG_##sfs);         \
  }
#define VOK_DIVC_VECTOR(token, T)                                                \
  VokStatus voksDivC_##token##_Sfs(const T* src, T value, T* dst, int len,       \
                                   int scale) {                                  \
    return vok::DivConstantVector<T>(src, value, dst, len, scale);               \
  }

extern "C" {
VOK_ONE_IMAGE_FORMS(VOK_ONE_IMAGE_FAMILY)
VOK_ONE_IMAGE_IR(C4, kC4, Sqrt, kSqrt, 32f, Vok32f, )  // C4 only in place
VOK_DIV_FORMS(VOK_DIV_FAMILY)
VOK_DIVC_FORMS(VOK_DIVC_FAMILY)
VOK_VECTOR_FORMS(VOK_VECTOR)
VOK_DIV_VECTOR(8u, Vok8u, Sfs)
VOK_DIV_VECTOR(16s, Vok16s, Sfs)
VOK_DIV_VECTOR(32f, Vok32f, )
VOK_DIVC_VECTOR(8u, Vok8u)
VOK_DIVC_VECTOR(16s, Vok16s)
}
