// Shared pieces of the benchmarks: image sizes, thread settings applied to
// both this library and OpenCV, and byte counters.
#pragma once

#include <benchmark/benchmark.h>
#include <omp.h>

#include <cstdint>
#include <opencv2/core.hpp>
#include <random>

namespace vok_bench {

// Threads 1 runs both libraries single-threaded; 0 gives both all cores.
inline void SetThreads(int threads) {
  const int n = threads > 0 ? threads : omp_get_num_procs();
  omp_set_num_threads(n);
  cv::setNumThreads(n);
}

// Width, height, threads (1, or 0 for all cores).
inline void ImageArgs(benchmark::internal::Benchmark* b) {
  for (int threads : {1, 0})
    for (auto [w, h] : {std::pair{1920, 1080}, std::pair{4096, 4096}})
      b->Args({w, h, threads});
  b->ArgNames({"w", "h", "threads"});
  b->UseRealTime();
}

// A matrix of random samples.
inline cv::Mat RandomMat(int width, int height, int type, uint32_t seed = 1) {
  cv::Mat m(height, width, type);
  cv::RNG rng(seed);
  if (CV_MAT_DEPTH(type) == CV_32F || CV_MAT_DEPTH(type) == CV_64F) {
    rng.fill(m, cv::RNG::UNIFORM, -100.0, 100.0);
  } else {
    rng.fill(m, cv::RNG::UNIFORM, 0, 256);
  }
  return m;
}

// Bytes read and written per iteration, for bandwidth in the report.
inline void CountBytes(benchmark::State& state, const cv::Mat& m, int images) {
  state.SetBytesProcessed(int64_t(state.iterations()) * m.total() *
                          m.elemSize() * images);
}

}  // namespace vok_bench
