#include "formations/group_path_preview.h"

#include "common/numbers.h"
#include "common/text.h"
#include "formations/formation_lists.h"
#include "formations/group_selection.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"
#include "shell/sounds.h"

namespace tarvex {

namespace {

// Shows path p by the click of its option button, also when it is already the one set.
void ClickPathOption(Editor& ed, int p) {
    OptionButton& option = ed.FrmMission.optColor(p);
    if (option.Value()) {
        option.RaiseClick();
    } else {
        option.SetValue(true);
    }
}

}  // namespace

void PreviewGroupPath(Editor& ed, int row, float x) {
    auto& frm = ed.FrmMission;
    FormationsState& st = ed.formations;
    const int path = static_cast<int>(Val(Left(ed.doc.GrpPaths(row), 4))) - 5000;
    if (path < 0 || path >= Mission::kMaxPaths) return;

    SelectRow(frm.lstGroupName, row);
    PictureSurface& map = frm.mapWayPoints;
    st.PreviewMapLeft = map.Left();
    st.PreviewMapTop = map.Top();
    st.PreviewOverlayOn = ed.drawing.OverlayOn;
    ed.drawing.OverlayOn = false;
    st.PreviewPath = path;
    st.PreviewShown = true;

    ClickPathOption(ed, path);
    map.Move(frm.lstGroupName.Left() + frm.fraGroupInfo.Left() + x, frm.fraGroupInfo.Top());
    map.ZOrder(0);
    map.SetVisible(true);
    ShowGroupPath(ed);
}

void EndGroupPathPreview(Editor& ed) {
    FormationsState& st = ed.formations;
    if (!st.PreviewShown) return;
    st.PreviewShown = false;
    PictureSurface& map = ed.FrmMission.mapWayPoints;
    ed.drawing.OverlayOn = st.PreviewOverlayOn;
    map.Move(st.PreviewMapLeft, st.PreviewMapTop);
    map.SetVisible(false);
    ClickPathOption(ed, st.PreviewPath);
    PlaySound(ed, ed.shell.sndCheckbox);
}

}  // namespace tarvex
