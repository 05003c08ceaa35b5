#include "png.h"

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

static uint32_t crc_update(uint32_t crc, const uint8_t* data, size_t n) {
  for (size_t i = 0; i < n; ++i) {
    crc ^= data[i];
    for (int k = 0; k < 8; ++k) crc = (crc >> 1) ^ (0xEDB88320u & (0u - (crc & 1)));
  }
  return crc;
}

static void put32(uint8_t* p, uint32_t v) {
  p[0] = (uint8_t)(v >> 24), p[1] = (uint8_t)(v >> 16);
  p[2] = (uint8_t)(v >> 8), p[3] = (uint8_t)v;
}

static void write_chunk(FILE* f, const char* type, const uint8_t* data, uint32_t n) {
  uint8_t head[8];
  put32(head, n);
  memcpy(head + 4, type, 4);
  fwrite(head, 1, 8, f);
  if (n) fwrite(data, 1, n, f);
  uint32_t crc = crc_update(0xFFFFFFFFu, head + 4, 4);
  crc = crc_update(crc, data, n) ^ 0xFFFFFFFFu;
  uint8_t tail[4];
  put32(tail, crc);
  fwrite(tail, 1, 4, f);
}

int write_png_rgb(const char* path, const uint8_t* pixels, int width, int height,
                  int step) {
  /* The raw stream: each row is a filter byte 0 then the row's samples. */
  const size_t row = (size_t)width * 3 + 1, raw = row * height;
  const size_t blocks = (raw + 65534) / 65535;
  const size_t zlen = 2 + raw + blocks * 5 + 4;
  uint8_t* z = malloc(zlen);
  uint8_t* stream = malloc(raw);
  if (!z || !stream) { free(z); free(stream); return -1; }
  for (int y = 0; y < height; ++y) {
    stream[y * row] = 0;
    memcpy(stream + y * row + 1, pixels + (size_t)y * step, row - 1);
  }
  size_t at = 0;
  z[at++] = 0x78, z[at++] = 0x01;
  uint32_t a = 1, b = 0;
  for (size_t done = 0; done < raw;) {
    const size_t n = raw - done < 65535 ? raw - done : 65535;
    z[at++] = done + n == raw;
    z[at++] = (uint8_t)n, z[at++] = (uint8_t)(n >> 8);
    z[at++] = (uint8_t)~n, z[at++] = (uint8_t)(~n >> 8);
    memcpy(z + at, stream + done, n);
    for (size_t i = 0; i < n; ++i) a = (a + stream[done + i]) % 65521, b = (b + a) % 65521;
    at += n, done += n;
  }
  put32(z + at, (b << 16) | a);
  at += 4;

  FILE* f = fopen(path, "wb");
  if (!f) { free(z); free(stream); return -1; }
  static const uint8_t signature[8] = {137, 80, 78, 71, 13, 10, 26, 10};
  fwrite(signature, 1, 8, f);
  uint8_t ihdr[13];
  put32(ihdr, (uint32_t)width);
  put32(ihdr + 4, (uint32_t)height);
  ihdr[8] = 8, ihdr[9] = 2, ihdr[10] = ihdr[11] = ihdr[12] = 0;
  write_chunk(f, "IHDR", ihdr, 13);
  write_chunk(f, "IDAT", z, (uint32_t)at);
  write_chunk(f, "IEND", NULL, 0);
  const int failed = ferror(f);
  fclose(f);
  free(z);
  free(stream);
  return failed ? -1 : 0;
}
