#include <cstdint>

#include "vok.h"

namespace {

constexpr VokLibVersion kVersion = {
    4, 1, 10, 84, {'k', '3', '\0', '\0'}, "libvokik3.so", "v4.1", "Jul 22 2004"};

template <typename Float, typename Bits>
constexpr Float FromBits(Bits bits) {
  return __builtin_bit_cast(Float, bits);
}

}  // namespace

extern "C" {

const VokLibVersion* vokiGetLibVersion(void) { return &kVersion; }

// Both NaNs carry the sign bit.
const Vok32f vokConstantOfNAN_32f = FromBits<float>(uint32_t{0xFFC00000u});
const Vok32f vokConstantOfINF_32f = FromBits<float>(uint32_t{0x7F800000u});
const Vok32f vokConstantOfINF_NEG_32f = FromBits<float>(uint32_t{0xFF800000u});
const Vok64f vokConstantOfNAN_64f =
    FromBits<double>(uint64_t{0xFFF8000000000000u});
const Vok64f vokConstantOfINF_64f =
    FromBits<double>(uint64_t{0x7FF0000000000000u});
const Vok64f vokConstantOfINF_NEG_64f =
    FromBits<double>(uint64_t{0xFFF0000000000000u});

}  // extern "C"
