#include "ui/line_undo.h"

#include <QHBoxLayout>
#include <QLineEdit>

#include "ui/form_window.h"
#include "ui/key_button.h"

namespace store {
namespace {

/// The box that a person is typing into, which an empty one is not.
QLineEdit* TypedInto(const FormWindow& window) {
  auto* box = qobject_cast<QLineEdit*>(window.focusWidget());
  return box == nullptr || box->text().isEmpty() ? nullptr : box;
}

KeyButton* AddButton(QHBoxLayout& row, const char* name, const QKeySequence& keys) {
  auto* button = Named(name, new KeyButton);
  button->WriteKey(keys.toString(QKeySequence::NativeText));
  row.addWidget(button);
  return button;
}

}  // namespace

void AddLineUndo(FormWindow& window, QHBoxLayout& row) {
  const QKeySequence back(Qt::CTRL | Qt::Key_Z);
  const QKeySequence again(Qt::CTRL | Qt::Key_Y);
  KeyButton* undo = AddButton(row, "LineUndo", back);
  KeyButton* redo = AddButton(row, "LineRedo", again);
  window.OnShortcut(back, [&window, undo] {
    QLineEdit* box = TypedInto(window);
    if (box != nullptr && box->isUndoAvailable()) {
      box->undo();
    } else {
      undo->click();
    }
  });
  window.OnShortcut(again, [&window, redo] {
    auto* box = qobject_cast<QLineEdit*>(window.focusWidget());
    // An emptied box has its text back when there are no lines to be had.
    const bool typing = TypedInto(window) != nullptr || !redo->isEnabled();
    if (box != nullptr && box->isRedoAvailable() && typing) {
      box->redo();
    } else {
      redo->click();
    }
  });
}

}  // namespace store
