// Bitwise operations against OpenCV.
#include <opencv2/core.hpp>

#include "bench_util.h"
#include "vok.h"

namespace {

using vok_bench::ImageArgs;
using vok_bench::Roi;
using vok_bench::RunBinary;
using vok_bench::RunUnary;
using cv::Mat;

void BM_vok_And_8u_C1R(benchmark::State& state) {
  RunBinary(state, CV_8UC1, [](const Mat& a, const Mat& b, Mat& d) {
    vokiAnd_8u_C1R(a.data, a.step, b.data, b.step, d.data, d.step, Roi(a));
  });
}
BENCHMARK(BM_vok_And_8u_C1R)->Apply(ImageArgs);

void BM_cv_bitwise_and_8u(benchmark::State& state) {
  RunBinary(state, CV_8UC1,
            [](const Mat& a, const Mat& b, Mat& d) { cv::bitwise_and(a, b, d); });
}
BENCHMARK(BM_cv_bitwise_and_8u)->Apply(ImageArgs);

void BM_vok_XorC_8u_C3R(benchmark::State& state) {
  RunUnary(state, CV_8UC3, [](const Mat& a, Mat& d) {
    const Vok8u value[3] = {0x0F, 0xF0, 0x55};
    vokiXorC_8u_C3R(a.data, a.step, value, d.data, d.step, Roi(a));
  });
}
BENCHMARK(BM_vok_XorC_8u_C3R)->Apply(ImageArgs);

void BM_cv_bitwise_xor_scalar_8uC3(benchmark::State& state) {
  RunUnary(state, CV_8UC3, [](const Mat& a, Mat& d) {
    cv::bitwise_xor(a, cv::Scalar(0x0F, 0xF0, 0x55), d);
  });
}
BENCHMARK(BM_cv_bitwise_xor_scalar_8uC3)->Apply(ImageArgs);

}  // namespace
