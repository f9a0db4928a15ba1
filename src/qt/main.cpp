// Entry of the desktop editor. The window arrives with the skin; until then it says so.
#include <QApplication>
#include <QMessageBox>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QMessageBox::information(nullptr, "Tarvex Mission Editor",
                             "The editor window is not built yet.");
    return 0;
}
