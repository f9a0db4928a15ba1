#pragma once
// Named places printed on the maps. Rank 1 is always tried, rank 2 on every map, rank 3 only
// where the map is large-scale enough; collisions decide the rest.
#include <array>
#include <string_view>

namespace tarvex::mapgen {

struct Town {
    std::string_view name;
    double lat;
    double lon;  // east positive
    int rank;
};

inline constexpr std::array kTowns = {
    Town{"London", 51.507, -0.128, 1},        Town{"Paris", 48.857, 2.352, 1},
    Town{"Brussels", 50.847, 4.357, 1},       Town{"Amsterdam", 52.370, 4.895, 1},
    Town{"Berlin", 52.520, 13.405, 1},        Town{"Prague", 50.075, 14.438, 1},
    Town{"Dover", 51.126, 1.313, 2},          Town{"Portsmouth", 50.805, -1.087, 2},
    Town{"Southampton", 50.905, -1.404, 2},   Town{"Brighton", 50.823, -0.137, 2},
    Town{"Calais", 50.951, 1.858, 2},         Town{"Boulogne", 50.726, 1.614, 2},
    Town{"Dunkirk", 51.034, 2.377, 2},        Town{"Le Havre", 49.494, 0.108, 2},
    Town{"Cherbourg", 49.633, -1.622, 2},     Town{"Rouen", 49.443, 1.099, 2},
    Town{"Amiens", 49.894, 2.296, 2},         Town{"Lille", 50.629, 3.057, 2},
    Town{"Antwerp", 51.219, 4.402, 2},        Town{"Rotterdam", 51.924, 4.478, 2},
    Town{"Bristol", 51.455, -2.588, 2},       Town{"Plymouth", 50.376, -4.143, 2},
    Town{"Brest", 48.390, -4.486, 2},         Town{"Hamburg", 53.551, 9.994, 2},
    Town{"Bremen", 53.079, 8.802, 2},         Town{"Cologne", 50.938, 6.960, 2},
    Town{"Frankfurt", 50.110, 8.682, 2},      Town{"Hanover", 52.375, 9.732, 2},
    Town{"Essen", 51.456, 7.012, 2},          Town{"Munich", 48.137, 11.575, 2},
    Town{"Stuttgart", 48.776, 9.183, 2},      Town{"Leipzig", 51.340, 12.375, 2},
    Town{"Kiel", 54.323, 10.123, 2},          Town{"Lyon", 45.764, 4.836, 2},
    Town{"Bordeaux", 44.838, -0.579, 2},      Town{"Nantes", 47.218, -1.554, 2},
    Town{"Birmingham", 52.486, -1.890, 2},    Town{"Cardiff", 51.481, -3.179, 2},
    Town{"Liverpool", 53.408, -2.991, 2},     Town{"Norwich", 52.630, 1.297, 2},
    Town{"Caen", 49.182, -0.371, 2},          Town{"Lorient", 47.748, -3.370, 2},
    Town{"Reims", 49.258, 4.032, 2},          Town{"Strasbourg", 48.573, 7.752, 2},
    Town{"Manchester", 53.480, -2.242, 2},    Town{"Nuremberg", 49.452, 11.077, 2},
    Town{"Dresden", 51.050, 13.738, 2},       Town{"Zurich", 47.377, 8.540, 2},
    Town{"Saint-Nazaire", 47.274, -2.214, 2}, Town{"Exeter", 50.718, -3.534, 2},
    Town{"Wilhelmshaven", 53.530, 8.110, 3},  Town{"Dortmund", 51.514, 7.466, 3},
    Town{"Dusseldorf", 51.227, 6.773, 3},     Town{"Kassel", 51.313, 9.480, 3},
    Town{"Mannheim", 49.487, 8.466, 3},       Town{"Magdeburg", 52.121, 11.628, 3},
    Town{"Rostock", 54.092, 12.099, 3},       Town{"Lubeck", 53.866, 10.686, 3},
    Town{"Munster", 51.961, 7.626, 3},        Town{"Emden", 53.367, 7.207, 3},
    Town{"Luxembourg", 49.611, 6.130, 3},     Town{"Metz", 49.119, 6.176, 3},
    Town{"The Hague", 52.070, 4.300, 3},      Town{"Utrecht", 52.091, 5.122, 3},
    Town{"Den Helder", 52.959, 4.760, 3},     Town{"Groningen", 53.219, 6.567, 3},
    Town{"Ostend", 51.215, 2.927, 3},         Town{"Ghent", 51.054, 3.717, 3},
    Town{"Flushing", 51.443, 3.573, 3},       Town{"Dieppe", 49.922, 1.078, 3},
    Town{"Abbeville", 50.105, 1.835, 3},      Town{"Saint-Omer", 50.750, 2.252, 3},
    Town{"Arras", 50.291, 2.777, 3},          Town{"Beauvais", 49.430, 2.081, 3},
    Town{"Evreux", 49.027, 1.151, 3},         Town{"Chartres", 48.446, 1.489, 3},
    Town{"Orleans", 47.903, 1.909, 3},        Town{"Le Mans", 48.006, 0.199, 3},
    Town{"Rennes", 48.117, -1.678, 3},        Town{"Saint-Malo", 48.649, -2.026, 3},
    Town{"Quimper", 47.996, -4.102, 3},       Town{"Tours", 47.394, 0.685, 3},
    Town{"La Rochelle", 46.160, -1.151, 3},   Town{"Granville", 48.838, -1.597, 3},
    Town{"Folkestone", 51.081, 1.166, 3},     Town{"Canterbury", 51.280, 1.079, 3},
    Town{"Hastings", 50.856, 0.573, 3},       Town{"Eastbourne", 50.768, 0.290, 3},
    Town{"Chatham", 51.380, 0.527, 3},        Town{"Southend", 51.538, 0.714, 3},
    Town{"Ramsgate", 51.336, 1.416, 3},       Town{"Maidstone", 51.272, 0.522, 3},
    Town{"Guildford", 51.236, -0.570, 3},     Town{"Reading", 51.454, -0.978, 3},
    Town{"Oxford", 51.752, -1.258, 3},        Town{"Cambridge", 52.205, 0.119, 3},
    Town{"Ipswich", 52.057, 1.148, 3},        Town{"Harwich", 51.944, 1.287, 3},
    Town{"Colchester", 51.889, 0.903, 3},     Town{"Chelmsford", 51.736, 0.479, 3},
    Town{"Salisbury", 51.069, -1.794, 3},     Town{"Winchester", 51.060, -1.310, 3},
    Town{"Bournemouth", 50.720, -1.880, 3},   Town{"Weymouth", 50.614, -2.457, 3},
    Town{"Swindon", 51.558, -1.782, 3},       Town{"Bath", 51.381, -2.359, 3},
    Town{"Chichester", 50.837, -0.780, 3},    Town{"Worthing", 50.817, -0.372, 3},
    Town{"Swansea", 51.621, -3.944, 3},       Town{"Torquay", 50.462, -3.525, 3},
    Town{"Falmouth", 50.154, -5.071, 3},      Town{"Northampton", 52.240, -0.902, 3},
    Town{"Bedford", 52.136, -0.467, 3},       Town{"Luton", 51.879, -0.418, 3},
};

// Seas and countries, printed in spaced capitals where one of their positions is free.
struct AreaName {
    std::string_view name;
    bool sea;
    std::array<double, 6> positions;  // up to three lat, lon pairs; unused ones are 0
};

inline constexpr std::array kAreaNames = {
    AreaName{"ENGLISH CHANNEL", true, {50.15, -1.4, 50.3, -0.6, 49.9, -2.3}},
    AreaName{"NORTH SEA", true, {54.6, 4.0, 52.6, 2.9, 52.2, 2.0}},
    AreaName{"BAY OF BISCAY", true, {45.6, -3.2, 46.3, -3.6, 0, 0}},
    AreaName{"IRISH SEA", true, {53.7, -4.9, 0, 0, 0, 0}},
    AreaName{"BALTIC SEA", true, {54.9, 13.6, 0, 0, 0, 0}},
    AreaName{"ENGLAND", false, {52.3, -1.2, 51.8, -0.9, 51.65, -1.05}},
    AreaName{"WALES", false, {52.2, -3.6, 0, 0, 0, 0}},
    AreaName{"FRANCE", false, {47.5, 2.5, 49.4, 1.9, 50.3, 1.95}},
    AreaName{"BELGIUM", false, {50.55, 4.6, 50.75, 4.2, 0, 0}},
    AreaName{"HOLLAND", false, {52.6, 5.9, 52.2, 5.6, 0, 0}},
    AreaName{"GERMANY", false, {51.0, 10.2, 52.0, 11.2, 49.8, 10.0}},
    AreaName{"SWITZERLAND", false, {46.8, 7.9, 0, 0, 0, 0}},
    AreaName{"DENMARK", false, {55.3, 9.3, 0, 0, 0, 0}},
};

}  // namespace tarvex::mapgen
