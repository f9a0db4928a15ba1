#pragma once
// Scripted implementations of the platform services for tests and for the command-line tool:
// answers come from queues, and everything the program asked of the desktop is recorded so that
// a test can assert the exact texts of every box shown.
#include <deque>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "platform/platform.h"

namespace tarvex {

// Dialogs answered from queues. When a queue is empty the box takes its desktop default:
// a message box answers its first button (OK, or Yes), an input box answers its preset text
// unchanged (the user pressed OK without typing), and a file dialog is cancelled. Either way
// the box is entered in `unanswered`, so that a script can tell a box it did not foresee.
class ScriptedDialogs : public Dialogs {
  public:
    MsgAnswer MsgBox(const MessageBoxRequest& request) override;
    std::string InputBox(const InputBoxRequest& request) override;
    FileDialogResult ShowOpen(const FileDialogRequest& request) override;
    FileDialogResult ShowSave(const FileDialogRequest& request) override;

    // Answers, used first in first out.
    void QueueMsgAnswer(MsgAnswer answer) { msgAnswers.push_back(answer); }
    void QueueInput(const std::string& text) { inputAnswers.push_back(text); }
    // A chosen file: the title is the part after the last folder separator.
    void QueueOpen(const std::string& path) { openAnswers.push_back(Chosen(path)); }
    void QueueOpenCancel() { openAnswers.push_back(FileDialogResult{}); }
    void QueueSave(const std::string& path) { saveAnswers.push_back(Chosen(path)); }
    void QueueSaveCancel() { saveAnswers.push_back(FileDialogResult{}); }
    // For whichever file dialog comes next, open or save, once its own queue is empty.
    void QueueFile(const std::string& path) { fileAnswers.push_back(Chosen(path)); }
    void QueueFileCancel() { fileAnswers.push_back(FileDialogResult{}); }
    // Whether any answer of any kind is still waiting.
    bool AnswersQueued() const;
    void ClearAnswers();

    // The text of the last message box shown; empty when none was.
    std::string LastMessage() const {
        return messages.empty() ? std::string() : messages.back().text;
    }
    void ClearRecord();

    static FileDialogResult Chosen(const std::string& path);

    std::deque<MsgAnswer> msgAnswers;
    std::deque<std::string> inputAnswers;
    std::deque<FileDialogResult> openAnswers;
    std::deque<FileDialogResult> saveAnswers;
    std::deque<FileDialogResult> fileAnswers;

    // Every box shown, in order.
    std::vector<MessageBoxRequest> messages;
    std::vector<InputBoxRequest> inputs;
    std::vector<FileDialogRequest> opens;
    std::vector<FileDialogRequest> saves;

    // Every box that found no answer waiting, in order.
    struct Unanswered {
        std::string kind;  // "message box", "input box", "open dialog", "save dialog"
        std::string title;
        std::string text;  // the message, the prompt; empty for a file dialog
    };
    std::vector<Unanswered> unanswered;
    // Such a box declines instead of taking its default: a message box answers Cancel where
    // it has it, else No, else OK; an input box and a file dialog are cancelled. A script that
    // did not foresee a question then changes nothing by it.
    bool declineUnanswered = false;
};

// Loads succeed with increasing handles unless the path is listed in `missing`.
class ScriptedSoundEngine : public SoundEngine {
  public:
    int Load(const std::string& path) override;
    void Play(int handle) override;
    void SetVolume(int engineVolume) override { volume = engineVolume; }
    int Volume() const override { return volume; }

    // The path a handle was loaded from; empty for an unknown handle.
    std::string PathOf(int handle) const;

    std::set<std::string> missing;
    std::vector<std::string> loads;  // every path asked for, loaded or not
    std::vector<int> plays;          // every handle played, 0 included
    int volume = 0;

  private:
    std::map<int, std::string> loaded_;
};

class MemorySettingsStore : public SettingsStore {
  public:
    using Key = std::tuple<std::string, std::string, std::string>;  // app, section, key

    std::optional<std::string> Get(const std::string& app, const std::string& section,
                                   const std::string& key) const override;
    void Save(const std::string& app, const std::string& section, const std::string& key,
              const std::string& value) override;
    void Delete(const std::string& app, const std::string& section,
                const std::string& key) override;

    std::map<Key, std::string> values;
};

class ScriptedRegistry : public Registry {
  public:
    using Key = std::tuple<RegistryRoot, std::string, std::string>;  // root, subkey, value

    std::string ReadRegistryValue(RegistryRoot root, const std::string& subkey,
                                  const std::string& value) const override;
    void Set(RegistryRoot root, const std::string& subkey, const std::string& value,
             const std::string& data) {
        values[{root, subkey, value}] = data;
    }

    std::map<Key, std::string> values;
};

class ScriptedInstanceChannel : public InstanceChannel {
  public:
    bool PrevInstance() const override { return prevInstance; }
    bool FindWindowByCaption(const std::string& caption) const override {
        return windows.count(caption) != 0;
    }
    void RestoreWindow(const std::string& caption) override { restored.push_back(caption); }

    bool prevInstance = false;
    std::set<std::string> windows;      // captions of the other copy's top-level windows
    std::vector<std::string> restored;  // captions asked to be restored, in order
};

class ScriptedClock : public Clock {
  public:
    DateTime Now() const override { return now; }
    // Counts the call, then runs `onDoEvents` so a test can let a timer fire mid-operation.
    void DoEvents() override;

    DateTime now;
    int doEventsCount = 0;
    std::function<void()> onDoEvents;
};

// All six together, for an Editor that runs without a desktop: tests, benchmarks, the fuzzer,
// the command-line tool and the generators.
struct ScriptedServices {
    ScriptedDialogs dialogs;
    ScriptedSoundEngine sound;
    MemorySettingsStore settings;
    ScriptedRegistry registry;
    ScriptedInstanceChannel instance;
    ScriptedClock clock;

    Services Bind() { return Services{dialogs, sound, settings, registry, instance, clock}; }
};

}  // namespace tarvex
