#include "ui/cell_editor.h"

#include <QKeyEvent>

#include "ui/style.h"

namespace store {

CellEditor::CellEditor(QWidget* parent) : QLineEdit(parent) {
  setFrame(false);
  setAlignment(Qt::AlignRight);
  FollowLook(*this, [this] {
    setStyleSheet(QString("border: 2px solid %1; border-radius: 0; padding: 0 2px; background: %2;")
                      .arg(QColor(look::Bright).name(), QColor(look::OpenCell).name()));
  });
  hide();
}

// The tab key would otherwise be gone before keyPressEvent.
bool CellEditor::event(QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (key.key() == Qt::Key_Tab) {
      Left(true, 1);
      return true;
    }
  }
  return QLineEdit::event(event);
}

void CellEditor::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Down:
      Left(true, 1);
      return;
    case Qt::Key_Up:
      Left(true, -1);
      return;
    case Qt::Key_Escape:
      Left(false, 0);
      return;
    default:
      QLineEdit::keyPressEvent(event);
  }
}

void CellEditor::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  // Another program's window or a menu over the cell is not a person going on.
  const bool stays =
      event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason;
  if (!stays) Left(true, 0);
}

}  // namespace store
