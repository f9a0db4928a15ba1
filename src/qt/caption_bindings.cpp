#include "qt/caption_bindings.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <type_traits>

#include "qt/binding.h"
#include "qt/qt_text.h"

namespace tarvex::qt {

namespace {

// A caption without its access-key marks, for widgets that don't show them.
QString PlainCaption(const std::string& caption) {
    QString out;
    const QString text = Q(caption);
    for (int i = 0; i < text.size(); ++i) {
        if (text[i] == '&') {
            if (i + 1 < text.size() && text[i + 1] == '&') out += '&';
            ++i;
            if (i < text.size() && text[i] != '&') out += text[i];
            continue;
        }
        out += text[i];
    }
    return out;
}

void ShowCaption(QLabel* label, const std::string& caption) {
    label->setText(PlainCaption(caption));
}
void ShowCaption(QGroupBox* box, const std::string& caption) {
    box->setTitle(PlainCaption(caption));
}
// Buttons underline their access key.
void ShowCaption(QAbstractButton* button, const std::string& caption) {
    button->setText(Q(caption));
}

void ShowValue(QWidget*, const Control&) {}
void ShowValue(QCheckBox* box, const CheckBox& model) {
    box->setTristate(model.Value() == kGrayed);
    box->setCheckState(model.Value() == kChecked  ? Qt::Checked
                       : model.Value() == kGrayed ? Qt::PartiallyChecked
                                                  : Qt::Unchecked);
}
void ShowValue(QRadioButton* button, const OptionButton& model) {
    button->setChecked(model.Value());
}

template <typename ModelKind, typename WidgetKind>
class CaptionBinding : public ControlBinding {
  public:
    // ownColours: the widget paints its text in the control's colours.
    CaptionBinding(ModelKind& model, WidgetKind* widget, QPointF origin, bool ownColours)
        : ControlBinding(model, widget, origin),
          model_(model),
          widget_(widget),
          ownColours_(ownColours) {
        if constexpr (std::is_base_of_v<QAbstractButton, WidgetKind>) {
            connect(widget, &QAbstractButton::clicked, this, [this] {
                if (Syncing()) return;
                Guarded([this] { model_.UserClick(); });
                SyncAll();
            });
        }
    }

  protected:
    bool PaintsBackColour() const override { return ownColours_; }
    void SyncAppearance() override {
        ControlBinding::SyncAppearance();
        // A frame covers what lies under it, as a panel opened over other controls must.
        if constexpr (std::is_same_v<WidgetKind, QGroupBox>) widget_->setAutoFillBackground(true);
    }
    void Sync(Aspect aspect) override {
        if (aspect == Aspect::Text || aspect == Aspect::Appearance)
            ShowCaption(widget_, model_.Caption());
        if (aspect == Aspect::Value) ShowValue(widget_, model_);
        ControlBinding::Sync(aspect);
    }

  private:
    ModelKind& model_;
    WidgetKind* widget_;
    bool ownColours_;
};

template <typename ModelKind, typename WidgetKind>
ControlBinding* Bind(ModelKind& model, WidgetKind* widget, QPointF origin, bool ownColours) {
    return new CaptionBinding<ModelKind, WidgetKind>(model, widget, origin, ownColours);
}

}  // namespace

ControlBinding* BindLabel(Label& model, QWidget* parent, QPointF origin) {
    auto* label = new QLabel(parent);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    return Bind(model, label, origin, true);
}

ControlBinding* BindFrame(Frame& model, QWidget* parent, QPointF origin) {
    return Bind(model, new QGroupBox(parent), origin, false);
}

ControlBinding* BindButton(CommandButton& model, QWidget* parent, QPointF origin) {
    return Bind(model, new QPushButton(parent), origin, false);
}

ControlBinding* BindCheck(CheckBox& model, QWidget* parent, QPointF origin) {
    return Bind(model, new QCheckBox(parent), origin, true);
}

ControlBinding* BindOption(OptionButton& model, QWidget* parent, QPointF origin) {
    auto* button = new QRadioButton(parent);
    // The group is the model's business; Qt's own exclusion would fight it.
    button->setAutoExclusive(false);
    return Bind(model, button, origin, true);
}

}  // namespace tarvex::qt
