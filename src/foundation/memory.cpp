#include "foundation/memory.h"

#include <cstdint>
#include <cstdlib>

#include "vok.h"

namespace vok {
namespace {

constexpr uintptr_t kAlignment = 32;
// Room for the alignment and for the stored raw pointer below the block.
constexpr size_t kReserve = kAlignment + sizeof(void*);

}  // namespace

void* Allocate(size_t bytes) {
  if (bytes == 0 || bytes > SIZE_MAX - kReserve) return nullptr;
  void* raw = std::malloc(bytes + kReserve);
  if (raw == nullptr) return nullptr;
  const uintptr_t block =
      (reinterpret_cast<uintptr_t>(raw) + kReserve - 1) & ~(kAlignment - 1);
  reinterpret_cast<void**>(block)[-1] = raw;
  return reinterpret_cast<void*>(block);
}

void Release(void* block) {
  if (block != nullptr) std::free(static_cast<void**>(block)[-1]);
}

namespace {

template <typename T>
T* AllocateCount(int count) {
  if (count < 1) return nullptr;
  return static_cast<T*>(Allocate(static_cast<size_t>(count) * sizeof(T)));
}

// The step is the packed row rounded up to 32 bytes. It is stored before the
// allocation is tried, so a refused allocation still reports it.
template <typename T>
T* AllocateImage(int width, int height, int* step, int samplesPerPixel,
                 int planes) {
  if (step == nullptr) return nullptr;
  if (width < 1 || height < 1) {
    *step = 0;
    return nullptr;
  }
  const uint64_t rounded =
      (uint64_t(width) * samplesPerPixel * sizeof(T) + 31) & ~uint64_t{31};
  if (rounded > INT32_MAX) {
    *step = 0;
    return nullptr;
  }
  *step = static_cast<int>(rounded);
  return static_cast<T*>(Allocate(rounded * height * planes));
}

}  // namespace
}  // namespace vok

extern "C" {

#define VOK_VECTOR_MALLOC(token, type) \
  type* voksMalloc_##token(int len) { return vok::AllocateCount<type>(len); }
VOK_VECTOR_MALLOC(8u, Vok8u)
VOK_VECTOR_MALLOC(8s, Vok8s)
VOK_VECTOR_MALLOC(16u, Vok16u)
VOK_VECTOR_MALLOC(16s, Vok16s)
VOK_VECTOR_MALLOC(32u, Vok32u)
VOK_VECTOR_MALLOC(32s, Vok32s)
VOK_VECTOR_MALLOC(32f, Vok32f)
VOK_VECTOR_MALLOC(16sc, Vok16sc)
VOK_VECTOR_MALLOC(64s, Vok64s)
VOK_VECTOR_MALLOC(32fc, Vok32fc)
VOK_VECTOR_MALLOC(32sc, Vok32sc)
#undef VOK_VECTOR_MALLOC

void voksFree(void* ptr) { vok::Release(ptr); }
void vokiFree(void* ptr) { vok::Release(ptr); }

// Layout token, samples per pixel in the step, planes in the block.
#define VOK_IMAGE_LAYOUTS(X, token, type) \
  X(token, type, C1, 1, 1)                \
  X(token, type, C2, 2, 1)                \
  X(token, type, C3, 3, 1)                \
  X(token, type, C4, 4, 1)                \
  X(token, type, AC4, 4, 1)               \
  X(token, type, P3, 1, 3)
#define VOK_IMAGE_MALLOC(token, type, layout, samples, planes)              \
  type* vokiMalloc_##token##_##layout(int width, int height, int* step) {   \
    return vok::AllocateImage<type>(width, height, step, samples, planes); \
  }
VOK_IMAGE_LAYOUTS(VOK_IMAGE_MALLOC, 8u, Vok8u)
VOK_IMAGE_LAYOUTS(VOK_IMAGE_MALLOC, 16u, Vok16u)
VOK_IMAGE_LAYOUTS(VOK_IMAGE_MALLOC, 16s, Vok16s)
VOK_IMAGE_LAYOUTS(VOK_IMAGE_MALLOC, 32s, Vok32s)
VOK_IMAGE_LAYOUTS(VOK_IMAGE_MALLOC, 32f, Vok32f)
VOK_IMAGE_LAYOUTS(VOK_IMAGE_MALLOC, 32sc, Vok32sc)
VOK_IMAGE_LAYOUTS(VOK_IMAGE_MALLOC, 32fc, Vok32fc)
#undef VOK_IMAGE_MALLOC
#undef VOK_IMAGE_LAYOUTS

}  // extern "C"
