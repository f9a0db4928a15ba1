#pragma once
// Where the skin puts each control of a form: the container it lies in and, for controls the
// form gives no place, a place and size of the skin's own. One table per form.
#include <string>
#include <vector>

namespace tarvex {
class Form;
class FrmMission;
class MDIMissionED;
}  // namespace tarvex

namespace tarvex::qt {

struct Placement {
    std::string name;
    int index = -1;
    // "" the form itself; "page:N" page N of the form's tab strip; "pages:1,3" shown on each of
    // those pages; otherwise the name of the frame or surface the control lies in.
    std::string container;
    float left = 0;
    float top = 0;
    float width = 0;
    float height = 0;
    // The control may grow beyond this place: it is seen through a scrolled view of it.
    bool scrolled = false;
};

// A caption of the skin's own beside an unlabelled box.
struct StaticText {
    std::string container;
    std::string text;
    float left = 0;
    float top = 0;
    float width = 0;
};

struct FormLayout {
    std::vector<Placement> places;
    std::vector<StaticText> texts;
    const Placement* Find(const std::string& name, int index) const;
};

FormLayout MissionFormLayout(const FrmMission& form);
// The other windows: their controls in a tidy column flow where the form gives no place.
FormLayout FlowLayout(const Form& form);

// Gives each control of the table its place and size where the model has none yet.
void ApplyLayout(Form& form, const FormLayout& layout);

}  // namespace tarvex::qt
