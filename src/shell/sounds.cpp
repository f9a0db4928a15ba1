#include "shell/sounds.h"

#include <string>

#include "common/numbers.h"
#include "common/paths.h"
#include "shell/editor.h"
#include "shell/forms/mdi_mission_ed.h"

namespace tarvex {

int PercentToEngineVolume(double percent) {
    return CLng(percent / 100 * 5000 - 5000);
}

double EngineVolumeToPercent(int engineVolume) {
    return 100 - (engineVolume / -5000.0) * 100;
}

void StartSoundEngine(Editor& ed) {
    const std::string folder = JoinPath(ed.options.SimPath, "sound");
    SoundEngine& engine = ed.svc.sound;
    ShellState& s = ed.shell;
    s.sndCheckbox = engine.Load(JoinPath(folder, "Checkbox.wav"));
    s.sndClick = engine.Load(JoinPath(folder, "Click.wav"));
    s.sndFlak = engine.Load(JoinPath(folder, "xflak.wav"));
    s.sndWhlHit = engine.Load(JoinPath(folder, "whlhit2.wav"));
    SetVolume(ed, 90);
}

void PlaySound(Editor& ed, int handle) {
    if (ed.options.SoundOn) ed.svc.sound.Play(handle);
}

void SetVolume(Editor& ed, double percent) {
    ed.svc.sound.SetVolume(PercentToEngineVolume(percent));
}

void ShowSoundState(Editor& ed) {
    ed.MDIMissionED.mnuSndOn.SetCaption(ed.options.SoundOn ? "Dis&abled" : "&Enabled");
}

void mnuSndOn_Click(Editor& ed) {
    ed.options.SoundOn = !ed.options.SoundOn;
    ShowSoundState(ed);
}

void mnuIncVol_Click(Editor& ed) {
    auto& m = ed.MDIMissionED;
    double percent = RoundHalfEven(EngineVolumeToPercent(ed.svc.sound.Volume()) + 10);
    if (percent >= 100) {
        percent = 100;
        m.mnuIncVol.SetEnabled(false);
    }
    m.mnuDecVol.SetEnabled(true);
    SetVolume(ed, percent);
}

void mnuDecVol_Click(Editor& ed) {
    auto& m = ed.MDIMissionED;
    double percent = RoundHalfEven(EngineVolumeToPercent(ed.svc.sound.Volume()) - 10);
    if (percent < 1) {
        percent = 0;
        m.mnuDecVol.SetEnabled(false);
    }
    m.mnuIncVol.SetEnabled(true);
    SetVolume(ed, percent);
}

}  // namespace tarvex
