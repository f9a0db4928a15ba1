#include "shell/controls/common_dialog.h"

#include "common/error.h"

namespace tarvex {

bool CommonDialog::ShowOpen() {
    return Show(false);
}

bool CommonDialog::ShowSave() {
    return Show(true);
}

bool CommonDialog::Show(bool save) {
    if (dialogs_ == nullptr) Raise(kErrInvalidCall, "No dialog service for " + Name());
    FileDialogRequest request;
    request.title = DialogTitle;
    request.filter = Filter;
    request.initDir = InitDir;
    request.fileName = FileName;
    request.flags = Flags;
    const FileDialogResult result =
        save ? dialogs_->ShowSave(request) : dialogs_->ShowOpen(request);
    if (result.cancelled) {
        if (CancelError) Raise(kErrCancel);
        return false;
    }
    FileName = result.fileName;
    FileTitle = result.fileTitle;
    return true;
}

}  // namespace tarvex
