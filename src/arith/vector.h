// Row routines of the vector layer that have kernels per instruction set,
// shared by the voks entries and the complex image entries.
#pragma once

#include <cfenv>
#include <cstddef>
#include <cstdint>

#include "arith/arith.h"
#include "foundation/image.h"
#include "vok.h"

namespace vok {

// Complex products a * b of 32fc rows, each product and then the sum or
// difference rounded to single precision. The rows count floats; a constant
// b is `layout.channels` floats, one complex value per channel.
void RunComplexMul32f(const ElementRows& rows);

// The exact products of 16sc rows under the scale-factor rule, for scales up
// to 31 (above, every product rounds to zero). The rows count 16-bit parts,
// and a constant b is `layout.channels` parts.
void RunComplexMul16sc(const ElementRows& rows, int scale);

void Magnitude32fc(const Vok32fc* src, Vok32f* dst, size_t n);
void Phase32fc(const Vok32fc* src, Vok32f* dst, size_t n);
void PolarToCart32fc(const Vok32f* mag, const Vok32f* phase, Vok32fc* dst,
                     size_t n);

// Single-precision sums; the order of accumulation is the kernels' own.
float DotProd32f(const Vok32f* a, const Vok32f* b, size_t n);
float SumOfSquares32f(const Vok32f* src, size_t n);
float Sum32f(const Vok32f* src, size_t n);

void Convert8u32f(const Vok8u* src, Vok32f* dst, size_t n);
void Convert32s32f(const Vok32s* src, Vok32f* dst, size_t n);

// Float to integer: times `factor` unless it is 1, truncated or rounded to
// nearest with ties to even, then saturated (NaN as the type's maximum, or
// for 32s as the bound of its sign).
struct FromFloat {
  bool truncate;
  float factor;
};
void Convert32f8u(const Vok32f* src, Vok8u* dst, size_t n, FromFloat how);
void Convert32f16s(const Vok32f* src, Vok16s* dst, size_t n, FromFloat how);
void Convert32f32s(const Vok32f* src, Vok32s* dst, size_t n, FromFloat how);

// Copies and fills; from kStreamingFrom bytes on they store past the cache
// and end with a store fence.
constexpr size_t kStreamingFrom = 0x80000;
void CopyBytes(const void* src, void* dst, size_t bytes);
void Fill32(uint32_t pattern, void* dst, size_t count);
void ZeroBytes(void* dst, size_t bytes);

// The scale-factor rule on sums (kAdd) or differences a - b (kSub) of 16s
// rows and 32s arrays.
void RunScaled16s(const ElementRows& rows, ArithOp op, int scale);
void Scaled32s(const Vok32s* a, const Vok32s* b, Vok32s* dst, size_t n,
               ArithOp op, int scale);

// Integer magnitude and phase: exact where the rule is, else by the stated
// float or double steps, times 2^-scale.
void Magnitude16sc(const Vok16sc* src, Vok16s* dst, size_t n, int scale);
void Magnitude32sc(const Vok32sc* src, Vok32s* dst, size_t n, int scale);
void Phase16sc(const Vok16sc* src, Vok16s* dst, size_t n, int scale);
void Phase32sc(const Vok32sc* src, Vok32s* dst, size_t n, int scale);

// Rounding to nearest for the scope of a call, the caller's mode restored
// at its end: the conversions from 32s and from float, and the 32sc
// magnitude, set it themselves.
class NearestRounding {
 public:
  NearestRounding() : saved_(std::fegetround()) { std::fesetround(FE_TONEAREST); }
  ~NearestRounding() { std::fesetround(saved_); }
  NearestRounding(const NearestRounding&) = delete;
  NearestRounding& operator=(const NearestRounding&) = delete;

 private:
  int saved_;
};

}  // namespace vok
