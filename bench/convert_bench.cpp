// Conversions, comparisons and thresholds against OpenCV.
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include "bench_util.h"
#include "vok.h"

namespace {

using cv::Mat;
using vok_bench::CountBytes;
using vok_bench::ImageArgs;
using vok_bench::RandomMat;
using vok_bench::Roi;
using vok_bench::SetThreads;

// Times op(src, dst) from a random image of srcType into one of dstType,
// counting the bytes of both.
template <class Op>
void RunConversion(benchmark::State& state, int srcType, int dstType, Op op) {
  SetThreads(state.range(2));
  const Mat src = RandomMat(state.range(0), state.range(1), srcType, 1);
  Mat dst(src.size(), dstType);
  for (auto _ : state) op(src, dst);
  state.SetBytesProcessed(int64_t(state.iterations()) * src.total() *
                          (src.elemSize() + dst.elemSize()));
}

void BM_vok_Convert_8u32f_C1R(benchmark::State& state) {
  RunConversion(state, CV_8UC1, CV_32FC1, [](const Mat& s, Mat& d) {
    vokiConvert_8u32f_C1R(s.data, s.step, d.ptr<float>(), d.step, Roi(s));
  });
}
BENCHMARK(BM_vok_Convert_8u32f_C1R)->Apply(ImageArgs);

void BM_cv_convertTo_8u32f(benchmark::State& state) {
  RunConversion(state, CV_8UC1, CV_32FC1,
                [](const Mat& s, Mat& d) { s.convertTo(d, CV_32F); });
}
BENCHMARK(BM_cv_convertTo_8u32f)->Apply(ImageArgs);

void BM_vok_Convert_32f8u_C1R(benchmark::State& state) {
  RunConversion(state, CV_32FC1, CV_8UC1, [](const Mat& s, Mat& d) {
    vokiConvert_32f8u_C1R(s.ptr<float>(), s.step, d.data, d.step, Roi(s),
                          vokRoundNear);
  });
}
BENCHMARK(BM_vok_Convert_32f8u_C1R)->Apply(ImageArgs);

void BM_cv_convertTo_32f8u(benchmark::State& state) {
  RunConversion(state, CV_32FC1, CV_8UC1,
                [](const Mat& s, Mat& d) { s.convertTo(d, CV_8U); });
}
BENCHMARK(BM_cv_convertTo_32f8u)->Apply(ImageArgs);

// [-100, 100] onto [0, 255]; OpenCV takes the same map as alpha and beta.
constexpr float kMin = -100, kMax = 100;

void BM_vok_Scale_32f8u_C1R(benchmark::State& state) {
  RunConversion(state, CV_32FC1, CV_8UC1, [](const Mat& s, Mat& d) {
    vokiScale_32f8u_C1R(s.ptr<float>(), s.step, d.data, d.step, Roi(s), kMin,
                        kMax);
  });
}
BENCHMARK(BM_vok_Scale_32f8u_C1R)->Apply(ImageArgs);

void BM_cv_convertTo_scaled_32f8u(benchmark::State& state) {
  RunConversion(state, CV_32FC1, CV_8UC1, [](const Mat& s, Mat& d) {
    const double alpha = 255.0 / (kMax - kMin);
    s.convertTo(d, CV_8U, alpha, -kMin * alpha);
  });
}
BENCHMARK(BM_cv_convertTo_scaled_32f8u)->Apply(ImageArgs);

void BM_vok_Compare_8u_C1R(benchmark::State& state) {
  SetThreads(state.range(2));
  const Mat a = RandomMat(state.range(0), state.range(1), CV_8UC1, 1);
  const Mat b = RandomMat(state.range(0), state.range(1), CV_8UC1, 2);
  Mat d(a.size(), CV_8UC1);
  for (auto _ : state)
    vokiCompare_8u_C1R(a.data, a.step, b.data, b.step, d.data, d.step, Roi(a),
                       vokCmpLess);
  CountBytes(state, a, 3);
}
BENCHMARK(BM_vok_Compare_8u_C1R)->Apply(ImageArgs);

void BM_cv_compare_8u(benchmark::State& state) {
  SetThreads(state.range(2));
  const Mat a = RandomMat(state.range(0), state.range(1), CV_8UC1, 1);
  const Mat b = RandomMat(state.range(0), state.range(1), CV_8UC1, 2);
  Mat d(a.size(), CV_8UC1);
  for (auto _ : state) cv::compare(a, b, d, cv::CMP_LT);
  CountBytes(state, a, 3);
}
BENCHMARK(BM_cv_compare_8u)->Apply(ImageArgs);

void BM_vok_CompareC_32f_C1R(benchmark::State& state) {
  RunConversion(state, CV_32FC1, CV_8UC1, [](const Mat& s, Mat& d) {
    vokiCompareC_32f_C1R(s.ptr<float>(), s.step, 12.5f, d.data, d.step, Roi(s),
                         vokCmpGreater);
  });
}
BENCHMARK(BM_vok_CompareC_32f_C1R)->Apply(ImageArgs);

void BM_cv_compare_scalar_32f(benchmark::State& state) {
  RunConversion(state, CV_32FC1, CV_8UC1, [](const Mat& s, Mat& d) {
    cv::compare(s, 12.5, d, cv::CMP_GT);
  });
}
BENCHMARK(BM_cv_compare_scalar_32f)->Apply(ImageArgs);

void BM_vok_Threshold_GT_8u_C1R(benchmark::State& state) {
  RunConversion(state, CV_8UC1, CV_8UC1, [](const Mat& s, Mat& d) {
    vokiThreshold_GT_8u_C1R(s.data, s.step, d.data, d.step, Roi(s), 100);
  });
}
BENCHMARK(BM_vok_Threshold_GT_8u_C1R)->Apply(ImageArgs);

void BM_cv_threshold_trunc_8u(benchmark::State& state) {
  RunConversion(state, CV_8UC1, CV_8UC1, [](const Mat& s, Mat& d) {
    cv::threshold(s, d, 100, 255, cv::THRESH_TRUNC);
  });
}
BENCHMARK(BM_cv_threshold_trunc_8u)->Apply(ImageArgs);

// With each value equal to its threshold the band is a clamp, which OpenCV
// does in two passes.
void BM_vok_Threshold_LTValGTVal_32f_C1R(benchmark::State& state) {
  RunConversion(state, CV_32FC1, CV_32FC1, [](const Mat& s, Mat& d) {
    vokiThreshold_LTValGTVal_32f_C1R(s.ptr<float>(), s.step, d.ptr<float>(),
                                     d.step, Roi(s), -50, -50, 50, 50);
  });
}
BENCHMARK(BM_vok_Threshold_LTValGTVal_32f_C1R)->Apply(ImageArgs);

void BM_cv_min_max_32f(benchmark::State& state) {
  RunConversion(state, CV_32FC1, CV_32FC1, [](const Mat& s, Mat& d) {
    cv::min(s, 50.0, d);
    cv::max(d, -50.0, d);
  });
}
BENCHMARK(BM_cv_min_max_32f)->Apply(ImageArgs);

}  // namespace
