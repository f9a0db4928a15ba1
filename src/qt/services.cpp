#include "qt/services.h"

#include <QApplication>
#include <QAudioDevice>
#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QLocalServer>
#include <QLocalSocket>
#include <QMediaDevices>
#include <QMessageBox>
#include <QSoundEffect>
#include <QStringList>
#include <QUrl>
#include <QWidget>
#include <cstdio>
#include <cstdlib>

#include "qt/qt_text.h"

namespace tarvex::qt {

namespace {

QMessageBox::Icon IconOf(MsgIcon icon) {
    switch (icon) {
        case MsgIcon::Critical:
            return QMessageBox::Critical;
        case MsgIcon::Exclamation:
            return QMessageBox::Warning;
        case MsgIcon::Question:
            return QMessageBox::Question;
        case MsgIcon::Information:
            return QMessageBox::Information;
        case MsgIcon::None:
            break;
    }
    return QMessageBox::NoIcon;
}

}  // namespace

QString QtFileFilter(const std::string& filter) {
    const QStringList parts = Q(filter).split('|');
    QStringList filters;
    for (int i = 0; i + 1 < parts.size(); i += 2) {
        QString name = parts[i].trimmed();
        // Qt reads the patterns from the parentheses of the name, so they must be there.
        const QString patterns = QString(parts[i + 1]).replace(';', ' ');
        if (!name.contains('(')) name += " (" + patterns + ")";
        filters << name;
    }
    if (filters.isEmpty() && !parts.isEmpty() && !parts[0].isEmpty()) filters << parts[0];
    return filters.join(";;");
}

// ---- Dialogs -------------------------------------------------------------------------------

namespace {

MsgAnswer CloseBoxAnswer(MsgButtons buttons) {
    switch (buttons) {
        case MsgButtons::OK:
            return MsgAnswer::OK;
        case MsgButtons::YesNo:
            return MsgAnswer::No;
        default:
            return MsgAnswer::Cancel;
    }
}

}  // namespace

MsgAnswer QtDialogs::MsgBox(const MessageBoxRequest& request) {
    if (unattended_) {
        std::fprintf(stderr, "[%s] %s\n", request.title.c_str(), request.text.c_str());
        return CloseBoxAnswer(request.buttons);
    }
    QMessageBox box(IconOf(request.icon), Q(request.title), Q(request.text), QMessageBox::NoButton,
                    parent_);
    switch (request.buttons) {
        case MsgButtons::OK:
            box.setStandardButtons(QMessageBox::Ok);
            break;
        case MsgButtons::OKCancel:
            box.setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel);
            break;
        case MsgButtons::YesNo:
            box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
            break;
        case MsgButtons::YesNoCancel:
            box.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
            break;
    }
    switch (box.exec()) {
        case QMessageBox::Yes:
            return MsgAnswer::Yes;
        case QMessageBox::No:
            return MsgAnswer::No;
        case QMessageBox::Cancel:
            return MsgAnswer::Cancel;
        default:
            break;
    }
    return CloseBoxAnswer(request.buttons);
}

std::string QtDialogs::InputBox(const InputBoxRequest& request) {
    if (unattended_) return {};
    QInputDialog dialog(parent_);
    dialog.setWindowTitle(Q(request.title));
    dialog.setLabelText(Q(request.prompt));
    dialog.setTextValue(Q(request.preset));
    if (request.x >= 0 && request.y >= 0) dialog.move(request.x / 15, request.y / 15);
    if (dialog.exec() != QDialog::Accepted) return {};
    return dialog.textValue().toStdString();
}

FileDialogResult QtDialogs::ShowOpen(const FileDialogRequest& request) {
    return Show(request, false);
}

FileDialogResult QtDialogs::ShowSave(const FileDialogRequest& request) {
    return Show(request, true);
}

FileDialogResult QtDialogs::Show(const FileDialogRequest& request, bool save) {
    if (unattended_) return {};
    QString start = Q(request.initDir);
    if (!request.fileName.empty()) start = QDir(start).filePath(Q(request.fileName));
    const QString filter = QtFileFilter(request.filter);
    const QString chosen =
        save ? QFileDialog::getSaveFileName(parent_, Q(request.title), start, filter)
             : QFileDialog::getOpenFileName(parent_, Q(request.title), start, filter);
    FileDialogResult result;
    if (chosen.isEmpty()) return result;
    result.cancelled = false;
    result.fileName = QDir::toNativeSeparators(chosen).toStdString();
    result.fileTitle = QFileInfo(chosen).fileName().toStdString();
    return result;
}

// ---- Sound ---------------------------------------------------------------------------------

QtSoundEngine::QtSoundEngine() {
    audio_ = !QMediaDevices::defaultAudioOutput().isNull();
}

QtSoundEngine::~QtSoundEngine() = default;

int QtSoundEngine::Load(const std::string& path) {
    const QString file = Q(path);
    if (!QFileInfo(file).isFile()) return 0;
    const int handle = next_++;
    if (audio_) {
        auto effect = std::make_unique<QSoundEffect>();
        effect->setSource(QUrl::fromLocalFile(file));
        effect->setVolume(static_cast<float>(volume_) / 100.0f);
        effects_[handle] = std::move(effect);
    }
    return handle;
}

void QtSoundEngine::Play(int handle) {
    auto it = effects_.find(handle);
    if (it == effects_.end()) return;
    it->second->play();
}

void QtSoundEngine::SetVolume(int engineVolume) {
    volume_ = std::clamp(engineVolume, 0, 100);
    for (auto& [handle, effect] : effects_)
        effect->setVolume(static_cast<float>(volume_) / 100.0f);
}

// ---- Second copy ---------------------------------------------------------------------------

QtInstanceChannel::QtInstanceChannel(QString serverName) : name_(std::move(serverName)) {
    if (name_.isEmpty()) {
        const char* user = std::getenv("USER");
        name_ = QString("tarvex-mission-editor-%1").arg(user ? user : "user");
    }
    QLocalSocket probe;
    probe.connectToServer(name_);
    previous_ = probe.waitForConnected(300);
    if (previous_) return;
    // A server that died leaves its socket file behind.
    QLocalServer::removeServer(name_);
    server_ = new QLocalServer(this);
    if (server_->listen(name_))
        connect(server_, &QLocalServer::newConnection, this, &QtInstanceChannel::Serve);
}

QtInstanceChannel::~QtInstanceChannel() {
    if (server_) server_->close();
}

QString QtInstanceChannel::Ask(const QString& line) const {
    QLocalSocket socket;
    socket.connectToServer(name_);
    if (!socket.waitForConnected(500)) return {};
    socket.write((line + "\n").toUtf8());
    socket.waitForBytesWritten(500);
    if (!socket.waitForReadyRead(1000)) return {};
    return QString::fromUtf8(socket.readLine()).trimmed();
}

bool QtInstanceChannel::FindWindowByCaption(const std::string& caption) const {
    if (!previous_) return false;
    return Ask("caption") == Q(caption);
}

void QtInstanceChannel::RestoreWindow(const std::string& caption) {
    if (previous_) Ask("restore " + Q(caption));
}

void QtInstanceChannel::Serve() {
    while (QLocalSocket* socket = server_->nextPendingConnection()) {
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        connect(socket, &QLocalSocket::readyRead, this, [this, socket] {
            if (!socket->canReadLine()) return;
            const QString line = QString::fromUtf8(socket->readLine()).trimmed();
            const QString caption = window_ ? window_->windowTitle() : QString();
            if (line.startsWith("restore") && window_ && line.mid(8) == caption) {
                window_->showNormal();
                window_->raise();
                window_->activateWindow();
            }
            socket->write((caption + "\n").toUtf8());
            socket->flush();
        });
    }
}

// ---- Clock ---------------------------------------------------------------------------------

DateTime QtClock::Now() const {
    const QDateTime now = QDateTime::currentDateTime();
    return DateTime{now.date().year(), now.date().month(),  now.date().day(),
                    now.time().hour(), now.time().minute(), now.time().second()};
}

void QtClock::DoEvents() {
    QCoreApplication::processEvents();
}

}  // namespace tarvex::qt
