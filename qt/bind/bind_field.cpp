// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <QLabel>
#include <QLineEdit>

#include "qt/bind/binder.h"
#include "qt/bind/control_view.h"

namespace tarvo {
namespace {

class FieldView : public ControlView {
 public:
  FieldView(TextField& control, QLineEdit& line, Registry& registry)
      : ControlView(control, line, registry), control_(control), line_(line) {
    connect(&line, &QLineEdit::textEdited, this,
            [this](const QString& text) { control_.userType(text.toStdString()); });
    FieldView::show(Control::Change::items);
  }

 protected:
  void show(Control::Change) override {
    showCommonState();
    const QString text = toQString(control_.stringValue());
    if (line_.text() != text) line_.setText(text);  // the cursor stays where the user types
  }

 private:
  TextField& control_;
  QLineEdit& line_;
};

class TextView : public ControlView {
 public:
  TextView(TextField& control, QLabel& label, Registry& registry)
      : ControlView(control, label, registry), control_(control), label_(label) {
    TextView::show(Control::Change::items);
  }

 protected:
  void show(Control::Change) override {
    showCommonState();
    label_.setText(toQString(control_.stringValue()));
    if (control_.label().empty()) {
      label_.setAccessibleName(label_.text());
    } else {
      label_.setAccessibleDescription(label_.text());  // the name alone says nothing of what is shown
    }
  }

 private:
  TextField& control_;
  QLabel& label_;
};

}  // namespace

QLineEdit* Binder::field(TextField& control, QWidget* parent) {
  auto* line = new QLineEdit(parent);
  new FieldView(control, *line, registry_);
  return line;
}

QLabel* Binder::text(TextField& control, QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  text(control, *label);
  return label;
}

void Binder::text(TextField& control, QLabel& shown) { new TextView(control, shown, registry_); }

}  // namespace tarvo
