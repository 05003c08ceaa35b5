// The vector layer and the complex product against OpenCV, single-threaded
// on one million elements. OpenCV takes real and imaginary parts as separate
// planes and this library as interleaved pairs: each runs its own layout.
#include <opencv2/core.hpp>

#include "bench_util.h"

namespace {

constexpr int kSide = 1024;  // 1M elements

struct Planes {
  cv::Mat re = vok_bench::RandomMat(kSide, kSide, CV_32F, 1);
  cv::Mat im = vok_bench::RandomMat(kSide, kSide, CV_32F, 2);
  cv::Mat pairs;
  Planes() { cv::merge(std::vector<cv::Mat>{re, im}, pairs); }
  const Vok32fc* complex() const { return pairs.ptr<Vok32fc>(); }
};

void CountElements(benchmark::State& state) {
  state.SetItemsProcessed(int64_t(state.iterations()) * kSide * kSide);
}

void BM_Magnitude_vok(benchmark::State& state) {
  vok_bench::SetThreads(1);
  const Planes p;
  cv::Mat mag(kSide, kSide, CV_32F);
  for (auto _ : state) voksMagnitude_32fc(p.complex(), mag.ptr<Vok32f>(), kSide * kSide);
  CountElements(state);
}
void BM_Magnitude_cv(benchmark::State& state) {
  vok_bench::SetThreads(1);
  const Planes p;
  cv::Mat mag(kSide, kSide, CV_32F);
  for (auto _ : state) cv::magnitude(p.re, p.im, mag);
  CountElements(state);
}

void BM_Phase_vok(benchmark::State& state) {
  vok_bench::SetThreads(1);
  const Planes p;
  cv::Mat angle(kSide, kSide, CV_32F);
  for (auto _ : state) voksPhase_32fc(p.complex(), angle.ptr<Vok32f>(), kSide * kSide);
  CountElements(state);
}
void BM_Phase_cv(benchmark::State& state) {
  vok_bench::SetThreads(1);
  const Planes p;
  cv::Mat angle(kSide, kSide, CV_32F);
  for (auto _ : state) cv::phase(p.re, p.im, angle);
  CountElements(state);
}

void BM_PolarToCart_vok(benchmark::State& state) {
  vok_bench::SetThreads(1);
  const Planes p;  // re as magnitudes, im as angles
  cv::Mat out(kSide, kSide, CV_32FC2);
  for (auto _ : state)
    voksPolarToCart_32fc(p.re.ptr<Vok32f>(), p.im.ptr<Vok32f>(), out.ptr<Vok32fc>(),
                         kSide * kSide);
  CountElements(state);
}
void BM_PolarToCart_cv(benchmark::State& state) {
  vok_bench::SetThreads(1);
  const Planes p;
  cv::Mat x(kSide, kSide, CV_32F), y(kSide, kSide, CV_32F);
  for (auto _ : state) cv::polarToCart(p.re, p.im, x, y);
  CountElements(state);
}

void BM_DotProd_vok(benchmark::State& state) {
  vok_bench::SetThreads(1);
  const Planes p;
  Vok32f dot = 0;
  for (auto _ : state) {
    voksDotProd_32f(p.re.ptr<Vok32f>(), p.im.ptr<Vok32f>(), kSide * kSide, &dot);
    benchmark::DoNotOptimize(dot);
  }
  CountElements(state);
}
void BM_DotProd_cv(benchmark::State& state) {
  vok_bench::SetThreads(1);
  const Planes p;
  for (auto _ : state) benchmark::DoNotOptimize(p.re.dot(p.im));
  CountElements(state);
}

void BM_ComplexMul_vok(benchmark::State& state) {
  vok_bench::SetThreads(1);
  const Planes a, b;
  cv::Mat out(kSide, kSide, CV_32FC2);
  const int step = static_cast<int>(out.step);
  for (auto _ : state)
    vokiMul_32fc_C1R(a.complex(), step, b.complex(), step, out.ptr<Vok32fc>(), step,
                     VokiSize{kSide, kSide});
  CountElements(state);
}
void BM_ComplexMul_cv(benchmark::State& state) {
  vok_bench::SetThreads(1);
  const Planes a, b;
  cv::Mat out(kSide, kSide, CV_32FC2);
  for (auto _ : state) cv::mulSpectrums(a.pairs, b.pairs, out, 0);
  CountElements(state);
}

}  // namespace

BENCHMARK(BM_Magnitude_vok)->UseRealTime();
BENCHMARK(BM_Magnitude_cv)->UseRealTime();
BENCHMARK(BM_Phase_vok)->UseRealTime();
BENCHMARK(BM_Phase_cv)->UseRealTime();
BENCHMARK(BM_PolarToCart_vok)->UseRealTime();
BENCHMARK(BM_PolarToCart_cv)->UseRealTime();
BENCHMARK(BM_DotProd_vok)->UseRealTime();
BENCHMARK(BM_DotProd_cv)->UseRealTime();
BENCHMARK(BM_ComplexMul_vok)->UseRealTime();
BENCHMARK(BM_ComplexMul_cv)->UseRealTime();
