#pragma once
// The working values of the Ground units tab, the layout editor, the offsets window and the layout
// records.
namespace tarvex {

struct GroundState {};

}  // namespace tarvex
