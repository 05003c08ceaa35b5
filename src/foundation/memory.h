// The library's one allocator: 32-byte aligned blocks with the raw pointer
// stored in the word just below the block. Every internal buffer comes from
// here and goes back through Release on every path.
#pragma once

#include <cstddef>
#include <memory>

namespace vok {

void* Allocate(size_t bytes);  // null when bytes is 0 or the heap refuses
void Release(void* block);     // null is ignored

struct Releaser {
  void operator()(void* block) const { Release(block); }
};

// Scratch that is released when it leaves scope.
template <typename T>
using Scratch = std::unique_ptr<T[], Releaser>;

template <typename T>
Scratch<T> AllocateScratch(size_t count) {
  return Scratch<T>(static_cast<T*>(Allocate(count * sizeof(T))));
}

}  // namespace vok
