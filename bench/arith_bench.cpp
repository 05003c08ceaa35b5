// Add and Mul against OpenCV, and memcpy as the bandwidth ceiling.
#include <cstring>
#include <opencv2/core.hpp>

#include "bench_util.h"
#include "vok.h"

namespace {

using vok_bench::ImageArgs;
using vok_bench::Roi;
using vok_bench::RunBinary;
using vok_bench::RunUnary;
using cv::Mat;

void BM_memcpy_8u(benchmark::State& state) {
  RunUnary(state, CV_8UC1, [](const Mat& a, Mat& d) { std::memcpy(d.data, a.data, a.total()); });
}
BENCHMARK(BM_memcpy_8u)->Apply(ImageArgs);

void BM_vok_Add_8u_C1RSfs(benchmark::State& state) {
  RunBinary(state, CV_8UC1, [](const Mat& a, const Mat& b, Mat& d) {
    vokiAdd_8u_C1RSfs(a.data, a.step, b.data, b.step, d.data, d.step, Roi(a), 0);
  });
}
BENCHMARK(BM_vok_Add_8u_C1RSfs)->Apply(ImageArgs);

void BM_cv_add_8u(benchmark::State& state) {
  RunBinary(state, CV_8UC1, [](const Mat& a, const Mat& b, Mat& d) { cv::add(a, b, d); });
}
BENCHMARK(BM_cv_add_8u)->Apply(ImageArgs);

void BM_vok_Add_32f_C1R(benchmark::State& state) {
  RunBinary(state, CV_32FC1, [](const Mat& a, const Mat& b, Mat& d) {
    vokiAdd_32f_C1R(a.ptr<float>(), a.step, b.ptr<float>(), b.step, d.ptr<float>(),
                    d.step, Roi(a));
  });
}
BENCHMARK(BM_vok_Add_32f_C1R)->Apply(ImageArgs);

void BM_cv_add_32f(benchmark::State& state) {
  RunBinary(state, CV_32FC1, [](const Mat& a, const Mat& b, Mat& d) { cv::add(a, b, d); });
}
BENCHMARK(BM_cv_add_32f)->Apply(ImageArgs);

// Scale 1 against OpenCV's multiply by 0.5, which also rounds ties to even.
void BM_vok_Mul_16s_C1RSfs(benchmark::State& state) {
  RunBinary(state, CV_16SC1, [](const Mat& a, const Mat& b, Mat& d) {
    vokiMul_16s_C1RSfs(a.ptr<Vok16s>(), a.step, b.ptr<Vok16s>(), b.step,
                       d.ptr<Vok16s>(), d.step, Roi(a), 1);
  });
}
BENCHMARK(BM_vok_Mul_16s_C1RSfs)->Apply(ImageArgs);

void BM_cv_multiply_16s(benchmark::State& state) {
  RunBinary(state, CV_16SC1,
            [](const Mat& a, const Mat& b, Mat& d) { cv::multiply(a, b, d, 0.5); });
}
BENCHMARK(BM_cv_multiply_16s)->Apply(ImageArgs);

// Regions 1000, 40 and 8 samples wide in the 512 rows of a 1088-wide image:
// the end of every row is a partial vector.
void RegionArgs(benchmark::internal::Benchmark* b) {
  for (int width : {1000, 40, 8}) b->Args({width});
  b->ArgNames({"w"});
  b->UseRealTime();
}

template <class Op>
void RunRegion(benchmark::State& state, Op op) {
  vok_bench::SetThreads(1);
  const Mat a = vok_bench::RandomMat(1088, 512, CV_32FC1, 1);
  const Mat b = vok_bench::RandomMat(1088, 512, CV_32FC1, 2);
  Mat d(a.size(), a.type());
  const cv::Rect region(0, 0, int(state.range(0)), 512);
  Mat ra = a(region), rb = b(region), rd = d(region);
  for (auto _ : state) op(ra, rb, rd);
  vok_bench::CountBytes(state, ra, 3);
}

void BM_vok_Add_32f_C1R_Region(benchmark::State& state) {
  RunRegion(state, [](const Mat& a, const Mat& b, Mat& d) {
    vokiAdd_32f_C1R(a.ptr<float>(), a.step, b.ptr<float>(), b.step, d.ptr<float>(),
                    d.step, Roi(a));
  });
}
BENCHMARK(BM_vok_Add_32f_C1R_Region)->Apply(RegionArgs);

void BM_cv_add_32f_Region(benchmark::State& state) {
  RunRegion(state, [](const Mat& a, const Mat& b, Mat& d) { cv::add(a, b, d); });
}
BENCHMARK(BM_cv_add_32f_Region)->Apply(RegionArgs);

}  // namespace
