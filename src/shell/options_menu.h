#pragma once
// The Options menu apart from units and sound: the aircraft list size, Auto Update and the
// tooltips switch.
namespace tarvex {

class Editor;

// The AC List entries as a given size calls for them: Normal at 1 or below (or beyond the
// largest size), the largest size 2.5 without Increase.
void ShowACListSize(Editor& ed);

void mnuACListInc_Click(Editor& ed);
void mnuACListDec_Click(Editor& ed);
void mnuACListNorm_Click(Editor& ed);
void mnuAutoUpdate_Click(Editor& ed);
void mnuTooltips_Click(Editor& ed);

}  // namespace tarvex
