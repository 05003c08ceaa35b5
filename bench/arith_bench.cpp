// Add and Mul against OpenCV, and memcpy as the bandwidth ceiling.
#include <cstring>
#include <opencv2/core.hpp>

#include "bench_util.h"
#include "vok.h"

namespace {

using vok_bench::CountBytes;
using vok_bench::ImageArgs;
using vok_bench::RandomMat;
using vok_bench::SetThreads;

VokiSize Roi(const cv::Mat& m) { return VokiSize{m.cols, m.rows}; }

void BM_memcpy_8u(benchmark::State& state) {
  const cv::Mat a = RandomMat(state.range(0), state.range(1), CV_8UC1);
  cv::Mat dst(a.size(), a.type());
  for (auto _ : state) std::memcpy(dst.data, a.data, a.total());
  CountBytes(state, a, 2);
}
BENCHMARK(BM_memcpy_8u)->Apply(ImageArgs);

void BM_vok_Add_8u_C1RSfs(benchmark::State& state) {
  SetThreads(state.range(2));
  const cv::Mat a = RandomMat(state.range(0), state.range(1), CV_8UC1, 1);
  const cv::Mat b = RandomMat(state.range(0), state.range(1), CV_8UC1, 2);
  cv::Mat dst(a.size(), a.type());
  for (auto _ : state)
    vokiAdd_8u_C1RSfs(a.data, a.step, b.data, b.step, dst.data, dst.step,
                      Roi(a), 0);
  CountBytes(state, a, 3);
}
BENCHMARK(BM_vok_Add_8u_C1RSfs)->Apply(ImageArgs);

void BM_cv_add_8u(benchmark::State& state) {
  SetThreads(state.range(2));
  const cv::Mat a = RandomMat(state.range(0), state.range(1), CV_8UC1, 1);
  const cv::Mat b = RandomMat(state.range(0), state.range(1), CV_8UC1, 2);
  cv::Mat dst(a.size(), a.type());
  for (auto _ : state) cv::add(a, b, dst);
  CountBytes(state, a, 3);
}
BENCHMARK(BM_cv_add_8u)->Apply(ImageArgs);

void BM_vok_Add_32f_C1R(benchmark::State& state) {
  SetThreads(state.range(2));
  const cv::Mat a = RandomMat(state.range(0), state.range(1), CV_32FC1, 1);
  const cv::Mat b = RandomMat(state.range(0), state.range(1), CV_32FC1, 2);
  cv::Mat dst(a.size(), a.type());
  for (auto _ : state)
    vokiAdd_32f_C1R(a.ptr<float>(), a.step, b.ptr<float>(), b.step,
                    dst.ptr<float>(), dst.step, Roi(a));
  CountBytes(state, a, 3);
}
BENCHMARK(BM_vok_Add_32f_C1R)->Apply(ImageArgs);

void BM_cv_add_32f(benchmark::State& state) {
  SetThreads(state.range(2));
  const cv::Mat a = RandomMat(state.range(0), state.range(1), CV_32FC1, 1);
  const cv::Mat b = RandomMat(state.range(0), state.range(1), CV_32FC1, 2);
  cv::Mat dst(a.size(), a.type());
  for (auto _ : state) cv::add(a, b, dst);
  CountBytes(state, a, 3);
}
BENCHMARK(BM_cv_add_32f)->Apply(ImageArgs);

// Scale 1 against OpenCV's multiply by 0.5, which also rounds ties to even.
void BM_vok_Mul_16s_C1RSfs(benchmark::State& state) {
  SetThreads(state.range(2));
  const cv::Mat a = RandomMat(state.range(0), state.range(1), CV_16SC1, 1);
  const cv::Mat b = RandomMat(state.range(0), state.range(1), CV_16SC1, 2);
  cv::Mat dst(a.size(), a.type());
  for (auto _ : state)
    vokiMul_16s_C1RSfs(a.ptr<Vok16s>(), a.step, b.ptr<Vok16s>(), b.step,
                       dst.ptr<Vok16s>(), dst.step, Roi(a), 1);
  CountBytes(state, a, 3);
}
BENCHMARK(BM_vok_Mul_16s_C1RSfs)->Apply(ImageArgs);

void BM_cv_multiply_16s(benchmark::State& state) {
  SetThreads(state.range(2));
  const cv::Mat a = RandomMat(state.range(0), state.range(1), CV_16SC1, 1);
  const cv::Mat b = RandomMat(state.range(0), state.range(1), CV_16SC1, 2);
  cv::Mat dst(a.size(), a.type());
  for (auto _ : state) cv::multiply(a, b, dst, 0.5);
  CountBytes(state, a, 3);
}
BENCHMARK(BM_cv_multiply_16s)->Apply(ImageArgs);

}  // namespace
