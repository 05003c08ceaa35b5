// Luma-chroma conversions between the exported entries and the row kernels.
#pragma once

#include "vok.h"

namespace vok {

// One value per row kernel. A kernel is a conversion on one pair of layouts;
// the PhotoYCC kernels serve every sample type.
enum class ColourForm {
  kRGBToYCbCrC3,
  kRGBToYCbCrAC4,
  kRGBToYCbCrP3,
  kYCbCrToRGBC3,
  kYCbCrToRGBAC4,
  kYCbCrToRGBP3,
  kYCbCrToRGBP3C3,
  kRGBToYUVC3,
  kRGBToYUVAC4,
  kRGBToYUVP3,
  kRGBToYUVC3P3,
  kYUVToRGBC3,
  kYUVToRGBAC4,
  kYUVToRGBP3,
  kYUVToRGBP3C3,
  kRGBToYCCC3,
  kRGBToYCCAC4,
  kYCCToRGBC3,
  kYCCToRGBAC4,
  kRGBToCbYCr422,
  kRGBToCbYCr422Gamma,
  kBGRToCbYCr422,
  kCbYCr422ToRGB,
  kCbYCr422ToBGR,
};

enum class SampleType { k8u, k16u, k16s, k32f };

// Interleaved sides use element 0 of their pointer array; planar sides all
// three, with one step for the three planes.
struct ColourJob {
  ColourForm form;
  SampleType sample;
  const void* src[3];
  int srcStep;
  void* dst[3];
  int dstStep;
  int width;
  int height;
  Vok8u alpha;  // written to the fourth channel by the C2C4 form
};

// Runs the job on the best instruction set of this machine.
void RunColour(const ColourJob& job);

}  // namespace vok
