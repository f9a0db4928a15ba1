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

class LineEditBinding : public ControlBinding {
  public:
    LineEditBinding(TextBox& model, QLineEdit* edit, QPointF origin)
        : ControlBinding(model, edit, origin), model_(model), edit_(edit) {
        connect(edit, &QLineEdit::textEdited, this, [this](const QString& text) {
            if (Syncing()) return;
            const int caret = edit_->cursorPosition();
            Guarded([&] {
                model_.SetText(ToModelText(text, false));
                model_.SetSelStart(caret);
            });
        });
        connect(edit, &QLineEdit::selectionChanged, this, [this] { ReportSelection(); });
        connect(edit, &QLineEdit::cursorPositionChanged, this, [this] { ReportSelection(); });
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
    void ReportSelection() {
        if (Syncing()) return;
        const int start =
            edit_->hasSelectedText() ? edit_->selectionStart() : edit_->cursorPosition();
        const int length = edit_->hasSelectedText() ? edit_->selectedText().size() : 0;
        Guarded([&] {
            model_.SetSelStart(start);
            model_.SetSelLength(length);
        });
    }
    void Sync(Aspect aspect) override {
        if (aspect == Aspect::Text || aspect == Aspect::Selection) {
            const QString text = FromModelText(model_.Text());
            if (edit_->text() != text) edit_->setText(text);
            if (model_.SelLength() > 0)
                edit_->setSelection(model_.SelStart(), model_.SelLength());
            else
                edit_->setCursorPosition(model_.SelStart());
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
};

class TextEditBinding : public ControlBinding {
  public:
    TextEditBinding(TextBox& model, QPlainTextEdit* edit, QPointF origin)
        : ControlBinding(model, edit, origin), model_(model), edit_(edit) {
        WatchChild(edit->viewport());
        connect(edit, &QPlainTextEdit::textChanged, this, [this] {
            if (Syncing()) return;
            const int caret = edit_->textCursor().position();
            Guarded([&] {
                model_.SetText(ToModelText(edit_->toPlainText(), true));
                model_.SetSelStart(caret);
            });
        });
    }

  protected:
    void Sync(Aspect aspect) override {
        if (aspect == Aspect::Text || aspect == Aspect::Selection) {
            const QString text = FromModelText(model_.Text());
            if (edit_->toPlainText() != text) edit_->setPlainText(text);
            QTextCursor cursor = edit_->textCursor();
            const int end = static_cast<int>(edit_->toPlainText().size());
            cursor.setPosition(std::min(model_.SelStart(), end));
            cursor.setPosition(std::min(model_.SelStart() + model_.SelLength(), end),
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
};

}  // namespace

ControlBinding* BindTextBox(TextBox& model, QWidget* parent, QPointF origin) {
    if (model.MultiLine()) return new TextEditBinding(model, new QPlainTextEdit(parent), origin);
    return new LineEditBinding(model, new QLineEdit(parent), origin);
}

}  // namespace tarvex::qt
