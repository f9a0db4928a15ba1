#pragma once
// The main window: the menu bar with every entry, and the status strip along the bottom.
#include <vector>

#include "shell/forms/form.h"

namespace tarvex {

class MDIMissionED : public Form {
  public:
    MDIMissionED();

    // The entries of the menu bar, left to right; each holds its entries as children.
    const std::vector<MenuItem*>& MenuBar() const { return menuBar_; }

    // The status strip.
    PictureSurface Picture1;
    // Writes the help of a highlighted menu entry once the menu has taken the highlight.
    Timer tmrMenuHelp;

    MenuItem mnuFile;
    MenuItem mnuNew;
    MenuItem mnuOpen;
    MenuItem mnuFileSpc1;
    MenuItem mnuSave;
    MenuItem mnuSaveAs;
    // Element 0 is the separator above the recent files, 1 to 4 the recent files.
    ControlArray<MenuItem> mnudummy;
    MenuItem mnuFileSpc3;
    MenuItem mnuExit;

    MenuItem mnuEdit;
    MenuItem mnuCut;
    MenuItem mnuCopy;
    MenuItem mnuPaste;
    MenuItem editb1;
    MenuItem mnuDel;
    MenuItem mnuClrPoints;
    MenuItem mnuClrMap;

    MenuItem mnuView;
    MenuItem mnuSummary;
    MenuItem mnuFormations;
    MenuItem mnuGroundUnits;
    MenuItem mnuWaypoints;
    MenuItem mnuViewSpace;
    MenuItem mnuAddAC;
    MenuItem mnuGULayout;
    MenuItem mnuVspace;
    MenuItem mnuMissions;
    MenuItem mnuStationary;

    MenuItem mnuTools;
    MenuItem mnuCompact;
    MenuItem mnuMissDetail;
    MenuItem mnuspace;
    MenuItem mnuoptions;
    MenuItem mnuACList;
    MenuItem mnuACListNorm;
    MenuItem mnuACListInc;
    MenuItem mnuACListDec;
    MenuItem mnuAutoUpdate;
    MenuItem mnuDist;
    MenuItem mnuSound;
    MenuItem mnuSndOn;
    MenuItem mnuIncVol;
    MenuItem mnuDecVol;
    MenuItem mnuTooltips;

    MenuItem mnuWindows;

    MenuItem mnuHelp;
    MenuItem mnuAbout;

  private:
    std::vector<MenuItem*> menuBar_;
};

}  // namespace tarvex
