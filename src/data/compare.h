// Compare, Threshold and Complement between the exported entries and the row
// kernels.
#pragma once

#include <cstddef>
#include <cstdint>

#include "foundation/image.h"

namespace vok {

// a relation b, per channel; kEqualEps is |a - b| <= eps.
enum class Relation { kLess, kLessEq, kEq, kGreaterEq, kGreater, kEqualEps };

// One 8u mask sample per pixel: 255 where the relation holds in every
// channel (the first three of AC4), else 0.
struct CompareJob {
  const void* a;
  ptrdiff_t aStep;
  const void* b;  // null when `constant` is used
  ptrdiff_t bStep;
  const void* constant;  // one sample per channel, or null
  uint8_t* dst;
  ptrdiff_t dstStep;
  int width, height;
  Layout layout;
  Relation relation;
  float eps;
};

enum class ThresholdRule {
  kLess,            // max(x, t)
  kGreater,         // min(x, t)
  kLessVal,         // x below t becomes v
  kGreaterVal,      // x above t becomes v
  kLessGreaterVal,  // below t becomes v, above upper becomes upperValue
};

// Constants point at four samples T each, one per channel.
struct ThresholdJob {
  const void* src;
  ptrdiff_t srcStep;
  void* dst;
  ptrdiff_t dstStep;
  int width, height;
  Layout layout;
  ThresholdRule rule;
  const void* threshold;
  const void* value;
  const void* upperThreshold;
  const void* upperValue;
};

// Run the jobs on the best instruction set of this machine.
template <typename T>
void RunCompare(const CompareJob& job);
template <typename T>
void RunThreshold(const ThresholdJob& job);
void RunComplement(const ElementRows& rows);

}  // namespace vok
