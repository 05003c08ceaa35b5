// Row routines of the complex families. The float sums and products of the
// vector rule run on the SIMD kernels of the real types and of the complex
// product, and so do the exact 16sc products; the other exact integer
// products and the divisions need 64 or 128 bits that the instruction sets
// lack in vector lanes, and the plain loops of the AC4 and constant C3 forms
// are sample by sample by definition.
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "arith/arith.h"
#include "arith/complex.h"
#include "arith/exact_rounding.h"
#include "arith/vector.h"

namespace vok {
namespace {

template <typename T>
using PartOf = decltype(T::re);

// Holds every exact part: 64 bits for 16sc, 128 for the 32sc products.
template <typename T>
using ExactOf = std::conditional_t<sizeof(PartOf<T>) == 2, int64_t, __int128>;

// Runs fn(a, b, zeroDivisor) on the samples that the layout touches, b being
// the second image's sample or the constant of the channel.
template <typename T, class Fn>
VokStatus EachSample(const ElementRows& rows, const Fn& fn) {
  const int channels = rows.layout.channels;
  const int used = rows.layout.keepAlpha ? 3 : channels;
  const T* constant = static_cast<const T*>(rows.constant);
  bool zeroDivisor = false;
  for (int y = 0; y < rows.height; ++y) {
    const T* a = RowAt(static_cast<const T*>(rows.a), rows.aStep, y);
    const T* b = rows.b == nullptr ? nullptr
                                   : RowAt(static_cast<const T*>(rows.b), rows.bStep, y);
    T* out = RowAt(static_cast<T*>(rows.dst), rows.dstStep, y);
    for (size_t i = 0; i < rows.rowSamples; i += channels)
      for (int c = 0; c < used; ++c) {
        const T other = b == nullptr ? constant[c] : LoadSample(b + i + c);
        StoreSample(out + i + c, fn(LoadSample(a + i + c), other, zeroDivisor));
      }
  }
  return zeroDivisor ? vokWarnDivideByZero : vokStatusOk;
}

// The exact real and imaginary parts of a op b (not for division).
template <typename W, typename T>
void ExactParts(ComplexOp op, T a, T b, W* re, W* im) {
  switch (op) {
    case ComplexOp::kAdd:
      *re = W{a.re} + b.re;
      *im = W{a.im} + b.im;
      return;
    case ComplexOp::kSub:
      *re = W{a.re} - b.re;
      *im = W{a.im} - b.im;
      return;
    default:
      *re = W{a.re} * b.re - W{a.im} * b.im;
      *im = W{a.re} * b.im + W{a.im} * b.re;
      return;
  }
}

// n / d as exact integers: the square norm D of d and the numerators X, Y.
template <typename W, typename T>
void DivisionParts(T n, T d, W* x, W* y, W* norm) {
  *norm = W{d.re} * d.re + W{d.im} * d.im;
  *x = W{n.re} * d.re + W{n.im} * d.im;
  *y = W{n.im} * d.re - W{n.re} * d.im;
}

// The same from parts converted to double, each step rounded.
template <typename T>
void DivisionParts(T n, T d, double* x, double* y, double* norm) {
  const double nr = n.re, ni = n.im, dr = d.re, di = d.im;
  *norm = dr * dr + di * di;
  *x = nr * dr + ni * di;
  *y = ni * dr - nr * di;
}

// ---- Integer complex types --------------------------------------------------

template <typename T>
VokStatus RunVectorInteger(const ComplexJob& job) {
  using P = PartOf<T>;
  using W = ExactOf<T>;
  const int s = job.scale;
  const double f = PowerOfHalf(s);
  const ComplexOp op = job.op;
  if (op != ComplexOp::kDiv) {
    return EachSample<T>(job.rows, [&](T a, T b, bool&) {
      W re, im;
      ExactParts(op, a, b, &re, &im);
      return T{ScaleToEven<P>(re, s), ScaleToEven<P>(im, s)};
    });
  }
  if (job.rows.b == nullptr) {  // division by a constant
    if constexpr (sizeof(P) == 2) {
      // Beyond 15 every quotient rounds to zero; below -16 the factor would
      // lose the numerators' low bits, so the constant is folded first.
      if (s >= 16) return EachSample<T>(job.rows, [](T, T, bool&) { return T{}; });
      return EachSample<T>(job.rows, [&](T a, T c, bool&) {
        W x, y, norm;
        DivisionParts(a, c, &x, &y, &norm);
        const double k = f / static_cast<double>(norm);
        if (s >= -16)
          return T{SaturateDouble<P>(NearestEven(static_cast<double>(x) * k)),
                   SaturateDouble<P>(NearestEven(static_cast<double>(y) * k))};
        const double u = c.re * k, v = -c.im * k;
        return T{SaturateDouble<P>(NearestEven(u * a.re - v * a.im)),
                 SaturateDouble<P>(NearestEven(a.re * v + a.im * u))};
      });
    } else {
      return EachSample<T>(job.rows, [&](T a, T c, bool&) {
        const int32_t norm = Wrap32(W{c.re} * c.re + W{c.im} * c.im);
        const double k = 1.0 / norm * f;
        double x, y, unused;
        DivisionParts(a, c, &x, &y, &unused);
        return T{TiesAway<P>(x * k), TiesAway<P>(y * k)};
      });
    }
  }
  if constexpr (sizeof(P) == 2) {
    // Past 2^40 either way the results no longer change, and the factor
    // stays finite.
    const double limited = PowerOfHalf(std::clamp(s, -40, 40));
    return EachSample<T>(job.rows, [&](T n, T d, bool& zeroDivisor) {
      W x, y, norm;
      DivisionParts(n, d, &x, &y, &norm);
      if (norm == 0) {
        zeroDivisor = true;
        return T{};
      }
      const double k = limited / static_cast<double>(norm);
      return T{SaturateDouble<P>(NearestEven(static_cast<double>(x) * k)),
               SaturateDouble<P>(NearestEven(static_cast<double>(y) * k))};
    });
  } else {
    return EachSample<T>(job.rows, [&](T n, T d, bool& zeroDivisor) {
      double x, y, norm;
      DivisionParts(n, d, &x, &y, &norm);
      if (norm == 0) {
        zeroDivisor = true;
        return T{};
      }
      return T{SaturateDouble<P>(std::trunc(x / norm * f)),
               SaturateDouble<P>(std::trunc(y / norm * f))};
    });
  }
}

// The plain loops: the single rule (two images), the wide product (32sc
// products of two images) and the double rule (constants), and their
// divisions.
template <typename T>
VokStatus RunPlainInteger(const ComplexJob& job) {
  using P = PartOf<T>;
  using W = ExactOf<T>;
  const int s = job.scale;
  const double f = PowerOfHalf(s);
  const float singleF = static_cast<float>(PowerOfHalf(std::clamp(s, -200, 200)));
  const ComplexOp op = job.op;
  const bool constant = job.rows.b == nullptr;
  if (op == ComplexOp::kDiv && constant) {
    return EachSample<T>(job.rows, [&](T a, T c, bool&) {
      W x, y, norm;
      DivisionParts(a, c, &x, &y, &norm);
      const double d = Wrap32(norm);
      return T{TiesAway<P>(Wrap32(x) * f / d), TiesAway<P>(Wrap32(y) * f / d)};
    });
  }
  if (op == ComplexOp::kDiv) {
    const bool viaFloat = sizeof(P) == 2 && job.arith == ComplexArith::kPlain;
    return EachSample<T>(job.rows, [&](T n, T d, bool& zeroDivisor) {
      double x, y, norm;
      if constexpr (sizeof(P) == 2) {
        // 32-bit integers, rounded to single precision on the way to double
        // in the out-of-place form only.
        W wx, wy, wNorm;
        DivisionParts(n, d, &wx, &wy, &wNorm);
        const auto widen = [viaFloat](W v) {
          return viaFloat ? static_cast<double>(static_cast<float>(Wrap32(v)))
                          : static_cast<double>(Wrap32(v));
        };
        x = widen(wx), y = widen(wy), norm = widen(wNorm);
      } else {
        DivisionParts(n, d, &x, &y, &norm);
      }
      if (norm == 0) {
        zeroDivisor = true;
        return T{};
      }
      const double k = f / norm;
      return T{TiesAway<P>(x * k), TiesAway<P>(y * k)};
    });
  }
  if (constant) {
    return EachSample<T>(job.rows, [&](T a, T c, bool&) {
      W re, im;
      ExactParts(op, a, c, &re, &im);
      return T{TiesAway<P>(Wrap32(re) * f), TiesAway<P>(Wrap32(im) * f)};
    });
  }
  if (sizeof(P) == 4 && op == ComplexOp::kMul) {
    return EachSample<T>(job.rows, [&](T a, T b, bool&) {
      const double ar = a.re, ai = a.im, br = b.re, bi = b.im;
      return T{TiesAway<P>((ar * br - ai * bi) * f),
               TiesAway<P>((ar * bi + ai * br) * f)};
    });
  }
  return EachSample<T>(job.rows, [&](T a, T b, bool&) {
    W re, im;
    ExactParts(op, a, b, &re, &im);
    const auto single = [&](W x) {
      return TiesAway<P>(static_cast<double>(static_cast<float>(Wrap32(x)) * singleF));
    };
    return T{single(re), single(im)};
  });
}

// The real rows under a complex job: two samples per complex value, and
// the constant as a pattern of parts.
ElementRows PartRows(const ElementRows& rows) {
  ElementRows parts = rows;
  parts.rowSamples = 2 * rows.rowSamples;
  parts.layout = Layout{2 * rows.layout.channels, false};
  return parts;
}

// ---- 32fc ---------------------------------------------------------------------

constexpr float kQuietNaN = std::bit_cast<float>(0x7FC00000u);

VokStatus RunFloatComplex(const ComplexJob& job) {
  const ElementRows& rows = job.rows;
  const bool constant = rows.b == nullptr;
  if (job.op == ComplexOp::kDiv && job.arith == ComplexArith::kVector) {
    if (constant) {  // the product with the reciprocal
      Vok32fc reciprocal;
      if (!Reciprocal32fc(*static_cast<const Vok32fc*>(rows.constant), &reciprocal))
        return vokStatusDivideByZero;
      ElementRows product = PartRows(rows);
      product.constant = &reciprocal;
      RunComplexMul32f(product);
      return vokStatusOk;
    }
    return EachSample<Vok32fc>(rows, [](Vok32fc n, Vok32fc d, bool& zeroDivisor) {
      const float norm = d.re * d.re + d.im * d.im;
      if (norm == 0.0f) {
        zeroDivisor = true;
        return Vok32fc{kQuietNaN, kQuietNaN};
      }
      const float k = 1.0f / norm;
      return Vok32fc{(n.re * d.re + n.im * d.im) * k, (n.im * d.re - n.re * d.im) * k};
    });
  }
  if (job.op == ComplexOp::kDiv && constant) {
    return EachSample<Vok32fc>(rows, [](Vok32fc a, Vok32fc c, bool&) {
      const double norm = c.re * c.re + c.im * c.im;
      const double cr = c.re, ci = c.im;
      return Vok32fc{static_cast<float>((a.re * cr + a.im * ci) / norm),
                     static_cast<float>((a.im * cr - a.re * ci) / norm)};
    });
  }
  if (job.op == ComplexOp::kDiv) {
    return EachSample<Vok32fc>(rows, [](Vok32fc n, Vok32fc d, bool& zeroDivisor) {
      const float norm = d.re * d.re + d.im * d.im;
      const float x = n.re * d.re + n.im * d.im, y = n.im * d.re - n.re * d.im;
      if (norm == 0.0f) {
        zeroDivisor = true;
        const auto signed_ = [](float v) {
          constexpr float kInf = std::numeric_limits<float>::infinity();
          return v > 0 ? kInf : v < 0 ? -kInf : kQuietNaN;
        };
        return Vok32fc{signed_(x), signed_(y)};
      }
      const double k = 1.0 / norm;
      return Vok32fc{static_cast<float>(x * k), static_cast<float>(y * k)};
    });
  }
  if (rows.layout.keepAlpha) {
    const ComplexOp op = job.op;
    return EachSample<Vok32fc>(rows, [op](Vok32fc a, Vok32fc b, bool&) {
      switch (op) {
        case ComplexOp::kAdd: return Vok32fc{a.re + b.re, a.im + b.im};
        case ComplexOp::kSub: return Vok32fc{a.re - b.re, a.im - b.im};
        default: return Vok32fc{a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
      }
    });
  }
  if (job.op == ComplexOp::kMul) {
    RunComplexMul32f(PartRows(rows));
  } else {
    ArithJob parts{};
    parts.rows = PartRows(rows);
    parts.op = job.op == ComplexOp::kAdd ? ArithOp::kAdd : ArithOp::kSub;
    RunArith<Vok32f>(parts);
  }
  return vokStatusOk;
}

}  // namespace

bool Reciprocal32fc(Vok32fc c, Vok32fc* reciprocal) {
  const float norm = c.re * c.re + c.im * c.im;
  if (norm == 0.0f) return false;
  const float r = 1.0f / norm;
  *reciprocal = Vok32fc{c.re * r, (0.0f - c.im) * r};
  return true;
}

template <>
VokStatus RunComplex<Vok16sc>(const ComplexJob& job) {
  if (job.arith != ComplexArith::kVector) return RunPlainInteger<Vok16sc>(job);
  if (job.op == ComplexOp::kAdd || job.op == ComplexOp::kSub) {
    RunScaled16s(PartRows(job.rows),
                 job.op == ComplexOp::kAdd ? ArithOp::kAdd : ArithOp::kSub, job.scale);
    return vokStatusOk;
  }
  if (job.op == ComplexOp::kMul) {
    if (job.scale < 32) {
      RunComplexMul16sc(PartRows(job.rows), job.scale);
    } else {  // a product is at most 2^31
      for (int y = 0; y < job.rows.height; ++y)
        ZeroBytes(RowAt(static_cast<Vok16sc*>(job.rows.dst), job.rows.dstStep, y),
                  job.rows.rowSamples * sizeof(Vok16sc));
    }
    return vokStatusOk;
  }
  return RunVectorInteger<Vok16sc>(job);
}

template <>
VokStatus RunComplex<Vok32sc>(const ComplexJob& job) {
  return job.arith == ComplexArith::kVector ? RunVectorInteger<Vok32sc>(job)
                                            : RunPlainInteger<Vok32sc>(job);
}

template <>
VokStatus RunComplex<Vok32fc>(const ComplexJob& job) {
  return RunFloatComplex(job);
}

}  // namespace vok
