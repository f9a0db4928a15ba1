#pragma once
// The two prompts of the Summary tab: an empty date or time box shows, at a click, the form
// its value takes, selected whole so that typing replaces it.
namespace tarvex {

class Editor;

void txtDate_Click(Editor& ed);
void txtTime_Click(Editor& ed);

}  // namespace tarvex
