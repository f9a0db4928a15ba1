#pragma once
// The desktop services of the editor on Qt: message, input and file boxes, the sound engine,
// the second-copy channel and the clock; the settings file and the two registry values are
// the core's, shared with tarvex-mis.
#include <QObject>
#include <QPointer>
#include <QString>
#include <map>
#include <memory>

#include "platform/account_registry.h"
#include "platform/ini_settings_store.h"
#include "platform/platform.h"

class QLocalServer;
class QSoundEffect;
class QWidget;

namespace tarvex::qt {

// Qt's filter text from the common dialog's "Name (*.a)|*.a|..." pairs.
QString QtFileFilter(const std::string& filter);

class QtDialogs : public Dialogs {
  public:
    // The window the boxes belong to; may be set later, when the main window exists.
    void SetParentWindow(QWidget* parent) { parent_ = parent; }
    // Without anyone to answer (a screenshot run): each box is written to the console and
    // answered as its close box would be; input and file boxes are cancelled.
    void SetUnattended(bool unattended) { unattended_ = unattended; }
    MsgAnswer MsgBox(const MessageBoxRequest& request) override;
    std::string InputBox(const InputBoxRequest& request) override;
    FileDialogResult ShowOpen(const FileDialogRequest& request) override;
    FileDialogResult ShowSave(const FileDialogRequest& request) override;

  private:
    FileDialogResult Show(const FileDialogRequest& request, bool save);
    QPointer<QWidget> parent_;
    bool unattended_ = false;
};

// Wave files through QSoundEffect. A machine without audio output keeps every call silent.
class QtSoundEngine : public SoundEngine {
  public:
    QtSoundEngine();
    ~QtSoundEngine() override;
    int Load(const std::string& path) override;
    void Play(int handle) override;
    void SetVolume(int engineVolume) override;
    int Volume() const override { return volume_; }

  private:
    bool audio_ = false;
    int volume_ = 100;
    int next_ = 1;
    std::map<int, std::unique_ptr<QSoundEffect>> effects_;
};

// A local server named after the user: the first copy listens, a later copy finds it. The
// window caption and the restore request travel as one line over the socket.
class QtInstanceChannel : public QObject, public InstanceChannel {
    Q_OBJECT
  public:
    explicit QtInstanceChannel(QString serverName = {});
    ~QtInstanceChannel() override;
    bool PrevInstance() const override { return previous_; }
    bool FindWindowByCaption(const std::string& caption) const override;
    void RestoreWindow(const std::string& caption) override;
    // The window this copy restores when another copy asks, and whose caption it answers.
    void SetWindow(QWidget* window) { window_ = window; }

  private:
    QString Ask(const QString& line) const;
    void Serve();
    QString name_;
    bool previous_ = false;
    QLocalServer* server_ = nullptr;
    QPointer<QWidget> window_;
};

class QtClock : public Clock {
  public:
    DateTime Now() const override;
    void DoEvents() override;
};

// Every service of one running editor. A run that shows no window (a screenshot) passes a
// channel name of its own, so that it neither finds the user's editor as an earlier copy nor
// is found by it.
struct QtServices {
    QtServices() = default;
    explicit QtServices(QString instanceName) : instance(std::move(instanceName)) {}
    QtDialogs dialogs;
    QtSoundEngine sound;
    IniSettingsStore settings;
    AccountRegistry registry;
    QtInstanceChannel instance;
    QtClock clock;
};

}  // namespace tarvex::qt
