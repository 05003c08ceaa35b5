#include "vok_test.h"

#include <omp.h>

#include "hwy/targets.h"

namespace vok_test {

void ForEachTarget(const std::function<void(const char* name)>& body) {
  const int64_t carried[] = {HWY_AVX3, HWY_AVX2, HWY_SSE4};
  const int64_t supported = hwy::SupportedTargets();
  int ran = 0;
  for (int64_t target : carried) {
    if ((supported & target) == 0) continue;
    hwy::SetSupportedTargetsForTest(target);
    SCOPED_TRACE(hwy::TargetName(target));
    body(hwy::TargetName(target));
    ++ran;
  }
  hwy::SetSupportedTargetsForTest(0);
  EXPECT_GT(ran, 0);
}

const std::vector<int>& TestWidths() {
  static const std::vector<int> widths = [] {
    std::vector<int> w;
    for (int i = 1; i <= 17; ++i) w.push_back(i);
    for (int i : {23, 31, 32, 33, 63, 64, 65, 127, 129, 257, 300, 1031})
      w.push_back(i);
    return w;
  }();
  return widths;
}

const std::vector<Geometry>& TestGeometries(size_t sampleSize) {
  static const std::vector<Geometry> bytes = {{0, 0}, {7, 1}, {32, 3}, {1, 5}};
  static const std::vector<Geometry> samples = {
      {0, 0}, {6, 2}, {32, 4}, {10, 12}};
  return sampleSize == 1 ? bytes : samples;
}

Shape RandomShape(std::mt19937& rng, size_t sampleSize, int maxHeight) {
  const auto& widths = TestWidths();
  const auto& geometries = TestGeometries(sampleSize);
  const int width = widths[rng() % widths.size()];
  const int height = 1 + int(rng() % maxHeight);
  return {width, height, geometries[rng() % geometries.size()]};
}

void ExpectStatuses(std::initializer_list<std::pair<VokStatus, VokStatus>> cases) {
  int row = 0;
  for (const auto& [got, want] : cases) EXPECT_EQ(got, want) << "row " << row++;
}

ThreadCount::ThreadCount(int threads) : previous_(omp_get_max_threads()) {
  omp_set_num_threads(threads);
}
ThreadCount::~ThreadCount() { omp_set_num_threads(previous_); }

}  // namespace vok_test
