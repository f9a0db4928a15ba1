#include "ground/wiring.h"

namespace tarvex {

void WireGround(Editor&) {}

}  // namespace tarvex
