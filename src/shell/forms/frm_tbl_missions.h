#pragma once
// The browser over the mission summaries: a grid, the details of the selected mission, the
// allegiance filter and the open and delete actions.
#include "shell/controls/data_grid.h"
#include "shell/controls/data_source.h"
#include "shell/forms/form.h"

namespace tarvex {

class frmtblMissions : public Form {
  public:
    frmtblMissions();

    DataSource datPrimaryRS;
    DataGrid grdDataGrid;
    Label lblType;
    Label lblSummary;
    Label lblObjective;
    Label lblDate;
    Label lblTime;
    Label lblReqd;
    Label lblClouds;
    Label lblWind;
    Label lblVis;
    Label lblAlly;
    // The captions of the details.
    Label lblTypeCaption;
    Label lblSummaryCaption;
    Label lblObjectiveCaption;
    Label lblDateCaption;
    Label lblTimeCaption;
    Label lblReqdCaption;
    Label lblCloudsCaption;
    Label lblWindCaption;
    Label lblVisCaption;
    Label lblAllyCaption;
    ControlArray<OptionButton> optAllegiance;
    CommandButton cmdLoad;
    CommandButton btnDelete;
    CommandButton cmdClose;
};

}  // namespace tarvex
