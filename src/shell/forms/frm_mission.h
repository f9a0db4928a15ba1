#pragma once
// The mission window: the tab control with the Summary, Formations, Ground units and
// Waypoints tabs and every control on them.
#include "shell/forms/form.h"

namespace tarvex {

class FrmMission : public Form {
  public:
    FrmMission();

    // ---- Window-wide ---------------------------------------------------------------------
    TabControl SSTab1;
    CommonDialog CommonDialog1;
    // The blink of cmbDirective and the timed status text.
    Timer tmrSetColor;
    // Hidden working list that keeps its rows sorted as text.
    ComboBox cmbSort;

    // ---- Summary ---------------------------------------------------------------------------
    TextBox txtTitle;
    TextBox txtSummary;
    TextBox txtObjective;
    TextBox txtType;
    TextBox txtTip;
    TextBox txtPctReqd;
    TextBox txtTime;
    TextBox txtDate;
    ComboBox cmbClouds;
    ComboBox cmbVisibility;
    ComboBox cmbWinds;
    ComboBox cmbSelectMap;
    Label lblAirfield;
    Label lblAC;
    Label lblMap;
    // The captions beside the boxes and read-outs.
    Label lblTitleCaption;
    Label lblSummaryCaption;
    Label lblObjectiveCaption;
    Label lblTypeCaption;
    Label lblTipCaption;
    Label lblPctReqdCaption;
    Label lblTimeCaption;
    Label lblDateCaption;
    Label lblCloudsCaption;
    Label lblVisibilityCaption;
    Label lblWindsCaption;
    Label lblSelectMapCaption;
    Label lblAirfieldCaption;
    Label lblACCaption;
    Label lblMapCaption;
    PictureSurface picSummaryTab;

    // ---- Formations: groups ----------------------------------------------------------------
    Frame fraGroupInfo;
    ListBox lstGroupName;
    CommandButton btnGroupName;
    CommandButton btnDeleteGroup;
    Label lblGrpID;
    Label lblGroupID;
    Label lblWPStrData;
    Label lblPattern;
    ComboBox cmbFormPattern;
    Label lblDirective;
    ComboBox cmbDirective;
    Label lblTOandLand;
    ComboBox cmbTakeoffFlag;
    CheckBox chkSuspend;
    CommandButton btnSetWaypoints;
    CommandButton btnGrpView;

    // ---- Formations: pilots ----------------------------------------------------------------
    Frame fraPilotInfo;
    ListBox lstPilotName;
    CommandButton btnPilotName;
    CommandButton btnDeletePilot;
    CheckBox chkPilotIsAC;
    CheckBox chkPlayer;
    CheckBox chkPoints;
    Label lblSkill;
    ComboBox cmbSkill;
    Label lblLevel;
    ComboBox cmbLevel;
    Label lblDamage;
    ComboBox cmbDamage;
    Label lblACType;
    ComboBox cmbMovingType;
    Frame fraAllegianceType;
    ControlArray<OptionButton> optAllegiance;
    Frame fraFamilyType;
    ControlArray<OptionButton> OptFamily;
    Label lblGunTitle;
    Label lblGun;
    Label lblCannonTitle;
    Label lblCannon;
    Label lblRocketTitle;
    Label lblRockets;
    Label lblBombTitle;
    Label lblBombs;

    // ---- Formations: the paths of a group and the group view ----------------------------
    Frame fraWPSelect;
    ControlArray<CheckBox> chkWP;
    ControlArray<TextBox> txtWPPct;
    CommandButton btnPathClear;
    CommandButton btnWPClose;
    Frame fraGrpView;
    ComboBox cmbGroups;
    UpDown updwnGroupView;
    Label lblGrpWP;

    // ---- Airfields of a path or group (Formations and Waypoints) -------------------------
    Frame fraAirfields;
    Label lblStartRwy;
    ComboBox cmbStartAtRwy;
    Label lblEndRwy;
    ComboBox cmbEndAtRwy;
    Label lblFlyBy;
    ComboBox cmbRunways;

    // ---- Waypoints -------------------------------------------------------------------------
    PictureSurface mapWayPoints;
    Frame fraPathColor;
    ControlArray<OptionButton> optColor;
    ControlArray<Label> lblPath;
    ControlArray<CheckBox> chkOverlay;
    Frame fraWaypoints;
    ListBox lstPoints;
    ListBox lstPointsExtended;
    TextBox txtPoint;
    TextBox txtAlt;
    TextBox txtSpeed;
    Label lblSpeed;
    ControlArray<CheckBox> chkWPOptions;
    CommandButton btnClrPoint;
    CommandButton btnWPNames;
    CommandButton btnWPTips;

    // ---- Ground units ----------------------------------------------------------------------
    PictureSurface mapGroundUnits;
    ListBox lstGrnUnits;
    CommandButton btnDelGUlst;
    ComboBox cmbGrndAirfield;
    ComboBox cmbAirfieldLayout;
    CommandButton btnDelGUcmb;
    ListBox lstGUAdded;
    CommandButton btnDeleteGrndUnit;
    TextBox txtAddedGU;
    TextBox txtGULatLon;
    ControlArray<OptionButton> optGndHasPoints;
    ComboBox cmbGUMap;

    // ---- Ground units: the layout editor ---------------------------------------------------
    Frame fraGUPos;
    UpDown btnXPos;
    UpDown btnYPos;
    UpDown btnRotate2;
    Label lblRotate2;
    UpDown btnSpread;
    Label lblSpread;
    UpDown btnZoom;
    UpDown btnCursor;
    // The captions of the spinners that have no label of their own.
    Label lblXPosCaption;
    Label lblYPosCaption;
    Label lblZoomCaption;
    Label lblCursorCaption;
    CommandButton btnRotate90;
    CommandButton btnGUReset;
    CommandButton btnSave;
    CommandButton btnGUClose;
    CheckBox chkStationary;
    CheckBox chkDataWindow;
    UpDown btnX;
    UpDown btnY;
    LineControl XLine;
    LineControl YLine;
    PictureSurface picAC;
    Frame fraStationary;
    ListBox lstStationary;
};

}  // namespace tarvex
