#include "app/make_editor.h"

#include "formations/wiring.h"
#include "ground/wiring.h"
#include "library/wiring.h"
#include "maps/wiring.h"
#include "refdata/wiring.h"
#include "shell/wiring.h"

namespace tarvex {

std::unique_ptr<Editor> MakeEditor(Services services) {
    auto ed = std::make_unique<Editor>(services);
    WireShell(*ed);
    WireRefdata(*ed);
    WireMaps(*ed);
    WireFormations(*ed);
    WireGround(*ed);
    WireLibrary(*ed);
    return ed;
}

}  // namespace tarvex
