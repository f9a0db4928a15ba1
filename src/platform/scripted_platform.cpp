#include "platform/scripted_platform.h"

namespace tarvex {

namespace {

template <typename T>
bool PopFront(std::deque<T>& queue, T& out) {
    if (queue.empty()) return false;
    out = std::move(queue.front());
    queue.pop_front();
    return true;
}

}  // namespace

MsgAnswer ScriptedDialogs::MsgBox(const MessageBoxRequest& request) {
    messages.push_back(request);
    MsgAnswer answer;
    if (PopFront(msgAnswers, answer)) return answer;
    unanswered.push_back({"message box", request.title, request.text});
    switch (request.buttons) {
        case MsgButtons::YesNo:
            return declineUnanswered ? MsgAnswer::No : MsgAnswer::Yes;
        case MsgButtons::YesNoCancel:
            return declineUnanswered ? MsgAnswer::Cancel : MsgAnswer::Yes;
        case MsgButtons::OKCancel:
            return declineUnanswered ? MsgAnswer::Cancel : MsgAnswer::OK;
        default:
            return MsgAnswer::OK;
    }
}

std::string ScriptedDialogs::InputBox(const InputBoxRequest& request) {
    inputs.push_back(request);
    std::string text;
    if (PopFront(inputAnswers, text)) return text;
    unanswered.push_back({"input box", request.title, request.prompt});
    return declineUnanswered ? std::string() : request.preset;
}

FileDialogResult ScriptedDialogs::ShowOpen(const FileDialogRequest& request) {
    opens.push_back(request);
    FileDialogResult result;
    if (!PopFront(openAnswers, result) && !PopFront(fileAnswers, result))
        unanswered.push_back({"open dialog", request.title, {}});
    return result;
}

FileDialogResult ScriptedDialogs::ShowSave(const FileDialogRequest& request) {
    saves.push_back(request);
    FileDialogResult result;
    if (!PopFront(saveAnswers, result) && !PopFront(fileAnswers, result))
        unanswered.push_back({"save dialog", request.title, {}});
    return result;
}

bool ScriptedDialogs::AnswersQueued() const {
    return !msgAnswers.empty() || !inputAnswers.empty() || !openAnswers.empty() ||
           !saveAnswers.empty() || !fileAnswers.empty();
}

void ScriptedDialogs::ClearAnswers() {
    msgAnswers.clear();
    inputAnswers.clear();
    openAnswers.clear();
    saveAnswers.clear();
    fileAnswers.clear();
}

void ScriptedDialogs::ClearRecord() {
    messages.clear();
    inputs.clear();
    opens.clear();
    saves.clear();
    unanswered.clear();
}

FileDialogResult ScriptedDialogs::Chosen(const std::string& path) {
    FileDialogResult result;
    result.cancelled = false;
    result.fileName = path;
    const auto slash = path.find_last_of("/\\");
    result.fileTitle = slash == std::string::npos ? path : path.substr(slash + 1);
    return result;
}

int ScriptedSoundEngine::Load(const std::string& path) {
    loads.push_back(path);
    if (missing.count(path) != 0) return 0;
    const int handle = static_cast<int>(loaded_.size()) + 1;
    loaded_[handle] = path;
    return handle;
}

void ScriptedSoundEngine::Play(int handle) {
    plays.push_back(handle);
}

std::string ScriptedSoundEngine::PathOf(int handle) const {
    const auto it = loaded_.find(handle);
    return it == loaded_.end() ? std::string() : it->second;
}

std::optional<std::string> MemorySettingsStore::Get(const std::string& app,
                                                    const std::string& section,
                                                    const std::string& key) const {
    const auto it = values.find({app, section, key});
    if (it == values.end()) return std::nullopt;
    return it->second;
}

void MemorySettingsStore::Save(const std::string& app, const std::string& section,
                               const std::string& key, const std::string& value) {
    values[{app, section, key}] = value;
}

void MemorySettingsStore::Delete(const std::string& app, const std::string& section,
                                 const std::string& key) {
    values.erase({app, section, key});
}

std::string ScriptedRegistry::ReadRegistryValue(RegistryRoot root, const std::string& subkey,
                                                const std::string& value) const {
    const auto it = values.find({root, subkey, value});
    return it == values.end() ? std::string() : it->second;
}

void ScriptedClock::DoEvents() {
    ++doEventsCount;
    if (onDoEvents) onDoEvents();
}

}  // namespace tarvex
