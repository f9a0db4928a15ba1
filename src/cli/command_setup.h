#pragma once
// What the commands share: the folders they run on and the start of the headless editor.
#include <iosfwd>
#include <memory>
#include <string>

#include "app/headless_editor.h"
#include "cli/commands.h"
#include "cli/scratch_database.h"

namespace tarvex::cli {

// The folders of a run, made absolute before the editor moves the current folder.
EditorFolders ResolveFolders(const CommonOptions& options);

// An editor started on the folders; with `scratch`, on a private copy of the database that
// `copy` keeps alive. Null after a message on `err` when the database can't be used.
std::unique_ptr<HeadlessEditor> StartEditor(const CommonOptions& options, bool scratch,
                                            ScratchDatabase& copy, std::ostream& err);

// StartEditor, then File Open of `in`. Null with `exitCode` set, after the reason or the load
// report on `err`, when either fails.
std::unique_ptr<HeadlessEditor> StartWithMission(const CommonOptions& options, bool scratch,
                                                 ScratchDatabase& copy, const std::string& in,
                                                 std::ostream& err, int& exitCode);

// The first line of what the tool says about a file that failed: where the report names the
// file, its name and the cause in words ("a.mis is a folder, not a mission file"); else the
// name and the report's first line.
std::string Headline(const std::string& shown, const std::string& path, const std::string& report);

// A mission is written only under a name ending in ".mis", so that its export (the name with
// "txt" for the last three characters) is always another file. False after a message on
// `err` for any other name.
bool IsMissionName(const std::string& name, std::ostream& err);

// The report as lines under a heading, indented.
std::string Indented(const std::string& text, const std::string& indent);

}  // namespace tarvex::cli
