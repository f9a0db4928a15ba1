#pragma once
// One running program: the mission, the module state, the reference database, the forms
// with their controls, and the desktop services. There are no globals; tests build a fresh
// Editor with scripted services.
#include <string>

#include "document/mission.h"
#include "document/mission_loader_state.h"
#include "document/saver_state.h"
#include "document/unit_placement.h"
#include "ground/layout_transform.h"
#include "maps/map_drawing_state.h"
#include "maps/map_projection.h"
#include "refdata/reference_database.h"
#include "shell/app_settings.h"
#include "shell/forms/frm_about.h"
#include "shell/forms/frm_aircraft.h"
#include "shell/forms/frm_grnd_names.h"
#include "shell/forms/frm_gu_offsets.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/frm_msg_screen.h"
#include "shell/forms/frm_new_record.h"
#include "shell/forms/frm_splash.h"
#include "shell/forms/frm_tbl_missions.h"
#include "shell/forms/mdi_mission_ed.h"
#include "shell/platform.h"
#include "shell/shell_state.h"

namespace tarvex {

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

    AppSettings options;
    ShellState shell;
    ReferenceDatabase db;

    // The forms, named as the program knows them. The qualified type names keep each
    // member's name free to be the form's own.
    ::tarvex::MDIMissionED MDIMissionED;
    ::tarvex::FrmMission FrmMission;
    ::tarvex::frmNewRecord frmNewRecord;
    ::tarvex::frmAircraft frmAircraft;
    ::tarvex::frmGrndNames frmGrndNames;
    ::tarvex::frmGUOffsets frmGUOffsets;
    ::tarvex::frmtblMissions frmtblMissions;
    ::tarvex::frmMsgScreen frmMsgScreen;
    ::tarvex::frmSplash frmSplash;
    ::tarvex::frmAbout frmAbout;
};

}  // namespace tarvex
