#include "shell/options_menu.h"

#include "ground/offsets_window.h"
#include "shell/editor.h"
#include "shell/forms/mdi_mission_ed.h"

namespace tarvex {

namespace {

constexpr float kLargestListSize = 2.5f;
constexpr float kListSizeStep = 0.25f;

}  // namespace

void ShowACListSize(Editor& ed) {
    auto& m = ed.MDIMissionED;
    const float size = ed.options.ACListSize;
    if (size <= 1 || size > kLargestListSize) {
        m.mnuACListDec.SetEnabled(false);
        m.mnuACListInc.SetEnabled(true);
        m.mnuACListNorm.SetChecked(true);
    } else if (size == kLargestListSize) {
        m.mnuACListDec.SetEnabled(true);
        m.mnuACListInc.SetEnabled(false);
        m.mnuACListNorm.SetChecked(false);
    } else {
        m.mnuACListDec.SetEnabled(true);
        m.mnuACListInc.SetEnabled(true);
        m.mnuACListNorm.SetChecked(false);
    }
}

void mnuACListInc_Click(Editor& ed) {
    auto& m = ed.MDIMissionED;
    float& size = ed.options.ACListSize;
    if (size == 0) size = 1;
    size += kListSizeStep;
    m.mnuACListDec.SetEnabled(true);
    if (size == kLargestListSize) m.mnuACListInc.SetEnabled(false);
    m.mnuACListNorm.SetChecked(false);
}

void mnuACListDec_Click(Editor& ed) {
    auto& m = ed.MDIMissionED;
    float& size = ed.options.ACListSize;
    size -= kListSizeStep;
    if (size < 1) {
        size = 0;
        m.mnuACListDec.SetEnabled(false);
        m.mnuACListNorm.SetChecked(true);
    } else {
        m.mnuACListNorm.SetChecked(false);
    }
    m.mnuACListInc.SetEnabled(true);
}

void mnuACListNorm_Click(Editor& ed) {
    auto& m = ed.MDIMissionED;
    m.mnuACListDec.SetEnabled(false);
    m.mnuACListInc.SetEnabled(true);
    ed.options.ACListSize = 0;
    m.mnuACListNorm.SetChecked(true);
}

void mnuAutoUpdate_Click(Editor& ed) {
    ed.options.AutoUpdate = !ed.options.AutoUpdate;
    ed.MDIMissionED.mnuAutoUpdate.SetChecked(ed.options.AutoUpdate);
}

void mnuTooltips_Click(Editor& ed) {
    auto& entry = ed.MDIMissionED.mnuTooltips;
    // TODO: ClearTooltips(ed) when the entry is checked, SetTooltips(ed) otherwise, and the
    // tooltips of frmtblMissions, once the tooltip texts are in.
    entry.SetChecked(!entry.Checked());
    ed.options.ToolTipsOn = entry.Checked();
    SetOffsetsTips(ed);
}

}  // namespace tarvex
