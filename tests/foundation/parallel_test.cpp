// The region shapes: every row once whatever the team, the slab split's
// remainder, a team of one inside the caller's region, per-thread scratch and
// its failure; and the arithmetic's regions giving the same bytes with one
// thread, several, or inside the caller's region.
#include <omp.h>

#include <atomic>

#include "foundation/parallel.h"
#include "vok_test.h"

// Under the sanitizers the allocator is theirs. Elsewhere this program
// interposes malloc and free, to refuse large requests of one thread on
// purpose and to count the large blocks left behind.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define VOK_TEST_INTERPOSES_MALLOC 0
#else
#define VOK_TEST_INTERPOSES_MALLOC 1
extern "C" void* __libc_malloc(size_t);
extern "C" void __libc_free(void*);
namespace {
constexpr size_t kLargeBlock = size_t{1} << 20;
thread_local size_t tRefuseFrom = SIZE_MAX;
thread_local void* tLargeBlocks[16];
std::atomic<int> gLargeLive{0};
}  // namespace

extern "C" void* malloc(size_t bytes) {
  if (bytes >= tRefuseFrom) return nullptr;
  void* block = __libc_malloc(bytes);
  for (void*& slot : tLargeBlocks)
    if (block != nullptr && bytes >= kLargeBlock && slot == nullptr) {
      slot = block;
      ++gLargeLive;
      break;
    }
  return block;
}

extern "C" void free(void* block) {
  for (void*& slot : tLargeBlocks)
    if (block != nullptr && slot == block) {
      slot = nullptr;
      --gLargeLive;
    }
  __libc_free(block);
}
#endif

// The library keeps its allocator internal; the region shapes compiled into
// this program reach the same one through the interface.
namespace vok {
void* Allocate(size_t bytes) {
  return bytes > INT32_MAX ? nullptr : voksMalloc_8u(static_cast<int>(bytes));
}
void Release(void* block) { voksFree(block); }
}  // namespace vok

namespace {

// The thread and team size that wrote each row, and how often.
struct RowLog {
  explicit RowLog(int height) : thread(height), team(height), writes(height) {}
  void Record(int y0, int y1) {
    for (int y = y0; y < y1; ++y) {
      thread[y] = omp_get_thread_num();
      team[y] = omp_get_num_threads();
      ++writes[y];
    }
  }
  bool EachRowOnce() const {
    return std::count(writes.begin(), writes.end(), 1) == std::ptrdiff_t(writes.size());
  }
  std::vector<int> thread, team, writes;
};

TEST(Regions, RowsAreSharedOnceAndTheSlabRemainderGoesLast) {
  for (int threads : {1, 2, 3, 7}) {
    vok_test::ThreadCount count(threads);
    for (int height : {1, 2, 3, 5, 64, 1001}) {
      SCOPED_TRACE(testing::Message() << threads << " threads, height " << height);
      RowLog rows(height), slabs(height), serial(height);
      vok::StaticRows(height, true, [&](int y0, int y1) { rows.Record(y0, y1); });
      vok::StaticRows(height, false, [&](int y0, int y1) { serial.Record(y0, y1); });
      vok::Slabs(height, [&](int y0, int y1, int t) {
        EXPECT_EQ(t, omp_get_thread_num());
        slabs.Record(y0, y1);
      });
      ASSERT_TRUE(rows.EachRowOnce() && slabs.EachRowOnce() && serial.EachRowOnce());
      EXPECT_EQ(serial.team[0], 1);
      const int team = slabs.team[0], q = height / team;
      for (int y = 0; y < height; ++y) {
        EXPECT_LE(rows.thread[y > 0 ? y - 1 : 0], rows.thread[y]);  // contiguous chunks
        EXPECT_EQ(slabs.thread[y], y < q * (team - 1) ? y / q : team - 1) << "row " << y;
      }
    }
  }
  // Inside the caller's active region the runtime refuses to fork (unless
  // the application allowed nesting), and the body runs as a team of one.
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

TEST(Regions, ScratchSlicesAndTheLowestStatus) {
  vok_test::ThreadCount count(4);
  for (int height : {1, 3, 40}) {
    int prepared = 0;
    const VokStatus status = vok::SlabsWithScratch(
        height, 100, [&] { return VokStatus(++prepared == 1 ? vokStatusOk : vokStatusBadSize); },
        [&](int y0, int, uint8_t* slice) {
          EXPECT_EQ(reinterpret_cast<uintptr_t>(slice) % vok::kSliceAlign, 0u);
          std::memset(slice, 0x5A, 100);
          // Idle threads leave Ok: with rows for all, an error beats Ok and a warning.
          return VokStatus(y0 == 0 ? vokWarnDivideByZero : vokStatusBadSize);
        });
    EXPECT_EQ(status, height >= 4 ? vokStatusBadSize : vokStatusOk) << height;
  }
  std::vector<int> tileWrites(23);
  EXPECT_EQ(vok::TilesWithScratch(23, 16, [] { return vokStatusOk; },
                                  [&](int tile, uint8_t*) {
                                    ++tileWrites[tile];
                                    return tile == 17 ? vokStatusBadSize : vokStatusOk;
                                  }),
            vokStatusBadSize);
  EXPECT_EQ(tileWrites, std::vector<int>(23, 1));
  // A failed preparation stops every thread before its work.
  EXPECT_EQ(vok::SlabsWithScratch(10, 16, [] { return vokStatusNullPointer; },
                                  [](int, int, uint8_t*) { return vokStatusBadSize; }),
            vokStatusNullPointer);
  RowLog rows(30), slabs(30);
  EXPECT_EQ(vok::StaticRowsWithScratch(30, 8, [&](int y0, int y1, uint8_t*) { rows.Record(y0, y1); }),
            vokStatusOk);
  EXPECT_EQ(vok::SlabsWithScratchBefore(30, 8, [&](int y0, int y1, uint8_t*) { slabs.Record(y0, y1); }),
            vokStatusOk);
  EXPECT_TRUE(rows.EachRowOnce() && slabs.EachRowOnce());
}

#if VOK_TEST_INTERPOSES_MALLOC
// The heap refuses the master's block: every thread leaves at once, the
// destination stays as it was, and no block is left behind.
TEST(Regions, RefusedScratchLeavesTheDestinationAndNoBlocks) {
  vok_test::ThreadCount count(4);
  std::vector<uint8_t> dst(64, 7);
  auto write = [&](int y0, int y1, uint8_t*) {
    std::fill(dst.begin() + y0, dst.begin() + y1, 0);
    return vokStatusOk;
  };
  bool prepared = false;
  auto prepare = [&] { prepared = true; return vokStatusOk; };
  const int largeBefore = gLargeLive.load();
  tRefuseFrom = kLargeBlock;  // the calling thread is the team's master
  EXPECT_EQ(vok::SlabsWithScratch(64, kLargeBlock, prepare, write), vokStatusNoMemory);
  EXPECT_EQ(vok::TilesWithScratch(64, kLargeBlock, prepare,
                                  [&](int tile, uint8_t* s) { return write(tile, tile + 1, s); }),
            vokStatusNoMemory);
  EXPECT_EQ(vok::StaticRowsWithScratch(64, kLargeBlock, write), vokStatusNoMemory);
  EXPECT_EQ(vok::SlabsWithScratchBefore(64, kLargeBlock, write), vokStatusNoMemory);
  tRefuseFrom = SIZE_MAX;
  EXPECT_FALSE(prepared);
  EXPECT_EQ(dst, std::vector<uint8_t>(64, 7));
  EXPECT_EQ(vok::SlabsWithScratch(64, kLargeBlock, prepare, write), vokStatusOk);
  EXPECT_EQ(vok::SlabsWithScratchBefore(64, kLargeBlock, write), vokStatusOk);
  EXPECT_EQ(dst, std::vector<uint8_t>(64, 0));
  EXPECT_EQ(gLargeLive.load(), largeBefore);
}
#endif

// The forms with regions and two that reach them through C1, as in-place
// calls: src (or the constant src[0]) combined into srcDst.
template <typename T>
using InPlace = VokStatus (*)(const T*, int, T*, int, VokiSize, int);
#define TWO(fn) [](const T* s, int ss, T* d, int ds, VokiSize r, int k) { return fn(s, ss, s, ss, d, ds, r, k); }
#define ONE(fn) [](const T* s, int ss, T* d, int ds, VokiSize r, int k) { return fn(s, ss, d, ds, r, k); }
#define CONST(fn) [](const T* s, int, T* d, int ds, VokiSize r, int k) { return fn(s[0], d, ds, r, k); }

template <typename T> std::vector<std::pair<int, InPlace<T>>> RegionForms();
template <> std::vector<std::pair<int, InPlace<Vok8u>>> RegionForms() {
  using T = Vok8u;
  return {{1, ONE(vokiAdd_8u_C1IRSfs)}, {3, ONE(vokiAdd_8u_C3IRSfs)}, {1, CONST(vokiAddC_8u_C1IRSfs)},
          {1, ONE(vokiSub_8u_C1IRSfs)}, {1, CONST(vokiSubC_8u_C1IRSfs)}, {1, TWO(vokiMul_8u_C1RSfs)},
          {4, TWO(vokiMul_8u_C4RSfs)},  {1, ONE(vokiMul_8u_C1IRSfs)}, {1, CONST(vokiMulC_8u_C1IRSfs)}};
}
template <> std::vector<std::pair<int, InPlace<Vok16s>>> RegionForms() {
  using T = Vok16s;
  return {{1, TWO(vokiAdd_16s_C1RSfs)}, {1, CONST(vokiAddC_16s_C1IRSfs)}, {1, TWO(vokiSub_16s_C1RSfs)},
          {1, ONE(vokiSub_16s_C1IRSfs)}, {3, ONE(vokiSub_16s_C3IRSfs)}, {1, CONST(vokiSubC_16s_C1IRSfs)},
          {1, TWO(vokiMul_16s_C1RSfs)}, {1, ONE(vokiMul_16s_C1IRSfs)}, {1, CONST(vokiMulC_16s_C1IRSfs)}};
}

template <typename T>
void SameBytesWithAnyTeam(uint32_t seed) {
  std::mt19937 rng(seed);
  // Both sides of the cut-overs at 128 and 256, heights below the team, and a
  // width that crosses 256 only once multiplied by the channels.
  const VokiSize sizes[] = {{100, 155}, {101, 155}, {60, 67}, {61, 67}, {300, 3}, {1, 255}, {70, 190}};
  int form = 0;
  for (auto [channels, fn] : RegionForms<T>()) {
    SCOPED_TRACE(form++);
    for (VokiSize size : sizes)
      for (int scale : {1, 2}) {
        vok_test::Image<T> src(size.width, size.height, channels, 3 * sizeof(T), 0);
        vok_test::Image<T> start(size.width, size.height, channels, 0, sizeof(T));
        src.randomize(rng);
        start.randomize(rng);
        // One thread, two, four, and from each thread of the caller's region.
        std::vector<vok_test::Image<T>> outs(5, start);
        for (int run = 0; run < 3; ++run) {
          vok_test::ThreadCount count(1 << run);
          fn(src.data(), src.step(), outs[run].data(), outs[run].step(), size, scale);
        }
#pragma omp parallel num_threads(2)
        {
          auto& out = outs[3 + omp_get_thread_num()];
          fn(src.data(), src.step(), out.data(), out.step(), size, scale);
        }
        for (int run = 1; run < 5; ++run) {
          EXPECT_EQ(outs[run].firstDifference(outs[0]), "")
              << size.width << "x" << size.height << " s=" << scale << " run " << run;
          EXPECT_TRUE(outs[run].guardsIntact());
        }
      }
  }
}

TEST(ArithRegions, SameBytesWithAnyTeam8u) { SameBytesWithAnyTeam<Vok8u>(11); }
TEST(ArithRegions, SameBytesWithAnyTeam16s) { SameBytesWithAnyTeam<Vok16s>(12); }

}  // namespace
