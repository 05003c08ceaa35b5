// Complex arithmetic between the exported entries (image and vector forms)
// and the row routines.
#pragma once

#include "foundation/image.h"
#include "vok.h"

namespace vok {

enum class ComplexOp { kAdd, kSub, kMul, kDiv };

// Sub and Div take the second source as minuend and dividend.
constexpr bool SecondLeads(ComplexOp op) {
  return op == ComplexOp::kSub || op == ComplexOp::kDiv;
}

// Which arithmetic a form runs. kVector is the rule of the vector layer, used
// by every C1 form and the two-image C3 forms: exact, ties to even. kPlain is
// that of the loops of the AC4 forms and the constant C3 forms, in floating
// point with ties away from zero. The in-place AC4 division of 16sc skips one
// rounding to single precision, hence kPlainInPlace.
enum class ComplexArith { kVector, kPlain, kPlainInPlace };

// a op b into dst, b being the second image or one constant per channel
// (rows count complex samples). Sub is a - b and Div a / b. Returns
// vokWarnDivideByZero when a division met a zero divisor, else vokStatusOk.
struct ComplexJob {
  ElementRows rows;
  ComplexOp op;
  ComplexArith arith;
  int scale;
};

template <typename T>
VokStatus RunComplex(const ComplexJob& job);

// The reciprocal that 32fc constant division multiplies by:
// (cr, -ci) / (cr^2 + ci^2) in single precision. False when that square
// norm is zero, also by underflow.
bool Reciprocal32fc(Vok32fc c, Vok32fc* reciprocal);

}  // namespace vok
