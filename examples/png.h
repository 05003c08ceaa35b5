/* Writes 8-bit RGB pixels as a PNG file with stored (uncompressed) deflate
 * blocks: no image library needed. Returns 0 on success. */
#ifndef VOK_EXAMPLES_PNG_H
#define VOK_EXAMPLES_PNG_H

#include <stdint.h>

int write_png_rgb(const char* path, const uint8_t* pixels, int width,
                  int height, int step);

#endif
