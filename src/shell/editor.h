#pragma once
// One running program: the mission, the module state, the reference database, the forms
// with their controls, and the desktop services. There are no globals; tests build a fresh
// Editor with scripted services.
#include <memory>
#include <string>

#include "document/mission.h"
#include "document/mission_loader_state.h"
#include "document/saver_state.h"
#include "document/unit_placement.h"
#include "formations/formations_state.h"
#include "ground/ground_state.h"
#include "ground/layout_transform.h"
#include "library/library_state.h"
#include "maps/map_drawing_state.h"
#include "maps/map_projection.h"
#include "maps/waypoint_state.h"
#include "platform/platform.h"
#include "refdata/aircraft_records_state.h"
#include "refdata/reference_database.h"
#include "shell/app_settings.h"
#include "shell/shell_state.h"

namespace tarvex {

// The forms: a handler includes the header of each form it touches.
class MDIMissionED;
class FrmMission;
class frmNewRecord;
class frmAircraft;
class frmGrndNames;
class frmGUOffsets;
class frmtblMissions;
class frmMsgScreen;
class frmSplash;
class frmAbout;
class PictureSurface;
class ListBox;

// Every program builds its Editor through MakeEditor (app/make_editor.h), which also wires the
// handlers; an Editor made directly has its controls but no handlers.
class Editor {
  public:
    explicit Editor(Services services);
    Editor(const Editor&) = delete;
    Editor& operator=(const Editor&) = delete;
    ~Editor();

    Services svc;

    // The mission and the working values that the reader, the writer and the tabs share.
    Mission doc;
    UnitPlacement placement;
    LayoutTransform transform;
    MapProjection projection;
    MapDrawingState drawing;
    // What the loader or the saver is doing, shown only in their error reports.
    std::string StepText;
    std::string StepDetail;
    MissionLoaderState loader;
    SaverState saver;

    // The map surface and point list that the waypoint and layout handlers work on.
    PictureSurface* ActiveMap = nullptr;
    ListBox* ActivePointList = nullptr;

    // The SELECT of the aircraft filter, without its ORDER BY.
    std::string ACQuery = "SELECT ShortName,ACId FROM Aircraft";

    // The working values of each subsystem's handlers.
    WaypointState waypoints;
    FormationsState formations;
    GroundState ground;
    LibraryState library;
    AircraftRecordsState aircraftRecords;

    AppSettings options;
    ShellState shell;
    ReferenceDatabase db;

  private:
    struct Forms;
    std::unique_ptr<Forms> forms_;

  public:
    // The forms, named as the program knows them. The qualified type names keep each
    // member's name free to be the form's own.
    ::tarvex::MDIMissionED& MDIMissionED;
    ::tarvex::FrmMission& FrmMission;
    ::tarvex::frmNewRecord& frmNewRecord;
    ::tarvex::frmAircraft& frmAircraft;
    ::tarvex::frmGrndNames& frmGrndNames;
    ::tarvex::frmGUOffsets& frmGUOffsets;
    ::tarvex::frmtblMissions& frmtblMissions;
    ::tarvex::frmMsgScreen& frmMsgScreen;
    ::tarvex::frmSplash& frmSplash;
    ::tarvex::frmAbout& frmAbout;
};

}  // namespace tarvex
