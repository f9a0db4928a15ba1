// tarvex-mis: the editor's mission commands without its window, for batches and scripts.
#include <CLI/CLI.hpp>

#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include "cli/commands.h"
#include "common/program_version.h"

namespace {

using tarvex::cli::CommonOptions;

void AddCommonOptions(CLI::App* command, CommonOptions& options) {
    command->add_option("--db", options.database,
                        "Reference database (default: the editor's, else the default "
                        "installation's)");
    command->add_option("--sim", options.simFolder,
                        "Simulator folder (default: the editor's, else the default "
                        "installation's)");
    command->add_flag("--imperial", options.imperial,
                      "Work in miles and knots, as the editor does with metric units off");
}

// One line, whatever the parser had to say.
std::string OneLine(std::string text) {
    for (char& c : text)
        if (c == '\n' || c == '\r') c = ' ';
    while (!text.empty() && text.back() == ' ')
        text.pop_back();
    return text;
}

}  // namespace

int main(int argc, char** argv) {
    CLI::App app{"Checks, resaves, exports and describes Tarvex mission files.", "tarvex-mis"};
    app.require_subcommand(1);
    app.set_version_flag("--version", "tarvex-mis " + tarvex::ProgramVersionText());

    CommonOptions options;
    std::string in, out;
    std::vector<std::string> files;
    bool json = false;

    CLI::App* resave = app.add_subcommand(
        "resave",
        "Open IN and save it as OUT (a name ending in .mis), as File Open and File Save As "
        "do; the export goes beside OUT. Exit 1: IN didn't load; 2: it failed validation, "
        "nothing written; 3: the save failed, the files are as before; 4: OUT was written "
        "but its export wasn't.");
    resave->add_option("IN", in, "Mission to open")->required();
    resave->add_option("OUT", out, "Mission file to write")->required();
    AddCommonOptions(resave, options);

    CLI::App* check = app.add_subcommand(
        "check",
        "Load and validate missions (a folder stands for its .mis files) on a copy of "
        "the database, and say what a first save would change. Exit 0 only when all pass.");
    check->add_option("FILE", files, "Missions or folders")->required();
    AddCommonOptions(check, options);

    CLI::App* exportCommand = app.add_subcommand(
        "export",
        "Write the spreadsheet export of IN beside it (the same name ending in txt), on "
        "a copy of the database.");
    exportCommand->add_option("IN", in, "Mission to export")->required();
    AddCommonOptions(exportCommand, options);

    CLI::App* diff = app.add_subcommand(
        "diff",
        "Print a unified diff between IN and what a resave of it would write, on a "
        "copy of the database.");
    diff->add_option("IN", in, "Mission to compare")->required();
    AddCommonOptions(diff, options);

    CLI::App* info = app.add_subcommand(
        "info",
        "Describe IN: title, map, time, groups, paths and layouts, on a copy of the "
        "database.");
    info->add_option("IN", in, "Mission to describe")->required();
    info->add_flag("--json", json, "Print JSON");
    AddCommonOptions(info, options);

    CLI::App* scan = app.add_subcommand(
        "scan",
        "Fill tblMissions of the database from the simulator's missions folder, as the "
        "editor's Tools > Missions Summary does, and print the number of missions read. "
        "Exit 1: a file ended the scan (the missions before it are kept).");
    scan->add_flag("--json", json, "Print the rows as JSON");
    AddCommonOptions(scan, options);

    tarvex::cli::PlayOptions play;
    CLI::App* playCommand = app.add_subcommand(
        "play",
        "Run SCENARIO, a text file of the designer's actions and expectations, on a fresh "
        "editor without a window and on a copy of the database; with missions named, once "
        "for each, as $MISSION. Exit 0 when every line ran and held; 1 with the line that "
        "did not.");
    playCommand->add_option("SCENARIO", play.scenario, "Scenario file")->required();
    playCommand->add_option("MISSION", play.missions, "Missions to run it on, one run each");
    playCommand->add_flag("--write-db", play.writeDatabase,
                          "Change the database itself, not a copy of it");
    AddCommonOptions(playCommand, options);

    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& e) {
        if (e.get_exit_code() == 0) return app.exit(e);
        std::cerr << "tarvex-mis: " << OneLine(e.what()) << " (see tarvex-mis --help)\n";
        return tarvex::cli::kExitUsage;
    }

    try {
        if (*resave) return tarvex::cli::RunResave(options, in, out, std::cout, std::cerr);
        if (*check) return tarvex::cli::RunCheck(options, files, std::cout, std::cerr);
        if (*exportCommand) return tarvex::cli::RunExport(options, in, std::cout, std::cerr);
        if (*diff) return tarvex::cli::RunDiff(options, in, std::cout, std::cerr);
        if (*scan) return tarvex::cli::RunScan(options, json, std::cout, std::cerr);
        if (*playCommand) return tarvex::cli::RunPlay(options, play, std::cout, std::cerr);
        return tarvex::cli::RunInfo(options, in, json, std::cout, std::cerr);
    } catch (const std::exception& e) {
        // The commands report what they expect; this is for what nobody did.
        std::cerr << "tarvex-mis: " << e.what() << "\n";
        return 70;
    }
}
