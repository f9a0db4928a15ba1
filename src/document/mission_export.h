#pragma once
// The semicolon-separated view of the mission for a spreadsheet, written beside the mission
// file at each save. Nothing reads it back.
namespace tarvex {

class Editor;

// Writes MissionPath with "txt" in place of its last three characters: the groups and
// their pilots, the ground layouts, the paths. The file replaces an older one whole.
// GULat and GULon of an airfield layout take the runway's two-decimal position on the way.
void ExportForSpreadsheet(Editor& ed);

}  // namespace tarvex
