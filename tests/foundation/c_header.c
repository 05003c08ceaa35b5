/* The public header compiles as C99 and its functions link from C. */
#include "vok.h"

int vok_c_header_smoke(void) {
  int step = 0;
  Vok8u* image = vokiMalloc_8u_C1(4, 2, &step);
  VokiSize roi = {4, 2};
  VokStatus status;
  if (image == 0) return -1;
  status = vokiAddC_8u_C1IRSfs(3, image, step, roi, 0);
  vokiFree(image);
  return status == vokStatusOk && step == 32 ? 1 : 0;
}
