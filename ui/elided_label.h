#pragma once

#include <QLabel>

namespace store {

/// A label that never asks for more width than there is: it cuts its text at the end and shows the
/// whole of it as a tool tip. What is selected of it can be copied, and without a selection all of
/// it.
class ElidedLabel : public QLabel {
 public:
  ElidedLabel();

  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  bool event(QEvent* event) override;

 private:
  bool IsCut() const;
};

}  // namespace store
