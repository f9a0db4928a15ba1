#pragma once
// What the program asks of the desktop: dialogs, sound, the settings store, the two registry
// values, the second-copy channel and the clock. The Qt skin implements these; tests use the
// scripted implementations of platform/scripted_platform.h.
#include <cstdint>
#include <optional>
#include <string>

namespace tarvex {

// ---- Dialogs -------------------------------------------------------------------------------

enum class MsgIcon { None, Critical, Exclamation, Question, Information };
enum class MsgButtons { OK, OKCancel, YesNo, YesNoCancel };
enum class MsgAnswer { OK, Cancel, Yes, No };

struct MessageBoxRequest {
    std::string text;
    std::string title;
    MsgButtons buttons = MsgButtons::OK;
    MsgIcon icon = MsgIcon::None;
};

struct InputBoxRequest {
    std::string title;
    std::string prompt;
    std::string preset;
    int x = -1;  // position in map units; -1 lets the desktop choose
    int y = -1;
};

// The fields of the common open/save dialog.
struct FileDialogRequest {
    std::string title;
    std::string filter;  // "Text (*.mis)|*.mis" pairs separated by "|"
    std::string initDir;
    std::string fileName;
    long flags = 0;
};

struct FileDialogResult {
    bool cancelled = true;
    std::string fileName;   // full path
    std::string fileTitle;  // file name without the folder
};

class Dialogs {
  public:
    virtual ~Dialogs() = default;
    virtual MsgAnswer MsgBox(const MessageBoxRequest& request) = 0;
    // An input box answers the empty text when cancelled, as the desktop's does.
    virtual std::string InputBox(const InputBoxRequest& request) = 0;
    virtual FileDialogResult ShowOpen(const FileDialogRequest& request) = 0;
    virtual FileDialogResult ShowSave(const FileDialogRequest& request) = 0;
};

// ---- Sound ---------------------------------------------------------------------------------

class SoundEngine {
  public:
    virtual ~SoundEngine() = default;
    // Loads a wave file; 0 when it could not be loaded. A missing file or a machine without
    // audio is silent, never an error.
    virtual int Load(const std::string& path) = 0;
    virtual void Play(int handle) = 0;
    virtual void SetVolume(int engineVolume) = 0;
    virtual int Volume() const = 0;
};

// ---- Settings ------------------------------------------------------------------------------

class SettingsStore {
  public:
    virtual ~SettingsStore() = default;
    virtual std::optional<std::string> Get(const std::string& app, const std::string& section,
                                           const std::string& key) const = 0;
    virtual void Save(const std::string& app, const std::string& section, const std::string& key,
                      const std::string& value) = 0;
    virtual void Delete(const std::string& app, const std::string& section,
                        const std::string& key) = 0;
};

// ---- Registry ------------------------------------------------------------------------------

enum class RegistryRoot { CurrentUser, LocalMachine };

class Registry {
  public:
    virtual ~Registry() = default;
    // The value's text without its terminating zero, or the empty text when the key or the
    // value can't be read.
    virtual std::string ReadRegistryValue(RegistryRoot root, const std::string& subkey,
                                          const std::string& value) const = 0;
};

// ---- Second copy ---------------------------------------------------------------------------

class InstanceChannel {
  public:
    virtual ~InstanceChannel() = default;
    virtual bool PrevInstance() const = 0;
    // Whether a top-level window of another copy has exactly this caption.
    virtual bool FindWindowByCaption(const std::string& caption) const = 0;
    virtual void RestoreWindow(const std::string& caption) = 0;
};

// ---- Clock ---------------------------------------------------------------------------------

struct DateTime {
    int year = 1940;
    int month = 1;
    int day = 1;
    int hour = 0;
    int minute = 0;
    int second = 0;
};

class Clock {
  public:
    virtual ~Clock() = default;
    virtual DateTime Now() const = 0;
    // Lets pending events run (timers, repaints) during a long operation.
    virtual void DoEvents() = 0;
};

// ---- All of them ---------------------------------------------------------------------------

// The desktop as the program sees it. The services outlive the Editor that uses them.
struct Services {
    Dialogs& dialogs;
    SoundEngine& sound;
    SettingsStore& settings;
    Registry& registry;
    InstanceChannel& instance;
    Clock& clock;
};

}  // namespace tarvex
