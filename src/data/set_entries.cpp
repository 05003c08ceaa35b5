// Exported entries of Set: null pointers (the value array and the mask
// among them), size and steps are checked in this order, then one job fills.
#include <cstring>

#include "data/copy.h"
#include "foundation/check.h"
#include "vok.h"

namespace vok {
namespace {

// Values the job carries: one for a channel of interest, three for AC4.
constexpr int ValueCount(SetKind kind, int channels, bool keepAlpha) {
  return kind == SetKind::kChannel ? 1 : keepAlpha ? 3 : channels;
}

template <typename T, SetKind kKind, int kChannels, bool kKeepAlpha>
void Fill(const T* value, T* dst, int dstStep, VokiSize roi,
          const Vok8u* mask, int maskStep) {
  SetJob job{kKind, kChannels, kKeepAlpha, {}, dst, dstStep, mask, maskStep,
             roi.width, roi.height};
  std::memcpy(job.value, value,
              ValueCount(kKind, kChannels, kKeepAlpha) * sizeof(T));
  RunSet(job, sizeof(T));
}

template <typename T, SetKind kKind, int kChannels, bool kKeepAlpha>
VokStatus SetImage(const T* value, T* dst, int dstStep, VokiSize roi) {
  const VokStatus status = CheckNullSizeStep({value, dst}, roi, {dstStep});
  if (status != vokStatusOk) return status;
  Fill<T, kKind, kChannels, kKeepAlpha>(value, dst, dstStep, roi, nullptr, 0);
  return vokStatusOk;
}

template <typename T, SetKind kKind, int kChannels, bool kKeepAlpha>
VokStatus SetMaskedImage(const T* value, T* dst, int dstStep, VokiSize roi,
                         const Vok8u* mask, int maskStep) {
  const VokStatus status =
      CheckNullSizeStep({value, dst, mask}, roi, {dstStep, maskStep});
  if (status != vokStatusOk) return status;
  Fill<T, kKind, kChannels, kKeepAlpha>(value, dst, dstStep, roi, mask,
                                        maskStep);
  return vokStatusOk;
}

}  // namespace
}  // namespace vok

// ---- Entry table -----------------------------------------------------------
// One line per form: how the value comes (one by value, or a pointer to one
// per channel), descriptor, what is written, samples per pixel, whether alpha
// stays. Each line expands once per sample type.

#define VOK_SET_FORMS(X, token, T)                    \
  X(Value, token, T, C1R, kWhole, 1, false)           \
  X(Values, token, T, C3R, kWhole, 3, false)          \
  X(Values, token, T, C4R, kWhole, 4, false)          \
  X(Values, token, T, AC4R, kAlpha, 4, true)          \
  X(Value, token, T, C3CR, kChannel, 3, false)        \
  X(Value, token, T, C4CR, kChannel, 4, false)        \
  X(MaskedValue, token, T, C1MR, kMasked, 1, false)   \
  X(MaskedValues, token, T, C3MR, kMasked, 3, false)  \
  X(MaskedValues, token, T, C4MR, kMasked, 4, false)  \
  X(MaskedValues, token, T, AC4MR, kMasked, 4, true)

#define VOK_SET_ENTRY(shape, token, T, form, kind, channels, alpha) \
  VOK_SET_##shape(token, T, form,                                   \
                  (vok::SetImage<T, vok::SetKind::kind, channels, alpha>), \
                  (vok::SetMaskedImage<T, vok::SetKind::kind, channels, alpha>))

#define VOK_SET_Value(token, T, form, Plain, Masked)            \
  VokStatus vokiSet_##token##_##form(T value, T* dst, int dstStep,        \
                                     VokiSize roi) {                      \
    return Plain(&value, dst, dstStep, roi);                              \
  }
#define VOK_SET_Values(token, T, form, Plain, Masked)           \
  VokStatus vokiSet_##token##_##form(const T* value, T* dst, int dstStep, \
                                     VokiSize roi) {                      \
    return Plain(value, dst, dstStep, roi);                               \
  }
#define VOK_SET_MaskedValue(token, T, form, Plain, Masked)      \
  VokStatus vokiSet_##token##_##form(T value, T* dst, int dstStep,        \
                                     VokiSize roi, const Vok8u* mask,     \
                                     int maskStep) {                      \
    return Masked(&value, dst, dstStep, roi, mask, maskStep);             \
  }
#define VOK_SET_MaskedValues(token, T, form, Plain, Masked)     \
  VokStatus vokiSet_##token##_##form(const T* value, T* dst, int dstStep, \
                                     VokiSize roi, const Vok8u* mask,     \
                                     int maskStep) {                      \
    return Masked(value, dst, dstStep, roi, mask, maskStep);              \
  }

extern "C" {
VOK_SET_FORMS(VOK_SET_ENTRY, 8u, Vok8u)
VOK_SET_FORMS(VOK_SET_ENTRY, 16s, Vok16s)
VOK_SET_FORMS(VOK_SET_ENTRY, 32f, Vok32f)
}
