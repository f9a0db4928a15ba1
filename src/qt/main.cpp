// The desktop editor: the Qt services, the editor and its windows.
//   tarvex-editor [--screenshot FILE [--tab N]] [MISSION.mis]
#include <QApplication>
#include <QFileInfo>
#include <QFont>
#include <cstdio>

#include "qt/editor_session.h"
#include "qt/editor_window.h"
#include "qt/services.h"

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    app.setApplicationName("Sortak");
    // The forms were laid out for the desktop's small dialog font.
    QFont font = app.font();
    font.setPointSizeF(8.0);
    app.setFont(font);

    QString screenshot;
    int tab = -1;
    QStringList rest;
    const QStringList args = app.arguments();
    for (int i = 1; i < args.size(); ++i) {
        if (args[i] == "--screenshot" && i + 1 < args.size())
            screenshot = args[++i];
        else if (args[i] == "--tab" && i + 1 < args.size())
            tab = args[++i].toInt();
        else if (QFileInfo::exists(args[i]))
            // Start-up moves to the simulator's folder, so a file named from outside is
            // taken from the folder the editor was started in.
            rest << QFileInfo(args[i]).absoluteFilePath();
        else
            rest << args[i];
    }
    const bool unattended = !screenshot.isEmpty();

    tarvex::qt::QtServices services;
    services.dialogs.SetUnattended(unattended);
    tarvex::qt::EditorSession session(tarvex::Services{services.dialogs, services.sound,
                                                       services.settings, services.registry,
                                                       services.instance, services.clock});
    services.dialogs.SetParentWindow(&session.window());
    services.instance.SetWindow(&session.window());
    session.ed().shell.OnProgramEnd = [] { QCoreApplication::exit(0); };
    if (!session.Start(rest.join(' '), unattended)) return 0;
    if (!unattended) return app.exec();

    if (tab >= 0) session.ShowTab(tab);
    const bool saved = session.SaveScreenshot(screenshot);
    if (!saved) std::fprintf(stderr, "tarvex-editor: could not write %s\n", qPrintable(screenshot));
    return saved ? 0 : 1;
}
