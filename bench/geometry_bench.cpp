// Resize against cv::resize with the matching interpolation: 1920x1080 down
// to 1280x720 and up to 3840x2160, and supersampling 4096x4096 to 1024x1024
// against INTER_AREA.
#include <opencv2/imgproc.hpp>

#include "bench_util.h"
#include "vok.h"

namespace {

using cv::Mat;
using vok_bench::RandomMat;
using vok_bench::SetThreads;

struct Interpolation {
  int vok, cv;
};
constexpr Interpolation kInterpolations[] = {{vokInterNearest, cv::INTER_NEAREST},
                                             {vokInterLinear, cv::INTER_LINEAR},
                                             {vokInterCubic, cv::INTER_CUBIC},
                                             {vokInterLanczos, cv::INTER_LANCZOS4}};

// Source width, height, destination width, height, interpolation index,
// threads (1, or 0 for all cores).
void ResizeArgs(benchmark::internal::Benchmark* b) {
  for (int threads : {1, 0})
    for (auto [w, h] : {std::pair{1280, 720}, std::pair{3840, 2160}})
      for (int i = 0; i < 4; ++i) b->Args({1920, 1080, w, h, i, threads});
  b->ArgNames({"sw", "sh", "dw", "dh", "interp", "threads"});
  b->UseRealTime();
}

void SuperArgs(benchmark::internal::Benchmark* b) {
  for (int threads : {1, 0}) b->Args({4096, 4096, 1024, 1024, -1, threads});
  b->ArgNames({"sw", "sh", "dw", "dh", "interp", "threads"});
  b->UseRealTime();
}

// Times op(src, dst, interpolation) with the benchmark's sizes and threads.
template <class Op>
void Run(benchmark::State& state, int type, Op op) {
  SetThreads(state.range(5));
  const Mat src = RandomMat(state.range(0), state.range(1), type);
  Mat dst(state.range(3), state.range(2), type);
  const int i = state.range(4);
  const Interpolation interpolation =
      i < 0 ? Interpolation{vokInterSuper, cv::INTER_AREA} : kInterpolations[i];
  for (auto _ : state) op(src, dst, interpolation);
  state.SetItemsProcessed(int64_t(state.iterations()) * dst.total());
}

void Vok8uC3(const Mat& s, Mat& d, Interpolation i) {
  vokiResize_8u_C3R(s.data, {s.cols, s.rows}, s.step, {0, 0, s.cols, s.rows}, d.data,
                    d.step, {d.cols, d.rows}, double(d.cols) / s.cols,
                    double(d.rows) / s.rows, i.vok);
}
void Vok32fC1(const Mat& s, Mat& d, Interpolation i) {
  vokiResize_32f_C1R(s.ptr<float>(), {s.cols, s.rows}, s.step, {0, 0, s.cols, s.rows},
                     d.ptr<float>(), d.step, {d.cols, d.rows}, double(d.cols) / s.cols,
                     double(d.rows) / s.rows, i.vok);
}
void Cv(const Mat& s, Mat& d, Interpolation i) { cv::resize(s, d, d.size(), 0, 0, i.cv); }

void BM_vok_Resize_8u_C3R(benchmark::State& state) { Run(state, CV_8UC3, Vok8uC3); }
void BM_cv_resize_8u_C3(benchmark::State& state) { Run(state, CV_8UC3, Cv); }
void BM_vok_Resize_32f_C1R(benchmark::State& state) { Run(state, CV_32FC1, Vok32fC1); }
void BM_cv_resize_32f_C1(benchmark::State& state) { Run(state, CV_32FC1, Cv); }

BENCHMARK(BM_vok_Resize_8u_C3R)->Apply(ResizeArgs)->Apply(SuperArgs);
BENCHMARK(BM_cv_resize_8u_C3)->Apply(ResizeArgs)->Apply(SuperArgs);
BENCHMARK(BM_vok_Resize_32f_C1R)->Apply(ResizeArgs)->Apply(SuperArgs);
BENCHMARK(BM_cv_resize_32f_C1)->Apply(ResizeArgs)->Apply(SuperArgs);

}  // namespace
