// Div, Sqrt, Ln, Exp and Abs against OpenCV. These families run serially
// here, so the all-cores rows show what OpenCV's threads gain over them.
#include <opencv2/core.hpp>

#include "bench_util.h"
#include "vok.h"

namespace {

using cv::Mat;
using vok_bench::CountBytes;
using vok_bench::ImageArgs;
using vok_bench::RandomMat;
using vok_bench::Roi;
using vok_bench::RunBinary;
using vok_bench::RunUnary;
using vok_bench::SetThreads;

// Times op(src, dst) on random 32f samples mapped into the function's domain:
// positive for Sqrt and Ln, [-50, 50) for Exp.
template <class Op>
void RunUnary32f(benchmark::State& state, double scale, bool positive, Op op) {
  SetThreads(state.range(2));
  Mat src = RandomMat(state.range(0), state.range(1), CV_32FC1, 1) * scale;
  if (positive) src = cv::abs(src) + 1e-3;
  Mat dst(src.size(), src.type());
  for (auto _ : state) op(src, dst);
  CountBytes(state, src, 2);
}

void BM_vok_Div_32f_C1R(benchmark::State& state) {
  RunBinary(state, CV_32FC1, [](const Mat& a, const Mat& b, Mat& d) {
    vokiDiv_32f_C1R(b.ptr<float>(), b.step, a.ptr<float>(), a.step, d.ptr<float>(),
                    d.step, Roi(a));
  });
}
BENCHMARK(BM_vok_Div_32f_C1R)->Apply(ImageArgs);

void BM_cv_divide_32f(benchmark::State& state) {
  RunBinary(state, CV_32FC1, [](const Mat& a, const Mat& b, Mat& d) { cv::divide(a, b, d); });
}
BENCHMARK(BM_cv_divide_32f)->Apply(ImageArgs);

void BM_vok_Div_16s_C1RSfs(benchmark::State& state) {
  RunBinary(state, CV_16SC1, [](const Mat& a, const Mat& b, Mat& d) {
    vokiDiv_16s_C1RSfs(b.ptr<Vok16s>(), b.step, a.ptr<Vok16s>(), a.step,
                       d.ptr<Vok16s>(), d.step, Roi(a), 0);
  });
}
BENCHMARK(BM_vok_Div_16s_C1RSfs)->Apply(ImageArgs);

void BM_cv_divide_16s(benchmark::State& state) {
  RunBinary(state, CV_16SC1, [](const Mat& a, const Mat& b, Mat& d) { cv::divide(a, b, d); });
}
BENCHMARK(BM_cv_divide_16s)->Apply(ImageArgs);

void BM_vok_Sqrt_32f_C1R(benchmark::State& state) {
  RunUnary32f(state, 1, true, [](const Mat& s, Mat& d) {
    vokiSqrt_32f_C1R(s.ptr<float>(), s.step, d.ptr<float>(), d.step, Roi(s));
  });
}
BENCHMARK(BM_vok_Sqrt_32f_C1R)->Apply(ImageArgs);

void BM_cv_sqrt_32f(benchmark::State& state) {
  RunUnary32f(state, 1, true, [](const Mat& s, Mat& d) { cv::sqrt(s, d); });
}
BENCHMARK(BM_cv_sqrt_32f)->Apply(ImageArgs);

void BM_vok_Ln_32f_C1R(benchmark::State& state) {
  RunUnary32f(state, 1, true, [](const Mat& s, Mat& d) {
    vokiLn_32f_C1R(s.ptr<float>(), s.step, d.ptr<float>(), d.step, Roi(s));
  });
}
BENCHMARK(BM_vok_Ln_32f_C1R)->Apply(ImageArgs);

void BM_cv_log_32f(benchmark::State& state) {
  RunUnary32f(state, 1, true, [](const Mat& s, Mat& d) { cv::log(s, d); });
}
BENCHMARK(BM_cv_log_32f)->Apply(ImageArgs);

void BM_vok_Exp_32f_C1R(benchmark::State& state) {
  RunUnary32f(state, 0.5, false, [](const Mat& s, Mat& d) {
    vokiExp_32f_C1R(s.ptr<float>(), s.step, d.ptr<float>(), d.step, Roi(s));
  });
}
BENCHMARK(BM_vok_Exp_32f_C1R)->Apply(ImageArgs);

void BM_cv_exp_32f(benchmark::State& state) {
  RunUnary32f(state, 0.5, false, [](const Mat& s, Mat& d) { cv::exp(s, d); });
}
BENCHMARK(BM_cv_exp_32f)->Apply(ImageArgs);

void BM_vok_Abs_16s_C1R(benchmark::State& state) {
  RunUnary(state, CV_16SC1, [](const Mat& s, Mat& d) {
    vokiAbs_16s_C1R(s.ptr<Vok16s>(), s.step, d.ptr<Vok16s>(), d.step, Roi(s));
  });
}
BENCHMARK(BM_vok_Abs_16s_C1R)->Apply(ImageArgs);

void BM_cv_abs_16s(benchmark::State& state) {
  RunUnary(state, CV_16SC1, [](const Mat& s, Mat& d) { d = cv::abs(s); });
}
BENCHMARK(BM_cv_abs_16s)->Apply(ImageArgs);

}  // namespace
