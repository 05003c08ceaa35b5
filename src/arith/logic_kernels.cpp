// Row kernels of the bitwise operations and the constant shifts, compiled
// once per instruction set.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "arith/logic_kernels.cpp"
#include "hwy/foreach_target.h"  // IWYU pragma: keep

#include <type_traits>

#include "arith/logic.h"
#include "foundation/rows-inl.h"
#include "hwy/highway.h"

HWY_BEFORE_NAMESPACE();
namespace vok {
namespace HWY_NAMESPACE {
namespace {

template <typename T, LogicOp kOp>
struct BitwiseRule {
  hn::ScalableTag<T> d;
  HWY_INLINE auto operator()(const T* a, const T* b) const {
    const auto x = hn::LoadU(d, a), y = hn::LoadU(d, b);
    if constexpr (kOp == LogicOp::kAnd) return hn::And(x, y);
    if constexpr (kOp == LogicOp::kOr) return hn::Or(x, y);
    if constexpr (kOp == LogicOp::kXor) return hn::Xor(x, y);
  }
};

// One count for every sample, below the sample's width.
template <typename T, LogicOp kOp>
struct UniformShiftRule {
  hn::ScalableTag<T> d;
  int count;
  HWY_INLINE auto operator()(const T* a, const T*) const {
    const auto x = hn::LoadU(d, a);
    return kOp == LogicOp::kShiftLeft ? hn::ShiftLeftSame(x, count)
                                      : hn::ShiftRightSame(x, count);
  }
};

// Where a count reaches the sample's width, every bit has left the sample.
template <typename T>
struct ZeroRule {
  hn::ScalableTag<T> d;
  HWY_INLINE auto operator()(const T*, const T*) const { return hn::Zero(d); }
};

// Each sample shifted by the count in the same position of b. Bytes widen
// to 16 bits, where a count of 8 still leaves the low byte defined; wider
// samples zero the lanes whose count equals their width (a shift by the full
// width is undefined in the instruction sets).
template <typename T, LogicOp kOp>
struct PerChannelShiftRule {
  static constexpr int kBits = 8 * sizeof(T);
  using TW = std::conditional_t<sizeof(T) == 1, hwy::MakeWide<T>, T>;
  using DW = hn::ScalableTag<TW>;
  hn::Rebind<T, DW> d;
  HWY_INLINE auto operator()(const T* a, const T* b) const {
    const DW dw;
    if constexpr (sizeof(T) == 1) {
      const auto x = hn::PromoteTo(dw, hn::LoadU(d, a));
      const auto n = hn::PromoteTo(dw, hn::LoadU(d, b));
      const auto y = kOp == LogicOp::kShiftLeft
                         ? hn::And(hn::operator<<(x, n), hn::Set(dw, TW{0xFF}))
                         : hn::operator>>(x, n);
      // Bytes of the result are in range, so the saturating narrowing is exact.
      const hn::RebindToSigned<DW> dsw;
      return hn::DemoteTo(d, hn::BitCast(dsw, y));
    } else {
      const auto x = hn::LoadU(d, a), n = hn::LoadU(d, b);
      const auto below = hn::Min(n, hn::Set(dw, TW{kBits - 1}));
      if (kOp == LogicOp::kShiftRight && hwy::IsSigned<T>()) return hn::operator>>(x, below);
      const auto full = hn::Eq(n, hn::Set(dw, TW{kBits}));
      return hn::IfThenZeroElse(
          full, kOp == LogicOp::kShiftLeft ? hn::operator<<(x, below) : hn::operator>>(x, below));
    }
  }
};

template <typename T, LogicOp kOp>
void RunShift(const LogicJob& job) {
  constexpr int kBits = 8 * sizeof(T);
  const int height = job.rows.height;
  int count = job.uniformCount;
  if (count < 0) {
    ApplyRows<T, T>(job.rows, 0, height, PerChannelShiftRule<T, kOp>{});
    return;
  }
  if (count == kBits) {
    // Signed right shifts spread the sign; everything else leaves nothing.
    if (!(kOp == LogicOp::kShiftRight && hwy::IsSigned<T>())) {
      ApplyRows<T, T>(job.rows, 0, height, ZeroRule<T>{});
      return;
    }
    count = kBits - 1;
  }
  ApplyRows<T, T>(job.rows, 0, height, UniformShiftRule<T, kOp>{{}, count});
}

template <typename T>
void RunLogicRows(const LogicJob& job) {
  const int height = job.rows.height;
  switch (job.op) {
    case LogicOp::kAnd:
      return ApplyRows<T, T>(job.rows, 0, height, BitwiseRule<T, LogicOp::kAnd>{});
    case LogicOp::kOr:
      return ApplyRows<T, T>(job.rows, 0, height, BitwiseRule<T, LogicOp::kOr>{});
    case LogicOp::kXor:
      return ApplyRows<T, T>(job.rows, 0, height, BitwiseRule<T, LogicOp::kXor>{});
    case LogicOp::kShiftLeft: return RunShift<T, LogicOp::kShiftLeft>(job);
    case LogicOp::kShiftRight: return RunShift<T, LogicOp::kShiftRight>(job);
  }
}

}  // namespace

void LogicRows8u(const LogicJob& job) { RunLogicRows<uint8_t>(job); }
void LogicRows8s(const LogicJob& job) { RunLogicRows<int8_t>(job); }
void LogicRows16u(const LogicJob& job) { RunLogicRows<uint16_t>(job); }
void LogicRows16s(const LogicJob& job) { RunLogicRows<int16_t>(job); }
void LogicRows32s(const LogicJob& job) { RunLogicRows<int32_t>(job); }

}  // namespace HWY_NAMESPACE
}  // namespace vok
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace vok {

HWY_EXPORT(LogicRows8u);
HWY_EXPORT(LogicRows8s);
HWY_EXPORT(LogicRows16u);
HWY_EXPORT(LogicRows16s);
HWY_EXPORT(LogicRows32s);

template <>
void RunLogic<Vok8u>(const LogicJob& job) { HWY_DYNAMIC_DISPATCH(LogicRows8u)(job); }
template <>
void RunLogic<Vok8s>(const LogicJob& job) { HWY_DYNAMIC_DISPATCH(LogicRows8s)(job); }
template <>
void RunLogic<Vok16u>(const LogicJob& job) { HWY_DYNAMIC_DISPATCH(LogicRows16u)(job); }
template <>
void RunLogic<Vok16s>(const LogicJob& job) { HWY_DYNAMIC_DISPATCH(LogicRows16s)(job); }
template <>
void RunLogic<Vok32s>(const LogicJob& job) { HWY_DYNAMIC_DISPATCH(LogicRows32s)(job); }

}  // namespace vok
#endif  // HWY_ONCE
