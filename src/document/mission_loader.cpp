#include "document/mission_loader.h"

#include <string>

#include "common/error.h"
#include "common/number_text.h"
#include "common/paths.h"
#include "document/ground_reconstruction.h"
#include "document/mis_section_readers.h"
#include "document/mis_text.h"
#include "maps/map_loading.h"
#include "maps/waypoint_controls.h"
#include "maps/waypoint_list.h"
#include "refdata/transaction.h"
#include "shell/editor.h"
#include "shell/error_box.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/mdi_mission_ed.h"
#include "shell/measurement.h"
#include "shell/message_screen.h"
#include "shell/recent_files.h"
#include "shell/status_strip.h"

namespace tarvex {

namespace {

constexpr int kHourglass = 11;
constexpr int kDefaultPointer = 0;

void EndLoadMessage(Editor& ed) {
    ed.MDIMissionED.SetMousePointer(kDefaultPointer);
    CloseMessageScreen(ed);
}

void StartLoadState(Editor& ed) {
    MissionLoaderState& st = ed.loader;
    st.NearestLayoutDist = 9999.0f;
    st.PrevUnitID = 1999;
    st.UnitSum = 0;
    ed.placement.UnitLat.clear();
    ed.placement.UnitLon.clear();
    ed.placement.LayoutHeading = -1;
    st.UnnamedCount = 0;
    ed.StepText = "Opening Mission File";
    ed.StepDetail.clear();
    st.FileUnitID.Fill(0);
    st.LayoutNotes.clear();
    st.LayoutKept = false;
    st.PendingUnits.clear();
    st.CommentLayoutID = -1;
}

// The main loop: headers are found anywhere in a line, with regard to case, in a fixed order.
void ReadSections(Editor& ed, MisLines& lines) {
    MissionLoaderState& st = ed.loader;
    std::int16_t unitId = 0;
    std::int16_t typeId = 0;
    std::string line;
    bool anySection = false;
    auto begin = [&](const char* stepText) {
        ed.StepText = stepText;
        ed.StepDetail.clear();
        anySection = true;
    };
    while (!lines.AtEnd()) {
        line = lines.Read();
        if (line.find("[mission]") != std::string::npos) {
            begin("Loading Summary Data");
            ReadSummarySection(ed, lines, line);
        } else if (line.find("[unit.") != std::string::npos) {
            begin("Loading UnitData ");
            ReadUnitSection(ed, lines, line, unitId, typeId);
        } else if (line.find("[unit_type.") != std::string::npos) {
            begin("Loading UnitType Data");
            // The first unit type closes the last layout; nothing opens a new one.
            if (st.PrevUnitID >= 2000 && st.PrevUnitID != unitId - 1)
                MatchGroundLayout(ed, unitId, st.UnitSum, true);
            st.PrevUnitID = 0;
        } else if (line.find("[waypoint_path.") != std::string::npos) {
            begin("Loading Waypoint ID ");
            ReadWaypointPathSection(ed, lines, line);
        } else if (line.find("[formation.") != std::string::npos) {
            begin("Loading Formation ID ");
            ReadFormationSection(ed, lines, line);
        } else if (line.find("[runway.") != std::string::npos) {
            begin("Loading Runway ID ");
            ReadRunwaySection(ed, lines, line);
        } else if (line.find("[strings]") != std::string::npos) {
            begin("Loading String Data");
            ReadStringsSection(ed, lines, line);
        }
    }
    if (!anySection) lines.RaiseNotAMission("it has none of the sections of a mission");
}

// The tabs from the arrays: path 0 in the waypoint list, the first rows selected.
void RebuildTabs(Editor& ed) {
    Mission& doc = ed.doc;
    auto& frm = ed.FrmMission;

    ed.StepText = "Loading Map for newly loaded data";
    LoadMap(ed, frm.mapWayPoints, frm.cmbSelectMap.ListIndex());

    frm.optColor(0).SetValue(true);
    frm.lstPoints.Clear();
    for (int i = 1; i < doc.PathPointCount(0); ++i)
        frm.lstPoints.AddItem(PointRowText(i, doc.WPLat(0, i), doc.WPLon(0, i)));

    ed.StepText = "Selecting the landing airfield for this mission from the [Landing Runway Combo]";
    frm.cmbEndAtRwy.SetListIndex(doc.GrpLandingRwy(0));
    ed.StepText = "Selecting the takeoff airfield for this mission from the [Takeoff Runway Combo]";
    frm.cmbStartAtRwy.SetListIndex(doc.GrpTakeoffRwy(0));

    frm.lstPoints.SetEnabled(true);
    ed.StepText = "Selecting the 1st Waypoint for this mission on the [Waypoints List]";
    frm.lstPoints.SetListIndex(0);
    SetWaypointControlsEnabled(ed, true);

    ed.StepText = "Selecting the 1st Ground Layout for this mission on the [Mission Units]";
    if (frm.lstGUAdded.ListCount() > 0) frm.lstGUAdded.SetListIndex(0);

    ed.StepText = "Selecting the 1st Group for this mission on the [Groups List]";
    frm.lstGroupName.SetListIndex(0);

    doc.NotLoading = true;
    doc.PilotsAssigned = true;
    ed.MDIMissionED.SetCaption("Tarvex Mission Editor: " + doc.MissionFile);
    RememberMission(ed);
    // The file holds kilometres per hour; an imperial display works in knots.
    if (!ed.options.Measurement) ConvertSpeeds(ed);

    ed.StepText = "Setting Map Combo";
    // The load placed the markers on whatever map was shown before; the combo's click places
    // them on the mission's map, also when the combo already stands on its row.
    if (frm.cmbGUMap.ListIndex() == frm.cmbSelectMap.ListIndex()) {
        frm.cmbGUMap.RaiseClick();
    } else {
        frm.cmbGUMap.SetListIndex(frm.cmbSelectMap.ListIndex());
    }

    frm.btnGrpView.SetEnabled(true);
    // The load may have added layouts.
    ed.db.FillListFromQuery(
        frm.lstGrnUnits, "SELECT LayoutName,ID FROM GrndNames WHERE GUType=1 ORDER BY LayoutName;");
    for (int i = 0; i < Mission::kMaxPaths; ++i)
        frm.optColor(i).SetEnabled(doc.PathPointCount(i) != 0);

    // What the load did to the layouts changes the file at the next save: the designer is told.
    const std::string notes = LayoutNotesText(ed.loader.LayoutNotes);
    if (!notes.empty()) ShowStatus(ed, notes, kStatusWarning);
}

void ReportLoadFailure(Editor& ed, int number, const std::string& description) {
    EndLoadMessage(ed);
    const std::string report = "While [*** " + ed.StepText + ed.StepDetail + " ***]\n" +
                               "The following error occurred.\n" + description + " Error [" +
                               IntText(number) + "]";
    MessageBoxRequest box;
    box.text = report;
    box.title = ed.doc.MissionFile + " *** Load Mission File Error ***";
    box.buttons = MsgButtons::OK;
    box.icon = MsgIcon::Critical;
    ed.svc.dialogs.MsgBox(box);
    ed.db.theRS.Close();
    // The half-read document must not be saved over the file that failed: the next Save asks
    // for a name.
    ed.doc.MissionPath.clear();
    ed.MDIMissionED.SetCaption(kProgramTitle);
}

}  // namespace

int ChooseMissionToOpen(Editor& ed) {
    Mission& doc = ed.doc;
    CommonDialog& dlg = ed.FrmMission.CommonDialog1;
    try {
        dlg.CancelError = true;
        dlg.DialogTitle = "Open Mission File";
        dlg.Filter = "(*.mis)|*.mis";
        dlg.InitDir = JoinPath(ed.options.SimPath, "missions");
        dlg.FileName = doc.MissionFile;
        dlg.ShowOpen();
        doc.MissionPath = dlg.FileName;
        doc.MissionFile = dlg.FileTitle;
        return 0;
    } catch (const AppError& e) {
        // A cancel says nothing. The program never leaves SimPath as its working folder, so
        // there is nothing to set back.
        if (e.Number() == kErrCancel) return -1;
        ShowErrorBox(ed, e.Number(), e.Description());
        return -1;
    }
}

void LoadMission(Editor& ed) {
    ShowMessageScreen(ed, "Loading Mission File");
    // The layouts a load adds or drops go to disk in one commit; what was written stays,
    // also when the load fails. The write lock is taken at the start, so that another copy of
    // the program writing at the same time is waited for instead of failing the load.
    Transaction transaction(ed.db.theDB, TransactionKind::Write);
    try {
        StartLoadState(ed);
        // A file that can't be a mission is refused before anything is written.
        MisLines lines(ed.doc.MissionPath);
        ed.loader.PendingLayoutID = NewUnnamedLayout(ed);
        ed.MDIMissionED.SetMousePointer(kHourglass);
        ReadSections(ed, lines);
        EndLoadWrites(ed, transaction);
        ed.StepDetail.clear();
        RebuildTabs(ed);
        EndLoadMessage(ed);
    } catch (const AppError& e) {
        EndLoadWrites(ed, transaction);
        ReportLoadFailure(ed, e.Number(), e.Description());
    } catch (const std::exception& e) {
        EndLoadWrites(ed, transaction);
        ReportLoadFailure(ed, kErrInvalidCall, e.what());
    }
}

}  // namespace tarvex
