#include "qt/text_bindings.h"

#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <algorithm>

#include "qt/binding.h"
#include "qt/qt_text.h"

namespace tarvex::qt {

namespace {

// Multi-line text boxes hold their line breaks as CR LF.
QString FromModelText(const std::string& text) {
    return Q(text).replace("\r\n", "\n");
}
std::string ToModelText(QString text, bool multiLine) {
    if (multiLine) text.replace("\n", "\r\n");
    return text.toStdString();
}

// The model counts the caret and the selection in bytes of its text, CR LF included; the
// widget in characters of what it shows. The typing gestures edit the model at its count.
int ModelPosition(const QString& shown, int position, bool multiLine) {
    return static_cast<int>(ToModelText(shown.left(position), multiLine).size());
}
int ShownPosition(const std::string& text, int position) {
    const size_t bytes =
        static_cast<size_t>(std::clamp(position, 0, static_cast<int>(text.size())));
    return static_cast<int>(FromModelText(text.substr(0, bytes)).size());
}

// Tells the model where the caret and the selection are, from the widget's start and end.
// Meanwhile `reporting` is set: the widget already shows what the model takes, and setting it
// back would turn a selection made leftwards round.
void ReportSelection(TextBox& model, const QString& shown, int start, int end, bool& reporting) {
    const bool multi = model.MultiLine();
    const int modelStart = ModelPosition(shown, start, multi);
    reporting = true;
    Guarded([&] {
        model.SetSelStart(modelStart);
        model.SetSelLength(ModelPosition(shown, end, multi) - modelStart);
    });
    reporting = false;
}

class LineEditBinding : public ControlBinding {
  public:
    LineEditBinding(TextBox& model, QLineEdit* edit, QPointF origin)
        : ControlBinding(model, edit, origin), model_(model), edit_(edit) {
        // What the widget edits itself (a paste, a cut, an input method) arrives whole.
        connect(edit, &QLineEdit::textEdited, this, [this](const QString& text) {
            if (Syncing()) return;
            const int caret = ModelPosition(text, edit_->cursorPosition(), false);
            Guarded([&] {
                model_.SetText(ToModelText(text, false));
                model_.SetSelStart(caret);
            });
        });
        connect(edit, &QLineEdit::selectionChanged, this, [this] { Report(); });
        connect(edit, &QLineEdit::cursorPositionChanged, this, [this] { Report(); });
    }

  protected:
    // A click in the box, after its press and release, as the desktop's text box raises it.
    bool eventFilter(QObject* watched, QEvent* event) override {
        const bool click = event->type() == QEvent::MouseButtonRelease &&
                           static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
        const bool handled = ControlBinding::eventFilter(watched, event);
        if (click && Widget()) Guarded([this] { model_.RaiseClick(); });
        return handled;
    }
    void Report() {
        if (Syncing()) return;
        const int start =
            edit_->hasSelectedText() ? edit_->selectionStart() : edit_->cursorPosition();
        const int length = edit_->hasSelectedText() ? edit_->selectedText().size() : 0;
        ReportSelection(model_, edit_->text(), start, start + length, reporting_);
    }
    void Sync(Aspect aspect) override {
        if ((aspect == Aspect::Text || aspect == Aspect::Selection) && !reporting_) {
            const QString text = FromModelText(model_.Text());
            if (edit_->text() != text) edit_->setText(text);
            const int start = ShownPosition(model_.Text(), model_.SelStart());
            const int end = ShownPosition(model_.Text(), model_.SelStart() + model_.SelLength());
            if (end > start)
                edit_->setSelection(start, end - start);
            else
                edit_->setCursorPosition(start);
        }
        if (aspect == Aspect::Appearance) {
            edit_->setReadOnly(model_.Locked());
            edit_->setMaxLength(model_.MaxLength() > 0 ? model_.MaxLength() : 32767);
        }
        ControlBinding::Sync(aspect);
    }
    bool PaintsBackColour() const override { return true; }

  private:
    TextBox& model_;
    QLineEdit* edit_;
    bool reporting_ = false;
};

class TextEditBinding : public ControlBinding {
  public:
    TextEditBinding(TextBox& model, QPlainTextEdit* edit, QPointF origin)
        : ControlBinding(model, edit, origin), model_(model), edit_(edit) {
        WatchChild(edit->viewport());
        connect(edit, &QPlainTextEdit::textChanged, this, [this] {
            if (Syncing()) return;
            const QString shown = edit_->toPlainText();
            const int caret = ModelPosition(shown, edit_->textCursor().position(), true);
            Guarded([&] {
                model_.SetText(ToModelText(shown, true));
                model_.SetSelStart(caret);
            });
        });
        connect(edit, &QPlainTextEdit::cursorPositionChanged, this, [this] { Report(); });
        connect(edit, &QPlainTextEdit::selectionChanged, this, [this] { Report(); });
    }

  protected:
    void Report() {
        if (Syncing()) return;
        const QTextCursor cursor = edit_->textCursor();
        ReportSelection(model_, edit_->toPlainText(), cursor.selectionStart(),
                        cursor.selectionEnd(), reporting_);
    }
    void Sync(Aspect aspect) override {
        if ((aspect == Aspect::Text || aspect == Aspect::Selection) && !reporting_) {
            const QString text = FromModelText(model_.Text());
            if (edit_->toPlainText() != text) edit_->setPlainText(text);
            QTextCursor cursor = edit_->textCursor();
            cursor.setPosition(ShownPosition(model_.Text(), model_.SelStart()));
            cursor.setPosition(ShownPosition(model_.Text(), model_.SelStart() + model_.SelLength()),
                               QTextCursor::KeepAnchor);
            edit_->setTextCursor(cursor);
        }
        if (aspect == Aspect::Appearance) edit_->setReadOnly(model_.Locked());
        ControlBinding::Sync(aspect);
    }
    bool PaintsBackColour() const override { return true; }

  private:
    TextBox& model_;
    QPlainTextEdit* edit_;
    bool reporting_ = false;
};

}  // namespace

ControlBinding* BindTextBox(TextBox& model, QWidget* parent, QPointF origin) {
    if (model.MultiLine()) return new TextEditBinding(model, new QPlainTextEdit(parent), origin);
    return new LineEditBinding(model, new QLineEdit(parent), origin);
}

}  // namespace tarvex::qt
