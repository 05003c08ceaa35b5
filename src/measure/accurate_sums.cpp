// The accurate 32f sums: every sample widened to double before any
// operation, added in raster order. The order is part of the result, so
// these loops stay scalar.
#include <cmath>
#include <cstring>

#include "measure/reduce.h"

namespace vok {
namespace {

double Widened(const float* p) {
  float value;
  std::memcpy(&value, p, sizeof value);  // rows need not be float-aligned
  return value;
}

}  // namespace

void AccurateSums32f(const ReduceRows& rows, Term term, double sums[4]) {
  auto termAt = [&](const float* a, const float* b, size_t i) {
    double x = Widened(a + i);
    if (b) x -= Widened(b + i);
    switch (term) {
      case Term::kValue: return x;
      case Term::kAbs: return std::fabs(x);
      case Term::kSquare: return x * x;
    }
    return x;
  };
  const size_t channels = rows.layout.channels;
  const size_t width = rows.width;
  double acc[4] = {};
  double odd = 0.0;  // C1: acc[0] takes the even columns, `odd` the others
  for (int y = 0; y < rows.height; ++y) {
    const float* a = RowAt(static_cast<const float*>(rows.a), rows.aStep, y);
    const float* b =
        rows.b ? RowAt(static_cast<const float*>(rows.b), rows.bStep, y) : nullptr;
    if (channels == 1) {
      size_t x = 0;
      for (; x + 1 < width; x += 2) {
        acc[0] += termAt(a, b, x);
        odd += termAt(a, b, x + 1);
      }
      if (x < width) acc[0] += termAt(a, b, x);
    } else {
      for (size_t i = 0; i < width * channels; i += channels)
        for (size_t c = 0; c < channels; ++c) acc[c] += termAt(a, b, i + c);
    }
  }
  if (channels == 1) acc[0] = odd + acc[0];
  for (int c = 0; c < 4; ++c) sums[c] = acc[c];
}

}  // namespace vok
