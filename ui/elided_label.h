#pragma once

#include <QLabel>

namespace store {

/// A label that never asks for more width than there is: it cuts its text at the end and shows the
/// whole of it as a tool tip.
class ElidedLabel : public QLabel {
 public:
  ElidedLabel();

  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;

 private:
  bool IsCut() const;
};

}  // namespace store
