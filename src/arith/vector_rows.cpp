// Vector row routines without kernels of their own per instruction set: the
// scaled 16s sums on the shared arithmetic kernels, and the integer
// magnitude and phase, whose exact comparisons and 64-bit products work
// sample by sample.
#include <cmath>
#include <cstdint>
#include <type_traits>

#include "arith/exact_rounding.h"
#include "arith/vector.h"

namespace vok {

void RunScaled16s(const ElementRows& rows, ArithOp op, int scale) {
  if (scale > 16) {  // below one half for every sum of two samples
    for (int y = 0; y < rows.height; ++y)
      ZeroBytes(RowAt(static_cast<Vok16s*>(rows.dst), rows.dstStep, y),
                rows.rowSamples * sizeof(Vok16s));
    return;
  }
  ArithJob job{};
  job.rows = rows;
  job.op = op;
  job.scale = scale;
  RunArith<Vok16s>(job);
}

void Scaled32s(const Vok32s* a, const Vok32s* b, Vok32s* dst, size_t n,
               ArithOp op, int scale) {
  for (size_t i = 0; i < n; ++i) {
    const int64_t x = op == ArithOp::kAdd ? int64_t{a[i]} + b[i] : int64_t{a[i]} - b[i];
    dst[i] = ScaleToEven<Vok32s>(x, scale);
  }
}

namespace {

// sqrt(m) * 2^-s to nearest with ties to even, from an estimate moved by
// exact comparisons of 4m with (2y + 1)^2 * 4^s.
int64_t ExactRootScaled(int64_t m, int s) {
  const auto compare = [m, s](int64_t y) {  // sign of sqrt(m) 2^-s - (y + 1/2)
    __int128 lhs = __int128{4} * m, rhs = __int128{2 * y + 1} * (2 * y + 1);
    if (s >= 0) rhs <<= 2 * s; else lhs <<= -2 * s;
    return lhs > rhs ? 1 : lhs < rhs ? -1 : 0;
  };
  int64_t y = std::llround(std::sqrt(static_cast<double>(m)) * PowerOfHalf(s));
  while (compare(y) > 0 || (compare(y) == 0 && y % 2 != 0)) ++y;
  while (y > 0 && (compare(y - 1) < 0 || (compare(y - 1) == 0 && y % 2 != 0))) --y;
  return y;
}

// atan of u in [0, 1]: the single-precision rational for 16sc, the longer
// one in double for 32sc.
inline float OctantAtan(float u) {
  const float w = u * u;
  const float num = 1.0f + w * (1.1202340f + w * (0.28050455f + w * 0.0085611893f));
  const float den = 1.0f + w * (1.4535671f + w * (0.56503099f + w * 0.049017590f));
  return u * num / den;
}
inline double OctantAtan(double u) {
  const double w = u * u;
  double num = 0.0009414835173563631, den = 0.001063583575029237;
  for (double c : {0.020223169232592816, 0.10477690485043023, 0.18615749847026156,
                   0.10446061975454465, 8.623069998289055e-16})
    num = num * w + c;
  for (double c : {0.030253417424014557, 0.22195595522024278, 0.62792517112745,
                   0.7465016109179713, 0.3133818592645407})
    den = den * w + c;
  return u * (1.0 - num / den);
}

// The phase of integral re, im by the octant approximation.
template <typename Real>
Real PhaseSteps(Real re, Real im) {
  const Real halfPi = Real(1.5707963267948966), pi = Real(3.141592653589793);
  const Real ax = std::fabs(re), ay = std::fabs(im);
  if (ax == 0) return im == 0 ? Real(0) : std::copysign(halfPi, im);
  const Real t = ay / ax;
  Real a = OctantAtan(t > 1 ? Real(1) / t : t);
  if (t > 1) a = halfPi - a;
  if (re < 0) a = pi - a;
  return std::copysign(a, im);
}

// Scale factor 0: a coarse phase from -3 to 3.
template <typename P>
P CoarsePhase(P re, P im) {
  if (re == 0) return im > 0 ? 2 : im < 0 ? -2 : 0;
  const float p = std::fabs(static_cast<float>(re));
  const float q = std::fabs(static_cast<float>(im)) + 1e-10f;
  const float quarterPi = 0.785398163f;
  const float phi = re > 0 ? quarterPi - quarterPi * ((p - q) / (p + q))
                           : 2.35619449f - quarterPi * ((q - p) / (p + q));
  return static_cast<P>(NearestEven(im < 0 ? -phi : phi));
}

template <typename T, typename P>
void PhaseInteger(const T* src, P* dst, size_t n, int s) {
  using Real = std::conditional_t<sizeof(P) == 2, float, double>;
  const Real f = static_cast<Real>(PowerOfHalf(s));
  for (size_t i = 0; i < n; ++i) {
    const T c = LoadSample(src + i);
    P r = 0;
    if (s == 0) {
      r = CoarsePhase<P>(c.re, c.im);
    } else if (s >= -28 && s <= 1) {
      const Real v = PhaseSteps<Real>(c.re, c.im) * f;
      r = SaturateDouble<P>(NearestEven(v));
    } else if (s < -28) {
      r = TiesAway<P>(std::atan2(static_cast<double>(c.im), static_cast<double>(c.re)) * PowerOfHalf(s));
    }
    StoreSample(dst + i, r);
  }
}

}  // namespace

void Magnitude16sc(const Vok16sc* src, Vok16s* dst, size_t n, int scale) {
  for (size_t i = 0; i < n; ++i) {
    const Vok16sc c = LoadSample(src + i);
    const int64_t m = int64_t{c.re} * c.re + int64_t{c.im} * c.im;
    Vok16s r = 0;
    if (m != 0 && scale < -14) {
      r = 32767;
    } else if (m != 0 && scale <= 16) {
      r = static_cast<Vok16s>(std::min<int64_t>(ExactRootScaled(m, scale), 32767));
    }
    StoreSample(dst + i, r);
  }
}

void Magnitude32sc(const Vok32sc* src, Vok32s* dst, size_t n, int scale) {
  const NearestRounding nearest;  // the square norm and its root round
  const double f = PowerOfHalf(scale);
  for (size_t i = 0; i < n; ++i) {
    const Vok32sc c = LoadSample(src + i);
    Vok32s r = 0;
    if ((c.re != 0 || c.im != 0) && scale <= 32) {
      if (scale < -30) {
        r = 2147483647;
      } else {
        const double m = static_cast<double>(c.re) * c.re + static_cast<double>(c.im) * c.im;
        r = static_cast<Vok32s>(NearestEven(std::min(std::sqrt(m) * f, 2147483647.0)));
      }
    }
    StoreSample(dst + i, r);
  }
}

void Phase16sc(const Vok16sc* src, Vok16s* dst, size_t n, int scale) {
  PhaseInteger(src, dst, n, scale);
}
void Phase32sc(const Vok32sc* src, Vok32s* dst, size_t n, int scale) {
  PhaseInteger(src, dst, n, scale);
}

}  // namespace vok
