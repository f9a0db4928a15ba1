#include "refdata/wiring.h"

namespace tarvex {

void WireRefdata(Editor&) {}

}  // namespace tarvex
