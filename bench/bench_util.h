// Shared pieces of the benchmarks: image sizes, thread settings applied to
// both this library and OpenCV, and byte counters.
#pragma once

#include <benchmark/benchmark.h>
#include <omp.h>

#include <cstdint>
#include <opencv2/core.hpp>
#include <random>

#include "vok.h"

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

inline VokiSize Roi(const cv::Mat& m) { return VokiSize{m.cols, m.rows}; }

// Times op(a, b, dst) on two random images of `type` (sized and threaded by
// the benchmark's arguments), counting three images of traffic.
template <class Op>
void RunBinary(benchmark::State& state, int type, Op op) {
  SetThreads(state.range(2));
  const cv::Mat a = RandomMat(state.range(0), state.range(1), type, 1);
  const cv::Mat b = RandomMat(state.range(0), state.range(1), type, 2);
  cv::Mat dst(a.size(), a.type());
  for (auto _ : state) op(a, b, dst);
  CountBytes(state, a, 3);
}

// Times op(src, dst) on one random image, counting two images of traffic.
template <class Op>
void RunUnary(benchmark::State& state, int type, Op op) {
  SetThreads(state.range(2));
  const cv::Mat src = RandomMat(state.range(0), state.range(1), type, 1);
  cv::Mat dst(src.size(), src.type());
  for (auto _ : state) op(src, dst);
  CountBytes(state, src, 2);
}

}  // namespace vok_bench
