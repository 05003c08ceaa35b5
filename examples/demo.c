/* Makes a colour test image, runs a few of the library's operations on it
 * and writes the result as demo.png, saying what it did and how long it took. */
#include <stdio.h>
#include <time.h>

#include "png.h"
#include "vok.h"

static double now_ms(void) {
  struct timespec t;
  clock_gettime(CLOCK_MONOTONIC, &t);
  return t.tv_sec * 1e3 + t.tv_nsec / 1e6;
}

#define RUN(what, call)                                                  \
  do {                                                                   \
    const double start = now_ms();                                       \
    const VokStatus status = (call);                                     \
    printf("%-58s status %d, %.3f ms\n", what, status, now_ms() - start); \
    if (status < 0) return 1;                                            \
  } while (0)

int main(void) {
  const int width = 640, height = 360;
  const VokiSize roi = {width, height};
  int step = 0, maskStep = 0, stripeStep = 0;
  Vok8u* image = vokiMalloc_8u_C3(width, height, &step);
  Vok8u* shade = vokiMalloc_8u_C3(width, height, &maskStep);
  /* The stripes get a border of 2 pixels, which the 5x5 filter reads. */
  Vok8u* stripes = vokiMalloc_8u_C3(width + 4, height + 4, &stripeStep);
  if (!image || !shade || !stripes || maskStep != step) return 1;

  /* A colour gradient, and diagonal stripes for shading. */
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x) {
      Vok8u* p = image + y * step + 3 * x;
      p[0] = (Vok8u)(255 * x / width);
      p[1] = (Vok8u)(255 * y / height);
      p[2] = (Vok8u)(255 - 255 * x / width);
    }
  for (int y = 0; y < height + 4; ++y)
    for (int x = 0; x < width + 4; ++x) {
      Vok8u* s = stripes + y * stripeStep + 3 * x;
      s[0] = s[1] = s[2] = ((x + y) / 40) % 2 ? 255 : 140;
    }
  printf("vok %s: a %dx%d RGB image\n", vokiGetLibVersion()->versionText, width, height);

  /* A 5x5 binomial kernel: its taps sum to 256, so the divisor shifts. */
  Vok32s binomial[25];
  const Vok32s row[5] = {1, 4, 6, 4, 1};
  for (int i = 0; i < 25; ++i) binomial[i] = row[i / 5] * row[i % 5];
  const VokiSize kernelSize = {5, 5};
  const VokiPoint anchor = {2, 2};
  /* The library's first parallel region also starts the thread team. */
  RUN("vokiFilter_8u_C3R: soften the stripes (5x5 binomial)",
      vokiFilter_8u_C3R(stripes + 2 * stripeStep + 6, stripeStep, shade, step,
                        roi, binomial, kernelSize, anchor, 256));
  const Vok8u lift[3] = {40, 20, 0};
  RUN("vokiAddC_8u_C3IRSfs: add (40, 20, 0) with saturation",
      vokiAddC_8u_C3IRSfs(lift, image, step, roi, 0));
  RUN("vokiMulScale_8u_C3R: shade by the stripes (x * s / 255)",
      vokiMulScale_8u_C3R(image, step, shade, step, image, step, roi));
  RUN("vokiAdd_8u_C3IRSfs: average with the stripes (scale 1)",
      vokiAdd_8u_C3IRSfs(shade, step, image, step, roi, 1));

  const int written = write_png_rgb("demo.png", image, width, height, step);
  printf(written == 0 ? "wrote demo.png\n" : "could not write demo.png\n");
  vokiFree(image);
  vokiFree(shade);
  vokiFree(stripes);
  return written == 0 ? 0 : 1;
}
