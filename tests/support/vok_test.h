// Test support shared by every family: guard-banded images, random fills, a
// loop over the instruction sets this machine has, and sample helpers.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <functional>
#include <initializer_list>
#include <limits>
#include <random>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "vok.h"

namespace vok_test {

// Runs body once per instruction set that both the library carries and this
// machine runs, with the library's dispatch pinned to it; the name goes into
// failure messages.
void ForEachTarget(const std::function<void(const char* name)>& body);

// An image of width x height pixels of `channels` samples T. Rows sit in a
// buffer with guard bytes before, after and between them, so a test can see
// anything written outside the region. `padBytes` lengthens the step (odd
// values give steps that are no multiple of anything) and `offsetBytes`
// moves the first sample off the buffer's alignment.
template <typename T>
class Image {
 public:
  static constexpr uint8_t kGuard = 0xA5;

  Image(int width, int height, int channels = 1, int padBytes = 0,
        int offsetBytes = 0)
      : width_(width), height_(height), channels_(channels) {
    rowBytes_ = size_t(width) * channels * sizeof(T);
    step_ = static_cast<int>(rowBytes_ + padBytes);
    lead_ = 64 + offsetBytes;
    buffer_.assign(lead_ + size_t(step_) * (height > 0 ? height : 1) + 64,
                   kGuard);
  }

  T* data() { return reinterpret_cast<T*>(buffer_.data() + lead_); }
  const T* data() const {
    return reinterpret_cast<const T*>(buffer_.data() + lead_);
  }
  int step() const { return step_; }
  int width() const { return width_; }
  int height() const { return height_; }
  int channels() const { return channels_; }
  VokiSize size() const { return VokiSize{width_, height_}; }
  size_t rowSamples() const { return size_t(width_) * channels_; }

  T* row(int y) {
    return reinterpret_cast<T*>(buffer_.data() + lead_ + size_t(y) * step_);
  }
  const T* row(int y) const {
    return reinterpret_cast<const T*>(buffer_.data() + lead_ +
                                      size_t(y) * step_);
  }
  T at(int x, int y, int c = 0) const {
    T value;
    std::memcpy(&value, row(y) + size_t(x) * channels_ + c, sizeof(T));
    return value;
  }
  void set(int x, int y, int c, T value) {
    std::memcpy(row(y) + size_t(x) * channels_ + c, &value, sizeof(T));
  }

  void fill(T value) {
    for (int y = 0; y < height_; ++y)
      for (size_t i = 0; i < rowSamples(); ++i)
        std::memcpy(row(y) + i, &value, sizeof(T));
  }

  // Uniform samples over the whole range of T (or [-1000, 1000] for floats).
  void randomize(std::mt19937& rng) {
    for (int y = 0; y < height_; ++y)
      for (size_t i = 0; i < rowSamples(); ++i) {
        const T value = RandomSample(rng);
        std::memcpy(row(y) + i, &value, sizeof(T));
      }
  }

  static T RandomSample(std::mt19937& rng) {
    if constexpr (std::is_floating_point_v<T>) {
      return std::uniform_real_distribution<T>(-1000, 1000)(rng);
    } else {
      return static_cast<T>(std::uniform_int_distribution<int64_t>(
          std::numeric_limits<T>::lowest(), std::numeric_limits<T>::max())(rng));
    }
  }

  // True when every byte outside the region still holds the guard value.
  bool guardsIntact() const {
    for (size_t i = 0; i < buffer_.size(); ++i) {
      const size_t offset = i - lead_;
      const bool inside = i >= lead_ && offset / step_ < size_t(height_) &&
                          offset % step_ < rowBytes_;
      if (!inside && buffer_[i] != kGuard) return false;
    }
    return true;
  }

  bool sameRegion(const Image& other) const {
    for (int y = 0; y < height_; ++y)
      if (std::memcmp(row(y), other.row(y), rowBytes_) != 0) return false;
    return true;
  }

  // "x,y,c: got vs want" for the first differing sample, empty when equal.
  std::string firstDifference(const Image& want) const {
    for (int y = 0; y < height_; ++y)
      for (int x = 0; x < width_; ++x)
        for (int c = 0; c < channels_; ++c) {
          const T got = at(x, y, c), expected = want.at(x, y, c);
          if (std::memcmp(&got, &expected, sizeof(T)) != 0)
            return std::to_string(x) + "," + std::to_string(y) + "," +
                   std::to_string(c) + ": got " + std::to_string(got) +
                   " want " + std::to_string(expected);
        }
    return {};
  }

 private:
  int width_, height_, channels_;
  size_t rowBytes_;
  int step_;
  size_t lead_;
  std::vector<uint8_t> buffer_;
};

// Widths that end on every tail length of every vector size, plus long rows.
const std::vector<int>& TestWidths();

// Step paddings and pointer offsets, in bytes, that the randomized
// comparisons cycle through.
struct Geometry {
  int padBytes;
  int offsetBytes;
};
const std::vector<Geometry>& TestGeometries(size_t sampleSize);

// One randomized comparison's region: a width from TestWidths(), a height of
// 1 to maxHeight rows and a geometry from TestGeometries(sampleSize).
struct Shape {
  int width, height;
  Geometry g;
};
Shape RandomShape(std::mt19937& rng, size_t sampleSize, int maxHeight = 3);

template <typename T>
T Saturate(int64_t x) {
  if (x < std::numeric_limits<T>::lowest()) return std::numeric_limits<T>::lowest();
  if (x > std::numeric_limits<T>::max()) return std::numeric_limits<T>::max();
  return static_cast<T>(x);
}

// A whole number saturated to T's range.
template <typename T>
T SaturateWhole(long double x) {
  return static_cast<T>(std::clamp<long double>(x, std::numeric_limits<T>::lowest(),
                                                std::numeric_limits<T>::max()));
}

// The rule of every scale factor: x times 2^-s to nearest, ties to even,
// saturated. Scales are clamped to +-1000, where every result is 0 or
// saturated already.
template <typename T>
T ScaleToEven(long double x, int s) {
  return SaturateWhole<T>(std::nearbyint(std::ldexp(x, -std::clamp(s, -1000, 1000))));
}

// Checks a table of {status returned, status wanted}, naming the failing row.
void ExpectStatuses(std::initializer_list<std::pair<VokStatus, VokStatus>> cases);

// Sets the thread count for the duration of a scope.
class ThreadCount {
 public:
  explicit ThreadCount(int threads);
  ~ThreadCount();

 private:
  int previous_;
};

}  // namespace vok_test
