#include "maps/point_slots.h"

#include "common/error.h"
#include "common/number_text.h"
#include "refdata/reference_lookups.h"
#include "shell/editor.h"

namespace tarvex {

void CopySlotPosition(Mission& doc, int path, int from, int to) {
    PutSlotPosition(doc, path, to, SlotPositionOf(doc, path, from));
}

void SwapSlotPositions(Mission& doc, int path, int a, int b) {
    const SlotPosition first = SlotPositionOf(doc, path, a);
    CopySlotPosition(doc, path, b, a);
    PutSlotPosition(doc, path, b, first);
}

SlotPosition SlotPositionOf(const Mission& doc, int path, int slot) {
    return {doc.WPLat(path, slot), doc.WPLon(path, slot), doc.WPMapX(path, slot),
            doc.WPMapY(path, slot)};
}

void PutSlotPosition(Mission& doc, int path, int slot, const SlotPosition& position) {
    doc.WPLat(path, slot) = position.lat;
    doc.WPLon(path, slot) = position.lon;
    doc.WPMapX(path, slot) = position.mapX;
    doc.WPMapY(path, slot) = position.mapY;
}

void ShowPathFull(Editor& ed) {
    MessageBoxRequest box;
    box.text = "Maximum Number of Allowed WayPoints has been Reached";
    box.title = "Maximum Reached";
    box.icon = MsgIcon::Exclamation;
    ed.svc.dialogs.MsgBox(box);
}

bool LoadAirfieldIntoSlot(Editor& ed, int row, int path, int slot) {
    std::string lat;
    std::string lon;
    std::int16_t typeID = 0;
    std::int16_t elevation = 0;
    double rot = 0;
    std::int16_t rwyID = 0;
    try {
        LoadAirfieldPoint(ed, lat, lon, row, typeID, elevation, rot, rwyID);
    } catch (const AppError& error) {
        MessageBoxRequest box;
        box.text = "The airfield of row " + IntText(row) +
                   " could not be read from the reference database.\nError [" +
                   IntText(error.Number()) + "] [" + error.Description() + "]";
        box.title = "Airfield Lookup Error";
        box.icon = MsgIcon::Critical;
        ed.svc.dialogs.MsgBox(box);
        return false;
    }
    ed.doc.WPLat(path, slot) = lat;
    ed.doc.WPLon(path, slot) = lon;
    return true;
}

}  // namespace tarvex
