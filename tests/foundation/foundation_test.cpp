// Allocators, version record, constants, the C header and the order of
// argument checks.
#include <cstdint>
#include <cstring>

#include "vok_test.h"

extern "C" int vok_c_header_smoke(void);

namespace {

bool Aligned32(const void* p) { return (reinterpret_cast<uintptr_t>(p) & 31) == 0; }

TEST(Header, CompilesAndLinksAsC) { EXPECT_EQ(vok_c_header_smoke(), 1); }

TEST(Memory, VectorAllocatorsAlignAndRefuseEmptyCounts) {
  EXPECT_EQ(voksMalloc_8u(0), nullptr);
  EXPECT_EQ(voksMalloc_32f(-1), nullptr);
  voksFree(nullptr);
  vokiFree(nullptr);
  // Many sizes, so malloc hands back addresses of every low-bit pattern.
  for (int len = 1; len < 200; ++len) {
    Vok8u* a = voksMalloc_8u(len);
    Vok64s* b = voksMalloc_64s(len);
    Vok32fc* c = voksMalloc_32fc(len);
    ASSERT_TRUE(a && b && c);
    EXPECT_TRUE(Aligned32(a) && Aligned32(b) && Aligned32(c));
    std::memset(a, 1, len);  // the whole request is usable
    std::memset(b, 1, len * sizeof(Vok64s));
    std::memset(c, 1, len * sizeof(Vok32fc));
    voksFree(a);
    vokiFree(b);  // the families mix
    voksFree(c);
  }
  // 2^30 elements of 8 bytes: a byte count beyond 32 bits gives the whole
  // block or none, and its last element is usable.
  if (Vok64s* big = voksMalloc_64s(INT32_MAX / 2 + 1)) {
    big[INT32_MAX / 2] = 1;
    voksFree(big);
  }
}

TEST(Memory, ImageAllocatorsRoundTheStep) {
  int step = -1;
  EXPECT_EQ(vokiMalloc_8u_C1(10, 10, nullptr), nullptr);
  EXPECT_EQ(vokiMalloc_8u_C1(0, 10, &step), nullptr);
  EXPECT_EQ(step, 0);
  step = -1;
  EXPECT_EQ(vokiMalloc_8u_C1(10, 0, &step), nullptr);
  EXPECT_EQ(step, 0);

  struct Case {
    void* (*alloc)(int, int, int*);
    int width, step;
  };
  const Case cases[] = {
      {[](int w, int h, int* s) -> void* { return vokiMalloc_8u_C1(w, h, s); }, 32, 32},
      {[](int w, int h, int* s) -> void* { return vokiMalloc_8u_C1(w, h, s); }, 33, 64},
      {[](int w, int h, int* s) -> void* { return vokiMalloc_8u_C3(w, h, s); }, 11, 64},
      {[](int w, int h, int* s) -> void* { return vokiMalloc_32fc_C3(w, h, s); }, 1, 32},
      {[](int w, int h, int* s) -> void* { return vokiMalloc_32f_AC4(w, h, s); }, 8, 128},
      {[](int w, int h, int* s) -> void* { return vokiMalloc_16s_C2(w, h, s); }, 9, 64},
      {[](int w, int h, int* s) -> void* { return vokiMalloc_32sc_C4(w, h, s); }, 3, 96},
  };
  for (const Case& c : cases) {
    void* image = c.alloc(c.width, 5, &step);
    ASSERT_NE(image, nullptr);
    EXPECT_EQ(step, c.step) << "width " << c.width;
    EXPECT_TRUE(Aligned32(image));
    std::memset(image, 0, size_t(step) * 5);
    voksFree(image);
  }
}

TEST(Memory, PlanarImagesHoldThreePlanes) {
  int step = 0;
  Vok16u* planes = vokiMalloc_16u_P3(17, 4, &step);
  ASSERT_NE(planes, nullptr);
  EXPECT_EQ(step, 64);
  std::memset(planes, 7, size_t(3) * 4 * step);
  vokiFree(planes);
}

TEST(Memory, HugeRequestsAreRefusedNotShortened) {
  int step = -1;
  EXPECT_EQ(vokiMalloc_32fc_C4(INT32_MAX, 1, &step), nullptr);
  EXPECT_EQ(vokiMalloc_8u_C1(1 << 20, 1 << 20, &step), nullptr);
  EXPECT_EQ(step, 1 << 20);  // the step is stored before the heap is asked
}

TEST(Version, RecordIsExact) {
  const VokLibVersion* v = vokiGetLibVersion();
  ASSERT_NE(v, nullptr);
  EXPECT_EQ(v, vokiGetLibVersion());
  EXPECT_EQ(v->versionMajor, 4);
  EXPECT_EQ(v->versionMinor, 1);
  EXPECT_EQ(v->buildMajor, 10);
  EXPECT_EQ(v->buildNumber, 84);
  EXPECT_EQ(std::memcmp(v->targetCode, "k3\0\0", 4), 0);
  EXPECT_STREQ(v->libraryName, "libvokik3.so");
  EXPECT_STREQ(v->versionText, "v4.1");
  EXPECT_STREQ(v->buildDate, "Jul 22 2004");
}

template <typename Float, typename Bits>
Bits BitsOf(const Float& f) {
  Bits b;
  std::memcpy(&b, &f, sizeof b);
  return b;
}

TEST(Constants, HaveExactBits) {
  EXPECT_EQ((BitsOf<float, uint32_t>(vokConstantOfNAN_32f)), 0xFFC00000u);
  EXPECT_EQ((BitsOf<float, uint32_t>(vokConstantOfINF_32f)), 0x7F800000u);
  EXPECT_EQ((BitsOf<float, uint32_t>(vokConstantOfINF_NEG_32f)), 0xFF800000u);
  EXPECT_EQ((BitsOf<double, uint64_t>(vokConstantOfNAN_64f)), 0xFFF8000000000000u);
  EXPECT_EQ((BitsOf<double, uint64_t>(vokConstantOfINF_64f)), 0x7FF0000000000000u);
  EXPECT_EQ((BitsOf<double, uint64_t>(vokConstantOfINF_NEG_64f)), 0xFFF0000000000000u);
}

}  // namespace
