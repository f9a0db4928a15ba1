#include "maps/waypoint_fields.h"

#include <string>

#include "common/error.h"
#include "common/number_text.h"
#include "common/numbers.h"
#include "common/text.h"
#include "maps/map_loading.h"
#include "maps/path_drawing.h"
#include "maps/waypoint_list.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/mdi_mission_ed.h"
#include "shell/sounds.h"
#include "shell/status_strip.h"

namespace tarvex {

namespace {

// The characters of each coordinate in txtPoint: "N51 23.45 E01 22.33".
constexpr int kCoordinateWidth = 9;

// A number typed into a field goes to every selected row, or, when it is outside what the
// field holds, nowhere: the slots keep their values and the strip names the range.
template <typename T>
void StoreTypedNumber(Editor& ed, const TextBox& box, T (*convert)(double), const char* range,
                      Mission::PointArray<T>& slots) {
    if (!ed.doc.EventsOn) return;
    T value{};
    try {
        value = convert(Val(box.Text()));
    } catch (const AppError& error) {
        if (error.Number() != kErrOverflow) throw;
        ShowStatus(ed, range, kStatusWarning);
        return;
    }
    const int path = ed.doc.CurrentPath;
    ForEachSelectedPointRow(ed, [&](int row) {
        if (row + 1 <= Mission::kPointUpper) slots(path, row + 1) = value;
    });
}

// The name or tip of the selected waypoint, asked for in a box below and right of the main
// window's corner. An empty answer (or a cancel) keeps what was there.
void AskPointText(Editor& ed, const char* title, const char* prompt,
                  Mission::PointArray<std::string>& texts) {
    const int row = ed.FrmMission.lstPoints.ListIndex();
    if (row < 0 || row + 1 > Mission::kPointUpper) return;
    std::string& text = texts(ed.doc.CurrentPath, row + 1);
    InputBoxRequest request;
    request.title = title;
    request.prompt = prompt + IntText(row + 1);
    request.preset = text;
    request.x = static_cast<int>(ed.MDIMissionED.Left()) + 2000;
    request.y = static_cast<int>(ed.MDIMissionED.Top()) + 1800;
    const std::string answer = ed.svc.dialogs.InputBox(request);
    if (!answer.empty()) text = answer;
}

}  // namespace

void txtPoint_Change(Editor& ed) {
    Mission& doc = ed.doc;
    auto& frm = ed.FrmMission;
    if (!frm.btnClrPoint.Visible()) return;
    TextBox& box = frm.txtPoint;
    // The change of case runs this handler again, which does the rest; the caret stays where
    // the designer types.
    if (box.UpperCaseKeepingCaret()) return;
    const std::string text = box.Text();
    const int row = frm.lstPoints.ListIndex();
    if (row >= 0) frm.lstPoints.SetList(row, Format(row + 1, "##00") + ". " + text);
    if (ed.waypoints.PointTextTyped && row >= 0 && row + 1 <= Mission::kPointUpper) {
        // Taken as typed: a text too short for the slices reads as 0 on the map.
        const int path = doc.CurrentPath;
        const int slot = row + 1;
        doc.WPLon(path, slot) = Right(text, kCoordinateWidth);
        doc.WPLat(path, slot) = Left(text, kCoordinateWidth);
        PlotPoint(ed, doc.WPLat(path, slot), doc.WPLon(path, slot), doc.WPMapX(path, slot),
                  doc.WPMapY(path, slot));
        DrawPaths(ed, frm.mapWayPoints);
    }
    ed.waypoints.PointTextTyped = true;
}

void txtAlt_Change(Editor& ed) {
    StoreTypedNumber<std::int32_t>(ed, ed.FrmMission.txtAlt, CLng,
                                   "The altitude takes whole numbers from -2147483648 to "
                                   "2147483647",
                                   ed.doc.WPAlt);
}

void txtSpeed_Change(Editor& ed) {
    StoreTypedNumber<std::int16_t>(ed, ed.FrmMission.txtSpeed, CInt,
                                   "The speed takes whole numbers from -32768 to 32767",
                                   ed.doc.WPSpeed);
}

void chkWPOptions_MouseDown(Editor& ed, int, int, int, float, float) {
    PlaySound(ed, ed.shell.sndCheckbox);
}

void chkWPOptions_MouseUp(Editor& ed, int index, int, int, float, float) {
    Mission& doc = ed.doc;
    Mission::PointArray<std::uint8_t>* flags[] = {&doc.WPOnMap, &doc.WPAction, &doc.WPCap};
    if (index < 0 || index > 2) return;
    const auto value =
        static_cast<std::uint8_t>(ed.FrmMission.chkWPOptions(index).Value() == kChecked);
    const int path = doc.CurrentPath;
    ForEachSelectedPointRow(ed, [&](int row) {
        if (row + 1 <= Mission::kPointUpper) (*flags[index])(path, row + 1) = value;
    });
}

void btnWPNames_Click(Editor& ed) {
    AskPointText(ed, "Waypoint Names", "Enter Name for Waypoint ", ed.doc.WPName);
}

void btnWPTips_Click(Editor& ed) {
    AskPointText(ed, "Waypoint Tips", "Enter Tip for Waypoint ", ed.doc.WPTip);
}

}  // namespace tarvex
