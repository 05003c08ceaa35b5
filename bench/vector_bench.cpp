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

// Times the call that `prepare` returns, single-threaded, on two sets of
// one million random samples; prepare allocates the call's outputs.
template <class Prepare>
void Run(benchmark::State& state, const Prepare& prepare) {
  vok_bench::SetThreads(1);
  const Planes a, b;
  auto call = prepare(a, b);
  for (auto _ : state) call();
  state.SetItemsProcessed(int64_t(state.iterations()) * kSide * kSide);
}

cv::Mat Plane(int type = CV_32F) { return cv::Mat(kSide, kSide, type); }

void BM_Magnitude_vok(benchmark::State& state) {
  Run(state, [](const Planes& p, const Planes&) {
    return [&p, mag = Plane()]() mutable {
      voksMagnitude_32fc(p.complex(), mag.ptr<Vok32f>(), kSide * kSide);
    };
  });
}
void BM_Magnitude_cv(benchmark::State& state) {
  Run(state, [](const Planes& p, const Planes&) {
    return [&p, mag = Plane()]() mutable { cv::magnitude(p.re, p.im, mag); };
  });
}

void BM_Phase_vok(benchmark::State& state) {
  Run(state, [](const Planes& p, const Planes&) {
    return [&p, angle = Plane()]() mutable {
      voksPhase_32fc(p.complex(), angle.ptr<Vok32f>(), kSide * kSide);
    };
  });
}
void BM_Phase_cv(benchmark::State& state) {
  Run(state, [](const Planes& p, const Planes&) {
    return [&p, angle = Plane()]() mutable { cv::phase(p.re, p.im, angle); };
  });
}

// re as magnitudes, im as angles.
void BM_PolarToCart_vok(benchmark::State& state) {
  Run(state, [](const Planes& p, const Planes&) {
    return [&p, out = Plane(CV_32FC2)]() mutable {
      voksPolarToCart_32fc(p.re.ptr<Vok32f>(), p.im.ptr<Vok32f>(),
                           out.ptr<Vok32fc>(), kSide * kSide);
    };
  });
}
void BM_PolarToCart_cv(benchmark::State& state) {
  Run(state, [](const Planes& p, const Planes&) {
    return [&p, x = Plane(), y = Plane()]() mutable {
      cv::polarToCart(p.re, p.im, x, y);
    };
  });
}

void BM_DotProd_vok(benchmark::State& state) {
  Run(state, [](const Planes& p, const Planes&) {
    return [&p] {
      Vok32f dot = 0;
      voksDotProd_32f(p.re.ptr<Vok32f>(), p.im.ptr<Vok32f>(), kSide * kSide, &dot);
      benchmark::DoNotOptimize(dot);
    };
  });
}
void BM_DotProd_cv(benchmark::State& state) {
  Run(state, [](const Planes& p, const Planes&) {
    return [&p] { benchmark::DoNotOptimize(p.re.dot(p.im)); };
  });
}

void BM_ComplexMul_vok(benchmark::State& state) {
  Run(state, [](const Planes& a, const Planes& b) {
    return [&a, &b, out = Plane(CV_32FC2)]() mutable {
      const int step = static_cast<int>(out.step);
      vokiMul_32fc_C1R(a.complex(), step, b.complex(), step,
                       out.ptr<Vok32fc>(), step, VokiSize{kSide, kSide});
    };
  });
}
void BM_ComplexMul_cv(benchmark::State& state) {
  Run(state, [](const Planes& a, const Planes& b) {
    return [&a, &b, out = Plane(CV_32FC2)]() mutable {
      cv::mulSpectrums(a.pairs, b.pairs, out, 0);
    };
  });
}

// The exact 16-bit complex product at scale 1; OpenCV has no such type, so
// the row has no peer.
void BM_ComplexMul16sc_vok(benchmark::State& state) {
  vok_bench::SetThreads(1);
  const cv::Mat a = vok_bench::RandomMat(kSide, kSide, CV_16SC2, 1);
  const cv::Mat b = vok_bench::RandomMat(kSide, kSide, CV_16SC2, 2);
  cv::Mat out(kSide, kSide, CV_16SC2);
  const int step = static_cast<int>(out.step);
  for (auto _ : state)
    vokiMul_16sc_C1RSfs(a.ptr<Vok16sc>(), step, b.ptr<Vok16sc>(), step, out.ptr<Vok16sc>(), step,
                        VokiSize{kSide, kSide}, 1);
  state.SetItemsProcessed(int64_t(state.iterations()) * kSide * kSide);
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
BENCHMARK(BM_ComplexMul16sc_vok)->UseRealTime();
