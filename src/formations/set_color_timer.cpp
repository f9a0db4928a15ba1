#include "formations/set_color_timer.h"

#include "shell/editor.h"
#include "shell/forms/frm_mission.h"
#include "shell/status_strip.h"

namespace tarvex {

namespace {

constexpr int kBlinkInterval = 100;
constexpr int kWarningInterval = 2000;
constexpr int kBlinkTicks = 8;
constexpr Colour kDirectiveColour = Rgb(224, 224, 224);
const char* const kStatusTag = "Status";

}  // namespace

void ShowTimedWarning(Editor& ed, const std::string& text) {
    Timer& timer = ed.FrmMission.tmrSetColor;
    ed.formations.TimedStatusText = text;
    ShowStatus(ed, text, kStatusWarning);
    timer.SetTag(kStatusTag);
    timer.SetInterval(kWarningInterval);
    timer.SetEnabled(true);
}

void StartDirectiveBlink(Editor& ed) {
    ed.FrmMission.tmrSetColor.SetEnabled(true);
}

void tmrSetColor_Timer(Editor& ed) {
    auto& frm = ed.FrmMission;
    Timer& timer = frm.tmrSetColor;
    if (timer.Tag() == kStatusTag) {
        ShowStatus(ed, ed.formations.TimedStatusText);
        timer.SetEnabled(false);
        timer.SetInterval(kBlinkInterval);
        timer.SetTag("");
        return;
    }
    int& count = ed.formations.BlinkCount;
    ++count;
    frm.cmbDirective.SetBackColor(count % 2 == 1 ? kStatusWarning : kDirectiveColour);
    if (count == kBlinkTicks) {
        count = 0;
        timer.SetEnabled(false);
    }
}

}  // namespace tarvex
