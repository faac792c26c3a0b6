#pragma once

#include <QLineEdit>
#include <functional>

namespace store {

/// The open cell of a grid. It says how it is left: whether what was typed is kept, and how many
/// rows to go on from here.
class CellEditor : public QLineEdit {
 public:
  explicit CellEditor(QWidget* parent);

  std::function<void(bool keep, int step)> Left;

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
};

}  // namespace store
