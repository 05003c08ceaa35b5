// Whole-image reductions between the measure entries (sums, means, extrema,
// norms) and their per-instruction-set kernels. Every kernel fills one slot
// per channel, alpha included; the entries decide which slots they report.
#pragma once

#include <cstddef>

#include "foundation/image.h"
#include "vok.h"

namespace vok {

// One image, or two walked side by side when b is set (the differences of
// the norms). Row y of a starts at a + y * aStep bytes.
struct ReduceRows {
  const void* a;
  ptrdiff_t aStep;
  const void* b;  // null for measures of one image
  ptrdiff_t bStep;
  size_t width;  // pixels
  int height;
  Layout layout;
};

// Wide enough for any exact sum over the largest image a VokiSize allows.
using Int128 = __int128;

// What a sum adds per sample x, where x is a sample of a, or a - b.
enum class Term { kValue, kAbs, kSquare };

// Exact sums per channel, for Vok8u and Vok16s.
template <typename T>
void IntegerSums(const ReduceRows& rows, Term term, Int128 sums[4]);

// Smallest and largest sample per channel, for Vok8u, Vok16s, Vok32s and
// Vok32f. Float extrema start at FLT_MAX and -FLT_MAX, so infinities that
// point away from the data never come back.
template <typename T>
void Extrema(const ReduceRows& rows, T lo[4], T hi[4]);

// Largest |x| per channel, for Vok8u, Vok16s and Vok32f.
template <typename T>
void MaxAbs(const ReduceRows& rows, double out[4]);

// The extremum per channel and the first position holding it, top row
// first, then left-most. Vok8u, Vok16s, Vok32f.
template <typename T>
void ExtremumIndex(const ReduceRows& rows, bool findMax, T value[4], int x[4],
                   int y[4]);

// Fast single-precision sums of 32f samples: each row in float lanes, the
// row results carried in extended precision.
void FastSum32f(const ReduceRows& rows, double sums[4]);

// Fast single-precision |x| or x^2 sums of 32f: one float accumulator per
// lane through all rows.
void FastNorm32f(const ReduceRows& rows, Term term, double sums[4]);

// Double-precision sums of 32f samples in raster order: C1 keeps even and
// odd columns apart and returns odd + even; other layouts one sum a channel.
void AccurateSums32f(const ReduceRows& rows, Term term, double sums[4]);

}  // namespace vok
