// Bit images: one pixel per bit, most significant bit first. Expanding to
// bytes is a table look-up per source byte; the conversion to bits is an
// error-diffusing dither, serial by nature.
#include <array>
#include <cstdint>
#include <cstring>

#include "foundation/check.h"
#include "foundation/image.h"
#include "foundation/memory.h"
#include "vok.h"

namespace vok {
namespace {

// The eight output bytes of each source byte, first pixel in the lowest byte.
constexpr std::array<uint64_t, 256> kExpandedBytes = [] {
  std::array<uint64_t, 256> table{};
  for (int byte = 0; byte < 256; ++byte)
    for (int i = 0; i < 8; ++i)
      if (byte & (0x80 >> i)) table[byte] |= uint64_t{0xFF} << (8 * i);
  return table;
}();

// Pixels from bit `first` of src on. A group of eight that starts inside a
// byte needs both bytes it spans, so nothing past the row is read.
void ExpandRow(const uint8_t* src, int64_t first, uint8_t* dst, int width) {
  int x = 0;
  for (; x + 8 <= width; x += 8) {
    const int64_t bit = first + x;
    const int shift = bit & 7;
    const uint8_t* p = src + (bit >> 3);
    const uint8_t byte = shift == 0 ? p[0]
                                    : static_cast<uint8_t>((p[0] << shift) |
                                                           (p[1] >> (8 - shift)));
    std::memcpy(dst + x, &kExpandedBytes[byte], 8);
  }
  for (; x < width; ++x) {
    const int64_t bit = first + x;
    dst[x] = (src[bit >> 3] >> (7 - (bit & 7))) & 1 ? 255 : 0;
  }
}

// The Stucki dither of one row. above2, above1 and current hold the errors
// of the rows two above, one above and this one; index -2, -1, width and
// width + 1 are zero margins. Output bits are gathered and written a byte at
// a time: the bits before `bitOffset` in the first byte stay, and so do the
// bits behind the row's end in its last byte, unless the row ends in its
// first byte, where they are cleared.
void DitherRow(const uint8_t* src, uint8_t* dst, int bitOffset, int width,
               uint8_t threshold, const int32_t* a, const int32_t* b,
               int32_t* c) {
  const int32_t limit = int32_t{threshold} * 8192;
  uint8_t gathered = dst[0] & static_cast<uint8_t>(0xFF00 >> bitOffset);
  int bit = bitOffset;
  size_t byte = 0;
  for (int x = 0; x < width; ++x) {
    const int32_t sum = a[x - 2] + 2 * a[x - 1] + 4 * a[x] + 2 * a[x + 1] +
                        a[x + 2] + 2 * b[x - 2] + 4 * b[x - 1] + 8 * b[x] +
                        4 * b[x + 1] + 2 * b[x + 2] + 4 * c[x - 2] +
                        8 * c[x - 1];
    const int32_t v = int32_t{src[x]} * 8192 + 23 * sum;
    const bool on = v > limit;
    c[x] = (v >> 10) - (on ? 2047 : 0);
    if (on) gathered |= static_cast<uint8_t>(0x80 >> bit);
    if (++bit == 8) {
      dst[byte++] = gathered;
      gathered = 0;
      bit = 0;
    }
  }
  if (bit != 0) {
    const uint8_t behind = byte == 0 ? 0 : dst[byte] & (0xFF >> bit);
    dst[byte] = gathered | behind;
  }
}

}  // namespace
}  // namespace vok

extern "C" {

VokStatus vokiConvert_1u8u_C1R(const Vok8u* src, int srcStep, int srcBitOffset,
                               Vok8u* dst, int dstStep, VokiSize roi) {
  const VokStatus status =
      vok::CheckNullSizeStep({src, dst}, roi, {srcStep, dstStep});
  if (status != vokStatusOk) return status;
  if (srcBitOffset < 0) return vokStatusBadSize;
  for (int y = 0; y < roi.height; ++y) {
    vok::ExpandRow(vok::RowAt(src, srcStep, y), srcBitOffset,
                   vok::RowAt(dst, dstStep, y), roi.width);
  }
  return vokStatusOk;
}

// The steps are not tested: the rows go wherever they lead.
VokStatus vokiConvert_8u1u_C1R(const Vok8u* src, int srcStep, Vok8u* dst,
                               int dstStep, int dstBitOffset, VokiSize roi,
                               Vok8u threshold) {
  if (vok::AnyNull({src, dst})) return vokStatusNullPointer;
  if (vok::BadSize(roi) || dstBitOffset < 0) return vokStatusBadSize;
  const size_t cells = size_t(roi.width) + 4;
  vok::Scratch<int32_t> errors = vok::AllocateScratch<int32_t>(3 * cells);
  if (errors == nullptr) return vokStatusNoMemory;
  std::memset(errors.get(), 0, 3 * cells * sizeof(int32_t));
  // Rows rotate: the row just written moves up one, the oldest is reused.
  int32_t* above2 = errors.get() + 2;
  int32_t* above1 = above2 + cells;
  int32_t* current = above1 + cells;
  for (int y = 0; y < roi.height; ++y) {
    vok::DitherRow(vok::RowAt(src, srcStep, y), vok::RowAt(dst, dstStep, y),
                   dstBitOffset & 7, roi.width, threshold, above2, above1,
                   current);
    int32_t* oldest = above2;
    above2 = above1;
    above1 = current;
    current = oldest;
  }
  return vokStatusOk;
}

}  // extern "C"
