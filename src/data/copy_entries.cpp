// Exported entries of Copy: null pointers, size and steps are checked in
// this order, then one job moves the samples.
#include "data/copy.h"
#include "foundation/check.h"
#include "vok.h"

namespace vok {
namespace {

// The plane array itself and each of its pointers.
bool AnyNullPlane(const void* const* planes, int count) {
  if (planes == nullptr) return true;
  for (int c = 0; c < count; ++c)
    if (planes[c] == nullptr) return true;
  return false;
}

template <typename T, CopyKind kKind, int kChannels, bool kKeepAlpha>
VokStatus CopyImage(const T* src, int srcStep, T* dst, int dstStep,
                    VokiSize roi) {
  const VokStatus status =
      CheckNullSizeStep({src, dst}, roi, {srcStep, dstStep});
  if (status != vokStatusOk) return status;
  RunCopy(CopyJob{kKind, kChannels, kKeepAlpha, {src}, srcStep, {dst},
                  dstStep, nullptr, 0, roi.width, roi.height},
          sizeof(T));
  return vokStatusOk;
}

template <typename T, CopyKind kKind, int kChannels, bool kKeepAlpha>
VokStatus CopyMaskedImage(const T* src, int srcStep, T* dst, int dstStep,
                          VokiSize roi, const Vok8u* mask, int maskStep) {
  const VokStatus status = CheckNullSizeStep({src, dst, mask}, roi,
                                             {srcStep, dstStep, maskStep});
  if (status != vokStatusOk) return status;
  RunCopy(CopyJob{kKind, kChannels, kKeepAlpha, {src}, srcStep, {dst},
                  dstStep, mask, maskStep, roi.width, roi.height},
          sizeof(T));
  return vokStatusOk;
}

template <typename T, CopyKind kKind, int kChannels, bool kKeepAlpha>
VokStatus SplitPlanes(const T* src, int srcStep, T* const dst[], int dstStep,
                      VokiSize roi) {
  const VokStatus status =
      AnyNullPlane(reinterpret_cast<const void* const*>(dst), kChannels)
          ? vokStatusNullPointer
          : CheckNullSizeStep({src}, roi, {srcStep, dstStep});
  if (status != vokStatusOk) return status;
  CopyJob job{kKind, kChannels, kKeepAlpha, {src}, srcStep, {},
              dstStep, nullptr, 0, roi.width, roi.height};
  for (int c = 0; c < kChannels; ++c) job.dst[c] = dst[c];
  RunCopy(job, sizeof(T));
  return vokStatusOk;
}

template <typename T, CopyKind kKind, int kChannels, bool kKeepAlpha>
VokStatus JoinPlanes(const T* const src[], int srcStep, T* dst, int dstStep,
                     VokiSize roi) {
  const VokStatus status =
      AnyNullPlane(reinterpret_cast<const void* const*>(src), kChannels)
          ? vokStatusNullPointer
          : CheckNullSizeStep({dst}, roi, {srcStep, dstStep});
  if (status != vokStatusOk) return status;
  CopyJob job{kKind, kChannels, kKeepAlpha, {}, srcStep, {dst},
              dstStep, nullptr, 0, roi.width, roi.height};
  for (int c = 0; c < kChannels; ++c) job.src[c] = src[c];
  RunCopy(job, sizeof(T));
  return vokStatusOk;
}

}  // namespace
}  // namespace vok

// ---- Entry table -----------------------------------------------------------
// One line per form: argument shape, descriptor, what moves, samples per
// pixel of the interleaved side, and whether alpha stays. Each line expands
// once per sample type.

#define VOK_COPY_FORMS(X, token, T)                  \
  X(Image, token, T, C1R, kWhole, 1, false)          \
  X(Image, token, T, C3R, kWhole, 3, false)          \
  X(Image, token, T, C4R, kWhole, 4, false)          \
  X(Image, token, T, AC4R, kAlpha, 4, true)          \
  X(Masked, token, T, C1MR, kMasked, 1, false)       \
  X(Masked, token, T, C3MR, kMasked, 3, false)       \
  X(Masked, token, T, C4MR, kMasked, 4, false)       \
  X(Masked, token, T, AC4MR, kMasked, 4, true)       \
  X(Image, token, T, C3CR, kChannel, 3, false)       \
  X(Image, token, T, C4CR, kChannel, 4, false)       \
  X(Image, token, T, C3C1R, kExtract, 3, false)      \
  X(Image, token, T, C4C1R, kExtract, 4, false)      \
  X(Image, token, T, C1C3R, kInsert, 3, false)       \
  X(Image, token, T, C1C4R, kInsert, 4, false)       \
  X(Image, token, T, C3AC4R, kC3ToAC4, 4, true)      \
  X(Image, token, T, AC4C3R, kAC4ToC3, 4, true)      \
  X(Split, token, T, C3P3R, kSplit, 3, false)        \
  X(Split, token, T, C4P4R, kSplit, 4, false)        \
  X(Join, token, T, P3C3R, kJoin, 3, false)          \
  X(Join, token, T, P4C4R, kJoin, 4, false)

#define VOK_COPY_ENTRY(shape, token, T, form, kind, channels, alpha) \
  VOK_COPY_##shape(token, T, form, channels, alpha, vok::CopyKind::kind)

#define VOK_COPY_Image(token, T, form, channels, alpha, Kind)         \
  VokStatus vokiCopy_##token##_##form(const T* src, int srcStep, T* dst,    \
                                      int dstStep, VokiSize roi) {          \
    return vok::CopyImage<T, Kind, channels, alpha>(src, srcStep, dst,      \
                                                    dstStep, roi);          \
  }
#define VOK_COPY_Masked(token, T, form, channels, alpha, Kind)        \
  VokStatus vokiCopy_##token##_##form(const T* src, int srcStep, T* dst,    \
                                      int dstStep, VokiSize roi,            \
                                      const Vok8u* mask, int maskStep) {    \
    return vok::CopyMaskedImage<T, Kind, channels, alpha>(                  \
        src, srcStep, dst, dstStep, roi, mask, maskStep);                   \
  }
#define VOK_COPY_Split(token, T, form, channels, alpha, Kind)         \
  VokStatus vokiCopy_##token##_##form(const T* src, int srcStep,            \
                                      T* const dst[channels], int dstStep,  \
                                      VokiSize roi) {                       \
    return vok::SplitPlanes<T, Kind, channels, alpha>(src, srcStep, dst,    \
                                                      dstStep, roi);        \
  }
#define VOK_COPY_Join(token, T, form, channels, alpha, Kind)          \
  VokStatus vokiCopy_##token##_##form(const T* const src[channels],         \
                                      int srcStep, T* dst, int dstStep,     \
                                      VokiSize roi) {                       \
    return vok::JoinPlanes<T, Kind, channels, alpha>(src, srcStep, dst,     \
                                                     dstStep, roi);         \
  }

extern "C" {
VOK_COPY_FORMS(VOK_COPY_ENTRY, 8u, Vok8u)
VOK_COPY_FORMS(VOK_COPY_ENTRY, 16s, Vok16s)
VOK_COPY_FORMS(VOK_COPY_ENTRY, 32f, Vok32f)
}
