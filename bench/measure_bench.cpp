// Sums, means, extrema and norms against OpenCV. These families run on the
// calling thread, so the all-cores rows show only OpenCV's threads.
#include <opencv2/core.hpp>

#include "bench_util.h"
#include "vok.h"

namespace {

using vok_bench::CountBytes;
using vok_bench::ImageArgs;
using vok_bench::RandomMat;
using vok_bench::SetThreads;

VokiSize Roi(const cv::Mat& m) { return VokiSize{m.cols, m.rows}; }

// Times body(a, b) on two random images of `type`, counting `images` reads.
template <class Body>
void Measure(benchmark::State& state, int type, int images, const Body& body) {
  SetThreads(state.range(2));
  cv::Mat a = RandomMat(state.range(0), state.range(1), type, 1);
  const cv::Mat b = RandomMat(state.range(0), state.range(1), type, 2);
  // Keep 8u data below 255 so that position searches scan the whole image.
  if (CV_MAT_DEPTH(type) == CV_8U) cv::min(a, 254, a);
  for (auto _ : state) body(a, b);
  CountBytes(state, a, images);
}

#define MEASURE_BENCH(name, type, images, ...)                           \
  void BM_##name(benchmark::State& state) {                              \
    Measure(state, type, images,                                         \
            [](const cv::Mat& a, [[maybe_unused]] const cv::Mat& b) {    \
              __VA_ARGS__;                                               \
            });                                                          \
  }                                                                      \
  BENCHMARK(BM_##name)->Apply(ImageArgs);

MEASURE_BENCH(vok_Sum_8u_C1R, CV_8UC1, 1, {
  Vok64f sum;
  vokiSum_8u_C1R(a.data, a.step, Roi(a), &sum);
  benchmark::DoNotOptimize(sum);
})
MEASURE_BENCH(cv_sum_8u_C1, CV_8UC1, 1, benchmark::DoNotOptimize(cv::sum(a)))

MEASURE_BENCH(vok_Sum_32f_C3R, CV_32FC3, 1, {
  Vok64f sum[3];
  vokiSum_32f_C3R(a.ptr<Vok32f>(), a.step, Roi(a), sum, vokHintFast);
  benchmark::DoNotOptimize(sum);
})
MEASURE_BENCH(cv_sum_32f_C3, CV_32FC3, 1, benchmark::DoNotOptimize(cv::sum(a)))

MEASURE_BENCH(vok_Mean_8u_C1R, CV_8UC1, 1, {
  Vok64f mean;
  vokiMean_8u_C1R(a.data, a.step, Roi(a), &mean);
  benchmark::DoNotOptimize(mean);
})
MEASURE_BENCH(cv_mean_8u_C1, CV_8UC1, 1, benchmark::DoNotOptimize(cv::mean(a)))

MEASURE_BENCH(vok_MinMax_32f_C1R, CV_32FC1, 1, {
  Vok32f lo, hi;
  vokiMinMax_32f_C1R(a.ptr<Vok32f>(), a.step, Roi(a), &lo, &hi);
  benchmark::DoNotOptimize(lo + hi);
})
MEASURE_BENCH(cv_minMaxLoc_32f_C1, CV_32FC1, 1, {
  double lo, hi;
  cv::minMaxLoc(a, &lo, &hi);
  benchmark::DoNotOptimize(lo + hi);
})

MEASURE_BENCH(vok_MaxIndx_8u_C1R, CV_8UC1, 1, {
  Vok8u hi;
  int x, y;
  vokiMaxIndx_8u_C1R(a.data, a.step, Roi(a), &hi, &x, &y);
  benchmark::DoNotOptimize(x + y);
})
MEASURE_BENCH(cv_minMaxLoc_max_8u_C1, CV_8UC1, 1, {
  double hi;
  cv::Point at;
  cv::minMaxLoc(a, nullptr, &hi, nullptr, &at);
  benchmark::DoNotOptimize(at.x + at.y);
})

MEASURE_BENCH(vok_Norm_L2_32f_C1R, CV_32FC1, 1, {
  Vok64f v;
  vokiNorm_L2_32f_C1R(a.ptr<Vok32f>(), a.step, Roi(a), &v, vokHintFast);
  benchmark::DoNotOptimize(v);
})
MEASURE_BENCH(cv_norm_L2_32f_C1, CV_32FC1, 1,
              benchmark::DoNotOptimize(cv::norm(a, cv::NORM_L2)))

MEASURE_BENCH(vok_Norm_L1_8u_C1R, CV_8UC1, 1, {
  Vok64f v;
  vokiNorm_L1_8u_C1R(a.data, a.step, Roi(a), &v);
  benchmark::DoNotOptimize(v);
})
MEASURE_BENCH(cv_norm_L1_8u_C1, CV_8UC1, 1,
              benchmark::DoNotOptimize(cv::norm(a, cv::NORM_L1)))

MEASURE_BENCH(vok_NormDiff_Inf_16s_C1R, CV_16SC1, 2, {
  Vok64f v;
  vokiNormDiff_Inf_16s_C1R(a.ptr<Vok16s>(), a.step, b.ptr<Vok16s>(), b.step,
                           Roi(a), &v);
  benchmark::DoNotOptimize(v);
})
MEASURE_BENCH(cv_norm_diff_Inf_16s_C1, CV_16SC1, 2,
              benchmark::DoNotOptimize(cv::norm(a, b, cv::NORM_INF)))

}  // namespace
