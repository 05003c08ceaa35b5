// Bitwise logic and constant shifts between the exported entries and the row
// kernels.
#pragma once

#include "foundation/image.h"

namespace vok {

enum class LogicOp { kAnd, kOr, kXor, kShiftLeft, kShiftRight };

// a op b into dst. Shifts take one count per channel from rows.constant,
// as samples of the image's type already limited to the sample's width;
// uniformCount is that count when all channels share it, else -1.
struct LogicJob {
  ElementRows rows;
  LogicOp op;
  int uniformCount;
};

template <typename T>
void RunLogic(const LogicJob& job);

}  // namespace vok
