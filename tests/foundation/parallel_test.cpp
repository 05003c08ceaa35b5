// The region shapes of row-parallel execution: every row once whatever the
// team, the slab split's remainder, teams of one inside a caller's region,
// per-thread scratch and its failure; and the arithmetic's regions giving the
// same bytes with one thread or many.
#include <omp.h>

#include <atomic>
#include <cstdlib>
#include <vector>

#include "foundation/parallel.h"
#include "vok_test.h"

// Under the sanitizers the allocator is theirs; elsewhere this program
// interposes malloc and free to refuse large requests on purpose and to
// follow the large blocks a call leaves behind.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define VOK_TEST_INTERPOSES_MALLOC 0
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#define VOK_TEST_INTERPOSES_MALLOC 0
#endif
#endif
#ifndef VOK_TEST_INTERPOSES_MALLOC
#define VOK_TEST_INTERPOSES_MALLOC 1
#endif

#if VOK_TEST_INTERPOSES_MALLOC
extern "C" void* __libc_malloc(size_t);
extern "C" void __libc_free(void*);

namespace {
constexpr size_t kLargeBlock = size_t{1} << 20;
// Per thread: requests from this size on fail; large blocks still live.
thread_local size_t tRefuseFrom = SIZE_MAX;
thread_local void* tLargeBlocks[16];
std::atomic<int> gLargeLive{0};
}  // namespace

extern "C" void* malloc(size_t bytes) {
  if (bytes >= tRefuseFrom) return nullptr;
  void* block = __libc_malloc(bytes);
  if (block != nullptr && bytes >= kLargeBlock) {
    for (void*& slot : tLargeBlocks)
      if (slot == nullptr) {
        slot = block;
        break;
      }
    ++gLargeLive;
  }
  return block;
}

extern "C" void free(void* block) {
  if (block != nullptr)
    for (void*& slot : tLargeBlocks)
      if (slot == block) {
        slot = nullptr;
        --gLargeLive;
      }
  __libc_free(block);
}
#endif

// The library keeps its allocator internal; the region shapes compiled into
// this program reach the same allocator through the public interface.
namespace vok {
void* Allocate(size_t bytes) {
  return bytes > INT32_MAX ? nullptr : voksMalloc_8u(static_cast<int>(bytes));
}
void Release(void* block) { voksFree(block); }
}  // namespace vok

namespace {

// Which thread of how large a team wrote each row, and how often.
struct RowLog {
  explicit RowLog(int height) : thread(height, -1), team(height, 0), writes(height, 0) {}
  void Record(int y0, int y1) {
    for (int y = y0; y < y1; ++y) {
      thread[y] = omp_get_thread_num();
      team[y] = omp_get_num_threads();
      ++writes[y];
    }
  }
  bool EachRowOnce() const {
    for (int w : writes)
      if (w != 1) return false;
    return true;
  }
  std::vector<int> thread, team, writes;
};

const int kHeights[] = {1, 2, 3, 5, 8, 64, 1001};
const int kThreads[] = {1, 2, 3, 4, 7};

TEST(Regions, StaticRowsCoverEveryRowOnceInContiguousChunks) {
  for (int threads : kThreads) {
    vok_test::ThreadCount count(threads);
    for (int height : kHeights) {
      for (bool parallel : {false, true}) {
        RowLog log(height);
        vok::StaticRows(height, parallel, [&](int y0, int y1) { log.Record(y0, y1); });
        EXPECT_TRUE(log.EachRowOnce()) << threads << " threads, height " << height;
        for (int y = 1; y < height; ++y)  // chunks follow thread order
          EXPECT_LE(log.thread[y - 1], log.thread[y]);
        if (!parallel) {
          EXPECT_EQ(log.team[0], 1);
        }
      }
    }
  }
}

TEST(Regions, SlabSplitGivesTheRemainderToTheLastThread) {
  for (int threads : kThreads) {
    vok_test::ThreadCount count(threads);
    for (int height : kHeights) {
      RowLog log(height);
      vok::Slabs(height, [&](int y0, int y1, int t) {
        EXPECT_EQ(t, omp_get_thread_num());
        log.Record(y0, y1);
      });
      ASSERT_TRUE(log.EachRowOnce()) << threads << " threads, height " << height;
      const int team = log.team[0], q = height / team;
      for (int y = 0; y < height; ++y)
        EXPECT_EQ(log.thread[y], y < q * (team - 1) ? y / q : team - 1)
            << "row " << y << " of " << height << ", team " << team;
    }
  }
}

// The runtime refuses to fork inside the caller's active region (unless the
// application allowed nesting): the body then runs as a team of one.
TEST(Regions, InsideTheCallersRegionTheBodyRunsOnTheCallingThread) {
  vok_test::ThreadCount count(3);
  std::vector<RowLog> logs(3, RowLog(50));
#pragma omp parallel num_threads(3)
  {
    RowLog& log = logs[omp_get_thread_num()];
    vok::Slabs(50, [&](int y0, int y1, int) { log.Record(y0, y1); });
  }
  for (const RowLog& log : logs) {
    EXPECT_TRUE(log.EachRowOnce());
    if (omp_get_max_active_levels() <= 1) {
      EXPECT_EQ(log.team[0], 1);
    }
  }
}

TEST(Regions, ScratchSlicesAreDistinctAlignedAndStatusesCombine) {
  vok_test::ThreadCount count(4);
  for (int height : {1, 3, 40}) {
    std::vector<uint8_t*> sliceOfRow(height, nullptr);
    int prepared = 0;
    const VokStatus status = vok::SlabsWithScratch(
        height, 100, [&] { ++prepared; return vokStatusOk; },
        [&](int y0, int y1, uint8_t* slice) {
          EXPECT_EQ(reinterpret_cast<uintptr_t>(slice) % vok::kSliceAlign, 0u);
          std::memset(slice, 0x5A, 100);  // the whole slice is usable
          for (int y = y0; y < y1; ++y) sliceOfRow[y] = slice;
          // Warnings lose to Ok and errors to both: the lowest wins.
          return y0 == 0 ? VokStatus(vokWarnDivideByZero) : VokStatus(vokStatusBadSize);
        });
    EXPECT_EQ(prepared, 1);
    EXPECT_EQ(status, height >= 4 ? vokStatusBadSize : vokStatusOk);  // idle threads left Ok
    for (int y = 0; y < height; ++y) ASSERT_NE(sliceOfRow[y], nullptr);
  }

  // Tiles t, t + n, ...: the lowest status of all tiles comes back.
  std::vector<int> tileWrites(23, 0);
  EXPECT_EQ(vok::TilesWithScratch(
                23, 16, [] { return vokStatusOk; },
                [&](int tile, uint8_t*) {
                  ++tileWrites[tile];
                  return tile == 17 ? vokStatusBadSize
                                    : tile == 5 ? vokWarnDomain : vokStatusOk;
                }),
            vokStatusBadSize);
  for (int writes : tileWrites) EXPECT_EQ(writes, 1);

  // A failed preparation stops every thread before its work.
  bool worked = false;
  EXPECT_EQ(vok::SlabsWithScratch(
                10, 16, [] { return vokStatusNullPointer; },
                [&](int, int, uint8_t*) { worked = true; return vokStatusOk; }),
            vokStatusNullPointer);
  EXPECT_FALSE(worked);

  RowLog log(30);
  EXPECT_EQ(vok::StaticRowsWithScratch(30, 8, [&](int y0, int y1, uint8_t*) {
              log.Record(y0, y1);
            }),
            vokStatusOk);
  EXPECT_TRUE(log.EachRowOnce());
  RowLog before(30);
  EXPECT_EQ(vok::SlabsWithScratchBefore(30, 8, [&](int y0, int y1, uint8_t*) {
              before.Record(y0, y1);
            }),
            vokStatusOk);
  EXPECT_TRUE(before.EachRowOnce());
}

// A slice whose product with the team size overflows is refused like a heap
// that says no.
TEST(Regions, OversizedScratchReportsNoMemory) {
  vok_test::ThreadCount count(3);
  bool ran = false;
  EXPECT_EQ(vok::SlabsWithScratchBefore(8, SIZE_MAX / 2,
                                        [&](int, int, uint8_t*) { ran = true; }),
            vokStatusNoMemory);
  EXPECT_EQ(vok::StaticRowsWithScratch(8, SIZE_MAX / 2,
                                       [&](int, int, uint8_t*) { ran = true; }),
            vokStatusNoMemory);
  EXPECT_FALSE(ran);
}

#if VOK_TEST_INTERPOSES_MALLOC
// The heap refuses the master's block: every thread leaves at once, the
// destination stays as it was, and nothing is left allocated.
TEST(Regions, RefusedScratchLeavesTheDestinationAndNoBlocks) {
  vok_test::ThreadCount count(4);
  std::vector<uint8_t> dst(64, 7);
  auto write = [&](int y0, int y1, uint8_t*) {
    for (int y = y0; y < y1; ++y) dst[y] = 0;
    return vokStatusOk;
  };
  auto writeRows = [&](int y0, int y1, uint8_t* slice) { write(y0, y1, slice); };
  bool prepared = false;
  auto prepare = [&] { prepared = true; return vokStatusOk; };
  const int largeBefore = gLargeLive.load();

  tRefuseFrom = kLargeBlock;  // the calling thread is the team's master
  EXPECT_EQ(vok::SlabsWithScratch(64, kLargeBlock, prepare, write), vokStatusNoMemory);
  EXPECT_EQ(vok::TilesWithScratch(64, kLargeBlock, prepare,
                                  [&](int tile, uint8_t* s) { return write(tile, tile + 1, s); }),
            vokStatusNoMemory);
  EXPECT_EQ(vok::StaticRowsWithScratch(64, kLargeBlock, writeRows), vokStatusNoMemory);
  EXPECT_EQ(vok::SlabsWithScratchBefore(64, kLargeBlock, writeRows), vokStatusNoMemory);
  tRefuseFrom = SIZE_MAX;
  EXPECT_FALSE(prepared);
  EXPECT_EQ(dst, std::vector<uint8_t>(64, 7));
  EXPECT_EQ(gLargeLive.load(), largeBefore);

  // The same calls with memory release their blocks.
  EXPECT_EQ(vok::SlabsWithScratch(64, kLargeBlock, prepare, write), vokStatusOk);
  EXPECT_EQ(vok::SlabsWithScratchBefore(64, kLargeBlock, writeRows), vokStatusOk);
  EXPECT_EQ(dst, std::vector<uint8_t>(64, 0));
  EXPECT_EQ(gLargeLive.load(), largeBefore);
}
#endif

// ---- The arithmetic's regions ------------------------------------------------

// The forms with regions, and forms that reach them through C1, in one
// in-place shape: src (or the constant src[0]) combined into srcDst.
template <typename T>
struct RegionForm {
  const char* name;
  VokStatus (*fn)(const T* src, int srcStep, T* srcDst, int srcDstStep,
                  VokiSize roi, int scale);
};

#define TWO_IMAGES(fn) \
  [](const T* s, int ss, T* d, int ds, VokiSize r, int k) { return fn(s, ss, s, ss, d, ds, r, k); }
#define IN_PLACE(fn) \
  [](const T* s, int ss, T* d, int ds, VokiSize r, int k) { return fn(s, ss, d, ds, r, k); }
#define CONSTANT_IN_PLACE(fn) \
  [](const T* s, int, T* d, int ds, VokiSize r, int k) { return fn(s[0], d, ds, r, k); }
#define REGION(shape, fn) RegionForm<T>{#fn, shape(fn)}

template <typename T>
std::vector<RegionForm<T>> RegionForms();
template <>
std::vector<RegionForm<Vok8u>> RegionForms() {
  using T = Vok8u;
  return {REGION(IN_PLACE, vokiAdd_8u_C1IRSfs),     REGION(IN_PLACE, vokiAdd_8u_C3IRSfs),
          REGION(CONSTANT_IN_PLACE, vokiAddC_8u_C1IRSfs), REGION(IN_PLACE, vokiSub_8u_C1IRSfs),
          REGION(CONSTANT_IN_PLACE, vokiSubC_8u_C1IRSfs), REGION(TWO_IMAGES, vokiMul_8u_C1RSfs),
          REGION(TWO_IMAGES, vokiMul_8u_C4RSfs),     REGION(IN_PLACE, vokiMul_8u_C1IRSfs),
          REGION(CONSTANT_IN_PLACE, vokiMulC_8u_C1IRSfs)};
}
template <>
std::vector<RegionForm<Vok16s>> RegionForms() {
  using T = Vok16s;
  return {REGION(TWO_IMAGES, vokiAdd_16s_C1RSfs),    REGION(CONSTANT_IN_PLACE, vokiAddC_16s_C1IRSfs),
          REGION(TWO_IMAGES, vokiSub_16s_C1RSfs),    REGION(IN_PLACE, vokiSub_16s_C1IRSfs),
          REGION(IN_PLACE, vokiSub_16s_C3IRSfs),     REGION(CONSTANT_IN_PLACE, vokiSubC_16s_C1IRSfs),
          REGION(TWO_IMAGES, vokiMul_16s_C1RSfs),    REGION(IN_PLACE, vokiMul_16s_C1IRSfs),
          REGION(CONSTANT_IN_PLACE, vokiMulC_16s_C1IRSfs)};
}

// Runs fn on a fresh copy of `start` with the given team, or from inside a
// region of the caller's own where each of its threads does the same call.
template <typename T>
vok_test::Image<T> RunWith(const RegionForm<T>& form, const vok_test::Image<T>& src,
                           const vok_test::Image<T>& start, int scale, int threads,
                           bool insideCallersRegion) {
  vok_test::ThreadCount count(threads);
  if (!insideCallersRegion) {
    vok_test::Image<T> out = start;
    EXPECT_EQ(form.fn(src.data(), src.step(), out.data(), out.step(),
                      VokiSize{start.width(), start.height()}, scale),
              vokStatusOk);
    return out;
  }
  std::vector<vok_test::Image<T>> outs(2, start);
#pragma omp parallel num_threads(2)
  {
    vok_test::Image<T>& out = outs[omp_get_thread_num()];
    form.fn(src.data(), src.step(), out.data(), out.step(),
            VokiSize{start.width(), start.height()}, scale);
  }
  EXPECT_EQ(outs[1].firstDifference(outs[0]), "");
  return outs[0];
}

template <typename T>
void SameBytesWithAnyTeam(uint32_t seed) {
  std::mt19937 rng(seed);
  // Both sides of the cut-overs at 128 and 256, heights below the team size,
  // and a C3 width that crosses 256 only when multiplied.
  const VokiSize sizes[] = {{100, 155}, {101, 155}, {60, 67}, {61, 67},
                            {300, 3},   {1, 255},   {70, 190}};
  for (const RegionForm<T>& form : RegionForms<T>()) {
    SCOPED_TRACE(form.name);
    const int channels = std::string(form.name).find("C3") != std::string::npos ? 3
                         : std::string(form.name).find("C4") != std::string::npos ? 4 : 1;
    for (VokiSize size : sizes)
      for (int scale : {1, 2, 3}) {
        vok_test::Image<T> src(size.width, size.height, channels, 3 * sizeof(T), 0);
        vok_test::Image<T> start(size.width, size.height, channels, 0, sizeof(T));
        src.randomize(rng);
        start.randomize(rng);
        const auto serial = RunWith(form, src, start, scale, 1, false);
        for (int threads : {2, 4}) {
          const auto parallel = RunWith(form, src, start, scale, threads, false);
          EXPECT_EQ(parallel.firstDifference(serial), "")
              << size.width << "x" << size.height << " s=" << scale << ", " << threads << " threads";
          EXPECT_TRUE(parallel.guardsIntact());
        }
        const auto nested = RunWith(form, src, start, scale, 4, true);
        EXPECT_EQ(nested.firstDifference(serial), "") << "inside the caller's region";
      }
  }
}

TEST(ArithRegions, SameBytesWithAnyTeam8u) { SameBytesWithAnyTeam<Vok8u>(11); }
TEST(ArithRegions, SameBytesWithAnyTeam16s) { SameBytesWithAnyTeam<Vok16s>(12); }

// Copy and Set are serial; called from the caller's threads at once on their
// own images they give what one call gives.
TEST(CopySetInCallersRegion, SameBytesOnEveryThread) {
  std::mt19937 rng(13);
  vok_test::Image<Vok16s> src(333, 41, 3, 6, 2), mask(333, 41, 1);
  src.randomize(rng);
  mask.randomize(rng);
  const Vok16s value[3] = {-1, 2, -3};
  auto run = [&](vok_test::Image<Vok16s>& out) {
    vokiCopy_16s_C3R(src.data(), src.step(), out.data(), out.step(), out.size());
    vokiSet_16s_C3MR(value, out.data(), out.step(), out.size(),
                     reinterpret_cast<const Vok8u*>(mask.data()), mask.step());
  };
  vok_test::Image<Vok16s> serial(333, 41, 3, 10, 4);
  run(serial);
  vok_test::ThreadCount count(4);
  std::vector<vok_test::Image<Vok16s>> outs(4, vok_test::Image<Vok16s>(333, 41, 3, 10, 4));
#pragma omp parallel num_threads(4)
  run(outs[omp_get_thread_num()]);
  for (const auto& out : outs) EXPECT_EQ(out.firstDifference(serial), "");
}

}  // namespace
