// Bitwise operations against OpenCV.
#include <opencv2/core.hpp>

#include "bench_util.h"
#include "vok.h"

namespace {

using vok_bench::CountBytes;
using vok_bench::ImageArgs;
using vok_bench::RandomMat;
using vok_bench::SetThreads;

void BM_vok_And_8u_C1R(benchmark::State& state) {
  SetThreads(state.range(2));
  const cv::Mat a = RandomMat(state.range(0), state.range(1), CV_8UC1, 1);
  const cv::Mat b = RandomMat(state.range(0), state.range(1), CV_8UC1, 2);
  cv::Mat dst(a.size(), a.type());
  for (auto _ : state)
    vokiAnd_8u_C1R(a.data, a.step, b.data, b.step, dst.data, dst.step,
                   VokiSize{a.cols, a.rows});
  CountBytes(state, a, 3);
}
BENCHMARK(BM_vok_And_8u_C1R)->Apply(ImageArgs);

void BM_cv_bitwise_and_8u(benchmark::State& state) {
  SetThreads(state.range(2));
  const cv::Mat a = RandomMat(state.range(0), state.range(1), CV_8UC1, 1);
  const cv::Mat b = RandomMat(state.range(0), state.range(1), CV_8UC1, 2);
  cv::Mat dst(a.size(), a.type());
  for (auto _ : state) cv::bitwise_and(a, b, dst);
  CountBytes(state, a, 3);
}
BENCHMARK(BM_cv_bitwise_and_8u)->Apply(ImageArgs);

void BM_vok_XorC_8u_C3R(benchmark::State& state) {
  SetThreads(state.range(2));
  const cv::Mat a = RandomMat(state.range(0), state.range(1), CV_8UC3, 1);
  cv::Mat dst(a.size(), a.type());
  const Vok8u value[3] = {0x0F, 0xF0, 0x55};
  for (auto _ : state)
    vokiXorC_8u_C3R(a.data, a.step, value, dst.data, dst.step,
                    VokiSize{a.cols, a.rows});
  CountBytes(state, a, 2);
}
BENCHMARK(BM_vok_XorC_8u_C3R)->Apply(ImageArgs);

void BM_cv_bitwise_xor_scalar_8uC3(benchmark::State& state) {
  SetThreads(state.range(2));
  const cv::Mat a = RandomMat(state.range(0), state.range(1), CV_8UC3, 1);
  cv::Mat dst(a.size(), a.type());
  const cv::Scalar value(0x0F, 0xF0, 0x55);
  for (auto _ : state) cv::bitwise_xor(a, value, dst);
  CountBytes(state, a, 2);
}
BENCHMARK(BM_cv_bitwise_xor_scalar_8uC3)->Apply(ImageArgs);

}  // namespace
