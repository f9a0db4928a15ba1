#include "document/mission_validation.h"

#include <string>

#include "common/number_text.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"

namespace tarvex {

bool ValidateMission(Editor& ed) {
    const Mission& doc = ed.doc;
    auto& frm = ed.FrmMission;
    std::string faults;

    // A path of one waypoint is reported and ends the walk, so only the first such path is
    // named; a path of none (count 0 or 1) is neither a fault nor counted.
    bool pathAssigned = false;
    for (int path = 0; path <= doc.HighestPath; ++path) {
        const int count = doc.PathPointCount(path);
        if (count == 2) {
            faults += "WAYPOINT TAB ERR: Path " + IntText(5000 + path) + " has only " +
                      IntText(count - 1) + " waypoints assigned.\n" +
                      "You must have 2 or more waypoints assigned for each path.\n\n";
            pathAssigned = true;
            break;
        }
        if (count > 2) pathAssigned = true;
    }
    if (!pathAssigned) faults += "WAYPOINT TAB ERR: No waypoints have been assigned \n";

    const int groups = frm.lstGroupName.ListCount();
    if (groups == 0) {
        faults += "FORMATION TAB ERR: Formations have not been defined.\n";
    } else if (!doc.PilotsAssigned) {
        faults += "FORMATION TAB ERR: Pilots have not been assigned to 1 or more formation(s).\n";
    } else if (!doc.PlayerAssigned) {
        faults += "FORMATION TAB ERR: The Player has not been assigned to any formation.\n";
    }
    for (int g = 0; g < groups; ++g)
        if (doc.GrpPaths(g).empty())
            faults += "FORMATION TAB ERR: Formation " + IntText(6000 + g) +
                      " does not have path(s) assigned.\n";

    if (frm.txtTitle.Text().empty())
        faults += "SUMMARY TAB ERR: A Mission Title has not been provide";

    if (faults.empty()) return true;
    ed.svc.dialogs.MsgBox(
        {faults, "Unable to Save Mission File", MsgButtons::OK, MsgIcon::Exclamation});
    return false;
}

}  // namespace tarvex
