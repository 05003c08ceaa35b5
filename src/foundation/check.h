// Argument checks shared by every exported operation. A check class gives one
// status for all its members, and the classes run in the order the family
// fixes, so the first failing class decides what the caller sees.
#pragma once

#include <initializer_list>

#include "vok.h"

namespace vok {

using Pointers = std::initializer_list<const void*>;
using Steps = std::initializer_list<int>;

inline bool AnyNull(Pointers pointers) {
  for (const void* p : pointers)
    if (p == nullptr) return true;
  return false;
}

inline bool BadSize(VokiSize roi) { return roi.width < 1 || roi.height < 1; }

inline bool AnyBadStep(Steps steps) {
  for (int step : steps)
    if (step < 1) return true;
  return false;
}

// Null pointers, then size, then steps: the order of most image operations.
inline VokStatus CheckNullSizeStep(Pointers pointers, VokiSize roi,
                                   Steps steps) {
  if (AnyNull(pointers)) return vokStatusNullPointer;
  if (BadSize(roi)) return vokStatusBadSize;
  if (AnyBadStep(steps)) return vokStatusBadStep;
  return vokStatusOk;
}

// Null pointers, then steps, then size: logic, shifts, comparisons, the
// full-scale multiplies and a few more families.
inline VokStatus CheckNullStepSize(Pointers pointers, VokiSize roi,
                                   Steps steps) {
  if (AnyNull(pointers)) return vokStatusNullPointer;
  if (AnyBadStep(steps)) return vokStatusBadStep;
  if (BadSize(roi)) return vokStatusBadSize;
  return vokStatusOk;
}

}  // namespace vok
