// The image as kernels see it, and the row jobs that element-wise families
// hand from their entries to their per-instruction-set row loops.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <type_traits>

#include "vok.h"

namespace vok {

template <typename T>
inline T* RowAt(T* first, ptrdiff_t step, int64_t y) {
  using Byte = typename std::conditional<std::is_const<T>::value,
                                         const uint8_t, uint8_t>::type;
  return reinterpret_cast<T*>(reinterpret_cast<Byte*>(first) + y * step);
}

// One sample at an address of any alignment, as the caller's steps allow.
template <typename T>
inline std::remove_const_t<T> LoadSample(T* p) {
  std::remove_const_t<T> value;
  std::memcpy(&value, p, sizeof(value));
  return value;
}
template <typename T>
inline void StoreSample(T* p, T value) {
  std::memcpy(p, &value, sizeof(value));
}

// A row of `bytes` bytes in an image of row step `step`.
struct RowShape {
  ptrdiff_t step;
  size_t bytes;
};

// True when the rows of every image follow each other without a gap, so that
// a call can run as one long row: one set-up and one partial group in all.
inline bool Contiguous(std::initializer_list<RowShape> images) {
  for (const RowShape& image : images)
    if (image.step != static_cast<ptrdiff_t>(image.bytes)) return false;
  return true;
}

// How samples are grouped into pixels: the channel count, and whether the
// fourth sample is alpha that the operation must leave as it was.
struct Layout {
  int channels;
  bool keepAlpha;
};
constexpr Layout kC1{1, false};
constexpr Layout kC3{3, false};
constexpr Layout kC4{4, false};
constexpr Layout kAC4{4, true};

// Operand a, operand b (an image, or one constant per channel repeated along
// the row) and a destination, walked row by row.
struct ElementRows {
  const void* a;
  ptrdiff_t aStep;
  const void* b;  // null when `constant` is used
  ptrdiff_t bStep;
  const void* constant;  // `channels` samples, or null
  void* dst;
  ptrdiff_t dstStep;
  size_t rowSamples;
  int height;
  Layout layout;
};

}  // namespace vok
