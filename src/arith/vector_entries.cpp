// Exported vector operations: pointers checked for null, then the length,
// then one row routine over the whole array.
#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <utility>

#include "arith/complex.h"
#include "arith/vector.h"
#include "foundation/check.h"
#include "foundation/element_entries.h"
#include "vok.h"

namespace vok {
namespace {

VokStatus CheckVector(Pointers pointers, int len) {
  if (AnyNull(pointers)) return vokStatusNullPointer;
  return len < 1 ? vokStatusBadSize : vokStatusOk;
}

// An array as a one-row image.
ElementRows ArrayRows(const void* a, const void* b, const void* constant,
                      void* dst, int len) {
  return ElementRows{a, 0, b, 0, constant, dst, 0, static_cast<size_t>(len), 1, kC1};
}

template <typename T, ComplexOp kOp>
VokStatus ComplexTwo(const T* src1, const T* src2, T* dst, int len, int scale) {
  const VokStatus status = CheckVector({src1, src2, dst}, len);
  if (status != vokStatusOk) return status;
  if (SecondLeads(kOp)) std::swap(src1, src2);
  return RunComplex<T>(ComplexJob{ArrayRows(src1, src2, nullptr, dst, len), kOp,
                                  ComplexArith::kVector, scale});
}

template <typename T, ComplexOp kOp>
VokStatus ComplexConstant(const T* src, T value, T* dst, int len, int scale) {
  const VokStatus status = CheckVector({src, dst}, len);
  if (status != vokStatusOk) return status;
  if (kOp == ComplexOp::kDiv && value.re == 0 && value.im == 0)
    return vokStatusDivideByZero;
  return RunComplex<T>(ComplexJob{ArrayRows(src, nullptr, &value, dst, len), kOp,
                                  ComplexArith::kVector, scale});
}

// Sums and differences, the difference being src2 - src1.
template <ArithOp kOp>
VokStatus AddSub16s(const Vok16s* src1, const Vok16s* src2, Vok16s* dst, int len,
                    int scale) {
  const VokStatus status = CheckVector({src1, src2, dst}, len);
  if (status != vokStatusOk) return status;
  if (kOp == ArithOp::kSub) std::swap(src1, src2);
  RunScaled16s(ArrayRows(src1, src2, nullptr, dst, len), kOp, scale);
  return vokStatusOk;
}

template <ArithOp kOp>
VokStatus AddSub32s(const Vok32s* src1, const Vok32s* src2, Vok32s* dst, int len,
                    int scale) {
  const VokStatus status = CheckVector({src1, src2, dst}, len);
  if (status != vokStatusOk) return status;
  if (kOp == ArithOp::kSub) std::swap(src1, src2);
  Scaled32s(src1, src2, dst, len, kOp, scale);
  return vokStatusOk;
}

// One IEEE operation per sample; b is an array or, with a null b, the
// constant `value`.
template <ArithOp kOp>
void Float32(const Vok32f* a, const Vok32f* b, Vok32f value, Vok32f* dst, int len) {
  ArithJob job{};
  job.rows = ArrayRows(a, b, b == nullptr ? &value : nullptr, dst, len);
  job.op = kOp;
  RunArith<Vok32f>(job);
}

template <ArithOp kOp>
VokStatus AddSub32f(const Vok32f* src1, const Vok32f* src2, Vok32f* dst, int len) {
  const VokStatus status = CheckVector({src1, src2, dst}, len);
  if (status != vokStatusOk) return status;
  if (kOp == ArithOp::kSub) std::swap(src1, src2);
  Float32<kOp>(src1, src2, 0.0f, dst, len);
  return vokStatusOk;
}

// A constant that is neither below nor above zero, NaN included.
bool NeitherSign(Vok32f value) { return !(value < 0.0f || value > 0.0f); }

// 2^-scale by repeated halving or doubling in single precision, so that
// extreme factors end at 0 or infinity.
float FactorOf(int scale) {
  float factor = 1.0f;
  const int64_t steps = std::min<int64_t>(std::abs(int64_t{scale}), 400);
  for (int64_t i = 0; i < steps; ++i) factor *= scale > 0 ? 0.5f : 2.0f;
  return factor;
}

template <typename T>
VokStatus FromFloat32(const Vok32f* src, T* dst, int len, VokRoundMode roundMode,
                      int scale,
                      void (*convert)(const Vok32f*, T*, size_t, FromFloat)) {
  const VokStatus status = CheckVector({src, dst}, len);
  if (status != vokStatusOk) return status;
  convert(src, dst, len, FromFloat{roundMode == vokRoundZero, FactorOf(scale)});
  return vokStatusOk;
}

template <typename TS, typename TD>
VokStatus Unary(const TS* src, TD* dst, int len, void (*row)(const TS*, TD*, size_t)) {
  const VokStatus status = CheckVector({src, dst}, len);
  if (status != vokStatusOk) return status;
  row(src, dst, len);
  return vokStatusOk;
}

template <typename TS, typename TD>
VokStatus UnaryScaled(const TS* src, TD* dst, int len, int scale,
                      void (*row)(const TS*, TD*, size_t, int)) {
  const VokStatus status = CheckVector({src, dst}, len);
  if (status != vokStatusOk) return status;
  row(src, dst, len, scale);
  return vokStatusOk;
}

}  // namespace
}  // namespace vok

// ---- Entry tables ------------------------------------------------------------

#define VOK_OUT_SUFFIX_Sfs _Sfs
#define VOK_OUT_SUFFIX_
#define VOK_IN_PLACE_SUFFIX_Sfs _ISfs
#define VOK_IN_PLACE_SUFFIX_ _I
#define VOK_NAME(stem, suffix) VOK_NAME_(stem, suffix)
#define VOK_NAME_(stem, suffix) stem##suffix

#define VOK_COMPLEX_TWO_FORMS(X)   \
  X(Add, kAdd, 16sc, Vok16sc, Sfs) \
  X(Add, kAdd, 32sc, Vok32sc, Sfs) \
  X(Add, kAdd, 32fc, Vok32fc, )    \
  X(Sub, kSub, 16sc, Vok16sc, Sfs) \
  X(Sub, kSub, 32sc, Vok32sc, Sfs) \
  X(Sub, kSub, 32fc, Vok32fc, )    \
  X(Mul, kMul, 16sc, Vok16sc, Sfs) \
  X(Mul, kMul, 32sc, Vok32sc, Sfs) \
  X(Mul, kMul, 32fc, Vok32fc, )    \
  X(Div, kDiv, 16sc, Vok16sc, Sfs) \
  X(Div, kDiv, 32fc, Vok32fc, )

#define VOK_COMPLEX_CONSTANT_FORMS(X) \
  X(AddC, kAdd, 16sc, Vok16sc, Sfs)   \
  X(AddC, kAdd, 32sc, Vok32sc, Sfs)   \
  X(AddC, kAdd, 32fc, Vok32fc, )      \
  X(SubC, kSub, 16sc, Vok16sc, Sfs)   \
  X(SubC, kSub, 32sc, Vok32sc, Sfs)   \
  X(SubC, kSub, 32fc, Vok32fc, )      \
  X(MulC, kMul, 16sc, Vok16sc, Sfs)   \
  X(MulC, kMul, 32sc, Vok32sc, Sfs)   \
  X(MulC, kMul, 32fc, Vok32fc, )      \
  X(DivC, kDiv, 16sc, Vok16sc, Sfs)   \
  X(DivC, kDiv, 32fc, Vok32fc, )

#define VOK_SCALED_FORMS(X)                   \
  X(Add, kAdd, 16s, Vok16s, AddSub16s, Sfs)   \
  X(Sub, kSub, 16s, Vok16s, AddSub16s, Sfs)   \
  X(Add, kAdd, 32s, Vok32s, AddSub32s, Sfs)   \
  X(Sub, kSub, 32s, Vok32s, AddSub32s, Sfs)   \
  X(Add, kAdd, 32f, Vok32f, AddSub32f, )      \
  X(Sub, kSub, 32f, Vok32f, AddSub32f, )

#define VOK_COMPLEX_TWO(family, op, token, T, sfs)                              \
  VokStatus VOK_NAME(voks##family##_##token, VOK_OUT_SUFFIX_##sfs)(             \
      const T* src1, const T* src2, T* dst, int len VOK_SCALE_PARAM_##sfs) {    \
    return vok::ComplexTwo<T, vok::ComplexOp::op>(src1, src2, dst, len,         \
                                                  VOK_SCALE_ARG_##sfs);         \
  }                                                                             \
  VokStatus VOK_NAME(voks##family##_##token, VOK_IN_PLACE_SUFFIX_##sfs)(        \
      const T* src, T* srcDst, int len VOK_SCALE_PARAM_##sfs) {                 \
    return vok::ComplexTwo<T, vok::ComplexOp::op>(src, srcDst, srcDst, len,     \
                                                  VOK_SCALE_ARG_##sfs);         \
  }

#define VOK_COMPLEX_CONSTANT(family, op, token, T, sfs)                         \
  VokStatus VOK_NAME(voks##family##_##token, VOK_OUT_SUFFIX_##sfs)(             \
      const T* src, T value, T* dst, int len VOK_SCALE_PARAM_##sfs) {           \
    return vok::ComplexConstant<T, vok::ComplexOp::op>(src, value, dst, len,    \
                                                       VOK_SCALE_ARG_##sfs);    \
  }                                                                             \
  VokStatus VOK_NAME(voks##family##_##token, VOK_IN_PLACE_SUFFIX_##sfs)(        \
      T value, T* srcDst, int len VOK_SCALE_PARAM_##sfs) {                      \
    return vok::ComplexConstant<T, vok::ComplexOp::op>(srcDst, value, srcDst,   \
                                                       len, VOK_SCALE_ARG_##sfs); \
  }

#define VOK_SCALED(family, op, token, T, run, sfs)                              \
  VokStatus VOK_NAME(voks##family##_##token, VOK_OUT_SUFFIX_##sfs)(             \
      const T* src1, const T* src2, T* dst, int len VOK_SCALE_PARAM_##sfs) {    \
    return vok::run<vok::ArithOp::op>(src1, src2, dst,                          \
                                      len VOK_SCALE_PARAM_ARG_##sfs);           \
  }                                                                             \
  VokStatus VOK_NAME(voks##family##_##token, VOK_IN_PLACE_SUFFIX_##sfs)(        \
      const T* src, T* srcDst, int len VOK_SCALE_PARAM_##sfs) {                 \
    return vok::run<vok::ArithOp::op>(src, srcDst, srcDst,                      \
                                      len VOK_SCALE_PARAM_ARG_##sfs);           \
  }
#define VOK_SCALE_PARAM_ARG_Sfs , scale
#define VOK_SCALE_PARAM_ARG_

// Copies make no test for overlap: the caller gives disjoint arrays.
#define VOK_COPY_FORMS(X) X(8u, Vok8u) X(32f, Vok32f)
#define VOK_COPY(token, T)                                                    \
  VokStatus voksCopy_##token(const T* src, T* dst, int len) {                 \
    const VokStatus status = vok::CheckVector({src, dst}, len);               \
    if (status == vokStatusOk) vok::CopyBytes(src, dst, size_t(len) * sizeof(T)); \
    return status;                                                            \
  }

#define VOK_ZERO_FORMS(X) X(8u, Vok8u) X(16s, Vok16s) X(16sc, Vok16sc) X(32f, Vok32f)
#define VOK_ZERO(token, T)                                      \
  VokStatus voksZero_##token(T* dst, int len) {                 \
    const VokStatus status = vok::CheckVector({dst}, len);      \
    if (status == vokStatusOk) vok::ZeroBytes(dst, size_t(len) * sizeof(T)); \
    return status;                                              \
  }

#define VOK_UNARY_FORMS(X)                                \
  X(voksConvert_8u32f, Vok8u, Vok32f, Convert8u32f)       \
  X(voksConvert_32s32f, Vok32s, Vok32f, Convert32s32f)    \
  X(voksMagnitude_32fc, Vok32fc, Vok32f, Magnitude32fc)   \
  X(voksPhase_32fc, Vok32fc, Vok32f, Phase32fc)
#define VOK_UNARY(name, TS, TD, row)                       \
  VokStatus name(const TS* src, TD* dst, int len) {       \
    return vok::Unary<TS, TD>(src, dst, len, vok::row);   \
  }

#define VOK_UNARY_SCALED_FORMS(X)                                \
  X(voksMagnitude_16sc_Sfs, Vok16sc, Vok16s, Magnitude16sc)      \
  X(voksMagnitude_32sc_Sfs, Vok32sc, Vok32s, Magnitude32sc)      \
  X(voksPhase_16sc_Sfs, Vok16sc, Vok16s, Phase16sc)              \
  X(voksPhase_32sc_Sfs, Vok32sc, Vok32s, Phase32sc)
#define VOK_UNARY_SCALED(name, TS, TD, row)                              \
  VokStatus name(const TS* src, TD* dst, int len, int scale) {          \
    return vok::UnaryScaled<TS, TD>(src, dst, len, scale, vok::row);    \
  }

#define VOK_FROM_FLOAT_FORMS(X) X(8u, Vok8u) X(16s, Vok16s) X(32s, Vok32s)
#define VOK_FROM_FLOAT(token, T)                                              \
  VokStatus voksConvert_32f##token##_Sfs(const Vok32f* src, T* dst, int len,  \
                                         VokRoundMode roundMode, int scale) { \
    return vok::FromFloat32<T>(src, dst, len, roundMode, scale,               \
                               vok::Convert32f##token);                       \
  }

extern "C" {

VOK_COMPLEX_TWO_FORMS(VOK_COMPLEX_TWO)
VOK_COMPLEX_CONSTANT_FORMS(VOK_COMPLEX_CONSTANT)
VOK_SCALED_FORMS(VOK_SCALED)
VOK_COPY_FORMS(VOK_COPY)
VOK_ZERO_FORMS(VOK_ZERO)
VOK_FROM_FLOAT_FORMS(VOK_FROM_FLOAT)
VOK_UNARY_FORMS(VOK_UNARY)
VOK_UNARY_SCALED_FORMS(VOK_UNARY_SCALED)

VokStatus voksSubC_32f(const Vok32f* src, Vok32f value, Vok32f* dst, int len) {
  const VokStatus status = vok::CheckVector({src, dst}, len);
  if (status != vokStatusOk) return status;
  if (vok::NeitherSign(value)) return voksCopy_32f(src, dst, len);
  vok::Float32<vok::ArithOp::kSub>(src, nullptr, value, dst, len);
  return vokStatusOk;
}

VokStatus voksSubC_32f_I(Vok32f value, Vok32f* srcDst, int len) {
  const VokStatus status = vok::CheckVector({srcDst}, len);
  if (status != vokStatusOk || vok::NeitherSign(value)) return status;
  vok::Float32<vok::ArithOp::kSub>(srcDst, nullptr, value, srcDst, len);
  return vokStatusOk;
}

// Unlike the image form, a zero constant clears NaN and infinite samples too.
VokStatus voksMulC_32f_I(Vok32f value, Vok32f* srcDst, int len) {
  const VokStatus status = vok::CheckVector({srcDst}, len);
  if (status != vokStatusOk || value == 1.0f || std::isnan(value)) return status;
  if (value == 0.0f) return voksZero_32f(srcDst, len);
  vok::Float32<vok::ArithOp::kMul>(srcDst, nullptr, value, srcDst, len);
  return vokStatusOk;
}

VokStatus voksSet_32s(Vok32s value, Vok32s* dst, int len) {
  const VokStatus status = vok::CheckVector({dst}, len);
  if (status == vokStatusOk) vok::Fill32(static_cast<uint32_t>(value), dst, size_t(len));
  return status;
}

VokStatus voksSet_32f(Vok32f value, Vok32f* dst, int len) {
  return voksSet_32s(std::bit_cast<Vok32s>(value), reinterpret_cast<Vok32s*>(dst), len);
}

VokStatus voksDotProd_32f(const Vok32f* src1, const Vok32f* src2, int len, Vok32f* dp) {
  const VokStatus status = vok::CheckVector({src1, src2, dp}, len);
  if (status == vokStatusOk) *dp = vok::DotProd32f(src1, src2, size_t(len));
  return status;
}

// The fast sum is single precision; every other hint sums in eight extended
// precision running sums, one per position modulo 8.
VokStatus voksMean_32f(const Vok32f* src, int len, Vok32f* mean, VokHint hint) {
  const VokStatus status = vok::CheckVector({src, mean}, len);
  if (status != vokStatusOk) return status;
  double sum = 0.0;
  if (hint == vokHintFast) {
    sum = vok::Sum32f(src, size_t(len));
  } else {
    long double sums[8] = {};
    for (int i = 0; i < len; ++i) sums[i % 8] += src[i];
    long double total = 0.0L;
    for (long double s : sums) total += s;
    sum = static_cast<double>(total);
  }
  *mean = static_cast<Vok32f>(sum / len);
  return vokStatusOk;
}

VokStatus voksNorm_L2_32f(const Vok32f* src, int len, Vok32f* norm) {
  const VokStatus status = vok::CheckVector({src, norm}, len);
  if (status == vokStatusOk) *norm = std::sqrt(vok::SumOfSquares32f(src, size_t(len)));
  return status;
}

VokStatus voksPolarToCart_32fc(const Vok32f* mag, const Vok32f* phase, Vok32fc* dst,
                               int len) {
  const VokStatus status = vok::CheckVector({mag, phase, dst}, len);
  if (status == vokStatusOk) vok::PolarToCart32fc(mag, phase, dst, size_t(len));
  return status;
}

}  // extern "C"
