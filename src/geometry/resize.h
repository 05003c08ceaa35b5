// Resize between the exported entries and the per-instruction-set kernels.
// Entries check and clip; the core turns positions into per-call tables; the
// kernels run one band of destination rows of one plane.
#pragma once

#include <cstddef>
#include <cstdint>

#include "vok.h"

namespace vok {

enum class ResizeKind { kNearest, kLinear, kCubic, kLanczos, kSuper };

// Linear weights of 8u and 16u are fixed point over this unit.
constexpr int32_t kLinearOne = 16384;

// Source positions of one axis, one entry per destination column or row. All
// indices are pixels relative to the ROI origin.
struct ResizeAxis {
  int count;               // effective destination width or height
  const int32_t* index;    // nearest, linear: left or upper neighbour;
                           // cubic: base node
  const float* fraction;   // linear 32f and cubic
  const int32_t* fixed;    // linear 8u and 16u: weight of the second node
  const int32_t* taps;     // Lanczos: six nodes clamped to the image
  const float* weights;    // Lanczos: six weights
};

// One output of supersampling: entries [begin, end) whole, entry begin - 1
// weighted by `head` and entry `end` by `tail` when those are not zero.
struct SuperSpan {
  int32_t begin, end;
  float head, tail;
};

struct SuperPlan {
  const SuperSpan* rows;  // over the source rows
  int accumulated;        // pixels of each row that are accumulated
  bool wholeSums;         // both source steps are whole numbers
  double scale;           // xFactor x yFactor
};

// Horizontal passes read a source row's columns [first, last] as 32-bit
// lanes: widened, with columns outside the image read as the nearest image
// column, or for float rows in place as far as the windows stay in the
// image. Line samples go in groups of `groupSize`, one vector each:
// group g reads tap k of its lanes from the window of `lanes` widened samples
// at base[g] + k x channels, lane i taking window lane lane[g x lanes + i].
// Weights are per line sample, one array of `stride` entries per term.
// Supersampling reads its row accumulator the same way, with `taps` entries
// per output and a weight of 0 where an output has fewer.
struct ResizeSamples {
  int first, last;            // widened columns, relative to the ROI origin
  int imageFirst, imageLast;  // the image's columns, relative likewise
  int lanes, groupSize, groups, taps;
  bool wholeTaps;             // supersampling: every output sums `taps`
                              // entries of weight 1
  int direct;                 // leading groups whose windows lie in the image
  int widenFrom;              // the first column, after `first`, that any
                              // later group reads
  size_t stride;              // line samples plus one vector of slack
  const int32_t* base;
  const int32_t* lane;
  const int32_t* fixed;       // linear 8u and 16u: the weights of both nodes,
                              // 16-bit each, the second in the upper half
  const float* weights;       // linear 32f: fraction; cubic: m, n and 1 + t
                              // of the cubic in t; Lanczos: six tap weights;
                              // supersampling: the entries' weights
  // Byte shuffles from source rows, where each block finds its bytes close
  // together: per block its row offset and shuffle. The leading
  // `shuffleBlocks` blocks read only bytes of the image.
  // - 8u linear: blocks of four line samples, offsets from column `first`,
  //   16 bytes of shuffle that put each sample's nodes side by side in two
  //   16-bit lanes;
  // - nearest: blocks of 16 destination bytes, offsets from the ROI origin,
  //   32 bytes of shuffle, for the 16 bytes at the offset and the 16 after.
  int shuffleBlocks;
  const int32_t* blockBase;
  const uint8_t* blockShuffle;
};

struct ResizeTables {
  ResizeKind kind;
  ResizeAxis x, y;  // y.count and x.count are the destination size
  ResizeSamples samples;
  SuperPlan super;
};

// One interleaved image or one plane.
struct ResizePlane {
  const void* src;  // ROI origin
  ptrdiff_t srcStep;
  void* dst;
  ptrdiff_t dstStep;
  int channels;    // samples per pixel in memory: 1, 3 or 4
  bool keepAlpha;  // AC4
};

// Lanes of a float vector on the instruction set that runs the kernels.
int ResizeLanes();

// Bytes of scratch that one band of rows needs.
size_t ResizeScratchBytes(const ResizeTables& tables, int channels,
                          size_t sampleSize);

// Destination rows [y0, y1) of `plane` on the best instruction set.
template <typename T>
void ResizeRows(const ResizeTables& tables, const ResizePlane& plane, int y0,
                int y1, void* scratch);

// Interleaved images have one plane; planar images three or four that share
// the tables.
struct ResizeRequest {
  const void* src[4];  // image origins
  void* dst[4];
  int planes;
  int channels;
  bool keepAlpha;
  VokiSize srcSize;
  int srcStep;
  VokiRect srcRoi;
  int dstStep;
  VokiSize dstSize;
  // Factors and shifts, or (shiftForm) source steps per destination pixel
  // and the start positions.
  bool shiftForm;
  double x, y, xShift, yShift;
  int interpolation;
};

// The core: checks of the pointers, sizes, steps, factors and selector in
// that order, then the resize.
template <typename T>
VokStatus ResizeCore(const ResizeRequest& request);

// The source step of one axis for the given interpolation after clipping.
double ResizeStep(int interpolation, int roiLength, double factor);

}  // namespace vok
