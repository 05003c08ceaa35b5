// Copy and Set against memcpy (BM_memcpy_8u) and OpenCV, and the in-place
// Add whose rounding paths share rows among threads.
#include <opencv2/core.hpp>
#include <vector>

#include "bench_util.h"
#include "vok.h"

namespace {

using cv::Mat;
using vok_bench::CountBytes;
using vok_bench::ImageArgs;
using vok_bench::RandomMat;
using vok_bench::Roi;
using vok_bench::RunUnary;
using vok_bench::SetThreads;

void BM_vok_Copy_8u_C1R(benchmark::State& state) {
  RunUnary(state, CV_8UC1, [](const Mat& a, Mat& d) {
    vokiCopy_8u_C1R(a.data, a.step, d.data, d.step, Roi(a));
  });
}
BENCHMARK(BM_vok_Copy_8u_C1R)->Apply(ImageArgs);

// An interleaved image and three planes of its size, timed with op(image,
// planes, pointers to the planes); two images of traffic.
template <class Op>
void RunPlanes(benchmark::State& state, Op op) {
  SetThreads(state.range(2));
  Mat image = RandomMat(state.range(0), state.range(1), CV_8UC3);
  std::vector<Mat> planes(3);
  cv::split(image, planes);
  Vok8u* data[3] = {planes[0].data, planes[1].data, planes[2].data};
  for (auto _ : state) op(image, planes, data);
  CountBytes(state, image, 2);
}

void BM_vok_Copy_8u_C3P3R(benchmark::State& state) {
  RunPlanes(state, [](Mat& image, std::vector<Mat>& planes, Vok8u* const* data) {
    vokiCopy_8u_C3P3R(image.data, image.step, data, planes[0].step, Roi(image));
  });
}
BENCHMARK(BM_vok_Copy_8u_C3P3R)->Apply(ImageArgs);

void BM_cv_split_8uC3(benchmark::State& state) {
  RunPlanes(state, [](Mat& image, std::vector<Mat>& planes, Vok8u* const*) {
    cv::split(image, planes);
  });
}
BENCHMARK(BM_cv_split_8uC3)->Apply(ImageArgs);

void BM_vok_Copy_8u_P3C3R(benchmark::State& state) {
  RunPlanes(state, [](Mat& image, std::vector<Mat>& planes, Vok8u* const* data) {
    vokiCopy_8u_P3C3R(data, planes[0].step, image.data, image.step, Roi(image));
  });
}
BENCHMARK(BM_vok_Copy_8u_P3C3R)->Apply(ImageArgs);

void BM_cv_merge_8uC3(benchmark::State& state) {
  RunPlanes(state, [](Mat& image, std::vector<Mat>& planes, Vok8u* const*) {
    cv::merge(planes, image);
  });
}
BENCHMARK(BM_cv_merge_8uC3)->Apply(ImageArgs);

// A fill writes one image.
template <class Op>
void RunFill(benchmark::State& state, int type, Op op) {
  SetThreads(state.range(2));
  Mat image = RandomMat(state.range(0), state.range(1), type);
  for (auto _ : state) op(image);
  CountBytes(state, image, 1);
}

void BM_vok_Set_8u_C3R(benchmark::State& state) {
  RunFill(state, CV_8UC3, [](Mat& image) {
    const Vok8u value[3] = {10, 20, 30};
    vokiSet_8u_C3R(value, image.data, image.step, Roi(image));
  });
}
BENCHMARK(BM_vok_Set_8u_C3R)->Apply(ImageArgs);

void BM_cv_setTo_8uC3(benchmark::State& state) {
  RunFill(state, CV_8UC3, [](Mat& image) { image.setTo(cv::Scalar(10, 20, 30)); });
}
BENCHMARK(BM_cv_setTo_8uC3)->Apply(ImageArgs);

// Source, mask (about half of it set) and destination: three images.
template <class Op>
void RunMasked(benchmark::State& state, Op op) {
  SetThreads(state.range(2));
  const Mat src = RandomMat(state.range(0), state.range(1), CV_8UC1, 1);
  const Mat mask = RandomMat(state.range(0), state.range(1), CV_8UC1, 2) > 127;
  Mat dst = RandomMat(state.range(0), state.range(1), CV_8UC1, 3);
  for (auto _ : state) op(src, mask, dst);
  CountBytes(state, src, 3);
}

void BM_vok_Copy_8u_C1MR(benchmark::State& state) {
  RunMasked(state, [](const Mat& src, const Mat& mask, Mat& dst) {
    vokiCopy_8u_C1MR(src.data, src.step, dst.data, dst.step, Roi(src),
                     mask.data, mask.step);
  });
}
BENCHMARK(BM_vok_Copy_8u_C1MR)->Apply(ImageArgs);

void BM_cv_copyTo_mask_8u(benchmark::State& state) {
  RunMasked(state, [](const Mat& src, const Mat& mask, Mat& dst) {
    src.copyTo(dst, mask);
  });
}
BENCHMARK(BM_cv_copyTo_mask_8u)->Apply(ImageArgs);

// In place, so every iteration halves the image again; the work per
// iteration does not depend on the values. Scale 1 has no region in this
// form, scale 2 has one from height + width 256.
void BM_vok_Add_8u_C1IRSfs(benchmark::State& state) {
  SetThreads(state.range(2));
  const Mat src = RandomMat(state.range(0), state.range(1), CV_8UC1, 1);
  Mat srcDst = RandomMat(state.range(0), state.range(1), CV_8UC1, 2);
  const int scale = state.range(3);
  for (auto _ : state)
    vokiAdd_8u_C1IRSfs(src.data, src.step, srcDst.data, srcDst.step, Roi(src), scale);
  CountBytes(state, src, 3);
}
BENCHMARK(BM_vok_Add_8u_C1IRSfs)
    ->Apply([](benchmark::internal::Benchmark* b) {
      for (int scale : {1, 2})
        for (int threads : {1, 0})
          for (auto [w, h] : {std::pair{1920, 1080}, std::pair{4096, 4096}})
            b->Args({w, h, threads, scale});
      b->ArgNames({"w", "h", "threads", "scale"});
      b->UseRealTime();
    });

}  // namespace
