// User-kernel filters against cv::filter2D and cv::sepFilter2D. Both filter
// the same region of a larger image, so both read real samples around it.
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include "bench_util.h"
#include "vok.h"

namespace {

using cv::Mat;
using vok_bench::RandomMat;
using vok_bench::SetThreads;

// Width, height, threads (1, or 0 for all cores), kernel size.
void FilterArgs(benchmark::internal::Benchmark* b, std::initializer_list<int> kernels) {
  for (int k : kernels)
    for (int threads : {1, 0})
      for (auto [w, h] : {std::pair{1920, 1080}, std::pair{4096, 4096}})
        b->Args({w, h, threads, k});
  b->ArgNames({"w", "h", "threads", "k"});
  b->UseRealTime();
}
void SquareKernels(benchmark::internal::Benchmark* b) { FilterArgs(b, {3, 5, 11}); }
void FiveByFive(benchmark::internal::Benchmark* b) { FilterArgs(b, {5}); }
void FifteenTaps(benchmark::internal::Benchmark* b) { FilterArgs(b, {15}); }

// A source with a border of k / 2 samples on each side, the region inside
// it, a destination, and a normalised random kernel.
struct Setup {
  Mat padded, region, dst;
  int k;
  Mat kernel;  // CV_32F, k x k (or 1 x k for separable runs)

  Setup(benchmark::State& state, int type, bool square) {
    SetThreads(state.range(2));
    const int w = state.range(0), h = state.range(1);
    k = state.range(3);
    padded = RandomMat(w + k - 1, h + k - 1, type);
    region = padded(cv::Rect(k / 2, k / 2, w, h));
    dst.create(h, w, type);
    kernel = RandomMat(k, square ? k : 1, CV_32F, 3);
    kernel /= cv::sum(kernel)[0];
  }
  VokiSize roi() const { return VokiSize{dst.cols, dst.rows}; }
  VokiPoint anchor() const { return VokiPoint{k / 2, k / 2}; }
  void count(benchmark::State& state) const {
    state.SetItemsProcessed(int64_t(state.iterations()) * dst.total());
  }
};

void BM_vok_Filter_32f_C1R(benchmark::State& state) {
  Setup s(state, CV_32FC1, true);
  for (auto _ : state)
    vokiFilter_32f_C1R(s.region.ptr<float>(), s.padded.step, s.dst.ptr<float>(),
                       s.dst.step, s.roi(), s.kernel.ptr<float>(),
                       {s.k, s.k}, s.anchor());
  s.count(state);
}
BENCHMARK(BM_vok_Filter_32f_C1R)->Apply(SquareKernels);

void BM_cv_filter2D_32f(benchmark::State& state) {
  Setup s(state, CV_32FC1, true);
  for (auto _ : state) cv::filter2D(s.region, s.dst, -1, s.kernel);
  s.count(state);
}
BENCHMARK(BM_cv_filter2D_32f)->Apply(SquareKernels);

// Integer taps that sum to 64, so the divisor shifts.
void BM_vok_Filter_8u_C3R(benchmark::State& state) {
  Setup s(state, CV_8UC3, true);
  std::vector<Vok32s> taps(s.k * s.k, 2);
  taps[s.k * s.k / 2] = 64 - 2 * (s.k * s.k - 1);
  for (auto _ : state)
    vokiFilter_8u_C3R(s.region.data, s.padded.step, s.dst.data, s.dst.step,
                      s.roi(), taps.data(), {s.k, s.k}, s.anchor(), 64);
  s.count(state);
}
BENCHMARK(BM_vok_Filter_8u_C3R)->Apply(FiveByFive);

void BM_cv_filter2D_8u_C3(benchmark::State& state) {
  Setup s(state, CV_8UC3, true);
  Mat kernel(s.k, s.k, CV_32F, cv::Scalar(2.0f / 64));
  kernel.at<float>(s.k / 2, s.k / 2) = (64.0f - 2 * (s.k * s.k - 1)) / 64;
  for (auto _ : state) cv::filter2D(s.region, s.dst, -1, kernel);
  s.count(state);
}
BENCHMARK(BM_cv_filter2D_8u_C3)->Apply(FiveByFive);

// Row pass into a temporary that keeps the rows the column pass reads.
void BM_vok_FilterRowColumn_32f_C1R(benchmark::State& state) {
  Setup s(state, CV_32FC1, false);
  Mat rows(s.padded.rows, s.dst.cols, CV_32F);
  const float* taps = s.kernel.ptr<float>();
  for (auto _ : state) {
    vokiFilterRow_32f_C1R(s.padded.ptr<float>(0, s.k / 2), s.padded.step,
                          rows.ptr<float>(), rows.step,
                          {s.dst.cols, s.padded.rows}, taps, s.k, s.k / 2);
    vokiFilterColumn_32f_C1R(rows.ptr<float>(s.k / 2), rows.step,
                             s.dst.ptr<float>(), s.dst.step, s.roi(), taps,
                             s.k, s.k / 2);
  }
  s.count(state);
}
BENCHMARK(BM_vok_FilterRowColumn_32f_C1R)->Apply(FifteenTaps);

void BM_cv_sepFilter2D_32f(benchmark::State& state) {
  Setup s(state, CV_32FC1, false);
  for (auto _ : state)
    cv::sepFilter2D(s.region, s.dst, -1, s.kernel, s.kernel);
  s.count(state);
}
BENCHMARK(BM_cv_sepFilter2D_32f)->Apply(FifteenTaps);

}  // namespace
