#pragma once
// The standing sounds and their volume. The engine counts volume from -5000 (silent) to 0
// (full); the menus count in percent.
namespace tarvex {

class Editor;

int PercentToEngineVolume(double percent);
double EngineVolumeToPercent(int engineVolume);

// Loads the four standing sounds from the simulator's sound folder and sets 90 percent.
void StartSoundEngine(Editor& ed);

// Plays a loaded sound, only while sound is on.
void PlaySound(Editor& ed, int handle);
void SetVolume(Editor& ed, double percent);

// The Sound entries of the Options menu.
void mnuSndOn_Click(Editor& ed);
void mnuIncVol_Click(Editor& ed);
void mnuDecVol_Click(Editor& ed);
// The caption of mnuSndOn names what a click will do.
void ShowSoundState(Editor& ed);

}  // namespace tarvex
