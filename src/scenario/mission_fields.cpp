#include "scenario/mission_fields.h"

#include <functional>

#include "common/error.h"
#include "common/number_text.h"
#include "common/text.h"
#include "document/mission.h"
#include "scenario/scenario_error.h"
#include "scenario/scenario_steps.h"

namespace tarvex::scenario {

namespace {

std::string ValueText(const std::string& value) {
    return value;
}
std::string ValueText(bool value) {
    return value ? "True" : "False";
}
std::string ValueText(float value) {
    return FloatText(value);
}
template <typename T>
std::string ValueText(T value) {
    return IntText(static_cast<long long>(value));
}

struct Field {
    const char* name;
    size_t indexes;
    std::function<std::string(const Mission&, const std::vector<int>&)> read;
};

template <typename T>
Field Entry(const char* name, T Mission::*member) {
    return {name, 0,
            [member](const Mission& m, const std::vector<int>&) { return ValueText(m.*member); }};
}
template <typename T, int Upper>
Field Entry(const char* name, CheckedArray<T, Upper> Mission::*member) {
    return {name, 1, [member](const Mission& m, const std::vector<int>& i) {
                return ValueText((m.*member)(i[0]));
            }};
}
template <typename T, int Upper1, int Upper2>
Field Entry(const char* name, CheckedArray2<T, Upper1, Upper2> Mission::*member) {
    return {name, 2, [member](const Mission& m, const std::vector<int>& i) {
                return ValueText((m.*member)(i[0], i[1]));
            }};
}

#define TARVEX_FIELD(name) Entry(#name, &Mission::name)

const std::vector<Field>& Fields() {
    static const std::vector<Field> fields = {
        TARVEX_FIELD(WPLat),
        TARVEX_FIELD(WPLon),
        TARVEX_FIELD(WPMapX),
        TARVEX_FIELD(WPMapY),
        TARVEX_FIELD(WPAlt),
        TARVEX_FIELD(WPSpeed),
        TARVEX_FIELD(WPOnMap),
        TARVEX_FIELD(WPAction),
        TARVEX_FIELD(WPCap),
        TARVEX_FIELD(WPName),
        TARVEX_FIELD(WPTip),
        TARVEX_FIELD(PathPointCount),
        TARVEX_FIELD(PathAirfieldStart),
        TARVEX_FIELD(PathAirfieldEnd),
        TARVEX_FIELD(PathCurrentPoint),
        TARVEX_FIELD(PathGroup),
        TARVEX_FIELD(GrpPattern),
        TARVEX_FIELD(GrpSuspended),
        TARVEX_FIELD(GrpDirective),
        TARVEX_FIELD(GrpTakeoffFlag),
        TARVEX_FIELD(GrpTakeoffRwy),
        TARVEX_FIELD(GrpLandingRwy),
        TARVEX_FIELD(GrpPaths),
        TARVEX_FIELD(GrpPilotIsAC),
        TARVEX_FIELD(PilotName),
        TARVEX_FIELD(PilotAC),
        TARVEX_FIELD(PilotSkill),
        TARVEX_FIELD(PilotLevel),
        TARVEX_FIELD(PilotDamage),
        TARVEX_FIELD(PilotIsPlayer),
        TARVEX_FIELD(PilotPoints),
        TARVEX_FIELD(GULat),
        TARVEX_FIELD(GULon),
        TARVEX_FIELD(GUMapX),
        TARVEX_FIELD(GUMapY),
        TARVEX_FIELD(GUShiftY),
        TARVEX_FIELD(GUShiftX),
        TARVEX_FIELD(GUSpread),
        TARVEX_FIELD(GURotation),
        TARVEX_FIELD(GUPoints),
        TARVEX_FIELD(CurrentPath),
        TARVEX_FIELD(CurrentPoint),
        TARVEX_FIELD(HighestPath),
        TARVEX_FIELD(PrevPath),
        TARVEX_FIELD(PercentLeft),
        TARVEX_FIELD(CurrentGroup),
        TARVEX_FIELD(CurrentPilot),
        TARVEX_FIELD(GUCount),
        TARVEX_FIELD(PlayerGroup),
        TARVEX_FIELD(PlayerPilot),
        TARVEX_FIELD(PlayerAssigned),
        TARVEX_FIELD(PilotsAssigned),
        TARVEX_FIELD(AcID),
        TARVEX_FIELD(AcFamily),
        TARVEX_FIELD(AcAllegiance),
        TARVEX_FIELD(PatternMaxPilots),
        TARVEX_FIELD(MissionPath),
        TARVEX_FIELD(MissionFile),
        TARVEX_FIELD(NotLoading),
        TARVEX_FIELD(NotResetting),
        TARVEX_FIELD(EventsOn),
        TARVEX_FIELD(PathChecksArmed),
    };
    return fields;
}

#undef TARVEX_FIELD

}  // namespace

std::string MissionFieldText(const Mission& doc, std::string_view name,
                             const std::vector<int>& indexes) {
    for (const Field& field : Fields()) {
        if (!SameText(field.name, name)) continue;
        if (indexes.size() != field.indexes)
            throw ScenarioError(std::string(field.name) + " takes " +
                                (field.indexes == 0   ? "no index"
                                 : field.indexes == 1 ? "one index"
                                                      : "two indexes"));
        try {
            return field.read(doc, indexes);
        } catch (const AppError&) {
            throw ScenarioError(PropertyName{field.name, indexes}.Display() +
                                " is outside the array");
        }
    }
    throw ScenarioError("the document has no entry called " + std::string(name));
}

}  // namespace tarvex::scenario
