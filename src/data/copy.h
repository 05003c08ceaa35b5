// Copy and Set between the exported entries and the row kernels. Samples
// are moved as bits, so the kernels only know the sample size: 32f travels
// as 32-bit words, NaN payloads and all.
#pragma once

#include <cstddef>
#include <cstdint>

namespace vok {

enum class CopyKind {
  kWhole,    // every sample
  kAlpha,    // the first three samples of four; the destination's alpha stays
  kMasked,   // as kWhole or kAlpha, for pixels whose mask byte is non-zero
  kChannel,  // one channel of an interleaved image into the same channel
  kExtract,  // one channel of an interleaved image into a C1 image
  kInsert,   // a C1 image into one channel of an interleaved image
  kC3ToAC4,  // three samples per pixel into four, the alpha staying
  kAC4ToC3,  // the first three samples of four
  kSplit,    // interleaved into planes
  kJoin,     // planes into interleaved
};

// `channels` counts the samples per pixel of the interleaved side; channel
// forms point at the chosen channel. Planar forms use src[c] or dst[c], one
// step for all planes.
struct CopyJob {
  CopyKind kind;
  int channels;
  bool keepAlpha;
  const void* src[4];
  ptrdiff_t srcStep;
  void* dst[4];
  ptrdiff_t dstStep;
  const uint8_t* mask;  // kMasked only
  ptrdiff_t maskStep;
  int width, height;
};

enum class SetKind {
  kWhole,    // every sample, channel c taking value c
  kAlpha,    // the first three samples of four
  kChannel,  // one channel; dst points at it
  kMasked,   // as kWhole or kAlpha, for pixels whose mask byte is non-zero
};

struct SetJob {
  SetKind kind;
  int channels;
  bool keepAlpha;
  uint8_t value[16];  // `channels` samples (one for kChannel), as bits
  void* dst;
  ptrdiff_t dstStep;
  const uint8_t* mask;  // kMasked only
  ptrdiff_t maskStep;
  int width, height;
};

// Serial, allocation-free: these are what other families call per row.
void RunCopy(const CopyJob& job, size_t sampleBytes);
void RunSet(const SetJob& job, size_t sampleBytes);

}  // namespace vok
