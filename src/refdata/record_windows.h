#pragma once
// What the record windows with a data source of their own share (the aircraft records, the
// layout records, the mission browser): the box of a data source's error, the refresh that
// reports through it, and the Tools menu entries they lock while they are open.
#include <string>

namespace tarvex {

class DataGrid;
class DataSource;
class Editor;
class Form;

// "Data error event hit err:" and the failure's words, in a box without a title.
void ShowDataError(Editor& ed, const std::string& text);

// Reads the source again; a failure goes to the source's Error event, as the grid's own do.
void RefreshRecordSource(DataSource& source);

// Deletes the rows selected in the grid from its source, all in one transaction: a row the
// database refuses shows the data error box and leaves every row in place. The selection is
// dropped and the source read again either way.
void DeleteSelectedRecords(Editor& ed, DataSource& source, DataGrid& grid);

// The layout editor is open: it locks the entries that the record windows lock too.
bool LayoutEditorOpen(Editor& ed);

// `closing` is unloading: mnuCompact is enabled again unless another record window or the
// layout editor still holds the database.
void UnlockCompactMenu(Editor& ed, const Form& closing);

}  // namespace tarvex
