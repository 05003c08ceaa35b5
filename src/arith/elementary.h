// Division and the elementary functions (Abs, Sqr, Sqrt, Ln, Exp) between
// the exported entries and the per-instruction-set row kernels. The vector
// operations are a job of one row; the image operations a job of many.
#pragma once

#include <cstddef>

#include "vok.h"

namespace vok {

enum class ElementaryOp { kDiv, kDivC, kAbs, kSqr, kSqrt, kLn, kExp };

// Rows of `a` (the divisor for kDiv) and `b` (kDiv's dividend, else null)
// into dst. A step of 0 repeats one row, as the constant rows of DivC do.
struct ElementaryJob {
  ElementaryOp op;
  const void* a;
  ptrdiff_t aStep;
  const void* b;
  ptrdiff_t bStep;
  void* dst;
  ptrdiff_t dstStep;
  size_t rowSamples;
  int height;
  int scale;
  int divisor;  // kDivC: the non-zero constant
  // AC4: a scratch row of rowSamples. Each row is computed there in full and
  // stored with the destination's alpha kept.
  void* alphaRow;
};

// Runs the job on the best instruction set of this machine and returns the
// first warning met, or vokStatusOk.
template <typename T>
VokStatus RunElementary(const ElementaryJob& job);

}  // namespace vok
