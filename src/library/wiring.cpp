#include "library/wiring.h"

namespace tarvex {

void WireLibrary(Editor&) {}

}  // namespace tarvex
