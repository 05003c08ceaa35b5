// Luma-chroma conversions against OpenCV's cvtColor. OpenCV orders the
// chroma of YCrCb the other way round, which doesn't change the work.
#include <opencv2/imgproc.hpp>

#include "bench_util.h"
#include "vok.h"

namespace {

using vok_bench::CountBytes;
using vok_bench::RandomMat;
using vok_bench::SetThreads;

// Full HD and 4K, single-threaded and on all cores.
void ColourArgs(benchmark::internal::Benchmark* b) {
  for (int threads : {1, 0})
    for (auto [w, h] : {std::pair{1920, 1080}, std::pair{3840, 2160}})
      b->Args({w, h, threads});
  b->ArgNames({"w", "h", "threads"});
  b->UseRealTime();
}

using Conversion = VokStatus (*)(const Vok8u*, int, Vok8u*, int, VokiSize);

void Vok(benchmark::State& state, Conversion convert, int srcType, int dstType) {
  SetThreads(state.range(2));
  const cv::Mat src = RandomMat(state.range(0), state.range(1), srcType);
  cv::Mat dst(src.size(), dstType);
  for (auto _ : state)
    convert(src.data, src.step, dst.data, dst.step, VokiSize{src.cols, src.rows});
  CountBytes(state, src, 1);
}

void OpenCV(benchmark::State& state, int code, int srcType, int dstType) {
  SetThreads(state.range(2));
  const cv::Mat src = RandomMat(state.range(0), state.range(1), srcType);
  cv::Mat dst(src.size(), dstType);
  for (auto _ : state) cv::cvtColor(src, dst, code);
  CountBytes(state, src, 1);
}

BENCHMARK_CAPTURE(Vok, RGBToYCbCr_8u_C3R, vokiRGBToYCbCr_8u_C3R, CV_8UC3, CV_8UC3)->Apply(ColourArgs);
BENCHMARK_CAPTURE(OpenCV, RGB2YCrCb, cv::COLOR_RGB2YCrCb, CV_8UC3, CV_8UC3)->Apply(ColourArgs);
BENCHMARK_CAPTURE(Vok, YCbCrToRGB_8u_C3R, vokiYCbCrToRGB_8u_C3R, CV_8UC3, CV_8UC3)->Apply(ColourArgs);
BENCHMARK_CAPTURE(OpenCV, YCrCb2RGB, cv::COLOR_YCrCb2RGB, CV_8UC3, CV_8UC3)->Apply(ColourArgs);
BENCHMARK_CAPTURE(Vok, RGBToYUV_8u_C3R, vokiRGBToYUV_8u_C3R, CV_8UC3, CV_8UC3)->Apply(ColourArgs);
BENCHMARK_CAPTURE(OpenCV, RGB2YUV, cv::COLOR_RGB2YUV, CV_8UC3, CV_8UC3)->Apply(ColourArgs);
BENCHMARK_CAPTURE(Vok, CbYCr422ToRGB_8u_C2C3R, vokiCbYCr422ToRGB_8u_C2C3R, CV_8UC2, CV_8UC3)->Apply(ColourArgs);
BENCHMARK_CAPTURE(OpenCV, YUV2RGB_UYVY, cv::COLOR_YUV2RGB_UYVY, CV_8UC2, CV_8UC3)->Apply(ColourArgs);

}  // namespace
