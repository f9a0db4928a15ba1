#include <cstdio>
#include <string>

#include "common/program_version.h"
#include "document/mission_reset.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"

namespace tarvex {

namespace {

std::string TwoDigits(int n) {
    char text[16];
    std::snprintf(text, sizeof text, "%02d", n);
    return text;
}

}  // namespace

void SetSummaryDefaults(Editor& ed) {
    auto& frm = ed.FrmMission;
    const DateTime now = ed.svc.clock.Now();

    frm.txtTitle.SetText(ed.options.DefName + "'s Mission");
    frm.txtSummary.SetText("This Mission was created with Tarvex Mission Editor Version " +
                           ProgramVersionText() + " by: Bram Oskett");
    frm.txtObjective.SetText("2 d bug ME");
    frm.txtType.SetText("Sortak");
    frm.txtTip.SetText("Stay Alive");
    frm.txtPctReqd.SetText("50");
    frm.txtTime.SetText(TwoDigits(now.hour) + ":" + TwoDigits(now.minute));
    // Month first and padded; the year is always 1940, whatever the century of the clock.
    frm.txtDate.SetText(TwoDigits(now.month) + "/" + TwoDigits(now.day) + "/1940");
}

}  // namespace tarvex
