// Exported entries of the seven threshold rules. GT and LT forward to the
// rule with a selector, GTVal and LTVal to the Val rule, and every IR form to
// its R form with the image as source and destination.
#include "data/compare.h"
#include "foundation/check.h"
#include "vok.h"

namespace vok {
namespace {

// Per-channel constants of a rule, null where the rule has none. AC4 takes
// three, the fourth lane standing for alpha, which is never written.
template <typename T>
struct Constants {
  const T* threshold;
  const T* value = nullptr;
  const T* upperThreshold = nullptr;
  const T* upperValue = nullptr;
};

// Null images, size, step, null constants, then `selector` (the mode test
// of forms that take a selector), then the order of the two thresholds.
template <typename T, Layout kLayout>
VokStatus ThresholdImage(const T* src, int srcStep, T* dst, int dstStep,
                         VokiSize roi, ThresholdRule rule, Constants<T> k,
                         VokStatus selector = vokStatusOk) {
  VokStatus status = CheckNullSizeStep({src, dst}, roi, {srcStep, dstStep});
  if (status != vokStatusOk) return status;
  const bool upper = rule == ThresholdRule::kLessGreaterVal;
  const bool value = upper || rule == ThresholdRule::kLessVal ||
                     rule == ThresholdRule::kGreaterVal;
  if (k.threshold == nullptr || (value && k.value == nullptr) ||
      (upper && (k.upperThreshold == nullptr || k.upperValue == nullptr)))
    return vokStatusNullPointer;
  if (selector != vokStatusOk) return selector;
  const int channels = kLayout.keepAlpha ? 3 : kLayout.channels;
  T t[4] = {}, v[4] = {}, tUpper[4] = {}, vUpper[4] = {};
  for (int c = 0; c < channels; ++c) {
    t[c] = k.threshold[c];
    if (value) v[c] = k.value[c];
    if (upper) {
      tUpper[c] = k.upperThreshold[c];
      vUpper[c] = k.upperValue[c];
      if (!(tUpper[c] >= t[c])) return vokStatusBadThresholds;
    }
  }
  RunThreshold<T>(ThresholdJob{src, srcStep, dst, dstStep, roi.width,
                               roi.height, kLayout, rule, t, v, tUpper,
                               vUpper});
  return vokStatusOk;
}

// max or min with the threshold; the selector is tested last.
template <typename T, Layout kLayout>
VokStatus ThresholdBySelector(const T* src, int srcStep, T* dst, int dstStep,
                              VokiSize roi, const T* threshold, VokCmpOp op) {
  const bool known = op == vokCmpLess || op == vokCmpGreater;
  return ThresholdImage<T, kLayout>(
      src, srcStep, dst, dstStep, roi,
      op == vokCmpLess ? ThresholdRule::kLess : ThresholdRule::kGreater,
      {threshold}, known ? vokStatusOk : vokStatusBadMode);
}

// Replacement by a value; here the selector is tested before anything else.
template <typename T, Layout kLayout>
VokStatus ThresholdValBySelector(const T* src, int srcStep, T* dst,
                                 int dstStep, VokiSize roi, const T* threshold,
                                 const T* value, VokCmpOp op) {
  if (op != vokCmpLess && op != vokCmpGreater) return vokStatusBadMode;
  return ThresholdImage<T, kLayout>(
      src, srcStep, dst, dstStep, roi,
      op == vokCmpLess ? ThresholdRule::kLessVal : ThresholdRule::kGreaterVal,
      {threshold, value});
}

template <typename T, Layout kLayout>
VokStatus ThresholdBand(const T* src, int srcStep, T* dst, int dstStep,
                        VokiSize roi, const T* lower, const T* lowerValue,
                        const T* upper, const T* upperValue) {
  return ThresholdImage<T, kLayout>(src, srcStep, dst, dstStep, roi,
                                    ThresholdRule::kLessGreaterVal,
                                    {lower, lowerValue, upper, upperValue});
}

}  // namespace
}  // namespace vok

// ---- Entry tables ----------------------------------------------------------
// One line per rule and sample type. VOK_R_AND_IR writes an R form and its IR
// forwarder from the trailing parameters and the arguments they pass on.

#define VOK_EXPAND(...) __VA_ARGS__
#define VOK_R_AND_IR(name, T, params, target, args)                         \
  VokStatus name##R(const T* src, int srcStep, T* dst, int dstStep,         \
                    VokiSize roi, VOK_EXPAND params) {                      \
    return target(src, srcStep, dst, dstStep, roi, VOK_EXPAND args);        \
  }                                                                         \
  VokStatus name##IR(T* srcDst, int srcDstStep, VokiSize roi,               \
                     VOK_EXPAND params) {                                   \
    return target(srcDst, srcDstStep, srcDst, srcDstStep, roi,              \
                  VOK_EXPAND args);                                         \
  }

// C1 constants come by value, the others as one sample per channel.
#define VOK_PARAM_C1(T, name) T name
#define VOK_PARAM_C3(T, name) const T name[3]
#define VOK_PARAM_AC4(T, name) const T name[3]
#define VOK_PARAM_C4(T, name) const T name[4]
#define VOK_PTR_C1(name) &name
#define VOK_PTR_C3(name) name
#define VOK_PTR_AC4(name) name
#define VOK_PTR_C4(name) name

#define VOK_THRESHOLD(layout, kLayout, token, T)                              \
  VOK_R_AND_IR(vokiThreshold_##token##_##layout, T,                           \
               (VOK_PARAM_##layout(T, threshold), VokCmpOp cmpOp),            \
               (vok::ThresholdBySelector<T, vok::kLayout>),                   \
               (VOK_PTR_##layout(threshold), cmpOp))                          \
  VOK_R_AND_IR(vokiThreshold_GT_##token##_##layout, T,                        \
               (VOK_PARAM_##layout(T, threshold)),                            \
               (vok::ThresholdBySelector<T, vok::kLayout>),                   \
               (VOK_PTR_##layout(threshold), vokCmpGreater))                  \
  VOK_R_AND_IR(vokiThreshold_LT_##token##_##layout, T,                        \
               (VOK_PARAM_##layout(T, threshold)),                            \
               (vok::ThresholdBySelector<T, vok::kLayout>),                   \
               (VOK_PTR_##layout(threshold), vokCmpLess))                     \
  VOK_R_AND_IR(vokiThreshold_Val_##token##_##layout, T,                       \
               (VOK_PARAM_##layout(T, threshold),                             \
                VOK_PARAM_##layout(T, value), VokCmpOp cmpOp),                \
               (vok::ThresholdValBySelector<T, vok::kLayout>),                \
               (VOK_PTR_##layout(threshold), VOK_PTR_##layout(value), cmpOp)) \
  VOK_R_AND_IR(vokiThreshold_LTValGTVal_##token##_##layout, T,                \
               (VOK_PARAM_##layout(T, thresholdLT),                           \
                VOK_PARAM_##layout(T, valueLT),                               \
                VOK_PARAM_##layout(T, thresholdGT),                           \
                VOK_PARAM_##layout(T, valueGT)),                              \
               (vok::ThresholdBand<T, vok::kLayout>),                         \
               (VOK_PTR_##layout(thresholdLT), VOK_PTR_##layout(valueLT),     \
                VOK_PTR_##layout(thresholdGT), VOK_PTR_##layout(valueGT)))

// GTVal and LTVal also come in C4, which has no Val twin; with a fixed
// selector the Val rule behaves as its kernel does.
#define VOK_THRESHOLD_VAL(layout, kLayout, token, T)                          \
  VOK_R_AND_IR(vokiThreshold_GTVal_##token##_##layout, T,                     \
               (VOK_PARAM_##layout(T, threshold),                             \
                VOK_PARAM_##layout(T, value)),                                \
               (vok::ThresholdValBySelector<T, vok::kLayout>),                \
               (VOK_PTR_##layout(threshold), VOK_PTR_##layout(value),         \
                vokCmpGreater))                                               \
  VOK_R_AND_IR(vokiThreshold_LTVal_##token##_##layout, T,                     \
               (VOK_PARAM_##layout(T, threshold),                             \
                VOK_PARAM_##layout(T, value)),                                \
               (vok::ThresholdValBySelector<T, vok::kLayout>),                \
               (VOK_PTR_##layout(threshold), VOK_PTR_##layout(value),         \
                vokCmpLess))

#define VOK_THRESHOLD_TYPES(X) X(8u, Vok8u) X(16s, Vok16s) X(32f, Vok32f)

#define VOK_THRESHOLD_FAMILY(token, T)                \
  VOK_THRESHOLD(C1, kC1, token, T)                    \
  VOK_THRESHOLD(C3, kC3, token, T)                    \
  VOK_THRESHOLD(AC4, kAC4, token, T)                  \
  VOK_THRESHOLD_VAL(C1, kC1, token, T)                \
  VOK_THRESHOLD_VAL(C3, kC3, token, T)                \
  VOK_THRESHOLD_VAL(C4, kC4, token, T)                \
  VOK_THRESHOLD_VAL(AC4, kAC4, token, T)

extern "C" {
VOK_THRESHOLD_TYPES(VOK_THRESHOLD_FAMILY)
}
