/* vok: image and vector processing primitives.
 *
 * Every operation takes the caller's pointers, byte row steps and a region
 * size, checks them, computes and returns a status. Nothing is kept between
 * calls. This header is valid C99 and C++. */
#ifndef VOK_H
#define VOK_H

#include <stdint.h>

#if defined(_WIN32)
#define VOK_API
#else
#define VOK_API __attribute__((visibility("default")))
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Sample types ------------------------------------------------------ */
typedef uint8_t Vok8u;
typedef int8_t Vok8s;
typedef uint16_t Vok16u;
typedef int16_t Vok16s;
typedef uint32_t Vok32u;
typedef int32_t Vok32s;
typedef int64_t Vok64s;
typedef float Vok32f;
typedef double Vok64f;
typedef struct { Vok16s re, im; } Vok16sc;
typedef struct { Vok32s re, im; } Vok32sc;
typedef struct { Vok32f re, im; } Vok32fc;

/* ---- Geometry records, passed by value --------------------------------- */
typedef struct { int32_t width, height; } VokiSize;
typedef struct { int32_t x, y; } VokiPoint;
typedef struct { int32_t x, y, width, height; } VokiRect;

/* ---- Status: 0 success, negative error, positive warning --------------- */
typedef int32_t VokStatus;
enum {
  vokStatusOk = 0,
  vokStatusBadSize = -6,
  vokStatusBadBounds = -7,
  vokStatusNullPointer = -8,
  vokStatusNoMemory = -9,
  vokStatusDivideByZero = -10,
  vokStatusBadRange = -13,
  vokStatusBadStep = -14,
  vokStatusBadOrder = -15,
  vokStatusBadFlag = -16,
  vokStatusBadContext = -17,
  vokStatusBadThresholds = -18,
  vokStatusMomentZero = -20,
  vokStatusBadAxis = -21,
  vokStatusBadInterpolation = -22,
  vokStatusBadResizeFactor = -23,
  vokStatusBadMaskSize = -33,
  vokStatusBadAnchor = -34,
  vokStatusBadEpsilon = -36,
  vokStatusRoiTooLarge = -37,
  vokStatusBadMomentIndex = -47,
  vokStatusBadGammaRange = -49,
  vokStatusBadAlphaType = -50,
  vokStatusBadDivisor = -51,
  vokStatusBadChannelCount = -53,
  vokStatusBadLevels = -54,
  vokStatusBadNoise = -55,
  vokStatusBadQuad = -56,
  vokStatusBadRect = -57,
  vokStatusBadCoeffs = -58,
  vokStatusZeroMask = -59,
  vokStatusBadChannelOrder = -60,
  vokStatusFewLutLevels = -106,
  vokStatusFewHistLevels = -107,
  vokStatusBadNoiseLevel = -125,
  vokStatusBadMode = -9999,
  vokStatusNoOperation = 1,
  vokWarnSqrtDomain = 3,
  vokWarnDivideByZero = 6,
  vokWarnSingularity = 7,
  vokWarnDomain = 8,
  vokWarnQuadNotAffine = 28,
  vokWarnNoResize = 29,
  vokWarnNoOverlap = 30
};

/* ---- Selectors: signed 32-bit values passed by value ------------------- */
typedef int32_t VokCmpOp;
enum {
  vokCmpLess = 0,
  vokCmpLessEq = 1,
  vokCmpEq = 2,
  vokCmpGreaterEq = 3,
  vokCmpGreater = 4
};

typedef int32_t VokiAxis;
enum { vokAxisHorizontal = 0, vokAxisVertical = 1, vokAxisBoth = 2 };

/* Mask names give width then height: vokMask3x1 is horizontal. */
typedef int32_t VokiMaskSize;
enum {
  vokMask1x3 = 13,
  vokMask1x5 = 15,
  vokMask3x1 = 31,
  vokMask3x3 = 33,
  vokMask5x1 = 51,
  vokMask5x5 = 55
};

typedef int32_t VokInterpolation;
enum {
  vokInterNearest = 1,
  vokInterLinear = 2,
  vokInterCubic = 4,
  vokInterSuper = 8,
  vokInterLanczos = 16,
  vokSmoothEdge = (int32_t)0x80000000u /* or-ed onto the selector */
};

typedef int32_t VokHint;
enum { vokHintNone = 0, vokHintFast = 1, vokHintAccurate = 2 };

typedef int32_t VokRoundMode;
enum { vokRoundZero = 0, vokRoundNear = 1 };

typedef int32_t VokDitherType;
enum {
  vokDitherNone = 0,
  vokDitherFS = 1,
  vokDitherJJN = 2,
  vokDitherStucki = 3,
  vokDitherBayer = 4
};

typedef int32_t VokAlphaType;
enum {
  vokAlphaOver = 0,
  vokAlphaIn = 1,
  vokAlphaOut = 2,
  vokAlphaAtop = 3,
  vokAlphaXor = 4,
  vokAlphaPlus = 5,
  vokAlphaOverPremul = 6,
  vokAlphaInPremul = 7,
  vokAlphaOutPremul = 8,
  vokAlphaAtopPremul = 9,
  vokAlphaXorPremul = 10,
  vokAlphaPlusPremul = 11
};

/* Transform normalisation flags. */
enum { vokDivFwdByN = 1, vokDivInvByN = 2, vokDivBySqrtN = 4, vokNoDiv = 8 };

/* ---- Version ----------------------------------------------------------- */
typedef struct {
  int32_t versionMajor;
  int32_t versionMinor;
  int32_t buildMajor;
  int32_t buildNumber;
  char targetCode[4];
  const char* libraryName;
  const char* versionText;
  const char* buildDate;
} VokLibVersion;

/* A pointer to the library's one constant version record; never freed. */
VOK_API const VokLibVersion* vokiGetLibVersion(void);

/* ---- Constants with exact bits (both NaNs have the sign bit set) -------- */
VOK_API extern const Vok32f vokConstantOfNAN_32f;
VOK_API extern const Vok32f vokConstantOfINF_32f;
VOK_API extern const Vok32f vokConstantOfINF_NEG_32f;
VOK_API extern const Vok64f vokConstantOfNAN_64f;
VOK_API extern const Vok64f vokConstantOfINF_64f;
VOK_API extern const Vok64f vokConstantOfINF_NEG_64f;

/* ---- Memory -------------------------------------------------------------
 * 32-byte aligned blocks; a count below 1 gives null. Any block from either
 * allocator family is released by voksFree or vokiFree. */
VOK_API Vok8u* voksMalloc_8u(int len);
VOK_API Vok8s* voksMalloc_8s(int len);
VOK_API Vok16u* voksMalloc_16u(int len);
VOK_API Vok16s* voksMalloc_16s(int len);
VOK_API Vok32u* voksMalloc_32u(int len);
VOK_API Vok32s* voksMalloc_32s(int len);
VOK_API Vok32f* voksMalloc_32f(int len);
VOK_API Vok16sc* voksMalloc_16sc(int len);
VOK_API Vok64s* voksMalloc_64s(int len);
VOK_API Vok32fc* voksMalloc_32fc(int len);
VOK_API Vok32sc* voksMalloc_32sc(int len);
VOK_API void voksFree(void* ptr);

/* Image allocators: the row step, a multiple of 32 bytes, goes to *step. A
 * P3 block holds three planes, plane k at k * height * step bytes. */
VOK_API Vok8u* vokiMalloc_8u_C1(int width, int height, int* step);
VOK_API Vok8u* vokiMalloc_8u_C2(int width, int height, int* step);
VOK_API Vok8u* vokiMalloc_8u_C3(int width, int height, int* step);
VOK_API Vok8u* vokiMalloc_8u_C4(int width, int height, int* step);
VOK_API Vok8u* vokiMalloc_8u_AC4(int width, int height, int* step);
VOK_API Vok8u* vokiMalloc_8u_P3(int width, int height, int* step);
VOK_API Vok16u* vokiMalloc_16u_C1(int width, int height, int* step);
VOK_API Vok16u* vokiMalloc_16u_C2(int width, int height, int* step);
VOK_API Vok16u* vokiMalloc_16u_C3(int width, int height, int* step);
VOK_API Vok16u* vokiMalloc_16u_C4(int width, int height, int* step);
VOK_API Vok16u* vokiMalloc_16u_AC4(int width, int height, int* step);
VOK_API Vok16u* vokiMalloc_16u_P3(int width, int height, int* step);
VOK_API Vok16s* vokiMalloc_16s_C1(int width, int height, int* step);
VOK_API Vok16s* vokiMalloc_16s_C2(int width, int height, int* step);
VOK_API Vok16s* vokiMalloc_16s_C3(int width, int height, int* step);
VOK_API Vok16s* vokiMalloc_16s_C4(int width, int height, int* step);
VOK_API Vok16s* vokiMalloc_16s_AC4(int width, int height, int* step);
VOK_API Vok16s* vokiMalloc_16s_P3(int width, int height, int* step);
VOK_API Vok32s* vokiMalloc_32s_C1(int width, int height, int* step);
VOK_API Vok32s* vokiMalloc_32s_C2(int width, int height, int* step);
VOK_API Vok32s* vokiMalloc_32s_C3(int width, int height, int* step);
VOK_API Vok32s* vokiMalloc_32s_C4(int width, int height, int* step);
VOK_API Vok32s* vokiMalloc_32s_AC4(int width, int height, int* step);
VOK_API Vok32s* vokiMalloc_32s_P3(int width, int height, int* step);
VOK_API Vok32f* vokiMalloc_32f_C1(int width, int height, int* step);
VOK_API Vok32f* vokiMalloc_32f_C2(int width, int height, int* step);
VOK_API Vok32f* vokiMalloc_32f_C3(int width, int height, int* step);
VOK_API Vok32f* vokiMalloc_32f_C4(int width, int height, int* step);
VOK_API Vok32f* vokiMalloc_32f_AC4(int width, int height, int* step);
VOK_API Vok32f* vokiMalloc_32f_P3(int width, int height, int* step);
VOK_API Vok32sc* vokiMalloc_32sc_C1(int width, int height, int* step);
VOK_API Vok32sc* vokiMalloc_32sc_C2(int width, int height, int* step);
VOK_API Vok32sc* vokiMalloc_32sc_C3(int width, int height, int* step);
VOK_API Vok32sc* vokiMalloc_32sc_C4(int width, int height, int* step);
VOK_API Vok32sc* vokiMalloc_32sc_AC4(int width, int height, int* step);
VOK_API Vok32sc* vokiMalloc_32sc_P3(int width, int height, int* step);
VOK_API Vok32fc* vokiMalloc_32fc_C1(int width, int height, int* step);
VOK_API Vok32fc* vokiMalloc_32fc_C2(int width, int height, int* step);
VOK_API Vok32fc* vokiMalloc_32fc_C3(int width, int height, int* step);
VOK_API Vok32fc* vokiMalloc_32fc_C4(int width, int height, int* step);
VOK_API Vok32fc* vokiMalloc_32fc_AC4(int width, int height, int* step);
VOK_API Vok32fc* vokiMalloc_32fc_P3(int width, int height, int* step);
VOK_API void vokiFree(void* ptr);

/* ---- Add, Sub, Mul of two images ---------------------------------------
 * Sub computes src2 - src1 (in place: srcDst - src). Integer forms scale the
 * exact result by 2^-scale, round ties to even and saturate. */
VOK_API VokStatus vokiAdd_8u_C1RSfs(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, Vok8u* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAdd_8u_C1IRSfs(const Vok8u* src, int srcStep, Vok8u* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAdd_8u_C3RSfs(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, Vok8u* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAdd_8u_C3IRSfs(const Vok8u* src, int srcStep, Vok8u* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAdd_8u_C4RSfs(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, Vok8u* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAdd_8u_C4IRSfs(const Vok8u* src, int srcStep, Vok8u* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAdd_8u_AC4RSfs(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, Vok8u* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAdd_8u_AC4IRSfs(const Vok8u* src, int srcStep, Vok8u* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAdd_16s_C1RSfs(const Vok16s* src1, int src1Step, const Vok16s* src2, int src2Step, Vok16s* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAdd_16s_C1IRSfs(const Vok16s* src, int srcStep, Vok16s* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAdd_16s_C3RSfs(const Vok16s* src1, int src1Step, const Vok16s* src2, int src2Step, Vok16s* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAdd_16s_C3IRSfs(const Vok16s* src, int srcStep, Vok16s* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAdd_16s_C4RSfs(const Vok16s* src1, int src1Step, const Vok16s* src2, int src2Step, Vok16s* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAdd_16s_C4IRSfs(const Vok16s* src, int srcStep, Vok16s* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAdd_16s_AC4RSfs(const Vok16s* src1, int src1Step, const Vok16s* src2, int src2Step, Vok16s* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAdd_16s_AC4IRSfs(const Vok16s* src, int srcStep, Vok16s* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAdd_32f_C1R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiAdd_32f_C1IR(const Vok32f* src, int srcStep, Vok32f* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiAdd_32f_C3R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiAdd_32f_C3IR(const Vok32f* src, int srcStep, Vok32f* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiAdd_32f_C4R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiAdd_32f_C4IR(const Vok32f* src, int srcStep, Vok32f* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiAdd_32f_AC4R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiAdd_32f_AC4IR(const Vok32f* src, int srcStep, Vok32f* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiSub_8u_C1RSfs(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, Vok8u* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSub_8u_C1IRSfs(const Vok8u* src, int srcStep, Vok8u* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSub_8u_C3RSfs(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, Vok8u* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSub_8u_C3IRSfs(const Vok8u* src, int srcStep, Vok8u* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSub_8u_C4RSfs(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, Vok8u* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSub_8u_C4IRSfs(const Vok8u* src, int srcStep, Vok8u* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSub_8u_AC4RSfs(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, Vok8u* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSub_8u_AC4IRSfs(const Vok8u* src, int srcStep, Vok8u* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSub_16s_C1RSfs(const Vok16s* src1, int src1Step, const Vok16s* src2, int src2Step, Vok16s* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSub_16s_C1IRSfs(const Vok16s* src, int srcStep, Vok16s* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSub_16s_C3RSfs(const Vok16s* src1, int src1Step, const Vok16s* src2, int src2Step, Vok16s* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSub_16s_C3IRSfs(const Vok16s* src, int srcStep, Vok16s* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSub_16s_C4RSfs(const Vok16s* src1, int src1Step, const Vok16s* src2, int src2Step, Vok16s* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSub_16s_C4IRSfs(const Vok16s* src, int srcStep, Vok16s* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSub_16s_AC4RSfs(const Vok16s* src1, int src1Step, const Vok16s* src2, int src2Step, Vok16s* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSub_16s_AC4IRSfs(const Vok16s* src, int srcStep, Vok16s* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSub_32f_C1R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiSub_32f_C1IR(const Vok32f* src, int srcStep, Vok32f* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiSub_32f_C3R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiSub_32f_C3IR(const Vok32f* src, int srcStep, Vok32f* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiSub_32f_C4R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiSub_32f_C4IR(const Vok32f* src, int srcStep, Vok32f* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiSub_32f_AC4R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiSub_32f_AC4IR(const Vok32f* src, int srcStep, Vok32f* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiMul_8u_C1RSfs(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, Vok8u* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMul_8u_C1IRSfs(const Vok8u* src, int srcStep, Vok8u* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMul_8u_C3RSfs(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, Vok8u* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMul_8u_C3IRSfs(const Vok8u* src, int srcStep, Vok8u* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMul_8u_C4RSfs(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, Vok8u* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMul_8u_C4IRSfs(const Vok8u* src, int srcStep, Vok8u* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMul_8u_AC4RSfs(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, Vok8u* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMul_8u_AC4IRSfs(const Vok8u* src, int srcStep, Vok8u* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMul_16s_C1RSfs(const Vok16s* src1, int src1Step, const Vok16s* src2, int src2Step, Vok16s* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMul_16s_C1IRSfs(const Vok16s* src, int srcStep, Vok16s* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMul_16s_C3RSfs(const Vok16s* src1, int src1Step, const Vok16s* src2, int src2Step, Vok16s* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMul_16s_C3IRSfs(const Vok16s* src, int srcStep, Vok16s* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMul_16s_C4RSfs(const Vok16s* src1, int src1Step, const Vok16s* src2, int src2Step, Vok16s* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMul_16s_C4IRSfs(const Vok16s* src, int srcStep, Vok16s* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMul_16s_AC4RSfs(const Vok16s* src1, int src1Step, const Vok16s* src2, int src2Step, Vok16s* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMul_16s_AC4IRSfs(const Vok16s* src, int srcStep, Vok16s* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMul_32f_C1R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiMul_32f_C1IR(const Vok32f* src, int srcStep, Vok32f* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiMul_32f_C3R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiMul_32f_C3IR(const Vok32f* src, int srcStep, Vok32f* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiMul_32f_C4R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiMul_32f_C4IR(const Vok32f* src, int srcStep, Vok32f* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiMul_32f_AC4R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiMul_32f_AC4IR(const Vok32f* src, int srcStep, Vok32f* srcDst, int srcDstStep, VokiSize roi);

/* ---- AddC, SubC, MulC: an image and a constant per channel -------------
 * SubC computes src - value. */
VOK_API VokStatus vokiAddC_8u_C1RSfs(const Vok8u* src, int srcStep, Vok8u value, Vok8u* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAddC_8u_C1IRSfs(Vok8u value, Vok8u* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAddC_8u_C3RSfs(const Vok8u* src, int srcStep, const Vok8u value[3], Vok8u* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAddC_8u_C3IRSfs(const Vok8u value[3], Vok8u* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAddC_8u_C4RSfs(const Vok8u* src, int srcStep, const Vok8u value[4], Vok8u* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAddC_8u_C4IRSfs(const Vok8u value[4], Vok8u* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAddC_8u_AC4RSfs(const Vok8u* src, int srcStep, const Vok8u value[3], Vok8u* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAddC_8u_AC4IRSfs(const Vok8u value[3], Vok8u* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAddC_16s_C1RSfs(const Vok16s* src, int srcStep, Vok16s value, Vok16s* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAddC_16s_C1IRSfs(Vok16s value, Vok16s* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAddC_16s_C3RSfs(const Vok16s* src, int srcStep, const Vok16s value[3], Vok16s* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAddC_16s_C3IRSfs(const Vok16s value[3], Vok16s* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAddC_16s_C4RSfs(const Vok16s* src, int srcStep, const Vok16s value[4], Vok16s* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAddC_16s_C4IRSfs(const Vok16s value[4], Vok16s* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAddC_16s_AC4RSfs(const Vok16s* src, int srcStep, const Vok16s value[3], Vok16s* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAddC_16s_AC4IRSfs(const Vok16s value[3], Vok16s* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAddC_32f_C1R(const Vok32f* src, int srcStep, Vok32f value, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiAddC_32f_C1IR(Vok32f value, Vok32f* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiAddC_32f_C3R(const Vok32f* src, int srcStep, const Vok32f value[3], Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiAddC_32f_C3IR(const Vok32f value[3], Vok32f* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiAddC_32f_C4R(const Vok32f* src, int srcStep, const Vok32f value[4], Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiAddC_32f_C4IR(const Vok32f value[4], Vok32f* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiAddC_32f_AC4R(const Vok32f* src, int srcStep, const Vok32f value[3], Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiAddC_32f_AC4IR(const Vok32f value[3], Vok32f* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiSubC_8u_C1RSfs(const Vok8u* src, int srcStep, Vok8u value, Vok8u* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSubC_8u_C1IRSfs(Vok8u value, Vok8u* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSubC_8u_C3RSfs(const Vok8u* src, int srcStep, const Vok8u value[3], Vok8u* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSubC_8u_C3IRSfs(const Vok8u value[3], Vok8u* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSubC_8u_C4RSfs(const Vok8u* src, int srcStep, const Vok8u value[4], Vok8u* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSubC_8u_C4IRSfs(const Vok8u value[4], Vok8u* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSubC_8u_AC4RSfs(const Vok8u* src, int srcStep, const Vok8u value[3], Vok8u* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSubC_8u_AC4IRSfs(const Vok8u value[3], Vok8u* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSubC_16s_C1RSfs(const Vok16s* src, int srcStep, Vok16s value, Vok16s* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSubC_16s_C1IRSfs(Vok16s value, Vok16s* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSubC_16s_C3RSfs(const Vok16s* src, int srcStep, const Vok16s value[3], Vok16s* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSubC_16s_C3IRSfs(const Vok16s value[3], Vok16s* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSubC_16s_C4RSfs(const Vok16s* src, int srcStep, const Vok16s value[4], Vok16s* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSubC_16s_C4IRSfs(const Vok16s value[4], Vok16s* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSubC_16s_AC4RSfs(const Vok16s* src, int srcStep, const Vok16s value[3], Vok16s* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSubC_16s_AC4IRSfs(const Vok16s value[3], Vok16s* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSubC_32f_C1R(const Vok32f* src, int srcStep, Vok32f value, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiSubC_32f_C1IR(Vok32f value, Vok32f* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiSubC_32f_C3R(const Vok32f* src, int srcStep, const Vok32f value[3], Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiSubC_32f_C3IR(const Vok32f value[3], Vok32f* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiSubC_32f_C4R(const Vok32f* src, int srcStep, const Vok32f value[4], Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiSubC_32f_C4IR(const Vok32f value[4], Vok32f* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiSubC_32f_AC4R(const Vok32f* src, int srcStep, const Vok32f value[3], Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiSubC_32f_AC4IR(const Vok32f value[3], Vok32f* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiMulC_8u_C1RSfs(const Vok8u* src, int srcStep, Vok8u value, Vok8u* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMulC_8u_C1IRSfs(Vok8u value, Vok8u* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMulC_8u_C3RSfs(const Vok8u* src, int srcStep, const Vok8u value[3], Vok8u* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMulC_8u_C3IRSfs(const Vok8u value[3], Vok8u* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMulC_8u_C4RSfs(const Vok8u* src, int srcStep, const Vok8u value[4], Vok8u* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMulC_8u_C4IRSfs(const Vok8u value[4], Vok8u* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMulC_8u_AC4RSfs(const Vok8u* src, int srcStep, const Vok8u value[3], Vok8u* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMulC_8u_AC4IRSfs(const Vok8u value[3], Vok8u* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMulC_16s_C1RSfs(const Vok16s* src, int srcStep, Vok16s value, Vok16s* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMulC_16s_C1IRSfs(Vok16s value, Vok16s* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMulC_16s_C3RSfs(const Vok16s* src, int srcStep, const Vok16s value[3], Vok16s* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMulC_16s_C3IRSfs(const Vok16s value[3], Vok16s* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMulC_16s_C4RSfs(const Vok16s* src, int srcStep, const Vok16s value[4], Vok16s* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMulC_16s_C4IRSfs(const Vok16s value[4], Vok16s* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMulC_16s_AC4RSfs(const Vok16s* src, int srcStep, const Vok16s value[3], Vok16s* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMulC_16s_AC4IRSfs(const Vok16s value[3], Vok16s* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMulC_32f_C1R(const Vok32f* src, int srcStep, Vok32f value, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiMulC_32f_C1IR(Vok32f value, Vok32f* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiMulC_32f_C3R(const Vok32f* src, int srcStep, const Vok32f value[3], Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiMulC_32f_C3IR(const Vok32f value[3], Vok32f* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiMulC_32f_C4R(const Vok32f* src, int srcStep, const Vok32f value[4], Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiMulC_32f_C4IR(const Vok32f value[4], Vok32f* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiMulC_32f_AC4R(const Vok32f* src, int srcStep, const Vok32f value[3], Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiMulC_32f_AC4IR(const Vok32f value[3], Vok32f* srcDst, int srcDstStep, VokiSize roi);

/* ---- MulScale, MulCScale: products where full scale stands for 1.0 -----
 * floor(a * b / 255) for 8u and floor(a * b / 65535) for 16u. */
VOK_API VokStatus vokiMulScale_8u_C1R(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiMulScale_8u_C1IR(const Vok8u* src, int srcStep, Vok8u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiMulScale_8u_C3R(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiMulScale_8u_C3IR(const Vok8u* src, int srcStep, Vok8u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiMulScale_8u_C4R(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiMulScale_8u_C4IR(const Vok8u* src, int srcStep, Vok8u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiMulScale_8u_AC4R(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiMulScale_8u_AC4IR(const Vok8u* src, int srcStep, Vok8u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiMulScale_16u_C1R(const Vok16u* src1, int src1Step, const Vok16u* src2, int src2Step, Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiMulScale_16u_C1IR(const Vok16u* src, int srcStep, Vok16u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiMulScale_16u_C3R(const Vok16u* src1, int src1Step, const Vok16u* src2, int src2Step, Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiMulScale_16u_C3IR(const Vok16u* src, int srcStep, Vok16u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiMulScale_16u_C4R(const Vok16u* src1, int src1Step, const Vok16u* src2, int src2Step, Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiMulScale_16u_C4IR(const Vok16u* src, int srcStep, Vok16u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiMulScale_16u_AC4R(const Vok16u* src1, int src1Step, const Vok16u* src2, int src2Step, Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiMulScale_16u_AC4IR(const Vok16u* src, int srcStep, Vok16u* srcDst, int srcDstStep, VokiSize roi);

VOK_API VokStatus vokiMulCScale_8u_C1R(const Vok8u* src, int srcStep, Vok8u value, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiMulCScale_8u_C1IR(Vok8u value, Vok8u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiMulCScale_8u_C3R(const Vok8u* src, int srcStep, const Vok8u value[3], Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiMulCScale_8u_C3IR(const Vok8u value[3], Vok8u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiMulCScale_8u_C4R(const Vok8u* src, int srcStep, const Vok8u value[4], Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiMulCScale_8u_C4IR(const Vok8u value[4], Vok8u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiMulCScale_8u_AC4R(const Vok8u* src, int srcStep, const Vok8u value[3], Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiMulCScale_8u_AC4IR(const Vok8u value[3], Vok8u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiMulCScale_16u_C1R(const Vok16u* src, int srcStep, Vok16u value, Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiMulCScale_16u_C1IR(Vok16u value, Vok16u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiMulCScale_16u_C3R(const Vok16u* src, int srcStep, const Vok16u value[3], Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiMulCScale_16u_C3IR(const Vok16u value[3], Vok16u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiMulCScale_16u_C4R(const Vok16u* src, int srcStep, const Vok16u value[4], Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiMulCScale_16u_C4IR(const Vok16u value[4], Vok16u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiMulCScale_16u_AC4R(const Vok16u* src, int srcStep, const Vok16u value[3], Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiMulCScale_16u_AC4IR(const Vok16u value[3], Vok16u* srcDst, int srcDstStep, VokiSize roi);

/* ---- And, Or, Xor of two images, bit by bit --------------------------- */
VOK_API VokStatus vokiAnd_8u_C1R(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiAnd_8u_C1IR(const Vok8u* src, int srcStep, Vok8u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiAnd_8u_C3R(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiAnd_8u_C3IR(const Vok8u* src, int srcStep, Vok8u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiAnd_8u_C4R(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiAnd_8u_C4IR(const Vok8u* src, int srcStep, Vok8u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiAnd_8u_AC4R(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiAnd_8u_AC4IR(const Vok8u* src, int srcStep, Vok8u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiAnd_16u_C1R(const Vok16u* src1, int src1Step, const Vok16u* src2, int src2Step, Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiAnd_16u_C1IR(const Vok16u* src, int srcStep, Vok16u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiAnd_16u_C3R(const Vok16u* src1, int src1Step, const Vok16u* src2, int src2Step, Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiAnd_16u_C3IR(const Vok16u* src, int srcStep, Vok16u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiAnd_16u_C4R(const Vok16u* src1, int src1Step, const Vok16u* src2, int src2Step, Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiAnd_16u_C4IR(const Vok16u* src, int srcStep, Vok16u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiAnd_16u_AC4R(const Vok16u* src1, int src1Step, const Vok16u* src2, int src2Step, Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiAnd_16u_AC4IR(const Vok16u* src, int srcStep, Vok16u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiAnd_32s_C1R(const Vok32s* src1, int src1Step, const Vok32s* src2, int src2Step, Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiAnd_32s_C1IR(const Vok32s* src, int srcStep, Vok32s* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiAnd_32s_C3R(const Vok32s* src1, int src1Step, const Vok32s* src2, int src2Step, Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiAnd_32s_C3IR(const Vok32s* src, int srcStep, Vok32s* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiAnd_32s_C4R(const Vok32s* src1, int src1Step, const Vok32s* src2, int src2Step, Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiAnd_32s_C4IR(const Vok32s* src, int srcStep, Vok32s* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiAnd_32s_AC4R(const Vok32s* src1, int src1Step, const Vok32s* src2, int src2Step, Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiAnd_32s_AC4IR(const Vok32s* src, int srcStep, Vok32s* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiOr_8u_C1R(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiOr_8u_C1IR(const Vok8u* src, int srcStep, Vok8u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiOr_8u_C3R(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiOr_8u_C3IR(const Vok8u* src, int srcStep, Vok8u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiOr_8u_C4R(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiOr_8u_C4IR(const Vok8u* src, int srcStep, Vok8u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiOr_8u_AC4R(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiOr_8u_AC4IR(const Vok8u* src, int srcStep, Vok8u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiOr_16u_C1R(const Vok16u* src1, int src1Step, const Vok16u* src2, int src2Step, Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiOr_16u_C1IR(const Vok16u* src, int srcStep, Vok16u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiOr_16u_C3R(const Vok16u* src1, int src1Step, const Vok16u* src2, int src2Step, Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiOr_16u_C3IR(const Vok16u* src, int srcStep, Vok16u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiOr_16u_C4R(const Vok16u* src1, int src1Step, const Vok16u* src2, int src2Step, Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiOr_16u_C4IR(const Vok16u* src, int srcStep, Vok16u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiOr_16u_AC4R(const Vok16u* src1, int src1Step, const Vok16u* src2, int src2Step, Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiOr_16u_AC4IR(const Vok16u* src, int srcStep, Vok16u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiOr_32s_C1R(const Vok32s* src1, int src1Step, const Vok32s* src2, int src2Step, Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiOr_32s_C1IR(const Vok32s* src, int srcStep, Vok32s* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiOr_32s_C3R(const Vok32s* src1, int src1Step, const Vok32s* src2, int src2Step, Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiOr_32s_C3IR(const Vok32s* src, int srcStep, Vok32s* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiOr_32s_C4R(const Vok32s* src1, int src1Step, const Vok32s* src2, int src2Step, Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiOr_32s_C4IR(const Vok32s* src, int srcStep, Vok32s* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiOr_32s_AC4R(const Vok32s* src1, int src1Step, const Vok32s* src2, int src2Step, Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiOr_32s_AC4IR(const Vok32s* src, int srcStep, Vok32s* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiXor_8u_C1R(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiXor_8u_C1IR(const Vok8u* src, int srcStep, Vok8u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiXor_8u_C3R(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiXor_8u_C3IR(const Vok8u* src, int srcStep, Vok8u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiXor_8u_C4R(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiXor_8u_C4IR(const Vok8u* src, int srcStep, Vok8u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiXor_8u_AC4R(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiXor_8u_AC4IR(const Vok8u* src, int srcStep, Vok8u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiXor_16u_C1R(const Vok16u* src1, int src1Step, const Vok16u* src2, int src2Step, Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiXor_16u_C1IR(const Vok16u* src, int srcStep, Vok16u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiXor_16u_C3R(const Vok16u* src1, int src1Step, const Vok16u* src2, int src2Step, Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiXor_16u_C3IR(const Vok16u* src, int srcStep, Vok16u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiXor_16u_C4R(const Vok16u* src1, int src1Step, const Vok16u* src2, int src2Step, Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiXor_16u_C4IR(const Vok16u* src, int srcStep, Vok16u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiXor_16u_AC4R(const Vok16u* src1, int src1Step, const Vok16u* src2, int src2Step, Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiXor_16u_AC4IR(const Vok16u* src, int srcStep, Vok16u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiXor_32s_C1R(const Vok32s* src1, int src1Step, const Vok32s* src2, int src2Step, Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiXor_32s_C1IR(const Vok32s* src, int srcStep, Vok32s* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiXor_32s_C3R(const Vok32s* src1, int src1Step, const Vok32s* src2, int src2Step, Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiXor_32s_C3IR(const Vok32s* src, int srcStep, Vok32s* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiXor_32s_C4R(const Vok32s* src1, int src1Step, const Vok32s* src2, int src2Step, Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiXor_32s_C4IR(const Vok32s* src, int srcStep, Vok32s* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiXor_32s_AC4R(const Vok32s* src1, int src1Step, const Vok32s* src2, int src2Step, Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiXor_32s_AC4IR(const Vok32s* src, int srcStep, Vok32s* srcDst, int srcDstStep, VokiSize roi);

/* ---- AndC, OrC, XorC: an image and a constant per channel ------------- */
VOK_API VokStatus vokiAndC_8u_C1R(const Vok8u* src, int srcStep, Vok8u value, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiAndC_8u_C1IR(Vok8u value, Vok8u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiAndC_8u_C3R(const Vok8u* src, int srcStep, const Vok8u value[3], Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiAndC_8u_C3IR(const Vok8u value[3], Vok8u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiAndC_8u_C4R(const Vok8u* src, int srcStep, const Vok8u value[4], Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiAndC_8u_C4IR(const Vok8u value[4], Vok8u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiAndC_8u_AC4R(const Vok8u* src, int srcStep, const Vok8u value[3], Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiAndC_8u_AC4IR(const Vok8u value[3], Vok8u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiAndC_16u_C1R(const Vok16u* src, int srcStep, Vok16u value, Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiAndC_16u_C1IR(Vok16u value, Vok16u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiAndC_16u_C3R(const Vok16u* src, int srcStep, const Vok16u value[3], Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiAndC_16u_C3IR(const Vok16u value[3], Vok16u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiAndC_16u_C4R(const Vok16u* src, int srcStep, const Vok16u value[4], Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiAndC_16u_C4IR(const Vok16u value[4], Vok16u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiAndC_16u_AC4R(const Vok16u* src, int srcStep, const Vok16u value[3], Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiAndC_16u_AC4IR(const Vok16u value[3], Vok16u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiAndC_32s_C1R(const Vok32s* src, int srcStep, Vok32s value, Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiAndC_32s_C1IR(Vok32s value, Vok32s* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiAndC_32s_C3R(const Vok32s* src, int srcStep, const Vok32s value[3], Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiAndC_32s_C3IR(const Vok32s value[3], Vok32s* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiAndC_32s_C4R(const Vok32s* src, int srcStep, const Vok32s value[4], Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiAndC_32s_C4IR(const Vok32s value[4], Vok32s* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiAndC_32s_AC4R(const Vok32s* src, int srcStep, const Vok32s value[3], Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiAndC_32s_AC4IR(const Vok32s value[3], Vok32s* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiOrC_8u_C1R(const Vok8u* src, int srcStep, Vok8u value, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiOrC_8u_C1IR(Vok8u value, Vok8u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiOrC_8u_C3R(const Vok8u* src, int srcStep, const Vok8u value[3], Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiOrC_8u_C3IR(const Vok8u value[3], Vok8u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiOrC_8u_C4R(const Vok8u* src, int srcStep, const Vok8u value[4], Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiOrC_8u_C4IR(const Vok8u value[4], Vok8u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiOrC_8u_AC4R(const Vok8u* src, int srcStep, const Vok8u value[3], Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiOrC_8u_AC4IR(const Vok8u value[3], Vok8u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiOrC_16u_C1R(const Vok16u* src, int srcStep, Vok16u value, Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiOrC_16u_C1IR(Vok16u value, Vok16u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiOrC_16u_C3R(const Vok16u* src, int srcStep, const Vok16u value[3], Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiOrC_16u_C3IR(const Vok16u value[3], Vok16u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiOrC_16u_C4R(const Vok16u* src, int srcStep, const Vok16u value[4], Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiOrC_16u_C4IR(const Vok16u value[4], Vok16u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiOrC_16u_AC4R(const Vok16u* src, int srcStep, const Vok16u value[3], Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiOrC_16u_AC4IR(const Vok16u value[3], Vok16u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiOrC_32s_C1R(const Vok32s* src, int srcStep, Vok32s value, Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiOrC_32s_C1IR(Vok32s value, Vok32s* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiOrC_32s_C3R(const Vok32s* src, int srcStep, const Vok32s value[3], Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiOrC_32s_C3IR(const Vok32s value[3], Vok32s* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiOrC_32s_C4R(const Vok32s* src, int srcStep, const Vok32s value[4], Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiOrC_32s_C4IR(const Vok32s value[4], Vok32s* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiOrC_32s_AC4R(const Vok32s* src, int srcStep, const Vok32s value[3], Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiOrC_32s_AC4IR(const Vok32s value[3], Vok32s* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiXorC_8u_C1R(const Vok8u* src, int srcStep, Vok8u value, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiXorC_8u_C1IR(Vok8u value, Vok8u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiXorC_8u_C3R(const Vok8u* src, int srcStep, const Vok8u value[3], Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiXorC_8u_C3IR(const Vok8u value[3], Vok8u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiXorC_8u_C4R(const Vok8u* src, int srcStep, const Vok8u value[4], Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiXorC_8u_C4IR(const Vok8u value[4], Vok8u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiXorC_8u_AC4R(const Vok8u* src, int srcStep, const Vok8u value[3], Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiXorC_8u_AC4IR(const Vok8u value[3], Vok8u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiXorC_16u_C1R(const Vok16u* src, int srcStep, Vok16u value, Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiXorC_16u_C1IR(Vok16u value, Vok16u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiXorC_16u_C3R(const Vok16u* src, int srcStep, const Vok16u value[3], Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiXorC_16u_C3IR(const Vok16u value[3], Vok16u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiXorC_16u_C4R(const Vok16u* src, int srcStep, const Vok16u value[4], Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiXorC_16u_C4IR(const Vok16u value[4], Vok16u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiXorC_16u_AC4R(const Vok16u* src, int srcStep, const Vok16u value[3], Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiXorC_16u_AC4IR(const Vok16u value[3], Vok16u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiXorC_32s_C1R(const Vok32s* src, int srcStep, Vok32s value, Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiXorC_32s_C1IR(Vok32s value, Vok32s* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiXorC_32s_C3R(const Vok32s* src, int srcStep, const Vok32s value[3], Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiXorC_32s_C3IR(const Vok32s value[3], Vok32s* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiXorC_32s_C4R(const Vok32s* src, int srcStep, const Vok32s value[4], Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiXorC_32s_C4IR(const Vok32s value[4], Vok32s* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiXorC_32s_AC4R(const Vok32s* src, int srcStep, const Vok32s value[3], Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiXorC_32s_AC4IR(const Vok32s value[3], Vok32s* srcDst, int srcDstStep, VokiSize roi);

/* ---- Not: every bit inverted (AC4 leaves alpha) ------------------------ */
VOK_API VokStatus vokiNot_8u_C1R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiNot_8u_C1IR(Vok8u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiNot_8u_C3R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiNot_8u_C3IR(Vok8u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiNot_8u_C4R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiNot_8u_C4IR(Vok8u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiNot_8u_AC4R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiNot_8u_AC4IR(Vok8u* srcDst, int srcDstStep, VokiSize roi);

/* ---- LShiftC, RShiftC: shifts by a count per channel --------------------
 * Left shifts drop the bits that leave the sample; right shifts are logical
 * on unsigned and arithmetic (floor) on signed samples. A count at or above
 * the sample's width leaves 0, or -1 for negative signed samples shifted right. */
VOK_API VokStatus vokiLShiftC_8u_C1R(const Vok8u* src, int srcStep, Vok32u value, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiLShiftC_8u_C1IR(Vok32u value, Vok8u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiLShiftC_8u_C3R(const Vok8u* src, int srcStep, const Vok32u value[3], Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiLShiftC_8u_C3IR(const Vok32u value[3], Vok8u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiLShiftC_8u_C4R(const Vok8u* src, int srcStep, const Vok32u value[4], Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiLShiftC_8u_C4IR(const Vok32u value[4], Vok8u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiLShiftC_8u_AC4R(const Vok8u* src, int srcStep, const Vok32u value[3], Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiLShiftC_8u_AC4IR(const Vok32u value[3], Vok8u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiLShiftC_16u_C1R(const Vok16u* src, int srcStep, Vok32u value, Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiLShiftC_16u_C1IR(Vok32u value, Vok16u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiLShiftC_16u_C3R(const Vok16u* src, int srcStep, const Vok32u value[3], Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiLShiftC_16u_C3IR(const Vok32u value[3], Vok16u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiLShiftC_16u_C4R(const Vok16u* src, int srcStep, const Vok32u value[4], Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiLShiftC_16u_C4IR(const Vok32u value[4], Vok16u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiLShiftC_16u_AC4R(const Vok16u* src, int srcStep, const Vok32u value[3], Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiLShiftC_16u_AC4IR(const Vok32u value[3], Vok16u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiLShiftC_32s_C1R(const Vok32s* src, int srcStep, Vok32u value, Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiLShiftC_32s_C1IR(Vok32u value, Vok32s* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiLShiftC_32s_C3R(const Vok32s* src, int srcStep, const Vok32u value[3], Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiLShiftC_32s_C3IR(const Vok32u value[3], Vok32s* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiLShiftC_32s_C4R(const Vok32s* src, int srcStep, const Vok32u value[4], Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiLShiftC_32s_C4IR(const Vok32u value[4], Vok32s* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiLShiftC_32s_AC4R(const Vok32s* src, int srcStep, const Vok32u value[3], Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiLShiftC_32s_AC4IR(const Vok32u value[3], Vok32s* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiRShiftC_8u_C1R(const Vok8u* src, int srcStep, Vok32u value, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiRShiftC_8u_C1IR(Vok32u value, Vok8u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiRShiftC_8u_C3R(const Vok8u* src, int srcStep, const Vok32u value[3], Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiRShiftC_8u_C3IR(const Vok32u value[3], Vok8u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiRShiftC_8u_C4R(const Vok8u* src, int srcStep, const Vok32u value[4], Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiRShiftC_8u_C4IR(const Vok32u value[4], Vok8u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiRShiftC_8u_AC4R(const Vok8u* src, int srcStep, const Vok32u value[3], Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiRShiftC_8u_AC4IR(const Vok32u value[3], Vok8u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiRShiftC_8s_C1R(const Vok8s* src, int srcStep, Vok32u value, Vok8s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiRShiftC_8s_C1IR(Vok32u value, Vok8s* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiRShiftC_8s_C3R(const Vok8s* src, int srcStep, const Vok32u value[3], Vok8s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiRShiftC_8s_C3IR(const Vok32u value[3], Vok8s* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiRShiftC_8s_C4R(const Vok8s* src, int srcStep, const Vok32u value[4], Vok8s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiRShiftC_8s_C4IR(const Vok32u value[4], Vok8s* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiRShiftC_8s_AC4R(const Vok8s* src, int srcStep, const Vok32u value[3], Vok8s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiRShiftC_8s_AC4IR(const Vok32u value[3], Vok8s* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiRShiftC_16u_C1R(const Vok16u* src, int srcStep, Vok32u value, Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiRShiftC_16u_C1IR(Vok32u value, Vok16u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiRShiftC_16u_C3R(const Vok16u* src, int srcStep, const Vok32u value[3], Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiRShiftC_16u_C3IR(const Vok32u value[3], Vok16u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiRShiftC_16u_C4R(const Vok16u* src, int srcStep, const Vok32u value[4], Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiRShiftC_16u_C4IR(const Vok32u value[4], Vok16u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiRShiftC_16u_AC4R(const Vok16u* src, int srcStep, const Vok32u value[3], Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiRShiftC_16u_AC4IR(const Vok32u value[3], Vok16u* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiRShiftC_16s_C1R(const Vok16s* src, int srcStep, Vok32u value, Vok16s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiRShiftC_16s_C1IR(Vok32u value, Vok16s* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiRShiftC_16s_C3R(const Vok16s* src, int srcStep, const Vok32u value[3], Vok16s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiRShiftC_16s_C3IR(const Vok32u value[3], Vok16s* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiRShiftC_16s_C4R(const Vok16s* src, int srcStep, const Vok32u value[4], Vok16s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiRShiftC_16s_C4IR(const Vok32u value[4], Vok16s* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiRShiftC_16s_AC4R(const Vok16s* src, int srcStep, const Vok32u value[3], Vok16s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiRShiftC_16s_AC4IR(const Vok32u value[3], Vok16s* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiRShiftC_32s_C1R(const Vok32s* src, int srcStep, Vok32u value, Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiRShiftC_32s_C1IR(Vok32u value, Vok32s* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiRShiftC_32s_C3R(const Vok32s* src, int srcStep, const Vok32u value[3], Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiRShiftC_32s_C3IR(const Vok32u value[3], Vok32s* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiRShiftC_32s_C4R(const Vok32s* src, int srcStep, const Vok32u value[4], Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiRShiftC_32s_C4IR(const Vok32u value[4], Vok32s* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiRShiftC_32s_AC4R(const Vok32s* src, int srcStep, const Vok32u value[3], Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiRShiftC_32s_AC4IR(const Vok32u value[3], Vok32s* srcDst, int srcDstStep, VokiSize roi);

/* ---- Resize -------------------------------------------------------------
 * Scales a source ROI into a destination region. src is the origin of the
 * whole source image (srcSize); neighbours outside the ROI but inside the
 * image are read. Resize takes scale factors, ResizeShift the source step per
 * destination pixel and the start position, ResizeCenter the factors and the
 * source point that lands in the middle of the destination. interpolation is
 * vokInterNearest, vokInterLinear, vokInterCubic, vokInterLanczos, or
 * vokInterSuper when both factors are at most 1 (not for ResizeShift). Planar
 * forms take arrays of plane pointers. AC4 leaves destination alpha as it was. */
VOK_API VokStatus vokiResize_8u_C1R(const Vok8u* src, VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok8u* dst, int dstStep, VokiSize dstRoiSize, double xFactor, double yFactor, int interpolation);
VOK_API VokStatus vokiResizeShift_8u_C1R(const Vok8u* src, VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok8u* dst, int dstStep, VokiSize dstRoiSize, double xFr, double yFr, double xShift, double yShift, int interpolation);
VOK_API VokStatus vokiResizeCenter_8u_C1R(const Vok8u* src, VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok8u* dst, int dstStep, VokiSize dstRoiSize, double xFactor, double yFactor, double xCenter, double yCenter, int interpolation);
VOK_API VokStatus vokiResize_8u_C3R(const Vok8u* src, VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok8u* dst, int dstStep, VokiSize dstRoiSize, double xFactor, double yFactor, int interpolation);
VOK_API VokStatus vokiResizeShift_8u_C3R(const Vok8u* src, VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok8u* dst, int dstStep, VokiSize dstRoiSize, double xFr, double yFr, double xShift, double yShift, int interpolation);
VOK_API VokStatus vokiResizeCenter_8u_C3R(const Vok8u* src, VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok8u* dst, int dstStep, VokiSize dstRoiSize, double xFactor, double yFactor, double xCenter, double yCenter, int interpolation);
VOK_API VokStatus vokiResize_8u_C4R(const Vok8u* src, VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok8u* dst, int dstStep, VokiSize dstRoiSize, double xFactor, double yFactor, int interpolation);
VOK_API VokStatus vokiResizeShift_8u_C4R(const Vok8u* src, VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok8u* dst, int dstStep, VokiSize dstRoiSize, double xFr, double yFr, double xShift, double yShift, int interpolation);
VOK_API VokStatus vokiResizeCenter_8u_C4R(const Vok8u* src, VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok8u* dst, int dstStep, VokiSize dstRoiSize, double xFactor, double yFactor, double xCenter, double yCenter, int interpolation);
VOK_API VokStatus vokiResize_8u_AC4R(const Vok8u* src, VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok8u* dst, int dstStep, VokiSize dstRoiSize, double xFactor, double yFactor, int interpolation);
VOK_API VokStatus vokiResizeShift_8u_AC4R(const Vok8u* src, VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok8u* dst, int dstStep, VokiSize dstRoiSize, double xFr, double yFr, double xShift, double yShift, int interpolation);
VOK_API VokStatus vokiResizeCenter_8u_AC4R(const Vok8u* src, VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok8u* dst, int dstStep, VokiSize dstRoiSize, double xFactor, double yFactor, double xCenter, double yCenter, int interpolation);
VOK_API VokStatus vokiResize_8u_P3R(const Vok8u* const src[3], VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok8u* const dst[3], int dstStep, VokiSize dstRoiSize, double xFactor, double yFactor, int interpolation);
VOK_API VokStatus vokiResizeShift_8u_P3R(const Vok8u* const src[3], VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok8u* const dst[3], int dstStep, VokiSize dstRoiSize, double xFr, double yFr, double xShift, double yShift, int interpolation);
VOK_API VokStatus vokiResizeCenter_8u_P3R(const Vok8u* const src[3], VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok8u* const dst[3], int dstStep, VokiSize dstRoiSize, double xFactor, double yFactor, double xCenter, double yCenter, int interpolation);
VOK_API VokStatus vokiResize_8u_P4R(const Vok8u* const src[4], VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok8u* const dst[4], int dstStep, VokiSize dstRoiSize, double xFactor, double yFactor, int interpolation);
VOK_API VokStatus vokiResizeShift_8u_P4R(const Vok8u* const src[4], VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok8u* const dst[4], int dstStep, VokiSize dstRoiSize, double xFr, double yFr, double xShift, double yShift, int interpolation);
VOK_API VokStatus vokiResizeCenter_8u_P4R(const Vok8u* const src[4], VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok8u* const dst[4], int dstStep, VokiSize dstRoiSize, double xFactor, double yFactor, double xCenter, double yCenter, int interpolation);
VOK_API VokStatus vokiResize_16u_C1R(const Vok16u* src, VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok16u* dst, int dstStep, VokiSize dstRoiSize, double xFactor, double yFactor, int interpolation);
VOK_API VokStatus vokiResizeShift_16u_C1R(const Vok16u* src, VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok16u* dst, int dstStep, VokiSize dstRoiSize, double xFr, double yFr, double xShift, double yShift, int interpolation);
VOK_API VokStatus vokiResizeCenter_16u_C1R(const Vok16u* src, VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok16u* dst, int dstStep, VokiSize dstRoiSize, double xFactor, double yFactor, double xCenter, double yCenter, int interpolation);
VOK_API VokStatus vokiResize_16u_C3R(const Vok16u* src, VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok16u* dst, int dstStep, VokiSize dstRoiSize, double xFactor, double yFactor, int interpolation);
VOK_API VokStatus vokiResizeShift_16u_C3R(const Vok16u* src, VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok16u* dst, int dstStep, VokiSize dstRoiSize, double xFr, double yFr, double xShift, double yShift, int interpolation);
VOK_API VokStatus vokiResizeCenter_16u_C3R(const Vok16u* src, VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok16u* dst, int dstStep, VokiSize dstRoiSize, double xFactor, double yFactor, double xCenter, double yCenter, int interpolation);
VOK_API VokStatus vokiResize_16u_C4R(const Vok16u* src, VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok16u* dst, int dstStep, VokiSize dstRoiSize, double xFactor, double yFactor, int interpolation);
VOK_API VokStatus vokiResizeShift_16u_C4R(const Vok16u* src, VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok16u* dst, int dstStep, VokiSize dstRoiSize, double xFr, double yFr, double xShift, double yShift, int interpolation);
VOK_API VokStatus vokiResizeCenter_16u_C4R(const Vok16u* src, VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok16u* dst, int dstStep, VokiSize dstRoiSize, double xFactor, double yFactor, double xCenter, double yCenter, int interpolation);
VOK_API VokStatus vokiResize_16u_AC4R(const Vok16u* src, VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok16u* dst, int dstStep, VokiSize dstRoiSize, double xFactor, double yFactor, int interpolation);
VOK_API VokStatus vokiResizeShift_16u_AC4R(const Vok16u* src, VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok16u* dst, int dstStep, VokiSize dstRoiSize, double xFr, double yFr, double xShift, double yShift, int interpolation);
VOK_API VokStatus vokiResizeCenter_16u_AC4R(const Vok16u* src, VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok16u* dst, int dstStep, VokiSize dstRoiSize, double xFactor, double yFactor, double xCenter, double yCenter, int interpolation);
VOK_API VokStatus vokiResize_16u_P3R(const Vok16u* const src[3], VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok16u* const dst[3], int dstStep, VokiSize dstRoiSize, double xFactor, double yFactor, int interpolation);
VOK_API VokStatus vokiResizeShift_16u_P3R(const Vok16u* const src[3], VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok16u* const dst[3], int dstStep, VokiSize dstRoiSize, double xFr, double yFr, double xShift, double yShift, int interpolation);
VOK_API VokStatus vokiResizeCenter_16u_P3R(const Vok16u* const src[3], VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok16u* const dst[3], int dstStep, VokiSize dstRoiSize, double xFactor, double yFactor, double xCenter, double yCenter, int interpolation);
VOK_API VokStatus vokiResize_16u_P4R(const Vok16u* const src[4], VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok16u* const dst[4], int dstStep, VokiSize dstRoiSize, double xFactor, double yFactor, int interpolation);
VOK_API VokStatus vokiResizeShift_16u_P4R(const Vok16u* const src[4], VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok16u* const dst[4], int dstStep, VokiSize dstRoiSize, double xFr, double yFr, double xShift, double yShift, int interpolation);
VOK_API VokStatus vokiResizeCenter_16u_P4R(const Vok16u* const src[4], VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok16u* const dst[4], int dstStep, VokiSize dstRoiSize, double xFactor, double yFactor, double xCenter, double yCenter, int interpolation);
VOK_API VokStatus vokiResize_32f_C1R(const Vok32f* src, VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok32f* dst, int dstStep, VokiSize dstRoiSize, double xFactor, double yFactor, int interpolation);
VOK_API VokStatus vokiResizeShift_32f_C1R(const Vok32f* src, VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok32f* dst, int dstStep, VokiSize dstRoiSize, double xFr, double yFr, double xShift, double yShift, int interpolation);
VOK_API VokStatus vokiResizeCenter_32f_C1R(const Vok32f* src, VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok32f* dst, int dstStep, VokiSize dstRoiSize, double xFactor, double yFactor, double xCenter, double yCenter, int interpolation);
VOK_API VokStatus vokiResize_32f_C3R(const Vok32f* src, VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok32f* dst, int dstStep, VokiSize dstRoiSize, double xFactor, double yFactor, int interpolation);
VOK_API VokStatus vokiResizeShift_32f_C3R(const Vok32f* src, VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok32f* dst, int dstStep, VokiSize dstRoiSize, double xFr, double yFr, double xShift, double yShift, int interpolation);
VOK_API VokStatus vokiResizeCenter_32f_C3R(const Vok32f* src, VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok32f* dst, int dstStep, VokiSize dstRoiSize, double xFactor, double yFactor, double xCenter, double yCenter, int interpolation);
VOK_API VokStatus vokiResize_32f_C4R(const Vok32f* src, VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok32f* dst, int dstStep, VokiSize dstRoiSize, double xFactor, double yFactor, int interpolation);
VOK_API VokStatus vokiResizeShift_32f_C4R(const Vok32f* src, VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok32f* dst, int dstStep, VokiSize dstRoiSize, double xFr, double yFr, double xShift, double yShift, int interpolation);
VOK_API VokStatus vokiResizeCenter_32f_C4R(const Vok32f* src, VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok32f* dst, int dstStep, VokiSize dstRoiSize, double xFactor, double yFactor, double xCenter, double yCenter, int interpolation);
VOK_API VokStatus vokiResize_32f_AC4R(const Vok32f* src, VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok32f* dst, int dstStep, VokiSize dstRoiSize, double xFactor, double yFactor, int interpolation);
VOK_API VokStatus vokiResizeShift_32f_AC4R(const Vok32f* src, VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok32f* dst, int dstStep, VokiSize dstRoiSize, double xFr, double yFr, double xShift, double yShift, int interpolation);
VOK_API VokStatus vokiResizeCenter_32f_AC4R(const Vok32f* src, VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok32f* dst, int dstStep, VokiSize dstRoiSize, double xFactor, double yFactor, double xCenter, double yCenter, int interpolation);
VOK_API VokStatus vokiResize_32f_P3R(const Vok32f* const src[3], VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok32f* const dst[3], int dstStep, VokiSize dstRoiSize, double xFactor, double yFactor, int interpolation);
VOK_API VokStatus vokiResizeShift_32f_P3R(const Vok32f* const src[3], VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok32f* const dst[3], int dstStep, VokiSize dstRoiSize, double xFr, double yFr, double xShift, double yShift, int interpolation);
VOK_API VokStatus vokiResizeCenter_32f_P3R(const Vok32f* const src[3], VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok32f* const dst[3], int dstStep, VokiSize dstRoiSize, double xFactor, double yFactor, double xCenter, double yCenter, int interpolation);
VOK_API VokStatus vokiResize_32f_P4R(const Vok32f* const src[4], VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok32f* const dst[4], int dstStep, VokiSize dstRoiSize, double xFactor, double yFactor, int interpolation);
VOK_API VokStatus vokiResizeShift_32f_P4R(const Vok32f* const src[4], VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok32f* const dst[4], int dstStep, VokiSize dstRoiSize, double xFr, double yFr, double xShift, double yShift, int interpolation);
VOK_API VokStatus vokiResizeCenter_32f_P4R(const Vok32f* const src[4], VokiSize srcSize, int srcStep, VokiRect srcRoi, Vok32f* const dst[4], int dstStep, VokiSize dstRoiSize, double xFactor, double yFactor, double xCenter, double yCenter, int interpolation);
/* The source steps that ResizeShift needs to match Resize with these factors. */
VOK_API VokStatus vokiGetResizeFract(VokiSize srcSize, VokiRect srcRoi, double xFactor, double yFactor, double* xFr, double* yFr, int interpolation);

/* ---- Copy: samples moved bit for bit between images and layouts ---------
 * Channel forms (C3CR, C4CR, C3C1R, C4C1R, C1C3R, C1C4R) take pointers to
 * the chosen channel of the first pixel and leave the destination's other
 * channels as they were. Mask forms copy the pixels whose mask byte (one per
 * pixel, whatever the layout) is non-zero. AC4 destinations keep their
 * alpha. Planar forms take one step for all planes. */
VOK_API VokStatus vokiCopy_8u_C1R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiCopy_8u_C3R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiCopy_8u_C4R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiCopy_8u_AC4R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiCopy_8u_C1MR(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, const Vok8u* mask, int maskStep);
VOK_API VokStatus vokiCopy_8u_C3MR(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, const Vok8u* mask, int maskStep);
VOK_API VokStatus vokiCopy_8u_C4MR(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, const Vok8u* mask, int maskStep);
VOK_API VokStatus vokiCopy_8u_AC4MR(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, const Vok8u* mask, int maskStep);
VOK_API VokStatus vokiCopy_8u_C3CR(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiCopy_8u_C4CR(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiCopy_8u_C3C1R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiCopy_8u_C4C1R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiCopy_8u_C1C3R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiCopy_8u_C1C4R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiCopy_8u_C3AC4R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiCopy_8u_AC4C3R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiCopy_8u_C3P3R(const Vok8u* src, int srcStep, Vok8u* const dst[3], int dstStep, VokiSize roi);
VOK_API VokStatus vokiCopy_8u_C4P4R(const Vok8u* src, int srcStep, Vok8u* const dst[4], int dstStep, VokiSize roi);
VOK_API VokStatus vokiCopy_8u_P3C3R(const Vok8u* const src[3], int srcStep, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiCopy_8u_P4C4R(const Vok8u* const src[4], int srcStep, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiCopy_16s_C1R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiCopy_16s_C3R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiCopy_16s_C4R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiCopy_16s_AC4R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiCopy_16s_C1MR(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, const Vok8u* mask, int maskStep);
VOK_API VokStatus vokiCopy_16s_C3MR(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, const Vok8u* mask, int maskStep);
VOK_API VokStatus vokiCopy_16s_C4MR(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, const Vok8u* mask, int maskStep);
VOK_API VokStatus vokiCopy_16s_AC4MR(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, const Vok8u* mask, int maskStep);
VOK_API VokStatus vokiCopy_16s_C3CR(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiCopy_16s_C4CR(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiCopy_16s_C3C1R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiCopy_16s_C4C1R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiCopy_16s_C1C3R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiCopy_16s_C1C4R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiCopy_16s_C3AC4R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiCopy_16s_AC4C3R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiCopy_16s_C3P3R(const Vok16s* src, int srcStep, Vok16s* const dst[3], int dstStep, VokiSize roi);
VOK_API VokStatus vokiCopy_16s_C4P4R(const Vok16s* src, int srcStep, Vok16s* const dst[4], int dstStep, VokiSize roi);
VOK_API VokStatus vokiCopy_16s_P3C3R(const Vok16s* const src[3], int srcStep, Vok16s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiCopy_16s_P4C4R(const Vok16s* const src[4], int srcStep, Vok16s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiCopy_32f_C1R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiCopy_32f_C3R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiCopy_32f_C4R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiCopy_32f_AC4R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiCopy_32f_C1MR(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi, const Vok8u* mask, int maskStep);
VOK_API VokStatus vokiCopy_32f_C3MR(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi, const Vok8u* mask, int maskStep);
VOK_API VokStatus vokiCopy_32f_C4MR(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi, const Vok8u* mask, int maskStep);
VOK_API VokStatus vokiCopy_32f_AC4MR(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi, const Vok8u* mask, int maskStep);
VOK_API VokStatus vokiCopy_32f_C3CR(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiCopy_32f_C4CR(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiCopy_32f_C3C1R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiCopy_32f_C4C1R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiCopy_32f_C1C3R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiCopy_32f_C1C4R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiCopy_32f_C3AC4R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiCopy_32f_AC4C3R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiCopy_32f_C3P3R(const Vok32f* src, int srcStep, Vok32f* const dst[3], int dstStep, VokiSize roi);
VOK_API VokStatus vokiCopy_32f_C4P4R(const Vok32f* src, int srcStep, Vok32f* const dst[4], int dstStep, VokiSize roi);
VOK_API VokStatus vokiCopy_32f_P3C3R(const Vok32f* const src[3], int srcStep, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiCopy_32f_P4C4R(const Vok32f* const src[4], int srcStep, Vok32f* dst, int dstStep, VokiSize roi);

/* ---- Set: fill with a constant ------------------------------------------
 * The value comes first. C3, C4 and AC4 forms take one value per written
 * channel; channel forms (C3CR, C4CR) point at the chosen channel and write
 * only it. Mask forms fill the pixels whose mask byte is non-zero. */
VOK_API VokStatus vokiSet_8u_C1R(Vok8u value, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiSet_8u_C3R(const Vok8u value[3], Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiSet_8u_C4R(const Vok8u value[4], Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiSet_8u_AC4R(const Vok8u value[3], Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiSet_8u_C3CR(Vok8u value, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiSet_8u_C4CR(Vok8u value, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiSet_8u_C1MR(Vok8u value, Vok8u* dst, int dstStep, VokiSize roi, const Vok8u* mask, int maskStep);
VOK_API VokStatus vokiSet_8u_C3MR(const Vok8u value[3], Vok8u* dst, int dstStep, VokiSize roi, const Vok8u* mask, int maskStep);
VOK_API VokStatus vokiSet_8u_C4MR(const Vok8u value[4], Vok8u* dst, int dstStep, VokiSize roi, const Vok8u* mask, int maskStep);
VOK_API VokStatus vokiSet_8u_AC4MR(const Vok8u value[3], Vok8u* dst, int dstStep, VokiSize roi, const Vok8u* mask, int maskStep);
VOK_API VokStatus vokiSet_16s_C1R(Vok16s value, Vok16s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiSet_16s_C3R(const Vok16s value[3], Vok16s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiSet_16s_C4R(const Vok16s value[4], Vok16s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiSet_16s_AC4R(const Vok16s value[3], Vok16s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiSet_16s_C3CR(Vok16s value, Vok16s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiSet_16s_C4CR(Vok16s value, Vok16s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiSet_16s_C1MR(Vok16s value, Vok16s* dst, int dstStep, VokiSize roi, const Vok8u* mask, int maskStep);
VOK_API VokStatus vokiSet_16s_C3MR(const Vok16s value[3], Vok16s* dst, int dstStep, VokiSize roi, const Vok8u* mask, int maskStep);
VOK_API VokStatus vokiSet_16s_C4MR(const Vok16s value[4], Vok16s* dst, int dstStep, VokiSize roi, const Vok8u* mask, int maskStep);
VOK_API VokStatus vokiSet_16s_AC4MR(const Vok16s value[3], Vok16s* dst, int dstStep, VokiSize roi, const Vok8u* mask, int maskStep);
VOK_API VokStatus vokiSet_32f_C1R(Vok32f value, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiSet_32f_C3R(const Vok32f value[3], Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiSet_32f_C4R(const Vok32f value[4], Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiSet_32f_AC4R(const Vok32f value[3], Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiSet_32f_C3CR(Vok32f value, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiSet_32f_C4CR(Vok32f value, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiSet_32f_C1MR(Vok32f value, Vok32f* dst, int dstStep, VokiSize roi, const Vok8u* mask, int maskStep);
VOK_API VokStatus vokiSet_32f_C3MR(const Vok32f value[3], Vok32f* dst, int dstStep, VokiSize roi, const Vok8u* mask, int maskStep);
VOK_API VokStatus vokiSet_32f_C4MR(const Vok32f value[4], Vok32f* dst, int dstStep, VokiSize roi, const Vok8u* mask, int maskStep);
VOK_API VokStatus vokiSet_32f_AC4MR(const Vok32f value[3], Vok32f* dst, int dstStep, VokiSize roi, const Vok8u* mask, int maskStep);

/* ---- Sum, Mean: per-channel totals and averages as Vok64f ---------------
 * Integer sums are exact. For 32f only vokHintAccurate selects double
 * accumulators; any other hint sums rows in single precision. AC4 writes
 * three results, C4 four. */
VOK_API VokStatus vokiSum_8u_C1R(const Vok8u* src, int srcStep, VokiSize roi, Vok64f* pSum);
VOK_API VokStatus vokiSum_8u_C3R(const Vok8u* src, int srcStep, VokiSize roi, Vok64f pSum[3]);
VOK_API VokStatus vokiSum_8u_C4R(const Vok8u* src, int srcStep, VokiSize roi, Vok64f pSum[4]);
VOK_API VokStatus vokiSum_8u_AC4R(const Vok8u* src, int srcStep, VokiSize roi, Vok64f pSum[3]);
VOK_API VokStatus vokiSum_16s_C1R(const Vok16s* src, int srcStep, VokiSize roi, Vok64f* pSum);
VOK_API VokStatus vokiSum_16s_C3R(const Vok16s* src, int srcStep, VokiSize roi, Vok64f pSum[3]);
VOK_API VokStatus vokiSum_16s_C4R(const Vok16s* src, int srcStep, VokiSize roi, Vok64f pSum[4]);
VOK_API VokStatus vokiSum_16s_AC4R(const Vok16s* src, int srcStep, VokiSize roi, Vok64f pSum[3]);
VOK_API VokStatus vokiSum_32f_C1R(const Vok32f* src, int srcStep, VokiSize roi, Vok64f* pSum, VokHint hint);
VOK_API VokStatus vokiSum_32f_C3R(const Vok32f* src, int srcStep, VokiSize roi, Vok64f pSum[3], VokHint hint);
VOK_API VokStatus vokiSum_32f_C4R(const Vok32f* src, int srcStep, VokiSize roi, Vok64f pSum[4], VokHint hint);
VOK_API VokStatus vokiSum_32f_AC4R(const Vok32f* src, int srcStep, VokiSize roi, Vok64f pSum[3], VokHint hint);
VOK_API VokStatus vokiMean_8u_C1R(const Vok8u* src, int srcStep, VokiSize roi, Vok64f* pMean);
VOK_API VokStatus vokiMean_8u_C3R(const Vok8u* src, int srcStep, VokiSize roi, Vok64f pMean[3]);
VOK_API VokStatus vokiMean_8u_C4R(const Vok8u* src, int srcStep, VokiSize roi, Vok64f pMean[4]);
VOK_API VokStatus vokiMean_8u_AC4R(const Vok8u* src, int srcStep, VokiSize roi, Vok64f pMean[3]);
VOK_API VokStatus vokiMean_16s_C1R(const Vok16s* src, int srcStep, VokiSize roi, Vok64f* pMean);
VOK_API VokStatus vokiMean_16s_C3R(const Vok16s* src, int srcStep, VokiSize roi, Vok64f pMean[3]);
VOK_API VokStatus vokiMean_16s_C4R(const Vok16s* src, int srcStep, VokiSize roi, Vok64f pMean[4]);
VOK_API VokStatus vokiMean_16s_AC4R(const Vok16s* src, int srcStep, VokiSize roi, Vok64f pMean[3]);
VOK_API VokStatus vokiMean_32f_C1R(const Vok32f* src, int srcStep, VokiSize roi, Vok64f* pMean, VokHint hint);
VOK_API VokStatus vokiMean_32f_C3R(const Vok32f* src, int srcStep, VokiSize roi, Vok64f pMean[3], VokHint hint);
VOK_API VokStatus vokiMean_32f_C4R(const Vok32f* src, int srcStep, VokiSize roi, Vok64f pMean[4], VokHint hint);
VOK_API VokStatus vokiMean_32f_AC4R(const Vok32f* src, int srcStep, VokiSize roi, Vok64f pMean[3], VokHint hint);

/* ---- Min, Max, MinMax, MinIndx, MaxIndx: extrema per channel -----------
 * 32f extrema start at FLT_MAX and -FLT_MAX. Indices are pixels from the
 * region's first pixel; ties go to the top-most row, then the left-most. */
VOK_API VokStatus vokiMin_8u_C1R(const Vok8u* src, int srcStep, VokiSize roi, Vok8u* pMin);
VOK_API VokStatus vokiMax_8u_C1R(const Vok8u* src, int srcStep, VokiSize roi, Vok8u* pMax);
VOK_API VokStatus vokiMinMax_8u_C1R(const Vok8u* src, int srcStep, VokiSize roi, Vok8u* pMin, Vok8u* pMax);
VOK_API VokStatus vokiMinIndx_8u_C1R(const Vok8u* src, int srcStep, VokiSize roi, Vok8u* pMin, int* pIndexX, int* pIndexY);
VOK_API VokStatus vokiMaxIndx_8u_C1R(const Vok8u* src, int srcStep, VokiSize roi, Vok8u* pMax, int* pIndexX, int* pIndexY);
VOK_API VokStatus vokiMin_8u_C3R(const Vok8u* src, int srcStep, VokiSize roi, Vok8u pMin[3]);
VOK_API VokStatus vokiMax_8u_C3R(const Vok8u* src, int srcStep, VokiSize roi, Vok8u pMax[3]);
VOK_API VokStatus vokiMinMax_8u_C3R(const Vok8u* src, int srcStep, VokiSize roi, Vok8u pMin[3], Vok8u pMax[3]);
VOK_API VokStatus vokiMinIndx_8u_C3R(const Vok8u* src, int srcStep, VokiSize roi, Vok8u pMin[3], int pIndexX[3], int pIndexY[3]);
VOK_API VokStatus vokiMaxIndx_8u_C3R(const Vok8u* src, int srcStep, VokiSize roi, Vok8u pMax[3], int pIndexX[3], int pIndexY[3]);
VOK_API VokStatus vokiMin_8u_C4R(const Vok8u* src, int srcStep, VokiSize roi, Vok8u pMin[4]);
VOK_API VokStatus vokiMax_8u_C4R(const Vok8u* src, int srcStep, VokiSize roi, Vok8u pMax[4]);
VOK_API VokStatus vokiMinMax_8u_C4R(const Vok8u* src, int srcStep, VokiSize roi, Vok8u pMin[4], Vok8u pMax[4]);
VOK_API VokStatus vokiMinIndx_8u_C4R(const Vok8u* src, int srcStep, VokiSize roi, Vok8u pMin[4], int pIndexX[4], int pIndexY[4]);
VOK_API VokStatus vokiMaxIndx_8u_C4R(const Vok8u* src, int srcStep, VokiSize roi, Vok8u pMax[4], int pIndexX[4], int pIndexY[4]);
VOK_API VokStatus vokiMin_8u_AC4R(const Vok8u* src, int srcStep, VokiSize roi, Vok8u pMin[3]);
VOK_API VokStatus vokiMax_8u_AC4R(const Vok8u* src, int srcStep, VokiSize roi, Vok8u pMax[3]);
VOK_API VokStatus vokiMinMax_8u_AC4R(const Vok8u* src, int srcStep, VokiSize roi, Vok8u pMin[3], Vok8u pMax[3]);
VOK_API VokStatus vokiMinIndx_8u_AC4R(const Vok8u* src, int srcStep, VokiSize roi, Vok8u pMin[3], int pIndexX[3], int pIndexY[3]);
VOK_API VokStatus vokiMaxIndx_8u_AC4R(const Vok8u* src, int srcStep, VokiSize roi, Vok8u pMax[3], int pIndexX[3], int pIndexY[3]);
VOK_API VokStatus vokiMin_16s_C1R(const Vok16s* src, int srcStep, VokiSize roi, Vok16s* pMin);
VOK_API VokStatus vokiMax_16s_C1R(const Vok16s* src, int srcStep, VokiSize roi, Vok16s* pMax);
VOK_API VokStatus vokiMinMax_16s_C1R(const Vok16s* src, int srcStep, VokiSize roi, Vok16s* pMin, Vok16s* pMax);
VOK_API VokStatus vokiMinIndx_16s_C1R(const Vok16s* src, int srcStep, VokiSize roi, Vok16s* pMin, int* pIndexX, int* pIndexY);
VOK_API VokStatus vokiMaxIndx_16s_C1R(const Vok16s* src, int srcStep, VokiSize roi, Vok16s* pMax, int* pIndexX, int* pIndexY);
VOK_API VokStatus vokiMin_16s_C3R(const Vok16s* src, int srcStep, VokiSize roi, Vok16s pMin[3]);
VOK_API VokStatus vokiMax_16s_C3R(const Vok16s* src, int srcStep, VokiSize roi, Vok16s pMax[3]);
VOK_API VokStatus vokiMinMax_16s_C3R(const Vok16s* src, int srcStep, VokiSize roi, Vok16s pMin[3], Vok16s pMax[3]);
VOK_API VokStatus vokiMinIndx_16s_C3R(const Vok16s* src, int srcStep, VokiSize roi, Vok16s pMin[3], int pIndexX[3], int pIndexY[3]);
VOK_API VokStatus vokiMaxIndx_16s_C3R(const Vok16s* src, int srcStep, VokiSize roi, Vok16s pMax[3], int pIndexX[3], int pIndexY[3]);
VOK_API VokStatus vokiMin_16s_C4R(const Vok16s* src, int srcStep, VokiSize roi, Vok16s pMin[4]);
VOK_API VokStatus vokiMax_16s_C4R(const Vok16s* src, int srcStep, VokiSize roi, Vok16s pMax[4]);
VOK_API VokStatus vokiMinMax_16s_C4R(const Vok16s* src, int srcStep, VokiSize roi, Vok16s pMin[4], Vok16s pMax[4]);
VOK_API VokStatus vokiMinIndx_16s_C4R(const Vok16s* src, int srcStep, VokiSize roi, Vok16s pMin[4], int pIndexX[4], int pIndexY[4]);
VOK_API VokStatus vokiMaxIndx_16s_C4R(const Vok16s* src, int srcStep, VokiSize roi, Vok16s pMax[4], int pIndexX[4], int pIndexY[4]);
VOK_API VokStatus vokiMin_16s_AC4R(const Vok16s* src, int srcStep, VokiSize roi, Vok16s pMin[3]);
VOK_API VokStatus vokiMax_16s_AC4R(const Vok16s* src, int srcStep, VokiSize roi, Vok16s pMax[3]);
VOK_API VokStatus vokiMinMax_16s_AC4R(const Vok16s* src, int srcStep, VokiSize roi, Vok16s pMin[3], Vok16s pMax[3]);
VOK_API VokStatus vokiMinIndx_16s_AC4R(const Vok16s* src, int srcStep, VokiSize roi, Vok16s pMin[3], int pIndexX[3], int pIndexY[3]);
VOK_API VokStatus vokiMaxIndx_16s_AC4R(const Vok16s* src, int srcStep, VokiSize roi, Vok16s pMax[3], int pIndexX[3], int pIndexY[3]);
VOK_API VokStatus vokiMin_32f_C1R(const Vok32f* src, int srcStep, VokiSize roi, Vok32f* pMin);
VOK_API VokStatus vokiMax_32f_C1R(const Vok32f* src, int srcStep, VokiSize roi, Vok32f* pMax);
VOK_API VokStatus vokiMinMax_32f_C1R(const Vok32f* src, int srcStep, VokiSize roi, Vok32f* pMin, Vok32f* pMax);
VOK_API VokStatus vokiMinIndx_32f_C1R(const Vok32f* src, int srcStep, VokiSize roi, Vok32f* pMin, int* pIndexX, int* pIndexY);
VOK_API VokStatus vokiMaxIndx_32f_C1R(const Vok32f* src, int srcStep, VokiSize roi, Vok32f* pMax, int* pIndexX, int* pIndexY);
VOK_API VokStatus vokiMin_32f_C3R(const Vok32f* src, int srcStep, VokiSize roi, Vok32f pMin[3]);
VOK_API VokStatus vokiMax_32f_C3R(const Vok32f* src, int srcStep, VokiSize roi, Vok32f pMax[3]);
VOK_API VokStatus vokiMinMax_32f_C3R(const Vok32f* src, int srcStep, VokiSize roi, Vok32f pMin[3], Vok32f pMax[3]);
VOK_API VokStatus vokiMinIndx_32f_C3R(const Vok32f* src, int srcStep, VokiSize roi, Vok32f pMin[3], int pIndexX[3], int pIndexY[3]);
VOK_API VokStatus vokiMaxIndx_32f_C3R(const Vok32f* src, int srcStep, VokiSize roi, Vok32f pMax[3], int pIndexX[3], int pIndexY[3]);
VOK_API VokStatus vokiMin_32f_C4R(const Vok32f* src, int srcStep, VokiSize roi, Vok32f pMin[4]);
VOK_API VokStatus vokiMax_32f_C4R(const Vok32f* src, int srcStep, VokiSize roi, Vok32f pMax[4]);
VOK_API VokStatus vokiMinMax_32f_C4R(const Vok32f* src, int srcStep, VokiSize roi, Vok32f pMin[4], Vok32f pMax[4]);
VOK_API VokStatus vokiMinIndx_32f_C4R(const Vok32f* src, int srcStep, VokiSize roi, Vok32f pMin[4], int pIndexX[4], int pIndexY[4]);
VOK_API VokStatus vokiMaxIndx_32f_C4R(const Vok32f* src, int srcStep, VokiSize roi, Vok32f pMax[4], int pIndexX[4], int pIndexY[4]);
VOK_API VokStatus vokiMin_32f_AC4R(const Vok32f* src, int srcStep, VokiSize roi, Vok32f pMin[3]);
VOK_API VokStatus vokiMax_32f_AC4R(const Vok32f* src, int srcStep, VokiSize roi, Vok32f pMax[3]);
VOK_API VokStatus vokiMinMax_32f_AC4R(const Vok32f* src, int srcStep, VokiSize roi, Vok32f pMin[3], Vok32f pMax[3]);
VOK_API VokStatus vokiMinIndx_32f_AC4R(const Vok32f* src, int srcStep, VokiSize roi, Vok32f pMin[3], int pIndexX[3], int pIndexY[3]);
VOK_API VokStatus vokiMaxIndx_32f_AC4R(const Vok32f* src, int srcStep, VokiSize roi, Vok32f pMax[3], int pIndexX[3], int pIndexY[3]);

/* ---- Norm, NormDiff, NormRel: Inf, L1 and L2 norms as Vok64f ----------
 * NormDiff measures src1 - src2; NormRel divides that by the norm of src2
 * and returns vokWarnDivideByZero, with the undivided values, when a
 * channel's denominator is below the smallest normal double. */
VOK_API VokStatus vokiNorm_Inf_8u_C1R(const Vok8u* src, int srcStep, VokiSize roi, Vok64f* pValue);
VOK_API VokStatus vokiNorm_Inf_8u_C3R(const Vok8u* src, int srcStep, VokiSize roi, Vok64f pValue[3]);
VOK_API VokStatus vokiNorm_Inf_8u_C4R(const Vok8u* src, int srcStep, VokiSize roi, Vok64f pValue[4]);
VOK_API VokStatus vokiNorm_Inf_8u_AC4R(const Vok8u* src, int srcStep, VokiSize roi, Vok64f pValue[3]);
VOK_API VokStatus vokiNorm_Inf_16s_C1R(const Vok16s* src, int srcStep, VokiSize roi, Vok64f* pValue);
VOK_API VokStatus vokiNorm_Inf_16s_C3R(const Vok16s* src, int srcStep, VokiSize roi, Vok64f pValue[3]);
VOK_API VokStatus vokiNorm_Inf_16s_C4R(const Vok16s* src, int srcStep, VokiSize roi, Vok64f pValue[4]);
VOK_API VokStatus vokiNorm_Inf_16s_AC4R(const Vok16s* src, int srcStep, VokiSize roi, Vok64f pValue[3]);
VOK_API VokStatus vokiNorm_Inf_32f_C1R(const Vok32f* src, int srcStep, VokiSize roi, Vok64f* pValue);
VOK_API VokStatus vokiNorm_Inf_32f_C3R(const Vok32f* src, int srcStep, VokiSize roi, Vok64f pValue[3]);
VOK_API VokStatus vokiNorm_Inf_32f_C4R(const Vok32f* src, int srcStep, VokiSize roi, Vok64f pValue[4]);
VOK_API VokStatus vokiNorm_Inf_32f_AC4R(const Vok32f* src, int srcStep, VokiSize roi, Vok64f pValue[3]);
VOK_API VokStatus vokiNorm_Inf_32s_C1R(const Vok32s* src, int srcStep, VokiSize roi, Vok64f* pValue);
VOK_API VokStatus vokiNorm_L1_8u_C1R(const Vok8u* src, int srcStep, VokiSize roi, Vok64f* pValue);
VOK_API VokStatus vokiNorm_L1_8u_C3R(const Vok8u* src, int srcStep, VokiSize roi, Vok64f pValue[3]);
VOK_API VokStatus vokiNorm_L1_8u_C4R(const Vok8u* src, int srcStep, VokiSize roi, Vok64f pValue[4]);
VOK_API VokStatus vokiNorm_L1_8u_AC4R(const Vok8u* src, int srcStep, VokiSize roi, Vok64f pValue[3]);
VOK_API VokStatus vokiNorm_L1_16s_C1R(const Vok16s* src, int srcStep, VokiSize roi, Vok64f* pValue);
VOK_API VokStatus vokiNorm_L1_16s_C3R(const Vok16s* src, int srcStep, VokiSize roi, Vok64f pValue[3]);
VOK_API VokStatus vokiNorm_L1_16s_C4R(const Vok16s* src, int srcStep, VokiSize roi, Vok64f pValue[4]);
VOK_API VokStatus vokiNorm_L1_16s_AC4R(const Vok16s* src, int srcStep, VokiSize roi, Vok64f pValue[3]);
VOK_API VokStatus vokiNorm_L1_32f_C1R(const Vok32f* src, int srcStep, VokiSize roi, Vok64f* pValue, VokHint hint);
VOK_API VokStatus vokiNorm_L1_32f_C3R(const Vok32f* src, int srcStep, VokiSize roi, Vok64f pValue[3], VokHint hint);
VOK_API VokStatus vokiNorm_L1_32f_C4R(const Vok32f* src, int srcStep, VokiSize roi, Vok64f pValue[4], VokHint hint);
VOK_API VokStatus vokiNorm_L1_32f_AC4R(const Vok32f* src, int srcStep, VokiSize roi, Vok64f pValue[3], VokHint hint);
VOK_API VokStatus vokiNorm_L2_8u_C1R(const Vok8u* src, int srcStep, VokiSize roi, Vok64f* pValue);
VOK_API VokStatus vokiNorm_L2_8u_C3R(const Vok8u* src, int srcStep, VokiSize roi, Vok64f pValue[3]);
VOK_API VokStatus vokiNorm_L2_8u_C4R(const Vok8u* src, int srcStep, VokiSize roi, Vok64f pValue[4]);
VOK_API VokStatus vokiNorm_L2_8u_AC4R(const Vok8u* src, int srcStep, VokiSize roi, Vok64f pValue[3]);
VOK_API VokStatus vokiNorm_L2_16s_C1R(const Vok16s* src, int srcStep, VokiSize roi, Vok64f* pValue);
VOK_API VokStatus vokiNorm_L2_16s_C3R(const Vok16s* src, int srcStep, VokiSize roi, Vok64f pValue[3]);
VOK_API VokStatus vokiNorm_L2_16s_C4R(const Vok16s* src, int srcStep, VokiSize roi, Vok64f pValue[4]);
VOK_API VokStatus vokiNorm_L2_16s_AC4R(const Vok16s* src, int srcStep, VokiSize roi, Vok64f pValue[3]);
VOK_API VokStatus vokiNorm_L2_32f_C1R(const Vok32f* src, int srcStep, VokiSize roi, Vok64f* pValue, VokHint hint);
VOK_API VokStatus vokiNorm_L2_32f_C3R(const Vok32f* src, int srcStep, VokiSize roi, Vok64f pValue[3], VokHint hint);
VOK_API VokStatus vokiNorm_L2_32f_C4R(const Vok32f* src, int srcStep, VokiSize roi, Vok64f pValue[4], VokHint hint);
VOK_API VokStatus vokiNorm_L2_32f_AC4R(const Vok32f* src, int srcStep, VokiSize roi, Vok64f pValue[3], VokHint hint);
VOK_API VokStatus vokiNormDiff_Inf_8u_C1R(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, VokiSize roi, Vok64f* pValue);
VOK_API VokStatus vokiNormDiff_Inf_8u_C3R(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, VokiSize roi, Vok64f pValue[3]);
VOK_API VokStatus vokiNormDiff_Inf_8u_C4R(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, VokiSize roi, Vok64f pValue[4]);
VOK_API VokStatus vokiNormDiff_Inf_8u_AC4R(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, VokiSize roi, Vok64f pValue[3]);
VOK_API VokStatus vokiNormDiff_Inf_16s_C1R(const Vok16s* src1, int src1Step, const Vok16s* src2, int src2Step, VokiSize roi, Vok64f* pValue);
VOK_API VokStatus vokiNormDiff_Inf_16s_C3R(const Vok16s* src1, int src1Step, const Vok16s* src2, int src2Step, VokiSize roi, Vok64f pValue[3]);
VOK_API VokStatus vokiNormDiff_Inf_16s_C4R(const Vok16s* src1, int src1Step, const Vok16s* src2, int src2Step, VokiSize roi, Vok64f pValue[4]);
VOK_API VokStatus vokiNormDiff_Inf_16s_AC4R(const Vok16s* src1, int src1Step, const Vok16s* src2, int src2Step, VokiSize roi, Vok64f pValue[3]);
VOK_API VokStatus vokiNormDiff_Inf_32f_C1R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, VokiSize roi, Vok64f* pValue);
VOK_API VokStatus vokiNormDiff_Inf_32f_C3R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, VokiSize roi, Vok64f pValue[3]);
VOK_API VokStatus vokiNormDiff_Inf_32f_C4R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, VokiSize roi, Vok64f pValue[4]);
VOK_API VokStatus vokiNormDiff_Inf_32f_AC4R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, VokiSize roi, Vok64f pValue[3]);
VOK_API VokStatus vokiNormDiff_L1_8u_C1R(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, VokiSize roi, Vok64f* pValue);
VOK_API VokStatus vokiNormDiff_L1_8u_C3R(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, VokiSize roi, Vok64f pValue[3]);
VOK_API VokStatus vokiNormDiff_L1_8u_C4R(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, VokiSize roi, Vok64f pValue[4]);
VOK_API VokStatus vokiNormDiff_L1_8u_AC4R(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, VokiSize roi, Vok64f pValue[3]);
VOK_API VokStatus vokiNormDiff_L1_16s_C1R(const Vok16s* src1, int src1Step, const Vok16s* src2, int src2Step, VokiSize roi, Vok64f* pValue);
VOK_API VokStatus vokiNormDiff_L1_16s_C3R(const Vok16s* src1, int src1Step, const Vok16s* src2, int src2Step, VokiSize roi, Vok64f pValue[3]);
VOK_API VokStatus vokiNormDiff_L1_16s_C4R(const Vok16s* src1, int src1Step, const Vok16s* src2, int src2Step, VokiSize roi, Vok64f pValue[4]);
VOK_API VokStatus vokiNormDiff_L1_16s_AC4R(const Vok16s* src1, int src1Step, const Vok16s* src2, int src2Step, VokiSize roi, Vok64f pValue[3]);
VOK_API VokStatus vokiNormDiff_L1_32f_C1R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, VokiSize roi, Vok64f* pValue, VokHint hint);
VOK_API VokStatus vokiNormDiff_L1_32f_C3R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, VokiSize roi, Vok64f pValue[3], VokHint hint);
VOK_API VokStatus vokiNormDiff_L1_32f_C4R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, VokiSize roi, Vok64f pValue[4], VokHint hint);
VOK_API VokStatus vokiNormDiff_L1_32f_AC4R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, VokiSize roi, Vok64f pValue[3], VokHint hint);
VOK_API VokStatus vokiNormDiff_L2_8u_C1R(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, VokiSize roi, Vok64f* pValue);
VOK_API VokStatus vokiNormDiff_L2_8u_C3R(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, VokiSize roi, Vok64f pValue[3]);
VOK_API VokStatus vokiNormDiff_L2_8u_C4R(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, VokiSize roi, Vok64f pValue[4]);
VOK_API VokStatus vokiNormDiff_L2_8u_AC4R(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, VokiSize roi, Vok64f pValue[3]);
VOK_API VokStatus vokiNormDiff_L2_16s_C1R(const Vok16s* src1, int src1Step, const Vok16s* src2, int src2Step, VokiSize roi, Vok64f* pValue);
VOK_API VokStatus vokiNormDiff_L2_16s_C3R(const Vok16s* src1, int src1Step, const Vok16s* src2, int src2Step, VokiSize roi, Vok64f pValue[3]);
VOK_API VokStatus vokiNormDiff_L2_16s_C4R(const Vok16s* src1, int src1Step, const Vok16s* src2, int src2Step, VokiSize roi, Vok64f pValue[4]);
VOK_API VokStatus vokiNormDiff_L2_16s_AC4R(const Vok16s* src1, int src1Step, const Vok16s* src2, int src2Step, VokiSize roi, Vok64f pValue[3]);
VOK_API VokStatus vokiNormDiff_L2_32f_C1R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, VokiSize roi, Vok64f* pValue, VokHint hint);
VOK_API VokStatus vokiNormDiff_L2_32f_C3R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, VokiSize roi, Vok64f pValue[3], VokHint hint);
VOK_API VokStatus vokiNormDiff_L2_32f_C4R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, VokiSize roi, Vok64f pValue[4], VokHint hint);
VOK_API VokStatus vokiNormDiff_L2_32f_AC4R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, VokiSize roi, Vok64f pValue[3], VokHint hint);
VOK_API VokStatus vokiNormRel_Inf_8u_C1R(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, VokiSize roi, Vok64f* pValue);
VOK_API VokStatus vokiNormRel_Inf_8u_C3R(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, VokiSize roi, Vok64f pValue[3]);
VOK_API VokStatus vokiNormRel_Inf_8u_C4R(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, VokiSize roi, Vok64f pValue[4]);
VOK_API VokStatus vokiNormRel_Inf_8u_AC4R(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, VokiSize roi, Vok64f pValue[3]);
VOK_API VokStatus vokiNormRel_Inf_16s_C1R(const Vok16s* src1, int src1Step, const Vok16s* src2, int src2Step, VokiSize roi, Vok64f* pValue);
VOK_API VokStatus vokiNormRel_Inf_16s_C3R(const Vok16s* src1, int src1Step, const Vok16s* src2, int src2Step, VokiSize roi, Vok64f pValue[3]);
VOK_API VokStatus vokiNormRel_Inf_16s_C4R(const Vok16s* src1, int src1Step, const Vok16s* src2, int src2Step, VokiSize roi, Vok64f pValue[4]);
VOK_API VokStatus vokiNormRel_Inf_16s_AC4R(const Vok16s* src1, int src1Step, const Vok16s* src2, int src2Step, VokiSize roi, Vok64f pValue[3]);
VOK_API VokStatus vokiNormRel_Inf_32f_C1R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, VokiSize roi, Vok64f* pValue);
VOK_API VokStatus vokiNormRel_Inf_32f_C3R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, VokiSize roi, Vok64f pValue[3]);
VOK_API VokStatus vokiNormRel_Inf_32f_C4R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, VokiSize roi, Vok64f pValue[4]);
VOK_API VokStatus vokiNormRel_Inf_32f_AC4R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, VokiSize roi, Vok64f pValue[3]);
VOK_API VokStatus vokiNormRel_L1_8u_C1R(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, VokiSize roi, Vok64f* pValue);
VOK_API VokStatus vokiNormRel_L1_8u_C3R(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, VokiSize roi, Vok64f pValue[3]);
VOK_API VokStatus vokiNormRel_L1_8u_C4R(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, VokiSize roi, Vok64f pValue[4]);
VOK_API VokStatus vokiNormRel_L1_8u_AC4R(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, VokiSize roi, Vok64f pValue[3]);
VOK_API VokStatus vokiNormRel_L1_16s_C1R(const Vok16s* src1, int src1Step, const Vok16s* src2, int src2Step, VokiSize roi, Vok64f* pValue);
VOK_API VokStatus vokiNormRel_L1_16s_C3R(const Vok16s* src1, int src1Step, const Vok16s* src2, int src2Step, VokiSize roi, Vok64f pValue[3]);
VOK_API VokStatus vokiNormRel_L1_16s_C4R(const Vok16s* src1, int src1Step, const Vok16s* src2, int src2Step, VokiSize roi, Vok64f pValue[4]);
VOK_API VokStatus vokiNormRel_L1_16s_AC4R(const Vok16s* src1, int src1Step, const Vok16s* src2, int src2Step, VokiSize roi, Vok64f pValue[3]);
VOK_API VokStatus vokiNormRel_L1_32f_C1R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, VokiSize roi, Vok64f* pValue, VokHint hint);
VOK_API VokStatus vokiNormRel_L1_32f_C3R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, VokiSize roi, Vok64f pValue[3], VokHint hint);
VOK_API VokStatus vokiNormRel_L1_32f_C4R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, VokiSize roi, Vok64f pValue[4], VokHint hint);
VOK_API VokStatus vokiNormRel_L1_32f_AC4R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, VokiSize roi, Vok64f pValue[3], VokHint hint);
VOK_API VokStatus vokiNormRel_L2_8u_C1R(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, VokiSize roi, Vok64f* pValue);
VOK_API VokStatus vokiNormRel_L2_8u_C3R(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, VokiSize roi, Vok64f pValue[3]);
VOK_API VokStatus vokiNormRel_L2_8u_C4R(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, VokiSize roi, Vok64f pValue[4]);
VOK_API VokStatus vokiNormRel_L2_8u_AC4R(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, VokiSize roi, Vok64f pValue[3]);
VOK_API VokStatus vokiNormRel_L2_16s_C1R(const Vok16s* src1, int src1Step, const Vok16s* src2, int src2Step, VokiSize roi, Vok64f* pValue);
VOK_API VokStatus vokiNormRel_L2_16s_C3R(const Vok16s* src1, int src1Step, const Vok16s* src2, int src2Step, VokiSize roi, Vok64f pValue[3]);
VOK_API VokStatus vokiNormRel_L2_16s_C4R(const Vok16s* src1, int src1Step, const Vok16s* src2, int src2Step, VokiSize roi, Vok64f pValue[4]);
VOK_API VokStatus vokiNormRel_L2_16s_AC4R(const Vok16s* src1, int src1Step, const Vok16s* src2, int src2Step, VokiSize roi, Vok64f pValue[3]);
VOK_API VokStatus vokiNormRel_L2_32f_C1R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, VokiSize roi, Vok64f* pValue, VokHint hint);
VOK_API VokStatus vokiNormRel_L2_32f_C3R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, VokiSize roi, Vok64f pValue[3], VokHint hint);
VOK_API VokStatus vokiNormRel_L2_32f_C4R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, VokiSize roi, Vok64f pValue[4], VokHint hint);
VOK_API VokStatus vokiNormRel_L2_32f_AC4R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, VokiSize roi, Vok64f pValue[3], VokHint hint);
/* ---- Division -------------------------------------------------------------
 * Div gives src2 / src1 (in place srcDst / src); DivC src / value. Integer
 * quotients round to nearest with ties to even after the scale factor and
 * saturate; a zero divisor sample gives the bound of the dividend's sign (0
 * for 0) and returns vokWarnDivideByZero once the image is done. 32f by ±0
 * gives infinity of the dividend's sign, NaN for 0 and NaN. DivC refuses a
 * zero constant with vokStatusDivideByZero (8u C3: after writing), and 32f
 * DivC multiplies by 1/value. */
VOK_API VokStatus vokiDiv_8u_C1RSfs(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, Vok8u* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiDiv_8u_C1IRSfs(const Vok8u* src, int srcStep, Vok8u* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiDiv_8u_C3RSfs(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, Vok8u* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiDiv_8u_C3IRSfs(const Vok8u* src, int srcStep, Vok8u* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiDiv_16s_C1RSfs(const Vok16s* src1, int src1Step, const Vok16s* src2, int src2Step, Vok16s* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiDiv_16s_C1IRSfs(const Vok16s* src, int srcStep, Vok16s* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiDiv_16s_C3RSfs(const Vok16s* src1, int src1Step, const Vok16s* src2, int src2Step, Vok16s* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiDiv_16s_C3IRSfs(const Vok16s* src, int srcStep, Vok16s* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiDiv_32f_C1R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiDiv_32f_C1IR(const Vok32f* src, int srcStep, Vok32f* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiDiv_32f_C3R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiDiv_32f_C3IR(const Vok32f* src, int srcStep, Vok32f* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiDiv_32f_C4R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiDiv_32f_C4IR(const Vok32f* src, int srcStep, Vok32f* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiDiv_32f_AC4R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiDiv_32f_AC4IR(const Vok32f* src, int srcStep, Vok32f* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiDivC_8u_C1RSfs(const Vok8u* src, int srcStep, Vok8u value, Vok8u* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiDivC_8u_C1IRSfs(Vok8u value, Vok8u* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiDivC_8u_C3RSfs(const Vok8u* src, int srcStep, const Vok8u value[3], Vok8u* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiDivC_8u_C3IRSfs(const Vok8u value[3], Vok8u* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiDivC_16s_C1RSfs(const Vok16s* src, int srcStep, Vok16s value, Vok16s* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiDivC_16s_C1IRSfs(Vok16s value, Vok16s* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiDivC_16s_C3RSfs(const Vok16s* src, int srcStep, const Vok16s value[3], Vok16s* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiDivC_16s_C3IRSfs(const Vok16s value[3], Vok16s* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiDivC_32f_C1R(const Vok32f* src, int srcStep, Vok32f value, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiDivC_32f_C1IR(Vok32f value, Vok32f* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiDivC_32f_C3R(const Vok32f* src, int srcStep, const Vok32f value[3], Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiDivC_32f_C3IR(const Vok32f value[3], Vok32f* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus voksDiv_8u_Sfs(const Vok8u* src1, const Vok8u* src2, Vok8u* dst, int len, int scale);
VOK_API VokStatus voksDiv_16s_Sfs(const Vok16s* src1, const Vok16s* src2, Vok16s* dst, int len, int scale);
VOK_API VokStatus voksDiv_32f(const Vok32f* src1, const Vok32f* src2, Vok32f* dst, int len);
VOK_API VokStatus voksDivC_8u_Sfs(const Vok8u* src, Vok8u value, Vok8u* dst, int len, int scale);
VOK_API VokStatus voksDivC_16s_Sfs(const Vok16s* src, Vok16s value, Vok16s* dst, int len, int scale);

/* ---- Abs ------------------------------------------------------------------
 * |x|: 16s saturates (-32768 gives 32767), 32f clears the sign bit. */
VOK_API VokStatus vokiAbs_16s_C1R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiAbs_16s_C1IR(Vok16s* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiAbs_16s_C3R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiAbs_16s_C3IR(Vok16s* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiAbs_16s_C4R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiAbs_16s_C4IR(Vok16s* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiAbs_16s_AC4R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiAbs_16s_AC4IR(Vok16s* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiAbs_32f_C1R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiAbs_32f_C1IR(Vok32f* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiAbs_32f_C3R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiAbs_32f_C3IR(Vok32f* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiAbs_32f_C4R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiAbs_32f_C4IR(Vok32f* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiAbs_32f_AC4R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiAbs_32f_AC4IR(Vok32f* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus voksAbs_16s(const Vok16s* src, Vok16s* dst, int len);
VOK_API VokStatus voksAbs_16s_I(Vok16s* srcDst, int len);
VOK_API VokStatus voksAbs_32f(const Vok32f* src, Vok32f* dst, int len);
VOK_API VokStatus voksAbs_32f_I(Vok32f* srcDst, int len);

/* ---- Sqr ------------------------------------------------------------------
 * x * x; integers exact, then scaled, rounded with ties to even, saturated. */
VOK_API VokStatus vokiSqr_8u_C1RSfs(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSqr_8u_C1IRSfs(Vok8u* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSqr_8u_C3RSfs(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSqr_8u_C3IRSfs(Vok8u* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSqr_8u_C4RSfs(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSqr_8u_C4IRSfs(Vok8u* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSqr_8u_AC4RSfs(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSqr_8u_AC4IRSfs(Vok8u* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSqr_16u_C1RSfs(const Vok16u* src, int srcStep, Vok16u* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSqr_16u_C1IRSfs(Vok16u* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSqr_16u_C3RSfs(const Vok16u* src, int srcStep, Vok16u* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSqr_16u_C3IRSfs(Vok16u* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSqr_16u_C4RSfs(const Vok16u* src, int srcStep, Vok16u* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSqr_16u_C4IRSfs(Vok16u* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSqr_16u_AC4RSfs(const Vok16u* src, int srcStep, Vok16u* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSqr_16u_AC4IRSfs(Vok16u* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSqr_16s_C1RSfs(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSqr_16s_C1IRSfs(Vok16s* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSqr_16s_C3RSfs(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSqr_16s_C3IRSfs(Vok16s* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSqr_16s_C4RSfs(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSqr_16s_C4IRSfs(Vok16s* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSqr_16s_AC4RSfs(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSqr_16s_AC4IRSfs(Vok16s* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSqr_32f_C1R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiSqr_32f_C1IR(Vok32f* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiSqr_32f_C3R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiSqr_32f_C3IR(Vok32f* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiSqr_32f_C4R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiSqr_32f_C4IR(Vok32f* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiSqr_32f_AC4R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiSqr_32f_AC4IR(Vok32f* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus voksSqr_8u_Sfs(const Vok8u* src, Vok8u* dst, int len, int scale);
VOK_API VokStatus voksSqr_8u_ISfs(Vok8u* srcDst, int len, int scale);
VOK_API VokStatus voksSqr_16u_Sfs(const Vok16u* src, Vok16u* dst, int len, int scale);
VOK_API VokStatus voksSqr_16u_ISfs(Vok16u* srcDst, int len, int scale);
VOK_API VokStatus voksSqr_16s_Sfs(const Vok16s* src, Vok16s* dst, int len, int scale);
VOK_API VokStatus voksSqr_16s_ISfs(Vok16s* srcDst, int len, int scale);
VOK_API VokStatus voksSqr_32f(const Vok32f* src, Vok32f* dst, int len);
VOK_API VokStatus voksSqr_32f_I(Vok32f* srcDst, int len);

/* ---- Sqrt -----------------------------------------------------------------
 * The exact square root scaled, rounded with ties to even, saturated. Negative
 * samples give 0 (16s) or NaN (32f, not -0) and vokWarnSqrtDomain. */
VOK_API VokStatus vokiSqrt_8u_C1RSfs(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSqrt_8u_C1IRSfs(Vok8u* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSqrt_8u_C3RSfs(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSqrt_8u_C3IRSfs(Vok8u* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSqrt_8u_AC4RSfs(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSqrt_8u_AC4IRSfs(Vok8u* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSqrt_16u_C1RSfs(const Vok16u* src, int srcStep, Vok16u* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSqrt_16u_C1IRSfs(Vok16u* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSqrt_16u_C3RSfs(const Vok16u* src, int srcStep, Vok16u* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSqrt_16u_C3IRSfs(Vok16u* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSqrt_16u_AC4RSfs(const Vok16u* src, int srcStep, Vok16u* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSqrt_16u_AC4IRSfs(Vok16u* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSqrt_16s_C1RSfs(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSqrt_16s_C1IRSfs(Vok16s* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSqrt_16s_C3RSfs(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSqrt_16s_C3IRSfs(Vok16s* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSqrt_16s_AC4RSfs(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSqrt_16s_AC4IRSfs(Vok16s* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSqrt_32f_C1R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiSqrt_32f_C1IR(Vok32f* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiSqrt_32f_C3R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiSqrt_32f_C3IR(Vok32f* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiSqrt_32f_AC4R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiSqrt_32f_AC4IR(Vok32f* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiSqrt_32f_C4IR(Vok32f* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus voksSqrt_8u_Sfs(const Vok8u* src, Vok8u* dst, int len, int scale);
VOK_API VokStatus voksSqrt_8u_ISfs(Vok8u* srcDst, int len, int scale);
VOK_API VokStatus voksSqrt_16u_Sfs(const Vok16u* src, Vok16u* dst, int len, int scale);
VOK_API VokStatus voksSqrt_16u_ISfs(Vok16u* srcDst, int len, int scale);
VOK_API VokStatus voksSqrt_16s_Sfs(const Vok16s* src, Vok16s* dst, int len, int scale);
VOK_API VokStatus voksSqrt_16s_ISfs(Vok16s* srcDst, int len, int scale);
VOK_API VokStatus voksSqrt_32f(const Vok32f* src, Vok32f* dst, int len);
VOK_API VokStatus voksSqrt_32f_I(Vok32f* srcDst, int len);

/* ---- Ln -------------------------------------------------------------------
 * Natural logarithm, integers scaled and rounded to nearest. A zero sample
 * gives the lowest value (32f: -infinity) and vokWarnSingularity, a negative
 * one -32768 (32f: NaN, also for -0) and vokWarnDomain; the first one met in
 * the image is returned. */
VOK_API VokStatus vokiLn_8u_C1RSfs(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiLn_8u_C1IRSfs(Vok8u* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiLn_8u_C3RSfs(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiLn_8u_C3IRSfs(Vok8u* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiLn_16s_C1RSfs(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiLn_16s_C1IRSfs(Vok16s* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiLn_16s_C3RSfs(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiLn_16s_C3IRSfs(Vok16s* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiLn_32f_C1R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiLn_32f_C1IR(Vok32f* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiLn_32f_C3R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiLn_32f_C3IR(Vok32f* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus voksLn_16s_Sfs(const Vok16s* src, Vok16s* dst, int len, int scale);
VOK_API VokStatus voksLn_16s_ISfs(Vok16s* srcDst, int len, int scale);
VOK_API VokStatus voksLn_32f(const Vok32f* src, Vok32f* dst, int len);
VOK_API VokStatus voksLn_32f_I(Vok32f* srcDst, int len);

/* ---- Exp ------------------------------------------------------------------
 * e^x; integers scaled, rounded to nearest (the tie e^0 / 2 gives 1) and
 * saturated without a warning. */
VOK_API VokStatus vokiExp_8u_C1RSfs(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiExp_8u_C1IRSfs(Vok8u* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiExp_8u_C3RSfs(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiExp_8u_C3IRSfs(Vok8u* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiExp_16s_C1RSfs(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiExp_16s_C1IRSfs(Vok16s* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiExp_16s_C3RSfs(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiExp_16s_C3IRSfs(Vok16s* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiExp_32f_C1R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiExp_32f_C1IR(Vok32f* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiExp_32f_C3R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiExp_32f_C3IR(Vok32f* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus voksExp_16s_Sfs(const Vok16s* src, Vok16s* dst, int len, int scale);
VOK_API VokStatus voksExp_16s_ISfs(Vok16s* srcDst, int len, int scale);
VOK_API VokStatus voksExp_32f(const Vok32f* src, Vok32f* dst, int len);
VOK_API VokStatus voksExp_32f_I(Vok32f* srcDst, int len);

/* ---- Add, Sub, Mul, Div of complex images ----------------------------------
   Sub is src2 - src1 and Div src2 / src1 (in place srcDst - src, srcDst / src).
   C1 and two-image C3 forms round ties to even, AC4 forms away from zero;
   a zero divisor gives 0 (integers) or NaN and returns vokWarnDivideByZero. */
VOK_API VokStatus vokiAdd_16sc_C1RSfs(const Vok16sc* src1, int src1Step, const Vok16sc* src2, int src2Step, Vok16sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAdd_16sc_C1IRSfs(const Vok16sc* src, int srcStep, Vok16sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAdd_16sc_C3RSfs(const Vok16sc* src1, int src1Step, const Vok16sc* src2, int src2Step, Vok16sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAdd_16sc_C3IRSfs(const Vok16sc* src, int srcStep, Vok16sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAdd_16sc_AC4RSfs(const Vok16sc* src1, int src1Step, const Vok16sc* src2, int src2Step, Vok16sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAdd_16sc_AC4IRSfs(const Vok16sc* src, int srcStep, Vok16sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAdd_32sc_C1RSfs(const Vok32sc* src1, int src1Step, const Vok32sc* src2, int src2Step, Vok32sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAdd_32sc_C1IRSfs(const Vok32sc* src, int srcStep, Vok32sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAdd_32sc_C3RSfs(const Vok32sc* src1, int src1Step, const Vok32sc* src2, int src2Step, Vok32sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAdd_32sc_C3IRSfs(const Vok32sc* src, int srcStep, Vok32sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAdd_32sc_AC4RSfs(const Vok32sc* src1, int src1Step, const Vok32sc* src2, int src2Step, Vok32sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAdd_32sc_AC4IRSfs(const Vok32sc* src, int srcStep, Vok32sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAdd_32fc_C1R(const Vok32fc* src1, int src1Step, const Vok32fc* src2, int src2Step, Vok32fc* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiAdd_32fc_C1IR(const Vok32fc* src, int srcStep, Vok32fc* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiAdd_32fc_C3R(const Vok32fc* src1, int src1Step, const Vok32fc* src2, int src2Step, Vok32fc* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiAdd_32fc_C3IR(const Vok32fc* src, int srcStep, Vok32fc* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiAdd_32fc_AC4R(const Vok32fc* src1, int src1Step, const Vok32fc* src2, int src2Step, Vok32fc* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiAdd_32fc_AC4IR(const Vok32fc* src, int srcStep, Vok32fc* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiSub_16sc_C1RSfs(const Vok16sc* src1, int src1Step, const Vok16sc* src2, int src2Step, Vok16sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSub_16sc_C1IRSfs(const Vok16sc* src, int srcStep, Vok16sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSub_16sc_C3RSfs(const Vok16sc* src1, int src1Step, const Vok16sc* src2, int src2Step, Vok16sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSub_16sc_C3IRSfs(const Vok16sc* src, int srcStep, Vok16sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSub_16sc_AC4RSfs(const Vok16sc* src1, int src1Step, const Vok16sc* src2, int src2Step, Vok16sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSub_16sc_AC4IRSfs(const Vok16sc* src, int srcStep, Vok16sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSub_32sc_C1RSfs(const Vok32sc* src1, int src1Step, const Vok32sc* src2, int src2Step, Vok32sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSub_32sc_C1IRSfs(const Vok32sc* src, int srcStep, Vok32sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSub_32sc_C3RSfs(const Vok32sc* src1, int src1Step, const Vok32sc* src2, int src2Step, Vok32sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSub_32sc_C3IRSfs(const Vok32sc* src, int srcStep, Vok32sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSub_32sc_AC4RSfs(const Vok32sc* src1, int src1Step, const Vok32sc* src2, int src2Step, Vok32sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSub_32sc_AC4IRSfs(const Vok32sc* src, int srcStep, Vok32sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSub_32fc_C1R(const Vok32fc* src1, int src1Step, const Vok32fc* src2, int src2Step, Vok32fc* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiSub_32fc_C1IR(const Vok32fc* src, int srcStep, Vok32fc* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiSub_32fc_C3R(const Vok32fc* src1, int src1Step, const Vok32fc* src2, int src2Step, Vok32fc* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiSub_32fc_C3IR(const Vok32fc* src, int srcStep, Vok32fc* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiSub_32fc_AC4R(const Vok32fc* src1, int src1Step, const Vok32fc* src2, int src2Step, Vok32fc* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiSub_32fc_AC4IR(const Vok32fc* src, int srcStep, Vok32fc* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiMul_16sc_C1RSfs(const Vok16sc* src1, int src1Step, const Vok16sc* src2, int src2Step, Vok16sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMul_16sc_C1IRSfs(const Vok16sc* src, int srcStep, Vok16sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMul_16sc_C3RSfs(const Vok16sc* src1, int src1Step, const Vok16sc* src2, int src2Step, Vok16sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMul_16sc_C3IRSfs(const Vok16sc* src, int srcStep, Vok16sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMul_16sc_AC4RSfs(const Vok16sc* src1, int src1Step, const Vok16sc* src2, int src2Step, Vok16sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMul_16sc_AC4IRSfs(const Vok16sc* src, int srcStep, Vok16sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMul_32sc_C1RSfs(const Vok32sc* src1, int src1Step, const Vok32sc* src2, int src2Step, Vok32sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMul_32sc_C1IRSfs(const Vok32sc* src, int srcStep, Vok32sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMul_32sc_C3RSfs(const Vok32sc* src1, int src1Step, const Vok32sc* src2, int src2Step, Vok32sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMul_32sc_C3IRSfs(const Vok32sc* src, int srcStep, Vok32sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMul_32sc_AC4RSfs(const Vok32sc* src1, int src1Step, const Vok32sc* src2, int src2Step, Vok32sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMul_32sc_AC4IRSfs(const Vok32sc* src, int srcStep, Vok32sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMul_32fc_C1R(const Vok32fc* src1, int src1Step, const Vok32fc* src2, int src2Step, Vok32fc* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiMul_32fc_C1IR(const Vok32fc* src, int srcStep, Vok32fc* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiMul_32fc_C3R(const Vok32fc* src1, int src1Step, const Vok32fc* src2, int src2Step, Vok32fc* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiMul_32fc_C3IR(const Vok32fc* src, int srcStep, Vok32fc* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiMul_32fc_AC4R(const Vok32fc* src1, int src1Step, const Vok32fc* src2, int src2Step, Vok32fc* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiMul_32fc_AC4IR(const Vok32fc* src, int srcStep, Vok32fc* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiDiv_16sc_C1RSfs(const Vok16sc* src1, int src1Step, const Vok16sc* src2, int src2Step, Vok16sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiDiv_16sc_C1IRSfs(const Vok16sc* src, int srcStep, Vok16sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiDiv_16sc_C3RSfs(const Vok16sc* src1, int src1Step, const Vok16sc* src2, int src2Step, Vok16sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiDiv_16sc_C3IRSfs(const Vok16sc* src, int srcStep, Vok16sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiDiv_16sc_AC4RSfs(const Vok16sc* src1, int src1Step, const Vok16sc* src2, int src2Step, Vok16sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiDiv_16sc_AC4IRSfs(const Vok16sc* src, int srcStep, Vok16sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiDiv_32sc_C1RSfs(const Vok32sc* src1, int src1Step, const Vok32sc* src2, int src2Step, Vok32sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiDiv_32sc_C1IRSfs(const Vok32sc* src, int srcStep, Vok32sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiDiv_32sc_C3RSfs(const Vok32sc* src1, int src1Step, const Vok32sc* src2, int src2Step, Vok32sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiDiv_32sc_C3IRSfs(const Vok32sc* src, int srcStep, Vok32sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiDiv_32sc_AC4RSfs(const Vok32sc* src1, int src1Step, const Vok32sc* src2, int src2Step, Vok32sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiDiv_32sc_AC4IRSfs(const Vok32sc* src, int srcStep, Vok32sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiDiv_32fc_C1R(const Vok32fc* src1, int src1Step, const Vok32fc* src2, int src2Step, Vok32fc* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiDiv_32fc_C1IR(const Vok32fc* src, int srcStep, Vok32fc* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiDiv_32fc_C3R(const Vok32fc* src1, int src1Step, const Vok32fc* src2, int src2Step, Vok32fc* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiDiv_32fc_C3IR(const Vok32fc* src, int srcStep, Vok32fc* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiDiv_32fc_AC4R(const Vok32fc* src1, int src1Step, const Vok32fc* src2, int src2Step, Vok32fc* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiDiv_32fc_AC4IR(const Vok32fc* src, int srcStep, Vok32fc* srcDst, int srcDstStep, VokiSize roi);

/* ---- AddC, SubC, MulC, DivC: a complex image and a constant per channel -----
   C1 forms round ties to even, C3 and AC4 forms away from zero. */
VOK_API VokStatus vokiAddC_16sc_C1RSfs(const Vok16sc* src, int srcStep, Vok16sc value, Vok16sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAddC_16sc_C1IRSfs(Vok16sc value, Vok16sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAddC_16sc_C3RSfs(const Vok16sc* src, int srcStep, const Vok16sc value[3], Vok16sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAddC_16sc_C3IRSfs(const Vok16sc value[3], Vok16sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAddC_16sc_AC4RSfs(const Vok16sc* src, int srcStep, const Vok16sc value[3], Vok16sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAddC_16sc_AC4IRSfs(const Vok16sc value[3], Vok16sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAddC_32sc_C1RSfs(const Vok32sc* src, int srcStep, Vok32sc value, Vok32sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAddC_32sc_C1IRSfs(Vok32sc value, Vok32sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAddC_32sc_C3RSfs(const Vok32sc* src, int srcStep, const Vok32sc value[3], Vok32sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAddC_32sc_C3IRSfs(const Vok32sc value[3], Vok32sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAddC_32sc_AC4RSfs(const Vok32sc* src, int srcStep, const Vok32sc value[3], Vok32sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAddC_32sc_AC4IRSfs(const Vok32sc value[3], Vok32sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiAddC_32fc_C1R(const Vok32fc* src, int srcStep, Vok32fc value, Vok32fc* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiAddC_32fc_C1IR(Vok32fc value, Vok32fc* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiAddC_32fc_C3R(const Vok32fc* src, int srcStep, const Vok32fc value[3], Vok32fc* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiAddC_32fc_C3IR(const Vok32fc value[3], Vok32fc* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiAddC_32fc_AC4R(const Vok32fc* src, int srcStep, const Vok32fc value[3], Vok32fc* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiAddC_32fc_AC4IR(const Vok32fc value[3], Vok32fc* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiSubC_16sc_C1RSfs(const Vok16sc* src, int srcStep, Vok16sc value, Vok16sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSubC_16sc_C1IRSfs(Vok16sc value, Vok16sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSubC_16sc_C3RSfs(const Vok16sc* src, int srcStep, const Vok16sc value[3], Vok16sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSubC_16sc_C3IRSfs(const Vok16sc value[3], Vok16sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSubC_16sc_AC4RSfs(const Vok16sc* src, int srcStep, const Vok16sc value[3], Vok16sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSubC_16sc_AC4IRSfs(const Vok16sc value[3], Vok16sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSubC_32sc_C1RSfs(const Vok32sc* src, int srcStep, Vok32sc value, Vok32sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSubC_32sc_C1IRSfs(Vok32sc value, Vok32sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSubC_32sc_C3RSfs(const Vok32sc* src, int srcStep, const Vok32sc value[3], Vok32sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSubC_32sc_C3IRSfs(const Vok32sc value[3], Vok32sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSubC_32sc_AC4RSfs(const Vok32sc* src, int srcStep, const Vok32sc value[3], Vok32sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSubC_32sc_AC4IRSfs(const Vok32sc value[3], Vok32sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiSubC_32fc_C1R(const Vok32fc* src, int srcStep, Vok32fc value, Vok32fc* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiSubC_32fc_C1IR(Vok32fc value, Vok32fc* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiSubC_32fc_C3R(const Vok32fc* src, int srcStep, const Vok32fc value[3], Vok32fc* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiSubC_32fc_C3IR(const Vok32fc value[3], Vok32fc* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiSubC_32fc_AC4R(const Vok32fc* src, int srcStep, const Vok32fc value[3], Vok32fc* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiSubC_32fc_AC4IR(const Vok32fc value[3], Vok32fc* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiMulC_16sc_C1RSfs(const Vok16sc* src, int srcStep, Vok16sc value, Vok16sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMulC_16sc_C1IRSfs(Vok16sc value, Vok16sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMulC_16sc_C3RSfs(const Vok16sc* src, int srcStep, const Vok16sc value[3], Vok16sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMulC_16sc_C3IRSfs(const Vok16sc value[3], Vok16sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMulC_16sc_AC4RSfs(const Vok16sc* src, int srcStep, const Vok16sc value[3], Vok16sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMulC_16sc_AC4IRSfs(const Vok16sc value[3], Vok16sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMulC_32sc_C1RSfs(const Vok32sc* src, int srcStep, Vok32sc value, Vok32sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMulC_32sc_C1IRSfs(Vok32sc value, Vok32sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMulC_32sc_C3RSfs(const Vok32sc* src, int srcStep, const Vok32sc value[3], Vok32sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMulC_32sc_C3IRSfs(const Vok32sc value[3], Vok32sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMulC_32sc_AC4RSfs(const Vok32sc* src, int srcStep, const Vok32sc value[3], Vok32sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMulC_32sc_AC4IRSfs(const Vok32sc value[3], Vok32sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiMulC_32fc_C1R(const Vok32fc* src, int srcStep, Vok32fc value, Vok32fc* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiMulC_32fc_C1IR(Vok32fc value, Vok32fc* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiMulC_32fc_C3R(const Vok32fc* src, int srcStep, const Vok32fc value[3], Vok32fc* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiMulC_32fc_C3IR(const Vok32fc value[3], Vok32fc* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiMulC_32fc_AC4R(const Vok32fc* src, int srcStep, const Vok32fc value[3], Vok32fc* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiMulC_32fc_AC4IR(const Vok32fc value[3], Vok32fc* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiDivC_16sc_C1RSfs(const Vok16sc* src, int srcStep, Vok16sc value, Vok16sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiDivC_16sc_C1IRSfs(Vok16sc value, Vok16sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiDivC_16sc_C3RSfs(const Vok16sc* src, int srcStep, const Vok16sc value[3], Vok16sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiDivC_16sc_C3IRSfs(const Vok16sc value[3], Vok16sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiDivC_16sc_AC4RSfs(const Vok16sc* src, int srcStep, const Vok16sc value[3], Vok16sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiDivC_16sc_AC4IRSfs(const Vok16sc value[3], Vok16sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiDivC_32sc_C1RSfs(const Vok32sc* src, int srcStep, Vok32sc value, Vok32sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiDivC_32sc_C1IRSfs(Vok32sc value, Vok32sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiDivC_32sc_C3RSfs(const Vok32sc* src, int srcStep, const Vok32sc value[3], Vok32sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiDivC_32sc_C3IRSfs(const Vok32sc value[3], Vok32sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiDivC_32sc_AC4RSfs(const Vok32sc* src, int srcStep, const Vok32sc value[3], Vok32sc* dst, int dstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiDivC_32sc_AC4IRSfs(const Vok32sc value[3], Vok32sc* srcDst, int srcDstStep, VokiSize roi, int scale);
VOK_API VokStatus vokiDivC_32fc_C1R(const Vok32fc* src, int srcStep, Vok32fc value, Vok32fc* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiDivC_32fc_C1IR(Vok32fc value, Vok32fc* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiDivC_32fc_C3R(const Vok32fc* src, int srcStep, const Vok32fc value[3], Vok32fc* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiDivC_32fc_C3IR(const Vok32fc value[3], Vok32fc* srcDst, int srcDstStep, VokiSize roi);
VOK_API VokStatus vokiDivC_32fc_AC4R(const Vok32fc* src, int srcStep, const Vok32fc value[3], Vok32fc* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiDivC_32fc_AC4IR(const Vok32fc value[3], Vok32fc* srcDst, int srcDstStep, VokiSize roi);

/* ---- Vector sums and differences: voksSub is src2 - src1 --------------------- */
VOK_API VokStatus voksAdd_16s_Sfs(const Vok16s* src1, const Vok16s* src2, Vok16s* dst, int len, int scale);
VOK_API VokStatus voksAdd_16s_ISfs(const Vok16s* src, Vok16s* srcDst, int len, int scale);
VOK_API VokStatus voksAdd_32s_Sfs(const Vok32s* src1, const Vok32s* src2, Vok32s* dst, int len, int scale);
VOK_API VokStatus voksAdd_32s_ISfs(const Vok32s* src, Vok32s* srcDst, int len, int scale);
VOK_API VokStatus voksAdd_32f(const Vok32f* src1, const Vok32f* src2, Vok32f* dst, int len);
VOK_API VokStatus voksAdd_32f_I(const Vok32f* src, Vok32f* srcDst, int len);
VOK_API VokStatus voksSub_16s_Sfs(const Vok16s* src1, const Vok16s* src2, Vok16s* dst, int len, int scale);
VOK_API VokStatus voksSub_16s_ISfs(const Vok16s* src, Vok16s* srcDst, int len, int scale);
VOK_API VokStatus voksSub_32s_Sfs(const Vok32s* src1, const Vok32s* src2, Vok32s* dst, int len, int scale);
VOK_API VokStatus voksSub_32s_ISfs(const Vok32s* src, Vok32s* srcDst, int len, int scale);
VOK_API VokStatus voksSub_32f(const Vok32f* src1, const Vok32f* src2, Vok32f* dst, int len);
VOK_API VokStatus voksSub_32f_I(const Vok32f* src, Vok32f* srcDst, int len);
/* A value neither below nor above 0 (NaN too) copies, or does nothing in place. */
VOK_API VokStatus voksSubC_32f(const Vok32f* src, Vok32f value, Vok32f* dst, int len);
VOK_API VokStatus voksSubC_32f_I(Vok32f value, Vok32f* srcDst, int len);
/* 1 and NaN leave the array as it was; 0 clears it, NaN samples too. */
VOK_API VokStatus voksMulC_32f_I(Vok32f value, Vok32f* srcDst, int len);

/* ---- Complex vector arithmetic, the rows of the C1 image forms -------------- */
VOK_API VokStatus voksAdd_16sc_Sfs(const Vok16sc* src1, const Vok16sc* src2, Vok16sc* dst, int len, int scale);
VOK_API VokStatus voksAdd_16sc_ISfs(const Vok16sc* src, Vok16sc* srcDst, int len, int scale);
VOK_API VokStatus voksAdd_32sc_Sfs(const Vok32sc* src1, const Vok32sc* src2, Vok32sc* dst, int len, int scale);
VOK_API VokStatus voksAdd_32sc_ISfs(const Vok32sc* src, Vok32sc* srcDst, int len, int scale);
VOK_API VokStatus voksAdd_32fc(const Vok32fc* src1, const Vok32fc* src2, Vok32fc* dst, int len);
VOK_API VokStatus voksAdd_32fc_I(const Vok32fc* src, Vok32fc* srcDst, int len);
VOK_API VokStatus voksSub_16sc_Sfs(const Vok16sc* src1, const Vok16sc* src2, Vok16sc* dst, int len, int scale);
VOK_API VokStatus voksSub_16sc_ISfs(const Vok16sc* src, Vok16sc* srcDst, int len, int scale);
VOK_API VokStatus voksSub_32sc_Sfs(const Vok32sc* src1, const Vok32sc* src2, Vok32sc* dst, int len, int scale);
VOK_API VokStatus voksSub_32sc_ISfs(const Vok32sc* src, Vok32sc* srcDst, int len, int scale);
VOK_API VokStatus voksSub_32fc(const Vok32fc* src1, const Vok32fc* src2, Vok32fc* dst, int len);
VOK_API VokStatus voksSub_32fc_I(const Vok32fc* src, Vok32fc* srcDst, int len);
VOK_API VokStatus voksMul_16sc_Sfs(const Vok16sc* src1, const Vok16sc* src2, Vok16sc* dst, int len, int scale);
VOK_API VokStatus voksMul_16sc_ISfs(const Vok16sc* src, Vok16sc* srcDst, int len, int scale);
VOK_API VokStatus voksMul_32sc_Sfs(const Vok32sc* src1, const Vok32sc* src2, Vok32sc* dst, int len, int scale);
VOK_API VokStatus voksMul_32sc_ISfs(const Vok32sc* src, Vok32sc* srcDst, int len, int scale);
VOK_API VokStatus voksMul_32fc(const Vok32fc* src1, const Vok32fc* src2, Vok32fc* dst, int len);
VOK_API VokStatus voksMul_32fc_I(const Vok32fc* src, Vok32fc* srcDst, int len);
VOK_API VokStatus voksDiv_16sc_Sfs(const Vok16sc* src1, const Vok16sc* src2, Vok16sc* dst, int len, int scale);
VOK_API VokStatus voksDiv_16sc_ISfs(const Vok16sc* src, Vok16sc* srcDst, int len, int scale);
VOK_API VokStatus voksDiv_32fc(const Vok32fc* src1, const Vok32fc* src2, Vok32fc* dst, int len);
VOK_API VokStatus voksDiv_32fc_I(const Vok32fc* src, Vok32fc* srcDst, int len);
VOK_API VokStatus voksAddC_16sc_Sfs(const Vok16sc* src, Vok16sc value, Vok16sc* dst, int len, int scale);
VOK_API VokStatus voksAddC_16sc_ISfs(Vok16sc value, Vok16sc* srcDst, int len, int scale);
VOK_API VokStatus voksAddC_32sc_Sfs(const Vok32sc* src, Vok32sc value, Vok32sc* dst, int len, int scale);
VOK_API VokStatus voksAddC_32sc_ISfs(Vok32sc value, Vok32sc* srcDst, int len, int scale);
VOK_API VokStatus voksAddC_32fc(const Vok32fc* src, Vok32fc value, Vok32fc* dst, int len);
VOK_API VokStatus voksAddC_32fc_I(Vok32fc value, Vok32fc* srcDst, int len);
VOK_API VokStatus voksSubC_16sc_Sfs(const Vok16sc* src, Vok16sc value, Vok16sc* dst, int len, int scale);
VOK_API VokStatus voksSubC_16sc_ISfs(Vok16sc value, Vok16sc* srcDst, int len, int scale);
VOK_API VokStatus voksSubC_32sc_Sfs(const Vok32sc* src, Vok32sc value, Vok32sc* dst, int len, int scale);
VOK_API VokStatus voksSubC_32sc_ISfs(Vok32sc value, Vok32sc* srcDst, int len, int scale);
VOK_API VokStatus voksSubC_32fc(const Vok32fc* src, Vok32fc value, Vok32fc* dst, int len);
VOK_API VokStatus voksSubC_32fc_I(Vok32fc value, Vok32fc* srcDst, int len);
VOK_API VokStatus voksMulC_16sc_Sfs(const Vok16sc* src, Vok16sc value, Vok16sc* dst, int len, int scale);
VOK_API VokStatus voksMulC_16sc_ISfs(Vok16sc value, Vok16sc* srcDst, int len, int scale);
VOK_API VokStatus voksMulC_32sc_Sfs(const Vok32sc* src, Vok32sc value, Vok32sc* dst, int len, int scale);
VOK_API VokStatus voksMulC_32sc_ISfs(Vok32sc value, Vok32sc* srcDst, int len, int scale);
VOK_API VokStatus voksMulC_32fc(const Vok32fc* src, Vok32fc value, Vok32fc* dst, int len);
VOK_API VokStatus voksMulC_32fc_I(Vok32fc value, Vok32fc* srcDst, int len);
VOK_API VokStatus voksDivC_16sc_Sfs(const Vok16sc* src, Vok16sc value, Vok16sc* dst, int len, int scale);
VOK_API VokStatus voksDivC_16sc_ISfs(Vok16sc value, Vok16sc* srcDst, int len, int scale);
VOK_API VokStatus voksDivC_32fc(const Vok32fc* src, Vok32fc value, Vok32fc* dst, int len);
VOK_API VokStatus voksDivC_32fc_I(Vok32fc value, Vok32fc* srcDst, int len);

/* ---- Vector move: copies and fills; from 512 KiB on they bypass the cache --- */
VOK_API VokStatus voksCopy_8u(const Vok8u* src, Vok8u* dst, int len);
VOK_API VokStatus voksCopy_32f(const Vok32f* src, Vok32f* dst, int len);
VOK_API VokStatus voksSet_32s(Vok32s value, Vok32s* dst, int len);
VOK_API VokStatus voksSet_32f(Vok32f value, Vok32f* dst, int len);
VOK_API VokStatus voksZero_8u(Vok8u* dst, int len);
VOK_API VokStatus voksZero_16s(Vok16s* dst, int len);
VOK_API VokStatus voksZero_16sc(Vok16sc* dst, int len);
VOK_API VokStatus voksZero_32f(Vok32f* dst, int len);

/* ---- Vector conversion: roundMode 0 truncates, any other value rounds to
   nearest with ties to even; results saturate, NaN to the maximum. */
VOK_API VokStatus voksConvert_8u32f(const Vok8u* src, Vok32f* dst, int len);
VOK_API VokStatus voksConvert_32s32f(const Vok32s* src, Vok32f* dst, int len);
VOK_API VokStatus voksConvert_32f8u_Sfs(const Vok32f* src, Vok8u* dst, int len, VokRoundMode roundMode, int scale);
VOK_API VokStatus voksConvert_32f16s_Sfs(const Vok32f* src, Vok16s* dst, int len, VokRoundMode roundMode, int scale);
VOK_API VokStatus voksConvert_32f32s_Sfs(const Vok32f* src, Vok32s* dst, int len, VokRoundMode roundMode, int scale);

/* ---- Vector reductions, in single precision unless the hint asks for more -- */
VOK_API VokStatus voksDotProd_32f(const Vok32f* src1, const Vok32f* src2, int len, Vok32f* dp);
VOK_API VokStatus voksMean_32f(const Vok32f* src, int len, Vok32f* mean, VokHint hint);
VOK_API VokStatus voksNorm_L2_32f(const Vok32f* src, int len, Vok32f* norm);

/* ---- Magnitude, phase (radians) and polar to cartesian --------------------- */
VOK_API VokStatus voksMagnitude_16sc_Sfs(const Vok16sc* src, Vok16s* dst, int len, int scale);
VOK_API VokStatus voksMagnitude_32sc_Sfs(const Vok32sc* src, Vok32s* dst, int len, int scale);
VOK_API VokStatus voksMagnitude_32fc(const Vok32fc* src, Vok32f* dst, int len);
VOK_API VokStatus voksPhase_16sc_Sfs(const Vok16sc* src, Vok16s* dst, int len, int scale);
VOK_API VokStatus voksPhase_32sc_Sfs(const Vok32sc* src, Vok32s* dst, int len, int scale);
VOK_API VokStatus voksPhase_32fc(const Vok32fc* src, Vok32f* dst, int len);
VOK_API VokStatus voksPolarToCart_32fc(const Vok32f* mag, const Vok32f* phase, Vok32fc* dst, int len);

/* ---- Convert: change the sample type, keep the value --------------------
 * Narrowing saturates. From 32f: NaN gives the top of the range, and the
 * value rounds to nearest even with vokRoundNear, toward zero with any other
 * selector; the caller's rounding mode is left as it was. */
VOK_API VokStatus vokiConvert_8u16u_C1R(const Vok8u* src, int srcStep, Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_8u16u_C3R(const Vok8u* src, int srcStep, Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_8u16u_C4R(const Vok8u* src, int srcStep, Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_8u16u_AC4R(const Vok8u* src, int srcStep, Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_8u16s_C1R(const Vok8u* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_8u16s_C3R(const Vok8u* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_8u16s_C4R(const Vok8u* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_8u16s_AC4R(const Vok8u* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_8u32s_C1R(const Vok8u* src, int srcStep, Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_8u32s_C3R(const Vok8u* src, int srcStep, Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_8u32s_C4R(const Vok8u* src, int srcStep, Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_8u32s_AC4R(const Vok8u* src, int srcStep, Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_8u32f_C1R(const Vok8u* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_8u32f_C3R(const Vok8u* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_8u32f_C4R(const Vok8u* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_8u32f_AC4R(const Vok8u* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_8s32s_C1R(const Vok8s* src, int srcStep, Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_8s32s_C3R(const Vok8s* src, int srcStep, Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_8s32s_C4R(const Vok8s* src, int srcStep, Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_8s32s_AC4R(const Vok8s* src, int srcStep, Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_8s32f_C1R(const Vok8s* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_8s32f_C3R(const Vok8s* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_8s32f_C4R(const Vok8s* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_8s32f_AC4R(const Vok8s* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_16u32s_C1R(const Vok16u* src, int srcStep, Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_16u32s_C3R(const Vok16u* src, int srcStep, Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_16u32s_C4R(const Vok16u* src, int srcStep, Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_16u32s_AC4R(const Vok16u* src, int srcStep, Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_16u32f_C1R(const Vok16u* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_16u32f_C3R(const Vok16u* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_16u32f_C4R(const Vok16u* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_16u32f_AC4R(const Vok16u* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_16s32f_C1R(const Vok16s* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_16s32f_C3R(const Vok16s* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_16s32f_C4R(const Vok16s* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_16s32f_AC4R(const Vok16s* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_16u8u_C1R(const Vok16u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_16u8u_C3R(const Vok16u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_16u8u_C4R(const Vok16u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_16u8u_AC4R(const Vok16u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_16s8u_C1R(const Vok16s* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_16s8u_C3R(const Vok16s* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_16s8u_C4R(const Vok16s* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_16s8u_AC4R(const Vok16s* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_32s8u_C1R(const Vok32s* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_32s8u_C3R(const Vok32s* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_32s8u_C4R(const Vok32s* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_32s8u_AC4R(const Vok32s* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_32s8s_C1R(const Vok32s* src, int srcStep, Vok8s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_32s8s_C3R(const Vok32s* src, int srcStep, Vok8s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_32s8s_C4R(const Vok32s* src, int srcStep, Vok8s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_32s8s_AC4R(const Vok32s* src, int srcStep, Vok8s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_32f8u_C1R(const Vok32f* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, VokRoundMode roundMode);
VOK_API VokStatus vokiConvert_32f8u_C3R(const Vok32f* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, VokRoundMode roundMode);
VOK_API VokStatus vokiConvert_32f8u_C4R(const Vok32f* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, VokRoundMode roundMode);
VOK_API VokStatus vokiConvert_32f8u_AC4R(const Vok32f* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, VokRoundMode roundMode);
VOK_API VokStatus vokiConvert_32f8s_C1R(const Vok32f* src, int srcStep, Vok8s* dst, int dstStep, VokiSize roi, VokRoundMode roundMode);
VOK_API VokStatus vokiConvert_32f8s_C3R(const Vok32f* src, int srcStep, Vok8s* dst, int dstStep, VokiSize roi, VokRoundMode roundMode);
VOK_API VokStatus vokiConvert_32f8s_C4R(const Vok32f* src, int srcStep, Vok8s* dst, int dstStep, VokiSize roi, VokRoundMode roundMode);
VOK_API VokStatus vokiConvert_32f8s_AC4R(const Vok32f* src, int srcStep, Vok8s* dst, int dstStep, VokiSize roi, VokRoundMode roundMode);
VOK_API VokStatus vokiConvert_32f16u_C1R(const Vok32f* src, int srcStep, Vok16u* dst, int dstStep, VokiSize roi, VokRoundMode roundMode);
VOK_API VokStatus vokiConvert_32f16u_C3R(const Vok32f* src, int srcStep, Vok16u* dst, int dstStep, VokiSize roi, VokRoundMode roundMode);
VOK_API VokStatus vokiConvert_32f16u_C4R(const Vok32f* src, int srcStep, Vok16u* dst, int dstStep, VokiSize roi, VokRoundMode roundMode);
VOK_API VokStatus vokiConvert_32f16u_AC4R(const Vok32f* src, int srcStep, Vok16u* dst, int dstStep, VokiSize roi, VokRoundMode roundMode);
VOK_API VokStatus vokiConvert_32f16s_C1R(const Vok32f* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, VokRoundMode roundMode);
VOK_API VokStatus vokiConvert_32f16s_C3R(const Vok32f* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, VokRoundMode roundMode);
VOK_API VokStatus vokiConvert_32f16s_C4R(const Vok32f* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, VokRoundMode roundMode);
VOK_API VokStatus vokiConvert_32f16s_AC4R(const Vok32f* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, VokRoundMode roundMode);
/* Bit images: one pixel per bit, most significant first; the offset gives
 * the first pixel's bit in the first byte. 8u1u is a Stucki dither. */
VOK_API VokStatus vokiConvert_1u8u_C1R(const Vok8u* src, int srcStep, int srcBitOffset, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiConvert_8u1u_C1R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, int dstBitOffset, VokiSize roi, Vok8u threshold);

/* ---- Scale: map the full source range onto the full target range --------
 * The float range must have vMax above vMin. Narrowing to 8u is rounded
 * with vokHintAccurate and uses integer shifts otherwise. */
VOK_API VokStatus vokiScale_8u16u_C1R(const Vok8u* src, int srcStep, Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiScale_8u16u_C3R(const Vok8u* src, int srcStep, Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiScale_8u16u_C4R(const Vok8u* src, int srcStep, Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiScale_8u16u_AC4R(const Vok8u* src, int srcStep, Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiScale_8u16s_C1R(const Vok8u* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiScale_8u16s_C3R(const Vok8u* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiScale_8u16s_C4R(const Vok8u* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiScale_8u16s_AC4R(const Vok8u* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiScale_8u32s_C1R(const Vok8u* src, int srcStep, Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiScale_8u32s_C3R(const Vok8u* src, int srcStep, Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiScale_8u32s_C4R(const Vok8u* src, int srcStep, Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiScale_8u32s_AC4R(const Vok8u* src, int srcStep, Vok32s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiScale_8u32f_C1R(const Vok8u* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi, Vok32f vMin, Vok32f vMax);
VOK_API VokStatus vokiScale_8u32f_C3R(const Vok8u* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi, Vok32f vMin, Vok32f vMax);
VOK_API VokStatus vokiScale_8u32f_C4R(const Vok8u* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi, Vok32f vMin, Vok32f vMax);
VOK_API VokStatus vokiScale_8u32f_AC4R(const Vok8u* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi, Vok32f vMin, Vok32f vMax);
VOK_API VokStatus vokiScale_32f8u_C1R(const Vok32f* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, Vok32f vMin, Vok32f vMax);
VOK_API VokStatus vokiScale_32f8u_C3R(const Vok32f* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, Vok32f vMin, Vok32f vMax);
VOK_API VokStatus vokiScale_32f8u_C4R(const Vok32f* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, Vok32f vMin, Vok32f vMax);
VOK_API VokStatus vokiScale_32f8u_AC4R(const Vok32f* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, Vok32f vMin, Vok32f vMax);
VOK_API VokStatus vokiScale_16u8u_C1R(const Vok16u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, VokHint hint);
VOK_API VokStatus vokiScale_16u8u_C3R(const Vok16u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, VokHint hint);
VOK_API VokStatus vokiScale_16u8u_C4R(const Vok16u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, VokHint hint);
VOK_API VokStatus vokiScale_16u8u_AC4R(const Vok16u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, VokHint hint);
VOK_API VokStatus vokiScale_16s8u_C1R(const Vok16s* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, VokHint hint);
VOK_API VokStatus vokiScale_16s8u_C3R(const Vok16s* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, VokHint hint);
VOK_API VokStatus vokiScale_16s8u_C4R(const Vok16s* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, VokHint hint);
VOK_API VokStatus vokiScale_16s8u_AC4R(const Vok16s* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, VokHint hint);
VOK_API VokStatus vokiScale_32s8u_C1R(const Vok32s* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, VokHint hint);
VOK_API VokStatus vokiScale_32s8u_C3R(const Vok32s* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, VokHint hint);
VOK_API VokStatus vokiScale_32s8u_C4R(const Vok32s* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, VokHint hint);
VOK_API VokStatus vokiScale_32s8u_AC4R(const Vok32s* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, VokHint hint);

/* ---- Compare, CompareC, CompareEqualEps: one 8u mask per pixel ----------
 * 255 where the relation holds in every channel (three of AC4), else 0.
 * Selectors outside vokCmpLess..vokCmpGreater write nothing. */
VOK_API VokStatus vokiCompare_8u_C1R(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, Vok8u* dst, int dstStep, VokiSize roi, VokCmpOp cmpOp);
VOK_API VokStatus vokiCompare_8u_C3R(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, Vok8u* dst, int dstStep, VokiSize roi, VokCmpOp cmpOp);
VOK_API VokStatus vokiCompare_8u_C4R(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, Vok8u* dst, int dstStep, VokiSize roi, VokCmpOp cmpOp);
VOK_API VokStatus vokiCompare_8u_AC4R(const Vok8u* src1, int src1Step, const Vok8u* src2, int src2Step, Vok8u* dst, int dstStep, VokiSize roi, VokCmpOp cmpOp);
VOK_API VokStatus vokiCompareC_8u_C1R(const Vok8u* src, int srcStep, Vok8u value, Vok8u* dst, int dstStep, VokiSize roi, VokCmpOp cmpOp);
VOK_API VokStatus vokiCompareC_8u_C3R(const Vok8u* src, int srcStep, const Vok8u value[3], Vok8u* dst, int dstStep, VokiSize roi, VokCmpOp cmpOp);
VOK_API VokStatus vokiCompareC_8u_C4R(const Vok8u* src, int srcStep, const Vok8u value[4], Vok8u* dst, int dstStep, VokiSize roi, VokCmpOp cmpOp);
VOK_API VokStatus vokiCompareC_8u_AC4R(const Vok8u* src, int srcStep, const Vok8u value[3], Vok8u* dst, int dstStep, VokiSize roi, VokCmpOp cmpOp);
VOK_API VokStatus vokiCompare_16s_C1R(const Vok16s* src1, int src1Step, const Vok16s* src2, int src2Step, Vok8u* dst, int dstStep, VokiSize roi, VokCmpOp cmpOp);
VOK_API VokStatus vokiCompare_16s_C3R(const Vok16s* src1, int src1Step, const Vok16s* src2, int src2Step, Vok8u* dst, int dstStep, VokiSize roi, VokCmpOp cmpOp);
VOK_API VokStatus vokiCompare_16s_C4R(const Vok16s* src1, int src1Step, const Vok16s* src2, int src2Step, Vok8u* dst, int dstStep, VokiSize roi, VokCmpOp cmpOp);
VOK_API VokStatus vokiCompare_16s_AC4R(const Vok16s* src1, int src1Step, const Vok16s* src2, int src2Step, Vok8u* dst, int dstStep, VokiSize roi, VokCmpOp cmpOp);
VOK_API VokStatus vokiCompareC_16s_C1R(const Vok16s* src, int srcStep, Vok16s value, Vok8u* dst, int dstStep, VokiSize roi, VokCmpOp cmpOp);
VOK_API VokStatus vokiCompareC_16s_C3R(const Vok16s* src, int srcStep, const Vok16s value[3], Vok8u* dst, int dstStep, VokiSize roi, VokCmpOp cmpOp);
VOK_API VokStatus vokiCompareC_16s_C4R(const Vok16s* src, int srcStep, const Vok16s value[4], Vok8u* dst, int dstStep, VokiSize roi, VokCmpOp cmpOp);
VOK_API VokStatus vokiCompareC_16s_AC4R(const Vok16s* src, int srcStep, const Vok16s value[3], Vok8u* dst, int dstStep, VokiSize roi, VokCmpOp cmpOp);
VOK_API VokStatus vokiCompare_32f_C1R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, Vok8u* dst, int dstStep, VokiSize roi, VokCmpOp cmpOp);
VOK_API VokStatus vokiCompare_32f_C3R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, Vok8u* dst, int dstStep, VokiSize roi, VokCmpOp cmpOp);
VOK_API VokStatus vokiCompare_32f_C4R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, Vok8u* dst, int dstStep, VokiSize roi, VokCmpOp cmpOp);
VOK_API VokStatus vokiCompare_32f_AC4R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, Vok8u* dst, int dstStep, VokiSize roi, VokCmpOp cmpOp);
VOK_API VokStatus vokiCompareC_32f_C1R(const Vok32f* src, int srcStep, Vok32f value, Vok8u* dst, int dstStep, VokiSize roi, VokCmpOp cmpOp);
VOK_API VokStatus vokiCompareC_32f_C3R(const Vok32f* src, int srcStep, const Vok32f value[3], Vok8u* dst, int dstStep, VokiSize roi, VokCmpOp cmpOp);
VOK_API VokStatus vokiCompareC_32f_C4R(const Vok32f* src, int srcStep, const Vok32f value[4], Vok8u* dst, int dstStep, VokiSize roi, VokCmpOp cmpOp);
VOK_API VokStatus vokiCompareC_32f_AC4R(const Vok32f* src, int srcStep, const Vok32f value[3], Vok8u* dst, int dstStep, VokiSize roi, VokCmpOp cmpOp);
VOK_API VokStatus vokiCompareEqualEps_32f_C1R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, Vok8u* dst, int dstStep, VokiSize roi, Vok32f eps);
VOK_API VokStatus vokiCompareEqualEps_32f_C3R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, Vok8u* dst, int dstStep, VokiSize roi, Vok32f eps);
VOK_API VokStatus vokiCompareEqualEps_32f_C4R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, Vok8u* dst, int dstStep, VokiSize roi, Vok32f eps);
VOK_API VokStatus vokiCompareEqualEps_32f_AC4R(const Vok32f* src1, int src1Step, const Vok32f* src2, int src2Step, Vok8u* dst, int dstStep, VokiSize roi, Vok32f eps);
VOK_API VokStatus vokiCompareEqualEpsC_32f_C1R(const Vok32f* src, int srcStep, Vok32f value, Vok8u* dst, int dstStep, VokiSize roi, Vok32f eps);
VOK_API VokStatus vokiCompareEqualEpsC_32f_C3R(const Vok32f* src, int srcStep, const Vok32f value[3], Vok8u* dst, int dstStep, VokiSize roi, Vok32f eps);
VOK_API VokStatus vokiCompareEqualEpsC_32f_C4R(const Vok32f* src, int srcStep, const Vok32f value[4], Vok8u* dst, int dstStep, VokiSize roi, Vok32f eps);
VOK_API VokStatus vokiCompareEqualEpsC_32f_AC4R(const Vok32f* src, int srcStep, const Vok32f value[3], Vok8u* dst, int dstStep, VokiSize roi, Vok32f eps);

/* ---- Threshold: clip or replace samples per channel ---------------------
 * vokiThreshold takes vokCmpLess (max with the threshold) or vokCmpGreater
 * (min); _Val replaces samples below or above it by a value. */
VOK_API VokStatus vokiThreshold_8u_C1R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, Vok8u threshold, VokCmpOp cmpOp);
VOK_API VokStatus vokiThreshold_8u_C1IR(Vok8u* srcDst, int srcDstStep, VokiSize roi, Vok8u threshold, VokCmpOp cmpOp);
VOK_API VokStatus vokiThreshold_8u_C3R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, const Vok8u threshold[3], VokCmpOp cmpOp);
VOK_API VokStatus vokiThreshold_8u_C3IR(Vok8u* srcDst, int srcDstStep, VokiSize roi, const Vok8u threshold[3], VokCmpOp cmpOp);
VOK_API VokStatus vokiThreshold_8u_AC4R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, const Vok8u threshold[3], VokCmpOp cmpOp);
VOK_API VokStatus vokiThreshold_8u_AC4IR(Vok8u* srcDst, int srcDstStep, VokiSize roi, const Vok8u threshold[3], VokCmpOp cmpOp);
VOK_API VokStatus vokiThreshold_GT_8u_C1R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, Vok8u threshold);
VOK_API VokStatus vokiThreshold_GT_8u_C1IR(Vok8u* srcDst, int srcDstStep, VokiSize roi, Vok8u threshold);
VOK_API VokStatus vokiThreshold_GT_8u_C3R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, const Vok8u threshold[3]);
VOK_API VokStatus vokiThreshold_GT_8u_C3IR(Vok8u* srcDst, int srcDstStep, VokiSize roi, const Vok8u threshold[3]);
VOK_API VokStatus vokiThreshold_GT_8u_AC4R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, const Vok8u threshold[3]);
VOK_API VokStatus vokiThreshold_GT_8u_AC4IR(Vok8u* srcDst, int srcDstStep, VokiSize roi, const Vok8u threshold[3]);
VOK_API VokStatus vokiThreshold_LT_8u_C1R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, Vok8u threshold);
VOK_API VokStatus vokiThreshold_LT_8u_C1IR(Vok8u* srcDst, int srcDstStep, VokiSize roi, Vok8u threshold);
VOK_API VokStatus vokiThreshold_LT_8u_C3R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, const Vok8u threshold[3]);
VOK_API VokStatus vokiThreshold_LT_8u_C3IR(Vok8u* srcDst, int srcDstStep, VokiSize roi, const Vok8u threshold[3]);
VOK_API VokStatus vokiThreshold_LT_8u_AC4R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, const Vok8u threshold[3]);
VOK_API VokStatus vokiThreshold_LT_8u_AC4IR(Vok8u* srcDst, int srcDstStep, VokiSize roi, const Vok8u threshold[3]);
VOK_API VokStatus vokiThreshold_Val_8u_C1R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, Vok8u threshold, Vok8u value, VokCmpOp cmpOp);
VOK_API VokStatus vokiThreshold_Val_8u_C1IR(Vok8u* srcDst, int srcDstStep, VokiSize roi, Vok8u threshold, Vok8u value, VokCmpOp cmpOp);
VOK_API VokStatus vokiThreshold_Val_8u_C3R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, const Vok8u threshold[3], const Vok8u value[3], VokCmpOp cmpOp);
VOK_API VokStatus vokiThreshold_Val_8u_C3IR(Vok8u* srcDst, int srcDstStep, VokiSize roi, const Vok8u threshold[3], const Vok8u value[3], VokCmpOp cmpOp);
VOK_API VokStatus vokiThreshold_Val_8u_AC4R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, const Vok8u threshold[3], const Vok8u value[3], VokCmpOp cmpOp);
VOK_API VokStatus vokiThreshold_Val_8u_AC4IR(Vok8u* srcDst, int srcDstStep, VokiSize roi, const Vok8u threshold[3], const Vok8u value[3], VokCmpOp cmpOp);
VOK_API VokStatus vokiThreshold_GTVal_8u_C1R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, Vok8u threshold, Vok8u value);
VOK_API VokStatus vokiThreshold_GTVal_8u_C1IR(Vok8u* srcDst, int srcDstStep, VokiSize roi, Vok8u threshold, Vok8u value);
VOK_API VokStatus vokiThreshold_GTVal_8u_C3R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, const Vok8u threshold[3], const Vok8u value[3]);
VOK_API VokStatus vokiThreshold_GTVal_8u_C3IR(Vok8u* srcDst, int srcDstStep, VokiSize roi, const Vok8u threshold[3], const Vok8u value[3]);
VOK_API VokStatus vokiThreshold_GTVal_8u_AC4R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, const Vok8u threshold[3], const Vok8u value[3]);
VOK_API VokStatus vokiThreshold_GTVal_8u_AC4IR(Vok8u* srcDst, int srcDstStep, VokiSize roi, const Vok8u threshold[3], const Vok8u value[3]);
VOK_API VokStatus vokiThreshold_GTVal_8u_C4R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, const Vok8u threshold[4], const Vok8u value[4]);
VOK_API VokStatus vokiThreshold_GTVal_8u_C4IR(Vok8u* srcDst, int srcDstStep, VokiSize roi, const Vok8u threshold[4], const Vok8u value[4]);
VOK_API VokStatus vokiThreshold_LTVal_8u_C1R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, Vok8u threshold, Vok8u value);
VOK_API VokStatus vokiThreshold_LTVal_8u_C1IR(Vok8u* srcDst, int srcDstStep, VokiSize roi, Vok8u threshold, Vok8u value);
VOK_API VokStatus vokiThreshold_LTVal_8u_C3R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, const Vok8u threshold[3], const Vok8u value[3]);
VOK_API VokStatus vokiThreshold_LTVal_8u_C3IR(Vok8u* srcDst, int srcDstStep, VokiSize roi, const Vok8u threshold[3], const Vok8u value[3]);
VOK_API VokStatus vokiThreshold_LTVal_8u_AC4R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, const Vok8u threshold[3], const Vok8u value[3]);
VOK_API VokStatus vokiThreshold_LTVal_8u_AC4IR(Vok8u* srcDst, int srcDstStep, VokiSize roi, const Vok8u threshold[3], const Vok8u value[3]);
VOK_API VokStatus vokiThreshold_LTVal_8u_C4R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, const Vok8u threshold[4], const Vok8u value[4]);
VOK_API VokStatus vokiThreshold_LTVal_8u_C4IR(Vok8u* srcDst, int srcDstStep, VokiSize roi, const Vok8u threshold[4], const Vok8u value[4]);
VOK_API VokStatus vokiThreshold_LTValGTVal_8u_C1R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, Vok8u thresholdLT, Vok8u valueLT, Vok8u thresholdGT, Vok8u valueGT);
VOK_API VokStatus vokiThreshold_LTValGTVal_8u_C1IR(Vok8u* srcDst, int srcDstStep, VokiSize roi, Vok8u thresholdLT, Vok8u valueLT, Vok8u thresholdGT, Vok8u valueGT);
VOK_API VokStatus vokiThreshold_LTValGTVal_8u_C3R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, const Vok8u thresholdLT[3], const Vok8u valueLT[3], const Vok8u thresholdGT[3], const Vok8u valueGT[3]);
VOK_API VokStatus vokiThreshold_LTValGTVal_8u_C3IR(Vok8u* srcDst, int srcDstStep, VokiSize roi, const Vok8u thresholdLT[3], const Vok8u valueLT[3], const Vok8u thresholdGT[3], const Vok8u valueGT[3]);
VOK_API VokStatus vokiThreshold_LTValGTVal_8u_AC4R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, const Vok8u thresholdLT[3], const Vok8u valueLT[3], const Vok8u thresholdGT[3], const Vok8u valueGT[3]);
VOK_API VokStatus vokiThreshold_LTValGTVal_8u_AC4IR(Vok8u* srcDst, int srcDstStep, VokiSize roi, const Vok8u thresholdLT[3], const Vok8u valueLT[3], const Vok8u thresholdGT[3], const Vok8u valueGT[3]);
VOK_API VokStatus vokiThreshold_16s_C1R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, Vok16s threshold, VokCmpOp cmpOp);
VOK_API VokStatus vokiThreshold_16s_C1IR(Vok16s* srcDst, int srcDstStep, VokiSize roi, Vok16s threshold, VokCmpOp cmpOp);
VOK_API VokStatus vokiThreshold_16s_C3R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, const Vok16s threshold[3], VokCmpOp cmpOp);
VOK_API VokStatus vokiThreshold_16s_C3IR(Vok16s* srcDst, int srcDstStep, VokiSize roi, const Vok16s threshold[3], VokCmpOp cmpOp);
VOK_API VokStatus vokiThreshold_16s_AC4R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, const Vok16s threshold[3], VokCmpOp cmpOp);
VOK_API VokStatus vokiThreshold_16s_AC4IR(Vok16s* srcDst, int srcDstStep, VokiSize roi, const Vok16s threshold[3], VokCmpOp cmpOp);
VOK_API VokStatus vokiThreshold_GT_16s_C1R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, Vok16s threshold);
VOK_API VokStatus vokiThreshold_GT_16s_C1IR(Vok16s* srcDst, int srcDstStep, VokiSize roi, Vok16s threshold);
VOK_API VokStatus vokiThreshold_GT_16s_C3R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, const Vok16s threshold[3]);
VOK_API VokStatus vokiThreshold_GT_16s_C3IR(Vok16s* srcDst, int srcDstStep, VokiSize roi, const Vok16s threshold[3]);
VOK_API VokStatus vokiThreshold_GT_16s_AC4R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, const Vok16s threshold[3]);
VOK_API VokStatus vokiThreshold_GT_16s_AC4IR(Vok16s* srcDst, int srcDstStep, VokiSize roi, const Vok16s threshold[3]);
VOK_API VokStatus vokiThreshold_LT_16s_C1R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, Vok16s threshold);
VOK_API VokStatus vokiThreshold_LT_16s_C1IR(Vok16s* srcDst, int srcDstStep, VokiSize roi, Vok16s threshold);
VOK_API VokStatus vokiThreshold_LT_16s_C3R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, const Vok16s threshold[3]);
VOK_API VokStatus vokiThreshold_LT_16s_C3IR(Vok16s* srcDst, int srcDstStep, VokiSize roi, const Vok16s threshold[3]);
VOK_API VokStatus vokiThreshold_LT_16s_AC4R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, const Vok16s threshold[3]);
VOK_API VokStatus vokiThreshold_LT_16s_AC4IR(Vok16s* srcDst, int srcDstStep, VokiSize roi, const Vok16s threshold[3]);
VOK_API VokStatus vokiThreshold_Val_16s_C1R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, Vok16s threshold, Vok16s value, VokCmpOp cmpOp);
VOK_API VokStatus vokiThreshold_Val_16s_C1IR(Vok16s* srcDst, int srcDstStep, VokiSize roi, Vok16s threshold, Vok16s value, VokCmpOp cmpOp);
VOK_API VokStatus vokiThreshold_Val_16s_C3R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, const Vok16s threshold[3], const Vok16s value[3], VokCmpOp cmpOp);
VOK_API VokStatus vokiThreshold_Val_16s_C3IR(Vok16s* srcDst, int srcDstStep, VokiSize roi, const Vok16s threshold[3], const Vok16s value[3], VokCmpOp cmpOp);
VOK_API VokStatus vokiThreshold_Val_16s_AC4R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, const Vok16s threshold[3], const Vok16s value[3], VokCmpOp cmpOp);
VOK_API VokStatus vokiThreshold_Val_16s_AC4IR(Vok16s* srcDst, int srcDstStep, VokiSize roi, const Vok16s threshold[3], const Vok16s value[3], VokCmpOp cmpOp);
VOK_API VokStatus vokiThreshold_GTVal_16s_C1R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, Vok16s threshold, Vok16s value);
VOK_API VokStatus vokiThreshold_GTVal_16s_C1IR(Vok16s* srcDst, int srcDstStep, VokiSize roi, Vok16s threshold, Vok16s value);
VOK_API VokStatus vokiThreshold_GTVal_16s_C3R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, const Vok16s threshold[3], const Vok16s value[3]);
VOK_API VokStatus vokiThreshold_GTVal_16s_C3IR(Vok16s* srcDst, int srcDstStep, VokiSize roi, const Vok16s threshold[3], const Vok16s value[3]);
VOK_API VokStatus vokiThreshold_GTVal_16s_AC4R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, const Vok16s threshold[3], const Vok16s value[3]);
VOK_API VokStatus vokiThreshold_GTVal_16s_AC4IR(Vok16s* srcDst, int srcDstStep, VokiSize roi, const Vok16s threshold[3], const Vok16s value[3]);
VOK_API VokStatus vokiThreshold_GTVal_16s_C4R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, const Vok16s threshold[4], const Vok16s value[4]);
VOK_API VokStatus vokiThreshold_GTVal_16s_C4IR(Vok16s* srcDst, int srcDstStep, VokiSize roi, const Vok16s threshold[4], const Vok16s value[4]);
VOK_API VokStatus vokiThreshold_LTVal_16s_C1R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, Vok16s threshold, Vok16s value);
VOK_API VokStatus vokiThreshold_LTVal_16s_C1IR(Vok16s* srcDst, int srcDstStep, VokiSize roi, Vok16s threshold, Vok16s value);
VOK_API VokStatus vokiThreshold_LTVal_16s_C3R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, const Vok16s threshold[3], const Vok16s value[3]);
VOK_API VokStatus vokiThreshold_LTVal_16s_C3IR(Vok16s* srcDst, int srcDstStep, VokiSize roi, const Vok16s threshold[3], const Vok16s value[3]);
VOK_API VokStatus vokiThreshold_LTVal_16s_AC4R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, const Vok16s threshold[3], const Vok16s value[3]);
VOK_API VokStatus vokiThreshold_LTVal_16s_AC4IR(Vok16s* srcDst, int srcDstStep, VokiSize roi, const Vok16s threshold[3], const Vok16s value[3]);
VOK_API VokStatus vokiThreshold_LTVal_16s_C4R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, const Vok16s threshold[4], const Vok16s value[4]);
VOK_API VokStatus vokiThreshold_LTVal_16s_C4IR(Vok16s* srcDst, int srcDstStep, VokiSize roi, const Vok16s threshold[4], const Vok16s value[4]);
VOK_API VokStatus vokiThreshold_LTValGTVal_16s_C1R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, Vok16s thresholdLT, Vok16s valueLT, Vok16s thresholdGT, Vok16s valueGT);
VOK_API VokStatus vokiThreshold_LTValGTVal_16s_C1IR(Vok16s* srcDst, int srcDstStep, VokiSize roi, Vok16s thresholdLT, Vok16s valueLT, Vok16s thresholdGT, Vok16s valueGT);
VOK_API VokStatus vokiThreshold_LTValGTVal_16s_C3R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, const Vok16s thresholdLT[3], const Vok16s valueLT[3], const Vok16s thresholdGT[3], const Vok16s valueGT[3]);
VOK_API VokStatus vokiThreshold_LTValGTVal_16s_C3IR(Vok16s* srcDst, int srcDstStep, VokiSize roi, const Vok16s thresholdLT[3], const Vok16s valueLT[3], const Vok16s thresholdGT[3], const Vok16s valueGT[3]);
VOK_API VokStatus vokiThreshold_LTValGTVal_16s_AC4R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, const Vok16s thresholdLT[3], const Vok16s valueLT[3], const Vok16s thresholdGT[3], const Vok16s valueGT[3]);
VOK_API VokStatus vokiThreshold_LTValGTVal_16s_AC4IR(Vok16s* srcDst, int srcDstStep, VokiSize roi, const Vok16s thresholdLT[3], const Vok16s valueLT[3], const Vok16s thresholdGT[3], const Vok16s valueGT[3]);
VOK_API VokStatus vokiThreshold_32f_C1R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi, Vok32f threshold, VokCmpOp cmpOp);
VOK_API VokStatus vokiThreshold_32f_C1IR(Vok32f* srcDst, int srcDstStep, VokiSize roi, Vok32f threshold, VokCmpOp cmpOp);
VOK_API VokStatus vokiThreshold_32f_C3R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi, const Vok32f threshold[3], VokCmpOp cmpOp);
VOK_API VokStatus vokiThreshold_32f_C3IR(Vok32f* srcDst, int srcDstStep, VokiSize roi, const Vok32f threshold[3], VokCmpOp cmpOp);
VOK_API VokStatus vokiThreshold_32f_AC4R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi, const Vok32f threshold[3], VokCmpOp cmpOp);
VOK_API VokStatus vokiThreshold_32f_AC4IR(Vok32f* srcDst, int srcDstStep, VokiSize roi, const Vok32f threshold[3], VokCmpOp cmpOp);
VOK_API VokStatus vokiThreshold_GT_32f_C1R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi, Vok32f threshold);
VOK_API VokStatus vokiThreshold_GT_32f_C1IR(Vok32f* srcDst, int srcDstStep, VokiSize roi, Vok32f threshold);
VOK_API VokStatus vokiThreshold_GT_32f_C3R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi, const Vok32f threshold[3]);
VOK_API VokStatus vokiThreshold_GT_32f_C3IR(Vok32f* srcDst, int srcDstStep, VokiSize roi, const Vok32f threshold[3]);
VOK_API VokStatus vokiThreshold_GT_32f_AC4R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi, const Vok32f threshold[3]);
VOK_API VokStatus vokiThreshold_GT_32f_AC4IR(Vok32f* srcDst, int srcDstStep, VokiSize roi, const Vok32f threshold[3]);
VOK_API VokStatus vokiThreshold_LT_32f_C1R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi, Vok32f threshold);
VOK_API VokStatus vokiThreshold_LT_32f_C1IR(Vok32f* srcDst, int srcDstStep, VokiSize roi, Vok32f threshold);
VOK_API VokStatus vokiThreshold_LT_32f_C3R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi, const Vok32f threshold[3]);
VOK_API VokStatus vokiThreshold_LT_32f_C3IR(Vok32f* srcDst, int srcDstStep, VokiSize roi, const Vok32f threshold[3]);
VOK_API VokStatus vokiThreshold_LT_32f_AC4R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi, const Vok32f threshold[3]);
VOK_API VokStatus vokiThreshold_LT_32f_AC4IR(Vok32f* srcDst, int srcDstStep, VokiSize roi, const Vok32f threshold[3]);
VOK_API VokStatus vokiThreshold_Val_32f_C1R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi, Vok32f threshold, Vok32f value, VokCmpOp cmpOp);
VOK_API VokStatus vokiThreshold_Val_32f_C1IR(Vok32f* srcDst, int srcDstStep, VokiSize roi, Vok32f threshold, Vok32f value, VokCmpOp cmpOp);
VOK_API VokStatus vokiThreshold_Val_32f_C3R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi, const Vok32f threshold[3], const Vok32f value[3], VokCmpOp cmpOp);
VOK_API VokStatus vokiThreshold_Val_32f_C3IR(Vok32f* srcDst, int srcDstStep, VokiSize roi, const Vok32f threshold[3], const Vok32f value[3], VokCmpOp cmpOp);
VOK_API VokStatus vokiThreshold_Val_32f_AC4R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi, const Vok32f threshold[3], const Vok32f value[3], VokCmpOp cmpOp);
VOK_API VokStatus vokiThreshold_Val_32f_AC4IR(Vok32f* srcDst, int srcDstStep, VokiSize roi, const Vok32f threshold[3], const Vok32f value[3], VokCmpOp cmpOp);
VOK_API VokStatus vokiThreshold_GTVal_32f_C1R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi, Vok32f threshold, Vok32f value);
VOK_API VokStatus vokiThreshold_GTVal_32f_C1IR(Vok32f* srcDst, int srcDstStep, VokiSize roi, Vok32f threshold, Vok32f value);
VOK_API VokStatus vokiThreshold_GTVal_32f_C3R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi, const Vok32f threshold[3], const Vok32f value[3]);
VOK_API VokStatus vokiThreshold_GTVal_32f_C3IR(Vok32f* srcDst, int srcDstStep, VokiSize roi, const Vok32f threshold[3], const Vok32f value[3]);
VOK_API VokStatus vokiThreshold_GTVal_32f_AC4R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi, const Vok32f threshold[3], const Vok32f value[3]);
VOK_API VokStatus vokiThreshold_GTVal_32f_AC4IR(Vok32f* srcDst, int srcDstStep, VokiSize roi, const Vok32f threshold[3], const Vok32f value[3]);
VOK_API VokStatus vokiThreshold_GTVal_32f_C4R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi, const Vok32f threshold[4], const Vok32f value[4]);
VOK_API VokStatus vokiThreshold_GTVal_32f_C4IR(Vok32f* srcDst, int srcDstStep, VokiSize roi, const Vok32f threshold[4], const Vok32f value[4]);
VOK_API VokStatus vokiThreshold_LTVal_32f_C1R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi, Vok32f threshold, Vok32f value);
VOK_API VokStatus vokiThreshold_LTVal_32f_C1IR(Vok32f* srcDst, int srcDstStep, VokiSize roi, Vok32f threshold, Vok32f value);
VOK_API VokStatus vokiThreshold_LTVal_32f_C3R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi, const Vok32f threshold[3], const Vok32f value[3]);
VOK_API VokStatus vokiThreshold_LTVal_32f_C3IR(Vok32f* srcDst, int srcDstStep, VokiSize roi, const Vok32f threshold[3], const Vok32f value[3]);
VOK_API VokStatus vokiThreshold_LTVal_32f_AC4R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi, const Vok32f threshold[3], const Vok32f value[3]);
VOK_API VokStatus vokiThreshold_LTVal_32f_AC4IR(Vok32f* srcDst, int srcDstStep, VokiSize roi, const Vok32f threshold[3], const Vok32f value[3]);
VOK_API VokStatus vokiThreshold_LTVal_32f_C4R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi, const Vok32f threshold[4], const Vok32f value[4]);
VOK_API VokStatus vokiThreshold_LTVal_32f_C4IR(Vok32f* srcDst, int srcDstStep, VokiSize roi, const Vok32f threshold[4], const Vok32f value[4]);
VOK_API VokStatus vokiThreshold_LTValGTVal_32f_C1R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi, Vok32f thresholdLT, Vok32f valueLT, Vok32f thresholdGT, Vok32f valueGT);
VOK_API VokStatus vokiThreshold_LTValGTVal_32f_C1IR(Vok32f* srcDst, int srcDstStep, VokiSize roi, Vok32f thresholdLT, Vok32f valueLT, Vok32f thresholdGT, Vok32f valueGT);
VOK_API VokStatus vokiThreshold_LTValGTVal_32f_C3R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi, const Vok32f thresholdLT[3], const Vok32f valueLT[3], const Vok32f thresholdGT[3], const Vok32f valueGT[3]);
VOK_API VokStatus vokiThreshold_LTValGTVal_32f_C3IR(Vok32f* srcDst, int srcDstStep, VokiSize roi, const Vok32f thresholdLT[3], const Vok32f valueLT[3], const Vok32f thresholdGT[3], const Vok32f valueGT[3]);
VOK_API VokStatus vokiThreshold_LTValGTVal_32f_AC4R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi, const Vok32f thresholdLT[3], const Vok32f valueLT[3], const Vok32f thresholdGT[3], const Vok32f valueGT[3]);
VOK_API VokStatus vokiThreshold_LTValGTVal_32f_AC4IR(Vok32f* srcDst, int srcDstStep, VokiSize roi, const Vok32f thresholdLT[3], const Vok32f valueLT[3], const Vok32f thresholdGT[3], const Vok32f valueGT[3]);

/* ---- Complement: two's complement to sign and magnitude, in place ---- */
VOK_API VokStatus vokiComplement_32s_C1IR(Vok32s* srcDst, int srcDstStep, VokiSize roi);

/* ---- RGBToYCbCr, YCbCrToRGB: studio-range BT.601 luma-chroma ------------
 * Fixed point with a block path and a tail path that can differ by one
 * unit, so a pixel's result can depend on its column. */
VOK_API VokStatus vokiRGBToYCbCr_8u_C3R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiRGBToYCbCr_8u_AC4R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiRGBToYCbCr_8u_P3R(const Vok8u* const src[3], int srcStep, Vok8u* const dst[3], int dstStep, VokiSize roi);
VOK_API VokStatus vokiYCbCrToRGB_8u_C3R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiYCbCrToRGB_8u_AC4R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiYCbCrToRGB_8u_P3R(const Vok8u* const src[3], int srcStep, Vok8u* const dst[3], int dstStep, VokiSize roi);
VOK_API VokStatus vokiYCbCrToRGB_8u_P3C3R(const Vok8u* const src[3], int srcStep, Vok8u* dst, int dstStep, VokiSize roi);

/* ---- RGBToYUV, YUVToRGB: full-range luma with chroma around 128 ---------- */
VOK_API VokStatus vokiRGBToYUV_8u_C3R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiRGBToYUV_8u_AC4R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiRGBToYUV_8u_P3R(const Vok8u* const src[3], int srcStep, Vok8u* const dst[3], int dstStep, VokiSize roi);
VOK_API VokStatus vokiRGBToYUV_8u_C3P3R(const Vok8u* src, int srcStep, Vok8u* const dst[3], int dstStep, VokiSize roi);
VOK_API VokStatus vokiYUVToRGB_8u_C3R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiYUVToRGB_8u_AC4R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiYUVToRGB_8u_P3R(const Vok8u* const src[3], int srcStep, Vok8u* const dst[3], int dstStep, VokiSize roi);
VOK_API VokStatus vokiYUVToRGB_8u_P3C3R(const Vok8u* const src[3], int srcStep, Vok8u* dst, int dstStep, VokiSize roi);

/* ---- RGBToYCC, YCCToRGB: PhotoYCC, chroma offsets 156 and 137 -----------
 * 32f works on 0..1 and does not quantise; YCCToRGB_32f clamps to 0..1. */
VOK_API VokStatus vokiRGBToYCC_8u_C3R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiRGBToYCC_8u_AC4R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiRGBToYCC_16u_C3R(const Vok16u* src, int srcStep, Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiRGBToYCC_16u_AC4R(const Vok16u* src, int srcStep, Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiRGBToYCC_16s_C3R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiRGBToYCC_16s_AC4R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiRGBToYCC_32f_C3R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiRGBToYCC_32f_AC4R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiYCCToRGB_8u_C3R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiYCCToRGB_8u_AC4R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiYCCToRGB_16u_C3R(const Vok16u* src, int srcStep, Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiYCCToRGB_16u_AC4R(const Vok16u* src, int srcStep, Vok16u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiYCCToRGB_16s_C3R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiYCCToRGB_16s_AC4R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiYCCToRGB_32f_C3R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiYCCToRGB_32f_AC4R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi);

/* ---- CbYCr 4:2:2 pixel pairs (Cb, Y0, Cr, Y1) with RGB or BGR ----------
 * RGBToCbYCr422 filters chroma 1-2-1 across pixels, BGRToCbYCr422 averages
 * a pair; an odd width ends on a lone pixel of two bytes, Cb and Y.
 * CbYCr422ToBGR writes aval to the fourth channel. */
VOK_API VokStatus vokiRGBToCbYCr422_8u_C3C2R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiRGBToCbYCr422Gamma_8u_C3C2R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiBGRToCbYCr422_8u_AC4C2R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiCbYCr422ToRGB_8u_C2C3R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi);
VOK_API VokStatus vokiCbYCr422ToBGR_8u_C2C4R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, Vok8u aval);

/* ---- Filters with user kernels -------------------------------------------
 * A true convolution, flipped in both axes: with anchor (ax, ay),
 * dst(x, y) = sum of K[m][n] x src(x + ax - n, y + ay - m). The source must
 * hold kw - 1 - ax readable columns left of the region, ax to its right,
 * kh - 1 - ay rows above and ay below; no border is synthesised. Integer
 * kernels on 8u sum exactly and divide by `divisor` (a power of two shifts
 * with ties up, any other divisor multiplies by its float reciprocal); 16s
 * forms fold 1 / divisor into a float kernel. Float kernels sum float
 * products in the window's raster order. AC4 leaves alpha untouched. */
VOK_API VokStatus vokiFilter_8u_C1R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, const Vok32s* kernel, VokiSize kernelSize, VokiPoint anchor, int divisor);
VOK_API VokStatus vokiFilter_8u_C3R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, const Vok32s* kernel, VokiSize kernelSize, VokiPoint anchor, int divisor);
VOK_API VokStatus vokiFilter_8u_C4R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, const Vok32s* kernel, VokiSize kernelSize, VokiPoint anchor, int divisor);
VOK_API VokStatus vokiFilter_8u_AC4R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, const Vok32s* kernel, VokiSize kernelSize, VokiPoint anchor, int divisor);
VOK_API VokStatus vokiFilter_16s_C1R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, const Vok32s* kernel, VokiSize kernelSize, VokiPoint anchor, int divisor);
VOK_API VokStatus vokiFilter_16s_C3R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, const Vok32s* kernel, VokiSize kernelSize, VokiPoint anchor, int divisor);
VOK_API VokStatus vokiFilter_16s_C4R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, const Vok32s* kernel, VokiSize kernelSize, VokiPoint anchor, int divisor);
VOK_API VokStatus vokiFilter_16s_AC4R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, const Vok32s* kernel, VokiSize kernelSize, VokiPoint anchor, int divisor);
VOK_API VokStatus vokiFilter32f_8u_C1R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, const Vok32f* kernel, VokiSize kernelSize, VokiPoint anchor);
VOK_API VokStatus vokiFilter32f_8u_C3R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, const Vok32f* kernel, VokiSize kernelSize, VokiPoint anchor);
VOK_API VokStatus vokiFilter32f_8u_C4R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, const Vok32f* kernel, VokiSize kernelSize, VokiPoint anchor);
VOK_API VokStatus vokiFilter32f_8u_AC4R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, const Vok32f* kernel, VokiSize kernelSize, VokiPoint anchor);
VOK_API VokStatus vokiFilter32f_16s_C1R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, const Vok32f* kernel, VokiSize kernelSize, VokiPoint anchor);
VOK_API VokStatus vokiFilter32f_16s_C3R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, const Vok32f* kernel, VokiSize kernelSize, VokiPoint anchor);
VOK_API VokStatus vokiFilter32f_16s_C4R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, const Vok32f* kernel, VokiSize kernelSize, VokiPoint anchor);
VOK_API VokStatus vokiFilter32f_16s_AC4R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, const Vok32f* kernel, VokiSize kernelSize, VokiPoint anchor);
VOK_API VokStatus vokiFilter_32f_C1R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi, const Vok32f* kernel, VokiSize kernelSize, VokiPoint anchor);
VOK_API VokStatus vokiFilter_32f_C3R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi, const Vok32f* kernel, VokiSize kernelSize, VokiPoint anchor);
VOK_API VokStatus vokiFilter_32f_C4R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi, const Vok32f* kernel, VokiSize kernelSize, VokiPoint anchor);
VOK_API VokStatus vokiFilter_32f_AC4R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi, const Vok32f* kernel, VokiSize kernelSize, VokiPoint anchor);
VOK_API VokStatus vokiFilterRow_8u_C1R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, const Vok32s* kernel, int kernelSize, int xAnchor, int divisor);
VOK_API VokStatus vokiFilterRow_8u_C3R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, const Vok32s* kernel, int kernelSize, int xAnchor, int divisor);
VOK_API VokStatus vokiFilterRow_8u_C4R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, const Vok32s* kernel, int kernelSize, int xAnchor, int divisor);
VOK_API VokStatus vokiFilterRow_8u_AC4R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, const Vok32s* kernel, int kernelSize, int xAnchor, int divisor);
VOK_API VokStatus vokiFilterRow_16s_C1R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, const Vok32s* kernel, int kernelSize, int xAnchor, int divisor);
VOK_API VokStatus vokiFilterRow_16s_C3R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, const Vok32s* kernel, int kernelSize, int xAnchor, int divisor);
VOK_API VokStatus vokiFilterRow_16s_C4R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, const Vok32s* kernel, int kernelSize, int xAnchor, int divisor);
VOK_API VokStatus vokiFilterRow_16s_AC4R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, const Vok32s* kernel, int kernelSize, int xAnchor, int divisor);
VOK_API VokStatus vokiFilterRow32f_8u_C1R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, const Vok32f* kernel, int kernelSize, int xAnchor);
VOK_API VokStatus vokiFilterRow32f_8u_C3R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, const Vok32f* kernel, int kernelSize, int xAnchor);
VOK_API VokStatus vokiFilterRow32f_8u_C4R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, const Vok32f* kernel, int kernelSize, int xAnchor);
VOK_API VokStatus vokiFilterRow32f_8u_AC4R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, const Vok32f* kernel, int kernelSize, int xAnchor);
VOK_API VokStatus vokiFilterRow32f_16s_C1R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, const Vok32f* kernel, int kernelSize, int xAnchor);
VOK_API VokStatus vokiFilterRow32f_16s_C3R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, const Vok32f* kernel, int kernelSize, int xAnchor);
VOK_API VokStatus vokiFilterRow32f_16s_C4R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, const Vok32f* kernel, int kernelSize, int xAnchor);
VOK_API VokStatus vokiFilterRow32f_16s_AC4R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, const Vok32f* kernel, int kernelSize, int xAnchor);
VOK_API VokStatus vokiFilterRow_32f_C1R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi, const Vok32f* kernel, int kernelSize, int xAnchor);
VOK_API VokStatus vokiFilterRow_32f_C3R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi, const Vok32f* kernel, int kernelSize, int xAnchor);
VOK_API VokStatus vokiFilterRow_32f_C4R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi, const Vok32f* kernel, int kernelSize, int xAnchor);
VOK_API VokStatus vokiFilterRow_32f_AC4R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi, const Vok32f* kernel, int kernelSize, int xAnchor);
VOK_API VokStatus vokiFilterColumn_8u_C1R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, const Vok32s* kernel, int kernelSize, int yAnchor, int divisor);
VOK_API VokStatus vokiFilterColumn_8u_C3R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, const Vok32s* kernel, int kernelSize, int yAnchor, int divisor);
VOK_API VokStatus vokiFilterColumn_8u_C4R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, const Vok32s* kernel, int kernelSize, int yAnchor, int divisor);
VOK_API VokStatus vokiFilterColumn_8u_AC4R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, const Vok32s* kernel, int kernelSize, int yAnchor, int divisor);
VOK_API VokStatus vokiFilterColumn_16s_C1R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, const Vok32s* kernel, int kernelSize, int yAnchor, int divisor);
VOK_API VokStatus vokiFilterColumn_16s_C3R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, const Vok32s* kernel, int kernelSize, int yAnchor, int divisor);
VOK_API VokStatus vokiFilterColumn_16s_C4R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, const Vok32s* kernel, int kernelSize, int yAnchor, int divisor);
VOK_API VokStatus vokiFilterColumn_16s_AC4R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, const Vok32s* kernel, int kernelSize, int yAnchor, int divisor);
VOK_API VokStatus vokiFilterColumn32f_8u_C1R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, const Vok32f* kernel, int kernelSize, int yAnchor);
VOK_API VokStatus vokiFilterColumn32f_8u_C3R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, const Vok32f* kernel, int kernelSize, int yAnchor);
VOK_API VokStatus vokiFilterColumn32f_8u_C4R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, const Vok32f* kernel, int kernelSize, int yAnchor);
VOK_API VokStatus vokiFilterColumn32f_8u_AC4R(const Vok8u* src, int srcStep, Vok8u* dst, int dstStep, VokiSize roi, const Vok32f* kernel, int kernelSize, int yAnchor);
VOK_API VokStatus vokiFilterColumn32f_16s_C1R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, const Vok32f* kernel, int kernelSize, int yAnchor);
VOK_API VokStatus vokiFilterColumn32f_16s_C3R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, const Vok32f* kernel, int kernelSize, int yAnchor);
VOK_API VokStatus vokiFilterColumn32f_16s_C4R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, const Vok32f* kernel, int kernelSize, int yAnchor);
VOK_API VokStatus vokiFilterColumn32f_16s_AC4R(const Vok16s* src, int srcStep, Vok16s* dst, int dstStep, VokiSize roi, const Vok32f* kernel, int kernelSize, int yAnchor);
VOK_API VokStatus vokiFilterColumn_32f_C1R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi, const Vok32f* kernel, int kernelSize, int yAnchor);
VOK_API VokStatus vokiFilterColumn_32f_C3R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi, const Vok32f* kernel, int kernelSize, int yAnchor);
VOK_API VokStatus vokiFilterColumn_32f_C4R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi, const Vok32f* kernel, int kernelSize, int yAnchor);
VOK_API VokStatus vokiFilterColumn_32f_AC4R(const Vok32f* src, int srcStep, Vok32f* dst, int dstStep, VokiSize roi, const Vok32f* kernel, int kernelSize, int yAnchor);

#ifdef __cplusplus
} /* extern "C" */
#endif

#endif /* VOK_H */
