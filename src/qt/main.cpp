// The desktop editor: the Qt services, the editor and its windows.
//   tarvex-editor [--help] [--version] [--tab N]
//                 [--screenshot FILE [--form NAME] [--edit-layout ROW]] [MISSION.mis]
#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QFont>
#include <cstdio>
#include <string>
#include <vector>

#include "app/command_line.h"
#include "app/screenshot_scene.h"
#include "common/paths.h"
#include "platform/install_folder.h"
#include "qt/editor_session.h"
#include "qt/editor_window.h"
#include "qt/services.h"
#include "refdata/reference_database.h"

namespace {

// The editor takes its reference database and maps from the folder it starts in on a first
// run; a start from elsewhere (a desktop menu, a shell in the home folder) moves to the data
// folder of the installation first. The sample simulator there stands in for a real one.
void EnterDataFolder() {
    const QString database = QString::fromStdString(
        tarvex::JoinPath(tarvex::JoinPath("Sortak", "Sortak Data"), tarvex::kDatabaseFileName));
    const QString data = QString::fromStdString(tarvex::DefaultInstallFolder());
    if (!QFileInfo::exists(database) && QFileInfo::exists(QDir(data).filePath(database)))
        QDir::setCurrent(data);
    if (qEnvironmentVariableIsEmpty("TARVEX_SIM_PATH") && QDir(data).exists("Tarvex"))
        qputenv("TARVEX_SIM_PATH", QDir(data).filePath("Tarvex/").toLocal8Bit());
}

}  // namespace

int main(int argc, char** argv) {
    // Read before the desktop is reached, so that --help answers where no window can open.
    std::vector<std::string> words(argv + 1, argv + argc);
    const tarvex::EditorCommandLine line = tarvex::ParseEditorCommandLine(words);
    switch (line.action) {
        case tarvex::EditorCommandLine::Action::Help:
            std::fputs(tarvex::EditorUsageText().c_str(), stdout);
            return 0;
        case tarvex::EditorCommandLine::Action::Version:
            std::fputs(tarvex::EditorVersionText().c_str(), stdout);
            return 0;
        case tarvex::EditorCommandLine::Action::Refuse:
            std::fprintf(stderr, "tarvex-editor: %s\n", line.problem.c_str());
            return tarvex::kUsageExitStatus;
        case tarvex::EditorCommandLine::Action::Run:
            break;
    }

    QApplication app(argc, argv);
    app.setApplicationName("Sortak");
    // The forms were laid out for the desktop's small dialog font.
    QFont font = app.font();
    font.setPointSizeF(8.0);
    app.setFont(font);

    // Start-up moves to the simulator's folder, so a file named from outside is taken from
    // the folder the editor was started in.
    QStringList files;
    for (const std::string& word : line.files) {
        const QString file = QString::fromStdString(word);
        files << (QFileInfo::exists(file) ? QFileInfo(file).absoluteFilePath() : file);
    }
    const QString screenshot =
        line.screenshot.empty()
            ? QString()
            : QFileInfo(QString::fromStdString(line.screenshot)).absoluteFilePath();
    EnterDataFolder();
    const bool unattended = !screenshot.isEmpty();

    tarvex::qt::QtServices services(
        unattended ? QString("tarvex-unattended-%1").arg(QCoreApplication::applicationPid())
                   : QString());
    services.dialogs.SetUnattended(unattended);
    tarvex::qt::EditorSession session(tarvex::Services{services.dialogs, services.sound,
                                                       services.settings, services.registry,
                                                       services.instance, services.clock});
    services.dialogs.SetParentWindow(&session.window());
    services.instance.SetWindow(&session.window());
    session.ed().shell.OnProgramEnd = [] { QCoreApplication::exit(0); };
    if (!session.Start(files.join(' '), unattended)) return unattended ? 1 : 0;
    if (!unattended) {
        if (line.tab >= 0) session.ShowTab(line.tab);
        return app.exec();
    }

    if (!tarvex::NamedMissionLoaded(session.ed(), line)) {
        std::fprintf(stderr, "tarvex-editor: %s did not load; no screenshot written\n",
                     qPrintable(files.join(' ')));
        return 1;
    }
    const std::string problem = session.PrepareScene(line);
    if (!problem.empty()) {
        std::fprintf(stderr, "tarvex-editor: %s; no screenshot written\n", problem.c_str());
        return 1;
    }
    const bool saved = session.SaveScreenshot(screenshot, QString::fromStdString(line.form));
    if (!saved) std::fprintf(stderr, "tarvex-editor: could not write %s\n", qPrintable(screenshot));
    return saved ? 0 : 1;
}
