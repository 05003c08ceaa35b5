// The image as kernels see it, and the row jobs that element-wise families
// hand from their entries to their per-instruction-set row loops.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
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
