// The editor program as a shell or a script starts it: what it prints, its exit status, and
// the picture it writes or refuses to write.
#include <gtest/gtest.h>

#include <QFileInfo>
#include <QProcess>
#include <QStringList>
#include <cstdio>
#include <filesystem>
#include <string>

#include "support/reference_folder.h"

namespace tarvex {
namespace {

struct Invocation {
    QStringList args;
    int status;
    const char* out;  // a part of what it prints on the output stream
    const char* err;  // a part of what it prints on the error stream
};

TEST(ProgramTest, OptionsAnswerWithTheirExitStatus) {
    const std::filesystem::path folder = testing::MakeTestFolder("program");
    const QString shot = QString::fromStdString((folder / "shot.png").string());
    const QString notMission = QString::fromStdString((folder / "notes.mis").string());
    {
        std::FILE* f = std::fopen(notMission.toLocal8Bit().constData(), "w");
        std::fputs("these are notes, not a mission\n", f);
        std::fclose(f);
    }
    const Invocation runs[] = {
        {{"--help"}, 0, "Usage: tarvex-editor", ""},
        {{"--version"}, 0, "tarvex-editor ", ""},
        {{"--bogus"}, 64, "", "tarvex-editor: unknown option '--bogus'"},
        {{"--tab", "4"}, 64, "", "--tab takes a number from 0 to 3"},
        {{"--tab", "two"}, 64, "", "not 'two'"},
        // A mission that fails to load is no picture of it, nor is one that isn't there.
        {{"--screenshot", shot, notMission}, 1, "", "did not load"},
        {{"--screenshot", shot, notMission + ".missing.mis"}, 1, "", "did not load"},
        {{"--screenshot", shot, "--form", "frmNothing"}, 1, "", "no window named"},
    };
    for (const Invocation& run : runs) {
        QProcess editor;
        editor.setWorkingDirectory(TARVEX_BINARY_DIR "/default-install");
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("QT_QPA_PLATFORM", "offscreen");
        env.insert("TARVEX_SIM_PATH", TARVEX_BINARY_DIR "/default-install/Tarvex/");
        env.insert("XDG_CONFIG_HOME", QString::fromStdString((folder / "config").string()));
        editor.setProcessEnvironment(env);
        editor.start(TARVEX_BINARY_DIR "/src/qt/tarvex-editor", run.args);
        ASSERT_TRUE(editor.waitForFinished(60000));
        const std::string shown = run.args.join(' ').toStdString();
        const std::string out = editor.readAllStandardOutput().toStdString();
        const std::string err = editor.readAllStandardError().toStdString();
        EXPECT_EQ(editor.exitCode(), run.status) << shown << "\n" << err;
        EXPECT_NE(out.find(run.out), std::string::npos) << shown << "\n" << out;
        EXPECT_NE(err.find(run.err), std::string::npos) << shown << "\n" << err;
        if (run.status == 64) {
            EXPECT_EQ(err.find('\n'), err.size() - 1) << shown << err;
        }
        EXPECT_FALSE(QFileInfo::exists(shot)) << shown;
    }
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
}

}  // namespace
}  // namespace tarvex
