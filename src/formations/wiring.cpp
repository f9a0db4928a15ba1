#include "formations/wiring.h"

namespace tarvex {

void WireFormations(Editor&) {}

}  // namespace tarvex
