#pragma once
#include <string>

#include "platform/platform.h"
#include "shell/controls/control.h"

namespace tarvex {

// The open/save dialog with its fields. ShowOpen and ShowSave go through the Dialogs service;
// a cancel leaves FileName and FileTitle alone and, when CancelError is set, raises error
// 32755.
class CommonDialog : public Component {
  public:
    explicit CommonDialog(std::string name = {}, Dialogs* dialogs = nullptr)
        : Component(std::move(name)), dialogs_(dialogs) {}

    void SetDialogs(Dialogs& dialogs) { dialogs_ = &dialogs; }

    std::string DialogTitle;
    std::string Filter;
    std::string InitDir;
    std::string FileName;
    std::string FileTitle;
    long Flags = 0;
    bool CancelError = false;

    // Whether a file was chosen. Without a Dialogs service this raises error 5.
    bool ShowOpen();
    bool ShowSave();

  private:
    bool Show(bool save);
    Dialogs* dialogs_;
};

}  // namespace tarvex
