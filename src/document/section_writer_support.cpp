#include "common/numbers.h"
#include "document/mission_writers.h"
#include "refdata/reference_lookups.h"

namespace tarvex {

std::vector<std::int32_t> DistinctSortedIds(const ComboBox& cmbSort) {
    std::vector<std::int32_t> ids;
    std::int32_t previous = 0;
    for (int row = 0; row < cmbSort.ListCount(); ++row) {
        const std::int32_t id = ValLng(cmbSort.List(row));
        if (id == previous) continue;
        ids.push_back(id);
        previous = id;
    }
    return ids;
}

std::int16_t RunwayIdOfRow(Editor& ed, int row) {
    std::string lat, lon;
    std::int16_t typeID = 0, elevation = 0, rwyID = 0;
    double rot = 0;
    LoadAirfieldPoint(ed, lat, lon, row, typeID, elevation, rot, rwyID);
    return rwyID;
}

}  // namespace tarvex
