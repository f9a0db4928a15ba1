#include "shell/tools_menu.h"

#include "shell/editor.h"
#include "shell/message_screen.h"

namespace tarvex {

void mnuCompact_Click(Editor& ed) {
    ed.db.CompactReferenceDatabase(
        ed.svc.dialogs, [&ed](const std::string& text) { ShowMessageScreen(ed, text); },
        [&ed] { CloseMessageScreen(ed); });
}

}  // namespace tarvex
