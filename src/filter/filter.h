// The convention every filter of the library shares, and the job the
// user-kernel filters hand to their per-instruction-set row kernels.
//
// A kernel is applied as a true convolution, flipped in both axes: with
// anchor (ax, ay), dst(x, y) = sum over m, n of K[m][n] x src(x + ax - n,
// y + ay - m). The window of dst(x, y) therefore starts kw - 1 - ax columns
// left of x and kh - 1 - ay rows above y, and walking it in raster order
// (top row first, left to right) meets the kernel's elements backwards, from
// K[kh-1][kw-1] to K[0][0]. Sums are taken in exactly that order.
#pragma once

#include <cstddef>
#include <cstdint>

#include "foundation/image.h"
#include "vok.h"

namespace vok {

// Where the window of dst(0, 0) starts, relative to the source pixel of
// dst(0, 0): `left` pixels to the right (negative: left) and `top` rows down.
struct KernelWindow {
  int64_t left;
  int64_t top;
};

inline KernelWindow WindowOf(VokiSize kernelSize, VokiPoint anchor) {
  return KernelWindow{int64_t(anchor.x) - (kernelSize.width - 1),
                      int64_t(anchor.y) - (kernelSize.height - 1)};
}

// The first sample the window of dst(0, 0) reads.
template <typename T>
const T* WindowStart(const T* src, int srcStep, int channels,
                     KernelWindow window) {
  const auto* bytes = reinterpret_cast<const uint8_t*>(src);
  bytes += window.top * srcStep + window.left * channels * int64_t(sizeof(T));
  return reinterpret_cast<const T*>(bytes);
}

// How an 8u result leaves an integer sum, fixed once per call by the
// divisor: 1 keeps the sum, a power of two from 2 up shifts with ties up,
// every other divisor multiplies by its float reciprocal.
struct FilterScale {
  enum Mode : int32_t { kNone = 0, kShift = 1, kReciprocal = 2 };
  int32_t mode;
  int32_t shift;
  int32_t roundingAddend;
  float reciprocal;
};

inline FilterScale ScaleOf(int32_t divisor) {
  if (divisor == 1) return FilterScale{FilterScale::kNone, 0, 0, 1.0f};
  if (divisor > 1 && (divisor & (divisor - 1)) == 0) {
    int shift = 0;
    while ((int32_t{1} << shift) != divisor) ++shift;
    return FilterScale{FilterScale::kShift, shift, int32_t{1} << (shift - 1),
                       1.0f};
  }
  return FilterScale{FilterScale::kReciprocal, 0, 0,
                     1.0f / static_cast<float>(divisor)};
}

// One filter call as the row kernels see it. `src` is the window start of
// dst(0, 0); the kernel is the caller's, walked backwards. Samples are
// counted along the row, `channels` to a pixel.
struct FilterJob {
  const void* src;
  ptrdiff_t srcStep;
  void* dst;
  ptrdiff_t dstStep;
  int width;
  Layout layout;
  const void* kernel;  // Vok32s or Vok32f, kernelWidth x kernelHeight
  int kernelWidth;
  int kernelHeight;
  FilterScale scale;  // integer kernels
  // Float-kernel forms into integers: round to nearest whatever the
  // caller's mode (else the caller's mode decides), and whether the last
  // (samples mod 4) samples of a row add one sum per window row instead
  // of every product.
  bool nearest;
  bool rowSumTail;
};

// Rows [y0, y1) of the destination, one entry per kind of sample and
// kernel.
void FilterRows8u(const FilterJob& job, int y0, int y1);       // Vok32s kernel
void FilterRows32f8u(const FilterJob& job, int y0, int y1);    // Vok32f kernel
void FilterRows32f16s(const FilterJob& job, int y0, int y1);   // Vok32f kernel
void FilterRows32f(const FilterJob& job, int y0, int y1);      // Vok32f kernel

}  // namespace vok
