#pragma once
// The help line of the menus: while a menu is open, the status strip names what the entry
// under the mouse does.
#include <string>

namespace tarvex {

class Editor;
class MenuItem;

// The help text of an entry; the empty text for an entry that has none.
std::string MenuHelpText(Editor& ed, const MenuItem& entry);

// Starts watching the menus (the last steps of the main window's load).
void AttachMenuWatcher(Editor& ed);

// An entry became highlighted: the strip is cleared, and an entry reached with the mouse that
// opens no submenu has its help written in red a moment later, by tmrMenuHelp. The keyboard
// shows no help.
void scMenus_Highlight(Editor& ed, const MenuItem& entry, bool byMouse);
void tmrMenuHelp_Timer(Editor& ed);

}  // namespace tarvex
