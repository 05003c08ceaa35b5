// Scalar rounding of the complex families and the exact vector forms: the
// scale-factor rule on wide integers, and the two ways doubles become
// integer samples. None depends on the floating-point rounding state.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

#include "foundation/image.h"

namespace vok {


// x times 2^-s, to nearest with ties to even, saturated to P: exact for any
// x that leaves W two bits of room.
template <typename P, typename W>
P ScaleToEven(W x, int s) {
  constexpr int kBits = 8 * sizeof(W);
  const W lo = std::numeric_limits<P>::lowest(), hi = std::numeric_limits<P>::max();
  if (s > 0) {
    if (s >= kBits - 1) return 0;
    const W unit = W{1} << s;
    const W q = x >> s;  // floor
    const W r = x - q * unit;
    const W half = unit / 2;
    x = r > half || (r == half && (q & 1) != 0) ? q + 1 : q;
  } else if (s < 0) {
    // Saturating first keeps the product in W; a shift of 31 already takes
    // every non-zero sample past the range.
    x = std::clamp(x, lo, hi) * (W{1} << (s < -31 ? 31 : -s));
  }
  return static_cast<P>(std::clamp(x, lo, hi));
}

// An integral (or to be truncated) double saturated to P; NaN gives 0.
template <typename P>
P SaturateDouble(double v) {
  constexpr double lo = std::numeric_limits<P>::lowest();
  constexpr double hi = std::numeric_limits<P>::max();
  if (std::isnan(v)) return 0;
  return v >= hi ? std::numeric_limits<P>::max()
         : v <= lo ? std::numeric_limits<P>::lowest()
                   : static_cast<P>(v);
}

// To nearest with ties to even.
inline double NearestEven(double v) {
  const double floor = std::floor(v);
  const double fraction = v - floor;
  const bool odd = std::fmod(floor, 2.0) != 0.0;
  return fraction > 0.5 || (fraction == 0.5 && odd) ? floor + 1.0 : floor;
}

// Half a unit away from zero, then truncated and saturated: the ties of the
// plain loops, which go away from zero.
template <typename P>
P TiesAway(double v) {
  return SaturateDouble<P>(std::trunc(v > 0 ? v + 0.5 : v - 0.5));
}

// 2^-s; beyond a few hundred the power is 0 or infinite either way.
inline double PowerOfHalf(int s) { return std::ldexp(1.0, -std::clamp(s, -400, 400)); }

// The low 32 bits of an exact integer, as the plain loops form their sums,
// products and square norms.
template <typename W>
int32_t Wrap32(W x) {
  return static_cast<int32_t>(static_cast<uint32_t>(x));
}

}  // namespace vok
