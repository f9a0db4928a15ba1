#pragma once
// What the record windows with a data source of their own share (the aircraft records, the
// layout records, the mission browser): the box of a data source's error, the refresh that
// reports through it, and the Tools menu entries they lock while they are open.
#include <string>

namespace tarvex {

class DataSource;
class Editor;
class Form;

// "Data error event hit err:" and the failure's words, in a box without a title.
void ShowDataError(Editor& ed, const std::string& text);

// Reads the source again; a failure goes to the source's Error event, as the grid's own do.
void RefreshRecordSource(DataSource& source);

// The layout editor is open: it locks the entries that the record windows lock too.
bool LayoutEditorOpen(Editor& ed);

// `closing` is unloading: mnuCompact is enabled again unless another record window or the
// layout editor still holds the database.
void UnlockCompactMenu(Editor& ed, const Form& closing);

}  // namespace tarvex
