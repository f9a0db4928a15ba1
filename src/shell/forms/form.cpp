#include "shell/forms/form.h"

#include <cctype>
#include <stdexcept>

namespace tarvex {

namespace {

bool SameName(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (size_t i = 0; i < a.size(); ++i) {
        const auto ca = static_cast<unsigned char>(a[i]);
        const auto cb = static_cast<unsigned char>(b[i]);
        if (std::tolower(ca) != std::tolower(cb)) return false;
    }
    return true;
}

}  // namespace

Component* Form::FindComponent(std::string_view name, int index) const {
    for (const Registered& entry : entries_) {
        if (!SameName(entry.name, name)) continue;
        if (entry.single) {
            if (index == -1) return entry.single;
        } else if (index >= 0) {
            if (Component* element = entry.find(index)) return element;
        }
    }
    return nullptr;
}

Control* Form::FindControl(std::string_view name, int index) const {
    return dynamic_cast<Control*>(FindComponent(name, index));
}

std::vector<Component*> Form::Components() const {
    std::vector<Component*> all;
    for (const Registered& entry : entries_) {
        if (entry.single)
            all.push_back(entry.single);
        else
            entry.each(all);
    }
    return all;
}

std::vector<Control*> Form::Controls() const {
    std::vector<Control*> controls;
    for (Component* component : Components())
        if (auto* control = dynamic_cast<Control*>(component)) controls.push_back(control);
    return controls;
}

void Form::CheckContainer(const Container& where, const std::string& name) const {
    const Control* holder = where.Holder();
    bool known = holder == this;
    for (const Registered& entry : entries_)
        known = known || (holder && entry.single == holder);
    if (!known)
        throw std::logic_error(Name() + "." + name +
                               " lies in a container that is not of the form");
    if (where.HasPages() && !dynamic_cast<const TabControl*>(holder))
        throw std::logic_error(Name() + "." + name + " lies on pages of a control that has none");
}

void Form::LoadForm() {
    if (loaded_) return;
    loaded_ = true;
    Load();
}

void Form::Show() {
    LoadForm();
    SetVisible(true);
}

void Form::UnloadForm() {
    if (!loaded_) {
        SetVisible(false);
        return;
    }
    Unload();
    loaded_ = false;
    SetVisible(false);
}

void Form::UserClose() {
    int cancel = 0;
    QueryUnload(cancel);
    if (cancel == 0) UnloadForm();
}

void Form::UserResize(float width, float height) {
    Move(Left(), Top(), width, height);
    Resize();
}

void Form::SetTopMost(bool topMost) {
    if (topMost == topMost_) return;
    topMost_ = topMost;
    Notify(Aspect::Appearance);
}

void Form::ListEvents(std::vector<NamedEvent>& out) const {
    CaptionControl::ListEvents(out);
    out.insert(
        out.end(),
        {{"Load", &Load}, {"QueryUnload", &QueryUnload}, {"Unload", &Unload}, {"Resize", &Resize}});
}

void Form::AddRows(ListControl& list, std::initializer_list<const char*> texts) {
    for (const char* text : texts) {
        const int row = list.ListCount();
        list.AddItem(text);
        list.SetItemData(list.NewIndex(), row);
    }
}

void Form::AddRows(ListControl& list, std::initializer_list<FixedRow> rows) {
    for (const FixedRow& row : rows) {
        list.AddItem(row.text);
        list.SetItemData(list.NewIndex(), row.data);
    }
}

}  // namespace tarvex
