#pragma once
// The player's pilot: at most one in the mission, marked with chkPlayer.
namespace tarvex {

class Editor;

void chkPlayer_Click(Editor& ed);
void chkPlayer_MouseDown(Editor& ed, int button, int shift, float x, float y);

// Nobody is the player any more: chkPlayer unchecked, PlayerGroup and PlayerPilot -1.
void ClearPlayer(Editor& ed);

}  // namespace tarvex
