// Row-parallel execution: the few shapes of OpenMP region that every family
// builds on. The library never sets the thread count; a region gets whatever
// team the runtime gives. Inside a caller's own active region the runtime
// refuses to fork, and the same body then runs on the calling thread as a
// team of one, so each shape below has one path for all cases.
//
// Bodies receive half-open row ranges [y0, y1). Destination rows of different
// threads never overlap; nothing here takes a lock or an atomic.
#pragma once

#include <omp.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "foundation/memory.h"
#include "vok.h"

namespace vok {

struct RowSpan {
  int y0, y1;
};

// The chunk of a static schedule: contiguous rows, the first height % n
// threads taking one row more.
inline RowSpan StaticChunk(int height, int thread, int threads) {
  const int q = height / threads, r = height % threads;
  const int y0 = thread * q + std::min(thread, r);
  return RowSpan{y0, y0 + q + (thread < r ? 1 : 0)};
}

// The slab split: q = height / n rows per thread, and the last thread takes
// the remainder as well, so with fewer rows than threads it takes them all.
inline RowSpan Slab(int height, int thread, int threads) {
  const int q = height / threads;
  const int y0 = thread * q;
  return RowSpan{y0, thread == threads - 1 ? height : y0 + q};
}

// Pattern 1, the static row loop: body(y0, y1) once per thread over its
// chunk. Serial callers (below their cut-over) run the rows right here.
template <class Body>
void StaticRows(int height, bool parallel, const Body& body) {
  if (!parallel) {
    body(0, height);
    return;
  }
#pragma omp parallel
  {
    const RowSpan span =
        StaticChunk(height, omp_get_thread_num(), omp_get_num_threads());
    if (span.y0 < span.y1) body(span.y0, span.y1);
  }
}

// Pattern 2, the slab split: the master publishes the team size, all meet
// at a barrier, then body(y0, y1, thread) runs on each thread's slab.
template <class Body>
void Slabs(int height, const Body& body) {
  int threads = 1;
#pragma omp parallel
  {
#pragma omp master
    threads = omp_get_num_threads();
#pragma omp barrier
    const int t = omp_get_thread_num();
    const RowSpan span = Slab(height, t, threads);
    if (span.y0 < span.y1) body(span.y0, span.y1, t);
  }
}

// Slices of per-thread scratch start on their own cache line.
constexpr size_t kSliceAlign = 64;

inline size_t RoundedSlice(size_t bytes) {
  return (bytes + kSliceAlign - 1) / kSliceAlign * kSliceAlign;
}

inline uint8_t* FirstSlice(uint8_t* block) {
  return reinterpret_cast<uint8_t*>(RoundedSlice(reinterpret_cast<uintptr_t>(block)));
}

// Room for `threads` slices and the alignment of the first, or 0 when that
// does not fit (an allocation of 0 bytes is refused, which reports as no
// memory).
inline size_t ScratchBytes(int threads, size_t slice) {
  if (slice != 0 && size_t(threads) > SIZE_MAX / 2 / slice) return 0;
  return size_t(threads) * slice + kSliceAlign;
}

// The common core of patterns 3 and 4. The master allocates one block with a
// status slot per thread followed by one slice per thread, and runs
// `prepare` (shared preparation, returning a status) on its own. After the
// barrier a thread leaves at once if the block is missing or the preparation
// failed, else runs work(thread, threads, slice) and leaves its status in its
// slot. The result is vokStatusNoMemory without a block, the preparation's
// failure, or the lowest status of the slots; the block is released on every
// path.
template <class Prepare, class Work>
VokStatus RegionWithScratch(size_t sliceBytes, const Prepare& prepare,
                            const Work& work) {
  const size_t slice = RoundedSlice(sliceBytes);
  uint8_t* block = nullptr;
  int threads = 1;
  VokStatus prepared = vokStatusOk;
#pragma omp parallel
  {
#pragma omp master
    {
      threads = omp_get_num_threads();
      const size_t slots = threads * sizeof(VokStatus);
      const size_t slices = ScratchBytes(threads, slice);
      if (slices != 0) block = static_cast<uint8_t*>(Allocate(slots + slices));
      if (block != nullptr) prepared = prepare();
    }
#pragma omp barrier
    if (block != nullptr && prepared == vokStatusOk) {
      const int t = omp_get_thread_num();
      uint8_t* slices = FirstSlice(block + threads * sizeof(VokStatus));
      reinterpret_cast<VokStatus*>(block)[t] =
          VokStatus(work(t, threads, slices + size_t(t) * slice));
    }
  }
  if (block == nullptr) return vokStatusNoMemory;
  VokStatus status = prepared;
  if (status == vokStatusOk) {
    const VokStatus* slots = reinterpret_cast<const VokStatus*>(block);
    status = *std::min_element(slots, slots + threads);
  }
  Release(block);
  return status;
}

// Pattern 3 over rows: the slab split with scratch and preparation from the
// master; body(y0, y1, slice) returns a status.
template <class Prepare, class Body>
VokStatus SlabsWithScratch(int height, size_t sliceBytes,
                           const Prepare& prepare, const Body& body) {
  return RegionWithScratch(
      sliceBytes, prepare, [&](int t, int threads, uint8_t* slice) {
        const RowSpan span = Slab(height, t, threads);
        return span.y0 < span.y1 ? VokStatus(body(span.y0, span.y1, slice))
                                 : VokStatus(vokStatusOk);
      });
}

// Pattern 3 over a grid of tiles: thread t takes tiles t, t + n, t + 2n...
// and keeps the lowest status of its tiles; body(tile, slice).
template <class Prepare, class Body>
VokStatus TilesWithScratch(int tiles, size_t sliceBytes,
                           const Prepare& prepare, const Body& body) {
  return RegionWithScratch(
      sliceBytes, prepare, [&](int t, int threads, uint8_t* slice) {
        VokStatus lowest = vokStatusOk;
        for (int tile = t; tile < tiles; tile += threads)
          lowest = std::min<VokStatus>(lowest, body(tile, slice));
        return lowest;
      });
}

// Pattern 4, the static row loop with scratch from the master:
// body(y0, y1, slice) over each thread's static chunk. The body's first row
// sets up whatever it carries from row to row, so results do not depend on
// where the chunks fall.
template <class Body>
VokStatus StaticRowsWithScratch(int height, size_t sliceBytes,
                                const Body& body) {
  return RegionWithScratch(
      sliceBytes, [] { return vokStatusOk; },
      [&](int t, int threads, uint8_t* slice) {
        const RowSpan span = StaticChunk(height, t, threads);
        if (span.y0 < span.y1) body(span.y0, span.y1, slice);
        return vokStatusOk;
      });
}

// Pattern 5, scratch before the region: max-threads slices are allocated
// on the calling thread, then the slab split gives thread t slice t.
template <class Body>
VokStatus SlabsWithScratchBefore(int height, size_t sliceBytes,
                                 const Body& body) {
  const size_t slice = RoundedSlice(sliceBytes);
  const size_t bytes = ScratchBytes(omp_get_max_threads(), slice);
  Scratch<uint8_t> block = AllocateScratch<uint8_t>(bytes);
  if (block == nullptr) return vokStatusNoMemory;
  uint8_t* slices = FirstSlice(block.get());
  Slabs(height, [&](int y0, int y1, int t) {
    body(y0, y1, slices + size_t(t) * slice);
  });
  return vokStatusOk;
}

}  // namespace vok
